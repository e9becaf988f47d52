// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "testtable.h"
#include "ziptext.h"

#include <QImage>
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
            "<iwb:element ref='r' revealer='true'/>", "rect", "General:curtain rect=10,20,310,220", "");
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
