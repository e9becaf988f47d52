// SPDX-License-Identifier: MIT
#include "lesson/pageplace.h"

#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/planegeometry.h"
#include "lesson/shapeforms.h"
#include "lesson/shapegeometry.h"
#include "lesson/textruns.h"

#include <QColor>
#include <QJsonArray>

#include <cmath>

namespace lessonhost {

namespace {

// The numbers of a key, none where it is missing; nothing where they are wrong.
std::optional<QVector<double>> placeNumbers(const QJsonObject &item, QLatin1String key)
{
    const QJsonValue value = item.value(key);
    if (isEmptyValue(value)) {
        return QVector<double>();
    }
    QString text = valueText(value);
    if (key != ItemKeys::polyline || value.isArray() || text.at(text.size() - 1).isDigit()) {
        return wholeNumbers(value);
    }
    text.chop(1); // the one character more of a polyline
    return wholeNumbers(text);
}

double largest(const QVector<double> &numbers)
{
    double result = 0;
    for (const double number : numbers) {
        result = qMax(result, qAbs(number));
    }
    return result;
}

// What can be worked in: wrong values would become good ones in silence, and far places lose their last digits.
bool hasWholePlace(const QJsonObject &item)
{
    constexpr double farthest = 1e9;
    const auto matrix = placeNumbers(item, ItemKeys::matrix);
    const auto box = placeNumbers(item, ItemKeys::box);
    const auto width = placeNumbers(item, ItemKeys::width);
    const bool isSized = box && (box->isEmpty() || box->size() == 4) && width && width->size() <= 1;
    if (!matrix || matrix->size() != 6 || !isSized) {
        return false;
    }
    QVector<double> all = *box + *width;
    QVector<QLatin1String> pointKeys{ItemKeys::steps};
    if (shapeForm(item.value(ItemKeys::type).toString())) {
        pointKeys += {ItemKeys::control, ItemKeys::polyline};
    }
    for (const QLatin1String key : qAsConst(pointKeys)) {
        const auto numbers = placeNumbers(item, key);
        if (!numbers || numbers->size() % 2 != 0) {
            return false;
        }
        all += *numbers;
    }
    return largest(matrix->mid(0, 4)) * largest(all) + largest(matrix->mid(4)) <= farthest;
}

bool isPlain(const QTransform &matrix)
{
    const auto parts = scaleAndTurn(matrix);
    return parts && parts->scaleY > 0;
}

QJsonArray numbersOf(const QPolygonF &points)
{
    QJsonArray numbers;
    for (const QPointF &point : points) {
        numbers.append(point.x());
        numbers.append(point.y());
    }
    return numbers;
}

void setPlace(QJsonObject &item, const ItemPlace &place)
{
    item.insert(ItemKeys::box, boxText(place.box));
    if (qAbs(place.angle) > 1e-7) {
        item.insert(ItemKeys::angle, exactText(place.angle));
    } else if (item.contains(ItemKeys::angle)) {
        item.insert(ItemKeys::angle, QStringLiteral("0"));
    }
}

// What has nothing but its box. False where a turned box can't tell how it is drawn.
bool placeBox(QJsonObject &item, const QTransform &matrix)
{
    const auto place = ItemView(item).place();
    if (!place) {
        return matrix.isIdentity();
    }
    setPlace(item, *place);
    return isPlain(matrix);
}

// The points of the page in the place of the item's own.
void setPoints(QJsonObject &item, const ShapeForm &form, const QPolygonF &points)
{
    if (form.outline == ShapeForm::Polyline) {
        item.insert(ItemKeys::polyline, QString(pointsText(points) + QLatin1Char(',')));
    } else if (form.outline == ShapeForm::Angle && points.size() == 3) {
        QJsonArray numbers = numbersOf(QPolygonF() << points.at(0) - points.at(2) << points.at(1) - points.at(2));
        // What stands behind the two arms isn't drawn, but is the lesson's.
        const QVector<double> given = ItemView(item).numbers(ItemKeys::control);
        for (int i = numbers.size(); i < given.size(); ++i) {
            numbers.append(given.at(i));
        }
        item.insert(ItemKeys::control, numbers);
    } else {
        item.insert(ItemKeys::control, numbersOf(points));
    }
    setPlace(item, {extentOf(points), 0});
}

// False where a turned box can't tell how the shape is drawn.
bool placeDrawing(QJsonObject &item, const ShapeForm &form, const QTransform &matrix, const OutlineSource &outlines)
{
    const ItemView view(item);
    const QRectF own = shapeExtent(view, form, outlines);
    const ItemPlace place = placeUnder(matrix, own);
    switch (form.outline) {
    case ShapeForm::Circle: {
        const QPolygonF rim = view.points(ItemKeys::control);
        const QPointF arm = matrix.map(rim.isEmpty() ? QPointF(50, 0) : rim.first()) - matrix.map(QPointF());
        const double radius = std::hypot(arm.x(), arm.y());
        const QPointF corner(radius, radius);
        setPlace(item, {QRectF(matrix.map(QPointF()) - corner, matrix.map(QPointF()) + corner), 0});
        return true;
    }
    case ShapeForm::Ellipse:
        setPlace(item, place);
        return true;
    case ShapeForm::Rectangle:
        setPlace(item, place);
        return scaleAndTurn(matrix).has_value();
    case ShapeForm::Derived:
        setPlace(item, place);
        return isPlain(matrix);
    default:
        break;
    }
    const QPolygonF points = shapePoints(view, form, outlines);
    if (points.isEmpty()) {
        return placeBox(item, matrix);
    }
    if (isPlain(matrix)) {
        setPlace(item, place);
    } else {
        setPoints(item, form, matrix.map(points));
    }
    return true;
}

// The first pair of a stroke is a place, each further one a step.
void placeInk(QJsonObject &item, const QTransform &matrix)
{
    const ItemView view(item);
    const QTransform steps(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), 0, 0);
    QPolygonF points = view.points(ItemKeys::steps);
    for (int i = 0; i < points.size(); ++i) {
        points[i] = (i == 0 ? matrix : steps).map(points.at(i));
    }
    item.insert(ItemKeys::steps, pointsText(points));
    if (item.contains(ItemKeys::width)) {
        item.insert(ItemKeys::width, exactText(view.numbers(ItemKeys::width).value(0, strokeWidth) * view.scale()));
    }
    const QVector<double> box = view.numbers(ItemKeys::box);
    if (box.size() >= 4) {
        const QRectF own(QPointF(box.at(0), box.at(1)), QPointF(box.at(2), box.at(3)));
        setPlace(item, {matrix.mapRect(own), 0});
    }
    item.remove(ItemKeys::angle);
}

bool placeItem(QJsonObject &item, const QTransform &matrix, const OutlineSource &outlines)
{
    const ItemView view(item);
    if (const ShapeForm *form = shapeForm(view.type())) {
        return placeDrawing(item, *form, matrix, outlines);
    }
    if (view.has(ItemKeys::steps) && !isContainer(view.type())) {
        if (view.points(ItemKeys::steps).isEmpty()) {
            return matrix.isIdentity();
        }
        placeInk(item, matrix);
        return true;
    }
    return placeBox(item, matrix);
}

// The letters of raw text have a size of their own, which its matrix scales.
void makeHtml(QJsonObject &item)
{
    const ItemView view(item);
    if (!isTextBoard(view.type()) || view.has(ItemKeys::html)) {
        return;
    }
    const auto plainKeys = {ItemKeys::text, ItemKeys::textContent};
    for (const QLatin1String key : plainKeys) {
        const QString text = view.text(key);
        const QJsonValue value = item.value(key);
        if (text.isEmpty() || value.isObject() || value.isArray()) {
            continue;
        }
        IwbTextInfoList runs = textRunsFromPlainText(text).runs;
        for (IwbTextInfo &run : runs) {
            run.fontSize = QString::number(run.fontSize.toDouble() * view.scale());
        }
        item.insert(ItemKeys::html, htmlFromTextRuns(runs));
        for (const QLatin1String same : plainKeys) {
            if (view.text(same) == text && withoutControlCharacters(text) == text) {
                item.remove(same);
            }
        }
        return;
    }
}

struct Placing
{
    const OutlineSource &outlines;
    const TypeTest &isHeld;
    int placed; // how many items
};

QJsonArray itemsInPageForm(const QJsonArray &items, Placing &placing);

// A raw group stands around its items, which are placed by themselves; its own box isn't one of the page.
void placeGroup(QJsonObject &group, Placing &placing)
{
    const int before = placing.placed;
    const QJsonArray children = itemsInPageForm(group.value(HostKeys::children).toArray(), placing);
    group.insert(HostKeys::children, children);
    if (placing.placed == before) {
        return;
    }
    QRectF all;
    for (const QJsonValue &child : children) {
        if (const auto place = ItemView(child.toObject()).place()) {
            all |= place->extent();
        }
    }
    if (!all.isNull()) {
        group.insert(ItemKeys::box, boxText(all));
    }
    const auto matrix = itemTransform(group.value(ItemKeys::matrix));
    if (matrix && matrix->isIdentity() && hasWholePlace(group)) {
        group.remove(ItemKeys::matrix);
    }
}

QJsonObject itemInPageForm(QJsonObject item, Placing &placing)
{
    if (placing.isHeld && placing.isHeld(item.value(ItemKeys::type).toString())) {
        return item;
    }
    nameMediaFile(item);
    makeHtml(item);
    item = withoutDoubledWidth(item);
    if (isContainer(item.value(ItemKeys::type).toString())) {
        if (!ItemView(item).children().isEmpty()) {
            placeGroup(item, placing);
            return item;
        }
    } else if (!ItemView(item).childObjects().isEmpty()) {
        // No group, whatever it holds: its box is its own.
        item.insert(HostKeys::children, itemsInPageForm(item.value(HostKeys::children).toArray(), placing));
    }
    const auto matrix = itemTransform(item.value(ItemKeys::matrix));
    item.remove(ItemKeys::slideMatrix); // its part in the matrix
    if (matrix && hasWholePlace(item) && placeItem(item, *matrix, placing.outlines)) {
        item.remove(ItemKeys::matrix);
        ++placing.placed;
    }
    return item;
}

QJsonArray itemsInPageForm(const QJsonArray &items, Placing &placing)
{
    QJsonArray result;
    for (const QJsonValue &item : items) {
        if (item.isObject()) {
            result.append(itemInPageForm(item.toObject(), placing));
        }
    }
    return result;
}

void makeBackground(QJsonObject &properties)
{
    const auto color = backColor(properties.value(SlideKeys::backColor));
    if (color && isEmptyValue(properties.value(SlideKeys::color))) {
        properties.insert(SlideKeys::color, colorText(*color));
        properties.remove(SlideKeys::backColor);
    }
    const QString files = valueText(properties.value(SlideKeys::files));
    if (!files.isEmpty() && isEmptyValue(properties.value(SlideKeys::document))) {
        properties.insert(SlideKeys::document, files.section(QLatin1Char(','), 0, 0));
        if (!files.contains(QLatin1Char(','))) {
            properties.remove(SlideKeys::files);
        }
        if (files.startsWith(QLatin1String("ID_SLIDE_NOTEBOOK_"))) {
            properties.remove(SlideKeys::texture);
        }
    }
}

} // namespace

LessonSlide slideInPageForm(const LessonSlide &slide, const OutlineSource &outlines, int *placed,
                            const TypeTest &isHeld)
{
    LessonSlide result = slide;
    Placing placing{outlines, isHeld, 0};
    makeBackground(result.properties);
    result.items = itemsInPageForm(slide.items, placing);
    // It tells what the matrices were fitted from.
    result.properties.remove(SlideKeys::sourceRect);
    if (placed) {
        *placed += placing.placed;
    }
    return result;
}

QJsonObject keptInPageForm(const QJsonObject &own, const QJsonObject &inPageForm)
{
    QJsonObject kept = own;
    const bool isPlaced = own.contains(ItemKeys::matrix) && !inPageForm.contains(ItemKeys::matrix);
    const bool isGroup = own.contains(HostKeys::children);
    const auto placeKeys = {ItemKeys::box,   ItemKeys::angle, ItemKeys::control, ItemKeys::polyline,
                            ItemKeys::steps, ItemKeys::width, ItemKeys::matrix};
    for (const QLatin1String key : placeKeys) {
        const bool isOwnTurn = key == ItemKeys::angle && !isTurnOfMatrix(own);
        const QJsonValue placed = inPageForm.value(key);
        if (placed.isUndefined() && !isOwnTurn) {
            kept.remove(key);
        } else if ((isPlaced || isGroup) && !isOwnTurn && placed != own.value(key)) {
            kept.insert(key, placed);
        }
    }
    for (const QLatin1String key : {ItemKeys::slideMatrix, SlideKeys::sourceRect, SlideKeys::texture}) {
        if (!inPageForm.contains(key)) {
            kept.remove(key);
        }
    }
    for (const QLatin1String key : {ItemKeys::text, ItemKeys::textContent}) {
        if (own.contains(key) && !inPageForm.contains(key)) {
            kept.remove(key);
            kept.insert(ItemKeys::html, inPageForm.value(ItemKeys::html));
        }
    }
    return kept;
}

bool isTurnOfMatrix(const QJsonObject &item)
{
    constexpr double smallestTurn = 1e-4;
    const ItemView view(item);
    const auto matrix = view.matrix();
    if (!view.has(ItemKeys::angle) || !matrix) {
        return true;
    }
    bool isNumber = false;
    const double angle = view.text(ItemKeys::angle).toDouble(&isNumber);
    const double turn = std::remainder(angle - std::atan2(matrix->m12(), matrix->m11()), 2 * M_PI);
    return isNumber && qAbs(turn) < smallestTurn;
}

void nameMediaFile(QJsonObject &item)
{
    const QString files = valueText(item.value(ItemKeys::mediaFiles));
    if (files.isEmpty() || !isEmptyValue(item.value(ItemKeys::resource))) {
        return;
    }
    item.insert(ItemKeys::resource, files.section(QLatin1Char(','), 0, 0));
    if (!files.contains(QLatin1Char(','))) {
        item.remove(ItemKeys::mediaFiles);
    }
}

} // namespace lessonhost
