// SPDX-License-Identifier: MIT
#include "files/xmlbuilder.h"

#include "files/lessonerror.h"

#include <algorithm>

namespace lessonhost {

namespace {

// What the nodes of a DOM take, each with its share of lists and of the texts' administration, in bytes.
constexpr qint64 elementMemory = 300;
constexpr qint64 attributeMemory = 400;
constexpr qint64 textMemory = 200;

} // namespace

void checkXmlFileSize(qint64 size, const QString &displayName)
{
    if (size > maximumXmlSize) {
        throw LessonError(say("The file is larger than %1 MiB").arg(maximumXmlSize / 1024 / 1024),
                          say("Check that this is a lesson"))
            .in(displayName);
    }
}

XmlBuilder::XmlBuilder(QIODevice *text, const QString &name, XmlBlanks blanks)
    : m_source(text)
    , m_reader(&m_source)
    , m_name(name)
    , m_blanks(blanks)
{
    m_reader.setNamespaceProcessing(false);
}

QDomDocument XmlBuilder::build()
{
    while (!m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            flushText();
            enterElement();
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            flushText();
            endElement();
            --m_depth;
            break;
        case QXmlStreamReader::Characters:
            characters();
            break;
        default:
            break;
        }
    }
    refuseSource();
    if (m_reader.hasError()) {
        QString reason = m_reader.errorString();
        while (reason.endsWith(QLatin1Char('.'))) {
            reason.chop(1);
        }
        throw LessonError(say("This is not well-formed XML: %1 (column %2)").arg(reason).arg(m_reader.columnNumber()),
                          say("Check that the file is complete"))
            .in(m_name, line());
    }
    return m_document;
}

void XmlBuilder::refuseSource() const
{
    const Sentence check = say("Check that this is a lesson");
    switch (m_source.problem()) {
    case XmlProblem::None:
        return;
    case XmlProblem::TooLarge:
        throw LessonError(say("The file is larger than %1 MiB").arg(maximumXmlSize / 1024 / 1024), check).in(m_name);
    case XmlProblem::TooManyAttributes:
        throw LessonError(say("An element has more than %1 attributes").arg(maximumXmlAttributes), check)
            .in(m_name, m_source.line());
    case XmlProblem::DocumentType:
        throw LessonError(say("The document has a document type declaration, which lessons don't use"),
                          say("Remove the <!DOCTYPE ...> part"))
            .in(m_name, m_source.line());
    case XmlProblem::OddEncoding:
        throw LessonError(say("This is not well-formed XML: it isn't in the encoding that it says it is in"),
                          say("Save it in UTF-8"))
            .in(m_name);
    case XmlProblem::Unreadable:
        throw LessonError(say("The file can't be read to its end"), say("Check the disk that it is on")).in(m_name);
    }
}

// Before a node is made that takes so much.
void XmlBuilder::takeMemory(qint64 bytes)
{
    m_memory += bytes;
    if (m_memory > maximumXmlMemory) {
        throw LessonError(say("The document is too large: what is in it would take more than %1 MiB of memory")
                              .arg(maximumXmlMemory / 1024 / 1024),
                          say("Divide it into smaller ones, or check that this is a lesson"))
            .in(m_name, line());
    }
}

void XmlBuilder::enterElement()
{
    if (++m_depth > maximumXmlDepth) {
        throw LessonError(say("Elements are nested deeper than %1 levels").arg(maximumXmlDepth),
                          say("Take some groups apart, or check that this is a lesson"))
            .in(m_name, line());
    }
    m_attributes = m_reader.attributes();
    m_memoryBefore = m_memory;
    qint64 bytes = elementMemory + m_attributes.size() * attributeMemory;
    for (const QXmlStreamAttribute &attribute : qAsConst(m_attributes)) {
        bytes += (attribute.value().size() + attribute.qualifiedName().size()) * qint64(sizeof(QChar));
    }
    takeMemory(bytes + m_reader.qualifiedName().size() * qint64(sizeof(QChar)));
}

QDomElement XmlBuilder::makeElement()
{
    QDomElement element = m_document.createElement(m_reader.qualifiedName().toString());
    for (const QXmlStreamAttribute &attribute : qAsConst(m_attributes)) {
        element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    }
    enterNode(element);
    return element;
}

// A document that has no node yet is none itself.
void XmlBuilder::enterNode(const QDomNode &node)
{
    m_current = m_current.isNull() ? m_document.appendChild(node) : m_current.appendChild(node);
}

void XmlBuilder::startElement()
{
    makeElement();
}

void XmlBuilder::endElement()
{
    m_current = m_current.parentNode();
}

void XmlBuilder::characters()
{
    if (m_depth == 0) {
        return;
    }
    if (!makesNodes()) {
        takeMemory(m_reader.text().size() * qint64(sizeof(QChar)));
        return;
    }
    if (m_reader.isCDATA()) {
        flushText();
        if (m_reader.text().isEmpty()) {
            return;
        }
        takeMemory(textMemory + m_reader.text().size() * qint64(sizeof(QChar)));
        m_current.appendChild(m_document.createCDATASection(m_reader.text().toString()));
    } else {
        m_text += m_reader.text();
    }
}

// Blanks between elements are no nodes, as with every DOM that the plug-in's operations are used to.
void XmlBuilder::flushText()
{
    const bool isBlank = std::all_of(m_text.cbegin(), m_text.cend(), [](QChar c) { return c.unicode() <= 0x20; });
    if (!isBlank || (m_blanks == XmlBlanks::Kept && !m_text.isEmpty())) {
        takeMemory(textMemory + m_text.size() * qint64(sizeof(QChar)));
        m_current.appendChild(m_document.createTextNode(m_text));
    }
    m_text.clear();
}

} // namespace lessonhost
