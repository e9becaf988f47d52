// SPDX-License-Identifier: MIT
#ifndef UNIQUEIDS_H
#define UNIQUEIDS_H

#include <QHash>
#include <QString>

namespace lessonhost {

/*!
 * Identifiers of which no two on a page are the same.
 */
class UniqueIds
{
public:
    //! The identifier that is wanted, or one made of it that nobody has.
    QString take(const QString &wanted)
    {
        QString id = wanted;
        int number = m_used.value(wanted, 0);
        while (m_used.contains(id)) {
            id = wanted + QLatin1Char('_') + QString::number(++number + 1);
        }
        m_used.insert(wanted, number);
        m_used.insert(id, m_used.value(id, 0));
        return id;
    }

    bool has(const QString &id) const { return m_used.contains(id); }

    //! Makes an identifier free again that nobody needs.
    void giveBack(const QString &id) { m_used.remove(id); }

    int count() const { return m_used.size(); }

private:
    QHash<QString, int> m_used; // how many were made of each
};

} // namespace lessonhost

#endif // UNIQUEIDS_H
