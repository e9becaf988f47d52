// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QtTest>

namespace {

QJsonObject context(const QString &sourceRect = "0,0,1024,768", const QString &tags = {})
{
    const QJsonObject slide{{"SlideSourceRect", sourceRect}, {"SlideTagsInfo", tags}};
    return {{"slide", slide}, {"pres", QJsonObject{{"Version", "4.0"}}}};
}

QJsonObject withVersion(const QString &version)
{
    return {{"pres", QJsonObject{{"Version", version}}}};
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
        const QDomElement withId = xml(R"(<ZQSmoothStroke NetID="7" ID="8"/>)");
        QCOMPARE(plugin()->tranItemXML2JSON(withId, context()).value("ID").toString(), "7");
        QCOMPARE(withId.attribute("ID"), "8");

        const QDomElement without = xml(R"(<ZQSmoothStroke ID="8"/>)");
        const QString first = plugin()->tranItemXML2JSON(without, context()).value("ID").toString();
        QCOMPARE(without.attribute("ID"), first);
        const QString second = plugin()->tranItemXML2JSON(without, context()).value("ID").toString();
        QVERIFY(first.toLongLong() < second.toLongLong());
    }

    void readsCommonRawKeys_data()
    {
        const Table<QString, QString, QJsonValue> row("attributes", "key", "value");
        row("bound: parts 4, 5, 0, 1", "Bound='30,40,5,6,10,20'", "BoundingBox", "10,20,30,40"_s);
        row("bound too short", "Bound='30,40,5'", "BoundingBox", "30,40,5"_s);
        row("visible missing", "", "Visible", true);
        row("visible 0", "Visible='0'", "Visible", false);
        row("visible 2", "Visible='2'", "Visible", true);
        row("visible abc reads as 0", "Visible='abc'", "Visible", false);
        row("lock missing", "", "LockIn", "0"_s);
        row("lock 5", "LockIn='5'", "LockIn", "1"_s);
        row("clone abc", "InfiniteClone='abc'", "InfiniteClone", "0"_s);
        row("angle missing", "", "Angle", QJsonValue(QJsonValue::Undefined));
        // 1440 / 1024 = 1.40625 = 1080 / 768, so nothing is left to centre.
        row("matrix is the fit", "", "Matrix", "1.40625,0,0,1.40625,0,0"_s);
        row("matrix times fit", "TransformMatrix='2,0,0,2,10,20'", "Matrix", "2.8125,0,0,2.8125,14.0625,28.125"_s);
        row("matrix too short", "TransformMatrix='2,0,0'", "Matrix", "2,0,0"_s);
        row("halfway numbers are rounded away from zero", "TransformMatrix='1,0,0,1,210,-210'", "Matrix",
            "1.40625,0,0,1.40625,295.313,-295.313"_s);
        row("numbers in any form", "TransformMatrix=' 1,0,0,+1,1e1,.5'", "Matrix",
            "1.40625,0,0,1.40625,14.0625,0.703125"_s);
    }
    void readsCommonRawKeys()
    {
        const auto [attributes, key, value] = Table<QString, QString, QJsonValue>::cells();
        const QDomElement element = xml("<ZQSmoothStroke %1/>"_s.arg(attributes));
        QCOMPARE(plugin()->tranItemXML2JSON(element, context()).value(key), value);
    }

    void fitsTheSourceRectangleIntoThePage_data()
    {
        const Table<QString, QString> row("source", "fit");
        row("4:3", "0,0,720,540", "2,0,0,2,0,0");
        row("16:9", "0,0,1280,720", "1.5,0,0,1.5,0,0");
        row("16:10", "0,0,1536,960", "1.125,0,0,1.125,0,0");
        // Square: nearest to 4:3. Scale 1080 / 135, and 180 to centre 1080 in 1440.
        row("square", "0,0,135,135", "8,0,0,8,180,0");
        // The corner 10,20 goes to the page's corner.
        row("moved", "10,20,1024,768", "1.40625,0,0,1.40625,-14.0625,-28.125");
        row("none", "", "1,0,0,1,0,0");
    }
    void fitsTheSourceRectangleIntoThePage()
    {
        const auto [source, fit] = Table<QString, QString>::cells();
        const QDomElement element = xml("<ZQSmoothStroke/>");
        const QJsonObject item = plugin()->tranItemXML2JSON(element, context(source));
        QCOMPARE(item.value("SlideMatrix").toString(), fit);
        QCOMPARE(item.value("Matrix").toString(), fit);
    }

    void takesLinksFromTheTagsOfTheSlide()
    {
        const char *tags =
            "<a/>|$|<interactive><x value='1'><interactiveType value='ACTION_TOOLTIP'/></x><x value='1'><s>"
            "<interactiveType value='ACTION_OPENWEB'/><reservation value='http://a.b'/></s></x></interactive>";
        const auto read = [tags](const char *id) {
            const QString text = "<ZQSmoothStroke NetID='%1'/>"_s.arg(id);
            return plugin()->tranItemXML2JSON(xml(text), context("0,0,1024,768", tags));
        };
        QCOMPARE(read("1").value("InteractiveType").toString(), "ACTION_OPENWEB");
        QCOMPARE(read("1").value("InteractiveValue").toString(), "http://a.b");
        QVERIFY(!read("2").contains("InteractiveType"));
    }

    void readsZqtx_data()
    {
        const Table<QString, QJsonObject> row("element", "expected");
        row("defaults", "<stroke type='Curve'/>", "Color=#ffff0000 Width=5.0");
        row("opacity goes into the colour", "<stroke type='Curve' color='#ff102030' opacity='128' width='[ ,]3'/>",
            "Color=#80102030 Width=3");
        row("children of a tag answer by whether they have content",
            "<stroke type='Curve'><data/><property stroke_type='2'/><data><rect points='1,2,3,4'/></data>"
            "<properties><property name='link_type' value='ACTION_OPENWEB'/><property name='link_value'/></properties>"
            "</stroke>",
            "Color=#ffff0000 Width=5.0 DashStyle=2 BoundingBox=1,2,3,4 InteractiveType=ACTION_OPENWEB "
            "InteractiveValue=");
        row("one href fills texture and stamp", "<stroke type='Stamp'><element href='a.png'/></stroke>",
            "Color=#ffff0000 Width=5.0 DrawTexture=a.png Stamp=a.png");
        row("animations", "<stroke type='Curve'><animations><appearance type='fade'/></animations></stroke>",
            "{'Color':'#ffff0000','Width':'5.0','animations':{'appearance':{'type':'fade'}}}");
        row("unknown type", "<stroke type='Crayon'/>", "{}");
    }
    void readsZqtx()
    {
        const auto [element, expected] = Table<QString, QJsonObject>::cells();
        const QJsonObject item = plugin()->tranItemZQTX2JSON(xml(element), withVersion("3"));
        QCOMPARE(toText(ownKeys(item)), toText(expected));
        QCOMPARE(differences(item,
                             expected.isEmpty() ? json("Visible=null LockIn=null")
                                                : json("{'Visible':true,'LockIn':'0','InfiniteClone':'0'}")),
                 QString());
    }

    void rewritesThePointsOfOldLessons_data()
    {
        const Table<QString, QString, QString> row("version", "points", "expected");
        row("newer", "3.1", "10,20,1,2,4,6", "10,20,1,2,4,6");
        // Relative to the first point: 1,2 and 4,6. Relative to the one before: 1,2 and 3,4.
        row("relative to the first", "2.9", "10,20,1,2,4,6", "10,20,1,2,3,4");
        row("no version", "", "10,20,1,2,4,6,", "10,20,1,2,3,4");
        row("a number left over", "2", "10,20,1", "10,20");
        row("six digits", "2", "1.23456789,20", "1.23457,20");
        row("nothing", "2", "", "");
        row("one number", "2", "7,", "7,");
    }
    void rewritesThePointsOfOldLessons()
    {
        const auto [version, points, expected] = Table<QString, QString, QString>::cells();
        const QString text = "<stroke type='Curve'><data><vertex points='%1'/></data></stroke>"_s.arg(points);
        const QJsonObject stroke = plugin()->tranItemZQTX2JSON(xml(text), withVersion(version));
        QCOMPARE(stroke.value("XY").toString(), expected);
    }

    void writesZqtx_data()
    {
        const Table<QString, QJsonObject, QString, QString> row("given", "item", "path", "expected");
        row("type becomes the ZQTX type", "", "Type=ZQSmoothStroke", "@type", "Curve");
        row("visible true", "", "{'Type':'ZQSmoothStroke','Visible':true}", "@visible", "1");
        row("visible as a text", "", "Type=ZQSmoothStroke Visible=true", "@visible", "0");
        row("a number gives an empty attribute", "", "{'Type':'ZQSmoothStroke','Cap':3}", "@cap", "");
        row("angle", "", "Type=ZQSmoothStroke Angle=0.5", "transform/rotate@angle", "0.5");
        row("a missing child is made", "", "Type=ZQSmoothStroke DashStyle=2", "property@stroke_type", "2");
        row("a missing inner element is not", "", "Type=ZQChalkStroke Weight=1,2", "data/weight@points", nullptr);
        row("without children nothing is made", "<stroke type='Curve'/>", "Type=ZQSmoothStroke DashStyle=2 Angle=1",
            "property@stroke_type", nullptr);
        row("the type of a given element counts", "<stroke type='Curve'/>", "Type=ZQGroupItem", "@type", "Curve");
        row("an element without a type stays", "<stroke/>", "Type=ZQSmoothStroke Cap=1", "@cap", nullptr);
        row("a nameless row is claimed",
            "<stroke type='Curve'><properties><property value='' name=''/></properties></stroke>", "InteractiveType=T",
            "properties/property@name", "link_type");
        row("an empty value takes its row away",
            "<stroke type='Curve'><properties><property value='x' name='link_type'/></properties></stroke>",
            "InteractiveType=", "properties/property@name", nullptr);
        row("emphasis without attributes", "", "{'Type':'ZQSmoothStroke','animations':{'emphasis':{}}}",
            "animations/disappearance@x", nullptr);
        row("no place for strokes of a formula", "", "Type=ZQStrokesMathFormula Formula_Strokes=x",
            "element/property@Formula_Strokes", nullptr);
    }
    void writesZqtx()
    {
        const auto [given, item, path, expected] = Table<QString, QJsonObject, QString, QString>::cells();
        QDomElement element = plugin()->tranItemJSON2ZQTX(given.isEmpty() ? QDomElement() : xml(given), item);
        QVERIFY(!element.isNull());
        const QString attribute = path.section('@', 1);
        const QStringList tags = path.section('@', 0, 0).split('/', Qt::SkipEmptyParts);
        for (const QString &tag : tags) {
            element = element.firstChildElement(tag);
        }
        QCOMPARE(element.hasAttribute(attribute), !expected.isNull());
        QCOMPARE(element.attribute(attribute), expected);
    }

    void dropsTheBoxOfVersionThree_data()
    {
        const Table<bool> row("keepsBox");
        row("", true);
        row("2.0", true);
        row("3.7", false);
        row("4.0", true);
    }
    void dropsTheBoxOfVersionThree()
    {
        for (const char *type : {"group", "ZQStrokesMathFormula", "ZQStrokesChemFormula"}) {
            const QString text = "<group type='%1'><data><rect points='1,2,3,4'/></data></group>"_s.arg(type);
            const QJsonObject item = plugin()->tranItemZQTX2JSON(xml(text), withVersion(QTest::currentDataTag()));
            QTEST(item.contains("BoundingBox"), "keepsBox");
            QVERIFY(!item.contains("Children"));
        }
    }

    void readsRecordsOfDeletedPixels()
    {
        const QDomElement raw =
            xml("<ZQSmoothStroke NetID='1'><PixelDeleteInfos><I x='1'/><I x='2'/></PixelDeleteInfos>"
                "</ZQSmoothStroke>");
        QCOMPARE(plugin()->tranItemXML2JSON(raw, context()).value("PixelDeleteInfos"),
                 QJsonValue(json("{'a':[{'x':'1'},{'x':'2'}]}").value("a")));
        const auto fromZqtx = [](const char *infos) {
            const QString text = "<stroke type='Curve'><element><property pixelDeleteInfos='%1'/>"
                                 "</element></stroke>"_s.arg(infos);
            return plugin()->tranItemZQTX2JSON(xml(text), {}).value("PixelDeleteInfos");
        };
        QCOMPARE(fromZqtx("[1,2]"), QJsonValue(QJsonArray{1, 2}));
        QCOMPARE(fromZqtx("[1,2"), QJsonValue("[1,2"));
        QCOMPARE(fromZqtx("{}"), QJsonValue("{}"));
    }
};

QTEST_GUILESS_MAIN(TestItems)
#include "tst_items.moc"
