// SPDX-License-Identifier: MIT
#ifndef DOMTOOLS_H
#define DOMTOOLS_H

#include <QDomElement>
#include <QVector>

namespace lessonhost {

//! A name without the prefix of its namespace.
QString bareName(const QString &name);

//! The first direct child element of that tag that has child nodes, or that has none, or null.
QDomElement childWithContent(const QDomElement &parent, const QString &tag, bool withChildren);

//! An element that no document holds: its ownerDocument() is null and makes nothing for it; what goes into it is loose
//! too.
QDomElement looseElement(const QString &tag);

//! Takes child elements out of their parent, from first on.
QVector<QDomElement> takeElements(QDomElement parent, QDomElement first);

//! The levels of elements, 1 for an element without child elements. Needs no stack.
int elementDepth(const QDomElement &root);

} // namespace lessonhost

#endif // DOMTOOLS_H
