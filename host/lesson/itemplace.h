#ifndef ITEMPLACE_H
#define ITEMPLACE_H

#include <QJsonObject>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace lessonhost {

/*!
 * Where an item stands on its page: a box that is turned about its centre.
 */
struct ItemPlace
{
    QRectF box;
    double angle = 0; //!< radians, clockwise on the screen
};

//! BoundingBox, Matrix and Angle of an item. Nothing for too few numbers, 0 for an angle that is none.
std::optional<QRectF> boxOf(const QJsonObject &item);
std::optional<QTransform> matrixOf(const QJsonObject &item);
double angleOf(const QJsonObject &item);

//! Where a box of an item stands under the item's matrix: the lengths of its sides, its centre, and its turn. A slant
//! is lost, and which way round it is.
ItemPlace placeUnder(const QTransform &matrix, const QRectF &box);

//! The place of an item of text or media. An item with a Matrix has its BoundingBox under it; without one the box is
//! that of the page, turned by Angle. Nothing for an item without a box. A slant of the Matrix is lost.
std::optional<ItemPlace> itemPlace(const QJsonObject &item);

//! How much larger an item's Matrix draws what has no length of its own, such as letters; 1 without a Matrix.
double itemScale(const QJsonObject &item);

} // namespace lessonhost

#endif // ITEMPLACE_H
