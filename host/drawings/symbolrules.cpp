// SPDX-License-Identifier: MIT
#include "drawings/symbolrules.h"

#include "canvas/arrowhead.h"
#include "drawings/itemoutline.h"

#include <QHash>
#include <QPolygonF>

namespace lessonhost {

namespace {

constexpr int mostPoints = 10;

// ArtObj_Point0x, ArtObj_Point0y and so on up to the first that is missing; else the control points.
QPolygonF pointsOfItem(const ItemView &item)
{
    QPolygonF points;
    for (int i = 0; i < mostPoints; ++i) {
        const QByteArray name = "ArtObj_Point" + QByteArray::number(i);
        const QByteArray x = name + 'x';
        const QByteArray y = name + 'y';
        if (!item.has(QLatin1String(x)) || !item.has(QLatin1String(y))) {
            break;
        }
        points.append(QPointF(item.number(QLatin1String(x)), item.number(QLatin1String(y))));
    }
    return points.size() < 2 ? item.points(ItemKeys::control) : points;
}

SvgPaint linePaint(const ItemView &item)
{
    SvgPaint paint;
    paint.line = firstColor(item, {"ArtObj_Color0"}, Qt::black);
    paint.fill = Qt::transparent;
    paint.lineWidth = outlineWidth(item);
    return paint;
}

// An arrow for each two points, as many as the item says.
bool drawForces(Canvas &canvas, const ItemView &item)
{
    QPolygonF points = pointsOfItem(item);
    const QLatin1String count("ArtObj_Power");
    const int arrows = qRound(qBound(0.0, item.number(count, mostPoints), double(mostPoints)));
    points = points.mid(0, 2 * qMin(arrows, points.size() / 2));
    points = placeOnPage(item).map(fittedPoints(points, item.box()));
    const SvgPaint paint = linePaint(item);
    bool isSeen = false;
    for (int i = 0; i + 1 < points.size(); i += 2) {
        QLineF line(points.at(i), points.at(i + 1));
        if (line.length() > 0) {
            canvas.svg().addPath(arrowHead(line, paint.lineWidth), headPaint(paint));
            QPainterPath shaft(line.p1());
            shaft.lineTo(line.p2());
            canvas.svg().addPath(shaft, paint);
            isSeen = true;
        }
    }
    return isSeen;
}

// A line from point to point.
bool drawWire(Canvas &canvas, const ItemView &item)
{
    const QPolygonF points = pointsOfItem(item);
    if (points.size() < 2) {
        return false;
    }
    QPainterPath path;
    path.addPolygon(placeOnPage(item).map(fittedPoints(points, item.box())));
    canvas.svg().addPath(path, linePaint(item));
    return true;
}

// A hose that bends by its four points as curved arrows do.
bool drawTube(Canvas &canvas, const ItemView &item)
{
    constexpr int bendingPoints = 4;
    constexpr double bore = 8;
    SvgPaint paint = linePaint(item);
    const double width = bore + 2 * paint.lineWidth;
    auto box = item.box();
    if (box && box->width() > 2 * width && box->height() > 2 * width) {
        box->adjust(width / 2, width / 2, -width / 2, -width / 2);
    }
    const QPolygonF points = placeOnPage(item).map(fittedPoints(item.points(ItemKeys::control), box));
    if (points.size() != bendingPoints || points.first() == points.last()) {
        return false;
    }
    QPainterPath path(points.at(0));
    path.cubicTo(points.at(1), points.at(2), points.at(3));
    paint.lineWidth = width;
    canvas.svg().addPath(path, paint);
    paint.lineWidth = bore;
    paint.line = firstColor(item, {"ArtObj_Color"}, QColor(0xe3, 0xe3, 0xe3));
    canvas.svg().addPath(path, paint);
    return true;
}

} // namespace

bool drawByRule(Canvas &canvas, const ItemView &item)
{
    static const QHash<QString, SvgDrawing> rules{
        {QStringLiteral("ZQPhysicsDaoxian"), &drawWire},
        {QStringLiteral("ZQPhysicsLi"), &drawForces},
        {QStringLiteral("ZQChemistryXiangPiGuan"), &drawTube},
    };
    const SvgDrawing rule = rules.value(item.type());
    return rule && rule(canvas, item);
}

} // namespace lessonhost
