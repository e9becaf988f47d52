#include "conversion.h"
#include "lessonerror.h"
#include "lessonformats.h"
#include "lossreport.h"
#include "pluginfixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QtTest>

#include <cmath>

namespace {

QDomDocument load(const QString &file)
{
    QFile opened(file);
    QDomDocument document;
    QString error;
    if (!opened.open(QIODevice::ReadOnly) || !document.setContent(opened.readAll(), false, &error)) {
        qFatal("%s: %s", qPrintable(file), qPrintable(error));
    }
    return document;
}

QDomElement byId(const QDomElement &root, const QString &id)
{
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QDomElement found = child.attribute(QStringLiteral("id")) == id ? child : byId(child, id);
        if (!found.isNull()) {
            return found;
        }
    }
    return {};
}

QVector<double> numbers(QString text)
{
    QVector<double> values;
    const QStringList parts = text.replace(QLatin1Char(' '), QLatin1Char(',')).split(QLatin1Char(','));
    for (const QString &part : parts) {
        values.append(part.toDouble());
    }
    return values;
}

// What a svg element covers before its transform, measured from the attributes that svg readers draw it from.
QRectF measured(const QDomElement &element)
{
    const auto value = [&element](const char *name) { return element.attribute(QLatin1String(name)).toDouble(); };
    const QString tag = element.tagName();
    if (tag == QLatin1String("svg:line")) {
        return QRectF(QPointF(value("x1"), value("y1")), QPointF(value("x2"), value("y2"))).normalized();
    }
    if (tag == QLatin1String("svg:circle")) {
        return QRectF(value("cx") - value("r"), value("cy") - value("r"), 2 * value("r"), 2 * value("r"));
    }
    if (tag == QLatin1String("svg:ellipse")) {
        return QRectF(value("cx") - value("rx"), value("cy") - value("ry"), 2 * value("rx"), 2 * value("ry"));
    }
    if (tag == QLatin1String("svg:polyline")) {
        const QVector<double> n = numbers(element.attribute(QStringLiteral("points")));
        QPolygonF points;
        for (int i = 0; i + 1 < n.size(); i += 2) {
            points.append(QPointF(n.at(i), n.at(i + 1)));
        }
        return points.boundingRect();
    }
    return QRectF(value("x"), value("y"), value("width"), value("height"));
}

void write(const QString &file, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(file).path());
    QFile opened(file);
    if (!opened.open(QIODevice::WriteOnly) || opened.write(content) != content.size()) {
        qFatal("can't write %s", qPrintable(file));
    }
}

void convert(const QString &from, const QString &to, const char *format, LossReport *losses = nullptr,
             const QHash<QString, QString> &options = {})
{
    LessonContext context;
    context.plugin = plugin();
    LossReport unread;
    context.losses = losses ? losses : &unread;
    context.options = options;
    try {
        convertLesson(lessonFormatOfInput(from), from, lessonFormatByName(QLatin1String(format)), to, context,
                      [](int, int) {});
    } catch (const LessonError &error) {
        qFatal("%s", qPrintable(error.message()));
    }
}

// A page's svg without the identifiers that every reading makes anew.
QString content(const QString &package)
{
    QFile file(package + QLatin1String("/content.xml"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no content in %s", qPrintable(package));
    }
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QRegularExpression(QStringLiteral("\"(images/)?[^\"/]*_(rect|bgd)(\\.png)?\"")),
                 QStringLiteral("\"background\""));
    return text;
}

QByteArray picture()
{
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "png");
    return bytes;
}

QByteArray foreignPage(const QByteArray &items)
{
    return "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0' xmlns:svg='http://www.w3.org/2000/svg' "
           "xmlns:xlink='http://www.w3.org/1999/xlink'><svg:svg viewBox='0 0 800 600'><svg:page id='p'>"
        + items + "</svg:page></svg:svg></iwb>";
}

// A lesson of one item in a box of 100 x 60, with points for whatever needs some.
QByteArray oneItemLesson(const QByteArray &item)
{
    QByteArray text =
        "{'Width':'800','Height':'600','Slides':[{'ID':'1','Items':[{'ID':'i','BoundingBox':'100,50,200,110',"
        "'Control':[0,0,60,0,60,40],'XYValue':'0,0,10,5,20,0,40,30,',"
        + item + "}]}]}";
    return text.replace('\'', '"');
}

QJsonObject firstItem(const QString &json)
{
    QFile file(json);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no %s", qPrintable(json));
    }
    return QJsonDocument::fromJson(file.readAll())
        .object()
        .value(QLatin1String("Slides"))
        .toArray()
        .first()
        .toObject()
        .value(QLatin1String("Items"))
        .toArray()
        .first()
        .toObject();
}

// The first line of the pages that three trips through the model change, or nothing.
QString driftOf(const QString &lesson)
{
    QTemporaryDir work;
    QString package = work.filePath(QStringLiteral("0"));
    convert(lesson, package, "iwb");
    const QStringList was = content(package).split(QLatin1Char('\n'));
    for (int trip = 1; trip <= 3; ++trip) {
        const QString json = work.filePath(QString::number(trip) + QLatin1String(".json"));
        convert(package, json, "json");
        package = work.filePath(QString::number(trip));
        convert(json, package, "iwb");
        const QStringList is = content(package).split(QLatin1Char('\n'));
        for (int i = 0; i < qMax(was.size(), is.size()); ++i) {
            if (is.value(i) != was.value(i)) {
                return QStringLiteral("trip %1: %2 was %3").arg(trip).arg(is.value(i), was.value(i));
            }
        }
    }
    return {};
}

QStringList details(const LossReport &losses)
{
    QStringList texts;
    for (const Loss &loss : losses.entries()) {
        texts.append(loss.itemType + QLatin1Char(' ') + loss.key + QLatin1String(": ") + loss.detail);
    }
    return texts;
}

} // namespace

/*!
 * Lessons on their way to IWB packages and back, through the plug-in.
 */
class TestIwbPackages : public QObject
{
    Q_OBJECT

private slots:
    void itemsFillTheirBoxes()
    {
        QTemporaryDir work;
        const QString example = QStringLiteral(EXAMPLES_DIR "/geometry");
        const QString package = work.filePath(QStringLiteral("out"));
        convert(example, package, "iwb");
        const QDomElement written = load(package + QLatin1String("/content.xml")).documentElement();
        int count = 0;
        for (const char *slide : {"figures", "triangles"}) {
            const QDomElement items =
                load(example + QLatin1String("/slides/") + QLatin1String(slide) + QLatin1String(".xml"))
                    .documentElement()
                    .firstChildElement(QStringLiteral("items"));
            for (QDomElement item = items.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
                const QString id = item.attribute(QStringLiteral("id"));
                const QVector<double> box = numbers(item.firstChildElement(QStringLiteral("data"))
                                                        .firstChildElement(QStringLiteral("rect"))
                                                        .attribute(QStringLiteral("points")));
                if (item.tagName() == QLatin1String("group") || item.tagName() == QLatin1String("stroke")) {
                    continue; // it comes as what it holds; its points are its own
                }
                const QDomElement element = byId(written, id);
                QVERIFY2(!element.isNull(), qPrintable(id));
                const QRectF found = measured(element);
                const QString where = QStringLiteral("%1: %2,%3,%4,%5")
                                          .arg(id)
                                          .arg(found.left())
                                          .arg(found.top())
                                          .arg(found.right())
                                          .arg(found.bottom());
                QVERIFY2(qAbs(found.left() - box.at(0)) < 1 && qAbs(found.top() - box.at(1)) < 1
                             && qAbs(found.right() - box.at(2)) < 1 && qAbs(found.bottom() - box.at(3)) < 1,
                         qPrintable(where));
                const double angle = item.firstChildElement(QStringLiteral("transform"))
                                         .firstChildElement(QStringLiteral("rotate"))
                                         .attribute(QStringLiteral("angle"))
                                         .toDouble();
                const QVector<double> turn =
                    numbers(element.attribute(QStringLiteral("transform"))
                                .mid(7)
                                .chopped(element.hasAttribute(QStringLiteral("transform")) ? 1 : 0));
                QVERIFY2(qAbs(turn.at(0) - angle * 180 / M_PI) < 1e-3, qPrintable(id));
                QVERIFY2(
                    angle == 0
                        || (qAbs(turn.at(1) - found.center().x()) < 1 && qAbs(turn.at(2) - found.center().y()) < 1),
                    qPrintable(id));
                ++count;
            }
        }
        QCOMPARE(count, 20 + 6);
    }

    void rawItemsKeepTheirMatrix()
    {
        // A page of 1024 x 768 goes into 1440 x 1080: everything is 1.40625 times as large.
        QTemporaryDir work;
        const QString raw = work.filePath(QStringLiteral("raw.xml"));
        write(raw,
              "<presentation><slide NetID='1' BackColor='255,10,20,30'>"
              "<ZQMath2DRectangle NetID='r' TransformMatrix='0.8660254,0.5,-0.5,0.8660254,100,50' Angle='0.5235988' "
              "Discipline_xControl0='80' Discipline_yControl0='0' Discipline_xControl1='0' Discipline_yControl1='40'/>"
              "<ZQMath2DCircle NetID='c' TransformMatrix='2,0,0,2,300,200' Discipline_xControl0='10' "
              "Discipline_yControl0='0'/>"
              "<ZQTextBoard NetID='t' TransformMatrix='1,0,0,1,5,6' Bound='110,60,0,0,10,10' Text='hi'/>"
              "</slide></presentation>");
        LessonContext context;
        context.plugin = plugin();
        const QString package = work.filePath(QStringLiteral("out"));
        convertLesson(lessonFormatByName(QStringLiteral("rawxml")), raw, lessonFormatByName(QStringLiteral("iwb")),
                      package, context, [](int, int) {});
        const QDomElement root = load(package + QLatin1String("/content.xml")).documentElement();
        QCOMPARE(byId(root, QStringLiteral("1_rect")).attribute(QStringLiteral("fill")),
                 QStringLiteral("rgb(10,20,30)"));
        // 80 x 40 turned by 30 degrees: its centre 40,20 comes to 100 + 40 cos 30 - 20 sin 30 = 124.641 and
        // 50 + 40 sin 30 + 20 cos 30 = 87.3205, on the page 175.276, 122.794; its sides are 112.5 and 56.25.
        const QRectF rectangle = measured(byId(root, QStringLiteral("r")));
        QVERIFY(qAbs(rectangle.center().x() - 175.276) < 0.01 && qAbs(rectangle.center().y() - 122.794) < 0.01);
        QVERIFY(qAbs(rectangle.width() - 112.5) < 0.01 && qAbs(rectangle.height() - 56.25) < 0.01);
        QVERIFY(byId(root, QStringLiteral("r"))
                    .attribute(QStringLiteral("transform"))
                    .startsWith(QLatin1String("rotate(30 ")));
        // 300,200 and a radius of 20.
        QCOMPARE(measured(byId(root, QStringLiteral("c"))), QRectF(421.875 - 28.125, 281.25 - 28.125, 56.25, 56.25));
        // 28 pixels become 39.375.
        const QDomElement text = byId(root, QStringLiteral("t"));
        QCOMPARE(text.attribute(QStringLiteral("font-size")), QStringLiteral("39.375"));
        QVERIFY(qAbs(measured(text).x() - 15 * 1.40625) < 0.001 && qAbs(measured(text).y() - 16 * 1.40625) < 0.001);
    }

    void nothingDrifts_data()
    {
        QTest::addColumn<QString>("input");
        QTest::newRow("every shape, text and picture") << QStringLiteral(EXAMPLES_DIR "/geometry");
        QTest::newRow("written by another program") << QStringLiteral(EXAMPLES_DIR "/fractions.iwb");
    }

    void nothingDrifts()
    {
        QFETCH(QString, input);
        QCOMPARE(driftOf(input), QString());
    }

    void paintsShapes_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("expected"); // stroke, width, opacity, dashes, fill, its opacity
        const auto row = [](const char *name, const char *item, const char *expected) {
            QTest::newRow(name) << QByteArray(item) << QString::fromLatin1(expected);
        };
        const char *const black = "rgb(0,0,0)|2|||none|";
        row("nothing is said: black, two wide, empty", "'Type':'ZQMath2DCircle'", black);
        row("colours that are none", "'Type':'ZQMath2DTriangle','LineColor':'1,2','ArtObj_Color':{}", black);
        row("a colour object, 0xFF8000 at a half",
            "'Type':'ZQMath2DCircle','ArtObj_Color':{'Solid':16744448,'Alpha':0.5}",
            "rgb(0,0,0)|2|128||rgb(255,128,0)|0.501961");
        row("an opaque fill", "'Type':'ZQMath2DEllipse','ArtObj_Color':'255,1,2,3','ArtObj_Fill':'1'",
            "rgb(0,0,0)|2|255||rgb(1,2,3)|");
        row("three parts are opaque", "'Type':'ZQMath2DRectangle','ArtObj_Color':'1,2,3','LineColor':'4,5,6'",
            "rgb(4,5,6)|2|255||rgb(1,2,3)|");
        row("not filled", "'Type':'ZQMath2DTriangle','ArtObj_Color':'255,1,2,3','ArtObj_Fill':'0'", black);
        row("a line of every type's own key",
            "'Type':'ZQMath2DGeoTriangle','ArtObj_Color1':'255,7,8,9','LineColor':'1,1,1'", "rgb(7,8,9)|2|||none|");
        row("a polyline's keys", "'Type':'ZQMath2DPolyline','ArtObj_Color':'255,7,8,9','ArtObj_FillColor':'64,1,2,3'",
            "rgb(7,8,9)|2|64||rgb(1,2,3)|0.25098");
        row("a line of 51/255 around an opaque fill",
            "'Type':'ZQMath2DCircle','LineColor':'51,7,8,9','ArtObj_Color':'255,1,2,3'",
            "rgb(7,8,9)|2|0.2||rgb(1,2,3)|1");
        row("no line at all", "'Type':'ZQMath2DNormalHexagon','LineColor':'0,7,8,9','ArtObj_Color':'1,2,3'",
            "none|2|255||rgb(1,2,3)|");
        // 10 x 3, 2 x 3, 2 x 3, 2 x 3; 5 x 3, 5 x 3; 10 x 3, 2 x 3, 10 x 3.
        row("dash dot dot", "'Type':'ZQMath2DSegment','ArtObj_Style':'1','ArtObj_Width':'3'",
            "rgb(0,0,0)|3||30,6,6,6||");
        row("dash", "'Type':'ZQMath2DQuadrangle','ArtObj_Mode':'2','ArtObj_Width':'3'", "rgb(0,0,0)|3||15,15|none|");
        row("dash dot", "'Type':'ZQMath2DAngle','ArtObj_Mode':'3','ArtObj_Width':'3'", "rgb(0,0,0)|3||30,6,30|none|");
        row("a dash of a line without a width", "'Type':'ZQMath2DSegment','ArtObj_Style':'2'", "rgb(0,0,0)|2||10,10||");
        row("a width between two numbers", "'Type':'ZQMath2DCircle','ArtObj_Mode':'2','ArtObj_Width':'2.6'",
            "rgb(0,0,0)|2.6||15,15|none|");
        row("numbers for texts", "'Type':'ZQMath2DSegment','ArtObj_Style':2,'ArtObj_Width':4", "rgb(0,0,0)|4||20,20||");
        row("another style", "'Type':'ZQMath2DSegment','ArtObj_Style':'7','ArtObj_Mode':'2'", "rgb(0,0,0)|2||||");
        row("a width that is none", "'Type':'ZQMath2DSegment','ArtObj_Width':'-1'", "rgb(0,0,0)|2||||");
    }

    void paintsShapes()
    {
        QFETCH(QByteArray, item);
        QFETCH(QString, expected);
        QTemporaryDir work;
        const QString json = work.filePath(QStringLiteral("in.json"));
        write(json, oneItemLesson(item));
        const QString package = work.filePath(QStringLiteral("out"));
        convert(json, package, "iwb");
        const QDomElement element =
            byId(load(package + QLatin1String("/content.xml")).documentElement(), QStringLiteral("i"));
        QStringList values;
        for (const char *name :
             {"stroke", "stroke-width", "stroke-opacity", "stroke-dasharray", "fill", "fill-opacity"}) {
            values.append(element.attribute(QLatin1String(name)));
        }
        QCOMPARE(values.join(QLatin1Char('|')), expected);
        QCOMPARE(driftOf(json), QString());
    }

    void arrowsFollowTheType_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("ends");
        QTest::newRow("none") << QByteArray("'Type':'ZQMath2DSegment'") << "circle circle";
        QTest::newRow("one") << QByteArray("'Type':'ZQMath2DSegmentWith1Arrow'") << "arrow ";
        QTest::newRow("two") << QByteArray("'Type':'ZQMath2DSegmentWith2Arrow'") << "arrow arrow";
        QTest::newRow("the item says otherwise")
            << QByteArray("'Type':'ZQMath2DSegmentWith2Arrow','ArtObj_ArrowType':'1'") << "arrow ";
    }

    void arrowsFollowTheType()
    {
        QFETCH(QByteArray, item);
        QFETCH(QString, ends);
        QTemporaryDir work;
        write(work.filePath(QStringLiteral("in.json")), oneItemLesson(item));
        const QString package = work.filePath(QStringLiteral("out"));
        convert(work.filePath(QStringLiteral("in.json")), package, "iwb");
        const QDomElement line =
            byId(load(package + QLatin1String("/content.xml")).documentElement(), QStringLiteral("i"));
        QCOMPARE(line.attribute(QStringLiteral("stroke-lineshape-start")) + QLatin1Char(' ')
                     + line.attribute(QStringLiteral("stroke-lineshape-end")),
                 ends);
    }

    void textsComeBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("ends of CDATA sections") << "a]]>b ]]]]>> ]]";
        QTest::newRow("markup") << "<b> & &amp; <![CDATA[ \"'";
        QTest::newRow("blanks and tabs") << " a\tb   c ";
        QTest::newRow("lines") << "a\n\nb\n";
        QTest::newRow("scripts") << QString::fromUtf8("\xe6\xb0\x94 \xf0\x9f\x8d\x8e \xd7\xa9 e\xcc\x81");
    }

    void textsComeBack()
    {
        QFETCH(QString, text);
        QTemporaryDir work;
        const QString json = work.filePath(QStringLiteral("in.json"));
        QJsonObject item{{QStringLiteral("Type"), QStringLiteral("ZQTextBoard")},
                         {QStringLiteral("ID"), QStringLiteral("i")},
                         {QStringLiteral("BoundingBox"), QStringLiteral("0,0,100,50")},
                         {QStringLiteral("Text"), text}};
        write(json,
              QJsonDocument(QJsonObject{{QStringLiteral("Slides"),
                                         QJsonArray{QJsonObject{{QStringLiteral("Items"), QJsonArray{item}}}}}})
                  .toJson());
        const QString iwb = work.filePath(QStringLiteral("a.iwb"));
        const QString back = work.filePath(QStringLiteral("back.json"));
        convert(json, iwb, "iwb");
        convert(iwb, back, "json");
        QTextDocument document;
        document.setHtml(firstItem(back).value(QLatin1String("TextHtml")).toString());
        QCOMPARE(document.toPlainText(), text);
        QCOMPARE(driftOf(json), QString());
    }

    void foreignPagesDontDrift_data()
    {
        QTest::addColumn<QByteArray>("items");
        QTest::newRow("turned shapes") << QByteArray(
            "<svg:g transform='rotate(17 300 200) scale(1.3 0.7)'><svg:rect id='a' x='10' y='20' width='300' "
            "height='90' "
            "fill='#123' stroke='red' stroke-width='3'/></svg:g><svg:ellipse id='b' cx='400' cy='300' rx='90' ry='20' "
            "transform='rotate(-33.3 400 300)'/><svg:circle id='c' cx='77.7' cy='88.8' r='33.3' stroke='blue' "
            "stroke-opacity='.3'/>");
        QTest::newRow("outlines") << QByteArray(
            "<svg:polyline id='a' points='1,2 3.3333333,40 100,7' fill='none' stroke='red'/>"
            "<svg:polygon id='b' points='100,100 200,100.5 150,200' fill='rgb(1,2,3)' fill-opacity='.7'/>"
            "<svg:path id='c' d='M300 300l0.1234567 50 50 0' stroke='black' stroke-dasharray='9 3 1 3'/>"
            "<svg:line id='d' x1='1.1' y1='2.2' x2='333.3' y2='444.4' stroke='red' stroke-width='0.7' "
            "stroke-lineshape-end='arrow'/>");
        QTest::newRow("texts") << QByteArray(
            "<svg:text id='a' x='100' y='100' font-size='17' text-anchor='end'>E = mc<svg:tspan "
            "baseline-shift='super'>2"
            "</svg:tspan></svg:text><svg:textarea id='b' x='10' y='200' width='300' height='90' font-family='Times' "
            "transform='rotate(10)'>one<svg:tbreak/><svg:tspan font-weight='700'>two ]]&gt; three</svg:tspan>"
            "</svg:textarea>");
        QTest::newRow("links and locks") << QByteArray(
            "<svg:a xlink:href='#p'><svg:rect id='a' width='9' height='9'/></svg:a>"
            "<svg:a xlink:href='https://example.org/?a=1&amp;b=2'><svg:circle id='b' r='9'/></svg:a>"
            "<svg:a xlink:href='images/a.png'><svg:textarea id='c' x='1' y='1' width='9' height='9'>x</svg:textarea>"
            "</svg:a><svg:rect id='d' width='5' height='5' visibility='hidden'/>");
    }

    void foreignPagesDontDrift()
    {
        QFETCH(QByteArray, items);
        QTemporaryDir work;
        write(work.filePath(QStringLiteral("in/content.xml")), foreignPage(items));
        write(work.filePath(QStringLiteral("in/images/a.png")), picture());
        QCOMPARE(driftOf(work.filePath(QStringLiteral("in"))), QString());
    }

    void comesBackAsZqtx()
    {
        QTemporaryDir work;
        const QString iwb = work.filePath(QStringLiteral("a.iwb"));
        const QString zqtx = work.filePath(QStringLiteral("b"));
        const QString again = work.filePath(QStringLiteral("c"));
        convert(QStringLiteral(EXAMPLES_DIR "/geometry"), iwb, "iwb");
        LossReport losses;
        convert(iwb, zqtx, "zqtx", &losses);
        QVERIFY2(losses.lossCount() == 0, qPrintable(losses.summary()));
        convert(iwb, work.filePath(QStringLiteral("d")), "iwb");
        convert(zqtx, again, "iwb");
        QCOMPARE(content(again), content(work.filePath(QStringLiteral("d"))));
    }

    void readsOtherPrograms_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("types");
        QTest::newRow("IWB elements without a prefix, groups and styles")
            << foreignPage("<svg:g transform='scale(2)'><svg:circle id='c' cx='5' cy='5' r='4' style='fill:red'/>"
                           "<svg:polygon id='t' points='0,0 9,0 9,9' fill='none' stroke='blue'/></svg:g>"
                           "<svg:image id='i' x='9' y='9' width='40' height='30' xlink:href='images/a.png'/>")
            << QStringList{QStringLiteral("ZQMath2DCircle c 2,2,18,18"), QStringLiteral("ZQMath2DPolyline t 0,0,18,18"),
                           QStringLiteral("ZQImagePic i 9,9,49,39 images/a.png")};
        QTest::newRow("svg without a prefix, IWB with one")
            << QByteArray(
                   "<iwb:iwb xmlns:iwb='http://www.becta.org.uk/iwb' version='1.0'>"
                   "<svg xmlns='http://www.w3.org/2000/svg' xmlns:x='http://www.w3.org/1999/xlink' width='800' "
                   "height='600' viewbox='0 0 800 600'><page id='p1'><rect id='r' x='1' y='2' width='3' height='4' "
                   "fill='none' stroke='#000'/><line id='l' x1='0' y1='9' x2='9' y2='0' stroke='#000'/><a id='s' "
                   "x:href='images/a.png'/></page></svg></iwb:iwb>")
            << QStringList{QStringLiteral("ZQMath2DRectangle r 1,2,4,6"), QStringLiteral("ZQMath2DSegment l 0,0,9,9"),
                           QStringLiteral("ZQMediaAudio s 0,0,0,0 images/a.png")};
        QTest::newRow("no pages, paths, embedded picture, window's separators")
            << QByteArray(
                   "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0'><s:svg xmlns:s='http://www.w3.org/2000/svg' "
                   "xmlns:xlink='http://www.w3.org/1999/xlink' width='640px' height='480px'>"
                   "<s:path id='p' d='M10 10 L20 10 L20 30 Z' stroke='black'/>"
                   "<s:image id='i' width='8' height='6' xlink:href='data:image/png;base64,"
                   + picture().toBase64()
                   + "'/><s:image id='j' width='8' height='6' xlink:href='images\\a.png'/></s:svg></iwb>")
            << QStringList{QStringLiteral("ZQMath2DPolyline p 10,10,20,30"),
                           QStringLiteral("ZQImagePic i 0,0,8,6 images/embedded-1.png"),
                           QStringLiteral("ZQImagePic j 0,0,8,6 images/a.png")};
    }

    void readsOtherPrograms()
    {
        QFETCH(QByteArray, document);
        QFETCH(QStringList, types);
        QTemporaryDir work;
        write(work.filePath(QStringLiteral("in/content.xml")), document);
        write(work.filePath(QStringLiteral("in/images/a.png")), picture());
        LessonContext context;
        context.plugin = plugin();
        LossReport losses;
        context.losses = &losses;
        const auto reader =
            lessonFormatByName(QStringLiteral("iwb")).open(work.filePath(QStringLiteral("in")), context);
        const LessonSlide slide = reader->slide(0);
        QStringList found;
        for (const QJsonValue &value : slide.items) {
            const QJsonObject item = value.toObject();
            QStringList words;
            for (const char *key : {"Type", "ID", "BoundingBox", "resource"}) {
                words.append(item.value(QLatin1String(key)).toString());
            }
            found.append(words.join(QLatin1Char(' ')).trimmed());
            const QString resource = words.last();
            QVERIFY(resource.isEmpty() || QFile::exists(reader->resourceFile(resource)));
        }
        QCOMPARE(found, types);
        QVERIFY2(losses.lossCount() == 0, qPrintable(losses.summary()));
    }

    void refusesReferencesThatLeaveThePackage_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("problem");
        const auto image = [](const char *reference) -> QByteArray {
            return QByteArray("<svg:image id='i' width='4' height='3' xlink:href='") + reference + "'/>";
        };
        QTest::newRow("up") << image("../../secret.png") << "svg:image ../../secret.png: it leads out of the package";
        QTest::newRow("absolute") << image("/etc/passwd") << "svg:image /etc/passwd: it is an absolute path";
        QTest::newRow("escaped") << image("images/%2e%2e/%2e%2e/x")
                                 << "svg:image images/%2e%2e/%2e%2e/x: it leads out of the package";
        QTest::newRow("web") << image("http://example.org/a.png")
                             << "svg:image http://example.org/a.png: it lies outside of the package and isn't fetched";
        QTest::newRow("file") << image("file:///etc/passwd")
                              << "svg:image file:///etc/passwd: it lies outside of the package and isn't fetched";
        QTest::newRow("nothing") << image("") << "svg:image : it names no file";
        QTest::newRow("folder") << image("images") << "svg:image images: it is a folder";
        QTest::newRow("missing") << image("images/b.png") << "svg:image images/b.png: the package has no such file";
        QTest::newRow("link in the package")
            << image("images/link.png") << "svg:image images/link.png: the package has no such file";
        QTest::newRow("no picture") << image("images/text.png")
                                    << "svg:image images/text.png: it is no picture that can be read";
        QTest::newRow("cut picture") << image("images/cut.png") << "svg:image images/cut.png: it is a damaged picture";
        QTest::newRow("flipped bit") << image("images/bit.png") << "svg:image images/bit.png: it is a damaged picture";
        QTest::newRow("a page's link")
            << QByteArray("<svg:a xlink:href='../x.txt'><svg:rect id='i' width='9' height='9'/></svg:a>")
            << "ZQMath2DRectangle InteractiveValue: link to \"../x.txt\": it leads out of the package";
    }

    void refusesReferencesThatLeaveThePackage()
    {
        QFETCH(QByteArray, item);
        QFETCH(QString, problem);
        QTemporaryDir work;
        const QString package = work.filePath(QStringLiteral("a/b/in"));
        write(package + QLatin1String("/content.xml"), foreignPage(item));
        write(package + QLatin1String("/images/a.png"), picture());
        write(package + QLatin1String("/images/text.png"), "not a picture");
        write(package + QLatin1String("/images/cut.png"), picture().chopped(12));
        QByteArray flipped = picture();
        flipped[flipped.indexOf("IDAT") + 6] = char(flipped.at(flipped.indexOf("IDAT") + 6) ^ 1);
        write(package + QLatin1String("/images/bit.png"), flipped);
        write(work.filePath(QStringLiteral("a/secret.png")), picture());
        QFile::link(work.filePath(QStringLiteral("a/secret.png")), package + QLatin1String("/images/link.png"));
        LossReport losses;
        const QString json = work.filePath(QStringLiteral("out.json"));
        convert(package, json, "json", &losses);
        QVERIFY2(details(losses).contains(problem), qPrintable(details(losses).join(QLatin1Char('\n'))));
        // The item itself stays, without the file.
        QFile written(json);
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QByteArray text = written.readAll();
        QVERIFY(text.contains("\"ID\":\"i\""));
        QVERIFY(!text.contains("passwd") && !text.contains("secret"));
        QVERIFY(!QDir(work.filePath(QStringLiteral("a/b/filelibrary"))).exists());
    }

    void hostileLessonsStayInside()
    {
        // Addresses in memory, folders to write into, names that lead away.
        QTemporaryDir work;
        const QString json = work.filePath(QStringLiteral("in.json"));
        QByteArray text = "{'Width':'800','Height':'600','Slides':[{'ID':'../../evil','AttachFile':'../x.png','Items':["
                          "{'Type':'ZQTextBoard','ID':'t','BoundingBox':'0,0,9,9','Text':'x\\u0001]]>y',"
                          "'IWB_TEXTINFO-VECTOR':'4096','IWB_TEXTINFO-DELVECTOR':'4096'},"
                          "{'Type':'ZQImagePic','ID':'i','BoundingBox':'0,0,9,9','AbsMediaFile':'/etc/passwd',"
                          "'MultiMediaFile':'/etc/passwd','tmpFilePath':'/tmp/evil'},"
                          "{'Type':'ZQMath2DRectangle','ID':'r','Matrix':'1,0','BoundingBox':'5','Control':'7'},"
                          "{'Type':'ZQMath2DNormalPentagon','ID':'n','ArtObj_Ln':'-3','BoundingBox':'0,0,9,9'},"
                          "{'Type':'ZQMindMapItem','ID':'m'},{'Type':'ZQPhysicsDianZu','ID':'p',"
                          "'InteractiveType':'ACTION_OPENWEB','InteractiveValue':'http://example.org'},"
                          "{'Type':'ZQPhysicsDianZu','ID':'q'}]}]}";
        write(json, text.replace('\'', '"'));
        LossReport losses;
        const QString package = work.filePath(QStringLiteral("out"));
        convert(json, package, "iwb", &losses);
        QVERIFY2(losses.summary().contains(QLatin1String(
                     "4 items have no IWB form: 2 ZQPhysicsDianZu, 1 ZQMath2DRectangle, 1 ZQMindMapItem")),
                 qPrintable(losses.summary()));
        const QStringList found = details(losses);
        QVERIFY(found.contains(QStringLiteral("ZQTextBoard TextHtml: 1 control characters")));
        QVERIFY(found.contains(QStringLiteral("ZQImagePic /etc/passwd: the lesson has no such file")));
        QVERIFY(found.contains(QStringLiteral("slide ../x.png: the lesson has no such file")));
        const QDomDocument document = load(package + QLatin1String("/content.xml"));
        QCOMPARE(byId(document.documentElement(), QStringLiteral("t")).text(), QStringLiteral("x]]>y"));
        QVERIFY(!byId(document.documentElement(), QStringLiteral("i")).hasAttribute(QStringLiteral("xlink:href")));
        QVERIFY(document.documentElement().firstChildElement(QStringLiteral("iwb:link")).isNull());
        QCOMPARE(QDir(work.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({QStringLiteral("in.json"), QStringLiteral("out")}));
    }

    void inkBecomesLines()
    {
        QTemporaryDir work;
        const QString example = QStringLiteral(EXAMPLES_DIR "/geometry");
        LossReport losses;
        convert(example, work.filePath(QStringLiteral("a")), "iwb", &losses);
        QVERIFY(losses.summary().contains(QLatin1String("2 strokes became polylines")));
        const QDomElement marker =
            byId(load(work.filePath(QStringLiteral("a/content.xml"))).documentElement(), QStringLiteral("marker"));
        // Steps of 300,6 and 300,-4 from 120,930; three points are padded to four.
        QCOMPARE(marker.attribute(QStringLiteral("points")), QStringLiteral("120,930,420,936,720,932,720,932"));
        QCOMPARE(marker.attribute(QStringLiteral("stroke")), QStringLiteral("rgb(255,238,0)"));
        QCOMPARE(marker.attribute(QStringLiteral("stroke-width")), QStringLiteral("24"));
        QCOMPARE(marker.attribute(QStringLiteral("stroke-opacity")).toDouble(), 0.501961); // 128 / 255
        LossReport dropped;
        convert(example, work.filePath(QStringLiteral("b")), "iwb", &dropped,
                {{QStringLiteral("ink"), QStringLiteral("drop")}});
        QVERIFY(byId(load(work.filePath(QStringLiteral("b/content.xml"))).documentElement(), QStringLiteral("marker"))
                    .isNull());
        QVERIFY(dropped.summary().contains(QLatin1String("1 ZQFluorescentStroke")));
    }

    void failsWithWords_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("another root") << QByteArray("<html/>")
                                      << "The document begins with <html> where an IWB file has <iwb>";
        QTest::newRow("no svg") << QByteArray("<iwb/>") << "The document has no svg element with pages";
        QTest::newRow("no XML") << QByteArray("nothing") << "";
    }

    void failsWithWords()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, sentence);
        QTemporaryDir work;
        write(work.filePath(QStringLiteral("in/content.xml")), document);
        LessonContext context;
        context.plugin = plugin();
        try {
            lessonFormatByName(QStringLiteral("iwb")).open(work.filePath(QStringLiteral("in")), context);
            QFAIL("it was opened");
        } catch (const LessonError &error) {
            QVERIFY2(error.message().contains(sentence) && error.message().contains(QLatin1String("content.xml")),
                     qPrintable(error.message()));
        }
    }
};

QTEST_MAIN(TestIwbPackages)
#include "tst_iwbpackages.moc"
