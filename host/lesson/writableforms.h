// SPDX-License-Identifier: MIT
#ifndef WRITABLEFORMS_H
#define WRITABLEFORMS_H

#include <QJsonObject>

namespace lessonhost {

// A read leaves some values in a form that a write doesn't take: colours as objects, points as arrays, flags as texts.
// These functions bring the model of an item into the form that a write takes whole.

//! An item's keys as tranItemJSON2ZQTX takes them, without the keys of the host. Texts that templates take in as XML
//! are escaped, texts and numbers have the type that the conversion of their item asks for.
QJsonObject writableItem(const QJsonObject &item, int majorVersion);

//! The same for the keys of a slide or a presentation, in which texts are all that is written.
QJsonObject writableProperties(const QJsonObject &properties);

} // namespace lessonhost

#endif // WRITABLEFORMS_H
