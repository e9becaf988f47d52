// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QtTest>

namespace {

// The writer's log is expected, so that it doesn't count as output of the test. logged is what stands for the item.
QDomElement written(const QJsonObject &item, const QJsonObject &logged)
{
    QString text;
    QDebug(&text) << logged;
    QTest::ignoreMessage(QtDebugMsg, "##############ZQComItemControlTran###################");
    QTest::ignoreMessage(QtDebugMsg, text.trimmed().toUtf8().constData());
    return plugin()->tranItemJSON2ZQTX({}, item);
}

QDomElement mapElement(const QString &data)
{
    return xml(R"(<mindmap id="" visible="1" locked="0" uclone="0" type="ZQMindMapItem"><transform>)"
               R"(<rotate angle="0"/></transform><data>)"_s
               + data + "</data></mindmap>"_s);
}

// The node that a writer makes of an object with only the keys in more, which is their XML.
QString node(const QString &more = {})
{
    return "<node><pos/><position>0</position><width>0</width><height>0</height><fillColor/><lineColor/>"
           "<visiable>0</visiable><childrenVisiable>0</childrenVisiable><nodeHtml><![CDATA[]]></nodeHtml>"_s
        + more + "</node>"_s;
}

QString mapAround(const QString &root)
{
    return "<mapItemInfo><title/><type>0</type><style>0</style><spreadStyle>0</spreadStyle><fillColor/><borderColor/>"
           "<lineColor/><edge><style>0</style></edge>"_s
        + root + "</mapItemInfo>"_s;
}

QStringList loggedLines;

void keepLine(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    loggedLines.append((type == QtDebugMsg ? ""_s : "not debug: "_s) + text);
}

QJsonArray array(const QString &text)
{
    return json(QString("{'a':"_s + text + "}"_s).toUtf8().constData()).value("a").toArray();
}

} // namespace

/*!
 * The tree of a mind map in both directions.
 */
class TestMindMap : public QObject
{
    Q_OBJECT

private slots:
    void writesTheTree_data()
    {
        const Table<QString, QString> row("tree", "data");
        row("two entries are no tree", "[{},{}]", "");
        row("a node without keys", "[{},{},{}]", mapAround(node()));
        row("empty lists stay lists", "[{},{},{'childNodes':[],'attachments':[]}]",
            mapAround(node("<attachments/><childNodes/>"_s)));
        row("every key",
            "[{'title':'T %1','type':1,'style':2,'spreadStyle':3,'fillColor':'f','borderColor':'b','lineColor':'l'},"
            "{'style':4},{'pos':'1,2','position':5,'width':6,'height':7,'fillColor':'ff','lineColor':'ll',"
            "'visiable':true,'childrenVisiable':'1','nodeHtml':'<p>a & b</p>','link':'','shade':true,'stamp':8,"
            "'attachments':[{'type':'t','path':'p','name':'n'}],'childNodes':[]}]",
            "<mapItemInfo><title>T %1</title><type>1</type><style>2</style><spreadStyle>3</spreadStyle>"
            "<fillColor>f</fillColor><borderColor>b</borderColor><lineColor>l</lineColor><edge><style>4</style></"
            "edge>"
            "<node><pos>1,2</pos><position>5</position><width>6</width><height>7</height><fillColor>ff</fillColor>"
            "<lineColor>ll</lineColor><visiable>1</visiable><childrenVisiable>0</childrenVisiable>"
            "<nodeHtml><![CDATA[<p>a & b</p>]]></nodeHtml><link/><shade>1</shade><stamp>8</stamp><attachments>"
            "<attachment type='t' path='p' name='n'/></attachments><childNodes/></node></mapItemInfo>");
        QString marked = mapAround(node());
        marked.replace("<title/>"_s, "<title><b/>x</title>"_s).replace("CDATA[", "CDATA[<p>");
        row("texts of markup", "[{'title':'<b/>x'},{},{'nodeHtml':'<p>'}]", marked);
        row("the tree ends where a text breaks it", "[{'title':'a < b & c'},{},{}]",
            "<mapItemInfo><title>a </title></mapItemInfo>");
        row("nothing grows behind the item",
            "[{'title':'</title></mapItemInfo></data></mindmap><!DOCTYPE x><evil>'},{},{}]",
            "<mapItemInfo><title/></mapItemInfo>");
    }

    void writesTheTree()
    {
        const auto [tree, data] = Table<QString, QString>::cells();
        const QJsonObject item{{"Type", "ZQMindMapItem"}, {"mindMapData", array(tree)}};
        const QDomElement element = written(item, item);
        QCOMPARE(toText(element), toText(mapElement(data)));
        QVERIFY(element.previousSibling().isNull() && element.nextSibling().isNull());
    }

    void readsTheTree_data()
    {
        const Table<QString, QString> row("data", "tree");
        row("no data", "", "[]");
        row("no map", "<rect/><rect/><mapItemInfo/>", "[]");
        row("first", "<mapItemInfo/>", "[{},{},{}]");
        row("behind the rectangle", "<rect/><mapItemInfo/>", "[{},{},{}]");
        row("values of the map, the later one of two",
            "<mapItemInfo><title>a</title><title>T</title><style>2</style><borderColor>b</borderColor><other/>"
            "<edge><style>x</style></edge><edge><style>4</style></edge><node><pos>1</pos></node>"
            "<node><width>1.5</width></node></mapItemInfo>",
            "[{'title':'T','style':2,'borderColor':'b'},{'style':4},{'width':0}]");
        row("values of a node",
            "<mapItemInfo><node><pos>1,2</pos><visiable>1</visiable><shade>1</shade><stamp>7</stamp><nodeHtml>"
            "<![CDATA[<p>&]]></nodeHtml><attachments><attachment path='p' x='y'/></attachments><childNodes><node>"
            "<shade>2</shade><childNodes/></node><node><link>l</link></node></childNodes></node></mapItemInfo>",
            "[{},{},{'pos':'1,2','visiable':'1','shade':true,'stamp':7,'nodeHtml':'<p>&','attachments':[{'type':'',"
            "'name':'','path':'p'}],'childNodes':[{'shade':false,'childNodes':[]},{'link':'l'}]}]");
    }

    void readsTheTree()
    {
        const auto [data, tree] = Table<QString, QString>::cells();
        const QJsonObject item = plugin()->tranItemZQTX2JSON(mapElement(data), {});
        QVERIFY(item.value("mindMapData").isArray());
        QCOMPARE(item.value("mindMapData").toArray(), array(tree));
    }

    void leavesAGivenElementItsTree()
    {
        const QDomElement given = mapElement("<mapItemInfo><title>old</title></mapItemInfo>"_s);
        const QJsonObject item = json("{'Type':'ZQMindMapItem','ID':'7','mindMapData':[{'title':'new'},{},{}]}");
        const QDomElement result = plugin()->tranItemJSON2ZQTX(given, item);
        QCOMPARE(result.attribute("id"), "7");
        QCOMPARE(result.firstChildElement("data").text(), "old");
    }

    // Nothing else of the library writes a line, whatever it is given.
    void logsTwoLinesForANewMap()
    {
        const QJsonObject map =
            json("{'Type':'ZQMindMapItem','ID':'7','mindMapData':[{'title':'a < b & \u6c34'},{},{'childNodes':1}]}");
        loggedLines.clear();
        const QtMessageHandler usual = qInstallMessageHandler(keepLine);
        plugin()->tranItemJSON2ZQTX({}, map);
        plugin()->tranItemJSON2ZQTX(mapElement(QString()), map);
        plugin()->tranItemZQTX2JSON({}, {});
        plugin()->tranItemZQTX2JSON(mapElement("<mapItemInfo><node/></mapItemInfo>"_s), {});
        plugin()->tranItemXML2JSON(xml("<ZQMindMapItem Bound='1' TransformMatrix='2'/>"), {});
        plugin()->tranItemJSON2ZQTX({}, json("Type=ZQQuestionItem R_Answer_svg=<"));
        plugin()->tranSlideJSON2ZQTX({}, json("{'activity':{'templet':{'no name':'x'}}}"));
        qInstallMessageHandler(usual);

        QString item;
        QDebug(&item) << map;
        QCOMPARE(loggedLines, QStringList({"##############ZQComItemControlTran###################"_s, item.trimmed()}));
    }

    // Qt can hold this tree, but not save it, and to print it would take most of the stack.
    void readsAnyDepthAndWritesWhatCanBeSaved()
    {
        const int depth = 6000;
        const QDomElement given = mapElement("<mapItemInfo><node/></mapItemInfo>"_s);
        QDomDocument document = given.ownerDocument();
        QDomNode node = given.firstChildElement("data").firstChildElement().firstChildElement();
        for (int i = 1; i < depth; ++i) {
            node = node.appendChild(document.createElement("childNodes")).appendChild(document.createElement("node"));
        }
        QJsonObject item = plugin()->tranItemZQTX2JSON(given, {});
        int levels = 0;
        QJsonArray children = {item.value("mindMapData").toArray().at(2)};
        for (; !children.isEmpty(); ++levels) {
            children = children.at(0).toObject().value("childNodes").toArray();
        }
        QCOMPARE(levels, depth);

        QJsonObject logged = item;
        logged.remove("mindMapData");
        const QDomElement result = written(item, logged);
        QString text;
        QTextStream stream(&text);
        result.save(stream, -1);
        QVERIFY(text.count("<node>") > 512);
    }
};

QTEST_GUILESS_MAIN(TestMindMap)
#include "tst_mindmap.moc"
