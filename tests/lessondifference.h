#ifndef LESSONDIFFERENCE_H
#define LESSONDIFFERENCE_H

#include <QDomElement>
#include <QJsonObject>
#include <QString>
#include <QVector>

// What differs between a lesson and what came back of it. Nothing of this knows how the host compares: it is what the
// host's report is judged by.

struct Difference
{
    int slide; //!< from 1; 0 for the presentation
    QString type; //!< of the item, "slide" or "presentation"
    QString id;
    QString
        key; //!< the way from the item to the value: "matchs[0].answer", "data/rect@points"; empty for the whole item
    QString given;
    QString found;
    bool isMinor = false; //!< may be told as lost, and needn't be
};

//! How lessons travelled: what a format does to every value of a kind is no difference.
enum class Road {
    Kept, //!< the model stays what it is
    Packed, //!< values become texts, and a matrix is worked into where its item stands
    Drawn, //!< items become drawings: groups are taken apart, places and texts are worked out anew
};

//! Two lessons in the model. What is new in the found one is no difference, unless it says otherwise than its absence.
QVector<Difference> lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road);

//! Two values of a key in the model, in any form that says the same.
bool isSameInModel(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road);

//! Two documents of a slide or a presentation.
QVector<Difference> documentDifferences(int slide, const QDomElement &given, const QDomElement &found);

#endif // LESSONDIFFERENCE_H
