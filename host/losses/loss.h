// SPDX-License-Identifier: MIT
#ifndef LOSS_H
#define LOSS_H

#include "sentences/sentence.h"

#include <QString>
#include <QVector>

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

} // namespace lessonhost

#endif // LOSS_H
