// SPDX-License-Identifier: MIT
#ifndef SVGSTROKES_H
#define SVGSTROKES_H

#include <QDomElement>
#include <QVector>

namespace lessonhost {

struct SvgPlace;
class SvgPage;

// Ink that was written as polygons.

//! Polygons from this one on, beside each other, that are ink and that the writer put into one group.
QVector<QDomElement> strokePieces(const SvgPage &page, const QDomElement &first);

//! Makes one line of what a pen has drawn. False where that would look otherwise; then nothing is made.
bool readStroke(SvgPage &page, const QVector<QDomElement> &pieces, const SvgPlace &outer);

} // namespace lessonhost

#endif // SVGSTROKES_H
