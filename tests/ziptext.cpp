#include "ziptext.h"

namespace {

QByteArray number(qint64 value, int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        bytes.append(char(value >> (8 * i)));
    }
    return bytes;
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

QByteArray zipText(const QVector<ZipEntry> &entries)
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
            + number(checksum(entry.content), 4) + number(packedSize, 4) + number(size, 4);
        const auto lengths = [](const QByteArray &name) -> QByteArray { return number(name.size(), 2) + number(0, 2); };
        list += "PK\1\2" + number(0x0314, 2) + common + lengths(entry.name) + number(0, 6) + number(entry.attributes, 4)
            + number(body.size(), 4) + entry.name;
        const QByteArray localName = entry.localName.isNull() ? entry.name : entry.localName;
        body += "PK\3\4" + common + lengths(localName) + localName + packed;
    }
    return body + list + "PK\5\6" + number(0, 4) + number(entries.size(), 2) + number(entries.size(), 2)
        + number(list.size(), 4) + number(body.size(), 4) + number(0, 2);
}
