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

template <typename Char> XmlProblem XmlScan::take(const Char *begin, const Char *end)
{
    for (const Char *c = begin; c != end; ++c) {
        const XmlProblem problem = takeCharacter(*c);
        if (problem != XmlProblem::None) {
            return problem;
        }
    }
    return XmlProblem::None;
}

inline XmlProblem XmlScan::takeCharacter(ushort c)
{
    m_line += c == '\n' ? 1 : 0;
    switch (m_place) {
    case Text:
        m_place = c == '<' ? Open : Text;
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
            m_place = Text;
        } else if (c == '"' || c == '\'') {
            m_place = Value;
            m_quote = c;
            return ++m_values > maximumXmlAttributes ? XmlProblem::TooManyAttributes : XmlProblem::None;
        }
        break;
    case Value:
        m_place = c == m_quote ? Tag : Value;
        break;
    }
    return XmlProblem::None;
}

void XmlScan::takeOpen(ushort c)
{
    m_place = c == '!' ? Mark : c == '?' ? Instruction : Tag;
    m_run = 0;
    m_values = 0;
}

// Behind "<!" or "<!-".
XmlProblem XmlScan::takeMark(ushort c)
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

void XmlScan::takeUntilEnd(ushort c, ushort repeated, int times)
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
    }
}

XmlProblem XmlSource::scan(const char *data, qint64 size)
{
    if (!m_decoder) {
        const auto *bytes = reinterpret_cast<const uchar *>(data);
        return m_scan.take(bytes, bytes + size);
    }
    const QString text = m_decoder->toUnicode(data, int(size));
    return m_scan.take(text.utf16(), text.utf16() + text.size());
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
