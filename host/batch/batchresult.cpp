#include "batch/batchresult.h"

#include "batch/batchplan.h"

#include <QJsonArray>

#include <algorithm>
#include <numeric>

namespace lessonhost {

namespace {

const QLatin1String lossesKey("losses");

QString counted(int count, const char *what)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(what);
}

QLatin1String stateName(BatchResult::State state)
{
    switch (state) {
    case BatchResult::Converted:
        return QLatin1String("converted");
    case BatchResult::DoneBefore:
        return QLatin1String("done before");
    case BatchResult::Failed:
        return QLatin1String("failed");
    case BatchResult::Open:
        break;
    }
    return QLatin1String("open");
}

} // namespace

int BatchResult::count(State state) const
{
    return int(std::count_if(lessons.cbegin(), lessons.cend(),
                             [state](const Lesson &lesson) { return lesson.state == state; }));
}

int BatchResult::lossCount() const
{
    return std::accumulate(lessons.cbegin(), lessons.cend(), 0,
                           [](int sum, const Lesson &lesson) { return sum + lesson.lossCount(); });
}

int BatchResult::lessonsWithLosses() const
{
    return int(
        std::count_if(lessons.cbegin(), lessons.cend(), [](const Lesson &lesson) { return lesson.lossCount() > 0; }));
}

QString BatchResult::summary(const BatchPlan &plan, bool hasReport) const
{
    QStringList parts{counted(count(Converted), "converted")};
    for (const auto &[state, what] :
         {std::pair(DoneBefore, "done before"), {Failed, "not converted"}, {Open, "not begun"}}) {
        if (count(state) > 0) {
            parts.append(counted(count(state), what));
        }
    }
    QString text = counted(lessons.size(), lessons.size() == 1 ? "lesson: " : "lessons: ")
        + parts.join(QLatin1String(", ")) + QLatin1String(".\n");
    if (const int concerned = lessonsWithLosses()) {
        text += QStringLiteral("%1 lost something, %2 in all; %3 names each.\n")
                    .arg(counted(concerned, concerned == 1 ? "lesson" : "lessons"),
                         counted(lossCount(), lossCount() == 1 ? "value, item or file" : "values, items or files"),
                         hasReport ? QStringLiteral("the report") : QStringLiteral("--report FILE"));
    }
    if (!plan.passedOver.isEmpty()) {
        text += plan.passedOver.size() == 1
            ? QStringLiteral("1 file is called like a lesson and is none: %1.\n").arg(plan.passedOver.first())
            : QStringLiteral("%1 files are called like lessons and are none, such as %2.\n")
                  .arg(plan.passedOver.size())
                  .arg(plan.passedOver.first());
    }
    if (isInterrupted) {
        text += QLatin1String("Interrupted. The same command with --resume does the rest.\n");
    }
    return text;
}

QJsonObject BatchResult::toJson(const BatchPlan &plan) const
{
    QJsonArray list;
    for (int i = 0; i < lessons.size(); ++i) {
        const Lesson &lesson = lessons.at(i);
        QJsonObject entry{{QStringLiteral("input"), plan.lessons.at(i).input},
                          {QStringLiteral("output"), plan.lessons.at(i).output},
                          {QStringLiteral("state"), stateName(lesson.state)}};
        if (lesson.state == Failed) {
            entry.insert(QStringLiteral("message"), lesson.message);
        } else if (lesson.state != Open) {
            entry.insert(lossesKey, lesson.losses);
        }
        list.append(entry);
    }
    QJsonObject counts{{lossesKey, lossCount()}, {QStringLiteral("with losses"), lessonsWithLosses()}};
    for (const State state : {Converted, DoneBefore, Failed, Open}) {
        counts.insert(stateName(state), count(state));
    }
    return {{QStringLiteral("counts"), counts},
            {QStringLiteral("interrupted"), isInterrupted},
            {QStringLiteral("lessons"), list},
            {QStringLiteral("passedOver"), QJsonArray::fromStringList(plan.passedOver)}};
}

} // namespace lessonhost
