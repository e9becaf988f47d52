// SPDX-License-Identifier: MIT
#include "zqslidetran.h"

#include "domhelpers.h"

#include <QHash>
#include <QJsonDocument>
#include <QMap>
#include <QVector>

#include <algorithm>

// What plays on a slide: the list of animated items, and the interaction script of a raw slide.

namespace {

using Names = QHash<QString, QString>;

const Names &activeModes()
{
    static const Names modes{
        {QStringLiteral("click"), QStringLiteral("click")},
        {QStringLiteral("dbclick"), QStringLiteral("click")},
        {QStringLiteral("enter"), QStringLiteral("from_previous")},
        {QStringLiteral("simultaneity"), QStringLiteral("from_previous")},
        {QStringLiteral("after"), QStringLiteral("from_previous_end")},
    };
    return modes;
}

const Names &animationNames()
{
    static const Names names{
        {QStringLiteral("ANIMATION_FLY_LEFT_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_FLYIN")},
        {QStringLiteral("ANIMATION_WIPE_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_FLYIN")},
        {QStringLiteral("ANIMATION_PHOTO"), QStringLiteral("ID_OBJANIMATION_ENTER_FLYIN")},
        {QStringLiteral("ANIMATION_BLIND_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_BLINDS")},
        {QStringLiteral("ANIMATION_CIRCLE_IRIS_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_CIRCLE")},
        {QStringLiteral("ANIMATION_ROTATE"), QStringLiteral("ID_OBJANIMATION_ENTER_CIRCLE")},
        {QStringLiteral("ANIMATION_FADE_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_FADE")},
        {QStringLiteral("ANIMATION_DISSOLVE_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_FADE")},
        {QStringLiteral("ACTION_SHOW"), QStringLiteral("ID_OBJANIMATION_ENTER_FADE")},
        {QStringLiteral("ANIMATION_SQUEEZE_IN"), QStringLiteral("ID_OBJANIMATION_ENTER_ZOOM")},
        {QStringLiteral("ANIMATION_ZOOM"), QStringLiteral("ID_OBJANIMATION_ENTER_ZOOM")},
        {QStringLiteral("ANIMATION_FLY_LEFT_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_ERASURE")},
        {QStringLiteral("ANIMATION_WIPE_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_ERASURE")},
        {QStringLiteral("ANIMATION_BLIND_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_BLINDS")},
        {QStringLiteral("ANIMATION_CIRCLE_IRIS_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_CIRCLE")},
        {QStringLiteral("ANIMATION_FADE_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_FADE")},
        {QStringLiteral("ANIMATION_DISSOLVE_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_FADE")},
        {QStringLiteral("ACTION_HIDE"), QStringLiteral("ID_OBJANIMATION_OUT_FADE")},
        {QStringLiteral("ANIMATION_SQUEEZE_OUT"), QStringLiteral("ID_OBJANIMATION_OUT_ZOOM")},
    };
    return names;
}

const QString valueAttribute = QStringLiteral("value");

// The settings of one action. A later setting of the same name replaces an earlier one.
void readSettings(const QDomElement &action, QJsonObject &json)
{
    for (QDomElement setting = action.firstChildElement(); !setting.isNull(); setting = setting.nextSiblingElement()) {
        const QString tag = setting.tagName();
        const QString value = setting.attribute(valueAttribute);
        if (tag == QLatin1String("activeMode")) {
            const auto mode = activeModes().constFind(value);
            if (mode != activeModes().constEnd()) {
                json.insert(tag, *mode);
            }
        } else if (tag == QLatin1String("interactiveType")) {
            json.insert(tag, animationNames().value(value, value));
        } else if (tag == QLatin1String("reservation")) {
            json.insert(QLatin1String("effectoption"), value);
        } else if (tag == QLatin1String("scale")) {
            json.insert(tag, setting.attribute(valueAttribute, QStringLiteral("1.0")));
        }
    }
}

// The objects under the names PREFIX0, PREFIX1, ... They are inserted in the order in which an object keeps its
// members, as text, so that none has to make room for a later one.
QJsonObject numbered(QLatin1String prefix, const QVector<QJsonObject> &objects)
{
    QVector<QPair<QString, int>> names;
    names.reserve(objects.size());
    for (int i = 0; i < objects.size(); ++i) {
        names.append({prefix + QString::number(i), i});
    }
    std::sort(names.begin(), names.end());
    QJsonObject members;
    for (const auto &name : qAsConst(names)) {
        members.insert(name.first, objects.at(name.second));
    }
    return members;
}

} // namespace

QJsonObject ZQSlideTran::readSlideAnimations(QDomElement element, QJsonObject json, QJsonObject)
{
    const QDomElement animations = childByTag(element, QStringLiteral("animations"));
    if (animations.isNull()) {
        return json;
    }
    QJsonArray ids;
    for (QDomElement row = animations.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        ids.append(row.attribute(QStringLiteral("id")));
    }
    json.insert(QLatin1String("animations"), QJsonObject{{QStringLiteral("animation"), ids}});
    return json;
}

void ZQSlideTran::writeSlideAnimations(QDomElement element, QJsonObject json, QJsonObject)
{
    const QJsonValue value = json.value(QLatin1String("animations"));
    if (element.isNull() || value.isUndefined()) {
        return;
    }
    QDomElement animations = newElement(QStringLiteral("animations"));
    const QJsonArray ids = value.toObject().value(QLatin1String("animation")).toArray();
    for (const QJsonValue &id : ids) {
        QDomElement row = newElement(QStringLiteral("animation"));
        row.setAttribute(QStringLiteral("id"), id.toString());
        animations.appendChild(row);
    }
    element.appendChild(animations);
}

QString ZQSlideTran::interactiveToJson(const QString &text)
{
    const QLatin1String start("<activeItem");
    const QString slide = QStringLiteral("slide");
    // The actions by the item that triggers them, in the order in which the triggers are numbered.
    QMap<QString, QVector<QJsonObject>> triggers;
    const QStringList parts = text.split(start);
    for (int i = 1; i < parts.size(); ++i) {
        QString part = start + parts.at(i);
        const int end = i + 1 == parts.size() ? part.indexOf(QLatin1String("</interactive>")) : -1;
        if (end >= 0) {
            part.truncate(end);
        }
        const QDomElement trigger = elementFromXml(part);
        QString item = trigger.attribute(valueAttribute);
        if (item.isEmpty() || item == QLatin1String("0")) {
            item = slide;
        }
        QVector<QJsonObject> &actions = triggers[item];
        for (QDomElement action = trigger.firstChildElement(); !action.isNull(); action = action.nextSiblingElement()) {
            QJsonObject json{
                {QStringLiteral("valid"), true},
                {QStringLiteral("actionIndex"), nextGeneratedId()},
                {QStringLiteral("activeItem"), item},
                {QStringLiteral("targetID"), action.attribute(valueAttribute)},
                {QStringLiteral("loopState"), action.attribute(QStringLiteral("loopState"), QStringLiteral("0"))},
            };
            readSettings(action, json);
            actions.append(json);
        }
    }

    QVector<QJsonObject> rows;
    const auto addRow = [&rows](const QVector<QJsonObject> &actions) {
        rows.append(numbered(QLatin1String("animation_NO=="), actions));
    };
    if (triggers.contains(slide)) {
        addRow(triggers.take(slide));
    }
    for (const QVector<QJsonObject> &actions : qAsConst(triggers)) {
        addRow(actions);
    }
    return QString::fromUtf8(QJsonDocument(numbered(QLatin1String("src_NO=="), rows)).toJson());
}
