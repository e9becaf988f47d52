// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "iwb/boarddress.h"
#include "iwb/iwbpagecheck.h"
#include "testtable.h"
#include "ziptext.h"

#include <QImage>
#include <QRandomGenerator>
#include <QTextDocument>
#include <QtTest>

#include <cmath>

namespace {

// A document with one section for each layer, which bars divide; records stand behind the sections.
QByteArray documentOf(const QString &layers, const QString &records)
{
    QString text = "<iwb version='1.0' xmlns:svg='http://www.w3.org/2000/svg' xmlns:iwb='http://www.becta.org.uk/iwb' "
                   "xmlns:xlink='http://www.w3.org/1999/xlink'>";
    for (const QString &layer : layers.split('|')) {
        text +=
            "<svg:svg viewbox='0 0 800 600'><svg:pageset><svg:page>" + layer + "</svg:page></svg:pageset></svg:svg>";
    }
    return (text + records + "</iwb>").toUtf8();
}

QByteArray smallPicture()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "png");
    return buffer.data();
}

/*!
 * Pages at random, and what has to be found of each element: an item of its identifier, or its name in the report.
 */
class RandomPage
{
public:
    explicit RandomPage(quint32 seed)
        : m_random(seed)
    {
    }

    QString elements(int depth = 0)
    {
        QString text;
        for (int i = m_random.bounded(1, 6); i > 0; --i) {
            const int kind = m_random.bounded(depth < 4 ? 12 : 8);
            text += kind < 8 ? leaf() : kind < 11 ? holder(depth) : "<svg:g>" + elements(depth + 1) + "</svg:g>";
        }
        return text;
    }

    QString records()
    {
        QString text;
        for (const QString &id : qAsConst(ids)) {
            const QString words = anyOf({"locked='true'", "freehand='true'", "highlight='true'", "revealer='true'",
                                         "flip='both'", "background='true'", "stroke-lineshape-end='arrow'"});
            text += m_random.bounded(3) == 0 ? "<iwb:element ref='%1' %2/>"_s.arg(id, words) : QString();
            if (m_random.bounded(9) == 0) {
                text += "<iwb:element ref='%1' vendor='7'/>"_s.arg(id);
                told.append({id, "vendor"});
            }
        }
        return text + "<iwb:group><iwb:element ref='%1'/><iwb:element ref='%2'/></iwb:group>"_s.arg(ids.first(), ids.last());
    }

    QStringList ids;
    QVector<QPair<QString, QString>> told; // what the report must say of an element

private:
    QString anyOf(const QStringList &texts) { return texts.at(m_random.bounded(texts.size())); }

    QString leaf()
    {
        const QString text = anyOf(
            {"<svg:rect id='%1' x='1' y='2' width='30' height='20'%2/>", "<svg:circle id='%1' cx='9' cy='9' r='5'%2/>",
             "<svg:ellipse id='%1' rx='9' ry='5'%2/>", "<svg:line id='%1' x2='30' y2='20'%2/>",
             "<svg:polyline id='%1' points='1,2 3,9 8,1'%2/>", "<svg:polygon id='%1' points='0,0 50,0 50,5 0,5'%2/>",
             "<svg:polygon id='%1' points=''%2/>", "<svg:image id='%1' width='9' height='9' xlink:href='images/a.png'%2/>",
             "<svg:image id='%1' width='9' height='9' xlink:href='images/none.png'%2/>", "<svg:path id='%1' d='M0 0L5 5'%2/>",
             "<svg:video id='%1' width='9' height='9' xlink:href='http://e.org/v.mpg'%2/>", "<svg:use id='%1'%2/>",
             "<svg:text id='%1' y='9' font-size='9'%2>a</svg:text>", "<svg:path id='%1' d='bad'%2/>",
             "<svg:textarea id='%1' width='90' height='9' font-size='9'%2>a<svg:tspan>b</svg:tspan></svg:textarea>"});
        ids.append("e%1"_s.arg(ids.size()));
        const bool isText = text.startsWith("<svg:text");
        const QStringList extra = anyOf(isText ? QStringList{"dx 3", "letter-spacing 2", "textLength 9", "writing-mode tb"}
                                               : QStringList{"onclick f", "filter url(#f)", "mask url(#m)", "stroke red"})
                                      .split(' ');
        const bool isRead = extra.first() == "stroke" || text.contains("use") || text.contains("points=''");
        if (!isRead) {
            told.append({ids.last(), extra.first()});
        }
        return text.arg(ids.last(), " %1='%2'"_s.arg(extra.first(), extra.last()));
    }

    QString holder(int depth)
    {
        const QString text = anyOf({"<svg:a xlink:href='#p2'>%1</svg:a>", "<svg:a xlink:href='images/a.png'>%1</svg:a>",
                                    "<svg:switch><svg:g>%1</svg:g></svg:switch>", "<svg:svg x='5'>%1</svg:svg>",
                                    "<svg:g transform='rotate(30,5,5)' stroke='blue'>%1</svg:g>"});
        return text.arg(elements(depth + 1));
    }

    QRandomGenerator m_random;
};

void collectIds(const QJsonArray &items, QStringList &ids)
{
    for (const QJsonValue &item : items) {
        ids.append(item.toObject().value("ID").toString());
        collectIds(item.toObject().value("Children").toArray(), ids);
    }
}

// What the HTML of a text board says under a word.
QString ofText(const QString &html, const QString &what)
{
    QTextDocument document;
    document.setHtml(html);
    if (what == "plain") {
        return document.toPlainText().replace('\n', '/');
    }
    QStringList found;
    const QHash<QString, QString> patterns{{"links", "href=\"([^\"]*)"},
                                           {"backgrounds", "background-color:([^;]*)"},
                                           {"align", "<p align=\"([^\"]*)"}};
    auto matches = QRegularExpression(patterns.value(what)).globalMatch(html);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found.join(' ');
}

// "Type key=value key=value" of each item, those of a group in brackets; words of ofText() stand for what they say.
QString described(const QJsonArray &items, const QStringList &keys)
{
    QStringList texts;
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        QString text = item.value("Type").toString();
        for (const QString &key : keys) {
            if (key.startsWith("roughly ")) {
                text += ' ' + key.mid(8) + '=' + QString::number(qRound(item.value(key.mid(8)).toVariant().toDouble()));
            } else if (item.contains("TextHtml") && !item.contains(key)) {
                const QString said = ofText(item.value("TextHtml").toString(), key);
                text += said.isEmpty() ? said : ' ' + said;
            } else if (item.contains(key)) {
                text += ' ' + key + '=' + item.value(key).toVariant().toString();
            }
        }
        const QJsonArray children = item.value("Children").toArray();
        texts.append(children.isEmpty() ? text : text + " [" + described(children, keys) + "]");
    }
    return texts.join(", ");
}

} // namespace

/*!
 * Packages as other programs write them.
 */
class TestIwbStyles : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(name); }

private slots:
    void reads_data()
    {
        const Table<QString, QString, QString, QString, QString> row("layers", "records", "keys", "items", "remark");
        const QString line = "<svg:line id='%1' x1='1' y1='2' x2='30' y2='4' stroke='red'/>"_s;
        const QString ink = "<svg:polyline id='i' points='10,10 20,15 30,10' stroke='#00f' stroke-width='4'/>"_s;
        row("layers of a page", line.arg("a") + "|" + line.arg("b"), "", "ID",
            "ZQMath2DSegment ID=a, ZQMath2DSegment ID=b", "");
        row("arrows on records, the later word counts", line.arg("a"),
            "<iwb:element ref='a' stroke-lineshape-start='arrow' stroke-lineshape-end='arrow'/>"
            "<iwb:element ref='a' stroke-lineshape-start='none' locked='true'/>",
            "LockIn", "ZQMath2DSegmentWith1Arrow LockIn=1", "");
        row("a group, its records within", line.arg("a") + line.arg("b") + line.arg("c"),
            "<iwb:group><iwb:element ref='b' replicate='true'/><iwb:element ref='c'/></iwb:group>", "InfiniteClone",
            "ZQMath2DSegment InfiniteClone=0, ZQGroupItem [ZQMath2DSegment InfiniteClone=1, "
            "ZQMath2DSegment InfiniteClone=0]",
            "");
        row("a group with others between", line.arg("a") + line.arg("b") + line.arg("c"),
            "<iwb:group><iwb:element ref='a'/><iwb:element ref='c'/></iwb:group>", "ID",
            "ZQMath2DSegment ID=a, ZQMath2DSegment ID=b, ZQMath2DSegment ID=c", "other items stand between");
        row("ink", ink, "<iwb:element ref='i' freehand='true'/>", "XY,Color,Width",
            "ZQSmoothStroke XY=10,10,10,5,10,-5 Color=#ff0000ff Width=4", "");
        row("a marker shines through", ink, "<iwb:element ref='i' highlight='true'/>", "Color",
            "ZQFluorescentStroke Color=#660000ff", "");
        row("no fill where none is named", ink, "", "ArtObj_Fill,ArtObj_Color1", "ZQMath2DPolyline", "");
        row("a cover", "<svg:rect id='r' x='10' y='20' width='300' height='200' fill='black'/>",
            "<iwb:element ref='r' revealer='true'/>", "rect", "General:curtain rect=10,20,310,220",
            "a cloth of its own");
        row("a turned cover of cloth", "<svg:rect id='r' width='30' height='20' fill='#8c1c2b' transform='rotate(90)'/>",
            "<iwb:element ref='r' revealer='true' replicate='true'/>", "BoundingBox,roughly Angle,InfiniteClone",
            "General:curtain BoundingBox=-25,5,5,25 Angle=2 InfiniteClone=1", "");
        row("a round cover", "<svg:circle id='r' r='9' fill='red'/>", "<iwb:element ref='r' revealer='true'/>", "",
            "ZQMath2DCircle", "rectangles become curtains");
        row("a mirrored circle", "<svg:circle id='r' r='9' fill='red'/>", "<iwb:element ref='r' flip='both'/>", "",
            "ZQMath2DCircle", "only pictures");
        row("a part of a text without the others' background",
            "<svg:textarea id='t' width='90' height='9' font-size='9'>a<svg:tspan id='s'>b</svg:tspan>c</svg:textarea>",
            "<iwb:element ref='t' background-fill='yellow'/><iwb:tspan ref='s' background-fill='none'/>", "backgrounds",
            "ZQTextBoard #ffff00 #ffff00", "");
        row("mirrored", "<svg:image id='p' x='0' y='0' width='9' height='9' xlink:href='images/A.png'/>",
            "<iwb:element ref='p' flip='both'/>", "HorizonFlip,VerticalFlip,resource",
            "ZQImagePic HorizonFlip=1 VerticalFlip=1 resource=images/a.png", "images/A.png was found as images/a.png");
        row("compressed beside its name", "<svg:image x='0' y='0' width='9' height='9' xlink:href='images/b.png'/>", "",
            "resource", "ZQImagePic resource=images/compressed_b.png", "was found as images/compressed_b.png");
        row("a format that nobody draws",
            "<svg:switch><svg:image x='1' y='1' width='9' height='9' xlink:href='images/c.wmf' "
            "requiredExtensions='http://www.becta.org.uk/iwb/wmf'/><svg:image x='0' y='0' width='9' height='9' "
            "xlink:href='images/a.png'/></svg:switch>",
            "", "resource", "ZQImagePic resource=images/a.png", "wmf can't be shown here");
        row("a background that stands elsewhere",
            "<svg:image id='p' x='100' y='100' width='90' height='90' xlink:href='images/a.png'/>",
            "<iwb:element ref='p' background='true'/>", "LockIn", "ZQImagePic LockIn=1", "doesn't fill the page");
        row("a background that shines through",
            "<svg:image id='p' x='0' y='0' width='9' height='9' xlink:href='images/a.png' fill-opacity='0.2'/>",
            "<iwb:element ref='p' background='true' background-posture='repeated'/>", "", "", "no longer translucent");
        // A pen stroke from 10,100 to 210,100 that is 10 wide: its round ends and three pieces between, which overlap.
        const QString stroke =
            "<svg:g id='s' fill='#00f' stroke='none'><svg:polygon id='s1' points='%1'/>"
            "<svg:polygon id='s2' points='12,95 80,95 80,105 12,105'/>"
            "<svg:polygon id='s3' points='78,95 140,95 140,105 78,105'/>"
            "<svg:polygon id='s4' points='139,95 208,95 208,105 139,105'/><svg:polygon id='s5' points='%2'/></svg:g>"_s;
        const auto round = [](int x) {
            QStringList points;
            for (int i = 0; i < 12; ++i) {
                points.append("%1,%2"_s.arg(x + 5 * std::cos(i * M_PI / 6)).arg(100 + 5 * std::sin(i * M_PI / 6)));
            }
            return points.join(' ');
        };
        QString penRecords;
        for (int i = 1; i <= 5; ++i) {
            penRecords += "<iwb:element ref='s%1' freehand='true'/>"_s.arg(i);
        }
        row("five polygons of a stroke", stroke.arg(round(12), round(208)), penRecords, "Color,roughly Width",
            "ZQSmoothStroke Color=#ff0000ff Width=10", "5 polygons became one stroke");
        row("the same without a word on a pen", stroke.arg(round(12), round(208)), "", "",
            "ZQMath2DPolyline, ZQMath2DPolyline, ZQMath2DPolyline, ZQMath2DPolyline, ZQMath2DPolyline", "");
        row("polygons that no pen draws",
            "<svg:g fill='#00f'><svg:polygon id='s1' points='0,0 90,0 90,90 0,90'/>"
            "<svg:polygon id='s2' points='300,0 310,0 310,300'/></svg:g>",
            penRecords, "", "ZQMath2DPolyline, ZQMath2DPolyline", "so it is no ink");
        row("a line of two points with an arrow", "<svg:polyline id='i' points='1,2 30,4' stroke='red'/>",
            "<iwb:element ref='i' stroke-lineshape-end='arrow'/>", "", "ZQMath2DSegmentWith1Arrow", "");
        row("records on a page and in its groups", "<svg:g>" + line.arg("a") + "</svg:g>" + line.arg("b") +
            "<iwb:group><iwb:element ref='a' locked='true'/><iwb:element ref='b'/></iwb:group>", "", "LockIn",
            "ZQGroupItem [ZQMath2DSegment LockIn=1, ZQMath2DSegment LockIn=0]", "");
        row("what a record says that no item has", line.arg("a"),
            "<iwb:element ref='a' stroke-lineshape-end='circle' vendor='1' editable='true'/>", "", "ZQMath2DSegment",
            "vendor \"1\" is left out");
        row("an outline that crosses itself", "<svg:polygon points='150,20 220,240 30,100 270,100 80,240' fill='red'/>", "",
            "", "ZQMath2DPolyline", "where it crosses itself");
        row("a cover with a link", "<svg:a xlink:href='http://e.org'><svg:rect id='r' width='30' height='20'/></svg:a>",
            "<iwb:element ref='r' revealer='true'/>", "InteractiveValue", "General:curtain InteractiveValue=http://e.org",
            "a cloth of its own");
        row("what a document says of itself that no lesson does", line.arg("a"),
            "<iwb:meta name='creator' content='Writer 1.0'/><iwb:meta name='subject' content='maths'/>", "",
            "ZQMath2DSegment", "iwb:meta subject: maths");
        row("dashes of other lengths", "<svg:line x1='1' y1='2' x2='30' y2='4' stroke='red' stroke-dasharray='9,3'/>", "",
            "ArtObj_LineStyle", "ZQMath2DSegment", "has other lengths");

        const QString text = "<svg:textarea id='t' x='0' y='0' width='90' height='90' font-size='20'>%1</svg:textarea>"_s;
        row("letters on a colour, of some a marker's", text.arg("hi <svg:tspan id='m'>there</svg:tspan>"),
            "<iwb:element ref='t' background-fill='#ff0'/><iwb:tspan ref='m' highlight-fill='#0f0'/>", "backgrounds",
            "ZQTextBoard #ffff00 #00ff00", "");
        row("a list", text.arg("Bring:<svg:tspan id='m'>glue<svg:tbreak/>pen</svg:tspan>today"),
            "<iwb:tspan ref='m' type='list' list-style-type='upper-roman'/>", "plain",
            "ZQTextBoard Bring:/I. glue/II. pen/today", "whose marks became letters");
        row("a link around all of a text", text.arg("<svg:a xlink:href='http://e.org/x'>go</svg:a>"), "",
            "InteractiveValue,links", "ZQTextBoard InteractiveValue=http://e.org/x", "");
        row("a link of some letters", text.arg("see <svg:a xlink:href='http://e.org/x'>this</svg:a>"), "", "links",
            "ZQTextBoard http://e.org/x", "");
        row("a link of some letters into the lesson", text.arg("see <svg:a xlink:href='#p9'>this</svg:a>"), "", "links",
            "ZQTextBoard", "the link of \"this\" to \"#p9\" is left out");
        row("a link to an element", line.arg("a") + "<svg:a xlink:href='#a'>" + line.arg("b") + "</svg:a>", "",
            "InteractiveType,InteractiveValue",
            "ZQMath2DSegment, ZQMath2DSegment InteractiveType=ACTION_GOTOSLIDE InteractiveValue=1",
            "leads to the page of it");
        row("a link to a file elsewhere", "<svg:a id='l' xlink:href='images/a.png'>" + line.arg("b") + "</svg:a>",
            "<iwb:link ref='l' file='external'/>", "InteractiveValue", "ZQMath2DSegment", "outside of the package");
        row("letters that are placed one by one",
            "<svg:text x='5' y='50' font-size='20' textLength='90'>a<svg:tspan dx='3' rotate='9'>b</svg:tspan></svg:text>",
            "", "plain", "ZQTextBoard ab", "dx \"3\" is left out");
        row("from right to left",
            "<svg:textarea x='0' y='0' width='90' height='90' direction='rtl'>שלום</svg:textarea>", "", "align",
            "ZQTextBoard right", "from right to left");
        row("a folder for one", "<svg:image x='0' y='0' width='9' height='9' xlink:href='image/a.png'/>", "", "resource",
            "ZQImagePic resource=images/a.png", "was found as images/a.png");
        row("curves", "<svg:path d='M0 0C0 100 100 100 100 0' fill='none' stroke='red'/>", "", "", "ZQMath2DPolyline",
            "fine lines");
        row("what lessons don't have, each by itself", line.arg("a"), "<iwb:foo ref='x'/><iwb:foo ref='y'/>", "",
            "ZQMath2DSegment", "no such record");
    }

    void reads()
    {
        QFETCH(QString, layers);
        QFETCH(QString, records);
        QFETCH(QString, keys);
        QFETCH(QString, remark);
        putFile(path("in/content.xml"), documentOf(layers, records));
        for (const char *name : {"a.png", "compressed_b.png"}) {
            putFile(path("in/images/") + name, smallPicture());
        }
        LossReport losses;
        const auto reader = openLesson(path("in"), &losses);
        QCOMPARE(reader->slideCount(), 1);
        QTEST(described(reader->slide(0).items, keys.split(',', Qt::SkipEmptyParts)), "items");
        const QString told = detailsOf(losses).join('\n');
        QVERIFY2(remark.isEmpty() ? told.isEmpty() : told.contains(remark), qPrintable(told));
    }

    // Nothing is left out without a word, whatever stands on a page.
    void namesAllThatIsNotRead()
    {
        putFile(path("random/images/a.png"), smallPicture());
        for (quint32 seed = 1; seed <= 60; ++seed) {
            RandomPage page(seed);
            const QString layers = page.elements() + "|" + page.elements();
            const QString records = page.records();
            putFile(path("random/content.xml"), documentOf(layers, records));
            LossReport losses;
            const LessonSlide slide = openLesson(path("random"), &losses)->slide(0);
            QStringList found;
            collectIds(slide.items, found);
            QMultiHash<QString, QString> told;
            for (const Loss &loss : losses.entries()) {
                told.insert(loss.itemId, inEnglish({loss.detail}).first());
            }
            const bool hasBackground = slide.properties.contains("document") || slide.properties.value("color") != "255,255,255,255";
            int missing = hasBackground ? -2 : 0; // a colour and a picture
            for (const QString &id : qAsConst(page.ids)) {
                missing += found.contains(id) || told.contains(id) ? 0 : 1;
            }
            QVERIFY2(missing <= 0, qPrintable("seed %1: %2 of %3"_s.arg(seed).arg(missing).arg(layers)));
            for (const auto &[id, word] : qAsConst(page.told)) {
                const QStringList words = told.values(id);
                QVERIFY2(words.join('\n').contains(word), qPrintable("seed %1: %2 of %3"_s.arg(seed).arg(word, id)));
            }
        }
    }

    void repeatsBackgrounds()
    {
        QImage two(20, 10, QImage::Format_RGB32);
        for (int i = 0; i < 200; ++i) {
            two.setPixelColor(i % 20, i / 20, i % 20 < 10 ? Qt::red : Qt::blue);
        }
        putFile(path("tiles/images/a.png"), {});
        two.save(path("tiles/images/a.png"));
        putFile(path("tiles/content.xml"),
                documentOf("<svg:rect id='r' width='800' height='600' fill='#ff0'/><svg:image id='b' width='100' height='50' "
                           "xlink:href='images/a.png'/>",
                           "<iwb:element ref='r' background='true'/>"
                           "<iwb:element ref='b' background='true' background-posture='repeated'/>"));
        LossReport losses;
        const auto reader = openLesson(path("tiles"), &losses);
        QVERIFY(reader->resources().contains("images/a_repeated.png"));
        const LessonSlide slide = reader->slide(0);
        QCOMPARE(slide.properties.value("document").toString(), "images/a_repeated.png");
        const QImage all(reader->resourceFile("images/a_repeated.png"));
        QCOMPARE(all.size(), QSize(800, 600));
        for (const auto &[x, y, color] : {std::tuple(5, 5, Qt::red), {95, 45, Qt::blue}, {605, 301, Qt::red}, {795, 599, Qt::blue}}) {
            QCOMPARE(all.pixelColor(x, y), QColor(color));
        }
        QVERIFY(detailsOf(losses).join(' ').contains("all its repetitions"));
        QVERIFY(losses.lossCount() == 0 && slide.items.isEmpty());
    }

    // What svg, records and links are called is up to the writer.
    void readsOtherPrefixes()
    {
        const QString text = QString::fromUtf8(documentOf(
            "<svg:a id='l' xlink:href='#p'><svg:rect id='r' x='1' y='2' width='30' height='20' fill='red'/></svg:a>"
            "<svg:textarea id='t' x='0' y='0' width='90' height='90'>a<svg:tbreak/>b</svg:textarea>",
            "<iwb:group><iwb:element ref='r' locked='true'/><iwb:element ref='t'/></iwb:group>"
            "<iwb:link ref='l' file='external'/>"));
        const auto itemsOf = [this](const QString &document) -> QString {
            putFile(path("prefixes.iwb"), document.toUtf8());
            LossReport losses;
            const auto reader = openLesson(path("prefixes.iwb"), &losses);
            const QString items = described(reader->slide(0).items, {"LockIn", "plain", "ID"});
            QStringList types;
            for (const Loss &loss : losses.entries()) {
                types.append(loss.itemType);
            }
            return items + detailsOf(losses).join(' ') + types.join(' ');
        };
        const auto renamed = [&text](const char *prefix, const char *other) {
            return QString(text).replace(QRegularExpression("\\b%1(?=[:=])"_s.arg(prefix)), other);
        };
        const QString usual = itemsOf(text);
        QVERIFY2(usual.startsWith("ZQGroupItem") && usual.contains("LockIn=1") && usual.contains("no element of that name"),
                 qPrintable(usual));
        QCOMPARE(itemsOf(renamed("svg", "s")), usual);
        QCOMPARE(itemsOf(renamed("iwb", "board")), usual);
        QCOMPARE(itemsOf(renamed("xlink", "x")), usual);
        QCOMPARE(itemsOf(QString(text)
                             .replace("xmlns:iwb='http://www.becta.org.uk/iwb'"_s,
                                      "xmlns='http://www.imsglobal.org/xsd/iwb_v1p0'"_s)
                             .remove("iwb:"_s)),
                 usual);
    }

    // Whatever a page has otherwise than it was to be written is told.
    void pagesAreReadBack_data()
    {
        const Table<QString, QString, QString, QString, QString> row("element", "attribute", "from", "to", "told");
        row("nothing", "ink", "", "", "", "");
        row("a point", "ink", "points", "^\\S+", "100.1,100", "XY");
        row("a point too few", "ink", "points", " \\S+$", "", "XY");
        row("a line's colour", "ink", "stroke", ".*", "rgb(254,0,0)", "Color");
        row("a line's width", "ink", "stroke-width", ".*", "5", "Width");
        row("a place", "rect", "x", "^", "1", "BoundingBox");
        row("a filling", "rect", "fill", ".*", "#123456", "ArtObj_Color");
        row("what is hidden", "rect", "transform", "^", "translate(-1000000,0) ", "Visible");
        row("letters", "board", "", "word", "world", "TextHtml");
        row("their colour", "board", "fill", ".*", "#123456", "TextHtml");
        row("a link", "board_link", "xlink:href", "b", "c", "InteractiveValue");
        row("another name", "board", "id", "$", "s", "item");
        row("none of a group", "rect", "before", "outline", "", "item");
        row("others in a group", "outline", "before", "ellipse", "", "item");
        row("the order", "board_link", "before", "ink", "", "item");
    }

    void pagesAreReadBack()
    {
        auto [id, attribute, from, to, told] = Table<QString, QString, QString, QString, QString>::cells();
        struct Painter : ItemPainter
        {
            std::optional<PaintedItem> paint(const PlacedItem &, const QVector<PlacedItem> &, const QSizeF &, Form) override
            {
                PaintedItem item;
                item.elements = {{"svg:rect", {{"x", "1"}, {"y", "2"}, {"width", "3"}, {"height", "4"}}, ""},
                                 {"svg:polyline", {{"points", "1,2 5,2"}, {"stroke", "#123456"}}, ""}};
                return item;
            }
            std::optional<PaintedItem> paintGame(const LessonSlide &, const QSizeF &) override { return {}; }
            QImage thumbnail(int) override { return {}; }
        } painter;
        LessonSlide slide{json("ID=slide"), {}};
        for (const QJsonObject &item :
             {json("{'Type': 'ZQSmoothStroke', 'ID': 'ink', 'XY': '100,100,30,10,30,-20,20,40,-30,20', "
                   "'Color': '255,255,0,0', 'Width': '4'}"),
              json("{'Type': 'ZQTextBoard', 'ID': 'board', 'BoundingBox': '10,10,90,50', 'TextHtml': "
                   "'<font color=#ff0000>word</font>', 'InteractiveType': 'ACTION_OPENWEB', "
                   "'InteractiveValue': 'http://a.b'}"),
              json("{'Type': 'ZQGroupItem', 'BoundingBox': '20,20,80,90', 'Children': ["
                   "{'Type': 'ZQMath2DRectangle', 'ID': 'rect', 'BoundingBox': '20,20,60,60', 'ArtObj_Fill': '1', "
                   "'ArtObj_Color': '255,0,0,255', 'LineColor': '255,0,0,0', 'ArtObj_Width': '2'}, "
                   "{'Type': 'ZQMath2DEllipse', 'ID': 'ellipse', 'BoundingBox': '20,60,80,90', 'ArtObj_Fill': '0', "
                   "'LineColor': '255,0,0,0', 'ArtObj_Width': '2'}]}"),
              json("{'Type': 'ZQPhysicDiode', 'ID': 'outline', 'BoundingBox': '1,2,5,6'}")}) {
            slide.items.append(item);
        }
        IwbMedia media;
        IwbItemWriter::Setting setting;
        setting.plugin = plugin();
        setting.media = &media;
        setting.convertsDrawings = true;
        IwbPageWriter pages(setting);
        pages.setUniqueInDocument();
        pages.setPainter(&painter, false);
        pages.start({{"Width", "800"}, {"Height", "600"}}, {});
        BoardDress::startDocument(pages.document(), {});
        QDomElement page = pages.addPage(slide.properties, 1, {});
        const auto items = pages.addItems(page, slide, {});
        BoardDress(true).dress(page, {{{"ink", false}}, {}, {}, {{"ink"}, {"board"}, {"rect", "ellipse"}, {"outline"}}});
        const auto named = [&page](const QString &name) {
            QDomElement found = page.firstChildElement();
            while (!found.isNull() && found.attribute("id") != name && found.firstChildElement().attribute("id") != name) {
                found = found.nextSiblingElement();
            }
            return found.attribute("id") == name ? found : found.firstChildElement();
        };
        QDomElement element = named(id);
        const QRegularExpression part(from);
        if (attribute == "before") {
            page.insertBefore(element, named(from));
        } else if (attribute.isEmpty()) {
            QDomText text = element.firstChildElement().firstChild().toText();
            text.setData(text.data().replace(part, to));
        } else if (!from.isEmpty()) {
            QDomElement owner = attribute == "fill" && id == "board" ? element.firstChildElement() : element;
            owner.setAttribute(attribute, owner.attribute(attribute).replace(part, to));
        }
        LossReport losses;
        IwbPageCheck(plugin()).compare(pages.document(), slide, items, 1, SlideLosses(&losses, 1));
        QStringList keys;
        for (const Loss &loss : losses.entries()) {
            keys.append(loss.key.isEmpty() ? "item"_s : loss.key);
        }
        keys.removeDuplicates();
        QCOMPARE(keys.join(' '), told);
    }

    // The document alone, and archives whose names have the wrong slashes.
    void readsOtherPackages()
    {
        const QByteArray text = documentOf("<svg:image x='0' y='0' width='9' height='9' xlink:href='images/a.png'/>",
                                           "<iwb:meta name='owner' content='A teacher'/>");
        putFile(path("text.iwb"), text);
        QCOMPARE(openLesson(path("text.iwb"))->presentation().value("Author").toString(), "A teacher");
        putFile(path("slashes.iwb"), zipText({{"content.xml", text}, {"images\\a.png", smallPicture()}}));
        LossReport losses;
        const auto reader = openLesson(path("slashes.iwb"), &losses);
        QCOMPARE(reader->slide(0).items.first().toObject().value("resource").toString(), "images/a.png");
        QVERIFY(detailsOf(losses).join(' ').contains("backslashes"));
    }
};

QTEST_MAIN(TestIwbStyles)
#include "tst_iwbstyles.moc"
