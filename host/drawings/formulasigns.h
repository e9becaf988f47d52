// SPDX-License-Identifier: MIT
#ifndef FORMULASIGNS_H
#define FORMULASIGNS_H

#include <QString>

namespace lessonhost {

// What is known of the signs of formulas. Lengths are parts of the size of the letters.

/*!
 * A sign that grows with what it stands at, in a box. What is mirrored is drawn by its counterpart.
 */
struct FormulaFence
{
    ushort sign;
    double width;
    const char *outline;
    bool isMirrored = false;
};

/*!
 * A sign above or below that is as wide as what it stands at.
 */
struct FormulaSpan
{
    ushort sign;
    double height;
    const char *outline;
};

//! Null for a text that is no such sign.
const FormulaFence *formulaFence(const QString &text);
const FormulaSpan *formulaSpan(const QString &text);

//! Sums, products, unions and integrals.
bool isLargeSign(const QString &text);

//! The space before and behind an operator between two operands.
double spaceAroundSign(const QString &text);

} // namespace lessonhost

#endif // FORMULASIGNS_H
