// SPDX-License-Identifier: MIT
#ifndef FONTSHERE_H
#define FONTSHERE_H

#include <QString>
#include <QStringList>

namespace lessonhost {

// What fonts this machine has. Without a QGuiApplication, which knows them, all are said to be here.

//! True for a family that is here, or one of the same widths in its place.
bool hasFamily(const QString &family);

//! The first of the families that is here, or else the generic one that withGenericFamily() puts at their end.
QString familyHere(const QStringList &families);

//! True where some font has the letter, and for what is none: blanks, controls, marks, and what Unicode leaves open.
bool hasGlyph(uint letter);

} // namespace lessonhost

#endif // FONTSHERE_H
