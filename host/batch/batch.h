// SPDX-License-Identifier: MIT
#ifndef BATCH_H
#define BATCH_H

#include "batch/batchplan.h"
#include "batch/batchresult.h"

namespace lessonhost {

/*!
 * What is done with many lessons, and how.
 */
struct BatchSettings
{
    const BatchWork *work = &BatchWork::conversion;
    QString outputFolder;
    QStringList workerArguments; //!< arguments with which this command runs serveBatch()
    QByteArray fingerprint; //!< whatever makes the same lesson give another result
    int jobs = 1; //!< worker processes
    int lessonSeconds = 0; //!< a lesson that takes longer fails; 0: each may take as long as it does
    bool keepsOutputs = false; //!< what stands in the place of a result stays, and the lesson fails
    bool resume = false; //!< leave out what is done and unchanged
};

/*!
 * Who wants to know how far it is.
 */
struct BatchWatcher
{
    //! name: the lesson that a worker took last.
    std::function<void(int done, int total, const QString &name)> progress;
    std::function<void(const Sentence &message)> failure;
    //! What became of a lesson of the plan, by its index; may be empty. May throw LessonError.
    std::function<void(int index, BatchTotals::State state, const QJsonObject &result, const Sentence &message)> told;
};

/*!
 * Has the lessons of a plan worked on in worker processes. Each takes one lesson after the other; one that crashes
 * fails its lesson and is started anew. An interruption from the terminal ends the run between two results: what was
 * being made is removed. Throws LessonError if nothing can be done at all.
 */
BatchResult runBatch(const BatchPlan &plan, const BatchSettings &settings, const BatchWatcher &watcher);

/*!
 * What a worker process has made of a lesson.
 */
struct BatchAnswer
{
    QJsonObject result;
    Sentences notes; //!< those of the result, to be told
};

//! What a worker process does until its input ends: reads a line {"input", "output"} for each lesson and answers with a
//! line, either {"result": what work returns, "notes": sentences} or {"failure": sentence}. Sentences are pairs of an
//! English text and one in the user's language.
void serveBatch(const std::function<BatchAnswer(const QString &input, const QString &output)> &work);

} // namespace lessonhost

#endif // BATCH_H
