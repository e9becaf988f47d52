// SPDX-License-Identifier: MIT
#include "command/convertwords.h"

#include "batch/batch.h"
#include "command/call.h"
#include "command/manylessons.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/reportfile.h"
#include "command/terminal.h"
#include "files/inputguard.h"
#include "files/lessonerror.h"
#include "formats/conversion.h"
#include "losses/lossreport.h"
#include "losses/plainlosses.h"
#include "render/rendersettings.h"

#include <QByteArray>
#include <QJsonObject>

namespace lessonhost {

namespace {

void refusePicture(const QString &name)
{
    if (isPictureName(name)) {
        throw LessonError(say("This is the name of a picture or a page, which convert doesn't make"),
                          say("Say lessonconv render instead of lessonconv convert"))
            .in(name);
    }
}

// The format that --to says.
const LessonFormat &givenFormat(const Call &call)
{
    refusePicture(QLatin1Char('.') + call.value("to"));
    return lessonFormatByName(call.value("to"));
}

const LessonFormat &outputFormat(const Call &call, const QString &output)
{
    if (call.isSet("to")) {
        return givenFormat(call);
    }
    call.checkIsTold(output, QLatin1String("json"));
    refusePicture(output);
    return lessonFormatOfOutput(output);
}

} // namespace

bool conversionMeasuresText(const Call &call, const QStringList &files)
{
    return files.size() == 2
        && (call.inputFormat(files.first()).measuresText || outputFormat(call, files.last()).measuresText);
}

bool servedConversionsMeasureText(const Call &call, const QStringList &)
{
    // What lessons will come isn't known.
    return !call.isSet("from") || call.inputFormat({}).measuresText || outputFormat(call, {}).measuresText;
}

int convertOne(const Call &call, const QStringList &files)
{
    if (files.size() != 2) {
        throw LessonError(say("It isn't said where the result goes"),
                          say("Give a lesson and the name of the result, or many lessons with --to FORMAT "
                              "--out-dir FOLDER"));
    }
    const QString &input = files.first();
    const QString &output = files.last();
    const LessonFormat &from = call.inputFormat(input);
    const LessonFormat &to = outputFormat(call, output);
    checkUseOf(call.line().givenFormatOptions(), to);
    call.tellName(input, from);
    call.checkOutput(output);
    InputGuard inputs;
    inputs.addLesson(input, from.folderBeside);
    inputs.check(output);
    call.checkReport(inputs, {output});
    ReportFile report(call.reportName());
    const PluginHost host(call.value("plugin"));
    LossReport losses;
    ProgressBar bar(!call.isSet("quiet"));
    convertLesson(from, call.inputFile(input), to, call.streams().output(output, to.extensions.first()),
                  call.conversionContext(host, &losses), [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    if (call.isSet("report")) {
        losses.writeJson([&report](const QByteArray &piece) { report.put(piece); });
        report.commit();
    }
    if (call.isSet("json")) {
        losses.writeJson([](const QByteArray &piece) { print(QString::fromUtf8(piece)); },
                         {{QStringLiteral("input"), input},
                          {QStringLiteral("output"), output},
                          {QStringLiteral("from"), from.name},
                          {QStringLiteral("to"), to.name}});
    } else if (!losses.isEmpty() && !call.isSet("quiet")) {
        complain(onLines(plainSummary(losses, call.isSet("report"))));
    }
    return call.isSet("strict") && losses.lossCount() > 0 ? DoneWithLosses : Done;
}

int convertMany(const Call &call, const QStringList &inputs)
{
    if (!call.isSet("to")) {
        throw LessonError(say("It isn't said what the lessons are to become"), say("Say the format, such as --to iwb"));
    }
    const LessonFormat &to = givenFormat(call);
    checkCanWrite(to, call.value(manyOption));
    checkUseOf(call.line().givenFormatOptions(), to);
    const PluginHost host(call.value("plugin"));
    return runMany(call, inputs, to.extensions.first(), host, {BatchWork::conversion, serveConversionsWord});
}

int serveConversions(const Call &call, const QStringList &)
{
    const PluginHost host(call.value("plugin"));
    const LessonFormat &to = lessonFormatByName(call.value("to"));
    serveBatch([&](const QString &input, const QString &output) {
        LossReport losses;
        convertLesson(call.inputFormat(input), input, to, output, call.conversionContext(host, &losses),
                      [](int, int) {});
        return BatchAnswer{losses.toJson(), {}};
    });
    return Done;
}

} // namespace lessonhost
