// SPDX-License-Identifier: MIT
#include "zqcomitemcontroltran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "links.h"
#include "nesteditems.h"
#include "numbertext.h"
#include "transformationplugin.h"
#include "translatorchains.h"

#include <array>
#include <cmath>

namespace {

const KeyPaths &xmlPaths()
{
    static const KeyPaths paths = {
        attribute("Matrix", "TransformMatrix"),
        attribute("BoundingBox", "Bound"),
        attribute("Visible"),
        attribute("LockIn"),
        attribute("InfiniteClone"),
        attribute("Angle"),
    };
    return paths;
}

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        attribute("Visible", "visible"),
        attribute("LockIn", "locked"),
        attribute("InfiniteClone", "uclone"),
        attribute("Type", "type"),
        path("Angle", "transform", "rotate", "angle"),
        path("BoundingBox", "data", "rect", "points"),
        property("InteractiveType", "link_type"),
        property("InteractiveValue", "link_value"),
        attribute("VerticalFlip", "verticalflip"),
        attribute("HorizonFlip", "horizonflip"),
        attribute("CoverLayer", "coverlayer"),
        attribute("CoverLayerType"),
    };
    return paths;
}

// A raw bound has at least six numbers: right, bottom, two more, left, top. The item's box is left, top, right, bottom.
QString boxOfBound(const QString &bound)
{
    const QLatin1Char comma(',');
    std::array<int, 6> ends{};
    int start = 0;
    for (int &end : ends) {
        if (start > bound.size()) {
            return bound;
        }
        end = bound.indexOf(comma, start);
        end = end < 0 ? bound.size() : end;
        start = end + 1;
    }
    return bound.midRef(ends[3] + 1, ends[5] - ends[3] - 1) + comma + bound.leftRef(ends[1]);
}

const QLatin1String visibleKey("Visible");
const QLatin1String lockKey("LockIn");
const QLatin1String cloneKey("InfiniteClone");

// LockIn and InfiniteClone as texts; Visible is a boolean.
QString flagText(bool isSet)
{
    return isSet ? QStringLiteral("1") : QStringLiteral("0");
}

void normalizeFlag(QJsonObject &json, QLatin1String key)
{
    const auto found = json.find(key);
    const QString text = found == json.end() ? QString() : found->toString();
    if (text == QLatin1String("0") || text == QLatin1String("1")) {
        return;
    }
    json.insert(key, flagText(text.toInt() != 0));
}

void normalizeFlags(QJsonObject &json)
{
    const auto found = json.find(visibleKey);
    if (found == json.end()) {
        json.insert(visibleKey, true);
    } else {
        *found = found->toString().toInt() != 0;
    }
    normalizeFlag(json, lockKey);
    normalizeFlag(json, cloneKey);
}

const QLatin1String typeKey("Type");
const QLatin1String matrixKey("Matrix");
const QLatin1String slideMatrixKey("SlideMatrix");
const QLatin1String boxKey("BoundingBox");

// How the items of a slide are fitted into the page.
QMatrix slideFit(const QJsonObject &slide)
{
    const auto numbers = leadingFloats<4>(slide.value(QLatin1String("SlideSourceRect")).toString());
    if (!numbers) {
        return {};
    }
    const auto [x, y, width, height] = *numbers;
    const QRectF source{qreal(x), qreal(y), qreal(width), qreal(height)};
    return ZQComItemControlTran::fitMatrix(source, QRectF({}, ZQComItemControlTran::slideTargetSize(source)));
}

// The matrix of an item on the page. A text that is no matrix stays as it is.
QString fittedMatrix(const std::optional<QString> &text, const QMatrix &fit, const QString &fitText)
{
    if (!text) {
        return fitText;
    }
    const auto matrix = matrixFromText(*text);
    return matrix ? matrixToText(*matrix * fit) : *text;
}

// What an item has, but for its type, if its element says nothing.
QJsonObject newItem()
{
    return {{typeKey, QString()}, {visibleKey, true}, {lockKey, flagText(false)}, {cloneKey, flagText(false)}};
}

QJsonObject newFittedItem()
{
    QJsonObject item = newItem();
    item.insert(matrixKey, QString());
    item.insert(slideMatrixKey, QString());
    return item;
}

// Whether an attribute of the script may be the id. A script can be long and most items have no part in it, so it is
// parsed only if its text has the id, or if it has references or the id has blanks, which a parser changes.
bool mayName(const QString &script, const QString &id)
{
    return script.contains(id) || script.contains(QLatin1Char('&')) || id.contains(QLatin1Char(' '));
}

} // namespace

ZQComItemControlTran::ZQComItemControlTran(const QString &type)
    : itemType(type)
{
    // The base constructor leaves the same maps each time, and so does this one.
    static const KeyMaps maps = keyMaps().with(xmlPaths(), txPaths());
    setKeyMaps(maps);
}

QJsonObject ZQComItemControlTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    const QString type = element.nodeName();
    const QJsonObject slide = context.value(QLatin1String("slide")).toObject();
    // The record of deleted pixels is meant without the s that its item type has.
    const bool isFitted = type != QLatin1String("ZQStrokeDeletePixel") && type != QLatin1String("ZQGroupItem");
    // Replacing values costs less than adding keys, so the keys of any item are there from the start.
    static const QJsonObject unfitted = newItem();
    static const QJsonObject fitted = newFittedItem();
    QJsonObject item = isFitted ? fitted : unfitted;
    for (auto it = json.constBegin(); it != json.constEnd(); ++it) {
        item.insert(it.key(), it.value());
    }
    item = ZQHTran::tranXML2JSON(element, item, context);
    item.insert(typeKey, type);
    if (isFitted) {
        const QMatrix fit = slideFit(slide);
        const QString fitText = matrixToText(fit);
        m_raw.matrix = fittedMatrix(m_raw.matrix, fit, fitText);
        item.insert(slideMatrixKey, fitText);
    }
    if (foldsMatrixIntoBox) {
        foldMatrix(m_raw);
    }
    storeRawValues(item, json.isEmpty());
    readLink(item, slide);
    return item;
}

QJsonObject ZQComItemControlTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQHTran::tranZQTX2JSON(element, json, context);
    normalizeFlags(json);
    readItemAnimations(element, json);
    return json;
}

QDomElement ZQComItemControlTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context)
{
    element = ZQHTran::tranJSON2ZQTX(element.isNull() ? newTxElement(json) : element, json, context);
    writeItemAnimations(element, json);
    return element;
}

QMatrix ZQComItemControlTran::fitMatrix(const QRectF &source, const QRectF &target)
{
    const float scaleX = float(target.width() / source.width());
    const float scaleY = float(target.height() / source.height());
    const qreal factor = qreal(qMin(scaleX, scaleY));
    QMatrix scale;
    scale.scale(factor, factor);
    const QPointF shift = target.center() - scale.map(source.center());
    QMatrix move;
    move.translate(shift.x(), shift.y());
    return scale * move;
}

QSize ZQComItemControlTran::slideTargetSize(const QRectF &source)
{
    const float ratio = float(source.width()) / float(source.height());
    const float distance43 = std::fabs(ratio - 1.3333F);
    const float distance169 = std::fabs(ratio - 1.7777F);
    const float distance1610 = std::fabs(ratio - 1.6F);
    if (distance169 > distance43 && distance1610 > distance43) {
        return {1440, 1080};
    }
    if (!(distance169 > distance43) && distance1610 > distance169) {
        return {1920, 1080};
    }
    return {1728, 1080};
}

QString ZQComItemControlTran::joinResourcePath(const QString &file, const QString &directory)
{
    const auto lastSeparator = [](const QString &path) {
        const int slash = path.lastIndexOf(QLatin1Char('/'));
        return slash >= 0 ? slash : path.lastIndexOf(QLatin1Char('\\'));
    };
    const int fileSeparator = lastSeparator(file);
    const QString name = file.mid(fileSeparator + 1);
    if (name.isEmpty()) {
        return {};
    }
    const int directorySeparator = lastSeparator(directory);
    if (fileSeparator >= 0 && directorySeparator >= 0) {
        return directory.left(directorySeparator + 1) + name;
    }
    return directory + name;
}

QString ZQComItemControlTran::joinResourcePaths(const QString &files, QLatin1Char separator, const QString &directory)
{
    QStringList entries = files.split(separator);
    while (!entries.isEmpty() && entries.last().isEmpty()) {
        entries.removeLast();
    }
    for (QString &entry : entries) {
        entry = joinResourcePath(entry, directory);
    }
    return entries.join(QLatin1Char(','));
}

void ZQComItemControlTran::storeRawText(const QString &key, const QString &text, QJsonObject &json)
{
    const auto isSet = [&text] { return text.toInt() != 0; };
    if (key == matrixKey) {
        m_raw.matrix = text;
    } else if (key == boxKey) {
        m_raw.box = boxOfBound(text);
    } else if (key == visibleKey) {
        m_raw.isVisible = isSet();
    } else if (key == lockKey) {
        m_raw.isLocked = isSet();
    } else if (key == cloneKey) {
        m_raw.isCloned = isSet();
    } else {
        json.insert(key, text);
    }
}

QDomElement ZQComItemControlTran::newTxElement(const QJsonObject &) const
{
    return {};
}

int ZQComItemControlTran::lessonVersion(const QJsonObject &context)
{
    const QJsonObject presentation = context.value(QLatin1String("pres")).toObject();
    return presentation.value(QLatin1String("Version")).toString().section(QLatin1Char('.'), 0, 0).toInt();
}

void ZQComItemControlTran::readNestedItems(const QDomElement &element, QJsonObject &json, const QJsonObject &context)
{
    QDomElement item = childByTag(element, QStringLiteral("data")).firstChildElement();
    if (item.tagName() == QLatin1String("rect")) {
        item = item.nextSiblingElement();
    }
    static const NestedItems::Form form{
        [](const QDomElement &child) { return createTranslator(child.attribute(QStringLiteral("type"))) != nullptr; },
        [](const QDomElement &child, const QJsonObject &context) {
            return transformationInterface->tranItemZQTX2JSON(child, context);
        },
        false};
    NestedItems::read(element, item, json, context, form);
}

// Most flags are those of a new item. If json has those already, they aren't stored again, which costs as much as a key
// that differs.
void ZQComItemControlTran::storeRawValues(QJsonObject &json, bool hasNewFlags) const
{
    if (m_raw.matrix) {
        json.insert(matrixKey, *m_raw.matrix);
    }
    if (m_raw.box) {
        json.insert(boxKey, *m_raw.box);
    }
    if (m_raw.isVisible && !(*m_raw.isVisible && hasNewFlags)) {
        json.insert(visibleKey, *m_raw.isVisible);
    }
    if (m_raw.isLocked && (*m_raw.isLocked || !hasNewFlags)) {
        json.insert(lockKey, flagText(*m_raw.isLocked));
    }
    if (m_raw.isCloned && (*m_raw.isCloned || !hasNewFlags)) {
        json.insert(cloneKey, flagText(*m_raw.isCloned));
    }
}

void ZQComItemControlTran::foldMatrix(RawValues &raw)
{
    if (!raw.matrix || !raw.box) {
        return;
    }
    const auto matrix = matrixFromText(*raw.matrix);
    const auto box = boxFromText(*raw.box);
    if (matrix && box && matrix->m11() > 1.0) {
        static const QString identity = matrixToText(QMatrix());
        raw.matrix = identity;
        raw.box = boxToText(matrix->mapRect(*box));
    }
}

void ZQComItemControlTran::readLink(QJsonObject &json, const QJsonObject &slide)
{
    const QString tags = slide.value(QLatin1String("SlideTagsInfo")).toString();
    if (!tags.contains(QLatin1String("<interactive>"))) {
        return;
    }
    const QString id = json.value(QLatin1String("ID")).toString();
    const QString valueAttribute = QStringLiteral("value");
    const QStringList parts = tags.split(QLatin1String("|$|"));
    for (const QString &part : parts) {
        if (!part.contains(QLatin1String("<interactive>")) || !mayName(part, id)) {
            continue;
        }
        const QDomElement root = elementFromXml(part);
        for (QDomElement tag = root.firstChildElement(); !tag.isNull(); tag = tag.nextSiblingElement()) {
            if (tag.attribute(valueAttribute) != id) {
                continue;
            }
            const QString kind = descendantByTag(tag, QStringLiteral("interactiveType")).attribute(valueAttribute);
            if (mayStandInTags(kind)) {
                const QDomElement reservation = descendantByTag(tag, QStringLiteral("reservation"));
                json.insert(QLatin1String("InteractiveType"), kind);
                json.insert(QLatin1String("InteractiveValue"), reservation.attribute(valueAttribute));
                return;
            }
        }
    }
}

void ZQComItemControlTran::readItemAnimations(const QDomElement &element, QJsonObject &json)
{
    const QDomElement animations = childByTag(element, QStringLiteral("animations"));
    if (animations.isNull()) {
        return;
    }
    QJsonObject groups;
    for (QDomElement group = animations.firstChildElement(); !group.isNull(); group = group.nextSiblingElement()) {
        groups.insert(group.tagName(), attributesAsJson(group));
    }
    json.insert(QLatin1String("animations"), groups);
}

void ZQComItemControlTran::writeItemAnimations(QDomElement &element, const QJsonObject &json)
{
    const auto found = json.constFind(QLatin1String("animations"));
    if (element.isNull() || found == json.constEnd()) {
        return;
    }
    const QJsonObject groups = found->toObject();
    QDomElement animations = newElement(QStringLiteral("animations"));
    for (const QString &name :
         {QStringLiteral("appearance"), QStringLiteral("emphasis"), QStringLiteral("disappearance")}) {
        animations.appendChild(animationGroupElement(name, groups));
    }
    element.appendChild(animations);
}

QDomElement ZQComItemControlTran::animationGroupElement(const QString &name, const QJsonObject &animations)
{
    QDomElement group = newElement(name.toLower());
    const QJsonObject attributes = animations.value(name).toObject();
    for (auto it = attributes.constBegin(); it != attributes.constEnd(); ++it) {
        group.setAttribute(it.key(), it.value().toString());
    }
    return group;
}
