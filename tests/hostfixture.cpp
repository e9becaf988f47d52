#include "hostfixture.h"

#include "formats/conversion.h"

#include <QDir>

void CommandProcess::begin(const QStringList &arguments, const QString &folder)
{
    setWorkingDirectory(folder);
    start(LESSONCONV, arguments);
    QVERIFY(waitForStarted());
}

CommandProcess::Outcome CommandProcess::outcome()
{
    waitForFinished(250000);
    return {exitStatus() == NormalExit ? exitCode() : -1, QString::fromUtf8(readAllStandardOutput()),
            QString::fromUtf8(readAllStandardError())};
}

void CommandProcess::setupChildProcess()
{
    if (prepare) {
        prepare();
    }
}

CommandProcess::Outcome runCommand(const QStringList &arguments, const QString &folder,
                                   const std::function<void()> &prepare)
{
    CommandProcess command;
    command.prepare = prepare;
    command.begin(arguments, folder);
    return command.outcome();
}

QStringList hiddenEntries(const QString &folder)
{
    return QDir(folder).entryList({".*"}, QDir::Hidden | QDir::AllEntries | QDir::NoDotAndDotDot);
}

std::unique_ptr<LessonReader> openLesson(const QString &path, LossReport *losses)
{
    LessonContext context;
    context.plugin = plugin();
    context.losses = losses;
    return lessonFormatOfInput(path).open(path, context);
}

LossReport convertedLesson(const QString &from, const QString &to, const QString &format, const LessonContext &context)
{
    LossReport losses;
    LessonContext complete = context;
    complete.plugin = plugin();
    complete.losses = &losses;
    try {
        convertLesson(lessonFormatOfInput(from), from,
                      format.isEmpty() ? lessonFormatOfOutput(to) : lessonFormatByName(format), to, complete,
                      [](int, int) {});
    } catch (const LessonError &error) {
        qFatal("%s", qPrintable(error.message()));
    }
    return losses;
}

QStringList detailsOf(const LossReport &losses)
{
    QStringList texts;
    for (const Loss &loss : losses.entries()) {
        texts.append(loss.itemType + ' ' + loss.key + ": " + loss.detail);
    }
    return texts;
}
