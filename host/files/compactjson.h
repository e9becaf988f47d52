// SPDX-License-Identifier: MIT
#ifndef COMPACTJSON_H
#define COMPACTJSON_H

#include <QByteArray>
#include <QJsonValue>

namespace lessonhost {

//! A value as QJsonDocument writes it into a compact document, to the byte, and in less time.
QByteArray compactJson(const QJsonValue &value);

} // namespace lessonhost

#endif // COMPACTJSON_H
