// SPDX-License-Identifier: MIT
#include "render/pdfpages.h"
#include "sentences/sentence.h"

#include <cairo-pdf.h>
#include <librsvg/rsvg.h>

#define POINTERHOLDER_TRANSITION 4
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <cmath>
#include <cstdio>
#include <memory>
#include <stdexcept>

using namespace lessonhost;

// Draws with librsvg on the PDF surface of cairo: texts stay texts with their fonts, lines stay lines, and a picture is
// written once by its name. What cairo can't tell of a document, qpdf adds. None of them is given the name of a file.

namespace {

struct Release
{
    void operator()(cairo_t *context) const { cairo_destroy(context); }
    void operator()(cairo_pattern_t *pattern) const { cairo_pattern_destroy(pattern); }
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
    void operator()(RsvgHandle *drawing) const { g_object_unref(drawing); }
    void operator()(GInputStream *stream) const { g_object_unref(stream); }
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(std::FILE *file) const { std::fclose(file); }
};

template <typename T> using Held = std::unique_ptr<T, Release>;

void check(cairo_status_t status)
{
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(cairo_status_to_string(status));
    }
}

[[noreturn]] void fail(GError *error)
{
    const Held<GError> held(error);
    throw std::runtime_error(error ? error->message : TO_SAY("the drawing isn't understood"));
}

cairo_matrix_t matrixOf(const QTransform &transform)
{
    return {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()};
}

// From an area of that size to a box.
QTransform stretch(const QSizeF &size, const QRectF &box)
{
    return {box.width() / size.width(), 0, 0, box.height() / size.height(), box.x(), box.y()};
}

// True for what a circle stays one under.
bool isUniform(const QTransform &transform)
{
    constexpr double nearly = 1e-3;
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    return qAbs(across - down) < nearly * qMax(across, down);
}

// The bytes live as long as the surface has them.
void attach(cairo_surface_t *surface, const char *type, const QByteArray &bytes)
{
    auto *copy = new QByteArray(bytes);
    const auto release = [](void *held) { delete static_cast<QByteArray *>(held); };
    const cairo_status_t status =
        cairo_surface_set_mime_data(surface, type, reinterpret_cast<const unsigned char *>(copy->constData()),
                                    static_cast<unsigned long>(copy->size()), release, copy);
    if (status != CAIRO_STATUS_SUCCESS) {
        delete copy;
        check(status);
    }
}

// A surface of pixels. One that has a jpeg, or the name of a picture that was written before, is only as large: nobody
// looks at what is on it.
Held<cairo_surface_t> surfaceOf(const PdfPicture &picture)
{
    static const cairo_user_data_key_t pixelsKey{};
    const bool isOpaque = picture.image.isNull() || !picture.image.hasAlphaChannel();
    const cairo_format_t format = isOpaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32;
    Held<cairo_surface_t> surface;
    if (picture.image.isNull()) {
        surface.reset(cairo_image_surface_create(format, picture.size.width(), picture.size.height()));
    } else {
        auto pixels = std::make_unique<QImage>(
            picture.image.convertToFormat(isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied));
        surface.reset(cairo_image_surface_create_for_data(pixels->bits(), format, pixels->width(), pixels->height(),
                                                          int(pixels->bytesPerLine())));
        check(cairo_surface_set_user_data(surface.get(), &pixelsKey, pixels.get(),
                                          [](void *held) { delete static_cast<QImage *>(held); }));
        pixels.release(); // NOLINT(bugprone-unused-return-value): the surface has it
    }
    check(cairo_surface_status(surface.get()));
    if (!picture.name.isEmpty()) {
        attach(surface.get(), CAIRO_MIME_TYPE_UNIQUE_ID, picture.name);
    }
    if (!picture.jpeg.isEmpty()) {
        attach(surface.get(), CAIRO_MIME_TYPE_JPEG, picture.jpeg);
    }
    return surface;
}

// Long texts are no attack, since drawings are bounded before. Photographs in a drawing stay what they are.
constexpr auto drawingFlags = RsvgHandleFlags(RSVG_HANDLE_FLAG_UNLIMITED | RSVG_HANDLE_FLAG_KEEP_IMAGE_DATA);

class CairoPages : public PdfPages
{
public:
    explicit CairoPages(QIODevice &device)
        : m_surface(cairo_pdf_surface_create_for_stream(&CairoPages::write, &device, 1, 1))
    {
        check(cairo_surface_status(m_surface.get()));
        cairo_pdf_surface_set_metadata(m_surface.get(), CAIRO_PDF_METADATA_CREATOR, "lessonconv");
    }
    CairoPages(const CairoPages &) = delete;
    CairoPages &operator=(const CairoPages &) = delete;
    ~CairoPages() override
    {
        // Otherwise it would write on without anybody to take it.
        m_context.reset();
        cairo_surface_finish(m_surface.get());
    }

    void beginPage(const QSizeF &size, const QString &line) override
    {
        m_pageSize = size;
        cairo_pdf_surface_set_size(m_surface.get(), size.width(), size.height());
        m_context.reset(cairo_create(m_surface.get()));
        ++m_page;
        cairo_pdf_surface_add_outline(m_surface.get(), CAIRO_PDF_OUTLINE_ROOT, line.toUtf8().constData(),
                                      QByteArray("page=" + QByteArray::number(m_page) + " pos=[0 0]").constData(),
                                      CAIRO_PDF_OUTLINE_FLAG_OPEN);
        checkPage();
    }

    void drawSvg(const QByteArray &svg, const QRectF &box, const QTransform &transform, double opacity) override
    {
        const Held<GInputStream> stream(g_memory_input_stream_new_from_data(svg.constData(), svg.size(), nullptr));
        GError *error = nullptr;
        const Held<RsvgHandle> drawing(
            rsvg_handle_new_from_stream_sync(stream.get(), nullptr, drawingFlags, nullptr, &error));
        if (!drawing) {
            fail(error);
        }
        QSizeF size = box.size();
        rsvg_handle_get_intrinsic_size_in_pixels(drawing.get(), &size.rwidth(), &size.rheight());
        if (box.isEmpty() || size.isEmpty()) {
            return;
        }
        // A failure spoils what it is drawn on, so it is first drawn where nobody sees it.
        const cairo_rectangle_t extent{0, 0, size.width(), size.height()};
        const Held<cairo_surface_t> trial(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extent));
        const Held<cairo_t> trialContext(cairo_create(trial.get()));
        render(drawing.get(), trialContext.get(), size);
        const QTransform toPage = stretch(size, box) * transform;
        if (isUniform(toPage)) {
            enter(toPage, opacity);
            render(drawing.get(), m_context.get(), size);
            leave(opacity);
        } else {
            renderStretched(drawing.get(), size, toPage, opacity);
        }
    }

    void drawPicture(const PdfPicture &picture, const QRectF &box, const QTransform &transform, double opacity) override
    {
        if (box.isEmpty() || picture.size.isEmpty()) {
            return;
        }
        enter(stretch(picture.size, box) * transform, 1);
        cairo_set_source_surface(m_context.get(), surfaceOf(picture).get(), 0, 0);
        opacity < 1 ? cairo_paint_with_alpha(m_context.get(), opacity) : cairo_paint(m_context.get());
        leave(1);
    }

    void endPage() override
    {
        cairo_show_page(m_context.get());
        checkPage();
        m_context.reset();
    }

    void finish() override
    {
        cairo_surface_finish(m_surface.get());
        check(cairo_surface_status(m_surface.get()));
    }

private:
    static cairo_status_t write(void *device, const unsigned char *bytes, unsigned int size)
    {
        const qint64 written =
            static_cast<QIODevice *>(device)->write(reinterpret_cast<const char *>(bytes), qint64(size));
        return written == qint64(size) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
    }

    static void render(RsvgHandle *drawing, cairo_t *context, const QSizeF &size)
    {
        GError *error = nullptr;
        const RsvgRectangle whole{0, 0, size.width(), size.height()};
        if (!rsvg_handle_render_document(drawing, context, &whole, &error)) {
            fail(error);
        }
        check(cairo_status(context));
    }

    // Under a transform that stretches, texts lose the distances of their letters. So all of it is drawn as large as
    // there is room for, and then stretched as one thing.
    void renderStretched(RsvgHandle *drawing, const QSizeF &size, const QTransform &toPage, double opacity)
    {
        const double scale = qMin(m_pageSize.width() / size.width(), m_pageSize.height() / size.height());
        cairo_push_group(m_context.get());
        cairo_scale(m_context.get(), scale, scale);
        render(drawing, m_context.get(), size);
        const Held<cairo_pattern_t> drawn(cairo_pop_group(m_context.get()));
        enter(QTransform::fromScale(1 / scale, 1 / scale) * toPage, 1);
        cairo_set_source(m_context.get(), drawn.get());
        cairo_paint_with_alpha(m_context.get(), opacity);
        leave(1);
    }

    void enter(const QTransform &transform, double opacity)
    {
        const cairo_matrix_t matrix = matrixOf(transform);
        cairo_save(m_context.get());
        cairo_transform(m_context.get(), &matrix);
        if (opacity < 1) {
            cairo_push_group(m_context.get());
        }
    }

    void leave(double opacity)
    {
        if (opacity < 1) {
            cairo_pop_group_to_source(m_context.get());
            cairo_paint_with_alpha(m_context.get(), opacity);
        }
        cairo_restore(m_context.get());
        checkPage();
    }

    void checkPage()
    {
        check(cairo_status(m_context.get()));
        check(cairo_surface_status(m_surface.get()));
    }

    Held<cairo_surface_t> m_surface;
    Held<cairo_t> m_context; // of the page
    QSizeF m_pageSize;
    int m_page = 0;
};

/*!
 * Writes to a device.
 */
class DevicePipeline : public Pipeline
{
public:
    explicit DevicePipeline(QIODevice &device)
        : Pipeline("the document", nullptr)
        , m_device(device)
    {
    }
    void write(const unsigned char *bytes, std::size_t size) override
    {
        if (m_device.write(reinterpret_cast<const char *>(bytes), qint64(size)) != qint64(size)) {
            throw std::runtime_error(TO_SAY("the document can't be written"));
        }
    }
    void finish() override { }

private:
    QIODevice &m_device;
};

} // namespace

extern "C" Q_DECL_EXPORT PdfPages *lessonMakePdfPages(QIODevice &device)
{
    return new CairoPages(device);
}

extern "C" Q_DECL_EXPORT void lessonCompletePdf(const QByteArray &pagesFile, QIODevice &document, const PdfAbout &about)
{
    const Held<std::FILE> file(std::fopen(pagesFile.constData(), "rbe"));
    if (!file) {
        throw std::runtime_error(TO_SAY("the pages can't be read"));
    }
    QPDF pdf;
    pdf.setSuppressWarnings(true); // cairo names a resource twice where it is used twice
    pdf.processFile("the pages", file.get(), false);
    QPDFObjectHandle root = pdf.getRoot();
    if (!about.language.isEmpty()) {
        root.replaceKey("/Lang", QPDFObjectHandle::newString(about.language.toStdString()));
    }
    root.replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
    root.replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<< /DisplayDocTitle true >>"));
    QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
    info.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(about.title.toStdString()));
    // The same lesson gives the same bytes.
    info.removeKey("/CreationDate");
    DevicePipeline pipeline(document);
    QPDFWriter writer(pdf);
    writer.setOutputPipeline(&pipeline);
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setDeterministicID(true);
    writer.write();
}
