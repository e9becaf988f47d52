// SPDX-License-Identifier: MIT
#include "batch/batchresult.h"

#include "batch/batchplan.h"

#include <QJsonArray>

#include <numeric>

namespace lessonhost {

namespace {

const QLatin1String lossesKey("losses");
const QLatin1String withLossesKey("with losses");
const QLatin1String namedKey("named");
const QLatin1String notTakenKey("not taken");
const QLatin1String countsKey("counts");
const QLatin1String interruptedKey("interrupted");
const QLatin1String kindsKey("kinds");
const QLatin1String notesKey("notes");
const QLatin1String shardsKey("shards");
const QLatin1String ofKey("of");
const QLatin1String numbersKey("numbers");
const QLatin1String missingKey("missing");
const QLatin1String foundKey("found");
const QLatin1String takenKey("taken");

constexpr auto states = {BatchTotals::Done, BatchTotals::DoneBefore, BatchTotals::Failed, BatchTotals::Open};

QString counted(qint64 count, const QString &what)
{
    return QString::number(count) + QLatin1Char(' ') + what;
}

// One of two words, by the number.
QString counted(qint64 count, const char *one, const char *several)
{
    return counted(count, QLatin1String(count == 1 ? one : several));
}

qint64 number(const QJsonObject &object, QLatin1String key)
{
    return qint64(object.value(key).toDouble());
}

// "3, 7 to 9"
QString ranges(const QVector<int> &numbers)
{
    QStringList parts;
    for (int i = 0; i < numbers.size();) {
        int last = i;
        while (last + 1 < numbers.size() && numbers.at(last + 1) == numbers.at(last) + 1) {
            ++last;
        }
        parts.append(last == i ? QString::number(numbers.at(i))
                               : QStringLiteral("%1 to %2").arg(numbers.at(i)).arg(numbers.at(last)));
        i = last + 1;
    }
    return parts.join(QLatin1String(", "));
}

} // namespace

const BatchWork BatchWork::conversion{
    QStringLiteral("conversion"), QStringLiteral("converted"), lossesKey, {QStringLiteral("entries")}};
const BatchWork BatchWork::drawing{QStringLiteral("drawing"),
                                   QStringLiteral("drawn"),
                                   QStringLiteral("drawn"),
                                   {QStringLiteral("files"), namedKey, QStringLiteral("missingFonts"), notesKey}};

QString BatchTotals::stateName(State state, const BatchWork &work)
{
    switch (state) {
    case Done:
        return work.done;
    case DoneBefore:
        return QStringLiteral("done before");
    case Failed:
        return QStringLiteral("failed");
    case Open:
        break;
    }
    return QStringLiteral("open");
}

void BatchTotals::add(State state, const QJsonObject &result)
{
    ++m_lessons.at(state);
    const qint64 losses = number(result, lossesKey);
    m_losses += losses;
    m_lessonsWithLosses += losses > 0 ? 1 : 0;
    kinds.addLesson(result.value(kindsKey).toObject());
    const QJsonArray notes = result.value(notesKey).toArray();
    if (m_notes == 0) {
        m_note = notes.first().toString();
    }
    m_notes += notes.size();
}

void BatchTotals::passOver(const QString &file)
{
    if (m_passedOver++ == 0) {
        m_passedOverFile = file;
    }
}

void BatchTotals::setPlan(const BatchPlan &plan)
{
    if (!plan.shard.isWhole()) {
        m_shards = plan.shard.count;
        m_shardNumbers = {plan.shard.number};
        m_found = plan.found;
        m_taken = plan.taken;
    }
}

void BatchTotals::add(const BatchTotals &other)
{
    for (const State state : states) {
        m_lessons.at(state) += other.count(state);
    }
    m_losses += other.m_losses;
    m_lessonsWithLosses += other.m_lessonsWithLosses;
    kinds.add(other.kinds.toJson());
    isInterrupted = isInterrupted || other.isInterrupted;
    m_shards = qMax(m_shards, other.m_shards);
    m_shardNumbers.insert(other.m_shardNumbers.cbegin(), other.m_shardNumbers.cend());
    m_found = qMax(m_found, other.m_found); // what came while the runs went on
    m_taken += other.m_taken;
    m_isSum = true;
}

BatchTotals BatchTotals::fromHead(const QJsonObject &head)
{
    const QJsonObject counts = head.value(countsKey).toObject();
    const bool isConversion = counts.contains(BatchWork::conversion.done);
    BatchTotals totals(isConversion ? BatchWork::conversion : BatchWork::drawing);
    if (!counts.contains(totals.work->done)) {
        totals.work = nullptr;
        return totals;
    }
    for (const State state : states) {
        const QString name = stateName(state, *totals.work);
        totals.m_lessons.at(state) = qint64(counts.value(name).toDouble());
    }
    totals.m_losses = number(counts, lossesKey);
    totals.m_lessonsWithLosses = number(counts, withLossesKey);
    totals.kinds.add(head.value(kindsKey).toObject());
    totals.isInterrupted = head.value(interruptedKey).toBool();
    const QJsonObject shards = head.value(shardsKey).toObject();
    totals.m_shards = shards.value(ofKey).toInt();
    const QJsonArray numbers = shards.value(numbersKey).toArray();
    for (const QJsonValue &one : numbers) {
        totals.m_shardNumbers.insert(one.toInt());
    }
    totals.m_found = number(shards, foundKey);
    totals.m_taken = number(shards, takenKey);
    return totals;
}

qint64 BatchTotals::lessons() const
{
    return std::accumulate(m_lessons.cbegin(), m_lessons.cend(), qint64(0));
}

QVector<int> BatchTotals::missingShards() const
{
    QVector<int> missing;
    for (int number = 1; number <= m_shards; ++number) {
        if (m_shardNumbers.count(number) == 0) {
            missing.append(number);
        }
    }
    return missing;
}

QString BatchTotals::summary(const QString &whoNames) const
{
    QStringList parts{counted(count(Done), work->done)};
    for (const auto &[state, what] : {std::pair(DoneBefore, QStringLiteral("done before")),
                                      {Failed, QString(QLatin1String("not ") + work->done)},
                                      {Open, QStringLiteral("not begun")}}) {
        if (count(state) > 0) {
            parts.append(counted(count(state), what));
        }
    }
    QString text = counted(lessons(), "lesson: ", "lessons: ") + parts.join(QLatin1String(", ")) + QLatin1String(".\n");
    if (m_lessonsWithLosses > 0) {
        text += QStringLiteral("%1 lost something, %2 in all; %3 names each.\n")
                    .arg(counted(m_lessonsWithLosses, "lesson", "lessons"),
                         counted(m_losses, "value, item or file", "values, items or files"), whoNames);
    }
    if (const qint64 named = namedCount()) {
        text +=
            QStringLiteral("%1 shown by name; %2 names each.\n").arg(counted(named, "item is", "items are"), whoNames);
    }
    if (m_notes > 0) {
        text += QStringLiteral("%1, such as: %2.\n")
                    .arg(counted(m_notes, "note on a font that isn't here", "notes on fonts that aren't here"), m_note);
    }
    if (m_passedOver > 0) {
        text += m_passedOver == 1
            ? QStringLiteral("1 file is called like a lesson and is none: %1.\n").arg(m_passedOverFile)
            : QStringLiteral("%1 files are called like lessons and are none, such as %2.\n")
                  .arg(m_passedOver)
                  .arg(m_passedOverFile);
    }
    if (isInterrupted) {
        text += QLatin1String("Interrupted. The same command with --resume does the rest.\n");
    }
    return text;
}

QString BatchTotals::shardSummary() const
{
    const QVector<int> missing = missingShards();
    if (missing.isEmpty()) {
        return notTaken() == 0 ? QString()
                               : QStringLiteral("%1 came while the shards were at work, and no shard took what came: "
                                                "with --resume, they do.\n")
                                     .arg(counted(notTaken(), "lesson", "lessons"));
    }
    return (missing.size() == 1 ? QStringLiteral("There is no report of shard %1 of %2, to which %3 fell.\n")
                                : QStringLiteral("There is no report of shards %1 of %2, to which %3 fell.\n"))
        .arg(ranges(missing))
        .arg(m_shards)
        .arg(counted(notTaken(), "lesson", "lessons"));
}

QJsonObject BatchTotals::toHead() const
{
    QJsonObject counts;
    if (work == &BatchWork::conversion) {
        counts = {{lossesKey, m_losses}, {withLossesKey, m_lessonsWithLosses}};
    } else {
        counts = {{namedKey, namedCount()}};
    }
    for (const State state : states) {
        counts.insert(stateName(state, *work), count(state));
    }
    QJsonObject head{{interruptedKey, isInterrupted}, {kindsKey, kinds.toJson()}};
    if (m_shards > 0) {
        QJsonArray numbers;
        for (const int number : m_shardNumbers) {
            numbers.append(number);
        }
        QJsonObject shards{{ofKey, m_shards}, {numbersKey, numbers}, {foundKey, m_found}, {takenKey, m_taken}};
        if (m_isSum) {
            QJsonArray missing;
            for (const int number : missingShards()) {
                missing.append(number);
            }
            shards.insert(missingKey, missing);
            counts.insert(notTakenKey, notTaken());
        }
        head.insert(shardsKey, shards);
    }
    head.insert(countsKey, counts);
    return head;
}

} // namespace lessonhost
