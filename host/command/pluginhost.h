// SPDX-License-Identifier: MIT
#ifndef PLUGINHOST_H
#define PLUGINHOST_H

#include "lesson/guardedplugin.h"

#include <QPluginLoader>
#include <QStringList>

#include <memory>

namespace lessonhost {

/*!
 * Finds and loads the plug-in. The plug-in stays loaded to the end of the process.
 */
class PluginHost
{
public:
    //! path: the plug-in's file, or empty to look in the usual places. Throws LessonError.
    explicit PluginHost(const QString &path = {});

    //! May be called by several threads, of which it makes one wait for the other.
    IZQTransformation *plugin() const { return m_plugin.get(); }
    //! The number behind the name that the plug-in gives itself, such as "1.0".
    QString version() const;
    QString fileName() const { return m_loader.fileName(); }

    //! Where the plug-in is looked for: beside the build's command, then in the folder of the
    //! installation, wherever that was moved to as a whole.
    static QStringList usualPlaces();

private:
    QPluginLoader m_loader;
    std::unique_ptr<GuardedPlugin> m_plugin;
};

} // namespace lessonhost

#endif // PLUGINHOST_H
