#ifndef COVERDRAWING_H
#define COVERDRAWING_H

#include "render/canvas.h"

namespace lessonhost {

//! The drawing of a curtain or a spotlight, null for other types: they hide what was drawn before them, a spotlight all
//! but its hole.
SvgDrawing coverDrawing(const QString &type);

} // namespace lessonhost

#endif // COVERDRAWING_H
