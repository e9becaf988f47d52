// SPDX-License-Identifier: MIT
#include "files/pictures.h"

#include "files/checksum.h"
#include "files/inputfile.h"
#include "files/packagenames.h"

#include <KCompressionDevice>

#include <QBuffer>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

// As wide and high as a picture needs to be on any screen.
constexpr qint64 mostPixels = qint64(16384) * 16384;
// A drawing of more text is none that anybody drew.
constexpr qint64 largestDrawing = qint64(32) * 1024 * 1024;
// Drawings that stand in each other.
constexpr int mostDepth = 3;
constexpr int largestSideOfDrawing = 4096;

// What a picture takes beside its pixels, and for each; one that takes more is written anew.
constexpr qint64 mostBytesBeside = 65536;
constexpr qint64 mostBytesOfPixel = 8;

// A file of more bytes is no picture that could be unpacked.
constexpr qint64 largestPicture = PixelBudget::all * mostBytesOfPixel;

// Of photographs that are written anew.
constexpr int jpegQuality = 92;

// However many pictures there are, each has so many pixels or is left out.
constexpr qint64 leastShare = qint64(128) * 128;

// What is known to open nothing. Other readers of pictures that a machine may have start programs or follow names.
constexpr const char *const knownFormats[] = {"png", "jpeg", "gif", "bmp",  "ico",  "ppm",
                                              "pgm", "pbm",  "xbm", "webp", "tiff", "tif"};

// Nothing but a plain file is waited for or read.
std::unique_ptr<QIODevice> openedFile(const QString &path)
{
    if (QFileInfo(path).isSymLink()) {
        return nullptr;
    }
    try {
        return std::make_unique<InputFile>(path);
    } catch (const LessonError &error) {
        if (error.isOfMachine() && QFileInfo(path).isFile()) {
            throw;
        }
        return nullptr;
    }
}

// A disk that fails says nothing about the picture.
void checkDevice(const QIODevice *device)
{
    if (const auto *file = dynamic_cast<const InputFile *>(device)) {
        file->check();
    }
}

std::unique_ptr<QIODevice> inMemory(const QByteArray &content)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(content);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

// The text of a drawing that is packed, up to a size.
QByteArray unpacked(QIODevice &device, qint64 size)
{
    device.seek(0);
    KCompressionDevice packed(&device, false, KCompressionDevice::GZip);
    return packed.open(QIODevice::ReadOnly) ? packed.read(size) : QByteArray();
}

bool isPacked(QIODevice &device)
{
    device.seek(0);
    return device.peek(2) == "\x1f\x8b";
}

bool isDrawing(QIODevice &device)
{
    constexpr int enough = 4096;
    if (isPacked(device)) {
        return unpacked(device, enough).contains("<svg");
    }
    return device.peek(enough).contains("<svg");
}

// The file beside a drawing or below that a reference in it means, or nothing.
QString fileBeside(const QString &folder, const QString &reference)
{
    const QString path = QUrl::fromPercentEncoding(reference.toUtf8());
    if (folder.isEmpty() || !problemWithPackagePath(path).isEmpty()) {
        return {};
    }
    QString place = folder;
    for (const QString &part : path.split(QLatin1Char('/'))) {
        place += QLatin1Char('/') + part;
        if (QFileInfo(place).isSymLink()) {
            return {};
        }
    }
    return place;
}

QByteArray embedded(const QString &address)
{
    const int comma = address.indexOf(QLatin1Char(','));
    const QByteArray data = QByteArray::fromPercentEncoding(address.mid(comma + 1).toUtf8());
    return address.leftRef(comma).contains(QLatin1String("base64"), Qt::CaseInsensitive) ? QByteArray::fromBase64(data)
                                                                                         : data;
}

qint64 pixelsOf(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

// The size in its proportion, with at most so many pixels.
QSize sizeOf(const QSize &size, qint64 most)
{
    const double factor = std::sqrt(double(most) / double(qMax<qint64>(1, pixelsOf(size))));
    return (factor < 1 ? QSizeF(size) * factor : QSizeF(size)).toSize().expandedTo(QSize(1, 1));
}

QImage drawn(const QByteArray &svg, qint64 most)
{
    QSvgRenderer renderer(svg);
    const QSize wanted = renderer.defaultSize();
    if (!renderer.isValid() || wanted.isEmpty()) {
        return {};
    }
    const QSize largest(largestSideOfDrawing, largestSideOfDrawing);
    const QSize size = wanted.boundedTo(largest) == wanted ? wanted : wanted.scaled(largest, Qt::KeepAspectRatio);
    QImage image(sizeOf(size, most), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

// Whether all parts of a PNG picture are there and hold what they held. Its decoder complains aloud about others.
bool isWholePng(QIODevice &file)
{
    if (!file.seek(8)) {
        return false;
    }
    forever
    {
        const QByteArray head = file.read(8);
        if (head.size() < 8) {
            return false;
        }
        const auto size = qint64(qFromBigEndian<quint32>(head.constData()));
        if (size > file.size() - file.pos() - 4) {
            return false;
        }
        const QByteArray type = head.mid(4);
        const QByteArray content = file.read(size);
        const QByteArray sum = file.read(4);
        if (sum.size() < 4 || qFromBigEndian<quint32>(sum.constData()) != updatedCrc(0, type + content)) {
            return false;
        }
        if (type == "IEND") {
            return true;
        }
    }
}

} // namespace

qint64 PixelBudget::shareFor(qint64 pixels) const
{
    return m_left < leastShare || m_unpackedLeft < pixels ? 0 : qMax(m_left / 8, leastShare);
}

void PixelBudget::take(qint64 pixels, qint64 drawn)
{
    m_unpackedLeft -= pixels;
    m_left -= drawn;
}

Picture::Picture(const QString &file)
    : m_device(openedFile(file))
    , m_folder(QFileInfo(file).path())
{
    look();
}

Picture::Picture(const QByteArray &content, const QString &folder, int depth)
    : m_device(inMemory(content))
    , m_folder(folder)
    , m_depth(depth)
{
    look();
}

void Picture::look()
{
    if (!m_device) {
        m_problem = say("it can't be read");
        return;
    }
    findProblem();
    checkDevice(m_device.get());
}

void Picture::findProblem()
{
    // By its content, whatever it is called.
    const QByteArray format = QImageReader(m_device.get()).format();
    if (format.startsWith("svg") || isDrawing(*m_device)) {
        m_format = "svg";
        return;
    }
    if (std::none_of(std::begin(knownFormats), std::end(knownFormats),
                     [&format](const char *known) { return format == known; })) {
        m_problem = say("it is no picture that can be read");
        return;
    }
    if (m_device->size() > largestPicture) {
        m_problem = say("it is a larger picture than can be read");
        return;
    }
    m_format = format;
    // Libraries that unpack pictures complain aloud about a file that can't be read to its end.
    m_device = inMemory(content());
    if (format == "png" && !isWholePng(*m_device)) {
        m_problem = say("it is a damaged picture");
        return;
    }
    if (pixelsOf(size()) > mostPixels) {
        m_problem = say("it has more pixels than any screen");
    }
}

Sentence Picture::drawingProblem() const
{
    if (m_format != "svg") {
        return {};
    }
    PixelBudget budget;
    if (const auto svg = readDrawing(budget)) {
        return svg->isEmpty ? say("it is a drawing with nothing in it") : Sentence();
    }
    return qMax<qint64>(m_device->size(), drawingText().size()) > largestDrawing
        ? say("it is a larger drawing than can be read")
        : say("it is a damaged picture");
}

QSize Picture::size() const
{
    if (m_format.isEmpty()) {
        return {};
    }
    if (m_format == "svg") {
        PixelBudget budget;
        const auto svg = readDrawing(budget);
        return svg ? QSvgRenderer(svg->text).defaultSize() : QSize();
    }
    m_device->seek(0);
    return QImageReader(m_device.get(), m_format).size();
}

QImage Picture::image(qint64 most) const
{
    PixelBudget budget;
    return image(most, budget);
}

// budget is what the pictures in a drawing may have.
QImage Picture::image(qint64 most, PixelBudget &budget) const
{
    if (!m_problem.isEmpty()) {
        return {};
    }
    if (m_format == "svg") {
        const auto svg = readDrawing(budget);
        return svg ? drawn(svg->text, most) : QImage();
    }
    m_device->seek(0);
    QImageReader reader(m_device.get(), m_format);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const bool isScaled = pixelsOf(size) > most;
    if (isScaled && reader.supportsOption(QImageIOHandler::ScaledSize)) {
        reader.setScaledSize(sizeOf(size, most));
    } else if (pixelsOf(size) > PixelBudget::all) {
        // All of it would be unpacked before it is made smaller.
        return {};
    }
    const QImage image = reader.read();
    return pixelsOf(image.size()) > most
        ? image.scaled(sizeOf(image.size(), most), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        : image;
}

QByteArray Picture::content() const
{
    m_device->seek(0);
    const QByteArray bytes = m_device->readAll();
    checkDevice(m_device.get());
    return bytes;
}

// Photographs tell how the camera was held, and not every viewer asks.
bool Picture::isTurned() const
{
    m_device->seek(0);
    return QImageReader(m_device.get(), m_format).transformation() != QImageIOHandler::TransformationNone;
}

qint64 Picture::unpackedPixels() const
{
    return m_format == "svg" ? 1 : pixelsOf(size());
}

ShownPicture Picture::shown(qint64 most, PixelBudget &inner) const
{
    const QImage picture = most > 0 ? image(most, inner) : QImage();
    if (picture.isNull()) {
        return {};
    }
    ShownPicture result{m_format, {}, picture.size()};
    const qint64 pixels = unpackedPixels();
    const bool isKnown = m_format == "png" || m_format == "jpeg" || m_format == "gif";
    if (isKnown && pixels <= most && m_device->size() <= mostBytesBeside + pixels * mostBytesOfPixel && !isTurned()) {
        result.bytes = content();
    } else {
        result.type = m_format == "jpeg" ? "jpeg" : "png";
        QBuffer buffer(&result.bytes);
        buffer.open(QIODevice::WriteOnly);
        if (!picture.save(&buffer, result.type.constData(), m_format == "jpeg" ? jpegQuality : -1)) {
            throw packingError();
        }
    }
    return result;
}

QString Picture::address(PixelBudget &budget) const
{
    const qint64 pixels = unpackedPixels();
    const ShownPicture picture = shown(budget.shareFor(pixels), budget);
    if (picture.type.isEmpty()) {
        return {};
    }
    budget.take(pixels, pixelsOf(picture.size));
    return lessonhost::addressOf(picture);
}

QByteArray Picture::fingerprint() const
{
    if (!m_device) {
        return {};
    }
    m_device->seek(0);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(m_device.get());
    checkDevice(m_device.get());
    return hash.result();
}

QByteArray Picture::drawingText() const
{
    if (m_format != "svg") {
        return {};
    }
    if (isPacked(*m_device)) {
        return unpacked(*m_device, largestDrawing + 1);
    }
    return m_device->size() <= largestDrawing ? content() : QByteArray();
}

ClosedSvg Picture::drawing() const
{
    PixelBudget budget;
    return drawing(budget);
}

ClosedSvg Picture::drawing(PixelBudget &budget) const
{
    const QByteArray text = drawingText();
    if (text.isEmpty() || text.size() > largestDrawing) {
        throw LessonError(say("This is no drawing in svg of at most %1 MiB").arg(largestDrawing / 1024 / 1024),
                          say("Check the file"));
    }
    return closedSvg(text, QStringLiteral("svg"),
                     [&](const QString &reference) { return addressOf(reference, budget); });
}

// Nothing for what is no drawing that can be read.
std::optional<ClosedSvg> Picture::readDrawing(PixelBudget &budget) const
{
    try {
        return drawing(budget);
    } catch (const LessonError &error) {
        checkDevice(m_device.get());
        if (error.isOfMachine()) {
            throw;
        }
        return std::nullopt;
    }
}

QString Picture::addressOf(const QString &reference, PixelBudget &budget) const
{
    if (m_depth >= mostDepth) {
        return {};
    }
    if (isEmbedded(reference)) {
        return Picture(embedded(reference), {}, m_depth + 1).address(budget);
    }
    const QString path = fileBeside(m_folder, reference);
    const auto file = path.isEmpty() ? nullptr : openedFile(path);
    return file ? Picture(file->readAll(), QFileInfo(path).path(), m_depth + 1).address(budget) : QString();
}

QString addressOf(const ShownPicture &picture)
{
    return picture.type.isEmpty() ? QString()
                                  : QString(QLatin1String("data:image/") + QLatin1String(picture.type)
                                            + QLatin1String(";base64,") + QLatin1String(picture.bytes.toBase64()));
}

bool isEmbedded(const QString &reference)
{
    return reference.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
}

QString embeddedPicture(const QString &address, PixelBudget &budget)
{
    return Picture(embedded(address), {}, 1).address(budget);
}

QSize embeddedSize(const QString &address)
{
    const Picture picture(embedded(address), {}, 1);
    return picture.problem().isEmpty() ? picture.size() : QSize();
}

Sentence pictureProblem(const QString &file)
{
    return Picture(file).problem();
}

LessonError packingError(const QString &path)
{
    return LessonError(path.isEmpty() ? say("A picture can't be packed")
                                      : say("The picture \"%1\" can't be packed").arg(path),
                       say("Check that there is enough memory"))
        .ofMachine();
}

} // namespace lessonhost
