// SPDX-License-Identifier: MIT
#include "canvas/canvas.h"

#include "lesson/planegeometry.h"

namespace lessonhost {

namespace {

constexpr double smallestScale = 1e-3;

// What IWB leaves with anything to see.
bool isSeen(const QDomElement &element)
{
    const QString tag = element.tagName();
    return !tag.isEmpty() && tag != QLatin1String("svg:video") && tag != QLatin1String("svg:a")
        && (tag != QLatin1String("svg:image") || !element.attribute(QStringLiteral("xlink:href")).isEmpty());
}

} // namespace

Canvas::Canvas(PlainSvg &svg, IwbPageWriter &pages, IwbMedia &files)
    : m_svg(svg)
    , m_pages(pages)
    , m_files(files)
{
}

bool Canvas::addAsIwb(const QJsonObject &item)
{
    QDomDocument document = m_pages.document();
    const QDomElement element = m_pages.items().write(document, item, {}, {});
    return isSeen(element) && m_svg.add(element);
}

bool Canvas::addText(const QString &text, const QRectF &area, const QTransform &placed, const TextPlace &place)
{
    if (m_svg.isInVain()) {
        return true;
    }
    // A box that is only turned and larger has letters as wide as they are, one that is stretched more room for them.
    const auto parts = scaleAndTurn(placed);
    const bool isUpright = parts && parts->scaleY > 0;
    const ItemPlace onPage = isUpright ? placeUnder(placed, area) : ItemPlace{area, 0};
    const QSizeF room = onPage.box.size();
    double scale = isUpright ? qMax(meanScale(placed), smallestScale) : 1;
    LessonText laidOut(text, room.width() / scale, place.look, place.isFitted,
                       [this](const QString &name) { return pictureSize(name); });
    if (laidOut.isEmpty()) {
        return true;
    }
    if (place.isFitted) {
        const double smallest = qMin(1.0, m_svg.readableSize() / laidOut.smallestPixels());
        const auto isTooLarge = [&] {
            return laidOut.height() * scale > room.height() || laidOut.idealWidth() * scale > room.width();
        };
        while (isTooLarge()) {
            // At once as small as a word needs that is longer than a line.
            scale = qMin(scale * 0.9, room.width() / laidOut.idealWidth());
            if (scale < smallest) {
                return false;
            }
            laidOut.setWidth(room.width() / scale);
        }
    }
    const double space = place.isInMiddle ? room.height() - laidOut.height() * scale : 0;
    const QTransform inArea = QTransform::fromScale(scale, scale)
        * QTransform::fromTranslate(onPage.box.left(), onPage.box.top() + qMax(0.0, space / 2));
    const QTransform onSheet = inArea * (isUpright ? turnAbout(onPage.box.center(), onPage.angle) : placed);
    const QDomElement group = m_svg.addGroup(onSheet);
    const auto pictures = laidOut.draw(group, stretches(onSheet));
    m_svg.countTexts(group);
    for (const LessonText::TextPicture &picture : pictures) {
        addPicture(picture.name, picture.box, onSheet);
    }
    return true;
}

void Canvas::addLetters(const QString &text, double size, const QPointF &middle, const QTransform &placed,
                        const TextLook &look)
{
    if (!text.isEmpty() && !m_svg.isInVain()) {
        const double scale = size / LetterLine::drawnSize;
        const QTransform onSheet =
            QTransform::fromScale(scale, scale) * QTransform::fromTranslate(middle.x(), middle.y()) * placed;
        const QDomElement group = m_svg.addGroup(onSheet);
        LetterLine(text, look).draw(group, stretches(onSheet));
        m_svg.countTexts(group);
    }
}

QSize Canvas::pictureSize(const QString &reference) const
{
    if (isEmbedded(reference)) {
        return embeddedSize(reference);
    }
    const QString file = m_files.find(reference);
    return file.isEmpty() ? QSize() : Picture(file).size();
}

QImage Canvas::picture(const QString &reference, qint64 mostPixels) const
{
    const QString file = m_files.find(reference);
    return file.isEmpty() ? QImage() : Picture(file).image(mostPixels);
}

bool Canvas::addPicture(const QString &reference, const QRectF &box, const QTransform &placed)
{
    const PlainSvg::Scope scope(m_svg, placed);
    if (isEmbedded(reference)) {
        return m_svg.addEmbedded(reference, box);
    }
    const QString file = m_files.find(reference);
    return !file.isEmpty() && m_svg.addPicture(file, box);
}

QDomElement Canvas::addTexture(const QPainterPath &area, const QString &reference, const QColor &color)
{
    const QString file = m_files.find(reference);
    return file.isEmpty() ? QDomElement() : m_svg.addTexture(area, file, color);
}

bool Canvas::addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize)
{
    return m_svg.addDrawing(svg, box, usualSize, [this](const QString &reference) { return m_files.find(reference); });
}

} // namespace lessonhost
