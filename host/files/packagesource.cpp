// SPDX-License-Identifier: MIT
#include "files/packagesource.h"

#include "files/folder.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "files/ziparchive.h"

#include <QDir>
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

LessonError linkError(const QString &shownName)
{
    return LessonError(say("This is a link, which a package must not hold"), say("Put the file itself in its place"))
        .in(shownName);
}

// What is left out here would be missing in the output without a word.
void checkFolderEntry(const Folder::Entry &entry, const QString &shownName)
{
    if (entry.isLink()) {
        throw linkError(shownName);
    }
    if (entry.text().isEmpty()) {
        throw LessonError(say("The name of this file is no UTF-8, so that no lesson can call it"),
                          say("Give it another name"))
            .in(shownName);
    }
    if (!entry.isFolder() && !entry.isFile()) {
        throw LessonError(say("This is a pipe or a device, which a package must not hold"),
                          say("Remove it from the folder"))
            .in(shownName);
    }
}

// A document as it is, and no archive.
bool isText(const QString &path)
{
    InputFile file(path);
    QByteArray start = file.bytes(0, qMin<qint64>(file.size(), 64));
    if (start.startsWith("\xef\xbb\xbf")) {
        start.remove(0, 3);
    }
    const bool isWide = start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff");
    return isWide || start.trimmed().startsWith('<');
}

} // namespace

PackageSource::PackageSource(const QString &path, const QString &singleFile)
    : m_path(path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        throw LessonError(say("There is no such file or folder"), say("Check the path")).in(path);
    }
    if (!info.isReadable()) {
        throw LessonError(say("It can't be read"), say("Check that you may read it")).in(path);
    }
    if (info.isDir()) {
        m_directory = QDir(path).absolutePath();
        return;
    }
    m_unpacked = std::make_unique<WorkFolder>();
    m_directory = m_unpacked->path();
    if (!singleFile.isEmpty() && isText(path)) {
        m_singleFile = singleFile;
        copyFile(path, path, m_directory + QLatin1Char('/') + singleFile, path, OutputFile::Temporary);
        return;
    }
    m_remarks = unpackZip(path, m_directory);
    m_outer = outerFolder(files());
    m_directory += QLatin1Char('/') + m_outer;
    m_directory.chop(1);
}

bool PackageSource::contains(const QString &relativePath) const
{
    return problemWithPackagePath(relativePath).isEmpty() && !leadsThroughLink(m_directory, relativePath)
        && QFileInfo(m_directory + QLatin1Char('/') + relativePath).isFile();
}

QString PackageSource::file(const QString &relativePath) const
{
    const Sentence problem = problemWithPackagePath(relativePath);
    if (!problem.isEmpty()) {
        throw LessonError(say("The path \"%1\" can't be used: %2").arg(relativePath, problem),
                          say("Name a file inside the package"))
            .in(m_path);
    }
    if (leadsThroughLink(m_directory, relativePath)) {
        throw linkError(displayName(relativePath));
    }
    const QString file = m_directory + QLatin1Char('/') + relativePath;
    if (!QFileInfo(file).isFile()) {
        throw LessonError(say("The package has no such file"), say("Check that it is complete"))
            .in(displayName(relativePath));
    }
    return file;
}

QString PackageSource::displayName(const QString &relativePath) const
{
    if (!m_singleFile.isEmpty() && relativePath == m_singleFile) {
        return m_path;
    }
    return m_path + (m_path.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + relativePath;
}

QStringList PackageSource::files() const
{
    QStringList files;
    // A stack of its own: folders may lie in each other deeper than calls may.
    QStringList waiting{QString()};
    while (!waiting.isEmpty()) {
        const QString place = waiting.takeLast();
        int error = 0;
        const QVector<Folder::Entry> entries = Folder(m_directory + QLatin1Char('/') + place).entries(&error);
        if (error) {
            throw LessonError(say("The folder can't be read: %1").arg(systemReason(error)),
                              say("Check that you may read it"))
                .in(place.isEmpty() ? m_path : displayName(place))
                .ofMachine();
        }
        for (const Folder::Entry &entry : entries) {
            const QString path = place + entry.text();
            checkFolderEntry(entry, displayName(place + entry.shown()));
            if (entry.isFolder()) {
                waiting.append(path + QLatin1Char('/'));
            } else {
                files.append(path);
            }
        }
    }
    files.sort();
    return files;
}

} // namespace lessonhost
