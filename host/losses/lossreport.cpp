// SPDX-License-Identifier: MIT
#include "losses/lossreport.h"

#include "files/compactjson.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QStringList>

#include <algorithm>
#include <set>

namespace lessonhost {

namespace {

// Longer lists are cut in the summary; the JSON has every entry.
constexpr int maximumNamed = 20;

constexpr int pieceSize = 64 * 1024;

QLatin1String groupName(Loss::Group group)
{
    switch (group) {
    case Loss::Missing:
        return QLatin1String("missing");
    case Loss::Different:
        return QLatin1String("different");
    case Loss::Internal:
        return QLatin1String("internal");
    case Loss::Told:
        break;
    }
    return QLatin1String("told");
}

// Deep in a tree, the two ends of the way tell enough.
QString shortened(const QString &key)
{
    constexpr int longest = 80;
    return key.size() <= longest ? key : key.left(longest / 2) + QLatin1String("...") + key.right(longest / 2);
}

QString name(const Loss &loss)
{
    QString text = loss.itemType;
    if (!loss.key.isEmpty()) {
        text += (text.isEmpty() ? QString() : QStringLiteral(".")) + shortened(loss.key);
    }
    return text;
}

// "9 ZQPhysicsDianZu, 3 ZQMindMapItem", the most frequent first.
Sentence counted(const QMap<QString, int> &counts)
{
    QVector<QPair<int, QString>> rows;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        rows.append({-it.value(), it.key()});
    }
    std::sort(rows.begin(), rows.end());
    Sentences texts;
    for (const auto &row : qAsConst(rows)) {
        texts.append(say("%1 %2").arg(-row.first, row.second));
    }
    return lossNames(texts);
}

Sentence countedByType(const LossList &losses)
{
    QMap<QString, int> counts;
    for (const Loss &loss : losses) {
        ++counts[loss.itemType];
    }
    return counted(counts);
}

enum class Details { Hidden, Shown };

bool isOfItem(const Loss &loss)
{
    return loss.itemType != QLatin1String("presentation") && loss.itemType != QLatin1String("slide");
}

// "16 Type, 12 ArtObj_Fill", the most frequent first: for keys that items of many types lose.
Sentence countedByKey(const LossList &losses)
{
    QMap<QString, int> counts;
    for (const Loss &loss : losses) {
        if (!isOfItem(loss)) {
            continue;
        }
        const QString key = loss.key.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('['), 0, 0);
        ++counts[key.isEmpty() ? loss.itemType : key];
    }
    return counted(counts);
}

Sentence listedLosses(const LossList &losses, Details details = Details::Hidden);

// Where there is much to name: what slides and the presentation lose as always, and the keys of items by their number.
Sentence listedByKey(const LossList &losses)
{
    const LossList others = losses.filtered([](const Loss &loss) { return !isOfItem(loss); });
    const Sentence ofItems = say("of items %1").arg(countedByKey(losses));
    return others.isEmpty() ? ofItems : say("%1, %2").arg(listedLosses(others), ofItems);
}

// What is the same but for its slide is named once, in the order in which it came up.
Sentence listedLosses(const LossList &losses, Details details)
{
    struct Group
    {
        QString name;
        Sentence detail;
        std::set<int> slides;
        int count = 0;
    };
    QVector<Group> groups;
    QHash<QPair<QString, QString>, int> indexes;
    for (const Loss &loss : losses) {
        const Sentence detail = details == Details::Shown ? loss.detail : Sentence();
        const QPair<QString, QString> same(name(loss), detail.english());
        auto index = indexes.constFind(same);
        if (index == indexes.constEnd()) {
            index = indexes.insert(same, groups.size());
            groups.append({same.first, detail, {}, 0});
        }
        Group &group = groups[*index];
        group.slides.insert(loss.slide);
        ++group.count;
    }
    const bool isMuch = groups.size() > maximumNamed && details == Details::Hidden;
    if (isMuch && std::any_of(losses.begin(), losses.end(), isOfItem)) {
        return listedByKey(losses);
    }
    Sentences texts;
    for (const Group &group : qAsConst(groups)) {
        Sentence text = onSlides(Sentence(group.name), group.slides);
        if (group.count > 1) {
            text = sayNumber("%1 (%n times)", group.count).arg(text);
        }
        texts.append(details == Details::Shown ? say("%1: %2").arg(text, group.detail) : text);
    }
    return lossNames(texts);
}

// What a line about losses of a kind names.
Sentence listedOf(Loss::Kind kind, const LossList &losses)
{
    switch (kind) {
    case Loss::Value:
    case Loss::File:
    case Loss::Otherwise:
    case Loss::Absent:
    case Loss::Emptied:
    case Loss::EmptiedElsewhere:
        return listedLosses(losses);
    case Loss::Item:
    case Loss::Kept:
    case Loss::AsPicture:
    case Loss::NotShown:
        return countedByType(losses);
    case Loss::Changed:
    case Loss::Note:
        break;
    }
    return listedLosses(losses, Details::Shown);
}

// Under what a loss is counted in tables over many lessons: keys that tell a place in the lesson are cut.
QString nameInTables(const Loss &loss)
{
    const auto isCut = [](QChar c) { return c == QLatin1Char('.') || c == QLatin1Char('/') || c == QLatin1Char('['); };
    const auto end = std::find_if(loss.key.cbegin(), loss.key.cend(), isCut);
    const QString key = loss.kind == Loss::File ? QString() : loss.key.left(int(end - loss.key.cbegin()));
    return key.isEmpty() ? loss.itemType : loss.itemType + QLatin1Char('.') + key;
}

// The members of an entry in the order of their names.
void eachMember(const Loss &loss, const std::function<void(const char *name, const QJsonValue &value)> &take)
{
    const auto takeText = [&take](const char *name, const QString &text) {
        if (!text.isEmpty()) {
            take(name, text);
        }
    };
    takeText("detail", loss.detail.english());
    take("group", groupName(groupOf(loss)));
    takeText("id", loss.itemId);
    takeText("key", loss.key);
    take("kind", lossKindName(loss.kind));
    if (loss.slide > 0) {
        take("slide", loss.slide);
    }
    take("type", loss.itemType);
}

} // namespace

Sentence lossNames(const Sentences &names)
{
    if (names.size() <= maximumNamed) {
        return listed(names);
    }
    return sayNumber("%1 and %n more", names.size() - maximumNamed).arg(listed(names.mid(0, maximumNamed)));
}

Sentence lossLine(Loss::Kind kind, qint64 count, const Sentence &listed, const QString &format)
{
    switch (kind) {
    case Loss::Value:
        return sayNumber("%n values lost: %1", count).arg(listed);
    case Loss::Item:
        return format.isEmpty() ? sayNumber("%n items have no form here: %1", count).arg(listed)
                                : sayNumber("%n items have no %1 form: %2", count).arg(format, listed);
    case Loss::Kept:
        return sayNumber("%n items kept as they came: %1", count).arg(listed);
    case Loss::File:
        return sayNumber("%n files missing or of no use: %1", count).arg(listed);
    case Loss::AsPicture:
        return sayNumber("%n items are pictures on other boards: %1", count).arg(listed);
    case Loss::NotShown:
        return sayNumber("%n items aren't shown by other boards: %1", count).arg(listed);
    case Loss::Otherwise:
        return sayNumber("%n values are otherwise on other boards: %1", count).arg(listed);
    case Loss::Absent:
        return sayNumber("%n values aren't in the lesson: %1", count).arg(listed);
    case Loss::Emptied:
        return sayNumber("%n slides are empty in the result: %1", count).arg(listed);
    case Loss::EmptiedElsewhere:
        return sayNumber("%n slides are empty on other boards: %1", count).arg(listed);
    case Loss::Changed:
        return sayNumber("%n things are another program's work: %1", count).arg(listed);
    case Loss::Note:
        break;
    }
    return say("Note: %1").arg(listed);
}

Sentence onSlides(const Sentence &name, const std::set<int> &slides)
{
    if (slides.empty() || *slides.rbegin() == 0) {
        return name;
    }
    const int first = *slides.begin();
    const int last = *slides.rbegin();
    const int count = int(slides.size());
    if (count == 1) {
        return say("%1 on slide %2").arg(name, first);
    }
    return count == last - first + 1 ? say("%1 on slides %2 to %3").arg(name, first, last)
                                     : sayNumber("%1 on %n slides from %2 to %3", count).arg(name, first, last);
}

int LossReport::lossCount() const
{
    return int(std::count_if(m_entries.begin(), m_entries.end(), [](const Loss &loss) { return isLoss(loss.kind); }));
}

Sentence LossReport::summary() const
{
    Sentences lines;
    for (const Loss::Kind kind : lossKinds()) {
        const LossList losses = m_entries.filtered([kind](const Loss &loss) { return loss.kind == kind; });
        if (!losses.isEmpty()) {
            lines.append(lossLine(kind, losses.size(), listedOf(kind, losses), m_format));
        }
    }
    return onLines(lines);
}

QJsonObject LossReport::toHead() const
{
    QMap<QString, QMap<QString, int>> kinds;
    for (const Loss &loss : m_entries) {
        ++kinds[lossKindName(loss.kind)][nameInTables(loss)];
    }
    QJsonObject counts;
    for (auto kind = kinds.cbegin(); kind != kinds.cend(); ++kind) {
        QJsonObject names;
        for (auto name = kind->cbegin(); name != kind->cend(); ++name) {
            names.insert(name.key(), name.value());
        }
        counts.insert(kind.key(), names);
    }
    return {{QStringLiteral("losses"), lossCount()},
            {QStringLiteral("kinds"), counts},
            {QStringLiteral("summary"),
             QJsonArray::fromStringList(summary().english().split(QLatin1Char('\n'), Qt::SkipEmptyParts))}};
}

QJsonObject LossReport::toJson() const
{
    QJsonArray entries;
    for (const Loss &loss : m_entries) {
        QJsonObject entry;
        eachMember(loss, [&entry](const char *name, const QJsonValue &value) {
            entry.insert(QLatin1String(name), value);
        });
        entries.append(entry);
    }
    QJsonObject json = toHead();
    json.insert(QStringLiteral("entries"), entries);
    return json;
}

void LossReport::writeJson(const std::function<void(const QByteArray &piece)> &put, const QJsonObject &more) const
{
    // They come before all other members, by the order of names.
    QByteArray text = "{\n    \"entries\": [";
    const char *beforeEntry = "";
    for (const Loss &loss : m_entries) {
        text += beforeEntry;
        beforeEntry = ",";
        text += "\n        {";
        const char *beforeMember = "";
        eachMember(loss, [&](const char *name, const QJsonValue &value) {
            text += beforeMember;
            beforeMember = ",";
            text += QByteArray("\n            \"") + name + "\": " + compactJson(value);
        });
        text += "\n        }";
        if (text.size() > pieceSize) {
            put(text);
            text.clear();
        }
    }
    QJsonObject rest = toHead();
    for (auto it = more.constBegin(); it != more.constEnd(); ++it) {
        rest.insert(it.key(), it.value());
    }
    put(text + "\n    ],\n" + QJsonDocument(rest).toJson().mid(2));
}

} // namespace lessonhost
