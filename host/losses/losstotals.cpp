// SPDX-License-Identifier: MIT
#include "losses/losstotals.h"

#include "losses/lossreport.h"

#include <QStringList>
#include <QVector>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String countKey("count");
const QLatin1String lessonsKey("lessons");
const QLatin1String namesKey("names");

// Lessons can hold keys of any name. What comes beyond so many of a kind is counted together.
constexpr int mostNames = 5000;
constexpr int mostListed = 20;
const QLatin1String furtherNames("...");

qint64 number(const QJsonValue &value)
{
    return qint64(value.toDouble());
}

} // namespace

void LossTotals::Count::add(const Count &other)
{
    count += other.count;
    lessons += other.lessons;
}

QJsonObject LossTotals::Count::toJson() const
{
    return {{countKey, count}, {lessonsKey, lessons}};
}

void LossTotals::Kind::add(const QString &name, const Count &count)
{
    names[names.size() < mostNames || names.contains(name) ? name : QString(furtherNames)].add(count);
}

void LossTotals::addLesson(const QJsonObject &kinds)
{
    for (auto given = kinds.begin(); given != kinds.end(); ++given) {
        Kind &kind = m_kinds[given.key()];
        ++kind.all.lessons;
        const QJsonObject names = given.value().toObject();
        for (auto name = names.begin(); name != names.end(); ++name) {
            kind.all.count += number(name.value());
            kind.add(name.key(), {number(name.value()), 1});
        }
    }
}

void LossTotals::add(const QJsonObject &totals)
{
    const auto countOf = [](const QJsonObject &object) {
        return Count{number(object.value(countKey)), number(object.value(lessonsKey))};
    };
    for (auto given = totals.begin(); given != totals.end(); ++given) {
        const QJsonObject others = given.value().toObject();
        Kind &kind = m_kinds[given.key()];
        kind.all.add(countOf(others));
        const QJsonObject names = others.value(namesKey).toObject();
        for (auto name = names.begin(); name != names.end(); ++name) {
            kind.add(name.key(), countOf(name.value().toObject()));
        }
    }
}

// Where there is much to name, keys that items of many types lose stand for all of them.
Sentence LossTotals::listed(const Kind &kind)
{
    const bool isMuch = kind.names.size() > mostListed;
    QMap<QString, Count> names;
    for (auto name = kind.names.cbegin(); name != kind.names.cend(); ++name) {
        names[isMuch ? name.key().section(QLatin1Char('.'), -1) : name.key()].add(*name);
    }
    QVector<QPair<qint64, QString>> rows;
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        rows.append({-name->count, name.key()});
    }
    std::sort(rows.begin(), rows.end());
    Sentences texts;
    for (const auto &[count, name] : qAsConst(rows)) {
        const Sentence text = say("%1 %2").arg(-count, name);
        texts.append(isMuch ? text : sayNumber("%1 in %n lessons", names.value(name).lessons).arg(text));
    }
    return lossNames(texts);
}

Sentences LossTotals::summary() const
{
    Sentences lines;
    for (const Loss::Kind kind : lossKinds()) {
        const auto found = m_kinds.constFind(lossKindName(kind));
        if (found != m_kinds.cend()) {
            lines.append(lossLine(kind, found->all.count, listed(*found), {}));
        }
    }
    return lines;
}

QJsonObject LossTotals::toJson() const
{
    QJsonObject kinds;
    for (auto kind = m_kinds.cbegin(); kind != m_kinds.cend(); ++kind) {
        QJsonObject names;
        for (auto name = kind->names.cbegin(); name != kind->names.cend(); ++name) {
            names.insert(name.key(), name->toJson());
        }
        QJsonObject object = kind->all.toJson();
        object.insert(namesKey, names);
        kinds.insert(kind.key(), object);
    }
    return kinds;
}

} // namespace lessonhost
