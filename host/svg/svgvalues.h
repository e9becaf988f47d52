// SPDX-License-Identifier: MIT
#ifndef SVGVALUES_H
#define SVGVALUES_H

#include <QColor>
#include <QHash>
#include <QPolygonF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <optional>

namespace lessonhost {

// The texts of svg attributes as values. Readers take what they understand from the front of a text and answer nothing
// for a text that isn't what they read.

//! The numbers of a list with blanks or commas between them, up to the first thing that isn't one.
QVector<double> svgNumbers(const QString &text);

//! A length in pixels: a number alone or with px, pt, pc, mm, cm, in, em, ex or %; percents are of reference.
std::optional<double> svgLength(const QString &text, double reference = 0, double fontSize = 16);

//! "none" and "transparent" give an invisible colour; names, #rgb, #rrggbb, rgb() and rgba() with numbers or percents
//! give theirs. rgb() with four numbers is alpha, red, green, blue, as item colours are written. "currentColor" and
//! references to gradients give nothing.
std::optional<QColor> svgColor(const QString &text);

//! translate, scale, rotate (degrees), skewX, skewY and matrix, the first of them outermost. Nothing for any other
//! text.
std::optional<QTransform> svgTransform(const QString &text);

//! What a path draws: one outline for each subpath, and whether it was closed by the path itself.
struct SvgOutline
{
    QPolygonF points;
    bool closed = false;
};

//! The subpaths of a path made of straight lines. Nothing for a path with curves or errors.
std::optional<QVector<SvgOutline>> svgStraightPath(const QString &data);

//! The declarations of a style attribute.
QHash<QString, QString> svgDeclarations(const QString &style);

} // namespace lessonhost

#endif // SVGVALUES_H
