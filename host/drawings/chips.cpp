// SPDX-License-Identifier: MIT
#include "drawings/chips.h"

#include "lesson/closedtext.h"
#include "svg/svgstyle.h"

namespace lessonhost {

namespace {

QRectF within(const QRectF &cell, double part)
{
    const double gap = qMin(cell.width(), cell.height()) * part;
    return cell.adjusted(gap, gap, -gap, -gap);
}

} // namespace

ChipLook cardLook(double letters)
{
    ChipLook look;
    look.text.color = QColor(0x22, 0x2b, 0x36);
    look.text.pixels = letters;
    look.text.alignment = Qt::AlignHCenter;
    return look;
}

void takeAlignment(TextLook &look, const QString &alignment)
{
    const Qt::AlignmentFlag flag = textAlignment(alignment);
    if (alignment == svgAlignment(flag) || alignment == htmlAlignment(flag)) {
        look.alignment = flag;
    }
}

void addFrame(PlainSvg &svg, const QRectF &cell, const ChipLook &look)
{
    if (look.face.alpha() == 0 && look.edge.alpha() == 0) {
        return;
    }
    constexpr double largestCorner = 12;
    const double corner = qMin(largestCorner, qMin(cell.width(), cell.height()) / 6);
    SvgPaint paint;
    paint.fill = look.face;
    paint.line = look.edge;
    paint.lineWidth = 1.5;
    paint.dashParts = look.isDashed ? 2 : 0;
    QPainterPath path;
    path.addRoundedRect(cell, corner, corner);
    svg.addPath(path, paint);
}

void addChip(Canvas &canvas, const QRectF &cell, const QString &text, const ChipLook &look)
{
    constexpr double marginOfPicture = 0.06;
    constexpr double marginOfText = 0.08;
    constexpr int longestText = 5000; // with its tags
    constexpr int mostLetters = 300;
    constexpr int fewestLetters = 4;
    addFrame(canvas.svg(), cell, look);
    if (text.isEmpty() || (canvas.hasFile(text) && canvas.addPicture(text, within(cell, marginOfPicture)))) {
        return;
    }
    TextPlace place;
    place.isFitted = true;
    place.look = look.text;
    const QRectF room = within(cell, marginOfText);
    place.look.pixels = qMin(look.text.pixels, room.height());
    if (text.size() <= longestText && canvas.addText(text, room, {}, place)) {
        return;
    }
    // Of a text that could only be read with a glass, the beginning.
    const QString words = text.startsWith(QLatin1Char('<')) ? plainWords(text) : text.simplified();
    for (int length = qMin(words.size() / 2, mostLetters); length >= fewestLetters; length /= 2) {
        if (canvas.addText(words.left(length).trimmed() + QChar(0x2026), room, {}, place)) {
            return;
        }
    }
}

} // namespace lessonhost
