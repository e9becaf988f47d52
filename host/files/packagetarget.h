// SPDX-License-Identifier: MIT
#ifndef PACKAGETARGET_H
#define PACKAGETARGET_H

#include "files/outputfile.h"
#include "files/packer.h"
#include "files/spool.h"
#include "files/staging.h"

#include <QSet>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <mutex>

namespace lessonhost {

/*!
 * What is being written: a staging folder beside the target, put in the target's place at the end.
 *
 * An object that goes without commit() takes its staging folder with it. A run that was killed leaves one behind; the
 * next run that writes beside it removes it. Every function throws LessonError.
 */
class PackageTarget
{
public:
    enum Kind {
        OneFile, //!< and, if any are written, files in one folder beside it
        Files, //!< several in the target's folder; the target is what all of them are called together
        Directory,
        Archive
    };
    //! Whether a folder that is there already and isn't empty may be replaced.
    using IsReplaceable = std::function<bool(const QString &directory)>;

    //! Refuses at once what could not be put in place at the end.
    explicit PackageTarget(const QString &target, Kind kind = OneFile, IsReplaceable isReplaceable = {});
    ~PackageTarget();
    PackageTarget(const PackageTarget &) = delete;
    PackageTarget &operator=(const PackageTarget &) = delete;

    //! What the user called it, for messages.
    QString target() const { return m_shownTarget; }
    //! A folder for what is only needed meanwhile, without a separator at its end.
    QString workFolder() const;

    //! The file to write, for a target that is a single file.
    OutputFile &file();

    //! What is not for the user needn't wait for the disk.
    void setKept(bool isKept) { m_isKept = isKept; }

    //! How many files are to come. Refuses what no reader would take, before the work is done.
    void expectFiles(qint64 count) const;

    //! A new file of a folder or of several files, by its path relative to the target. Refuses unsafe paths and one
    //! that was given out before, as the next three do.
    std::unique_ptr<OutputFile> newFile(const QString &relativePath);
    //! It may be called in any thread, as append() and copy() may.
    void write(const QString &relativePath, const QByteArray &content);
    //! Puts bytes behind what append() has put into the file before. One thread at a time does so.
    void append(const QString &relativePath, const QByteArray &content);
    //! sourceName stands for the source in messages. What goes into an archive stays where it is until commit().
    void copy(const QString &relativePath, const QString &sourceFile, const QString &sourceName);

    //! Puts what was written in the place of the target, all of it or nothing.
    void commit();

private:
    /*!
     * A file of an archive: what was packed of it, or where it is copied from.
     */
    struct ArchivedFile
    {
        std::unique_ptr<Packer> packer; // while more may come
        PackedFile packed;
        Spool::Pieces pieces;
        QString source;
        QString sourceName;
        qint64 size = 0;
    };

    static void sweepOnce(const QString &folder);
    QString directory() const;
    void addPath(const QString &relativePath);
    QString makePlace(const QString &relativePath);
    void spool(ArchivedFile &file, const QByteArray &packed);
    void count(qint64 bytes);
    QString shownPlace(const QString &relativePath) const;
    void checkPlace(const QString &path, const QString &shownName) const;
    void checkDirectory() const;
    void checkKind() const;
    void keepPermissions(const QString &file, const QString &place) const;
    void waitForDisk() const;
    void commitFile();
    void commitFiles();
    void commitDirectory();
    void commitArchive();

    QString m_shownTarget;
    QString m_target; // absolute, links resolved
    Kind m_kind;
    IsReplaceable m_isReplaceable;
    std::unique_ptr<Staging> m_staging;
    std::unique_ptr<OutputFile> m_file;
    QSet<QString> m_paths;
    std::mutex m_mutex; // of what is put into it
    std::unique_ptr<Spool> m_spool; // of an archive
    std::map<QString, ArchivedFile> m_archived;
    qint64 m_bytes = 0; // of all files
    bool m_isKept = true;
};

} // namespace lessonhost

#endif // PACKAGETARGET_H
