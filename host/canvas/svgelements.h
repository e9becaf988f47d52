// SPDX-License-Identifier: MIT
#ifndef SVGELEMENTS_H
#define SVGELEMENTS_H

#include "svg/svgstyle.h"

#include <QColor>
#include <QDomElement>
#include <QPainterPath>
#include <QString>
#include <QStringList>
#include <QTransform>
#include <QVector>

namespace lessonhost {

// The attributes of what is drawn, for whoever makes elements of an svg.

//! A number within the bounds of drawings, with two digits behind the point.
QString drawnNumber(double value);

//! "matrix(...)"
QString drawnTransform(const QTransform &transform);

//! Sets "d" of a path that isn't empty. Ends of outlines that meet their beginning are closed.
void setDrawnPath(QDomElement &element, const QPainterPath &path);

// What a reader of these attributes has of a number, a path and a colour.
double asDrawn(double value);
QPainterPath asDrawn(const QPainterPath &path);
QColor asDrawn(const QColor &color);

//! The lengths of the dashes and gaps of a line; none for a solid one.
QVector<double> drawnDashes(const SvgPaint &paint);

//! Sets "fill" or "stroke", and its opacity where the colour is translucent.
void setDrawnColor(QDomElement &element, const char *name, const QColor &color);

//! Sets the font: of the families the first that is here, for viewers that know no lists, and in front of it all of
//! them and the generic one for the others.
void setDrawnFamilies(QDomElement &element, const QStringList &families);

//! The families of what the host writes on a page itself.
QStringList labelFamilies();

} // namespace lessonhost

#endif // SVGELEMENTS_H
