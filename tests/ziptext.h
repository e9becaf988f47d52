// SPDX-License-Identifier: MIT
#ifndef ZIPTEXT_H
#define ZIPTEXT_H

#include <QByteArray>
#include <QVector>

/*!
 * An entry of an archive that a test puts together byte by byte, true or with a lie in it.
 */
struct ZipEntry
{
    QByteArray name;
    QByteArray content;
    bool isPacked = true;
    quint32 attributes = 0; //!< the Unix mode in the upper half
    QByteArray localName = {}; //!< the name before the content, if not the one in the list
    qint64 declaredSize = -1; //!< what both places say the content unpacks to, if not the truth
    qint64 declaredPackedSize = -1;
};

//! The archive, in its plain form or with all its sizes and places as numbers of 64 bits. Checksums are those of the
//! content.
QByteArray zipText(const QVector<ZipEntry> &entries, bool isLarge = false);

#endif // ZIPTEXT_H
