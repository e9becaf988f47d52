// SPDX-License-Identifier: MIT
#include "files/lessonerror.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <new>

namespace lessonhost {

namespace {

// The words of the system's library for what goes wrong with files. It has translations of its own, but not everywhere.
constexpr const char *reasons[] = {
    TO_SAY("Operation not permitted"),
    TO_SAY("No such file or directory"),
    TO_SAY("Input/output error"),
    TO_SAY("Bad file descriptor"),
    TO_SAY("Cannot allocate memory"),
    TO_SAY("Permission denied"),
    TO_SAY("Device or resource busy"),
    TO_SAY("File exists"),
    TO_SAY("Invalid cross-device link"),
    TO_SAY("Not a directory"),
    TO_SAY("Is a directory"),
    TO_SAY("Invalid argument"),
    TO_SAY("Too many open files in system"),
    TO_SAY("Too many open files"),
    TO_SAY("Text file busy"),
    TO_SAY("File too large"),
    TO_SAY("No space left on device"),
    TO_SAY("Read-only file system"),
    TO_SAY("Too many links"),
    TO_SAY("Broken pipe"),
    TO_SAY("File name too long"),
    TO_SAY("Directory not empty"),
    TO_SAY("Too many levels of symbolic links"),
    TO_SAY("Disk quota exceeded"),
    TO_SAY("Stale file handle"),
};

// What stands in the place of a file's name.
constexpr const char *streams[] = {TO_SAY("Standard output"), TO_SAY("standard input")};

// The sentence for a text if it is one of those.
template <std::size_t count> Sentence sayIfKnown(const char *const (&known)[count], const QString &text)
{
    for (const char *one : known) {
        if (text == QLatin1String(one)) {
            return say(one);
        }
    }
    return Sentence(text);
}

// With a full stop. The words of a library may end with a mark of their own.
Sentence closed(const Sentence &sentence)
{
    const QString english = sentence.english();
    const bool isClosed = english.endsWith(QLatin1Char('.')) || english.endsWith(QLatin1Char('?'));
    return isClosed ? sentence : say("%1.").arg(sentence);
}

// Names of files may hold line breaks.
QString onOneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

LessonError::LessonError(const Sentence &problem, const Sentence &remedy)
    : m_problem(problem)
    , m_remedy(remedy)
    , m_what(problem.english().toUtf8())
{
}

LessonError &LessonError::in(const QString &file, int line)
{
    m_file = file;
    m_line = line;
    return *this;
}

LessonError &LessonError::ofMachine()
{
    m_isOfMachine = true;
    return *this;
}

Sentence LessonError::message() const
{
    Sentence text = m_problem;
    if (!m_file.isEmpty()) {
        const Sentence name = sayIfKnown(streams, m_file);
        const Sentence place = m_line > 0 ? say("%1, line %2").arg(name, m_line) : name;
        text = say("%1: %2").arg(place, text);
    }
    text = closed(text);
    if (!m_remedy.isEmpty()) {
        text = say("%1 %2.").arg(text, m_remedy);
    }
    return {onOneLine(text.english()), onOneLine(text.local())};
}

QJsonObject LessonError::toJson() const
{
    QJsonObject object{{QStringLiteral("message"), message().english()},
                       {QStringLiteral("problem"), m_problem.english()}};
    if (!m_file.isEmpty()) {
        object.insert(QStringLiteral("file"), m_file);
    }
    if (m_line > 0) {
        object.insert(QStringLiteral("line"), m_line);
    }
    if (!m_remedy.isEmpty()) {
        object.insert(QStringLiteral("remedy"), m_remedy.english());
    }
    return object;
}

const char *LessonError::what() const noexcept
{
    return m_what.constData();
}

LessonError unexpected(const std::exception &error)
{
    const bool isMemory = dynamic_cast<const std::bad_alloc *>(&error) != nullptr;
    return LessonError(say("Something unexpected happened: %1")
                           .arg(isMemory ? systemReason(ENOMEM) : Sentence(QString::fromLocal8Bit(error.what()))));
}

Sentence systemReason(int error)
{
    const char *const reason = ::strerrordesc_np(error);
    return reason ? sayIfKnown(reasons, QString::fromLatin1(reason)) : say("Unknown error");
}

LessonError writeError(const QString &shownName, int error, bool isTemporary)
{
    return LessonError((isTemporary ? say("Its files can't be unpacked: %1") : say("It can't be written: %1"))
                           .arg(systemReason(error)),
                       isTemporary ? say("Make room in the folder for temporary files")
                                   : say("Check that there is room and that you may write there"))
        .in(shownName)
        .ofMachine();
}

} // namespace lessonhost
