// SPDX-License-Identifier: MIT
#include "zqhtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "xmlplaces.h"

#include <QDateTime>

namespace {

const QLatin1String typeKey("Type");

// Items of the mathematics box are left alone by the eraser. At this moment Type is still the ZQTX type.
void ignoreEraserForMathematics(QJsonObject &json)
{
    const QLatin1String ignoreEraser("IgnoreEraser");
    if (json.value(typeKey).toString().contains(QLatin1String("Math")) && !json.contains(ignoreEraser)) {
        json.insert(ignoreEraser, true);
    }
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
    static const KeyMaps maps =
        KeyMaps().with({attribute("ID", "NetID"), attribute("Delete")}, {attribute("ID", "id"), attribute("Delete")},
                       {
                           attribute("ID", "id"),
                           attribute("x"),
                           attribute("y"),
                           attribute("Width", "width"),
                           attribute("Height", "height"),
                           attribute("InfiniteClone", "infiniteclone"),
                           attribute("Visible", "visible"),
                           attribute("LockIn", "lockin"),
                       });
    setKeyMaps(maps);
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

void ZQHTran::setKeyMaps(const KeyMaps &maps)
{
    xmlKeyMap = maps.xml.object();
    txKeyMap = maps.tx.object();
    iwbKeyMap = maps.iwb.object();
    m_keyMaps = &maps;
}

QString ZQHTran::writtenType(const QJsonObject &json) const
{
    return m_writtenType.isNull() ? json.value(typeKey).toString() : m_writtenType;
}

QString ZQHTran::nextGeneratedId()
{
    // Unsigned arithmetic, so that a counter at its end wraps around.
    idCounter = int(uint(idCounter) + 1U);
    return QString::number(QDateTime::currentMSecsSinceEpoch() + qint64(idCounter));
}

void ZQHTran::storeRawText(const QString &key, const QString &text, QJsonObject &json)
{
    json.insert(key, text);
}

void ZQHTran::readKeysFromXml(QDomElement &element, QJsonObject &json)
{
    RawPlaces places(element);
    for (const KeyMap::Row &row : m_keyMaps->xml.rows()) {
        if (row.form != KeyPaths::Form::Text) {
            const QDomElement found = places.descendant(row.key);
            if (!found.isNull()) {
                json.insert(row.key,
                            row.form == KeyPaths::Form::Attributes ? QJsonValue(attributesAsJson(found))
                                                                   : QJsonValue(childAttributesAsJson(found)));
            }
            continue;
        }
        const auto text =
            row.path.size() > 1 ? places.descendantText(row.path) : attributeText(element, row.path.first());
        if (text) {
            storeRawText(row.key, *text, json);
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
    for (const KeyMap::Row &row : m_keyMaps->tx.rows()) {
        if (const auto text = places.text(row.path)) {
            json.insert(row.key, *text);
            typeMayBeNew |= row.key == typeKey;
        }
        if (typeMayBeNew && row.path.size() == 1) {
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
    TxTargets targets(element);
    for (auto it = json.constBegin(); it != json.constEnd(); ++it) {
        const KeyMap::Row *row = m_keyMaps->tx.row(it.key());
        if (!row) {
            continue;
        }
        const QString text = row->key == typeKey ? writtenType(json) : it.value().toString();
        if (row->path.size() > 1) {
            targets.write(row->path, text);
        } else if (row->path.first() == QLatin1String("visible")) {
            element.setAttribute(row->path.first(), it.value().toBool() ? QStringLiteral("1") : QStringLiteral("0"));
        } else {
            element.setAttribute(row->path.first(), text);
        }
    }
}
