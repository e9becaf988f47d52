// SPDX-License-Identifier: MIT
#ifndef PAGEPRINTER_H
#define PAGEPRINTER_H

#include <QCache>
#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

namespace lessonhost {

class PictureStore;
struct PlacedPicture;
struct SlidePicture;

/*!
 * Paints pages. Pictures that several slides show are unpacked once, as long as there is room for them.
 */
class PagePrinter
{
public:
    //! store has to live as long.
    explicit PagePrinter(const PictureStore &store);

    //! Stretches the page to an area.
    void paint(QPainter &painter, const SlidePicture &picture, const QRectF &area);

private:
    void paintPicture(QPainter &painter, const PlacedPicture &picture);
    QImage image(const QString &name);

    const PictureStore &m_store;
    QCache<QString, QImage> m_images; // the cost in KiB
};

} // namespace lessonhost

#endif // PAGEPRINTER_H
