// SPDX-License-Identifier: MIT
#include "files/packagetarget.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/placing.h"
#include "files/ziparchive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const QLatin1String packagePart("/package");
const QLatin1String piecesPart("/pieces");
const QLatin1String workPart("/work");
const QLatin1String filePart("/file");

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
    //! Throws LessonError about shownTarget.
    StagedFolders(const Staging &place, const QString &shownTarget)
        : staging(place.parent(), place.name())
        , package(staging, "package")
        , replaced(withReplaced(staging, shownTarget), Staging::replacedName)
    {
    }

    Folder staging;
    Folder package;
    Folder replaced;

private:
    static const Folder &withReplaced(const Folder &staging, const QString &shownTarget)
    {
        if (::mkdirat(staging.descriptor(), Staging::replacedName, 0700) != 0) {
            throw systemError(shownTarget);
        }
        return staging;
    }
};

} // namespace

// A run over many lessons would look through all its results again for each of them.
void PackageTarget::sweepOnce(const QString &folder)
{
    static QSet<QString> swept;
    if (!swept.contains(folder)) {
        swept.insert(folder);
        Staging::sweep(folder);
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
    m_staging = Staging::beside(parent.filePath());
    if ((m_kind == Files || m_kind == Directory) && ::mkdir(QFile::encodeName(directory()).constData(), 0777) != 0) {
        throw systemError(m_shownTarget);
    }
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

PackageTarget::~PackageTarget()
{
    // Over a network, a file that is open holds its folder.
    m_file.reset();
    m_spool.reset();
    Staging::leave(std::move(m_staging));
}

QString PackageTarget::directory() const
{
    return m_staging->path() + packagePart;
}

QString PackageTarget::workFolder() const
{
    const QString folder = m_staging->path() + workPart;
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST) {
        throw systemError(m_shownTarget);
    }
    return folder;
}

OutputFile &PackageTarget::file()
{
    if (!m_file) {
        m_file = std::make_unique<OutputFile>(m_staging->path() + filePart, m_shownTarget);
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

void PackageTarget::addPath(const QString &relativePath)
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
}

QString PackageTarget::makePlace(const QString &relativePath)
{
    addPath(relativePath);
    const QString place = directory() + QLatin1Char('/') + relativePath;
    makeFolders(QFileInfo(place).path(), m_shownTarget);
    return place;
}

std::unique_ptr<OutputFile> PackageTarget::newFile(const QString &relativePath)
{
    return std::make_unique<OutputFile>(makePlace(relativePath), m_shownTarget);
}

void PackageTarget::write(const QString &relativePath, const QByteArray &content)
{
    std::unique_lock lock(m_mutex);
    count(content.size());
    if (m_kind != Archive) {
        writeFile(makePlace(relativePath), content, m_shownTarget);
        return;
    }
    addPath(relativePath);
    ArchivedFile &file = m_archived[relativePath];
    lock.unlock(); // packing takes longer than all else
    Packer packer;
    QByteArray packed = packer.put(content);
    packed += packer.finish();
    lock.lock();
    file.packed = packer.file();
    spool(file, packed);
}

void PackageTarget::append(const QString &relativePath, const QByteArray &content)
{
    std::unique_lock lock(m_mutex);
    count(content.size());
    const bool isNew = !m_paths.contains(relativePath);
    if (m_kind != Archive) {
        OutputFile file(isNew ? makePlace(relativePath) : directory() + QLatin1Char('/') + relativePath, m_shownTarget,
                        OutputFile::Result, isNew ? OutputFile::New : OutputFile::Behind);
        file.put(content);
        file.finish();
        return;
    }
    if (isNew || !m_archived[relativePath].packer) { // which write() has finished
        addPath(relativePath);
        m_archived[relativePath].packer = std::make_unique<Packer>();
    }
    ArchivedFile &file = m_archived[relativePath];
    lock.unlock();
    const QByteArray packed = file.packer->put(content);
    lock.lock();
    spool(file, packed);
}

void PackageTarget::spool(ArchivedFile &file, const QByteArray &packed)
{
    if (!m_spool) {
        m_spool = std::make_unique<Spool>(m_staging->path() + piecesPart, m_shownTarget);
    }
    m_spool->put(file.pieces, packed);
}

void PackageTarget::copy(const QString &relativePath, const QString &sourceFile, const QString &sourceName)
{
    const std::scoped_lock lock(m_mutex);
    count(QFileInfo(sourceFile).size());
    if (m_kind == Archive) {
        addPath(relativePath);
        ArchivedFile &file = m_archived[relativePath];
        file.source = sourceFile;
        file.sourceName = sourceName;
        file.size = InputFile(sourceFile, sourceName).size();
    } else {
        copyFile(sourceFile, sourceName, makePlace(relativePath), m_shownTarget);
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
    if (m_isKept && ::syncfs(m_staging->parent().descriptor()) != 0 && errno != ENOSYS) {
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
    keepPermissions(m_staging->path() + filePart, m_target);
    written.finish(m_isKept);
    if (m_kind != OneFile || m_paths.isEmpty()) {
        if (!renameOver(m_staging->path() + filePart, m_target)) {
            throw systemError(m_shownTarget);
        }
        return;
    }
    const StagedFolders staged(*m_staging, m_shownTarget);
    waitForDisk();
    const QString folder = m_paths.constBegin()->section(QLatin1Char('/'), 0, 0);
    PlacingBeside placing(staged.package, m_staging->parent(), staged.replaced, QFile::encodeName(folder));
    for (const QString &path : qAsConst(m_paths)) {
        if (!placing.place(QFile::encodeName(path.mid(folder.size() + 1)))) {
            throw systemError(shownPlace(path));
        }
    }
    if (!renameOver(m_staging->path() + filePart, m_target)) {
        throw systemError(m_shownTarget);
    }
    placing.keep();
}

void PackageTarget::commitFiles()
{
    const StagedFolders staged(*m_staging, m_shownTarget);
    for (const QString &path : qAsConst(m_paths)) {
        const QString place = QFileInfo(m_target).path() + QLatin1Char('/') + path;
        checkPlace(place, shownPlace(path));
        keepPermissions(directory() + QLatin1Char('/') + path, place);
    }
    waitForDisk();
    Placing placing(staged.package, m_staging->parent(), staged.replaced);
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
    const QString replaced = m_staging->path() + QLatin1Char('/') + QLatin1String(Staging::replacedName);
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
    for (auto &[path, archived] : m_archived) {
        if (archived.packer) {
            spool(archived, archived.packer->finish());
            archived.packed = archived.packer->file();
            archived.packer.reset();
        }
    }
    ZipWriter zip(file(), m_shownTarget);
    for (const auto &[path, archived] : m_archived) {
        if (archived.source.isEmpty()) {
            const Spool::Pieces &pieces = archived.pieces;
            zip.addPacked(path, archived.packed,
                          [this, &pieces](qint64 begin, qint64 size) { return m_spool->bytes(pieces, begin, size); });
        } else {
            InputFile source(archived.source, archived.sourceName);
            zip.add(path, archived.size, [&source](qint64 begin, qint64 size) { return source.bytes(begin, size); });
        }
    }
    zip.finish();
    if (isPackedTooTightly(m_bytes, file().size())) {
        throw LessonError(say("The lesson's files pack so tightly that nobody would take it for a lesson"),
                          say("Write it as a folder"))
            .in(m_shownTarget);
    }
    commitFile();
}

} // namespace lessonhost
