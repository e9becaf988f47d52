// SPDX-License-Identifier: MIT
#ifndef HOSTFIXTURE_H
#define HOSTFIXTURE_H

#include "files/lessonerror.h"
#include "lesson/lesson.h"
#include "losses/lossreport.h"
#include "pluginfixture.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace lessonhost;

// What tests of the host share: conversions through its library and through the command.

/*!
 * The command, with something done to its process before it starts.
 */
class CommandProcess : public QProcess
{
public:
    struct Outcome
    {
        int exitCode; //!< -1 after a crash
        QString output;
        QString errors;
    };

    std::function<void()> prepare;
    QByteArray language; //!< that the command is to speak, such as "de"; English where it is empty

    //! Starts it in a folder, or where the test is.
    void begin(const QStringList &arguments, const QString &folder = {});

    //! Waits for its end.
    Outcome outcome();

protected:
    void setupChildProcess() override;
};

//! Runs the command from beginning to end.
CommandProcess::Outcome runCommand(const QStringList &arguments, const QString &folder = {},
                                   const std::function<void()> &prepare = {});

//! The names of hidden files and folders, which only a run that was cut off leaves.
QStringList hiddenEntries(const QString &folder);

//! All that is at a target, by the path in it; archives hold times, so theirs is what they unpack to.
QMap<QString, QByteArray> contentOfTarget(const QString &target);

//! The reader of a lesson, in the format that its name tells. Throws LessonError.
std::unique_ptr<LessonReader> openLesson(const QString &path, LossReport *losses = nullptr);

//! Converts a lesson through the library, without what other boards pass over, and tells its losses; format stands for
//! that of the output's name. Fails the program if it can't be.
LossReport convertedLesson(const QString &from, const QString &to, const QString &format = {},
                           const LessonContext &context = {});

//! "type key: detail" of each loss.
QStringList detailsOf(const LossReport &losses);

#endif // HOSTFIXTURE_H
