// SPDX-License-Identifier: MIT
#ifndef NUMBERTEXT_H
#define NUMBERTEXT_H

#include <QMatrix>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

#include <array>
#include <optional>

// The number texts of items: decimal numbers between commas. All readers know how many numbers they need and give
// nothing when the text is too short; a part that does not read as a number counts as 0.

//! A number in the format 'g' with six significant digits.
QString numberText(double value);

//! The same, at the end of a text.
void appendNumber(QString &text, double value);

//! The number of a whole text in single precision, as Qt reads it in the C locale; 0 for any other text.
float toSingle(QStringView text);

//! The numbers of a text, split at every comma; an empty text gives the single number 0.
QVector<double> numbersFromText(const QString &text);

//! The first N parts in single precision, or nothing if there are fewer.
template <std::size_t N> std::optional<std::array<float, N>> leadingFloats(const QString &text)
{
    std::array<float, N> numbers{};
    int start = 0;
    for (float &number : numbers) {
        if (start < 0) {
            return std::nullopt;
        }
        const int end = text.indexOf(QLatin1Char(','), start);
        number = toSingle(text.midRef(start, end < 0 ? -1 : end - start));
        start = end < 0 ? -1 : end + 1;
    }
    return numbers;
}

//! Part number index of a text split at every comma, read as a decimal integer, or 0.
int integerPart(const QStringList &parts, int index);

//! m11,m12,m21,m22,dx,dy in single precision; nothing if there are fewer than six parts.
std::optional<QMatrix> matrixFromText(const QString &text);

//! m11,m12,m21,m22,dx,dy, six digits each.
QString matrixToText(const QMatrix &matrix);

//! left,top,right,bottom in single precision as a rectangle; nothing if there are fewer than four parts.
std::optional<QRectF> boxFromText(const QString &text);

//! left,top,right,bottom, six digits each.
QString boxToText(const QRectF &box);

#endif // NUMBERTEXT_H
