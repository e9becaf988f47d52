// SPDX-License-Identifier: MIT
#ifndef FONTVALUES_H
#define FONTVALUES_H

#include <QString>
#include <QStringList>
#include <Qt>

namespace lessonhost {

// Fonts and alignment as svg and runs of text name them.

//! Pixels of a text whose size isn't given.
constexpr double defaultFontPixels = 28;

//! The weight of a QFont for a number from 100 to 900 or "bold" and the like; the usual one for other texts.
int fontWeight(const QString &text);

//! The number for a QFont's weight, with "normal" for 400 and "bold" for 700.
QString fontWeightText(int fontWeight);

//! Left, right, centre or justify, by the names that svg and HTML have for them; left for other texts.
Qt::AlignmentFlag textAlignment(const QString &text);

//! Its names in svg ("start", "end", "center" or "justify") and in HTML ("left", ...).
QLatin1String svgAlignment(Qt::Alignment alignment);
QLatin1String htmlAlignment(Qt::Alignment alignment);

//! The families of a font, and behind them the generic one that stands in where a machine has none of them: "serif",
//! "sans-serif" or "monospace", as the names tell.
QStringList withGenericFamily(QStringList families);

//! The families of a list as svg and style sheets write it, without quotes.
QStringList familiesIn(const QString &list);

//! The list as svg writes it.
QString svgFamilies(const QStringList &families);

} // namespace lessonhost

#endif // FONTVALUES_H
