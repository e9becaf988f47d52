// SPDX-License-Identifier: MIT
#include "zqmathematicstran.h"

#include "domhelpers.h"
#include "mathsvg.h"

const FamilyVocabulary &ZQMathematicsTran::vocabulary()
{
    // What many lines have in common: svg attributes, and the properties of filled figures.
    static const KeyPaths pen = {attribute("stroke"), attribute("stroke-width")};
    static const KeyPaths paint = {pen, attribute("fill"), attribute("stroke-opacity")};
    static const KeyPaths closedShape = {attribute("points"), paint};
    static const KeyPaths line = {attribute("stroke-lineshape-start"),
                                  attribute("stroke-lineshape-end"),
                                  attribute("x1"),
                                  attribute("y1"),
                                  attribute("x2"),
                                  attribute("y2"),
                                  pen};
    static const KeyPaths colors = {property("LineColor", "Color"), property("ArtObj_Color", "Fill color")};

    static const FamilyVocabulary table(
        {{},
         {childAttribute("FillType", "ArtObj_Color", "FileType"),
          childAttribute("FillTypeF", "ArtObj_FillColor", "FileType"), attribute("ArtObj_Fill"),
          attribute("ArtObj_Mode")},
         {property("ArtObj_Mode"), path("TextHtml", "data", "content", "text")},
         {attribute("stroke-dasharray")}},
        {
            {{"ZQMath2DDot"},
             {attribute("ArtObj_StringPoint")},
             {property("ArtObj_Color", "Color"), property("ArtObj_StringPoint")}},
            {{"ZQMath2DCircle"},
             {attribute("ArtObj_Display"), attribute("ArtObj_Center"), attribute("ArtObj_Unit")},
             {property("ArtObj_Center", "Display center"), property("ArtObj_Display", "Display radius"),
              property("ArtObj_Unit", "Distance unit"), property("ArtObj_Fill", "Be filled"), property("ArtObj_Width"),
              colors},
             {attribute("cx"), attribute("cy"), attribute("r"), paint}},
            {{"ZQMath2DTriangle"},
             {},
             {property("ArtObj_Fill", "Be filled"), property("ArtObj_Width"), colors},
             closedShape},
            {{"ZQMath2DEllipse"},
             {},
             {property("ArtObj_Unit", "Distance unit"), property("ArtObj_Fill", "Be filled"), property("ArtObj_Width"),
              colors},
             {attribute("cx"), attribute("cy"), attribute("rx"), attribute("ry"), paint}},
            {{"ZQMath2DGeoSegment"},
             {attribute("ArtObj_Point1"), attribute("ArtObj_Point2"), attribute("ArtObj_Point3"),
              attribute("ArtObj_Point4"), attribute("ArtObj_Point5"), attribute("ArtObj_Drawp1"),
              attribute("ArtObj_Drawp2"), attribute("ArtObj_Drawp3"), attribute("ArtObj_Displaykabian"),
              attribute("ArtObj_Drawpx"), attribute("ArtObj_Drawcz"), attribute("ArtObj_Drawzd"),
              attribute("ArtObj_Drawcd"), attribute("ArtObj_Unit"), attribute("ArtObj_Prec"),
              attribute("ArtObj_Style")},
             {property("ArtObj_Displaykabian", "Display kabian"), property("ArtObj_Unit", "Distance unit"),
              property("ArtObj_Drawzd", "Draw midpoint"), property("ArtObj_Prec", "Precision value"),
              property("ArtObj_Drawcd"), property("ArtObj_Drawpx"), property("ArtObj_Drawcz"),
              property("ArtObj_Drawp1"), property("ArtObj_Drawp2"), property("ArtObj_Drawp3"),
              property("ArtObj_Point1"), property("ArtObj_Point2"), property("ArtObj_Point3"),
              property("ArtObj_Point4"), property("ArtObj_Point5"), property("ArtObj_Style"),
              property("ArtObj_Color1")},
             line},
            {{"ZQMath2DNewArc"},
             {attribute("Discipline_xCreate", "CenterPtX"), attribute("Discipline_yCreate", "CenterPtY"),
              attribute("KindType"), attribute("IsFill"), attribute("ArrowNum"), attribute("StartAngle"),
              attribute("SweepAngle"), attribute("ArtObj_Width", "LineWidth"), attribute("LineMode")},
             {property("Discipline_xCreate", "CenterPtX"), property("Discipline_yCreate", "CenterPtY"),
              property("KindType"), property("IsFill"), property("ArrowNum"), property("StartAngle"),
              property("SweepAngle"), property("LineWidth"), property("LineMode"), property("LineColor", "Color"),
              property("FillColor")}},
            {{"ZQMath2DAngle"},
             {attribute("ArtObj_Display"), attribute("ArtObj_Prec")},
             {property("LineColor", "Color"), property("ArtObj_Color", "Color of edge"),
              property("ArtObj_Prec", "Precision value"), property("ArtObj_Display", "Show angle")},
             {attribute("points"), pen}},
            {{"ZQMathToolCoordinateFunct"},
             {attribute("ArtObj_MathStrech"), attribute("ArtObj_Mw"), attribute("ArtObj_Mh"), attribute("ArtObj_Fx"),
              attribute("ArtObj_Type"), attribute("ArtObj_Width"), attribute("ArtObj_Hide"),
              attribute("ArtObj_ShowUnit"), attribute("ArtObj_ShowOldUnit"), attribute("ArtObj_ShowRad")},
             {property("ArtObj_MathStrech"), property("ArtObj_Mw"), property("ArtObj_Mh"), property("ArtObj_Fx"),
              property("ArtObj_Type"), property("ArtObj_Width"), property("ArtObj_Hide"), property("ArtObj_ShowUnit"),
              property("ArtObj_ShowRad"), property("ArtObj_Color"), property("ArtObj_FuncColorVector"),
              property("ArtObj_FuncVector"), property("ArtObj_HideFunc")}},
            {{"ZQMathToolCoordinatePolar"},
             {attribute("ArtObj_MathStrech"), attribute("ArtObj_Mw"), attribute("ArtObj_Mh"), attribute("ArtObj_Fx"),
              attribute("ArtObj_Type"), attribute("ArtObj_Width"), attribute("ArtObj_Hide"), attribute("ArtObj_Du"),
              attribute("ArtObj_ShowUnit")},
             {property("ArtObj_MathStrech"), property("ArtObj_Mw"), property("ArtObj_Mh"), property("ArtObj_Fx"),
              property("ArtObj_Type"), property("ArtObj_Width"), property("ArtObj_Hide"), property("ArtObj_Du"),
              property("ArtObj_ShowUnit"), property("ArtObj_Color"), property("ArtObj_FuncColorVector"),
              property("ArtObj_FuncVector"), property("ArtObj_HideFunc")}},
            {{"ZQMathToolCoordinateParam"},
             {attribute("ArtObj_MathStrech"), attribute("ArtObj_Mw"), attribute("ArtObj_Mh"), attribute("ArtObj_Fx1"),
              attribute("ArtObj_Fx2"), attribute("ArtObj_Type"), attribute("ArtObj_Hide"), attribute("ArtObj_MinT"),
              attribute("ArtObj_MaxT"), attribute("ArtObj_ShowUnit")},
             {property("ArtObj_MathStrech"), property("ArtObj_Mw"), property("ArtObj_Mh"), property("ArtObj_Fx1"),
              property("ArtObj_Fx2"), property("ArtObj_Type"), property("ArtObj_Width"), property("ArtObj_Hide"),
              property("ArtObj_MinT"), property("ArtObj_MaxT"), property("ArtObj_ShowUnit"), property("ArtObj_Color"),
              property("ArtObj_FuncColorVector"), property("ArtObj_FuncVector"), property("ArtObj_FuncVector1"),
              property("ArtObj_HideFunc")}},
            {{"ZQMath2DGeoTriangle"},
             {attribute("ArtObj_Prec"), attribute("ArtObj_Prec1"), attribute("ArtObj_Unit"), attribute("ArtObj_Unit1"),
              attribute("ArtObj_DisplayAngle"), attribute("ArtObj_Display")},
             {property("ArtObj_Unit", "Distance unit"), property("ArtObj_Unit1", "Distance unit 1"),
              property("ArtObj_Prec", "Precision value"), property("ArtObj_Prec1", "Precision value 1"),
              property("ArtObj_DisplayAngle", "Show angle"), property("ArtObj_Display", "Show diatance"), colors,
              property("ArtObj_Fill", "Be filled"), property("ArtObj_Color1")},
             closedShape},
            {{"ZQMath2DRectangle"},
             {attribute("ArtObj_Mw"), attribute("ArtObj_Mh")},
             {property("ArtObj_Fill", "Be filled"), property("ArtObj_Width"), colors},
             {attribute("x"), attribute("y"), attribute("width"), attribute("height"), paint}},
            {{"ZQMathToolExpressions"},
             {attribute("ArtObj_Mw"), attribute("ArtObj_Mh"), attribute("Discipline_xCreate", "ArtInner_CenterPointX"),
              attribute("Discipline_yCreate", "ArtInner_CenterPointY")},
             {}},
            {{"ZQMath2DPolyline"},
             {},
             {childAttribute("XYValue", "XY", "Value"), property("ArtObj_Color", "Color"),
              property("ArtObj_FillColor", "Fill color")},
             closedShape},
            {{"ZQMath2DTrapezoid"},
             {attribute("ArtObj_LineColor"), attribute("ArtObj_FillColor")},
             {property("ArtObj_Fill", "Be filled"), colors}},
            {{"ZQMath2DQuadrangle"}, {}, {property("ArtObj_Fill", "Be filled"), colors}, closedShape},
            {{"ZQMath2DParallelogram"}, {}, {property("ArtObj_Fill", "Be filled"), colors}, closedShape},
            {{"ZQMath2DRhombus"},
             {attribute("ArtObj_LineColor"), attribute("ArtObj_FillColor")},
             {property("ArtObj_Fill", "Be filled"), colors}},
            {{"ZQMath2DPentagon"}, {}, {property("ArtObj_Fill", "Be filled"), colors}},
            {{"ZQMath3DFrustumofCone", "ZQMath3DIntersectantPlane", "ZQMath3DSphere", "ZQMath3DCone", "ZQMath3DPyramid",
              "ZQMath3DColumn", "ZQMath3DPrism", "ZQMath3DMultiSurfacePyramid", "ZQMath3DMultiSurfacePrism",
              "ZQMath3DCube", "ZQMath2DPlane", "ZQMath3DTetrahedral"},
             {attribute("Angle")},
             {}},
            {{"ZQMath2DNormalTrilateral", "ZQMath2DNormalQuadrilateral", "ZQMath2DNormalPentagon",
              "ZQMath2DNormalHexagon", "ZQMath2DNormalHeptagon", "ZQMath2DNormalOctagon"},
             {attribute("ArtObj_DisplayCircle"), attribute("ArtObj_Ln"), attribute("ArtObj_Point")},
             {property("ArtObj_DisplayCircle", "DisplayCircle"), property("ArtObj_Ln", "Obj_Ln"),
              property("ArtObj_Width"), colors, property("ArtObj_Fill", "Be filled")},
             closedShape},
            {{"ZQMath2DSegment", "ZQMath2DSegmentWith1Arrow", "ZQMath2DSegmentWith2Arrow"},
             {attribute("ArtObj_Point1"), attribute("ArtObj_Point2"), attribute("Width", "ArtObj_Width"),
              attribute("ArtObj_ArrowType"), attribute("ArtObj_Style")},
             {property("ArtObj_Color1", "Color"), property("ArtObj_Point1"), property("ArtObj_Point2"),
              property("ArtObj_ArrowType"), property("ArtObj_Style"), property("ArtObj_Width")},
             line},
            // These have nothing but what every item of the family has.
            {{"ZQTriangle", "ZQSegment", "ZQMath3DHalfSphere", "ZQMath3DFrustumofPrism",
              "ZQMath3DMultiSurfaceFrustumofPrism", "ZQFormulaMath", "discipline"},
             {},
             {}},
        });

    return table;
}

const TypePairs &ZQMathematicsTran::typePairs()
{
    static const TypePairs pairs{
        {"ZQMath2DSegment", "Math:2dsegment"},
        {"ZQMath2DSegmentWith1Arrow", "Math:2dsegmentwith1arrow"},
        {"ZQMath2DCircle", "Math:2dcircle"},
        {"ZQMath2DRectangle", "Math:2drectangle"},
        {"ZQMath2DPolyline", "Polygon"},
        {"ZQMath2DAngle", "Math:2dangle"},
        {"ZQMath2DDot", "Math:2ddot"},
        {"ZQMath2DGeoTriangle", "Math:2dgeotriangle"},
        {"ZQMath2DNormalShape", "Math:2dnormalshape"},
        {"ZQMath2DNormalTrilateral", "Math:2dnormaltrilateral"},
        {"ZQMath2DNormalQuadrilateral", "Math:2dnormalquadrilateral"},
        {"ZQMath2DNormalPentagon", "Math:2dnormalpentagon"},
        {"ZQMath2DNormalHexagon", "Math:2dnormalhexagon"},
        {"ZQMath2DNormalHeptagon", "Math:2dnormalheptagon"},
        {"ZQMath2DNormalOctagon", "Math:2dnormaloctagon"},
        {"ZQMath2DNewArc", "Math:2dnewarc"},
        {"ZQMath2DGeoSegment", "Math:2dgeosegment"},
        {"ZQMath2DEllipse", "Math:2dellipse"},
        {"ZQMathToolCoordinateItem", "Math:toolcoordinatefunct"},
        {"ZQMathToolCoordinateParam", "Math:toolcoordinateparam"},
        {"ZQMathToolCoordinatePolar", "Math:toolcoordinatepolar"},
        {"ZQMath2DTrapezoid", "Math:2dtrapezoid"},
    };
    return pairs;
}

namespace {

void setAngle(QJsonObject &json, QLatin1String key, double degrees)
{
    json.insert(key, QStringLiteral("%1").arg(degrees));
}

// Arcs of the raw form turn the other way round, and start at 0 and sweep over 90 degrees where nothing is said.
void fixNewArc(QJsonObject &json)
{
    const QLatin1String start("StartAngle");
    const QJsonValue startAngle = json.value(start);
    setAngle(json, start, startAngle.isUndefined() ? 0 : 360 - startAngle.toString().toDouble());
    const QLatin1String sweep("SweepAngle");
    const QJsonValue sweepAngle = json.value(sweep);
    setAngle(json, sweep, sweepAngle.isUndefined() ? 90 : -sweepAngle.toString().toDouble());
}

void fixGeoTriangle(QJsonObject &json)
{
    const QLatin1String unit("ArtObj_Unit1");
    json.insert(unit, json.contains(unit) ? QStringLiteral("0") : QStringLiteral("1"));
    const QLatin1String precision("ArtObj_Prec1");
    if (!json.contains(precision)) {
        json.insert(precision, QStringLiteral("1"));
    }
}

void fixCoordinateFunct(QJsonObject &json)
{
    const QJsonValue oldUnit = json.value(QLatin1String("ArtObj_ShowOldUnit"));
    if (!oldUnit.isUndefined()) {
        json.insert(QLatin1String("ArtObj_ShowUnit"), oldUnit);
    }
}

} // namespace

ZQMathematicsTran::ZQMathematicsTran(const QString &type)
    : ZQDisciplineItemTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QJsonObject ZQMathematicsTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQDisciplineItemTran::tranXML2JSON(element, json, context);
    const QString type = element.nodeName();
    if (type == QLatin1String("ZQMath2DNewArc")) {
        fixNewArc(json);
    } else if (type == QLatin1String("ZQMath2DGeoTriangle")) {
        fixGeoTriangle(json);
    } else if (type == QLatin1String("ZQMathToolCoordinateFunct")) {
        fixCoordinateFunct(json);
    }
    if (json.contains(QLatin1String("FillType")) || json.contains(QLatin1String("FillTypeF"))) {
        json.insert(QLatin1String("ArtObj_Fill"), 0);
    }
    return json;
}

QDomElement ZQMathematicsTran::tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context)
{
    const SvgShape *shape = svgShapeOf(json.value(QLatin1String("Type")).toString());
    return shape ? shapeToSvg(*shape, json, context) : element;
}

QJsonObject ZQMathematicsTran::tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    const QString tag = element.nodeName();
    if (tag == QLatin1String("svg:line")) {
        return svgLineToJson(element, json);
    }
    if (tag == QLatin1String("svg:polyline")) {
        const bool hasThreePoints = element.attribute(QStringLiteral("points")).count(QLatin1Char(',')) == 5;
        return hasThreePoints ? svgAngleToJson(element, json) : svgPolylineToJson(element, json);
    }
    if (tag == QLatin1String("svg:circle")) {
        return svgCircleToJson(element, json);
    }
    if (tag == QLatin1String("svg:ellipse")) {
        return svgEllipseToJson(element, json);
    }
    if (tag == QLatin1String("svg:rect")) {
        return svgRectToJson(element, json, context);
    }
    return json;
}

QDomElement ZQMathematicsTran::shapeToSvg(const SvgShape &shape, const QJsonObject &json, const QJsonObject &context)
{
    QDomElement element = ZQHTran::tranJSON2IWB(newElement(QLatin1String(shape.tag)), json, context);
    SvgAttributes svg(element, keyMaps().iwb);
    if (shape.setGeometry) {
        shape.setGeometry(json, svg);
    }
    setSvgPaint(shape, json, svg);
    if (shape.finish) {
        shape.finish(element, json);
    }
    return element;
}

QJsonObject ZQMathematicsTran::svgRectToJson(const QDomElement &element, QJsonObject json, const QJsonObject &context)
{
    return readSvgRect(element, ZQHTran::tranIWB2JSON(element, json, context));
}
