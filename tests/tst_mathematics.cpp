#include "pluginfixture.h"

#include <QDomDocument>
#include <QtTest>

namespace {

QDomElement toSvg(const QJsonObject &item)
{
    QDomDocument document;
    return plugin()->tranItemJSON2IWB(document, item);
}

QJsonObject merged(QJsonObject object, const QJsonObject &more)
{
    for (auto it = more.constBegin(); it != more.constEnd(); ++it) {
        object.insert(it.key(), it.value());
    }
    return object;
}

void rowsOfItems()
{
    QTest::addColumn<QJsonObject>("item");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QJsonObject>("attributes");
}

// A row with the type's name in front, without its common part.
void shape(const char *row, const char *type, const char *item, const char *tag, const char *attributes)
{
    QTest::newRow(row) << merged(json(item),
                                 {{QStringLiteral("Type"), QString(QLatin1String("ZQMath2D") + QLatin1String(type))}})
                       << QString::fromLatin1(tag) << json(attributes);
}

int messages = 0;

} // namespace

/*!
 * The mathematics box: raw fix-ups, keys in ZQTX, and the svg shapes. Expected coordinates are worked out by hand from
 * control points and matrix; a matrix a,b,c,d,e,f takes (x, y) to (ax + cy + e, bx + dy + f).
 */
class TestMathematics : public QObject
{
    Q_OBJECT

private slots:
    void fixesRawItems_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QJsonObject>("expected");
        const auto row = [](const char *name, const char *raw, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(raw) << json(expected);
        };
        row("arc without angles", "<ZQMath2DNewArc/>", "{'StartAngle':'0','SweepAngle':'90'}");
        row("arc turns round", "<ZQMath2DNewArc StartAngle='90' SweepAngle='45' CenterPtX='7' CenterPtY='8'/>",
            "{'StartAngle':'270','SweepAngle':'-45','Discipline_xCreate':'7','Discipline_yCreate':'8'}");
        row("arc's six digits: 360 - 0.123456789", "<ZQMath2DNewArc StartAngle='0.123456789' SweepAngle='-1e9'/>",
            "{'StartAngle':'359.877','SweepAngle':'1e+09'}");
        row("arc with words", "<ZQMath2DNewArc StartAngle='abc'/>", "{'StartAngle':'360'}");
        row("triangle without units", "<ZQMath2DGeoTriangle/>", "{'ArtObj_Unit1':'1','ArtObj_Prec1':'1'}");
        row("triangle with units", "<ZQMath2DGeoTriangle ArtObj_Unit1='5' ArtObj_Prec1='3'/>",
            "{'ArtObj_Unit1':'0','ArtObj_Prec1':'3'}");
        row("old unit wins", "<ZQMathToolCoordinateFunct ArtObj_ShowUnit='1' ArtObj_ShowOldUnit='0'/>",
            "{'ArtObj_ShowUnit':'0','ArtObj_ShowOldUnit':'0'}");
        row("no old unit", "<ZQMathToolCoordinateFunct ArtObj_ShowUnit='1'/>", "{'ArtObj_ShowUnit':'1'}");
        row("polar tool has no old unit", "<ZQMathToolCoordinatePolar ArtObj_ShowUnit='1' ArtObj_ShowOldUnit='0'/>",
            "{'ArtObj_ShowUnit':'1','ArtObj_ShowOldUnit':null}");
        row("fill type", "<ZQMath2DCircle ArtObj_Fill='1'><ArtObj_Color r='1' FileType='2'/></ZQMath2DCircle>",
            "{'FillType':'2','ArtObj_Fill':0,'ArtObj_Color':{'Solid':65536,'Alpha':1}}");
        row("fill type of a region",
            "<ZQMath2DPolyline ArtObj_Fill='1'><ArtObj_FillColor FileType=''/></ZQMath2DPolyline>",
            "{'FillTypeF':'','ArtObj_Fill':0}");
        row("no fill type", "<ZQMath2DCircle ArtObj_Fill='1'/>", "{'ArtObj_Fill':'1','BoundingBox':null}");
    }

    void fixesRawItems()
    {
        QFETCH(QString, raw);
        QFETCH(QJsonObject, expected);
        QCOMPARE(differences(plugin()->tranItemXML2JSON(xml(raw), {}), expected), QString());
    }

    // One key a type whose label differs from its neighbours'.
    void writesLabelledProperties_data()
    {
        QTest::addColumn<QString>("txType");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("label");
        const auto row = [](const char *type, const char *txType, const char *key, const char *label) {
            QTest::addRow("%s %s", type, key)
                << QString::fromLatin1(txType) << QString::fromLatin1(key) << QString::fromLatin1(label);
        };
        row("ZQMath2DDot", "Math:2ddot", "ArtObj_Color", "Color");
        row("ZQMath2DCircle", "Math:2dcircle", "ArtObj_Color", "Fill color");
        row("ZQMath2DCircle", "Math:2dcircle", "ArtObj_Width", "ArtObj_Width");
        row("ZQMath2DAngle", "Math:2dangle", "ArtObj_Color", "Color of edge");
        row("ZQMath2DGeoSegment", "Math:2dgeosegment", "ArtObj_Width", "width");
        row("ZQMath2DGeoTriangle", "Math:2dgeotriangle", "ArtObj_Display", "Show diatance");
        row("ZQMath2DNewArc", "Math:2dnewarc", "Discipline_xCreate", "CenterPtX");
        row("ZQMath2DNormalHeptagon", "Math:2dnormalheptagon", "ArtObj_Ln", "Obj_Ln");
        row("ZQMath2DPolyline", "Polygon", "ArtObj_FillColor", "Fill color");
        row("ZQMath2DRhombus", "ZQMath2DRhombus", "LineColor", "Color");
        row("ZQMathToolCoordinateFunct", "ZQMathToolCoordinateFunct", "ArtObj_FuncVector", "ArtObj_FuncVector");
        row("ZQMath3DCube", "ZQMath3DCube", "ArtObj_Mode", "ArtObj_Mode");
    }

    void writesLabelledProperties()
    {
        QFETCH(QString, txType);
        QFETCH(QString, key);
        QFETCH(QString, label);
        const QString type = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
        const QDomElement element =
            plugin()->tranItemJSON2ZQTX({}, {{QStringLiteral("Type"), type}, {key, QStringLiteral("7")}});
        QCOMPARE(element.attribute(QStringLiteral("type")), txType);
        const QDomElement row = element.firstChildElement(QStringLiteral("properties")).firstChildElement();
        QCOMPARE(attributesOf(row),
                 (QJsonObject{{QStringLiteral("name"), label}, {QStringLiteral("value"), QStringLiteral("7")}}));

        const QJsonObject back = plugin()->tranItemZQTX2JSON(element, {});
        QCOMPARE(back.value(QLatin1String("Type")).toString(), type);
        QVERIFY(back.contains(key));
    }

    void leavesOtherTypesAlone_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : {"ZQMath2DNormalShape", "ZQMathToolCoordinateItem", "Math:toolcoordinatefunct",
                                 "Math:2dnormalshape", "zqmath2dcircle"}) {
            QTest::newRow(type) << QString::fromLatin1(type);
        }
    }

    void leavesOtherTypesAlone()
    {
        QFETCH(QString, type);
        QVERIFY(plugin()->tranItemJSON2ZQTX({}, {{QStringLiteral("Type"), type}}).isNull());
        QVERIFY(toSvg({{QStringLiteral("Type"), type}}).isNull());
    }

    void placesShapes_data()
    {
        rowsOfItems();
        shape("segment as it is", "Segment", "{'Control':'10,20,30,40'}", "svg:line",
              "{'x1':'10','y1':'20','x2':'30','y2':'40'}");
        shape("segment doubled and moved by 5", "Segment", "{'Control':'10,20,30,40','Matrix':'2,0,0,2,5,5'}",
              "svg:line", "{'x1':'25','y1':'45','x2':'65','y2':'85'}");
        shape("segment turned: (100 - y, x)", "SegmentWith1Arrow",
              "{'Control':'10,20,30,40,9','Matrix':'0,1,-1,0,100,0'}", "svg:line",
              "{'x1':'80','y1':'10','x2':'60','y2':'30'}");
        shape("segment of three numbers", "Segment", "{'Control':'10,20,30'}", "svg:line",
              "{'x1':null,'y2':null,'stroke-lineshape-start':'circle'}");
        shape("segment's control as an array", "Segment", "{'Control':[1,2,3,4]}", "svg:line", "{'x1':null}");
        shape("segment with a short matrix", "Segment", "{'Control':'1,2,3,4','Matrix':'1,0,0,1,0'}", "svg:line",
              "{'x1':null}");
        shape("geometric segment", "GeoSegment", "{'Control':'1,2,3,4'}", "svg:line", "{'x1':'1','y2':'4'}");

        shape("circle, default rim", "Circle", "{'Matrix':'1,0,0,1,10,20'}", "svg:circle",
              "{'cx':'10','cy':'20','r':'50'}");
        shape("circle, doubled rim", "Circle", "{'Matrix':'2,0,0,2,0,0'}", "svg:circle",
              "{'cx':'0','cy':'0','r':'100'}");
        shape("circle, 3-4-5", "Circle", "{'Control':'3,4','Matrix':'1,0,0,1,7,7'}", "svg:circle",
              "{'cx':'7','r':'5'}");
        shape("circle stretched along its rim point: sqrt(36 + 16)", "Circle",
              "{'Control':'3,4','Matrix':'2,0,0,1,0,0'}", "svg:circle", "{'r':'7.2111'}");
        shape("circle with half a rim point", "Circle", "{'Control':'3'}", "svg:circle", "{'r':'50'}");
        shape("circle with a short matrix", "Circle", "{'Matrix':'2,0,0,2'}", "svg:circle", "{'cx':null,'r':null}");
        shape("ellipse, default rims", "Ellipse", "{}", "svg:ellipse", "{'rx':'100','ry':'100'}");
        shape("ellipse, one rim", "Ellipse", "{'Control':'30,0'}", "svg:ellipse", "{'rx':'30','ry':'100'}");
        shape("ellipse, two rims: 2 x 30 and 3 x 7", "Ellipse", "{'Control':'30,0,0,7','Matrix':'2,0,0,3,1,2'}",
              "svg:ellipse", "{'cx':'1','cy':'2','rx':'60','ry':'21'}");

        shape("triangle closes", "Triangle", "{'Control':'0,0,10,0,0,10','Matrix':'1,0,0,1,1,2'}", "svg:polyline",
              "{'points':'1,2,11,2,1,12,1,2'}");
        shape("triangle of two points", "Triangle", "{'Control':'0,0,10,0'}", "svg:polyline", "{'points':null}");
        shape("quadrangle with a number left over", "Quadrangle", "{'Control':'1,2,3,4,5,6,7,8,9'}", "svg:polyline",
              "{'points':'1,2,3,4,5,6,7,8,1,2'}");
        shape("geometric triangle", "GeoTriangle", "{'Control':'1,2,3,4,5,6'}", "svg:polyline",
              "{'points':'1,2,3,4,5,6,1,2'}");
        shape("flat parallelogram", "Parallelogram", "{'Control':'0,0,0,-30,0,30'}", "svg:polyline",
              "{'points':'0,30,0,-30,0,-30,0,30,0,30'}");
        // b = 30 x 1.33333 = 39.9999, in single precision 39.9999008, so that half of it rounds to 20.
        shape("parallelogram 30 high", "Parallelogram", "{'Control':'0,30,0,-30,0,30'}", "svg:polyline",
              "{'points':'0,30,-20,-30,20,-30,39.9999,30,0,30'}");
        // The middle of (-8, -50) and (8, 50) is (0, 0); h = |(36, 48)| = 60, b = 79.9998.
        shape("leaning parallelogram", "Parallelogram", "{'Control':'36,48,-8,-50,8,50'}", "svg:polyline",
              "{'points':'8,50,-47.9999,-50,31.9999,-50,87.9998,50,8,50'}");

        shape("polyline stays open, less its last character", "Polyline", "{'XYValue':'1,2,3,4,'}", "svg:polyline",
              "{'points':'1,2,3,4'}");
        shape("polyline loses a digit", "Polyline", "{'XYValue':'1,2,3,40'}", "svg:polyline", "{'points':'1,2,3,4'}");
        shape("polyline with a number left over", "Polyline", "{'XYValue':'1,2,3,'}", "svg:polyline",
              "{'points':'1,2'}");
        shape("polyline of one number", "Polyline", "{'XYValue':'5,'}", "svg:polyline", "{'points':null}");
        shape("polyline as an array", "Polyline", "{'XYValue':[1,2]}", "svg:polyline", "{'points':null}");
        shape("angle ends in the origin", "Angle", "{'Control':'10,0,0,10','Matrix':'1,0,0,1,5,6'}", "svg:polyline",
              "{'points':'15,6,5,16,5,6'}");
        shape("angle of six numbers", "Angle", "{'Control':'1,2,3,4,5,6'}", "svg:polyline", "{'points':null}");

        // Corner i lies at 99.4786 (cos t, -sin t), t = 360 - 30.1735 + i x step.
        shape("three corners", "NormalTrilateral", "{'ArtObj_Ln':'3'}", "svg:polyline",
              "{'points':'86,50,0.301284,-99.4782,-86.3013,49.4782,86,50'}");
        shape("four corners", "NormalQuadrilateral", "{'ArtObj_Ln':'4'}", "svg:polyline",
              "{'points':'70,70,70,-70,-70,-70,-70,70,70,70'}");
        shape("five corners", "NormalPentagon", "{'ArtObj_Ln':'5'}", "svg:polyline",
              "{'points':'86,50,74.1283,-66.34,-40.1862,-91.0004,-98.9647,10.0987,-20.9774,97.2417,86,50'}");
        // 51 whole degrees a step
        shape("seven corners", "NormalHeptagon", "{'ArtObj_Ln':'7'}", "svg:polyline",
              "{'points':'86,50,92.9789,-35.3685,31.027,-94.5163,-53.927,-83.5935,-98.9017,-10.6979,-70.5547,70.1287,"
              "10.0987,98.9647,86,50'}");
        shape("no corners told", "NormalOctagon", "{}", "svg:polyline", "{'points':''}");
        shape("a negative number of corners", "NormalOctagon", "{'ArtObj_Ln':'-3'}", "svg:polyline", "{'points':''}");
        shape("a stalling number of corners", "NormalOctagon", "{'ArtObj_Ln':'10001'}", "svg:polyline",
              "{'points':''}");

        shape("rectangle without a turn", "Rectangle",
              "{'Control':'30,0,0,40','Matrix':'1,0,0,1,10,20','BoundingBox':'0,0,30,40','Angle':'0'}", "svg:rect",
              "{'x':'10','y':'20','width':'30','height':'40','transform':'rotate(0,25,40)'}");
        // The centre of the mapped box is (25, 40). Turned back by 90 degrees about it, (x, y) is (y - 15, 65 - x):
        // (30, 0) and (0, 40) become (-15, 35) and (25, 65), and the matrix adds (10, 20).
        shape("rectangle with a quarter turn", "Rectangle",
              "{'Control':'30,0,0,40','Matrix':'1,0,0,1,10,20','BoundingBox':'0,0,30,40','Angle':'1.570795'}",
              "svg:rect", "{'x':'-5','y':'55','width':'40','height':'30','transform':'rotate(1.570795,25,40)'}");
        shape("rectangle without a matrix", "Rectangle", "{'Control':'1,2,11,22'}", "svg:rect",
              "{'x':'1','y':'2','width':'10','height':'20'}");
        shape("rectangle without corners", "Rectangle", "{'Matrix':'1,0,0,1,0,0','BoundingBox':'1,2,4,8'}", "svg:rect",
              "{'x':'1','y':'2','width':'3','height':'6'}");
        shape("rectangle with a short box", "Rectangle",
              "{'Control':'1,2,3,4','Matrix':'1,0,0,1,0,0','BoundingBox':'1,2,4'}", "svg:rect",
              "{'x':null,'width':null}");
        shape("rectangle under a flat matrix", "Rectangle",
              "{'Control':'1,2,3,4','Matrix':'0,0,0,0,6,7','BoundingBox':'0,0,1,1','Angle':'0'}", "svg:rect",
              "{'x':'6','y':'7','width':'0','height':'0'}");
    }

    void placesShapes()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QString, tag);
        QFETCH(QJsonObject, attributes);
        const QDomElement element = toSvg(item);
        QCOMPARE(element.tagName(), tag);
        QCOMPARE(differences(attributesOf(element), attributes), QString());
    }

    void paintsShapes_data()
    {
        rowsOfItems();
        const char *line = "svg:line";
        const char *polyline = "svg:polyline";
        const char *circle = "svg:circle";
        shape("stroke cut", "Circle", "{'LineColor':'255,10,20,30'}", circle, "{'stroke':'rgb(10,20,30)'}");
        shape("stroke cut with half an alpha", "Ellipse", "{'LineColor':'128,10,20,30'}", "svg:ellipse",
              "{'stroke':'rgb(10,20,30)'}");
        shape("cut takes four characters", "Rectangle", "{'LineColor':'99,10,20,30'}", "svg:rect",
              "{'stroke':'rgb(0,20,30)'}");
        shape("stroke kept", "Angle", "{'LineColor':'255,10,20,30'}", polyline, "{'stroke':'rgb(255,10,20,30)'}");
        shape("stroke of a regular polygon", "NormalHexagon", "{'LineColor':'1,2,3'}", polyline,
              "{'stroke':'rgb(1,2,3)'}");
        shape("stroke of a polyline", "Polyline", "{'ArtObj_Color':'1,2,3','LineColor':'9,9,9'}", polyline,
              "{'stroke':'rgb(1,2,3)','fill':null}");
        shape("stroke of a geometric triangle", "GeoTriangle", "{'ArtObj_Color1':'255,1,2,3','LineColor':'9,9,9'}",
              polyline, "{'stroke':'rgb(1,2,3)'}");
        shape("stroke of a segment", "Segment", "{'ArtObj_Color1':'255,1,2,3'}", line, "{'stroke':'rgb(255,1,2,3)'}");
        shape("stroke missing", "Triangle", "{}", polyline, "{'stroke':'rgb(0,0,0)'}");
        shape("stroke as an object", "Quadrangle", "{'LineColor':{'Solid':255,'Alpha':1}}", polyline,
              "{'stroke':'rgb(0,0,0)'}");

        shape("fill with alpha", "Circle", "{'ArtObj_Color':'128,1,2,3','ArtObj_Fill':'1'}", circle,
              "{'fill':'rgb(1,2,3)','stroke-opacity':'128'}");
        shape("fill without alpha", "Circle", "{'ArtObj_Color':'1,2,3'}", circle,
              "{'fill':'rgb(1,2,3)','stroke-opacity':'255'}");
        shape("hollow by its flag", "Parallelogram", "{'ArtObj_Color':'128,1,2,3','ArtObj_Fill':'0'}", polyline,
              "{'fill':null,'stroke-opacity':null}");
        shape("a number is no flag", "Circle", "{'ArtObj_Color':'1,2,3','ArtObj_Fill':0}", circle,
              "{'fill':'rgb(1,2,3)'}");
        shape("triangles know no flag", "Triangle", "{'ArtObj_Color':'128,1,2,3','ArtObj_Fill':'0'}", polyline,
              "{'fill':'rgb(1,2,3)','stroke-opacity':'128'}");
        shape("fill of a polyline", "Polyline", "{'ArtObj_FillColor':'7,1,2,3'}", polyline,
              "{'fill':'rgb(1,2,3)','stroke-opacity':'7'}");
        shape("fill of two parts", "Circle", "{'ArtObj_Color':'1,2'}", circle,
              "{'fill':'rgb(0,0,0)','stroke-opacity':'255'}");
        shape("fill as an object", "Circle", "{'ArtObj_Color':{}}", circle, "{'fill':null,'stroke-opacity':null}");
        shape("angles have no fill", "Angle", "{'ArtObj_Color':'1,2,3'}", polyline, "{'fill':null}");

        shape("dash: 5 x 3 twice", "Circle", "{'ArtObj_Mode':'2','ArtObj_Width':'3'}", circle,
              "{'stroke-dasharray':'15,15','stroke-width':'3'}");
        shape("dash dot of the width 2", "Circle", "{'ArtObj_Mode':'3'}", circle,
              "{'stroke-dasharray':'20,4,20','stroke-width':null}");
        shape("dash dot dot", "Triangle", "{'ArtObj_Mode':'1'}", polyline, "{'stroke-dasharray':'20,4,4,4'}");
        shape("solid", "Triangle", "{'ArtObj_Mode':'0'}", polyline, "{'stroke-dasharray':null}");
        shape("unknown style", "Triangle", "{'ArtObj_Mode':'4'}", polyline, "{'stroke-dasharray':null}");
        shape("a segment's style", "Segment", "{'ArtObj_Style':'2','ArtObj_Mode':'3'}", line,
              "{'stroke-dasharray':'10,10'}");
        shape("a width that is no integer", "Circle", "{'ArtObj_Mode':'2','ArtObj_Width':'2.5'}", circle,
              "{'stroke-dasharray':'0,0','stroke-width':'2.5'}");

        shape("no arrow", "SegmentWith2Arrow", "{}", line,
              "{'stroke-lineshape-start':'circle','stroke-lineshape-end':'circle'}");
        shape("arrow at the start", "Segment", "{'ArtObj_ArrowType':'1'}", line,
              "{'stroke-lineshape-start':'arrow','stroke-lineshape-end':null}");
        shape("two arrows", "Segment", "{'ArtObj_ArrowType':'2'}", line,
              "{'stroke-lineshape-start':'arrow','stroke-lineshape-end':'arrow'}");
        shape("unknown arrows", "Segment", "{'ArtObj_ArrowType':'3'}", line,
              "{'stroke-lineshape-start':null,'stroke-lineshape-end':null}");
        shape("a geometric segment has none", "GeoSegment", "{'ArtObj_ArrowType':'2'}", line,
              "{'stroke-lineshape-start':'circle','stroke-lineshape-end':'circle'}");
    }

    void paintsShapes() { placesShapes(); }

    void givesNoShape_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : {"ZQMath2DDot", "ZQMath2DNewArc", "ZQMath2DTrapezoid", "ZQMath2DRhombus",
                                 "ZQMath2DPentagon", "ZQMath3DCube", "ZQMathToolCoordinatePolar", "Math:2dcircle"}) {
            QTest::newRow(type) << QString::fromLatin1(type);
        }
    }

    void givesNoShape()
    {
        QFETCH(QString, type);
        QVERIFY(toSvg({{QStringLiteral("Type"), type}, {QStringLiteral("Control"), QStringLiteral("1,2,3,4,5,6")}})
                    .isNull());
    }

    void readsShapes_data()
    {
        QTest::addColumn<QString>("svg");
        QTest::addColumn<QJsonObject>("expected");
        const auto row = [](const char *name, const char *svg, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(svg) << json(expected);
        };
        row("circle: rim at 10 + 2.5",
            "<svg:circle id='5' cx='10' cy='20' r='2.5' stroke='rgb(1,2,3)' stroke-width='4' fill='rgb(7,8,9)' "
            "stroke-opacity='255' stroke-dasharray='1,2,3,4'/>",
            "{'Type':'ZQMath2DCircle','Discipline_xCreate':'10','Discipline_yCreate':'20','Control':'12.5,20',"
            "'LineColor':'1,2,3','ArtObj_Width':'4','ArtObj_Color':'255,7,8,9','ArtObj_Fill':'1','ArtObj_Mode':'1',"
            "'ID':null,'Matrix':null}");
        row("circle without opacity", "<svg:circle fill='rgb(7,8,9)'/>",
            "{'ArtObj_Color':'7,8,9','ArtObj_Fill':null,'LineColor':'','ArtObj_Width':'','ArtObj_Mode':'0',"
            "'Control':'0,','Discipline_xCreate':''}");
        row("circle with opacity 0", "<svg:circle fill='rgb(7,8,9)' stroke-opacity='0'/>",
            "{'ArtObj_Color':'0,7,8,9','ArtObj_Fill':null}");
        row("ellipse: rims at 10 + 30 and 20 + 40", "<svg:ellipse cx='10' cy='20' rx='30' ry='40'/>",
            "{'Type':'ZQMath2DEllipse','Discipline_xCreate':'10','Control':'40,20,10,60'}");
        row("line", "<svg:line x1='1' y1='2.50' x2='3' stroke='rgb(1,2,3)' fill='red' stroke-dasharray='5,5'/>",
            "{'Type':'ZQMath2DSegment','ArtObj_ArrowType':'0','Control':'1,2.50,3,','ArtObj_Color1':'1,2,3',"
            "'ArtObj_Style':'2','ArtObj_Color':null,'ArtObj_Mode':null}");
        row("line from a circle", "<svg:line stroke-lineshape-start='circle' stroke-lineshape-end='circle'/>",
            "{'Type':'ZQMath2DSegment','ArtObj_ArrowType':'0'}");
        row("line with an arrow", "<svg:line stroke-lineshape-start='arrow'/>",
            "{'Type':'ZQMath2DSegmentWith1Arrow','ArtObj_ArrowType':'1'}");
        row("line with two arrows", "<svg:line stroke-lineshape-start='arrow' stroke-lineshape-end='arrow'/>",
            "{'Type':'ZQMath2DSegmentWith2Arrow','ArtObj_ArrowType':'2'}");
        row("line that ends in an arrow", "<svg:line x1='1' stroke-lineshape-end='arrow'/>",
            "{'Type':null,'ArtObj_ArrowType':null,'Control':'1,,,'}");
        row("angle", "<svg:polyline points='1,2.50,3,4,5.0,6' stroke='rgb(1,2,3)' stroke-dasharray='1,2,3'/>",
            "{'Type':'ZQMath2DAngle','Control':'1,2.5,3,4','Discipline_xCreate':'5','Discipline_yCreate':'6',"
            "'LineColor':'1,2,3','ArtObj_Mode':'3','ArtObj_Color':null}");
        row("polyline", "<svg:polyline points='1,2,3,40' stroke='rgb(1,2,3)' stroke-opacity='9' fill='(4)'/>",
            "{'Type':'ZQMath2DPolyline','XYValue':'1,2,3,40','ArtObj_Color':'1,2,3','ArtObj_FillColor':'9,4',"
            "'ArtObj_Fill':'1'}");
        row("polyline without points", "<svg:polyline/>", "{'Type':'ZQMath2DPolyline','XYValue':''}");
        row("five dashes are none", "<svg:polyline stroke-dasharray='1,2,3,4,5'/>", "{'ArtObj_Mode':'0'}");
        row("rectangle",
            "<svg:rect id='5' x='10' y='20' width='30' height='40' transform='rotate(0,25,40)' visible='1'/>",
            "{'Type':'ZQMath2DRectangle','ID':'5','Matrix':'1,0,0,1,10,20','Control':'30,0,0,40','Angle':'0',"
            "'BoundingBox_IWB_RECT':'0,0,30,40','x':'10','width':'30','Width':'30','Visible':'1','BoundingBox':null}");
        // (x, y) moved by (10, 20) and turned by 90 degrees about (25, 40): (25 - (y - 20), 40 + (x - 15))
        row("rectangle with a quarter turn",
            "<svg:rect x='10' y='20' width='30' height='40' transform='rotate(1.570795,25,40)'/>",
            "{'Matrix':'0,1,-1,0,45,25','Angle':'1.570795'}");
        row("rectangle with another transform", "<svg:rect x='10' width='-0' transform='translate(3,4)'/>",
            "{'Matrix':'1,0,0,1,10,0','Control':'0,0,0,0','Angle':null}");
        row("polygons are no items", "<svg:polygon points='1,2,3,4,5,6'/>", "{'Type':null,'known':'before'}");
    }

    void readsShapes()
    {
        QFETCH(QString, svg);
        QFETCH(QJsonObject, expected);
        const QJsonObject item = plugin()->tranItemIWB2JSON(xml(svg), json("{'known':'before'}"));
        QCOMPARE(item.value(QLatin1String("known")), QJsonValue(QStringLiteral("before")));
        QCOMPARE(differences(item, expected), QString());
    }

    // Out and in and out again; more is what the host adds in between.
    void comesOutTheSame_data()
    {
        QTest::addColumn<QString>("svg");
        QTest::addColumn<QJsonObject>("more");
        QTest::newRow("line") << "<svg:line x1='1' y1='2' x2='3.5' y2='4' stroke='rgb(1,2,3)' stroke-width='3' "
                                 "stroke-dasharray='15,15' stroke-lineshape-start='arrow' "
                                 "stroke-lineshape-end='arrow'/>"
                              << QJsonObject();
        QTest::newRow("angle") << "<svg:polyline points='10,0,0,10,0,0' stroke='rgb(1,2,3)' stroke-width='3'/>"
                               << QJsonObject();
        QTest::newRow("rectangle") << "<svg:rect x='10' y='20' width='30' height='40' transform='rotate(0,25,40)' "
                                      "stroke='rgb(1,2,3)' stroke-width='2' fill='rgb(4,5,6)' stroke-opacity='200'/>"
                                   << json("{'BoundingBox':'0,0,30,40','LineColor':'255,1,2,3'}");
        QTest::newRow("polyline") << "<svg:polyline points='1,2,3,4,5,6,70,80' stroke='rgb(1,2,3)' stroke-width='1' "
                                     "fill='rgb(4,5,6)' stroke-opacity='255' stroke-dasharray='10,2,2,2'/>"
                                  << json("{'XYValue':'1,2,3,4,5,6,70,80,'}");
    }

    void comesOutTheSame()
    {
        QFETCH(QString, svg);
        QFETCH(QJsonObject, more);
        const QDomElement before = xml(svg);
        const QDomElement after = toSvg(merged(plugin()->tranItemIWB2JSON(before, {}), more));
        QCOMPARE(after.tagName(), before.tagName());
        QCOMPARE(toText(attributesOf(after)), toText(attributesOf(before)));
    }

    // Whatever the numbers are, there is a shape and not a word on the log.
    void bearsAnyNumbers()
    {
        messages = 0;
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
        for (const char *type : {"Segment", "GeoSegment", "Angle", "Polyline", "NormalOctagon", "Circle", "Ellipse",
                                 "Rectangle", "Triangle", "GeoTriangle", "Quadrangle", "Parallelogram"}) {
            for (const char *numbers :
                 {"", ",", ",,,,,,,,", "nan,inf,-inf,nan,inf,1e308,1e999,x", "999,-1,256,70000", "1,2,3,4,5"}) {
                const QString text = QString::fromLatin1(numbers);
                QJsonObject item;
                for (const char *key : {"Matrix", "BoundingBox", "Control", "XYValue", "Angle", "LineColor",
                                        "ArtObj_Color", "ArtObj_Color1", "ArtObj_FillColor", "ArtObj_Width"}) {
                    item.insert(QLatin1String(key), text);
                }
                item.insert(QStringLiteral("ArtObj_Ln"), QStringLiteral("8"));
                item.insert(QStringLiteral("ArtObj_Mode"), QStringLiteral("2"));
                item.insert(QStringLiteral("Type"), QString(QLatin1String("ZQMath2D") + QLatin1String(type)));
                const QDomElement element = toSvg(item);
                QVERIFY(!element.isNull());
                plugin()->tranItemIWB2JSON(element, {});
            }
        }
        qInstallMessageHandler(before);
        QCOMPARE(messages, 0);
    }
};

QTEST_GUILESS_MAIN(TestMathematics)
#include "tst_mathematics.moc"
