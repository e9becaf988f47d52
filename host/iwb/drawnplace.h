// SPDX-License-Identifier: MIT
#ifndef DRAWNPLACE_H
#define DRAWNPLACE_H

#include "lesson/shapegeometry.h"

namespace lessonhost {

//! True for two items that draw in the same place, whatever values tell it: points that fill a box and are turned, or
//! points of the page. moved: what is done with the place of the given item. False where a value that tells a place of
//! the given item isn't all used. line: what stands for the line of a stroke; its own if it is empty. foundLine: the
//! points of found ink that has no steps.
bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, const OutlineSource &outlines,
                  const QTransform &moved = {}, const QPolygonF &line = {}, const QPolygonF &foundLine = {});

//! A few points of a long line, which cover as much and are found as the whole line would be: all of its points come
//! over in six digits, each by itself. The line of any other stroke is empty.
QPolygonF shortLineOf(const QJsonObject &stroke, const QPolygonF &line);

} // namespace lessonhost

#endif // DRAWNPLACE_H
