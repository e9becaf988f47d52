// SPDX-License-Identifier: MIT
#ifndef QUESTIONDRAWING_H
#define QUESTIONDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! Questions: their content, a drawing in svg or a text. The answer isn't shown. Null for other types.
SvgDrawing questionDrawing(const QString &type);

} // namespace lessonhost

#endif // QUESTIONDRAWING_H
