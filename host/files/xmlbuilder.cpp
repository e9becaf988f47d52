// SPDX-License-Identifier: MIT
#include "files/xmlbuilder.h"

#include "files/lessonerror.h"

#include <QXmlStreamReader>

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
    : m_device(text)
    , m_name(name)
    , m_blanks(blanks)
{
}

XmlBuilder::~XmlBuilder() = default;

QDomDocument XmlBuilder::build()
{
    const qint64 start = m_device->pos();
    if (buildByExpat()) {
        return m_document;
    }
    m_device->seek(start);
    return parse();
}

// False for what only the parser can read, and for what is refused: that is told with the line in which it stands.
bool XmlBuilder::buildByExpat()
{
    m_expat = std::make_unique<ExpatReader>(m_device, [this](ExpatReader::Step step) { take(step); });
    begin();
    bool isRead = false;
    try {
        isRead = m_expat->read();
    } catch (const LessonError &) {
        isRead = false;
    }
    m_expat.reset();
    return isRead;
}

void XmlBuilder::take(ExpatReader::Step step)
{
    if (step == ExpatReader::Start) {
        flushText();
        enterElement();
        startElement();
    } else if (step == ExpatReader::End) {
        flushText();
        endElement();
        --m_depth;
    } else if (m_depth > 0 && !makesNodes()) {
        takeMemory(m_expat->textSize() * qint64(sizeof(QChar)));
    } else if (m_depth > 0 && step == ExpatReader::Section) {
        QString text;
        m_expat->appendTo(text);
        addSection(text);
    } else if (m_depth > 0) {
        m_expat->appendTo(m_text);
    }
}

QDomDocument XmlBuilder::parse()
{
    m_source = std::make_unique<XmlSource>(m_device);
    beginParsing(*m_source);
    m_reader = std::make_unique<QXmlStreamReader>(m_source.get());
    m_reader->setNamespaceProcessing(false);
    begin();
    while (!m_reader->atEnd()) {
        switch (m_reader->readNext()) {
        case QXmlStreamReader::StartElement:
            flushText();
            takeStartElement();
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
    if (m_reader->hasError()) {
        QString reason = m_reader->errorString();
        while (reason.endsWith(QLatin1Char('.'))) {
            reason.chop(1);
        }
        throw LessonError(say("This is not well-formed XML: %1 (column %2)").arg(reason).arg(m_reader->columnNumber()),
                          say("Check that the file is complete"))
            .in(m_name, line());
    }
    return m_document;
}
void XmlBuilder::refuseSource() const
{
    const Sentence check = say("Check that this is a lesson");
    switch (m_source->problem()) {
    case XmlProblem::None:
        return;
    case XmlProblem::TooLarge:
        throw LessonError(say("The file is larger than %1 MiB").arg(maximumXmlSize / 1024 / 1024), check).in(m_name);
    case XmlProblem::TooManyAttributes:
        throw LessonError(say("An element has more than %1 attributes").arg(maximumXmlAttributes), check)
            .in(m_name, m_source->line());
    case XmlProblem::DocumentType:
        throw LessonError(say("The document has a document type declaration, which lessons don't use"),
                          say("Remove the <!DOCTYPE ...> part"))
            .in(m_name, m_source->line());
    case XmlProblem::OddEncoding:
        throw LessonError(say("This is not well-formed XML: it isn't in the encoding that it says it is in"),
                          say("Save it in UTF-8"))
            .in(m_name);
    case XmlProblem::Unreadable:
        throw LessonError(say("The file can't be read to its end"), say("Check the disk that it is on")).in(m_name);
    }
}

void XmlBuilder::begin()
{
    m_document = QDomDocument();
    m_current.clear();
    m_depth = 0;
    m_memory = 0;
    m_text.clear();
}

void XmlBuilder::takeStartElement()
{
    m_parsedName = m_reader->qualifiedName().toString();
    m_parsedAttributes.clear();
    const QXmlStreamAttributes attributes = m_reader->attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        m_parsedAttributes.append({attribute.qualifiedName().toString(), attribute.value().toString()});
    }
}

const QString &XmlBuilder::tagName() const
{
    return m_expat ? m_expat->name() : m_parsedName;
}

const QVector<ReadAttribute> &XmlBuilder::attributes() const
{
    return m_expat ? m_expat->attributes() : m_parsedAttributes;
}

XmlTag XmlBuilder::takeTag()
{
    return m_expat ? m_expat->tag() : m_source->takeTag();
}

// A failure is told by the parser.
int XmlBuilder::line() const
{
    return m_expat ? 0 : int(m_reader->lineNumber());
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
    m_memoryBefore = m_memory;
    qint64 bytes = elementMemory + attributes().size() * attributeMemory;
    for (const ReadAttribute &attribute : attributes()) {
        bytes += (attribute.size() + attribute.name.size()) * qint64(sizeof(QChar));
    }
    takeMemory(bytes + tagName().size() * qint64(sizeof(QChar)));
}

QDomElement XmlBuilder::makeElement()
{
    QDomElement element = m_document.createElement(tagName());
    for (const ReadAttribute &attribute : attributes()) {
        element.setAttribute(attribute.name, attribute.value());
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
        takeMemory(m_reader->text().size() * qint64(sizeof(QChar)));
    } else if (m_reader->isCDATA()) {
        addSection(m_reader->text().toString());
    } else {
        m_text += m_reader->text();
    }
}

void XmlBuilder::addSection(const QString &text)
{
    flushText();
    if (!text.isEmpty()) {
        takeMemory(textMemory + text.size() * qint64(sizeof(QChar)));
        m_current.appendChild(m_document.createCDATASection(text));
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
    m_text.resize(0); // and keep its memory
}

} // namespace lessonhost
