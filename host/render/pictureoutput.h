// SPDX-License-Identifier: MIT
#ifndef PICTUREOUTPUT_H
#define PICTUREOUTPUT_H

#include "render/rendersettings.h"

#include <QStringList>

#include <memory>

namespace lessonhost {

class PageFiles;
class PictureStore;
struct SlidePicture;

/*!
 * Takes the pictures of slides one after the other and puts everything in its place at the end. Every function throws
 * LessonError; an output that goes without finish() leaves what was there.
 */
class PictureOutput
{
public:
    virtual ~PictureOutput() = default;
    virtual void add(const SlidePicture &picture) = 0;
    //! Returns the files.
    virtual QStringList finish() = 0;
};

//! A name with the number of a slide, counted from 1, in the place of %d, or of %03d with zeros before it.
QString numberedName(const QString &name, int slide);

//! The output of that name in settings.form. store: where the pictures on the slides lie. files: what a
//! page plays and opens, complete when the last slide is added. slides: those that will come,
//! counted from 0. Throws LessonError for a name that can't hold them.
std::unique_ptr<PictureOutput> pictureOutput(const QString &path, const QString &title, const RenderSettings &settings,
                                             const PictureStore &store, const PageFiles &files,
                                             const QVector<int> &slides);

} // namespace lessonhost

#endif // PICTUREOUTPUT_H
