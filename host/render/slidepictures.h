#ifndef SLIDEPICTURES_H
#define SLIDEPICTURES_H

#include "iwb/iwbmedia.h"
#include "iwb/iwbpagewriter.h"
#include "lesson/lesson.h"

#include <QSizeF>
#include <QVector>

namespace lessonhost {

/*!
 * One slide as an svg that needs no other file.
 */
struct SlidePicture
{
    //! What it says of an item.
    struct Told
    {
        QString type;
        QString id;
    };

    int slide = 0; //!< counted from 1
    QSizeF size; //!< pixels
    QByteArray svg;
    QVector<Told> named; //!< shown by their names alone
};

/*!
 * Draws slides, each in its own size: every item as its type is drawn, or in a named box, so that nobody takes a gap
 * for an empty page. What stands in groups goes with them; hidden items are left out.
 */
class SlidePictures
{
public:
    SlidePictures(LessonReader &reader, const LessonContext &context);

    //! The picture of a slide, counted from 0. Throws LessonError.
    SlidePicture picture(int index);

private:
    LessonReader &m_reader;
    IwbMedia m_media;
    IwbPageWriter m_pages;
};

} // namespace lessonhost

#endif // SLIDEPICTURES_H
