// SPDX-License-Identifier: MIT
#include "command/standardstreams.h"

#include "command/terminal.h"
#include "files/inputfile.h"
#include "files/outputfile.h"
#include "files/ziparchive.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr int chunkSize = 256 * 1024;
const QLatin1String standardName("-");
const QLatin1String shownOutput("Standard output");

// What a shell has opened for the command. A pipe that lies in a folder isn't: nobody may ever write into it.
bool isHandedOver(const QString &name)
{
    return name == standardName || name == QLatin1String("/dev/stdin") || name.startsWith(QLatin1String("/dev/fd/"))
        || name.startsWith(QLatin1String("/proc/self/fd/"));
}

/*!
 * A descriptor of the command's own, closed with the object unless it is standard input.
 */
class Source
{
public:
    explicit Source(const QString &name)
        : m_descriptor(name == standardName ? STDIN_FILENO : ::open(QFile::encodeName(name).constData(), O_RDONLY))
        , m_name(name == standardName ? QStringLiteral("standard input") : name)
    {
        if (m_descriptor < 0) {
            fail();
        }
    }
    ~Source()
    {
        if (m_descriptor != STDIN_FILENO) {
            ::close(m_descriptor);
        }
    }
    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;

    QString name() const { return m_name; }

    //! Empty at the end.
    QByteArray next() const
    {
        QByteArray chunk(chunkSize, Qt::Uninitialized);
        ssize_t count = 0;
        do {
            count = ::read(m_descriptor, chunk.data(), std::size_t(chunk.size()));
        } while (count < 0 && errno == EINTR);
        if (count < 0) {
            fail();
        }
        chunk.truncate(int(count));
        return chunk;
    }

private:
    [[noreturn]] void fail() const
    {
        throw LessonError(say("It can't be read: %1").arg(systemReason(errno)), say("Check what is sent there"))
            .in(m_name);
    }

    int m_descriptor;
    QString m_name;
};

} // namespace

QString StandardStreams::fileFor(const QString &name)
{
    if (!m_work) {
        m_work = std::make_unique<WorkFolder>();
    }
    return m_work->filePath(name);
}

QString StandardStreams::input(const QString &name)
{
    if (!m_input.isEmpty() && name == m_inputArgument) {
        return m_input;
    }
    if (!isHandedOver(name) || (name != standardName && QFileInfo(name).isFile())) {
        return name;
    }
    if (m_failure) {
        throw LessonError(*m_failure); // what it has taken won't come again
    }
    try {
        take(name);
    } catch (const LessonError &error) {
        m_failure = error;
        throw;
    }
    return m_input;
}

void StandardStreams::take(const QString &name)
{
    const Source source(name);
    const QString path = fileFor(QStringLiteral("input"));
    OutputFile file(path, source.name(), OutputFile::Temporary);
    for (QByteArray chunk = source.next(); !chunk.isEmpty(); chunk = source.next()) {
        file.put(chunk);
        if (file.size() > mostBytesInArchive) {
            throw LessonError(say("More than 2 GiB came, which no lesson has"), say("Check what is sent there"))
                .in(source.name());
        }
    }
    file.finish();
    if (file.size() == 0) {
        throw LessonError(say("Nothing came"), say("Check what is sent there")).in(source.name());
    }
    m_inputArgument = name;
    m_inputName = source.name();
    m_input = path;
}

bool StandardStreams::isStandardOutput(const QString &name)
{
    return name == standardName;
}

QString StandardStreams::output(const QString &name, const QString &extension)
{
    if (!isStandardOutput(name)) {
        return name;
    }
    m_output = fileFor(QLatin1String("output.") + extension);
    return m_output;
}

void StandardStreams::send()
{
    if (m_output.isEmpty()) {
        return;
    }
    InputFile file(m_output, shownOutput);
    while (!file.atEnd()) {
        const QByteArray chunk = file.read(chunkSize);
        file.check();
        printBytes(chunk);
    }
}

LessonError StandardStreams::named(const LessonError &error) const
{
    const auto shown = [this](QString text) {
        for (const auto &[path, name] : {qMakePair(m_input, m_inputName), qMakePair(m_output, QString(shownOutput))}) {
            if (!path.isEmpty()) {
                text.replace(path, name);
            }
        }
        return text;
    };
    const Sentence problem(shown(error.problem().english()), shown(error.problem().local()));
    return LessonError(problem, error.remedy()).in(shown(error.file()), error.line());
}

} // namespace lessonhost
