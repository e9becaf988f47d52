// SPDX-License-Identifier: MIT
#ifndef GRIDCELLS_H
#define GRIDCELLS_H

#include <QRectF>
#include <QVector>

namespace lessonhost {

/*!
 * What cells look best as.
 */
struct CellForm
{
    double widthOverHeight = 1;
    QSizeF largest = QSizeF(1e6, 1e6);
};

//! Cells of one size for so many things, row by row in the middle of an area, with gaps between: as many in a row as
//! make the largest rectangles of these proportions. They then grow as far as the area and the form let them.
//! None where they would be no more than dots.
QVector<QRectF> gridCells(const QRectF &area, int count, const CellForm &form, double gap);

} // namespace lessonhost

#endif // GRIDCELLS_H
