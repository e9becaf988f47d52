#include "files/ziparchive.h"

#include "files/checksum.h"
#include "files/lessonerror.h"
#include "files/packagenames.h"

#include <KZip>
#include <KZipFileEntry>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <memory>

namespace lessonhost {

namespace {

constexpr int maximumEntries = 100000;
constexpr qint64 maximumUnpackedSize = qint64(2) * 1024 * 1024 * 1024;
// Text of strokes packs to about a tenth, empty pictures to about a hundredth. Small entries are let pass.
constexpr qint64 maximumRatio = 1000;
constexpr qint64 smallEntry = qint64(1024) * 1024;
constexpr qint64 chunkSize = qint64(256) * 1024;

[[noreturn]] void refuse(const QString &archive, const QString &problem)
{
    throw LessonError(problem, QStringLiteral("Nothing was unpacked. Ask for a package from a source you trust"))
        .in(archive);
}

[[noreturn]] void incomplete(const QString &archive)
{
    throw LessonError(QStringLiteral("This is no zip archive, or a part of it is missing"),
                      QStringLiteral("Copy or download the file again"))
        .in(archive);
}

/*!
 * The list of entries at an archive's end. It is read here as well as by the archive library, which keeps only one of
 * two entries with the same name and says nothing about it.
 */
class CentralDirectory
{
public:
    struct Entry
    {
        QString name;
        qint64 packedSize = 0;
        qint64 size = 0;
        quint32 crc = 0;
        bool isDirectory = false;
        bool isSpecial = false; // link, device or the like
        bool isEncrypted = false;
    };

    explicit CentralDirectory(const QString &archive)
    {
        QFile file(archive);
        if (!file.open(QIODevice::ReadOnly)) {
            throw LessonError(QStringLiteral("The file can't be read: %1").arg(file.errorString()),
                              QStringLiteral("Check that you may read it"))
                .in(archive);
        }
        const qint64 tailSize = qMin<qint64>(file.size(), endSize + 0xffff);
        file.seek(file.size() - tailSize);
        const QByteArray tail = file.read(tailSize);
        const int end = tail.lastIndexOf(QByteArray("PK\5\6", 4));
        if (end < 0 || tail.size() - end < endSize) {
            incomplete(archive);
        }
        const int count = number16(tail, end + 10);
        const qint64 size = number32(tail, end + 12);
        const qint64 offset = number32(tail, end + 16);
        if (offset + size > file.size() || !file.seek(offset)) {
            incomplete(archive);
        }
        if (!readEntries(file.read(size), count)) {
            incomplete(archive);
        }
    }

    const QVector<Entry> &entries() const { return m_entries; }

private:
    static constexpr int endSize = 22;
    static constexpr int headerSize = 46;

    static quint16 number16(const QByteArray &bytes, int offset)
    {
        return qFromLittleEndian<quint16>(bytes.constData() + offset);
    }
    static quint32 number32(const QByteArray &bytes, int offset)
    {
        return qFromLittleEndian<quint32>(bytes.constData() + offset);
    }

    // The count says how many entries there are beyond the last multiple of 65536.
    bool readEntries(const QByteArray &list, int count)
    {
        int at = 0;
        while (at < list.size() && m_entries.size() <= maximumEntries) {
            if (list.size() - at < headerSize || number32(list, at) != 0x02014b50) {
                return false;
            }
            const int nameSize = number16(list, at + 28);
            const int following = nameSize + number16(list, at + 30) + number16(list, at + 32);
            if (list.size() - at - headerSize < following) {
                return false;
            }
            Entry entry;
            entry.isEncrypted = (number16(list, at + 8) & 1) != 0;
            entry.crc = number32(list, at + 16);
            entry.packedSize = number32(list, at + 20);
            entry.size = number32(list, at + 24);
            entry.name = QString::fromUtf8(list.constData() + at + headerSize, nameSize);
            entry.isDirectory = entry.name.endsWith(QLatin1Char('/'));
            const quint32 fileKind = (number32(list, at + 38) >> 16) & 0170000;
            entry.isSpecial = fileKind != 0 && fileKind != 0100000 && fileKind != 0040000;
            m_entries.append(entry);
            at += headerSize + following;
        }
        return m_entries.size() > maximumEntries || (m_entries.size() & 0xffff) == count;
    }

    QVector<Entry> m_entries;
};

void checkEntries(const QString &archive, const QVector<CentralDirectory::Entry> &entries)
{
    if (entries.size() > maximumEntries) {
        refuse(archive, QStringLiteral("The archive has more than %1 entries").arg(maximumEntries));
    }
    QSet<QString> names;
    qint64 total = 0;
    for (const auto &entry : entries) {
        const QString name = entry.isDirectory ? entry.name.chopped(1) : entry.name;
        const QString problem = problemWithPackagePath(name);
        if (!problem.isEmpty()) {
            refuse(archive, QStringLiteral("The entry \"%1\" can't be unpacked: %2").arg(entry.name, problem));
        }
        if (entry.isSpecial) {
            refuse(archive, QStringLiteral("The entry \"%1\" is a link or a device").arg(entry.name));
        }
        if (entry.isEncrypted) {
            throw LessonError(QStringLiteral("The archive is protected by a password"),
                              QStringLiteral("Unpack it first and give the folder"))
                .in(archive);
        }
        if (names.contains(name)) {
            refuse(archive, QStringLiteral("The archive names \"%1\" twice").arg(entry.name));
        }
        names.insert(name);
        total += entry.size;
        if (total > maximumUnpackedSize) {
            refuse(archive, QStringLiteral("The archive unpacks to more than 2 GiB"));
        }
        if (entry.size > smallEntry && entry.size / maximumRatio > entry.packedSize) {
            refuse(archive, QStringLiteral("The entry \"%1\" is packed more tightly than any lesson").arg(entry.name));
        }
    }
}

// No more than the size that was announced and checked is ever written.
void unpackEntry(const QString &archive, const KArchiveFile &packed, const CentralDirectory::Entry &entry,
                 const QString &target)
{
    QDir().mkpath(QFileInfo(target).path());
    QFile file(target);
    // New only: two names may be one where capitals don't count.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        throw LessonError(QStringLiteral("The archive can't be unpacked: %1").arg(file.errorString()),
                          QStringLiteral("Make room in the folder for temporary files"))
            .in(archive);
    }
    const std::unique_ptr<QIODevice> device(packed.createDevice());
    qint64 size = 0;
    quint32 crc = 0;
    while (device && size < entry.size) {
        const QByteArray chunk = device->read(qMin(chunkSize, entry.size - size));
        if (chunk.isEmpty()) {
            break;
        }
        size += chunk.size();
        crc = updatedCrc(crc, chunk);
        if (file.write(chunk) != chunk.size()) {
            throw LessonError(QStringLiteral("The archive can't be unpacked: %1").arg(file.errorString()),
                              QStringLiteral("Make room in the folder for temporary files"))
                .in(archive);
        }
    }
    if (size != entry.size || crc != entry.crc) {
        throw LessonError(QStringLiteral("The entry \"%1\" is damaged").arg(entry.name),
                          QStringLiteral("Copy or download the file again"))
            .in(archive);
    }
}

} // namespace

void unpackZip(const QString &archive, const QString &directory)
{
    const CentralDirectory list(archive);
    checkEntries(archive, list.entries());
    KZip zip(archive);
    if (!zip.open(QIODevice::ReadOnly)) {
        incomplete(archive);
    }
    for (const auto &entry : list.entries()) {
        if (entry.isDirectory) {
            continue;
        }
        const KArchiveEntry *found = zip.directory()->entry(entry.name);
        const auto *packed = found && found->isFile() ? static_cast<const KArchiveFile *>(found) : nullptr;
        if (!packed || !packed->symLinkTarget().isEmpty()) {
            refuse(archive, QStringLiteral("The entry \"%1\" can't be unpacked").arg(entry.name));
        }
        unpackEntry(archive, *packed, entry, directory + QLatin1Char('/') + entry.name);
    }
}

void packZip(const QString &directory, const QString &archive)
{
    KZip zip(archive);
    bool isGood = zip.open(QIODevice::WriteOnly);
    QStringList files;
    const QDir root(directory);
    QDirIterator it(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(root.relativeFilePath(it.next()));
    }
    files.sort();
    for (const QString &file : qAsConst(files)) {
        isGood = isGood && zip.addLocalFile(directory + QLatin1Char('/') + file, file);
    }
    if (!zip.close() || !isGood) {
        throw LessonError(QStringLiteral("The archive can't be written: %1").arg(zip.errorString()),
                          QStringLiteral("Check that there is room"))
            .in(archive);
    }
}

} // namespace lessonhost
