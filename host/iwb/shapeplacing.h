// SPDX-License-Identifier: MIT
#ifndef SHAPEPLACING_H
#define SHAPEPLACING_H

#include "lesson/shapegeometry.h"

#include <QJsonObject>
#include <QRectF>

#include <optional>

namespace lessonhost {

/*!
 * A shape as the plug-in's export takes it.
 */
struct PlacedShape
{
    const ShapeForm *form = nullptr; //!< of the type that is handed over, which may be another than the item's
    QJsonObject geometry; //!< Type, Matrix, Control, XYValue, BoundingBox, ... as texts
    std::optional<QRectF> box; //!< of the page, before the turn
    double angle = 0; //!< turn of the finished element about the centre of its box, radians
};

/*!
 * Gives a shape the Matrix and points under which the plug-in draws it where it belongs. A shape with a Matrix of its
 * own keeps it; one without fills its BoundingBox, turned by Angle.
 *
 * Rotations are worked into the points where a shape has points; a rectangle or ellipse keeps its box and gets a turn,
 * since the plug-in's own rotation of rectangles moves them.
 */
PlacedShape placeShape(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines);

//! The points that placeShape() gives to a polyline of these points alone, which has no box and no Matrix.
QPolygonF placeLine(const QPolygonF &points);

} // namespace lessonhost

#endif // SHAPEPLACING_H
