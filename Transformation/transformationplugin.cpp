// SPDX-License-Identifier: MIT
#include "transformationplugin.h"

#include "iwbitems.h"
#include "translatorchains.h"
#include "zqprestran.h"
#include "zqslidetran.h"

IZQTransformation *transformationInterface = nullptr;

namespace {

const QLatin1String typeKey("Type");

// Stores the type unless it is there already: storing copies an object that is shared.
void setType(QJsonObject &json, const QString &type)
{
    if (json.value(typeKey) != QJsonValue(type)) {
        json.insert(typeKey, type);
    }
}

QString typeOf(const QDomElement &element, const QJsonObject &json)
{
    return element.isNull() ? json.value(typeKey).toString() : element.attribute(QStringLiteral("type"));
}

} // namespace

TransformationPlugin::TransformationPlugin()
    : QObject(nullptr)
{
    transformationInterface = this;
}

TransformationPlugin::~TransformationPlugin() = default;

void TransformationPlugin::reservedHook(void *) { }

QJsonObject TransformationPlugin::tranPresXML2JSON(QDomElement element, QJsonObject context)
{
    return ZQPresTran().tranXML2JSON(element, {}, context);
}

QJsonObject TransformationPlugin::tranSlideXML2JSON(QDomElement element, QJsonObject context)
{
    return ZQSlideTran().tranXML2JSON(element, {}, context);
}

QJsonObject TransformationPlugin::tranItemXML2JSON(QDomElement element, QJsonObject context)
{
    const auto translator = createTranslator(element.nodeName());
    return translator ? translator->tranXML2JSON(element, {}, context) : QJsonObject();
}

QDomDocument TransformationPlugin::tranPresJSON2ZQTX(QDomDocument document, QJsonObject json)
{
    return ZQPresTran().tranJSON2ZQTXDocument(document, json, {});
}

QDomDocument TransformationPlugin::tranSlideJSON2ZQTX(QDomDocument document, QJsonObject json)
{
    return ZQSlideTran().tranJSON2ZQTXDocument(document, json, {});
}

QDomElement TransformationPlugin::tranItemJSON2ZQTX(QDomElement element, QJsonObject json)
{
    const QString type = typeOf(element, json);
    const auto translator = createTranslator(type);
    if (!translator) {
        return element;
    }
    const QString txType = jsonTypeToTxType(type);
    if (json.contains(typeKey)) {
        translator->writeType(txType);
    } else {
        json.insert(typeKey, txType);
    }
    return translator->tranJSON2ZQTX(element, json, {});
}

QJsonObject TransformationPlugin::tranPresZQTX2JSON(QDomElement element, QJsonObject context)
{
    return ZQPresTran().tranZQTX2JSON(element, {}, context);
}

QJsonObject TransformationPlugin::tranSlideZQTX2JSON(QDomElement element, QJsonObject context)
{
    return ZQSlideTran().tranZQTX2JSON(element, {}, context);
}

QJsonObject TransformationPlugin::tranItemZQTX2JSON(QDomElement element, QJsonObject context)
{
    const auto translator = createTranslator(typeOf(element, context));
    if (!translator) {
        return {};
    }
    QJsonObject json = translator->tranZQTX2JSON(element, {}, context);
    if (!json.isEmpty()) {
        setType(json, txTypeToJsonType(json.value(typeKey).toString()));
    }
    return json;
}

QMap<QString, QVariant> TransformationPlugin::tranPresQuery(QString)
{
    return {};
}

QMap<QString, QVariant> TransformationPlugin::tranSlideQuery(void *, QString)
{
    return {};
}

QJsonObject TransformationPlugin::tranItemQuery(void *, QString)
{
    return {};
}

QDomDocument TransformationPlugin::tranPresJSON2IWB(QDomDocument document, QJsonObject json)
{
    return ZQPresTran().tranJSON2IWBDocument(document, json, {});
}

QDomElement TransformationPlugin::tranSlideJSON2IWB(QDomDocument &document, QJsonObject json)
{
    return ZQSlideTran().tranJSON2IWBPage(document, json, {});
}

QDomElement TransformationPlugin::tranItemJSON2IWB(QDomDocument &document, QJsonObject json)
{
    const auto translator = createIwbTranslator(document, json.value(typeKey).toString());
    if (!translator) {
        return {};
    }
    const QDomElement result = translator->tranJSON2IWB({}, json, {});
    if (json.value(QLatin1String("InteractiveType")).toString().isEmpty()) {
        return result;
    }
    return wrapInIwbLink(document, result, json);
}

QJsonObject TransformationPlugin::tranPresIWB2JSON(QDomElement element, QJsonObject json)
{
    return ZQPresTran().tranIWBDocument2JSON(element, json);
}

QJsonObject TransformationPlugin::tranSlideIWB2JSON(QDomElement root, QDomElement page, QJsonObject json)
{
    return ZQSlideTran().tranIWBPage2JSON(root, page, json, {});
}

QJsonObject TransformationPlugin::tranItemIWB2JSON(QDomElement element, QJsonObject json)
{
    return iwbItemToJson(element, json);
}
