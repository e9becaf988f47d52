// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include "files/ziparchive.h"
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
    qputenv("LC_ALL", "C.UTF-8"); // whatever the tester's is
    qputenv("LANGUAGE", language);
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

QMap<QString, QByteArray> contentOfTarget(const QString &target)
{
    if (QFileInfo(target).isDir()) {
        return filesBelow(target);
    }
    if (!target.endsWith(".zqtx") && !target.endsWith(".iwb")) {
        return {{QString(), fileContent(target)}};
    }
    const QTemporaryDir unpacked;
    try {
        unpackZip(target, unpacked.path());
    } catch (const LessonError &error) {
        return {{error.message().english(), {}}};
    }
    return filesBelow(unpacked.path());
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
    complete.options.insert("plain", {});
    try {
        convertLesson(lessonFormatOfInput(from), from,
                      format.isEmpty() ? lessonFormatOfOutput(to) : lessonFormatByName(format), to, complete,
                      [](int, int) {});
    } catch (const LessonError &error) {
        qFatal("%s", qPrintable(error.message().english()));
    }
    return losses;
}

QStringList detailsOf(const LossReport &losses)
{
    QStringList texts;
    for (const Loss &loss : losses.entries()) {
        texts.append(loss.itemType + ' ' + loss.key + ": " + loss.detail.english());
    }
    return texts;
}
