// SPDX-License-Identifier: MIT
#ifndef OUTPUTFILE_H
#define OUTPUTFILE_H

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace lessonhost {

/*!
 * A file that is written. All that the host writes goes through here: every byte is checked, to the close, also what a
 * library writes that doesn't look. finish() says whether all of it is there.
 */
class OutputFile : public QIODevice
{
public:
    enum Use {
        Result, //!< it goes to whoever asked for it
        Temporary //!< it lies among the temporary files
    };
    enum Place {
        New, //!< there must be nothing yet
        Behind //!< behind what the file holds
    };

    //! shownName is what a failure is about: the output, or the lesson that temporary files are needed for. Throws
    //! LessonError.
    OutputFile(const QString &path, const QString &shownName, Use use = Result, Place place = New);
    //! Without finish() the file stays unfinished and nobody is told.
    ~OutputFile() override;

    //! Throws LessonError.
    void put(const QByteArray &bytes);
    //! From now on only check() and finish() tell of a failure, not who writes: some libraries complain aloud.
    void tellLater() { m_tellsLater = true; }
    //! Throws LessonError if any of what was written so far failed, whoever wrote it.
    void check();

    //! Writes what is left and closes the file; toDisk waits until it is on the disk. Throws LessonError if any of the
    //! bytes, from the first one on, could not be written.
    void finish(bool toDisk = false);

    bool seek(qint64 position) override;
    qint64 size() const override { return m_end; }
    //! For libraries that close what they are given.
    void close() override { flush(); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool flush();
    void fail();
    [[noreturn]] void tell() const;

    QString m_name;
    Use m_use;
    QByteArray m_waiting; // stands at m_position and is not yet written
    qint64 m_position = 0;
    qint64 m_end = 0;
    int m_descriptor;
    int m_error = 0; // the first one
    bool m_tellsLater = false;
};

//! Makes a folder and those on the way to it, where they aren't there yet. Throws LessonError.
void makeFolders(const QString &path, const QString &shownName, OutputFile::Use use = OutputFile::Result);

//! Throws LessonError where something is there already, be it a link to nothing.
void refuseToReplace(const QString &path);

//! Writes a whole file. Throws LessonError.
void writeFile(const QString &path, const QByteArray &content, const QString &shownName,
               OutputFile::Use use = OutputFile::Result);

//! Copies a file to a place where there is none. sourceName and shownName stand for the two in messages. Throws
//! LessonError.
void copyFile(const QString &source, const QString &sourceName, const QString &target, const QString &shownName,
              OutputFile::Use use = OutputFile::Result);

} // namespace lessonhost

#endif // OUTPUTFILE_H
