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
    QVector<Told> upright; //!< shown without the mirror or slant of their Matrix
};

/*!
 * Draws slides: what the IWB export draws of an item, mind maps as boxes and lines, vector shapes and mathematics from
 * what they hold, and a named box for every other item, so that nobody takes a gap for an empty page. Hidden items are
 * left out.
 */
class SlidePictures
{
public:
    SlidePictures(LessonReader &reader, const LessonContext &context);

    //! The picture of a slide, counted from 0. Throws LessonError.
    SlidePicture picture(int index);

private:
    LessonReader &m_reader;
    QStringList m_files;
    IwbMedia m_media;
    IwbPageWriter m_pages;
};

} // namespace lessonhost

#endif // SLIDEPICTURES_H
