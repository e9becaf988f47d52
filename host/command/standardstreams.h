// SPDX-License-Identifier: MIT
#ifndef STANDARDSTREAMS_H
#define STANDARDSTREAMS_H

#include "files/lessonerror.h"
#include "files/workfolder.h"

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

    static bool isStandardOutput(const QString &name);

    //! The same failure about the name that the user gave.
    LessonError named(const LessonError &error) const;

private:
    QString fileFor(const QString &name);
    void take(const QString &name);

    std::unique_ptr<WorkFolder> m_work;
    QString m_input;
    QString m_inputName;
    QString m_inputArgument;
    std::optional<LessonError> m_failure; // of what came
    QString m_output;
};

} // namespace lessonhost

#endif // STANDARDSTREAMS_H
