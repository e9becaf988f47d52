#include "zqcomitemcontroltran.h"

#include "domhelpers.h"
#include "keypaths.h"
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
void reorderBound(QJsonObject &json)
{
    const auto found = json.find(QLatin1String("BoundingBox"));
    if (found == json.end()) {
        return;
    }
    const QString bound = found->toString();
    const QLatin1Char comma(',');
    std::array<int, 6> ends{};
    int start = 0;
    for (int &end : ends) {
        if (start > bound.size()) {
            return;
        }
        end = bound.indexOf(comma, start);
        end = end < 0 ? bound.size() : end;
        start = end + 1;
    }
    const QStringRef leftTop = bound.midRef(ends[3] + 1, ends[5] - ends[3] - 1);
    const QStringRef rightBottom = bound.leftRef(ends[1]);
    *found = QString(leftTop + comma + rightBottom);
}

void normalizeFlag(QJsonObject &json, QLatin1String key)
{
    const auto found = json.find(key);
    const QString text = found == json.end() ? QString() : found->toString();
    if (text == QLatin1String("0") || text == QLatin1String("1")) {
        return;
    }
    json.insert(key, text.toInt() != 0 ? QStringLiteral("1") : QStringLiteral("0"));
}

// Visible becomes a boolean and is true unless the text says 0; LockIn and InfiniteClone become "1" or "0".
void normalizeFlags(QJsonObject &json)
{
    const QLatin1String visible("Visible");
    const auto found = json.find(visible);
    if (found == json.end()) {
        json.insert(visible, true);
    } else {
        *found = found->toString().toInt() != 0;
    }
    normalizeFlag(json, QLatin1String("LockIn"));
    normalizeFlag(json, QLatin1String("InfiniteClone"));
}

bool isAcceptedLink(const QString &kind)
{
    return kind == QLatin1String("ACTION_OPENFILE") || kind == QLatin1String("ACTION_OPENWEB")
        || kind == QLatin1String("ACTION_GOTOSLIDE");
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
    json = ZQHTran::tranXML2JSON(element, json, context);
    const QString type = element.nodeName();
    json.insert(QLatin1String("Type"), type);
    reorderBound(json);
    normalizeFlags(json);
    const QJsonObject slide = context.value(QLatin1String("slide")).toObject();
    // The record of deleted pixels is meant without the s that its item type has.
    if (type != QLatin1String("ZQStrokeDeletePixel") && type != QLatin1String("ZQGroupItem")) {
        fitToSlide(json, slide);
    }
    readLink(json, slide);
    return json;
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
    element = ZQHTran::tranJSON2ZQTX(element, json, context);
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

void ZQComItemControlTran::foldMatrixIntoBox(QJsonObject &json)
{
    const auto matrixMember = json.find(QLatin1String("Matrix"));
    const auto boxMember = json.find(QLatin1String("BoundingBox"));
    if (matrixMember == json.end() || boxMember == json.end()) {
        return;
    }
    const auto matrix = matrixFromText(matrixMember->toString());
    const auto box = boxFromText(boxMember->toString());
    if (!matrix || !box || !(matrix->m11() > 1.0)) {
        return;
    }
    *matrixMember = matrixToText(QMatrix());
    *boxMember = boxToText(matrix->mapRect(*box));
}

int ZQComItemControlTran::lessonVersion(const QJsonObject &context)
{
    const QJsonObject presentation = context.value(QLatin1String("pres")).toObject();
    return majorVersion(presentation.value(QLatin1String("Version")).toString());
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

void ZQComItemControlTran::fitToSlide(QJsonObject &json, const QJsonObject &slide)
{
    QMatrix fit;
    const auto source = rectangleFromText(slide.value(QLatin1String("SlideSourceRect")).toString());
    if (source) {
        fit = fitMatrix(*source, QRectF(QPointF(), slideTargetSize(*source)));
    }
    const QString fitText = matrixToText(fit);
    const QLatin1String matrixKey("Matrix");
    const auto found = json.find(matrixKey);
    if (found == json.end()) {
        json.insert(matrixKey, fitText);
    } else if (const auto matrix = matrixFromText(found->toString())) {
        *found = matrixToText(*matrix * fit);
    }
    json.insert(QLatin1String("SlideMatrix"), fitText);
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
            if (isAcceptedLink(kind)) {
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
