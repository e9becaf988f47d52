#include "domhelpers.h"

QDomElement elementFromXml(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml, false);
    return document.documentElement();
}

ElementTemplate::ElementTemplate(const QString &xml)
{
    m_document.setContent(xml, false);
}

QDomElement ElementTemplate::instance() const
{
    return m_document.cloneNode().toDocument().documentElement();
}

QDomElement ElementTemplate::part() const
{
    return m_document.documentElement().cloneNode().toElement();
}

QDomElement newElement(const QString &tag)
{
    // Only a child of the document loses its owner cleanly when the document goes; a loose element would keep a
    // pointer to it.
    QDomDocument document;
    document.appendChild(document.createElement(tag));
    return document.documentElement();
}

QDomElement childByTag(const QDomElement &parent, const QString &tag)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.tagName() == tag) {
            return child;
        }
    }
    return {};
}

QDomElement childByTagAndContent(const QDomElement &parent, const QString &tag, bool withChildren)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.tagName() == tag && child.hasChildNodes() == withChildren) {
            return child;
        }
    }
    return {};
}

QDomElement descendantByTag(const QDomElement &parent, const QString &tag)
{
    QDomElement found;
    forEachDescendant(parent, [&found, &tag](const QDomElement &descendant) {
        if (descendant.tagName() != tag) {
            return true;
        }
        found = descendant;
        return false;
    });
    return found;
}

QDomElement childByNameAttribute(const QDomElement &parent, const QString &name)
{
    const QString attribute = QStringLiteral("name");
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.attribute(attribute) == name) {
            return child;
        }
    }
    return {};
}

QJsonObject attributesAsJson(const QDomElement &element)
{
    QJsonObject object;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        object.insert(attribute.name(), attribute.value());
    }
    return object;
}
