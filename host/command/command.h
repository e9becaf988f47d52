// SPDX-License-Identifier: MIT
#ifndef COMMAND_H
#define COMMAND_H

#include "command/call.h"

namespace lessonhost {

struct CommandWord;

/*!
 * The command: finds the word of a call, refuses what makes no sense with it, and has it done.
 */
class Command
{
public:
    //! The program's name and what follows it. Needs no application yet.
    explicit Command(const QStringList &arguments);

    //! Whether it needs a QGuiApplication. False as well for what can't be done at all.
    bool measuresText() const;

    //! Whether what it draws is for whoever calls it, and no part of a lesson.
    bool drawsForPeople() const;

    //! The exit code. Throws LessonError.
    int run();

private:
    const CommandWord *word() const;
    [[noreturn]] void tellWhatIsMissing() const;
    void checkOptions(const CommandWord &word) const;

    Call m_call;
};

} // namespace lessonhost

#endif // COMMAND_H
