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
    QStringList lines;
};

//! The lines at the largest size, up to largestSize, that lets them fit into a box. Broken between words only.
LabelLines linesThatFit(const QString &text, const QSizeF &box, double largestSize);

} // namespace lessonhost

#endif // LABELLINES_H
