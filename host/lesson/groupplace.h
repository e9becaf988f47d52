// SPDX-License-Identifier: MIT
#ifndef GROUPPLACE_H
#define GROUPPLACE_H

#include "lesson/itemview.h"

namespace lessonhost {

// Where items and what is in groups come to stand on the page.

//! Takes what lies in an item's own box to the page: its Matrix; without one, its flips and its Angle.
QTransform placeOnPage(const ItemView &item);

//! The flips and the turn that an item without a Matrix says, about its middle.
QTransform turnAndFlips(const ItemView &item, const QPointF &center);

//! The same for the points of a stroke. One without a box turns about the middle of its points.
QTransform placeOfStroke(const ItemView &item);

//! What an item covers where it says that it is: its box, or without one the points that it tells. Empty where it tells
//! neither.
QRectF toldExtent(const ItemView &item);

//! What the items of a group cover where they say that they are.
QRectF extentOfChildren(const ItemView &group);

//! What a group does with its items: from where they say that they are to where the group says that it is.
QTransform placeOfChildren(const ItemView &group);

} // namespace lessonhost

#endif // GROUPPLACE_H
