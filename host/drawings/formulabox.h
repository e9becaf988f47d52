// SPDX-License-Identifier: MIT
#ifndef FORMULABOX_H
#define FORMULABOX_H

#include "drawings/formulasigns.h"

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lessonhost {

/*!
 * Letters or lines of a formula.
 */
struct FormulaPart
{
    QString text; //!< empty for lines
    QPointF middle; //!< of the text, on its base line
    double size = 0; //!< of its letters
    bool isItalic = false;
    bool isBold = false;
    QPainterPath lines;
    double lineWidth = 0;
    QColor color; //!< invalid for that of the formula
};

/*!
 * A formula or a part of it: what is drawn, about the left end of its base line, and the room that it takes.
 */
struct FormulaBox
{
    double width = 0;
    double ascent = 0; //!< above the base line
    double descent = 0; //!< below
    QVector<FormulaPart> parts;

    double height() const { return ascent + descent; }
    //! Puts another one at a place of this one. What it takes of room is the caller's.
    void add(const FormulaBox &other, const QPointF &at);
};

//! The size of the letters of a formula.
constexpr double formulaLetters = 100;
//! Their font.
QStringList formulaFamilies();

/*!
 * How a part of a formula is written.
 */
struct FormulaStyle
{
    static constexpr double smallestScript = 0.45; //!< of the letters of the formula

    double size = formulaLetters;
    bool isDisplayed = true; //!< fractions, sums and limits take their room
    QColor color; //!< invalid for that of the formula
    int depth = 0; //!< of the part

    FormulaStyle inside() const;
    FormulaStyle script() const;
    double rule() const; //!< the width of lines
    double axis() const; //!< how far above the base line fractions and fences have their middle
};

/*!
 * Puts formulas together from their parts.
 */
class FormulaBoxes
{
public:
    static FormulaBox word(const QString &text, const FormulaStyle &style, bool isItalic = false, bool isBold = false);
    //! In the middle of the axis.
    static FormulaBox largeSign(const QString &text, const FormulaStyle &style);
    //! As high as what it stands at.
    static FormulaBox fence(const QString &text, const FormulaBox &content, const FormulaStyle &style);
    //! A sign without the empty room between it and the line that it stands on.
    static FormulaBox onLine(const FormulaBox &sign);

    static FormulaBox lines(const QPainterPath &path, const FormulaStyle &style);
    static FormulaBox rule(const QPointF &from, const QPointF &to, const FormulaStyle &style);
    //! A sign of this width, in the middle of the axis.
    static FormulaBox spanning(const FormulaSpan &span, double width, const FormulaStyle &style);
    static FormulaBox radical(const FormulaBox &content, const FormulaBox &index, const FormulaStyle &style);
    //! A script above and one below at the end of a base, or before it.
    static FormulaBox withScripts(const FormulaBox &base, const FormulaBox &sub, const FormulaBox &super,
                                  const FormulaStyle &style, bool isBefore = false);
    static FormulaBox stacked(const FormulaBox &base, const FormulaBox &under, const FormulaBox &over,
                              const FormulaStyle &style);

private:
    /*!
     * What is known of letters of the size of the formula.
     */
    struct Measure
    {
        double advance = 0;
        double xHeight = 0;
        QRectF ink;
    };
    static Measure measure(const QString &text, bool isItalic = false, bool isBold = false);
};

} // namespace lessonhost

#endif // FORMULABOX_H
