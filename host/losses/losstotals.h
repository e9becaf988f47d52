// SPDX-License-Identifier: MIT
#ifndef LOSSTOTALS_H
#define LOSSTOTALS_H

#include "sentences/sentence.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

namespace lessonhost {

/*!
 * How often what was lost, over many lessons. Takes no more memory for a million of them than for a thousand.
 */
class LossTotals
{
public:
    //! kinds: what LossReport::toJson() tells of a lesson under that name.
    void addLesson(const QJsonObject &kinds);
    //! What toJson() told of other lessons.
    void add(const QJsonObject &totals);

    //! How many of a kind, by the name that reports have for it.
    qint64 count(const QString &kind) const { return m_kinds.value(kind).all.count; }

    //! A line for each kind: "300 values lost: 280 ZQChalkStroke.Weight in 12 lessons, ...", the most frequent first.
    Sentences summary() const;

    //! {"value": {"count", "lessons", "names": {"ZQChalkStroke.Weight": {"count", "lessons"}, ...}}, ...}
    QJsonObject toJson() const;

private:
    struct Count
    {
        qint64 count = 0;
        qint64 lessons = 0; //!< it was in so many

        void add(const Count &other);
        QJsonObject toJson() const;
    };
    struct Kind
    {
        Count all;
        QMap<QString, Count> names;

        void add(const QString &name, const Count &count);
    };

    static Sentence listed(const Kind &kind);

    QMap<QString, Kind> m_kinds;
};

} // namespace lessonhost

#endif // LOSSTOTALS_H
