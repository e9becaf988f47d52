#include "pluginfixture.h"

#include <QtTest>

namespace {

QJsonObject context(const char *sourceRect = "0,0,1024,768", const char *tags = "", const char *version = "4.0")
{
    const QJsonObject slide{{QStringLiteral("SlideSourceRect"), QLatin1String(sourceRect)},
                            {QStringLiteral("SlideTagsInfo"), QLatin1String(tags)}};
    return {{QStringLiteral("slide"), slide},
            {QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), QLatin1String(version)}}}};
}

QJsonObject withVersion(const QString &version)
{
    return {{QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), version}}}};
}

QStringList idsOf(const QJsonValue &children)
{
    QStringList ids;
    for (const QJsonValue &child : children.toArray()) {
        ids.append(child.toObject().value(QLatin1String("ID")).toString());
    }
    return ids;
}

} // namespace

/*!
 * What all items have in common, the walks over key maps seen through it, ink and groups.
 */
class TestItems : public QObject
{
    Q_OBJECT

private slots:
    void generatesAnIdForARawItemWithoutNetId()
    {
        const QDomElement withId = xml(QStringLiteral(R"(<ZQSmoothStroke NetID="7" ID="8"/>)"));
        QCOMPARE(plugin()->tranItemXML2JSON(withId, context()).value(QLatin1String("ID")).toString(),
                 QStringLiteral("7"));
        QCOMPARE(withId.attribute(QStringLiteral("ID")), QStringLiteral("8"));

        const QDomElement without = xml(QStringLiteral(R"(<ZQSmoothStroke ID="8"/>)"));
        const QString first = plugin()->tranItemXML2JSON(without, context()).value(QLatin1String("ID")).toString();
        QCOMPARE(without.attribute(QStringLiteral("ID")), first);
        const QString second = plugin()->tranItemXML2JSON(without, context()).value(QLatin1String("ID")).toString();
        QVERIFY(first.toLongLong() < second.toLongLong());
    }

    void readsCommonRawKeys_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");

        const auto row = [](const char *name, const char *attributes, const char *key, const QJsonValue &value) {
            QTest::newRow(name) << QString::fromLatin1(attributes) << QString::fromLatin1(key) << value;
        };
        row("bound: parts 4, 5, 0, 1", "Bound='30,40,5,6,10,20'", "BoundingBox", QStringLiteral("10,20,30,40"));
        row("bound too short", "Bound='30,40,5'", "BoundingBox", QStringLiteral("30,40,5"));
        row("visible missing", "", "Visible", true);
        row("visible 0", "Visible='0'", "Visible", false);
        row("visible 2", "Visible='2'", "Visible", true);
        row("visible abc reads as 0", "Visible='abc'", "Visible", false);
        row("lock missing", "", "LockIn", QStringLiteral("0"));
        row("lock 5", "LockIn='5'", "LockIn", QStringLiteral("1"));
        row("clone abc", "InfiniteClone='abc'", "InfiniteClone", QStringLiteral("0"));
        row("angle missing", "", "Angle", QJsonValue(QJsonValue::Undefined));
        // 1440 / 1024 = 1.40625 = 1080 / 768, so nothing is left to centre.
        row("matrix is the fit", "", "Matrix", QStringLiteral("1.40625,0,0,1.40625,0,0"));
        row("matrix times fit", "TransformMatrix='2,0,0,2,10,20'", "Matrix",
            QStringLiteral("2.8125,0,0,2.8125,14.0625,28.125"));
        row("matrix too short", "TransformMatrix='2,0,0'", "Matrix", QStringLiteral("2,0,0"));
    }
    void readsCommonRawKeys()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        const QDomElement element = xml(QStringLiteral("<ZQSmoothStroke %1/>").arg(attributes));
        QCOMPARE(plugin()->tranItemXML2JSON(element, context()).value(key), value);
    }

    void fitsTheSourceRectangleIntoThePage_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("fit");

        QTest::newRow("4:3") << QByteArray("0,0,720,540") << QStringLiteral("2,0,0,2,0,0");
        QTest::newRow("16:9") << QByteArray("0,0,1280,720") << QStringLiteral("1.5,0,0,1.5,0,0");
        QTest::newRow("16:10") << QByteArray("0,0,1536,960") << QStringLiteral("1.125,0,0,1.125,0,0");
        // Square: nearest to 4:3. Scale 1080 / 135, and 180 to centre 1080 in 1440.
        QTest::newRow("square") << QByteArray("0,0,135,135") << QStringLiteral("8,0,0,8,180,0");
        // The corner 10,20 goes to the page's corner.
        QTest::newRow("moved") << QByteArray("10,20,1024,768")
                               << QStringLiteral("1.40625,0,0,1.40625,-14.0625,-28.125");
        QTest::newRow("none") << QByteArray("") << QStringLiteral("1,0,0,1,0,0");
    }
    void fitsTheSourceRectangleIntoThePage()
    {
        QFETCH(QByteArray, source);
        QFETCH(QString, fit);
        const QDomElement element = xml(QStringLiteral("<ZQSmoothStroke/>"));
        const QJsonObject item = plugin()->tranItemXML2JSON(element, context(source.constData()));
        QCOMPARE(item.value(QLatin1String("SlideMatrix")).toString(), fit);
        QCOMPARE(item.value(QLatin1String("Matrix")).toString(), fit);
    }

    void takesLinksFromTheTagsOfTheSlide()
    {
        const char *tags =
            "<a/>|$|<interactive><x value='1'><interactiveType value='ACTION_TOOLTIP'/></x>"
            "<x value='1'><s><interactiveType value='ACTION_OPENWEB'/><reservation value='http://a.b'/></s></x>"
            "</interactive>";
        const auto read = [tags](const char *id) {
            const QString text = QStringLiteral("<ZQSmoothStroke NetID='%1'/>").arg(QLatin1String(id));
            return plugin()->tranItemXML2JSON(xml(text), context("0,0,1024,768", tags));
        };
        QCOMPARE(read("1").value(QLatin1String("InteractiveType")).toString(), QStringLiteral("ACTION_OPENWEB"));
        QCOMPARE(read("1").value(QLatin1String("InteractiveValue")).toString(), QStringLiteral("http://a.b"));
        QVERIFY(!read("2").contains(QLatin1String("InteractiveType")));
    }

    void readsZqtx_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QJsonObject>("expected");

        const auto row = [](const char *name, const char *element, const char *version, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(element) << QString::fromLatin1(version) << json(expected);
        };
        row("defaults", "<stroke type='Curve'/>", "3",
            "{'Type':'ZQSmoothStroke','Visible':true,'LockIn':'0','InfiniteClone':'0','Color':'#ffff0000',"
            "'Width':'5.0'}");
        row("opacity goes into the colour", "<stroke type='Curve' color='#ff102030' opacity='128' width='[ ,]3'/>", "3",
            "{'Type':'ZQSmoothStroke','Visible':true,'LockIn':'0','InfiniteClone':'0','Color':'#80102030','Width':'3'"
            "}");
        row("children of a tag answer by whether they have content",
            "<stroke type='Curve'><data/><property stroke_type='2'/><data><rect points='1,2,3,4'/></data>"
            "<properties><property name='link_type' value='ACTION_OPENWEB'/><property name='link_value'/></properties>"
            "</stroke>",
            "3",
            "{'Type':'ZQSmoothStroke','Visible':true,'LockIn':'0','InfiniteClone':'0','Color':'#ffff0000',"
            "'Width':'5.0','DashStyle':'2','BoundingBox':'1,2,3,4','InteractiveType':'ACTION_OPENWEB',"
            "'InteractiveValue':''}");
        row("one href fills texture and stamp", "<stroke type='Stamp'><element href='a.png'/></stroke>", "3",
            "{'Type':'ZQStrokesStamp','Visible':true,'LockIn':'0','InfiniteClone':'0','Color':'#ffff0000',"
            "'Width':'5.0','DrawTexture':'a.png','Stamp':'a.png'}");
        row("animations", "<stroke type='Curve'><animations><appearance type='fade'/></animations></stroke>", "3",
            "{'Type':'ZQSmoothStroke','Visible':true,'LockIn':'0','InfiniteClone':'0','Color':'#ffff0000',"
            "'Width':'5.0','animations':{'appearance':{'type':'fade'}}}");
        row("unknown type", "<stroke type='Crayon'/>", "3", "{}");
    }
    void readsZqtx()
    {
        QFETCH(QString, element);
        QFETCH(QString, version);
        QFETCH(QJsonObject, expected);
        QCOMPARE(toText(plugin()->tranItemZQTX2JSON(xml(element), withVersion(version))), toText(expected));
    }

    void rewritesThePointsOfOldLessons_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *version, const char *points, const char *expected) {
            QTest::addRow("version %s: %s", version, points)
                << QString::fromLatin1(version) << QString::fromLatin1(points) << QString::fromLatin1(expected);
        };
        row("3.1", "10,20,1,2,4,6", "10,20,1,2,4,6");
        row("4", "10,20,1,2,4,6", "10,20,1,2,4,6");
        // Relative to the first point: 1,2 and 4,6. Relative to the one before: 1,2 and 3,4.
        row("2.9", "10,20,1,2,4,6", "10,20,1,2,3,4");
        row("", "10,20,1,2,4,6,", "10,20,1,2,3,4");
        row("2", "10,20,1", "10,20");
        row("2", "1.23456789,20", "1.23457,20");
        row("2", "", "");
        row("2", "7,", "7,");
    }
    void rewritesThePointsOfOldLessons()
    {
        QFETCH(QString, version);
        QFETCH(QString, points);
        QFETCH(QString, expected);
        const QString text =
            QStringLiteral("<stroke type='Curve'><data><vertex points='%1'/></data></stroke>").arg(points);
        const QJsonObject stroke = plugin()->tranItemZQTX2JSON(xml(text), withVersion(version));
        QCOMPARE(stroke.value(QLatin1String("XY")).toString(), expected);
    }

    void writesZqtx_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QJsonObject>("item");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *name, const char *given, const char *item, const char *path,
                            const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(given) << json(item) << QString::fromLatin1(path)
                                << (expected ? QString::fromLatin1(expected) : QString());
        };
        row("type becomes the ZQTX type", "", "{'Type':'ZQSmoothStroke'}", "@type", "Curve");
        row("visible true", "", "{'Type':'ZQSmoothStroke','Visible':true}", "@visible", "1");
        row("visible as a text", "", "{'Type':'ZQSmoothStroke','Visible':'true'}", "@visible", "0");
        row("a number gives an empty attribute", "", "{'Type':'ZQSmoothStroke','Cap':3}", "@cap", "");
        row("angle", "", "{'Type':'ZQSmoothStroke','Angle':'0.5'}", "transform/rotate@angle", "0.5");
        row("a missing child is made", "", "{'Type':'ZQSmoothStroke','DashStyle':'2'}", "property@stroke_type", "2");
        row("a missing inner element is not", "", "{'Type':'ZQChalkStroke','Weight':'1,2'}", "data/weight@points",
            nullptr);
        row("the widths have their place", "", "{'Type':'ZQChalkStroke','PointBrushWid':'1,2'}",
            "data/path_width@points", "1,2");
        row("without children nothing is made", "<stroke type='Curve'/>",
            "{'Type':'ZQSmoothStroke','DashStyle':'2','Angle':'1'}", "property@stroke_type", nullptr);
        row("the type of a given element counts", "<stroke type='Curve'/>", "{'Type':'ZQGroupItem'}", "@type", "Curve");
        row("an element without a type stays", "<stroke/>", "{'Type':'ZQSmoothStroke','Cap':'1'}", "@cap", nullptr);
        row("a nameless row is claimed",
            "<stroke type='Curve'><properties><property value='' name=''/></properties></stroke>",
            "{'InteractiveType':'T'}", "properties/property@name", "link_type");
        row("an empty value takes its row away",
            "<stroke type='Curve'><properties><property value='x' name='link_type'/></properties></stroke>",
            "{'InteractiveType':''}", "properties/property@name", nullptr);
        row("emphasis without attributes", "", "{'Type':'ZQSmoothStroke','animations':{'emphasis':{}}}",
            "animations/disappearance@x", nullptr);
        row("appearance", "", "{'Type':'ZQSmoothStroke','animations':{'appearance':{'a':'b'}}}",
            "animations/appearance@a", "b");
        row("group", "", "{'Type':'ZQGroupItem','SupportCoverlayer':'1'}", "@type", "group");
        row("formula", "", "{'Type':'ZQStrokesMathFormula','BoundingBox':'1,2,3,4'}", "data/rect@points", "1,2,3,4");
        row("no place for strokes of a formula", "", "{'Type':'ZQStrokesMathFormula','Formula_Strokes':'x'}",
            "element/property@Formula_Strokes", nullptr);
    }
    void writesZqtx()
    {
        QFETCH(QString, given);
        QFETCH(QJsonObject, item);
        QFETCH(QString, path);
        QFETCH(QString, expected);
        QDomElement element = plugin()->tranItemJSON2ZQTX(given.isEmpty() ? QDomElement() : xml(given), item);
        QVERIFY(!element.isNull());
        const QString attribute = path.section(QLatin1Char('@'), 1);
        const QStringList tags = path.section(QLatin1Char('@'), 0, 0).split(QLatin1Char('/'), Qt::SkipEmptyParts);
        for (const QString &tag : tags) {
            element = element.firstChildElement(tag);
        }
        QCOMPARE(element.hasAttribute(attribute), !expected.isNull());
        QCOMPARE(element.attribute(attribute), expected);
    }

    void givesElementsWithoutNeighbours_data()
    {
        QTest::addColumn<QJsonObject>("item");
        QTest::newRow("declaration in front") << json("{'Type':'ZQImagePic'}");
        QTest::newRow("declaration and values") << json("{'Type':'ZQChineseAlphabetItem'}");
        QTest::newRow("a title that ends the map") << json(
            "{'Type':'ZQMindMapItem','mindMapData':[{'title':'</title></mapItemInfo></data></mindmap><!-- x -->'},"
            "{},{}]}");
    }
    // A neighbour would have gone with the document of the template.
    void givesElementsWithoutNeighbours()
    {
        QFETCH(QJsonObject, item);
        const QDomElement element = plugin()->tranItemJSON2ZQTX({}, item);
        QVERIFY(!element.isNull());
        QVERIFY(element.previousSibling().isNull());
        QVERIFY(element.nextSibling().isNull());
    }

    void keepsTheOrderOfGroups()
    {
        const QDomElement raw =
            xml(QStringLiteral("<ZQGroupItem NetID='g' TransformMatrix='2,0,0,2,0,0'><GroupSonItems>"
                               "<ZQSmoothStroke NetID='a'/><Unknown/><ZQSmoothStroke NetID='b'/>"
                               "<ZQGroupItem NetID='c'><GroupSonItems><ZQSmoothStroke NetID='d'/></GroupSonItems>"
                               "</ZQGroupItem></GroupSonItems></ZQGroupItem>"));
        const QJsonObject rawGroup = plugin()->tranItemXML2JSON(raw, context());
        const QJsonArray rawChildren = rawGroup.value(QLatin1String("Children")).toArray();
        QCOMPARE(idsOf(rawChildren), QStringList({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
        QCOMPARE(idsOf(rawChildren.first().toObject().value(QLatin1String("Children"))),
                 QStringList(QStringLiteral("d")));
        QCOMPARE(rawGroup.value(QLatin1String("Matrix")).toString(), QStringLiteral("2,0,0,2,0,0"));
        QVERIFY(!rawGroup.contains(QLatin1String("SlideMatrix")));

        const QDomElement zqtx =
            xml(QStringLiteral("<group type='group'><data><rect points='1,2,3,4'/><stroke id='a' type='Curve'/>"
                               "<stroke id='x' type='Unknown'/><stroke id='b' type='Chalk'/></data></group>"));
        const QJsonObject group = plugin()->tranItemZQTX2JSON(zqtx, withVersion(QStringLiteral("4")));
        QCOMPARE(idsOf(group.value(QLatin1String("Children"))),
                 QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void dropsTheBoxOfVersionThree_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("keepsBox");
        QTest::newRow("none") << QString() << true;
        QTest::newRow("2") << QStringLiteral("2.0") << true;
        QTest::newRow("3") << QStringLiteral("3.7") << false;
        QTest::newRow("4") << QStringLiteral("4.0") << true;
    }
    void dropsTheBoxOfVersionThree()
    {
        QFETCH(QString, version);
        QFETCH(bool, keepsBox);
        for (const char *type : {"group", "ZQStrokesMathFormula", "ZQStrokesChemFormula"}) {
            const QString text = QStringLiteral("<group type='%1'><data><rect points='1,2,3,4'/></data></group>")
                                     .arg(QLatin1String(type));
            const QJsonObject item = plugin()->tranItemZQTX2JSON(xml(text), withVersion(version));
            QCOMPARE(item.contains(QLatin1String("BoundingBox")), keepsBox);
            QVERIFY(!item.contains(QLatin1String("Children")));
        }
    }

    void readsRecordsOfDeletedPixels()
    {
        const QDomElement raw =
            xml(QStringLiteral("<ZQSmoothStroke NetID='1'><PixelDeleteInfos><I x='1'/><I x='2'/></PixelDeleteInfos>"
                               "</ZQSmoothStroke>"));
        QCOMPARE(plugin()->tranItemXML2JSON(raw, context()).value(QLatin1String("PixelDeleteInfos")),
                 QJsonValue(json("{'a':[{'x':'1'},{'x':'2'}]}").value(QLatin1String("a"))));
        const auto fromZqtx = [](const char *infos) {
            const QString text = QStringLiteral("<stroke type='Curve'><element><property pixelDeleteInfos='%1'/>"
                                                "</element></stroke>")
                                     .arg(QLatin1String(infos));
            return plugin()->tranItemZQTX2JSON(xml(text), {}).value(QLatin1String("PixelDeleteInfos"));
        };
        QCOMPARE(fromZqtx("[1,2]"), QJsonValue(QJsonArray{1, 2}));
        QCOMPARE(fromZqtx("[1,2"), QJsonValue(QStringLiteral("[1,2")));
        QCOMPARE(fromZqtx("{}"), QJsonValue(QStringLiteral("{}")));
    }
};

QTEST_GUILESS_MAIN(TestItems)
#include "tst_items.moc"
