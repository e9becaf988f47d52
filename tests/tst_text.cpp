// SPDX-License-Identifier: MIT
#include "iwbtextinfo.h"
#include "pluginfixture.h"

#include <QDomDocument>
#include <QtTest>

namespace {

const QString listKey = "IWB_TEXTINFO-VECTOR"_s;
const QString deleterKey = "IWB_TEXTINFO-DELVECTOR"_s;

int destroyedLists = 0;

void destroyList(void *list)
{
    ++destroyedLists;
    delete static_cast<IwbTextInfoList *>(list);
}

template <typename Address> QString addressText(Address address)
{
    return QString::number(qulonglong(reinterpret_cast<quintptr>(address)));
}

template <typename Address> Address addressIn(const QJsonObject &item, const QString &key)
{
    return reinterpret_cast<Address>(quintptr(item.value(key).toString().toULongLong()));
}

QString runText(const IwbTextInfo &run)
{
    const QStringList font{run.fill, run.fontWeight, run.fontStretch, run.fontStyle, run.fontFamily, run.fontSize};
    const QStringList rest{run.textDecoration, run.textAlign, run.text, run.rect, run.flag ? "flag" : ""};
    return (font + rest).join('|');
}

IwbTextInfo run(const QString &text, const QString &fill)
{
    IwbTextInfo info;
    info.text = text;
    info.fill = fill;
    return info;
}

} // namespace

/*!
 * The text board: its HTML in ZQTX, its runs of text in IWB, and who frees the list of runs.
 */
class TestText : public QObject
{
    Q_OBJECT

private slots:
    void keepsHtmlInZqtx()
    {
        const QJsonObject item = json(
            "Type=ZQTextBoard ID=3 TextHtml=<b>x</b> InitialScale=1.5 BoundingBox=1,2,3,4 AudioPath=a.mp3 document=d");
        const QDomElement text = plugin()->tranItemJSON2ZQTX({}, item);
        QCOMPARE(text.tagName(), "text");
        QCOMPARE(differences(attributesOf(text), json("type=ZQTextBoard id=3 visible=1 document=d")), QString());
        const QDomElement content = text.firstChildElement("data").firstChildElement();
        QCOMPARE(toText(attributesOf(content)), toText(json("text=<b>x</b> type=html InitialScale=1.5")));
        QCOMPARE(toText(attributesOf(content.nextSiblingElement())), toText(json("points=1,2,3,4 controlpoints=")));
        QCOMPARE(differences(plugin()->tranItemZQTX2JSON(text, {}), item), QString());
    }

    void readsRuns_data()
    {
        const Table<QString, QStringList> row("svg", "runs");
        const QString defaults = "#000000|bold|normal|italic|Arial|28|underline|start"_s;
        row("area and two runs, not inherited",
            "<svg:textarea x='1' y='2' width='3' height='4' font-weight='normal'><svg:tspan font-size='9'>"
            "<![CDATA[one]]></svg:tspan>loose<svg:tspan><![CDATA[two]]><![CDATA[three]]></svg:tspan></svg:textarea>",
            {"#000000|normal|normal|italic|Arial|28|underline|start||1,2,3,4|",
             "#000000|bold|normal|italic|Arial|9|underline|start|one||", defaults + "|two||"});
        row("every attribute, empty ones too",
            "<svg:textarea fill='a' font-weight='b' font-stretch='c' font-style='d' font-family='e' font-size='f' "
            "text-decoration='' text-align='h'/>",
            {"a|b|c|d|e|f||h|||"});
        row("plain text and a place without height",
            "<svg:textarea x='1' y='2' width='3'>plain<other>plain</other></svg:textarea>",
            {defaults + "|||", defaults + "|||"});
        row("text of the area itself, behind a run", "<svg:textarea><svg:tspan/><![CDATA[own]]></svg:textarea>",
            {defaults + "|own||", defaults + "|||"});
    }

    void readsRuns()
    {
        QFETCH(QString, svg);
        const QJsonObject item = plugin()->tranItemIWB2JSON(xml(svg), json("path=p/"));
        QCOMPARE(differences(item, json("Type=ZQTextBoard path=p/ x=null Angle=null")), QString());

        auto *list = addressIn<IwbTextInfoList *>(item, listKey);
        QStringList read;
        for (const IwbTextInfo &info : qAsConst(*list)) {
            read.append(runText(info));
        }
        addressIn<IwbTextInfoListDeleter>(item, deleterKey)(list);
        QTEST(read, "runs");
    }

    void placesTheArea_data()
    {
        const Table<QJsonObject, QJsonObject> row("item", "attributes");
        row("no matrix, default run", "BoundingBox=1,2,101,52 ID=7",
            "x=1 y=2 width=100 height=50 id=7 fill=#000000 font-weight=bold font-stretch=normal font-style=italic "
            "font-family=Arial font-size=28 text-decoration=underline text-align=start");
        // The mapped box would be 50 wide and 100 high.
        row("a quarter turn keeps the sides", "BoundingBox=0,0,100,50 Matrix=0,1,-1,0,0,0",
            "x=0 y=0 width=100 height=50");
        // (1, 2) goes to (2 x 1 + 5, 3 x 2 + 6); sides 2 x 10 and 3 x 20
        row("stretched", "BoundingBox=1,2,11,22 Matrix=2,0,0,3,5,6 Angle=0.5",
            "x=7 y=12 width=20 height=60 transform=rotate(0.5,17,42)");
        row("no box", "Matrix=2,0,0,3,5,6 x=9", "x=9 width=null fill=null font-size=null");
        row("a short box", "BoundingBox=1,2,3", "x=null width=null fill=null");
        row("a short matrix", "BoundingBox=1,2,3,4 Matrix=1,0,0", "x=null width=null");
        row("no list at the address 0", "BoundingBox=1,2,3,4 IWB_TEXTINFO-VECTOR=0 id=low ID=7", "fill=#000000 id=low");
        row("no list at words", "BoundingBox=1,2,3,4 IWB_TEXTINFO-VECTOR=none", "fill=#000000");
    }

    void placesTheArea()
    {
        auto [item, attributes] = Table<QJsonObject, QJsonObject>::cells();
        item.insert("Type", "ZQTextBoard"_s);
        const QDomElement area = toSvg(item);
        QCOMPARE(area.tagName(), "svg:textarea");
        QCOMPARE(differences(attributesOf(area), attributes), QString());
        QVERIFY(!area.hasChildNodes());
    }

    void writesRunsAndFreesTheListOnce()
    {
        auto *list = new IwbTextInfoList{run("a<b"_s, "red"_s), run(QString(), "blue"_s)};
        destroyedLists = 0;
        const QDomElement area = toSvg({{"Type", "ZQTextBoard"},
                                        {"BoundingBox", "0,0,1,1"},
                                        {"id", "low"},
                                        {listKey, addressText(list)},
                                        {deleterKey, addressText(&destroyList)}});
        QCOMPARE(destroyedLists, 1);
        QCOMPARE(area.attribute("fill"), "red");
        QCOMPARE(area.childNodes().count(), 2);
        const QDomElement first = area.firstChildElement("svg:tspan");
        QCOMPARE(differences(attributesOf(first), json("fill=red id=low font-size=28 x=null")), QString());
        QVERIFY(first.firstChild().isCDATASection());
        QCOMPARE(first.text(), "a<b");
        const QDomElement second = first.nextSiblingElement();
        QCOMPARE(second.attribute("fill"), "blue");
        QVERIFY(!second.hasChildNodes());
    }

    void leavesTheListAliveWithoutItsDeleter()
    {
        const IwbTextInfoList list{run("kept"_s, "red"_s)};
        const QDomElement area = toSvg({{"Type", "ZQTextBoard"}, {listKey, addressText(&list)}});
        QCOMPARE(area.attributes().count(), 0);
        QCOMPARE(area.text(), "kept");
        QCOMPARE(list.first().text, "kept");
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
