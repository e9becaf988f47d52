// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "testtable.h"
#include "ziptext.h"

#include <QImage>
#include <QtTest>

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

// "Type key=value key=value" of each item, those of a group in brackets.
QString described(const QJsonArray &items, const QStringList &keys)
{
    QStringList texts;
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        QString text = item.value("Type").toString();
        for (const QString &key : keys) {
            if (item.contains(key)) {
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
        row("letters on a colour", "<svg:textarea id='t' x='0' y='0' width='90' height='90'>hi</svg:textarea>",
            "<iwb:element ref='t' background-fill='#ff0'/>", "", "ZQTextBoard", "");
        row("curves", "<svg:path d='M0 0C0 100 100 100 100 0' fill='none' stroke='red'/>", "", "", "ZQMath2DPolyline",
            "fine lines");
        row("what lessons don't have, each by itself", line.arg("a"), "<iwb:tspan ref='x'/><iwb:tspan ref='y'/>", "",
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
