// SPDX-License-Identifier: MIT
#ifndef SVGGEOMETRY_H
#define SVGGEOMETRY_H

#include <QDomElement>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace lessonhost {

// Places in svg elements: what the plug-in's cover, and how boxes and turns are written.

constexpr int coordinateDigits = 10;

//! A coordinate; what a transform makes of 0 by its errors is 0.
QString svgCoordinate(double value, int digits = coordinateDigits);

//! x and y in turn with commas between.
QString svgPoints(const QPolygonF &points);

//! The plug-in writes numbers with so many digits.
constexpr int pluginDigits = 6;

void setSvgBox(QDomElement &element, const QRectF &box, int digits = coordinateDigits);

//! A turn in radians as svg tells it, in degrees, about the very centre of what is written: another would move the
//! element when it is read. The numbers have blanks between them: with commas they would be in radians. A whole turn or
//! none is no attribute.
void setSvgTurn(QDomElement &element, double angle);

//! What a svg element of the plug-in covers before its transform, or nothing for one without geometry.
std::optional<QRectF> drawnExtent(const QDomElement &element);

//! Takes an element of the plug-in's, turned by setSvgTurn(), to another place of the page. Lines go wherever the
//! transform takes their points, boxes keep their size and have what the transform makes of their turn.
void moveOnPage(QDomElement &element, const QTransform &moved);

//! True for a polygon that is filled the same by both rules: where an outline crosses itself, one leaves holes.
bool isFilledAlike(const QPolygonF &polygon);

} // namespace lessonhost

#endif // SVGGEOMETRY_H
