// SPDX-License-Identifier: MIT
#ifndef NUMBERTEXTS_H
#define NUMBERTEXTS_H

#include <QPolygonF>
#include <QString>
#include <QStringView>

namespace lessonhost {

// Numbers as texts and texts as numbers: what Qt makes of them in the C locale, to the bit and to the letter, in a
// fraction of the time for plain numbers, which are nearly all.

//! QString::toDouble(): 0 for a text that is no number, and then ok is false.
double numberOfText(QStringView text, bool *ok = nullptr);

/*!
 * The number that stands at a place of a text.
 */
struct NumberAt
{
    double value = 0; //!< numberOfText() of its letters
    bool isNumber = false; //!< false where there is none, and for one beyond all that a double holds
    int end = 0; //!< where it ends; the place itself where there is none
};

//! The longest number that begins there: an e without digits behind it isn't part of it, and "1-2" and "1.5.5" are two.
NumberAt numberAt(QStringView text, int at);

//! QString::number(value, 'g', digits), of up to 12 digits.
QString numberText(double value, int digits = 6);

//! The same, at the end of a text.
void appendNumber(QString &text, double value, int digits = 6);

//! numberOfText() of numberText(), without the text.
double numberInDigits(double value, int digits);

//! QString::number(value, 'g', QLocale::FloatingPointShortest): as many digits as tell the number from all others.
QString shortestNumberText(double value);

//! What a transform makes of 0 by its errors is 0 in a text.
inline double withoutErrorOfZero(double coordinate)
{
    return qAbs(coordinate) < 1e-9 ? 0 : coordinate;
}

//! What is read of each coordinate in coordinateTexts().
QPolygonF pointsInDigits(QPolygonF points, int digits);

//! The coordinates of points as numberText() of withoutErrorOfZero(): x, inner, y, then outer before the next point.
QString coordinateTexts(const QPolygonF &points, int digits, char inner, char outer);

//! coordinateTexts() of the points that a text tells with other characters between their coordinates. False, and
//! nothing is changed, for a text of which it isn't plain at sight that it has all coordinates as they would be
//! printed.
bool separateCoordinates(QString &text, int digits, char inner, char outer);

} // namespace lessonhost

#endif // NUMBERTEXTS_H
