// SPDX-License-Identifier: MIT
#ifndef IWBFORMAT_H
#define IWBFORMAT_H

#include <QByteArray>
#include <QMap>
#include <QStringList>

/*!
 * What is wrong with a package by the rules of the IWB Common File Format, a sentence each: elements and what stands in
 * them, attributes and their values, identifiers and what refers to them, records, their order, files and folders.
 * files: by their paths.
 */
QStringList formatProblems(const QMap<QString, QByteArray> &files);

#endif // IWBFORMAT_H
