// SPDX-License-Identifier: MIT
#ifndef KEPTITEM_H
#define KEPTITEM_H

#include <QDomElement>
#include <QJsonObject>

namespace lessonhost {

//! An item that nobody can convert, as the model keeps it: of this type, under the identifier in this attribute, and
//! otherwise as the text that it came as.
QJsonObject keptItem(const QDomElement &element, const QString &type, const QString &idAttribute);

} // namespace lessonhost

#endif // KEPTITEM_H
