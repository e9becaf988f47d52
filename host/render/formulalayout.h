#ifndef FORMULALAYOUT_H
#define FORMULALAYOUT_H

#include <QColor>
#include <QDomElement>
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

//! Lays out MathML: rows with the space that operators have, fractions, roots, scripts, limits, fences as high as what
//! stands between them, tables, and the rest as rows.
FormulaBox formulaLayout(const QDomElement &math);

} // namespace lessonhost

#endif // FORMULALAYOUT_H
