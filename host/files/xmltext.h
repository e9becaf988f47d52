// SPDX-License-Identifier: MIT
#ifndef XMLTEXT_H
#define XMLTEXT_H

#include <QByteArray>
#include <QDomNode>
#include <QString>
#include <QVector>

#include <functional>

namespace lessonhost {

// XML as text. The same tree always gives the same bytes, and every character that XML can hold comes back.

//! A document in UTF-8 with its declaration, or a node alone. Attributes stand in ascending order behind id and type;
//! elements that hold only elements are indented, those with text are left as they are, and so are text areas of svg.
QByteArray xmlDocumentText(const QDomElement &root);
//! An element as it stands in xmlDocumentText() below so many others: the line break and blanks before it, and itself.
QByteArray xmlLines(const QDomElement &element, int depth);
QString xmlNodeText(const QDomElement &element);

struct XmlAttribute
{
    QString name;
    QString value;
};
//! Changes an element's name and attributes on their way into a text, while the element keeps its own.
using XmlChange = std::function<void(const QDomElement &element, QString &tag, QVector<XmlAttribute> &attributes)>;
//! The same with changes, for which no copy of the tree is needed.
QString xmlNodeText(const QDomElement &element, const XmlChange &change);

//! For pasting into the text of an element or an attribute between double quotes. What XML can't hold is left out.
QString escapedForXml(const QString &text);

//! For pasting between "<![CDATA[" and "]]>": sections are closed and opened again around what they can't hold.
QString escapedForCData(const QString &text);

//! True for a character of a text that XML can hold; of pairs of surrogates both are.
bool isXmlCharacter(const QString &text, int i);

//! True for what can name an element or an attribute, in ASCII and common Chinese.
bool isXmlName(const QString &text);

} // namespace lessonhost

#endif // XMLTEXT_H
