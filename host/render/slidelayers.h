// SPDX-License-Identifier: MIT
#ifndef SLIDELAYERS_H
#define SLIDELAYERS_H

#include <QByteArray>
#include <QDomElement>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QVector>

namespace lessonhost {

class PictureStore;

/*!
 * A picture as it stands on a page: stretched to a box, which a transform brings to the page.
 */
struct PlacedPicture
{
    QString name; //!< in the store
    QImage image; //!< of one that stands on this page only
    QRectF box;
    QTransform transform;
    double opacity = 1;

    bool isNone() const { return name.isEmpty() && image.isNull(); }
};

//! The picture that an element of a drawing shows.
PlacedPicture placedPicture(const QDomElement &element, const PictureStore &store);

/*!
 * A part of a page: either a drawing of its lines and texts or a picture.
 */
struct SlideLayer
{
    QByteArray svg; //!< fills a box, which a transform brings to the page
    QRectF box;
    QTransform transform;
    PlacedPicture picture;
};

//! A drawing of a page taken apart from back to front, for libraries that are better handed pictures than texts that
//! hold them. Drawings within it stay whole. What stands in groups that stretch it has its transform beside it.
//! Pictures within groups stay in the drawings.
QVector<SlideLayer> layersOf(const QDomElement &svg, const PictureStore &store);

} // namespace lessonhost

#endif // SLIDELAYERS_H
