#ifndef BATCHRESULT_H
#define BATCHRESULT_H

#include <QJsonObject>
#include <QVector>

namespace lessonhost {

struct BatchPlan;

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
    bool hasJournalFailed = false; //!< --resume will not know all that is done

    int count(State state) const;
    int lossCount() const;
    int lessonsWithLosses() const;

    //! "12 lessons: 10 converted, 1 done before, 1 not converted." and what was lost, as sentences.
    QString summary(const BatchPlan &plan, bool hasReport) const;

    //! {"lessons": [{"input", "output", "state", "losses", "message"}], "counts", "passedOver", "interrupted"}
    QJsonObject toJson(const BatchPlan &plan) const;
};

} // namespace lessonhost

#endif // BATCHRESULT_H
