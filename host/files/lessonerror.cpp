// SPDX-License-Identifier: MIT
#include "files/lessonerror.h"

#include <cstring>

namespace lessonhost {

LessonError::LessonError(const QString &problem, const QString &remedy)
    : m_problem(problem)
    , m_remedy(remedy)
    , m_what(problem.toUtf8())
{
}

LessonError &LessonError::in(const QString &file, int line)
{
    m_file = file;
    m_line = line;
    return *this;
}

QString LessonError::message() const
{
    QString text;
    if (!m_file.isEmpty()) {
        text = m_file;
        if (m_line > 0) {
            text += QLatin1String(", line ") + QString::number(m_line);
        }
        text += QLatin1String(": ");
    }
    text += m_problem;
    // The words of a library may end with a mark of their own.
    if (!text.endsWith(QLatin1Char('.')) && !text.endsWith(QLatin1Char('?'))) {
        text += QLatin1Char('.');
    }
    if (!m_remedy.isEmpty()) {
        text += QLatin1Char(' ') + m_remedy + QLatin1Char('.');
    }
    // Names of files may hold line breaks.
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QJsonObject LessonError::toJson() const
{
    QJsonObject object{{QStringLiteral("message"), message()}, {QStringLiteral("problem"), m_problem}};
    if (!m_file.isEmpty()) {
        object.insert(QStringLiteral("file"), m_file);
    }
    if (m_line > 0) {
        object.insert(QStringLiteral("line"), m_line);
    }
    if (!m_remedy.isEmpty()) {
        object.insert(QStringLiteral("remedy"), m_remedy);
    }
    return object;
}

const char *LessonError::what() const noexcept
{
    return m_what.constData();
}

QString systemReason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

LessonError writeError(const QString &shownName, int error, bool isTemporary)
{
    return LessonError((isTemporary ? QStringLiteral("Its files can't be unpacked: %1")
                                    : QStringLiteral("It can't be written: %1"))
                           .arg(systemReason(error)),
                       isTemporary ? QStringLiteral("Make room in the folder for temporary files")
                                   : QStringLiteral("Check that there is room and that you may write there"))
        .in(shownName);
}

} // namespace lessonhost
