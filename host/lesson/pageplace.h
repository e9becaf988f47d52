// SPDX-License-Identifier: MIT
#ifndef PAGEPLACE_H
#define PAGEPLACE_H

#include "lesson/lesson.h"
#include "lesson/shapegeometry.h"

namespace lessonhost {

using TypeTest = std::function<bool(const QString &itemType)>;

/*!
 * Brings the values of raw lessons into the keys that packages have for them, such that what is drawn stays the same.
 *
 * Packages know no matrix: an item stands in its box, turned about its centre by Angle. Their media have a resource,
 * their texts are HTML, the background of a page is a color and a document. What has no such form, a slanted picture
 * for instance, or has a wrong value in its place, keeps its own keys.
 *
 * placed is increased by the items whose Matrix was worked into their box, turn or points. isHeld: true for types whose
 * items a package holds as they are, so that nothing of them is changed; may be empty.
 */
LessonSlide slideInPageForm(const LessonSlide &slide, const OutlineSource &outlines, int *placed = nullptr,
                            const TypeTest &isHeld = {});

//! What a package is asked to keep of the keys of an item or slide: its own, with the place that page form has worked
//! out, and without what has done its part in that.
QJsonObject keptInPageForm(const QJsonObject &own, const QJsonObject &inPageForm);

//! True for an item whose Angle tells no more than its Matrix does.
bool isTurnOfMatrix(const QJsonObject &item);

//! A package names a media item's file as its resource; a raw lesson lists files in MultiMediaFile. The first becomes
//! the resource of an item that has none, and a list of one goes.
void nameMediaFile(QJsonObject &item);

} // namespace lessonhost

#endif // PAGEPLACE_H
