// SPDX-License-Identifier: MIT
#ifndef TRANSFORMATIONPLUGIN_H
#define TRANSFORMATIONPLUGIN_H

#include "izqtransformation.h"

#include <QObject>

//! The plug-in's own way back to its operations, for items within items. Set by the plug-in's constructor.
extern IZQTransformation *transformationInterface;

/*!
 * The plug-in. Each operation makes the translator of its level or item, runs one conversion and drops it; nothing is
 * kept between calls.
 */
class TransformationPlugin : public QObject, public IZQTransformation
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zqt.qtSlateDesk.TransformationPlugin/1.0")
    Q_INTERFACES(IZQTransformation)

public:
    TransformationPlugin();
    ~TransformationPlugin() override;

    void reservedHook(void *reserved) override;

    QJsonObject tranPresXML2JSON(QDomElement element, QJsonObject context) override;
    QJsonObject tranSlideXML2JSON(QDomElement element, QJsonObject context) override;
    QJsonObject tranItemXML2JSON(QDomElement element, QJsonObject context) override;

    QDomDocument tranPresJSON2ZQTX(QDomDocument document, QJsonObject json) override;
    QDomDocument tranSlideJSON2ZQTX(QDomDocument document, QJsonObject json) override;
    QDomElement tranItemJSON2ZQTX(QDomElement element, QJsonObject json) override;

    QJsonObject tranPresZQTX2JSON(QDomElement element, QJsonObject context) override;
    QJsonObject tranSlideZQTX2JSON(QDomElement element, QJsonObject context) override;
    QJsonObject tranItemZQTX2JSON(QDomElement element, QJsonObject context) override;

    QMap<QString, QVariant> tranPresQuery(QString path) override;
    QMap<QString, QVariant> tranSlideQuery(void *reserved, QString path) override;
    QJsonObject tranItemQuery(void *reserved, QString path) override;

    QDomDocument tranPresJSON2IWB(QDomDocument document, QJsonObject json) override;
    QDomElement tranSlideJSON2IWB(QDomDocument &document, QJsonObject json) override;
    QDomElement tranItemJSON2IWB(QDomDocument &document, QJsonObject json) override;

    QJsonObject tranPresIWB2JSON(QDomElement element, QJsonObject json) override;
    QJsonObject tranSlideIWB2JSON(QDomElement root, QDomElement page, QJsonObject json) override;
    QJsonObject tranItemIWB2JSON(QDomElement element, QJsonObject json) override;
};

#endif // TRANSFORMATIONPLUGIN_H
