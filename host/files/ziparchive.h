// SPDX-License-Identifier: MIT
#ifndef ZIPARCHIVE_H
#define ZIPARCHIVE_H

#include "files/packer.h"
#include "sentences/sentence.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace lessonhost {

class OutputFile;

//! As many as every program reads.
constexpr int mostFilesInArchive = 65535;
//! More is neither read nor written.
constexpr qint64 mostBytesInArchive = qint64(2) * 1024 * 1024 * 1024;

//! Whether so much in so little can only be meant to fill a disk. Empty pictures and silence pack to a thousandth, but
//! there isn't so much of them in a lesson.
bool isPackedTooTightly(qint64 size, qint64 packedSize);

//! The next bytes of a file that is unpacked; none at its end. Throws LessonError where it is damaged.
using ZipPieces = std::function<QByteArray()>;
//! Takes the files of an archive one after the other, with their sizes; it asks for all pieces of each.
using ZipReceiver = std::function<void(const QString &name, qint64 size, const ZipPieces &next)>;

//! Unpacks a zip archive, after checking every entry: relative path inside, no link, no device, no name twice, no
//! encryption, at most 100,000 entries, at most mostBytesInArchive, not packed too tightly. Archives with something
//! before their beginning and those with 64-bit sizes are read as well. Backslashes between the parts of names count as
//! slashes, which is returned as a sentence without a full stop. Throws LessonError.
Sentences unpackZip(const QString &archive, const ZipReceiver &receiver);

//! The same into an empty directory.
Sentences unpackZip(const QString &archive, const QString &directory);

//! Makes a file, and the folders on the way to it, of the pieces. Throws LessonError about the archive.
void unpackToFile(const QString &file, const QString &archive, const ZipPieces &next);

//! The names of the files in an archive, as they stand there and unchecked. Throws LessonError.
QStringList namesInZip(const QString &archive);

/*!
 * An archive that is written, whose files come in ascending order.
 */
class ZipWriter
{
public:
    //! shownName stands for the archive in messages.
    ZipWriter(OutputFile &archive, const QString &shownName);
    ~ZipWriter();
    ZipWriter(const ZipWriter &) = delete;
    ZipWriter &operator=(const ZipWriter &) = delete;

    //! Where bytes of a file come from. Throws LessonError where there are none.
    using Bytes = std::function<QByteArray(qint64 begin, qint64 size)>;

    //! bytes: of the file.
    void add(const QString &name, qint64 size, const Bytes &bytes);
    //! bytes: of the file as it is packed.
    void addPacked(const QString &name, const PackedFile &file, const Bytes &bytes);
    //! Throws LessonError if any of it could not be written.
    void finish();

private:
    void begin(const QString &name, bool isPacked);
    void put(qint64 size, const Bytes &bytes);

    OutputFile &m_archive;
    QString m_shownName;
    void *m_zip; // null from when it is closed
    bool m_isGood;
};

//! Packs all files below a directory, in ascending order. Throws LessonError.
void packZip(const QString &directory, const QString &archive);

} // namespace lessonhost

#endif // ZIPARCHIVE_H
