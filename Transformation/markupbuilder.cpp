// SPDX-License-Identifier: MIT
#include "markupbuilder.h"

#include "domhelpers.h"

#include <algorithm>

namespace {

// Far below the depth at which a parser ends the text.
const int deepestTree = 1000;

// What the parser takes for the end of its input.
bool isEndMark(QChar c)
{
    return c.unicode() >= 0xfffe;
}

template <typename IsSpecial> bool hasNone(const QString &text, IsSpecial isSpecial)
{
    return std::none_of(text.cbegin(), text.cend(), [isSpecial](QChar c) { return isEndMark(c) || isSpecial(c); });
}

bool isPlainCdata(const QString &text)
{
    return hasNone(text, [](QChar c) {
        return (c < QLatin1Char(' ') && c != QLatin1Char('\n') && c != QLatin1Char('\t')) || c == QLatin1Char(']');
    });
}

} // namespace

bool isPlainAttributeValue(const QString &value)
{
    return hasNone(value, [](QChar c) {
        return c < QLatin1Char(' ') || c == QLatin1Char('<') || c == QLatin1Char('&') || c == QLatin1Char('"');
    });
}

// A text of blanks alone is dropped by the parser, and one with brackets could end a CDATA section.
bool isPlainText(const QString &value)
{
    const bool isPlain = hasNone(value, [](QChar c) {
        return c < QLatin1Char(' ') || c == QLatin1Char('<') || c == QLatin1Char('&') || c == QLatin1Char(']');
    });
    return isPlain && (value.isEmpty() || !value.trimmed().isEmpty());
}

void MarkupBuilder::open(QLatin1String tag)
{
    endTag();
    m_text += QLatin1Char('<') + tag;
    m_isInTag = true;
    m_open.append(tag);
    if (m_open.size() > deepestTree) {
        dropTree();
    }
    if (m_hasTree) {
        const QDomElement element = m_document.createElement(tag);
        m_current = (m_open.size() == 1 ? m_document : m_current).appendChild(element);
    }
}

void MarkupBuilder::attribute(QLatin1String name, const QString &value)
{
    m_text += QLatin1Char(' ') + name + QLatin1String("=\"") + value + QLatin1Char('"');
    if (!isPlainAttributeValue(value)) {
        dropTree();
    }
    if (m_hasTree) {
        m_current.toElement().setAttribute(name, value);
    }
}

void MarkupBuilder::text(const QString &value)
{
    endTag();
    m_text += value;
    if (!isPlainText(value)) {
        dropTree();
    }
    if (m_hasTree && !value.isEmpty()) {
        m_current.appendChild(m_document.createTextNode(value));
    }
}

void MarkupBuilder::cdata(const QString &value)
{
    endTag();
    m_text += QLatin1String("<![CDATA[") + value + QLatin1String("]]>");
    if (!isPlainCdata(value)) {
        dropTree();
    }
    if (m_hasTree) {
        m_current.appendChild(m_document.createCDATASection(value));
    }
}

void MarkupBuilder::close()
{
    const QLatin1String tag = m_open.takeLast();
    if (m_isInTag) {
        m_text += QLatin1String("/>");
        m_isInTag = false;
    } else {
        m_text += QLatin1String("</") + tag + QLatin1Char('>');
    }
    if (m_hasTree) {
        m_current = m_current.parentNode();
    }
}

QDomElement MarkupBuilder::element() const
{
    return m_hasTree ? m_document.documentElement() : elementFromXml(m_text);
}

void MarkupBuilder::endTag()
{
    if (m_isInTag) {
        m_text += QLatin1Char('>');
        m_isInTag = false;
    }
}

void MarkupBuilder::dropTree()
{
    m_hasTree = false;
    m_current.clear();
    m_document = {};
}
