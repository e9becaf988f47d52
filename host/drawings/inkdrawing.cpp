// SPDX-License-Identifier: MIT
#include "drawings/inkdrawing.h"

#include "drawings/itemoutline.h"
#include "lesson/itemtypes.h"
#include "lesson/planegeometry.h"
#include "svg/inkpath.h"
#include "svg/svgstyle.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

#include <cmath>
#include <functional>

namespace lessonhost {

namespace {

const QLatin1String rubbedType("ZQStrokesDeletePixel");
const QLatin1String textureKey("DrawTexture");
const QLatin1String stampKey("Stamp");

constexpr qint64 mostPixelsOfTexture = 2000000;

/*!
 * How a stroke is drawn.
 */
struct Ink
{
    InkTrack track;
    double width; //!< where the track has none
    QColor color;
    Qt::PenCapStyle cap;
    QVector<double> dashes; //!< in widths
};

double inkWidth(const ItemView &item)
{
    constexpr double widest = 1000;
    const double width = item.numbers(ItemKeys::width).value(0, strokeWidth);
    return qBound(0.1, (width > 0 ? width : strokeWidth) * item.scale(), widest);
}

QVector<double> pointWidths(const ItemView &item)
{
    QVector<double> widths = item.numbers(QLatin1String("PointBrushWid"));
    constexpr double widest = 1000;
    for (double &width : widths) {
        width = qBound(0.0, width * item.scale(), widest);
    }
    return widths;
}

QColor inkColor(const ItemView &item)
{
    QColor color = item.color(ItemKeys::color).value_or(QColor(Qt::red));
    if (item.has(ItemKeys::opacity)) {
        color.setAlphaF(qBound(0.0, item.number(ItemKeys::opacity) / 255, 1.0));
    }
    return color;
}

Ink inkOf(const ItemView &item)
{
    Ink ink{InkTrack(placeOfStroke(item).map(item.strokePoints()), pointWidths(item)), inkWidth(item), inkColor(item),
            inkCap(item.text(QLatin1String("Cap"))), inkDashes(item.text(QLatin1String("DashStyle")))};
    if (!ink.dashes.isEmpty()) {
        ink.cap = Qt::FlatCap;
    }
    return ink;
}

// What the ink covers, by the winding rule.
QPainterPath inkedArea(const Ink &ink)
{
    QPainterPath area;
    if (ink.track.isDot()) {
        const double radius = ink.track.widths.value(0, ink.width) / 2;
        area.addEllipse(ink.track.points.first(), radius, radius);
    } else if (!ink.track.widths.isEmpty()) {
        area = brushOutline(ink.track);
    } else {
        QPainterPathStroker stroker;
        stroker.setWidth(ink.width);
        stroker.setCapStyle(ink.cap);
        stroker.setJoinStyle(Qt::RoundJoin);
        constexpr double mostDashes = 10000; // each takes longer to cut than a bend
        if (!ink.dashes.isEmpty() && ink.track.length() < mostDashes * ink.width) {
            stroker.setDashPattern(ink.dashes);
        }
        area = stroker.createStroke(smoothLine(ink.track));
    }
    area.setFillRule(Qt::WindingFill);
    return area;
}

void addLine(PlainSvg &svg, const Ink &ink)
{
    SvgPaint paint;
    paint.fill = Qt::transparent;
    paint.line = ink.color;
    paint.lineWidth = ink.width;
    QDomElement line = svg.addPathElement(smoothLine(ink.track), paint);
    if (ink.cap != Qt::FlatCap) {
        line.setAttribute(QStringLiteral("stroke-linecap"),
                          ink.cap == Qt::RoundCap ? QStringLiteral("round") : QStringLiteral("square"));
    }
    QStringList lengths;
    for (const double length : ink.dashes) {
        lengths.append(QString::number(length * ink.width));
    }
    if (!lengths.isEmpty()) {
        line.setAttribute(QStringLiteral("stroke-dasharray"), lengths.join(QLatin1Char(',')));
    }
}

QDomElement addArea(PlainSvg &svg, const Ink &ink, const QPainterPath &area)
{
    SvgPaint paint;
    paint.fill = ink.color;
    paint.line = Qt::transparent;
    return svg.addPathElement(area, paint);
}

QRectF boundsOf(const Ink &ink)
{
    double widest = ink.width;
    for (const double width : ink.track.widths) {
        widest = qMax(widest, width);
    }
    return extentOf(ink.track.points).adjusted(-widest, -widest, widest, widest);
}

bool isRubbedOut(Canvas &canvas, const ItemView &item, const QRectF &bounds)
{
    return !item.flag(ItemKeys::ignoresEraser) && canvas.rubbing().reaches(bounds, canvas.svg().transform());
}

// Paints what no svg has a form for into a picture that fills a box, as far as the page shows it, and takes away from
// it what was rubbed out. False if there were too many such pictures before.
bool addPainted(Canvas &canvas, const ItemView &item, const QRectF &box, const std::function<void(QPainter &)> &paint)
{
    PlainSvg &svg = canvas.svg();
    const QTransform toPage = svg.transform();
    const QRectF shown = box & toPage.inverted().mapRect(QRectF(QPointF(), svg.size()));
    constexpr double mostPixels = 4e6;
    const double most = qMin(mostPixels, double(svg.mostPixels()));
    const double scale = qMin(meanScale(toPage), std::sqrt(most / (shown.width() * shown.height())));
    const QSize size = (shown.size() * scale).toSize();
    if (shown.isEmpty() || size.isEmpty() || size.width() > mostPixels || size.height() > mostPixels) {
        return shown.isEmpty();
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(size.width() / shown.width(), size.height() / shown.height());
    painter.translate(-shown.topLeft());
    paint(painter);
    if (isRubbedOut(canvas, item, shown)) {
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        const QVector<QPainterPath> areas = canvas.rubbing().areasToPaint(shown, toPage);
        for (const QPainterPath &area : areas) {
            painter.fillPath(area, Qt::black);
        }
    }
    painter.end();
    svg.addImage(image, shown);
    return true;
}

// What is left of a stroke: as an area where that can be found in time, else as a picture.
bool drawRest(Canvas &canvas, const ItemView &item, const Ink &ink)
{
    const QPainterPath area = inkedArea(ink);
    if (const auto rest = canvas.rubbing().rest(area, canvas.svg().transform())) {
        addArea(canvas.svg(), ink, *rest).setAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
        return true;
    }
    const auto paint = [&](QPainter &painter) { painter.fillPath(area, ink.color); };
    return canvas.rubbing().mayPaint() && addPainted(canvas, item, area.boundingRect(), paint);
}

bool drawLine(Canvas &canvas, const ItemView &item)
{
    const Ink ink = inkOf(item);
    if (ink.track.points.isEmpty()) {
        return false;
    }
    if (isRubbedOut(canvas, item, boundsOf(ink)) && drawRest(canvas, item, ink)) {
        return true;
    }
    if (ink.track.isDot() || !ink.track.widths.isEmpty()) {
        addArea(canvas.svg(), ink, inkedArea(ink));
    } else {
        addLine(canvas.svg(), ink);
    }
    return true;
}

// What is left of a stroke that shows a texture. False where that has to be found by painting it.
bool addTexture(Canvas &canvas, const ItemView &item, const Ink &ink)
{
    std::optional<QPainterPath> area = inkedArea(ink);
    const bool isRubbed = isRubbedOut(canvas, item, boundsOf(ink));
    if (isRubbed) {
        area = canvas.rubbing().rest(*area, canvas.svg().transform());
    }
    QDomElement shape = area ? canvas.addTexture(*area, item.text(textureKey), ink.color) : QDomElement();
    if (isRubbed && !shape.isNull()) {
        shape.setAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
    }
    return !shape.isNull();
}

// The stroke shows its texture, side by side from the page's corner on.
bool drawTexture(Canvas &canvas, const ItemView &item)
{
    const Ink ink = inkOf(item);
    if (!ink.track.points.isEmpty() && addTexture(canvas, item, ink)) {
        return true;
    }
    const QImage texture = canvas.picture(item.text(textureKey), mostPixelsOfTexture);
    if (ink.track.points.isEmpty() || texture.isNull() || !canvas.rubbing().mayPaint()) {
        return drawLine(canvas, item);
    }
    const QPainterPath area = inkedArea(ink);
    return addPainted(canvas, item, area.boundingRect(),
                      [&](QPainter &painter) {
                          painter.setOpacity(ink.color.alphaF());
                          painter.fillPath(area, QBrush(texture));
                      })
        || drawLine(canvas, item);
}

// A picture at each point, as wide as the stroke; one alone fills the item's box.
QVector<QRectF> stampBoxes(const ItemView &item, const QSizeF &picture)
{
    const QPolygonF points = item.strokePoints();
    const auto box = item.box();
    if (box && !box->isEmpty() && points.size() < 2) {
        return {*box};
    }
    const double width = item.numbers(ItemKeys::width).value(0, strokeWidth);
    const QSizeF size(width, width * picture.height() / picture.width());
    QVector<QRectF> boxes;
    for (const QPointF &point : points) {
        boxes.append(QRectF(point - QPointF(size.width(), size.height()) / 2, size));
    }
    return boxes;
}

bool drawStamps(Canvas &canvas, const ItemView &item)
{
    const QString file = item.text(item.has(stampKey) ? stampKey : textureKey);
    const QSize picture = canvas.pictureSize(file);
    if (picture.isEmpty()) {
        return false;
    }
    const QVector<QRectF> boxes = stampBoxes(item, picture);
    const QTransform placed = placeOfStroke(item);
    QRectF all;
    for (const QRectF &box : boxes) {
        all |= placed.mapRect(box);
    }
    if (isRubbedOut(canvas, item, all)) {
        const QImage image = canvas.picture(file, mostPixelsOfTexture);
        return addPainted(canvas, item, all, [&](QPainter &painter) {
            painter.setTransform(placed, true);
            for (const QRectF &box : boxes) {
                painter.drawImage(box, image);
            }
        });
    }
    bool isDrawn = false;
    for (const QRectF &box : boxes) {
        isDrawn = canvas.addPicture(file, box, placed) || isDrawn;
    }
    return isDrawn;
}

// Nothing is to be seen of what is rubbed out.
bool drawRubbing(Canvas &canvas, const ItemView &item)
{
    const bool isKnown = !item.strokePoints().isEmpty();
    if (isKnown) {
        canvas.rubbing().passFirst();
    }
    return isKnown;
}

} // namespace

SvgDrawing inkDrawing(const QString &type)
{
    static const QHash<QString, SvgDrawing> drawings{
        {QStringLiteral("ZQStrokesStamp"), &drawStamps},
        {QStringLiteral("ZQStrokeTexture"), &drawTexture},
        {rubbedType, &drawRubbing},
    };
    return drawings.value(type, isInk(type) ? &drawLine : nullptr);
}

std::optional<QPainterPath> rubbedArea(const ItemView &item)
{
    if (item.type() != rubbedType) {
        return std::nullopt;
    }
    const Ink ink = inkOf(item);
    return ink.track.points.isEmpty() ? std::nullopt : std::optional<QPainterPath>(inkedArea(ink));
}

} // namespace lessonhost
