#ifndef CONVERSION_H
#define CONVERSION_H

#include "lesson/lesson.h"

namespace lessonhost {

//! Called with the number of slides done and their total.
using Progress = std::function<void(int done, int total)>;

//! Throws LessonError for a format that is only read.
void checkCanWrite(const LessonFormat &format, const QString &output);

//! Converts a lesson. Losses are added to context.losses. Throws LessonError; then the output is as it was.
void convertLesson(const LessonFormat &from, const QString &input, const LessonFormat &to, const QString &output,
                   const LessonContext &context, const Progress &progress);

} // namespace lessonhost

#endif // CONVERSION_H
