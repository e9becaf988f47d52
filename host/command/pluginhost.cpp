// SPDX-License-Identifier: MIT
#include "command/pluginhost.h"

#include "files/lessonerror.h"
#include "izqtransformation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

namespace lessonhost {

namespace {

const QLatin1String pluginFile("libzqtransformation.so");

} // namespace

PluginHost::PluginHost(const QString &path)
{
    QString file = path;
    if (file.isEmpty()) {
        for (const QString &place : usualPlaces()) {
            const QString candidate = place + QLatin1Char('/') + pluginFile;
            if (QFileInfo(candidate).isFile()) {
                file = candidate;
                break;
            }
        }
        if (file.isEmpty()) {
            throw LessonError(say("The plug-in %1 was not found").arg(pluginFile),
                              say("Build the project, or say where the plug-in is with --plugin"));
        }
    }
    if (!QFileInfo(file).isFile()) {
        throw LessonError(say("There is no such plug-in"), say("Check the path given to --plugin")).in(file);
    }
    m_loader.setFileName(QFileInfo(file).absoluteFilePath());
    auto *const plugin = qobject_cast<IZQTransformation *>(m_loader.instance());
    if (!plugin) {
        throw LessonError(m_loader.isLoaded() ? say("This plug-in converts no lessons")
                                              : say("The plug-in can't be loaded: %1").arg(m_loader.errorString()),
                          say("Build the plug-in again with the same Qt as the command"))
            .in(file);
    }
    m_plugin = std::make_unique<GuardedPlugin>(plugin);
}

QString PluginHost::version() const
{
    return m_loader.metaData().value(QLatin1String("IID")).toString().section(QLatin1Char('/'), -1);
}

QStringList PluginHost::usualPlaces()
{
    const QString beside = QCoreApplication::applicationDirPath();
    return {QDir::cleanPath(beside + QLatin1String("/../lib")),
            QDir::cleanPath(beside + QLatin1String("/../" PLUGIN_FOLDER_BELOW_PREFIX)),
            QStringLiteral(INSTALLED_PLUGIN_FOLDER), beside + QLatin1String("/zqtransformation")};
}

} // namespace lessonhost
