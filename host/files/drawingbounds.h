// SPDX-License-Identifier: MIT
#ifndef DRAWINGBOUNDS_H
#define DRAWINGBOUNDS_H

#include <QDomElement>

namespace lessonhost {

//! The largest number in a drawing, in pixels.
constexpr double largestInDrawing = 1e6;
//! As many dashes does a drawing have in all; what has more is drawn as a solid line.
constexpr double mostDashes = 1e6;

//! Makes the numbers of an svg such that painters come to an end with them: coordinates, lengths and factors stay
//! within largestInDrawing, what is no number goes, and dashes are counted. Everything that is drawn goes through here.
void boundDrawing(QDomElement svg);

} // namespace lessonhost

#endif // DRAWINGBOUNDS_H
