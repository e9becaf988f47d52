#include "domhelpers.h"

#include <QXmlDefaultHandler>

namespace {

// Reading, printing and releasing a DOM takes stack for each level.
const int deepestNesting = 4000;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

// Stops the reader at the first element that lies too deep, and remembers its line.
class NestingCheck : public QXmlDefaultHandler
{
public:
    void setDocumentLocator(QXmlLocator *locator) override { m_locator = locator; }

    bool startElement(const QString &, const QString &, const QString &, const QXmlAttributes &) override
    {
        if (++m_depth <= deepestNesting) {
            return true;
        }
        m_line = m_locator->lineNumber();
        m_column = m_locator->columnNumber();
        return false;
    }

    bool endElement(const QString &, const QString &, const QString &) override
    {
        --m_depth;
        return true;
    }

    bool isTooDeep() const { return m_line > 0; }

    // The text up to about the tag that lies too deep.
    QString shallowPart(const QString &xml) const
    {
        int start = 0;
        for (int line = 1; line < m_line; ++line) {
            start = xml.indexOf(QLatin1Char('\n'), start) + 1;
        }
        return xml.left(start + m_column - 1);
    }

private:
    QXmlLocator *m_locator = nullptr;
    int m_depth = 0;
    int m_line = 0;
    int m_column = 0;
};

// The deprecated reader is the one that fills the DOM: only it sees the elements that the DOM will see.
bool parse(QDomDocument &document, const QString &xml)
{
    if (xml.count(QLatin1Char('<')) > deepestNesting) {
        NestingCheck check;
        QXmlInputSource source;
        source.setData(xml);
        QXmlSimpleReader reader;
        reader.setContentHandler(&check);
        reader.parse(source);
        if (check.isTooDeep()) {
            document.setContent(check.shallowPart(xml), false);
            return false;
        }
    }
    return document.setContent(xml, false);
}

QT_WARNING_POP

} // namespace

QDomElement elementFromXml(const QString &xml)
{
    QDomDocument document;
    parse(document, xml);
    return document.documentElement();
}

QDomElement elementFromWellFormedXml(const QString &xml)
{
    QDomDocument document;
    return parse(document, xml) ? document.documentElement() : QDomElement();
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
