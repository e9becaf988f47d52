// SPDX-License-Identifier: MIT
#include "losses/modelvalues.h"

#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "lesson/numbertexts.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

enum class Form { Text, Flag, Numbers, Xml };

Form formOf(const QString &key)
{
    static const auto forms = [] {
        QHash<QString, Form> table;
        for (const char *name : {"Visible", "LockIn", "InfiniteClone", "visiable", "childrenVisiable", "shade"}) {
            table.insert(QLatin1String(name), Form::Flag);
        }
        for (const char *name : {"Angle",         "BoundingBox",    "IgnoredBoundingBox",
                                 "Matrix",        "SlideMatrix",    "SlideSourceRect",
                                 "Control",       "IgnoredControl", "XY",
                                 "XYValue",       "Width",          "Height",
                                 "Opacity",       "ArtObj_Width",   "width",
                                 "height",        "page_scale",     "answer_width",
                                 "answer_height", "content_width",  "content_height",
                                 "position",      "stamp",          "style",
                                 "spreadStyle"}) {
            table.insert(QLatin1String(name), Form::Numbers);
        }
        table.insert(QStringLiteral("manager"), Form::Xml);
        return table;
    }();
    return forms.value(key, Form::Text);
}

bool isColorKey(const QString &key)
{
    return key.contains(QLatin1String("olor"));
}

// A text, number or flag as text; nothing for lists and objects.
std::optional<QString> plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QJsonValue::Double:
        return shortestNumberText(value.toDouble());
    default:
        return std::nullopt;
    }
}

bool areNumbersSame(const QJsonValue &given, const QJsonValue &found, double tolerance)
{
    const auto one = wholeNumbers(given);
    const auto other = wholeNumbers(found);
    return one && other
        && std::equal(one->cbegin(), one->cend(), other->cbegin(), other->cend(), [tolerance](double a, double b) {
               return a == b || qAbs(a - b) <= tolerance * qMax(1.0, qAbs(a));
           });
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

std::optional<QRgb> colorOfObject(const QJsonObject &object)
{
    const QLatin1String alphaKey("Alpha");
    const double solid = object.value(QLatin1String("Solid")).toDouble(-1);
    const double alpha = object.contains(alphaKey) ? object.value(alphaKey).toDouble(-1) : 1;
    // What stands before the red doesn't count.
    const bool isRgb = solid >= 0 && solid <= 0xffffffff && solid == std::floor(solid);
    const int keys = object.contains(alphaKey) ? 2 : 1;
    if (!isRgb || alpha < 0 || alpha > 1 || object.size() != keys) {
        return std::nullopt;
    }
    return (QRgb(solid) & 0xffffff) | QRgb(qRound(alpha * 255)) << 24;
}

const QHash<QString, QString> &impliedValues()
{
    static const QHash<QString, QString> table{
        {QStringLiteral("Visible"), QStringLiteral("1")},          {QStringLiteral("LockIn"), QStringLiteral("0")},
        {QStringLiteral("InfiniteClone"), QStringLiteral("0")},    {QStringLiteral("Angle"), QStringLiteral("0")},
        {QStringLiteral("Matrix"), QStringLiteral("1,0,0,1,0,0")}, {QStringLiteral("HorizonFlip"), QStringLiteral("0")},
        {QStringLiteral("VerticalFlip"), QStringLiteral("0")},     {QStringLiteral("Opacity"), QStringLiteral("255")},
    };
    return table;
}

} // namespace

bool isNothing(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull() || (value.isString() && value.toString().isEmpty())
        || (value.isArray() && value.toArray().isEmpty()) || (value.isObject() && value.toObject().isEmpty());
}

QJsonValue impliedValue(const QString &key)
{
    const auto found = impliedValues().constFind(key);
    return found == impliedValues().constEnd() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(*found);
}

const QStringList &keysWithImpliedValue()
{
    static const QStringList keys = impliedValues().keys();
    return keys;
}

QString otherKey(const QString &key)
{
    static const QHash<QString, QString> table{
        {QStringLiteral("BoundingBox"), QStringLiteral("IgnoredBoundingBox")},
        {QStringLiteral("Control"), QStringLiteral("IgnoredControl")},
        {QStringLiteral("MultiMediaFile"), QStringLiteral("resource")},
        {QStringLiteral("Text"), QStringLiteral("TextHtml")},
        {QStringLiteral("TextContent"), QStringLiteral("TextHtml")},
        {QStringLiteral("BackColor"), QStringLiteral("color")},
        {QStringLiteral("AttachFile"), QStringLiteral("document")},
    };
    return table.value(key);
}

bool isSameValue(const QString &key, const QJsonValue &given, const QJsonValue &found, double tolerance)
{
    if (given == found || (isNothing(given) && isNothing(found))) {
        return true;
    }
    const auto one = plainText(given);
    const auto other = plainText(found);
    if (one && other && *one == *other) {
        return true;
    }
    const Form form = formOf(key);
    if (form == Form::Xml && one && other) {
        return isSameXml(*one, *other);
    }
    // What is a number in JSON is the same number in a text.
    const bool isNumber = form == Form::Numbers || (one && other && (given.isDouble() || found.isDouble()))
        || (form == Form::Flag && one && other);
    if (isNumber && areNumbersSame(given, found, form == Form::Numbers ? tolerance : 0)) {
        return true;
    }
    if (!isColorKey(key)) {
        return false;
    }
    const auto color = wholeColor(given);
    return color && color == wholeColor(found);
}

std::optional<QRgb> wholeColor(const QJsonValue &value)
{
    if (value.isObject()) {
        return colorOfObject(value.toObject());
    }
    if (value.isDouble()) {
        return colorOfObject({{QLatin1String("Solid"), value}});
    }
    const QString text = value.toString();
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','));
    if (parts.size() != 3 && parts.size() != 4) {
        const QColor named(text);
        return named.isValid() ? std::optional<QRgb>(named.rgba()) : std::nullopt;
    }
    QVector<int> channels;
    for (const QStringRef &part : parts) {
        bool isNumber = false;
        channels.append(part.toInt(&isNumber));
        if (!isNumber || channels.last() < 0 || channels.last() > 255) {
            return std::nullopt;
        }
    }
    const int alpha = channels.size() == 4 ? channels.takeFirst() : 255;
    return qRgba(channels.at(0), channels.at(1), channels.at(2), alpha);
}

} // namespace lessonhost
