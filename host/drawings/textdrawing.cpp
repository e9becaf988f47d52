// SPDX-License-Identifier: MIT
#include "drawings/textdrawing.h"

#include "drawings/itemoutline.h"
#include "lesson/itemtypes.h"
#include "svg/svgstyle.h"

namespace lessonhost {

namespace {

// A text without a box goes on to the right end of the page.
QRectF textArea(const ItemView &item, const QSizeF &page)
{
    if (const auto box = item.box()) {
        return *box;
    }
    const QPointF corner = item.matrix().value_or(QTransform()).map(QPointF());
    return {0, 0, qMax(page.width() / 4, page.width() - corner.x()) / item.scale(), 0};
}

// The colour behind the text, where the board shows it.
void drawBackground(Canvas &canvas, const ItemView &item, const QRectF &area)
{
    const auto color = item.color(QLatin1String("EditBkColor"));
    if (!color || !item.flag(QLatin1String("SHOWBACKCOLOR"))) {
        return;
    }
    SvgPaint paint;
    paint.fill = *color;
    paint.line = Qt::transparent;
    QPainterPath outline;
    outline.addRect(area);
    canvas.svg().addPath(placeOnPage(item).map(outline), paint);
}

bool drawTextBoard(Canvas &canvas, const ItemView &item)
{
    QString text;
    for (const QLatin1String key : {ItemKeys::html, ItemKeys::text, ItemKeys::textContent}) {
        text = text.isEmpty() ? item.text(key) : text;
    }
    // What stands in the other keys is no HTML.
    if (!item.has(ItemKeys::html)) {
        text = QLatin1String("<p style=\"margin:0px; white-space:pre-wrap\">") + text.toHtmlEscaped()
            + QLatin1String("</p>");
    }
    const QRectF area = textArea(item, canvas.svg().size());
    drawBackground(canvas, item, area);
    TextPlace place;
    place.isInMiddle = false;
    canvas.addText(text, area, placeOnPage(item), place);
    return true;
}

} // namespace

SvgDrawing textDrawing(const QString &type)
{
    return isTextBoard(type) ? &drawTextBoard : nullptr;
}

} // namespace lessonhost
