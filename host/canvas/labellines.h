// SPDX-License-Identifier: MIT
#ifndef LABELLINES_H
#define LABELLINES_H

#include <QSizeF>
#include <QStringList>

namespace lessonhost {

/*!
 * A short text broken into lines.
 */
struct LabelLines
{
    static constexpr double lineHeight = 1.2; //!< of the size of the letters

    double size = 0; //!< of the letters, in pixels
    double width = 0; //!< of the longest line, in pixels
    QStringList lines; //!< none where nothing fits
    bool isWhole = false; //!< else its end is left out

    QSizeF extent() const { return {width, lines.size() * size * lineHeight}; }
};

//! The lines at the largest size, up to largestSize, that lets them fit into a box. At smallestSize, what doesn't fit
//! is left out, with a sign in its place; a box for less than three letters has no lines. Broken between words, or
//! within one that is longer than a line.
LabelLines linesThatFit(const QString &text, const QSizeF &box, double largestSize, double smallestSize);

} // namespace lessonhost

#endif // LABELLINES_H
