// SPDX-License-Identifier: MIT
#include "render/slidenotice.h"

#include "files/xmltext.h"
#include "render/pagefiles.h"
#include "render/slidepictures.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

namespace lessonhost {

namespace {

// Drawings within a page are counted in their names, and so are named otherwise behind one that is missing.
QString withoutCounts(QString svg)
{
    static const QRegularExpression name(QStringLiteral("\\bs\\d+d([0-9a-f]{8})\\d+"));
    return svg.replace(name, QStringLiteral("d\\1"));
}

QString lookOf(const QDomElement &group)
{
    QString look = group.attribute(QStringLiteral("display"));
    for (QDomElement e = group.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        look += xmlNodeText(e);
    }
    return withoutCounts(look);
}

// What is played, with the names of files in the place of their numbers, which count what was there before.
QJsonValue withNames(const QJsonValue &value, const PageFiles &files)
{
    const QLatin1String fileKey("file");
    if (value.isArray()) {
        QJsonArray result;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &one : array) {
            result.append(withNames(one, files));
        }
        return result;
    }
    if (!value.isObject()) {
        return value;
    }
    const QJsonObject object = value.toObject();
    QJsonObject result;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const int number = it.key() == fileKey ? it.value().toInt(-1) : -1;
        const bool isFile = number >= 0 && number < files.all().size();
        result.insert(it.key(), isFile ? QJsonValue(files.all().at(number).name) : withNames(it.value(), files));
    }
    return result;
}

void append(QJsonObject &object, const QString &key, const QJsonValue &value)
{
    QJsonArray list = object.value(key).toArray();
    list.append(value);
    object.insert(key, list);
}

} // namespace

SlideNotice::SlideNotice(const SlidePicture &picture, const PageFiles &files)
{
    QDomElement svg = picture.svg.documentElement().cloneNode().toElement();
    QDomElement next;
    for (QDomElement e = svg.firstChildElement(); !e.isNull(); e = next) {
        next = e.nextSiblingElement();
        for (const QString &mark : {QStringLiteral("data-item"), QStringLiteral("data-back")}) {
            if (e.hasAttribute(mark)) {
                m_items[e.attribute(mark)].look += lookOf(e);
                svg.removeChild(e);
                break;
            }
        }
    }
    m_slide.look = withoutCounts(xmlNodeText(svg));

    const QString itemsKey = QStringLiteral("items");
    const QString stepsKey = QStringLiteral("steps");
    const QString triggersKey = QStringLiteral("triggers");
    m_slide.deed = withNames(picture.play, files).toObject();
    const QJsonArray items = m_slide.deed.take(itemsKey).toArray();
    for (const QJsonValue &value : items) {
        QJsonObject item = value.toObject();
        const QString id = item.take(QStringLiteral("id")).toString();
        for (const char *key : {"label", "groups"}) { // which are what the item says and where it stands
            item.remove(QLatin1String(key));
        }
        if (!item.isEmpty()) {
            append(m_items[id].deed, itemsKey, item);
        }
    }
    const QJsonArray steps = m_slide.deed.value(stepsKey).toArray();
    for (const QJsonValue &step : steps) {
        append(m_items[step.toObject().value(QStringLiteral("item")).toString()].deed, stepsKey, step);
    }
    const QJsonObject triggers = m_slide.deed.value(triggersKey).toObject();
    for (auto it = triggers.constBegin(); it != triggers.constEnd(); ++it) {
        m_items[it.key()].deed.insert(triggersKey, it.value());
    }
}

Notice SlideNotice::between(const Part &one, const Part &other)
{
    return one.look != other.look ? Notice::Look : one.deed != other.deed ? Notice::Deed : Notice::Nothing;
}

Notice SlideNotice::ofSlide(const SlideNotice &other) const
{
    return between(m_slide, other.m_slide);
}

Notice SlideNotice::ofItems(const QStringList &ids, const SlideNotice &other) const
{
    Notice notice = Notice::Nothing;
    for (const QString &id : ids) {
        notice = std::max(notice, between(m_items.value(id), other.m_items.value(id)));
    }
    return notice;
}

} // namespace lessonhost
