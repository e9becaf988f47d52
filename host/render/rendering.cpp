// SPDX-License-Identifier: MIT
#include "render/rendering.h"

#include "canvas/picturestore.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "lesson/itemkeys.h"
#include "lesson/pageplace.h"
#include "losses/lossreport.h"
#include "render/differencepage.h"
#include "render/pagefiles.h"
#include "render/pictureoutput.h"
#include "render/slidedifference.h"
#include "render/slidenotice.h"
#include "render/slidepictures.h"
#include "svg/pluginoutlines.h"

#include <QJsonArray>

namespace lessonhost {

namespace {

QVector<int> chosenSlides(const RenderSettings &settings, int count)
{
    QVector<int> chosen;
    if (settings.slides.isEmpty()) {
        for (int i = 0; i < count; ++i) {
            chosen.append(i);
        }
    }
    for (const int slide : settings.slides) {
        if (slide >= count) {
            throw LessonError(say("There is no slide %1: the lesson has %2").arg(slide + 1).arg(count),
                              say("Name other slides with --slides"));
        }
        chosen.append(slide);
    }
    return chosen;
}

QString titleOf(const QJsonObject &presentation)
{
    const QString title = presentation.value(HostKeys::title).toString();
    return title.isEmpty() ? QStringLiteral("Lesson") : title;
}

void append(QJsonArray &list, int slide, const QVector<SlidePicture::Told> &items)
{
    for (const SlidePicture::Told &item : items) {
        list.append(QJsonObject{
            {QStringLiteral("slide"), slide}, {QStringLiteral("type"), item.type}, {QStringLiteral("id"), item.id}});
    }
}

// {"named": {type: number, ...}}, for tables over many lessons.
QJsonObject kindsOf(const QJsonArray &named)
{
    QJsonObject types;
    for (const QJsonValue &item : named) {
        const QString type = item[QLatin1String("type")].toString();
        types.insert(type, types.value(type).toInt() + 1);
    }
    return types.isEmpty() ? QJsonObject() : QJsonObject{{QStringLiteral("named"), types}};
}

Sentences withoutDuplicates(const Sentences &sentences)
{
    Sentences once;
    for (const Sentence &sentence : sentences) {
        if (!inEnglish(once).contains(sentence.english())) {
            once.append(sentence);
        }
    }
    return once;
}

} // namespace

Rendered renderLesson(LessonReader &reader, const LessonContext &context, const QString &output,
                      const RenderSettings &settings, const Progress &progress)
{
    const QVector<int> slides = chosenSlides(settings, reader.slideCount());
    for (const int slide : slides) {
        const QString file = settings.isFolder ? output : numberedName(output, slide + 1);
        settings.inputs.check(file);
        if (settings.isKept) {
            refuseToReplace(file);
        }
    }
    PictureStore store;
    PageFiles files;
    const auto target = pictureOutput(output, titleOf(reader.presentation()), settings, store, files, slides);
    SlidePictures pictures(reader, context, store, settings.ground);
    if (settings.form->kind == PictureForm::Html) {
        pictures.play(files);
    }
    QJsonArray named;
    for (int i = 0; i < slides.size(); ++i) {
        const SlidePicture picture = pictures.picture(slides.at(i));
        target->add(picture);
        append(named, picture.slide, picture.named);
        progress(i + 1, slides.size());
    }
    if (slides.isEmpty()) {
        throw LessonError(say("The lesson has no slides to draw"));
    }
    const Sentences notes = pictures.missingFonts().sentences();
    return {{{QStringLiteral("slides"), slides.size()},
             {QStringLiteral("files"), QJsonArray::fromStringList(target->finish())},
             {QStringLiteral("named"), named},
             {QStringLiteral("kinds"), kindsOf(named)},
             {QStringLiteral("missingFonts"), pictures.missingFonts().toJson()},
             {QStringLiteral("notes"), QJsonArray::fromStringList(inEnglish(notes))}},
            notes};
}

Rendered renderDifference(LessonReader &first, const QString &firstName, LessonReader &second,
                          const QString &secondName, const LessonContext &context, const QString &output,
                          const RenderSettings &settings, const Progress &progress)
{
    if (settings.form->kind != PictureForm::Html) {
        throw LessonError(say("Two lessons side by side are written as one page"),
                          say("Give the output a name in .html"))
            .in(output);
    }
    const int count = qMax(first.slideCount(), second.slideCount());
    const QVector<int> slides = chosenSlides(settings, count);
    settings.inputs.check(output);
    if (settings.isKept) {
        refuseToReplace(output);
    }
    PictureStore store;
    DifferencePage html(output, listedWithAnd(QStringList{firstName, secondName}).local(), store);
    SlidePictures firstPictures(first, context, store);
    SlidePictures secondPictures(second, context, store);
    PageFiles firstFiles;
    PageFiles secondFiles;
    firstPictures.play(firstFiles);
    secondPictures.play(secondFiles);
    LossReport losses;
    for (int i = 0; i < slides.size(); ++i) {
        const int slide = slides.at(i);
        html.addHtml("<h2>" + say("Slide %1").arg(slide + 1).local().toUtf8() + "</h2>\n<div class=\"pair\">\n");
        SlideNotice notices[2];
        for (const bool isFirst : {true, false}) {
            if (slide < (isFirst ? first : second).slideCount()) {
                const SlidePicture picture = (isFirst ? firstPictures : secondPictures).picture(slide);
                notices[isFirst] = SlideNotice(picture, isFirst ? firstFiles : secondFiles);
                html.add(picture);
            } else {
                html.addHtml("<p>" + say("This lesson has no such slide.").local().toUtf8() + "</p>\n");
            }
        }
        html.addHtml("</div>\n");
        if (slide < first.slideCount()) {
            LessonSlide given = first.slide(slide);
            LessonSlide found = slide < second.slideCount() ? second.slide(slide) : LessonSlide();
            if (given.properties.contains(SlideKeys::sourceRect) || found.properties.contains(SlideKeys::sourceRect)) {
                given = slideInPageForm(given, pluginOutlines(context.plugin));
                found = slideInPageForm(found, pluginOutlines(context.plugin));
            }
            html.addHtml(slideDifference(given, notices[true], found, notices[false], slide + 1, losses));
        }
        progress(i + 1, slides.size());
    }
    const Sentences notes =
        withoutDuplicates(firstPictures.missingFonts().sentences() + secondPictures.missingFonts().sentences());
    return {{{QStringLiteral("slides"), slides.size()},
             {QStringLiteral("files"), QJsonArray::fromStringList(html.finish())},
             {QStringLiteral("losses"), losses.toJson()},
             {QStringLiteral("notes"), QJsonArray::fromStringList(inEnglish(notes))}},
            notes};
}

} // namespace lessonhost
