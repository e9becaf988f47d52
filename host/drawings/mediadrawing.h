// SPDX-License-Identifier: MIT
#ifndef MEDIADRAWING_H
#define MEDIADRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! Pictures as they are; films, sounds, documents and worksheets as a card with a sign, their name and kind, over the
//! picture that they may have. Null for other types.
SvgDrawing mediaDrawing(const QString &type);

} // namespace lessonhost

#endif // MEDIADRAWING_H
