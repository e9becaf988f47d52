#include "files/packagesource.h"

#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/ziparchive.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace lessonhost {

namespace {

// True if the path or a folder on its way is a link; only what lies below the package counts.
bool leadsThroughLink(const QString &directory, const QString &relativePath)
{
    QString path = directory;
    const QStringList parts = relativePath.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        path += QLatin1Char('/') + part;
        if (QFileInfo(path).isSymLink()) {
            return true;
        }
    }
    return false;
}

} // namespace

PackageSource::PackageSource(const QString &path)
    : m_path(path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        throw LessonError(QStringLiteral("There is no such file or folder"), QStringLiteral("Check the path")).in(path);
    }
    if (!info.isReadable()) {
        throw LessonError(QStringLiteral("It can't be read"), QStringLiteral("Check that you may read it")).in(path);
    }
    if (info.isDir()) {
        m_directory = QDir(path).absolutePath();
        return;
    }
    m_unpacked = std::make_unique<WorkFolder>();
    if (!m_unpacked->isValid()) {
        throw LessonError(QStringLiteral("No temporary folder can be made: %1").arg(m_unpacked->errorString()),
                          QStringLiteral("Make room in the folder for temporary files"));
    }
    m_directory = m_unpacked->path();
    unpackZip(path, m_directory);
}

bool PackageSource::contains(const QString &relativePath) const
{
    return problemWithPackagePath(relativePath).isEmpty() && !leadsThroughLink(m_directory, relativePath)
        && QFileInfo(m_directory + QLatin1Char('/') + relativePath).isFile();
}

QString PackageSource::file(const QString &relativePath) const
{
    const QString problem = problemWithPackagePath(relativePath);
    if (!problem.isEmpty()) {
        throw LessonError(QStringLiteral("The path \"%1\" can't be used: %2").arg(relativePath, problem),
                          QStringLiteral("Name a file inside the package"))
            .in(m_path);
    }
    if (leadsThroughLink(m_directory, relativePath)) {
        throw LessonError(QStringLiteral("This is a link, which a package must not hold"),
                          QStringLiteral("Put the file itself in its place"))
            .in(displayName(relativePath));
    }
    const QString file = m_directory + QLatin1Char('/') + relativePath;
    if (!QFileInfo(file).isFile()) {
        throw LessonError(QStringLiteral("The package has no such file"), QStringLiteral("Check that it is complete"))
            .in(displayName(relativePath));
    }
    return file;
}

QString PackageSource::displayName(const QString &relativePath) const
{
    return m_path + (m_path.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + relativePath;
}

QStringList PackageSource::files() const
{
    QStringList files;
    const QDir root(m_directory);
    QDirIterator it(m_directory, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(root.relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

} // namespace lessonhost
