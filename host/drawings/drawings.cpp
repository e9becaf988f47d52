// SPDX-License-Identifier: MIT
#include "drawings/drawings.h"

#include "drawings/activitydrawing.h"
#include "drawings/coverdrawing.h"
#include "drawings/exercisedrawing.h"
#include "drawings/formuladrawing.h"
#include "drawings/gamedrawing.h"
#include "drawings/graphdrawing.h"
#include "drawings/inkdrawing.h"
#include "drawings/instrumentdrawing.h"
#include "drawings/itemoutline.h"
#include "drawings/languagedrawing.h"
#include "drawings/mathdrawing.h"
#include "drawings/mathmarks.h"
#include "drawings/mediadrawing.h"
#include "drawings/mindmapdrawing.h"
#include "drawings/questiondrawing.h"
#include "drawings/symboldrawing.h"
#include "drawings/textdrawing.h"
#include "drawings/vectordrawing.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QJsonArray>

namespace lessonhost {

namespace {

// Each family tells which of its types it has a drawing for. Symbols are last: of types whose items tell their outline,
// they are the usual look of one that doesn't.
// clang-format off
constexpr SvgDrawing (*drawingsOfFamilies[])(const QString &type) = {
    &vectorDrawing,
    &mathDrawing,
    &graphDrawing,
    &instrumentDrawing,
    &coverDrawing,
    &exerciseDrawing,
    &activityDrawing,
    &mediaDrawing,
    &inkDrawing,
    &questionDrawing,
    &formulaDrawing,
    &symbolDrawing,
    &textDrawing,
    &mindMapDrawing,
    &languageDrawing,
};
// clang-format on

bool drawFromFamilies(Canvas &canvas, const ItemView &item)
{
    for (const auto drawingOf : drawingsOfFamilies) {
        const SvgDrawing drawing = drawingOf(item.type());
        if (drawing && drawing(canvas, item)) {
            return true;
        }
    }
    return false;
}

} // namespace

Drawings::Drawings(PlainSvg &svg, IwbPageWriter &pages, IwbMedia &files)
    : m_canvas(svg, pages, files)
    , m_boxes(svg)
{
}

void Drawings::rubOut(const QJsonObject &item, const QTransform &placed)
{
    if (const auto area = rubbedArea(ItemView(item))) {
        m_canvas.rubbing().add(placed.map(*area));
    }
}

void Drawings::drawGame(const QJsonObject &slide, const QVector<ShownItem> &items)
{
    if (!slide.contains(QLatin1String("activity"))) {
        return;
    }
    QRectF occupied;
    bool hasGameItems = false;
    for (const ShownItem &shown : items) {
        const ItemView view(shown.item);
        const QRectF extent = shown.placed.mapRect(toldExtent(view));
        occupied = occupied.isNull() ? extent : occupied.united(extent);
        hasGameItems = hasGameItems || activityDrawing(view.type());
    }
    drawGameBackground(m_canvas, slide);
    if (!hasGameItems) {
        drawGameRecord(m_canvas, slide, occupied);
    }
}

bool Drawings::draw(const QJsonObject &json)
{
    const ItemView item(json);
    if (drawFromFamilies(m_canvas, item) || drawAsIwb(item)) {
        addMathMarks(m_canvas.svg(), item);
        return true;
    }
    m_boxes.drawBox(json, addPictureOn(item));
    return false;
}

void Drawings::drawCover(const QRectF &box)
{
    QPainterPath path;
    path.addRect(box);
    m_canvas.svg().addPath(path, coverPaint());
}

// IWB knows no flips: what it has of an item is turned already.
bool Drawings::drawAsIwb(const ItemView &item)
{
    QTransform flipped;
    const auto box = item.box();
    if (box && !item.matrix() && (item.flag(ItemKeys::flippedAcross) || item.flag(ItemKeys::flippedDown))) {
        flipped = turnAbout(box->center(), item.angle()).inverted() * turnAndFlips(item, box->center());
    }
    const PlainSvg::Scope scope(m_canvas.svg(), flipped);
    return m_canvas.addAsIwb(item.json());
}

// The picture on an item that has no drawing, in the item's box.
bool Drawings::addPictureOn(const ItemView &item)
{
    const auto box = item.box();
    for (const QLatin1String key : {ItemKeys::document, QLatin1String("picture")}) {
        const QJsonValue value = item.json().value(key);
        const QString file = valueText(value.isArray() ? value.toArray().at(0) : value);
        if (box && !file.isEmpty() && m_canvas.addPicture(file, *box, placeOnPage(item))) {
            return true;
        }
    }
    return false;
}

} // namespace lessonhost
