// SPDX-License-Identifier: MIT
#include "render/playsteps.h"

#include "lesson/itemview.h"
#include "render/pagelinks.h"

#include <QHash>
#include <QJsonDocument>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String enter("enter");
const QLatin1String emphasis("emphasis");
const QLatin1String leave("exit");

struct Effect
{
    const char *name;
    QLatin1String kind;
    const char *effect;
};

const Effect effects[] = {
    {"ID_OBJANIMATION_ENTER_FLYIN", enter, "fly"},     {"ID_OBJANIMATION_ENTER_BLINDS", enter, "blinds"},
    {"ID_OBJANIMATION_ENTER_CIRCLE", enter, "circle"}, {"ID_OBJANIMATION_ENTER_FADE", enter, "fade"},
    {"ID_OBJANIMATION_ENTER_ZOOM", enter, "zoom"},     {"ID_OBJANIMATION_OUT_ERASURE", leave, "wipe"},
    {"ID_OBJANIMATION_OUT_BLINDS", leave, "blinds"},   {"ID_OBJANIMATION_OUT_CIRCLE", leave, "circle"},
    {"ID_OBJANIMATION_OUT_FADE", leave, "fade"},       {"ID_OBJANIMATION_OUT_ZOOM", leave, "zoom"},
};

const Effect *effectNamed(const QString &name)
{
    for (const Effect &effect : effects) {
        if (name == QLatin1String(effect.name)) {
            return &effect;
        }
    }
    return nullptr;
}

// Nothing for a word that says no start.
QString startFrom(const QString &word)
{
    static const QHash<QString, QString> starts{
        {QStringLiteral("click"), QStringLiteral("click")},
        {QStringLiteral("from_previous"), QStringLiteral("with")},
        {QStringLiteral("from_previous_end"), QStringLiteral("after")},
    };
    return starts.value(word);
}

// Members are numbered at the end of their names, and stand in the order of texts.
QVector<QJsonObject> membersInOrder(const QJsonObject &object)
{
    QVector<QPair<int, QJsonObject>> numbered;
    for (auto it = object.begin(); it != object.end(); ++it) {
        numbered.append({it.key().section(QLatin1String("=="), -1).toInt(), it.value().toObject()});
    }
    std::stable_sort(numbered.begin(), numbered.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QVector<QJsonObject> members;
    for (const auto &member : qAsConst(numbered)) {
        members.append(member.second);
    }
    return members;
}

// The effects of an item in the order in which they come. Attributes are told by the words that they hold: an effect,
// and when it starts. An unknown effect fades.
QVector<QJsonObject> effectsOf(const QString &id, const QJsonObject &animations)
{
    QVector<QJsonObject> steps;
    for (const auto &part : {std::make_pair("appearance", &enter), std::make_pair("emphasis", &emphasis),
                             std::make_pair("disappearance", &leave)}) {
        const QJsonObject told = animations.value(QLatin1String(part.first)).toObject();
        if (told.isEmpty()) {
            continue;
        }
        QJsonObject step{{QStringLiteral("item"), id},
                         {QStringLiteral("kind"), *part.second},
                         {QStringLiteral("effect"), QStringLiteral("fade")},
                         {QStringLiteral("start"), QStringLiteral("click")}};
        for (const QJsonValue &value : told) {
            const QString word = valueText(value);
            const Effect *effect = effectNamed(word);
            if (effect && effect->kind == *part.second) {
                step.insert(QStringLiteral("effect"), QLatin1String(effect->effect));
            }
            if (!startFrom(word).isEmpty()) {
                step.insert(QStringLiteral("start"), startFrom(word));
            }
        }
        steps.append(step);
    }
    if (steps.isEmpty()) {
        steps.append({{QStringLiteral("item"), id},
                      {QStringLiteral("kind"), enter},
                      {QStringLiteral("effect"), QStringLiteral("fade")},
                      {QStringLiteral("start"), QStringLiteral("click")}});
    }
    return steps;
}

void collectAnimations(const QJsonArray &items, QHash<QString, QJsonObject> &result)
{
    for (const QJsonValue &value : items) {
        const ItemView item(value.toObject());
        result.insert(item.id(), item.json().value(ItemKeys::animations).toObject());
        collectAnimations(item.children(), result);
    }
}

// Each time that the list names an item, its next effect comes; the last time, all that are left.
void addListed(const LessonSlide &slide, QJsonArray &steps)
{
    QStringList ids;
    const QJsonObject list = slide.properties.value(ItemKeys::animations).toObject();
    const QJsonArray named = list.value(QLatin1String("animation")).toArray();
    for (const QJsonValue &id : named) {
        ids.append(valueText(id));
    }
    if (ids.isEmpty()) {
        return;
    }
    QHash<QString, QJsonObject> animations;
    collectAnimations(slide.items, animations);
    QHash<QString, int> times;
    for (const QString &id : qAsConst(ids)) {
        ++times[id];
    }
    QHash<QString, int> done;
    for (const QString &id : qAsConst(ids)) {
        const auto found = animations.constFind(id);
        if (found == animations.constEnd()) {
            continue;
        }
        const QVector<QJsonObject> all = effectsOf(id, *found);
        int &next = done[id];
        const bool isLast = --times[id] == 0;
        for (int end = isLast ? all.size() : qMin(next + 1, all.size()); next < end; ++next) {
            steps.append(all.at(next));
        }
    }
}

QJsonObject stepOf(const QJsonObject &action, IwbMedia &media, PageFiles &files)
{
    const auto text = [&action](const char *key) { return valueText(action.value(QLatin1String(key))); };
    const QString start = startFrom(text("activeMode"));
    QJsonObject step{{QStringLiteral("item"), text("targetID")},
                     {QStringLiteral("start"), start.isEmpty() ? QStringLiteral("click") : start}};
    const QString name = text("interactiveType");
    if (name.startsWith(QLatin1String("ACTION_"))) {
        const QJsonObject link = pageLink(name, text("effectoption"), media, files);
        step.insert(QStringLiteral("link"), link);
        return link.isEmpty() ? QJsonObject() : step;
    }
    const Effect *effect = effectNamed(name);
    step.insert(QStringLiteral("kind"), effect ? effect->kind : emphasis);
    step.insert(QStringLiteral("effect"), QLatin1String(effect ? effect->effect : "fade"));
    if (itemFlag(action.value(QLatin1String("loopState")))) {
        step.insert(QStringLiteral("loop"), true);
    }
    constexpr double largestScale = 100;
    const double scale = itemNumber(action.value(QLatin1String("scale")), 1);
    if (scale > 0 && scale <= largestScale && scale != 1) {
        step.insert(QStringLiteral("scale"), scale);
    }
    return step;
}

void addScript(const QString &script, PlaySteps &steps, IwbMedia &media, PageFiles &files)
{
    const QJsonObject triggers = QJsonDocument::fromJson(script.toUtf8()).object();
    const QVector<QJsonObject> sources = membersInOrder(triggers);
    for (const QJsonObject &source : sources) {
        const QVector<QJsonObject> actions = membersInOrder(source);
        for (const QJsonObject &action : actions) {
            const QJsonObject step = stepOf(action, media, files);
            const QString trigger = valueText(action.value(QLatin1String("activeItem")));
            if (step.isEmpty()) {
                continue;
            }
            if (trigger == QLatin1String("slide") || trigger.isEmpty()) {
                steps.ofSlide.append(step);
            } else {
                QJsonArray own = steps.ofItems.value(trigger).toArray();
                own.append(step);
                steps.ofItems.insert(trigger, own);
            }
        }
    }
}

struct Change
{
    const char *effect; //!< behind ID_SLIDE_EFFECT_
    const char *transition; //!< behind transition_, as packages name it
    const char *kind; //!< empty where the slide is just there
    const char *to;
};

constexpr Change changes[] = {
    {"XXTJ", "push_pushDown", "push", "down"},
    {"XZTJ", "push_pushLeft", "push", "left"},
    {"XYTJ", "push_pushRight", "push", "right"},
    {"XSTJ", "push_pushUp", "push", "up"},
    {"XXFG", "push_coverDown", "cover", "down"},
    {"XZFG", "push_coverLeft", "cover", "left"},
    {"XYFG", "push_coverRight", "cover", "right"},
    {"XSFG", "push_coverUp", "cover", "up"},
    {"ZXFG", "push_coverLeftDown", "cover", "left-down"},
    {"ZSFG", "push_coverLeftUp", "cover", "left-up"},
    {"YXFG", "push_coverRightDown", "cover", "right-down"},
    {"YSFG", "push_coverRightUp", "cover", "right-up"},
    {"XXJK", "wipe_pathDiagonalDown", "uncover", "down"},
    {"XZJK", "wipe_pathDiagonalLeft", "uncover", "left"},
    {"XYJK", "wipe_pathDiagonalRight", "uncover", "right"},
    {"XSJK", "wipe_pathDiagonalUp", "uncover", "up"},
    {"ZXJK", "wipe_pathDiagonalDownLeft", "uncover", "left-down"},
    {"ZSJK", "wipe_pathDiagonalUpLeft", "uncover", "left-up"},
    {"YXJK", "wipe_pathDiagonalDownRight", "uncover", "right-down"},
    {"YSJK", "wipe_pathDiagonalUpRight", "uncover", "right-up"},
    {"PHDC", "fade_fadeOutDuration", "fade", ""},
    {"HZDC", "fade_fadeOutfromBlack", "black", ""},
    {"QC", "fade_effectCutOut", "", ""},
    {"HZQC", "fade_cutOutfromBlack", "black", ""},
    {"HZSS", "wipe_boxin", "box-in", ""},
    {"HZZK", "wipe_boxout", "box-out", ""},
    {"XWKB", "wipe_curvesquare", "zoom", ""},
};

} // namespace

QSet<QString> PlaySteps::brought() const
{
    QSet<QString> ids;
    const auto add = [&ids](const QJsonArray &steps) {
        for (const QJsonValue &step : steps) {
            if (step.toObject().value(QLatin1String("kind")) == enter) {
                ids.insert(step.toObject().value(QLatin1String("item")).toString());
            }
        }
    };
    add(ofSlide);
    for (const QJsonValue &steps : ofItems) {
        add(steps.toArray());
    }
    return ids;
}

PlaySteps playSteps(const LessonSlide &slide, IwbMedia &media, PageFiles &files)
{
    PlaySteps steps;
    addScript(slide.properties.value(QLatin1String("objAnimationData")).toString(), steps, media, files);
    addListed(slide, steps.ofSlide);
    return steps;
}

QJsonObject slideChange(const QJsonObject &slide)
{
    const QString effect = valueText(slide.value(QLatin1String("EffectType")));
    const QString transition = valueText(slide.value(QLatin1String("effect_type")));
    for (const Change &change : changes) {
        if (effect == QLatin1String("ID_SLIDE_EFFECT_") + QLatin1String(change.effect)
            || (effect.isEmpty() && transition == QLatin1String("transition_") + QLatin1String(change.transition))) {
            return *change.kind ? QJsonObject{{QStringLiteral("kind"), QLatin1String(change.kind)},
                                              {QStringLiteral("to"), QLatin1String(change.to)}}
                                : QJsonObject();
        }
    }
    const bool hasNone =
        effect.isEmpty() && (transition.isEmpty() || transition == QLatin1String("transition_none"));
    return hasNone ? QJsonObject() : QJsonObject{{QStringLiteral("kind"), QStringLiteral("fade")}};
}

} // namespace lessonhost
