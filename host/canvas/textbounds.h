// SPDX-License-Identifier: MIT
#ifndef TEXTBOUNDS_H
#define TEXTBOUNDS_H

#include <QFont>
#include <QTextDocument>

namespace lessonhost {

//! The size of the largest letters in a text, in pixels.
constexpr double largestLetters = 2000;

//! The size of a font in pixels, of which an inch has 96.
double pixelsOf(const QFont &font);

//! What is higher than this in pixels is cut off; text documents don't count to more than eight times that.
constexpr double highestText = 4e6;

//! How high a text may become.
struct TextHeight
{
    double all = 0;
    double letter = 0; //!< what one letter more adds at most
};

//! Makes the lengths that a text tells such that its layout comes to an end, which text documents don't where a sum of
//! them is larger than they can count. Of a text that would be higher than any page nevertheless, the beginning of its
//! words is left. To be done before there is a layout. Returns
//! how high it may become.
TextHeight boundText(QTextDocument &document);

} // namespace lessonhost

#endif // TEXTBOUNDS_H
