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
const QLatin1String toldNotesKey("notes");
const QLatin1String shardsKey("shards");
const QLatin1String ofKey("of");
const QLatin1String numbersKey("numbers");
const QLatin1String missingKey("missing");
const QLatin1String foundKey("found");
const QLatin1String takenKey("taken");

constexpr auto states = {BatchTotals::Done, BatchTotals::DoneBefore, BatchTotals::Failed, BatchTotals::Open};

qint64 number(const QJsonObject &object, QLatin1String key)
{
    return qint64(object.value(key).toDouble());
}

// "3, 7 to 9"
Sentence ranges(const QVector<int> &numbers)
{
    Sentences parts;
    for (int i = 0; i < numbers.size();) {
        int last = i;
        while (last + 1 < numbers.size() && numbers.at(last + 1) == numbers.at(last) + 1) {
            ++last;
        }
        parts.append(last == i ? Sentence(QString::number(numbers.at(i)))
                               : say("%1 to %2").arg(numbers.at(i), numbers.at(last)));
        i = last + 1;
    }
    return listed(parts);
}

} // namespace

const BatchWork BatchWork::conversion{QStringLiteral("converted"),
                                      TO_SAY_NUMBER("%n converted"),
                                      TO_SAY_NUMBER("%n not converted"),
                                      TO_SAY("Not converted:"),
                                      TO_SAY_NUMBER("Not converted, of %n lessons the first %1:"),
                                      TO_SAY("The conversion took longer than %1 s"),
                                      lossesKey,
                                      {QStringLiteral("entries")}};
const BatchWork BatchWork::drawing{QStringLiteral("drawn"),
                                   TO_SAY_NUMBER("%n drawn"),
                                   TO_SAY_NUMBER("%n not drawn"),
                                   TO_SAY("Not drawn:"),
                                   TO_SAY_NUMBER("Not drawn, of %n lessons the first %1:"),
                                   TO_SAY("The drawing took longer than %1 s"),
                                   QStringLiteral("drawn"),
                                   {QStringLiteral("files"), namedKey, QStringLiteral("missingFonts"), toldNotesKey}};
const BatchWork BatchWork::checking{QStringLiteral("checked"),
                                    TO_SAY_NUMBER("%n checked"),
                                    TO_SAY_NUMBER("%n not checked"),
                                    TO_SAY("Not checked:"),
                                    TO_SAY_NUMBER("Not checked, of %n lessons the first %1:"),
                                    TO_SAY("The check took longer than %1 s"),
                                    QStringLiteral("check"),
                                    {}};

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
}

void BatchTotals::addNotes(const Sentences &notes)
{
    if (m_notes == 0 && !notes.isEmpty()) {
        m_note = notes.first();
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
    BatchTotals totals(BatchWork::conversion);
    totals.work = nullptr;
    for (const BatchWork *work : {&BatchWork::conversion, &BatchWork::drawing, &BatchWork::checking}) {
        if (counts.contains(work->done)) {
            totals.work = work;
        }
    }
    if (!totals.work) {
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

Sentence BatchTotals::summary(const Sentence &whoNames) const
{
    Sentences parts{sayNumber(work->doneCount, count(Done))};
    for (const auto &[state, text] : {std::pair(DoneBefore, TO_SAY_NUMBER("%n done before")),
                                      {Failed, work->undoneCount},
                                      {Open, TO_SAY_NUMBER("%n not begun")}}) {
        if (count(state) > 0) {
            parts.append(sayNumber(text, count(state)));
        }
    }
    Sentences lines{sayNumber("%n lessons: %1.", lessons()).arg(listed(parts))};
    if (foundCount() > 0) {
        lines.append(sayNumber("%n things are missing or wrong; %1 names each.", foundCount()).arg(whoNames));
    }
    if (m_lessonsWithLosses > 0 && work != &BatchWork::checking) {
        lines.append(sayNumber("%n lessons lost something, %1 in all; %2 names each.", m_lessonsWithLosses)
                         .arg(sayNumber("%n values, items or files", m_losses), whoNames));
    }
    if (const qint64 named = namedCount()) {
        lines.append(sayNumber("%n items are shown by name; %1 names each.", named).arg(whoNames));
    }
    if (m_notes > 0) {
        lines.append(sayNumber("%n notes on fonts that aren't here, such as: %1.", m_notes).arg(m_note));
    }
    if (m_passedOver > 0) {
        lines.append(sayNumber("%n files are called like lessons and are none, such as %1.", m_passedOver)
                         .arg(m_passedOverFile));
    }
    if (isInterrupted) {
        lines.append(say("Interrupted. The same command with --resume does the rest."));
    }
    return onLines(lines);
}

Sentence BatchTotals::shardSummary() const
{
    const QVector<int> missing = missingShards();
    if (missing.isEmpty()) {
        return notTaken() == 0 ? Sentence()
                               : sayNumber("%n lessons came while the shards were at work, and no shard took what "
                                           "came: with --resume, they do.",
                                           notTaken());
    }
    return (missing.size() == 1 ? say("There is no report of shard %1 of %2, to which %3 fell.")
                                : say("There is no report of shards %1 of %2, to which %3 fell."))
        .arg(ranges(missing), m_shards, sayNumber("%n lessons", notTaken()));
}

QJsonObject BatchTotals::toHead() const
{
    QJsonObject counts;
    if (work == &BatchWork::checking) {
        counts = {{foundKey, foundCount()}, {lossesKey, m_losses}};
    } else if (work == &BatchWork::conversion) {
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
