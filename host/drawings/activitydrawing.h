// SPDX-License-Identifier: MIT
#ifndef ACTIVITYDRAWING_H
#define ACTIVITYDRAWING_H

#include "canvas/canvas.h"

namespace lessonhost {

//! The drawing of an item of a classroom game, null for other types: its picture, or the frame that its kind has
//! without one, and its text on it. Of a card to turn the front is seen.
SvgDrawing activityDrawing(const QString &type);

//! A card to turn as an item that looks like its back. Empty for other items, and for a card with nothing on its back.
QJsonObject backOfCard(const QJsonObject &card);

} // namespace lessonhost

#endif // ACTIVITYDRAWING_H
