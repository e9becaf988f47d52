// SPDX-License-Identifier: MIT
#ifndef CHECKSUM_H
#define CHECKSUM_H

#include <QByteArray>

namespace lessonhost {

//! The checksum of zip archives and PNG pictures. crc is that of what came before, 0 at the start.
quint32 updatedCrc(quint32 crc, const QByteArray &bytes);

} // namespace lessonhost

#endif // CHECKSUM_H
