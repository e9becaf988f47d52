// SPDX-License-Identifier: MIT
#include "files/paintedpng.h"

#include <QIODevice>
#include <QImage>

#include <csetjmp>
#include <cstring>
#include <exception>
#include <memory>
#include <type_traits>

#include <libdeflate.h>
#include <png.h>

namespace lessonhost {

namespace {

// At this one, drawings are smaller than with any level of zlib but the last, in a third of the time that most of them
// take; higher ones take twice as long.
constexpr int packingLevel = 6;
// Larger pictures are packed line by line, by zlib.
constexpr qint64 mostPackedPixels = qint64(4) * 1024 * 1024;
// The next level makes drawings smaller by a fiftieth and takes a tenth longer.
constexpr int levelOfLines = 5;
constexpr int bytesAtOnce = 64 * 1024; // of more, Qt would make pieces for threads of its own

bool isNear(QRgb pixel, QRgb other)
{
    constexpr int near = 8;
    return qAbs(qRed(pixel) - qRed(other)) <= near && qAbs(qGreen(pixel) - qGreen(other)) <= near
        && qAbs(qBlue(pixel) - qBlue(other)) <= near && qAbs(qAlpha(pixel) - qAlpha(other)) <= near;
}

// Whether colours go over into each other, as in photographs. Lines and letters have hard edges.
bool isShaded(const QImage &image)
{
    constexpr int step = 4; // a line in so many tells enough
    const int width = image.width();
    qint64 edges = 0;
    qint64 soft = 0;
    for (int y = 0; y < image.height(); y += step) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 1; x < width; ++x) {
            if (line[x] != line[x - 1]) {
                ++edges;
                soft += isNear(line[x], line[x - 1]) ? 1 : 0;
            }
        }
    }
    return 2 * soft > edges;
}

// Some lines as they stand in a file, one behind the other.
QImage linesOf(const QImage &image, int begin, int count, bool hasAlpha)
{
    return QImage(image.constScanLine(begin), image.width(), count, image.bytesPerLine(), image.format())
        .convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
}

int linesAtOnce(const QImage &image)
{
    return qMax(1, bytesAtOnce / int(image.bytesPerLine()));
}

// All lines, packed, each behind the number of its filter, which is none. Empty where there is no memory.
QByteArray packedLines(const QImage &image, bool hasAlpha)
{
    const int size = image.width() * (hasAlpha ? 4 : 3);
    QByteArray lines(image.height() * (size + 1), Qt::Uninitialized);
    char *place = lines.data();
    for (int y = 0; y < image.height(); y += linesAtOnce(image)) {
        const QImage part = linesOf(image, y, qMin(linesAtOnce(image), image.height() - y), hasAlpha);
        for (int i = 0; i < part.height(); ++i) {
            *place++ = PNG_FILTER_VALUE_NONE;
            std::memcpy(place, part.constScanLine(i), std::size_t(size));
            place += size;
        }
    }
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(packingLevel), libdeflate_free_compressor);
    if (!compressor) {
        return {};
    }
    QByteArray packed(int(libdeflate_zlib_compress_bound(compressor.get(), std::size_t(lines.size()))),
                      Qt::Uninitialized);
    packed.truncate(int(libdeflate_zlib_compress(compressor.get(), lines.constData(), std::size_t(lines.size()),
                                                 packed.data(), std::size_t(packed.size()))));
    return packed;
}

/*!
 * Writes a picture by libpng, without filters. Where libpng fails, it jumps out of what it was asked
 * for: nothing on the way there may have a destructor, and nothing may be thrown through it.
 */
class PngWriter
{
public:
    explicit PngWriter(QIODevice *device)
        : m_device(device)
        , m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore))
        , m_info(m_png ? png_create_info_struct(m_png) : nullptr)
    {
    }
    PngWriter(const PngWriter &) = delete;
    PngWriter &operator=(const PngWriter &) = delete;
    ~PngWriter() { png_destroy_write_struct(&m_png, &m_info); }

    //! False if it can't be written.
    bool write(const QImage &image, bool hasAlpha)
    {
        if (!m_info || !guarded([&] { begin(image, hasAlpha); })) {
            return false;
        }
        const bool isSmall = qint64(image.width()) * image.height() <= mostPackedPixels;
        return isSmall ? writePacked(packedLines(image, hasAlpha)) : writeByLines(image, hasAlpha);
    }

private:
    bool writePacked(const QByteArray &packed)
    {
        return !packed.isEmpty() && guarded([&] {
            png_write_chunk(m_png, reinterpret_cast<const png_byte *>("IDAT"),
                            reinterpret_cast<const png_byte *>(packed.constData()), png_size_t(packed.size()));
            png_write_chunk(m_png, reinterpret_cast<const png_byte *>("IEND"), nullptr, 0);
        });
    }

    bool writeByLines(const QImage &image, bool hasAlpha)
    {
        for (int y = 0; y < image.height(); y += linesAtOnce(image)) {
            const QImage part = linesOf(image, y, qMin(linesAtOnce(image), image.height() - y), hasAlpha);
            if (part.isNull() || !guarded([&] { writeLines(part); })) {
                return false;
            }
        }
        return guarded([&] { png_write_end(m_png, nullptr); });
    }

    template <typename Work> bool guarded(Work work)
    {
        static_assert(std::is_trivially_destructible_v<Work>);
        if (setjmp(png_jmpbuf(m_png)) != 0) {
            if (m_failure) {
                std::rethrow_exception(m_failure);
            }
            return false;
        }
        work();
        return true;
    }

    void begin(const QImage &image, bool hasAlpha)
    {
        constexpr int bits = 8;
        png_set_write_fn(m_png, this, put, flush);
        png_set_IHDR(m_png, m_info, png_uint_32(image.width()), png_uint_32(image.height()), bits,
                     hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_pHYs(m_png, m_info, png_uint_32(image.dotsPerMeterX()), png_uint_32(image.dotsPerMeterY()),
                     PNG_RESOLUTION_METER);
        png_set_filter(m_png, PNG_FILTER_TYPE_DEFAULT, PNG_FILTER_NONE);
        png_set_compression_level(m_png, levelOfLines);
        png_write_info(m_png, m_info);
    }

    void writeLines(const QImage &lines)
    {
        for (int y = 0; y < lines.height(); ++y) {
            png_write_row(m_png, lines.constScanLine(y));
        }
    }

    bool give(const char *bytes, qint64 size) noexcept
    {
        try {
            return m_device->write(bytes, size) == size;
        } catch (...) {
            m_failure = std::current_exception();
            return false;
        }
    }

    static void put(png_struct *png, png_byte *bytes, png_size_t size)
    {
        auto *const self = static_cast<PngWriter *>(png_get_io_ptr(png));
        if (!self->give(reinterpret_cast<const char *>(bytes), qint64(size))) {
            png_error(png, "");
        }
    }

    static void flush(png_struct *) { }

    [[noreturn]] static void fail(png_struct *png, const char *) { png_longjmp(png, 1); }

    static void ignore(png_struct *, const char *) { }

    QIODevice *m_device;
    png_struct *m_png;
    png_info *m_info;
    std::exception_ptr m_failure; // of the device
};

} // namespace

bool writePaintedPng(const QImage &image, QIODevice *device)
{
    const bool hasAlpha =
        image.format() == QImage::Format_ARGB32_Premultiplied || image.format() == QImage::Format_ARGB32;
    const bool isKnown = hasAlpha || image.format() == QImage::Format_RGB32;
    // Shading needs filters, which Qt chooses.
    if (!isKnown || isShaded(image)) {
        return image.save(device, "png");
    }
    return PngWriter(device).write(image, hasAlpha);
}

} // namespace lessonhost
