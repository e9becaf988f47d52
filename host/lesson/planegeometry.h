// SPDX-License-Identifier: MIT
#ifndef PLANEGEOMETRY_H
#define PLANEGEOMETRY_H

#include <QPolygonF>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace lessonhost {

//! The smallest box around points; empty and at 0,0 for none.
QRectF extentOf(const QPolygonF &points);

//! The corners of an outline without the first told once more at its end.
QPolygonF withoutRepeatedEnd(QPolygonF points);

//! The length of an open line through points.
double lengthOf(const QPolygonF &points);

//! The area of a closed outline; negative where it runs against the clock on the screen.
double areaOf(const QPolygonF &outline);

//! A turn about a point, in radians, clockwise on the screen.
QTransform turnAbout(const QPointF &center, double angle);

//! How much larger a transform makes lengths, on the whole.
double meanScale(const QTransform &transform);

//! True for what a circle doesn't stay one under, as far as can be seen.
bool stretches(const QTransform &transform);

//! A scale along x and y and then a rotation, in radians, that take the unit vectors where the linear part of transform
//! does. Nothing if it shears.
struct ScaleAndTurn
{
    double scaleX = 1;
    double scaleY = 1; //!< negative where the transform mirrors
    double angle = 0;
};
std::optional<ScaleAndTurn> scaleAndTurn(const QTransform &transform);

//! The ellipse that transform makes of the axis-parallel ellipse with these radii: radii and angle of its own axes.
ScaleAndTurn ellipseUnder(const QTransform &transform, double rx, double ry);

} // namespace lessonhost

#endif // PLANEGEOMETRY_H
