// SPDX-License-Identifier: MIT
#include "lesson/valueranges.h"

#include "files/drawingbounds.h"
#include "lesson/isoneof.h"
#include "lesson/itemvalues.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <optional>

namespace lessonhost {

namespace {

/*!
 * Numbers that a value holds.
 */
struct Range
{
    enum Count { One, Four, Six, Pairs, Flag };

    const char *key;
    Count count;
    qint64 least = -qint64(largestInDrawing);
    qint64 most = qint64(largestInDrawing);
};

constexpr Range ranges[] = {
    {"Visible", Range::Flag, 0, 1},
    {"LockIn", Range::Flag, 0, 1},
    {"InfiniteClone", Range::Flag, 0, 1},
    {"BoundingBox", Range::Four},
    {"Matrix", Range::Six},
    {"Angle", Range::One},
    {"Control", Range::Pairs},
    {"XY", Range::Pairs},
    {"Opacity", Range::One, 0, 255},
    {"Width", Range::One, 0},
    {"Height", Range::One, 0},
    {"ArtObj_Width", Range::One, 0},
    {"LineWidth", Range::One, 0},
    {"ArtObj_Ln", Range::One, 3},
    {"StartAngle", Range::One},
    {"SweepAngle", Range::One},
    {"RotateAngle", Range::One},
    {"SpotRadius", Range::One, 0},
    {"clipWidth", Range::One},
    {"clipHeight", Range::One},
    {"clipStartX", Range::One},
    {"clipStartY", Range::One},
    {"effect_time", Range::One, 0},
};

// Lists, and flags of the same name.
constexpr const char *noColors[] = {"ArtObj_FuncColorVector"};

const char *const slideWords[] = {"next", "previous", "first", "last"};

const Range *rangeOf(const QString &key)
{
    static const QHash<QString, const Range *> rows = [] {
        QHash<QString, const Range *> result;
        for (const Range &range : ranges) {
            result.insert(QLatin1String(range.key), &range);
        }
        return result;
    }();
    return rows.value(key);
}

bool hasCount(int size, Range::Count count)
{
    switch (count) {
    case Range::One:
    case Range::Flag:
        return size == 1;
    case Range::Four:
        return size == 4;
    case Range::Six:
        return size == 6;
    case Range::Pairs:
        return size % 2 == 0;
    }
    return true;
}

Sentence wording(const Range &range)
{
    switch (range.count) {
    case Range::Flag:
        return say("0 or 1");
    case Range::Four:
        return say("four numbers, none of them more than %1 from 0").arg(range.most);
    case Range::Six:
        return say("six numbers, none of them more than %1 from 0").arg(range.most);
    case Range::Pairs:
        return say("pairs of numbers, none of them more than %1 from 0").arg(range.most);
    case Range::One:
        break;
    }
    return say("a number from %1 to %2").arg(range.least, range.most);
}

bool isIn(const Range &range, const QJsonValue &value)
{
    if (range.count == Range::Flag && value.isBool()) {
        return true;
    }
    // A width may bear this mark.
    const auto numbers =
        wholeNumbers(value.isString() ? QJsonValue(value.toString().remove(QLatin1String("[ ,]"))) : value);
    return numbers && hasCount(numbers->size(), range.count)
        && std::all_of(numbers->cbegin(), numbers->cend(),
                       [&range](double number) { return number >= double(range.least) && number <= double(range.most); });
}

// A list with commas of three or four channels, another form of a colour, or a flag that stands in its place.
bool isColor(const QJsonValue &value)
{
    const auto numbers = wholeNumbers(value);
    if (numbers && numbers->size() > 1) {
        return (numbers->size() == 3 || numbers->size() == 4)
            && std::all_of(numbers->cbegin(), numbers->cend(),
                           [](double channel) { return channel >= 0 && channel <= 255; });
    }
    return numbers || itemColor(value) || backColor(value);
}

} // namespace

Sentence rangeMissedBy(const QString &key, const QJsonValue &value)
{
    if (isEmptyValue(value)) {
        return {};
    }
    if (const Range *range = rangeOf(key)) {
        return isIn(*range, value) ? Sentence() : wording(*range);
    }
    const bool isOfColor = key.contains(QLatin1String("olor")) && !isOneOf(noColors, key) && !value.isArray();
    return isOfColor && !isColor(value) ? say("a colour") : Sentence();
}

Sentence pageSizeMissedBy(const QJsonValue &value)
{
    constexpr Range pixels{"", Range::One, 1};
    return isEmptyValue(value) || isIn(pixels, value) ? Sentence() : wording(pixels);
}

Sentence slideMissedBy(const QJsonValue &value, int slideCount)
{
    const QString text = valueText(value).trimmed().toLower();
    const int number = text.toInt();
    return isOneOf(slideWords, text) || (number >= 1 && number <= slideCount)
        ? Sentence()
        : say("a slide from 1 to %1").arg(slideCount);
}

} // namespace lessonhost
