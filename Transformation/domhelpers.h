// SPDX-License-Identifier: MIT
#ifndef DOMHELPERS_H
#define DOMHELPERS_H

#include <QDomDocument>
#include <QDomElement>
#include <QJsonObject>
#include <QString>

//! The document element of xml, parsed without namespace processing into a document of its own. What the parser built
//! before an error stays: "<animations>" gives an empty element. A text without a start tag gives a null element.
//! A text that nests elements more than 4000 deep ends there, as if by an error, and one that declares a document type
//! has no element: strangers could stall the parser by its entities, and crash it by its content models.
QDomElement elementFromXml(const QString &xml);

//! The same, but null for a text with any error in it.
QDomElement elementFromWellFormedXml(const QString &xml);

/*!
 * A literal template text, parsed once per process. For texts that take no values.
 */
class ElementTemplate
{
public:
    explicit ElementTemplate(const QString &xml);

    //! A new copy of the element in a document of its own, as elementFromXml gives.
    QDomElement instance() const;

    //! A new copy for a caller that appends it to a tree at once. Costs less; until then it belongs to the template.
    QDomElement part() const;

private:
    QDomDocument m_document;
};

//! An empty element in a document of its own, for tags that are known to be names.
QDomElement newElement(const QString &tag);

//! The first direct child element with this tag, or null.
QDomElement childByTag(const QDomElement &parent, const QString &tag);

//! The first direct child element with this tag that has child nodes, or that has none, or null.
QDomElement childByTagAndContent(const QDomElement &parent, const QString &tag, bool withChildren);

//! The first element with this tag in document order at any depth below parent, or null. Needs no stack for the depth.
QDomElement descendantByTag(const QDomElement &parent, const QString &tag);

//! Calls visit for each node below parent in document order until it answers false. Needs no stack for the depth.
template <typename Visit> void forEachNodeBelow(const QDomNode &parent, Visit visit)
{
    QDomNode node = parent.firstChild();
    while (!node.isNull()) {
        if (!visit(node)) {
            return;
        }
        QDomNode next = node.firstChild();
        while (next.isNull() && node != parent) {
            next = node.nextSibling();
            if (next.isNull()) {
                node = node.parentNode();
            }
        }
        node = next;
    }
}

//! The same for the elements alone.
template <typename Visit> void forEachDescendant(const QDomElement &parent, Visit visit)
{
    forEachNodeBelow(parent, [&visit](const QDomNode &node) { return !node.isElement() || visit(node.toElement()); });
}

//! Whether elements nest more than 4000 deep in this one, so that printing them may take more stack than there is.
bool nestsTooDeep(const QDomElement &element);

//! One text member per attribute.
QJsonObject attributesAsJson(const QDomElement &element);

#endif // DOMHELPERS_H
