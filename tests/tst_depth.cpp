#include "pluginfixture.h"

#include <QElapsedTimer>
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

// IDs in order, Children between brackets.
QString outline(const QJsonObject &item)
{
    QStringList children;
    const QJsonArray array = item.value("Children").toArray();
    for (const QJsonValue &child : array) {
        children.append(outline(child.toObject()));
    }
    const QString id = item.value("ID").toString();
    return children.isEmpty() ? id : id + QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
}

// "ID=box" of every item that has a box, from the outside in.
QStringList boxes(const QJsonObject &item)
{
    QStringList list;
    if (item.contains("BoundingBox")) {
        list.append(item.value("ID").toString() + QLatin1Char('=') + item.value("BoundingBox").toString());
    }
    const QJsonArray array = item.value("Children").toArray();
    for (const QJsonValue &child : array) {
        list += boxes(child.toObject());
    }
    return list;
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
            nested(R"(<group type="group"><data><rect points="1,2,3,4"/>)"_s, R"(<stroke type="Curve"/>)"_s,
                   "</data></group>"_s, manyLevels));
        row("formulas",
            nested(R"(<group type="ZQStrokesMathFormula"><data><rect/><vertex/>)"
                   R"(<group type="group"><data><rect/>)"_s,
                   QString(), "</data></group></data></group>"_s, manyLevels / 2));
        row("raw groups",
            nested("<ZQGroupItem><GroupSonItems>"_s, "<ZQSmoothStroke/>"_s, "</GroupSonItems></ZQGroupItem>"_s,
                   manyLevels));
    }

    void readsEveryLevelOfGroups()
    {
        QFETCH(QString, text);
        const QDomElement element = xml(text);
        QElapsedTimer timer;
        timer.start();
        const QJsonObject item = element.tagName() == "group"_s ? plugin()->tranItemZQTX2JSON(element, {})
                                                                : plugin()->tranItemXML2JSON(element, {});
        QVERIFY(depthOf(item) >= manyLevels);
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    // The order is that of the document, or its reverse in raw groups, at every level and with items between groups.
    void keepsTheOrderOfNestedItems()
    {
        const QString zqtx =
            R"(<group type="group" id="a"><data><rect/><stroke type="Curve" id="b"/><group type="group" id="c"><data>)"
            R"(<stroke type="Curve" id="d"/><nothing type="x"/><stroke type="Curve" id="e"/></data></group>)"
            R"(<group type="group" id="f"/><stroke type="Curve" id="g"/></data></group>)"_s;
        QCOMPARE(outline(plugin()->tranItemZQTX2JSON(xml(zqtx), {})), "a(b c(d e) f g)"_s);
        const QString raw =
            R"(<ZQGroupItem NetID="a"><GroupSonItems><ZQSmoothStroke NetID="b"/><ZQGroupItem NetID="c">)"
            R"(<GroupSonItems><ZQSmoothStroke NetID="d"/><Nothing/><ZQSmoothStroke NetID="e"/></GroupSonItems>)"
            R"(</ZQGroupItem><ZQGroupItem NetID="f"/><ZQSmoothStroke NetID="g"/></GroupSonItems></ZQGroupItem>)"_s;
        QCOMPARE(outline(plugin()->tranItemXML2JSON(xml(raw), {})), "a(g f c(e d) b)"_s);
    }

    // A group's box is the first in its data, be it that of an item far below; items before and behind that one have
    // their own or none.
    void findsTheFirstBoxInEveryGroup()
    {
        const QString zqtx =
            R"(<group type="group" id="a"><data>)"
            R"(<group type="group" id="b"><data><stroke type="Curve" id="c"><data><vertex/></data></stroke></data></group>)"
            R"(<group type="group" id="d"><data><group type="group" id="e"><data>)"
            R"(<stroke type="Curve" id="f"><data><rect points="1"/></data></stroke></data></group>)"
            R"(<group type="group" id="g"><data><x/></data></group>)"
            R"(<group type="group" id="h"><data><x/></data><data><rect points="2"/></data></group></data></group>)"
            R"(<group type="group" id="i"><data><x><rect points="3"/></x><group type="group" id="j"><data>)"
            R"(<stroke type="Curve" id="k"><data><x/><rect points="4"/></data></stroke></data></group></data></group>)"
            R"(</data></group>)"_s;
        QCOMPARE(boxes(plugin()->tranItemZQTX2JSON(xml(zqtx), {})).join(QLatin1Char(' ')),
                 "a=1 d=1 e=1 f=1 i=3 j=4 k=4"_s);
    }
};

QTEST_GUILESS_MAIN(TestDepth)
#include "tst_depth.moc"
