#include "iwb/drawnplace.h"

#include "iwb/shapeplacing.h"
#include "lesson/itemview.h"
#include "lesson/planegeometry.h"
#include "losses/modelvalues.h"

#include <algorithm>

namespace lessonhost {

namespace {

// What is written has six digits.
constexpr double smallestDistance = 0.01;

bool hasNumbers(const QJsonObject &item, QLatin1String key, int count)
{
    const QJsonValue value = item.value(key);
    const auto numbers = wholeNumbers(value);
    return isNothing(value) || (numbers && numbers->size() == count);
}

bool hasPairs(const QJsonObject &item, QLatin1String key)
{
    const QJsonValue value = item.value(key);
    const auto numbers = wholeNumbers(value);
    return isNothing(value) || (numbers && numbers->size() % 2 == 0);
}

bool isInk(const QJsonObject &item, const ShapeForm *form)
{
    return !form && !isNothing(item.value(ItemKeys::steps));
}

// Whether the values that the item is drawn from are what they should be.
bool isWhole(const QJsonObject &item, const ShapeForm *form)
{
    if (!isNothing(item.value(ItemKeys::matrix)) || !hasNumbers(item, ItemKeys::angle, 1)) {
        return false;
    }
    if (isInk(item, form)) {
        return hasPairs(item, ItemKeys::steps);
    }
    if (isNothing(item.value(ItemKeys::box)) || !hasNumbers(item, ItemKeys::box, 4)) {
        return false;
    }
    switch (form ? form->outline : ShapeForm::Rectangle) {
    case ShapeForm::Segment:
        return hasNumbers(item, ItemKeys::control, 4);
    case ShapeForm::Polyline:
        return hasPairs(item, ItemKeys::polyline);
    case ShapeForm::Polygon:
    case ShapeForm::Angle:
        return hasPairs(item, ItemKeys::control);
    default:
        return true; // a box has no use for points
    }
}

QPolygonF turnedCorners(const QRectF &box, double angle)
{
    const QPolygonF corners = QPolygonF() << box.topLeft() << box.topRight() << box.bottomRight() << box.bottomLeft();
    return turnAbout(box.center(), angle).map(corners);
}

QPolygonF roundShape(const PlacedShape &placed)
{
    const QVector<double> rim = itemNumbers(placed.geometry.value(ItemKeys::control));
    const QTransform matrix = itemTransform(placed.geometry.value(ItemKeys::matrix)).value_or(QTransform());
    const bool isCircle = placed.form->outline == ShapeForm::Circle;
    const QPointF corner(rim.value(0), isCircle ? rim.value(0) : rim.value(3));
    const QPointF center = matrix.map(QPointF());
    return turnedCorners(QRectF(center - corner, center + corner), isCircle ? 0 : placed.angle);
}

// The points that are drawn on the page; for round shapes, pictures and texts the corners of their boxes.
QPolygonF drawnPoints(const QJsonObject &item, const ShapeForm *form, const OutlineSource &outlines)
{
    const ItemView view(item);
    if (isInk(item, form)) {
        const QPolygonF points = view.strokePoints();
        return turnAbout(extentOf(points).center(), view.angle()).map(points);
    }
    if (!form) {
        const auto place = view.place();
        return place ? turnedCorners(place->box, place->angle) : QPolygonF();
    }
    const PlacedShape placed = placeShape(view, *form, outlines);
    switch (placed.form->outline) {
    case ShapeForm::Circle:
    case ShapeForm::Ellipse:
        return roundShape(placed);
    case ShapeForm::Rectangle:
        return turnedCorners(placed.box.value_or(QRectF()), placed.angle);
    default:
        break;
    }
    QPolygonF points = shapePoints(ItemView(placed.geometry), *placed.form, outlines);
    const auto matrix = itemTransform(placed.geometry.value(ItemKeys::matrix));
    points = matrix ? matrix->map(points) : points;
    const bool isClosed = placed.form->outline == ShapeForm::Polygon || placed.form->outline == ShapeForm::Derived;
    if (isClosed && !points.isEmpty()) {
        points.append(points.first());
    }
    return points;
}

bool isNear(const QPointF &one, const QPointF &other)
{
    return (one - other).manhattanLength() < smallestDistance;
}

// Without points that only repeat the one before them.
QPolygonF withoutRepeats(QPolygonF points)
{
    points.erase(std::unique(points.begin(), points.end(), isNear), points.end());
    return points;
}

} // namespace

bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, const OutlineSource &outlines)
{
    const ShapeForm *form = shapeForm(given.value(ItemKeys::type).toString());
    const ShapeForm *foundForm = shapeForm(found.value(ItemKeys::type).toString());
    if (!isWhole(given, form)) {
        return false;
    }
    const QPolygonF one = withoutRepeats(drawnPoints(given, form, outlines));
    const QPolygonF other = withoutRepeats(drawnPoints(found, foundForm, outlines));
    return std::equal(one.cbegin(), one.cend(), other.cbegin(), other.cend(), isNear);
}

} // namespace lessonhost
