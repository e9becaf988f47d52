// SPDX-License-Identifier: MIT
#ifndef ITEMPICTURES_H
#define ITEMPICTURES_H

#include "canvas/picturestore.h"
#include "render/pageprinter.h"
#include "render/slidepictures.h"

#include <QJsonArray>

#include <memory>

/*!
 * An item as it is drawn on a page of its own.
 */
struct ItemPicture
{
    QByteArray svg; //!< with its pictures inside
    QVector<lessonhost::SlidePicture::Told> named; //!< the item, if it is shown by its name alone
};

/*!
 * Draws typical items, each time on a new slide of a lesson that has their files.
 */
class ItemPictures
{
public:
    //! A page that leaves room around the typical boxes of all types, turned or not.
    static QSizeF pageSize() { return {320, 320}; }

    //! plugin has to live as long.
    explicit ItemPictures(IZQTransformation *plugin, const QSizeF &page = pageSize());
    ~ItemPictures();

    //! The typical box of a type in its middle.
    static QRectF boxOf(const QString &type);

    //! Throws LessonError.
    ItemPicture draw(const QJsonArray &items);
    //! The same as pixels.
    void paint(QPainter &painter, const QRectF &area, const QJsonArray &items);

private:
    class Lesson;
    std::unique_ptr<Lesson> m_lesson;
    lessonhost::PictureStore m_store;
    lessonhost::PagePrinter m_printer{m_store};
    std::unique_ptr<lessonhost::SlidePictures> m_pictures;
};

#endif // ITEMPICTURES_H
