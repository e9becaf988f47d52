// SPDX-License-Identifier: MIT
#ifndef SYMBOLRULES_H
#define SYMBOLRULES_H

#include "canvas/canvas.h"

namespace lessonhost {

//! Draws what no file can hold, since its lines go by the item's own points. False for other types, and for an item
//! without such points, whose file shows how it usually looks.
bool drawByRule(Canvas &canvas, const ItemView &item);

} // namespace lessonhost

#endif // SYMBOLRULES_H
