// SPDX-License-Identifier: MIT
#ifndef INKLINE_H
#define INKLINE_H

#include <QPolygonF>
#include <QVector>

#include <optional>

namespace lessonhost {

/*!
 * A stroke of a pen: the line that it follows, and how wide it is.
 */
struct InkLine
{
    QPolygonF points;
    double width = 1;
};

//! The stroke that polygons cover together, one behind the other or one over the other. Nothing where a stroke of even
//! width would look otherwise.
std::optional<InkLine> inkLineOf(const QVector<QPolygonF> &polygons);

} // namespace lessonhost

#endif // INKLINE_H
