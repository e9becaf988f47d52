// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QDir>
#include <QTextDocument>
#include <QtTest>

namespace {

QDomElement contentOf(const QString &package)
{
    return xml(fileContent(package + "/content.xml"));
}

QDomElement byId(const QDomElement &root, const QString &id)
{
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QDomElement found = child.attribute("id") == id ? child : byId(child, id);
        if (!found.isNull()) {
            return found;
        }
    }
    return {};
}

// What a svg element covers before its transform, measured from the attributes that svg readers draw it from.
QRectF measured(const QDomElement &element)
{
    const auto value = [&element](const char *name) { return element.attribute(name).toDouble(); };
    return element.tagName() == "svg:circle"
        ? QRectF(value("cx") - value("r"), value("cy") - value("r"), 2 * value("r"), 2 * value("r"))
        : QRectF(value("x"), value("y"), value("width"), value("height"));
}

QStringList linesOf(const QString &package)
{
    return QString::fromUtf8(fileContent(package + "/content.xml")).split('\n');
}

QByteArray foreignPage(const QByteArray &items)
{
    return "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0' xmlns:svg='http://www.w3.org/2000/svg' "
           "xmlns:xlink='http://www.w3.org/1999/xlink'><svg:svg viewBox='0 0 800 600'><svg:page id='p'>"
        + items + "</svg:page></svg:svg></iwb>";
}

QByteArray lessonText(const QJsonObject &item)
{
    const QJsonObject slide{{"ID", "1"}, {"Items", QJsonArray{item}}};
    return QJsonDocument(QJsonObject{{"Width", "800"}, {"Height", "600"}, {"Slides", QJsonArray{slide}}}).toJson();
}

// The first line of the pages that three trips through the model change, or nothing.
QString driftOf(const QString &lesson)
{
    QTemporaryDir work;
    QString package = work.filePath("0");
    convertedLesson(lesson, package, "iwb");
    const QStringList was = linesOf(package);
    for (int trip = 1; trip <= 3; ++trip) {
        const QString json = work.filePath("%1.json"_s.arg(trip));
        convertedLesson(package, json);
        package = work.filePath(QString::number(trip));
        convertedLesson(json, package, "iwb");
        const QStringList is = linesOf(package);
        for (int i = 0; i < qMax(was.size(), is.size()); ++i) {
            if (is.value(i) != was.value(i)) {
                return "trip %1: %2 was %3"_s.arg(trip).arg(is.value(i), was.value(i));
            }
        }
    }
    return {};
}

} // namespace

/*!
 * Lessons on their way to IWB packages and back, through the plug-in.
 */
class TestIwbPackages : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(name); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void rawItemsKeepTheirMatrix()
    {
        // A page of 1024 x 768 goes into 1440 x 1080: everything is 1.40625 times as large.
        putFile(
            path("raw.xml"),
            "<presentation><slide NetID='1' BackColor='255,10,20,30'>"
            "<ZQMath2DRectangle NetID='r' TransformMatrix='0.8660254,0.5,-0.5,0.8660254,100,50' Angle='0.5235988' "
            "Discipline_xControl0='80' Discipline_yControl0='0' Discipline_xControl1='0' Discipline_yControl1='40'/>"
            "<ZQMath2DCircle NetID='c' TransformMatrix='2,0,0,2,300,200' Discipline_xControl0='10' "
            "Discipline_yControl0='0'/>"
            "<ZQTextBoard NetID='t' TransformMatrix='1,0,0,1,5,6' Bound='110,60,0,0,10,10' Text='hi'/>"
            "</slide></presentation>");
        convertedLesson(path("raw.xml"), path("out"), "iwb");
        const QDomElement root = contentOf(path("out"));
        QCOMPARE(byId(root, "1_rect").attribute("fill"), "rgb(10,20,30)");
        // 80 x 40 turned by 30 degrees: its centre 40,20 comes to 100 + 40 cos 30 - 20 sin 30 = 124.641 and
        // 50 + 40 sin 30 + 20 cos 30 = 87.3205, on the page 175.276, 122.794; its sides are 112.5 and 56.25.
        const QRectF rectangle = measured(byId(root, "r"));
        QVERIFY(qAbs(rectangle.center().x() - 175.276) < 0.01 && qAbs(rectangle.center().y() - 122.794) < 0.01);
        QVERIFY(qAbs(rectangle.width() - 112.5) < 0.01 && qAbs(rectangle.height() - 56.25) < 0.01);
        QVERIFY(byId(root, "r").attribute("transform").startsWith("rotate(30,"));
        // 300,200 and a radius of 20.
        QCOMPARE(measured(byId(root, "c")), QRectF(421.875 - 28.125, 281.25 - 28.125, 56.25, 56.25));
        // 28 pixels become 39.375.
        const QDomElement text = byId(root, "t");
        QCOMPARE(text.attribute("font-size"), "39.375");
        QVERIFY(qAbs(measured(text).x() - 15 * 1.40625) < 0.001 && qAbs(measured(text).y() - 16 * 1.40625) < 0.001);
    }

    void paintsShapes_data()
    {
        // Stroke, width, opacity, dashes, fill, its opacity, ends.
        const Table<QString, QString> row("item", "expected");
        const char *const black = "rgb(0,0,0)|2|||none|";
        row("nothing is said: black, two wide, empty", "'Type':'ZQMath2DCircle'", black);
        row("a colour object, 0xFF8000 at a half",
            "'Type':'ZQMath2DCircle','ArtObj_Color':{'Solid':16744448,'Alpha':0.5}",
            "rgb(0,0,0)|2|||rgb(255,128,0)|0.501961");
        row("three parts are opaque", "'Type':'ZQMath2DRectangle','ArtObj_Color':'1,2,3','LineColor':'4,5,6'",
            "rgb(4,5,6)|2|||rgb(1,2,3)|1");
        row("not filled", "'Type':'ZQMath2DTriangle','ArtObj_Color':'255,1,2,3','ArtObj_Fill':'0'", black);
        row("a line of every type's own key",
            "'Type':'ZQMath2DGeoTriangle','ArtObj_Color1':'255,7,8,9','LineColor':'1,1,1'", "rgb(7,8,9)|2|||none|");
        row("a polyline's keys", "'Type':'ZQMath2DPolyline','ArtObj_Color':'255,7,8,9','ArtObj_FillColor':'64,1,2,3'",
            "rgb(7,8,9)|2|||rgb(1,2,3)|0.25098");
        row("a line of 51/255 around an opaque fill",
            "'Type':'ZQMath2DCircle','LineColor':'51,7,8,9','ArtObj_Color':'255,1,2,3'",
            "rgb(7,8,9)|2|0.2||rgb(1,2,3)|1");
        row("no line at all", "'Type':'ZQMath2DNormalHexagon','LineColor':'0,7,8,9','ArtObj_Color':'1,2,3'",
            "none|2|||rgb(1,2,3)|1");
        // 10 x 3, 2 x 3, 2 x 3, 2 x 3; 5 x 3, 5 x 3; 10 x 3, 2 x 3, 10 x 3.
        row("dash dot dot", "'Type':'ZQMath2DSegment','ArtObj_Style':'1','ArtObj_Width':'3'",
            "rgb(0,0,0)|3||30,6,6,6|||circle circle");
        row("dash dot", "'Type':'ZQMath2DAngle','ArtObj_Mode':'3','ArtObj_Width':'3'", "rgb(0,0,0)|3||30,6,30||");
        row("a dash of a line without a width", "'Type':'ZQMath2DSegment','ArtObj_Style':'2'",
            "rgb(0,0,0)|2||10,10|||circle circle");
        row("a width between two numbers", "'Type':'ZQMath2DCircle','ArtObj_Mode':'2','ArtObj_Width':'2.6'",
            "rgb(0,0,0)|2.6||15,15|none|");
        row("numbers for texts", "'Type':'ZQMath2DSegment','ArtObj_Style':2,'ArtObj_Width':4",
            "rgb(0,0,0)|4||20,20|||circle circle");
        row("another style", "'Type':'ZQMath2DSegment','ArtObj_Style':'7','ArtObj_Mode':'2'",
            "rgb(0,0,0)|2|||||circle circle");
        row("a width that is none", "'Type':'ZQMath2DSegment','ArtObj_Width':'-1'", "rgb(0,0,0)|2|||||circle circle");
        row("one arrow", "'Type':'ZQMath2DSegmentWith1Arrow'", "rgb(0,0,0)|2|||||arrow ");
        row("an arrow that the item tells otherwise", "'Type':'ZQMath2DSegmentWith2Arrow','ArtObj_ArrowType':'1'",
            "rgb(0,0,0)|2|||||arrow ");
    }

    void paintsShapes()
    {
        QFETCH(QString, item);
        // In a box of 100 x 60, with points for whatever needs some.
        putFile(path("in.json"),
                lessonText(json("{'ID':'i','BoundingBox':'100,50,200,110','Control':[0,0,60,0,60,40],"
                                "'XYValue':'0,0,10,5,20,0,40,30,',"
                                + item + '}')));
        convertedLesson(path("in.json"), path("out"), "iwb");
        const QDomElement root = contentOf(path("out"));
        const QDomElement element = byId(root, "i");
        // An open line is filled by an outline behind it, and its ends are told by a record.
        const QDomElement behind = byId(root, "i_fill");
        const QString start = "stroke-lineshape-start";
        QDomElement record = root.lastChildElement("iwb:element");
        QStringList values;
        for (const QString &name :
             {"stroke"_s, "stroke-width"_s, "stroke-opacity"_s, "stroke-dasharray"_s, "fill"_s, "fill-opacity"_s}) {
            values.append((name.startsWith("fill") && !behind.isNull() ? behind : element).attribute(name));
        }
        if (record.hasAttribute(start)) {
            QCOMPARE(record.attribute("ref"), QString("i"));
            values.append(record.attribute(start) + ' ' + record.attribute("stroke-lineshape-end"));
        }
        QTEST(values.join('|'), "expected");
        QCOMPARE(driftOf(path("in.json")), QString());
    }

    void textsComeBack_data()
    {
        const Table<QString> row("text");
        row("ends of CDATA sections", "a]]>b ]]]]>> ]]");
        row("markup", "<b> & &amp; <![CDATA[ \"'");
        row("blanks and tabs", " a\tb   c ");
        row("lines", "a\n\nb\n");
        row("scripts", QString::fromUtf8("\xe6\xb0\x94 \xf0\x9f\x8d\x8e \xd7\xa9 e\xcc\x81"));
    }

    void textsComeBack()
    {
        QFETCH(QString, text);
        putFile(path("in.json"),
                lessonText({{"Type", "ZQTextBoard"}, {"ID", "i"}, {"BoundingBox", "0,0,100,50"}, {"Text", text}}));
        convertedLesson(path("in.json"), path("a.iwb"));
        QTextDocument document;
        document.setHtml(openLesson(path("a.iwb"))->slide(0).items.at(0).toObject().value("TextHtml").toString());
        QCOMPARE(document.toPlainText(), text);
        QCOMPARE(driftOf(path("in.json")), QString());
    }

    void nothingDrifts_data()
    {
        const Table<QString> row("input");
        row("every shape, text and picture", EXAMPLES_DIR "/geometry");
        row("written by another program", EXAMPLES_DIR "/fractions.iwb");
    }

    void nothingDrifts()
    {
        QFETCH(QString, input);
        QCOMPARE(driftOf(input), QString());
    }

    void foreignPagesDontDrift_data()
    {
        const Table<QByteArray> row("items");
        row("outlines",
            "<svg:polyline id='a' points='1,2 3.3333333,40 100,7' fill='none' stroke='red'/>"
            "<svg:polygon id='b' points='100,100 200,100.5 150,200' fill='rgb(1,2,3)' fill-opacity='.7'/>"
            "<svg:path id='c' d='M300 300l0.1234567 50 50 0' stroke='black' stroke-dasharray='9 3 1 3'/>"
            "<svg:line id='d' x1='1.1' y1='2.2' x2='333.3' y2='444.4' stroke='red' stroke-width='0.7' "
            "stroke-lineshape-end='arrow'/>");
        row("texts",
            "<svg:text id='a' x='100' y='100' font-size='17' text-anchor='end'>E = mc<svg:tspan "
            "baseline-shift='super'>2"
            "</svg:tspan></svg:text><svg:textarea id='b' x='10' y='200' width='300' height='90' font-family='Times' "
            "transform='rotate(10)'>one<svg:tbreak/><svg:tspan font-weight='700'>two ]]&gt; three</svg:tspan>"
            "</svg:textarea>");
        row("links and locks",
            "<svg:a xlink:href='#p'><svg:rect id='a' width='9' height='9'/></svg:a>"
            "<svg:a xlink:href='https://example.org/?a=1&amp;b=2'><svg:circle id='b' r='9'/></svg:a>"
            "<svg:a xlink:href='images/a.png'><svg:textarea id='c' x='1' y='1' width='9' height='9'>x</svg:textarea>"
            "</svg:a><svg:rect id='d' width='5' height='5' visibility='hidden'/>");
    }

    void foreignPagesDontDrift()
    {
        QFETCH(QByteArray, items);
        putFile(path("in/content.xml"), foreignPage(items));
        putFile(path("in/images/a.png"), redPicture());
        QCOMPARE(driftOf(path("in")), QString());
    }

    void comesBackAsZqtx()
    {
        convertedLesson(EXAMPLES_DIR "/geometry", path("a.iwb"));
        QCOMPARE(convertedLesson(path("a.iwb"), path("b"), "zqtx").lossCount(), 0);
        convertedLesson(path("b"), path("c"), "iwb");
        convertedLesson(path("a.iwb"), path("d"), "iwb");
        QCOMPARE(linesOf(path("c")), linesOf(path("d")));
    }

    void readsOtherPrograms_data()
    {
        const Table<QByteArray, QStringList> row("document", "types");
        row("IWB elements without a prefix, groups and styles",
            foreignPage("<svg:g transform='scale(2)'><svg:circle id='c' cx='5' cy='5' r='4' style='fill:red'/>"
                        "<svg:polygon id='t' points='0,0 9,0 9,9' fill='none' stroke='blue'/></svg:g>"
                        "<svg:image id='i' x='9' y='9' width='40' height='30' xlink:href='images/a.png'/>"),
            {"800x600", "ZQMath2DCircle c 2,2,18,18", "ZQMath2DPolyline t 0,0,18,18",
             "ZQImagePic i 9,9,49,39 images/a.png"});
        row("svg without a prefix, IWB with one",
            "<iwb:iwb xmlns:iwb='http://www.becta.org.uk/iwb' version='1.0'>"
            "<svg xmlns='http://www.w3.org/2000/svg' xmlns:x='http://www.w3.org/1999/xlink' width='800' "
            "height='600' viewbox='0 0 800 600'><page id='p1'><rect id='r' x='1' y='2' width='3' height='4' "
            "fill='none' stroke='#000'/><line id='l' x1='0' y1='9' x2='9' y2='0' stroke='#000'/><a id='s' "
            "x:href='images/a.png'/></page></svg></iwb:iwb>",
            {"800x600", "ZQMath2DRectangle r 1,2,4,6", "ZQMath2DSegment l 0,0,9,9",
             "ZQMediaAudio s 0,0,0,0 images/a.png"});
        const QByteArray withPicture =
            "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0'><s:svg xmlns:s='http://www.w3.org/2000/svg' "
            "xmlns:xlink='http://www.w3.org/1999/xlink' width='640px' height='480px'>"
            "<s:path id='p' d='M10 10 L20 10 L20 30 Z' stroke='black'/>"
            "<s:image id='i' width='8' height='6' xlink:href='data:image/png;base64,"
            + redPicture().toBase64()
            + "'/><s:image id='j' width='8' height='6' xlink:href='images\\a.png'/></s:svg></iwb>";
        const QStringList found{"640x480", "ZQMath2DPolyline p 10,10,20,30", "ZQImagePic i 0,0,8,6 images/embedded-1.png",
                                "ZQImagePic j 0,0,8,6 images/a.png"};
        row("no pages, paths, embedded picture, window's separators", withPicture, found);
        row("the same, begun again with the parser", withPicture + "<?end?>", found);
    }

    void readsOtherPrograms()
    {
        QFETCH(QByteArray, document);
        putFile(path("in/content.xml"), document);
        putFile(path("in/images/a.png"), redPicture());
        LossReport losses;
        const auto reader = openLesson(path("in"), &losses);
        const QJsonObject page = reader->presentation();
        QStringList found{page.value("Width").toString() + 'x' + page.value("Height").toString()};
        const QJsonArray items = reader->slide(0).items;
        for (const QJsonValue &value : items) {
            const QJsonObject item = value.toObject();
            const QString resource = item.value("resource").toString();
            found.append(QStringList{item.value("Type").toString(), item.value("ID").toString(),
                                     item.value("BoundingBox").toString(), resource}
                             .join(' ')
                             .trimmed());
            QVERIFY(resource.isEmpty() || QFile::exists(reader->resourceFile(resource)));
        }
        QTEST(found, "types");
        QVERIFY2(losses.lossCount() == 0, qPrintable(losses.summary().english()));
    }

    void refusesReferencesThatLeaveThePackage_data()
    {
        const Table<QByteArray, QString> row("item", "problem");
        const auto image = [](const char *reference) -> QByteArray {
            return QByteArray("<svg:image id='i' width='4' height='3' xlink:href='") + reference + "'/>";
        };
        row("up", image("../../secret.png"), "svg:image ../../secret.png: it leads out of the package");
        row("absolute", image("/etc/passwd"), "svg:image /etc/passwd: it is an absolute path");
        row("escaped", image("images/%2e%2e/%2e%2e/x"),
            "svg:image images/%2e%2e/%2e%2e/x: it leads out of the package");
        row("web", image("http://example.org/a.png"),
            "svg:image http://example.org/a.png: it lies outside of the package and isn't fetched");
        row("file", image("file:///etc/passwd"),
            "svg:image file:///etc/passwd: it lies outside of the package and isn't fetched");
        row("nothing", image(""), "svg:image : it names no file");
        row("folder", image("images"), "svg:image images: it is a folder");
        row("missing", image("images/b.png"), "svg:image images/b.png: the package has no such file");
        row("no picture", image("images/text.png"), "svg:image images/text.png: it is no picture that can be read");
        row("cut picture", image("images/cut.png"), "svg:image images/cut.png: it is a damaged picture");
        row("flipped bit", image("images/bit.png"), "svg:image images/bit.png: it is a damaged picture");
        row("a page's link", "<svg:a xlink:href='../x.txt'><svg:rect id='i' width='9' height='9'/></svg:a>",
            "ZQMath2DRectangle InteractiveValue: link to \"../x.txt\": it leads out of the package");
    }

    void refusesReferencesThatLeaveThePackage()
    {
        const auto [item, problem] = Table<QByteArray, QString>::cells();
        putFile(path("a/b/in/content.xml"), foreignPage(item));
        putFile(path("a/b/in/images/a.png"), redPicture());
        putFile(path("a/b/in/images/text.png"), "not a picture");
        putFile(path("a/b/in/images/cut.png"), redPicture().chopped(12));
        QByteArray flipped = redPicture();
        flipped[flipped.indexOf("IDAT") + 6] = char(flipped.at(flipped.indexOf("IDAT") + 6) ^ 1);
        putFile(path("a/b/in/images/bit.png"), flipped);
        putFile(path("a/secret.png"), redPicture());
        const QStringList found = detailsOf(convertedLesson(path("a/b/in"), path("out.json")));
        QVERIFY2(found.contains(problem), qPrintable(found.join('\n')));
        // The item itself stays, without the file.
        const QByteArray text = fileContent(path("out.json"));
        QVERIFY(text.contains("\"ID\":\"i\""));
        QVERIFY(!text.contains("passwd") && !text.contains("secret"));
        QVERIFY(!QDir(path("a/b/filelibrary")).exists());
    }

    void hostileLessonsStayInside()
    {
        // Addresses in memory, folders to write into, names that lead away.
        const QByteArray text =
            "{'Width':'800','Height':'600','Slides':[{'ID':'../../evil','AttachFile':'../x.png','Items':["
            "{'Type':'ZQTextBoard','ID':'t','BoundingBox':'0,0,9,9','Text':'x\\u0001]]>y',"
            "'IWB_TEXTINFO-VECTOR':'4096','IWB_TEXTINFO-DELVECTOR':'4096'},"
            "{'Type':'ZQImagePic','ID':'i','BoundingBox':'0,0,9,9','AbsMediaFile':'/etc/passwd',"
            "'MultiMediaFile':'/etc/passwd','tmpFilePath':'/tmp/evil'},"
            "{'Type':'ZQMath2DRectangle','ID':'r','Matrix':'1,0','BoundingBox':'5','Control':'7'},"
            "{'Type':'ZQMath2DNormalPentagon','ID':'n','ArtObj_Ln':'-3','BoundingBox':'0,0,9,9'},"
            "{'Type':'ZQMindMapItem','ID':'m'},{'Type':'ZQPhysicsDianZu','ID':'p',"
            "'InteractiveType':'ACTION_OPENWEB','InteractiveValue':'http://example.org'},"
            "{'Type':'ZQPhysicsDianZu','ID':'q'}]}]}";
        putFile(path("in.json"), QByteArray(text).replace('\'', '"'));
        const LossReport losses = convertedLesson(path("in.json"), path("out"), "iwb");
        QVERIFY2(losses.summary().english().contains(
                     "6 items have no IWB form: 2 ZQPhysicsDianZu, 1 ZQImagePic, 1 ZQMath2DNormalPentagon, "
                     "1 ZQMath2DRectangle, 1 ZQMindMapItem"),
                 qPrintable(losses.summary().english()));
        const QStringList found = detailsOf(losses);
        QVERIFY(found.contains("ZQTextBoard Text: x\x01]]>y"));
        QVERIFY(found.contains("ZQImagePic /etc/passwd: the lesson has no such file"));
        QVERIFY(found.contains("slide ../x.png: the lesson has no such file"));
        const QDomElement root = contentOf(path("out"));
        QCOMPARE(byId(root, "t").text(), "x]]>y");
        QVERIFY(!byId(root, "i").hasAttribute("xlink:href"));
        QVERIFY(root.firstChildElement("iwb:link").isNull());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"in.json", "out"}));
    }

    // What an item has in its box of 100 x 60 comes back otherwise, and nothing else; with = what nobody sees of it.
    void tellsWhatComesBackOtherwise_data()
    {
        const Table<QString, QString> row("item", "lost");
        row("an ellipse",
            "'Type':'ZQMath2DEllipse','LineColor':{'Solid':255,'Alpha':1},'ArtObj_Width':'3','Control':[50,0]", "");
        row("a turned rectangle", "'Type':'ZQMath2DRectangle','Angle':'0.5','LockIn':' 1 ','Visible':'+1'", "");
        row("a width that is none", "'Type':'ZQMath2DEllipse','ArtObj_Width':'0'", "ArtObj_Width");
        row("a hexagon", "'Type':'ZQMath2DNormalHexagon','ArtObj_Ln':'6','LineColor':'1,2,3'",
            "ArtObj_Ln= LineColor= Type");
        row("a square that is filled and measured",
            "'Type':'ZQMath2DNormalQuadrilateral','ArtObj_Fill':'1','ArtObj_Color':'9,1,2,3','ArtObj_DisplayCircle':'1'",
            "ArtObj_Color= ArtObj_DisplayCircle ArtObj_Fill= Type");
        row("a square without its fill",
            "'Type':'ZQMath2DNormalQuadrilateral','ArtObj_Fill':'0','ArtObj_Color':'9,1,2,3','ArtObj_Ln':'5'",
            "ArtObj_Color= ArtObj_Fill= ArtObj_Ln= Type");
        row("a rectangle without its fill", "'Type':'ZQMath2DRectangle','ArtObj_Fill':'0','ArtObj_Color':'9,1,2,3'",
            "ArtObj_Color=");
        row("an address without a scheme",
            "'Type':'ZQMath2DEllipse','InteractiveType':'ACTION_OPENWEB','InteractiveValue':'example.org'",
            "InteractiveValue");
        row("a page that never comes",
            "'Type':'ZQMath2DEllipse','InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'2'",
            "InteractiveType InteractiveValue");
        row("a colour that is none", "'Type':'ZQMath2DEllipse','LineColor':'abc','ArtObj_Color':'300,1,2,3'",
            "ArtObj_Color LineColor");
        row("a box of three numbers", "'Type':'ZQMath2DEllipse','BoundingBox':'1,2,3'", "BoundingBox");
        row("a text beside HTML", "'Type':'ZQTextBoard','TextHtml':'<p>a</p>','Text':'b','Angle':0.5", "Text");
        row("a curtain", "'Type':'General:curtain','Angle':'0.5','InfiniteClone':'1','picture':'images/a.png'", "picture");
        row("a part of a flipped curtain, which hangs at the other side",
            "'Type':'General:curtain','HorizonFlip':'1','rect':'0,0,40,60'", "BoundingBox HorizonFlip rect");
        row("letters with a colour behind them",
            "'Type':'ZQTextBoard','TextHtml':'<p>a<span style=background-color:#ff0>b<b>c</b></span>d</p>'", "");
        row("ink", "'Type':'ZQSmoothStroke','XY':'1,2,3,4,5,6','Width':3,'Color':'#f00','Opacity':'128','Cap':'0'",
            "Cap Color Opacity Type");
    }

    void tellsWhatComesBackOtherwise()
    {
        QFETCH(QString, item);
        QJsonObject given = json("ID=i BoundingBox=100,50,200,110");
        const QJsonObject own = json('{' + item + '}');
        for (auto it = own.begin(); it != own.end(); ++it) {
            given.insert(it.key(), it.value());
        }
        putFile(path("in.json"), lessonText(given));
        const LossReport losses = convertedLesson(path("in.json"), path("a"), "iwb");
        QStringList keys;
        for (const Loss &loss : losses.entries()) {
            if (loss.kind != Loss::Note) {
                keys.append(loss.key + (loss.isShown ? "=" : ""));
            }
        }
        keys.sort();
        QTEST(keys.join(' '), "lost");
        LessonContext unchecked;
        unchecked.verify = false;
        QCOMPARE(convertedLesson(path("in.json"), path("b"), "iwb", unchecked).lossCount(), 0);
        QCOMPARE(linesOf(path("a")), linesOf(path("b")));
    }

    void inkBecomesLines()
    {
        const LossReport losses = convertedLesson(EXAMPLES_DIR "/geometry", path("a"), "iwb");
        QVERIFY(losses.summary().english().contains("2 strokes became polylines"));
        // Steps of 300,6 and 300,-4 from 120,930, as the curve that is drawn. An alpha of 128 / 255.
        QCOMPARE(differences(attributesOf(byId(contentOf(path("a")), "marker")),
                             json("{'points':'120,930 194.977,932.437 269.975,934.25 344.985,935.437 420,936 "
                                  "495.009,935.937 570.017,935.25 645.016,933.937 720,932','stroke':'rgb(255,238,0)',"
                                  "'stroke-width':'24','stroke-opacity':'0.501961'}")),
                 QString());
        LessonContext dropping;
        dropping.options.insert("ink", "drop");
        const LossReport dropped = convertedLesson(EXAMPLES_DIR "/geometry", path("b"), "iwb", dropping);
        QVERIFY(byId(contentOf(path("b")), "marker").isNull());
        QVERIFY(dropped.summary().english().contains("1 ZQFluorescentStroke"));
    }
};

QTEST_MAIN(TestIwbPackages)
#include "tst_iwbpackages.moc"
