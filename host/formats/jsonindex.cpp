// SPDX-License-Identifier: MIT
#include "formats/jsonindex.h"

#include "files/lessonerror.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cstring>

namespace lessonhost {

namespace {

// Deeper than XML can be that a lesson is written into.
constexpr int maximumDepth = 2000;
// As deep as Qt's own parser goes, less the brackets that are put around a value.
constexpr int maximumParsedDepth = 1000;
constexpr qint64 pieceSize = qint64(64) * 1024;
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

JsonIndex::JsonIndex(const QString &path)
    : m_path(path)
    , m_file(path)
{
    m_size = m_file.size();
    if (m_size > maximumJsonSize) {
        throw LessonError(QStringLiteral("The file is larger than 1 GiB"),
                          QStringLiteral("Check that this is a lesson"))
            .in(path);
    }
    scan();
}

void JsonIndex::fail(const QString &problem, qint64 position)
{
    qint64 line = 1;
    qint64 at = 0;
    const qint64 end = qMin(position, m_size);
    while (at < end) {
        const QByteArray piece = bytes(at, qMin(pieceSize, end - at));
        line += piece.count('\n');
        at += piece.size();
    }
    throw LessonError(problem, QStringLiteral("Check that the file is complete and is a lesson in JSON"))
        .in(m_path, int(line));
}

// The byte that comes next, or fileEnd.
inline int JsonIndex::next()
{
    if (m_at >= m_size) {
        return fileEnd;
    }
    if (m_at < m_pieceBegin || m_at >= m_pieceBegin + m_piece.size()) {
        m_piece = bytes(m_at, qMin(pieceSize, m_size - m_at));
        m_pieceBegin = m_at;
    }
    return uchar(m_piece.at(int(m_at - m_pieceBegin)));
}

QJsonValue JsonIndex::value(const Range &range)
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
QJsonValue JsonIndex::nextValue(int levels)
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

QJsonValue JsonIndex::parsedValue(const Range &range)
{
    // In brackets, so that texts and numbers can be parsed like everything else.
    const QByteArray text = '[' + bytes(range.begin, range.end - range.begin) + ']';
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        fail(QStringLiteral("This is not JSON: %1").arg(error.errorString()), range.begin + error.offset - 1);
    }
    return document.array().at(0);
}

QByteArray JsonIndex::text(const Range &range)
{
    const QByteArray text = bytes(range.begin, range.end - range.begin);
    if (!text.startsWith('"')) {
        fail(QStringLiteral("A file of the lesson is no base64 text"), range.begin);
    }
    if (text.contains('\\')) {
        return value(range).toString().toUtf8();
    }
    return text.mid(1, text.size() - 2);
}

void JsonIndex::scan()
{
    if (bytes(0, qMin<qint64>(3, m_size)) == "\xef\xbb\xbf") {
        m_at = 3;
    }
    bool hasSlides = false;
    QSet<QString> names;
    eachMember([this, &hasSlides, &names](const QString &name) {
        if (names.contains(name)) {
            fail(QStringLiteral("The lesson has \"%1\" twice").arg(name), m_at);
        }
        names.insert(name);
        if (name == QLatin1String("Slides")) {
            hasSlides = true;
            eachElement([this] {
                checkCount(slides.size(), "slides");
                slides.append(skipValue());
            });
        } else if (name == QLatin1String("Resources")) {
            eachMember([this](const QString &path) {
                checkCount(resources.size(), "files");
                resources.append({path, skipValue()});
            });
        } else {
            members.append({name, skipValue()});
        }
    });
    skipBlanks();
    if (m_at != m_size) {
        fail(QStringLiteral("This is not JSON: there is something behind the end of the lesson"), m_at);
    }
    if (!hasSlides) {
        fail(QStringLiteral("This is no lesson: it has no \"Slides\""), 0);
    }
}

void JsonIndex::checkCount(int count, const char *what)
{
    if (count >= maximumJsonParts) {
        fail(QStringLiteral("The lesson has more than %1 %2").arg(maximumJsonParts).arg(QLatin1String(what)), m_at);
    }
}

template <typename Take> void JsonIndex::eachElement(const Take &take)
{
    expect('[');
    bool isFirst = true;
    while (!comesNext(']')) {
        if (!isFirst) {
            expect(',');
        }
        isFirst = false;
        take();
    }
    expect(']');
}

template <typename Take> void JsonIndex::eachMember(const Take &take)
{
    expect('{');
    bool isFirst = true;
    while (!comesNext('}')) {
        if (!isFirst) {
            expect(',');
        }
        isFirst = false;
        const QString name = memberName();
        take(name);
    }
    expect('}');
}

QString JsonIndex::memberName()
{
    skipBlanks();
    const qint64 begin = m_at;
    skipString();
    const QString name = value({begin, m_at, 0}).toString();
    expect(':');
    return name;
}

void JsonIndex::skipBlanks()
{
    while (isBlank(next())) {
        ++m_at;
    }
}

bool JsonIndex::comesNext(char c)
{
    skipBlanks();
    return next() == uchar(c);
}

void JsonIndex::expect(char c)
{
    if (!comesNext(c)) {
        fail(m_at >= m_size ? QStringLiteral("This is not JSON: the file ends too early")
                            : QStringLiteral("This is not JSON: \"%1\" was expected here").arg(QLatin1Char(c)),
             m_at);
    }
    ++m_at;
}

void JsonIndex::skipString()
{
    const qint64 begin = m_at;
    expect('"');
    for (int c = next(); c != fileEnd && c != '"'; c = next()) {
        m_at += c == '\\' ? 2 : 1;
    }
    if (m_at >= m_size) {
        fail(QStringLiteral("This is not JSON: a text has no end"), begin);
    }
    ++m_at;
}

JsonIndex::Range JsonIndex::skipValue()
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
                fail(QStringLiteral("Values are nested deeper than %1 levels").arg(maximumDepth), m_at);
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

void JsonIndex::skipLiteral()
{
    const qint64 begin = m_at;
    for (int c = next(); c != fileEnd && !isBlank(c) && !std::strchr(",:]}[{\"", c); c = next()) {
        ++m_at;
    }
    if (m_at == begin) {
        fail(m_at >= m_size ? QStringLiteral("This is not JSON: the file ends too early")
                            : QStringLiteral("This is not JSON: a value was expected here"),
             m_at);
    }
}

} // namespace lessonhost
