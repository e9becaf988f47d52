// SPDX-License-Identifier: MIT
#ifndef ATTRIBUTES_H
#define ATTRIBUTES_H

#include <QDomElement>
#include <QPair>
#include <QString>
#include <QVector>

namespace lessonhost {

//! Name and value of each attribute.
QVector<QPair<QString, QString>> attributesOf(const QDomElement &element);

} // namespace lessonhost

#endif // ATTRIBUTES_H
