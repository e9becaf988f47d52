// SPDX-License-Identifier: MIT
#include "command/call.h"

#include "command/pluginhost.h"
#include "command/terminal.h"
#include "files/inputguard.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "formats/lessonformats.h"
#include "lesson/isoneof.h"
#include "render/slideitempainter.h"
#include "threads/cores.h"

namespace lessonhost {

namespace {

const char *const serveWords[] = {serveConversionsWord, servePicturesWord, serveChecksWord};

} // namespace

Call::Call(const QStringList &arguments, const Sentence &usage, const Sentence &wordList)
    : m_line(arguments, usage, wordList)
    , m_streams(std::make_unique<StandardStreams>())
{
}

const LessonFormat &Call::inputFormat(const QString &input) const
{
    return isSet("from") ? lessonFormatByName(value("from")) : lessonFormatOfInput(inputFile(input));
}

void Call::checkIsTold(const QString &output, QLatin1String example) const
{
    if (StandardStreams::isStandardOutput(output)) {
        throw LessonError(say("It isn't said what is to come out"),
                          say("Say the format, such as --to %1").arg(example));
    }
}

// What stands there already is replaced otherwise.
void Call::checkOutput(const QString &output) const
{
    if (StandardStreams::isStandardOutput(output)) {
        if (isSet("json")) {
            throw LessonError(say("Standard output can't take the result and what --json tells of it"),
                              say("Leave out --json, or give the result a name"));
        }
    } else if (isSet("no-clobber")) {
        refuseToReplace(output);
    }
}

void Call::checkReport(InputGuard &inputs, const QStringList &outputs) const
{
    const QString report = reportName();
    if (report.isNull()) {
        return;
    }
    if (StandardStreams::isStandardOutput(report)) {
        throw LessonError(say("Standard output takes no report"), say("Give the report a name, or say --json"));
    }
    inputs.check(report);
    inputs.addReport(report);
    for (const QString &output : outputs) {
        inputs.checkReport(output);
    }
}

void Call::tellName(const QString &input, const LessonFormat &format) const
{
    const Sentence remark = isSet("quiet") || isSet("from") ? Sentence() : remarkOnName(input, format);
    if (!remark.isEmpty()) {
        complain(remark);
    }
}

// The workers of a batch have a core each.
bool Call::hasIdleCores() const
{
    return !isOneOf(serveWords, m_line.words().first()) && usableCores() > 1;
}

LessonContext Call::readingContext(const PluginHost &host) const
{
    LessonContext context;
    context.plugin = host.plugin();
    context.verify = false;
    context.readsAhead = hasIdleCores();
    return context;
}

LessonContext Call::conversionContext(const PluginHost &host, LossReport *losses) const
{
    LessonContext context;
    context.plugin = host.plugin();
    context.losses = losses;
    context.verify = !isSet("no-check");
    context.readsAhead = hasIdleCores();
    context.options = m_line.formatOptions();
    context.makePainter = [plugin = context.plugin](LessonReader &reader, bool isTrial) {
        return std::make_unique<SlideItemPainter>(reader, plugin, isTrial);
    };
    return context;
}

} // namespace lessonhost
