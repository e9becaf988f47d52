// SPDX-License-Identifier: MIT
#ifndef SVGNAMES_H
#define SVGNAMES_H

#include <QDomElement>
#include <QString>
#include <QVector>

#include <functional>

namespace lessonhost {

// Names of elements in documents that were read without namespace processing.

//! The name without its prefix if the element is of the svg vocabulary, else an empty text. A prefix that is declared
//! nowhere counts as what it says, and an element without any namespace as svg.
QString svgName(const QDomElement &element);

//! Whether svgName() is a name, which isn't empty.
bool isSvg(const QDomElement &element, QLatin1String name);

//! The same for the vocabulary of IWB files; an element without any namespace counts here too.
QString iwbName(const QDomElement &element);

//! True for the name of an svg element that shows something, converted or not; false for an empty text.
bool isDrawnName(const QString &name);

//! What the records of IWB files are called that say something of an element.
constexpr const char *iwbRecordNames[] = {"element", "group", "tspan", "link"};

//! True for such a record, wherever it stands; svg has elements of the same names.
bool isIwbRecord(const QDomElement &element);

//! A "g" of svg without attributes, which changes nothing about what it holds.
bool isPlainGroup(const QDomElement &element);

//! The element beside another on its page, as if what plain groups hold stood there by itself; null for none.
QDomElement elementBehind(const QDomElement &element);
QDomElement elementBefore(const QDomElement &element);

//! The children of an element; in the place of a plain group that is opened, what it holds. opens: asked about each.
QVector<QDomElement> childrenThroughGroups(const QDomElement &holder,
                                           const std::function<bool(const QDomElement &group)> &opens);

//! The target of an element's "href", whatever prefix it has.
QString linkTarget(const QDomElement &element);

} // namespace lessonhost

#endif // SVGNAMES_H
