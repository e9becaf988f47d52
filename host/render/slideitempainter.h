// SPDX-License-Identifier: MIT
#ifndef SLIDEITEMPAINTER_H
#define SLIDEITEMPAINTER_H

#include "canvas/picturestore.h"
#include "iwb/iwbmedia.h"
#include "iwb/iwbpagewriter.h"
#include "lesson/lesson.h"
#include "render/pageprinter.h"

#include <QByteArray>
#include <QImage>

#include <functional>

namespace lessonhost {

class Drawings;
class PlainSvg;

/*!
 * Paints items one by one as slides show them, at twice their size, on nothing, or tells the elements that show them.
 */
class SlideItemPainter : public ItemPainter
{
public:
    //! reader: of the lesson; it has to live as long. isTrial: it is only asked whether items show something, and what
    //! is written on them. Throws LessonError.
    SlideItemPainter(LessonReader &reader, IZQTransformation *plugin, bool isTrial = false);

    std::optional<PaintedItem> paint(const PlacedItem &item, const QVector<PlacedItem> &rubbing, const QSizeF &page,
                                     Form form) override;
    std::optional<PaintedItem> paintGame(const LessonSlide &slide, const QSizeF &page) override;
    QImage thumbnail(int width) override;

private:
    void startPage(const QSizeF &page);
    std::optional<PaintedItem> painted(const std::function<bool(PlainSvg &plain, Drawings &drawings)> &draw,
                                       const QSizeF &page, Form form);
    QImage canvas(const QSize &size);

    LessonReader &m_reader;
    IZQTransformation *m_plugin;
    bool m_isTrial;
    IwbMedia m_media;
    PictureStore m_store;
    PagePrinter m_printer;
    IwbPageWriter m_pages;
    QSizeF m_page; // of the document of m_pages
    QByteArray m_pixels; // of what is being painted
};

} // namespace lessonhost

#endif // SLIDEITEMPAINTER_H
