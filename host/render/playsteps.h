// SPDX-License-Identifier: MIT
#ifndef PLAYSTEPS_H
#define PLAYSTEPS_H

#include "lesson/lesson.h"

#include <QSet>

namespace lessonhost {

class IwbMedia;
class PageFiles;

/*!
 * What moves on a slide when its lesson is given. A step is {"item", "kind", "effect", "start"}, with "loop" and
 * "scale" where they say something: kind is enter, emphasis or exit, start is click, with or after, and effect one of
 * fly, wipe, blinds, circle, fade and zoom. A step with a "link" in the place of kind and effect follows it.
 */
struct PlaySteps
{
    QJsonArray ofSlide; //!< in their order
    QJsonObject ofItems; //!< by the identifier of the item that is clicked: its steps in their order

    bool isEmpty() const { return ofSlide.isEmpty() && ofItems.isEmpty(); }
    //! Identifiers of the items that steps bring in.
    QSet<QString> brought() const;
};

//! The script of a slide, then its list of animated items with the effects that each has. Files that links of the
//! script open are added to files.
PlaySteps playSteps(const LessonSlide &slide, IwbMedia &media, PageFiles &files);

//! How a slide takes the place of another one: {"kind", "to"}, where kind is push, cover, uncover, fade, black, box-in,
//! box-out or zoom, and to the side or corner that things move to. Empty where it is just there.
QJsonObject slideChange(const QJsonObject &slide);

} // namespace lessonhost

#endif // PLAYSTEPS_H
