// SPDX-License-Identifier: MIT
#include "files/xmlreadback.h"

#include "files/xmlloader.h"

#include <QDomElement>
#include <QVarLengthArray>

#include <algorithm>

namespace lessonhost {

namespace {

// No smaller text takes the memory that is refused, whatever is in it.
constexpr int largestText = maximumXmlMemory / 128;
// More are left to a parser.
constexpr int mostAttributes = 100;

bool isNameLetter(QChar c)
{
    const ushort code = c.unicode();
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9') || code == '_'
        || code == '-' || code == '.';
}

bool isNameBegin(QChar c)
{
    return isNameLetter(c) && c != QLatin1Char('-') && c != QLatin1Char('.') && !c.isDigit();
}

// What parsers take for no letter of a text.
bool isBlank(QChar c)
{
    return c.unicode() <= ' ';
}

bool isLayout(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t');
}

/*!
 * Goes through a text and a tree side by side, by the rules of XML and not by those of a writer.
 */
class Reading
{
public:
    explicit Reading(const QString &text)
        : m_at(text.cbegin())
        , m_end(text.cend())
    {
    }

    bool isDocument(const QDomElement &root)
    {
        return take("<?xml version=\"1.0\" encoding=\"UTF-8\"?>") && isAlone(root);
    }

    bool isAlone(const QDomElement &root)
    {
        skipLayout();
        const bool isRoot = isElement(root, 1);
        skipLayout();
        return isRoot && m_at == m_end;
    }

private:
    bool isElement(const QDomElement &element, int depth)
    {
        const QString tag = element.tagName();
        if (depth > maximumXmlDepth || !take("<") || QStringView(tag) != takeName() || !hasAttributes(element)) {
            return false;
        }
        if (take("/>")) {
            return !element.hasChildNodes();
        }
        if (!take(">")) {
            return false;
        }
        bool isBehindText = false; // which one that follows would be a part of
        for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
            const bool isText = child.isText() && !child.isCDATASection();
            if ((isText && isBehindText) || !isChild(child, depth)) {
                return false;
            }
            isBehindText = isText;
        }
        skipLayout();
        return take("</") && QStringView(tag) == takeName() && take(">");
    }

    bool isChild(const QDomNode &child, int depth)
    {
        if (child.isCDATASection()) {
            skipLayout();
            return take("<![CDATA[") && isSection(child.nodeValue());
        }
        if (child.isText()) {
            const QString text = child.nodeValue();
            return !std::all_of(text.cbegin(), text.cend(), isBlank) && isValue(text, QLatin1Char('<'));
        }
        skipLayout();
        return child.isElement() && isElement(child.toElement(), depth + 1);
    }

    bool hasAttributes(QDomElement element)
    {
        QVarLengthArray<QString, 16> names;
        while (take(" ")) {
            const QStringView letters = takeName();
            const QString name = QString::fromRawData(letters.data(), int(letters.size()));
            const QDomAttr attribute = element.attributeNode(name);
            const bool isNew = std::find(names.cbegin(), names.cend(), name) == names.cend();
            if (attribute.isNull() || !isNew || names.size() == mostAttributes || !take("=\"")
                || !isValue(attribute.value(), QLatin1Char('"')) || !take("\"")) {
                return false;
            }
            names.append(name);
        }
        return names.size() == element.attributes().count();
    }

    // What parsers change is none: line breaks and tabs in attributes, carriage returns.
    bool isValue(const QString &meant, QChar end)
    {
        const bool isAttribute = end == QLatin1Char('"');
        auto expected = meant.cbegin();
        for (; m_at != m_end && *m_at != end; ++expected) {
            const QChar c = *m_at == QLatin1Char('&') ? takeReference() : *m_at++;
            if (c.isNull() || expected == meant.cend() || c != *expected) {
                return false;
            }
            const QChar written = *(m_at - 1); // ; of a reference
            const bool isWhite = written == QLatin1Char('\n') || written == QLatin1Char('\t');
            if (written == QLatin1Char('<') || written == QLatin1Char('>') || !(isWhite ? !isAttribute : isLetter(written))) {
                return false;
            }
        }
        return expected == meant.cend();
    }

    bool isSection(const QString &meant)
    {
        if (meant.isEmpty() || m_end - m_at < meant.size() || !std::equal(meant.cbegin(), meant.cend(), m_at)) {
            return false;
        }
        m_at += meant.size();
        return !meant.contains(QLatin1String("]]>")) && !meant.endsWith(QLatin1Char(']'))
            && std::all_of(meant.cbegin(), meant.cend(),
                           [](QChar c) { return isLetter(c) || c == QLatin1Char('\n') || c == QLatin1Char('\t'); })
            && take("]]>");
    }

    static bool isLetter(QChar c) { return c.unicode() >= ' ' && c.unicode() < QChar::ReplacementCharacter; }

    // Null for one that isn't known.
    QChar takeReference()
    {
        constexpr std::pair<const char *, char> references[] = {{"&lt;", '<'},   {"&gt;", '>'},    {"&amp;", '&'},
                                                                {"&quot;", '"'}, {"&#10;", '\n'}, {"&#13;", '\r'},
                                                                {"&#9;", '\t'}};
        const auto found = std::find_if(std::begin(references), std::end(references),
                                        [this](const auto &reference) { return take(reference.first); });
        return found == std::end(references) ? QChar() : QLatin1Char(found->second);
    }

    // Empty where there is no name.
    QStringView takeName()
    {
        const QChar *const begin = m_at;
        if (m_at != m_end && isNameBegin(*m_at)) {
            m_at = std::find_if_not(m_at, m_end, isNameLetter);
        }
        return {begin, m_at - begin};
    }

    void skipLayout()
    {
        m_at = std::find_if_not(m_at, m_end, isLayout);
    }

    bool take(const char *letters)
    {
        const QChar *at = m_at;
        for (; *letters; ++letters, ++at) {
            if (at == m_end || *at != QLatin1Char(*letters)) {
                return false;
            }
        }
        m_at = at;
        return true;
    }

    const QChar *m_at;
    const QChar *m_end;
};

} // namespace

bool readsBackAs(const QByteArray &text, const QDomElement &root)
{
    if (text.size() > largestText) {
        return false;
    }
    const QString letters = QString::fromUtf8(text);
    return Reading(letters).isDocument(root);
}

bool readsBackAs(const QString &text, const QDomElement &root)
{
    const QByteArray bytes = text.toUtf8();
    const QString letters = QString::fromUtf8(bytes); // as others would read it
    return bytes.size() <= largestText && Reading(letters).isAlone(root);
}

} // namespace lessonhost
