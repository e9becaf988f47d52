// SPDX-License-Identifier: MIT
#ifndef UNIQUEIDS_H
#define UNIQUEIDS_H

#include <QHash>
#include <QString>
#include <QVector>

#include <algorithm>

namespace lessonhost {

/*!
 * Identifiers of which no two on a page are the same.
 */
class UniqueIds
{
public:
    UniqueIds() = default;
    //! endings: of the names that takeEndings() takes.
    explicit UniqueIds(const QVector<QLatin1String> &endings)
        : m_endings(endings)
    {
    }

    //! The identifier that is wanted, or one made of it that nobody has.
    QString take(const QString &wanted)
    {
        QString id = wanted;
        int number = m_used.value(wanted).made;
        while (has(id)) {
            id = wanted + QLatin1Char('_') + QString::number(++number + 1);
        }
        Use &use = m_used[wanted];
        use.made = number;
        use.isTaken = true;
        m_used[id].isTaken = true;
        return id;
    }

    bool has(const QString &id) const
    {
        return m_used.value(id).isTaken || std::any_of(m_endings.cbegin(), m_endings.cend(), [&](QLatin1String ending) {
                   return id.endsWith(ending) && m_used.value(id.chopped(ending.size())).hasEndings;
               });
    }

    //! Takes all names of an identifier with an ending behind it, which then nobody has, even when it is given back.
    //! False, and none is taken, if somebody has one of them.
    bool takeEndings(const QString &id)
    {
        const bool isFree =
            std::none_of(m_endings.cbegin(), m_endings.cend(), [&](QLatin1String ending) { return has(id + ending); });
        if (isFree) {
            m_used[id].hasEndings = true;
        }
        return isFree;
    }

    //! Makes an identifier free again that nobody needs.
    void giveBack(const QString &id)
    {
        if (m_used.value(id).hasEndings) {
            m_used[id] = {0, false, true};
        } else {
            m_used.remove(id);
        }
    }

    int count() const { return m_used.size(); }

private:
    struct Use
    {
        int made = 0; // how many were made of it
        bool isTaken = false;
        bool hasEndings = false;
    };

    QVector<QLatin1String> m_endings;
    QHash<QString, Use> m_used;
};

} // namespace lessonhost

#endif // UNIQUEIDS_H
