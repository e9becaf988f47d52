#ifndef BATCH_H
#define BATCH_H

#include "batch/batchplan.h"

#include <QJsonObject>

namespace lessonhost {

/*!
 * How many lessons are converted.
 */
struct BatchSettings
{
    QString outputFolder;
    QStringList workerArguments; //!< arguments with which this command runs serveBatch()
    QByteArray fingerprint; //!< whatever makes the same lesson give another result
    int jobs = 1; //!< worker processes
    int lessonSeconds = 0; //!< a lesson that takes longer fails; 0: each may take as long as it does
    bool resume = false; //!< leave out what is done and unchanged
};

/*!
 * What became of each lesson of a plan.
 */
struct BatchResult
{
    enum State { Open, Converted, DoneBefore, Failed };

    struct Lesson
    {
        State state = Open;
        QJsonObject losses; //!< LossReport::toJson(); without its entries for one done before
        QString message; //!< why it failed

        int lossCount() const { return losses.value(QLatin1String("losses")).toInt(); }
    };

    QVector<Lesson> lessons; //!< in the order of the plan
    bool isInterrupted = false;

    int count(State state) const;
    int lossCount() const;
    int lessonsWithLosses() const;

    //! "12 lessons: 10 converted, 1 done before, 1 not converted." and what was lost, as sentences.
    QString summary(const BatchPlan &plan, bool hasReport) const;

    //! {"lessons": [{"input", "output", "state", "losses", "message"}], "counts", "passedOver", "interrupted"}
    QJsonObject toJson(const BatchPlan &plan) const;
};

/*!
 * Who wants to know how far it is.
 */
struct BatchWatcher
{
    //! name: the lesson that a worker took last.
    std::function<void(int done, int total, const QString &name)> progress;
    std::function<void(const QString &message)> failure;
};

/*!
 * Converts the lessons of a plan in worker processes. Each takes one lesson after the other; one that crashes fails its
 * lesson and is started anew. An interruption from the terminal ends the run between two results: what was being made
 * is removed. Throws LessonError if nothing can be done at all.
 */
BatchResult runBatch(const BatchPlan &plan, const BatchSettings &settings, const BatchWatcher &watcher);

//! What a worker process does until its input ends: reads a line {"input", "output"} for each lesson and answers with a
//! line, either what convert returns or {"failure": sentence}.
void serveBatch(const std::function<QJsonObject(const QString &input, const QString &output)> &convert);

} // namespace lessonhost

#endif // BATCH_H
