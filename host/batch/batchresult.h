// SPDX-License-Identifier: MIT
#ifndef BATCHRESULT_H
#define BATCHRESULT_H

#include "batch/batchshard.h"
#include "losses/losstotals.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <set>

namespace lessonhost {

struct BatchPlan;

/*!
 * What is done with many lessons, in words.
 */
struct BatchWork
{
    QString done; //!< what reports call a lesson with which all went well
    // For sayNumber() and, with %1 for seconds, say().
    const char *doneCount;
    const char *undoneCount;
    const char *undone;
    const char *someUndone; //!< with %1 for how many are named
    const char *tooLong;
    QString resultKey; //!< what the report calls the result of a lesson
    QStringList details; //!< parts of a result that aren't kept for a later run, nor for a report over many runs

    //! Results are LossReport::toJson().
    static const BatchWork conversion;
    //! Results are those of renderLesson().
    static const BatchWork drawing;
    //! Results are those of LessonCheck.
    static const BatchWork checking;
};

/*!
 * What became of many lessons, in numbers: those of one run, or of several together.
 */
class BatchTotals
{
public:
    enum State { Open, Done, DoneBefore, Failed };

    explicit BatchTotals(const BatchWork &what)
        : work(&what)
    {
    }
    //! The totals of a report, by its head. work is null where it is none.
    static BatchTotals fromHead(const QJsonObject &head);

    const BatchWork *work;
    LossTotals kinds;
    bool isInterrupted = false;

    //! A lesson, with what the work made of it.
    void add(State state, const QJsonObject &result = {});
    //! What is to be noted of a lesson.
    void addNotes(const Sentences &notes);
    //! A file that is called like a lesson and is none.
    void passOver(const QString &file);
    //! The plan of a run: how many lessons there are in all, and which shard this is.
    void setPlan(const BatchPlan &plan);
    //! Those of another run with the same work.
    void add(const BatchTotals &other);

    qint64 count(State state) const { return m_lessons.at(state); }
    qint64 lossCount() const { return m_losses; }
    //! What is wrong in lessons that were checked.
    qint64 foundCount() const { return kinds.count(QStringLiteral("found")); }
    //! Lessons of shards that aren't among the runs.
    qint64 notTaken() const { return qMax<qint64>(0, m_found - m_taken); }
    //! The number of all shards; 0 where there are none.
    int shards() const { return m_shards; }
    //! Those that aren't among the runs.
    QVector<int> missingShards() const;

    //! "12 lessons: 10 converted, 1 done before, 1 not converted." and what was lost, as sentences. whoNames: where
    //! each loss is named.
    Sentence summary(const Sentence &whoNames) const;
    //! What has to be said of shards; empty where there are none, or all.
    Sentence shardSummary() const;

    //! What a report begins with: {"counts", "interrupted", "kinds", "shards"}.
    QJsonObject toHead() const;

    //! What a report calls a state.
    static QString stateName(State state, const BatchWork &work);

private:
    qint64 lessons() const;
    qint64 namedCount() const { return kinds.count(QStringLiteral("named")); }

    std::array<qint64, 4> m_lessons{}; // by state
    qint64 m_losses = 0;
    qint64 m_lessonsWithLosses = 0;
    qint64 m_notes = 0;
    Sentence m_note; // the first one
    qint64 m_passedOver = 0;
    QString m_passedOverFile; // the first one
    int m_shards = 0;
    std::set<int> m_shardNumbers;
    qint64 m_found = 0; // what is called like a lesson, in all shards
    qint64 m_taken = 0; // in these
    bool m_isSum = false; // of runs
};

/*!
 * What became of the lessons of a plan.
 */
struct BatchResult
{
    explicit BatchResult(const BatchWork &work)
        : totals(work)
    {
    }

    BatchTotals totals;
    bool hasJournalFailed = false; //!< --resume will not know all that is done
};

} // namespace lessonhost

#endif // BATCHRESULT_H
