// SPDX-License-Identifier: MIT
#ifndef VALUEREST_H
#define VALUEREST_H

#include <QJsonValue>
#include <QString>

#include <optional>

// What is left of a value that went through a format. Where the host has tables of what is the same in another dress,
// this looks at values alone: what may be the same may be told as lost and needn't be, whatever its key is.

//! How lessons travelled: what a format does to every value of a kind is no difference.
enum class Road {
    Kept, //!< the model stays what it is
    Packed, //!< values become texts, and a matrix is worked into where its item stands
    Drawn, //!< items become drawings: groups are taken apart, places and texts are worked out anew
};

//! How much of a value is left.
enum class Rest {
    All,
    Alike, //!< perhaps all, in another dress: a number of more digits, another text of a colour
    Less,
};

//! What is left of a value of a key in the model.
Rest restOf(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road);

//! A text, number or flag as text; nothing for others.
std::optional<QString> plainText(const QJsonValue &value);
std::optional<double> numberOf(const QJsonValue &value);
//! Ink's opacity is read into its colour.
bool isOpacityInColor(const QJsonValue &opacity, const QJsonValue &color, const QJsonValue &found);
//! False for texts that are no XML.
bool isSameXml(const QString &given, const QString &found);
//! For people, cut where it is long.
QString shown(const QJsonValue &value);

#endif // VALUEREST_H
