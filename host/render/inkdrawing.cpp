#include "render/inkdrawing.h"

#include "lesson/isoneof.h"
#include "lesson/itemtypes.h"
#include "lesson/planegeometry.h"
#include "render/inkpath.h"
#include "render/itemoutline.h"
#include "svg/svgstyle.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String stampType("ZQStrokesStamp");
const QLatin1String rubbedType("ZQStrokesDeletePixel");
const QLatin1String textureType("ZQStrokeTexture");
const QLatin1String textureKey("DrawTexture");
const QLatin1String stampKey("Stamp");

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

// What takes a stroke to the page. One without a box turns about the middle of its points.
QTransform inkPlace(const ItemView &item)
{
    if (item.matrix() || item.box()) {
        return placeOnPage(item);
    }
    return turnAndFlips(item, extentOf(item.strokePoints()).center());
}

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

// Line styles by their names, such as "dash", "DashDotLine" and "dash dot dot". What a number means nobody tells.
QVector<double> dashesOf(const QString &style)
{
    QString name;
    for (const QChar c : style) {
        name += c.isLetter() ? QString(c.toLower()) : QString();
    }
    name.remove(QLatin1String("line"));
    static const QHash<QString, QVector<double>> named{
        {QStringLiteral("dash"), {4, 3}},          {QStringLiteral("dashed"), {4, 3}},
        {QStringLiteral("dot"), {1, 2}},           {QStringLiteral("dotted"), {1, 2}},
        {QStringLiteral("dashdot"), {4, 2, 1, 2}}, {QStringLiteral("dashdotdot"), {4, 2, 1, 2, 1, 2}},
    };
    return named.value(name);
}

Qt::PenCapStyle capOf(const QString &name)
{
    return name == QLatin1String("flat") || name == QLatin1String("butt") ? Qt::FlatCap
        : name == QLatin1String("square")                                 ? Qt::SquareCap
                                                                          : Qt::RoundCap;
}

Ink inkOf(const ItemView &item)
{
    Ink ink{InkTrack(inkPlace(item).map(item.strokePoints()), pointWidths(item)), inkWidth(item), inkColor(item),
            capOf(item.text(QLatin1String("Cap"))), dashesOf(item.text(QLatin1String("DashStyle")))};
    if (!ink.dashes.isEmpty()) {
        ink.cap = Qt::FlatCap;
    }
    return ink;
}

// What the ink covers, by the winding rule.
QPainterPath areaOf(const Ink &ink)
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
        if (!ink.dashes.isEmpty()) {
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
    QDomElement line = svg.addPath(smoothLine(ink.track), paint);
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

void addArea(PlainSvg &svg, const Ink &ink, const QPainterPath &area)
{
    SvgPaint paint;
    paint.fill = ink.color;
    paint.line = Qt::transparent;
    svg.addPath(area, paint);
}

bool drawLine(Canvas &canvas, const ItemView &item)
{
    const Ink ink = inkOf(item);
    if (ink.track.points.isEmpty()) {
        return false;
    }
    if (ink.track.isDot() || !ink.track.widths.isEmpty()) {
        addArea(canvas.svg(), ink, areaOf(ink));
    } else {
        addLine(canvas.svg(), ink);
    }
    return true;
}

} // namespace

SvgDrawing inkDrawing(const QString &type)
{
    return isInk(type) ? &drawLine : nullptr;
}

std::optional<QPainterPath> rubbedArea(const ItemView &item)
{
    if (item.type() != rubbedType) {
        return std::nullopt;
    }
    Ink ink = inkOf(item);
    return ink.track.points.isEmpty() ? std::nullopt : std::optional<QPainterPath>(areaOf(ink));
}

} // namespace lessonhost
