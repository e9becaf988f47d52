// SPDX-License-Identifier: MIT
#include "svg/svgshapes.h"

#include "lesson/curtain.h"
#include "lesson/itemvalues.h"
#include "lesson/planegeometry.h"
#include "svg/svggeometry.h"
#include "svg/svgnames.h"
#include "svg/svgpage.h"
#include "svg/svgpath.h"
#include "svg/svgvalues.h"

#include <utility>

namespace lessonhost {

namespace {

bool hasOwnFill(const QDomElement &element)
{
    return element.hasAttribute(QStringLiteral("fill"))
        || svgDeclarations(element.attribute(QStringLiteral("style"))).contains(QStringLiteral("fill"));
}

// Curves as lines that nobody tells from them at a scale.
QVector<SvgOutline> flattened(const QPainterPath &path, double scale)
{
    QVector<SvgOutline> outlines;
    const double largest = scale > 0 ? qBound(1e-3, scale, 1e3) : 1;
    const QList<QPolygonF> polygons = path.toSubpathPolygons(QTransform::fromScale(4 * largest, 4 * largest));
    for (const QPolygonF &polygon : polygons) {
        SvgOutline outline;
        for (const QPointF &point : polygon) {
            outline.points.append(point / (4 * largest));
        }
        outline.closed = polygon.isClosed();
        outlines.append(outline);
    }
    return outlines;
}

// What fills an open line, and stands behind it.
bool isFillOf(const QDomElement &line, const QDomElement &area)
{
    const QString id = line.attribute(QStringLiteral("id"));
    return !id.isEmpty() && svgName(line) == QLatin1String("polyline") && svgName(area) == QLatin1String("polygon")
        && area.attribute(QStringLiteral("id")) == QString(id + QLatin1String(lineFill));
}

// What covers an item, or a group.
bool isCover(const QDomElement &element)
{
    return svgName(element) == QLatin1String("polygon")
        && element.attribute(QStringLiteral("id")).endsWith(QLatin1String(coverBefore));
}

bool isArrow(const QString &text)
{
    return text == QLatin1String("arrow") || text.startsWith(QLatin1String("url("));
}

// from, to: before the transform.
void lineBetween(SvgPage &page, const QDomElement &element, const SvgPlace &place, QPointF from, QPointF to)
{
    from = place.style.matrix.map(from);
    to = place.style.matrix.map(to);
    const IwbRecord record = page.recordOf(element);
    bool startsWithArrow = isArrow(element.attribute(QStringLiteral("stroke-lineshape-start"), record.startShape))
        || isArrow(place.style.property(QStringLiteral("marker-start")));
    bool endsWithArrow = isArrow(element.attribute(QStringLiteral("stroke-lineshape-end"), record.endShape))
        || isArrow(place.style.property(QStringLiteral("marker-end")));
    if (endsWithArrow && !startsWithArrow) {
        // Lessons know a single arrow at the start only.
        std::swap(from, to);
        std::swap(startsWithArrow, endsWithArrow);
    }
    IwbElement &item = page.addItem(element, place, QStringLiteral("svg:line"));
    item.element.setAttribute(QStringLiteral("x1"), svgCoordinate(from.x()));
    item.element.setAttribute(QStringLiteral("y1"), svgCoordinate(from.y()));
    item.element.setAttribute(QStringLiteral("x2"), svgCoordinate(to.x()));
    item.element.setAttribute(QStringLiteral("y2"), svgCoordinate(to.y()));
    if (startsWithArrow) {
        item.element.setAttribute(QStringLiteral("stroke-lineshape-start"), QStringLiteral("arrow"));
    }
    if (endsWithArrow) {
        item.element.setAttribute(QStringLiteral("stroke-lineshape-end"), QStringLiteral("arrow"));
    }
    SvgStyle style = place.style;
    style.set(QStringLiteral("fill"), QStringLiteral("none"));
    setPluginPaint(item.element, page.paintOf(element, style));
}

// A polyline of the page. One with three points would be read as an angle: it gets its last point twice.
void outline(SvgPage &page, const QDomElement &source, const SvgPlace &place, QPolygonF points, bool isClosed)
{
    if (points.isEmpty()) {
        page.remark(source, say("it has no points"));
        return;
    }
    if (isClosed && points.first() != points.last()) {
        points.append(points.first());
    }
    for (const char *marker : {"marker-start", "marker-end"}) {
        const QString value = place.style.property(QLatin1String(marker));
        if (!value.isEmpty() && value != QLatin1String("none")) {
            page.remark(source, say("%1 is left out").arg(QLatin1String(marker)));
        }
    }
    const SvgPaint paint = page.paintOf(source, place.style);
    const IwbRecord record = page.recordOf(source);
    const bool isInk = record.isFreehand || record.isHighlight;
    if (points.size() == 2 && (isArrow(record.startShape) || isArrow(record.endShape)) && !isInk) {
        lineBetween(page, source, place, points.first(), points.last());
        return;
    }
    for (const QString &shape : {record.startShape, record.endShape}) {
        if (isArrow(shape)) {
            page.remark(source, say("an arrow at its end is left out"));
        }
    }
    const bool mayBeAngle = page.rules().isNative || page.rules().isOwn;
    if (points.size() == 3 && !isInk && (!mayBeAngle || paint.fill.alpha() > 0)) {
        points.append(points.last());
    }
    const bool isEvenOdd =
        page.rules().isIwb || place.style.property(QStringLiteral("fill-rule")) == QLatin1String("evenodd");
    if (!page.rules().isNative && paint.fill.alpha() > 0 && isEvenOdd && !isFilledAlike(points)) {
        page.remark(source, say("it is filled also where it crosses itself"), false);
    }
    IwbElement &item = page.addItem(source, place, QStringLiteral("svg:polyline"));
    if (isClosed && isInk) {
        item.isFreehand = false;
        item.isHighlight = false;
        page.remark(source, say("it isn't drawn as a pen does, so it is no ink"), false);
    }
    page.placePoints(item, place.style.matrix.map(points));
    setPluginPaint(item.element, paint);
}

} // namespace

void readRectangle(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const QRectF box(page.length(element, "x"), page.length(element, "y"), page.length(element, "width"),
                     page.length(element, "height"));
    if (!(box.width() > 0) || !(box.height() > 0)) {
        page.remark(element, say("it has no size"));
        return;
    }
    if (page.length(element, "rx") > 0 || page.length(element, "ry") > 0) {
        page.remark(element, say("its corners are no longer round"), false);
    }
    if (!scaleAndTurn(place.style.matrix)) {
        outline(page, element, place,
                QPolygonF() << box.topLeft() << box.topRight() << box.bottomRight() << box.bottomLeft(), true);
        return;
    }
    IwbElement &item = page.addItem(element, place, QStringLiteral("svg:rect"));
    page.placeBox(element, item, box, place.style.matrix);
    const SvgPaint paint = page.paintOf(element, place.style);
    setPluginPaint(item.element, paint);
    if (item.isRevealer && (paint.fill.rgba() != curtainCloth || (paint.line.alpha() > 0 && paint.lineWidth > 0))) {
        page.remark(element, say("it became a curtain, which has a cloth of its own"), false);
    }
}

void readEllipse(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const bool isCircle = svgName(element) == QLatin1String("circle");
    const double rx = page.length(element, isCircle ? "r" : "rx");
    const double ry = isCircle ? rx : page.length(element, "ry");
    if (!(rx > 0) || !(ry > 0)) {
        page.remark(element, say("it has no size"));
        return;
    }
    const QPointF center = place.style.matrix.map(QPointF(page.length(element, "cx"), page.length(element, "cy")));
    const ScaleAndTurn axes = ellipseUnder(place.style.matrix, rx, ry);
    const bool staysCircle = isCircle && qAbs(axes.scaleX - axes.scaleY) <= 1e-6 * axes.scaleX;
    IwbElement &item =
        page.addItem(element, place, staysCircle ? QStringLiteral("svg:circle") : QStringLiteral("svg:ellipse"));
    item.element.setAttribute(QStringLiteral("cx"), svgCoordinate(center.x()));
    item.element.setAttribute(QStringLiteral("cy"), svgCoordinate(center.y()));
    if (staysCircle) {
        item.element.setAttribute(QStringLiteral("r"), svgCoordinate(axes.scaleX));
    } else {
        item.element.setAttribute(QStringLiteral("rx"), svgCoordinate(axes.scaleX));
        item.element.setAttribute(QStringLiteral("ry"), svgCoordinate(axes.scaleY));
        item.angle = axes.angle;
    }
    setPluginPaint(item.element, page.paintOf(element, place.style));
}

void readLine(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    lineBetween(page, element, place, QPointF(page.length(element, "x1"), page.length(element, "y1")),
                QPointF(page.length(element, "x2"), page.length(element, "y2")));
}

void readPolyline(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const QVector<double> numbers = svgNumbers(element.attribute(QStringLiteral("points")));
    if (numbers.size() % 2 == 1) {
        page.remark(element, say("its last point has no y and is left out"));
    }
    SvgPlace inner = place;
    if (page.rules().isIwb && !hasOwnFill(element)) {
        inner.style.set(QStringLiteral("fill"), QStringLiteral("none"));
    }
    const QDomElement area = elementBefore(element);
    if (isFillOf(element, area)) {
        for (const char *name : {"fill", "fill-opacity"}) {
            inner.style.set(QLatin1String(name), area.attribute(QLatin1String(name)));
        }
    }
    outline(page, element, inner, pointsOf(numbers), false);
}

void readPolygon(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    if (isFillOf(elementBehind(element), element)) {
        return;
    }
    // What it covers says so; that of a group was told when it was written.
    if (page.rules().isOwn && isCover(element)) {
        return;
    }
    const QVector<double> numbers = svgNumbers(element.attribute(QStringLiteral("points")));
    if (numbers.size() % 2 == 1) {
        page.remark(element, say("its last point has no y and is left out"));
    }
    outline(page, element, place, pointsOf(numbers), true);
}

void readPath(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const QString data = element.attribute(QStringLiteral("d"));
    auto outlines = svgStraightPath(data);
    if (!outlines) {
        const auto curves = svgPath(data);
        if (!curves) {
            page.remark(element, say("its data can't be read"));
            return;
        }
        outlines = flattened(*curves, meanScale(place.style.matrix));
        page.remark(element, say("its curves became fine lines"), false);
    }
    if (outlines->size() > 1) {
        page.remark(element, sayNumber("%n outlines became an item each", outlines->size()), false);
    }
    for (const SvgOutline &shape : qAsConst(*outlines)) {
        if (shape.points.size() > 1) {
            outline(page, element, place, shape.points, shape.closed);
        }
    }
}

} // namespace lessonhost
