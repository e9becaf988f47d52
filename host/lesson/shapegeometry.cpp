// SPDX-License-Identifier: MIT
#include "lesson/shapegeometry.h"

#include "lesson/planegeometry.h"

#include <cmath>

namespace lessonhost {

QSizeF ownRadii(const ItemView &item, ShapeForm::Outline outline, const QPointF &origin)
{
    const QPolygonF rim = item.points(ItemKeys::control);
    const auto radius = [&](int i, double usual) {
        return i < rim.size() ? std::hypot(rim.at(i).x() - origin.x(), rim.at(i).y() - origin.y()) : usual;
    };
    if (outline == ShapeForm::Circle) {
        const double r = radius(0, 50);
        return QSizeF(r, r);
    }
    return QSizeF(radius(0, 100), radius(1, 100));
}

QPolygonF shapePoints(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines)
{
    QPolygonF points;
    switch (form.outline) {
    case ShapeForm::Polyline:
        return item.polyline();
    case ShapeForm::Circle:
    case ShapeForm::Ellipse:
        return points;
    case ShapeForm::Derived:
        return outlines(withImplied(item.json(), form));
    case ShapeForm::Segment:
        return item.points(ItemKeys::control).mid(0, 2);
    case ShapeForm::Angle:
        points = item.points(ItemKeys::control).mid(0, 2);
        if (points.size() == 2) {
            points.append(QPointF());
        }
        return points;
    default:
        return item.points(ItemKeys::control);
    }
}

QRectF shapeExtent(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines)
{
    if (form.outline == ShapeForm::Circle || form.outline == ShapeForm::Ellipse) {
        const QSizeF radii = ownRadii(item, form.outline, QPointF());
        const QPointF corner(radii.width(), radii.height());
        return QRectF(-corner, corner);
    }
    const QPolygonF points = shapePoints(item, form, outlines);
    if (form.outline == ShapeForm::Rectangle && points.size() < 2) {
        return item.box().value_or(QRectF());
    }
    return extentOf(points);
}

} // namespace lessonhost
