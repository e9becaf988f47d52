// SPDX-License-Identifier: MIT
#ifndef ARROWHEAD_H
#define ARROWHEAD_H

#include "svg/svgstyle.h"

#include <QLineF>
#include <QPainterPath>

namespace lessonhost {

//! The head of an arrow of a line of this width, with its tip at the line's second end. The line, which has a length,
//! ends within it from then on.
QPainterPath arrowHead(QLineF &line, double width);

//! The line's paint as that of its heads.
SvgPaint headPaint(const SvgPaint &line);

} // namespace lessonhost

#endif // ARROWHEAD_H
