// SPDX-License-Identifier: MIT
#ifndef TEXTDRAWING_H
#define TEXTDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of text boards, null for other types.
SvgDrawing textDrawing(const QString &type);

} // namespace lessonhost

#endif // TEXTDRAWING_H
