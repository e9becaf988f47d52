// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QJsonArray>
#include <QtTest>

namespace {

constexpr int manyLevels = 2000;

QString nested(const QString &open, const QString &innermost, const QString &close, int levels)
{
    return open.repeated(levels) + innermost + close.repeated(levels);
}

// The number of objects on the way down through the last of the Children.
int depthOf(QJsonObject item)
{
    int depth = 0;
    while (!item.isEmpty()) {
        ++depth;
        item = item.value("Children").toArray().last().toObject();
    }
    return depth;
}

// "ID=box" of an item or its ID without a box, and those of its Children in order between brackets.
QString outline(const QJsonObject &item)
{
    QStringList children;
    const QJsonArray array = item.value("Children").toArray();
    for (const QJsonValue &child : array) {
        children.append(outline(child.toObject()));
    }
    const QString box = item.value("BoundingBox").toString();
    const QString text = item.value("ID").toString() + (box.isEmpty() ? box : '=' + box);
    return children.isEmpty() ? text : text + '(' + children.join(' ') + ')';
}

} // namespace

/*!
 * Lessons nested as deep as Qt's own parser takes them.
 */
class TestDepth : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryLevelOfGroups_data()
    {
        const Table<QString> row("text");
        row("groups",
            nested("<group type='group'><data><rect points='1,2,3,4'/>", "<stroke type='Curve'/>", "</data></group>",
                   manyLevels));
        row("formulas",
            nested("<group type='ZQStrokesMathFormula'><data><rect/><vertex/>"
                   "<group type='group'><data><rect/>",
                   QString(), "</data></group></data></group>", manyLevels / 2));
        row("raw groups",
            nested("<ZQGroupItem><GroupSonItems>", "<ZQSmoothStroke/>", "</GroupSonItems></ZQGroupItem>", manyLevels));
    }

    void readsEveryLevelOfGroups()
    {
        QFETCH(QString, text);
        const QDomElement element = xml(text);
        QJsonObject item;
        const auto read = [&] {
            item = element.tagName() == "group" ? plugin()->tranItemZQTX2JSON(element, {})
                                                : plugin()->tranItemXML2JSON(element, {});
        };
        QVERIFY(!takesTooLong(read) || !takesTooLong(read) || !takesTooLong(read));
        QVERIFY(depthOf(item) >= manyLevels);
    }

    // The order is that of the document, or its reverse in raw groups, at every level and with items between groups.
    void keepsTheOrderOfNestedItems()
    {
        const QString zqtx =
            "<group type='group' id='a'><data><rect/><stroke type='Curve' id='b'/><group type='group' id='c'><data>"
            "<stroke type='Curve' id='d'/><nothing type='x'/><stroke type='Curve' id='e'/></data></group>"
            "<group type='group' id='f'/><stroke type='Curve' id='g'/></data></group>";
        QCOMPARE(outline(plugin()->tranItemZQTX2JSON(xml(zqtx), {})), "a(b c(d e) f g)");
        const QString raw =
            "<ZQGroupItem NetID='a' TransformMatrix='2,0,0,2,0,0'><GroupSonItems><ZQSmoothStroke "
            "NetID='b'/><ZQGroupItem NetID='c'>"
            "<GroupSonItems><ZQSmoothStroke NetID='d'/><Nothing/><ZQSmoothStroke NetID='e'/></GroupSonItems>"
            "</ZQGroupItem><ZQGroupItem NetID='f'/><ZQSmoothStroke NetID='g'/></GroupSonItems></ZQGroupItem>";
        const QJsonObject group =
            plugin()->tranItemXML2JSON(xml(raw), json("{'slide':{'SlideSourceRect':'0,0,1024,768'}}"));
        QCOMPARE(outline(group), "a(g f c(e d) b)");
        // A group stands on the page as it is, whatever the size of its slide.
        QCOMPARE(differences(group, json("Matrix=2,0,0,2,0,0 SlideMatrix=null")), QString());
    }

    // A group's box is the first in its data, be it that of an item far below; items before and behind that one have
    // their own or none.
    void findsTheFirstBoxInEveryGroup()
    {
        const QString zqtx =
            "<group type='group' id='a'><data>"
            "<group type='group' id='b'><data><stroke type='Curve' "
            "id='c'><data><vertex/></data></stroke></data></group>"
            "<group type='group' id='d'><data><group type='group' id='e'><data>"
            "<stroke type='Curve' id='f'><data><rect points='1'/></data></stroke></data></group>"
            "<group type='group' id='g'><data><x/></data></group>"
            "<group type='group' id='h'><data><x/></data><data><rect points='2'/></data></group></data></group>"
            "<group type='group' id='i'><data><x><rect points='3'/></x><group type='group' id='j'><data>"
            "<stroke type='Curve' id='k'><data><x/><rect points='4'/></data></stroke></data></group></data></group>"
            "</data></group>";
        QCOMPARE(outline(plugin()->tranItemZQTX2JSON(xml(zqtx), {})), "a=1(b(c) d=1(e=1(f=1) g h) i=3(j=4(k=4)))");
    }
};

QTEST_GUILESS_MAIN(TestDepth)
#include "tst_depth.moc"
