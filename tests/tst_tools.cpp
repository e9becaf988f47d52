// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QtTest>

/*!
 * Lesson tools, basic graphs, activity items, language items, formulas and courseware, questions: their templates and
 * what goes through them.
 */
class TestTools : public QObject
{
    Q_OBJECT

private slots:
    void newElements_data()
    {
        const Table<QJsonObject, QString> row("item", "expected"); // without the attributes that every element has
        row("two elements derived from the keys",
            "{'Type':'General:everCard','CardList':'a;b','Title':'%1 <3','CanvasSize':'4,3','BoundingBox':'0,0,4,3'}",
            "<generalTool type='General:everCard'><data><element Listdata='a;b' Title='%1 &lt;3' CanvasSize='4,3'/>"
            "<rect points='0,0,4,3'/></data></generalTool>");
        row("elements in the order of their tags", "Type=General:curtain rect=0,0,9,9 picture=p.png",
            "<generalTool type='General:curtain'><data><property rect='0,0,9,9' picture='p.png'/><rect points=''/>"
            "</data></generalTool>");
        row("only the ruler has a length", "Type=Math:ruler Length=300",
            "<generalTool type='Math:ruler'><data><element Length='300' RotateAngle='' Translate_X='' "
            "Translate_Y=''/><rect points=''/></data></generalTool>");
        row("a polygon keeps its control points", "Type=ZQBasicTriangleItem Control=0,0,1,1 LineColor=#ff0000",
            "<basicgraph type='ZQBasicTriangleItem'><TURN/><data><rect points='' controlpoints='0,0,1,1'/>"
            "<content text='' type='html'/></data><properties><property value='#ff0000' name='Color'/></properties>"
            "</basicgraph>");
        row("a star loses them", "Type=ZQBasicPentacleItem Control=0,0,1,1",
            "<basicgraph type='ZQBasicPentacleItem'><TURN/><data><NO_RECT/><content text='' type='html'/></data>"
            "</basicgraph>");
        row("all keys of an activity text go to its first content",
            "Type=ZQActiveContainerItem TextHtml=T hole=H defaultTextSize=30 frontContent=F",
            "<activity_item type='container' name=''><TURN/><NO_PICTURE/><data><NO_RECT/>"
            "<content text='T' hole='H' defaultTextSize='30'/><content content=''/><content defaultTextSize=''/>"
            "<content defaultTextFamily=''/><content defaultTextAlignment=''/><content defaultTextColor=''/>"
            "<hot offset=''/></data></activity_item>");
        row("a flip card, with attachments as they stand",
            "{'Type':'ZQActivityFlipItem','frontContent':'F','defaultTextSize':'30',"
            "'attachments':{'back':'%1','front':'b.png','error':'e'}}",
            "<activity_item type='ZQActivityFlipItem' name=''><TURN/><NO_PICTURE/><attachments>"
            "<attachment back='%1' front='b.png' error='e'/></attachments><data><NO_RECT/><content text=''/>"
            "<content content=''/><front frontContent='F'/><frontFont defaultFrontFontFormat=''/>"
            "<backFont defaultBackFontFormat=''/><hot offset=''/></data></activity_item>");
        row("attachments with a quote end the element",
            R"({'Type':'ZQActivityFlipItem','frontContent':'F','attachments':{'back':'a\"b'}})",
            R"(<activity_item visible="1" locked="0" type="ZQActivityFlipItem" uclone="0" id="" name=""><transform>)"
            R"(<rotate angle="0"/></transform><background><picture document=""/></background>)"
            R"(<attachments/><data/></activity_item>)");
        row("alphabet", "Type=ZQChineseAlphabetItem brick_width=80",
            "<pinyin_item type='ZQChineseAlphabetItem' name=''><TURN/><NO_PICTURE/><data><NO_RECT/>"
            "<content brick_width='80'/></data></pinyin_item>");
        row("formula with its document as a text", "Type=ZQFormulaEditorItem mml=<math/> document=f.png",
            "<mathformula type='mathformula' name='' document='f.png'><TURN/><data><rect points=''/></data>"
            "<properties><property value='&lt;math/>' name='mml'/></properties></mathformula>");
        row("courseware with two files", "{'Type':'ZQDyCoursewareItem','name':'n','document':['%2.png','%1.ggb']}",
            "<dycourseware type='dycourseware' name='' document=''><TURN/><data><rect points=''/></data>"
            "<res ggb='%1.ggb' pix='%2.png'/><properties><property value='n' name='name'/></properties>"
            "</dycourseware>");
        row("courseware with three", "{'Type':'ZQDyCoursewareItem','document':['a','b','c']}",
            "<dycourseware type='dycourseware' name='' document=''><TURN/><data><rect points=''/></data>"
            "</dycourseware>");
        row("a file name that breaks the text", "{'Type':'ZQDyCoursewareItem','document':['a&b','c']}", "");
        row("question with markup",
            "{'Type':'ZQQuestionItem','R_Content_svg':'<b>x</b>&lt;','page_scale':'2','answer_width':1234567.8}",
            "<question type='ZQQuestionItem'><TURN/><data><R_Content_svg><b>x</b>&lt;</R_Content_svg><R_Answer_svg/>"
            "<page_scale>0</page_scale><page_state/><answer_width>1.23457e+06</answer_width><answer_height>0"
            "</answer_height><content_width>0</content_width><content_height>0</content_height>"
            "<rect points='' controlpoints='' outlinetype=''/></data></question>");
        row("question with a lone <", "{'Type':'ZQQuestionItem','R_Content_svg':'1 < 2'}", "");
        row("question that would end early", "Type=ZQQuestionItem page_state=</page_state></data></question><evil/>",
            "");
        row("question with a document type",
            R"({'Type':'ZQQuestionItem','page_state':'<!DOCTYPE q [<!ENTITY e \"x\">]>&e;'})", "");
    }

    void newElements()
    {
        auto [item, expected] = Table<QJsonObject, QString>::cells();
        const QDomElement made = plugin()->tranItemJSON2ZQTX({}, item);
        QCOMPARE(made.isNull(), expected.isEmpty());
        if (!made.isNull()) {
            expected.replace("<TURN/>", "<transform><rotate angle='0'/></transform>")
                .replace("<NO_PICTURE/>", "<background><picture document=''/></background>")
                .replace("<NO_RECT/>", "<rect points='' controlpoints=''/>");
            QDomElement whole = xml(expected);
            for (const char *common : {"visible=1", "locked=0", "uclone=0", "id="}) {
                whole.setAttribute(QString(common).section('=', 0, 0), QString(common).section('=', 1));
            }
            QCOMPARE(toText(made), toText(whole));
        }
    }

    void readItems_data()
    {
        const Table<QString, QJsonObject> row("element", "expected");
        row("curtain",
            R"(<generalTool type="General:curtain"><data><property rect="1,2" picture="p"/><rect points="0"/></data>)"
            R"(</generalTool>)",
            "BoundingBox=0 Type=General:curtain picture=p rect=1,2");
        row("free drawing with its labels",
            R"(<basicgraph type="ZQBasicFreeDraw2"><properties><property name="FreeItem_LineStyle" value="1"/>)"
            R"(<property name="FreeItem_PtnConinueVec" value="2"/></properties></basicgraph>)",
            "ArtObject_LineMode=1 FreeItem_PtnConinueVec=2 Type=ZQBasicFreeDraw2");
        row("a name with a suffix that must be exact", R"(<basicgraph type="ZQBasicEllipseItem2"/>)", "{}");
        row("the template's word is no type", R"(<basicgraph type="basicgraph"/>)", "{}");
        row("the last attachment, without its error",
            R"(<activity_item type="material_competitionItem"><attachments><attachment back="1"/>)"
            R"(<attachment back="2" front="3" error="4"/></attachments><attachments/></activity_item>)",
            "{'Type':'ZQActiveMaterialCompetitionItem','attachments':{'back':'2','front':'3'}}");
        row("an activity type without a pair",
            R"(<activity_item type="ZQActiveMaterialMarkX"><background><picture document="d"/></background>)"
            R"(</activity_item>)",
            "Type=ZQActiveMaterialMarkX document=d");
        row("courseware",
            R"(<dycourseware type="dycourseware" document="x"><res ggb="a.ggb" pix="a.png"/></dycourseware>)",
            "{'Type':'ZQDyCoursewareItem','document':['a.png','a.ggb']}");
        row("files that are no direct child",
            R"(<dycourseware type="dycourseware" document="x"><data><res ggb="a" pix="b"/></data></dycourseware>)",
            "Type=ZQDyCoursewareItem document=x");
        row("files of a formula",
            R"(<mathformula type="mathformula" document="x"><res ggb="a" pix="b"/></mathformula>)",
            "Type=ZQFormulaEditorItem document=x");
        row("question",
            R"(<question type="ZQQuestionItem"><data><R_Content_svg>a<b>c</b></R_Content_svg><R_Answer_svg/>)"
            R"(<page_scale>1.5</page_scale><page_state>s</page_state><answer_width>1.23457e+06</answer_width>)"
            R"(</data></question>)",
            "{'R_Answer_svg':'','R_Content_svg':'ac','Type':'ZQQuestionItem','answer_width':1234570,"
            "'page_scale':1.5,'page_state':'s'}");
        row("question texts in each other's place",
            R"(<question type="ZQQuestionItem"><data><R_Answer_svg>a</R_Answer_svg><R_Content_svg>b</R_Content_svg>)"
            R"(<page_scale>2</page_scale></data></question>)",
            "{'Type':'ZQQuestionItem','page_scale':2}");
    }

    void readItems()
    {
        const auto [element, expected] = Table<QString, QJsonObject>::cells();
        QJsonObject item = plugin()->tranItemZQTX2JSON(xml(element), {});
        for (const char *flag : {"Visible", "LockIn", "InfiniteClone"}) {
            item.remove(flag);
        }
        QCOMPARE(toText(item), toText(expected));
    }

    // With a source as large as the page, the item's own matrix is all there is.
    void scalesFoldIntoTheBox_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("matrix");
        QTest::addColumn<QString>("expected");

        for (const char *type : {"ZQChineseAlphabetItem", "ZQActiveMaterialStudent1Item", "ZQImagePic"}) {
            QTest::addRow("%s, larger", type) << type << "2,0,0,2,10,20"
                                              << "1,0,0,1,0,0 10,20,210,120";
            QTest::addRow("%s, as large", type) << type << "1,0,0,3,10,20"
                                                << "1,0,0,3,10,20 0,0,100,50";
            QTest::addRow("%s, mirrored", type) << type << "-2,0,0,2,0,0"
                                                << "-2,0,0,2,0,0 0,0,100,50";
        }
    }

    void scalesFoldIntoTheBox()
    {
        QFETCH(QString, type);
        QFETCH(QString, matrix);
        QDomElement raw = xml("<%1 Bound='100,50,0,0,0,0'/>"_s.arg(type));
        raw.setAttribute("TransformMatrix", matrix);
        const QJsonObject item = plugin()->tranItemXML2JSON(raw, json("{'slide':{'SlideSourceRect':'0,0,1440,1080'}}"));
        QTEST(QString(item.value("Matrix").toString() + " "_s + item.value("BoundingBox").toString()), "expected");
    }

    void basicGraphsReadTheRawForm()
    {
        const QJsonObject item = plugin()->tranItemXML2JSON(
            xml(R"(<ZQBasicSegmentItem ArtObj_Width="3" ArtObj_Point1="1,2" ArtObj_Center="0,0">)"
                R"(<s><ArtObj_FillColor FileType="f"/></s></ZQBasicSegmentItem>)"),
            {});
        QCOMPARE(item.value("Width").toString(), "3");
        QCOMPARE(item.value("ArtObj_Point1").toString(), "1,2");
        QCOMPARE(item.value("FillTypeF").toString(), "f");
        QVERIFY(!item.contains("ArtObj_Center"));
    }

    void nestedTextsAreBounded_data()
    {
        const Table<QString> row("text");
        row("tags", "<a>"_s.repeated(200000));
        // What counts as a line must not move the place where the text is cut.
        row("carriage returns", QString("<a>"_s + "\r"_s.repeated(30)).repeated(4500) + "<a>\n"_s.repeated(200000));
        row("markup that is no tag",
            "<!-- <a> --><![CDATA[<a>]]><?a <a>?>"_s.repeated(5000) + "<a b='>'>"_s.repeated(200000));
    }

    // A text of tags that never end must neither grow a tree that can't be saved nor end the process.
    void nestedTextsAreBounded()
    {
        QFETCH(QString, text);
        const QString behindQuote = "\"/>"_s + text;
        QJsonObject item{{"Type", "ZQActiveMaterialItem"}, {"attachments", QJsonObject{{"back", behindQuote}}}};
        QCOMPARE(plugin()->tranItemJSON2ZQTX({}, item).tagName(), "activity_item");
        item = {{"Type", "ZQQuestionItem"}, {"R_Answer_svg", text}};
        QVERIFY(plugin()->tranItemJSON2ZQTX({}, item).isNull());
        item = {{"Type", "ZQVectorJuxing"}, {"manager", text}};
        QCOMPARE(plugin()->tranItemJSON2ZQTX({}, item).lastChildElement().tagName(), "data");
    }

    // What goes into the JSON as text is printed, and printing takes more stack than the tree itself.
    void treesTooDeepToPrintAreLeftOut()
    {
        const QDomElement item =
            xml(QString(R"(<discipline type="Vector:juxing"><ArtVectObj_Manager>)"_s + "<a>"_s.repeated(7000)
                        + "</a>"_s.repeated(7000) + "</ArtVectObj_Manager></discipline>"_s));
        QCOMPARE(plugin()->tranItemZQTX2JSON(item, {}).value("manager"), QJsonValue(""));
    }

    // Entities unfold to levels that no tag of the text shows.
    void entitiesAreBounded()
    {
        const QString tags = "<!DOCTYPE a [<!ENTITY b '"_s + "<c>"_s.repeated(1300) + "'>]><interactive>"_s
            + "&b;"_s.repeated(1000) + "<d value='7'/>"_s;
        const QJsonObject slide{{"SlideTagsInfo", tags}};
        const QJsonObject item = plugin()->tranItemXML2JSON(xml("<ZQBasicPlusItem NetID='7'/>"), {{"slide", slide}});
        QVERIFY(!item.contains("InteractiveType"));
    }

    void haveNoSvgForm_data()
    {
        const Table<bool> row("isAsked");
        row("ZQQuestionItem", true);
        row("General:curtain", true);
        row("ZQMindMapItem", true);
        row("ZQActiveMaterialItem", false);
        row("ZQBasicPlusItem", false);
        row("ZQWordLatticeItem", false);
        row("ZQFormulaEditorItem", false);
    }

    // A family without an svg form still gets its hyperlink, unless the chain for IWB leaves it out.
    void haveNoSvgForm()
    {
        QFETCH(bool, isAsked);
        QDomDocument document;
        document.appendChild(document.createElement("iwb"));
        QJsonObject item = json("ID=1 InteractiveType=ACTION_GOTOSLIDE InteractiveValue=2");
        item.insert("Type", QLatin1String(QTest::currentDataTag()));
        const QDomElement link = plugin()->tranItemJSON2IWB(document, item);
        QCOMPARE(!link.isNull(), isAsked);
        QCOMPARE(document.documentElement().hasChildNodes(), isAsked);
        QVERIFY(!link.hasChildNodes());
    }
};

QTEST_GUILESS_MAIN(TestTools)
#include "tst_tools.moc"
