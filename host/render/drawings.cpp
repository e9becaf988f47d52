#include "render/drawings.h"

#include "lesson/closedtext.h"
#include "lesson/itemview.h"
#include "render/graphdrawing.h"
#include "render/mathdrawing.h"
#include "render/plainsvg.h"
#include "render/vectordrawing.h"

#include <QHash>
#include <QJsonArray>

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

Drawings::Drawings(PlainSvg &svg, IwbPageWriter &pages, const QStringList &files)
    : m_svg(svg)
    , m_pages(pages)
    , m_files(files)
    , m_boxes(svg)
{
}

Drawings::Draw Drawings::drawingOf(const QString &type)
{
    static const QHash<QString, Draw> table{
        {QStringLiteral("ZQMindMapItem"), &Drawings::drawMindMap},
    };
    return table.value(type, isGraph(type) ? &Drawings::drawGraph : &Drawings::drawIwb);
}

bool Drawings::draw(const QJsonObject &item)
{
    if (drawFromTables(item)) {
        return true;
    }
    const Draw drawing = drawingOf(item.value(ItemKeys::type).toString());
    if ((this->*drawing)(item)) {
        return true;
    }
    const QJsonObject picture = pictureOn(item);
    const bool hasPicture = !picture.isEmpty() && drawIwb(picture);
    m_boxes.drawBox(item, hasPicture);
    return false;
}

// Families that have tables of their own.
bool Drawings::drawFromTables(const QJsonObject &item)
{
    const QString type = item.value(ItemKeys::type).toString();
    for (const auto find : {&vectorDrawing, &mathDrawing}) {
        if (const SvgDrawing drawing = find(type)) {
            return drawing(m_svg, item);
        }
    }
    return false;
}

bool Drawings::drawIwb(const QJsonObject &item)
{
    QDomDocument document = m_pages.document();
    const QDomElement element = m_pages.items().write(document, item, {}, {});
    return isSeen(element) && m_svg.add(element);
}

bool Drawings::drawGraph(const QJsonObject &item)
{
    const ItemView view(item);
    const auto graph = graphDrawing(view);
    if (!graph) {
        return false;
    }
    for (const GraphDrawing::Part &part : graph->parts) {
        m_svg.addPath(part.path, part.paint);
    }
    if (!graph->textArea.isEmpty()) {
        drawText(view.text(ItemKeys::html), graph->textArea, graph->placed);
    }
    return true;
}

// A text board without a frame, in the middle of the area's height.
void Drawings::drawText(const QString &html, const QRectF &area, const QTransform &placed)
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

// The picture on an item that has no drawing: a picture item in its box, or an empty object.
QJsonObject Drawings::pictureOn(const QJsonObject &item) const
{
    for (const QLatin1String key : {ItemKeys::document, QLatin1String("picture")}) {
        const QJsonValue value = item.value(key);
        const QString file = valueText(value.isArray() ? value.toArray().at(0) : value);
        if (m_files.contains(file)) {
            return {{ItemKeys::type, QStringLiteral("ZQImagePic")},
                    {ItemKeys::box, item.value(ItemKeys::box)},
                    {ItemKeys::angle, item.value(ItemKeys::angle)},
                    {ItemKeys::matrix, item.value(ItemKeys::matrix)},
                    {ItemKeys::resource, file}};
        }
    }
    return {};
}

} // namespace lessonhost
