// SPDX-License-Identifier: MIT
#include "zqgroupitemtran.h"

#include "domhelpers.h"
#include "nesteditems.h"
#include "translatorchains.h"

const TypePairs &ZQGroupItemTran::typePairs()
{
    static const TypePairs pairs{{"ZQGroupItem", "group"}};
    return pairs;
}

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = attribute("SupportCoverlayer");
    return paths;
}

} // namespace

ZQGroupItemTran::ZQGroupItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
}

QJsonObject ZQGroupItemTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    static const NestedItems::Form form{
        [](const QDomElement &son) { return createTranslator(son.nodeName()) != nullptr; },
        [](const QDomElement &son, const QJsonObject &context) {
            return createTranslator(son.nodeName())->tranXML2JSON(son, {}, context);
        },
        true};
    const QDomElement sons = childByTag(element, QStringLiteral("GroupSonItems"));
    NestedItems::read(element, sons.firstChildElement(), json, context, form);
    return json;
}

QJsonObject ZQGroupItemTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    if (lessonVersion(context) == 3) {
        json.remove(QLatin1String("BoundingBox"));
    }
    readNestedItems(element, json, context);
    return json;
}

QDomElement ZQGroupItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate group(QStringLiteral(R"(<group><transform><rotate angle="0"/></transform><element/>)"
                                                      R"(<data><rect points=""/></data></group>)"));
    return group.instance();
}
