// SPDX-License-Identifier: MIT
#ifndef STROKEOFFSETS_H
#define STROKEOFFSETS_H

#include <QString>

namespace lessonhost {

// The model has the first point of a stroke and the steps from each point to the next; lessons older than version 3
// store each point by its offset from the first. Both are numbers with commas between, x and y in turn, and go into
// each other without errors that add up along the stroke: fifteen digits of each offset are the same again.

//! A part that is no number counts as 0.
QString pointsAsOffsets(const QString &steps);

//! Nothing for a text with a part that is no number. A single number at the end is left out.
QString offsetsAsPoints(const QString &offsets);

} // namespace lessonhost

#endif // STROKEOFFSETS_H
