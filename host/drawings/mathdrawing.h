// SPDX-License-Identifier: MIT
#ifndef MATHDRAWING_H
#define MATHDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of a type of mathematics that svg has no shape for, null for other types. All of them stand in the
//! item's box, or in what its control points cover.
SvgDrawing mathDrawing(const QString &type);

} // namespace lessonhost

#endif // MATHDRAWING_H
