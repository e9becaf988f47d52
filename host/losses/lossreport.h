// SPDX-License-Identifier: MIT
#ifndef LOSSREPORT_H
#define LOSSREPORT_H

#include "sentences/sentence.h"

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QVector>

#include <set>

namespace lessonhost {

/*!
 * What a conversion could not bring over.
 */
struct Loss
{
    enum Kind {
        Value, //!< a value of an item, a slide or the presentation did not survive
        Item, //!< an item has no form in the format written, and isn't there
        Kept, //!< an item nobody can convert went over as it came: named, but no loss
        File, //!< a file that the lesson names isn't there or can't be taken
        Changed, //!< what another program has done to the lesson since it was written: named, but no loss
        Note, //!< done otherwise than one would expect: named, but no loss
        AsPicture, //!< an item that other boards show as a picture; it travels along and comes back, so no loss
        NotShown, //!< an item that other boards don't show; it travels along and comes back, so no loss
        Otherwise, //!< a value that other boards show otherwise; it travels along, too
        Absent, //!< something that the lesson itself hasn't, so that the item shows nothing: named, but no loss
        Emptied, //!< a slide with items none of which is in the result; they count, the slide doesn't
        EmptiedElsewhere, //!< a slide of which other boards show no item
    };

    //! What it means for the lesson.
    enum Group {
        Missing, //!< something isn't shown at all
        Different, //!< it is shown, and not the same
        Internal, //!< nobody sees or hears it
        Told, //!< nothing is lost
    };

    Kind kind = Value;
    int slide = 0; //!< counted from 1; 0 is the presentation
    QString itemType; //!< item type, or "slide" or "presentation"
    QString itemId;
    QString key; //!< JSON key, XML attribute or file
    Sentence detail; //!< what it was, or why; may be empty
    //! Of an item that isn't there: there is something in its place; of a value: all looks the same without it.
    bool isShown = false;
    bool isFile = false; //!< of what is otherwise elsewhere: the key is the name of a file
};

//! False for what is only named.
bool isLoss(Loss::Kind kind);

Loss::Group groupOf(const Loss &loss);

//! Whether it is so for other boards alone, to which the lesson goes with all that they don't show.
bool isElsewhere(Loss::Kind kind);

//! What reports call it.
QLatin1String lossKindName(Loss::Kind kind);

//! The kinds in the order in which they are told, the gravest first.
const QVector<Loss::Kind> &lossKinds();

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
    void add(const Loss &loss);
    void add(const QVector<Loss> &losses);
    //! What was told since the last time, which it has no longer. For reports that are passed on: a report is one
    //! thread's.
    QVector<Loss> takeEntries();

    const QVector<Loss> &entries() const { return m_entries; }
    //! Values, items and files; what was kept, notes and what is so for other boards alone don't count.
    int lossCount() const { return m_lossCount; }
    bool isEmpty() const { return m_entries.isEmpty(); }

    //! What the summary calls the format being written, such as "IWB".
    void setFormat(const QString &name) { m_format = name; }

    //! A line for each kind: "2 values lost: ZQChalkStroke.Weight on slide 3, ...". No text without entries.
    Sentence summary() const;

    //! {"losses": number, "summary": lines, "kinds": {"value": {"ZQChalkStroke.Weight": number, ...}, ...},
    //! "entries": [{"kind", "group", "slide", "type", "id", "key", "detail"}, ...]}
    QJsonObject toJson() const;

private:
    QString shared(const QString &text);
    Sentence shared(const Sentence &sentence);

    QVector<Loss> m_entries;
    QSet<QString> m_texts; //!< each text of the entries that others may have too, once
    QHash<QString, Sentence> m_details; //!< the same by their English
    QString m_format;
    int m_lossCount = 0;
};

} // namespace lessonhost

#endif // LOSSREPORT_H
