// SPDX-License-Identifier: MIT
#include "formats/jsonwalker.h"

#include "files/lessonerror.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstring>

namespace lessonhost {

namespace {

// Deeper than XML can be that a lesson is written into.
constexpr int maximumDepth = 2000;
// As deep as Qt's own parser goes, less the brackets that are put around a value.
constexpr int maximumParsedDepth = 1000;
constexpr int fileEnd = -1;

bool isBlank(int c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

QJsonObject jsonObject(QVector<QPair<QString, QJsonValue>> members)
{
    std::stable_sort(members.begin(), members.end(),
                     [](const auto &one, const auto &other) { return one.first < other.first; });
    QJsonObject object;
    for (const auto &member : qAsConst(members)) {
        object.insert(member.first, member.second);
    }
    return object;
}

JsonWalker::JsonWalker(const QString &path, const Sentence &remedy, int pieceSize)
    : m_path(path)
    , m_remedy(remedy)
    , m_pieceSize(pieceSize)
{
}

// Some programs write one at the beginning of a text in UTF-8.
void JsonWalker::skipMark()
{
    const QByteArray mark("\xef\xbb\xbf");
    if (m_size >= mark.size() && bytes(0, mark.size()) == mark) {
        m_at = mark.size();
    }
}

void JsonWalker::fail(const Sentence &problem, qint64 position)
{
    qint64 line = 1;
    qint64 at = 0;
    const qint64 end = qMin(position, m_size);
    while (at < end) {
        const QByteArray piece = bytes(at, qMin(m_pieceSize, end - at));
        line += piece.count('\n');
        at += piece.size();
    }
    throw LessonError(problem, m_remedy).in(m_path, int(line));
}

// The byte that comes next, or fileEnd.
inline int JsonWalker::next()
{
    if (m_at >= m_size) {
        return fileEnd;
    }
    if (m_at < m_pieceBegin || m_at >= m_pieceBegin + m_piece.size()) {
        m_piece = bytes(m_at, qMin(m_pieceSize, m_size - m_at));
        m_pieceBegin = m_at;
    }
    return uchar(m_piece.at(int(m_at - m_pieceBegin)));
}

QByteArray JsonWalker::source(const Range &range)
{
    const bool isHeld = range.begin >= m_pieceBegin && range.end <= m_pieceBegin + m_piece.size();
    return isHeld ? m_piece.mid(int(range.begin - m_pieceBegin), int(range.end - range.begin))
                  : bytes(range.begin, range.end - range.begin);
}

QJsonValue JsonWalker::value(const Range &range)
{
    if (range.depth <= maximumParsedDepth) {
        return parsedValue(range);
    }
    const qint64 behind = m_at;
    m_at = range.begin;
    const QJsonValue result = nextValue(range.depth - maximumParsedDepth);
    m_at = behind;
    return result;
}

// Takes that many levels of arrays and objects apart and leaves what is in them to Qt's parser.
QJsonValue JsonWalker::nextValue(int levels)
{
    if (levels > 0 && comesNext('[')) {
        QJsonArray array;
        eachElement([this, levels, &array] { array.append(nextValue(levels - 1)); });
        return array;
    }
    if (levels > 0 && comesNext('{')) {
        QVector<QPair<QString, QJsonValue>> members;
        eachMember([this, levels, &members](const QString &name) { members.append({name, nextValue(levels - 1)}); });
        return jsonObject(members);
    }
    return parsedValue(skipValue());
}

QJsonValue JsonWalker::parsedValue(const Range &range)
{
    // In brackets, so that texts and numbers can be parsed like everything else.
    const QByteArray text = '[' + source(range) + ']';
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        fail(say("This is not JSON: %1").arg(error.errorString()), range.begin + error.offset - 1);
    }
    return document.array().at(0);
}

QString JsonWalker::memberName()
{
    skipBlanks();
    const qint64 begin = m_at;
    skipString();
    const QString name = value({begin, m_at, 0}).toString();
    expect(':');
    return name;
}

void JsonWalker::skipBlanks()
{
    while (isBlank(next())) {
        ++m_at;
    }
}

bool JsonWalker::comesNext(char c)
{
    skipBlanks();
    return next() == uchar(c);
}

void JsonWalker::expect(char c)
{
    if (!comesNext(c)) {
        fail(m_at >= m_size ? say("This is not JSON: the file ends too early")
                            : say("This is not JSON: \"%1\" was expected here").arg(QChar::fromLatin1(c)),
             m_at);
    }
    ++m_at;
}

void JsonWalker::skipString()
{
    const qint64 begin = m_at;
    expect('"');
    for (int c = next(); c != fileEnd && c != '"'; c = next()) {
        m_at += c == '\\' ? 2 : 1;
    }
    if (m_at >= m_size) {
        fail(say("This is not JSON: a text has no end"), begin);
    }
    ++m_at;
}

JsonWalker::Range JsonWalker::skipValue()
{
    skipBlanks();
    Range range{m_at, m_at, 0};
    int depth = 0;
    do {
        skipBlanks();
        const int c = next();
        if (c == '"') {
            skipString();
        } else if (c == '{' || c == '[') {
            if (++depth > maximumDepth) {
                fail(say("Values are nested deeper than %1 levels").arg(maximumDepth), m_at);
            }
            range.depth = qMax(range.depth, depth);
            ++m_at;
        } else if ((c == '}' || c == ']') && depth > 0) {
            --depth;
            ++m_at;
        } else if ((c == ',' || c == ':') && depth > 0) {
            ++m_at;
        } else {
            skipLiteral();
        }
    } while (depth > 0);
    range.end = m_at;
    return range;
}

void JsonWalker::skipLiteral()
{
    const qint64 begin = m_at;
    for (int c = next(); c != fileEnd && !isBlank(c) && !std::strchr(",:]}[{\"", c); c = next()) {
        ++m_at;
    }
    if (m_at == begin) {
        fail(m_at >= m_size ? say("This is not JSON: the file ends too early")
                            : say("This is not JSON: a value was expected here"),
             m_at);
    }
}

} // namespace lessonhost
