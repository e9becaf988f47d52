// SPDX-License-Identifier: MIT
#include "render/slidefiles.h"

#include "canvas/picturestore.h"
#include "files/lessonerror.h"
#include "files/paintedpng.h"
#include "render/slidepictures.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

namespace lessonhost {

namespace {

constexpr int mostMegapixels = 64; // of a picture, four bytes each
constexpr int photographQuality = 92;
constexpr double metersPerInch = 0.0254;

const QLatin1String nameInFolder("slide%03d.");

// A folder may be replaced by its like.
bool holdsOnlySlides(const QString &folder, const QString &extension)
{
    static const QRegularExpression pattern(QStringLiteral("^slide[0-9]{3,}[.]"));
    const QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return std::all_of(names.cbegin(), names.cend(), [&](const QString &name) {
        const QRegularExpressionMatch match = pattern.match(name);
        return match.hasMatch() && name.mid(match.capturedLength()) == extension;
    });
}

QString extensionOf(const RenderSettings &settings)
{
    return settings.form->extensions.first();
}

QString coordinate(double value)
{
    return QString::number(value, 'f', 2);
}

} // namespace

SlideFiles::SlideFiles(const QString &path, const RenderSettings &settings, const PictureStore &store)
    : m_settings(settings)
    , m_store(store)
    , m_target(path, settings.isFolder ? PackageTarget::Directory : PackageTarget::Files,
               [settings](const QString &folder) { return holdsOnlySlides(folder, extensionOf(settings)); })
    , m_printer(store)
    , m_folder(settings.isFolder ? path + QLatin1Char('/') : path.left(path.lastIndexOf(QLatin1Char('/')) + 1))
    , m_name(settings.isFolder ? QString(nameInFolder + extensionOf(settings)) : path.mid(m_folder.size()))
{
}

void SlideFiles::add(const SlidePicture &picture)
{
    const QString name = numberedName(m_name, picture.slide);
    if (m_files.contains(m_folder + name)) {
        return;
    }
    m_files.append(m_folder + name);
    if (m_settings.form->hasPixels) {
        refuseHuge(picture, m_settings.size.frameOf(picture.size).pixels());
    }
    const auto file = m_target.newFile(name);
    if (m_settings.form->hasPixels) {
        draw(picture, *file);
    } else {
        file->put(svgOf(picture));
    }
    file->finish();
}

QStringList SlideFiles::finish()
{
    m_target.commit();
    return m_files;
}

void SlideFiles::refuseHuge(const SlidePicture &picture, const QSize &size) const
{
    if (qint64(size.width()) * size.height() > qint64(mostMegapixels) * 1000000) {
        throw LessonError(say("A picture of slide %1 would have %2 x %3 pixels, which are more than %4 million")
                              .arg(picture.slide)
                              .arg(size.width())
                              .arg(size.height())
                              .arg(mostMegapixels),
                          say("Ask for a smaller one, such as --width 4000, or write .pdf or .svg"))
            .in(m_target.target());
    }
}

QByteArray SlideFiles::svgOf(const SlidePicture &picture) const
{
    const PageFrame frame = m_settings.size.frameOf(picture.size);
    QHash<QString, QString> size{{QStringLiteral("width"), coordinate(frame.size.width())},
                                 {QStringLiteral("height"), coordinate(frame.size.height())}};
    if (!m_settings.size.isFilled) {
        return m_store.text(picture.svg.documentElement(), size);
    }
    const double factor = picture.size.width() / frame.page.width();
    const QRectF seen(-frame.page.topLeft() * factor, frame.size * factor);
    const QStringList box{coordinate(seen.x()), coordinate(seen.y()), coordinate(seen.width()),
                          coordinate(seen.height())};
    size.insert(QStringLiteral("viewBox"), box.join(QLatin1Char(' ')));
    const QDomElement svg = picture.svg.documentElement().cloneNode().toElement();
    QDomElement paper = svg.firstChildElement(QStringLiteral("rect"));
    const char *const names[] = {"x", "y", "width", "height"};
    for (int i = 0; i < box.size() && !paper.isNull(); ++i) {
        paper.setAttribute(QLatin1String(names[i]), box.at(i));
    }
    return m_store.text(svg, size);
}

void SlideFiles::draw(const SlidePicture &picture, OutputFile &file)
{
    const PageFrame frame = m_settings.size.frameOf(picture.size);
    const QColor ground = m_settings.ground.value_or(Qt::white);
    QImage image(frame.pixels(), ground.alpha() < 255 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const QRectF whole = QRectF(QPointF(), image.size());
    const QRectF page = m_settings.size.isFilled ? QRectF(frame.page.toRect()) : whole;
    const int dotsPerMeter = qRound(page.width() / picture.size.width() * PictureSize::pageDotsPerInch / metersPerInch);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(ground.alpha() < 255 ? Qt::transparent : ground);
    QPainter painter(&image);
    if (ground.alpha() < 255) {
        QPainterPath border;
        border.addRect(whole);
        border.addRect(page);
        painter.fillPath(border, ground);
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipRect(page);
    m_printer.paint(painter, picture, page);
    painter.end();
    file.tellLater();
    const bool isDrawn = !image.isNull()
        && (m_settings.form->kind == PictureForm::Png
                ? writePaintedPng(image, &file)
                : image.save(&file, m_settings.form->name.toLatin1().constData(), photographQuality));
    file.check();
    if (!isDrawn) {
        throw LessonError(say("The picture of slide %1 can't be drawn").arg(picture.slide),
                          say("Ask for a smaller one, such as --width 1000"))
            .in(m_target.target());
    }
}

} // namespace lessonhost
