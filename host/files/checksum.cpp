// SPDX-License-Identifier: MIT
#include "files/checksum.h"

#include <array>

namespace lessonhost {

quint32 updatedCrc(quint32 crc, const QByteArray &bytes)
{
    static const auto table = [] {
        std::array<quint32, 256> rows{};
        for (quint32 i = 0; i < 256; ++i) {
            quint32 row = i;
            for (int bit = 0; bit < 8; ++bit) {
                row = (row & 1) ? (row >> 1) ^ 0xedb88320U : row >> 1;
            }
            rows[i] = row;
        }
        return rows;
    }();
    crc = ~crc;
    for (const char byte : bytes) {
        crc = table[(crc ^ quint8(byte)) & 0xff] ^ (crc >> 8);
    }
    return ~crc;
}

} // namespace lessonhost
