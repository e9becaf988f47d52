// SPDX-License-Identifier: MIT
#ifndef CHIPS_H
#define CHIPS_H

#include "canvas/canvas.h"

namespace lessonhost {

/*!
 * How what lies in a cell looks: a card, a basket or an empty place, and the letters on it.
 */
struct ChipLook
{
    QColor face = Qt::white; //!< alpha 0 for none
    QColor edge = QColor(0x7d, 0x95, 0xad);
    bool isDashed = false;
    TextLook text;
};

//! A look for one who lays out cards himself: dark letters in the middle.
ChipLook cardLook(double letters);

//! Takes an alignment by its name in svg or HTML; other texts tell none.
void takeAlignment(TextLook &look, const QString &alignment);

//! A cell with round corners.
void addFrame(PlainSvg &svg, const QRectF &cell, const ChipLook &look);

//! A cell with what stands on it: a picture of the lesson if the text is the name of one, else the text.
void addChip(Canvas &canvas, const QRectF &cell, const QString &text, const ChipLook &look);

} // namespace lessonhost

#endif // CHIPS_H
