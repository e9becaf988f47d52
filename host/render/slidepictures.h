// SPDX-License-Identifier: MIT
#ifndef SLIDEPICTURES_H
#define SLIDEPICTURES_H

#include "iwb/iwbmedia.h"
#include "iwb/iwbpagewriter.h"
#include "lesson/lesson.h"
#include "lesson/missingfonts.h"
#include "render/textlanguage.h"

#include <QColor>
#include <QDomDocument>
#include <QSizeF>
#include <QVector>

#include <optional>

namespace lessonhost {

class PageFiles;
class PictureStore;

/*!
 * One slide as an svg whose pictures lie in a store.
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
    QDomDocument svg;
    QString title; //!< what its uppermost text says; may be empty
    TextLanguage language;
    QVector<Told> named; //!< shown by their names alone
    QJsonObject play; //!< of slidePlay(), where the slide is drawn to be played

    //! "Slide 3: What plants live on"
    Sentence outlineLine() const;
};

/*!
 * Draws slides, each in its own size: every item as its type is drawn, or in a named box, so that nobody takes a gap
 * for an empty page. What stands in groups goes with them; hidden items are left out.
 */
class SlidePictures
{
public:
    //! store: takes the pictures. ground: in place of the slides' own colours. Reader and store have to live
    //! as long.
    SlidePictures(LessonReader &reader, const LessonContext &context, PictureStore &store,
                  const std::optional<QColor> &ground = {});

    //! From now on slides are drawn to be played: each item stands in a group that tells which it is, also one that is
    //! hidden until a step brings it in. files takes those that play or open, and has to live as long.
    void play(PageFiles &files) { m_files = &files; }

    //! From now on what slides say of items is English, and the same for everyone.
    void sayInEnglish() { m_isEnglish = true; }

    //! The picture of a slide, counted from 0. Throws LessonError.
    SlidePicture picture(int index);

    //! What the pictures so far have in letters and fonts that aren't here.
    const MissingFonts &missingFonts() const { return m_missing; }

private:
    LessonReader &m_reader;
    PictureStore &m_store;
    std::optional<QColor> m_ground;
    PageFiles *m_files = nullptr;
    bool m_isEnglish = false;
    IwbMedia m_media;
    IwbPageWriter m_pages;
    MissingFonts m_missing;
};

} // namespace lessonhost

#endif // SLIDEPICTURES_H
