// SPDX-License-Identifier: MIT
#include "lesson/writableforms.h"

#include "files/xmltext.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/strokeoffsets.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

// JSON in ASCII, since the text is read back as Latin-1.
QString asciiJson(const QJsonArray &array)
{
    const QString json = QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    QString ascii;
    for (const QChar c : json) {
        if (c.unicode() < 0x80) {
            ascii += c;
        } else {
            ascii += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return ascii;
}

using Change = QJsonValue (*)(const QJsonValue &value);

QJsonValue toFlag(const QJsonValue &value)
{
    return itemFlag(value);
}

QJsonValue toNumber(const QJsonValue &value)
{
    return itemNumber(value);
}

// Kept in whole numbers only.
QJsonValue toWhole(const QJsonValue &value)
{
    return std::round(itemNumber(value));
}

QJsonValue toEscaped(const QJsonValue &value)
{
    return escapedForXml(valueText(value));
}

// For the text of an element. One of blanks alone would be dropped, but for a section of its own.
QJsonValue toElementText(const QJsonValue &value)
{
    const QString text = valueText(value);
    const bool isBlank = !text.isEmpty() && text.trimmed().isEmpty();
    return isBlank ? QLatin1String("<![CDATA[") + escapedForCData(text) + QLatin1String("]]>") : escapedForXml(text);
}

QJsonValue toCData(const QJsonValue &value)
{
    return escapedForCData(valueText(value));
}

struct KeyChange
{
    const char *key;
    Change change;
};

template <size_t size> void applyChanges(QJsonObject &object, const KeyChange (&changes)[size])
{
    for (const KeyChange &row : changes) {
        const QLatin1String key(row.key);
        const auto it = object.constFind(key);
        if (it != object.constEnd()) {
            object.insert(key, row.change(*it));
        }
    }
}

constexpr KeyChange mapInformation[] = {
    {"title", toElementText},     {"type", toWhole},
    {"style", toWhole},           {"spreadStyle", toWhole},
    {"fillColor", toElementText}, {"borderColor", toElementText},
    {"lineColor", toElementText},
};

constexpr KeyChange mapNode[] = {
    {"pos", toElementText},       {"position", toWhole},        {"width", toWhole},   {"height", toWhole},
    {"fillColor", toElementText}, {"lineColor", toElementText}, {"visiable", toFlag}, {"childrenVisiable", toFlag},
    {"nodeHtml", toCData},        {"link", toElementText},      {"shade", toFlag},    {"stamp", toWhole},
};

constexpr KeyChange mapAttachment[] = {{"type", toEscaped}, {"name", toEscaped}, {"path", toEscaped}};

constexpr KeyChange activityAttachments[] = {{"back", toEscaped}, {"front", toEscaped}, {"error", toEscaped}};

constexpr KeyChange question[] = {
    {"R_Content_svg", toElementText}, {"R_Answer_svg", toElementText}, {"page_scale", toNumber},
    {"page_state", toElementText},    {"answer_width", toNumber},      {"answer_height", toNumber},
    {"content_width", toNumber},      {"content_height", toNumber},
};

QJsonObject writableNode(QJsonObject node)
{
    applyChanges(node, mapNode);
    const QLatin1String attachmentsKey("attachments");
    if (node.contains(attachmentsKey)) {
        QJsonArray attachments;
        const QJsonArray given = node.value(attachmentsKey).toArray();
        for (const QJsonValue &value : given) {
            QJsonObject attachment = value.toObject();
            applyChanges(attachment, mapAttachment);
            attachments.append(attachment);
        }
        node.insert(attachmentsKey, attachments);
    }
    const QLatin1String childNodesKey("childNodes");
    if (node.contains(childNodesKey)) {
        QJsonArray childNodes;
        const QJsonArray given = node.value(childNodesKey).toArray();
        for (const QJsonValue &value : given) {
            childNodes.append(writableNode(value.toObject()));
        }
        node.insert(childNodesKey, childNodes);
    }
    return node;
}

QJsonValue writableMindMap(const QJsonValue &value)
{
    QJsonArray map = value.toArray();
    if (map.size() < 3) {
        return map;
    }
    QJsonObject information = map.at(0).toObject();
    applyChanges(information, mapInformation);
    QJsonObject edge = map.at(1).toObject();
    applyChanges(edge, {{"style", toWhole}});
    map.replace(0, information);
    map.replace(1, edge);
    map.replace(2, writableNode(map.at(2).toObject()));
    return map;
}

QJsonValue writableCourseware(const QJsonValue &value)
{
    if (!value.isArray()) {
        return value;
    }
    QJsonArray resources;
    const QJsonArray given = value.toArray();
    for (const QJsonValue &resource : given) {
        resources.append(toEscaped(resource));
    }
    return resources;
}

QJsonValue writableAttachments(const QJsonValue &value)
{
    QJsonObject attachments = value.toObject();
    applyChanges(attachments, activityAttachments);
    return attachments;
}

// The same tree with texts for numbers and flags.
QJsonValue treeOfTexts(const QJsonValue &value)
{
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = treeOfTexts(it.value());
        }
        return object;
    }
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (QJsonValueRef element : array) {
            element = treeOfTexts(element);
        }
        return array;
    }
    return valueText(value);
}

// The keys of an animation become attributes.
QJsonObject writableAnimations(const QJsonValue &value)
{
    QJsonObject animations = treeOfTexts(value).toObject();
    for (auto group = animations.begin(); group != animations.end(); ++group) {
        QJsonObject values = group.value().toObject();
        for (auto it = values.begin(); it != values.end();) {
            it = isXmlName(it.key()) ? it + 1 : values.erase(it);
        }
        group.value() = values;
    }
    return animations;
}

// A null says no more than a key that is missing.
QJsonObject withoutNulls(QJsonObject object)
{
    for (auto it = object.begin(); it != object.end();) {
        it = it.value().isNull() ? object.erase(it) : it + 1;
    }
    return object;
}

QJsonValue plainValue(const QJsonValue &value)
{
    const QString text = valueText(value);
    return text.isNull() ? value : QJsonValue(text);
}

// What a read had to keep under a name of its own.
void putBack(QJsonObject &written, QLatin1String keptKey, QLatin1String key)
{
    const QJsonValue kept = written.take(keptKey);
    if (!kept.isUndefined() && !written.contains(key)) {
        written.insert(key, kept);
    }
}

bool isQuestionNumber(const QString &key)
{
    return std::any_of(std::begin(question), std::end(question), [&key](const KeyChange &row) {
        return row.change == toNumber && key == QLatin1String(row.key);
    });
}

} // namespace

QJsonObject writableProperties(const QJsonObject &properties)
{
    QJsonObject written = withoutNulls(properties);
    for (auto it = written.begin(); it != written.end(); ++it) {
        const bool isTree = it.key() == QLatin1String("activity") || it.key() == ItemKeys::animations;
        it.value() = isTree ? treeOfTexts(it.value()) : plainValue(it.value());
    }
    return written;
}

QJsonObject writableItem(const QJsonObject &item, int majorVersion)
{
    const QString type = item.value(ItemKeys::type).toString();
    QJsonObject written = withoutNulls(item);
    written.remove(HostKeys::children);
    putBack(written, HostKeys::ignoredBox, ItemKeys::box);
    putBack(written, HostKeys::ignoredControl, ItemKeys::control);
    const bool isQuestion = type == QLatin1String("ZQQuestionItem");
    if (isQuestion) {
        applyChanges(written, question);
    }
    for (auto it = written.begin(); it != written.end(); ++it) {
        const QString key = it.key();
        const QJsonValue value = it.value();
        if (key == ItemKeys::visible) {
            it.value() = itemFlag(value, true);
        } else if (key == ItemKeys::mindMap) {
            it.value() = writableMindMap(value);
        } else if (key == ItemKeys::animations) {
            it.value() = writableAnimations(value);
        } else if (key == ItemKeys::attachments) {
            it.value() = writableAttachments(value);
        } else if (key == ItemKeys::document && type == QLatin1String("ZQDyCoursewareItem")) {
            it.value() = writableCourseware(value);
        } else if (key == ItemKeys::deletedPixels && value.isArray()) {
            it.value() = asciiJson(value.toArray());
        } else if (key == ItemKeys::steps && majorVersion < 3) {
            it.value() = pointsAsOffsets(valueText(value));
        } else if (!value.isString() && !(isQuestion && isQuestionNumber(key))) {
            // To store a text again is dear.
            it.value() = plainValue(value);
        }
    }
    return written;
}

} // namespace lessonhost
