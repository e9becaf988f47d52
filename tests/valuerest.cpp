// SPDX-License-Identifier: MIT
#include "valuerest.h"

#include "lesson/itemvalues.h"
#include "losses/modelvalues.h"
#include "pluginfixture.h"

#include <QColor>
#include <QDomDocument>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

using namespace lessonhost;

namespace {

// What a key of the model or an attribute says that isn't there.
const QHash<QString, QString> defaults{
    {"Visible", "1"},      {"LockIn", "0"},    {"InfiniteClone", "0"},    {"Angle", "0"},       {"HorizonFlip", "0"},
    {"VerticalFlip", "0"}, {"Opacity", "255"}, {"Matrix", "1,0,0,1,0,0"}, {"visible", "1"},     {"locked", "0"},
    {"uclone", "0"},       {"angle", "0"},     {"horizonflip", "0"},      {"verticalflip", "0"}};

void putHtml(QTextDocument &document, const QString &html)
{
    // What opens no tag is a letter.
    static const QRegularExpression lessThan("<(?![A-Za-z/!?])");
    document.setHtml(QString(html).replace(lessThan, "&lt;"));
}

// 0 for letters that say nothing of their size.
double pixelSize(const QTextCharFormat &letters)
{
    const double pixels = letters.intProperty(QTextFormat::FontPixelSize);
    return pixels > 0 ? pixels : letters.fontPointSize() * 96 / 72;
}

// The found letters may say more of themselves.
bool areSameLetters(const QTextCharFormat &given, const QTextCharFormat &found)
{
    const int properties[] = {QTextFormat::FontFamily,
                              QTextFormat::FontWeight,
                              QTextFormat::FontItalic,
                              QTextFormat::TextUnderlineStyle,
                              QTextFormat::ForegroundBrush,
                              QTextFormat::BackgroundBrush,
                              QTextFormat::TextVerticalAlignment,
                              QTextFormat::AnchorHref};
    return (pixelSize(given) <= 0 || std::fabs(pixelSize(given) - pixelSize(found)) <= 0.01)
        && std::all_of(std::begin(properties), std::end(properties), [&](int property) {
               return !given.hasProperty(property) || given.property(property) == found.property(property);
           });
}

bool isSameHtml(const QString &given, const QString &found)
{
    if (given.contains("<table")) {
        return found.contains("<table");
    }
    QTextDocument one;
    QTextDocument other;
    putHtml(one, given);
    putHtml(other, found);
    QTextCursor cursor(&one);
    QTextCursor otherCursor(&other);
    bool isSame = one.characterCount() == other.characterCount();
    for (int i = 0; isSame && i < one.characterCount(); ++i) {
        cursor.setPosition(i);
        otherCursor.setPosition(i);
        const auto sides = cursor.blockFormat().alignment() ^ otherCursor.blockFormat().alignment();
        isSame = one.characterAt(i) == other.characterAt(i)
            && bool(cursor.currentList()) == bool(otherCursor.currentList())
            && ((sides & Qt::AlignHorizontal_Mask) == 0
                || !cursor.blockFormat().hasProperty(QTextFormat::BlockAlignment))
            && (cursor.block().length() == 1 || areSameLetters(cursor.charFormat(), otherCursor.charFormat()));
    }
    return isSame;
}

QJsonValue unfolded(const QJsonValue &value)
{
    const QJsonDocument list = QJsonDocument::fromJson(value.toString().toUtf8());
    return list.isArray() ? QJsonValue(list.array()) : value;
}

Rest restOfTree(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    Rest rest = given.type() == found.type() && (given.isObject() || given.isArray()) ? Rest::All : Rest::Less;
    const QJsonObject object = given.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        rest = std::max(rest, restOf(it.key(), it.value(), found.toObject().value(it.key()), road));
    }
    const QJsonArray array = given.toArray();
    const QJsonArray other = found.toArray();
    for (int i = 0; i < std::max(array.size(), other.size()); ++i) {
        rest = std::max(rest, restOf(key, array.at(i), other.at(i), road));
    }
    return rest;
}

// Names of what isn't there, in lists or not.
bool holdsNothing(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const QJsonArray array = value.toArray();
    return isNothing(value)
        || ((value.isObject() || value.isArray()) && std::all_of(object.begin(), object.end(), holdsNothing)
            && std::all_of(array.begin(), array.end(), holdsNothing));
}

} // namespace

std::optional<QString> plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::Bool:
        return value.toBool() ? "1" : "0";
    default:
        return std::nullopt;
    }
}

std::optional<double> numberOf(const QJsonValue &value)
{
    const auto numbers = wholeNumbers(value);
    return numbers && numbers->size() == 1 ? std::optional(numbers->first()) : std::nullopt;
}

bool isOpacityInColor(const QJsonValue &opacity, const QJsonValue &color, const QJsonValue &found)
{
    const auto alpha = numberOf(opacity);
    const auto own = wholeColor(color);
    return own && alpha && *alpha >= 0 && *alpha <= 255 && *alpha == std::floor(*alpha)
        && ((*own & 0xffffff) | QRgb(*alpha) << 24) == wholeColor(found);
}

bool isSameXml(const QString &given, const QString &found)
{
    QDomDocument one;
    QDomDocument other;
    return one.setContent(given) && other.setContent(found)
        && toText(one.documentElement()) == toText(other.documentElement());
}

QString shown(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return "nothing";
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2)).left(300);
}

Rest restOf(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    const auto one = plainText(given);
    const auto other = plainText(found);
    if (given == found || (isNothing(given) && isNothing(found)) || (one && one == other)) {
        return Rest::All;
    }
    const QJsonValue implied = road == Road::Kept ? QString() : defaults.value(key);
    if (isNothing(given)) {
        const bool isOtherwise = !isNothing(implied) && restOf(key, implied, found, road) == Rest::Less;
        return isOtherwise ? Rest::Less : Rest::All;
    }
    if (isNothing(found)) {
        const bool isImplied = !isNothing(implied) && restOf(key, given, implied, road) != Rest::Less;
        return isImplied || holdsNothing(given) ? Rest::Alike : Rest::Less;
    }
    if (key == "TextHtml" && road == Road::Drawn && one && other && isSameHtml(*one, *other)) {
        return Rest::All;
    }
    const double tolerance = road == Road::Drawn ? 1e-4 : 1.2e-7; // steps of ink are summed up in single precision
    const auto numbers = wholeNumbers(given);
    const auto otherNumbers = wholeNumbers(found);
    const bool isColor = key.contains("olor");
    const auto color = wholeColor(given);
    const auto otherColor = wholeColor(found);
    const bool areInvisible = color && otherColor && qAlpha(*color | *otherColor) == 0 && road == Road::Drawn;
    if ((numbers && otherNumbers
         && std::equal(numbers->begin(), numbers->end(), otherNumbers->begin(), otherNumbers->end(),
                       [tolerance](double a, double b) {
                           return std::fabs(a - b) <= tolerance * std::max({1.0, std::fabs(a), std::fabs(b)});
                       }))
        || (isColor && color && (color == otherColor || areInvisible)) || (one && other && isSameXml(*one, *other))) {
        return Rest::Alike;
    }
    const Rest rest = restOfTree(key, unfolded(given), unfolded(found), road);
    if (rest == Rest::Less && holdsNothing(given)) {
        return Rest::Alike;
    }
    return given.type() == found.type() ? rest : std::max(rest, Rest::Alike);
}
