// SPDX-License-Identifier: MIT
#include "drawings/gridcells.h"

namespace lessonhost {

QVector<QRectF> gridCells(const QRectF &area, int count, const CellForm &form, double gap)
{
    QVector<QRectF> cells;
    QSizeF size;
    double heldBySize = 0;
    int columns = 1;
    int rows = 1;
    for (int tried = 1; tried <= count; ++tried) {
        const int needed = (count + tried - 1) / tried;
        const QSizeF cell =
            QSizeF((area.width() - (tried - 1) * gap) / tried, (area.height() - (needed - 1) * gap) / needed)
                .boundedTo(form.largest);
        const double held = qMin(cell.width(), cell.height() * form.widthOverHeight);
        if (held > heldBySize) {
            heldBySize = held;
            size = cell;
            columns = tried;
            rows = needed;
        }
    }
    constexpr double smallest = 4;
    if (qMin(size.width(), size.height()) < smallest) {
        return cells;
    }
    const double top = area.center().y() - (rows * size.height() + (rows - 1) * gap) / 2;
    for (int i = 0; i < count; ++i) {
        const int row = i / columns;
        const int inRow = qMin(columns, count - row * columns);
        const double left = area.center().x() - (inRow * size.width() + (inRow - 1) * gap) / 2;
        cells.append(
            QRectF(QPointF(left + i % columns * (size.width() + gap), top + row * (size.height() + gap)), size));
    }
    return cells;
}

} // namespace lessonhost
