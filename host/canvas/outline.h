// SPDX-License-Identifier: MIT
#ifndef OUTLINE_H
#define OUTLINE_H

#include <QPainterPath>
#include <QRectF>

namespace lessonhost {

/*!
 * The lines of an outline in a box, from a text of words with blanks between: "M x y", "L x y", "C x y x y x y" and "Z"
 * as in svg, and "E left top right bottom" for an ellipse. "A left top right bottom start sweep" is an arc of one, in
 * degrees and counterclockwise, with a line to it from where the outline is, and "B" is the same without the line. A
 * coordinate is a part of the box's width or height; with an s, of the shorter of both, so that it stays what it is
 * where the box is stretched. "1-.3s" adds both: three tenths of the shorter side before the right or lower edge.
 */
QPainterPath outlineIn(const QRectF &box, const char *outline);

} // namespace lessonhost

#endif // OUTLINE_H
