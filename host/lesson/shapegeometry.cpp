#include "lesson/shapegeometry.h"

#include "lesson/itemplace.h"
#include "lesson/itemvalues.h"
#include "lesson/planegeometry.h"
#include "lesson/shapeforms.h"

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String boxKey("BoundingBox");
const QLatin1String controlKey("Control");
const QLatin1String pointsKey("XYValue");

// XYValue ends in one character that is no part of the numbers; a digit at the end is one.
QPolygonF polylinePoints(const QJsonObject &item)
{
    const QJsonValue value = item.value(pointsKey);
    QString text = value.toString();
    if (!text.isEmpty() && !text.at(text.size() - 1).isDigit()) {
        text.chop(1);
    }
    return pointsOf(itemNumbers(value.isArray() ? value : QJsonValue(text)));
}

QPolygonF ownPoints(const QJsonObject &item, const ShapeForm &form, const OutlineSource &outlines)
{
    QPolygonF points;
    switch (form.outline) {
    case ShapeForm::Polyline:
        return polylinePoints(item);
    case ShapeForm::Circle:
    case ShapeForm::Ellipse:
        return points;
    case ShapeForm::Derived:
        return outlines(item);
    case ShapeForm::Segment:
        points = pointsOf(itemNumbers(item.value(controlKey)).mid(0, 4));
        break;
    case ShapeForm::Angle:
        points = pointsOf(itemNumbers(item.value(controlKey)).mid(0, 4));
        if (points.size() == 2) {
            points.append(QPointF());
        }
        break;
    default:
        points = pointsOf(itemNumbers(item.value(controlKey)));
        break;
    }
    return points;
}

} // namespace

std::optional<QPointF> createdAt(const QJsonObject &item)
{
    const QLatin1String x("Discipline_xCreate");
    const QLatin1String y("Discipline_yCreate");
    if (item.contains(boxKey) || !item.contains(x) || !item.contains(y)) {
        return std::nullopt;
    }
    return QPointF(item.value(x).toString().toDouble(), item.value(y).toString().toDouble());
}

QSizeF ownRadii(const QJsonObject &item, ShapeForm::Outline outline, const QPointF &origin)
{
    const QPolygonF rim = pointsOf(itemNumbers(item.value(controlKey)));
    const auto radius = [&](int i, double usual) {
        return i < rim.size() ? std::hypot(rim.at(i).x() - origin.x(), rim.at(i).y() - origin.y()) : usual;
    };
    if (outline == ShapeForm::Circle) {
        const double r = radius(0, 50);
        return QSizeF(r, r);
    }
    return QSizeF(radius(0, 100), radius(1, 100));
}

QPolygonF shapePoints(const QJsonObject &item, const ShapeForm &form, const OutlineSource &outlines)
{
    return ownPoints(withImplied(item, form), form, outlines);
}

QRectF shapeExtent(const QJsonObject &item, const ShapeForm &form, const OutlineSource &outlines)
{
    if (form.outline == ShapeForm::Circle || form.outline == ShapeForm::Ellipse) {
        const QSizeF radii = ownRadii(item, form.outline, QPointF());
        const QPointF corner(radii.width(), radii.height());
        return QRectF(-corner, corner);
    }
    const QPolygonF points = shapePoints(item, form, outlines);
    if (form.outline == ShapeForm::Rectangle && points.size() < 2) {
        return boxOf(item).value_or(QRectF());
    }
    return extentOf(points);
}

} // namespace lessonhost
