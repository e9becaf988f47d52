#include "carriedcheck.h"
#include "lossreport.h"
#include "modelforms.h"
#include "pluginfixture.h"
#include "xmlloader.h"
#include "xmltext.h"
#include "zqtxitems.h"

#include <QtTest>

/*!
 * Values that the plug-in alone would lose or change on their way into ZQTX and back.
 */
class TestHostValues : public QObject
{
    Q_OBJECT

private:
    // Through the text of the document, as a file would go.
    static QJsonObject writtenAndRead(const QJsonObject &item, const char *version = "3.0")
    {
        const QJsonObject presentation{{"Version", version}};
        const ZqtxItems items(plugin(), presentation);
        const QDomElement element = items.write(item);
        const QDomDocument document = loadXml(xmlDocumentText(element), {});
        return items.read(document.documentElement(), {{"pres", presentation}}, nullptr);
    }

private slots:
    void survive_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QJsonObject>("item");
        const auto row = [](const char *name, const char *text, const char *version = "3.0") {
            QTest::newRow(name) << QString::fromLatin1(version) << json(text);
        };
        row("weight and time of chalk",
            "{'Type':'ZQChalkStroke','Weight':'0.5,1','Time':'0,16','PointBrushWid':'3,4'}");
        row("deleted pixels and a texture",
            "{'Type':'ZQStrokeTexture','DrawTexture':'a.png','Stamp':'a.png','PixelDeleteInfos':[{'Path':'\u4e00'}]}");
        row("formula with an angle", "{'Type':'ZQStrokesMathFormula','Angle':'0.5','Formula_Strokes':'a<b'}");
        row("nested items that nobody knows",
            "{'Type':'ZQGroupItem','Children':[{'Type':'x','KeptXml':'<a type=\\'x\\'><b>c</b></a>'},"
            "{'Type':'ZQSmoothStroke','ID':'2'},{'Type':'ZQFuture','ID':'3','Wings':[1,2]}]}");
        row("box of a version 3 group", "{'Type':'ZQGroupItem','IgnoredBoundingBox':'1,2,3,4'}");
        row("box of a version 2 group", "{'Type':'ZQGroupItem','BoundingBox':'1,2,3,4'}", "2.0");
        row("steps of an old stroke", "{'Type':'ZQSmoothStroke','XY':'1000.12,-3,0.333313,0.25,-0.666687,1e+06'}",
            "2.9");
        row("flags, link and animations of other names",
            "{'Type':'ZQSmoothStroke','Visible':false,'InteractiveValue':'<&>\\t\\n\\r','InteractiveType':'ACTION_"
            "TOOLTIP',"
            "'animations':{'appearance':{'a':'1'},'emphasis':{},'disappearance':{},'path':{'x':'2'}}}");
    }

    void survive()
    {
        QFETCH(QString, version);
        QFETCH(QJsonObject, item);
        const QJsonObject found = writtenAndRead(item, qPrintable(version));
        for (auto it = item.constBegin(); it != item.constEnd(); ++it) {
            if (it.key() != HostKeys::children) {
                QCOMPARE(found.value(it.key()), it.value());
            }
        }
        const QJsonArray given = item.value(HostKeys::children).toArray();
        const QJsonArray children = found.value(HostKeys::children).toArray();
        QCOMPARE(children.size(), given.size());
        for (int i = 0; i < given.size(); ++i) {
            QCOMPARE(children.at(i).toObject().value("Type"), given.at(i).toObject().value("Type"));
            QCOMPARE(children.at(i).toObject().value("Wings"), given.at(i).toObject().value("Wings"));
        }
    }

    // Old lessons store points relative to the first one.
    void writesOffsetsForOldLessons()
    {
        QCOMPARE(pointsAsOffsets(QStringLiteral("10,20,1,2,3,4,-5,0.5")), QStringLiteral("10,20,1,2,4,6,-1,6.5"));
        QCOMPARE(pointsAsOffsets(QStringLiteral("10,20")), QStringLiteral("10,20"));
        QCOMPARE(pointsAsOffsets(QString()), QString());
    }

    void findsWhatIsNotCarried()
    {
        LossReport losses;
        CarriedCheck check(&losses);
        const ZqtxItems items(plugin(), {});
        const QDomElement stroke = xml(QStringLiteral(
            R"(<stroke id="1" type="Curve" color="#ff000000" width="5" visible="1" locked="0" uclone="0" mood="good">)"
            R"(<transform><rotate angle="0"/></transform><data><vertex points="1,2"/><path_width points=""/>)"
            R"(<rect points="0,0,1,1" tilt="3"/></data><note>Look!</note></stroke>)"));
        items.read(stroke, {}, &check);
        QStringList keys;
        for (const Loss &loss : losses.entries()) {
            keys.append(loss.key + QLatin1Char('=') + loss.detail);
        }
        keys.sort();
        QCOMPARE(keys, QStringList({"@mood=good", "data/rect@tilt=3", "note=Look!"}));
    }
};

QTEST_GUILESS_MAIN(TestHostValues)
#include "tst_hostvalues.moc"
