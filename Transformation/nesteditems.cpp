// SPDX-License-Identifier: MIT
#include "nesteditems.h"

#include "xmlplaces.h"

#include <QJsonArray>
#include <QVector>

#include <optional>

namespace {

// The items of one owner: what is done and what is still to come.
struct Level
{
    QDomElement next;
    QJsonObject owner;
    QJsonObject context;
    const NestedItems::Form *form = nullptr;
    QVector<QJsonObject> converted;
};

// The item that a walk is converting, and the level that its conversion leaves to the walk.
struct Conversion
{
    QDomElement item;
    std::optional<Level> inner;
};

Conversion *runningConversion = nullptr;

// Converts an item of the walk without its own nested items; those are left in the conversion.
QJsonObject convert(Conversion &conversion, const Level &level)
{
    Conversion *outer = runningConversion;
    runningConversion = &conversion;
    QJsonObject object = level.form->convert(conversion.item, level.context);
    runningConversion = outer;
    return object;
}

void storeChildren(Level &level)
{
    if (level.converted.isEmpty()) {
        return;
    }
    const QLatin1String key("Children");
    QJsonArray children = level.owner.take(key).toArray();
    if (level.form->inReverse) {
        const QJsonArray former = children;
        children = {};
        for (auto it = level.converted.crbegin(); it != level.converted.crend(); ++it) {
            children.append(*it);
        }
        for (const QJsonValue &child : former) {
            children.append(child);
        }
    } else {
        for (const QJsonObject &child : qAsConst(level.converted)) {
            children.append(child);
        }
    }
    level.owner.insert(key, children);
}

} // namespace

void NestedItems::read(const QDomElement &owner, const QDomElement &first, QJsonObject &json,
                       const QJsonObject &context, const Form &form)
{
    if (runningConversion && runningConversion->item == owner) {
        runningConversion->inner = Level{first, {}, context, &form, {}};
        return;
    }
    const NestedSearches searches;
    QVector<Level> levels{{first, json, context, &form, {}}};
    // The owner's object is held by its level alone, so that children go in without a copy.
    json = {};
    for (;;) {
        Level &level = levels.last();
        if (level.next.isNull()) {
            storeChildren(level);
            const QJsonObject finished = level.owner;
            levels.removeLast();
            if (levels.isEmpty()) {
                json = finished;
                return;
            }
            levels.last().converted.append(finished);
            continue;
        }
        Conversion conversion{level.next, std::nullopt};
        level.next = level.next.nextSiblingElement();
        if (!level.form->isKnown(conversion.item)) {
            continue;
        }
        const QJsonObject object = convert(conversion, level);
        if (conversion.inner) {
            conversion.inner->owner = object;
            levels.append(*conversion.inner);
        } else {
            level.converted.append(object);
        }
    }
}
