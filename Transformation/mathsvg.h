// SPDX-License-Identifier: MIT
#ifndef MATHSVG_H
#define MATHSVG_H

#include "keypaths.h"

#include <QDomElement>
#include <QJsonObject>
#include <QMatrix>
#include <QPointF>
#include <QString>

// The svg shapes of mathematics items: how each leaves (mathsvg.cpp), what each tag gives back (mathsvgreader.cpp), and
// the texts that they share.

/*!
 * The attributes of an svg shape. Those that its item type doesn't have in IWB are left out.
 */
class SvgAttributes
{
public:
    SvgAttributes(const QDomElement &element, const KeyMap &iwbKeys);

    void set(const QString &name, const QString &value);

private:
    QDomElement m_element;
    const KeyMap &m_iwbKeys;
};

/*!
 * How a type leaves as an svg shape. The parts that most shapes have in common are told by keys; the geometry is a
 * function that sets the svg attributes, or leaves them out where control points or matrix don't suffice.
 */
struct SvgShape
{
    enum Cut {
        KeepsStroke, //!< the colour text goes out as it is
        CutsStroke //!< its first four characters are cut, the alpha of 255 as a rule
    };
    enum Fill {
        NoFill,
        FillsAlways, //!< whenever the colour is a text
        FillsByFlag //!< and ArtObj_Fill is not "0"
    };

    const char *tag;
    void (*setGeometry)(const QJsonObject &json, SvgAttributes &svg); //!< may be null
    const char *strokeKey;
    Cut cut;
    const char *fillKey;
    Fill fill;
    const char *dashKey;
    //! Attributes set at the very end, over what the common ones gave; may be null.
    void (*finish)(QDomElement &element, const QJsonObject &json);
};

//! The svg shape of an item type, or null.
const SvgShape *svgShapeOf(const QString &itemType);

//! Sets stroke, fill, stroke-width and stroke-dasharray.
void setSvgPaint(const SvgShape &shape, const QJsonObject &json, SvgAttributes &svg);

//! Reads an svg shape other than a rectangle: type, geometry and paint. An angle's "points" are six numbers.
QJsonObject svgLineToJson(const QDomElement &element, QJsonObject json);
QJsonObject svgAngleToJson(const QDomElement &element, QJsonObject json);
QJsonObject svgPolylineToJson(const QDomElement &element, QJsonObject json);
QJsonObject svgCircleToJson(const QDomElement &element, QJsonObject json);
QJsonObject svgEllipseToJson(const QDomElement &element, QJsonObject json);

//! Type, matrix, control points and paint of an svg:rect, for an object that holds its attributes already.
QJsonObject readSvgRect(const QDomElement &element, QJsonObject json);

//! The degrees of an angle in radians, with 3.14159 for pi as the format has it.
float degreesOf(float radians);

//! A rotation by degrees about a point.
QMatrix rotationAbout(float degrees, const QPointF &center);

#endif // MATHSVG_H
