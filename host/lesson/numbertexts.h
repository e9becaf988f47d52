// SPDX-License-Identifier: MIT
#ifndef NUMBERTEXTS_H
#define NUMBERTEXTS_H

#include <QString>
#include <QStringView>

namespace lessonhost {

// Numbers as texts and texts as numbers: what Qt makes of them in the C locale, to the bit and to the letter, in a
// fraction of the time for plain numbers, which are nearly all.

//! QString::toDouble(): 0 for a text that is no number, and then ok is false.
double numberOfText(QStringView text, bool *ok = nullptr);

//! QString::number(value, 'g', digits), of up to 12 digits.
QString numberText(double value, int digits = 6);

//! The same, at the end of a text.
void appendNumber(QString &text, double value, int digits = 6);

//! QString::number(value, 'g', QLocale::FloatingPointShortest): as many digits as tell the number from all others.
QString shortestNumberText(double value);

} // namespace lessonhost

#endif // NUMBERTEXTS_H
