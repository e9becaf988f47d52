// SPDX-License-Identifier: MIT
#include "render/pdfoutput.h"

#include "canvas/picturestore.h"
#include "files/lessonerror.h"
#include "render/pdflibrary.h"
#include "render/slidelayers.h"
#include "render/slidepictures.h"
#include "threads/startedthread.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace lessonhost {

namespace {

constexpr double pointsPerPixel = 72 / PictureSize::pageDotsPerInch;
constexpr double largestDrawing = 2048; // in pixels, where it can't stay what it is
const QLatin1String pagesName("/pages.pdf");

} // namespace

PdfOutput::PdfOutput(const QString &path, const QString &title, const RenderSettings &settings,
                     const PictureStore &store)
    : m_settings(settings)
    , m_store(store)
    , m_title(title)
    , m_target(path)
{
    const PdfLibrary &library = PdfLibrary::instance();
    m_pagesFile = std::make_unique<OutputFile>(m_target.workFolder() + pagesName, m_target.target());
    work([&] { m_pages.reset(library.makePages(*m_pagesFile)); });
}

PdfOutput::~PdfOutput() = default;

// What a library is told by the disk is told as such.
void PdfOutput::work(const std::function<void()> &step)
{
    try {
        step();
    } catch (const LessonError &) {
        throw;
    } catch (const std::exception &error) {
        m_pagesFile->check();
        m_target.file().check();
        throw LessonError(say("The pages can't be drawn: %1").arg(say(error.what()))).in(m_target.target());
    }
}

void PdfOutput::add(const SlidePicture &picture)
{
    m_language.add(picture.language);
    checkThreads();
    work([&] { draw(picture); });
}

// What looks for fonts there starts a thread each time, and ends the process where it gets none.
void PdfOutput::checkThreads() const
{
    std::thread thread = startedThread([] {});
    if (!thread.joinable()) {
        throw LessonError(say("The pages can't be drawn: %1").arg(say("the system allows no more threads")),
                          say("Try again when less is running, or raise the limit"))
            .in(m_target.target())
            .ofMachine();
    }
    thread.join();
}

void PdfOutput::draw(const SlidePicture &picture)
{
    const PageFrame frame = m_settings.size.frameOf(picture.size);
    const QTransform toPoints = QTransform::fromScale(pointsPerPixel, pointsPerPixel);
    m_pages->beginPage(frame.size * pointsPerPixel, picture.outlineLine().english());
    const QTransform toPage =
        QTransform::fromScale(frame.page.width() / picture.size.width(), frame.page.height() / picture.size.height())
        * QTransform::fromTranslate(frame.page.x(), frame.page.y()) * toPoints;
    const QVector<SlideLayer> layers = layersOf(picture.svg.documentElement(), m_store);
    for (const SlideLayer &layer : layers) {
        if (!layer.picture.isNone()) {
            draw(layer.picture, toPage);
        } else {
            drawLines(layer.svg, layer.box, layer.transform * toPage, 1);
        }
    }
    m_pages->endPage();
}

// Lines that one library has no place for, such as those of sizes beyond all numbers, are drawn as pixels by another.
void PdfOutput::drawLines(const QByteArray &svg, const QRectF &box, const QTransform &toPage, double opacity)
{
    try {
        m_pages->drawSvg(svg, box, toPage, opacity);
    } catch (const std::exception &) {
        m_pagesFile->check();
        if (box.isEmpty()) {
            return;
        }
        QImage image(box.size().scaled(largestDrawing, largestDrawing, Qt::KeepAspectRatio).toSize().expandedTo({1, 1}),
                     QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QSvgRenderer(svg).render(&painter);
        painter.end();
        m_pages->drawPicture({{}, image.size(), {}, image}, box, toPage, opacity);
    }
}

void PdfOutput::draw(const PlacedPicture &picture, const QTransform &toPage)
{
    const QTransform transform = picture.transform * toPage;
    if (picture.name.isEmpty()) {
        m_pages->drawPicture({{}, picture.image.size(), {}, picture.image}, picture.box, transform, picture.opacity);
        return;
    }
    if (m_store.isDrawing(picture.name)) {
        drawLines(m_store.drawing(picture.name), picture.box, transform, picture.opacity);
        return;
    }
    PdfPicture shown{picture.name.toLatin1(), m_store.size(picture.name), {}, {}};
    if (!m_written.contains(picture.name)) {
        const ShownPicture content = m_store.shown(picture.name);
        if (content.type == "jpeg") {
            shown.jpeg = content.bytes;
        } else {
            shown.image = m_store.image(picture.name);
        }
        m_written.insert(picture.name);
    }
    m_pages->drawPicture(shown, picture.box, transform, picture.opacity);
}

QStringList PdfOutput::finish()
{
    work([&] {
        m_pages->finish();
        m_pagesFile->finish();
        PdfLibrary::instance().complete(QFile::encodeName(m_target.workFolder() + pagesName), m_target.file(),
                                        {m_title, m_language.code()});
    });
    m_target.commit();
    return {m_target.target()};
}

} // namespace lessonhost
