// SPDX-License-Identifier: MIT
#ifndef XMLREADBACK_H
#define XMLREADBACK_H

#include <QByteArray>
#include <QString>

class QDomElement;

namespace lessonhost {

//! True if loadXml() makes this very tree of a text, so that it need not be parsed to know what is read from it. False
//! where it makes another one or refuses the text, and where only a parser can tell.
bool readsBackAs(const QByteArray &text, const QDomElement &root);

//! The same for a text without a declaration.
bool readsBackAs(const QString &text, const QDomElement &root);

} // namespace lessonhost

#endif // XMLREADBACK_H
