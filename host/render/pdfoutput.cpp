#include "render/pdfoutput.h"

#include "files/lessonerror.h"
#include "render/slidepictures.h"

#include <QPageSize>

namespace lessonhost {

namespace {

constexpr double pointsPerPixel = 0.75;

} // namespace

PdfOutput::PdfOutput(const QString &path, const QString &title, const RenderSettings &settings,
                     const PictureStore &store)
    : m_settings(settings)
    , m_target(path)
    , m_printer(store)
    , m_writer(&m_target.file())
{
    m_writer.setTitle(title);
    m_writer.setCreator(QStringLiteral("lessonconv"));
    m_writer.setResolution(96);
}

void PdfOutput::add(const SlidePicture &picture)
{
    const PageFrame frame = m_settings.size.frameOf(picture.size);
    m_writer.setPageSize(QPageSize(frame.size * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
    m_writer.setPageMargins(QMarginsF());
    const bool isReady = m_painter.isActive() ? m_writer.newPage() : m_painter.begin(&m_writer);
    m_target.file().check();
    if (!isReady) {
        throw LessonError(QStringLiteral("The pages can't be written"),
                          QStringLiteral("Check that there is room and that you may write there"))
            .in(m_target.target());
    }
    m_printer.paint(m_painter, picture, frame.page);
}

QStringList PdfOutput::finish()
{
    m_painter.end();
    m_target.commit();
    return {m_target.target()};
}

} // namespace lessonhost
