// SPDX-License-Identifier: MIT
#ifndef DIFFERENCEPAGE_H
#define DIFFERENCEPAGE_H

#include "files/packagetarget.h"
#include "render/htmlpictures.h"
#include "sentences/sentence.h"

namespace lessonhost {

struct SlidePicture;

/*!
 * One page with slides, and whatever else is put between them. Every function throws LessonError.
 */
class DifferencePage
{
public:
    //! store has to live as long.
    DifferencePage(const QString &path, const QString &title, const PictureStore &store);
    void add(const SlidePicture &picture);
    void addHtml(const QByteArray &html);
    //! Returns the files.
    QStringList finish();

private:
    PackageTarget m_target;
    HtmlPictures m_pictures;
    int m_widest = 1; // slide, which is as wide as there is room; others are in proportion
};

//! "Slide 3: What plants live on (items shown by their name: 2)"
Sentence captionOf(const SlidePicture &picture);

} // namespace lessonhost

#endif // DIFFERENCEPAGE_H
