// SPDX-License-Identifier: MIT
#ifndef COVERDRAWING_H
#define COVERDRAWING_H

#include "canvas/canvas.h"

#include <optional>

namespace lessonhost {

//! The drawing of a curtain or a spotlight, null for other types: they hide what was drawn before them, a spotlight all
//! but its hole.
SvgDrawing coverDrawing(const QString &type);

/*!
 * The hole of a spotlight, on the page.
 */
struct Spot
{
    QPointF center;
    double radius = 0;
};

//! Nothing for a spotlight that doesn't tell it.
std::optional<Spot> spotOn(const ItemView &item);

} // namespace lessonhost

#endif // COVERDRAWING_H
