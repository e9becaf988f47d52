// SPDX-License-Identifier: MIT
#ifndef LINKS_H
#define LINKS_H

#include <QJsonObject>
#include <QString>

// The links of items: a kind, such as ACTION_OPENWEB, and a value. In IWB both stand in one text, the target.

//! The target of a link; empty for an unknown kind. The file of ACTION_OPENFILE is copied to tmpFilePath/additional/,
//! and one that doesn't exist gives an empty target.
QString linkTarget(const QString &kind, const QString &value, const QString &tmpFilePath);

//! Stores kind and value of the link that a target stands for in json, whose path stands before the name of a file. An
//! unknown target stores nothing.
void readLinkTarget(const QString &target, QJsonObject &json);

//! Whether links of this kind are read from the tags of a raw slide.
bool mayStandInTags(const QString &kind);

#endif // LINKS_H
