// SPDX-License-Identifier: MIT
#include "drawings/questiondrawing.h"

#include "drawings/itemoutline.h"
#include "lesson/closedtext.h"

namespace lessonhost {

namespace {

bool isDrawing(const QString &text)
{
    const QString start = text.left(4096);
    const int tag = start.indexOf(QLatin1String("<svg"));
    return tag >= 0 || start.contains(QLatin1String(":svg"));
}

// A drawing and the box around it are turned with the item.
bool drawQuestion(Canvas &canvas, const ItemView &item)
{
    const QString content = item.text(QLatin1String("R_Content_svg")).trimmed();
    const auto box = item.box();
    if (!box || box->isEmpty() || content.isEmpty()) {
        return false;
    }
    const QTransform placed = placeOnPage(item);
    if (isDrawing(content)) {
        const QSizeF size(item.number(QLatin1String("content_width")), item.number(QLatin1String("content_height")));
        const bool hasSize = size.width() >= 1 && size.height() >= 1;
        const PlainSvg::Scope scope(canvas.svg(), placed);
        if (canvas.addDrawing(content.toUtf8(), *box, hasSize ? size : QSizeF())) {
            return true;
        }
    }
    canvas.addText(isDrawing(content) ? plainWords(content) : content, *box, placed);
    return true;
}

} // namespace

SvgDrawing questionDrawing(const QString &type)
{
    return type == QLatin1String("ZQQuestionItem") ? &drawQuestion : nullptr;
}

} // namespace lessonhost
