// SPDX-License-Identifier: MIT
#ifndef FORMULADRAWING_H
#define FORMULADRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! Formulas of the formula editor: their MathML, as large as fits into their box; where it can't be read, their
//! picture. Null for other types.
SvgDrawing formulaDrawing(const QString &type);

} // namespace lessonhost

#endif // FORMULADRAWING_H
