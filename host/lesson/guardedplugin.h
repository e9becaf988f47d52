// SPDX-License-Identifier: MIT
#ifndef GUARDEDPLUGIN_H
#define GUARDEDPLUGIN_H

#include "izqtransformation.h"

#include <mutex>
#include <utility>

namespace lessonhost {

/*!
 * The plug-in for several threads: it works for one of them at a time, as it asks for, and the others wait. What it is
 * handed and what it hands out belongs to the thread that calls.
 */
class GuardedPlugin : public IZQTransformation
{
public:
    //! plugin: has to live as long.
    explicit GuardedPlugin(IZQTransformation *plugin)
        : m_plugin(plugin)
    {
    }

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

private:
    // One operation, while nobody else calls the plug-in. What it calls itself doesn't come through here.
    template <typename Operation, typename... Arguments> auto call(Operation operation, Arguments &&...arguments)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return (m_plugin->*operation)(std::forward<Arguments>(arguments)...);
    }

    IZQTransformation *m_plugin;
    std::mutex m_mutex;
};

} // namespace lessonhost

#endif // GUARDEDPLUGIN_H
