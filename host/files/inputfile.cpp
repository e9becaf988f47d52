// SPDX-License-Identifier: MIT
#include "files/inputfile.h"

#include "files/lessonerror.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr qint64 largestBytes = (qint64(1) << 31) - 64; // that a byte array holds

LessonError readError(const QString &name, int error)
{
    return LessonError(say("The file can't be read: %1").arg(systemReason(error)),
                       say("Check that it exists and that you may read it"))
        .in(name)
        .ofMachine();
}

Sentence noFile(mode_t mode)
{
    if (S_ISDIR(mode)) {
        return say("This is a folder, not a file");
    }
    return S_ISFIFO(mode) || S_ISSOCK(mode) ? say("This is a pipe, not a file") : say("This is a device, not a file");
}

} // namespace

InputFile::InputFile(const QString &path, const QString &shownName)
    : m_name(shownName.isEmpty() ? path : shownName)
    // A pipe without a writer would be waited for.
    , m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
{
    struct stat there = {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &there) != 0) {
        const int error = errno;
        ::close(m_descriptor);
        throw readError(m_name, error);
    }
    if (!S_ISREG(there.st_mode)) {
        ::close(m_descriptor);
        throw LessonError(noFile(there.st_mode), say("Give a file on a disk")).in(m_name);
    }
    m_size = there.st_size;
    open(ReadOnly | Unbuffered);
}

InputFile::~InputFile()
{
    ::close(m_descriptor);
}

bool InputFile::seek(qint64 position)
{
    m_position = position;
    return QIODevice::seek(position);
}

qint64 InputFile::readData(char *data, qint64 size)
{
    const qint64 count = readAt(m_position, data, size);
    m_position += qMax<qint64>(count, 0);
    return count;
}

qint64 InputFile::readAt(qint64 position, char *data, qint64 size)
{
    ssize_t count = 0;
    do {
        count = ::pread(m_descriptor, data, size_t(size), position);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        m_error = m_error ? m_error : errno;
        setErrorString(systemReason(m_error).english());
    }
    return count;
}

QByteArray InputFile::bytes(qint64 begin, qint64 size)
{
    if (size > largestBytes) {
        throw LessonError(say("The file is too large")).in(m_name);
    }
    QByteArray bytes(int(size), Qt::Uninitialized);
    for (qint64 done = 0; done < size;) {
        const qint64 count = readAt(begin + done, bytes.data() + done, size - done);
        check();
        if (count == 0) {
            throw LessonError(say("The file was cut short while it was read"),
                              say("Convert it again when no other program writes to it"))
                .in(m_name)
                .ofMachine();
        }
        done += count;
    }
    return bytes;
}

void InputFile::check() const
{
    if (m_error) {
        throw readError(m_name, m_error);
    }
}

} // namespace lessonhost
