#include "render/drawings.h"

#include "render/graphdrawing.h"
#include "render/instrumentdrawing.h"
#include "render/mathdrawing.h"
#include "render/vectordrawing.h"

#include <QJsonArray>

namespace lessonhost {

namespace {

// Each family tells which of its types it has a drawing for.
constexpr SvgDrawing (*families[])(const QString &type) = {
    &vectorDrawing,
    &mathDrawing,
    &graphDrawing,
    &instrumentDrawing,
};

bool drawFromFamilies(Canvas &canvas, const ItemView &item)
{
    for (const auto drawingOf : families) {
        if (const SvgDrawing drawing = drawingOf(item.type())) {
            return drawing(canvas, item);
        }
    }
    return false;
}

} // namespace

Drawings::Drawings(PlainSvg &svg, IwbPageWriter &pages, const QStringList &files)
    : m_canvas(svg, pages, files)
    , m_boxes(svg)
{
}

bool Drawings::draw(const QJsonObject &json)
{
    const ItemView item(json);
    if (drawFromFamilies(m_canvas, item)
        || (item.type() == QLatin1String("ZQMindMapItem") ? m_boxes.drawMindMap(json) : m_canvas.addAsIwb(json))) {
        return true;
    }
    m_boxes.drawBox(json, addPictureOn(item));
    return false;
}

// The picture on an item that has no drawing, in the item's box.
bool Drawings::addPictureOn(const ItemView &item)
{
    for (const QLatin1String key : {ItemKeys::document, QLatin1String("picture")}) {
        const QJsonValue value = item.json().value(key);
        const QString file = valueText(value.isArray() ? value.toArray().at(0) : value);
        QJsonObject picture{{ItemKeys::type, QStringLiteral("ZQImagePic")}, {ItemKeys::resource, file}};
        for (const QLatin1String place : {ItemKeys::box, ItemKeys::angle, ItemKeys::matrix}) {
            picture.insert(place, item.json().value(place));
        }
        if (m_canvas.hasFile(file) && m_canvas.addAsIwb(picture)) {
            return true;
        }
    }
    return false;
}

} // namespace lessonhost
