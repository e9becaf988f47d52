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
        item = item.value(QLatin1String("Children")).toArray().last().toObject();
    }
    return depth;
}

// IDs in order, Children between brackets.
QString outline(const QJsonObject &item)
{
    QStringList children;
    const QJsonArray array = item.value(QLatin1String("Children")).toArray();
    for (const QJsonValue &child : array) {
        children.append(outline(child.toObject()));
    }
    const QString id = item.value(QLatin1String("ID")).toString();
    return children.isEmpty() ? id : id + QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
}

// "ID=box" of every item that has a box, from the outside in.
QStringList boxes(const QJsonObject &item)
{
    QStringList list;
    if (item.contains(QLatin1String("BoundingBox"))) {
        list.append(item.value(QLatin1String("ID")).toString() + QLatin1Char('=')
                    + item.value(QLatin1String("BoundingBox")).toString());
    }
    const QJsonArray array = item.value(QLatin1String("Children")).toArray();
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
        QTest::addColumn<QString>("text");
        QTest::newRow("groups") << nested(QStringLiteral(R"(<group type="group"><data><rect points="1,2,3,4"/>)"),
                                          QStringLiteral(R"(<stroke type="Curve"/>)"),
                                          QStringLiteral("</data></group>"), manyLevels);
        QTest::newRow("formulas") << nested(
            QStringLiteral(R"(<group type="ZQStrokesMathFormula"><data><rect/><vertex/>)"
                           R"(<group type="group"><data><rect/>)"),
            QString(), QStringLiteral("</data></group></data></group>"), manyLevels / 2);
        QTest::newRow("raw groups") << nested(QStringLiteral("<ZQGroupItem><GroupSonItems>"),
                                              QStringLiteral("<ZQSmoothStroke/>"),
                                              QStringLiteral("</GroupSonItems></ZQGroupItem>"), manyLevels);
    }

    void readsEveryLevelOfGroups()
    {
        QFETCH(QString, text);
        const QDomElement element = xml(text);
        QElapsedTimer timer;
        timer.start();
        const QJsonObject item = element.tagName() == QLatin1String("group") ? plugin()->tranItemZQTX2JSON(element, {})
                                                                             : plugin()->tranItemXML2JSON(element, {});
        QVERIFY(depthOf(item) >= manyLevels);
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    // The order is that of the document, or its reverse in raw groups, at every level and with items between groups.
    void keepsTheOrderOfNestedItems()
    {
        const QString zqtx = QStringLiteral(
            R"(<group type="group" id="a"><data><rect/><stroke type="Curve" id="b"/><group type="group" id="c"><data>)"
            R"(<stroke type="Curve" id="d"/><nothing type="x"/><stroke type="Curve" id="e"/></data></group>)"
            R"(<group type="group" id="f"/><stroke type="Curve" id="g"/></data></group>)");
        QCOMPARE(outline(plugin()->tranItemZQTX2JSON(xml(zqtx), {})), QStringLiteral("a(b c(d e) f g)"));
        const QString raw = QStringLiteral(
            R"(<ZQGroupItem NetID="a"><GroupSonItems><ZQSmoothStroke NetID="b"/><ZQGroupItem NetID="c">)"
            R"(<GroupSonItems><ZQSmoothStroke NetID="d"/><Nothing/><ZQSmoothStroke NetID="e"/></GroupSonItems>)"
            R"(</ZQGroupItem><ZQGroupItem NetID="f"/><ZQSmoothStroke NetID="g"/></GroupSonItems></ZQGroupItem>)");
        QCOMPARE(outline(plugin()->tranItemXML2JSON(xml(raw), {})), QStringLiteral("a(g f c(e d) b)"));
    }

    // A group's box is the first in its data, be it that of an item far below; items before and behind that one have
    // their own or none.
    void findsTheFirstBoxInEveryGroup()
    {
        const QString zqtx = QStringLiteral(
            R"(<group type="group" id="a"><data>)"
            R"(<group type="group" id="b"><data><stroke type="Curve" id="c"><data><vertex/></data></stroke></data></group>)"
            R"(<group type="group" id="d"><data><group type="group" id="e"><data>)"
            R"(<stroke type="Curve" id="f"><data><rect points="1"/></data></stroke></data></group>)"
            R"(<group type="group" id="g"><data><x/></data></group>)"
            R"(<group type="group" id="h"><data><x/></data><data><rect points="2"/></data></group></data></group>)"
            R"(<group type="group" id="i"><data><x><rect points="3"/></x><group type="group" id="j"><data>)"
            R"(<stroke type="Curve" id="k"><data><x/><rect points="4"/></data></stroke></data></group></data></group>)"
            R"(</data></group>)");
        QCOMPARE(boxes(plugin()->tranItemZQTX2JSON(xml(zqtx), {})).join(QLatin1Char(' ')),
                 QStringLiteral("a=1 d=1 e=1 f=1 i=3 j=4 k=4"));
    }
};

QTEST_GUILESS_MAIN(TestDepth)
#include "tst_depth.moc"
