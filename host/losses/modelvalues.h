// SPDX-License-Identifier: MIT
#ifndef MODELVALUES_H
#define MODELVALUES_H

#include "lesson/itemvalues.h"

#include <QColor>
#include <QJsonValue>
#include <QString>
#include <QVector>

#include <optional>

namespace lessonhost {

// What is the same in another dress, of values by their keys in the model.

//! True for a value that says no more than a missing one: null, an empty text, list or object.
bool isNothing(const QJsonValue &value);

//! What a missing key says; undefined for a key without which nothing is said.
QJsonValue impliedValue(const QString &key);
//! The keys without which something is said.
const QStringList &keysWithImpliedValue();

//! The key under which a format has the value that the model may give under this one, such as "resource" for
//! "MultiMediaFile"; empty for most.
QString otherKey(const QString &key);

//! True for two values that say the same: texts, numbers and flags with the same text, numbers where the key's texts
//! are numbers, colours where it holds one. tolerance: how much numbers may differ, in parts of them.
bool isSameValue(const QString &key, const QJsonValue &given, const QJsonValue &found, double tolerance = 0);

//! A colour of which nothing is more or other than a colour says.
std::optional<QRgb> wholeColor(const QJsonValue &value);

} // namespace lessonhost

#endif // MODELVALUES_H
