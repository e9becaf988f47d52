// SPDX-License-Identifier: MIT
#ifndef ITEMPLACE_H
#define ITEMPLACE_H

#include <QRectF>
#include <QTransform>

namespace lessonhost {

/*!
 * Where an item stands on its page: a box that is turned about its centre.
 */
struct ItemPlace
{
    QRectF box;
    double angle = 0; //!< radians, clockwise on the screen

    //! The smallest upright box around the turned one.
    QRectF extent() const;
};

//! Where a box of an item stands under the item's matrix: the lengths of its sides, its centre, and its turn. A slant
//! is lost, and which way round it is.
ItemPlace placeUnder(const QTransform &matrix, const QRectF &box);

//! The same for what has an upper side: under a matrix that mirrors, it stands the way round that turns it least, so that
//! a picture with left and right exchanged isn't upside down as well.
ItemPlace uprightUnder(const QTransform &matrix, const QRectF &box);

} // namespace lessonhost

#endif // ITEMPLACE_H
