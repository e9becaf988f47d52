// SPDX-License-Identifier: MIT
#include "lesson/slidelimits.h"

#include "files/lessonerror.h"
#include "lesson/itemkeys.h"

#include <numeric>

namespace lessonhost {

namespace {

const char *const spread = TO_SAY("Spread its items over several slides");

int itemCount(const QJsonArray &items)
{
    return std::accumulate(items.constBegin(), items.constEnd(), 0, [](int count, const QJsonValue &item) {
        return count + 1 + itemCount(item.toObject().value(HostKeys::children).toArray());
    });
}

qint64 pointCount(const QJsonArray &items)
{
    return std::accumulate(items.constBegin(), items.constEnd(), qint64(0), [](qint64 count, const QJsonValue &value) {
        const QJsonObject item = value.toObject();
        for (const QLatin1String key : {ItemKeys::steps, ItemKeys::polyline, ItemKeys::control}) {
            const QJsonValue numbers = item.value(key);
            count += (numbers.isArray() ? numbers.toArray().size() : numbers.toString().count(QLatin1Char(','))) / 2;
        }
        return count + pointCount(item.value(HostKeys::children).toArray());
    });
}

} // namespace

void checkSlideSize(qint64 size, int number, const QString &file)
{
    constexpr int mebibyte = 1024 * 1024;
    if (size > maximumSlideSize) {
        throw LessonError(say("Slide %1 takes %2 MiB, and no slide may take more than %3")
                              .arg(number)
                              .arg((size + mebibyte - 1) / mebibyte)
                              .arg(maximumSlideSize / mebibyte),
                          say(spread))
            .in(file);
    }
}

void checkSlideItems(const QJsonArray &items, int number, const QString &file)
{
    const int count = itemCount(items);
    if (count > maximumSlideItems) {
        throw LessonError(say("Slide %1 has %2 items, and no slide may have more than %3")
                              .arg(number)
                              .arg(count)
                              .arg(maximumSlideItems),
                          say(spread))
            .in(file);
    }
}

void checkPagePoints(const QJsonArray &items, int number, const QString &file)
{
    const qint64 count = pointCount(items);
    if (count > maximumPagePoints) {
        throw LessonError(say("Slide %1 has lines of %2 points, and no page of IWB may have more than %3")
                              .arg(number)
                              .arg(count)
                              .arg(maximumPagePoints),
                          say(spread))
            .in(file);
    }
}

} // namespace lessonhost
