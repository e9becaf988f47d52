// SPDX-License-Identifier: MIT
#include "files/inputguard.h"

#include "files/lessonerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

#include <sys/stat.h>

namespace lessonhost {

namespace {

std::optional<QPair<quint64, quint64>> identityOf(const QString &path)
{
    struct stat there = {};
    if (::stat(QFile::encodeName(path).constData(), &there) != 0) {
        return {};
    }
    return qMakePair(quint64(there.st_dev), quint64(there.st_ino));
}

// Without links, as far as it exists.
QString resolvedPath(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isRoot() || info.path() == path ? info.filePath()
                                                : QDir(resolvedPath(info.path())).filePath(info.fileName());
}

QString parentOf(const QString &path)
{
    return QFileInfo(path).path();
}

bool isTop(const QString &path)
{
    return path == QLatin1String("/") || path == QLatin1String(".") || path.isEmpty();
}

} // namespace

void InputGuard::add(const QString &input)
{
    const auto identity = identityOf(input);
    if (!identity) {
        return;
    }
    m_inputs.insert(*identity, input);
    for (QString path = resolvedPath(input); !isTop(path);) {
        path = parentOf(path);
        const auto parent = identityOf(path);
        if (!parent || m_parents.contains(*parent)) {
            break; // and with it those above
        }
        m_parents.insert(*parent, input);
    }
}

void InputGuard::addLesson(const QString &input, const QString &folderBeside)
{
    add(input);
    if (!folderBeside.isEmpty() && QFileInfo(input).isFile()) {
        add(QFileInfo(input).absolutePath() + QLatin1Char('/') + folderBeside);
    }
}

void InputGuard::check(const QString &output) const
{
    checkReport(output);
    const Sentence remedy = say("Give another name, outside of what is read");
    const QString plain = resolvedPath(output);
    const auto identity = identityOf(plain);
    if (identity && m_inputs.contains(*identity)) {
        throw LessonError(say("It would take the place of %1, which is read").arg(m_inputs.value(*identity)), remedy)
            .in(output);
    }
    if (identity && m_parents.contains(*identity)) {
        throw LessonError(say("%1, which is read, lies in it").arg(m_parents.value(*identity)), remedy).in(output);
    }
    for (QString path = plain; !isTop(path);) {
        path = parentOf(path);
        const auto parent = identityOf(path);
        if (parent && m_inputs.contains(*parent)) {
            throw LessonError(say("It lies in %1, which is read").arg(m_inputs.value(*parent)), remedy).in(output);
        }
    }
}

void InputGuard::checkReport(const QString &output) const
{
    if (!m_report.isEmpty() && (isSamePlace(m_report, output) || liesIn(m_report, output))) {
        throw LessonError(say("The report would stand where %1 does").arg(output), say("Give it another name"))
            .in(m_report);
    }
}

bool liesIn(const QString &path, const QString &folder)
{
    const auto identity = identityOf(folder);
    for (QString parent = resolvedPath(path); identity && !isTop(parent);) {
        parent = parentOf(parent);
        if (identityOf(parent) == identity) {
            return true;
        }
    }
    return false;
}

bool isSamePlace(const QString &one, const QString &other)
{
    const auto identity = identityOf(one);
    const auto otherIdentity = identityOf(other);
    return identity || otherIdentity ? identity == otherIdentity : resolvedPath(one) == resolvedPath(other);
}

} // namespace lessonhost
