// SPDX-License-Identifier: MIT
#ifndef PACKAGESOURCE_H
#define PACKAGESOURCE_H

#include "files/workfolder.h"
#include "sentences/sentence.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <QStringList>

#include <memory>

namespace lessonhost {

/*!
 * A package to read: a directory as it is, or an archive unpacked for the object's life. Small files of an archive wait
 * together, and become files of a temporary directory when somebody asks for one. Any thread may ask.
 *
 * Archives come from strangers. Entries that are absolute, lead out of the package, are links or devices, repeat a
 * name, or unpack to more than an honest lesson needs are refused, and nothing of the archive is used. Where all of it
 * lies in one folder, that is the package.
 */
class PackageSource
{
public:
    //! singleFile: a file that is no archive counts as a package with this one file in it; empty for packages that are
    //! always archives. Throws LessonError.
    explicit PackageSource(const QString &path, const QString &singleFile = {});
    ~PackageSource();

    //! What the user called it, for messages.
    QString path() const { return m_path; }
    //! The directory on disk, without a separator at its end. Of an archive, not all need be there.
    QString directory() const { return m_directory; }

    bool contains(const QString &relativePath) const;
    bool containsFolder(const QString &relativePath) const;
    //! The file on disk. Throws LessonError for a path that is unsafe, leads through a link, or isn't a file here.
    QString file(const QString &relativePath) const;
    //! In bytes. Throws as file() does, and so do the next two.
    qint64 size(const QString &relativePath) const;
    QByteArray content(const QString &relativePath) const;
    //! What loadXmlFile() makes of the file.
    QDomDocument xml(const QString &relativePath) const;
    //! Name for messages: the package and the path inside.
    QString displayName(const QString &relativePath) const;
    //! What was read otherwise than it stands in the archive, as sentences without a full stop.
    Sentences remarks() const { return m_remarks; }
    //! All files, ascending, relative to the package. Throws LessonError for links, devices, and names that can't be
    //! told.
    QStringList files() const;

private:
    struct Archive;
    struct ArchiveFile;

    void unpack();
    ArchiveFile *archiveFile(const QString &relativePath) const;

    QString m_path;
    QString m_directory;
    QString m_singleFile; // that the file itself is
    Sentences m_remarks;
    QString m_outer; // the folder in an archive that holds everything, with a separator at its end
    std::unique_ptr<WorkFolder> m_unpacked;
    std::unique_ptr<Archive> m_archive; // null for others
};

} // namespace lessonhost

#endif // PACKAGESOURCE_H
