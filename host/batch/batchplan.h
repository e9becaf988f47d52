// SPDX-License-Identifier: MIT
#ifndef BATCHPLAN_H
#define BATCHPLAN_H

#include "batch/batchshard.h"
#include "files/inputguard.h"
#include "formats/lessonformats.h"
#include "sentences/sentence.h"

#include <QVector>

namespace lessonhost {

/*!
 * Which lessons a run over many converts, and where each goes.
 */
struct BatchPlan
{
    struct Lesson
    {
        QString input; //!< as the user called it, or the folder as the user called it and the way from there
        QString output; //!< relative to the folder for the results, with "/" between the parts
        const LessonFormat *format = nullptr; //!< null where none can be told: reading it will say so
        Sentence problem; //!< why it can't be converted at all, as a sentence; then it has no output
    };

    QVector<Lesson> lessons; //!< ascending by output
    BatchShard shard; //!< these are its lessons
    int found = 0; //!< what is called like a lesson, in all shards
    int taken = 0; //!< the part of it that falls to this one
    InputGuard inputs; //!< all of them
    QStringList passedOver; //!< files in folders that have the name of a lesson and are something else
};

/*!
 * Looks for lessons and names their results.
 *
 * A given folder that is no lesson itself is searched with all its folders, links and hidden entries left out; a lesson
 * that is a folder is one lesson and not searched. What is found in a folder keeps its way from there; with several
 * folders, each result lies in a folder of that name. A lesson that is met twice is converted once. Where two lessons
 * would have one name, such as a.zqtx and a.json, both keep the ending that they have: a.zqtx.iwb and a.json.iwb. So
 * does one whose result would stand where a folder of other results is to be.
 *
 * What can't be called or looked into is a lesson with a problem.
 *
 * Of a shard, only its own lessons are opened. Names are the same as in one run over all, and there may be none.
 *
 * from: the format of all inputs, or null to tell it from each. extension: of the results, without the point; empty for
 * results that are folders. Throws LessonError where results can't be kept apart,
 * the results would lie among the lessons, or there is no lesson.
 */
BatchPlan planBatch(const QStringList &inputs, const LessonFormat *from, const QString &extension,
                    const QString &outputFolder, const BatchShard &shard = {});

} // namespace lessonhost

#endif // BATCHPLAN_H
