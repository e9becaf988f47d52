// SPDX-License-Identifier: MIT
#include "canvas/labelplaces.h"

#include <algorithm>

namespace lessonhost {

bool LabelPlaces::isFree(const QRectF &place) const
{
    return std::none_of(m_taken.cbegin(), m_taken.cend(),
                        [&place](const QRectF &label) { return label.intersects(place); });
}

QRectF LabelPlaces::freeWithin(const QRectF &box, const QSizeF &size) const
{
    constexpr int steps = 8;
    QRectF middle(QPointF(), size);
    middle.moveCenter(box.center());
    const double roomX = qMax(0.0, (box.width() - size.width()) / 2);
    const double roomY = qMax(0.0, (box.height() - size.height()) / 2);
    for (int i = 0; i <= steps; ++i) {
        for (const double part : {double(i) / steps, -double(i) / steps}) {
            for (const QPointF &offset : {QPointF(0, roomY * part), QPointF(roomX * part, 0)}) {
                if (isFree(middle.translated(offset))) {
                    return middle.translated(offset);
                }
            }
        }
    }
    return {};
}

QRectF LabelPlaces::freeBeside(const QRectF &box, const QSizeF &size, const QRectF &page) const
{
    constexpr double gap = 3;
    const QPointF middle = box.center() - QPointF(size.width(), size.height()) / 2;
    for (const QPointF &corner :
         {QPointF(box.right() + gap, middle.y()), QPointF(box.left() - gap - size.width(), middle.y()),
          QPointF(middle.x(), box.bottom() + gap), QPointF(middle.x(), box.top() - gap - size.height())}) {
        const QRectF place(corner, size);
        if (!size.isEmpty() && page.contains(place) && isFree(place)) {
            return place;
        }
    }
    return {};
}

} // namespace lessonhost
