// SPDX-License-Identifier: MIT
#ifndef SLIDEDIFFERENCE_H
#define SLIDEDIFFERENCE_H

#include "lesson/lesson.h"

#include <QByteArray>

namespace lessonhost {

class LossReport;
class SlideNotice;

/*!
 * What the second of two slides lacks, for people: items that aren't there, and values of those that are. Items are
 * told by their identifiers, wherever they stand and whether or not they are in a group.
 *
 * slide is counted from 1. What an item lacks is told apart by what people notice of it: it looks otherwise, it does
 * something else, or nothing. Adds to losses and returns HTML.
 */
QByteArray slideDifference(const LessonSlide &given, const SlideNotice &givenNotice, const LessonSlide &found,
                           const SlideNotice &foundNotice, int slide, LossReport &losses);

} // namespace lessonhost

#endif // SLIDEDIFFERENCE_H
