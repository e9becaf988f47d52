// SPDX-License-Identifier: MIT
#include "drawings/mathmarks.h"

#include "canvas/plainsvg.h"
#include "drawings/itemoutline.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QtMath>

namespace lessonhost {

namespace {

QPolygonF placedOnPage(const ItemView &item, const QPolygonF &corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    const QPainterPath placed = onPage(path, extentOf(corners), item);
    QPolygonF points;
    for (int i = 0; i < placed.elementCount(); ++i) {
        points.append(placed.elementAt(i));
    }
    return points;
}

// As many control points as a figure of the type has corners, on the page.
QPolygonF cornersOf(const ItemView &item, int count)
{
    const QPolygonF corners = item.points(ItemKeys::control);
    return corners.size() == count ? placedOnPage(item, corners) : QPolygonF();
}

// Two control points and the item's origin.
QPolygonF cornersOfAngle(const ItemView &item)
{
    QPolygonF corners(item.points(ItemKeys::control).mid(0, 2));
    if (corners.size() < 2) {
        return {};
    }
    corners.append(item.createdAt().value_or(QPointF()));
    return placedOnPage(item, corners);
}

QColor markInk(const ItemView &item)
{
    return firstColor(item, {"ArtObj_Color1", "LineColor"}, Qt::black);
}

// In whole degrees, within the angle at a corner.
void addDegrees(QVector<SvgMark> &marks, const QPointF &corner, const QPointF &one, const QPointF &other,
                double letters)
{
    QLineF first(corner, one);
    QLineF second(corner, other);
    if (!(first.length() > 0 && second.length() > 0)) {
        return;
    }
    constexpr double halfTurn = 180;
    const double turn = first.angleTo(second);
    const double degrees = qMin(turn, 2 * halfTurn - turn);
    const double shorter = qMin(first.length(), second.length());
    first.setLength(1);
    second.setLength(1);
    QPointF middle = (first.p2() + second.p2()) / 2 - corner;
    const double length = QLineF({}, middle).length();
    middle = length > 1e-3 ? middle / length : QPointF(-first.dy(), first.dx());
    // Further out where the angle is narrow.
    const double away =
        qBound(1.5 * letters, letters / qMax(1e-3, qSin(qDegreesToRadians(degrees / 2))), 0.7 * shorter);
    marks.append({QString::number(qRound(degrees)) + QChar(0x00b0), corner + middle * away});
}

void addAngles(PlainSvg &svg, const ItemView &item, const QPolygonF &corners, bool isClosed)
{
    const double letters = 1.5 * svg.readableSize();
    QVector<SvgMark> marks;
    const int count = corners.size();
    for (int i = isClosed ? 0 : 1; i < (isClosed ? count : count - 1); ++i) {
        addDegrees(marks, corners.at(i), corners.at((i + count - 1) % count), corners.at((i + 1) % count), letters);
    }
    if (!marks.isEmpty()) {
        svg.addMarks(marks, letters, markInk(item));
    }
}

void addDot(PlainSvg &svg, const ItemView &item, const QPointF &middle)
{
    SvgPaint paint;
    paint.fill = markInk(item);
    paint.line = Qt::transparent;
    const double radius = outlineWidth(item) + 1;
    QPainterPath dot;
    dot.addEllipse(middle, radius, radius);
    svg.addPath(dot, paint);
}

void markAngle(PlainSvg &svg, const ItemView &item)
{
    if (item.flag(QLatin1String("ArtObj_Display"))) {
        addAngles(svg, item, cornersOfAngle(item), false);
    }
}

void markTriangle(PlainSvg &svg, const ItemView &item)
{
    if (item.flag(QLatin1String("ArtObj_DisplayAngle"))) {
        addAngles(svg, item, cornersOf(item, 3), true);
    }
}

void markCircle(PlainSvg &svg, const ItemView &item)
{
    const auto box = item.box();
    if (box && item.flag(QLatin1String("ArtObj_Center"))) {
        addDot(svg, item, placeOnPage(item).map(box->center()));
    }
}

void markSegment(PlainSvg &svg, const ItemView &item)
{
    const QPolygonF ends = cornersOf(item, 2);
    if (ends.size() == 2 && item.flag(QLatin1String("ArtObj_Drawzd"))) {
        addDot(svg, item, (ends.at(0) + ends.at(1)) / 2);
    }
}

} // namespace

void addMathMarks(PlainSvg &svg, const ItemView &item)
{
    using Marking = void (*)(PlainSvg & svg, const ItemView &item);
    static const QHash<QString, Marking> markings{
        {QStringLiteral("ZQMath2DAngle"), &markAngle},
        {QStringLiteral("ZQMath2DGeoTriangle"), &markTriangle},
        {QStringLiteral("ZQMath2DCircle"), &markCircle},
        {QStringLiteral("ZQMath2DGeoSegment"), &markSegment},
    };
    if (const Marking marking = markings.value(item.type())) {
        marking(svg, item);
    }
}

} // namespace lessonhost
