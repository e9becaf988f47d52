// SPDX-License-Identifier: MIT
#ifndef SLIDEPLAY_H
#define SLIDEPLAY_H

#include "lesson/lesson.h"

namespace lessonhost {

class IwbMedia;
class PageFiles;
struct PlaySteps;
struct ShownItem;

//! What the page of a lesson does with a slide: {"change", "steps", "triggers", "items", "activity"}, where items have
//! something to do: {"id", "label", "groups", "link", "media", "tool"}. Docs: HTML.md. Files are added to files.
QJsonObject slidePlay(const LessonSlide &slide, const QVector<ShownItem> &items, const PlaySteps &steps,
                      IwbMedia &media, PageFiles &files);

} // namespace lessonhost

#endif // SLIDEPLAY_H
