// SPDX-License-Identifier: MIT
#include "mathsvg.h"

#include "numbertext.h"

#include <QColor>
#include <QHash>
#include <QLineF>
#include <QStringList>
#include <QVector>

#include <cmath>
#include <optional>

namespace {

QString textOf(const QJsonObject &json, const char *key)
{
    return json.value(QLatin1String(key)).toString();
}

// The item's matrix: the identity if it has none, nothing if its text is too short.
std::optional<QMatrix> itemMatrix(const QJsonObject &json)
{
    const QJsonValue text = json.value(QLatin1String("Matrix"));
    return text.isUndefined() ? QMatrix() : matrixFromText(text.toString());
}

// The pairs of the numbers, each mapped by the matrix; a single number at the end is dropped.
QVector<QPointF> mappedPairs(const QMatrix &matrix, const QVector<double> &numbers)
{
    QVector<QPointF> points;
    points.reserve(numbers.size() / 2);
    for (int i = 0; i + 1 < numbers.size(); i += 2) {
        points.append(matrix.map(QPointF(numbers.at(i), numbers.at(i + 1))));
    }
    return points;
}

QString pointsText(const QVector<QPointF> &points)
{
    QString text;
    text.reserve(points.size() * 16);
    for (const QPointF &point : points) {
        if (!text.isEmpty()) {
            text += QLatin1Char(',');
        }
        appendNumber(text, point.x());
        text += QLatin1Char(',');
        appendNumber(text, point.y());
    }
    return text;
}

QString closedOutline(QVector<QPointF> corners)
{
    corners.append(corners.first());
    return pointsText(corners);
}

void setPoints(SvgAttributes &svg, const QString &points)
{
    svg.set(QStringLiteral("points"), points);
}

void polygonGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    const auto matrix = itemMatrix(json);
    const QVector<double> numbers = numbersFromText(textOf(json, "Control"));
    if (matrix && numbers.size() >= 6) {
        setPoints(svg, closedOutline(mappedPairs(*matrix, numbers)));
    }
}

// The three control points are the middle of the one side and the ends of the other. The width follows from the height
// by the proportion of 4 to 3.
void parallelogramGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    const auto matrix = itemMatrix(json);
    const QVector<double> numbers = numbersFromText(textOf(json, "Control"));
    if (!matrix || numbers.size() < 6) {
        return;
    }
    const QVector<QPointF> p = mappedPairs(*matrix, numbers);
    const QPointF middle = (p.at(1) + p.at(2)) / 2.0;
    const float height = float(QLineF(p.at(0), middle).length());
    const qreal width = qreal(float(qreal(height) * 1.33333));
    const QPointF &p1 = p.at(1);
    const QPointF &p2 = p.at(2);
    setPoints(svg,
              closedOutline({p2, QPointF(p1.x() - width * 0.5, p1.y()), QPointF(p1.x() + width * 0.5, p1.y()),
                             QPointF(p2.x() + width, p2.y())}));
}

// The closed outline as svg points. Empty for fewer than one corner, and for more than 10000, which no lesson means.
QString regularPolygonPoints(const QMatrix &matrix, int corners)
{
    if (corners <= 0 || corners > 10000) {
        return {};
    }
    const double pi = 3.1415926;
    const QPointF first = corners == 4 ? QPointF(70, 70) : QPointF(86, 50);
    const double radius = QLineF(QPointF(), first).length();
    const int step = 360 / corners; // whole degrees: the remainder is dropped
    const double start = 360 - std::atan(first.y() / first.x()) / pi * 180;
    QVector<QPointF> outline{matrix.map(first)};
    outline.reserve(corners + 1);
    for (int i = 1; i < corners; ++i) {
        const double angle = (i * step + start) / 180 * pi;
        outline.append(matrix.map(QPointF(radius * std::cos(angle), -std::sin(angle) * radius)));
    }
    return closedOutline(outline);
}

void normalPolygonGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    if (const auto matrix = itemMatrix(json)) {
        setPoints(svg, regularPolygonPoints(*matrix, textOf(json, "ArtObj_Ln").toInt()));
    }
}

// XYValue has one more character at its end, which is cut whatever it is.
void polylineGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    const auto matrix = itemMatrix(json);
    const QJsonValue value = json.value(QLatin1String("XYValue"));
    if (!matrix || !value.isString()) {
        return;
    }
    QString text = value.toString();
    text.chop(1);
    const QVector<double> numbers = numbersFromText(text);
    if (numbers.size() >= 2) {
        setPoints(svg, pointsText(mappedPairs(*matrix, numbers)));
    }
}

// The two control points and the item's origin.
void angleGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    const auto matrix = itemMatrix(json);
    const QJsonValue control = json.value(QLatin1String("Control"));
    QVector<double> numbers = numbersFromText(control.toString());
    if (matrix && control.isString() && numbers.size() == 4) {
        numbers << 0 << 0;
        setPoints(svg, pointsText(mappedPairs(*matrix, numbers)));
    }
}

void setLineEnds(SvgAttributes &svg, const char *start, const char *end)
{
    if (start) {
        svg.set(QStringLiteral("stroke-lineshape-start"), QLatin1String(start));
    }
    if (end) {
        svg.set(QStringLiteral("stroke-lineshape-end"), QLatin1String(end));
    }
}

void lineCoordinates(const QJsonObject &json, SvgAttributes &svg)
{
    const auto matrix = itemMatrix(json);
    const QJsonValue control = json.value(QLatin1String("Control"));
    const QVector<double> numbers = numbersFromText(control.toString());
    if (!matrix || !control.isString() || numbers.size() < 4) {
        return;
    }
    const QVector<QPointF> ends = mappedPairs(*matrix, numbers.mid(0, 4));
    svg.set(QStringLiteral("x1"), numberText(ends.at(0).x()));
    svg.set(QStringLiteral("y1"), numberText(ends.at(0).y()));
    svg.set(QStringLiteral("x2"), numberText(ends.at(1).x()));
    svg.set(QStringLiteral("y2"), numberText(ends.at(1).y()));
}

void segmentGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    switch (textOf(json, "ArtObj_ArrowType").toInt()) {
    case 0:
        setLineEnds(svg, "circle", "circle");
        break;
    case 1:
        setLineEnds(svg, "arrow", nullptr);
        break;
    case 2:
        setLineEnds(svg, "arrow", "arrow");
        break;
    default:
        break;
    }
    lineCoordinates(json, svg);
}

void geoSegmentGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    setLineEnds(svg, "circle", "circle");
    lineCoordinates(json, svg);
}

// Pair number index of the control points, or what stands for it.
QPointF rimPoint(const QVector<double> &numbers, int index, const QPointF &missing)
{
    const int first = 2 * index;
    return first + 1 < numbers.size() ? QPointF(numbers.at(first), numbers.at(first + 1)) : missing;
}

// The centre is the item's origin; a radius is the distance of a mapped rim point from it.
void roundGeometry(const QJsonObject &json, SvgAttributes &svg, const QVector<QPointF> &missingRim,
                   const QStringList &radiusKeys)
{
    const auto matrix = itemMatrix(json);
    if (!matrix) {
        return;
    }
    const QPointF center = matrix->map(QPointF(0, 0));
    svg.set(QStringLiteral("cx"), numberText(center.x()));
    svg.set(QStringLiteral("cy"), numberText(center.y()));
    const QVector<double> numbers = numbersFromText(textOf(json, "Control"));
    for (int i = 0; i < radiusKeys.size(); ++i) {
        const QPointF rim = matrix->map(rimPoint(numbers, i, missingRim.at(i)));
        svg.set(radiusKeys.at(i), numberText(QLineF(center, rim).length()));
    }
}

void circleGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    roundGeometry(json, svg, {QPointF(50, 0)}, {QStringLiteral("r")});
}

void ellipseGeometry(const QJsonObject &json, SvgAttributes &svg)
{
    roundGeometry(json, svg, {QPointF(100, 0), QPointF(0, 100)}, {QStringLiteral("rx"), QStringLiteral("ry")});
}

// The item's matrix with the rotation about the centre of its box taken out, as "transform" carries it.
std::optional<QMatrix> unrotatedMatrix(const QJsonObject &json)
{
    const auto matrix = matrixFromText(textOf(json, "Matrix"));
    const auto box = boxFromText(textOf(json, "BoundingBox"));
    if (!matrix || !box) {
        return std::nullopt;
    }
    const QPointF center = matrix->mapRect(*box).center();
    const float degrees = degreesOf(toSingle(textOf(json, "Angle")));
    return rotationAbout(degrees, center).inverted() * *matrix;
}

// The extent of the mapped corners, over the mapped box that the common attributes gave.
void finishRectangle(QDomElement &element, const QJsonObject &json)
{
    const auto matrix = json.contains(QLatin1String("Matrix")) ? unrotatedMatrix(json) : QMatrix();
    if (!matrix) {
        return;
    }
    const QVector<QPointF> corners = mappedPairs(*matrix, numbersFromText(textOf(json, "Control")));
    if (corners.isEmpty()) {
        return;
    }
    double minX = 1000000;
    double minY = 1000000;
    double maxX = -1000000;
    double maxY = -1000000;
    for (const QPointF &corner : corners) {
        minX = qMin(minX, corner.x());
        minY = qMin(minY, corner.y());
        maxX = qMax(maxX, corner.x());
        maxY = qMax(maxY, corner.y());
    }
    element.setAttribute(QStringLiteral("x"), numberText(minX));
    element.setAttribute(QStringLiteral("y"), numberText(minY));
    element.setAttribute(QStringLiteral("width"), numberText(maxX - minX));
    element.setAttribute(QStringLiteral("height"), numberText(maxY - minY));
}

// clang-format off
const SvgShape segmentToSvg       = {"svg:line",     segmentGeometry,       "ArtObj_Color1", SvgShape::KeepsStroke, nullptr,            SvgShape::NoFill,      "ArtObj_Style", nullptr};
const SvgShape geoSegmentToSvg    = {"svg:line",     geoSegmentGeometry,    "ArtObj_Color1", SvgShape::KeepsStroke, nullptr,            SvgShape::NoFill,      "ArtObj_Style", nullptr};
const SvgShape angleToSvg         = {"svg:polyline", angleGeometry,         "LineColor",     SvgShape::KeepsStroke, nullptr,            SvgShape::NoFill,      "ArtObj_Mode",  nullptr};
const SvgShape polylineToSvg      = {"svg:polyline", polylineGeometry,      "ArtObj_Color",  SvgShape::KeepsStroke, "ArtObj_FillColor", SvgShape::FillsAlways, "ArtObj_Mode",  nullptr};
const SvgShape normalPolygonToSvg = {"svg:polyline", normalPolygonGeometry, "LineColor",     SvgShape::KeepsStroke, "ArtObj_Color",     SvgShape::FillsAlways, "ArtObj_Mode",  nullptr};
const SvgShape circleToSvg        = {"svg:circle",   circleGeometry,        "LineColor",     SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsByFlag, "ArtObj_Mode",  nullptr};
const SvgShape ellipseToSvg       = {"svg:ellipse",  ellipseGeometry,       "LineColor",     SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsByFlag, "ArtObj_Mode",  nullptr};
const SvgShape rectangleToSvg     = {"svg:rect",     nullptr,               "LineColor",     SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsByFlag, "ArtObj_Mode",  finishRectangle};
const SvgShape polygonToSvg       = {"svg:polyline", polygonGeometry,       "LineColor",     SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsAlways, "ArtObj_Mode",  nullptr};
const SvgShape geoTriangleToSvg   = {"svg:polyline", polygonGeometry,       "ArtObj_Color1", SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsAlways, "ArtObj_Mode",  nullptr};
const SvgShape parallelogramToSvg = {"svg:polyline", parallelogramGeometry, "LineColor",     SvgShape::CutsStroke,  "ArtObj_Color",     SvgShape::FillsByFlag, "ArtObj_Mode",  nullptr};
// clang-format on

struct TypeShape
{
    const char *itemType;
    const SvgShape *shape;
};

const TypeShape typeShapes[] = {
    {"ZQMath2DSegment", &segmentToSvg},
    {"ZQMath2DSegmentWith1Arrow", &segmentToSvg},
    {"ZQMath2DSegmentWith2Arrow", &segmentToSvg},
    {"ZQMath2DGeoSegment", &geoSegmentToSvg},
    {"ZQMath2DAngle", &angleToSvg},
    {"ZQMath2DPolyline", &polylineToSvg},
    {"ZQMath2DCircle", &circleToSvg},
    {"ZQMath2DEllipse", &ellipseToSvg},
    {"ZQMath2DRectangle", &rectangleToSvg},
    {"ZQMath2DTriangle", &polygonToSvg},
    {"ZQMath2DGeoTriangle", &geoTriangleToSvg},
    {"ZQMath2DQuadrangle", &polygonToSvg},
    {"ZQMath2DParallelogram", &parallelogramToSvg},
};

void setStroke(const SvgShape &shape, const QJsonObject &json, SvgAttributes &svg)
{
    const QJsonValue color = json.value(QLatin1String(shape.strokeKey));
    QString text = QStringLiteral("0,0,0");
    if (color.isString()) {
        text = color.toString().mid(shape.cut == SvgShape::CutsStroke ? 4 : 0);
    }
    svg.set(QStringLiteral("stroke"), QString(QLatin1String("rgb(") + text + QLatin1Char(')')));
}

// a,r,g,b or r,g,b in decimal, opaque without an alpha. Another number of parts gives an invalid, opaque colour, and so
// do channels beyond 0 to 255, but a transparent one.
QColor parseColorText(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() == 4) {
        return {integerPart(parts, 1), integerPart(parts, 2), integerPart(parts, 3), integerPart(parts, 0)};
    }
    if (parts.size() == 3) {
        return {integerPart(parts, 0), integerPart(parts, 1), integerPart(parts, 2)};
    }
    return {};
}

void setFill(const SvgShape &shape, const QJsonObject &json, SvgAttributes &svg)
{
    if (shape.fill == SvgShape::NoFill) {
        return;
    }
    const QJsonValue value = json.value(QLatin1String(shape.fillKey));
    const bool isHollow = shape.fill == SvgShape::FillsByFlag && textOf(json, "ArtObj_Fill") == QLatin1String("0");
    if (!value.isString() || isHollow) {
        return;
    }
    const QColor color = parseColorText(value.toString());
    svg.set(QStringLiteral("fill"),
            QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue()));
    svg.set(QStringLiteral("stroke-opacity"), QString::number(color.alpha()));
}

// The pen styles of the line styles 0 to 3; any other is solid.
int penStyleOf(const QString &lineStyle)
{
    switch (lineStyle.toInt()) {
    case 1:
        return Qt::DashDotDotLine;
    case 2:
        return Qt::DashLine;
    case 3:
        return Qt::DashDotLine;
    default:
        return Qt::SolidLine;
    }
}

// The pattern of a pen style for a line width in pixels; empty for a solid line.
QString dashArrayFor(int penStyle, int width)
{
    // Products of any width in a file need more than 32 bits.
    const auto times = [width](int factor) { return QString::number(qint64(width) * factor); };
    QStringList pattern;
    switch (penStyle) {
    case Qt::DashLine:
        pattern = QStringList{times(5), times(5)};
        break;
    case Qt::DashDotLine:
        pattern = QStringList{times(10), times(2), times(10)};
        break;
    case Qt::DashDotDotLine:
        pattern = QStringList{times(10), times(2), times(2), times(2)};
        break;
    default:
        break;
    }
    return pattern.join(QLatin1Char(','));
}

} // namespace

SvgAttributes::SvgAttributes(const QDomElement &element, const KeyMap &iwbKeys)
    : m_element(element)
    , m_iwbKeys(iwbKeys)
{
}

void SvgAttributes::set(const QString &name, const QString &value)
{
    const KeyMap::Row *row = m_iwbKeys.row(name);
    if (row && row->path.size() == 1) {
        m_element.setAttribute(row->path.first(), value);
    }
}

const SvgShape *svgShapeOf(const QString &itemType)
{
    static const auto shapes = [] {
        QHash<QString, const SvgShape *> byType;
        for (const TypeShape &row : typeShapes) {
            byType.insert(QLatin1String(row.itemType), row.shape);
        }
        return byType;
    }();
    if (const SvgShape *shape = shapes.value(itemType)) {
        return shape;
    }
    return itemType.contains(QLatin1String("Normal")) ? &normalPolygonToSvg : nullptr;
}

void setSvgPaint(const SvgShape &shape, const QJsonObject &json, SvgAttributes &svg)
{
    setStroke(shape, json, svg);
    setFill(shape, json, svg);
    const QJsonValue widthValue = json.value(QLatin1String("ArtObj_Width"));
    int width = 2;
    if (!widthValue.isUndefined()) {
        width = widthValue.toString().toInt();
        svg.set(QStringLiteral("stroke-width"), widthValue.toString());
    }
    const QString dashes = dashArrayFor(penStyleOf(textOf(json, shape.dashKey)), width);
    if (!dashes.isEmpty()) {
        svg.set(QStringLiteral("stroke-dasharray"), dashes);
    }
}

float degreesOf(float radians)
{
    return float(double(radians) * 180.0 / 3.14159);
}

QMatrix rotationAbout(float degrees, const QPointF &center)
{
    QMatrix toOrigin;
    toOrigin.translate(-center.x(), -center.y());
    QMatrix rotation;
    rotation.rotate(qreal(degrees));
    QMatrix back;
    back.translate(center.x(), center.y());
    return toOrigin * rotation * back;
}
