// SPDX-License-Identifier: MIT
#include "files/paintedpng.h"

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QtEndian>

#include <cstring>
#include <memory>

#include <libdeflate.h>

namespace lessonhost {

namespace {

// At this one, drawings are smaller than with any level of zlib but the last, and higher ones take twice as long.
constexpr int packingLevel = 6;
// Larger ones would be twice in memory.
constexpr qint64 mostPackedPixels = qint64(16) * 1024 * 1024;

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

QByteArray number32(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

// A piece of the file: its length, its name and what is in it, and a sum of the last two.
void putPiece(QIODevice *device, const QByteArray &name, const QByteArray &content)
{
    device->write(number32(quint32(content.size())) + name);
    device->write(content);
    const quint32 sum = libdeflate_crc32(0, name.constData(), size_t(name.size()));
    device->write(number32(libdeflate_crc32(sum, content.constData(), size_t(content.size()))));
}

// The pixels as they stand in the file: each line behind the number of its filter, which is none.
QByteArray linesOf(const QImage &image, bool hasAlpha)
{
    constexpr int bytesAtOnce = 64 * 1024; // of more, Qt would make pieces for threads of its own
    const int linesAtOnce = qMax(1, bytesAtOnce / int(image.bytesPerLine()));
    const int size = image.width() * (hasAlpha ? 4 : 3);
    QByteArray lines(image.height() * (size + 1), Qt::Uninitialized);
    char *place = lines.data();
    for (int y = 0; y < image.height(); y += linesAtOnce) {
        const int count = qMin(linesAtOnce, image.height() - y);
        const QImage part = QImage(image.constScanLine(y), image.width(), count, image.bytesPerLine(), image.format())
                                .convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
        for (int i = 0; i < count; ++i) {
            *place++ = 0;
            std::memcpy(place, part.constScanLine(i), size_t(size));
            place += size;
        }
    }
    return lines;
}

QByteArray packed(const QByteArray &lines)
{
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(packingLevel), libdeflate_free_compressor);
    if (!compressor) {
        return {};
    }
    QByteArray result(int(libdeflate_zlib_compress_bound(compressor.get(), size_t(lines.size()))), Qt::Uninitialized);
    const size_t size = libdeflate_zlib_compress(compressor.get(), lines.constData(), size_t(lines.size()),
                                                 result.data(), size_t(result.size()));
    result.truncate(int(size));
    return result;
}

} // namespace

bool writePaintedPng(const QImage &image, QIODevice *device)
{
    const bool hasAlpha =
        image.format() == QImage::Format_ARGB32_Premultiplied || image.format() == QImage::Format_ARGB32;
    const bool isKnown = hasAlpha || image.format() == QImage::Format_RGB32;
    // Shading needs filters, which the library of Qt has.
    if (!isKnown || qint64(image.width()) * image.height() > mostPackedPixels || isShaded(image)) {
        return image.save(device, "png");
    }
    const QByteArray pixels = packed(linesOf(image, hasAlpha));
    if (pixels.isEmpty()) {
        return false;
    }
    constexpr char bits = 8;
    constexpr char withAlpha = 6;
    constexpr char colors = 2;
    const char form[] = {bits, hasAlpha ? withAlpha : colors, 0, 0, 0}; // the last three: as usual
    constexpr char perMeter = 1;
    device->write("\x89PNG\r\n\x1a\n");
    putPiece(device, "IHDR",
             number32(quint32(image.width())) + number32(quint32(image.height())) + QByteArray(form, sizeof form));
    putPiece(device, "pHYs",
             number32(quint32(image.dotsPerMeterX())) + number32(quint32(image.dotsPerMeterY()))
                 + QByteArray(1, perMeter));
    putPiece(device, "IDAT", pixels);
    putPiece(device, "IEND", {});
    return true;
}

} // namespace lessonhost
