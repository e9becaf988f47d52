#ifndef INSTRUMENTDRAWING_H
#define INSTRUMENTDRAWING_H

#include "render/canvas.h"

namespace lessonhost {

//! The drawing of a ruler, set square, protractor or compasses, null for other types: with its scales, in the item's
//! box, turned by its RotateAngle.
SvgDrawing instrumentDrawing(const QString &type);

} // namespace lessonhost

#endif // INSTRUMENTDRAWING_H
