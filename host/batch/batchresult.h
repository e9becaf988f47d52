// SPDX-License-Identifier: MIT
#ifndef BATCHRESULT_H
#define BATCHRESULT_H

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lessonhost {

struct BatchPlan;

/*!
 * What is done with many lessons, in words.
 */
struct BatchWork
{
    QString name; //!< "conversion"
    QString done; //!< "converted"
    QString resultKey; //!< what the report calls the result of a lesson
    QStringList details; //!< parts of a result that aren't kept for a later run

    //! Results are LossReport::toJson().
    static const BatchWork conversion;
    //! Results are those of renderLesson().
    static const BatchWork drawing;
};

/*!
 * What became of each lesson of a plan.
 */
struct BatchResult
{
    enum State { Open, Done, DoneBefore, Failed };

    struct Lesson
    {
        State state = Open;
        QJsonObject result; //!< without its details for one done before
        QString message; //!< why it failed

        int lossCount() const { return result.value(QLatin1String("losses")).toInt(); }
        QStringList notes() const
        {
            QStringList notes;
            const QJsonArray all = result.value(QLatin1String("notes")).toArray();
            for (const QJsonValue &note : all) {
                notes.append(note.toString());
            }
            return notes;
        }
        int namedCount() const { return result.value(QLatin1String("named")).toArray().size(); }
    };

    explicit BatchResult(const BatchWork &what)
        : work(&what)
    {
    }

    const BatchWork *work;

    QVector<Lesson> lessons; //!< in the order of the plan
    bool isInterrupted = false;
    bool hasJournalFailed = false; //!< --resume will not know all that is done

    int count(State state) const;
    int lossCount() const;
    int lessonsWithLosses() const;
    int namedCount() const;

    //! "12 lessons: 10 converted, 1 done before, 1 not converted." and what was lost, as sentences.
    QString summary(const BatchPlan &plan, bool hasReport) const;

    //! {"lessons": [{"input", "output", "state", "losses" or "drawn", "message"}], "counts", "passedOver",
    //! "interrupted"}
    QJsonObject toJson(const BatchPlan &plan) const;
};

} // namespace lessonhost

#endif // BATCHRESULT_H
