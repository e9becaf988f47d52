// SPDX-License-Identifier: MIT
#include "losses/comparison.h"

#include "lesson/itemkeys.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "lesson/pageplace.h"
#include "losses/modelvalues.h"

#include <QJsonDocument>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

constexpr int longestDetail = 60;

struct Difference
{
    QString key;
    Sentence detail;
};

QString detailOf(const QJsonValue &value)
{
    QString text = valueText(value);
    if (text.isNull()) {
        text = QString::fromUtf8((value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject()))
                                     .toJson(QJsonDocument::Compact));
    }
    return text.left(longestDetail);
}

class Differences
{
public:
    explicit Differences(double tolerance)
        : m_tolerance(tolerance)
    {
    }

    QVector<Difference> all() const { return m_all; }

    // way: from the item to the value; key: the last key on it.
    void compare(const QString &way, const QString &key, const QJsonValue &given, const QJsonValue &found)
    {
        const QJsonValue implied = impliedValue(key);
        if (isNothing(given)) {
            if (!isNothing(found) && !implied.isUndefined() && !isSameValue(key, implied, found, m_tolerance)) {
                m_all.append({way, {}});
            }
            return;
        }
        const QJsonValue actual = isNothing(found) && !implied.isUndefined() ? implied : found;
        if (isSameValue(key, given, actual, m_tolerance)) {
            return;
        }
        // A colour is told as one value, whichever form it has.
        const bool isColor = wholeColor(given) && wholeColor(actual);
        if (!isColor && given.isArray() && actual.isArray()) {
            compareArrays(way, key, given.toArray(), actual.toArray());
        } else if (!isColor && given.isObject() && actual.isObject()) {
            const QJsonObject object = given.toObject();
            for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
                compare(way + QLatin1Char('.') + it.key(), it.key(), it.value(), actual.toObject().value(it.key()));
            }
        } else if (!isColor && given.isString() && actual.isArray() && isListText(given.toString())) {
            compareArrays(way, key, QJsonDocument::fromJson(given.toString().toUtf8()).array(), actual.toArray());
        } else {
            m_all.append({way, Sentence(detailOf(given))});
        }
    }

private:
    static bool isListText(const QString &text) { return QJsonDocument::fromJson(text.toUtf8()).isArray(); }

    // How many values of the one are not in the same place of the other.
    int count(const QString &key, const QJsonValue &given, const QJsonValue &found) const
    {
        int count = 0;
        if (given.isArray() && found.isArray()) {
            const QJsonArray array = given.toArray();
            for (int i = 0; i < array.size(); ++i) {
                count += this->count(key, array.at(i), found.toArray().at(i));
            }
        } else if (given.isObject() && found.isObject()) {
            const QJsonObject object = given.toObject();
            for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
                count += this->count(it.key(), it.value(), found.toObject().value(it.key()));
            }
        } else if (!isNothing(given)) {
            count = isSameValue(key, given, found, m_tolerance) ? 0 : 1;
        }
        return count;
    }

    // True if what was found at a place is rather one of the next values than the one of this place. missing: how many
    // fewer were found than given.
    bool isMissing(const QString &key, const QJsonArray &given, int place, const QJsonValue &found, int missing) const
    {
        constexpr int furthest = 8;
        if (isNothing(given.at(place))) {
            return !isNothing(found);
        }
        const int own = count(key, given.at(place), found);
        for (int i = 1; i <= qMin(missing, furthest) && own > 0; ++i) {
            if (count(key, given.at(place + i), found) < own) {
                return true;
            }
        }
        return false;
    }

    // Where values are missing from a list, those that came through are told by what they hold, so that a missing one
    // is one difference and doesn't shift the others.
    void compareArrays(const QString &way, const QString &key, const QJsonArray &given, const QJsonArray &found)
    {
        int missing = qMax(0, given.size() - found.size());
        int next = 0;
        for (int i = 0; i < given.size(); ++i) {
            const QString place = QStringLiteral("%1[%2]").arg(way).arg(i);
            if (missing > 0 && isMissing(key, given, i, found.at(next), missing)) {
                compare(place, key, given.at(i), {});
                --missing;
            } else {
                compare(place, key, given.at(i), found.at(next));
                ++next;
            }
        }
        if (found.size() > given.size()) {
            m_all.append({way, say("%1 became %2").arg(given.size(), found.size())});
        }
    }

    double m_tolerance;
    QVector<Difference> m_all;
};

// Opacity of ink is read into its colour.
QJsonObject withOpacityInColor(QJsonObject item, const QJsonObject &found)
{
    const auto opacity = wholeNumbers(item.value(ItemKeys::opacity));
    const auto color = wholeColor(item.value(ItemKeys::color));
    const bool isAlpha = opacity && opacity->size() == 1 && opacity->first() >= 0 && opacity->first() <= 255
        && opacity->first() == std::floor(opacity->first()) && !found.contains(ItemKeys::opacity);
    if (color && isAlpha
        && wholeColor(found.value(ItemKeys::color)) == ((*color & 0xffffff) | QRgb(opacity->first()) << 24)) {
        item.remove(ItemKeys::opacity);
        item.remove(ItemKeys::color);
    }
    return item;
}

} // namespace

bool saysAllOf(const QString &key, const QJsonValue &given, const QJsonValue &found)
{
    Differences differences(0);
    differences.compare(key, key, given, found);
    return differences.all().isEmpty();
}

bool isListOfObjects(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    return value.isArray()
        && std::all_of(array.constBegin(), array.constEnd(), [](const QJsonValue &item) { return item.isObject(); });
}

Comparison::Comparison(const SlideLosses &losses)
    : Comparison(losses, Rules())
{
}

Comparison::Comparison(const SlideLosses &losses, const Rules &rules)
    : m_losses(losses)
    , m_rules(rules)
{
}

void Comparison::compareProperties(const LossOwner &owner, const QJsonObject &given, const QJsonObject &found) const
{
    Differences differences(m_rules.tolerance);
    // Both have their keys in the same order, so that few must be looked for.
    auto next = found.constBegin();
    QString nextKey = next == found.constEnd() ? QString() : next.key();
    bool hasNewImplied = false;
    const auto goOn = [&] {
        ++next;
        nextKey = next == found.constEnd() ? QString() : next.key();
    };
    const auto passNew = [&] {
        hasNewImplied = hasNewImplied || !impliedValue(nextKey).isUndefined();
        goOn();
    };
    for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
        const QString key = it.key();
        while (next != found.constEnd() && nextKey < key) {
            passNew();
        }
        const bool isNext = next != found.constEnd() && nextKey == key;
        QJsonValue value = isNext ? next.value() : found.value(key);
        if (isNext) {
            goOn();
        }
        if (value == it.value()) {
            continue;
        }
        const QString other = otherKey(key);
        if (isNothing(value) && !other.isEmpty()) {
            value = found.value(other);
        }
        if (!m_rules.isSame || !m_rules.isSame(key, it.value(), value)) {
            differences.compare(key, key, it.value(), value);
        }
    }
    while (next != found.constEnd()) {
        passNew();
    }
    for (const QString &key : keysWithImpliedValue()) {
        if (hasNewImplied && !given.contains(key) && found.contains(key)) {
            differences.compare(key, key, {}, found.value(key));
        }
    }
    const auto all = differences.all();
    for (const Difference &difference : all) {
        const QString &key = difference.key;
        const bool isUnseen = m_rules.isUnseen && m_rules.isUnseen(key, given.value(key));
        isUnseen ? m_losses.unseenValue(owner, key, difference.detail) : m_losses.value(owner, key, difference.detail);
    }
}

void Comparison::compareItems(const QJsonArray &given, const QJsonArray &written, const QJsonArray &found) const
{
    for (int i = 0; i < given.size(); ++i) {
        compareItem(given.at(i).toObject(), written.at(i).toObject(), found.at(i).toObject());
    }
}

void Comparison::compareItem(const QJsonObject &given, const QJsonObject &written, const QJsonObject &found) const
{
    QJsonObject own = keptInPageForm(given, written);
    const QJsonValue children = given.value(HostKeys::children);
    if (isContainer(given.value(ItemKeys::type).toString()) && isListOfObjects(children)) {
        own.remove(HostKeys::children);
        compareItems(children.toArray(), written.value(HostKeys::children).toArray(),
                     found.value(HostKeys::children).toArray());
    }
    compareProperties(given, withOpacityInColor(own, found), found);
}

} // namespace lessonhost
