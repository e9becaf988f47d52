// SPDX-License-Identifier: MIT
#ifndef LESSONDIFFERENCE_H
#define LESSONDIFFERENCE_H

#include <QDomElement>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVector>

#include <functional>

// What differs between a lesson and what came back of it: what the host's report is judged by. Numbers, colours and
// flags are read by the host's own readers; which values count, which items are each other's and where they stand is
// worked out here. Where the host has tables of what is the same in another dress, this looks at values alone: what may
// be the same may be told as lost and needn't be, whatever its key is.

//! Whose value it is.
struct Owner
{
    int slide = 0; //!< from 1; 0 for the presentation
    QString type; //!< of the item, "slide" or "presentation"
    QString id;
};

struct Difference
{
    Owner owner;
    QString key; //!< of the item, or the way to a value in XML: "data/rect@points"; empty for the whole item
    QString given;
    QString found;
    bool isMinor = false; //!< may be told as lost, and needn't be
};
using Differences = QVector<Difference>;

//! How lessons travelled: what a format does to every value of a kind is no difference.
enum class Road {
    Kept, //!< the model stays what it is
    Packed, //!< values become texts, and a matrix is worked into where its item stands
    Drawn, //!< items become drawings: groups are taken apart, places and texts are worked out anew
};

//! How much of a value is left.
enum class Rest {
    All,
    Alike, //!< perhaps all, in another dress: a number of more digits, another text of a colour
    Less,
};

//! Two lessons in the model. What is new in the found one is no difference, unless it says otherwise than its absence.
Differences lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road);

//! What is left of a value of a key in the model.
Rest restOf(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road);

//! Two documents of a slide or a presentation.
Differences documentDifferences(int slide, const QDomElement &given, const QDomElement &found);

//! What an element says, by the ways to it from the element: attributes as "data/rect@points", texts as "data/note". A
//! row of properties has its label in brackets, the second element of a name "#2" behind it; a bare element says an
//! empty text. isOther: for children that are looked at by themselves.
using Texts = QMap<QString, QStringList>;
void collectTexts(const QDomElement &element, const QString &way,
                  const std::function<bool(const QDomElement &child)> &isOther, Texts &texts);
QString withoutNumbers(QString way);

#endif // LESSONDIFFERENCE_H
