#include "files/xmlloader.h"

#include "files/lessonerror.h"

#include <QDomElement>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace lessonhost {

namespace {

// True if a tag of the text has more attributes than are let through. The quotes are counted in the bytes: in each
// encoding that XML comes in they are these bytes, and what else may be is too rare to come up to the limit.
bool hasTooManyAttributes(const QByteArray &text)
{
    int quotes = 0;
    bool isInTag = false;
    char quote = 0;
    for (const char c : text) {
        if (quote) {
            quote = c == quote ? '\0' : quote;
        } else if (c == '<' || c == '>') {
            isInTag = c == '<';
            quotes = 0;
        } else if (isInTag && (c == '"' || c == '\'')) {
            quote = c;
            if (++quotes > maximumXmlAttributes) {
                return true;
            }
        }
    }
    return false;
}

/*!
 * Builds the DOM from a stream, so that the text is looked through once and everything that is refused is refused
 * before a node is made for it.
 */
class DocumentBuilder
{
public:
    DocumentBuilder(const QByteArray &text, const QString &name)
        : m_reader(text)
        , m_name(name)
    {
        m_reader.setNamespaceProcessing(false);
    }

    QDomDocument build()
    {
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::DTD:
                throw LessonError(
                    QStringLiteral("The document has a document type declaration, which lessons don't use"),
                    QStringLiteral("Remove the <!DOCTYPE ...> part"))
                    .in(m_name, line());
            case QXmlStreamReader::StartElement:
                startElement();
                break;
            case QXmlStreamReader::EndElement:
                flushText();
                m_current = m_current.parentNode();
                --m_depth;
                break;
            case QXmlStreamReader::Characters:
                characters();
                break;
            default:
                break;
            }
        }
        if (m_reader.hasError()) {
            QString reason = m_reader.errorString();
            while (reason.endsWith(QLatin1Char('.'))) {
                reason.chop(1);
            }
            throw LessonError(
                QStringLiteral("This is not well-formed XML: %1 (column %2)").arg(reason).arg(m_reader.columnNumber()),
                QStringLiteral("Check that the file is complete"))
                .in(m_name, line());
        }
        return m_document;
    }

private:
    int line() const { return int(m_reader.lineNumber()); }

    void startElement()
    {
        flushText();
        if (++m_depth > maximumXmlDepth) {
            throw LessonError(QStringLiteral("Elements are nested deeper than %1 levels").arg(maximumXmlDepth),
                              QStringLiteral("Take some groups apart, or check that this is a lesson"))
                .in(m_name, line());
        }
        QDomElement element = m_document.createElement(m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
        }
        if (m_depth == 1) {
            m_document.appendChild(element);
        } else {
            m_current.appendChild(element);
        }
        m_current = element;
    }

    void characters()
    {
        if (m_depth == 0) {
            return;
        }
        if (m_reader.isCDATA()) {
            flushText();
            if (m_reader.text().isEmpty()) {
                return;
            }
            m_current.appendChild(m_document.createCDATASection(m_reader.text().toString()));
        } else {
            m_text += m_reader.text();
        }
    }

    // Blanks between elements are no nodes, as with every DOM that the plug-in's operations are used to.
    void flushText()
    {
        const bool isBlank = std::all_of(m_text.cbegin(), m_text.cend(), [](QChar c) { return c.unicode() <= 0x20; });
        if (!isBlank) {
            m_current.appendChild(m_document.createTextNode(m_text));
        }
        m_text.clear();
    }

    QXmlStreamReader m_reader;
    QString m_name;
    QDomDocument m_document;
    QDomNode m_current;
    QString m_text;
    int m_depth = 0;
};

} // namespace

QDomDocument loadXml(const QByteArray &text, const QString &displayName)
{
    if (hasTooManyAttributes(text)) {
        throw LessonError(QStringLiteral("An element has more than %1 attributes").arg(maximumXmlAttributes),
                          QStringLiteral("Check that this is a lesson"))
            .in(displayName);
    }
    return DocumentBuilder(text, displayName).build();
}

QDomDocument loadXmlFile(const QString &fileName, const QString &displayName)
{
    const QString name = displayName.isEmpty() ? fileName : displayName;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw LessonError(QStringLiteral("The file can't be read: %1").arg(file.errorString()),
                          QStringLiteral("Check that it exists and that you may read it"))
            .in(name);
    }
    if (file.size() > maximumXmlSize) {
        throw LessonError(QStringLiteral("The file is larger than %1 MiB").arg(maximumXmlSize / 1024 / 1024),
                          QStringLiteral("Check that this is a lesson"))
            .in(name);
    }
    return loadXml(file.readAll(), name);
}

} // namespace lessonhost
