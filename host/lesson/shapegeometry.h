// SPDX-License-Identifier: MIT
#ifndef SHAPEGEOMETRY_H
#define SHAPEGEOMETRY_H

#include "lesson/itemview.h"
#include "lesson/shapeforms.h"

#include <QJsonObject>
#include <QPolygonF>
#include <QRectF>

#include <functional>

namespace lessonhost {

//! The corners of a shape whose outline follows from its control points in a way that only the plug-in knows.
using OutlineSource = std::function<QPolygonF(const QJsonObject &shape)>;

//! The points that a shape draws before its Matrix, an angle's origin among them; none for round shapes.
QPolygonF shapePoints(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines);

//! What a shape covers before its Matrix.
QRectF shapeExtent(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines);

//! Radii of a circle or ellipse under the identity, from its points on the rim.
QSizeF ownRadii(const ItemView &item, ShapeForm::Outline outline, const QPointF &origin);

} // namespace lessonhost

#endif // SHAPEGEOMETRY_H
