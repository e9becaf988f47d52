// SPDX-License-Identifier: MIT
#include "files/packagesource.h"

#include "files/folder.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "files/spool.h"
#include "files/xmlloader.h"
#include "files/ziparchive.h"

#include <QDir>
#include <QFileInfo>

#include <map>
#include <mutex>

namespace lessonhost {

/*!
 * A file of an archive: by itself on disk, or in the spool with others.
 */
struct PackageSource::ArchiveFile
{
    qint64 size = 0;
    Spool::Pieces pieces;
    bool isOnDisk = false;
};

struct PackageSource::Archive
{
    std::map<QString, ArchiveFile> files; // by their names in the archive
    std::unique_ptr<Spool> spool;
    std::mutex mutex; // of the spool and of what is on disk
};

namespace {

const QLatin1String filesPart("/files");
const QLatin1String spoolPart("/spool");
// To make a file takes longer than to write the bytes of most.
constexpr qint64 largestInSpool = qint64(1024) * 1024;

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
    unpack();
}

PackageSource::~PackageSource() = default;

void PackageSource::unpack()
{
    m_archive = std::make_unique<Archive>();
    m_archive->spool = std::make_unique<Spool>(m_directory + spoolPart, m_path, OutputFile::Temporary);
    m_directory += filesPart;
    m_remarks = unpackZip(m_path, [this](const QString &name, qint64 size, const ZipPieces &next) {
        ArchiveFile &file = m_archive->files[name];
        file.size = size;
        file.isOnDisk = size > largestInSpool;
        if (file.isOnDisk) {
            unpackToFile(m_directory + QLatin1Char('/') + name, m_path, next);
            return;
        }
        for (QByteArray piece = next(); !piece.isEmpty(); piece = next()) {
            m_archive->spool->put(file.pieces, piece);
        }
    });
    m_outer = outerFolder(files());
    m_directory += QLatin1Char('/') + m_outer;
    m_directory.chop(1);
}

// Null for one that isn't there.
PackageSource::ArchiveFile *PackageSource::archiveFile(const QString &relativePath) const
{
    const auto found = m_archive->files.find(m_outer + relativePath);
    return found == m_archive->files.end() ? nullptr : &found->second;
}

bool PackageSource::contains(const QString &relativePath) const
{
    if (m_archive) {
        return archiveFile(relativePath);
    }
    return problemWithPackagePath(relativePath).isEmpty() && !leadsThroughLink(m_directory, relativePath)
        && QFileInfo(m_directory + QLatin1Char('/') + relativePath).isFile();
}

bool PackageSource::containsFolder(const QString &relativePath) const
{
    if (!m_archive) {
        return QFileInfo(m_directory + QLatin1Char('/') + relativePath).isDir();
    }
    const QString folder = m_outer + relativePath + QLatin1Char('/');
    const auto first = m_archive->files.lower_bound(folder);
    return first != m_archive->files.end() && first->first.startsWith(folder);
}

QString PackageSource::file(const QString &relativePath) const
{
    const Sentence problem = problemWithPackagePath(relativePath);
    if (!problem.isEmpty()) {
        throw LessonError(say("The path \"%1\" can't be used: %2").arg(relativePath, problem),
                          say("Name a file inside the package"))
            .in(m_path);
    }
    if (!m_archive && leadsThroughLink(m_directory, relativePath)) {
        throw linkError(displayName(relativePath));
    }
    const QString file = m_directory + QLatin1Char('/') + relativePath;
    ArchiveFile *packed = m_archive ? archiveFile(relativePath) : nullptr;
    if (m_archive ? !packed : !QFileInfo(file).isFile()) {
        throw LessonError(say("The package has no such file"), say("Check that it is complete"))
            .in(displayName(relativePath));
    }
    if (packed) {
        const std::scoped_lock lock(m_archive->mutex);
        if (!packed->isOnDisk) {
            makeFolders(QFileInfo(file).path(), m_path, OutputFile::Temporary);
            writeFile(file, m_archive->spool->bytes(packed->pieces, 0, packed->size), m_path, OutputFile::Temporary);
            packed->isOnDisk = true;
        }
    }
    return file;
}

qint64 PackageSource::size(const QString &relativePath) const
{
    const ArchiveFile *packed = m_archive ? archiveFile(relativePath) : nullptr;
    return packed ? packed->size : QFileInfo(file(relativePath)).size();
}

QByteArray PackageSource::content(const QString &relativePath) const
{
    const ArchiveFile *packed = m_archive ? archiveFile(relativePath) : nullptr;
    if (packed && packed->size <= largestInSpool) {
        const std::scoped_lock lock(m_archive->mutex);
        return m_archive->spool->bytes(packed->pieces, 0, packed->size);
    }
    return InputFile(file(relativePath), displayName(relativePath)).all();
}

QDomDocument PackageSource::xml(const QString &relativePath) const
{
    const ArchiveFile *packed = m_archive ? archiveFile(relativePath) : nullptr;
    const QString name = displayName(relativePath);
    return packed && packed->size <= largestInSpool ? loadXml(content(relativePath), name)
                                                    : loadXmlFile(file(relativePath), name);
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
    if (m_archive) {
        for (const auto &[name, file] : m_archive->files) {
            if (name.startsWith(m_outer)) {
                files.append(name.mid(m_outer.size()));
            }
        }
        return files;
    }
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
