// SPDX-License-Identifier: MIT
#ifndef SLIDEDIFFERENCE_H
#define SLIDEDIFFERENCE_H

#include "lesson/lesson.h"

#include <QByteArray>

namespace lessonhost {

class LossReport;

/*!
 * What the second of two slides lacks, for people: items that aren't there, and values of those that are. Items are
 * told by their identifiers, wherever they stand and whether or not they are in a group.
 *
 * slide is counted from 1. isSeen: whether the two look different; where they don't, other values are told as such that
 * nobody sees. Adds to losses and returns HTML.
 */
QByteArray slideDifference(const LessonSlide &given, const LessonSlide &found, int slide, bool isSeen,
                           LossReport &losses);

} // namespace lessonhost

#endif // SLIDEDIFFERENCE_H
