// SPDX-License-Identifier: MIT
#include "canvas/textpattern.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextFrame>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace lessonhost {

namespace {

// Signs that stand for words are of those that no text is written in.
constexpr ushort firstSign = 0xe000;
constexpr ushort lastSign = 0xf8ff;
constexpr int mostWords = 1000;

bool isSign(QChar c)
{
    return c.unicode() >= firstSign && c.unicode() <= lastSign;
}

// What text documents take for no more than itself wherever it stands. Blanks are looked at by themselves.
bool isPlain(QChar c)
{
    const ushort code = c.unicode();
    constexpr ushort ranges[][2] = {{' ', 0x7e}, {0xa0, 0x2027}, {0x2030, 0xdfff}, {0xf900, 0xfdcf}, {0xfdf0, 0xfffb}};
    return code != '&' && std::any_of(std::begin(ranges), std::end(ranges), [code](const ushort(&range)[2]) {
               return code >= range[0] && code <= range[1];
           });
}

std::optional<int> endBehind(const QString &html, int start, QLatin1String end)
{
    const int found = html.indexOf(end, start, Qt::CaseInsensitive);
    return found < 0 ? std::nullopt : std::make_optional(found + end.size());
}

bool startsTag(const QString &html, int start, std::initializer_list<const char *> names)
{
    const QStringRef rest = html.midRef(start + 1, 5);
    return std::any_of(names.begin(), names.end(),
                       [&rest](const char *name) { return rest.startsWith(QLatin1String(name), Qt::CaseInsensitive); });
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QChar::Nbsp;
}

// Where a tag ends, a declaration, or what stands in a tag and is no text; nothing for what may be none of these, and
// for pictures, lists and tables, which patterns don't hold.
std::optional<int> markupEnd(const QString &html, int start)
{
    const QChar first = start + 1 < html.size() ? html.at(start + 1) : QChar();
    if (first == QLatin1Char('!')) {
        const bool isComment = html.midRef(start, 4) == QLatin1String("<!--");
        return endBehind(html, start, QLatin1String(isComment ? "-->" : ">"));
    }
    if ((first != QLatin1Char('/') && !first.isLetter())
        || startsTag(html, start, {"img", "li>", "li ", "ol", "ul", "table", "tr", "td", "th"})) {
        return {};
    }
    if (startsTag(html, start, {"style", "title"})) {
        const auto endTag = endBehind(html, start, QLatin1String("</"));
        return endTag ? endBehind(html, *endTag, QLatin1String(">")) : std::nullopt;
    }
    QChar quote;
    for (int i = start + 1; i < html.size(); ++i) {
        const QChar c = html.at(i);
        if (c == QLatin1Char('<')) {
            return {};
        }
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('>')) {
            return i + 1;
        }
    }
    return {};
}

} // namespace

std::optional<TextParts> TextParts::of(const QString &html)
{
    if (std::any_of(html.cbegin(), html.cend(), &isSign)) {
        return {};
    }
    TextParts parts;
    parts.markup.reserve(html.size());
    for (int at = 0; at < html.size();) {
        if (html.at(at) == QLatin1Char('<')) {
            const auto end = markupEnd(html, at);
            if (!end) {
                return {};
            }
            parts.markup += html.midRef(at, *end - at);
            at = *end;
            continue;
        }
        int firstLetter = -1;
        int end = at; // of letters
        for (; at < html.size() && html.at(at) != QLatin1Char('<'); ++at) {
            const QChar c = html.at(at);
            if (c.isSpace()) {
                if (firstLetter < 0) {
                    parts.markup += c;
                }
                continue;
            }
            // Within words a blank stays as it is, if it is one.
            const bool isWhole = firstLetter < 0 || at == end || (at == end + 1 && isBlank(html.at(end)));
            if (!isWhole || !isPlain(c)) {
                return {};
            }
            firstLetter = firstLetter < 0 ? at : firstLetter;
            end = at + 1;
        }
        if (firstLetter >= 0) {
            if (parts.words.size() >= mostWords) {
                return {};
            }
            parts.markup += QChar(ushort(firstSign + parts.words.size()));
            parts.words.append(html.midRef(firstLetter, end - firstLetter));
            parts.letters += end - firstLetter;
            parts.markup += html.midRef(end, at - end);
        }
    }
    return parts;
}

std::optional<TextPattern> TextPattern::of(const QTextDocument &document, int count)
{
    if (!document.rootFrame()->childFrames().isEmpty()) {
        return {};
    }
    TextPattern pattern;
    pattern.m_frame = document.rootFrame()->frameFormat();
    int found = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.textList()) {
            return {};
        }
        Paragraph paragraph{block.blockFormat(), block.charFormat(), {}};
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const Run run{it.fragment().text(), it.fragment().charFormat()};
            for (const QChar c : run.text) {
                if (c == QChar::ObjectReplacementCharacter || (isSign(c) && c.unicode() != firstSign + found)) {
                    return {};
                }
                found += isSign(c) ? 1 : 0;
            }
            paragraph.runs.append(run);
        }
        pattern.m_paragraphs.append(paragraph);
    }
    return found == count ? std::optional<TextPattern>(pattern) : std::nullopt;
}

void TextPattern::fill(QTextDocument &document, const QVector<QStringRef> &words) const
{
    QTextCursor cursor(&document);
    cursor.beginEditBlock(); // a cursor finds its place in a line otherwise, wherever it goes
    bool isFirst = true;
    for (const Paragraph &paragraph : m_paragraphs) {
        if (isFirst) {
            cursor.setBlockFormat(paragraph.format);
            cursor.setBlockCharFormat(paragraph.letters);
        } else {
            cursor.insertBlock(paragraph.format, paragraph.letters);
        }
        isFirst = false;
        for (const Run &run : paragraph.runs) {
            QString text;
            for (const QChar c : run.text) {
                if (isSign(c)) {
                    text += words.at(c.unicode() - firstSign);
                } else {
                    text += c;
                }
            }
            cursor.insertText(text, run.format);
        }
    }
    cursor.endEditBlock();
    QTextFrame *const root = document.rootFrame();
    if (root->frameFormat() != m_frame) {
        root->setFrameFormat(m_frame);
    }
}

} // namespace lessonhost
