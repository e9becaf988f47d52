#include "zqslidetran.h"

#include "domhelpers.h"

#include <QHash>
#include <QJsonDocument>
#include <QMap>

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
    if (value.isUndefined()) {
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
    QMap<QString, QJsonObject> triggers;
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
            item = QStringLiteral("slide");
        }
        QJsonObject &actions = triggers[QLatin1String("activeItem==") + item];
        int number = actions.size();
        for (QDomElement action = trigger.firstChildElement(); !action.isNull(); action = action.nextSiblingElement()) {
            QJsonObject json{
                {QStringLiteral("valid"), true},
                {QStringLiteral("actionIndex"), nextGeneratedId()},
                {QStringLiteral("activeItem"), item},
                {QStringLiteral("targetID"), action.attribute(valueAttribute)},
                {QStringLiteral("loopState"), action.attribute(QStringLiteral("loopState"), QStringLiteral("0"))},
            };
            readSettings(action, json);
            actions.insert(QLatin1String("animation_NO==") + QString::number(number), json);
            ++number;
        }
    }
    return numberedTriggers(triggers);
}

QString ZQSlideTran::numberedTriggers(QMap<QString, QJsonObject> triggers)
{
    QJsonObject table;
    int number = 0;
    const auto store = [&table, &number](const QJsonObject &actions) {
        table.insert(QLatin1String("src_NO==") + QString::number(number), actions);
        ++number;
    };
    const QString slideKey = QStringLiteral("activeItem==slide");
    if (triggers.contains(slideKey)) {
        store(triggers.take(slideKey));
    }
    for (const QJsonObject &actions : qAsConst(triggers)) {
        store(actions);
    }
    return QString::fromUtf8(QJsonDocument(table).toJson());
}
