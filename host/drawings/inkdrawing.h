// SPDX-License-Identifier: MIT
#ifndef INKDRAWING_H
#define INKDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! Strokes: lines as smooth and as wide as they were written, dashed where they say so, textures and stamps by their
//! pictures. Null for other types.
SvgDrawing inkDrawing(const QString &type);

//! What a record of rubbed-out ink takes away, before the groups around it; nothing for items of other types and
//! records without points.
std::optional<QPainterPath> rubbedArea(const ItemView &item);

} // namespace lessonhost

#endif // INKDRAWING_H
