#ifndef SHAPEGEOMETRY_H
#define SHAPEGEOMETRY_H

#include "lesson/shapeforms.h"

#include <QJsonObject>
#include <QPolygonF>
#include <QRectF>

#include <functional>
#include <optional>

namespace lessonhost {

//! The corners of a shape whose outline follows from its control points in a way that only the plug-in knows.
using OutlineSource = std::function<QPolygonF(const QJsonObject &shape)>;

//! The points that a shape draws before its Matrix, an angle's origin among them; none for round shapes.
QPolygonF shapePoints(const QJsonObject &item, const ShapeForm &form, const OutlineSource &outlines);

//! What a shape covers before its Matrix.
QRectF shapeExtent(const QJsonObject &item, const ShapeForm &form, const OutlineSource &outlines);

//! The place of the origin of an item as the plug-in's import leaves it: such an item has points of the page. Nothing
//! for other items.
std::optional<QPointF> createdAt(const QJsonObject &item);

//! Radii of a circle or ellipse under the identity, from its points on the rim.
QSizeF ownRadii(const QJsonObject &item, ShapeForm::Outline outline, const QPointF &origin);

} // namespace lessonhost

#endif // SHAPEGEOMETRY_H
