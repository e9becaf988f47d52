#include "lesson/pageplace.h"

#include "lesson/itemplace.h"
#include "lesson/itemvalues.h"
#include "lesson/planegeometry.h"
#include "lesson/shapeforms.h"
#include "lesson/shapegeometry.h"
#include "lesson/textruns.h"

#include <QColor>
#include <QJsonArray>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String typeKey("Type");
const QLatin1String boxKey("BoundingBox");
const QLatin1String matrixKey("Matrix");
const QLatin1String slideMatrixKey("SlideMatrix");
const QLatin1String angleKey("Angle");
const QLatin1String controlKey("Control");
const QLatin1String strokeKey("XY");
const QLatin1String childrenKey("Children");

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
    item.insert(boxKey, boxText(place.box));
    if (qAbs(place.angle) > 1e-7) {
        item.insert(angleKey, exactText(place.angle));
    } else if (item.contains(angleKey)) {
        item.insert(angleKey, QStringLiteral("0"));
    }
}

// The points of the page in the place of the item's own.
void setPoints(QJsonObject &item, const ShapeForm &form, const QPolygonF &points)
{
    if (form.outline == ShapeForm::Polyline) {
        item.insert(QLatin1String("XYValue"), QString(pointsText(points) + QLatin1Char(',')));
    } else if (form.outline == ShapeForm::Angle && points.size() == 3) {
        item.insert(controlKey, numbersOf(QPolygonF() << points.at(0) - points.at(2) << points.at(1) - points.at(2)));
    } else {
        item.insert(controlKey, numbersOf(points));
    }
    setPlace(item, {extentOf(points), 0});
}

// False where a turned box can't tell how the shape is drawn.
bool placeDrawing(QJsonObject &item, const ShapeForm &form, const QTransform &matrix, const OutlineSource &outlines)
{
    const QRectF own = shapeExtent(item, form, outlines);
    ItemPlace place = placeUnder(matrix, own);
    switch (form.outline) {
    case ShapeForm::Circle: {
        const QPolygonF rim = pointsOf(itemNumbers(item.value(controlKey)));
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
    if (isPlain(matrix)) {
        setPlace(item, place);
    } else {
        setPoints(item, form, matrix.map(shapePoints(item, form, outlines)));
    }
    return true;
}

// The first pair of a stroke is a place, each further one a step.
void placeInk(QJsonObject &item, const QTransform &matrix)
{
    const QTransform steps(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), 0, 0);
    QPolygonF points = pointsOf(itemNumbers(item.value(strokeKey)));
    for (int i = 0; i < points.size(); ++i) {
        points[i] = (i == 0 ? matrix : steps).map(points.at(i));
    }
    item.insert(strokeKey, pointsText(points));
    const QLatin1String widthKey("Width");
    if (item.contains(widthKey)) {
        item.insert(widthKey, exactText(itemNumbers(item.value(widthKey)).value(0, 5) * itemScale(item)));
    }
    const QVector<double> box = itemNumbers(item.value(boxKey));
    if (box.size() >= 4) {
        const QRectF own(QPointF(box.at(0), box.at(1)), QPointF(box.at(2), box.at(3)));
        setPlace(item, {matrix.mapRect(own), 0});
    }
    item.remove(angleKey);
}

bool placeItem(QJsonObject &item, const QTransform &matrix, const OutlineSource &outlines)
{
    if (const ShapeForm *form = shapeForm(item.value(typeKey).toString())) {
        return placeDrawing(item, *form, matrix, outlines);
    }
    if (item.contains(strokeKey)) {
        placeInk(item, matrix);
        return true;
    }
    const auto place = itemPlace(item);
    if (!place) {
        return matrix.isIdentity();
    }
    setPlace(item, *place);
    return isPlain(matrix);
}

// The letters of raw text have a size of their own, which its matrix scales.
void makeHtml(QJsonObject &item)
{
    const QLatin1String htmlKey("TextHtml");
    const QString type = item.value(typeKey).toString();
    const bool isText = type == QLatin1String("ZQTextBoard") || type == QLatin1String("text");
    if (!isText || !item.value(htmlKey).toString().isEmpty()) {
        return;
    }
    for (const char *key : {"Text", "TextContent"}) {
        const QString text = item.value(QLatin1String(key)).toString();
        if (text.isEmpty()) {
            continue;
        }
        IwbTextInfoList runs = textRunsFromPlainText(text).runs;
        for (IwbTextInfo &run : runs) {
            run.fontSize = QString::number(run.fontSize.toDouble() * itemScale(item));
        }
        item.insert(htmlKey, htmlFromTextRuns(runs));
        for (const char *same : {"Text", "TextContent"}) {
            if (item.value(QLatin1String(same)).toString() == text) {
                item.remove(QLatin1String(same));
            }
        }
        return;
    }
}

QJsonArray itemsInPageForm(const QJsonArray &items, const OutlineSource &outlines, int &placed);

// A raw group stands around its items, which are placed by themselves; its own box isn't one of the page.
void placeGroup(QJsonObject &group, const OutlineSource &outlines, int &placed)
{
    const int before = placed;
    const QJsonArray children = itemsInPageForm(group.value(childrenKey).toArray(), outlines, placed);
    group.insert(childrenKey, children);
    if (placed == before) {
        return;
    }
    QRectF all;
    for (const QJsonValue &child : children) {
        const auto place = itemPlace(child.toObject());
        if (place) {
            const QPointF center = place->box.center();
            QTransform turn = QTransform::fromTranslate(center.x(), center.y());
            turn.rotateRadians(place->angle);
            turn.translate(-center.x(), -center.y());
            all |= turn.mapRect(place->box);
        }
    }
    if (!all.isNull()) {
        group.insert(boxKey, boxText(all));
    }
    const auto matrix = transformOfText(group.value(matrixKey).toString());
    if (matrix && matrix->isIdentity()) {
        group.remove(matrixKey);
    }
}

QJsonObject itemInPageForm(QJsonObject item, const OutlineSource &outlines, int &placed)
{
    nameMediaFile(item);
    makeHtml(item);
    item = withoutDoubledWidth(item);
    if (!item.value(childrenKey).toArray().isEmpty()) {
        placeGroup(item, outlines, placed);
        return item;
    }
    const auto matrix = transformOfText(item.value(matrixKey).toString());
    item.remove(slideMatrixKey); // its part in the matrix
    if (matrix && placeItem(item, *matrix, outlines)) {
        item.remove(matrixKey);
        ++placed;
    }
    return item;
}

QJsonArray itemsInPageForm(const QJsonArray &items, const OutlineSource &outlines, int &placed)
{
    QJsonArray result;
    for (const QJsonValue &item : items) {
        result.append(itemInPageForm(item.toObject(), outlines, placed));
    }
    return result;
}

void makeBackground(QJsonObject &properties)
{
    const QLatin1String numberKey("BackColor");
    const QLatin1String colorKey("color");
    const QJsonValue number = properties.value(numberKey);
    if (number.isDouble() && properties.value(colorKey).toString().isEmpty()) {
        properties.insert(colorKey, colorText(QColor(QRgb(number.toInt()))));
        properties.remove(numberKey);
    }
    const QLatin1String filesKey("AttachFile");
    const QLatin1String documentKey("document");
    const QString files = properties.value(filesKey).toString();
    if (!files.isEmpty() && properties.value(documentKey).toString().isEmpty()) {
        properties.insert(documentKey, files.section(QLatin1Char(','), 0, 0));
        if (!files.contains(QLatin1Char(','))) {
            properties.remove(filesKey);
        }
        if (files.startsWith(QLatin1String("ID_SLIDE_NOTEBOOK_"))) {
            properties.remove(QLatin1String("TextureLineType"));
        }
    }
}

} // namespace

LessonSlide slideInPageForm(const LessonSlide &slide, const OutlineSource &outlines, int *placed)
{
    LessonSlide result = slide;
    int count = 0;
    makeBackground(result.properties);
    result.items = itemsInPageForm(slide.items, outlines, count);
    // It tells what the matrices were fitted from.
    result.properties.remove(QLatin1String("SlideSourceRect"));
    if (placed) {
        *placed += count;
    }
    return result;
}

void nameMediaFile(QJsonObject &item)
{
    const QLatin1String filesKey("MultiMediaFile");
    const QLatin1String resourceKey("resource");
    const QString files = item.value(filesKey).toString();
    if (files.isEmpty() || !item.value(resourceKey).toString().isEmpty()) {
        return;
    }
    item.insert(resourceKey, files.section(QLatin1Char(','), 0, 0));
    if (!files.contains(QLatin1Char(','))) {
        item.remove(filesKey);
    }
}

} // namespace lessonhost
