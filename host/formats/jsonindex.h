// SPDX-License-Identifier: MIT
#ifndef JSONINDEX_H
#define JSONINDEX_H

#include "files/inputfile.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

namespace lessonhost {

//! Larger files are refused, and none is written: positions in a text that Qt parses are ints.
constexpr qint64 maximumJsonSize = qint64(1024) * 1024 * 1024;
//! Slides, or files: as many as there can be in an archive.
constexpr int maximumJsonParts = 100000;

//! An object of members in any order, of which the last of a name counts. To insert each by itself takes time for each
//! pair of them.
QJsonObject jsonObject(QVector<QPair<QString, QJsonValue>> members);

/*!
 * Where the parts of a lesson in one JSON file stand: found in one pass over the file, read and parsed one at a time
 * when they are asked for, so that memory holds no more than one of them. Every function throws LessonError.
 */
class JsonIndex
{
public:
    struct Range
    {
        qint64 begin = 0;
        qint64 end = 0;
        int depth = 0; //!< of the arrays and objects in it
    };

    explicit JsonIndex(const QString &path);

    //! The members of the outermost object but those two, in the order of the file.
    QVector<QPair<QString, Range>> members;
    //! The elements of "Slides".
    QVector<Range> slides;
    //! The members of "Resources".
    QVector<QPair<QString, Range>> resources;

    QJsonValue value(const Range &range);
    //! A value as it stands in the file.
    QByteArray source(const Range &range) { return bytes(range.begin, range.end - range.begin); }
    //! The bytes of a text.
    QByteArray text(const Range &range);

    [[noreturn]] void fail(const QString &problem, qint64 position);

private:
    QByteArray bytes(qint64 begin, qint64 size) { return m_file.bytes(begin, size); }
    QJsonValue parsedValue(const Range &range);
    QJsonValue nextValue(int levels);
    void scan();
    void checkCount(int count, const char *what);
    int next();
    void skipBlanks();
    void skipString();
    void skipLiteral();
    Range skipValue();
    void expect(char c);
    bool comesNext(char c);
    QString memberName();
    template <typename Take> void eachElement(const Take &take);
    template <typename Take> void eachMember(const Take &take);

    QString m_path;
    InputFile m_file;
    qint64 m_size = 0;
    qint64 m_at = 0;
    QByteArray m_piece; // of the file, with what stands at m_at in most cases
    qint64 m_pieceBegin = 0;
};

} // namespace lessonhost

#endif // JSONINDEX_H
