// SPDX-License-Identifier: MIT
#include "iwb/drawnplace.h"

#include "iwb/shapeplacing.h"
#include "lesson/groupplace.h"
#include "lesson/itemview.h"
#include "lesson/pageplace.h"
#include "lesson/planegeometry.h"
#include "losses/modelvalues.h"
#include "svg/inkpath.h"

#include <algorithm>
#include <cmath>
#include <set>

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

bool isInkItem(const QJsonObject &item, const ShapeForm *form)
{
    return !form && !isNothing(item.value(ItemKeys::steps));
}

// Whether the values that the item is drawn from are what they should be.
bool isWhole(const QJsonObject &item, const ShapeForm *form)
{
    // A turn beside a matrix draws nothing.
    const bool isUnderMatrix = !isNothing(item.value(ItemKeys::matrix));
    if (!hasNumbers(item, isUnderMatrix ? ItemKeys::matrix : ItemKeys::angle, isUnderMatrix ? 6 : 1)) {
        return false;
    }
    if (isInkItem(item, form)) {
        return hasPairs(item, ItemKeys::steps)
            && (isUnderMatrix || hasNumbers(item, ItemKeys::box, 4) || !ItemView(item).box());
    }
    if (!hasNumbers(item, ItemKeys::box, 4)) {
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

// The points that are drawn on the page; for round shapes, pictures and texts the corners of their boxes.
QPolygonF drawnPoints(const QJsonObject &item, const ShapeForm *form, const OutlineSource &outlines)
{
    const ItemView view(item);
    if (isInkItem(item, form)) {
        return placeOfStroke(view).map(view.strokePoints());
    }
    if (!form) {
        const auto place = view.place();
        return place ? turnedCorners(place->box, place->angle) : QPolygonF();
    }
    const PlacedShape placed = placeShape(view, *form, outlines);
    switch (placed.form->outline) {
    case ShapeForm::Circle:
    case ShapeForm::Ellipse:
        // A circle may be told by a box that isn't quite square, and has no turn.
        return turnedCorners(view.box().value_or(QRectF()), view.angle());
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

bool isSamePoint(const QPointF &one, const QPointF &other)
{
    const QPointF apart = one - other;
    return QPointF::dotProduct(apart, apart) < smallestDistance * smallestDistance;
}

// Without points that only repeat the one before them.
QPolygonF withoutRepeats(QPolygonF points)
{
    points.erase(std::unique(points.begin(), points.end(), isSamePoint), points.end());
    return points;
}

// Whether no point is taken for another one, or for the one before it, when it has six digits and single precision.
bool isWellApart(const QPolygonF &points)
{
    constexpr double farthest = 9999; // the last digit is a hundredth
    constexpr double nearest = 3 * smallestDistance;
    for (int i = 0; i < points.size(); ++i) {
        const QPointF &point = points.at(i);
        if (!(std::abs(point.x()) < farthest && std::abs(point.y()) < farthest)
            || (i > 0 && !(std::hypot(point.x() - points.at(i - 1).x(), point.y() - points.at(i - 1).y()) > nearest))) {
            return false;
        }
    }
    return true;
}

} // namespace

QPolygonF shortLineOf(const QJsonObject &stroke, const QPolygonF &line)
{
    constexpr int fewPoints = 16;
    if (line.size() <= fewPoints || !isNothing(stroke.value(ItemKeys::matrix)) || !isWhole(stroke, nullptr)
        || !isWellApart(line)) {
        return {};
    }
    const auto place = [&line](const QPointF &point) { return int(&point - line.constData()); };
    const auto [left, right] = std::minmax_element(
        line.cbegin(), line.cend(), [](const QPointF &one, const QPointF &other) { return one.x() < other.x(); });
    const auto [top, bottom] = std::minmax_element(
        line.cbegin(), line.cend(), [](const QPointF &one, const QPointF &other) { return one.y() < other.y(); });
    const std::set<int> kept{
        0, 1, place(*left), place(*right), place(*top), place(*bottom), line.size() - 2, line.size() - 1};
    QPolygonF few;
    for (const int index : kept) {
        few.append(line.at(index));
    }
    return isWellApart(few) ? few : QPolygonF();
}

bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, const OutlineSource &outlines,
                  const QTransform &moved, const QPolygonF &line, const QPolygonF &foundLine)
{
    const ShapeForm *form = shapeForm(given.value(ItemKeys::type).toString());
    const ShapeForm *foundForm = shapeForm(found.value(ItemKeys::type).toString());
    if (!isWhole(given, form)) {
        return false;
    }
    const bool isUnderMatrix = !isNothing(given.value(ItemKeys::matrix));
    const QJsonObject placed =
        isUnderMatrix ? slideInPageForm({{}, {given}}, outlines).items.first().toObject() : given;
    const bool hasPlace = isInkItem(placed, form) || !isNothing(placed.value(ItemKeys::box));
    // What a slanted rectangle becomes has points of its own, a slanted picture nothing that tells.
    const bool isUnplaced = !isNothing(placed.value(ItemKeys::matrix));
    if (!hasPlace || (isUnplaced && !form && !isInkItem(given, form) && ItemView(given).isSetUpright())) {
        return false;
    }
    QPolygonF drawn = line;
    if (line.isEmpty()) {
        drawn = drawnPoints(isUnplaced || isInkItem(given, form) ? given : placed, form, outlines);
        drawn = isInkItem(given, form) ? fineLine(drawn) : drawn;
    }
    const QPolygonF one = withoutRepeats(moved.map(drawn));
    const QPolygonF other = withoutRepeats(foundLine.isEmpty() ? drawnPoints(found, foundForm, outlines)
                                                               : placeOfStroke(ItemView(found)).map(foundLine));
    return !one.isEmpty() && std::equal(one.cbegin(), one.cend(), other.cbegin(), other.cend(), isSamePoint);
}

} // namespace lessonhost
