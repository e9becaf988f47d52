// SPDX-License-Identifier: MIT
#include "formats/rawattributes.h"

#include "izqtransformation.h"
#include "lesson/isoneof.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "losses/attributes.h"

#include <QColor>
#include <QStringList>

namespace lessonhost {

namespace {

constexpr const char *referenceKeys[] = {"DrawTexture", "Stamp", "resource", "document", "AudioPath"};

// right, bottom, two numbers more, left, top.
QString boxOfBound(const QString &bound)
{
    const QStringList parts = bound.split(QLatin1Char(','));
    if (parts.size() < 6) {
        return {};
    }
    return QStringList{parts.at(4), parts.at(5), parts.at(0), parts.at(1)}.join(QLatin1Char(','));
}

// Of a,r,g,b the alpha doesn't count.
QColor inkColor(const QString &text)
{
    QColor color = itemColor(text.section(QLatin1Char(','), 0, 3)).value_or(QColor());
    if (text.contains(QLatin1Char(','))) {
        color.setAlpha(255);
    }
    return color;
}

bool isTurned(const QTransform &matrix)
{
    return matrix.isRotating() || matrix.m11() < 0 || matrix.m22() < 0;
}

// The plug-in works the matrix of an enlarged picture into its box and loses how one is turned or mirrored, so that
// goes back to the box and matrix that it came with.
void keepTurn(QJsonObject &item, const QDomElement &element)
{
    const auto own = itemTransform(element.attribute(QStringLiteral("TransformMatrix")));
    if (!own || !isTurned(*own)) {
        return;
    }
    const auto fit = itemTransform(item.value(ItemKeys::slideMatrix));
    const auto left = itemTransform(item.value(ItemKeys::matrix));
    const QString box = boxOfBound(element.attribute(QStringLiteral("Bound")));
    if (fit && left && left->isIdentity() && !box.isEmpty()) {
        item.insert(ItemKeys::matrix, transformText(*own * *fit));
        item.insert(ItemKeys::box, box);
    }
}

} // namespace

RawAttributes::RawAttributes(IZQTransformation *plugin, const QString &folder)
    : m_plugin(plugin)
    , m_folder(folder)
{
}

void RawAttributes::addTo(QJsonObject &item, const QDomElement &element)
{
    if (!item.contains(ItemKeys::box)) {
        const QString box = boxOfBound(element.attribute(QStringLiteral("Bound")));
        if (!box.isEmpty()) {
            item.insert(ItemKeys::box, box);
        }
    }
    if (item.contains(ItemKeys::color)) {
        addInk(item, element);
    }
    keepTurn(item, element);
    addNamesakes(item, element);
}

// A stroke that says nothing is red and 5 wide.
void RawAttributes::addInk(QJsonObject &item, const QDomElement &element) const
{
    QColor color = inkColor(element.attribute(ItemKeys::color));
    if (!element.hasAttribute(ItemKeys::color)) {
        color = itemColor(item.value(ItemKeys::color)).value_or(QColor());
    }
    if (element.hasAttribute(ItemKeys::opacity)) {
        color.setAlphaF(qBound(0.0, element.attribute(ItemKeys::opacity).toInt() / 255.0, 1.0));
    }
    if (color.isValid()) {
        item.insert(ItemKeys::color, color.name(QColor::HexArgb));
    }
    if (element.hasAttribute(ItemKeys::width)) {
        item.insert(ItemKeys::width, element.attribute(ItemKeys::width).remove(QLatin1String("[ ,]")));
    }
}

void RawAttributes::addNamesakes(QJsonObject &item, const QDomElement &element)
{
    const QString type = item.value(ItemKeys::type).toString();
    QHash<QString, bool> &known = m_known[type];
    const auto attributes = attributesOf(element);
    for (const auto &[key, value] : attributes) {
        const bool isInkOpacity = key == ItemKeys::opacity && item.contains(ItemKeys::color);
        if (!item.contains(key) && !isInkOpacity && !value.isEmpty() && isKeyOfType(type, key, known)) {
            item.insert(key, isOneOf(referenceKeys, key) ? reference(value) : value);
        }
    }
}

// known: what was found out of the type before.
bool RawAttributes::isKeyOfType(const QString &type, const QString &key, QHash<QString, bool> &known) const
{
    const auto before = known.constFind(key);
    if (before != known.constEnd()) {
        return *before;
    }
    const auto found = [this, &type, &key](const QString &value) {
        const QJsonObject probe{{ItemKeys::type, type}, {key, value}};
        return m_plugin->tranItemZQTX2JSON(m_plugin->tranItemJSON2ZQTX({}, probe), {}).value(key).toString();
    };
    const bool isKey =
        found(QStringLiteral("1")) == QLatin1String("1") && found(QStringLiteral("2")) == QLatin1String("2");
    known.insert(key, isKey);
    return isKey;
}

// The file's name in the lesson's folder, wherever it was on the machine that the lesson is from.
QString RawAttributes::reference(const QString &text) const
{
    const int slash = text.lastIndexOf(QLatin1Char('/'));
    const QString name = text.mid((slash >= 0 ? slash : text.lastIndexOf(QLatin1Char('\\'))) + 1);
    return name.isEmpty() ? QString() : m_folder + name;
}

} // namespace lessonhost
