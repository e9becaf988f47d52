// SPDX-License-Identifier: MIT
#ifndef SHAPEFORMS_H
#define SHAPEFORMS_H

#include <QColor>
#include <QJsonObject>
#include <QString>

namespace lessonhost {

// Which items have a form in svg, and how their values are handed over.

/*!
 * One drawn type: how it keeps its outline, and the keys that hold its paint.
 */
struct ShapeForm
{
    enum Outline {
        Segment, //!< two points in Control
        Angle, //!< two points in Control; the third is the item's origin
        Polyline, //!< all points in XYValue, which ends in one character more
        Polygon, //!< all points in Control, closed
        Derived, //!< worked out by the plug-in from Control or a number of corners
        Circle, //!< a point of the rim in Control, around the origin
        Ellipse, //!< two points of the rim in Control, around the origin
        Rectangle, //!< two points of the rim in Control
    };

    const char *type;
    Outline outline;
    const char *lineKey;
    bool cutsLine; //!< the first four characters of the line's colour are cut off on the way out
    const char *fillKey; //!< null for lines
    const char *dashKey;
    const char *impliedKey; //!< a key that the type itself answers where an item doesn't have it; may be null
    const char *implied; //!< its value
};

//! The form of an item type, or null for types that aren't drawn.
const ShapeForm *shapeForm(const QString &type);

//! The item with what its type implies: corners of regular polygons, arrows of segments.
QJsonObject withImplied(QJsonObject item, const ShapeForm &form);

//! A raw segment without the Width that only says its ArtObj_Width once more.
QJsonObject withoutDoubledWidth(QJsonObject item);

//! The line's colour as the plug-in takes it for this form: its alpha is not among it.
QString lineColorText(const ShapeForm &form, const QColor &color);

} // namespace lessonhost

#endif // SHAPEFORMS_H
