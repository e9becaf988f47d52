// SPDX-License-Identifier: MIT
#ifndef RENDERING_H
#define RENDERING_H

#include "lesson/lesson.h"
#include "render/rendersettings.h"
#include "sentences/sentence.h"

#include <QJsonObject>

namespace lessonhost {

/*!
 * What became of a drawing.
 */
struct Rendered
{
    QJsonObject report;
    Sentences notes; //!< those of the report, to be told
};

//! Draws a lesson into a file, or into files, one a slide, with %d or %03d in the name for the slide's number. Reports
//! {"slides", "files", "named": [{"slide", "type", "id"}], "missingFonts", "notes"}, where named are the items that are
//! shown by name only, missingFonts is MissingFonts::toJson() and notes are its sentences. Throws LessonError; then
//! nothing is written.
Rendered renderLesson(LessonReader &reader, const LessonContext &context, const QString &output,
                      const RenderSettings &settings, const Progress &progress);

//! Writes a .html file with the slides of two lessons side by side and the values of the first that the second lacks.
//! Reports {"slides", "files", "losses", "notes"}. Throws LessonError.
Rendered renderDifference(LessonReader &first, const QString &firstName, LessonReader &second,
                          const QString &secondName, const LessonContext &context, const QString &output,
                          const RenderSettings &settings, const Progress &progress);

} // namespace lessonhost

#endif // RENDERING_H
