// SPDX-License-Identifier: MIT
#include "command/renderwords.h"

#include "batch/batch.h"
#include "command/browser.h"
#include "command/call.h"
#include "command/manylessons.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/reportfile.h"
#include "command/terminal.h"
#include "files/lessonerror.h"
#include "formats/slidesahead.h"
#include "render/rendering.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>

namespace lessonhost {

namespace {

const PictureForm &pictureForm(const Call &call, const QString &output)
{
    if (call.isSet("to")) {
        return pictureFormByName(call.value("to"));
    }
    if (call.isSet("diff") && StandardStreams::isStandardOutput(output)) {
        return pictureFormByName(QStringLiteral("html"));
    }
    call.checkIsTold(output, QLatin1String("pdf"));
    return pictureFormOfOutput(output);
}

RenderSettings settingsOf(const Call &call, const PictureForm &form, const QStringList &inputs)
{
    RenderSettings settings = renderSettings(form, [&call](const char *option) {
        const QString text = call.value(option);
        return !call.isSet(option) ? QString() : text.isNull() ? QStringLiteral("") : text;
    });
    settings.isKept = call.isSet("no-clobber");
    for (const QString &input : inputs) {
        const LessonFormat &format =
            input == inputs.first() ? call.inputFormat(input) : lessonFormatOfInput(call.inputFile(input));
        settings.inputs.addLesson(input, format.folderBeside);
    }
    return settings;
}

// A lesson has a file or, where its slides have one each and all are wanted, a folder.
RenderSettings settingsOfMany(const Call &call)
{
    RenderSettings settings = settingsOf(call, pictureFormByName(call.value("to")), {});
    settings.isFolder = settings.form->isPerSlide && settings.slides.size() != 1;
    return settings;
}

void tellNotes(const Call &call, const Sentences &notes)
{
    for (const Sentence &note : notes) {
        if (!call.isSet("quiet") && !call.isSet("json")) {
            complain(say("Note: %1").arg(note));
        }
    }
}

void tell(const Call &call, const Rendered &rendered, const QString &output)
{
    tellNotes(call, rendered.notes);
    if (StandardStreams::isStandardOutput(output)) {
        return;
    }
    if (call.isSet("json")) {
        printJson(rendered.report);
    } else if (!call.isSet("quiet")) {
        const int slides = rendered.report.value(QLatin1String("slides")).toInt();
        const int named = rendered.report.value(QLatin1String("named")).toArray().size();
        print(named > 0 ? say("Slides drawn: %1. Items shown by their name: %2.").arg(slides, named)
                        : say("Slides drawn: %1.").arg(slides));
    }
}

} // namespace

bool picturesMeasureText(const Call &, const QStringList &)
{
    return true;
}

int renderOne(const Call &call, const QStringList &files)
{
    const QString &input = files.first();
    const QString &output = files.last();
    RenderSettings settings = settingsOf(call, pictureForm(call, output), {input});
    // Nothing lies beside what is printed.
    settings.isEmbedded |= StandardStreams::isStandardOutput(output);
    const LessonFormat &format = call.inputFormat(input);
    call.tellName(input, format);
    call.checkOutput(output);
    call.checkReport(settings.inputs, {output});
    ReportFile report(call.reportName());
    const PluginHost host(call.value("plugin"));
    const LessonContext context = call.readingContext(host);
    ProgressBar bar(!call.isSet("quiet"));
    const auto reader = openLesson(format, call.inputFile(input), context);
    const Rendered rendered =
        renderLesson(*reader, context, call.streams().output(output, settings.form->extensions.first()), settings,
                     [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    report.write(rendered.report);
    tell(call, rendered, output);
    return Done;
}

int renderMany(const Call &call, const QStringList &inputs)
{
    if (!call.isSet("to")) {
        throw LessonError(say("It isn't said what the lessons are to be drawn as"), say("Say it, such as --to pdf"));
    }
    const RenderSettings settings = settingsOfMany(call);
    const PluginHost host(call.value("plugin"));
    return runMany(call, inputs, settings.isFolder ? QString() : settings.form->extensions.first(), host,
                   {BatchWork::drawing, servePicturesWord});
}

int renderTwo(const Call &call, const QStringList &files)
{
    const RenderSettings settings = settingsOf(call, pictureForm(call, files.last()), files.mid(0, files.size() - 1));
    const PluginHost host(call.value("plugin"));
    const LessonContext context = call.readingContext(host);
    ProgressBar bar(!call.isSet("quiet"));
    call.checkOutput(files.last());
    const auto first = openLesson(call.inputFormat(files.first()), call.inputFile(files.first()), context);
    const QString secondFile = call.inputFile(files.at(1));
    const auto second = openLesson(lessonFormatOfInput(secondFile), secondFile, context);
    const QString output = call.streams().output(files.last(), settings.form->extensions.first());
    const Rendered rendered = renderDifference(*first, files.first(), *second, files.at(1), context, output, settings,
                                               [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    tell(call, rendered, files.last());
    return Done;
}

int servePictures(const Call &call, const QStringList &)
{
    const PluginHost host(call.value("plugin"));
    const LessonContext context = call.readingContext(host);
    const RenderSettings settings = settingsOfMany(call);
    serveBatch([&](const QString &input, const QString &output) {
        const auto reader = openLesson(call.inputFormat(input), input, context);
        const Rendered rendered = renderLesson(*reader, context, output, settings, [](int, int) {});
        return BatchAnswer{rendered.report, rendered.notes};
    });
    return Done;
}

int show(const Call &call, const QStringList &files)
{
    const QByteArray path = QFileInfo(files.first()).absoluteFilePath().toUtf8();
    const QByteArray name = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    const QString page = pageFolder() + QStringLiteral("/%1.html").arg(QLatin1String(name));
    try {
        const LessonFormat &format = call.inputFormat(files.first());
        const PluginHost host(call.value("plugin"));
        const LessonContext context = call.readingContext(host);
        ProgressBar bar(!call.isSet("quiet"));
        const auto reader = openLesson(format, call.inputFile(files.first()), context);
        renderLesson(*reader, context, page, settingsOf(call, pictureFormOfOutput(page), files),
                     [&bar](int done, int total) { bar.show(done, total); });
        bar.clear();
    } catch (const LessonError &error) {
        writeFailurePage(page, call.streams().named(error).message());
        openInBrowser(page);
        throw;
    }
    openInBrowser(page);
    return Done;
}

} // namespace lessonhost
