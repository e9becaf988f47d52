// SPDX-License-Identifier: MIT
#include "iwbitems.h"

#include "links.h"
#include "zqmathematicstran.h"
#include "zqmediaitemtran.h"
#include "zqtextboxtran.h"

#include <memory>

namespace {

template <typename Translator>
QJsonObject convertAs(const QDomElement &element, const QJsonObject &json, const QString &type)
{
    return Translator(type).tranIWB2JSON(element, json, {});
}

struct SvgItem
{
    const char *tag;
    const char *itemType;
    QJsonObject (*convert)(const QDomElement &element, const QJsonObject &json, const QString &type);
};

// An "svg:a" gets here without child nodes only: a link around an item is taken off before.
const SvgItem svgItems[] = {
    {"svg:image", "ZQImagePic", convertAs<ZQMediaItemTran>},
    {"svg:rect", "ZQMath2DRectangle", convertAs<ZQMathematicsTran>},
    {"svg:textarea", "ZQTextBoard", convertAs<ZQTextBoxTran>},
    {"svg:line", "ZQMath2DSegment", convertAs<ZQMathematicsTran>},
    {"svg:polyline", "ZQMath2DAngle", convertAs<ZQMathematicsTran>},
    {"svg:circle", "ZQMath2DCircle", convertAs<ZQMathematicsTran>},
    {"svg:ellipse", "ZQMath2DEllipse", convertAs<ZQMathematicsTran>},
    {"svg:a", "ZQMediaAudio", convertAs<ZQMediaItemTran>},
    {"svg:video", "ZQMediaVideo", convertAs<ZQMediaItemTran>},
};

QJsonObject convertSvgItem(const QDomElement &element, const QJsonObject &json)
{
    const QString tag = element.nodeName();
    for (const SvgItem &item : svgItems) {
        if (tag == QLatin1String(item.tag)) {
            return item.convert(element, json, QLatin1String(item.itemType));
        }
    }
    return json;
}

} // namespace

QDomElement wrapInIwbLink(QDomDocument &document, const QDomElement &item, const QJsonObject &json)
{
    const QString reference = json.value(QLatin1String("ID")).toString() + QLatin1String("_link");
    QDomElement link = document.createElement(QStringLiteral("svg:a"));
    link.appendChild(item);
    link.setAttribute(QStringLiteral("id"), reference);
    ZQHTran::setLinkHref(link, json.value(QLatin1String("InteractiveType")).toString(),
                         json.value(QLatin1String("InteractiveValue")).toString(),
                         json.value(QLatin1String("tmpFilePath")).toString());
    ZQHTran::appendIwbRecord(
        document, QStringLiteral("iwb:link"),
        {{QStringLiteral("ref"), reference}, {QStringLiteral("file"), QStringLiteral("internal")}});
    return link;
}

QJsonObject iwbItemToJson(const QDomElement &element, const QJsonObject &json)
{
    // Links within links are taken apart from the outside in and their targets read from the inside out, without
    // recursion: the depth is that of the file.
    QVector<QString> targets;
    QDomElement item = element;
    while (item.nodeName() == QLatin1String("svg:a") && item.hasChildNodes()) {
        targets.append(item.attribute(QStringLiteral("xlink:href")));
        item = item.firstChildElement();
    }
    QJsonObject result = convertSvgItem(item, json);
    for (auto it = targets.crbegin(); it != targets.crend(); ++it) {
        readLinkTarget(*it, result);
    }
    return result;
}
