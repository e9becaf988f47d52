#ifndef RENDERING_H
#define RENDERING_H

#include "files/inputguard.h"
#include "lesson/lesson.h"

#include <QJsonObject>
#include <QSize>

namespace lessonhost {

/*!
 * How a lesson is drawn.
 */
struct RenderSettings
{
    QSize size; //!< pixels; empty for that of the lesson's pages
    QVector<int> slides; //!< counted from 0; empty for all
    InputGuard inputs; //!< what is read, which no output may touch
};

//! Whether a name is one that lessons are drawn into, by its ending.
bool isPictureName(const QString &path);

//! "1280x720" as a size; an empty text gives an empty one. Throws LessonError.
QSize sizeFromText(const QString &text);

//! "2-5,8" as slides counted from 0, in this order. Throws LessonError for what isn't such a text.
QVector<int> slidesFromText(const QString &text);

//! Draws a lesson into a .html or .pdf file, or into .svg or .png files, one a slide, with %d in the name for the
//! slide's number. Returns {"slides", "files", "named": [{"slide", "type", "id"}]}, where named are the items that are
//! shown by name only. Throws LessonError; then nothing is written.
QJsonObject renderLesson(LessonReader &reader, const LessonContext &context, const QString &output,
                         const RenderSettings &settings, const Progress &progress);

//! Writes a .html file with the slides of two lessons side by side and the values of the first that the second lacks.
//! Returns {"slides", "files", "losses"}. Throws LessonError.
QJsonObject renderDifference(LessonReader &first, const QString &firstName, LessonReader &second,
                             const QString &secondName, const LessonContext &context, const QString &output,
                             const RenderSettings &settings, const Progress &progress);

} // namespace lessonhost

#endif // RENDERING_H
