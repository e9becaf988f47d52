// SPDX-License-Identifier: MIT
#ifndef LESSONCHECK_H
#define LESSONCHECK_H

#include "formats/lessonformats.h"
#include "losses/lossreport.h"
#include "sentences/sentence.h"

#include <QJsonObject>
#include <QVector>

#include <array>

namespace lessonhost {

/*!
 * Whether a lesson is whole, and what other formats would lose of it.
 */
struct LessonCheck
{
    //! Something that is missing, or isn't as it has to be.
    struct Finding
    {
        enum Kind {
            File, //!< a file that the lesson names isn't there
            Picture, //!< a file isn't the picture that it has to be
            Item, //!< nobody knows what it is
            Value //!< out of its range, or missing
        };

        Kind kind = File;
        int slide = 0; //!< counted from 1; 0 is the presentation
        QString itemType; //!< or "slide" or "presentation"
        QString itemId;
        QString key; //!< of a value, or the file
        QString value;
        Sentence problem; //!< a clause: what it has to be, or what it is
    };

    //! What a format would lose.
    struct Format
    {
        QString name;
        LossReport losses;
        Sentence problem; //!< why it can't hold the lesson at all; may be empty
    };

    int slides = 0;
    int items = 0; //!< nested ones too
    int files = 0;
    QVector<Finding> findings; //!< as many as one may read
    int found = 0; //!< all of them
    std::array<int, Finding::Value + 1> counts{}; //!< of each kind
    LossReport reading; //!< what the model of the lesson doesn't hold, so that no format gets it
    QVector<Format> formats;

    bool isWhole() const { return found == 0; }
    int lossCount() const;

    //! Lines for people.
    Sentences words(const QString &name) const;
    //! {"found", "kinds", "losses", "findings": [{"kind", "slide", "type", "id", "key", "value", "problem"}], "slides", "items",
    //! "files", "reading": {"losses", "summary", "groups"}, "formats": [{"format", "problem", "losses", "summary",
    //! "groups"}]}
    QJsonObject toJson() const;
};

/*!
 * Checks a lesson. from: its format. formats: those to try, without what they would write. context: for reading and
 * writing; its losses aren't used. Throws LessonError for a lesson that can't be read, and where the machine fails.
 */
LessonCheck checkLesson(const LessonFormat &from, const QString &input, const QVector<const LessonFormat *> &formats,
                        const LessonContext &context, const Progress &progress);

} // namespace lessonhost

#endif // LESSONCHECK_H
