// SPDX-License-Identifier: MIT
#include "zqtextboxtran.h"

#include "domhelpers.h"
#include "numbertext.h"

#include <QLineF>

const FamilyVocabulary &ZQTextBoxTran::vocabulary()
{
    static const FamilyVocabulary table({},
                                        {
                                            {{"ZQTextBoard", "text"},
                                             {
                                                 attribute("TextContent"),
                                                 attribute("Text"),
                                                 attribute("EditBkColor"),
                                                 attribute("Transparency"),
                                                 attribute("SHOWBACKCOLOR"),
                                                 attribute("WPFMATRIX"),
                                             },
                                             {
                                                 path("BoundingBox", "data", "rect", "points"),
                                                 path("TextHtml", "data", "content", "text"),
                                                 path("InitialScale", "data", "content", "InitialScale"),
                                                 property("AudioPath"),
                                                 attribute("document"),
                                             }},
                                        });
    return table;
}

namespace {

// The attributes of a run of text, in the order in which they are written.
struct RunAttribute
{
    const char *name;
    QString IwbTextInfo::*field;
};

const RunAttribute runAttributes[] = {
    {"fill", &IwbTextInfo::fill},
    {"font-weight", &IwbTextInfo::fontWeight},
    {"font-stretch", &IwbTextInfo::fontStretch},
    {"font-style", &IwbTextInfo::fontStyle},
    {"font-family", &IwbTextInfo::fontFamily},
    {"font-size", &IwbTextInfo::fontSize},
    {"text-decoration", &IwbTextInfo::textDecoration},
    {"text-align", &IwbTextInfo::textAlign},
};

const QLatin1String listKey("IWB_TEXTINFO-VECTOR");
const QLatin1String deleterKey("IWB_TEXTINFO-DELVECTOR");

// Addresses travel as decimal text; what doesn't read as a number is no address.
quintptr addressFromText(const QJsonValue &text)
{
    return quintptr(text.toString().toULongLong());
}

template <typename Address> QString addressToText(Address address)
{
    return QString::number(qulonglong(reinterpret_cast<quintptr>(address)));
}

// The corner and the true side lengths of the box under the matrix, so that a turned box keeps its size.
void writeTurnedBox(QDomElement &area, const QRectF &box, const QMatrix &matrix)
{
    const QPointF corner = matrix.map(box.topLeft());
    const QPointF below = matrix.map(box.bottomLeft());
    const QPointF beside = matrix.map(box.topRight());
    area.setAttribute(QStringLiteral("x"), numberText(corner.x()));
    area.setAttribute(QStringLiteral("y"), numberText(corner.y()));
    area.setAttribute(QStringLiteral("width"), numberText(qreal(float(QLineF(corner, beside).length()))));
    area.setAttribute(QStringLiteral("height"), numberText(qreal(float(QLineF(corner, below).length()))));
}

} // namespace

ZQTextBoxTran::ZQTextBoxTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QJsonObject ZQTextBoxTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    return ZQComItemControlTran::tranXML2JSON(element, json, context);
}

QDomElement ZQTextBoxTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate text(QStringLiteral(
        R"(<text id="" visible="1" locked="0" uclone="0" type="Text"><transform><rotate angle="0"/></transform>)"
        R"(<data><content text="" type="html"/><rect points="" controlpoints=""/></data></text>)"));
    return text.instance();
}

QDomElement ZQTextBoxTran::tranJSON2IWB(QDomElement, QJsonObject json, QJsonObject context)
{
    QDomDocument document;
    document.appendChild(document.createElement(QStringLiteral("svg:textarea")));
    QDomElement area = ZQComItemControlTran::tranJSON2IWB(document.documentElement(), json, context);

    // The host hands over the list and what frees it as addresses. NOLINTNEXTLINE(performance-no-int-to-ptr)
    auto *list = reinterpret_cast<IwbTextInfoList *>(addressFromText(json.value(listKey)));
    if (json.contains(QLatin1String("BoundingBox"))) {
        if (const auto box = boxFromText(json.value(QLatin1String("BoundingBox")).toString())) {
            const QJsonValue matrixText = json.value(QLatin1String("Matrix"));
            const auto matrix = matrixText.isUndefined() ? QMatrix() : matrixFromText(matrixText.toString());
            if (matrix) {
                writeTurnedBox(area, *box, *matrix);
            }
            writeTextInfo(area, list && !list->isEmpty() ? list->first() : IwbTextInfo(), json, false);
        }
    }
    if (list) {
        for (const IwbTextInfo &info : qAsConst(*list)) {
            area.appendChild(writeTextInfo(document.createElement(QStringLiteral("svg:tspan")), info, json, true));
        }
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        const auto destroy = reinterpret_cast<IwbTextInfoListDeleter>(addressFromText(json.value(deleterKey)));
        if (destroy) {
            destroy(list);
        }
    }
    return area;
}

QJsonObject ZQTextBoxTran::tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    json.insert(QLatin1String("Type"), QStringLiteral("ZQTextBoard"));
    auto list = std::make_unique<IwbTextInfoList>();
    readTextInfo(element, *list);
    for (QDomElement run = element.firstChildElement(); !run.isNull(); run = run.nextSiblingElement()) {
        readTextInfo(run, *list);
    }
    json.insert(listKey, addressToText(list.release()));
    json.insert(deleterKey, addressToText(&ZQTextBoxTran::destroyTextInfoList));
    return json;
}

void ZQTextBoxTran::readTextInfo(const QDomElement &element, IwbTextInfoList &list)
{
    IwbTextInfo info;
    const QStringList sides = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                               QStringLiteral("height")};
    QStringList rect;
    for (const QString &side : sides) {
        if (element.hasAttribute(side)) {
            rect.append(element.attribute(side));
        }
    }
    if (rect.size() == sides.size()) {
        info.rect = rect.join(QLatin1Char(','));
    }
    for (const RunAttribute &attribute : runAttributes) {
        const QLatin1String name(attribute.name);
        info.*attribute.field = element.attribute(name, info.*attribute.field);
    }
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection()) {
            info.text = node.toCDATASection().data();
            break;
        }
    }
    list.append(info);
}

QDomElement ZQTextBoxTran::writeTextInfo(QDomElement element, const IwbTextInfo &info, const QJsonObject &json,
                                         bool withText)
{
    if (json.contains(QLatin1String("id"))) {
        element.setAttribute(QStringLiteral("id"), json.value(QLatin1String("id")).toString());
    }
    for (const RunAttribute &attribute : runAttributes) {
        element.setAttribute(QLatin1String(attribute.name), info.*attribute.field);
    }
    if (withText && !info.text.isEmpty()) {
        element.appendChild(element.ownerDocument().createCDATASection(info.text));
    }
    return element;
}

void ZQTextBoxTran::destroyTextInfoList(void *list)
{
    delete static_cast<IwbTextInfoList *>(list);
}
