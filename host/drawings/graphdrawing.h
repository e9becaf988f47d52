// SPDX-License-Identifier: MIT
#ifndef GRAPHDRAWING_H
#define GRAPHDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of a type of basic graphs or figures, null for other types: a shape in its box with its text, a segment, an
//! arrow or a free drawing.
SvgDrawing graphDrawing(const QString &type);

} // namespace lessonhost

#endif // GRAPHDRAWING_H
