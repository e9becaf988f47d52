// SPDX-License-Identifier: MIT
#include "lesson/guardedplugin.h"

namespace lessonhost {

void GuardedPlugin::reservedHook(void *reserved)
{
    call(&IZQTransformation::reservedHook, reserved);
}

QJsonObject GuardedPlugin::tranPresXML2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranPresXML2JSON, std::move(element), std::move(context));
}

QJsonObject GuardedPlugin::tranSlideXML2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranSlideXML2JSON, std::move(element), std::move(context));
}

QJsonObject GuardedPlugin::tranItemXML2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranItemXML2JSON, std::move(element), std::move(context));
}

QDomDocument GuardedPlugin::tranPresJSON2ZQTX(QDomDocument document, QJsonObject json)
{
    return call(&IZQTransformation::tranPresJSON2ZQTX, std::move(document), std::move(json));
}

QDomDocument GuardedPlugin::tranSlideJSON2ZQTX(QDomDocument document, QJsonObject json)
{
    return call(&IZQTransformation::tranSlideJSON2ZQTX, std::move(document), std::move(json));
}

QDomElement GuardedPlugin::tranItemJSON2ZQTX(QDomElement element, QJsonObject json)
{
    return call(&IZQTransformation::tranItemJSON2ZQTX, std::move(element), std::move(json));
}

QJsonObject GuardedPlugin::tranPresZQTX2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranPresZQTX2JSON, std::move(element), std::move(context));
}

QJsonObject GuardedPlugin::tranSlideZQTX2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranSlideZQTX2JSON, std::move(element), std::move(context));
}

QJsonObject GuardedPlugin::tranItemZQTX2JSON(QDomElement element, QJsonObject context)
{
    return call(&IZQTransformation::tranItemZQTX2JSON, std::move(element), std::move(context));
}

QMap<QString, QVariant> GuardedPlugin::tranPresQuery(QString path)
{
    return call(&IZQTransformation::tranPresQuery, std::move(path));
}

QMap<QString, QVariant> GuardedPlugin::tranSlideQuery(void *reserved, QString path)
{
    return call(&IZQTransformation::tranSlideQuery, reserved, std::move(path));
}

QJsonObject GuardedPlugin::tranItemQuery(void *reserved, QString path)
{
    return call(&IZQTransformation::tranItemQuery, reserved, std::move(path));
}

QDomDocument GuardedPlugin::tranPresJSON2IWB(QDomDocument document, QJsonObject json)
{
    return call(&IZQTransformation::tranPresJSON2IWB, std::move(document), std::move(json));
}

QDomElement GuardedPlugin::tranSlideJSON2IWB(QDomDocument &document, QJsonObject json)
{
    return call(&IZQTransformation::tranSlideJSON2IWB, document, std::move(json));
}

QDomElement GuardedPlugin::tranItemJSON2IWB(QDomDocument &document, QJsonObject json)
{
    return call(&IZQTransformation::tranItemJSON2IWB, document, std::move(json));
}

QJsonObject GuardedPlugin::tranPresIWB2JSON(QDomElement element, QJsonObject json)
{
    return call(&IZQTransformation::tranPresIWB2JSON, std::move(element), std::move(json));
}

QJsonObject GuardedPlugin::tranSlideIWB2JSON(QDomElement root, QDomElement page, QJsonObject json)
{
    return call(&IZQTransformation::tranSlideIWB2JSON, std::move(root), std::move(page), std::move(json));
}

QJsonObject GuardedPlugin::tranItemIWB2JSON(QDomElement element, QJsonObject json)
{
    return call(&IZQTransformation::tranItemIWB2JSON, std::move(element), std::move(json));
}

} // namespace lessonhost
