// SPDX-License-Identifier: MIT
#include "batch/batchresult.h"

#include "batch/batchplan.h"

#include <QJsonArray>

#include <algorithm>
#include <numeric>

namespace lessonhost {

namespace {

const QLatin1String lossesKey("losses");

QString counted(int count, const QString &what)
{
    return QString::number(count) + QLatin1Char(' ') + what;
}

// One of two words, by the number.
QString counted(int count, const char *one, const char *several)
{
    return counted(count, QLatin1String(count == 1 ? one : several));
}

QString stateName(BatchResult::State state, const BatchWork &work)
{
    switch (state) {
    case BatchResult::Done:
        return work.done;
    case BatchResult::DoneBefore:
        return QStringLiteral("done before");
    case BatchResult::Failed:
        return QStringLiteral("failed");
    case BatchResult::Open:
        break;
    }
    return QStringLiteral("open");
}

QString whoNames(bool hasReport)
{
    return hasReport ? QStringLiteral("the report") : QStringLiteral("--report FILE");
}

} // namespace

const BatchWork BatchWork::conversion{
    QStringLiteral("conversion"), QStringLiteral("converted"), lossesKey, {QStringLiteral("entries")}};
const BatchWork BatchWork::drawing{
    QStringLiteral("drawing"),
    QStringLiteral("drawn"),
    QStringLiteral("drawn"),
    {QStringLiteral("files"), QStringLiteral("named"), QStringLiteral("missingFonts"), QStringLiteral("notes")}};

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

int BatchResult::namedCount() const
{
    return std::accumulate(lessons.cbegin(), lessons.cend(), 0,
                           [](int sum, const Lesson &lesson) { return sum + lesson.namedCount(); });
}

QString BatchResult::summary(const BatchPlan &plan, bool hasReport) const
{
    QStringList parts{counted(count(Done), work->done)};
    for (const auto &[state, what] : {std::pair(DoneBefore, QStringLiteral("done before")),
                                      {Failed, QString(QLatin1String("not ") + work->done)},
                                      {Open, QStringLiteral("not begun")}}) {
        if (count(state) > 0) {
            parts.append(counted(count(state), what));
        }
    }
    QString text =
        counted(lessons.size(), "lesson: ", "lessons: ") + parts.join(QLatin1String(", ")) + QLatin1String(".\n");
    if (const int concerned = lessonsWithLosses()) {
        text += QStringLiteral("%1 lost something, %2 in all; %3 names each.\n")
                    .arg(counted(concerned, "lesson", "lessons"),
                         counted(lossCount(), "value, item or file", "values, items or files"), whoNames(hasReport));
    }
    if (const int named = namedCount()) {
        text += QStringLiteral("%1 shown by name; %2 names each.\n")
                    .arg(counted(named, "item is", "items are"), whoNames(hasReport));
    }
    QStringList notes;
    for (const Lesson &lesson : lessons) {
        notes += lesson.notes();
    }
    if (!notes.isEmpty()) {
        text += QStringLiteral("%1, such as: %2.\n")
                    .arg(counted(notes.size(), "note on a font that isn't here", "notes on fonts that aren't here"),
                         notes.first());
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
                          {QStringLiteral("state"), stateName(lesson.state, *work)}};
        if (lesson.state == Failed) {
            entry.insert(QStringLiteral("message"), lesson.message);
        } else if (lesson.state != Open) {
            entry.insert(work->resultKey, lesson.result);
        }
        list.append(entry);
    }
    QJsonObject counts;
    if (work == &BatchWork::conversion) {
        counts = {{lossesKey, lossCount()}, {QStringLiteral("with losses"), lessonsWithLosses()}};
    } else {
        counts = {{QStringLiteral("named"), namedCount()}};
    }
    for (const State state : {Done, DoneBefore, Failed, Open}) {
        counts.insert(stateName(state, *work), count(state));
    }
    return {{QStringLiteral("counts"), counts},
            {QStringLiteral("interrupted"), isInterrupted},
            {QStringLiteral("lessons"), list},
            {QStringLiteral("passedOver"), QJsonArray::fromStringList(plan.passedOver)}};
}

} // namespace lessonhost
