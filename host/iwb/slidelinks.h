// SPDX-License-Identifier: MIT
#ifndef SLIDELINKS_H
#define SLIDELINKS_H

#include <QJsonObject>
#include <QVector>

namespace lessonhost {

/*!
 * Links to slides follow these, where another program has moved pages since the lesson was written.
 */
class SlideLinks
{
public:
    //! No slide is elsewhere.
    SlideLinks() = default;
    //! Where each slide that the lesson had is now, from 1; 0 for one that is gone.
    explicit SlideLinks(const QVector<int> &numbers)
        : m_numbers(numbers)
    {
    }

    bool areMoved() const { return !m_numbers.isEmpty(); }

    //! An item as the lesson had it, with all that it holds. One whose slide is gone has no link any longer, and comes
    //! as it was among those that lost theirs.
    QJsonObject moved(QJsonObject item, QVector<QJsonObject> &lost) const;
    //! The same, but for what the item holds.
    QJsonObject movedAlone(QJsonObject item, QVector<QJsonObject> &lost) const;

private:
    QVector<int> m_numbers;
};

} // namespace lessonhost

#endif // SLIDELINKS_H
