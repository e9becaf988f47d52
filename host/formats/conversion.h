// SPDX-License-Identifier: MIT
#ifndef CONVERSION_H
#define CONVERSION_H

#include "formats/lessonformats.h"

namespace lessonhost {

//! Throws LessonError for a format that is only read.
void checkCanWrite(const LessonFormat &format, const QString &output);

//! Converts a lesson. progress is told its slides. Losses are added to context.losses. Throws LessonError; then the
//! output is as it was.
void convertLesson(const LessonFormat &from, const QString &input, const LessonFormat &to, const QString &output,
                   const LessonContext &context, const Progress &progress);

} // namespace lessonhost

#endif // CONVERSION_H
