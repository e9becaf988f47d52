#include "losses/comparison.h"

#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "lesson/itemkeys.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "losses/equivalence.h"
#include "losses/lossreport.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace lessonhost {

namespace {

constexpr int longestDetail = 60;

struct Difference
{
    QString key;
    QString detail;
};

QString detailOf(const QJsonValue &value)
{
    QString text = valueText(value);
    if (text.isNull()) {
        text = QString::fromUtf8((value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject()))
                                     .toJson(QJsonDocument::Compact));
    }
    return text.left(longestDetail);
}

// Two XML texts are the same if they are the same tree.
bool isSameXml(const QString &one, const QString &other)
{
    try {
        return xmlNodeText(loadXml(one.toUtf8(), {}).documentElement())
            == xmlNodeText(loadXml(other.toUtf8(), {}).documentElement());
    } catch (const LessonError &) {
        return false;
    }
}

void compareValues(const QString &key, const QJsonValue &given, const QJsonValue &found,
                   QVector<Difference> &differences);

// How many values of the one are not in the same place of the other.
int differenceCount(const QJsonValue &given, const QJsonValue &found)
{
    int count = 0;
    if (given.isArray() && found.isArray()) {
        const QJsonArray array = given.toArray();
        for (int i = 0; i < array.size(); ++i) {
            count += differenceCount(array.at(i), found.toArray().at(i));
        }
    } else if (given.isObject() && found.isObject()) {
        const QJsonObject object = given.toObject();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            count += differenceCount(it.value(), found.toObject().value(it.key()));
        }
    } else if (!isEmptyValue(given)) {
        count = (valueText(given).isNull() ? given == found : isSameValue({}, given, found)) ? 0 : 1;
    }
    return count;
}

// True if what was found at a place is rather one of the next values than the one of this place. missing: how many
// fewer were found than given.
bool isMissing(const QJsonArray &given, int place, const QJsonValue &found, int missing)
{
    constexpr int furthest = 8;
    if (isEmptyValue(given.at(place))) {
        return !isEmptyValue(found);
    }
    const int own = differenceCount(given.at(place), found);
    for (int i = 1; i <= qMin(missing, furthest) && own > 0; ++i) {
        if (differenceCount(given.at(place + i), found) < own) {
            return true;
        }
    }
    return false;
}

// Where values are missing from a list, those that came through are told by what they hold, so that a missing one is
// one difference and doesn't shift the others.
void compareArrays(const QString &key, const QJsonArray &given, const QJsonArray &found,
                   QVector<Difference> &differences)
{
    int missing = qMax(0, given.size() - found.size());
    int next = 0;
    for (int i = 0; i < given.size(); ++i) {
        const QString place = QStringLiteral("%1[%2]").arg(key).arg(i);
        if (missing > 0 && isMissing(given, i, found.at(next), missing)) {
            compareValues(place, given.at(i), {}, differences);
            --missing;
        } else {
            compareValues(place, given.at(i), found.at(next), differences);
            ++next;
        }
    }
}

void compareValues(const QString &key, const QJsonValue &given, const QJsonValue &found,
                   QVector<Difference> &differences)
{
    if (isEmptyValue(given)) {
        return;
    }
    if (given.isArray() && found.isArray() && (valueText(given).isNull() || valueText(found).isNull())) {
        compareArrays(key, given.toArray(), found.toArray(), differences);
        return;
    }
    if (given.isObject() && found.isObject() && valueText(given).isNull()) {
        const QJsonObject givenObject = given.toObject();
        const QJsonObject foundObject = found.toObject();
        for (auto it = givenObject.constBegin(); it != givenObject.constEnd(); ++it) {
            compareValues(key + QLatin1Char('.') + it.key(), it.value(), foundObject.value(it.key()), differences);
        }
        return;
    }
    if (given.isString() && found.isArray() && valueText(found).isNull()) {
        compareValues(key, QJsonDocument::fromJson(given.toString().toUtf8()).array(), found, differences);
        return;
    }
    const bool isXml = key == QLatin1String("manager");
    const bool isSame = valueText(given).isNull() ? given == found
        : isXml                                   ? isSameXml(given.toString(), found.toString())
                                                  : isSameValue(key, given, found);
    if (!isSame) {
        differences.append({key, detailOf(given)});
    }
}

// Opacity of ink is read into its colour.
QJsonObject withOpacityInColor(QJsonObject item)
{
    const QLatin1String opacity("Opacity");
    const QLatin1String color("Color");
    const QString text = item.value(color).toString();
    if (item.contains(opacity) && text.startsWith(QLatin1Char('#'))) {
        const int alpha = valueText(item.value(opacity)).toInt();
        item.insert(
            color,
            QString(QLatin1Char('#') + QStringLiteral("%1").arg(alpha & 255, 2, 16, QLatin1Char('0')) + text.right(6)));
        item.remove(opacity);
    }
    return item;
}

// Some values are found under a name of the host's own.
void removeIfKept(QJsonObject &item, QLatin1String key, const QJsonValue &kept)
{
    if (!kept.isUndefined() && isSameValue(key, item.value(key), kept)) {
        item.remove(key);
    }
}

} // namespace

Comparison::Comparison(LossReport *losses, int slide)
    : m_losses(losses)
    , m_slide(slide)
{
}

void Comparison::compareProperties(const QString &type, const QJsonObject &given, const QJsonObject &found) const
{
    QVector<Difference> differences;
    for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
        compareValues(it.key(), it.value(), found.value(it.key()), differences);
    }
    for (const Difference &difference : qAsConst(differences)) {
        Loss loss;
        loss.slide = m_slide;
        loss.itemType = type;
        loss.itemId = given.value(QLatin1String("ID")).toString();
        loss.key = difference.key;
        loss.detail = difference.detail;
        m_losses->add(loss);
    }
}

void Comparison::compareItems(const QJsonArray &given, const QJsonArray &found) const
{
    for (int i = 0; i < given.size(); ++i) {
        compareItem(given.at(i).toObject(), found.at(i).toObject());
    }
}

void Comparison::compareItem(const QJsonObject &given, const QJsonObject &found) const
{
    const QString type = given.value(QLatin1String("Type")).toString();
    QJsonObject own = given;
    if (isContainer(type)) {
        own.remove(HostKeys::children);
        compareItems(given.value(HostKeys::children).toArray(), found.value(HostKeys::children).toArray());
    }
    removeIfKept(own, QLatin1String("BoundingBox"), found.value(HostKeys::ignoredBox));
    removeIfKept(own, QLatin1String("Control"), found.value(HostKeys::ignoredControl));
    if (found.contains(QLatin1String("Color"))) {
        own = withOpacityInColor(own);
    }
    compareProperties(type, own, found);
}

} // namespace lessonhost
