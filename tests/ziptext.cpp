// SPDX-License-Identifier: MIT
#include "ziptext.h"

#include <QtEndian>

namespace {

constexpr qint64 elsewhere = 0xffffffff; // the number stands in another place, with 64 bits

QByteArray number(qint64 value, int size)
{
    const qint64 bytes = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&bytes), size);
}

quint32 checksum(const QByteArray &bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc & 1) ? (crc >> 1) ^ 0xedb88320 : crc >> 1;
        }
    }
    return ~crc;
}

} // namespace

QByteArray zipText(const QVector<ZipEntry> &entries, bool isLarge)
{
    QByteArray body;
    QByteArray list;
    body.reserve(entries.size() * 64);
    list.reserve(entries.size() * 64);
    for (const ZipEntry &entry : entries) {
        // Without the length that Qt puts first, and zlib's header and checksum around the packed bytes. Of nothing, Qt
        // makes no more than a length.
        const bool isPacked = entry.isPacked && !entry.content.isEmpty();
        const QByteArray packed = isPacked ? qCompress(entry.content).mid(6).chopped(4) : entry.content;
        const qint64 packedSize = entry.declaredPackedSize < 0 ? packed.size() : entry.declaredPackedSize;
        const qint64 size = entry.declaredSize < 0 ? entry.content.size() : entry.declaredSize;
        // Version, flags, method, time and date, checksum, sizes.
        const QByteArray common = number(20, 2) + number(0, 2) + number(isPacked ? 8 : 0, 2) + number(0, 4)
            + number(checksum(entry.content), 4) + number(isLarge ? elsewhere : packedSize, 4)
            + number(isLarge ? elsewhere : size, 4);
        QByteArray sizes;
        QByteArray sizesAndPlace;
        if (isLarge) {
            sizes = number(1, 2) + number(16, 2) + number(size, 8) + number(packedSize, 8);
            // Behind something that isn't known.
            sizesAndPlace = number(0x5455, 2) + number(1, 2) + "x" + number(1, 2) + number(24, 2) + number(size, 8)
                + number(packedSize, 8) + number(body.size(), 8);
        }
        const auto lengths = [](const QByteArray &name, const QByteArray &extra) -> QByteArray {
            return number(name.size(), 2) + number(extra.size(), 2);
        };
        list += "PK\1\2" + number(0x0314, 2) + common + lengths(entry.name, sizesAndPlace) + number(0, 6)
            + number(entry.attributes, 4) + number(isLarge ? elsewhere : body.size(), 4) + entry.name + sizesAndPlace;
        const QByteArray localName = entry.localName.isNull() ? entry.name : entry.localName;
        body += "PK\3\4" + common + lengths(localName, sizes) + localName + sizes + packed;
    }
    QByteArray large;
    if (isLarge) {
        large = "PK\6\6" + number(44, 8) + number(45, 2) + number(45, 2) + number(0, 8) + number(entries.size(), 8)
            + number(entries.size(), 8) + number(list.size(), 8) + number(body.size(), 8);
        large += "PK\6\7" + number(0, 4) + number(body.size() + list.size(), 8) + number(1, 4);
    }
    const auto shortNumber = [isLarge](qint64 value, int size) { return number(isLarge ? elsewhere : value, size); };
    return body + list + large + "PK\5\6" + number(0, 4) + shortNumber(entries.size(), 2)
        + shortNumber(entries.size(), 2) + shortNumber(list.size(), 4) + shortNumber(body.size(), 4) + number(0, 2);
}
