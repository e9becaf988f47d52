// SPDX-License-Identifier: MIT
#include "render/slideplay.h"

#include "drawings/activitydrawing.h"
#include "drawings/coverdrawing.h"
#include "drawings/instrumentdrawing.h"
#include "drawings/shownitems.h"
#include "iwb/iwbmedia.h"
#include "lesson/closedtext.h"
#include "lesson/curtain.h"
#include "lesson/itemview.h"
#include "lesson/listentries.h"
#include "render/itemlabel.h"
#include "render/pagefiles.h"
#include "render/pagelinks.h"
#include "render/playsteps.h"

#include <QHash>

namespace lessonhost {

namespace {

void put(QJsonObject &object, const char *key, const QJsonValue &value)
{
    const bool isNothing = value.isNull() || value.isUndefined() || (value.isObject() && value.toObject().isEmpty())
        || (value.isArray() && value.toArray().isEmpty()) || (value.isString() && value.toString().isEmpty());
    if (!isNothing) {
        object.insert(QLatin1String(key), value);
    }
}

// What plays or opens where its item stands. A file that the lesson hasn't is no medium.
QJsonObject mediaOf(const ItemView &item, IwbMedia &media, PageFiles &files)
{
    static const QHash<QString, QString> kinds{
        {QStringLiteral("ZQMediaAudio"), QStringLiteral("audio")},
        {QStringLiteral("ZQMediaVideo"), QStringLiteral("video")},
        {QStringLiteral("ZQMediaFlash"), QStringLiteral("file")},
        {QStringLiteral("ZQMediaDoc"), QStringLiteral("file")},
        {QStringLiteral("ZQDyCoursewareItem"), QStringLiteral("file")},
    };
    const QString kind = kinds.value(item.type());
    if (kind.isEmpty()) {
        return {};
    }
    QStringList references;
    for (const QLatin1String key : {ItemKeys::resource, ItemKeys::mediaFiles, ItemKeys::document}) {
        const QJsonValue value = item.json().value(key);
        references.append(value.isArray() ? valueText(value.toArray().at(1)) : item.firstText(key));
    }
    for (const QString &reference : qAsConst(references)) {
        const QString source = reference.isEmpty() ? QString() : media.find(reference);
        if (source.isEmpty()) {
            continue;
        }
        QJsonObject result{{QStringLiteral("kind"), kind}, {QStringLiteral("file"), files.add(source, reference)}};
        for (const char *flag : {"auto", "loop", "mute"}) {
            if (item.flag(QLatin1String(flag))) {
                result.insert(QLatin1String(flag), true);
            }
        }
        return result;
    }
    return {};
}

QJsonArray pointOf(const QPointF &point)
{
    return {point.x(), point.y()};
}

QJsonObject spotlight(const ItemView &item, const QTransform &placed)
{
    const auto spot = spotOn(item);
    if (!spot) {
        return {};
    }
    const QPointF center = placed.map(spot->center);
    return {{QStringLiteral("kind"), QStringLiteral("spotlight")},
            {QStringLiteral("center"), pointOf(center)},
            {QStringLiteral("radius"), spot->radius}};
}

QJsonObject question(const ItemView &item)
{
    const QString answer = plainWords(item.text(QLatin1String("R_Answer_svg")));
    return answer.isEmpty()
        ? QJsonObject()
        : QJsonObject{{QStringLiteral("kind"), QStringLiteral("question")}, {QStringLiteral("answer"), answer}};
}

QJsonObject flipCard(const ItemView &item)
{
    if (backOfCard(item.json()).isEmpty()) {
        return {};
    }
    return {{QStringLiteral("kind"), QStringLiteral("flip")},
            {QStringLiteral("front"), item.text(QLatin1String("frontContent"))},
            {QStringLiteral("back"), plainWords(item.text(ItemKeys::html))}};
}

// Exercises are told by lists that say what belongs together. An entry alone is no card, and a box without anything to
// put into it stays a box.
QJsonObject exercise(const ItemView &item, const char *kind, const char *key, const char *entriesKey)
{
    const bool isSorting = QLatin1String(kind) == QLatin1String("sorting");
    QJsonArray entries;
    const QVector<ListEntry> told = listEntries(item.json().value(QLatin1String(key)));
    for (const ListEntry &entry : told) {
        QStringList inner;
        for (const ListEntry &one : entry.entries) {
            inner += plainWords(one.texts().join(QLatin1Char(' ')));
        }
        const QString text = plainWords(entry.text);
        if (isSorting) {
            entries.append(QJsonObject{{QStringLiteral("name"), text},
                                       {QStringLiteral("items"), QJsonArray::fromStringList(inner)}});
        } else if (!inner.isEmpty()) {
            entries.append(QJsonArray{text, inner.join(QLatin1Char(' '))});
        }
    }
    if (entries.isEmpty()) {
        return {};
    }
    QJsonObject tool{{QStringLiteral("kind"), QLatin1String(kind)}, {QLatin1String(entriesKey), entries}};
    put(tool, "title", item.text(QLatin1String("Title")));
    return tool;
}

QJsonObject toolOf(const ItemView &item, const QTransform &placed)
{
    const QString type = item.type();
    const auto kind = [](const char *name) { return QJsonObject{{QStringLiteral("kind"), QLatin1String(name)}}; };
    if (type == curtainType) {
        return kind("curtain");
    }
    if (type == QLatin1String("General:spotlight")) {
        return spotlight(item, placed);
    }
    if (type == QLatin1String("General:everCard")) {
        return exercise(item, "cards", "CardList", "cards");
    }
    if (type == QLatin1String("General:fiaction")) {
        return exercise(item, "sorting", "FicationList", "boxes");
    }
    if (type == QLatin1String("General:connection")) {
        return exercise(item, "pairs", "ConnectionList", "pairs");
    }
    if (const auto handle = instrumentHandle(item)) {
        QJsonObject tool = kind(type == QLatin1String("Math:compasses") ? "compasses" : "instrument");
        tool.insert(QStringLiteral("middle"), pointOf(placed.map(handle->middle)));
        tool.insert(QStringLiteral("handle"), pointOf(placed.map(handle->handle)));
        return tool;
    }
    if (type == QLatin1String("ZQQuestionItem")) {
        return question(item);
    }
    if (type == QLatin1String("ZQActivityFlipItem")) {
        return flipCard(item);
    }
    const bool isBasket = type.contains(QLatin1String("container"), Qt::CaseInsensitive);
    const bool isPiece = type.contains(QLatin1String("material"), Qt::CaseInsensitive)
        && !type.contains(QLatin1String("Student")) && !type.contains(QLatin1String("Mark"));
    if (!isBasket && !isPiece) {
        return {};
    }
    QJsonObject tool = kind(isBasket ? "basket" : "piece");
    tool.insert(QStringLiteral("text"), plainWords(item.text(ItemKeys::html)));
    return tool;
}

// Without how it looks.
QJsonObject activityOf(const QJsonObject &slide)
{
    const QJsonObject told = slide.value(QLatin1String("activity")).toObject();
    QJsonObject activity;
    for (const char *key : {"type", "title", "countdown", "matchs", "unmatchs"}) {
        put(activity, key, told.value(QLatin1String(key)));
    }
    return activity;
}

} // namespace

QJsonObject slidePlay(const LessonSlide &slide, const QVector<ShownItem> &items, const PlaySteps &steps,
                      IwbMedia &media, PageFiles &files)
{
    QJsonArray described;
    for (const ShownItem &placed : items) {
        const ItemView view(placed.item);
        QJsonObject item;
        put(item, "groups", QJsonArray::fromStringList(placed.groups));
        put(item, "link", pageLink(view.text(ItemKeys::linkType), view.text(ItemKeys::linkValue), media, files));
        put(item, "media", mediaOf(view, media, files));
        put(item, "tool", toolOf(view, placed.placed));
        if (!item.isEmpty()) {
            item.insert(QStringLiteral("id"), placed.id);
            const ItemLabel label = itemLabel(view);
            item.insert(QStringLiteral("label"), label.text);
            put(item, "kind", label.kind);
            described.append(item);
        }
    }
    QJsonObject play;
    put(play, "change", slideChange(slide.properties));
    put(play, "steps", steps.ofSlide);
    put(play, "triggers", steps.ofItems);
    put(play, "items", described);
    put(play, "activity", activityOf(slide.properties));
    return play;
}

} // namespace lessonhost
