// SPDX-License-Identifier: MIT
#ifndef MARKS_H
#define MARKS_H

#include <QString>

/*!
 * Tells bench.sh what came out, for the table at its end: appends a line to the file that the variable LESSON_MARKS
 * names, if there is one. mark: what the value may be at most; 0 where there is no mark. beside: what else is told of it.
 */
void tellMark(const QString &what, double value, double mark, const QString &beside = {});

#endif // MARKS_H
