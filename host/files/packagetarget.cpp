#include "files/packagetarget.h"

#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/ziparchive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

/*!
 * A lock file that the system gives up when its process ends, at whatever moment that is. Who holds it removes it.
 */
class StagingLock
{
public:
    enum Kind { Own, Left }; //!< a new one, or one that is there and whose run may be no more

    StagingLock(const QString &file, Kind kind)
        : m_file(QFile::encodeName(file))
        , m_descriptor(::open(m_file.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | (kind == Own ? O_CREAT : 0), 0666))
    {
        if (m_descriptor < 0) {
            return;
        }
        // Where the file system knows no locks, a run may go on, and nothing is swept.
        const bool isLocked = ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 || (kind == Own && errno != EWOULDBLOCK);
        m_isHeld = isLocked && isStillThere();
    }

    ~StagingLock()
    {
        if (m_isHeld) {
            ::unlink(m_file.constData());
        }
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    StagingLock(const StagingLock &) = delete;
    StagingLock &operator=(const StagingLock &) = delete;

    bool isHeld() const { return m_isHeld; }

private:
    // A sweep may have removed it between the two steps.
    bool isStillThere() const
    {
        struct stat opened = {};
        struct stat there = {};
        return ::fstat(m_descriptor, &opened) == 0 && ::stat(m_file.constData(), &there) == 0
            && opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
    }

    QByteArray m_file;
    int m_descriptor;
    bool m_isHeld = false;
};

namespace {

const QLatin1String stagingPrefix(".lessonconv-");
const QLatin1String lockSuffix(".lock");
constexpr int mostLockTries = 100;
const QLatin1String packagePart("/package");
const QLatin1String filePart("/file");
const QLatin1String replacedPart("/replaced");

LessonError writeError(const QString &file, const QString &reason)
{
    return LessonError(QStringLiteral("It can't be written: %1").arg(reason),
                       QStringLiteral("Check that there is room and that you may write there"))
        .in(file);
}

LessonError systemError(const QString &file)
{
    return writeError(file, QString::fromLocal8Bit(std::strerror(errno)));
}

bool renameOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool exchange(const QString &one, const QString &other)
{
#ifdef RENAME_EXCHANGE
    return renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD, QFile::encodeName(other).constData(),
                     RENAME_EXCHANGE)
        == 0;
#else
    Q_UNUSED(one)
    Q_UNUSED(other)
    return false;
#endif
}

void flushToDisk(const QString &file)
{
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

// What a killed run had moved aside to make place goes back, if nothing took its place since.
void restoreReplaced(const QString &staging, const QString &parent)
{
    const QDir replaced(staging + replacedPart);
    const QStringList names = replaced.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QString place = parent + QLatin1Char('/') + name;
        if (!QFileInfo::exists(place)) {
            renameOver(replaced.filePath(name), place);
        }
    }
}

} // namespace

void PackageTarget::sweep(const QString &folder)
{
    const QStringList locks = QDir(folder).entryList({stagingPrefix + QLatin1Char('*') + lockSuffix},
                                                     QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : locks) {
        const QString lockPath = folder + QLatin1Char('/') + name;
        const StagingLock lock(lockPath, StagingLock::Left);
        if (lock.isHeld()) {
            const QString staging = lockPath.chopped(lockSuffix.size());
            restoreReplaced(staging, folder);
            QDir(staging).removeRecursively();
        }
    }
}

PackageTarget::PackageTarget(const QString &target)
    : m_shownTarget(target)
{
    const QFileInfo info(QDir::cleanPath(target));
    m_target = info.exists() && info.isSymLink() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QFileInfo parent(QFileInfo(m_target).path());
    if (target.isEmpty() || !parent.isDir()) {
        throw LessonError(QStringLiteral("The folder to write into doesn't exist"),
                          QStringLiteral("Make the folder first, or check the path"))
            .in(target);
    }
    sweep(parent.filePath());
    // The sweep of another run may take a lock file in the moment between its making and its locking.
    for (int tries = 0; tries < mostLockTries && !(m_lock && m_lock->isHeld()); ++tries) {
        m_staging = parent.filePath() + QLatin1Char('/') + stagingPrefix
            + QString::number(QRandomGenerator::system()->generate64(), 36);
        m_lock = std::make_unique<StagingLock>(m_staging + lockSuffix, StagingLock::Own);
    }
    if (!m_lock->isHeld() || !QDir().mkpath(directory())) {
        throw LessonError(QStringLiteral("Nothing can be written in this folder"),
                          QStringLiteral("Check that you may write there and that there is room"))
            .in(parent.filePath());
    }
}

PackageTarget::~PackageTarget()
{
    QDir(m_staging).removeRecursively();
}

QString PackageTarget::directory() const
{
    return m_staging + packagePart;
}

QString PackageTarget::file() const
{
    return m_staging + filePart;
}

QString PackageTarget::makeFile(const QString &relativePath)
{
    const QString problem = problemWithPackagePath(relativePath);
    if (!problem.isEmpty()) {
        throw LessonError(QStringLiteral("The package can't hold a file \"%1\": %2").arg(relativePath, problem),
                          QStringLiteral("Give it another name"))
            .in(m_shownTarget);
    }
    if (m_paths.contains(relativePath)) {
        throw LessonError(QStringLiteral("The lesson has two files \"%1\"").arg(relativePath),
                          QStringLiteral("Give one of them another name"))
            .in(m_shownTarget);
    }
    m_paths.insert(relativePath);
    const QString file = directory() + QLatin1Char('/') + relativePath;
    if (!QDir().mkpath(QFileInfo(file).path())) {
        throw systemError(m_shownTarget);
    }
    return file;
}

void PackageTarget::write(const QString &relativePath, const QByteArray &content)
{
    put(makeFile(relativePath), content, QIODevice::WriteOnly);
}

void PackageTarget::append(const QString &relativePath, const QByteArray &content)
{
    put(directory() + QLatin1Char('/') + relativePath, content, QIODevice::Append);
}

void PackageTarget::put(const QString &path, const QByteArray &content, QIODevice::OpenMode mode) const
{
    QFile file(path);
    if (!file.open(mode) || file.write(content) != content.size() || !file.flush()) {
        throw writeError(m_shownTarget, file.errorString());
    }
}

void PackageTarget::copy(const QString &relativePath, const QString &sourceFile)
{
    QFile source(sourceFile);
    const QString file = makeFile(relativePath);
    if (!source.copy(file)) {
        throw writeError(m_shownTarget, source.errorString());
    }
    QFile::setPermissions(file, QFile::permissions(file) | QFileDevice::WriteOwner);
}

void PackageTarget::checkTargetIsNoFolder() const
{
    const QFileInfo info(m_target);
    if (info.isDir()) {
        throw LessonError(QStringLiteral("There is a folder of this name already"),
                          QStringLiteral("Give another name, or remove the folder"))
            .in(m_shownTarget);
    }
    if (info.exists() && !info.isWritable()) {
        throw LessonError(QStringLiteral("The file is protected against writing"),
                          QStringLiteral("Give another name, or allow writing"))
            .in(m_shownTarget);
    }
}

void PackageTarget::commitFile()
{
    checkTargetIsNoFolder();
    if (QFileInfo::exists(m_target)) {
        QFile::setPermissions(file(), QFile::permissions(m_target));
    }
    flushToDisk(file());
    if (!renameOver(file(), m_target)) {
        throw systemError(m_shownTarget);
    }
}

void PackageTarget::commitDirectory(const std::function<bool(const QString &)> &isReplaceable)
{
    const QFileInfo info(m_target);
    if (info.exists() && !info.isDir()) {
        throw LessonError(QStringLiteral("There is a file of this name already"),
                          QStringLiteral("Give another name, or remove the file"))
            .in(m_shownTarget);
    }
    if (info.exists() && !QDir(m_target).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
        && !isReplaceable(m_target)) {
        throw LessonError(QStringLiteral("There is a folder of this name already, and it is no lesson"),
                          QStringLiteral("Give another name, or remove the folder"))
            .in(m_shownTarget);
    }
    if (!info.exists()) {
        if (!renameOver(directory(), m_target)) {
            throw systemError(m_shownTarget);
        }
        return;
    }
    if (exchange(directory(), m_target)) {
        return;
    }
    // Where the file system can't exchange two folders: the old one moves aside, and back if the new one can't come.
    const QString aside = m_staging + replacedPart + QLatin1Char('/') + info.fileName();
    if (!QDir().mkpath(m_staging + replacedPart) || !renameOver(m_target, aside)) {
        throw systemError(m_shownTarget);
    }
    if (!renameOver(directory(), m_target)) {
        const LessonError error = systemError(m_shownTarget);
        renameOver(aside, m_target);
        throw error;
    }
}

void PackageTarget::commitArchive()
{
    checkTargetIsNoFolder();
    try {
        packZip(directory(), file());
    } catch (LessonError &error) {
        throw error.in(m_shownTarget);
    }
    commitFile();
}

} // namespace lessonhost
