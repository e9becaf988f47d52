// SPDX-License-Identifier: MIT
#include "lesson/itemplace.h"

#include "lesson/planegeometry.h"

#include <cmath>

namespace lessonhost {

QRectF ItemPlace::extent() const
{
    return turnAbout(box.center(), angle).mapRect(box);
}

ItemPlace placeUnder(const QTransform &matrix, const QRectF &box)
{
    if (matrix.type() <= QTransform::TxScale && matrix.m11() > 0 && matrix.m22() > 0) {
        return {matrix.mapRect(box), 0};
    }
    const QSizeF size(box.width() * std::hypot(matrix.m11(), matrix.m12()),
                      box.height() * std::hypot(matrix.m21(), matrix.m22()));
    const QPointF corner = matrix.map(box.center()) - QPointF(size.width(), size.height()) / 2;
    return {QRectF(corner, size), std::atan2(matrix.m12(), matrix.m11())};
}

ItemPlace uprightUnder(const QTransform &matrix, const QRectF &box)
{
    if (matrix.determinant() >= 0) {
        return placeUnder(matrix, box);
    }
    const QPointF center = box.center();
    const QTransform mirror =
        matrix.m11() < 0 ? QTransform(-1, 0, 0, 1, 2 * center.x(), 0) : QTransform(1, 0, 0, -1, 0, 2 * center.y());
    return placeUnder(mirror * matrix, box);
}

} // namespace lessonhost
