#include "render/pictureoutput.h"

#include "files/lessonerror.h"
#include "render/slidepictures.h"

#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>

namespace lessonhost {

namespace {

const char *const pageHead = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>%1</title>
<style>
body { margin: 2em auto; max-width: 1600px; padding: 0 1em; background: #f4f4f2; font-family: sans-serif; color: #222 }
figure { margin: 0 0 2em } figcaption { margin: .4em 0; color: #555 }
svg { width: 100%; height: auto; background: #fff; box-shadow: 0 1px 6px #0004 }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1em } .losses { color: #a00 } .none { color: #262 }
</style></head><body>
<h1>%1</h1>
)";

constexpr int mostMegapixels = 64; // of a picture, four bytes each
constexpr double pointsPerPixel = 0.75;

// The size of the output: as asked for, or that of the page, made smaller where no picture can be so large.
QSize sizeFor(const SlidePicture &picture, const QSize &asked)
{
    const QSize size = asked.isEmpty() ? picture.size.toSize() : asked;
    return size.boundedTo(QSize(largestSide, largestSide)).expandedTo(QSize(1, 1));
}

// The picture in the middle of a page, its sides in their proportion.
void paint(QPainter &painter, const SlidePicture &picture, const QSizeF &page)
{
    QSvgRenderer renderer(picture.svg);
    const QSizeF size = picture.size.scaled(page, Qt::KeepAspectRatio);
    renderer.render(&painter,
                    QRectF(QPointF((page.width() - size.width()) / 2, (page.height() - size.height()) / 2), size));
}

QString caption(const SlidePicture &picture)
{
    return picture.named.isEmpty()
        ? QStringLiteral("Slide %1").arg(picture.slide)
        : QStringLiteral("Slide %1 (items shown by their name: %2)").arg(picture.slide).arg(picture.named.size());
}

class PdfOutput : public PictureOutput
{
public:
    PdfOutput(const QString &path, const QString &title, const QSize &size)
        : m_target(path)
        , m_size(size)
        , m_writer(&m_target.file())
    {
        m_writer.setTitle(title);
        m_writer.setCreator(QStringLiteral("lessonconv"));
        m_writer.setResolution(96);
    }
    void add(const SlidePicture &picture) override
    {
        const QSize size = sizeFor(picture, m_size);
        m_writer.setPageSize(QPageSize(QSizeF(size) * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
        m_writer.setPageMargins(QMarginsF());
        const bool isReady = m_painter.isActive() ? m_writer.newPage() : m_painter.begin(&m_writer);
        m_target.file().check();
        if (!isReady) {
            throw LessonError(QStringLiteral("The pages can't be written"),
                              QStringLiteral("Check that there is room and that you may write there"))
                .in(m_target.target());
        }
        paint(m_painter, picture, QSizeF(m_writer.width(), m_writer.height()));
    }
    QStringList finish() override
    {
        m_painter.end();
        m_target.commit();
        return {m_target.target()};
    }

private:
    PackageTarget m_target;
    QSize m_size;
    QPdfWriter m_writer;
    QPainter m_painter;
};

class FilesOutput : public PictureOutput
{
public:
    FilesOutput(const QString &pattern, const QSize &size)
        : m_target(pattern, PackageTarget::Files)
        , m_folder(pattern.left(pattern.lastIndexOf(QLatin1Char('/')) + 1))
        , m_name(pattern.mid(m_folder.size()))
        , m_size(size)
        , m_isPng(pattern.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
    {
    }
    void add(const SlidePicture &picture) override
    {
        const QString name = QString(m_name).replace(QLatin1String("%d"), QString::number(picture.slide));
        if (m_files.contains(m_folder + name)) {
            return;
        }
        m_files.append(m_folder + name);
        if (m_isPng) {
            refuseHuge(picture);
        }
        const auto file = m_target.newFile(name);
        if (m_isPng) {
            drawPng(picture, *file);
        } else {
            file->put(picture.svg);
        }
        file->finish();
    }
    QStringList finish() override
    {
        m_target.commit();
        return m_files;
    }

private:
    void refuseHuge(const SlidePicture &picture) const
    {
        const QSize size = sizeFor(picture, m_size);
        if (qint64(size.width()) * size.height() > qint64(mostMegapixels) * 1000000) {
            throw LessonError(
                QStringLiteral("A picture of slide %1 would have %2 x %3 pixels, which are more than %4 million")
                    .arg(picture.slide)
                    .arg(size.width())
                    .arg(size.height())
                    .arg(mostMegapixels),
                QStringLiteral("Ask for a smaller one, such as --size 4000x3000, or write .pdf or .svg"))
                .in(m_target.target());
        }
    }

    void drawPng(const SlidePicture &picture, OutputFile &file) const
    {
        const QSize size = sizeFor(picture, m_size);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        paint(painter, picture, size);
        painter.end();
        const bool isDrawn = !image.isNull() && image.save(&file, "png");
        file.check();
        if (!isDrawn) {
            throw LessonError(QStringLiteral("The picture of slide %1 can't be drawn").arg(picture.slide),
                              QStringLiteral("Ask for a smaller --size"))
                .in(m_target.target());
        }
    }

    PackageTarget m_target;
    QString m_folder; // with the separator at its end
    QString m_name;
    QSize m_size;
    bool m_isPng;
    QStringList m_files;
};

} // namespace

HtmlOutput::HtmlOutput(const QString &path, const QString &title)
    : m_target(path)
{
    addHtml(QString(QLatin1String(pageHead)).replace(QLatin1String("%1"), title.toHtmlEscaped()).toUtf8());
}

void HtmlOutput::add(const SlidePicture &picture)
{
    addHtml("<figure id=\"slide" + QByteArray::number(picture.slide) + "\">\n" + picture.svg + "\n<figcaption>"
            + caption(picture).toHtmlEscaped().toUtf8() + "</figcaption></figure>\n");
}

void HtmlOutput::addHtml(const QByteArray &html)
{
    m_target.file().put(html);
}

QStringList HtmlOutput::finish()
{
    addHtml("</body></html>\n");
    m_target.commit();
    return {m_target.target()};
}

std::unique_ptr<PictureOutput> pictureOutput(const QString &path, const QString &title, const QSize &size,
                                             const QVector<int> &slides)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    if (extension == QLatin1String("html")) {
        return std::make_unique<HtmlOutput>(path, title);
    }
    if (extension == QLatin1String("pdf")) {
        return std::make_unique<PdfOutput>(path, title, size);
    }
    if (extension != QLatin1String("svg") && extension != QLatin1String("png")) {
        throw LessonError(QStringLiteral("Pictures can't be written in this form"),
                          QStringLiteral("Give the output a name in .html, .pdf, .svg or .png"))
            .in(path);
    }
    const int number = path.indexOf(QLatin1String("%d"));
    if (number >= 0 && path.lastIndexOf(QLatin1Char('/')) > number) {
        throw LessonError(QStringLiteral("The pictures of a lesson are written into one folder"),
                          QStringLiteral("Put %d behind the last / in the name"))
            .in(path);
    }
    if (slides.size() > 1 && number < 0) {
        throw LessonError(QStringLiteral("%1 slides don't go into one picture").arg(slides.size()),
                          QStringLiteral("Put %d in the name for the number of the slide, or choose one with --slides"))
            .in(path);
    }
    return std::make_unique<FilesOutput>(path, size);
}

} // namespace lessonhost
