// SPDX-License-Identifier: MIT
#ifndef LESSONPAGE_H
#define LESSONPAGE_H

#include "files/packagetarget.h"
#include "render/htmlpictures.h"
#include "render/pictureoutput.h"

#include <QSet>

namespace lessonhost {

class PageFiles;

/*!
 * A page that a lesson is given from: all slides, what they do as data, and the script that does it (render/page/).
 * Files that play or open lie in a folder beside it, or in the page. Nothing of the lesson is markup or script.
 */
class LessonPage : public PictureOutput
{
public:
    //! store and files have to live as long; files is complete when the last slide is added.
    LessonPage(const QString &path, const QString &title, const RenderSettings &settings, const PictureStore &store,
               const PageFiles &files);
    void add(const SlidePicture &picture) override;
    QStringList finish() override;

private:
    void put(const QByteArray &html) { m_target.file().put(html); }
    void putHead();
    void putSlides();
    void putFile(int number);

    QString m_path;
    QString m_title;
    RenderSettings m_settings;
    const PageFiles &m_files;
    PackageTarget m_target;
    OutputFile m_slides; // until it is known what styles they have
    QByteArray m_styles; // hashes
    HtmlPictures m_pictures;
    QSet<QString> m_kinds; // of items, by their plain names
    int m_widest = 1; // slide, which is as wide as there is room where all are shown; others are in proportion
};

} // namespace lessonhost

#endif // LESSONPAGE_H
