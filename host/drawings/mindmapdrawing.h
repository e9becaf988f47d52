// SPDX-License-Identifier: MIT
#ifndef MINDMAPDRAWING_H
#define MINDMAPDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of mind maps, null for other types: boxes with the texts of their nodes, and lines between them.
SvgDrawing mindMapDrawing(const QString &type);

} // namespace lessonhost

#endif // MINDMAPDRAWING_H
