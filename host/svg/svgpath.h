// SPDX-License-Identifier: MIT
#ifndef SVGPATH_H
#define SVGPATH_H

#include <QDomElement>
#include <QPainterPath>
#include <QString>

#include <optional>

namespace lessonhost {

//! What the data of an svg path draws, with all of its curves. Nothing for data with errors.
std::optional<QPainterPath> svgPath(const QString &data);

//! The outline of a path, rect, circle, ellipse, line, polyline or polygon, before its transform. Nothing for any other
//! element and for data with errors.
std::optional<QPainterPath> svgOutline(const QDomElement &shape);

} // namespace lessonhost

#endif // SVGPATH_H
