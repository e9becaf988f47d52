#ifndef ITEMOUTLINE_H
#define ITEMOUTLINE_H

#include "lesson/itemview.h"

#include <QPainterPath>

namespace lessonhost {

// Where what an item draws of itself comes to stand, and with which colours.

//! Takes what lies in an item's own box to the page: its Matrix; without one, its flips and its Angle.
QTransform placeOnPage(const ItemView &item);

//! Moves and stretches what covers one box so that it covers another. A side without length stays in the middle.
QTransform fitInto(const QRectF &from, const QRectF &to);

//! An outline on the page: in the item's box where there is one, else where its Matrix leaves it. covered: what all
//! outlines of the item cover together.
QPainterPath onPage(const QPainterPath &outline, const QRectF &covered, const ItemView &item);

//! The first of several keys that has a colour.
QColor firstColor(const ItemView &item, std::initializer_list<const char *> keys, const QColor &missing);

//! A width in pixels of the page, whatever the Matrix does to lengths.
double outlineWidth(const ItemView &item, QLatin1String key = ItemKeys::lineWidth);

} // namespace lessonhost

#endif // ITEMOUTLINE_H
