// SPDX-License-Identifier: MIT
#include "files/expatreader.h"

#include "files/xmlloader.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include <expat.h>

namespace lessonhost {

namespace {

// Most documents are one piece: all but the last are gone through once more by expat, to count their lines. A tag that
// is longer is left to the other parser.
constexpr qint64 pieceSize = qint64(4) * 1024 * 1024;
// Expat keeps all names, and an attribute's before it tells of the element. No lesson has as many.
constexpr std::size_t mostNames = 10000;
constexpr std::size_t longestName = 100;
// Documents whose declaration is much longer than programs write it are refused.
constexpr int longestDeclaration = 100;

const QLatin1String byteOrderMark("\xef\xbb\xbf");

bool isAscii(const char *begin, const char *end)
{
    uchar all = 0;
    std::for_each(begin, end, [&all](char c) { all |= uchar(c); });
    return all < 0x80;
}

// Nothing where it begins with a byte order mark: Qt would take that away. That it is UTF-8, expat has seen to.
std::optional<QString> decoded(const char *letters, int size)
{
    if (size >= byteOrderMark.size() && std::equal(byteOrderMark.begin(), byteOrderMark.end(), letters)) {
        return std::nullopt;
    }
    return QString::fromUtf8(letters, size);
}

bool isNameBegin(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

// False for one beyond ASCII, of which editions of XML differ, and for one that isn't a name with at most one prefix.
// Expat has seen to its other letters.
bool isPlainName(std::string_view name)
{
    const auto colon = name.find(':');
    return name.size() <= longestName && isAscii(name.data(), name.data() + name.size()) && isNameBegin(name.front())
        && (colon == name.npos
            || (colon + 1 < name.size() && isNameBegin(name[colon + 1]) && name.find(':', colon + 1) == name.npos));
}

} // namespace

// Nothing may be thrown through expat, and it may call some more when it was told to stop.
struct ExpatReader::Calls
{
    template <typename Work> static void guarded(void *reader, Work work)
    {
        auto *const self = static_cast<ExpatReader *>(reader);
        if (self->m_isLeft) {
            return;
        }
        self->m_hasStepped = true;
        try {
            work(self);
        } catch (...) {
            self->m_failure = std::current_exception();
            self->leave();
        }
    }

    static void start(void *reader, const char *name, const char **attributes)
    {
        guarded(reader, [name, attributes](ExpatReader *self) { self->start(name, attributes); });
    }

    static void end(void *reader, const char *)
    {
        guarded(reader, [](ExpatReader *self) { self->end(); });
    }

    static void text(void *reader, const char *letters, int size)
    {
        guarded(reader, [letters, size](ExpatReader *self) { self->text(letters, size); });
    }

    static void beginSection(void *reader)
    {
        guarded(reader, [](ExpatReader *self) { self->beginSection(); });
    }

    static void endSection(void *reader)
    {
        guarded(reader, [](ExpatReader *self) { self->endSection(); });
    }

    static void declaration(void *reader, const char *version, const char *encoding, int)
    {
        guarded(reader, [version, encoding](ExpatReader *self) { self->declaration(version, encoding); });
    }

    static void instruction(void *reader, const char *, const char *)
    {
        guarded(reader, [](ExpatReader *self) { self->leave(); });
    }

    static void documentType(void *reader, const char *, const char *, const char *, int)
    {
        guarded(reader, [](ExpatReader *self) { self->leave(); });
    }
};

void ExpatReader::Release::operator()(XML_ParserStruct *parser) const
{
    XML_ParserFree(parser);
}

ExpatReader::ExpatReader(QIODevice *document, std::function<void(Step)> take)
    : m_document(document)
    , m_take(std::move(take))
    , m_parser(XML_ParserCreate("UTF-8"))
{
    XML_ParserStruct *const parser = m_parser.get();
    if (!parser) {
        throw std::bad_alloc();
    }
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, Calls::start, Calls::end);
    XML_SetCharacterDataHandler(parser, Calls::text);
    XML_SetCdataSectionHandler(parser, Calls::beginSection, Calls::endSection);
    XML_SetXmlDeclHandler(parser, Calls::declaration);
    XML_SetProcessingInstructionHandler(parser, Calls::instruction);
    XML_SetStartDoctypeDeclHandler(parser, Calls::documentType);
}

ExpatReader::~ExpatReader() = default;

bool ExpatReader::read()
{
    if (!beginsPlainly()) {
        return false;
    }
    qint64 taken = 0;
    bool isWhole = false;
    do {
        const int length = int(qBound<qint64>(1, m_document->bytesAvailable(), pieceSize));
        void *const piece = XML_GetBuffer(m_parser.get(), length);
        const qint64 count = piece ? m_document->read(static_cast<char *>(piece), length) : -1;
        taken += count;
        if (count < 0 || taken > maximumXmlSize) {
            return false;
        }
        isWhole = count == 0 || m_document->atEnd();
        m_hasStepped = isWhole;
        const bool isRight = XML_ParseBuffer(m_parser.get(), int(count), isWhole) == XML_STATUS_OK;
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        if (!isRight || !m_hasStepped) {
            return false;
        }
    } while (!isWhole);
    return true;
}

// With anything else expat may take it for another encoding.
bool ExpatReader::beginsPlainly() const
{
    const QByteArray head = m_document->peek(byteOrderMark.size());
    return head.startsWith(byteOrderMark.data()) || (head.size() > 1 && head.at(0) == '<' && head.at(1) != '\0');
}

void ExpatReader::leave()
{
    m_isLeft = true;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void ExpatReader::appendTo(QString &text) const
{
    if (m_letters.data()) {
        text += m_letters;
    } else {
        text += m_text;
    }
}

void ExpatReader::start(const char *name, const char **attributes)
{
    int place = 0; // of the tag in the text
    int textSize = 0;
    const char *const text = XML_GetInputContext(m_parser.get(), &place, &textSize);
    m_name = sharedName(name);
    bool isPlain = text && m_name;
    m_attributes.clear();
    for (const char **at = attributes; isPlain && *at; at += 2) {
        isPlain = takeAttribute(at[0], at[1]);
    }
    if (!isPlain) {
        leave();
        return;
    }
    const qint64 begin = XML_GetCurrentByteIndex(m_parser.get());
    const int size = XML_GetCurrentByteCount(m_parser.get());
    m_tag = {text[place + size - 2] == '/' ? XmlTag::Empty : XmlTag::Start, begin, begin + size};
    m_take(Start);
}

// False for one that is left to the other parser.
bool ExpatReader::takeAttribute(const char *name, const char *value)
{
    const QString *const known = sharedName(name);
    if (!known || m_attributes.size() == maximumXmlAttributes) {
        return false;
    }
    const auto size = int(std::strlen(value));
    if (isAscii(value, value + size)) {
        m_attributes.append({*known, QLatin1String(value, size)});
        return true;
    }
    const auto text = decoded(value, size);
    if (text) {
        m_attributes.append({*known, *text});
    }
    return text.has_value();
}

// Expat tells the end of an empty element without a tag.
void ExpatReader::end()
{
    const int size = XML_GetCurrentByteCount(m_parser.get());
    if (size > 0) {
        const qint64 begin = XML_GetCurrentByteIndex(m_parser.get());
        m_tag = {XmlTag::End, begin, begin + size};
    }
    m_take(End);
}

void ExpatReader::text(const char *letters, int size)
{
    if (isAscii(letters, letters + size)) {
        m_letters = QLatin1String(letters, size);
    } else if (const auto text = decoded(letters, size)) {
        m_letters = QLatin1String();
        m_text = *text;
    } else {
        leave();
        return;
    }
    if (m_isSection) {
        appendTo(m_section);
    } else {
        m_take(Text);
    }
}

void ExpatReader::beginSection()
{
    m_isSection = true;
    m_section.clear();
}

void ExpatReader::endSection()
{
    m_isSection = false;
    m_letters = QLatin1String();
    m_text = m_section;
    m_take(Section);
}

void ExpatReader::declaration(const char *version, const char *encoding)
{
    const bool isPlain = qstrcmp(version, "1.0") == 0 && (!encoding || qstricmp(encoding, "utf-8") == 0)
        && XML_GetCurrentByteCount(m_parser.get()) <= longestDeclaration;
    if (!isPlain) {
        leave();
    }
}

// Null for one that is left to the other parser.
const QString *ExpatReader::sharedName(const char *begin)
{
    const std::string_view letters(begin);
    const auto hash = std::size_t(uchar(letters.front()) * 31 + uchar(letters.back()) * 7) + letters.size();
    const Name *&recent = m_recentNames[hash % m_recentNames.size()];
    if (!recent || recent->first != letters) {
        auto known = m_names.find(letters);
        if (known == m_names.end()) {
            if (m_names.size() == mostNames || !isPlainName(letters)) {
                return nullptr;
            }
            const QString name = QLatin1String(letters.data(), int(letters.size()));
            known = m_names.emplace(letters, name).first;
        }
        recent = &*known;
    }
    return &recent->second;
}

} // namespace lessonhost
