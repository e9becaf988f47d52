// SPDX-License-Identifier: MIT
#include "command/manylessons.h"

#include "batch/batch.h"
#include "batch/batchjournal.h"
#include "batch/batchreport.h"
#include "command/call.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/reportfile.h"
#include "command/terminal.h"
#include "files/inputfile.h"
#include "files/inputguard.h"
#include "files/lessonerror.h"
#include "formats/lessonformats.h"
#include "render/pagefiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

#include <cerrno>

namespace lessonhost {

namespace {

BatchSettings settingsOf(const Call &call, const PluginHost &host, const ManyWork &work)
{
    BatchSettings settings;
    settings.work = &work.work;
    settings.outputFolder = QDir::cleanPath(call.value(manyOption));
    settings.jobs = call.line().jobs();
    settings.lessonSeconds = call.line().lessonSeconds();
    settings.resume = call.isSet("resume");
    settings.keepsOutputs = call.isSet("no-clobber");
    const QStringList arguments = call.line().resultArguments(call.line().words().first(), QLatin1String(manyOption));
    settings.workerArguments =
        QStringList{QLatin1String(work.servingWord), QStringLiteral("--plugin"), host.fileName()} + arguments;
    QCryptographicHash plugin(QCryptographicHash::Sha1);
    InputFile file(host.fileName());
    plugin.addData(&file);
    file.check();
    settings.fingerprint = arguments.join(QLatin1Char(' ')).toUtf8() + ' '
        + QCoreApplication::applicationVersion().toUtf8() + ' ' + plugin.result().toHex();
    return settings;
}

// hasFolders: of files beside pages.
QStringList outputsOf(const BatchPlan &plan, const QString &folder, bool hasFolders)
{
    QStringList outputs{BatchJournal::fileIn(folder, plan.shard)};
    for (const BatchPlan::Lesson &lesson : plan.lessons) {
        if (lesson.problem.isEmpty()) {
            const QString output = folder + QLatin1Char('/') + lesson.output;
            outputs.append(output);
            if (hasFolders) {
                outputs.append(QFileInfo(output).path() + QLatin1Char('/') + filesFolderOfPage(output));
            }
        }
    }
    return outputs;
}

void makeFolder(const QString &folder)
{
    errno = 0;
    if (!QDir().mkpath(folder)) {
        throw LessonError(say("The folder for the results can't be made: %1").arg(systemReason(errno)),
                          say("Check the path and that you may write there"))
            .in(folder);
    }
}

int exitCodeOf(const Call &call, const BatchTotals &totals)
{
    if (totals.isInterrupted || totals.count(BatchTotals::Failed) > 0 || totals.count(BatchTotals::Open) > 0) {
        return NotDone;
    }
    return totals.foundCount() > 0 || (call.isSet("strict") && totals.lossCount() > 0) ? DoneWithLosses : Done;
}

// Of the runs that reports are about.
Sentences summaryOf(const BatchTotals &totals, const QStringList &failures)
{
    Sentences lines{totals.summary(say("the report of its run"))};
    if (const Sentence shards = totals.shardSummary(); !shards.isEmpty()) {
        lines.append(shards);
    }
    lines += totals.kinds.summary();
    const qint64 failed = totals.count(BatchTotals::Failed);
    if (failed > 0) {
        lines.append(failed > failures.size() ? sayNumber(totals.work->someUndone, failed).arg(failures.size())
                                              : say(totals.work->undone));
        for (const QString &failure : failures) {
            lines.append(Sentence(failure));
        }
    }
    return lines;
}

} // namespace

int runMany(const Call &call, const QStringList &inputs, const QString &extension, const PluginHost &host,
            const ManyWork &work)
{
    const BatchSettings settings = settingsOf(call, host, work);
    StandardStreams::refuse(inputs + QStringList{settings.outputFolder});
    const LessonFormat *from = call.isSet("from") ? &lessonFormatByName(call.value("from")) : nullptr;
    const BatchPlan plan = planBatch(inputs, from, extension, settings.outputFolder, call.line().shard());
    if (call.isSet("report")) {
        InputGuard guard = plan.inputs;
        const bool hasFolders = extension == QLatin1String("html") && !call.isSet("embed");
        call.checkReport(guard, outputsOf(plan, settings.outputFolder, hasFolders));
    }
    makeFolder(settings.outputFolder);
    ReportFile report(call.reportName());
    ProgressBar bar(!call.isSet("quiet"));
    BatchWatcher watcher;
    watcher.progress = [&bar](int done, int total, const QString &name) {
        bar.show(done, total, TO_SAY("%1 of %2 lessons"), name);
    };
    watcher.failure = [&bar](const Sentence &message) {
        bar.clear();
        complain(message);
    };
    std::unique_ptr<BatchRecords> records;
    if (call.isSet("report") || call.isSet("json")) {
        records = std::make_unique<BatchRecords>(plan);
        watcher.told = [&records, &settings](int index, BatchTotals::State state, const QJsonObject &result,
                                             const Sentence &message) {
            records->put(index, state, result, message, *settings.work);
        };
    }
    const BatchResult result = runBatch(plan, settings, watcher);
    bar.clear();
    if (call.isSet("report")) {
        records->write(result.totals, [&report](const QByteArray &piece) { report.put(piece); });
        report.commit();
    }
    if (call.isSet("json")) {
        records->write(result.totals, [](const QByteArray &piece) { print(QString::fromUtf8(piece)); });
    } else if (!call.isSet("quiet")) {
        print(result.totals.summary(call.isSet("report") ? say("the report") : say("--report FILE")));
    }
    return result.hasJournalFailed ? NotDone : exitCodeOf(call, result.totals);
}

int mergeRuns(const Call &call, const QStringList &reports)
{
    InputGuard inputs;
    QStringList files;
    for (const QString &report : reports) {
        inputs.add(report);
        files.append(call.inputFile(report));
    }
    if (call.isSet("report")) {
        call.checkReport(inputs, {});
        call.checkOutput(call.reportName());
    }
    ReportFile report(call.reportName());
    QStringList failures;
    const BatchTotals totals = mergeReports(
        files,
        [&call, &report](const QByteArray &piece) {
            report.put(piece);
            if (call.isSet("json")) {
                print(QString::fromUtf8(piece));
            }
        },
        &failures);
    report.commit();
    if (!call.isSet("json") && !call.isSet("quiet")) {
        print(onLines(summaryOf(totals, failures)));
    }
    return totals.notTaken() > 0 || !totals.missingShards().isEmpty() ? NotDone : exitCodeOf(call, totals);
}

} // namespace lessonhost
