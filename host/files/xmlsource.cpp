// SPDX-License-Identifier: MIT
#include "files/xmlsource.h"

#include "files/xmlloader.h"

#include <QRegularExpression>
#include <QTextCodec>

namespace lessonhost {

namespace {

constexpr int utf8 = 106;
constexpr int utf16Big = 1013;
constexpr int utf16Little = 1014;
constexpr int utf32Big = 1018;
constexpr int utf32Little = 1019;

// As much as a declaration may take.
constexpr qint64 headSize = 1024;

// The encoding in which the parser begins to read.
QTextCodec *firstCodec(const QByteArray &head)
{
    int mib = utf8;
    if (head.startsWith(QByteArray("\0\0\xfe\xff", 4))) {
        mib = utf32Big;
    } else if (head.startsWith(QByteArray("\xff\xfe\0\0", 4))) {
        mib = utf32Little;
    } else if (head.startsWith("\xfe\xff") || head.startsWith(QByteArray("\0<", 2))) {
        mib = utf16Big;
    } else if (head.startsWith("\xff\xfe") || head.startsWith(QByteArray("<\0", 2))) {
        mib = utf16Little;
    }
    return QTextCodec::codecForMib(mib);
}

} // namespace

XmlProblem XmlScan::take(const QByteArray &piece)
{
    for (const char c : piece) {
        const XmlProblem problem = takeByte(uchar(c));
        if (problem != XmlProblem::None) {
            return problem;
        }
        ++m_at;
    }
    return XmlProblem::None;
}

inline XmlProblem XmlScan::takeByte(uchar c)
{
    m_line += c == '\n' ? 1 : 0;
    switch (m_place) {
    case Text:
        if (c == '<') {
            m_place = Open;
            m_tag.begin = m_at;
        }
        break;
    case Open:
        takeOpen(c);
        break;
    case Mark:
        return takeMark(c);
    case Comment:
        takeUntilEnd(c, '-', 2);
        break;
    case CData:
        takeUntilEnd(c, ']', 2);
        break;
    case Instruction:
        takeUntilEnd(c, '?', 1);
        break;
    case Tag:
        if (c == '>') {
            endTag();
        } else if (c == '"' || c == '\'') {
            m_place = Value;
            m_quote = c;
            m_last = c;
            return ++m_values > maximumXmlAttributes ? XmlProblem::TooManyAttributes : XmlProblem::None;
        }
        m_last = c;
        break;
    case Value:
        m_place = c == m_quote ? Tag : Value;
        break;
    }
    return XmlProblem::None;
}

void XmlScan::takeOpen(uchar c)
{
    m_place = c == '!' ? Mark : c == '?' ? Instruction : Tag;
    m_tag.kind = c == '/' ? XmlTag::End : XmlTag::Start;
    m_last = c;
    m_run = 0;
    m_values = 0;
}

void XmlScan::endTag()
{
    m_place = Text;
    if (m_keepsTags) {
        m_tag.kind = m_tag.kind == XmlTag::Start && m_last == '/' ? XmlTag::Empty : m_tag.kind;
        m_tag.end = m_at + 1;
        m_tags.enqueue(m_tag);
    }
}

// Behind "<!" or "<!-".
XmlProblem XmlScan::takeMark(uchar c)
{
    if (m_run == 1) {
        m_place = Comment;
        m_run = 0;
    } else if (c == '-') {
        m_run = 1;
    } else if (c == 'D') {
        return XmlProblem::DocumentType;
    } else {
        m_place = CData;
    }
    return XmlProblem::None;
}

void XmlScan::takeUntilEnd(uchar c, uchar repeated, int times)
{
    if (c == repeated) {
        m_run = qMin(m_run + 1, times);
    } else {
        m_place = c == '>' && m_run == times ? Text : m_place;
        m_run = 0;
    }
}

XmlSource::XmlSource(QIODevice *source)
    : m_source(source)
{
    findEncoding();
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

XmlSource::~XmlSource() = default;

// The parser changes to the encoding that the document declares. Up to there both must read the same: otherwise it
// would go on at another place than the scan.
void XmlSource::findEncoding()
{
    const QByteArray head = m_source->peek(headSize);
    QTextCodec *codec = firstCodec(head);
    const QString text = codec->toUnicode(head);
    static const QRegularExpression declaration(
        QStringLiteral("\\A<\\?xml\\s[^>]*?encoding\\s*=\\s*[\"']([^\"'>]*)[\"'][^>]*>"));
    const QRegularExpressionMatch match = declaration.match(text);
    if (match.hasMatch()) {
        QTextCodec *declared = QTextCodec::codecForName(match.captured(1).toLatin1());
        if (declared) { // if not, the parser says so
            const bool isSame = declared->toUnicode(head).startsWith(match.captured());
            m_problem = isSame ? m_problem : XmlProblem::OddEncoding;
            codec = declared;
        }
    } else if (text.startsWith(QLatin1String("<?xml")) && !text.contains(QLatin1Char('>'))) {
        m_problem = XmlProblem::OddEncoding;
    }
    if (codec->mibEnum() != utf8) {
        m_decoder.reset(codec->makeDecoder());
        m_encoder.reset(QTextCodec::codecForMib(utf8)->makeEncoder(QTextCodec::IgnoreHeader));
    }
}

void XmlSource::keepTags(QIODevice *copy)
{
    m_scan.keepTags();
    m_copy = copy;
}

XmlProblem XmlSource::scan(const char *data, qint64 size)
{
    if (!m_decoder) {
        return m_scan.take(QByteArray::fromRawData(data, int(size)));
    }
    const QByteArray piece = m_encoder->fromUnicode(m_decoder->toUnicode(data, int(size)));
    if (m_copy && m_copy->write(piece) != piece.size()) {
        return XmlProblem::Unreadable;
    }
    return m_scan.take(piece);
}

qint64 XmlSource::readData(char *data, qint64 maximum)
{
    if (m_problem != XmlProblem::None) {
        return -1;
    }
    const qint64 size = m_source->read(data, maximum);
    if (size < 0) {
        m_problem = XmlProblem::Unreadable;
        return -1;
    }
    m_size += size;
    m_problem = m_size > maximumXmlSize ? XmlProblem::TooLarge : scan(data, size);
    return m_problem == XmlProblem::None ? size : -1;
}

qint64 XmlSource::writeData(const char *, qint64)
{
    return -1;
}

} // namespace lessonhost
