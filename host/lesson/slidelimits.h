// SPDX-License-Identifier: MIT
#ifndef SLIDELIMITS_H
#define SLIDELIMITS_H

#include "lesson/lesson.h"

namespace lessonhost {

// A slide is in memory as a whole, in several forms, of which a DOM takes up to forty times the text. So slides that no
// editor could show are neither read nor written.

//! In a file, in bytes.
constexpr qint64 maximumSlideSize = qint64(32) * 1024 * 1024;
//! Items within items counted.
constexpr int maximumSlideItems = 100000;
//! Of ink and lines on a page of IWB, which writes them as points of the page, each a text of its own on the way.
constexpr int maximumPagePoints = 1000000;

// Throw LessonError. number: of the slide, from 1; file: where it stands.
void checkSlideSize(qint64 size, int number, const QString &file);
void checkSlideItems(const QJsonArray &items, int number, const QString &file);
void checkPagePoints(const QJsonArray &items, int number, const QString &file);

} // namespace lessonhost

#endif // SLIDELIMITS_H
