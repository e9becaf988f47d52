// SPDX-License-Identifier: MIT
#ifndef PACKER_H
#define PACKER_H

#include <QBuffer>
#include <QByteArray>

#include <memory>

class KCompressionDevice;

namespace lessonhost {

/*!
 * A file as it stands in an archive.
 */
struct PackedFile
{
    qint64 size = 0; //!< unpacked, in bytes
    qint64 packedSize = 0;
    quint32 crc = 0; //!< of what isn't packed
};

/*!
 * Packs a file for an archive, in pieces as they come.
 */
class Packer
{
public:
    Packer();
    ~Packer();
    Packer(const Packer &) = delete;
    Packer &operator=(const Packer &) = delete;

    //! Takes what comes next in the file. What is returned comes next in the archive.
    QByteArray put(const QByteArray &bytes);
    //! What is left. Nothing is put in afterwards.
    QByteArray finish();

    //! What was put in and returned so far.
    const PackedFile &file() const { return m_file; }

private:
    QByteArray taken();

    QBuffer m_packed;
    std::unique_ptr<KCompressionDevice> m_packing;
    PackedFile m_file;
};

} // namespace lessonhost

#endif // PACKER_H
