// SPDX-License-Identifier: MIT
#include "files/ziparchive.h"

#include "files/checksum.h"
#include "files/folder.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"

#include <KCompressionDevice>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <optional>

#include <minizip/zip.h>

namespace lessonhost {

namespace {

constexpr int maximumEntries = 100000;
// What all in an archive may unpack to, however tightly it is packed.
constexpr qint64 harmlessSize = qint64(512) * 1024 * 1024;
constexpr qint64 maximumRatio = 200;
// The packing of zip archives reaches 1032.
constexpr qint64 possibleRatio = 1100;
constexpr qint64 smallEntry = qint64(64) * 1024;
constexpr qint64 chunkSize = qint64(256) * 1024;

[[noreturn]] void refuse(const QString &archive, const Sentence &problem)
{
    throw LessonError(problem, say("Nothing was unpacked. Ask for a package from a source you trust")).in(archive);
}

[[noreturn]] void incomplete(const QString &archive)
{
    throw LessonError(say("This is no zip archive, or a part of it is missing"), say("Copy or download the file again"))
        .in(archive);
}

struct ZipEntry
{
    enum Method { Stored = 0, Deflated = 8 };

    QByteArray rawName;
    QString name;
    qint64 packedSize = 0;
    qint64 size = 0;
    qint64 header = 0; // where in the file its own header is
    quint32 crc = 0;
    int method = Stored;
    bool isUtf8 = true;
    bool hasBackslash = false; // between the parts of its name, as some systems write them
    bool isDirectory = false;
    bool isSpecial = false; // link, device or the like
    bool isEncrypted = false;
};

/*!
 * The list of entries at an archive's end. There may be a program or anything else before the archive's beginning, so
 * places are counted from where the list really is.
 */
class CentralDirectory
{
public:
    CentralDirectory(InputFile &file, const QString &archive)
        : m_file(file)
        , m_archive(archive)
    {
        const qint64 tailSize = qMin<qint64>(file.size(), endSize + 0xffff);
        const qint64 tailBegin = file.size() - tailSize;
        const QByteArray tail = file.bytes(tailBegin, tailSize);
        const int end = tail.lastIndexOf(QByteArray("PK\5\6", 4));
        if (end < 0 || tail.size() - end < endSize) {
            incomplete(archive);
        }
        List list{number16(tail, end + 10), number32(tail, end + 12), number32(tail, end + 16), tailBegin + end};
        const bool isPart = number16(tail, end + 4) != 0 && number16(tail, end + 4) != 0xffff;
        if (isPart) {
            throw LessonError(say("This is one of several parts of an archive"),
                              say("Put the parts together, or unpack them and give the folder"))
                .in(archive);
        }
        if (const auto large = largeList(list.end)) {
            list = *large;
        }
        readList(list);
    }

    const QVector<ZipEntry> &entries() const { return m_entries; }

private:
    static constexpr int endSize = 22;
    static constexpr int headerSize = 46;
    static constexpr int largeEndSize = 56;
    static constexpr int locatorSize = 20;
    static constexpr qint64 largestList = qint64(maximumEntries) * 1400; // with the longest names

    struct List
    {
        qint64 count; // of entries; less a multiple of 65536 where there are so many
        qint64 size;
        qint64 offset; // from the archive's beginning
        qint64 end; // where what follows it begins in the file
    };

    static quint16 number16(const QByteArray &bytes, int offset)
    {
        return qFromLittleEndian<quint16>(bytes.constData() + offset);
    }
    static quint32 number32(const QByteArray &bytes, int offset)
    {
        return qFromLittleEndian<quint32>(bytes.constData() + offset);
    }
    static qint64 number64(const QByteArray &bytes, int offset)
    {
        return qFromLittleEndian<qint64>(bytes.constData() + offset);
    }

    // What archives with 64-bit sizes have before their end.
    std::optional<List> largeList(qint64 end)
    {
        const qint64 locatorBegin = end - locatorSize;
        if (locatorBegin < largeEndSize) {
            return {};
        }
        const QByteArray locator = m_file.bytes(locatorBegin, locatorSize);
        if (!locator.startsWith("PK\6\7")) {
            return {};
        }
        // Where it says, or right before if something stands in front of the archive.
        for (const qint64 begin : {number64(locator, 8), locatorBegin - largeEndSize}) {
            if (begin >= 0 && begin <= locatorBegin - largeEndSize) {
                const QByteArray record = m_file.bytes(begin, largeEndSize);
                if (record.startsWith("PK\6\6")) {
                    return List{number64(record, 32), number64(record, 40), number64(record, 48), begin};
                }
            }
        }
        incomplete(m_archive);
    }

    void readList(const List &list)
    {
        if (list.size > largestList) {
            refuse(m_archive, say("The archive has more than %1 entries").arg(maximumEntries));
        }
        for (const qint64 begin : {list.end - list.size, list.offset}) {
            const bool isInFile = list.size >= 0 && begin >= 0 && begin <= list.end - list.size;
            if (isInFile && (list.size == 0 || m_file.bytes(begin, qMin<qint64>(4, list.size)) == "PK\1\2")) {
                if (!readEntries(m_file.bytes(begin, list.size), list.count, begin - list.offset)) {
                    incomplete(m_archive);
                }
                return;
            }
        }
        incomplete(m_archive);
    }

    bool readEntries(const QByteArray &list, qint64 count, qint64 archiveBegin)
    {
        int at = 0;
        while (at < list.size() && m_entries.size() <= maximumEntries) {
            if (list.size() - at < headerSize || number32(list, at) != 0x02014b50) {
                return false;
            }
            const int nameSize = number16(list, at + 28);
            const int extraSize = number16(list, at + 30);
            const int following = nameSize + extraSize + number16(list, at + 32);
            if (list.size() - at - headerSize < following) {
                return false;
            }
            ZipEntry entry = entryAt(list, at);
            entry.rawName = list.mid(at + headerSize, nameSize);
            entry.name = QString::fromUtf8(entry.rawName.constData(), entry.rawName.size());
            entry.isUtf8 = entry.name.toUtf8() == entry.rawName;
            entry.hasBackslash = entry.name.contains(QLatin1Char('\\'));
            entry.name.replace(QLatin1Char('\\'), QLatin1Char('/'));
            entry.isDirectory = entry.name.endsWith(QLatin1Char('/'));
            if (!readLargeNumbers(list.mid(at + headerSize + nameSize, extraSize), entry)) {
                return false;
            }
            entry.header += archiveBegin;
            m_entries.append(entry);
            at += headerSize + following;
        }
        return m_entries.size() > maximumEntries || (m_entries.size() & 0xffff) == (count & 0xffff);
    }

    static ZipEntry entryAt(const QByteArray &list, int at)
    {
        ZipEntry entry;
        entry.isEncrypted = (number16(list, at + 8) & 1) != 0;
        entry.method = number16(list, at + 10);
        entry.crc = number32(list, at + 16);
        entry.packedSize = number32(list, at + 20);
        entry.size = number32(list, at + 24);
        entry.header = number32(list, at + 42);
        const quint32 fileKind = (number32(list, at + 38) >> 16) & 0170000;
        entry.isSpecial = fileKind != 0 && fileKind != 0100000 && fileKind != 0040000;
        return entry;
    }

    // Numbers that don't fit stand behind the name, those that do are left out there.
    static bool readLargeNumbers(const QByteArray &extra, ZipEntry &entry)
    {
        constexpr qint64 isElsewhere = 0xffffffff;
        for (int at = 0; at + 4 <= extra.size();) {
            const int size = number16(extra, at + 2);
            int next = at + 4;
            at = next + size;
            if (number16(extra, next - 4) != 1) {
                continue;
            }
            for (qint64 *number : {&entry.size, &entry.packedSize, &entry.header}) {
                if (*number == isElsewhere) {
                    if (next + 8 > qMin(at, extra.size())) {
                        return false;
                    }
                    *number = number64(extra, next);
                    next += 8;
                }
            }
        }
        return entry.size >= 0 && entry.packedSize >= 0 && entry.header >= 0;
    }

    InputFile &m_file;
    QString m_archive;
    QVector<ZipEntry> m_entries;
};

void checkEntry(const QString &archive, const ZipEntry &entry, const QString &name)
{
    const Sentence problem = problemWithPackagePath(name);
    if (!problem.isEmpty()) {
        refuse(archive, say("The entry \"%1\" can't be unpacked: %2").arg(entry.name, problem));
    }
    if (!entry.isUtf8) {
        refuse(archive, say("The name of the entry \"%1\" is no UTF-8").arg(entry.name));
    }
    if (entry.isSpecial) {
        refuse(archive, say("The entry \"%1\" is a link or a device").arg(entry.name));
    }
    if (entry.isEncrypted) {
        throw LessonError(say("The archive is protected by a password"), say("Unpack it first and give the folder"))
            .in(archive);
    }
    if (entry.method != ZipEntry::Stored && entry.method != ZipEntry::Deflated) {
        throw LessonError(say("The entry \"%1\" is packed in a way that lessons aren't").arg(entry.name),
                          say("Unpack it first and give the folder"))
            .in(archive);
    }
    if (entry.size > smallEntry && entry.size / possibleRatio > entry.packedSize) {
        refuse(archive, say("The entry \"%1\" is packed more tightly than can be").arg(entry.name));
    }
}

void checkEntries(const QString &archive, qint64 archiveSize, const QVector<ZipEntry> &entries)
{
    if (entries.size() > maximumEntries) {
        refuse(archive, say("The archive has more than %1 entries").arg(maximumEntries));
    }
    QSet<QString> names;
    QSet<QString> folders;
    qint64 total = 0;
    for (const ZipEntry &entry : entries) {
        const QString name = entry.isDirectory ? entry.name.chopped(1) : entry.name;
        checkEntry(archive, entry, name);
        if (names.contains(name)) {
            refuse(archive, say("The archive names \"%1\" twice").arg(entry.name));
        }
        names.insert(name);
        for (int slash = name.indexOf(QLatin1Char('/')); slash >= 0; slash = name.indexOf(QLatin1Char('/'), slash + 1)) {
            folders.insert(name.left(slash));
        }
        if (entry.size > mostBytesInArchive || (total += entry.size) > mostBytesInArchive) {
            refuse(archive, say("The archive unpacks to more than 2 GiB"));
        }
    }
    for (const ZipEntry &entry : entries) {
        if (folders.contains(entry.name)) { // which is a file as well
            refuse(archive, say("The archive names \"%1\" twice").arg(entry.name));
        }
    }
    if (isPackedTooTightly(total, archiveSize)) {
        refuse(archive, say("The archive is packed more tightly than any lesson"));
    }
}

/*!
 * The part of a file in which an entry lies.
 */
class PackedEntry : public QIODevice
{
public:
    PackedEntry(InputFile &file, qint64 begin, qint64 size)
        : m_file(file)
        , m_left(size)
    {
        m_file.seek(begin);
        open(ReadOnly | Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = m_file.read(data, qMin(size, m_left));
        m_left -= qMax<qint64>(count, 0);
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    InputFile &m_file;
    qint64 m_left;
};

qint64 contentOf(InputFile &file, const QString &archive, const ZipEntry &entry)
{
    constexpr int localSize = 30;
    const auto wrong = [&] { refuse(archive, say("The entry \"%1\" can't be unpacked").arg(entry.name)); };
    if (entry.header > file.size() - localSize) {
        wrong();
    }
    const QByteArray header = file.bytes(entry.header, localSize);
    const qint64 nameBegin = entry.header + localSize;
    const auto nameSize = qFromLittleEndian<quint16>(header.constData() + 26);
    const qint64 begin = nameBegin + nameSize + qFromLittleEndian<quint16>(header.constData() + 28);
    if (!header.startsWith("PK\3\4") || begin > file.size() - entry.packedSize
        || file.bytes(nameBegin, nameSize) != entry.rawName) {
        wrong();
    }
    return begin;
}

// No more than the size that was announced and checked is ever unpacked.
void unpackEntry(InputFile &file, const QString &archive, const ZipEntry &entry, const ZipReceiver &receiver)
{
    PackedEntry packed(file, contentOf(file, archive, entry), entry.packedSize);
    KCompressionDevice unpacked(&packed, false, KCompressionDevice::GZip);
    unpacked.setSkipHeaders();
    QIODevice *source = &packed;
    if (entry.method == ZipEntry::Deflated) {
        unpacked.open(QIODevice::ReadOnly);
        source = &unpacked;
    }
    qint64 size = 0;
    quint32 crc = 0;
    receiver(entry.name, entry.size, [&] {
        const QByteArray piece = source->read(qMin(chunkSize, entry.size - size));
        size += piece.size();
        crc = updatedCrc(crc, piece);
        if (piece.isEmpty()) {
            file.check();
            if (size != entry.size || crc != entry.crc) {
                throw LessonError(say("The entry \"%1\" is damaged").arg(entry.name),
                                  say("Copy or download the file again"))
                    .in(archive);
            }
        }
        return piece;
    });
}

uLong writeToDevice(void *, void *device, const void *bytes, uLong size)
{
    return uLong(static_cast<QIODevice *>(device)->write(static_cast<const char *>(bytes), qint64(size)));
}

ZPOS64_T placeInDevice(void *, void *device)
{
    return ZPOS64_T(static_cast<QIODevice *>(device)->pos());
}

long seekInDevice(void *, void *device, ZPOS64_T offset, int origin)
{
    auto *file = static_cast<QIODevice *>(device);
    const qint64 begin = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? file->pos() : file->size();
    return file->seek(begin + qint64(offset)) ? 0 : -1;
}

// Null where there is no memory.
zipFile zipOn(QIODevice &device)
{
    zlib_filefunc64_def calls = {};
    calls.opaque = &device;
    calls.zopen64_file = [](void *opaque, const void *, int) { return opaque; };
    calls.zread_file = [](void *, void *, void *, uLong) { return uLong(0); };
    calls.zwrite_file = writeToDevice;
    calls.ztell64_file = placeInDevice;
    calls.zseek64_file = seekInDevice;
    calls.zclose_file = [](void *, void *) { return 0; }; // who made it closes it
    calls.zerror_file = [](void *, void *) { return 0; };
    return zipOpen2_64(nullptr, APPEND_STATUS_CREATE, nullptr, &calls);
}

} // namespace

bool isPackedTooTightly(qint64 size, qint64 packedSize)
{
    return size > harmlessSize && size / maximumRatio > packedSize;
}

Sentences unpackZip(const QString &archive, const ZipReceiver &receiver)
{
    InputFile file(archive);
    const CentralDirectory list(file, archive);
    checkEntries(archive, file.size(), list.entries());
    for (const ZipEntry &entry : list.entries()) {
        if (!entry.isDirectory) {
            unpackEntry(file, archive, entry, receiver);
        }
    }
    const auto &entries = list.entries();
    const bool hasBackslash =
        std::any_of(entries.cbegin(), entries.cend(), [](const ZipEntry &entry) { return entry.hasBackslash; });
    return hasBackslash ? Sentences{say("the backslashes in the archive's names were taken for slashes")} : Sentences();
}

Sentences unpackZip(const QString &archive, const QString &directory)
{
    return unpackZip(archive, [&](const QString &name, qint64, const ZipPieces &next) {
        unpackToFile(directory + QLatin1Char('/') + name, archive, next);
    });
}

void unpackToFile(const QString &file, const QString &archive, const ZipPieces &next)
{
    makeFolders(QFileInfo(file).path(), archive, OutputFile::Temporary);
    // Two names may be one where capitals don't count.
    OutputFile output(file, archive, OutputFile::Temporary);
    for (QByteArray piece = next(); !piece.isEmpty(); piece = next()) {
        output.put(piece);
    }
    output.finish();
}

QStringList namesInZip(const QString &archive)
{
    InputFile file(archive);
    const CentralDirectory list(file, archive);
    QStringList names;
    for (const ZipEntry &entry : list.entries()) {
        if (!entry.isDirectory) {
            names.append(entry.name);
        }
    }
    return names;
}

ZipWriter::ZipWriter(OutputFile &archive, const QString &shownName)
    : m_archive(archive)
    , m_shownName(shownName)
    , m_zip(zipOn(archive))
    , m_isGood(m_zip)
{
}

ZipWriter::~ZipWriter()
{
    if (m_zip) {
        zipClose(m_zip, nullptr);
    }
}

void ZipWriter::begin(const QString &name, bool isPacked)
{
    zip_fileinfo info = {};
    info.dosDate = 1U << 21 | 1U << 16; // the first that archives know: the same files give the same archive
    info.external_fa = 0100644U << 16;
    constexpr uLong madeOnUnix = 3U << 8 | 20;
    constexpr uLong isUtf8 = 1U << 11;
    m_isGood = m_isGood
        && zipOpenNewFileInZip4_64(m_zip, name.toUtf8().constData(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                                   Z_DEFAULT_COMPRESSION, isPacked ? 1 : 0, -MAX_WBITS, MAX_MEM_LEVEL,
                                   Z_DEFAULT_STRATEGY, nullptr, 0, madeOnUnix, isUtf8, 0)
            == ZIP_OK;
}

void ZipWriter::put(qint64 size, const Bytes &bytes)
{
    for (qint64 at = 0; m_isGood && at < size; at += chunkSize) {
        const QByteArray chunk = bytes(at, qMin(chunkSize, size - at));
        m_isGood = zipWriteInFileInZip(m_zip, chunk.constData(), uint(chunk.size())) == ZIP_OK;
    }
}

void ZipWriter::add(const QString &name, qint64 size, const Bytes &bytes)
{
    begin(name, false);
    put(size, bytes);
    m_isGood = m_isGood && zipCloseFileInZip(m_zip) == ZIP_OK;
}

void ZipWriter::addPacked(const QString &name, const PackedFile &file, const Bytes &bytes)
{
    begin(name, true);
    put(file.packedSize, bytes);
    m_isGood = m_isGood && zipCloseFileInZipRaw64(m_zip, ZPOS64_T(file.size), file.crc) == ZIP_OK;
}

void ZipWriter::finish()
{
    m_isGood = m_zip && zipClose(m_zip, nullptr) == ZIP_OK && m_isGood;
    m_zip = nullptr;
    m_archive.check(); // which knows why
    if (!m_isGood) {
        throw LessonError(say("The archive can't be written"), say("Check that there is room")).in(m_shownName);
    }
}

void packZip(const QString &directory, const QString &archive)
{
    QStringList files;
    const QDir root(directory);
    QDirIterator it(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(root.relativeFilePath(it.next()));
    }
    files.sort();
    OutputFile output(archive, archive);
    ZipWriter zip(output, archive);
    for (const QString &name : qAsConst(files)) {
        InputFile file(directory + QLatin1Char('/') + name);
        zip.add(name, file.size(), [&file](qint64 begin, qint64 size) { return file.bytes(begin, size); });
    }
    zip.finish();
    output.finish();
}

} // namespace lessonhost
