// SPDX-License-Identifier: MIT
#include "formats/zqtxitems.h"

#include "files/domtools.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "formats/keptitem.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "lesson/strokeoffsets.h"
#include "lesson/writableforms.h"
#include "losses/carriedcheck.h"
#include "losses/equivalence.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

namespace lessonhost {

namespace {

const QString typeAttribute = QStringLiteral("type");
const QString idAttribute = QStringLiteral("id");
const QString rawIdAttribute = QStringLiteral("NetID");
const QLatin1String attachmentsTag("attachments");
const QLatin1String errorKey("error");
const QLatin1String heldItemTag("item");
const QLatin1String heldItemAttribute("json");

// Where values of some items stand that the elements made by the plug-in have no place for.
struct Place
{
    const char *key;
    const char *child;
    const char *inner;
};

constexpr Place missingPlaces[] = {
    {"Angle", "transform", "rotate"},
    {"BoundingBox", "data", "rect"},
    {"TextHtml", "data", "content"},
    {"Weight", "data", "weight"},
    {"Time", "data", "time"},
    {"PixelDeleteInfos", "element", "property"},
    {"Formula_Strokes", "element", "property"},
};

// The elements in a container's data that are items of their own.
QVector<QDomElement> takeNestedItems(const QDomElement &container)
{
    const QDomElement data = container.firstChildElement(QStringLiteral("data"));
    QDomElement first = data.firstChildElement();
    if (first.tagName() == QLatin1String("rect")) {
        first = first.nextSiblingElement();
    }
    return takeElements(data, first);
}

QJsonObject heldItem(const QDomElement &element)
{
    if (element.tagName() != heldItemTag) {
        return {};
    }
    return QJsonDocument::fromJson(element.attribute(heldItemAttribute).toUtf8()).object();
}

// What stands in the rectangle of an item and is left out by the plug-in: the box of a version 3 container, which an
// editor works out from the children, and the control points of a figure.
void keepIgnored(const QDomElement &element, const char *attribute, QLatin1String key, QLatin1String keptKey,
                 QJsonObject &item)
{
    const QDomElement rect =
        childWithContent(element, QStringLiteral("data"), true).firstChildElement(QStringLiteral("rect"));
    const QString text = rect.attribute(QLatin1String(attribute));
    if (!text.isEmpty() && !item.contains(key)) {
        item.insert(keptKey, text);
    }
}

// The plug-in works out the steps of an old stroke in single precision.
void readOldStroke(const QDomElement &element, QJsonObject &item)
{
    const QDomElement data = childWithContent(element, QStringLiteral("data"), true);
    const QString offsets = data.firstChildElement(QStringLiteral("vertex")).attribute(QStringLiteral("points"));
    const QString points = offsetsAsPoints(offsets);
    if (!points.isEmpty()) {
        item.insert(ItemKeys::steps, points);
    }
}

// The picture for a wrong answer is written by the plug-in and not read.
void readAttachmentError(const QDomElement &element, QJsonObject &item)
{
    const QString error =
        element.firstChildElement(attachmentsTag).lastChildElement(QStringLiteral("attachment")).attribute(errorKey);
    if (!error.isEmpty() && item.value(attachmentsTag).isObject()) {
        QJsonObject attachments = item.value(attachmentsTag).toObject();
        attachments.insert(errorKey, error);
        item.insert(attachmentsTag, attachments);
    }
}

// The markup of a question's text as text, where it stands as elements.
QString questionMarkup(const QDomElement &part)
{
    QString markup;
    for (QDomNode node = part.firstChild(); !node.isNull(); node = node.nextSibling()) {
        markup += node.isElement() ? xmlNodeText(node.toElement()) : escapedForXml(node.nodeValue());
    }
    return markup;
}

// Calls visit(part, tag) for each text of a question that holds markup as elements.
template <typename Visit> void eachMarkupOfQuestion(const QDomElement &element, const Visit &visit)
{
    QDomElement part = element.firstChildElement(QStringLiteral("data")).firstChildElement();
    for (const char *tag : {"R_Content_svg", "R_Answer_svg"}) {
        if (part.tagName() == QLatin1String(tag) && !part.firstChildElement().isNull()) {
            visit(part, QLatin1String(tag));
        }
        part = part.nextSiblingElement();
    }
}

// A read would leave only the words.
void readQuestionMarkup(const QDomElement &element, QJsonObject &item)
{
    eachMarkupOfQuestion(
        element, [&item](const QDomElement &part, QLatin1String tag) { item.insert(tag, questionMarkup(part)); });
}

// The sizes of a question with all their digits; the plug-in writes six.
void writeQuestionNumbers(const QDomElement &element, const QJsonObject &written)
{
    QDomElement part = element.firstChildElement(QStringLiteral("data")).firstChildElement();
    for (; !part.isNull(); part = part.nextSiblingElement()) {
        const QJsonValue value = written.value(part.tagName());
        if (value.isDouble()) {
            part.firstChild().setNodeValue(valueText(value));
        }
    }
}

// What a read changes is copied: it takes the drawing out of a vector shape, and the markup of a question out of its
// elements.
QDomElement untouchedByReading(const QDomElement &element)
{
    const QString type = element.attribute(typeAttribute);
    if (type.startsWith(QLatin1String("Vector:")) || type.startsWith(QLatin1String("ZQVector"))) {
        return element.cloneNode(true).toElement();
    }
    QDomElement result = element;
    eachMarkupOfQuestion(
        element, [&result](const QDomElement &, QLatin1String) { result = result.cloneNode(true).toElement(); });
    eachMarkupOfQuestion(result, [](QDomElement part, QLatin1String) {
        const QString markup = questionMarkup(part);
        while (part.hasChildNodes()) {
            part.removeChild(part.firstChild());
        }
        part.appendChild(part.ownerDocument().createTextNode(markup));
    });
    return result;
}

// Where ink has an opacity, it is read into its colour.
void takeOpacityOutOfColor(const QDomElement &read, QDomElement &written)
{
    const QString opacity = QStringLiteral("opacity");
    const QString color = QStringLiteral("color");
    QColor found(written.attribute(color));
    const QString given = read.attribute(opacity);
    if (written.hasAttribute(opacity) || !found.isValid()
        || !isSameText(ValueForm::Number, given, QString::number(found.alpha()))) {
        return;
    }
    written.setAttribute(opacity, given);
    found.setAlpha(QColor(read.attribute(color)).alpha());
    written.setAttribute(color, found.name(QColor::HexArgb));
}

// Animations of other names than the three that the plug-in writes.
void writeOtherAnimations(QDomElement &element, const QJsonObject &written)
{
    const QJsonObject animations = written.value(QLatin1String("animations")).toObject();
    QDomElement parent = element.lastChildElement(QStringLiteral("animations"));
    for (auto it = animations.constBegin(); it != animations.constEnd(); ++it) {
        if (!parent.firstChildElement(it.key()).isNull() || !isXmlName(it.key())) {
            continue;
        }
        QDomElement child = looseElement(it.key());
        const QJsonObject values = it.value().toObject();
        for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
            child.setAttribute(value.key(), value.value().toString());
        }
        parent.appendChild(child);
    }
}

QDomElement heldItemElement(const QJsonObject &item)
{
    QDomElement element = looseElement(heldItemTag);
    element.setAttribute(QStringLiteral("type"), item.value(ItemKeys::type).toString());
    element.setAttribute(QStringLiteral("id"), item.value(ItemKeys::id).toString());
    element.setAttribute(heldItemAttribute, QString::fromUtf8(QJsonDocument(item).toJson(QJsonDocument::Compact)));
    return element;
}

// The child that holds the inner element of a place, made where there is none. A reader takes the first child with that
// tag that has children, a writer the first with that tag, so it goes in front of the others.
QDomElement placeHolder(QDomElement &element, const QString &tag)
{
    QDomElement holder = childWithContent(element, tag, true);
    if (!holder.isNull()) {
        return holder;
    }
    const QDomElement first = element.firstChildElement(tag);
    if (!first.isNull() && first.attributes().isEmpty()) {
        return first;
    }
    holder = looseElement(tag);
    return (first.isNull() ? element.appendChild(holder) : element.insertBefore(holder, first)).toElement();
}

// A manager is parsed by the plug-in as it stands.
bool isSaneXml(const QString &text)
{
    try {
        checkXml(text.toUtf8(), {});
        return true;
    } catch (const std::exception &) {
        return false;
    }
}

} // namespace

ZqtxItems::ZqtxItems(IZQTransformation *plugin, const QJsonObject &presentation)
    : m_plugin(plugin)
    , m_majorVersion(majorVersion(presentation))
{
}

QJsonObject ZqtxItems::read(QDomElement element, const QJsonObject &context, const CarriedCheck *check) const
{
    const QJsonObject held = heldItem(element);
    if (!held.isEmpty()) {
        if (check) {
            compare(held, element, heldItemElement(held), *check);
        }
        return held;
    }
    QDomElement data;
    QVector<QDomElement> nested;
    if (isContainer(element.attribute(typeAttribute))) {
        data = element.firstChildElement(QStringLiteral("data"));
        nested = takeNestedItems(element);
    }
    const QDomElement untouched = check ? untouchedByReading(element) : QDomElement();
    QJsonObject item = readSingle(element, context);
    if (item.isEmpty()) {
        for (const QDomElement &child : qAsConst(nested)) {
            data.appendChild(child);
        }
        const QString type = element.attribute(QStringLiteral("type"));
        const bool isRaw = element.hasAttribute(rawIdAttribute) && !element.hasAttribute(idAttribute);
        return keptItem(element, type.isEmpty() ? element.tagName() : type, isRaw ? rawIdAttribute : idAttribute);
    }
    if (check) {
        compare(item, untouched, writeSingle(item), *check);
    }
    QJsonArray children;
    for (const QDomElement &child : qAsConst(nested)) {
        children.append(read(child, context, check));
    }
    if (!children.isEmpty()) {
        item.insert(HostKeys::children, children);
    }
    return item;
}

void ZqtxItems::compare(const QJsonObject &item, const QDomElement &read, QDomElement written,
                        const CarriedCheck &check) const
{
    const QString type = item.value(ItemKeys::type).toString();
    const QString name = written.attribute(typeAttribute);
    if (read.attribute(typeAttribute) != name) {
        QDomElement named = looseElement(written.tagName());
        named.setAttribute(typeAttribute, name);
        if (m_plugin->tranItemZQTX2JSON(named, {}).value(ItemKeys::type) == type) {
            // Two names of one type.
            written.setAttribute(typeAttribute, read.attribute(typeAttribute));
        }
    }
    takeOpacityOutOfColor(read, written);
    check.compare(item, read, written);
}

QJsonObject ZqtxItems::readSingle(QDomElement element, const QJsonObject &context) const
{
    const QString writtenType = QStringLiteral("Chemistry:expressions");
    const bool isUnknownAgain = element.attribute(typeAttribute) == writtenType;
    if (isUnknownAgain) {
        // The one type that the plug-in writes and doesn't know again; it takes the item type in its place.
        element.setAttribute(typeAttribute, QStringLiteral("ZQChemistryExpressions"));
    }
    QJsonObject item = m_plugin->tranItemZQTX2JSON(element, context);
    if (isUnknownAgain) {
        element.setAttribute(typeAttribute, writtenType);
    }
    const QString type = item.value(ItemKeys::type).toString();
    if (m_majorVersion == 3 && isContainer(type)) {
        keepIgnored(element, "points", QLatin1String("BoundingBox"), HostKeys::ignoredBox, item);
    } else if (isFigure(type)) {
        keepIgnored(element, "controlpoints", QLatin1String("Control"), HostKeys::ignoredControl, item);
    }
    if (m_majorVersion < 3 && item.contains(ItemKeys::steps)) {
        readOldStroke(element, item);
    }
    if (type == QLatin1String("ZQQuestionItem")) {
        readQuestionMarkup(element, item);
    }
    readAttachmentError(element, item);
    makeNumbersFinite(item);
    return item;
}

QDomElement ZqtxItems::write(const QJsonObject &item) const
{
    if (item.contains(HostKeys::keptXml)) {
        return loadXml(item.value(HostKeys::keptXml).toString().toUtf8(), QStringLiteral("KeptXml")).documentElement();
    }
    QDomElement element = writeSingle(item);
    if (element.isNull()) {
        return heldItemElement(item);
    }
    const QJsonArray children = item.value(HostKeys::children).toArray();
    if (!children.isEmpty() && isContainer(item.value(ItemKeys::type).toString())) {
        QDomElement data = element.firstChildElement(QStringLiteral("data"));
        for (const QJsonValue &child : children) {
            if (child.isObject()) {
                data.appendChild(write(child.toObject()));
            }
        }
    }
    return element;
}

bool ZqtxItems::isHeld(const QString &type) const
{
    return m_plugin->tranItemJSON2ZQTX({}, {{ItemKeys::type, type}}).isNull();
}

QDomElement ZqtxItems::writeSingle(const QJsonObject &item) const
{
    QJsonObject written = writableItem(item, m_majorVersion);
    const QLatin1String manager("manager");
    if (written.contains(manager) && !isSaneXml(written.value(manager).toString())) {
        written.remove(manager);
    }
    QDomElement element = m_plugin->tranItemJSON2ZQTX({}, written);
    if (element.isNull()) {
        return element;
    }
    addMissingPlaces(element, written);
    writeQuestionNumbers(element, written);
    writeOtherAnimations(element, written);
    return element;
}

void ZqtxItems::addMissingPlaces(QDomElement &element, const QJsonObject &written) const
{
    QJsonObject values;
    QVector<QDomElement> made;
    for (const Place &place : missingPlaces) {
        const QLatin1String key(place.key);
        const QLatin1String inner(place.inner);
        if (written.value(key).toString().isEmpty()) {
            continue;
        }
        const QDomElement full = childWithContent(element, QLatin1String(place.child), true);
        if (full.firstChildElement(inner).isNull()) {
            QDomElement holder = placeHolder(element, QLatin1String(place.child));
            made.append(holder.appendChild(looseElement(inner)).toElement());
            values.insert(key, written.value(key));
        }
    }
    if (made.isEmpty()) {
        return;
    }
    m_plugin->tranItemJSON2ZQTX(element, values);
    // Not every item has every place.
    for (QDomElement &inner : made) {
        if (inner.attributes().isEmpty()) {
            QDomElement holder = inner.parentNode().toElement();
            holder.removeChild(inner);
            if (!holder.hasChildNodes() && holder.attributes().isEmpty()) {
                holder.parentNode().removeChild(holder);
            }
        }
    }
}

} // namespace lessonhost
