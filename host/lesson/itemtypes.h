#ifndef ITEMTYPES_H
#define ITEMTYPES_H

#include <QString>

namespace lessonhost {

// What kinds of items there are.

//! True for groups and formulas, which hold other items.
bool isContainer(const QString &itemType);

//! True for the drawn figures, whose control points are written and not read.
bool isFigure(const QString &itemType);

} // namespace lessonhost

#endif // ITEMTYPES_H
