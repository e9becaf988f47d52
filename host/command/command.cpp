// SPDX-License-Identifier: MIT
#include "command/command.h"

#include "command/commandwords.h"
#include "command/manylessons.h"
#include "command/pluginhost.h"
#include "command/renderwords.h"
#include "command/terminal.h"
#include "files/lessonerror.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace lessonhost {

Command::Command(const QStringList &arguments)
    : m_call(arguments, usage(), wordList())
{
}

// The row for the line, or null.
const CommandWord *Command::word() const
{
    const QStringList given = m_call.line().words();
    const int files = given.size() - 1;
    const CommandWord *found = nullptr;
    for (const CommandWord &word : commandWords()) {
        if (given.value(0) == QLatin1String(word.word) && (!word.option || m_call.isSet(word.option))) {
            found = &word;
        }
    }
    return found && files >= found->leastFiles && files <= found->mostFiles ? found : nullptr;
}

bool Command::measuresText() const
{
    const CommandWord *found = word();
    try {
        return found && found->measuresText(m_call, m_call.line().words().mid(1));
    } catch (const LessonError &) {
        return false; // told when it is tried
    }
}

bool Command::drawsForPeople() const
{
    const CommandWord *found = word();
    return found && found->measuresText == picturesMeasureText;
}

int Command::run()
{
    if (!m_call.line().isUnderstood()) {
        throw LessonError(m_call.line().problem(), say("See lessonconv --help"));
    }
    if (m_call.isSet("version")) {
        print(QLatin1String("lessonconv ") + QCoreApplication::applicationVersion() + QLatin1Char('\n'));
        const PluginHost host(m_call.value("plugin"));
        print(say("plug-in %1, %2").arg(host.version(), host.fileName()));
        return Done;
    }
    if (m_call.isSet("verbose")) {
        qInstallMessageHandler(nullptr);
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    }
    const QStringList given = m_call.line().words();
    if (m_call.isSet("help") || given.isEmpty() || given.first() == QLatin1String("help")) {
        print(m_call.line().help());
        return given.isEmpty() && !m_call.isSet("help") ? NotDone : Done;
    }
    const CommandWord *found = word();
    if (!found) {
        tellWhatIsMissing();
    }
    checkOptions(*found);
    m_call.line().checkNames();
    try {
        const int code = found->run(m_call, given.mid(1));
        m_call.streams().send();
        return code;
    } catch (const LessonError &error) {
        throw m_call.streams().named(error);
    }
}

// Why no row fits the line.
void Command::tellWhatIsMissing() const
{
    const QString given = m_call.line().words().value(0);
    const int files = m_call.line().words().size() - 1;
    const CommandWord *fitting = nullptr;
    for (const CommandWord &word : commandWords()) {
        if (word.purpose && given == QLatin1String(word.word) && (!word.option || m_call.isSet(word.option))) {
            fitting = &word;
        }
    }
    if (!fitting) {
        throw LessonError(say("There is no command \"%1\"").arg(given),
                          say("Say %1; lessonconv --help tells more").arg(wordList()));
    }
    const QString call = QStringLiteral("lessonconv %1 %2").arg(given, QLatin1String(fitting->arguments)).trimmed();
    const bool isTooMuch = files > fitting->mostFiles;
    const Sentence problem = isTooMuch && fitting->mostFiles == 0 ? say("%1 takes no files")
        : isTooMuch && fitting->mostFiles == 1                    ? say("%1 takes a single file")
        : isTooMuch                                               ? say("%1 takes no more files than %2")
        : files > 0                                               ? say("%1 needs a name for the result as well")
        : fitting->run == mergeRuns                               ? say("%1 needs the reports of runs over many lessons")
                                                                  : say("%1 needs a lesson");
    const bool hasNumber = isTooMuch && fitting->mostFiles > 1;
    throw LessonError(hasNumber ? problem.arg(given, fitting->mostFiles) : problem.arg(given),
                      say("The call is: %1").arg(call));
}

// Who gives an option expects something of it.
void Command::checkOptions(const CommandWord &word) const
{
    for (const CommandOption &option : commandOptions()) {
        if (!m_call.isSet(option.name) || !word.purpose
            || isFor(option, QLatin1String(word.word), QLatin1String(word.option))) {
            continue;
        }
        QStringList takers;
        for (const CommandWord &other : commandWords()) {
            if (other.purpose && isFor(option, QLatin1String(other.word), QLatin1String(other.option))) {
                takers.append(
                    QStringLiteral("\"%1 %2\"").arg(QLatin1String(other.word), QLatin1String(other.arguments)));
            }
        }
        throw LessonError(
            say("This call of %1 makes no use of --%2").arg(QLatin1String(word.word), QLatin1String(option.name)),
            say("Leave it out; it is for %1").arg(listedWithAnd(takers)));
    }
}

} // namespace lessonhost
