// SPDX-License-Identifier: MIT
#ifndef COMPACTJSON_H
#define COMPACTJSON_H

#include <QByteArray>
#include <QJsonValue>

namespace lessonhost {

//! A value as QJsonDocument writes it into a compact document, to the byte, and in less time.
//! isReadable: false where QJsonDocument could fail to read the same of it, which has to be tried: for lists and
//! objects far within each other, texts with byte order marks, which it takes away from their front, and those with
//! characters of two code units, whose order as keys it isn't sure of.
QByteArray compactJson(const QJsonValue &value, bool *isReadable = nullptr);

} // namespace lessonhost

#endif // COMPACTJSON_H
