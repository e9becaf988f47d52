// SPDX-License-Identifier: MIT
#include "drawings/itemoutline.h"

#include "lesson/planegeometry.h"

#include <QLineF>

namespace lessonhost {

QTransform fitInto(const QRectF &from, const QRectF &to)
{
    constexpr double noLength = 1e-6;
    const double scaleX = from.width() > noLength ? to.width() / from.width() : 1;
    const double scaleY = from.height() > noLength ? to.height() / from.height() : 1;
    return QTransform::fromTranslate(-from.center().x(), -from.center().y()) * QTransform::fromScale(scaleX, scaleY)
        * QTransform::fromTranslate(to.center().x(), to.center().y());
}

QPainterPath onPage(const QPainterPath &outline, const QRectF &covered, const ItemView &item)
{
    const auto box = item.box();
    const QTransform place = placeOnPage(item);
    return (box && !box->isEmpty() ? fitInto(covered, *box) * place : place).map(outline);
}

PlacedBox::PlacedBox(const ItemView &item)
    : PlacedBox(item.box().value_or(extentOf(item.points(ItemKeys::control))), placeOnPage(item))
{
}

PlacedBox::PlacedBox(const QRectF &box, const QTransform &page)
{
    if (!box.isEmpty()) {
        place = fitInto(QRectF(0, 0, 1, 1), box) * page;
        width = QLineF(place.map(QPointF(0, 0)), place.map(QPointF(1, 0))).length();
        height = QLineF(place.map(QPointF(0, 0)), place.map(QPointF(0, 1))).length();
    }
}

QTransform PlacedBox::inPixels() const
{
    return QTransform::fromScale(1 / width, 1 / height) * QTransform::fromTranslate(0.5, 0.5) * place;
}

QPolygonF fittedPoints(const QPolygonF &points, const std::optional<QRectF> &box)
{
    if (!box) {
        return points;
    }
    const QRectF extent = extentOf(points);
    const QRectF room = box->adjusted(-1, -1, 1, 1);
    for (const QPointF &offset : {QPointF(), box->topLeft()}) {
        const QRectF moved = extent.translated(offset);
        if (room.contains(moved.topLeft()) && room.contains(moved.bottomRight())) {
            return points.translated(offset);
        }
    }
    QTransform stretched = QTransform::fromTranslate(box->left(), box->top());
    stretched.scale(extent.width() > 0 ? box->width() / extent.width() : 1,
                    extent.height() > 0 ? box->height() / extent.height() : 1);
    stretched.translate(-extent.left(), -extent.top());
    return stretched.map(points);
}

QColor firstColor(const ItemView &item, std::initializer_list<const char *> keys, const QColor &missing)
{
    for (const char *key : keys) {
        if (const auto color = item.color(QLatin1String(key))) {
            return *color;
        }
    }
    return missing;
}

double outlineWidth(const ItemView &item, QLatin1String key)
{
    constexpr double usual = 2;
    constexpr double widest = 500;
    return qBound(0.0, item.number(key, usual), widest);
}

} // namespace lessonhost
