// SPDX-License-Identifier: MIT
#include "render/pageprinter.h"

#include "canvas/picturestore.h"
#include "render/slidelayers.h"
#include "render/slidepictures.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace lessonhost {

namespace {

constexpr int heldKibibytes = 128 * 1024;

// Painters take some pixels for many and leave out the rest.
QImage shrunk(const QImage &image, const QSizeF &size)
{
    const QSize wanted = QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))).expandedTo(QSize(1, 1));
    const bool isMuchSmaller = wanted.width() * 2 < image.width() || wanted.height() * 2 < image.height();
    return isMuchSmaller ? image.scaled(wanted.boundedTo(image.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                         : image;
}

} // namespace

PagePrinter::PagePrinter(const PictureStore &store)
    : m_store(store)
    , m_images(heldKibibytes)
{
}

void PagePrinter::paint(QPainter &painter, const SlidePicture &picture, const QRectF &area)
{
    const QTransform toArea(area.width() / picture.size.width(), 0, 0, area.height() / picture.size.height(), area.x(),
                            area.y());
    const QVector<SlideLayer> layers = layersOf(picture.svg.documentElement(), m_store);
    for (const SlideLayer &layer : layers) {
        painter.save();
        if (layer.picture.isNone()) {
            painter.setTransform(layer.transform * toArea, true);
            QSvgRenderer(layer.svg).render(&painter, layer.box);
        } else {
            painter.setTransform(layer.picture.transform * toArea, true);
            paintPicture(painter, layer.picture);
        }
        painter.restore();
    }
}

void PagePrinter::paintPicture(QPainter &painter, const PlacedPicture &picture)
{
    painter.setOpacity(picture.opacity);
    if (!picture.name.isEmpty() && m_store.isDrawing(picture.name)) {
        QSvgRenderer(m_store.drawing(picture.name)).render(&painter, picture.box);
        return;
    }
    const QTransform toDevice = painter.deviceTransform();
    const QSizeF drawn(std::hypot(toDevice.m11(), toDevice.m12()) * picture.box.width(),
                       std::hypot(toDevice.m21(), toDevice.m22()) * picture.box.height());
    const QImage pixels = picture.name.isEmpty() ? picture.image : image(picture.name);
    painter.drawImage(picture.box, shrunk(pixels, drawn));
}

QImage PagePrinter::image(const QString &name)
{
    if (const QImage *held = m_images.object(name)) {
        return *held;
    }
    const QImage image = m_store.image(name);
    m_images.insert(name, new QImage(image), int(image.sizeInBytes() / 1024) + 1);
    return image;
}

} // namespace lessonhost
