// SPDX-License-Identifier: MIT
#ifndef PLAINOUTLINES_H
#define PLAINOUTLINES_H

#include "canvas/plainsvg.h"
#include "lesson/lesson.h"

#include <QDomElement>
#include <QVector>

namespace lessonhost {

//! More are unhandy on another board, which has to hold them together.
constexpr int mostPlainElements = 8;

/*!
 * The same as a drawing to the eye, as a few elements that every board knows: svg:rect, svg:circle, svg:ellipse,
 * svg:line, svg:polyline, svg:polygon and svg:text, on the page, from back to front. Curves are lines too fine to be
 * told from them.
 *
 * drawing: of PlainSvg; shapes: those of it that aren't written yet. Nothing for one that needs more: many elements,
 * pictures, textures, translucent wholes, lines that a transform stretches, mirrored and spaced letters, and whatever
 * isn't known here.
 */
QVector<PlainElement> plainOutlines(const QDomElement &drawing, const QVector<PlainSvg::Shape> &shapes = {});

} // namespace lessonhost

#endif // PLAINOUTLINES_H
