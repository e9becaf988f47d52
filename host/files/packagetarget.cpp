// SPDX-License-Identifier: MIT
#include "files/packagetarget.h"

#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/placing.h"
#include "files/staginglock.h"
#include "files/ziparchive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const char *const stagingPrefix = ".lessonconv-";
const char *const lockSuffix = ".lock";
constexpr int mostLockTries = 100;
const QLatin1String packagePart("/package");
const QLatin1String workPart("/work");
const QLatin1String filePart("/file");
const char *const replacedName = "replaced";

LessonError systemError(const QString &file)
{
    return writeError(file, errno);
}

LessonError deviceError(const QString &file)
{
    return LessonError(say("There is a device or a pipe of this name"), say("Give another name, or remove it"))
        .in(file);
}

bool renameOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool exchange(const QString &one, const QString &other)
{
    return ::renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD, QFile::encodeName(other).constData(),
                       RENAME_EXCHANGE)
        == 0;
}

/*!
 * The folders in which a target lies until it is complete, and what stood in its place from then on.
 */
struct StagedFolders
{
    //! path: of the one in parent that holds the others. Throws LessonError about shownTarget.
    StagedFolders(const Folder &parent, const QString &path, const QString &shownTarget)
        : staging(parent, QFile::encodeName(QFileInfo(path).fileName()))
        , package(staging, "package")
        , replaced(withReplaced(staging, shownTarget), replacedName)
    {
    }

    Folder staging;
    Folder package;
    Folder replaced;

private:
    static const Folder &withReplaced(const Folder &staging, const QString &shownTarget)
    {
        if (::mkdirat(staging.descriptor(), replacedName, 0700) != 0) {
            throw systemError(shownTarget);
        }
        return staging;
    }
};

// What a killed run had moved aside to make place goes back, if nothing took its place since.
void restoreReplaced(const Folder &staging, const Folder &parent)
{
    const Folder replaced(staging, replacedName);
    const QVector<Folder::Entry> left = replaced.entries();
    for (const Folder::Entry &entry : left) {
        replaced.moveTo(parent, entry.name);
    }
}

} // namespace

void PackageTarget::sweep(const QString &folder)
{
    const Folder parent(folder);
    const QVector<Folder::Entry> entries = parent.entries();
    for (const Folder::Entry &entry : entries) {
        if (!entry.isFile() || !entry.name.startsWith(stagingPrefix) || !entry.name.endsWith(lockSuffix)) {
            continue;
        }
        StagingLock lock(parent, entry.name, StagingLock::Left);
        const QByteArray name = entry.name.chopped(int(qstrlen(lockSuffix)));
        const Folder staging(parent, name);
        if (lock.isHeld() && staging.isOpen() && staging.isOwn()) {
            restoreReplaced(staging, parent);
            if (!parent.remove(name)) {
                lock.leave();
            }
        }
    }
}

// A run over many lessons would look through all its results again for each of them.
void PackageTarget::sweepOnce(const QString &folder)
{
    static QSet<QString> swept;
    if (!swept.contains(folder)) {
        swept.insert(folder);
        sweep(folder);
    }
}

PackageTarget::PackageTarget(const QString &target, Kind kind, IsReplaceable isReplaceable)
    : m_shownTarget(target)
    , m_kind(kind)
    , m_isReplaceable(std::move(isReplaceable))
{
    checkKind();
    const QFileInfo info(QDir::cleanPath(target));
    m_target = info.exists() && info.isSymLink() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QFileInfo parent(QFileInfo(m_target).path());
    if (target.isEmpty() || !parent.isDir()) {
        throw LessonError(say("The folder to write into doesn't exist"),
                          say("Make the folder first, or check the path"))
            .in(target);
    }
    if (m_kind == Directory) {
        checkDirectory();
    } else if (m_kind != Files) {
        checkPlace(m_target, m_shownTarget);
    }
    sweepOnce(parent.filePath());
    makeStaging(parent.filePath());
}

// What a shell hands over for an output is a pipe in no folder.
void PackageTarget::checkKind() const
{
    struct stat there = {};
    const bool isThere = ::stat(QFile::encodeName(m_shownTarget).constData(), &there) == 0;
    if (isThere && !S_ISREG(there.st_mode) && !S_ISDIR(there.st_mode)) {
        throw deviceError(m_shownTarget);
    }
}

void PackageTarget::makeStaging(const QString &parent)
{
    m_parent = std::make_unique<Folder>(parent);
    QByteArray name;
    // The sweep of another run may take a lock file in the moment between its making and its locking.
    for (int tries = 0; tries < mostLockTries && !(m_lock && (m_lock->isHeld() || m_lock->error())); ++tries) {
        name = stagingPrefix + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
        m_lock = std::make_unique<StagingLock>(*m_parent, name + lockSuffix, StagingLock::Own);
    }
    m_staging = parent + QLatin1Char('/') + QString::fromLatin1(name);
    int error = m_lock->error();
    if (!error) {
        // Nobody else has anything to do in it.
        const bool isMade = m_lock->isHeld() && ::mkdirat(m_parent->descriptor(), name.constData(), 0700) == 0
            && (m_kind == OneFile || ::mkdir(QFile::encodeName(directory()).constData(), 0777) == 0);
        error = isMade ? 0 : errno;
    }
    if (error) {
        const LessonError problem =
            LessonError(say("Nothing can be written in this folder: %1").arg(systemReason(error)),
                        say("Check that you may write there and that there is room"))
                .in(parent)
                .ofMachine();
        removeStaging();
        throw problem;
    }
}

PackageTarget::~PackageTarget()
{
    removeStaging();
}

void PackageTarget::removeStaging()
{
    if (!m_parent->remove(QFile::encodeName(QFileInfo(m_staging).fileName()))) {
        m_lock->leave();
    }
}

QString PackageTarget::directory() const
{
    return m_staging + packagePart;
}

QString PackageTarget::workFolder() const
{
    const QString folder = m_staging + workPart;
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST) {
        throw systemError(m_shownTarget);
    }
    return folder;
}

OutputFile &PackageTarget::file()
{
    if (!m_file) {
        m_file = std::make_unique<OutputFile>(m_staging + filePart, m_shownTarget);
    }
    return *m_file;
}

void PackageTarget::expectFiles(qint64 count) const
{
    if (m_kind == Archive && count > mostFilesInArchive) {
        throw LessonError(say("The lesson has more than the %1 files that an archive can hold").arg(mostFilesInArchive),
                          say("Write it as a folder, or divide it"))
            .in(m_shownTarget);
    }
}

void PackageTarget::count(qint64 bytes)
{
    m_bytes += bytes;
    if (m_kind == Archive && m_bytes > mostBytesInArchive) {
        throw LessonError(say("The lesson has more than the 2 GiB that are read from an archive"),
                          say("Write it as a folder, or divide it"))
            .in(m_shownTarget);
    }
}

QString PackageTarget::newPlace(const QString &relativePath)
{
    const Sentence problem = problemWithPackagePath(relativePath);
    if (!problem.isEmpty()) {
        throw LessonError(say("The package can't hold a file \"%1\": %2").arg(relativePath, problem),
                          say("Give it another name"))
            .in(m_shownTarget);
    }
    if (m_paths.contains(relativePath)) {
        throw LessonError(say("The lesson has two files \"%1\"").arg(relativePath),
                          say("Give one of them another name"))
            .in(m_shownTarget);
    }
    m_paths.insert(relativePath);
    expectFiles(m_paths.size());
    if (m_kind == Files || m_kind == OneFile) {
        checkPlace(QFileInfo(m_target).path() + QLatin1Char('/') + relativePath, shownPlace(relativePath));
    }
    const QString place = directory() + QLatin1Char('/') + relativePath;
    makeFolders(QFileInfo(place).path(), m_shownTarget);
    return place;
}

std::unique_ptr<OutputFile> PackageTarget::newFile(const QString &relativePath)
{
    return std::make_unique<OutputFile>(newPlace(relativePath), m_shownTarget);
}

void PackageTarget::write(const QString &relativePath, const QByteArray &content)
{
    count(content.size());
    writeFile(newPlace(relativePath), content, m_shownTarget);
}

void PackageTarget::append(const QString &relativePath, const QByteArray &content)
{
    count(content.size());
    OutputFile file(directory() + QLatin1Char('/') + relativePath, m_shownTarget, OutputFile::Result,
                    OutputFile::Behind);
    file.put(content);
    file.finish();
}

void PackageTarget::copy(const QString &relativePath, const QString &sourceFile, const QString &sourceName)
{
    count(QFileInfo(sourceFile).size());
    copyFile(sourceFile, sourceName, newPlace(relativePath), m_shownTarget);
}

void PackageTarget::take(const QString &relativePath, const QString &file)
{
    count(QFileInfo(file).size());
    if (!renameOver(file, newPlace(relativePath))) {
        throw systemError(m_shownTarget);
    }
}

// One of several files, as the user would call it.
QString PackageTarget::shownPlace(const QString &relativePath) const
{
    return m_shownTarget.left(m_shownTarget.lastIndexOf(QLatin1Char('/')) + 1) + relativePath;
}

// Where a file is to stand, there may be another file.
void PackageTarget::checkPlace(const QString &path, const QString &shownName) const
{
    struct stat there = {};
    if (::stat(QFile::encodeName(path).constData(), &there) != 0 || S_ISREG(there.st_mode)) {
        return;
    }
    throw S_ISDIR(there.st_mode)
        ? LessonError(say("There is a folder of this name already"), say("Give another name, or remove it"))
              .in(shownName)
        : deviceError(shownName);
}

void PackageTarget::checkDirectory() const
{
    const QFileInfo info(m_target);
    if (info.exists() && !info.isDir()) {
        throw LessonError(say("There is a file of this name already"), say("Give another name, or remove the file"))
            .in(m_shownTarget);
    }
    if (info.exists() && !QDir(m_target).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
        && !(m_isReplaceable && m_isReplaceable(m_target))) {
        throw LessonError(say("There is a folder of this name already, and it is no lesson"),
                          say("Give another name, or remove the folder"))
            .in(m_shownTarget);
    }
}

void PackageTarget::keepPermissions(const QString &file, const QString &place) const
{
    struct stat there = {};
    if (::stat(QFile::encodeName(place).constData(), &there) == 0
        && ::chmod(QFile::encodeName(file).constData(), there.st_mode & 0777) != 0) {
        throw systemError(m_shownTarget);
    }
}

// One wait for all files is shorter than one for each.
void PackageTarget::waitForDisk() const
{
    if (m_isKept && ::syncfs(m_parent->descriptor()) != 0 && errno != ENOSYS) {
        throw systemError(m_shownTarget);
    }
}

void PackageTarget::commit()
{
    switch (m_kind) {
    case OneFile:
        return commitFile();
    case Files:
        return commitFiles();
    case Directory:
        return commitDirectory();
    case Archive:
        return commitArchive();
    }
}

// What lies beside it comes first, so that nobody finds the file without.
void PackageTarget::commitFile()
{
    checkPlace(m_target, m_shownTarget);
    OutputFile &written = file();
    keepPermissions(m_staging + filePart, m_target);
    written.finish(m_isKept);
    if (m_kind != OneFile || m_paths.isEmpty()) {
        if (!renameOver(m_staging + filePart, m_target)) {
            throw systemError(m_shownTarget);
        }
        return;
    }
    const StagedFolders staged(*m_parent, m_staging, m_shownTarget);
    waitForDisk();
    const QString folder = m_paths.constBegin()->section(QLatin1Char('/'), 0, 0);
    PlacingBeside placing(staged.package, *m_parent, staged.replaced, QFile::encodeName(folder));
    for (const QString &path : qAsConst(m_paths)) {
        if (!placing.place(QFile::encodeName(path.mid(folder.size() + 1)))) {
            throw systemError(shownPlace(path));
        }
    }
    if (!renameOver(m_staging + filePart, m_target)) {
        throw systemError(m_shownTarget);
    }
    placing.keep();
}

void PackageTarget::commitFiles()
{
    const StagedFolders staged(*m_parent, m_staging, m_shownTarget);
    for (const QString &path : qAsConst(m_paths)) {
        const QString place = QFileInfo(m_target).path() + QLatin1Char('/') + path;
        checkPlace(place, shownPlace(path));
        keepPermissions(directory() + QLatin1Char('/') + path, place);
    }
    waitForDisk();
    Placing placing(staged.package, *m_parent, staged.replaced);
    for (const QString &path : qAsConst(m_paths)) {
        if (!placing.place(QFile::encodeName(path))) {
            throw systemError(m_shownTarget);
        }
    }
    placing.keep();
}

void PackageTarget::commitDirectory()
{
    checkDirectory();
    waitForDisk();
    if (!QFileInfo::exists(m_target)) {
        if (!renameOver(directory(), m_target)) {
            throw systemError(m_shownTarget);
        }
        return;
    }
    if (exchange(directory(), m_target)) {
        return;
    }
    // Where the file system can't exchange two folders: the old one moves aside, and back if the new one can't come.
    const QString replaced = m_staging + QLatin1Char('/') + QLatin1String(replacedName);
    const QString aside = replaced + QLatin1Char('/') + QFileInfo(m_target).fileName();
    if (::mkdir(QFile::encodeName(replaced).constData(), 0700) != 0 || !renameOver(m_target, aside)) {
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
    packZip(directory(), file(), m_shownTarget);
    if (isPackedTooTightly(m_bytes, file().size())) {
        throw LessonError(say("The lesson's files pack so tightly that nobody would take it for a lesson"),
                          say("Write it as a folder"))
            .in(m_shownTarget);
    }
    commitFile();
}

} // namespace lessonhost
