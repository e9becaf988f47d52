#include "formats/rawattributes.h"

#include "izqtransformation.h"
#include "lesson/itemvalues.h"

#include <QColor>
#include <QStringList>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String typeKey("Type");
const QLatin1String colorKey("Color");
const QLatin1String opacityKey("Opacity");
const QLatin1String widthKey("Width");
const QLatin1String boxKey("BoundingBox");
const QLatin1String matrixKey("Matrix");

constexpr const char *referenceKeys[] = {"DrawTexture", "Stamp", "resource", "document", "AudioPath"};

template <size_t size> bool isOneOf(const char *const (&names)[size], const QString &text)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&text](const char *name) { return text == QLatin1String(name); });
}

// right, bottom, two numbers more, left, top.
QString boxOfBound(const QString &bound)
{
    const QStringList parts = bound.split(QLatin1Char(','));
    if (parts.size() < 6) {
        return {};
    }
    return QStringList{parts.at(4), parts.at(5), parts.at(0), parts.at(1)}.join(QLatin1Char(','));
}

// a,r,g,b, of which the alpha doesn't count, or the name of a colour.
QColor inkColor(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() < 4) {
        return QColor(text);
    }
    return QColor(parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt());
}

// The plug-in works the matrix of an enlarged picture into its box and loses the turn of one that is turned, so that
// goes back to the box and matrix that it came with.
void keepTurn(QJsonObject &item, const QDomElement &element)
{
    const auto own = transformOfText(element.attribute(QStringLiteral("TransformMatrix")));
    const auto fit = transformOfText(item.value(QLatin1String("SlideMatrix")).toString());
    const auto left = transformOfText(item.value(matrixKey).toString());
    const QString box = boxOfBound(element.attribute(QStringLiteral("Bound")));
    if (own && fit && left && left->isIdentity() && own->isRotating() && !box.isEmpty()) {
        item.insert(matrixKey, transformText(*own * *fit));
        item.insert(boxKey, box);
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
    const QString box = boxOfBound(element.attribute(QStringLiteral("Bound")));
    if (!item.contains(boxKey) && !box.isEmpty()) {
        item.insert(boxKey, box);
    }
    if (item.contains(colorKey)) {
        addInk(item, element);
    }
    keepTurn(item, element);
    addNamesakes(item, element);
}

// A stroke that says nothing is red and 5 wide.
void RawAttributes::addInk(QJsonObject &item, const QDomElement &element) const
{
    QColor color = inkColor(element.attribute(colorKey));
    if (!element.hasAttribute(colorKey)) {
        color = QColor(item.value(colorKey).toString());
    }
    if (element.hasAttribute(opacityKey)) {
        color.setAlphaF(qBound(0.0, element.attribute(opacityKey).toInt() / 255.0, 1.0));
    }
    if (color.isValid()) {
        item.insert(colorKey, color.name(QColor::HexArgb));
    }
    if (element.hasAttribute(widthKey)) {
        item.insert(widthKey, element.attribute(widthKey).remove(QLatin1String("[ ,]")));
    }
}

void RawAttributes::addNamesakes(QJsonObject &item, const QDomElement &element)
{
    const QString type = item.value(typeKey).toString();
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        const QString key = attribute.name();
        const bool isInkOpacity = key == opacityKey && item.contains(colorKey);
        if (!item.contains(key) && !isInkOpacity && !attribute.value().isEmpty() && isKeyOfType(type, key)) {
            const bool isReference = isOneOf(referenceKeys, key);
            item.insert(key, isReference ? reference(attribute.value()) : attribute.value());
        }
    }
}

bool RawAttributes::isKeyOfType(const QString &type, const QString &key)
{
    const QString place = type + QLatin1Char(' ') + key;
    const auto known = m_known.constFind(place);
    if (known != m_known.constEnd()) {
        return *known;
    }
    const auto found = [this, &type, &key](const QString &value) {
        const QJsonObject probe{{typeKey, type}, {key, value}};
        return m_plugin->tranItemZQTX2JSON(m_plugin->tranItemJSON2ZQTX({}, probe), {}).value(key).toString();
    };
    const bool isKey =
        found(QStringLiteral("1")) == QLatin1String("1") && found(QStringLiteral("2")) == QLatin1String("2");
    m_known.insert(place, isKey);
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
