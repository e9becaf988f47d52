// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QJsonArray>
#include <QtTest>

namespace {

// A slide of 1440 x 1080, which raw items fill as they are.
QJsonObject fittingSlide()
{
    return json("{'slide': {'SlideSourceRect': '0,0,1440,1080'}}");
}

QJsonObject readRaw(const QString &text)
{
    return plugin()->tranItemXML2JSON(xml(text), fittingSlide());
}

QJsonObject readZqtx(const QString &text)
{
    return plugin()->tranItemZQTX2JSON(xml(text), {});
}

QString discipline(const QString &type, const QString &content = {})
{
    return R"(<discipline type="%1">%2</discipline>)"_s.arg(type, content);
}

// The property rows of a ZQTX element that have a label, as "label=value" in ascending order between bars.
QString propertyRows(const QDomElement &element)
{
    QStringList rows;
    const QDomElement properties = element.firstChildElement("properties");
    for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString label = row.attribute("name");
        if (!label.isEmpty()) {
            rows.append(label + '=' + row.attribute("value"));
        }
    }
    rows.sort();
    return rows.join('|');
}

} // namespace

/*!
 * The subject boxes: physics, chemistry, vector shapes, figures and literature, and the base of the first four.
 */
class TestSubjects : public QObject
{
    Q_OBJECT

private slots:
    // A name in ZQTX, the type that it is read as, and the name that this one is written under.
    void convertsTypes_data()
    {
        const Table<QString, QString> row("type", "written");
        row("Physics:kaiguan1", "ZQPhysicsKaiGuan1", "Physics:kaiguan1");
        row("Physics:KAIGUAN1", "ZQPhysicsKaiGuan1", "Physics:kaiguan1");
        row("physics:kaiguan1", "", "");
        row("Physics:nothing", "", "");
        row("ZQPhysicsLaBa", "ZQPhysicsLaBa", "Physics:laba");
        row("Chemistry:jiujingdeng", "ZQChemistryJiujingdeng", "Chemistry:jiujingdeng");
        row("Chemistry:Jiujingdeng", "", "");
        row("Chemistry:expressions", "", "");
        row("ZQChemistryExpressions", "ZQChemistryExpressions", "Chemistry:expressions");
        row("Vector:", "", "");
        row("Shape:quxianjiantou", "ZQShapeQuxianjiantou", "ZQShapeQuxianjiantou");
        row("Shape:Feiji", "", "");
        row("ZQShapeFeiji", "ZQShapeFeiji", "ZQShapeFeiji");
        row("English:yinbiao", "ZQLiteratureYinbiao", "English:yinbiao");
        row("English:pinyin", "", "");
    }

    void convertsTypes()
    {
        QFETCH(QString, type);
        const QJsonObject item = readZqtx(discipline(QTest::currentDataTag()));
        QCOMPARE(item.value("Type").toString(), type);
        const QDomElement element = plugin()->tranItemJSON2ZQTX({}, item);
        QCOMPARE(element.tagName(), type.isEmpty() ? "" : "discipline");
        QTEST(element.attribute("type"), "written");
    }

    void readsRaw_data()
    {
        const Table<QString, QJsonObject> row("raw", "expected");
        row("control points end at a hole",
            R"(<ZQPhysicsLaBa Bound="9,9,0,0,1,1" Discipline_xControl0="1.5" Discipline_yControl0="x" )"
            R"(Discipline_xControl2="3" Discipline_yControl2="4"/>)",
            "{'Control': [1.5, 0]}");
        row("half a control point", R"(<ZQPhysicsLaBa Discipline_xControl0="1"/>)", "{}");
        row("control points in single precision",
            "<ZQPhysicsLaBa Discipline_xControl0='0.1' Discipline_yControl0='16777217'/>",
            "{'Control': [0.10000000149011612, 16777216]}");
        row("a colour element before an attribute, alpha and channels left out",
            R"(<ZQPhysicsLaBa ArtObj_Color="51,1,2,3" LineColor="51,1,2,3"><x><ArtObj_Color r="255"/></x></ZQPhysicsLaBa>)",
            "{'ArtObj_Color': {'Alpha': 1, 'Solid': 16711680}, 'LineColor': {'Alpha': 0.2, 'Solid': 66051}}");
        row("a colour attribute that is too short", R"(<ZQPhysicsLaBa ArtObj_Color10="1,2,3"/>)",
            "ArtObj_Color10=1,2,3");
        row("points under names of their own",
            R"(<ZQPhysicsDianHe ArtObj_Prop="1" ArtObj_Sound="2"><ArtObj_Point x="3" y="4"/></ZQPhysicsDianHe>)",
            "ArtObj_PointX=3 ArtObj_PointY=4 ArtObj_Prop=1");
        row("ranges of points",
            R"(<ZQPhysicsLi><ArtObj_Point9 x="1" y="2"/><ArtObj_Point10 x="3" y="4"/></ZQPhysicsLi>)",
            "ArtObj_Point9x=1 ArtObj_Point9y=2");
        row("a colour that is also plain", R"(<ZQChemistryQiPao ArtObj_Color="255,0,1,0"/>)",
            "{'ArtObj_Color': {'Alpha': 1, 'Solid': 256}}");
        row("control points that are also plain",
            R"(<ZQChemistryFlask Discipline_xControl0="1" Discipline_yControl0="2"/>)",
            "{'Control': [1, 2], 'Discipline_xControl0': '1', 'Discipline_yControl0': '2'}");
        row("a figure's control points and corners",
            R"(<ZQShapeLianjiexian Discipline_xControl0="1" Discipline_yControl0="2" ArtObj_InterpointNumber="1">)"
            R"(<ArtObj_InterPoint19 x="3" y="4"/><ArtObj_InterPoint20 x="5" y="6"/></ZQShapeLianjiexian>)",
            "{'ArtObj_InterPoint19x': '3', 'ArtObj_InterPoint19y': '4', 'ArtObj_InterpointNumber': '1',"
            " 'Control': [1, 2]}");
        row("a word that is always hidden", R"(<ZQLiteratureYinbiao ArtObj_WriteDanci="0" ArtObj_DanciPos="0"/>)",
            "WordAtLeft=0 WordHide=1");
        row("a word that isn't told", R"(<ZQLiteratureYinbiao ArtObj_English="cat"/>)", "ArtObj_English=cat");
        row("art text keeps its bound", R"(<ZQCommonYishuzi Bound="3,4,0,0,1,2" ArtObj_Height="7"/>)",
            "ArtObj_Height=7 BoundingBox=1,2,3,4");
    }

    void readsRaw()
    {
        const auto [raw, expected] = Table<QString, QJsonObject>::cells();
        QCOMPARE(toText(ownKeys(readRaw(raw))), toText(expected));
    }

    void cardsWithoutRawFormReadEmpty()
    {
        QVERIFY(readRaw(R"(<ZQLiteraturePinyin NetID="1" ArtObj_Pinyin="ma"/>)").isEmpty());
        QVERIFY(readRaw(R"(<ZQLiteratureHanzibihua NetID="1"/>)").isEmpty());
    }

    void readsZqtx_data()
    {
        const Table<QString, QString, QJsonObject> row("type", "content", "expected");
        const auto property = [](const char *label, const char *value) {
            return R"(<properties><property name="%1" value="%2"/></properties>)"_s.arg(label, value);
        };
        const auto rect = [](const char *control) {
            return R"(<data><rect points="1,2,3,4" controlpoints="%1"/></data>)"_s.arg(control);
        };
        row("a colour with alpha", "Physics:laba", property("Color of edge", "51,255,0,0"),
            "{'ArtObj_Color0': {'Alpha': 0.2, 'Solid': 16711680}}");
        row("a colour without alpha", "Physics:laba", property("Color of edge", "255,0,x"),
            "{'ArtObj_Color0': {'Alpha': 1, 'Solid': 16711680}}");
        row("a colour beyond all colours", "Physics:laba", property("Color of edge", "-3e9,-3e9,0,1e-9"),
            "{'ArtObj_Color0': {'Alpha': -11764705.882352941, 'Solid': -196608000000000}}");
        row("an empty colour", "Physics:laba", property("Color of edge", ""), "{'ArtObj_Color0': {}}");
        row("a short colour", "Physics:laba", property("Color of edge", "1,2"), "{'ArtObj_Color0': {}}");
        row("control points in double precision", "Physics:laba", rect("0.1,16777217,"),
            "{'BoundingBox': '1,2,3,4', 'Control': [0.1, 16777217, 0]}");
        row("no control points", "Physics:laba", rect(""), "{'BoundingBox': '1,2,3,4', 'Control': []}");
        row("two keys of one label", "Physics:tutoujing", property("Fill color", "0,0,1"),
            "{'ArtObj_Color0': {'Alpha': 1, 'Solid': 1}, 'ArtObj_Color1': {'Alpha': 1, 'Solid': 1}}");
        row("liquids of a round funnel", "Chemistry:qiuxingfenyeloudou",
            property("Color of underlayer liquid", "0,0,1") + property("Color of liquid", "0,0,1"),
            "{'ArtObj_Color0': {'Alpha': 1, 'Solid': 1}}");
        row("a figure has no control points", "Shape:feiji", rect("1,2"), "BoundingBox=1,2,3,4");
        row("a card's texts", "Chinese:pinyin", rect("1,2") + property("Chinese word", "ma"),
            "BoundingBox=1,2,3,4 ChineseWord=ma Control=1,2 InitBound=1,2,3,4");
        row("a shape without outline", "Vector:juxing", "", "manager=");
    }

    void readsZqtx()
    {
        const auto [type, content, expected] = Table<QString, QString, QJsonObject>::cells();
        QCOMPARE(toText(ownKeys(readZqtx(discipline(type, content)))), toText(expected));
    }

    void writesProperties_data()
    {
        const Table<QJsonObject, QString> row("item", "rows");
        row("the later key of one label", "Type=ZQPhysicsAotoujing ArtObj_Color0=1,2,3 ArtObj_Color1=4,5,6",
            "Fill color=4,5,6");
        row("a key that only the raw form has", "Type=ZQPhysicsDianHe ArtObj_Prop=1 ArtObj_Width=2", "width=2");
        row("renamed common rows",
            "Type=ZQChemistryJiujingdeng ArtObj_LiquidColor=1,2,3 ArtObj_DisplayLiquid=1 ArtObj_Mw=4",
            "Alohol color=1,2,3|With alcohol inside=1|m_x=4");
        row("all common rows taken out", "Type=ZQChemistryJian ArtObj_Type=1 ArtObj_Mh=4", "Type=1");
        row("twenty corners", "Type=ZQShapeYiduiduoshu ArtObj_InterPoint19y=1 ArtObj_InterPoint20x=2 ArtObj_Point3x=3",
            "ArtObj_InterPoint19y=1|Point3x=3");
        row("only texts", "{'Type': 'ZQShapeFeiji', 'ArtObj_Color0': {'Solid': 1, 'Alpha': 1}, 'ArtObj_Fill': '1'}",
            "isFill=1");
    }

    void writesProperties()
    {
        QFETCH(QJsonObject, item);
        const QDomElement element = plugin()->tranItemJSON2ZQTX({}, item);
        QTEST(propertyRows(element), "rows");
    }

    void cardsAreWrittenWithoutTransform()
    {
        const QDomElement card = plugin()->tranItemJSON2ZQTX(
            {}, json("Type=ZQLiteratureYinbiao Angle=1 BoundingBox=0,0,1,1 InitBound=0,0,2,2 Control=5,6"));
        QCOMPARE(toText(card.firstChildElement("transform")), "<transform/>");
        const QDomElement rect = card.firstChildElement("data").firstChildElement();
        QCOMPARE(rect.attribute("points"), "0,0,2,2");
        QCOMPARE(rect.attribute("controlpoints"), "5,6");
        const QDomElement apparatus = plugin()->tranItemJSON2ZQTX({}, json("Type=ZQPhysicsLaBa Angle=1"));
        QCOMPARE(toText(apparatus.firstChildElement("transform")), R"(<transform><rotate angle="1"/></transform>)"_s);
    }

    void placesByInnerMatrix_data()
    {
        const Table<QString, QString, QVector<double>> row("attributes", "sourceRect", "matrix");
        row("flips are on unless they say 0", R"(TransformMatrix="5,5,5,5,5,5")", "0,0,1440,1080",
            {-1, 0, 0, -1, 0, 0});
        row("a quarter turn", R"(ArtInner_HorzFlip="0" ArtInner_VertFlip="0" ArtInner_Rotate="90")", "0,0,1440,1080",
            {0, -1, 1, 0, 0, 0});
        row("one flip, zoom and offset",
            R"(ArtInner_VertFlip="0" ArtInner_Rotate="90" ArtInner_Zoom="2" ArtInner_Zoom_Y="3")"
            R"( ArtInner_CenterPointX="10" ArtInner_CenterPointY="20" ArtInner_OfpX="1" ArtInner_OfpY="2")",
            "0,0,1440,1080", {0, -3, -2, 0, 9, 22});
        row("then fitted to the page",
            R"(ArtInner_HorzFlip="0" ArtInner_VertFlip="0" ArtInner_CenterPointX="100" ArtInner_CenterPointY="50")",
            "0,0,1024,768", {1.40625, 0, 0, 1.40625, 140.625, 70.3125});
    }

    void placesByInnerMatrix()
    {
        const auto [attributes, sourceRect, matrix] = Table<QString, QString, QVector<double>>::cells();
        QJsonObject slide{{"SlideSourceRect", sourceRect}};
        const QJsonObject context{{"slide", slide}};
        for (const char *type : {"ZQVectorJuxing", "ZQShapeFeiji"}) {
            const QString raw = "<%1 %2/>"_s.arg(type, attributes);
            const QJsonObject item = plugin()->tranItemXML2JSON(xml(raw), context);
            const QStringList numbers = item.value("Matrix").toString().split(',');
            QCOMPARE(numbers.size(), matrix.size());
            for (int i = 0; i < matrix.size(); ++i) {
                QVERIFY2(qAbs(numbers.at(i).toDouble() - matrix.at(i)) < 1e-6, qPrintable(numbers.join(',')));
            }
        }
    }

    void readsOutlines_data()
    {
        const Table<QString, QJsonObject> row("paths", "expected");
        row("a path left out and one too many",
            R"(<ArtVectObj_Path0><ArtVectObj_Point0 x0="1" y0="2" x1="3" x2="5" y2="0.1" Type="2"/></ArtVectObj_Path0>)"
            R"(<ArtVectObj_Path2><ArtVectObj_Point0 x0="7" Type="9"/></ArtVectObj_Path2>)"
            R"(<ArtVectObj_Path4><ArtVectObj_Point0 x0="8"/></ArtVectObj_Path4>)",
            "{'VectorControl0': [1, 2, 3, 0, 5, 0.10000000149011612], 'VectorControl2': [7, 0, 0, 0, 0, 0],"
            " 'VectorPathType': 2}");
        row("a point left out, in any order and at any depth",
            R"(<ArtVectObj_Path1><ArtVectObj_Point3 x0="4"/><ArtVectObj_Point1 x0="2"/>)"
            R"(<g><ArtVectObj_Point0 x0="1"/></g><ArtVectObj_Point0 x0="9"/></ArtVectObj_Path1>)",
            "{'VectorControl1': [1, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0]}");
        row("a type that is no number",
            R"(<ArtVectObj_Path0><ArtVectObj_Point0 Type="x"/></ArtVectObj_Path0><ArtVectObj_Path3/>)",
            "{'VectorControl0': [0, 0, 0, 0, 0, 0], 'VectorPathType': 0}");
    }

    void readsOutlines()
    {
        const auto [paths, expected] = Table<QString, QJsonObject>::cells();
        const QString manager = "<ArtVectObj_Manager>%1</ArtVectObj_Manager>"_s.arg(paths);
        for (const QString &text : {"<ZQVectorJuxing><x>%1</x></ZQVectorJuxing>"_s.arg(manager),
                                    discipline("Vector:juxing"_s, "<x>%1</x>"_s.arg(manager))}) {
            const bool raw = text.startsWith("<ZQ");
            const QDomElement element = xml(text);
            const auto read = [raw, &element] {
                return ownKeys(raw ? plugin()->tranItemXML2JSON(element, fittingSlide())
                                   : plugin()->tranItemZQTX2JSON(element, {}));
            };
            QJsonObject item = read();
            const QString taken = item.take("manager").toString();
            QCOMPARE(toText(item), toText(expected));
            QCOMPARE(toText(element.firstChildElement()), "<x/>");
            // The outline is gone from the tree; a second look finds none.
            QCOMPARE(toText(read()), raw ? "{}"_s : R"({"manager":""})"_s);

            const QDomElement written =
                plugin()->tranItemJSON2ZQTX({}, {{"Type", "ZQVectorJuxing"}, {"manager", taken}});
            const QJsonObject again = plugin()->tranItemZQTX2JSON(written, {});
            for (auto it = expected.constBegin(); it != expected.constEnd(); ++it) {
                QCOMPARE(again.value(it.key()), it.value());
            }
        }
    }

    void writesNoBrokenOutline()
    {
        for (const char *manager : {"''", "'<ArtVectObj_Manager><ArtVectObj_Path0>'", "'text'", "{}"}) {
            const QByteArray item = QByteArray("{'Type': 'ZQVectorJuxing', 'manager': ") + manager + '}';
            const QDomElement written = plugin()->tranItemJSON2ZQTX({}, json(item.constData()));
            QCOMPARE(written.lastChildElement().tagName(), "data");
        }
    }
};

QTEST_GUILESS_MAIN(TestSubjects)
#include "tst_subjects.moc"
