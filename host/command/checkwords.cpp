// SPDX-License-Identifier: MIT
#include "command/checkwords.h"

#include "batch/batch.h"
#include "command/call.h"
#include "command/lessoncheck.h"
#include "command/manylessons.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/reportfile.h"
#include "command/terminal.h"
#include "files/inputguard.h"
#include "formats/conversion.h"

#include <QVector>

#include <algorithm>

namespace lessonhost {

namespace {

// What a lesson would become. Its own format holds what the reader holds.
QVector<const LessonFormat *> triedFormats(const Call &call, const LessonFormat *from)
{
    if (call.isSet("to")) {
        const LessonFormat &to = lessonFormatByName(call.value("to"));
        checkCanWrite(to, QString());
        return {&to};
    }
    QVector<const LessonFormat *> tried;
    for (const LessonFormat &format : lessonFormats()) {
        if (!call.isSet("no-check") && format.canWrite() && !format.isModel && (!from || format.name != from->name)) {
            tried.append(&format);
        }
    }
    return tried;
}

bool anyMeasuresText(const QVector<const LessonFormat *> &formats)
{
    return std::any_of(formats.cbegin(), formats.cend(),
                       [](const LessonFormat *format) { return format->measuresText; });
}

LessonCheck checked(const Call &call, const LessonFormat &from, const QString &input, const PluginHost &host,
                    const Progress &progress)
{
    return checkLesson(from, input, triedFormats(call, &from), call.conversionContext(host, nullptr), progress);
}

} // namespace

bool checkMeasuresText(const Call &call, const QStringList &files)
{
    const LessonFormat &from = call.inputFormat(files.first());
    return anyMeasuresText(triedFormats(call, &from)) || from.measuresText;
}

bool servedChecksMeasureText(const Call &call, const QStringList &)
{
    return anyMeasuresText(triedFormats(call, nullptr)) || !call.isSet("from") || call.inputFormat({}).measuresText;
}

int checkOne(const Call &call, const QStringList &files)
{
    const QString &input = files.first();
    const LessonFormat &from = call.inputFormat(input);
    call.tellName(input, from);
    InputGuard inputs;
    inputs.addLesson(input, from.folderBeside);
    call.checkReport(inputs, {});
    ReportFile report(call.reportName());
    const PluginHost host(call.value("plugin"));
    ProgressBar bar(!call.isSet("quiet"));
    const LessonCheck check =
        checked(call, from, call.inputFile(input), host, [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    QJsonObject result = check.toJson();
    result.insert(QStringLiteral("input"), input);
    report.write(result);
    if (call.isSet("json")) {
        printJson(result);
    } else if (!call.isSet("quiet") || !check.isWhole()) {
        print(onLines(check.words(call.streams().shownName(input))));
    }
    return check.isWhole() && !(call.isSet("strict") && check.lossCount() > 0) ? Done : DoneWithLosses;
}

int checkMany(const Call &call, const QStringList &inputs)
{
    const PluginHost host(call.value("plugin"));
    triedFormats(call, nullptr); // whether what is asked for can be told
    return runMany(call, inputs, QStringLiteral("json"), host, {BatchWork::checking, serveChecksWord});
}

// The result of a lesson is also a file: what is there need not be checked again.
int serveChecks(const Call &call, const QStringList &)
{
    const PluginHost host(call.value("plugin"));
    serveBatch([&](const QString &input, const QString &output) -> BatchAnswer {
        const QJsonObject result = checked(call, call.inputFormat(input), input, host, [](int, int) {}).toJson();
        ReportFile file(output);
        QJsonObject named = result;
        named.insert(QStringLiteral("input"), input);
        file.write(named);
        return {result, {}};
    });
    return Done;
}

} // namespace lessonhost
