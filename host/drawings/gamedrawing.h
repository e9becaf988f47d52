// SPDX-License-Identifier: MIT
#ifndef GAMEDRAWING_H
#define GAMEDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The background of the classroom game that a slide holds, over the whole page. Nothing where the lesson hasn't its
//! file.
void drawGameBackground(Canvas &canvas, const QJsonObject &slide);

//! What a slide's classroom game asks, laid out where the slide's items leave the most room: its title, and its
//! questions, comparisons, texts to read, or baskets and what goes into them. Answers are left out. For a slide without
//! items of the game, which have places of their own. occupied: what the items of the slide cover.
void drawGameRecord(Canvas &canvas, const QJsonObject &slide, const QRectF &occupied);

} // namespace lessonhost

#endif // GAMEDRAWING_H
