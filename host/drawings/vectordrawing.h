// SPDX-License-Identifier: MIT
#ifndef VECTORDRAWING_H
#define VECTORDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of a type of vector shapes, null for other types: each path of the item with its fill and its edge, the
//! later over the earlier.
SvgDrawing vectorDrawing(const QString &type);

} // namespace lessonhost

#endif // VECTORDRAWING_H
