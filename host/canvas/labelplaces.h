// SPDX-License-Identifier: MIT
#ifndef LABELPLACES_H
#define LABELPLACES_H

#include <QRectF>
#include <QVector>

namespace lessonhost {

/*!
 * Where the labels of a page stand, so that none lies on another. Lengths are the page's.
 */
class LabelPlaces
{
public:
    //! From now on, nothing else is put there.
    void take(const QRectF &place) { m_taken.append(place); }

    //! In the middle of a box or as near to it as nothing stands. Null where all is taken.
    QRectF freeWithin(const QRectF &box, const QSizeF &size) const;
    //! To the right of a box, to its left, below or above, on the page. Null where there is no room.
    QRectF freeBeside(const QRectF &box, const QSizeF &size, const QRectF &page) const;

private:
    bool isFree(const QRectF &place) const;

    QVector<QRectF> m_taken;
};

} // namespace lessonhost

#endif // LABELPLACES_H
