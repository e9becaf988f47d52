// SPDX-License-Identifier: MIT
#include "command/lessoninfo.h"

#include "command/terminal.h"
#include "files/packagenames.h"
#include "lesson/isoneof.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/plainnames.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace lessonhost {

namespace {

// Keys of items, slides and attachments whose texts are paths of files.
constexpr const char *fileKeys[] = {"resource",       "document",   "DrawTexture", "Stamp", "AudioPath", "picture",
                                    "MultiMediaFile", "AttachFile", "path",        "back",  "front",     "error"};

// The pictures of a game lie in directories of the editor, not in the package.
const QLatin1String activityKey("activity");

constexpr const char *cardTypes[] = {"General:everCard", "ZQActivityFlipItem", "ZQLiteraturePinyin",
                                     "ZQLiteratureHanzibihua", "ZQChineseCharacterItem"};

int nodeCount(const QJsonObject &node)
{
    const QJsonArray children = node.value(QLatin1String("childNodes")).toArray();
    return std::accumulate(children.constBegin(), children.constEnd(), 1,
                           [](int sum, const QJsonValue &child) { return sum + nodeCount(child.toObject()); });
}

// visit: see eachNamedFile(). value: of a key that names files.
void eachFileIn(const QJsonValue &value, const std::function<void(const QString &file)> &visit)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            eachFileIn(element, visit);
        }
        return;
    }
    const QStringList files = value.toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &file : files) {
        // Addresses, built-in pictures of the editor and places on another machine are no files of the package.
        const bool isOwn = file.contains(QLatin1Char('.')) && problemWithPackagePath(file).isEmpty()
            && !file.startsWith(QLatin1String("ID_SLIDE_"));
        if (isOwn) {
            visit(file);
        }
    }
}

class Counter
{
public:
    Counter(LessonInfo &info, const QStringList &resources)
        : m_info(info)
        , m_resources(resources.cbegin(), resources.cend())
    {
    }

    void countSlide(const LessonSlide &slide)
    {
        collectFiles(slide.properties);
        const QJsonObject activity = slide.properties.value(activityKey).toObject();
        if (!activity.isEmpty()) {
            ++m_info.activities[activity.value(QLatin1String("type")).toString()];
        }
        const QString script = slide.properties.value(QLatin1String("objAnimationData")).toString();
        m_info.triggers += QJsonDocument::fromJson(script.toUtf8()).object().size();
        m_info.animatedItems +=
            slide.properties.value(ItemKeys::animations).toObject().value(QLatin1String("animation")).toArray().size();
        countItems(slide.items);
    }

    QStringList missingFiles() const
    {
        QStringList files = m_missing.values();
        files.sort();
        return files;
    }

private:
    void countItems(const QJsonArray &items)
    {
        for (const QJsonValue &value : items) {
            const QJsonObject item = value.toObject();
            const QString type = valueText(item.value(ItemKeys::type));
            if (item.contains(HostKeys::keptXml)) {
                ++m_info.unknownItems[type];
                continue;
            }
            ++m_info.items[type];
            if (type == QLatin1String("ZQQuestionItem")) {
                ++m_info.questions;
            } else if (isOneOf(cardTypes, type)) {
                ++m_info.cards;
            }
            const QJsonArray map = item.value(ItemKeys::mindMap).toArray();
            if (map.size() >= 3) {
                m_info.mindMapNodes += nodeCount(map.at(2).toObject());
            }
            collectFiles(item);
            countItems(item.value(HostKeys::children).toArray());
        }
    }

    void collectFiles(const QJsonValue &value)
    {
        eachNamedFile(value, [this](const QString &file) {
            if (!m_resources.contains(file)) {
                m_missing.insert(file);
            }
        });
    }

    LessonInfo &m_info;
    QSet<QString> m_resources;
    QSet<QString> m_missing;
};

int sum(const QMap<QString, int> &counts)
{
    return std::accumulate(counts.cbegin(), counts.cend(), 0);
}

QString line(const Sentence &name, const QString &value)
{
    constexpr int valueColumn = 16;
    return padded(name.local(), valueColumn - 2) + QLatin1String("  ") + value + QLatin1Char('\n');
}

QString sizeText(qint64 bytes)
{
    constexpr qint64 kibibyte = 1024;
    return bytes < kibibyte ? sayNumber("%n bytes", bytes).local() : QLocale::c().formattedDataSize(bytes);
}

QString countLines(const QMap<QString, int> &counts)
{
    QString text;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        text += QStringLiteral("%1  %2\n").arg(it.value(), 6).arg(it.key());
    }
    return text;
}

// With what a teacher calls the types.
QString itemLines(const QMap<QString, int> &counts)
{
    int width = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        width = qMax(width, it.key().size());
    }
    QString text;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        text += QStringLiteral("%1  %2  %3\n").arg(it.value(), 6).arg(it.key(), -width).arg(saidName(it.key()).local());
    }
    return text;
}

QJsonObject countObject(const QMap<QString, int> &counts)
{
    QJsonObject object;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        object.insert(it.key(), it.value());
    }
    return object;
}

} // namespace

void eachNamedFile(const QJsonValue &value, const std::function<void(const QString &file)> &visit)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            eachNamedFile(element, visit);
        }
        return;
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (isOneOf(fileKeys, it.key())) {
            eachFileIn(it.value(), visit);
        } else if (it.key() != HostKeys::children && it.key() != activityKey && !it.value().isString()) {
            eachNamedFile(it.value(), visit);
        }
    }
}

int LessonInfo::itemCount() const
{
    return sum(items) + sum(unknownItems);
}

QString LessonInfo::toText() const
{
    QString text;
    if (!title.isEmpty()) {
        text += line(say("Title"), title);
    }
    const bool hasSize = !width.isEmpty() && !height.isEmpty();
    text += line(say("Page size"), hasSize ? width + QLatin1String(" x ") + height : say("not given").local());
    text += line(say("Version"), version.isEmpty() ? say("not given").local() : version);
    text += line(say("Slides"), QString::number(slides));
    const std::pair<const char *, int> counts[] = {{TO_SAY("Mind map nodes"), mindMapNodes},
                                                   {TO_SAY("Cards"), cards},
                                                   {TO_SAY("Questions"), questions},
                                                   {TO_SAY("Triggers"), triggers},
                                                   {TO_SAY("Animated items"), animatedItems}};
    for (const auto &[name, count] : counts) {
        if (count > 0) {
            text += line(say(name), QString::number(count));
        }
    }
    if (!activities.isEmpty()) {
        text += line(say("Activities"), QString::number(sum(activities))) + countLines(activities);
    }
    text += line(say("Files"), QStringLiteral("%1 (%2)").arg(QString::number(resources), sizeText(resourceBytes)));
    if (!missingFiles.isEmpty()) {
        text += line(say("Missing files"), missingFiles.join(QLatin1String(", ")));
    }
    text += line(say("Items"), QString::number(itemCount())) + itemLines(items);
    if (!unknownItems.isEmpty()) {
        text += line(say("Unknown items"), QString::number(sum(unknownItems))) + countLines(unknownItems);
    }
    return text;
}

QJsonObject LessonInfo::toJson() const
{
    return {
        {QStringLiteral("title"), title},
        {QStringLiteral("version"), version},
        {QStringLiteral("width"), width},
        {QStringLiteral("height"), height},
        {QStringLiteral("slides"), slides},
        {QStringLiteral("items"), countObject(items)},
        {QStringLiteral("unknownItems"), countObject(unknownItems)},
        {QStringLiteral("mindMapNodes"), mindMapNodes},
        {QStringLiteral("cards"), cards},
        {QStringLiteral("questions"), questions},
        {QStringLiteral("activities"), countObject(activities)},
        {QStringLiteral("triggers"), triggers},
        {QStringLiteral("animatedItems"), animatedItems},
        {QStringLiteral("files"), resources},
        {QStringLiteral("fileBytes"), double(resourceBytes)},
        {QStringLiteral("missingFiles"), QJsonArray::fromStringList(missingFiles)},
    };
}

LessonInfo lessonInfo(LessonReader &reader, const Progress &progress)
{
    LessonInfo info;
    const QJsonObject presentation = reader.presentation();
    const auto text = [&presentation](const char *key) { return valueText(presentation.value(QLatin1String(key))); };
    info.title = presentation.value(HostKeys::title).toString();
    info.version = text("Version");
    info.width = text("Width");
    info.height = text("Height");
    info.slides = reader.slideCount();
    const QStringList resources = reader.resources();
    info.resources = resources.size();
    for (const QString &resource : resources) {
        info.resourceBytes += QFileInfo(reader.resourceFile(resource)).size();
    }
    Counter counter(info, resources);
    for (int i = 0; i < info.slides; ++i) {
        counter.countSlide(reader.slide(i));
        progress(i + 1, info.slides);
    }
    info.missingFiles = counter.missingFiles();
    return info;
}

} // namespace lessonhost
