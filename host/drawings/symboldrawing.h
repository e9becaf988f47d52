// SPDX-License-Identifier: MIT
#ifndef SYMBOLDRAWING_H
#define SYMBOLDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of a type that has a symbol of its own, or null: apparatus, circuit symbols, and what else has no
//! outline by numbers.
SvgDrawing symbolDrawing(const QString &type);

} // namespace lessonhost

#endif // SYMBOLDRAWING_H
