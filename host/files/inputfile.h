// SPDX-License-Identifier: MIT
#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QIODevice>
#include <QString>

namespace lessonhost {

/*!
 * A file that is read. All that the host reads of a lesson comes through here: a pipe or a device is refused before
 * anything waits for it, and a disk that fails is told as such and not as the end of the file.
 */
class InputFile : public QIODevice
{
public:
    //! Throws LessonError for what can't be opened or is no plain file. shownName stands for the file in messages; if
    //! empty, path does.
    explicit InputFile(const QString &path, const QString &shownName = {});
    ~InputFile() override;

    //! As large as it was when it was opened.
    qint64 size() const override { return m_size; }
    bool seek(qint64 position) override;
    void close() override { }

    //! That part of the file. Throws LessonError if it can't be read or isn't there any more.
    QByteArray bytes(qint64 begin, qint64 size);
    //! The whole file.
    QByteArray all() { return bytes(0, m_size); }

    //! Throws LessonError if a read failed, whoever did it: libraries take it for the end of the file.
    void check() const;

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 readAt(qint64 position, char *data, qint64 size);

    QString m_name;
    qint64 m_size = 0;
    qint64 m_position = 0;
    int m_descriptor;
    int m_error = 0; // the first one
};

} // namespace lessonhost

#endif // INPUTFILE_H
