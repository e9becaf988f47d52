// SPDX-License-Identifier: MIT
#include "files/lessonfiles.h"

#include "files/packagenames.h"

#include <QFileInfo>
#include <QUrl>

namespace lessonhost {

namespace {

QString fileNameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

// References stand in XML and HTML alike.
QString pathOf(const QString &reference)
{
    const QString path = plainPath(reference);
    return path.startsWith(QLatin1String("file:")) ? plainPath(QUrl(path).toLocalFile()) : path;
}

} // namespace

void LessonFiles::add(const QString &relativePath, const QString &sourceFile)
{
    m_sources.insert(relativePath, sourceFile);
    m_pathsByName[fileNameOf(relativePath)].append(relativePath);
}

QString LessonFiles::find(const QString &reference)
{
    const QString plain = pathOf(reference);
    QString path = plain;
    if (!m_sources.contains(path)) {
        const QStringList candidates = m_pathsByName.value(fileNameOf(plain));
        if (candidates.size() != 1) {
            return {};
        }
        path = candidates.first();
    }
    m_used.insert(path);
    return m_sources.value(path);
}

QString LessonFiles::nameIn(const QString &folder, const QString &sourceFile, const QString &wantedName)
{
    const QString key = folder + QLatin1Char('/') + wantedName + QLatin1Char('/') + sourceFile;
    if (m_names.contains(key)) {
        return m_names.value(key);
    }
    QString wanted = wantedName.isEmpty() ? fileNameOf(sourceFile) : wantedName;
    for (const char c : {'#', '%', '?', '&', '"', '<', '>'}) {
        // They mean something else in a reference.
        wanted.replace(QLatin1Char(c), QLatin1Char('_'));
    }
    const QFileInfo parts(wanted);
    const QString suffix = parts.suffix().isEmpty() ? QString() : QString(QLatin1Char('.') + parts.suffix());
    const QString stem = wanted.chopped(suffix.size());
    QString name = wanted;
    for (int i = 2; m_takenNames.contains(folder + QLatin1Char('/') + name.toLower()); ++i) {
        name = stem + QLatin1Char('-') + QString::number(i) + suffix;
    }
    m_takenNames.insert(folder + QLatin1Char('/') + name.toLower());
    m_names.insert(key, name);
    return name;
}

QStringList LessonFiles::unused() const
{
    QStringList paths;
    for (auto it = m_sources.constBegin(); it != m_sources.constEnd(); ++it) {
        if (!m_used.contains(it.key())) {
            paths.append(it.key());
        }
    }
    paths.sort();
    return paths;
}

QStringList LessonFiles::paths() const
{
    QStringList paths = m_sources.keys();
    paths.sort();
    return paths;
}

} // namespace lessonhost
