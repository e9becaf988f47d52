// SPDX-License-Identifier: MIT
#ifndef LANGUAGEDRAWING_H
#define LANGUAGEDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of a type of language items, null for other types: characters in squares, and pinyin and words between
//! the lines on which they are written.
SvgDrawing languageDrawing(const QString &type);

} // namespace lessonhost

#endif // LANGUAGEDRAWING_H
