// SPDX-License-Identifier: MIT
#ifndef SPOOL_H
#define SPOOL_H

#include "files/inputfile.h"
#include "files/outputfile.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <memory>

namespace lessonhost {

/*!
 * Texts that are put down in pieces, and read when all are there: in memory as long as they are small, then in a file.
 */
class Spool
{
public:
    struct Piece
    {
        qint64 begin;
        qint64 size;
    };
    //! Where a text lies.
    using Pieces = QVector<Piece>;

    //! file: made where it takes one. shownName is what a failure is about.
    Spool(const QString &file, const QString &shownName, OutputFile::Use use = OutputFile::Result);

    //! Puts bytes behind what pieces hold. Throws LessonError.
    void put(Pieces &pieces, const QByteArray &bytes);
    //! A part of what pieces hold. Throws LessonError.
    QByteArray bytes(const Pieces &pieces, qint64 begin, qint64 size);

private:
    QByteArray part(qint64 begin, qint64 size);

    QString m_path;
    QString m_shownName;
    OutputFile::Use m_use;
    QByteArray m_held; // empty from when there is a file
    std::unique_ptr<OutputFile> m_file;
    std::unique_ptr<InputFile> m_read;
};

} // namespace lessonhost

#endif // SPOOL_H
