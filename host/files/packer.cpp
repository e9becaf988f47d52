// SPDX-License-Identifier: MIT
#include "files/packer.h"

#include "files/checksum.h"

#include <KCompressionDevice>

#include <new>

namespace lessonhost {

Packer::Packer()
    : m_packing(std::make_unique<KCompressionDevice>(&m_packed, false, KCompressionDevice::GZip))
{
    m_packing->setSkipHeaders(); // archives have their own
    if (!m_packing->open(QIODevice::WriteOnly)) {
        throw std::bad_alloc();
    }
}

Packer::~Packer() = default;

QByteArray Packer::put(const QByteArray &bytes)
{
    // Into memory, nothing else can be wrong.
    if (m_packing->write(bytes) != bytes.size()) {
        throw std::bad_alloc();
    }
    m_file.size += bytes.size();
    m_file.crc = updatedCrc(m_file.crc, bytes);
    const QByteArray packed = taken();
    m_packed.seek(0);
    return packed;
}

QByteArray Packer::finish()
{
    m_packing->close();
    return taken();
}

QByteArray Packer::taken()
{
    QByteArray packed;
    packed.swap(m_packed.buffer());
    m_file.packedSize += packed.size();
    return packed;
}

} // namespace lessonhost
