#include "zqhtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "xmlplaces.h"

#include <QDateTime>

namespace {

// Items of the mathematics box are left alone by the eraser. At this moment Type is still the ZQTX type.
void ignoreEraserForMathematics(QJsonObject &json)
{
    const QLatin1String ignoreEraser("IgnoreEraser");
    if (json.value(QLatin1String("Type")).toString().contains(QLatin1String("Math")) && !json.contains(ignoreEraser)) {
        json.insert(ignoreEraser, true);
    }
}

bool isBetween(const QString &text, char open, char close)
{
    return text.startsWith(QLatin1Char(open)) && text.endsWith(QLatin1Char(close));
}

// One object per child element, each with that child's attributes.
QJsonArray childAttributesAsJson(const QDomElement &element)
{
    QJsonArray rows;
    for (QDomElement row = element.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        rows.append(attributesAsJson(row));
    }
    return rows;
}

} // namespace

int ZQHTran::idCounter = 1;

ZQHTran::ZQHTran()
{
    static const QJsonObject xml = PreparedPaths({attribute("ID", "NetID"), attribute("Delete")}).storedIn({});
    static const QJsonObject tx = PreparedPaths({attribute("ID", "id"), attribute("Delete")}).storedIn({});
    static const QJsonObject iwb = PreparedPaths({
                                                     attribute("ID", "id"),
                                                     attribute("x"),
                                                     attribute("y"),
                                                     attribute("Width", "width"),
                                                     attribute("Height", "height"),
                                                     attribute("InfiniteClone", "infiniteclone"),
                                                     attribute("Visible", "visible"),
                                                     attribute("LockIn", "lockin"),
                                                 })
                                       .storedIn({});
    xmlKeyMap = xml;
    txKeyMap = tx;
    iwbKeyMap = iwb;
}

ZQHTran::~ZQHTran() = default;

QJsonObject ZQHTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    readKeysFromXml(element, json);
    return json;
}

QJsonObject ZQHTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    readKeysFromTx(element, json);
    return json;
}

QDomElement ZQHTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject)
{
    writeKeysToTx(element, json);
    return element;
}

QString ZQHTran::nextGeneratedId()
{
    // Unsigned arithmetic, so that a counter at its end wraps around.
    idCounter = int(uint(idCounter) + 1U);
    return QString::number(QDateTime::currentMSecsSinceEpoch() + qint64(idCounter));
}

void ZQHTran::readKeysFromXml(QDomElement &element, QJsonObject &json) const
{
    RawPlaces places(element);
    for (auto it = xmlKeyMap.constBegin(); it != xmlKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        const QString first = path.at(0).toString();
        if (path.size() > 1) {
            if (const auto text = places.descendantText(path)) {
                json.insert(it.key(), *text);
            }
        } else if (isBetween(first, '[', ']')) {
            const QString tag = first.mid(1, first.size() - 2);
            const QDomElement found = places.descendant(tag);
            if (!found.isNull()) {
                json.insert(tag, attributesAsJson(found));
            }
        } else if (isBetween(first, '<', '>')) {
            const QString tag = first.mid(1, first.size() - 2);
            const QDomElement found = places.descendant(tag);
            if (!found.isNull()) {
                json.insert(tag, childAttributesAsJson(found));
            }
        } else if (const auto text = attributeText(element, first)) {
            json.insert(it.key(), *text);
        }
    }
    if (!json.contains(QLatin1String("ID"))) {
        const QString id = nextGeneratedId();
        json.insert(QLatin1String("ID"), id);
        element.setAttribute(QStringLiteral("ID"), id);
    }
}

void ZQHTran::readKeysFromTx(const QDomElement &element, QJsonObject &json) const
{
    TxPlaces places(element);
    bool typeMayBeNew = true;
    for (auto it = txKeyMap.constBegin(); it != txKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        if (path.isEmpty()) {
            continue;
        }
        if (const auto text = places.text(path)) {
            const QString key = it.key();
            json.insert(key, *text);
            typeMayBeNew |= key == QLatin1String("Type");
        }
        if (typeMayBeNew && path.size() == 1) {
            typeMayBeNew = false;
            ignoreEraserForMathematics(json);
        }
    }
}

void ZQHTran::writeKeysToTx(QDomElement &element, const QJsonObject &json) const
{
    if (element.isNull()) {
        return;
    }
    PropertyRows propertyRows;
    for (auto it = json.constBegin(); it != json.constEnd(); ++it) {
        const QJsonArray path = txKeyMap.value(it.key()).toArray();
        if (path.isEmpty() || path.size() > 3) {
            continue;
        }
        const QString first = path.at(0).toString();
        const QString value = it.value().toString();
        if (path.size() == 1) {
            if (first == QLatin1String("visible")) {
                element.setAttribute(first, it.value().toBool() ? QStringLiteral("1") : QStringLiteral("0"));
            } else {
                element.setAttribute(first, value);
            }
            continue;
        }
        if (element.firstChildElement().isNull()) {
            continue;
        }
        QDomElement child = childByTag(element, first);
        if (child.isNull()) {
            child = element.appendChild(newElement(first)).toElement();
        }
        if (path.size() == 2) {
            child.setAttribute(path.at(1).toString(), value);
        } else {
            writeThreeSegmentPath(child, value, path, propertyRows);
        }
    }
}

void ZQHTran::writeThreeSegmentPath(QDomElement child, const QString &value, const QJsonArray &path,
                                    PropertyRows &propertyRows)
{
    if (path.at(0).toString() == QLatin1String("properties")) {
        propertyRows.write(child, path.at(2).toString(), value);
    } else {
        childByTag(child, path.at(1).toString()).setAttribute(path.at(2).toString(), value);
    }
}
