// SPDX-License-Identifier: MIT
#ifndef LESSONDIFFERENCE_H
#define LESSONDIFFERENCE_H

#include "valuerest.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

// What differs between a lesson and what came back of it: what the host's report is judged by. Numbers, colours and
// flags are read by the host's own readers; which values count, which items are each other's and where they stand is
// worked out here and in itemposition.

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

//! Two lessons in the model. What is new in the found one is no difference, unless it says otherwise than its absence.
Differences lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road);

#endif // LESSONDIFFERENCE_H
