// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QDomDocument>
#include <QtTest>

namespace {

// A row of an item, without the common part of its type's name. The tag is expected among the attributes.
void shape(const char *row, const char *type, const char *item, const char *expected)
{
    QJsonObject whole = json(item);
    whole.insert("Type", QString("ZQMath2D"_s + type));
    QTest::newRow(row) << whole << json(expected);
}

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
        const Table<QString, QJsonObject> row("raw", "expected");
        row("arc without angles", "<ZQMath2DNewArc/>", "StartAngle=0 SweepAngle=90");
        row("arc turns round", "<ZQMath2DNewArc StartAngle='90' SweepAngle='45' CenterPtX='7' CenterPtY='8'/>",
            "StartAngle=270 SweepAngle=-45 Discipline_xCreate=7 Discipline_yCreate=8");
        row("arc's six digits: 360 - 0.123456789", "<ZQMath2DNewArc StartAngle='0.123456789' SweepAngle='-1e9'/>",
            "StartAngle=359.877 SweepAngle=1e+09");
        row("arc with words", "<ZQMath2DNewArc StartAngle='abc'/>", "StartAngle=360");
        row("triangle without units", "<ZQMath2DGeoTriangle/>", "ArtObj_Unit1=1 ArtObj_Prec1=1");
        row("triangle with units", "<ZQMath2DGeoTriangle ArtObj_Unit1='5' ArtObj_Prec1='3'/>",
            "ArtObj_Unit1=0 ArtObj_Prec1=3");
        row("old unit wins", "<ZQMathToolCoordinateFunct ArtObj_ShowUnit='1' ArtObj_ShowOldUnit='0'/>",
            "ArtObj_ShowUnit=0 ArtObj_ShowOldUnit=0");
        row("no old unit", "<ZQMathToolCoordinateFunct ArtObj_ShowUnit='1'/>", "ArtObj_ShowUnit=1");
        row("polar tool has no old unit", "<ZQMathToolCoordinatePolar ArtObj_ShowUnit='1' ArtObj_ShowOldUnit='0'/>",
            "ArtObj_ShowUnit=1 ArtObj_ShowOldUnit=null");
        row("fill type", "<ZQMath2DCircle ArtObj_Fill='1'><ArtObj_Color r='1' FileType='2'/></ZQMath2DCircle>",
            "{'FillType':'2','ArtObj_Fill':0,'ArtObj_Color':{'Solid':65536,'Alpha':1}}");
        row("fill type of a region",
            "<ZQMath2DPolyline ArtObj_Fill='1'><ArtObj_FillColor FileType=''/></ZQMath2DPolyline>",
            "{'FillTypeF':'','ArtObj_Fill':0}");
        row("no fill type", "<ZQMath2DCircle ArtObj_Fill='1'/>", "ArtObj_Fill=1 BoundingBox=null");
    }

    void fixesRawItems()
    {
        const auto [raw, expected] = Table<QString, QJsonObject>::cells();
        QCOMPARE(differences(plugin()->tranItemXML2JSON(xml(raw), {}), expected), QString());
    }

    // One key a type whose label differs from its neighbours'.
    void writesLabelledProperties_data()
    {
        QTest::addColumn<QString>("txType");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("label");
        const auto row = [](const char *type, const char *txType, const char *key, const char *label) {
            QTest::addRow("%s %s", type, key) << txType << key << label;
        };
        row("ZQMath2DCircle", "Math:2dcircle", "ArtObj_Color", "Fill color");
        row("ZQMath2DAngle", "Math:2dangle", "ArtObj_Color", "Color of edge");
        row("ZQMath2DNewArc", "Math:2dnewarc", "Discipline_xCreate", "CenterPtX");
        row("ZQMath2DPolyline", "Polygon", "ArtObj_FillColor", "Fill color");
        row("ZQMath2DRhombus", "ZQMath2DRhombus", "LineColor", "Color");
        row("ZQMathToolCoordinateFunct", "ZQMathToolCoordinateFunct", "ArtObj_FuncVector", "ArtObj_FuncVector");
    }

    void writesLabelledProperties()
    {
        QFETCH(QString, key);
        QFETCH(QString, label);
        const QString type = QString(QTest::currentDataTag()).section(' ', 0, 0);
        const QDomElement element = plugin()->tranItemJSON2ZQTX({}, {{"Type", type}, {key, "7"}});
        QTEST(element.attribute("type"), "txType");
        const QDomElement row = element.firstChildElement("properties").firstChildElement();
        QCOMPARE(attributesOf(row), (QJsonObject{{"name", label}, {"value", "7"}}));

        const QJsonObject back = plugin()->tranItemZQTX2JSON(element, {});
        QCOMPARE(back.value("Type").toString(), type);
        QVERIFY(back.contains(key));
    }

    void placesShapes_data()
    {
        QTest::addColumn<QJsonObject>("item");
        QTest::addColumn<QJsonObject>("expected");
        shape("segment doubled and moved by 5", "Segment", "Control=10,20,30,40 Matrix=2,0,0,2,5,5",
              "tag=svg:line x1=25 y1=45 x2=65 y2=85");
        shape("segment turned: (100 - y, x)", "SegmentWith1Arrow", "Control=10,20,30,40,9 Matrix=0,1,-1,0,100,0",
              "x1=80 y1=10 x2=60 y2=30");
        shape("segment of three numbers", "Segment", "Control=10,20,30",
              "x1=null y2=null stroke-lineshape-start=circle");
        shape("segment's control as an array", "Segment", "{'Control':[1,2,3,4]}", "x1=null");
        shape("segment with a short matrix", "Segment", "Control=1,2,3,4 Matrix=1,0,0,1,0", "x1=null");

        shape("circle, default rim", "Circle", "Matrix=1,0,0,1,10,20", "tag=svg:circle cx=10 cy=20 r=50");
        shape("circle, 3-4-5", "Circle", "Control=3,4 Matrix=1,0,0,1,7,7", "cx=7 r=5");
        shape("circle stretched along its rim point: sqrt(36 + 16)", "Circle", "Control=3,4 Matrix=2,0,0,1,0,0",
              "r=7.2111");
        shape("circle with half a rim point", "Circle", "Control=3", "r=50");
        shape("circle with a short matrix", "Circle", "Matrix=2,0,0,2", "cx=null r=null");
        shape("ellipse, one rim", "Ellipse", "Control=30,0", "tag=svg:ellipse rx=30 ry=100");
        shape("ellipse, two rims: 2 x 30 and 3 x 7", "Ellipse", "Control=30,0,0,7 Matrix=2,0,0,3,1,2",
              "cx=1 cy=2 rx=60 ry=21");

        shape("triangle closes", "Triangle", "Control=0,0,10,0,0,10 Matrix=1,0,0,1,1,2",
              "tag=svg:polyline points=1,2,11,2,1,12,1,2");
        shape("quadrangle with a number left over", "Quadrangle", "Control=1,2,3,4,5,6,7,8,9",
              "points=1,2,3,4,5,6,7,8,1,2");
        shape("flat parallelogram", "Parallelogram", "Control=0,0,0,-30,0,30", "points=0,30,0,-30,0,-30,0,30,0,30");
        // b = 30 x 1.33333 = 39.9999, in single precision 39.9999008, so that half of it rounds to 20.
        shape("parallelogram 30 high", "Parallelogram", "Control=0,30,0,-30,0,30",
              "points=0,30,-20,-30,20,-30,39.9999,30,0,30");
        // The middle of (-8, -50) and (8, 50) is (0, 0); h = |(36, 48)| = 60, b = 79.9998.
        shape("leaning parallelogram", "Parallelogram", "Control=36,48,-8,-50,8,50",
              "points=8,50,-47.9999,-50,31.9999,-50,87.9998,50,8,50");

        shape("polyline stays open, less its last character", "Polyline", "XYValue=1,2,3,4,", "points=1,2,3,4");
        shape("polyline loses a digit", "Polyline", "XYValue=1,2,3,40", "points=1,2,3,4");
        shape("polyline with a number left over", "Polyline", "XYValue=1,2,3,", "points=1,2");
        shape("polyline as an array", "Polyline", "{'XYValue':[1,2]}", "points=null");
        shape("angle ends in the origin", "Angle", "Control=10,0,0,10 Matrix=1,0,0,1,5,6", "points=15,6,5,16,5,6");
        shape("angle of six numbers", "Angle", "Control=1,2,3,4,5,6", "points=null");

        // Corner i lies at 99.4786 (cos t, -sin t), t = 360 - 30.1735 + i x step.
        shape("three corners", "NormalTrilateral", "ArtObj_Ln=3",
              "points=86,50,0.301284,-99.4782,-86.3013,49.4782,86,50");
        shape("four corners", "NormalQuadrilateral", "ArtObj_Ln=4", "points=70,70,70,-70,-70,-70,-70,70,70,70");
        // 51 whole degrees a step
        shape("seven corners", "NormalHeptagon", "ArtObj_Ln=7",
              "points=86,50,92.9789,-35.3685,31.027,-94.5163,-53.927,-83.5935,-98.9017,-10.6979,-70.5547,70.1287,10."
              "0987,98.9647,86,50");
        shape("no corners told", "NormalOctagon", "{}", "points=");
        shape("a negative number of corners", "NormalOctagon", "ArtObj_Ln=-3", "points=");
        shape("a stalling number of corners", "NormalOctagon", "ArtObj_Ln=10001", "points=");

        shape("rectangle without a turn", "Rectangle",
              "Control=30,0,0,40 Matrix=1,0,0,1,10,20 BoundingBox=0,0,30,40 Angle=0",
              "tag=svg:rect x=10 y=20 width=30 height=40 transform=rotate(0,25,40)");
        // The centre of the mapped box is (25, 40). Turned back by 90 degrees about it, (x, y) is (y - 15, 65 - x):
        // (30, 0) and (0, 40) become (-15, 35) and (25, 65), and the matrix adds (10, 20).
        shape("rectangle with a quarter turn", "Rectangle",
              "Control=30,0,0,40 Matrix=1,0,0,1,10,20 BoundingBox=0,0,30,40 Angle=1.570795",
              "x=-5 y=55 width=40 height=30 transform=rotate(1.570795,25,40)");
        shape("rectangle without a matrix", "Rectangle", "Control=1,2,11,22", "x=1 y=2 width=10 height=20");
        shape("rectangle without corners", "Rectangle", "Matrix=1,0,0,1,0,0 BoundingBox=1,2,4,8",
              "x=1 y=2 width=3 height=6");
        shape("rectangle with a short box", "Rectangle", "Control=1,2,3,4 Matrix=1,0,0,1,0,0 BoundingBox=1,2,4",
              "x=null width=null");
        shape("rectangle under a flat matrix", "Rectangle",
              "Control=1,2,3,4 Matrix=0,0,0,0,6,7 BoundingBox=0,0,1,1 Angle=0", "x=6 y=7 width=0 height=0");
    }

    void placesShapes()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QJsonObject, expected);
        const QDomElement element = toSvg(item);
        QJsonObject found = attributesOf(element);
        found.insert("tag", element.tagName());
        QCOMPARE(differences(found, expected), QString());
    }

    void paintsShapes_data()
    {
        QTest::addColumn<QJsonObject>("item");
        QTest::addColumn<QJsonObject>("expected");
        shape("stroke cut", "Circle", "LineColor=255,10,20,30", "stroke=rgb(10,20,30)");
        shape("stroke cut with half an alpha", "Ellipse", "LineColor=128,10,20,30", "stroke=rgb(10,20,30)");
        shape("cut takes four characters", "Rectangle", "LineColor=99,10,20,30", "stroke=rgb(0,20,30)");
        shape("stroke kept", "Angle", "LineColor=255,10,20,30", "stroke=rgb(255,10,20,30)");
        shape("stroke of a regular polygon", "NormalHexagon", "LineColor=1,2,3", "stroke=rgb(1,2,3)");
        shape("stroke of a polyline", "Polyline", "ArtObj_Color=1,2,3 LineColor=9,9,9", "stroke=rgb(1,2,3) fill=null");
        shape("stroke of a geometric triangle", "GeoTriangle", "ArtObj_Color1=255,1,2,3 LineColor=9,9,9",
              "stroke=rgb(1,2,3)");
        shape("stroke missing", "Triangle", "{}", "stroke=rgb(0,0,0)");
        shape("stroke as an object", "Quadrangle", "{'LineColor':{'Solid':255,'Alpha':1}}", "stroke=rgb(0,0,0)");

        shape("fill with alpha", "Circle", "ArtObj_Color=128,1,2,3 ArtObj_Fill=1",
              "fill=rgb(1,2,3) stroke-opacity=128");
        shape("fill without alpha", "Circle", "ArtObj_Color=1,2,3", "fill=rgb(1,2,3) stroke-opacity=255");
        shape("hollow by its flag", "Parallelogram", "ArtObj_Color=128,1,2,3 ArtObj_Fill=0",
              "fill=null stroke-opacity=null");
        shape("triangles know no flag", "Triangle", "ArtObj_Color=128,1,2,3 ArtObj_Fill=0",
              "fill=rgb(1,2,3) stroke-opacity=128");
        shape("fill of a polyline", "Polyline", "ArtObj_FillColor=7,1,2,3", "fill=rgb(1,2,3) stroke-opacity=7");
        shape("fill of two parts", "Circle", "ArtObj_Color=1,2", "fill=rgb(0,0,0) stroke-opacity=255");
        shape("fill as an object", "Circle", "{'ArtObj_Color':{}}", "fill=null stroke-opacity=null");
        shape("angles have no fill", "Angle", "ArtObj_Color=1,2,3", "fill=null");

        shape("dash: 5 x 3 twice", "Circle", "ArtObj_Mode=2 ArtObj_Width=3", "stroke-dasharray=15,15 stroke-width=3");
        shape("dash dot of the width 2", "Circle", "ArtObj_Mode=3", "stroke-dasharray=20,4,20 stroke-width=null");
        shape("solid", "Triangle", "ArtObj_Mode=0", "stroke-dasharray=null");
        shape("unknown style", "Triangle", "ArtObj_Mode=4", "stroke-dasharray=null");
        shape("a segment's style", "Segment", "ArtObj_Style=2 ArtObj_Mode=3", "stroke-dasharray=10,10");
        shape("a width that is no integer", "Circle", "ArtObj_Mode=2 ArtObj_Width=2.5",
              "stroke-dasharray=0,0 stroke-width=2.5");

        shape("no arrow", "SegmentWith2Arrow", "{}", "stroke-lineshape-start=circle stroke-lineshape-end=circle");
        shape("arrow at the start", "Segment", "ArtObj_ArrowType=1",
              "stroke-lineshape-start=arrow stroke-lineshape-end=null");
        shape("two arrows", "Segment", "ArtObj_ArrowType=2", "stroke-lineshape-start=arrow stroke-lineshape-end=arrow");
        shape("a geometric segment has none", "GeoSegment", "ArtObj_ArrowType=2",
              "stroke-lineshape-start=circle stroke-lineshape-end=circle");
    }

    void paintsShapes() { placesShapes(); }

    void givesNoShape_data()
    {
        const Table<bool> row("isKnown");
        for (const char *type : {"ZQMath2DDot", "ZQMath2DNewArc", "ZQMath2DTrapezoid", "ZQMath2DRhombus",
                                 "ZQMath2DPentagon", "ZQMath3DCube", "ZQMathToolCoordinatePolar", "Math:2dcircle"}) {
            row(type, true);
        }
        for (const char *type : {"ZQMath2DNormalShape", "ZQMathToolCoordinateItem", "Math:toolcoordinatefunct",
                                 "Math:2dnormalshape", "zqmath2dcircle"}) {
            row(type, false);
        }
    }

    void givesNoShape()
    {
        const QJsonObject item{{"Type", QTest::currentDataTag()}, {"Control", "1,2,3,4,5,6"}};
        QVERIFY(toSvg(item).isNull());
        QTEST(!plugin()->tranItemJSON2ZQTX({}, item).isNull(), "isKnown");
    }

    void readsShapes_data()
    {
        const Table<QString, QJsonObject> row("svg", "expected");
        row("circle: rim at 10 + 2.5",
            "<svg:circle id='5' cx='10' cy='20' r='2.5' stroke='rgb(1,2,3)' stroke-width='4' fill='rgb(7,8,9)' "
            "stroke-opacity='255' stroke-dasharray='1,2,3,4'/>",
            "Type=ZQMath2DCircle Discipline_xCreate=10 Discipline_yCreate=20 Control=12.5,20 LineColor=1,2,3 "
            "ArtObj_Width=4 ArtObj_Color=255,7,8,9 ArtObj_Fill=1 ArtObj_Mode=1 ID=null Matrix=null");
        row("circle without opacity", "<svg:circle fill='rgb(7,8,9)'/>",
            "ArtObj_Color=7,8,9 ArtObj_Fill=null LineColor= ArtObj_Width= ArtObj_Mode=0 Control=0, "
            "Discipline_xCreate=");
        row("circle with opacity 0", "<svg:circle fill='rgb(7,8,9)' stroke-opacity='0'/>",
            "ArtObj_Color=0,7,8,9 ArtObj_Fill=null");
        row("ellipse: rims at 10 + 30 and 20 + 40", "<svg:ellipse cx='10' cy='20' rx='30' ry='40'/>",
            "Type=ZQMath2DEllipse Discipline_xCreate=10 Control=40,20,10,60");
        row("line", "<svg:line x1='1' y1='2.50' x2='3' stroke='rgb(1,2,3)' fill='red' stroke-dasharray='5,5'/>",
            "Type=ZQMath2DSegment ArtObj_ArrowType=0 Control=1,2.50,3, ArtObj_Color1=1,2,3 ArtObj_Style=2 "
            "ArtObj_Color=null ArtObj_Mode=null");
        row("line from a circle", "<svg:line stroke-lineshape-start='circle' stroke-lineshape-end='circle'/>",
            "Type=ZQMath2DSegment ArtObj_ArrowType=0");
        row("line with an arrow", "<svg:line stroke-lineshape-start='arrow'/>",
            "Type=ZQMath2DSegmentWith1Arrow ArtObj_ArrowType=1");
        row("line with two arrows", "<svg:line stroke-lineshape-start='arrow' stroke-lineshape-end='arrow'/>",
            "Type=ZQMath2DSegmentWith2Arrow ArtObj_ArrowType=2");
        row("line that ends in an arrow", "<svg:line x1='1' stroke-lineshape-end='arrow'/>",
            "Type=null ArtObj_ArrowType=null Control=1,,,");
        row("angle", "<svg:polyline points='1,2.50,3,4,5.0,6' stroke='rgb(1,2,3)' stroke-dasharray='1,2,3'/>",
            "Type=ZQMath2DAngle Control=1,2.5,3,4 Discipline_xCreate=5 Discipline_yCreate=6 LineColor=1,2,3 "
            "ArtObj_Mode=3 ArtObj_Color=null");
        row("polyline", "<svg:polyline points='1,2,3,40' stroke='rgb(1,2,3)' stroke-opacity='9' fill='(4)'/>",
            "Type=ZQMath2DPolyline XYValue=1,2,3,40 ArtObj_Color=1,2,3 ArtObj_FillColor=9,4 ArtObj_Fill=1");
        row("polyline without points", "<svg:polyline/>", "Type=ZQMath2DPolyline XYValue=");
        row("five dashes are none", "<svg:polyline stroke-dasharray='1,2,3,4,5'/>", "ArtObj_Mode=0");
        row("rectangle",
            "<svg:rect id='5' x='10' y='20' width='30' height='40' transform='rotate(0,25,40)' visible='1'/>",
            "Type=ZQMath2DRectangle ID=5 Matrix=1,0,0,1,10,20 Control=30,0,0,40 Angle=0 BoundingBox_IWB_RECT=0,0,30,40 "
            "x=10 width=30 Width=30 Visible=1 BoundingBox=null");
        // (x, y) moved by (10, 20) and turned by 90 degrees about (25, 40): (25 - (y - 20), 40 + (x - 15))
        row("rectangle with a quarter turn",
            "<svg:rect x='10' y='20' width='30' height='40' transform='rotate(1.570795,25,40)'/>",
            "Matrix=0,1,-1,0,45,25 Angle=1.570795");
        row("rectangle with another transform", "<svg:rect x='10' width='-0' transform='translate(3,4)'/>",
            "Matrix=1,0,0,1,10,0 Control=0,0,0,0 Angle=null");
        row("polygons are no items", "<svg:polygon points='1,2,3,4,5,6'/>", "Type=null known=before");
    }

    void readsShapes()
    {
        const auto [svg, expected] = Table<QString, QJsonObject>::cells();
        const QJsonObject item = plugin()->tranItemIWB2JSON(xml(svg), json("known=before"));
        QCOMPARE(item.value("known"), QJsonValue("before"));
        QCOMPARE(differences(item, expected), QString());
    }

    // Whatever the numbers are, there is a shape and not a word on the log.
    void bearsAnyNumbers()
    {
        const QStringList types{"Segment", "GeoSegment", "Angle",    "Polyline",    "NormalOctagon", "Circle",
                                "Ellipse", "Rectangle",  "Triangle", "GeoTriangle", "Quadrangle",    "Parallelogram"};
        const QStringList keys{"Matrix",    "BoundingBox",  "Control",       "XYValue",          "Angle",
                               "LineColor", "ArtObj_Color", "ArtObj_Color1", "ArtObj_FillColor", "ArtObj_Width"};
        for (const char *numbers :
             {"", ",", ",,,,,,,,", "nan,inf,-inf,nan,inf,1e308,1e999,x", "999,-1,256,70000", "1,2,3,4,5"}) {
            QJsonObject item = json("ArtObj_Ln=8 ArtObj_Mode=2");
            for (const QString &key : keys) {
                item.insert(key, numbers);
            }
            for (const QString &type : types) {
                item.insert("Type", QString("ZQMath2D" + type));
                QCOMPARE(messagesOf([&] { plugin()->tranItemIWB2JSON(toSvg(item), {}); }), 0);
                QVERIFY(!toSvg(item).isNull());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestMathematics)
#include "tst_mathematics.moc"
