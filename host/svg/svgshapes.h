// SPDX-License-Identifier: MIT
#ifndef SVGSHAPES_H
#define SVGSHAPES_H

#include <QDomElement>

namespace lessonhost {

struct SvgPlace;
class SvgPage;

// Read a shape of svg, and make items of the page of it.

void readRectangle(SvgPage &page, const QDomElement &element, const SvgPlace &place);
//! A circle, too.
void readEllipse(SvgPage &page, const QDomElement &element, const SvgPlace &place);
void readLine(SvgPage &page, const QDomElement &element, const SvgPlace &place);
void readPolyline(SvgPage &page, const QDomElement &element, const SvgPlace &place);
void readPolygon(SvgPage &page, const QDomElement &element, const SvgPlace &place);
void readPath(SvgPage &page, const QDomElement &element, const SvgPlace &place);

} // namespace lessonhost

#endif // SVGSHAPES_H
