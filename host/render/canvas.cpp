#include "render/canvas.h"

#include "lesson/closedtext.h"

namespace lessonhost {

namespace {

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

// A text board without a frame.
void Canvas::addText(const QString &html, const QRectF &area, const QTransform &placed)
{
    if (plainWords(html).isEmpty()) {
        return;
    }
    QDomDocument document = m_pages.document();
    const QJsonObject board{{ItemKeys::type, QStringLiteral("ZQTextBoard")},
                            {ItemKeys::box, boxText(area)},
                            {ItemKeys::matrix, transformText(placed)},
                            {ItemKeys::html, html}};
    m_svg.addTextInMiddle(m_pages.items().write(document, board, {}, {}));
}

QSize Canvas::pictureSize(const QString &reference) const
{
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
    const QString file = m_files.find(reference);
    const PlainSvg::Scope scope(m_svg, placed);
    return !file.isEmpty() && m_svg.addPicture(file, box);
}

bool Canvas::addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize)
{
    return m_svg.addDrawing(svg, box, usualSize, [this](const QString &reference) { return m_files.find(reference); });
}

} // namespace lessonhost
