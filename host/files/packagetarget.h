#ifndef PACKAGETARGET_H
#define PACKAGETARGET_H

#include <QIODevice>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

namespace lessonhost {

class StagingLock;

/*!
 * A file or package being written: a staging folder beside the target, put in the target's place at the end.
 *
 * An object that goes without commit...() takes its staging folder with it. A run that was killed leaves one behind;
 * the next run that writes beside it removes it. Every function throws LessonError.
 */
class PackageTarget
{
public:
    explicit PackageTarget(const QString &target);
    ~PackageTarget();
    PackageTarget(const PackageTarget &) = delete;
    PackageTarget &operator=(const PackageTarget &) = delete;

    //! Removes what runs that are no more left behind in a folder.
    static void sweep(const QString &folder);

    //! What the user called it, for messages.
    QString target() const { return m_shownTarget; }
    //! The folder in which a package is put together, without a separator at its end.
    QString directory() const;
    //! The file to write, for a target that is a single file.
    QString file() const;

    //! Makes the folders on the way to a path in the package and gives the file on disk. Refuses unsafe paths and one
    //! that was given out before.
    QString makeFile(const QString &relativePath);
    void write(const QString &relativePath, const QByteArray &content);
    //! Writes behind what write() has written.
    void append(const QString &relativePath, const QByteArray &content);
    void copy(const QString &relativePath, const QString &sourceFile);

    //! Puts the single file in the place of the target.
    void commitFile();
    //! Puts the folder in the place of the target. A folder that is there already is only replaced if it is empty or
    //! isReplaceable says so.
    void commitDirectory(const std::function<bool(const QString &directory)> &isReplaceable);
    //! Puts an archive of the folder in the place of the target.
    void commitArchive();

private:
    void put(const QString &path, const QByteArray &content, QIODevice::OpenMode mode) const;
    void checkTargetIsNoFolder() const;

    QString m_shownTarget;
    QString m_target; // absolute, links resolved
    QString m_staging;
    std::unique_ptr<StagingLock> m_lock; // held while the staging folder is in use
    QSet<QString> m_paths;
};

} // namespace lessonhost

#endif // PACKAGETARGET_H
