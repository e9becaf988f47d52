// SPDX-License-Identifier: MIT
#include "render/pictureoutput.h"

#include "files/lessonerror.h"
#include "render/lessonpage.h"
#include "render/pdfoutput.h"
#include "render/slidefiles.h"

#include <QImageWriter>
#include <QRegularExpression>

namespace lessonhost {

namespace {

// %d, or %03d for so many digits.
const QRegularExpression &placeOfNumber()
{
    static const QRegularExpression place(QStringLiteral("%(?:0([1-9]))?d"));
    return place;
}

void checkName(const QString &path, const RenderSettings &settings, int slides)
{
    const QString folder = path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
    if (folder.contains(placeOfNumber())) {
        throw LessonError(say("The pictures of a lesson are written into one folder"),
                          say("Put %d behind the last / in the name"))
            .in(path);
    }
    if (slides > 1 && !settings.isFolder && !path.contains(placeOfNumber())) {
        throw LessonError(say("%1 slides don't go into one picture").arg(slides),
                          say("Put %d in the name for the number of the slide, or choose one with --slides"))
            .in(path);
    }
}

// Debian has some forms of pictures in a package of their own.
void checkWritable(const PictureForm &form)
{
    if (form.hasPixels && !QImageWriter::supportedImageFormats().contains(form.name.toLatin1())) {
        throw LessonError(say("Pictures in %1 can't be written on this machine").arg(form.name),
                          say("Install qt5-image-formats-plugins, or write png"));
    }
}

} // namespace

QString numberedName(const QString &name, int slide)
{
    QString result = name;
    for (QRegularExpressionMatch place = placeOfNumber().match(result); place.hasMatch();
         place = placeOfNumber().match(result, place.capturedStart() + 1)) {
        result.replace(place.capturedStart(), place.capturedLength(),
                       QStringLiteral("%1").arg(slide, place.captured(1).toInt(), 10, QLatin1Char('0')));
    }
    return result;
}

std::unique_ptr<PictureOutput> pictureOutput(const QString &path, const QString &title, const RenderSettings &settings,
                                             const PictureStore &store, const PageFiles &files,
                                             const QVector<int> &slides)
{
    switch (settings.form->kind) {
    case PictureForm::Html:
        return std::make_unique<LessonPage>(path, title, settings, store, files);
    case PictureForm::Pdf:
        return std::make_unique<PdfOutput>(path, title, settings, store);
    default:
        checkWritable(*settings.form);
        checkName(path, settings, slides.size());
        return std::make_unique<SlideFiles>(path, settings, store);
    }
}

} // namespace lessonhost
