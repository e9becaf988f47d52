// SPDX-License-Identifier: MIT
#ifndef SVGSTYLE_H
#define SVGSTYLE_H

#include "sentences/sentence.h"

#include <QColor>
#include <QDomElement>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTransform>

#include <functional>

namespace lessonhost {

/*!
 * How an svg element looks and where it stands, after all that its ancestors say. Presentation attributes and style
 * declarations are one here; what isn't inherited is multiplied in or cut off.
 */
class SvgStyle
{
public:
    QTransform matrix;
    double opacity = 1;

    //! The style of a child: this one with the child's own attributes and declarations and this transform on top.
    //! A transform that can't be read is handed to problem.
    SvgStyle child(const QDomElement &element, const QString &transform,
                   const std::function<void(const Sentence &)> &problem) const;

    //! The property as inherited, or an empty text.
    QString property(const QString &name) const { return m_properties.value(name); }
    bool has(const QString &name) const { return m_properties.contains(name); }
    void set(const QString &name, const QString &value) { m_properties.insert(name, value); }

    bool isVisible() const;

    //! Pixels, before the transform.
    double fontPixels() const;

private:
    QHash<QString, QString> m_properties;
    bool m_isDisplayed = true;
};

//! Fill and line of a shape.
struct SvgPaint
{
    QColor fill; //!< alpha 0 for none
    QColor line; //!< alpha 0 for none
    double lineWidth = 1; //!< in page pixels
    int dashParts = 0; //!< 0 for a solid line, else 2 (dash), 3 (dash dot) or 4 (dash dot dot)
};

//! Of what covers an item: it lets through what it hides, so that a picture of a lesson tells both.
inline SvgPaint coverPaint()
{
    SvgPaint paint;
    paint.fill = QColor(0x6b, 0x76, 0x85, 0x66);
    paint.line = QColor(0x6b, 0x76, 0x85);
    return paint;
}

/*!
 * Reads what a shape is painted with. isNative: the file was written with this system's own reading of
 * "stroke-opacity", where a number above 1 is the alpha of the fill out of 255, and a missing "fill" is none. What
 * can't be kept is handed to problem.
 */
SvgPaint svgPaint(const SvgStyle &style, bool isNative, const std::function<void(const Sentence &)> &problem);

//! What a style says of a line that none has here: lengths of dashes, and its ends and corners.
Sentences lineDifferences(const SvgStyle &style, const SvgPaint &paint);

//! Writes a paint in the form that the plug-in reads: colours as rgb(), a fill's alpha as "stroke-opacity" out of 255,
//! a line's alpha before its colour.
void setPluginPaint(QDomElement &element, const SvgPaint &paint);

//! Corrects the paint of an element that the plug-in wrote, for readers of svg: "fill-opacity" and "stroke-opacity"
//! from 0 to 1 where something is translucent, "none" where nothing is painted, the line's true width. What the plug-in
//! reads stays where svg readers don't mind it.
void setSvgPaint(QDomElement &element, const SvgPaint &paint);

} // namespace lessonhost

#endif // SVGSTYLE_H
