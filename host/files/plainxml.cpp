// SPDX-License-Identifier: MIT
#include "files/plainxml.h"

#include "files/xmlloader.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace lessonhost {

namespace {

constexpr int pieceSize = 64 * 1024;
// Whether two of them have one name is asked for each pair.
constexpr int mostAttributes = 100;
// No text of an element or attribute is longer where it is a reference.
constexpr int longestReference = 8;

const QLatin1String byteOrderMark("\xef\xbb\xbf");
const QLatin1String sectionBegin("<![CDATA[");
const QLatin1String sectionEnd("]]>");
const QLatin1String commentBegin("<!--");

constexpr const char *declarations[] = {
    R"(<?xml version="1.0" encoding="UTF-8"?>)",
    R"(<?xml version="1.0" encoding="utf-8"?>)",
    R"(<?xml version='1.0' encoding='UTF-8'?>)",
    R"(<?xml version='1.0' encoding='utf-8'?>)",
    R"(<?xml version="1.0"?>)",
};

// What a byte may mean among others.
enum Kind : uchar {
    Reference = 1, // begins one
    Beyond = 2, // of a letter beyond ASCII
    Return = 4,
    Layout = 8, // line break or tab
    Greater = 16,
    Less = 32,
    Wrong = 64, // no letter of XML
    NameLetter = 128
};

constexpr std::array<uchar, 256> kindsOfBytes()
{
    std::array<uchar, 256> kinds{};
    for (std::size_t c = 0; c < kinds.size(); ++c) {
        const bool isName = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
            || c == '-' || c == '.';
        kinds[c] = c < ' ' ? Wrong : c >= 0x80 ? Beyond : isName ? NameLetter : 0;
    }
    kinds['&'] = Reference;
    kinds['\r'] = Return;
    kinds['\n'] = Layout;
    kinds['\t'] = Layout;
    kinds['>'] = Greater;
    kinds['<'] = Less;
    return kinds;
}

unsigned kindOf(char c)
{
    static constexpr auto table = kindsOfBytes();
    return table[uchar(c)];
}

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

bool isNameBegin(char c)
{
    return (kindOf(c) & NameLetter) && c != '-' && c != '.' && !(c >= '0' && c <= '9');
}

bool startsWith(const char *at, const char *end, QLatin1String letters)
{
    return end - at >= letters.size() && std::memcmp(at, letters.data(), std::size_t(letters.size())) == 0;
}

const char *find(const char *at, const char *end, QLatin1String letters)
{
    return std::search(at, end, letters.begin(), letters.end());
}

// The kinds of all bytes up to one; at becomes its place or the end.
unsigned takeKinds(const char *&at, const char *end, char last)
{
    unsigned found = 0;
    for (; at != end && *at != last; ++at) {
        found |= kindOf(*at);
    }
    return found;
}

unsigned kindsIn(const char *begin, const char *end)
{
    unsigned found = 0;
    std::for_each(begin, end, [&found](char c) { found |= kindOf(c); });
    return found;
}

// Of "lt", "#10" or "#x4e2d". Null for one that isn't known, which includes those for characters beyond 16 bits.
QChar referenced(QStringView name)
{
    constexpr std::pair<const char *, char> known[] = {
        {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto &[word, letter] : known) {
        if (name == QLatin1String(word)) {
            return QLatin1Char(letter);
        }
    }
    if (!name.startsWith(QLatin1Char('#'))) {
        return {};
    }
    const bool isHexadecimal = name.mid(1).startsWith(QLatin1Char('x'));
    const QStringView digits = name.mid(isHexadecimal ? 2 : 1);
    const bool areDigits = std::all_of(digits.begin(), digits.end(), [isHexadecimal](QChar c) {
        const ushort code = c.unicode();
        return (code >= '0' && code <= '9')
            || (isHexadecimal && ((code >= 'a' && code <= 'f') || (code >= 'A' && code <= 'F')));
    });
    const uint code = areDigits ? digits.toString().toUInt(nullptr, isHexadecimal ? 16 : 10) : 0;
    const bool isLetter = code >= ' ' && code < QChar::ReplacementCharacter && !QChar::isSurrogate(code);
    return isLetter || code == '\n' || code == '\t' || code == '\r' ? QChar(ushort(code)) : QChar();
}

// A text with its references and line breaks as a parser gives them. Nothing where a reference isn't known.
std::optional<QString> resolved(const QString &text, bool isAttribute)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('&')) {
            const int end = text.indexOf(QLatin1Char(';'), i);
            if (end < 0 || end - i > longestReference) {
                return std::nullopt;
            }
            const QChar letter = referenced(QStringView(text).mid(i + 1, end - i - 1));
            if (letter.isNull()) {
                return std::nullopt;
            }
            result += letter;
            i = end;
        } else if (c == QLatin1Char('\r')) {
            i += i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n') ? 1 : 0;
            result += QLatin1Char(isAttribute ? ' ' : '\n');
        } else if (isAttribute && (c == QLatin1Char('\n') || c == QLatin1Char('\t'))) {
            result += QLatin1Char(' ');
        } else {
            result += c;
        }
    }
    return result;
}

// Nothing where it is no UTF-8, and where it has what says how bytes are to be read or is no character.
std::optional<QString> decoded(const char *begin, const char *end)
{
    const QString text = QString::fromUtf8(begin, int(end - begin));
    const bool isOdd = startsWith(begin, end, byteOrderMark)
        || std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= QChar::ReplacementCharacter; });
    return isOdd ? std::nullopt : std::make_optional(text);
}

} // namespace

PlainXml::PlainXml(QIODevice *document)
    : m_document(document)
    , m_at(m_piece.constData())
    , m_end(m_at)
{
    if (read() && startsWith(m_at, m_end, byteOrderMark)) {
        m_at += byteOrderMark.size();
    }
    m_begin = m_at - m_piece.constData();
}

PlainXml::Step PlainXml::next()
{
    if (m_isEmpty) {
        m_isEmpty = false;
        m_open.removeLast();
        return End;
    }
    while (true) {
        const auto step = m_at == m_end ? std::nullopt : takeStep();
        if (step) {
            return *step;
        }
        if (m_isWhole) {
            return m_at == m_end && m_hasRoot && m_open.isEmpty() ? Finished : Unknown;
        }
        if (!read()) {
            return Unknown;
        }
    }
}

void PlainXml::appendTo(QString &text) const
{
    if (m_letters.data()) {
        text += m_letters;
    } else {
        text += m_text;
    }
}

// Nothing where it doesn't end in the piece.
std::optional<PlainXml::Step> PlainXml::takeStep()
{
    if (*m_at != '<') {
        return takeText();
    }
    if (m_end - m_at < 2) {
        return std::nullopt;
    }
    switch (m_at[1]) {
    case '/':
        return takeEnd();
    case '!':
        return takeMark();
    case '?':
        return takeDeclaration();
    default:
        return takeStart();
    }
}

std::optional<PlainXml::Step> PlainXml::takeText()
{
    const char *const begin = m_at;
    const char *at = begin;
    const unsigned found = takeKinds(at, m_end, '<');
    if (at == m_end && !m_isWhole) {
        return std::nullopt;
    }
    const bool hasSectionEnd = (found & Greater) && find(begin, at, sectionEnd) != at;
    if (hasSectionEnd || (m_open.isEmpty() && !std::all_of(begin, at, isBlank))) {
        return Unknown;
    }
    m_at = at;
    return setLetters(Text, begin, at, found);
}

// found: the kinds of the bytes.
PlainXml::Step PlainXml::setLetters(Step step, const char *begin, const char *end, unsigned found)
{
    if (found & Wrong) {
        return Unknown;
    }
    m_letters = QLatin1String();
    m_text = QString();
    if (!(found & (Reference | Beyond | Return))) {
        m_letters = QLatin1String(begin, int(end - begin));
        return step;
    }
    auto text = decoded(begin, end);
    if (text && (found & (Reference | Return))) {
        text = resolved(*text, false);
    }
    if (!text) {
        return Unknown;
    }
    m_text = *text;
    return step;
}

std::optional<PlainXml::Step> PlainXml::takeStart()
{
    const char *const begin = m_at + 1;
    const char *at = endOfName(begin);
    if (at == m_end) {
        return std::nullopt;
    }
    if (at == begin || (m_hasRoot && m_open.isEmpty())) {
        return Unknown;
    }
    m_attributes.clear();
    const char *const nameEnd = at;
    while (*at != '>' && *at != '/') {
        const char *const gap = at;
        at = behindBlanks(at);
        if (at != m_end && (*at == '>' || *at == '/')) {
            break;
        }
        const auto behind = at == gap ? nullptr : takeAttribute(at);
        if (!behind) {
            return std::nullopt;
        }
        if (!*behind) {
            return Unknown;
        }
        at = *behind;
        if (at == m_end) {
            return std::nullopt;
        }
    }
    const bool isEmpty = *at == '/';
    if (isEmpty && ++at == m_end) {
        return std::nullopt;
    }
    if (*at != '>') {
        return Unknown;
    }
    m_tag = tagUpTo(isEmpty ? XmlTag::Empty : XmlTag::Start, at + 1);
    m_open.append(sharedName(begin, nameEnd));
    m_at = at + 1;
    m_hasRoot = true;
    m_isEmpty = isEmpty;
    return Start;
}

// Gives the place behind it, null for one that only a parser can tell of, and nothing where the piece ends in it.
std::optional<const char *> PlainXml::takeAttribute(const char *at)
{
    const char *const nameBegin = at;
    const char *const nameEnd = endOfName(at);
    const char *const equals = behindBlanks(nameEnd);
    if (equals == m_end) {
        return std::nullopt;
    }
    const char *const quote = behindBlanks(equals + 1);
    if (nameEnd == nameBegin || *equals != '=') {
        return nullptr;
    }
    if (quote == m_end) {
        return std::nullopt;
    }
    if (*quote != '"' && *quote != '\'') {
        return nullptr;
    }
    at = quote + 1;
    const unsigned found = takeKinds(at, m_end, *quote);
    if (at == m_end) {
        return std::nullopt;
    }
    const QString &name = sharedName(nameBegin, nameEnd);
    const bool isKnown = std::any_of(m_attributes.cbegin(), m_attributes.cend(), [&name](const ReadAttribute &other) {
        return other.name.size() == name.size() && other.name == name;
    });
    if (isKnown || m_attributes.size() == mostAttributes || (found & (Wrong | Less))) {
        return nullptr;
    }
    if (!(found & (Reference | Beyond | Return | Layout))) {
        m_attributes.append({name, QLatin1String(quote + 1, int(at - quote - 1))});
        return at + 1;
    }
    auto value = decoded(quote + 1, at);
    if (value && (found & (Reference | Return | Layout))) {
        value = resolved(*value, true);
    }
    if (!value) {
        return nullptr;
    }
    m_attributes.append({name, *value});
    return at + 1;
}

std::optional<PlainXml::Step> PlainXml::takeEnd()
{
    const char *const begin = m_at + 2;
    const char *const nameEnd = endOfName(begin);
    const char *const at = behindBlanks(nameEnd);
    if (at == m_end) {
        return std::nullopt;
    }
    if (*at != '>' || m_open.isEmpty() || m_open.last() != QLatin1String(begin, int(nameEnd - begin))) {
        return Unknown;
    }
    m_tag = tagUpTo(XmlTag::End, at + 1);
    m_open.removeLast();
    m_at = at + 1;
    return End;
}

std::optional<PlainXml::Step> PlainXml::takeMark()
{
    if (startsWith(m_at, m_end, commentBegin)) {
        return takeComment();
    }
    if (startsWith(m_at, m_end, sectionBegin)) {
        return m_open.isEmpty() ? Unknown : takeSection();
    }
    return m_end - m_at < sectionBegin.size() ? std::nullopt : std::make_optional(Unknown);
}

std::optional<PlainXml::Step> PlainXml::takeSection()
{
    const char *const begin = m_at + sectionBegin.size();
    const char *const end = find(begin, m_end, sectionEnd);
    if (end == m_end) {
        return std::nullopt;
    }
    const unsigned found = kindsIn(begin, end);
    m_at = end + sectionEnd.size();
    // What begins a reference elsewhere stands for itself.
    const bool isMixed = (found & Reference) && (found & Return);
    return isMixed ? Unknown : setLetters(Section, begin, end, found & ~unsigned(Reference));
}

// It is no part of the text around it, which goes on behind it.
std::optional<PlainXml::Step> PlainXml::takeComment()
{
    const char *const begin = m_at + commentBegin.size();
    const char *const end = find(begin, m_end, QLatin1String("--"));
    if (m_end - end < 3) {
        return std::nullopt;
    }
    const unsigned found = kindsIn(begin, end);
    if (end[2] != '>' || (found & Wrong) || ((found & Beyond) && !decoded(begin, end))) {
        return Unknown;
    }
    m_at = end + 3;
    return setLetters(Text, end, end, 0);
}

std::optional<PlainXml::Step> PlainXml::takeDeclaration()
{
    const auto known = std::find_if(std::begin(declarations), std::end(declarations), [this](const char *declaration) {
        return startsWith(m_at, m_end, QLatin1String(declaration));
    });
    if (placeOf(m_at) != m_begin || known == std::end(declarations)) {
        return Unknown;
    }
    m_at += qstrlen(*known);
    return setLetters(Text, m_at, m_at, 0);
}

// The place itself where there is no name with one colon within at most.
const char *PlainXml::endOfName(const char *begin) const
{
    const auto endOfPart = [this](const char *at) {
        if (at != m_end && isNameBegin(*at)) {
            at = std::find_if_not(at, m_end, [](char c) { return (kindOf(c) & NameLetter) != 0; });
        }
        return at;
    };
    const char *const end = endOfPart(begin);
    if (end == begin || end == m_end || *end != ':') {
        return end;
    }
    const char *const local = endOfPart(end + 1);
    const bool isName = local == m_end || (local > end + 1 && *local != ':');
    return isName ? local : begin;
}

const char *PlainXml::behindBlanks(const char *at) const
{
    return std::find_if_not(at, m_end, isBlank);
}

const QString &PlainXml::sharedName(const char *begin, const char *end)
{
    const QLatin1String letters(begin, int(end - begin));
    const std::size_t hash =
        std::accumulate(begin, end, std::size_t(0), [](std::size_t sum, char c) { return sum * 31 + uchar(c); });
    QString &known = m_names[hash % m_names.size()];
    if (known != letters) {
        known = letters;
    }
    return known;
}

XmlTag PlainXml::tagUpTo(XmlTag::Kind kind, const char *end) const
{
    return {kind, placeOf(m_at), placeOf(end)};
}

// As much again as is left of the piece, so that what is long isn't gone through over and over. False for a document
// that can't be read or is too large.
bool PlainXml::read()
{
    const int left = int(m_end - m_at);
    m_pieceBegin = placeOf(m_at);
    if (left > 0) {
        std::memmove(m_piece.data(), m_at, std::size_t(left));
    }
    const qint64 expected = m_document->isSequential() ? pieceSize : m_document->size() - m_document->pos() + 1;
    m_piece.resize(left + int(qBound<qint64>(1, expected, qMax(left, pieceSize))));
    const qint64 count = m_document->read(m_piece.data() + left, m_piece.size() - left);
    m_at = m_piece.constData();
    m_end = m_at + left + qMax<qint64>(count, 0);
    m_isWhole = count == 0;
    return count >= 0 && m_pieceBegin + left + count <= maximumXmlSize;
}

} // namespace lessonhost
