// SPDX-License-Identifier: MIT
#ifndef JSONINDEX_H
#define JSONINDEX_H

#include "files/inputfile.h"
#include "formats/jsonwalker.h"

#include <QString>
#include <QVector>

namespace lessonhost {

//! Larger files are refused, and none is written: positions in a text that Qt parses are ints.
constexpr qint64 maximumJsonSize = qint64(1024) * 1024 * 1024;
//! Slides, or files: as many as there can be in an archive.
constexpr int maximumJsonParts = 100000;

/*!
 * Where the parts of a lesson in one JSON file stand: found in one pass over the file, read and parsed one at a time
 * when they are asked for, so that memory holds no more than one of them. Every function throws LessonError.
 */
class JsonIndex final : public JsonWalker
{
public:
    explicit JsonIndex(const QString &path);

    //! The members of the outermost object but those two, in the order of the file.
    QVector<QPair<QString, Range>> members;
    //! The elements of "Slides".
    QVector<Range> slides;
    //! The members of "Resources".
    QVector<QPair<QString, Range>> resources;

    //! The bytes of a text.
    QByteArray text(const Range &range);

private:
    QByteArray bytes(qint64 begin, qint64 size) override { return m_file.bytes(begin, size); }
    void scan();
    void checkCount(int count, const char *what);

    InputFile m_file;
};

} // namespace lessonhost

#endif // JSONINDEX_H
