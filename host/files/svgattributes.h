// SPDX-License-Identifier: MIT
#ifndef SVGATTRIBUTES_H
#define SVGATTRIBUTES_H

#include <QDomElement>
#include <QSet>
#include <QString>

#include <initializer_list>

namespace lessonhost {

//! The attributes by which shapes of svg tell where they are and what their outline is.
constexpr const char *shapeGeometry[] = {
    "x", "y", "width", "height", "rx", "ry", "cx", "cy", "r", "x1", "y1", "x2", "y2", "d", "points",
};

//! Names of attributes, to look one up.
QSet<QString> attributeSet(std::initializer_list<const char *> names);

//! The same, and those of a shape's geometry.
QSet<QString> attributeSetOfShape(std::initializer_list<const char *> others);

//! True for an element without any other attributes.
bool hasOnly(const QDomElement &element, const QSet<QString> &names);

} // namespace lessonhost

#endif // SVGATTRIBUTES_H
