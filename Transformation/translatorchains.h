// SPDX-License-Identifier: MIT
#ifndef TRANSLATORCHAINS_H
#define TRANSLATORCHAINS_H

#include "zqhtran.h"

#include <QDomDocument>
#include <QString>

#include <memory>

// How the type of an item leads to its translator: four ordered lists of families, asked one after the other.

//! A translator for an item type or a ZQTX type, or null.
std::unique_ptr<ZQHTran> createTranslator(const QString &type);

//! A translator for the conversions to IWB, or null: the families without an svg form are not asked.
std::unique_ptr<ZQHTran> createIwbTranslator(const QDomDocument &document, const QString &type);

//! The ZQTX type of an item type; a type that no family maps stays as it is.
QString jsonTypeToTxType(const QString &type);

//! The item type of a ZQTX type; a type that no family maps stays as it is.
QString txTypeToJsonType(const QString &type);

#endif // TRANSLATORCHAINS_H
