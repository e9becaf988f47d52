// SPDX-License-Identifier: MIT
#ifndef ITEMOUTLINE_H
#define ITEMOUTLINE_H

#include "lesson/groupplace.h"

#include <QPainterPath>

namespace lessonhost {

// Where what an item draws of itself comes to stand, and with which colours.

//! Moves and stretches what covers one box so that it covers another. A side without length stays in the middle.
QTransform fitInto(const QRectF &from, const QRectF &to);

//! An outline on the page: in the item's box where there is one, else where its Matrix leaves it. covered: what all
//! outlines of the item cover together.
QPainterPath onPage(const QPainterPath &outline, const QRectF &covered, const ItemView &item);

/*!
 * An item's box on the page, where it may be turned: where a part of it comes to stand, and how long its sides are
 * there. Of an item without a box it is the extent of its Control.
 */
struct PlacedBox
{
    explicit PlacedBox(const ItemView &item);
    //! page: from the box to the page.
    PlacedBox(const QRectF &box, const QTransform &page);

    bool isEmpty() const { return !(width > 0 && height > 0); }
    //! The same place for lengths of the page, measured from the middle.
    QTransform inPixels() const;

    QTransform place; //!< from a box from 0,0 to 1,1
    double width = 0;
    double height = 0;
};

//! Points where the box has them: they are told from the page's corner or the box's, and by who stretched the box, in a
//! size that it had before.
QPolygonF fittedPoints(const QPolygonF &points, const std::optional<QRectF> &box);

//! The first of several keys that has a colour.
QColor firstColor(const ItemView &item, std::initializer_list<const char *> keys, const QColor &missing);

//! A width in pixels of the page, whatever the Matrix does to lengths.
double outlineWidth(const ItemView &item, QLatin1String key = ItemKeys::lineWidth);

} // namespace lessonhost

#endif // ITEMOUTLINE_H
