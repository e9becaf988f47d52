// SPDX-License-Identifier: MIT
#include "drawings/mathdrawing.h"

#include "canvas/outline.h"
#include "drawings/itemoutline.h"
#include "svg/svgstyle.h"

#include <QHash>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

/*!
 * One type in a box from 0,0 to 1,1, in the words of outlineIn().
 */
struct MathForm
{
    const char *type;
    int corners; //!< so many control points are the corners themselves; 0 for what has none
    const char *face; //!< filled
    bool isOutlined; //!< the face's border is an edge as well
    const char *edges;
    const char *hidden; //!< edges behind
};

// clang-format off
constexpr MathForm mathForms[] = {
    {"ZQTriangle", 3, "M .5 0 L 1 1 L 0 1 Z", true, "", ""},
    {"ZQMath2DRhombus", 4, "M .5 0 L 1 .5 L .5 1 L 0 .5 Z", true, "", ""},
    {"ZQMath2DTrapezoid", 4, "M .25 0 L .75 0 L 1 1 L 0 1 Z", true, "", ""},
    {"ZQMath2DPentagon", 5, "M .5 0 L 1 .382 L .809 1 L .191 1 L 0 .382 Z", true, "", ""},
    {"ZQMath2DPlane", 4, "M .25 0 L 1 0 L .75 1 L 0 1 Z", true, "", ""},
    {"ZQMath3DSphere", 0, "B 0 0 1 1 0 360 Z", true,
     "B 0 .36 1 .64 180 180",
     "B 0 .36 1 .64 0 180"},
    {"ZQMath3DHalfSphere", 0, "B 0 0 1 1.6 0 180 A 0 .6 1 1 180 180 Z", true,
     "",
     "B 0 .6 1 1 0 180"},
    {"ZQMath3DColumn", 0, "M 0 .12 L 0 .88 A 0 .76 1 1 180 180 L 1 .12 A 0 0 1 .24 0 180 Z", true,
     "B 0 0 1 .24 180 180",
     "B 0 .76 1 1 0 180"},
    {"ZQMath3DCone", 0, "M .5 0 L 0 .88 A 0 .76 1 1 180 180 Z", true,
     "",
     "B 0 .76 1 1 0 180"},
    {"ZQMath3DFrustumofCone", 0, "M .25 .06 L 0 .88 A 0 .76 1 1 180 180 L .75 .06 A .25 0 .75 .12 0 180 Z", true,
     "B .25 0 .75 .12 180 180",
     "B 0 .76 1 1 0 180"},
    {"ZQMath3DCube", 0, "M 0 .3 L .3 0 L 1 0 L 1 .7 L .7 1 L 0 1 Z", true,
     "M 0 .3 L .7 .3 L .7 1 M .7 .3 L 1 0",
     "M .3 0 L .3 .7 L 1 .7 M .3 .7 L 0 1"},
    {"ZQMath3DPrism", 0, "M 0 .1 L 1 0 L 1 .75 L .65 1 L 0 .85 Z", true,
     "M 0 .1 L .65 .25 L 1 0 M .65 .25 L .65 1",
     "M 0 .85 L 1 .75"},
    {"ZQMath3DMultiSurfacePrism", 0,
     "M 0 .178 L .174 .028 L .674 0 L 1 .122 L 1 .822 L .826 .972 L .326 1 L 0 .878 Z", true,
     "M 0 .178 L .326 .3 L .826 .272 L 1 .122 M .326 .3 L .326 1 M .826 .272 L .826 .972",
     "M 0 .878 L .174 .728 L .674 .7 L 1 .822 M .174 .028 L .174 .728 M .674 0 L .674 .7"},
    {"ZQMath3DTetrahedral", 0, "M .5 0 L 0 .8 L .6 1 L 1 .75 Z", true,
     "M .5 0 L .6 1",
     "M 0 .8 L 1 .75"},
    {"ZQMath3DPyramid", 0, "M .5 0 L 0 1 L .7 1 L 1 .7 Z", true,
     "M .5 0 L .7 1",
     "M 0 1 L .3 .7 L 1 .7 M .3 .7 L .5 0"},
    {"ZQMath3DMultiSurfacePyramid", 0, "M .5 0 L 0 .878 L .326 1 L .826 .972 L 1 .822 Z", true,
     "M .326 1 L .5 0 L .826 .972",
     "M 0 .878 L .174 .728 L .674 .7 L 1 .822 M .174 .728 L .5 0 L .674 .7"},
    {"ZQMath3DFrustumofPrism", 0, "M .25 .15 L .4 0 L .75 0 L 1 .7 L .7 1 L 0 1 Z", true,
     "M .25 .15 L .6 .15 L .75 0 M .6 .15 L .7 1",
     "M 0 1 L .3 .7 L 1 .7 M .3 .7 L .4 0"},
    {"ZQMath3DMultiSurfaceFrustumofPrism", 0,
     "M .25 .089 L .337 .014 L .587 0 L .75 .061 L 1 .822 L .826 .972 L .326 1 L 0 .878 Z", true,
     "M .25 .089 L .413 .15 L .663 .136 L .75 .061 M .413 .15 L .326 1 M .663 .136 L .826 .972",
     "M 0 .878 L .174 .728 L .674 .7 L 1 .822 M .337 .014 L .174 .728 M .587 0 L .674 .7"},
    {"ZQMath3DIntersectantPlane", 0,
     "M 0 .75 L .75 .75 L 1 .4 L .25 .4 Z M .375 .35 L .375 1 L .625 .65 L .625 0 Z", false,
     "M .375 .4 L .25 .4 L 0 .75 L .75 .75 L 1 .4 L .625 .4 "
     "M .554 .75 L .375 1 L .375 .35 L .625 0 L .625 .4 L .375 .75",
     "M .375 .4 L .625 .4 L .625 .65 L .554 .75"},
};
// clang-format on

const MathForm *mathFormOf(const QString &type)
{
    const auto *const found = std::find_if(std::begin(mathForms), std::end(mathForms),
                                           [&type](const MathForm &form) { return type == QLatin1String(form.type); });
    return found == std::end(mathForms) ? nullptr : found;
}

constexpr int dashOfHidden = 2;

int dashParts(double mode)
{
    return mode == 1 ? 4 : mode == 2 ? 2 : mode == 3 ? 3 : 0;
}

SvgPaint paintOf(const ItemView &item)
{
    SvgPaint paint;
    paint.lineWidth = outlineWidth(item);
    paint.line = firstColor(item, {"ArtObj_LineColor", "LineColor"}, Qt::black);
    paint.dashParts = dashParts(item.number(QLatin1String("ArtObj_Mode")));
    paint.fill = item.isFilled() ? firstColor(item, {"ArtObj_FillColor", "FillColor", "ArtObj_Color"}, Qt::transparent)
                                 : QColor(Qt::transparent);
    return paint;
}

// The corners that an item tells, within its box.
bool drawCorners(Canvas &canvas, const ItemView &item, int corners)
{
    const QPolygonF points = item.points(ItemKeys::control);
    if (corners == 0 || points.size() != corners) {
        return false;
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    canvas.svg().addPath(onPage(path, points.boundingRect(), item), paintOf(item));
    return true;
}

SvgPaint axisPaint(const ItemView &item)
{
    SvgPaint paint;
    paint.lineWidth = outlineWidth(item);
    paint.line = firstColor(item, {"ArtObj_Color", "LineColor"}, Qt::black);
    paint.fill = Qt::transparent;
    return paint;
}

constexpr int ticksPerSide = 10;

// An axis to the right, as long as a side, its ticks a step apart. The last arrow's length has none.
QPainterPath axis(double length, double step, double arrow)
{
    const double end = length / 2;
    QPainterPath path;
    path.moveTo(-end, 0);
    path.lineTo(end, 0);
    path.moveTo(end - arrow, -arrow / 2);
    path.lineTo(end, 0);
    path.lineTo(end - arrow, arrow / 2);
    for (int i = 1; i < ticksPerSide && i * step < end - arrow; ++i) {
        for (const double x : {-i * step, i * step}) {
            path.moveTo(x, -arrow / 4);
            path.lineTo(x, arrow / 4);
        }
    }
    return path;
}

// A figure or a body of the table: the corners of the item if it has as many as the type, else the type's own form.
bool drawForm(Canvas &canvas, const ItemView &item)
{
    const MathForm *const form = mathFormOf(item.type());
    if (!form) {
        return false;
    }
    if (drawCorners(canvas, item, form->corners)) {
        return true;
    }
    const PlacedBox box(item);
    if (box.isEmpty()) {
        return false;
    }
    const QRectF unit(0, 0, 1, 1);
    const SvgPaint paint = paintOf(item);
    SvgPaint face = paint;
    if (!form->isOutlined) {
        face.line = Qt::transparent;
    }
    canvas.svg().addPath(box.place.map(outlineIn(unit, form->face)), face);
    SvgPaint edges = paint;
    edges.fill = Qt::transparent;
    if (*form->edges) {
        canvas.svg().addPath(box.place.map(outlineIn(unit, form->edges)), edges);
    }
    if (*form->hidden) {
        edges.dashParts = dashOfHidden;
        canvas.svg().addPath(box.place.map(outlineIn(unit, form->hidden)), edges);
    }
    return true;
}

// The part of an ellipse from StartAngle on, counterclockwise; with a fill, out to its centre.
bool drawArc(Canvas &canvas, const ItemView &item)
{
    const PlacedBox box(item);
    if (box.isEmpty()) {
        return false;
    }
    constexpr double wholeTurn = 360;
    const double start = std::fmod(item.number(QLatin1String("StartAngle")), wholeTurn);
    const double sweep = qBound(-wholeTurn, item.number(QLatin1String("SweepAngle"), 90), wholeTurn);
    const QRectF ellipse(0, 0, 1, 1);
    SvgPaint paint = paintOf(item);
    const QLatin1String width("LineWidth");
    paint.lineWidth = outlineWidth(item, item.has(width) ? width : ItemKeys::lineWidth);
    if (item.flag(QLatin1String("IsFill"))) {
        SvgPaint sector = paint;
        sector.line = Qt::transparent;
        QPainterPath path(ellipse.center());
        path.arcTo(ellipse, start, sweep);
        path.closeSubpath();
        canvas.svg().addPath(box.place.map(path), sector);
    }
    paint.fill = Qt::transparent;
    QPainterPath path;
    path.arcMoveTo(ellipse, start);
    path.arcTo(ellipse, start, sweep);
    canvas.svg().addPath(box.place.map(path), paint);
    return true;
}

// From one control point to the other.
bool drawSegment(Canvas &canvas, const ItemView &item)
{
    const QPolygonF points = item.points(ItemKeys::control).mid(0, 2);
    if (points.size() != 2) {
        return false;
    }
    QPainterPath path;
    path.addPolygon(points);
    SvgPaint paint = paintOf(item);
    paint.fill = Qt::transparent;
    canvas.svg().addPath(onPage(path, points.boundingRect(), item), paint);
    return true;
}

// A point, as large as the item's line is wide.
bool drawDot(Canvas &canvas, const ItemView &item)
{
    const QPolygonF points = item.points(ItemKeys::control);
    const auto box = item.box();
    if (!box && points.isEmpty()) {
        return false;
    }
    SvgPaint paint = axisPaint(item);
    const double radius = paint.lineWidth + 1;
    QPainterPath path;
    path.addEllipse(placeOnPage(item).map(box ? box->center() : points.first()), radius, radius);
    paint.fill = paint.line;
    paint.line = Qt::transparent;
    canvas.svg().addPath(path, paint);
    return true;
}

// Two axes with arrows and ticks; the item doesn't tell its unit, so the ticks have no numbers.
bool drawAxes(Canvas &canvas, const ItemView &item)
{
    const PlacedBox box(item);
    if (box.isEmpty()) {
        return false;
    }
    const SvgPaint paint = axisPaint(item);
    const double step = qMax(box.width, box.height) / ticksPerSide;
    const double arrow = qMin(4 * paint.lineWidth + 4, qMin(box.width, box.height) / 4);
    QPainterPath path = axis(box.width, step, arrow);
    // Up on the screen is where y grows.
    path.addPath(QTransform(0, -1, 1, 0, 0, 0).map(axis(box.height, step, arrow)));
    canvas.svg().addPath(box.inPixels().map(path), paint);
    return true;
}

// Circles and rays about the centre, and the axis that angles begin at.
bool drawPolarAxes(Canvas &canvas, const ItemView &item)
{
    const PlacedBox box(item);
    if (box.isEmpty()) {
        return false;
    }
    SvgPaint paint = axisPaint(item);
    const double radius = qMin(box.width, box.height) / 2;
    const double arrow = qMin(4 * paint.lineWidth + 4, radius / 2);
    QPainterPath net;
    constexpr int circles = 5;
    for (int i = 1; i <= circles; ++i) {
        net.addEllipse(QPointF(), radius * i / circles, radius * i / circles);
    }
    constexpr int rays = 12;
    for (int i = 1; i < rays; ++i) {
        net.moveTo(0, 0);
        net.lineTo(radius * std::cos(2 * M_PI * i / rays), radius * std::sin(2 * M_PI * i / rays));
    }
    SvgPaint thin = paint;
    thin.lineWidth = paint.lineWidth / 2;
    canvas.svg().addPath(box.inPixels().map(net), thin);
    QPainterPath ray(QPointF(0, 0));
    ray.lineTo(box.width / 2, 0);
    ray.moveTo(box.width / 2 - arrow, -arrow / 2);
    ray.lineTo(box.width / 2, 0);
    ray.lineTo(box.width / 2 - arrow, arrow / 2);
    canvas.svg().addPath(box.inPixels().map(ray), paint);
    return true;
}

} // namespace

SvgDrawing mathDrawing(const QString &type)
{
    static const QHash<QString, SvgDrawing> drawings{
        {QStringLiteral("ZQMath2DNewArc"), &drawArc},
        {QStringLiteral("ZQMath2DDot"), &drawDot},
        {QStringLiteral("ZQSegment"), &drawSegment},
        {QStringLiteral("ZQMathToolCoordinateItem"), &drawAxes},
        {QStringLiteral("ZQMathToolCoordinateFunct"), &drawAxes},
        {QStringLiteral("ZQMathToolCoordinateParam"), &drawAxes},
        {QStringLiteral("ZQMathToolCoordinatePolar"), &drawPolarAxes},
    };
    return drawings.value(type, mathFormOf(type) ? &drawForm : nullptr);
}

} // namespace lessonhost
