// SPDX-License-Identifier: MIT
#include "lesson/slidelimits.h"

#include "files/lessonerror.h"
#include "lesson/itemkeys.h"

#include <numeric>

namespace lessonhost {

namespace {

// Of items and the items within them.
qint64 sumOver(const QJsonArray &items, qint64 (*amountOf)(const QJsonObject &item))
{
    return std::accumulate(
        items.constBegin(), items.constEnd(), qint64(0), [amountOf](qint64 sum, const QJsonValue &value) {
            const QJsonObject item = value.toObject();
            return sum + amountOf(item) + sumOver(item.value(HostKeys::children).toArray(), amountOf);
        });
}

qint64 pointCount(const QJsonObject &item)
{
    qint64 count = 0;
    for (const QLatin1String key : {ItemKeys::steps, ItemKeys::polyline, ItemKeys::control}) {
        const QJsonValue numbers = item.value(key);
        count += (numbers.isArray() ? numbers.toArray().size() : numbers.toString().count(QLatin1Char(','))) / 2;
    }
    return count;
}

// problem: for say(), with places for the slide's number, the amount and the most.
void checkAmount(const char *problem, qint64 amount, qint64 most, int number, const QString &file)
{
    if (amount > most) {
        throw LessonError(say(problem).arg(number).arg(amount).arg(most), say("Spread its items over several slides"))
            .in(file);
    }
}

} // namespace

void checkSlideSize(qint64 size, int number, const QString &file)
{
    constexpr int mebibyte = 1024 * 1024;
    checkAmount(TO_SAY("Slide %1 takes %2 MiB, and no slide may take more than %3"), (size + mebibyte - 1) / mebibyte,
                maximumSlideSize / mebibyte, number, file);
}

void checkSlideItems(const QJsonArray &items, int number, const QString &file)
{
    checkAmount(TO_SAY("Slide %1 has %2 items, and no slide may have more than %3"),
                sumOver(items, [](const QJsonObject &) { return qint64(1); }), maximumSlideItems, number, file);
}

void checkPagePoints(const QJsonArray &items, int number, const QString &file)
{
    checkAmount(TO_SAY("Slide %1 has lines of %2 points, and no page of IWB may have more than %3"),
                sumOver(items, pointCount), maximumPagePoints, number, file);
}

} // namespace lessonhost
