// SPDX-License-Identifier: MIT
#ifndef HTMLPICTURES_H
#define HTMLPICTURES_H

#include <QByteArray>
#include <QDomElement>
#include <QSet>

namespace lessonhost {

class PictureStore;

/*!
 * The pictures of an HTML page. A picture stands before the first drawing that shows it, and drawings refer to it.
 */
class HtmlPictures
{
public:
    //! store has to live as long.
    explicit HtmlPictures(const PictureStore &store)
        : m_store(store)
    {
    }

    //! A drawing as HTML, behind those of its pictures that weren't there yet. Throws LessonError.
    QByteArray html(const QDomElement &svg);

private:
    QByteArray pictureHtml(const QString &name) const;

    const PictureStore &m_store;
    QSet<QString> m_written;
};

} // namespace lessonhost

#endif // HTMLPICTURES_H
