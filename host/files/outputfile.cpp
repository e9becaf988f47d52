// SPDX-License-Identifier: MIT
#include "files/outputfile.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr int mostWaiting = 64 * 1024;
constexpr qint64 copiedPiece = qint64(256) * 1024;

} // namespace

OutputFile::OutputFile(const QString &path, const QString &shownName, Use use, Place place)
    : m_name(shownName)
    , m_use(use)
    , m_descriptor(::open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_NOFOLLOW | O_CLOEXEC | (place == New ? O_CREAT | O_EXCL : 0), 0666))
{
    struct stat there = {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &there) != 0) {
        fail();
        tell();
    }
    m_position = there.st_size;
    m_end = there.st_size;
    open(WriteOnly | Unbuffered);
}

OutputFile::~OutputFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

void OutputFile::put(const QByteArray &bytes)
{
    if (write(bytes) != bytes.size()) {
        tell();
    }
}

void OutputFile::check()
{
    if (!flush()) {
        tell();
    }
}

void OutputFile::finish(bool toDisk)
{
    bool isGood = flush();
    // Some file systems know no waiting.
    if (isGood && toDisk && ::fsync(m_descriptor) != 0 && errno != EINVAL && errno != ENOSYS && errno != EROFS) {
        fail();
        isGood = false;
    }
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (::close(descriptor) != 0 && errno != EINTR) {
        fail();
        isGood = false;
    }
    if (!isGood) {
        tell();
    }
}

bool OutputFile::seek(qint64 position)
{
    const bool isGood = flush();
    m_position = position;
    return QIODevice::seek(position) && isGood;
}

qint64 OutputFile::writeData(const char *data, qint64 size)
{
    const qint64 failed = m_tellsLater ? size : -1;
    if (m_error || (m_waiting.size() + size > mostWaiting && !flush())) {
        return failed;
    }
    if (size < mostWaiting) {
        m_waiting.append(data, int(size));
        m_end = qMax(m_end, m_position + m_waiting.size());
        return size;
    }
    for (qint64 done = 0; done < size;) {
        const qint64 count = qMin(size - done, qint64(mostWaiting) * 16);
        m_waiting = QByteArray::fromRawData(data + done, int(count));
        if (!flush()) {
            return failed;
        }
        done += count;
    }
    return size;
}

bool OutputFile::flush()
{
    qint64 done = 0;
    while (!m_error && done < m_waiting.size()) {
        const ssize_t count =
            ::pwrite(m_descriptor, m_waiting.constData() + done, size_t(m_waiting.size() - done), m_position + done);
        if (count < 0 && errno != EINTR) {
            fail();
        }
        done += qMax<ssize_t>(count, 0);
    }
    m_position += done;
    m_end = qMax(m_end, m_position);
    m_waiting.clear();
    return m_error == 0;
}

void OutputFile::fail()
{
    m_error = m_error ? m_error : errno;
    setErrorString(systemReason(m_error).english());
}

void OutputFile::tell() const
{
    throw writeError(m_name, m_error, m_use == Temporary);
}

void makeFolders(const QString &path, const QString &shownName, OutputFile::Use use)
{
    QStringList missing;
    QString place = path;
    int error = ENOENT;
    while (error == ENOENT && !place.isEmpty()) {
        error = ::mkdir(QFile::encodeName(place).constData(), 0777) == 0 ? 0 : errno;
        if (error == ENOENT) {
            missing.append(place);
            place.truncate(place.lastIndexOf(QLatin1Char('/')));
        }
    }
    error = error == EEXIST ? 0 : error;
    while (!error && !missing.isEmpty()) {
        error = ::mkdir(QFile::encodeName(missing.takeLast()).constData(), 0777) == 0 || errno == EEXIST ? 0 : errno;
    }
    if (error) {
        throw writeError(shownName, error, use == OutputFile::Temporary);
    }
}

void refuseToReplace(const QString &path)
{
    if (QFileInfo(path).isSymLink() || QFileInfo::exists(path)) {
        throw LessonError(say("There is a file or folder of this name already"),
                          say("Give another name, or leave out --no-clobber"))
            .in(path);
    }
}

void writeFile(const QString &path, const QByteArray &content, const QString &shownName, OutputFile::Use use)
{
    OutputFile file(path, shownName, use);
    file.put(content);
    file.finish();
}

void copyFile(const QString &source, const QString &sourceName, const QString &target, const QString &shownName,
              OutputFile::Use use)
{
    InputFile from(source, sourceName);
    OutputFile to(target, shownName, use);
    for (qint64 at = 0; at < from.size(); at += copiedPiece) {
        to.put(from.bytes(at, qMin(copiedPiece, from.size() - at)));
    }
    to.finish();
}

} // namespace lessonhost
