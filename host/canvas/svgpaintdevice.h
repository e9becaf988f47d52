// SPDX-License-Identifier: MIT
#ifndef SVGPAINTDEVICE_H
#define SVGPAINTDEVICE_H

#include <QDomElement>
#include <QPaintDevice>
#include <QVector>

#include <functional>
#include <memory>

namespace lessonhost {

/*!
 * A paint device whose paintings become elements of an svg: letters stay text, in the words of a line as they follow
 * each other, so that no viewer has to squeeze them; all else are lines, rectangles and paths. Pictures are
 * handed on, and clips left out.
 */
class SvgPaintDevice : public QPaintDevice
{
public:
    //! Dots in an inch, of which a point is the 72nd part.
    static constexpr int dotsPerInch = 96;

    //! Where letters stand that are set in the middle or at the end of a line, which they keep where a viewer's font is
    //! wider or narrower, or that fill it from one end to the other.
    struct Line
    {
        double baseline;
        double left;
        double right;
        Qt::Alignment alignment;
    };

    //! group: what takes the elements. It has to be in a document as long as the device lives.
    explicit SvgPaintDevice(const QDomElement &group);
    ~SvgPaintDevice() override;
    SvgPaintDevice(const SvgPaintDevice &) = delete;
    SvgPaintDevice &operator=(const SvgPaintDevice &) = delete;

    //! Takes pictures with their boxes; they are left out otherwise. key: of the pixmap or image.
    using PictureTaker = std::function<void(qint64 key, const QRectF &box)>;
    void setPictures(const PictureTaker &taker);

    //! The lines that are to be painted, as far as they don't begin at the left.
    void setLines(QVector<Line> lines);

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
};

} // namespace lessonhost

#endif // SVGPAINTDEVICE_H
