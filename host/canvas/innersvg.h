// SPDX-License-Identifier: MIT
#ifndef INNERSVG_H
#define INNERSVG_H

#include <QDomDocument>
#include <QRectF>
#include <QString>

namespace lessonhost {

/*!
 * How much the drawings of one page may have together: what they use many times and rules that are held against every
 * element would take memory and time beyond all proportion.
 */
struct InnerSvgBudget
{
    double elements = 50000; //!< long texts count as several
    int rules = 200; //!< of style sheets
};

/*!
 * A drawing in svg as a part of another: its view fills a box as far as its proportion lets it, from the upper left
 * corner on. What it uses twice stands in it twice, its style sheets reach nothing but itself, and the few names that
 * are left begin with a prefix.
 *
 * drawing: the root of one that leads nowhere (ClosedSvg); one that tells no size is as large as usualSize or, if that
 * is empty, as the box.
 */
QDomElement innerSvg(QDomDocument document, const QDomElement &drawing, const QRectF &box, const QSizeF &usualSize,
                     const QString &prefix, InnerSvgBudget &budget);

} // namespace lessonhost

#endif // INNERSVG_H
