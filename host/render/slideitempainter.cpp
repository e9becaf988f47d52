// SPDX-License-Identifier: MIT
#include "render/slideitempainter.h"

#include "canvas/plainoutlines.h"
#include "canvas/plainsvg.h"
#include "canvas/surelyseen.h"
#include "drawings/drawings.h"
#include "files/domtools.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "render/drawntexts.h"
#include "render/slidepictures.h"

#include <QPainter>

#include <cmath>
#include <cstring>
#include <vector>

namespace lessonhost {

namespace {

constexpr double sharpness = 2; // pixels for each of the page
constexpr double overview = 0.5; // the same, to find where an item is
constexpr double largestPicture = 16384;

IwbItemWriter::Setting paintedSetting(IZQTransformation *plugin, IwbMedia *media)
{
    IwbItemWriter::Setting setting;
    setting.plugin = plugin;
    setting.media = media;
    setting.keepsLinks = false;
    return setting;
}

QRect paintedRect(const QImage &image)
{
    const int width = image.width();
    const std::vector<QRgb> nothing(std::size_t(width), 0);
    QPoint first(width, -1);
    QPoint last(-1, -1);
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        // Most lines are empty, which is told of one as a whole.
        if (std::memcmp(line, nothing.data(), nothing.size() * sizeof(QRgb)) == 0) {
            continue;
        }
        int left = 0;
        while (left < width && qAlpha(line[left]) == 0) {
            ++left;
        }
        if (left == width) {
            continue;
        }
        // Only what is further right than on the lines above makes a difference.
        int right = width - 1;
        while (right > last.x() && qAlpha(line[right]) == 0) {
            --right;
        }
        first = QPoint(qMin(first.x(), left), first.y() < 0 ? y : first.y());
        last = QPoint(right, y);
    }
    return QRect(first, last);
}

QRect aligned(const QRect &rect, int step)
{
    const QPoint corner(rect.left() / step * step, rect.top() / step * step);
    const QPoint end((rect.right() / step + 1) * step, (rect.bottom() / step + 1) * step);
    return rect.isEmpty() ? QRect() : QRect(corner, end - QPoint(1, 1));
}

} // namespace

SlideItemPainter::SlideItemPainter(LessonReader &reader, IZQTransformation *plugin, bool isTrial)
    : m_reader(reader)
    , m_plugin(plugin)
    , m_isTrial(isTrial)
    , m_printer(m_store)
    , m_pages(paintedSetting(plugin, &m_media))
{
    const QStringList files = reader.resources();
    for (const QString &file : files) {
        m_media.add(file, reader.resourceFile(file));
    }
}

QImage SlideItemPainter::thumbnail(int width)
{
    if (m_reader.slideCount() == 0) {
        return {};
    }
    LessonContext context;
    context.plugin = m_plugin;
    SlidePictures pictures(m_reader, context, m_store);
    pictures.sayInEnglish();
    const SlidePicture picture = pictures.picture(0);
    QImage image(width, qBound(1, qRound(width * picture.size.height() / picture.size.width()), 4 * width),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    m_printer.paint(painter, picture, QRectF(QPointF(), image.size()));
    return image;
}

// One document takes the elements of all items that are drawn as IWB shows them. What they leave in it goes.
void SlideItemPainter::startPage(const QSizeF &page)
{
    if (m_pages.document().isNull() || page != m_page) {
        m_page = page;
        m_pages.start(
            {{PresentationKeys::width, exactText(page.width())}, {PresentationKeys::height, exactText(page.height())}},
            {});
        return;
    }
    QDomElement root = m_pages.document().documentElement();
    takeElements(root, root.firstChildElement(QStringLiteral("svg:svg")).nextSiblingElement());
}

std::optional<PaintedItem> SlideItemPainter::paint(const PlacedItem &item, const QVector<PlacedItem> &rubbing,
                                                   const QSizeF &page, Form form)
{
    const auto draw = [&](PlainSvg &plain, Drawings &drawings) {
        for (const PlacedItem &rubbed : rubbing) {
            drawings.rubOut(rubbed.item, rubbed.placed);
        }
        const PlainSvg::Scope scope(plain, item.placed);
        return drawings.draw(item.item);
    };
    return painted(draw, page, form);
}

std::optional<PaintedItem> SlideItemPainter::paintGame(const LessonSlide &slide, const QSizeF &page)
{
    const auto draw = [&slide](PlainSvg &, Drawings &drawings) {
        drawings.drawGame(slide.properties, shownItems(slide.items));
        return true;
    };
    return painted(draw, page, Picture);
}

// Nothing to paint on, in the same memory each time: asking the system for more takes longer than painting does.
QImage SlideItemPainter::canvas(const QSize &size)
{
    const int line = size.width() * int(sizeof(QRgb));
    if (m_pixels.size() < line * size.height()) {
        m_pixels = QByteArray(line * size.height(), Qt::Uninitialized);
    }
    QImage image(reinterpret_cast<uchar *>(m_pixels.data()), size.width(), size.height(), line,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// First where it is, in an area larger than the page, then what it is.
std::optional<PaintedItem>
SlideItemPainter::painted(const std::function<bool(PlainSvg &plain, Drawings &drawings)> &draw, const QSizeF &page,
                          Form form)
{
    startPage(page);
    PlainSvg plain(page, m_media, m_store, Qt::transparent);
    plain.sayInEnglish();
    if (form == Elements) {
        plain.setForElements();
    }
    Drawings drawings(plain, m_pages, m_media);
    const bool isItself = draw(plain, drawings);
    m_media.takeAdditions(); // nobody stores them
    // A box with the name of an item isn't the item.
    const bool mayBeElements = form != Picture && isItself;
    if (form == Elements && (!mayBeElements || plain.isInVain())) {
        return {};
    }
    const QDomElement sketch = plain.sketch();
    if (!sketch.hasChildNodes()) {
        return {};
    }
    const auto elements = mayBeElements ? plainOutlines(sketch, plain.shapes()) : QVector<PlainElement>();
    if (form == Elements && elements.isEmpty()) {
        return {};
    }
    const DrawnTexts texts = DrawnTexts::of(sketch);
    if (!elements.isEmpty()) {
        return PaintedItem{elements, {}, {}, texts.words, texts.families};
    }

    SlidePicture drawn;
    drawn.size = page;
    drawn.svg = plain.finished();
    const auto paintedArea = [&](const QRectF &area, double scale) {
        const QSizeF size = area.size() * scale;
        QImage image = canvas(QSizeF(qBound(1.0, std::ceil(size.width()), largestPicture),
                                     qBound(1.0, std::ceil(size.height()), largestPicture))
                                  .toSize());
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        m_printer.paint(painter, drawn, QRectF(-area.topLeft() * scale, page * scale));
        return image;
    };
    const QSizeF half = page / 2;
    const QRectF around = QRectF(QPointF(), page).adjusted(-half.width(), -half.height(), half.width(), half.height());
    // The pixels of larger pages are bounded, so that not all of them can be seen.
    if (m_isTrial && 2 * sharpness * qMax(page.width(), page.height()) <= largestPicture
        && isSurelySeen(drawn.svg.documentElement(), around)) {
        return PaintedItem{{}, {}, around, texts.words, texts.families};
    }
    const QRect found = paintedRect(paintedArea(around, overview));
    if (found.isEmpty()) {
        return {};
    }
    const QRectF near(around.topLeft() + QPointF(found.topLeft()) / overview, QSizeF(found.size()) / overview);
    const QRectF area(QPointF(std::floor(near.x()) - 2, std::floor(near.y()) - 2),
                      QSizeF(std::ceil(near.width()) + 4, std::ceil(near.height()) + 4));
    const QImage image = paintedArea(area, sharpness);
    // On whole pixels of the page, where nobody has to blur it.
    const QRect exact = aligned(paintedRect(image), int(sharpness)) & image.rect();
    if (exact.isEmpty()) {
        return {};
    }
    return PaintedItem{{},
                       image.copy(exact),
                       QRectF(area.topLeft() + QPointF(exact.topLeft()) / sharpness, QSizeF(exact.size()) / sharpness),
                       texts.words,
                       texts.families};
}

} // namespace lessonhost
