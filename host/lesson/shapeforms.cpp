// SPDX-License-Identifier: MIT
#include "lesson/shapeforms.h"

#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"

#include <QHash>

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
    if (form.impliedKey && isEmptyValue(item.value(QLatin1String(form.impliedKey)))) {
        item.insert(QLatin1String(form.impliedKey), QLatin1String(form.implied));
    }
    return item;
}

QJsonObject withoutDoubledWidth(QJsonObject item)
{
    const QString width = valueText(item.value(ItemKeys::width));
    if (!width.isEmpty() && width == valueText(item.value(ItemKeys::lineWidth))) {
        item.remove(ItemKeys::width);
    }
    return item;
}

QString lineColorText(const ShapeForm &form, const QColor &color)
{
    // What is cut off are the three digits of an opaque alpha and its comma.
    const QString rgb = QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
    return form.cutsLine ? QLatin1String("255,") + rgb : rgb;
}

} // namespace lessonhost
