// SPDX-License-Identifier: MIT
#ifndef LOSSREPORT_H
#define LOSSREPORT_H

#include "losses/losslist.h"
#include "sentences/sentence.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <set>

namespace lessonhost {

//! A line about those of a kind: "2 values lost: " and the list. format: what is written, such as "IWB"; may be empty.
Sentence lossLine(Loss::Kind kind, qint64 count, const Sentence &listed, const QString &format);

//! At most 20 names, and how many there are besides.
Sentence lossNames(const Sentences &names);

//! "Circle 3 on slide 3", "... on slides 3 to 9" or "... on 5 slides from 3 to 9"; the name of what is of the
//! presentation alone, which is slide 0.
Sentence onSlides(const Sentence &name, const std::set<int> &slides);

/*!
 * Collects losses in the order in which they are found and puts them into words and JSON.
 */
class LossReport
{
public:
    LossReport() = default;
    //! An empty one for another thread, whose entries will be added to this one: a report is one thread's.
    LossReport another() const { return LossReport(m_entries.another()); }

    void add(const Loss &loss) { m_entries.append(loss); }
    void add(const LossList &losses) { m_entries.append(losses); }
    //! What was told since the last time, which it has no longer.
    LossList takeEntries() { return m_entries.takeAll(); }

    const LossList &entries() const { return m_entries; }
    //! Values, items and files; what was kept, notes and what is so for other boards alone don't count.
    int lossCount() const;
    bool isEmpty() const { return m_entries.isEmpty(); }

    //! What the summary calls the format being written, such as "IWB".
    void setFormat(const QString &name) { m_format = name; }

    //! A line for each kind: "2 values lost: ZQChalkStroke.Weight on slide 3, ...". No text without entries.
    Sentence summary() const;

    //! {"losses": number, "summary": lines, "kinds": {"value": {"ZQChalkStroke.Weight": number, ...}, ...},
    //! "entries": [{"kind", "group", "slide", "type", "id", "key", "detail"}, ...]}
    QJsonObject toJson() const;
    //! The same without the entries.
    QJsonObject toHead() const;
    //! What QJsonDocument writes of toJson(), with more members, but piece by piece, since it may be larger than the
    //! lesson.
    void writeJson(const std::function<void(const QByteArray &piece)> &put, const QJsonObject &more = {}) const;

private:
    explicit LossReport(const LossList &entries)
        : m_entries(entries)
    {
    }

    LossList m_entries;
    QString m_format;
};

} // namespace lessonhost

#endif // LOSSREPORT_H
