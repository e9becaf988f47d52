// SPDX-License-Identifier: MIT
#include "domhelpers.h"

#include <QXmlDefaultHandler>

namespace {

// Reading, printing and releasing a DOM takes stack for each level.
const int deepestNesting = 4000;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

// Knows how much of the text has been read, where a line number would depend on what the reader takes for a line.
class CountingSource : public QXmlInputSource
{
public:
    explicit CountingSource(const QString &xml) { setData(xml); }

    QChar next() override
    {
        ++m_read;
        return QXmlInputSource::next();
    }

    int charactersRead() const { return m_read; }

private:
    int m_read = 0;
};

// Stops the reader at the first element that lies too deep.
class NestingCheck : public QXmlDefaultHandler
{
public:
    bool startElement(const QString &, const QString &, const QString &, const QXmlAttributes &) override
    {
        m_isTooDeep = ++m_depth > deepestNesting;
        return !m_isTooDeep;
    }

    bool endElement(const QString &, const QString &, const QString &) override
    {
        --m_depth;
        return true;
    }

    bool isTooDeep() const { return m_isTooDeep; }

private:
    int m_depth = 0;
    bool m_isTooDeep = false;
};

// No fewer elements than can be open at once. Not counted is a tag that ends itself for certain: up to the next tag
// there is no other end of one. A single "/>" may be part of a value, but then the tag's own end is counted further on.
int mostOpenElements(const QString &xml)
{
    const QLatin1Char start('<');
    const QLatin1Char end('>');
    int count = 0;
    int next = xml.indexOf(start);
    while (next >= 0) {
        const int tag = next;
        next = xml.indexOf(start, tag + 1);
        const QStringRef text = xml.midRef(tag, next < 0 ? -1 : next - tag);
        const int tagEnd = text.indexOf(end);
        const bool endsItself =
            tagEnd > 0 && text.at(tagEnd - 1) == QLatin1Char('/') && text.indexOf(end, tagEnd + 1) < 0;
        count += endsItself ? 0 : 1;
    }
    return count;
}

// Whether a document type stands before the first element. Comments and instructions may stand before it.
bool declaresDocumentType(const QString &xml)
{
    const QLatin1String documentType("<!DOCTYPE");
    if (!xml.contains(documentType)) {
        return false;
    }
    const QStringView text(xml);
    qsizetype at = 0;
    while (at < text.size()) {
        const QStringView rest = text.mid(at);
        if (rest.front().isSpace()) {
            ++at;
            continue;
        }
        const bool isComment = rest.startsWith(QLatin1String("<!--"));
        if (!isComment && !rest.startsWith(QLatin1String("<?"))) {
            return rest.startsWith(documentType);
        }
        const qsizetype end =
            isComment ? text.indexOf(QLatin1String("-->"), at + 4) : text.indexOf(QLatin1String("?>"), at);
        if (end < 0) {
            return false;
        }
        at = end + (isComment ? 3 : 2);
    }
    return false;
}

// The part of the text that is safe to parse: up to the first tag that lies too deep, and nothing of a text with a
// document type. Its entities unfold without a limit in depth, each reference costs as much as all that was unfolded
// before, and the parser calls itself for each bracket of a content model. The deprecated reader is the one that fills
// the DOM: only it sees the elements that the DOM will see.
QString safePart(const QString &xml)
{
    if (declaresDocumentType(xml)) {
        return {};
    }
    if (mostOpenElements(xml) <= deepestNesting) {
        return xml;
    }
    NestingCheck check;
    CountingSource source(xml);
    QXmlSimpleReader reader;
    reader.setContentHandler(&check);
    reader.parse(source);
    if (!check.isTooDeep()) {
        return xml;
    }
    // At that moment the reader has the end of the tag, and may have the character behind it.
    return xml.left(xml.lastIndexOf(QLatin1Char('<'), source.charactersRead() - 2));
}

bool parse(QDomDocument &document, const QString &xml)
{
    const QString parsed = safePart(xml);
    return document.setContent(parsed, false) && parsed.size() == xml.size();
}

QT_WARNING_POP

// The document element, alone in its document. When the document goes, an element keeps its pointers to what stood
// beside it, be it only the declaration.
QDomElement loneElement(QDomDocument &document)
{
    const QDomElement element = document.documentElement();
    QDomNode node = document.firstChild();
    while (!node.isNull()) {
        const QDomNode next = node.nextSibling();
        if (node != element) {
            document.removeChild(node);
        }
        node = next;
    }
    return element;
}

} // namespace

QDomElement elementFromXml(const QString &xml)
{
    QDomDocument document;
    parse(document, xml);
    return loneElement(document);
}

QDomElement elementFromWellFormedXml(const QString &xml)
{
    QDomDocument document;
    return parse(document, xml) ? loneElement(document) : QDomElement();
}

ElementTemplate::ElementTemplate(const QString &xml)
{
    m_document.setContent(xml, false);
    loneElement(m_document);
}

QDomElement ElementTemplate::instance() const
{
    // A cloned document would do, but for its elements: they still belong to the one that they were cloned from.
    QDomDocument document;
    return document.appendChild(document.importNode(m_document.documentElement(), true)).toElement();
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
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == tag && child.isElement()) {
            return child.toElement();
        }
    }
    return {};
}

QDomElement childByTagAndContent(const QDomElement &parent, const QString &tag, bool withChildren)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == tag && child.isElement() && child.hasChildNodes() == withChildren) {
            return child.toElement();
        }
    }
    return {};
}

QDomElement descendantByTag(const QDomElement &parent, const QString &tag)
{
    QDomElement found;
    forEachNodeBelow(parent, [&found, &tag](const QDomNode &node) {
        if (node.nodeName() != tag || !node.isElement()) {
            return true;
        }
        found = node.toElement();
        return false;
    });
    return found;
}

bool nestsTooDeep(const QDomElement &element)
{
    int depth = 1;
    QDomNode node = element;
    while (!node.isNull()) {
        QDomNode next = node.firstChild();
        if (!next.isNull() && ++depth > deepestNesting) {
            return true;
        }
        while (next.isNull() && node != element) {
            next = node.nextSibling();
            if (next.isNull()) {
                node = node.parentNode();
                --depth;
            }
        }
        node = next;
    }
    return false;
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
