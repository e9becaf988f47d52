// SPDX-License-Identifier: MIT
#include "zqmathsubjecttran.h"

#include "domhelpers.h"

namespace {

const QLatin1String coursewareType("ZQDyCoursewareItem");
const QLatin1String documentKey("document");

} // namespace

const FamilyVocabulary &ZQMathSubjectTran::vocabulary()
{
    static const FamilyVocabulary table(
        {},
        {
            {{"ZQFormulaEditorItem"}, {}, {property("mml"), property("color"), attribute("document")}},
            {{"ZQDyCoursewareItem"},
             {},
             {property("editable"), property("name"), property("dyitemtype"), attribute("document")}},
        });
    return table;
}

const TypePairs &ZQMathSubjectTran::typePairs()
{
    static const TypePairs pairs{
        {"ZQFormulaEditorItem", "mathformula"},
        {"ZQDyCoursewareItem", "dycourseware"},
    };
    return pairs;
}

namespace {

// The text of an item; resources is the text of a child or empty.
QString itemText(const QString &tag, const QString &resources)
{
    return QLatin1String(R"(<?xml version="1.0" encoding="UTF-8"?><)") + tag
        + QLatin1String(R"( visible="1" locked="0" type="" uclone="0" id="" name="">)"
                        R"(<transform><rotate angle="0"/></transform><data><rect points=""/></data>)")
        + resources + QLatin1String("</") + tag + QLatin1Char('>');
}

QDomElement coursewareElement(const QJsonValue &document)
{
    const QString tag = QStringLiteral("dycourseware");
    const QJsonArray files = document.toArray();
    if (files.size() != 2) {
        static const ElementTemplate courseware(itemText(tag, {}));
        return courseware.instance();
    }
    return elementFromWellFormedXml(itemText(tag,
                                             QLatin1String(R"(<res ggb=")") + files.at(1).toString()
                                                 + QLatin1String(R"(" pix=")") + files.at(0).toString()
                                                 + QLatin1String(R"("/>)")));
}

} // namespace

ZQMathSubjectTran::ZQMathSubjectTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QJsonObject ZQMathSubjectTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    if (itemType == coursewareType && element.tagName() == QLatin1String("dycourseware")) {
        const QDomElement resources = childByTag(element, QStringLiteral("res"));
        if (!resources.isNull()) {
            json.insert(
                documentKey,
                QJsonArray{resources.attribute(QStringLiteral("pix")), resources.attribute(QStringLiteral("ggb"))});
        }
    }
    return json;
}

QDomElement ZQMathSubjectTran::newTxElement(const QJsonObject &json) const
{
    if (itemType == coursewareType) {
        return coursewareElement(json.value(documentKey));
    }
    static const ElementTemplate formula(itemText(QStringLiteral("mathformula"), {}));
    return formula.instance();
}
