// SPDX-License-Identifier: MIT
#include "command/standardstreams.h"

#include "command/terminal.h"
#include "files/inputfile.h"
#include "files/outputfile.h"
#include "files/ziparchive.h"
#include "lesson/isoneof.h"

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
const char *const outputDevices[] = {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"};

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
    if (!isHandedOver(name) || (name != standardName && QFileInfo(name).isFile())) {
        return name;
    }
    Input &input = m_inputs[name];
    if (input.failure) {
        throw LessonError(*input.failure); // what it has taken won't come again
    }
    if (input.file.isEmpty()) {
        try {
            take(name, input);
        } catch (const LessonError &error) {
            input.failure = error;
            throw;
        }
    }
    return input.file;
}

void StandardStreams::take(const QString &name, Input &input)
{
    const Source source(name);
    const QString path = fileFor(QStringLiteral("input%1").arg(m_inputs.size()));
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
    input.shownName = source.name();
    input.file = path;
}

bool StandardStreams::isStandardOutput(const QString &name)
{
    return name == standardName || isOneOf(outputDevices, name);
}

// Workers are told names, and have streams of their own.
void StandardStreams::refuse(const QStringList &names)
{
    for (const QString &name : names) {
        if (isHandedOver(name) || isStandardOutput(name)) {
            throw LessonError(say("Many lessons come from files and go into a folder, and \"%1\" is neither").arg(name),
                              say("Convert what is sent there by a call of its own, without --out-dir"));
        }
    }
}

QString StandardStreams::shownName(const QString &name) const
{
    const QString shown = m_inputs.value(name).shownName;
    return shown.isEmpty() ? name : shown;
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
        for (const Input &input : m_inputs) {
            if (!input.file.isEmpty()) {
                text.replace(input.file, input.shownName);
            }
        }
        return m_output.isEmpty() ? text : text.replace(m_output, shownOutput);
    };
    const Sentence problem(shown(error.problem().english()), shown(error.problem().local()));
    return LessonError(problem, error.remedy()).in(shown(error.file()), error.line());
}

} // namespace lessonhost
