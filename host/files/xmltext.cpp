// SPDX-License-Identifier: MIT
#include "files/xmltext.h"

#include <QDomElement>
#include <QRegularExpression>

#include <algorithm>

namespace lessonhost {

namespace {

/*!
 * A text that becomes UTF-8 while it is put together, so that a large one is there once and in half the size.
 */
class Utf8Text
{
public:
    void operator+=(QChar c)
    {
        m_piece += c;
        if (m_piece.size() >= pieceSize && !c.isHighSurrogate()) {
            endPiece();
        }
    }
    void operator+=(QLatin1String text) { m_piece += text; }
    void append(const QChar *letters, int count)
    {
        m_piece.append(letters, count);
        if (m_piece.size() >= pieceSize) {
            endPiece();
        }
    }
    void operator+=(const QString &text)
    {
        m_piece += text;
        if (m_piece.size() >= pieceSize) {
            endPiece();
        }
    }

    QByteArray take()
    {
        endPiece();
        return m_bytes;
    }

private:
    static constexpr int pieceSize = 64 * 1024;

    void endPiece()
    {
        m_bytes += m_piece.toUtf8();
        m_piece.resize(0);
    }

    QString m_piece;
    QByteArray m_bytes;
};

// What stands for a character in a text; null for those that stand for themselves. Line breaks and tabs are only kept
// by parsers where they are written as references: all of them in attributes, in texts the carriage return.
const char *referenceTo(ushort code, bool isAttribute)
{
    switch (code) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return isAttribute ? "&quot;" : nullptr;
    case '\r':
        return "&#13;";
    case '\n':
        return isAttribute ? "&#10;" : nullptr;
    case '\t':
        return isAttribute ? "&#9;" : nullptr;
    default:
        return nullptr;
    }
}

constexpr quint64 bitOf(char sign)
{
    return quint64(1) << sign;
}

// Whether a character stands for itself in texts and attributes. Those with another meaning are among the first 64.
bool isPlain(ushort code)
{
    constexpr int bits = 64;
    constexpr ushort firstSurrogate = 0xd800;
    constexpr quint64 plain = ~(bitOf(' ') - 1) & ~(bitOf('&') | bitOf('<') | bitOf('>') | bitOf('"'));
    return code < bits ? ((plain >> code) & 1) != 0 : code < firstSurrogate;
}

// Plain letters, which are most, go into the text in one piece.
template <typename Out> void appendEscaped(Out &out, const QString &text, bool isAttribute)
{
    const QChar *const letters = text.constData();
    const int size = text.size();
    int start = 0;
    for (int i = 0; i < size; ++i) {
        const ushort code = letters[i].unicode();
        if (isPlain(code)) {
            continue;
        }
        const char *const reference = referenceTo(code, isAttribute);
        if (!reference && isXmlCharacter(text, i)) {
            continue;
        }
        out.append(letters + start, i - start);
        if (reference) {
            out += QLatin1String(reference);
        }
        start = i + 1;
    }
    out.append(letters + start, size - start);
}

QVector<XmlAttribute> attributesOf(const QDomElement &element)
{
    QVector<XmlAttribute> all;
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.count();
    all.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QDomNode attribute = attributes.item(i);
        all.append({attribute.nodeName(), attribute.nodeValue()});
    }
    return all;
}

int rankOf(const QString &name)
{
    return name == QLatin1String("id") ? 0 : name == QLatin1String("type") ? 1 : 2;
}

void sortByName(QVector<XmlAttribute> &attributes)
{
    std::sort(attributes.begin(), attributes.end(), [](const XmlAttribute &one, const XmlAttribute &other) {
        const int difference = rankOf(one.name) - rankOf(other.name);
        return difference == 0 ? one.name < other.name : difference < 0;
    });
}

bool holdsText(const QDomElement &element)
{
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText()) {
            return true;
        }
    }
    return false;
}

// Blanks between its children would be letters to others.
bool keepsBlanks(const QString &tag)
{
    return tag == QLatin1String("svg:textarea");
}

template <typename Out> void startLine(Out &out, int depth)
{
    const QLatin1String blanks("                ");
    out += QLatin1String("\n");
    for (; depth > blanks.size(); depth -= blanks.size()) {
        out += blanks;
    }
    out += blanks.left(depth);
}

// depth below 0: no line breaks, as within an element that holds text.
template <typename Out>
void appendElement(Out &out, const QDomElement &element, int depth, const XmlChange &change = {})
{
    QString tag = element.tagName();
    QVector<XmlAttribute> attributes = attributesOf(element);
    if (change) {
        change(element, tag, attributes);
    }
    out += QLatin1Char('<');
    out += tag;
    sortByName(attributes);
    for (const XmlAttribute &attribute : qAsConst(attributes)) {
        out += QLatin1Char(' ');
        out += attribute.name;
        out += QLatin1String("=\"");
        appendEscaped(out, attribute.value, true);
        out += QLatin1Char('"');
    }
    if (!element.hasChildNodes()) {
        out += QLatin1String("/>");
        return;
    }
    out += QLatin1Char('>');
    const int childDepth = depth < 0 || holdsText(element) || keepsBlanks(tag) ? -1 : depth + 1;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isCDATASection()) {
            out += QLatin1String("<![CDATA[") + escapedForCData(child.nodeValue()) + QLatin1String("]]>");
        } else if (child.isText()) {
            appendEscaped(out, child.nodeValue(), false);
        } else if (child.isElement()) {
            if (childDepth >= 0) {
                startLine(out, childDepth);
            }
            appendElement(out, child.toElement(), childDepth, change);
        }
    }
    if (childDepth >= 0) {
        startLine(out, depth);
    }
    out += QLatin1String("</");
    out += tag;
    out += QLatin1Char('>');
}

} // namespace

bool isXmlCharacter(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate()) {
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    }
    if (c.isLowSurrogate()) {
        return i > 0 && text.at(i - 1).isHighSurrogate();
    }
    const ushort code = c.unicode();
    return (code >= 0x20 && code < 0xfffe) || code == '\t' || code == '\n' || code == '\r';
}

QByteArray xmlDocumentText(const QDomElement &root)
{
    Utf8Text out;
    out += QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    appendElement(out, root, 0);
    out += QLatin1Char('\n');
    return out.take();
}

QByteArray xmlLines(const QDomElement &element, int depth)
{
    Utf8Text out;
    startLine(out, depth);
    appendElement(out, element, depth);
    return out.take();
}

QString xmlNodeText(const QDomElement &element)
{
    return xmlNodeText(element, {});
}

QString xmlNodeText(const QDomElement &element, const XmlChange &change)
{
    QString out;
    appendElement(out, element, -1, change);
    return out;
}

QString escapedForXml(const QString &text)
{
    QString out;
    out.reserve(text.size() + text.size() / 8);
    appendEscaped(out, text, true);
    return out;
}

QString escapedForCData(const QString &text)
{
    if (text.contains(QLatin1Char('\r'))) {
        // Only a reference keeps it, and only a node of text can hold one. All of the text goes there, since a node of
        // blanks alone would be dropped.
        return QLatin1String("]]>") + escapedForXml(text) + QLatin1String("<![CDATA[");
    }
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (isXmlCharacter(text, i)) {
            out += text.at(i);
        }
    }
    return out.replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>"));
}

bool isXmlName(const QString &text)
{
    static const QRegularExpression name(
        QStringLiteral("\\A[A-Za-z_\\x{4e00}-\\x{9fa5}][A-Za-z0-9_.\\x{4e00}-\\x{9fa5}-]*\\z"));
    return name.match(text).hasMatch();
}

} // namespace lessonhost
