// SPDX-License-Identifier: MIT
#include "lesson/listentries.h"

#include "lesson/itemvalues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace lessonhost {

namespace {

constexpr int deepest = 8;
constexpr int mostEntries = 200; // of one list, which is more than anyone could read

// What stands on an entry, and what belongs to it. The first of each that an object has counts.
constexpr const char *textMembers[] = {"front",    "name", "title",   "text",  "txt",     "content",
                                       "question", "word", "picture", "image", "picPath", "left"};
constexpr const char *entryMembers[] = {"items", "list", "children", "materials", "answers", "back", "answer", "right"};

template <std::size_t count> QJsonValue firstOf(const QJsonObject &object, const char *const (&members)[count])
{
    for (const char *member : members) {
        const QJsonValue value = object.value(QLatin1String(member));
        if (!isEmptyValue(value)) {
            return value;
        }
    }
    return {};
}

QVector<ListEntry> entriesOf(const QJsonValue &value, int depth);

ListEntry entryOf(const QJsonValue &value, int depth)
{
    ListEntry entry;
    if (value.isArray()) {
        // A text and what belongs to it, or nothing but a list.
        entry.entries = entriesOf(value, depth + 1);
        if (!entry.entries.isEmpty() && entry.entries.constFirst().entries.isEmpty()) {
            entry.text = entry.entries.takeFirst().text;
        }
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        const QJsonValue text = firstOf(object, textMembers);
        entry = text.isObject() ? ListEntry() : entryOf(text, depth + 1);
        entry.entries += entriesOf(firstOf(object, entryMembers), depth + 1);
    } else {
        entry.text = valueText(value);
    }
    return entry;
}

QVector<ListEntry> entriesOf(const QJsonValue &value, int depth)
{
    QVector<ListEntry> entries;
    if (depth > deepest || isEmptyValue(value)) {
        return entries;
    }
    if (!value.isArray()) {
        entries.append(entryOf(value, depth));
        return entries;
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size() && i < mostEntries; ++i) {
        entries.append(entryOf(array.at(i), depth));
    }
    return entries;
}

// An object of lists has the names of its members for their texts.
QVector<ListEntry> membersOf(const QJsonObject &object)
{
    QVector<ListEntry> entries;
    for (auto it = object.begin(); it != object.end() && entries.size() < mostEntries; ++it) {
        if (it.value().isArray()) {
            entries.append({it.key(), entriesOf(it.value(), 1)});
        }
    }
    return entries;
}

QVector<ListEntry> entriesOfText(const QString &text)
{
    QVector<ListEntry> entries;
    for (const char separator : {'\n', '|', ';', ','}) {
        const QStringList parts = text.split(QLatin1Char(separator));
        if (parts.size() > 1 || separator == ',') {
            for (const QString &part : parts.mid(0, mostEntries)) {
                if (!part.trimmed().isEmpty()) {
                    entries.append({part.trimmed(), {}});
                }
            }
            break;
        }
    }
    return entries;
}

} // namespace

QStringList ListEntry::texts() const
{
    QStringList all;
    if (!text.isEmpty()) {
        all.append(text);
    }
    for (const ListEntry &entry : entries) {
        all += entry.texts();
    }
    return all;
}

QVector<ListEntry> listEntries(const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        const QJsonValue list = firstOf(object, entryMembers);
        return list.isArray() ? entriesOf(list, 0) : membersOf(object);
    }
    if (value.isArray()) {
        return entriesOf(value, 0);
    }
    const QString text = valueText(value).trimmed();
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    if (json.isArray()) {
        return entriesOf(json.array(), 0);
    }
    return json.isObject() ? listEntries(json.object()) : entriesOfText(text);
}

} // namespace lessonhost
