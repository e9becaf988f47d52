#include "render/rendering.h"

#include "files/lessonerror.h"
#include "lesson/itemkeys.h"
#include "lesson/pageplace.h"
#include "losses/lossreport.h"
#include "render/pictureoutput.h"
#include "render/slidedifference.h"
#include "render/slidepictures.h"
#include "svg/pluginoutlines.h"

#include <QFileInfo>
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
            throw LessonError(QStringLiteral("There is no slide %1: the lesson has %2").arg(slide + 1).arg(count),
                              QStringLiteral("Name other slides with --slides"));
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

} // namespace

QSize sizeFromText(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    const QStringList parts = text.split(QLatin1Char('x'));
    const QSize size(parts.value(0).toInt(), parts.value(1).toInt());
    if (parts.size() != 2 || size.isEmpty() || size.width() > largestSide || size.height() > largestSide) {
        throw LessonError(QStringLiteral("\"%1\" is no size").arg(text),
                          QStringLiteral("Write width and height in pixels, such as --size 1280x720, up to %1 each")
                              .arg(largestSide));
    }
    return size;
}

bool isPictureName(const QString &path)
{
    static const QStringList endings{QStringLiteral("html"), QStringLiteral("pdf"), QStringLiteral("svg"),
                                     QStringLiteral("png")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

QVector<int> slidesFromText(const QString &text)
{
    QVector<int> slides;
    const QStringList parts = text.isEmpty() ? QStringList() : text.split(QLatin1Char(','));
    for (const QString &part : parts) {
        const QStringList ends = part.split(QLatin1Char('-'));
        const int first = ends.constFirst().toInt();
        const int last = ends.constLast().toInt();
        if (ends.size() > 2 || first < 1 || last < first || last - first > 100000) {
            throw LessonError(QStringLiteral("\"%1\" names no slides").arg(text),
                              QStringLiteral("Count from 1, such as --slides 2-5 or --slides 1,4"));
        }
        for (int slide = first; slide <= last; ++slide) {
            slides.append(slide - 1);
        }
    }
    return slides;
}

QJsonObject renderLesson(LessonReader &reader, const LessonContext &context, const QString &output,
                         const RenderSettings &settings, const Progress &progress)
{
    const QVector<int> slides = chosenSlides(settings, reader.slideCount());
    for (const int slide : slides) {
        settings.inputs.check(QString(output).replace(QLatin1String("%d"), QString::number(slide + 1)));
    }
    const auto target = pictureOutput(output, titleOf(reader.presentation()), settings.size, slides);
    SlidePictures pictures(reader, context);
    QJsonArray named;
    for (int i = 0; i < slides.size(); ++i) {
        const SlidePicture picture = pictures.picture(slides.at(i));
        target->add(picture);
        append(named, picture.slide, picture.named);
        progress(i + 1, slides.size());
    }
    if (slides.isEmpty()) {
        throw LessonError(QStringLiteral("The lesson has no slides to draw"));
    }
    return {{QStringLiteral("slides"), slides.size()},
            {QStringLiteral("files"), QJsonArray::fromStringList(target->finish())},
            {QStringLiteral("named"), named}};
}

QJsonObject renderDifference(LessonReader &first, const QString &firstName, LessonReader &second,
                             const QString &secondName, const LessonContext &context, const QString &output,
                             const RenderSettings &settings, const Progress &progress)
{
    if (QFileInfo(output).suffix().compare(QLatin1String("html"), Qt::CaseInsensitive) != 0) {
        throw LessonError(QStringLiteral("Two lessons side by side are written as one page"),
                          QStringLiteral("Give the output a name in .html"))
            .in(output);
    }
    const int count = qMax(first.slideCount(), second.slideCount());
    const QVector<int> slides = chosenSlides(settings, count);
    settings.inputs.check(output);
    HtmlOutput html(output, firstName + QLatin1String(" and ") + secondName);
    SlidePictures firstPictures(first, context);
    SlidePictures secondPictures(second, context);
    LossReport losses;
    for (int i = 0; i < slides.size(); ++i) {
        const int slide = slides.at(i);
        html.addHtml("<h2>Slide " + QByteArray::number(slide + 1) + "</h2>\n<div class=\"pair\">\n");
        for (const bool isFirst : {true, false}) {
            if (slide < (isFirst ? first : second).slideCount()) {
                html.add((isFirst ? firstPictures : secondPictures).picture(slide));
            } else {
                html.addHtml("<p>This lesson has no such slide.</p>\n");
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
            html.addHtml(slideDifference(given, found, slide + 1, losses));
        }
        progress(i + 1, slides.size());
    }
    return {{QStringLiteral("slides"), slides.size()},
            {QStringLiteral("files"), QJsonArray::fromStringList(html.finish())},
            {QStringLiteral("losses"), losses.toJson()}};
}

} // namespace lessonhost
