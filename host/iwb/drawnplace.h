// SPDX-License-Identifier: MIT
#ifndef DRAWNPLACE_H
#define DRAWNPLACE_H

#include "lesson/shapegeometry.h"

namespace lessonhost {

//! True for two items that draw in the same place, whatever values tell it: points that fill a box and are turned, or
//! points of the page. moved: what is done with the place of the given item. False where a value that tells a place of
//! the given item isn't all used.
bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, const OutlineSource &outlines,
                  const QTransform &moved = {});

} // namespace lessonhost

#endif // DRAWNPLACE_H
