#include "zqgroupitemtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "translatorchains.h"

namespace {

const TypePairs &typePairs()
{
    static const TypePairs pairs{{"ZQGroupItem", "group"}};
    return pairs;
}

const PreparedPaths &txPaths()
{
    static const PreparedPaths paths = attribute("SupportCoverlayer");
    return paths;
}

} // namespace

ZQGroupItemTran::ZQGroupItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    txPaths().storeIn(txKeyMap);
}

QString ZQGroupItemTran::toTxType(const QString &type)
{
    return typePairs().toTxType(type);
}

QString ZQGroupItemTran::fromTxType(const QString &type)
{
    return typePairs().fromTxType(type);
}

QJsonObject ZQGroupItemTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    const QLatin1String childrenKey("Children");
    // Each child goes in front of the ones before it. They are gathered first and turned round once, so that a wide
    // group costs no more than its children.
    QVector<QJsonObject> converted;
    const QDomElement sons = childByTag(element, QStringLiteral("GroupSonItems"));
    for (QDomElement son = sons.firstChildElement(); !son.isNull(); son = son.nextSiblingElement()) {
        if (const auto translator = createTranslator(son.nodeName())) {
            converted.append(translator->tranXML2JSON(son, {}, context));
        }
    }
    if (converted.isEmpty()) {
        return json;
    }
    QJsonArray reversed;
    for (auto it = converted.crbegin(); it != converted.crend(); ++it) {
        reversed.append(*it);
    }
    const QJsonArray former = json.value(childrenKey).toArray();
    for (const QJsonValue &child : former) {
        reversed.append(child);
    }
    json.insert(childrenKey, reversed);
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

QDomElement ZQGroupItemTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context)
{
    if (element.isNull()) {
        static const ElementTemplate group(
            QStringLiteral(R"(<group><transform><rotate angle="0"/></transform><element/>)"
                           R"(<data><rect points=""/></data></group>)"));
        element = group.instance();
    }
    return ZQComItemControlTran::tranJSON2ZQTX(element, json, context);
}
