// SPDX-License-Identifier: MIT
#ifndef EXERCISEDRAWING_H
#define EXERCISEDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of cards, of things to sort or of things to connect, null for other types: the title, and below it the
//! list laid out.
SvgDrawing exerciseDrawing(const QString &type);

} // namespace lessonhost

#endif // EXERCISEDRAWING_H
