// SPDX-License-Identifier: MIT
#ifndef INSTRUMENTDRAWING_H
#define INSTRUMENTDRAWING_H

#include "canvas/canvas.h"

#include <optional>

namespace lessonhost {

//! The drawing of a ruler, set square, protractor or compasses, null for other types: with its scales, in the item's
//! box, turned by its RotateAngle.
SvgDrawing instrumentDrawing(const QString &type);

/*!
 * Points on the page to work an instrument by: about one it is turned, at the other it is taken for that. Of compasses
 * they are needle and lead.
 */
struct InstrumentHandle
{
    QPointF middle;
    QPointF handle;
};

//! Nothing for an item that is no instrument, or isn't drawn as one.
std::optional<InstrumentHandle> instrumentHandle(const ItemView &item);

} // namespace lessonhost

#endif // INSTRUMENTDRAWING_H
