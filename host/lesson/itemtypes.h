// SPDX-License-Identifier: MIT
#ifndef ITEMTYPES_H
#define ITEMTYPES_H

#include <QString>

namespace lessonhost {

// What kinds of items there are.

//! True for groups and formulas, which hold other items.
bool isContainer(const QString &itemType);

//! True for the drawn figures, whose control points are written and not read.
bool isFigure(const QString &itemType);

//! True for strokes that are lines. Stamps and records of erased pixels are none.
bool isInk(const QString &itemType);

//! How wide a stroke is that doesn't say it, in pixels.
constexpr double strokeWidth = 5;

bool isTextBoard(const QString &itemType);

//! The folder of an IWB package for the files of this type, or null for types that are no media.
const char *mediaFolder(const QString &itemType);

} // namespace lessonhost

#endif // ITEMTYPES_H
