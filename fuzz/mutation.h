// SPDX-License-Identifier: MIT
#ifndef MUTATION_H
#define MUTATION_H

#include <QDomElement>
#include <QJsonObject>
#include <QStringList>

#include <cstddef>
#include <cstdint>

// Mutations that keep an input what it is: XML stays well-formed, JSON stays an object, and the words that they put in
// are those of the plug-in's tables.

//! Changes an input in place and gives its new size, as LLVMFuzzerCustomMutator asks for. A text that begins with "{"
//! is taken for JSON, one that begins with "<" for XML, anything else is mutated byte by byte.
std::size_t mutateText(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed);

//! Item types and ZQTX types that a translator answers to.
const QStringList &itemTypes();

//! A ZQTX element of that type with a value in every place that the type's translator has a key for.
QDomElement filledItem(const QString &type, const QString &value);

//! The same in the raw form.
QDomElement filledRawItem(const QString &type, const QString &value);

//! And as an object.
QJsonObject filledObject(const QString &type, const QString &value);

#endif // MUTATION_H
