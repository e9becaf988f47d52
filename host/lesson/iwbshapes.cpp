#include "lesson/iwbshapes.h"

#include <QHash>
#include <QJsonArray>
#include <QStringList>

namespace lessonhost {

namespace {

constexpr ShapeForm forms[] = {
    {"ZQMath2DSegment", ShapeForm::Segment, "ArtObj_Color1", false, nullptr, "ArtObj_Style", nullptr, nullptr},
    {"ZQMath2DSegmentWith1Arrow", ShapeForm::Segment, "ArtObj_Color1", false, nullptr, "ArtObj_Style",
     "ArtObj_ArrowType", "1"},
    {"ZQMath2DSegmentWith2Arrow", ShapeForm::Segment, "ArtObj_Color1", false, nullptr, "ArtObj_Style",
     "ArtObj_ArrowType", "2"},
    {"ZQMath2DGeoSegment", ShapeForm::Segment, "ArtObj_Color1", false, nullptr, "ArtObj_Style", nullptr, nullptr},
    {"ZQMath2DAngle", ShapeForm::Angle, "LineColor", false, nullptr, "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DPolyline", ShapeForm::Polyline, "ArtObj_Color", false, "ArtObj_FillColor", "ArtObj_Mode", nullptr,
     nullptr},
    {"ZQMath2DTriangle", ShapeForm::Polygon, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DQuadrangle", ShapeForm::Polygon, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DGeoTriangle", ShapeForm::Polygon, "ArtObj_Color1", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DParallelogram", ShapeForm::Derived, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DNormalTrilateral", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln",
     "3"},
    {"ZQMath2DNormalQuadrilateral", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln",
     "4"},
    {"ZQMath2DNormalPentagon", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln", "5"},
    {"ZQMath2DNormalHexagon", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln", "6"},
    {"ZQMath2DNormalHeptagon", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln", "7"},
    {"ZQMath2DNormalOctagon", ShapeForm::Derived, "LineColor", false, "ArtObj_Color", "ArtObj_Mode", "ArtObj_Ln", "8"},
    {"ZQMath2DCircle", ShapeForm::Circle, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DEllipse", ShapeForm::Ellipse, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
    {"ZQMath2DRectangle", ShapeForm::Rectangle, "LineColor", true, "ArtObj_Color", "ArtObj_Mode", nullptr, nullptr},
};

} // namespace

const ShapeForm *shapeForm(const QString &type)
{
    static const auto table = [] {
        QHash<QString, const ShapeForm *> rows;
        for (const ShapeForm &form : forms) {
            rows.insert(QLatin1String(form.type), &form);
        }
        return rows;
    }();
    return table.value(type);
}

QJsonObject withImplied(QJsonObject item, const ShapeForm &form)
{
    if (form.impliedKey && !item.contains(QLatin1String(form.impliedKey))) {
        item.insert(QLatin1String(form.impliedKey), QLatin1String(form.implied));
    }
    return item;
}

QJsonObject withoutDoubledWidth(QJsonObject item)
{
    const QLatin1String doubled("Width");
    if (item.contains(doubled) && item.value(doubled) == item.value(QLatin1String("ArtObj_Width"))) {
        item.remove(doubled);
    }
    return item;
}

QString lineColorText(const ShapeForm &form, const QColor &color)
{
    // What is cut off are the three digits of an opaque alpha and its comma.
    const QString rgb = QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
    return form.cutsLine ? QLatin1String("255,") + rgb : rgb;
}

QString colorText(const QColor &color)
{
    return QStringLiteral("%1,%2,%3,%4").arg(color.alpha()).arg(color.red()).arg(color.green()).arg(color.blue());
}

std::optional<QColor> itemColor(const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        if (!object.contains(QLatin1String("Solid"))) {
            return std::nullopt;
        }
        QColor color(QRgb(object.value(QLatin1String("Solid")).toInt()));
        color.setAlphaF(qBound(0.0, object.value(QLatin1String("Alpha")).toDouble(1), 1.0));
        return color;
    }
    const QString text = value.toString().trimmed();
    const QStringList parts = text.split(QLatin1Char(','));
    const auto channel = [&parts](int i) { return qBound(0, qRound(parts.at(i).toDouble()), 255); };
    if (parts.size() == 4) {
        return QColor(channel(1), channel(2), channel(3), channel(0));
    }
    if (parts.size() == 3) {
        return QColor(channel(0), channel(1), channel(2));
    }
    const QColor named(text);
    return named.isValid() ? std::optional<QColor>(named) : std::nullopt;
}

QVector<double> itemNumbers(const QJsonValue &value)
{
    QVector<double> numbers;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        numbers.reserve(array.size());
        for (const QJsonValue &number : array) {
            numbers.append(number.isDouble() ? number.toDouble() : number.toString().toDouble());
        }
        return numbers;
    }
    const QString text = value.toString();
    if (text.trimmed().isEmpty()) {
        return numbers;
    }
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','));
    numbers.reserve(parts.size());
    for (const QStringRef &part : parts) {
        const double number = part.trimmed().toDouble();
        numbers.append(qIsFinite(number) ? number : 0);
    }
    return numbers;
}

QPolygonF pointsOf(const QVector<double> &numbers)
{
    QPolygonF points;
    points.reserve(numbers.size() / 2);
    for (int i = 0; i + 1 < numbers.size(); i += 2) {
        points.append(QPointF(numbers.at(i), numbers.at(i + 1)));
    }
    return points;
}

QString exactText(double value)
{
    return QString::number(qAbs(value) < 1e-9 ? 0 : value, 'g', 12);
}

QString pointsText(const QPolygonF &points)
{
    QStringList numbers;
    numbers.reserve(points.size() * 2);
    for (const QPointF &point : points) {
        numbers << exactText(point.x()) << exactText(point.y());
    }
    return numbers.join(QLatin1Char(','));
}

QString boxText(const QRectF &box)
{
    return exactText(box.left()) + QLatin1Char(',') + exactText(box.top()) + QLatin1Char(',') + exactText(box.right())
        + QLatin1Char(',') + exactText(box.bottom());
}

QRectF extentOf(const QPolygonF &points)
{
    return points.boundingRect();
}

} // namespace lessonhost
