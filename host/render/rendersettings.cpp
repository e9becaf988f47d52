// SPDX-License-Identifier: MIT
#include "render/rendersettings.h"

#include "files/lessonerror.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace lessonhost {

namespace {

constexpr double leastScale = 0.01;
constexpr double mostScale = 100;
constexpr int mostDotsPerInch = 9600;
constexpr int mostSlidesNamed = 100000;

Sentence namesOf(bool (*isMeant)(const PictureForm &))
{
    QStringList names;
    for (const PictureForm &form : pictureForms()) {
        if (isMeant(form)) {
            names.append(form.name);
        }
    }
    return listedWithAnd(names);
}

const PictureForm *formOfName(const QString &path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const PictureForm &form : pictureForms()) {
        if (form.extensions.contains(extension)) {
            return &form;
        }
    }
    return nullptr;
}

/*!
 * The options that say how large pictures are. One of them is enough.
 */
struct SizeOption
{
    const char *name;
    bool (*hasForm)(const PictureForm &form); // where it can change something
    void (*take)(const QString &text, PictureSize &size);
};

bool hasSize(const PictureForm &form)
{
    return form.hasSize;
}

bool hasPixels(const PictureForm &form)
{
    return form.hasPixels;
}

int sideFrom(const char *option, const QString &text)
{
    const int side = text.toInt();
    if (side < 1 || side > largestSide) {
        throw LessonError(
            say("\"%1\" is no number of pixels").arg(text),
            say("Write a number from 1 to %1, such as --%2 640").arg(largestSide).arg(QLatin1String(option)));
    }
    return side;
}

double numberFrom(const char *option, const QString &text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !(number >= least) || !(number <= most)) {
        throw LessonError(say("\"%1\" is no such number").arg(text),
                          say("Give --%1 a number from %2 to %3").arg(QLatin1String(option)).arg(least).arg(most));
    }
    return number;
}

void takeBox(const QString &text, PictureSize &size)
{
    const QStringList parts = text.split(QLatin1Char('x'));
    size.box = QSize(parts.value(0).toInt(), parts.value(1).toInt());
    if (parts.size() != 2 || size.box.isEmpty() || size.box.width() > largestSide || size.box.height() > largestSide) {
        throw LessonError(
            say("\"%1\" is no size").arg(text),
            say("Write width and height in pixels, such as --size 1280x720, up to %1 each").arg(largestSide));
    }
}

constexpr SizeOption sizeOptions[] = {
    {"size", hasSize, takeBox},
    {"width", hasSize, [](const QString &text, PictureSize &size) { size.box.setWidth(sideFrom("width", text)); }},
    {"height", hasSize, [](const QString &text, PictureSize &size) { size.box.setHeight(sideFrom("height", text)); }},
    {"scale", hasSize,
     [](const QString &text, PictureSize &size) { size.scale = numberFrom("scale", text, leastScale, mostScale); }},
    {"dpi", hasPixels,
     [](const QString &text, PictureSize &size) {
         size.scale = numberFrom("dpi", text, 1, mostDotsPerInch) / PictureSize::pageDotsPerInch;
     }},
};

PictureSize sizeFrom(const PictureForm &form, const OptionValue &valueOf)
{
    PictureSize size;
    size.box = QSize(0, 0);
    QString taken;
    for (const SizeOption &option : sizeOptions) {
        const QString text = valueOf(option.name);
        if (text.isNull()) {
            continue;
        }
        const QString name = QLatin1String("--") + QLatin1String(option.name);
        if (!option.hasForm(form)) {
            throw LessonError(say("%1 changes nothing about %2").arg(name, form.name),
                              say("Leave it out; it is for %1").arg(namesOf(option.hasForm)));
        }
        if (!taken.isEmpty()) {
            throw LessonError(say("%1 and %2 both say how large pictures are").arg(taken, name),
                              say("Give one of them; --size 1280x720 sets bounds for both sides"));
        }
        option.take(text, size);
        taken = name;
    }
    size.isFilled = !valueOf("pad").isNull();
    if (size.isFilled && size.box.isEmpty()) {
        throw LessonError(say("--pad changes nothing without --size"),
                          say("Leave it out, or say the whole size, such as --size 1280x720"));
    }
    return size;
}

std::optional<QColor> groundFrom(const PictureForm &form, const QString &text)
{
    if (text.isNull()) {
        return {};
    }
    if (!QColor::isValidColor(text)) {
        throw LessonError(say("\"%1\" is no colour").arg(text),
                          say("Write a name or red, green and blue, such as --background \"#ffffe0\", or "
                              "transparent"));
    }
    const QColor color(text);
    if (form.isOpaque && color.alpha() < 255) {
        throw LessonError(say("In %1 nothing shows through").arg(form.name),
                          say("Take a colour for --background, or write %1").arg(namesOf([](const PictureForm &other) {
                              return other.hasPixels && !other.isOpaque;
                          })));
    }
    return color;
}

// "2-5,8" as slides counted from 0, in this order.
QVector<int> slidesFrom(const QString &text)
{
    QVector<int> slides;
    const QStringList parts = text.isNull() ? QStringList() : text.split(QLatin1Char(','));
    for (const QString &part : parts) {
        const QStringList ends = part.split(QLatin1Char('-'));
        const int first = ends.constFirst().toInt();
        const int last = ends.constLast().toInt();
        if (ends.size() > 2 || first < 1 || last < first || last - first > mostSlidesNamed) {
            throw LessonError(say("\"%1\" names no slides").arg(text),
                              say("Count from 1, such as --slides 2-5 or --slides 1,4"));
        }
        for (int slide = first; slide <= last; ++slide) {
            slides.append(slide - 1);
        }
    }
    return slides;
}

} // namespace

const QVector<PictureForm> &pictureForms()
{
    static const QVector<PictureForm> forms{
        {PictureForm::Html, QStringLiteral("html"), {QStringLiteral("html")}, false, false, false, false},
        {PictureForm::Pdf, QStringLiteral("pdf"), {QStringLiteral("pdf")}, false, true, false, false},
        {PictureForm::Svg, QStringLiteral("svg"), {QStringLiteral("svg")}, true, true, false, false},
        {PictureForm::Png, QStringLiteral("png"), {QStringLiteral("png")}, true, true, true, false},
        {PictureForm::Jpeg,
         QStringLiteral("jpeg"),
         {QStringLiteral("jpg"), QStringLiteral("jpeg")},
         true,
         true,
         true,
         true},
        {PictureForm::Webp, QStringLiteral("webp"), {QStringLiteral("webp")}, true, true, true, false},
    };
    return forms;
}

const PictureForm &pictureFormByName(const QString &name)
{
    QStringList names;
    for (const PictureForm &form : pictureForms()) {
        if (name.compare(form.name, Qt::CaseInsensitive) == 0 || form.extensions.contains(name.toLower())) {
            return form;
        }
        names.append(form.name);
    }
    throw LessonError(say("Pictures can't be written as \"%1\"").arg(name), say("Say %1").arg(listedWithOr(names)));
}

bool isPictureName(const QString &path)
{
    return formOfName(path);
}

const PictureForm &pictureFormOfOutput(const QString &path)
{
    if (const PictureForm *form = formOfName(path)) {
        return *form;
    }
    QStringList extensions;
    for (const PictureForm &form : pictureForms()) {
        extensions.append(QLatin1Char('.') + form.extensions.first());
    }
    throw LessonError(say("Pictures can't be written in this form"),
                      say("Give the output a name in %1, or say the form with --to").arg(listedWithOr(extensions)))
        .in(path);
}

PageFrame PictureSize::frameOf(const QSizeF &page) const
{
    double factor = scale;
    if (box.width() > 0 || box.height() > 0) {
        const double none = std::numeric_limits<double>::infinity();
        factor = std::min(box.width() > 0 ? box.width() / page.width() : none,
                          box.height() > 0 ? box.height() / page.height() : none);
    }
    factor = std::min({factor, largestSide / page.width(), largestSide / page.height()});
    const QSizeF size = page * factor;
    PageFrame frame{isFilled ? QSizeF(box) : size, QRectF(QPointF(), size)};
    frame.page.moveCenter(QRectF(QPointF(), frame.size).center());
    return frame;
}

RenderSettings renderSettings(const PictureForm &form, const OptionValue &valueOf)
{
    RenderSettings settings;
    settings.form = &form;
    settings.size = sizeFrom(form, valueOf);
    settings.ground = groundFrom(form, valueOf("background"));
    settings.slides = slidesFrom(valueOf("slides"));
    settings.isEmbedded = !valueOf("embed").isNull();
    if (settings.isEmbedded && form.kind != PictureForm::Html) {
        throw LessonError(say("--embed changes nothing about %1").arg(form.name), say("Leave it out; it is for html"));
    }
    return settings;
}

} // namespace lessonhost
