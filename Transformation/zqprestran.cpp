// SPDX-License-Identifier: MIT
#include "zqprestran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "zqstrokestran.h"

#include <QJsonDocument>

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        attribute("Width", "width"),
        attribute("Height", "height"),
        attribute("Version", "version"),
        attribute("Version_app", "version_app"),
        attribute("Author", "author"),
        attribute("Date", "date"),
        attribute("Date_modified", "date_modified"),
    };
    return paths;
}

const QLatin1String pixelDeleteItems("PixelDeleteItems");
const QLatin1String haveDeletePixelDeleteItems("HaveDeletePixelDeleteItems");

// The records of deleted pixels in an XML text, one for each child of its root.
void appendPixelDeleteItems(const QString &xml, QJsonArray &items, const QJsonObject &context)
{
    const QDomElement root = elementFromXml(xml);
    for (QDomElement item = root.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
        ZQStrokesTran translator(QStringLiteral("ZQStrokesDeletePixel"));
        items.append(translator.tranXML2JSON(item, {}, context));
    }
}

} // namespace

ZQPresTran::ZQPresTran()
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
}

QJsonObject ZQPresTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQHTran::tranXML2JSON(element, json, context);
    const bool hasItems = json.contains(pixelDeleteItems);
    const bool hasFormerItems = json.contains(haveDeletePixelDeleteItems);
    if (hasItems || hasFormerItems) {
        QJsonArray items;
        if (hasItems) {
            appendPixelDeleteItems(json.value(pixelDeleteItems).toString(), items, context);
        }
        if (hasFormerItems) {
            appendPixelDeleteItems(json.value(haveDeletePixelDeleteItems).toString(), items, context);
        }
        json.insert(pixelDeleteItems, items);
    }
    return json;
}

QJsonObject ZQPresTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQHTran::tranZQTX2JSON(element, json, context);
    const QLatin1String width("Width");
    const QLatin1String height("Height");
    if (json.contains(width) && json.contains(height)) {
        json.insert(QLatin1String("Range"),
                    QString(json.value(width).toString() + QLatin1Char(',') + json.value(height).toString()));
    }
    if (json.contains(pixelDeleteItems)) {
        const auto items = QJsonDocument::fromJson(json.value(pixelDeleteItems).toString().toLatin1());
        if (items.isArray()) {
            json.insert(pixelDeleteItems, items.array());
        }
    }
    return json;
}

QDomDocument ZQPresTran::tranJSON2ZQTXDocument(QDomDocument document, QJsonObject json, QJsonObject context)
{
    if (document.isNull()) {
        document.setContent(
            QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                           R"(<main version_app="" date_modified="" date="" version="" author="" title ="">)"
                           "<slides></slides></main>"),
            false);
    }
    QDomElement root = document.documentElement();
    QDomElement slides = childByTag(root, QStringLiteral("slides"));
    if (!slides.isNull()) {
        const QJsonArray slideObjects = json.value(QLatin1String("Slides")).toArray();
        for (const QJsonValue &slide : slideObjects) {
            QDomElement file = document.createElement(QStringLiteral("file"));
            const QString id = slide.toObject().value(QLatin1String("ID")).toString();
            file.setAttribute(QStringLiteral("href"), QString(QLatin1String("slides/") + id + QLatin1String(".xml")));
            slides.appendChild(file);
        }
    }
    tranJSON2ZQTX(root, json, context);
    return document;
}

QDomDocument ZQPresTran::tranJSON2IWBDocument(QDomDocument document, QJsonObject json, QJsonObject context)
{
    if (document.isNull()) {
        document.setContent(QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                                           R"(<iwb version="1.0" xmlns:iwb="http://www.becta.org.uk/iwb")"
                                           R"( xmlns:svg="http://www.w3.org/2000/svg")"
                                           R"( xmlns:xlink="http://www.w3.org/1999/xlink">)"
                                           R"(<svg:svg version="tesselmark">)"
                                           "<svg:pageset></svg:pageset></svg:svg></iwb>"),
                            false);
    }
    QDomElement svg = childByTag(document.documentElement(), QStringLiteral("svg:svg"));
    tranJSON2IWB(svg, json, context);
    const QLatin1String width("Width");
    const QLatin1String height("Height");
    if (json.contains(width) && json.contains(height)) {
        svg.setAttribute(QStringLiteral("viewbox"),
                         QString(QLatin1String("0 0 ") + json.value(width).toString() + QLatin1Char(' ')
                                 + json.value(height).toString()));
    }
    return document;
}

QJsonObject ZQPresTran::tranIWBDocument2JSON(QDomElement element, QJsonObject json)
{
    json = tranIWB2JSON(element, json, {});
    const QLatin1String width("Width");
    const QLatin1String height("Height");
    if (!json.contains(width) && !json.contains(height)) {
        const QStringList parts = element.attribute(QStringLiteral("viewbox")).split(QLatin1Char(' '));
        if (parts.size() >= 4) {
            json.insert(width, parts.at(2));
            json.insert(height, parts.at(3));
        }
    }
    return json;
}
