#ifndef IWBGEOMETRY_H
#define IWBGEOMETRY_H

#include "lesson/iwbshapes.h"

#include <QDomElement>
#include <QTransform>

class IZQTransformation;

namespace lessonhost {

/*!
 * Where an item stands on its page: a box that is turned about its centre.
 */
struct ItemPlace
{
    QRectF box;
    double angle = 0; //!< radians, clockwise on the screen
};

//! m11,m12,m21,m22,dx,dy as a transform and back. Nothing for fewer numbers.
std::optional<QTransform> transformOfText(const QString &text);
QString transformText(const QTransform &transform);

//! Where a box of an item stands under the item's matrix: the lengths of its sides, its centre, and its turn. A slant
//! is lost, and which way round it is.
ItemPlace placeUnder(const QTransform &matrix, const QRectF &box);

//! The place of an item of text or media. An item with a Matrix has its BoundingBox under it; without one the box is
//! that of the page, turned by Angle. Nothing for an item without a box. A slant of the Matrix is lost.
std::optional<ItemPlace> itemPlace(const QJsonObject &item);

//! How much larger an item's Matrix draws what has no length of its own, such as letters; 1 without a Matrix.
double itemScale(const QJsonObject &item);

//! The points that a shape draws before its Matrix, an angle's origin among them; none for round shapes.
QPolygonF shapePoints(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin);

//! What a shape covers before its Matrix.
QRectF shapeExtent(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin);

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
 * own keeps it; one without fills its BoundingBox, turned by Angle. The plug-in is asked for the outlines that only it
 * works out.
 *
 * Rotations are worked into the points where a shape has points; a rectangle or ellipse keeps its box and gets a turn,
 * since the plug-in's own rotation of rectangles moves them.
 */
PlacedShape placeShape(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin);

//! What a svg element of the plug-in covers before its transform, or nothing for one without geometry.
std::optional<QRectF> drawnExtent(const QDomElement &element);

} // namespace lessonhost

#endif // IWBGEOMETRY_H
