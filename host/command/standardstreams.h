// SPDX-License-Identifier: MIT
#ifndef STANDARDSTREAMS_H
#define STANDARDSTREAMS_H

#include "files/lessonerror.h"
#include "files/workfolder.h"

#include <QMap>
#include <QStringList>

#include <memory>
#include <optional>

namespace lessonhost {

/*!
 * The files of a call, where "-" stands for standard input or output. What comes from there, or through /dev/stdin and
 * what else a shell hands over as a file, lies among the temporary files while it is read; what goes there does until
 * it is complete. Functions throw LessonError where noted.
 */
class StandardStreams
{
public:
    //! The file to read for an input. Waits for the end of what comes, once: what failed fails again. Throws.
    QString input(const QString &name);

    //! The file to write for an output; extension is for standard output's. Throws.
    QString output(const QString &name, const QString &extension);

    //! Sends what was written to standard output, if an output goes there. Throws.
    void send();

    //! True for what stands for it, by whatever name.
    static bool isStandardOutput(const QString &name);

    //! Throws for a name that isn't one of a file or folder, where many lessons are read or written.
    static void refuse(const QStringList &names);

    //! What an input is called where people are told of it.
    QString shownName(const QString &name) const;

    //! The same failure about the name that the user gave.
    LessonError named(const LessonError &error) const;

private:
    struct Input
    {
        QString shownName;
        QString file;
        std::optional<LessonError> failure; // of what came
    };

    QString fileFor(const QString &name);
    void take(const QString &name, Input &input);

    std::unique_ptr<WorkFolder> m_work;
    QMap<QString, Input> m_inputs; // by the names in the call
    QString m_output;
};

} // namespace lessonhost

#endif // STANDARDSTREAMS_H
