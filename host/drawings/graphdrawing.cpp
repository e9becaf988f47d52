// SPDX-License-Identifier: MIT
#include "drawings/graphdrawing.h"

#include "canvas/arrowhead.h"
#include "canvas/outline.h"
#include "drawings/itemoutline.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QHash>
#include <QLineF>
#include <QPainterPath>
#include <QVector>
#include <QtMath>

#include <cmath>
#include <optional>
#include <utility>

namespace lessonhost {

namespace {

/*!
 * What is to be seen of an item.
 */
struct GraphDrawing
{
    struct Part
    {
        QPainterPath path; //!< on the page, so that no stretching reaches the width of its line
        SvgPaint paint;
    };
    QVector<Part> parts;
    QRectF textArea; //!< where the shape has room for a text, under placed
    QTransform placed;
};

struct Shape
{
    const char *type;
    double left, top, right, bottom; //!< of the room for text, as parts of the box
    const char *outline;
    int corners = 0; //!< as many points in Control are the shape's corners
    bool isOpen = false; //!< a line that encloses nothing to be filled
    bool hasKinds = false; //!< by ArtObj_Type, of which 0 is the outline
    const char *lineKey = "LineColor";
    const char *fillKey = "ArtObj_Color";
};

constexpr char leftBrace[] =
    "M 1 0 C .75 .02s .5 .08s .5 .2s L .5 .5-.2s C .5 .5-.08s .25 .5-.02s 0 .5 C .25 .5+.02s .5 .5+.08s .5 .5+.2s "
    "L .5 1-.2s C .5 1-.08s .75 1-.02s 1 1";
constexpr char leftBracket[] = "M 1 0 L 0 0 L 0 1 L 1 1";

const Shape shapes[] = {
    {"ZQBasicRectangleItem", 0, 0, 1, 1, "M 0 0 L 1 0 L 1 1 L 0 1 Z"},
    {"ZQBasicEllipseItem", .15, .15, .85, .85, "E 0 0 1 1"},
    {"ZQBasicRhombusItem", .15, .25, .85, .75, "M .5 0 L 1 .5 L .5 1 L 0 .5 Z"},
    {"ZQBasicTriangleItem", .15, .45, .85, 1, "M .5 0 L 1 1 L 0 1 Z", 3},
    {"ZQBasicTrapezoidItem", .2, 0, .8, 1, "M .25 0 L .75 0 L 1 1 L 0 1 Z", 4},
    {"ZQBasicParallelogramItem", .15, 0, .85, 1, "M .25 0 L 1 0 L .75 1 L 0 1 Z", 4},
    {"ZQBasicPentacleItem", .2, .36, .8, .76,
     "M .5 0 L .618 .382 L 1 .382 L .691 .618 L .809 1 L .5 .764 L .191 1 L .309 .618 L 0 .382 L .382 .382 Z"},
    {"ZQBasicHeartShapeItem", .15, .15, .85, .65,
     "M .5 .2 C .45 .08 .36 0 .26 0 C .11 0 0 .12 0 .3 C 0 .55 .28 .72 .5 1 C .72 .72 1 .55 1 .3 "
     "C 1 .12 .89 0 .74 0 C .64 0 .55 .08 .5 .2 Z"},
    {"ZQBasicPlusItem", 0, .35, 1, .65,
     "M .5-.15s 0 L .5+.15s 0 L .5+.15s .5-.15s L 1 .5-.15s L 1 .5+.15s L .5+.15s .5+.15s L .5+.15s 1 L .5-.15s 1 "
     "L .5-.15s .5+.15s L 0 .5+.15s L 0 .5-.15s L .5-.15s .5-.15s Z"},
    {"ZQBasicMinusItem", 0, .35, 1, .65, "M 0 .5-.15s L 1 .5-.15s L 1 .5+.15s L 0 .5+.15s Z"},
    {"ZQBasicMultiplicationItem", 0, .3, 1, .7,
     "M 0 .2 L .2 0 L .5 .3 L .8 0 L 1 .2 L .7 .5 L 1 .8 L .8 1 L .5 .7 L .2 1 L 0 .8 L .3 .5 Z"},
    {"ZQBasicDivisionItem", 0, .38, 1, .62,
     "M 0 .5-.12s L 1 .5-.12s L 1 .5+.12s L 0 .5+.12s Z E .5-.13s .5-.5s .5+.13s .5-.24s "
     "E .5-.13s .5+.24s .5+.13s .5+.5s"},
    {"ZQBasicEqualItem", 0, .2, 1, .8,
     "M 0 .5-.34s L 1 .5-.34s L 1 .5-.1s L 0 .5-.1s Z M 0 .5+.1s L 1 .5+.1s L 1 .5+.34s L 0 .5+.34s Z"},
    {"ZQBasicUnequalItem", 0, .2, 1, .8,
     "M 0 .5-.3s L .5+.02s .5-.3s L .5+.1s .5-.5s L .5+.3s .5-.5s L .5+.22s .5-.3s L 1 .5-.3s L 1 .5-.1s "
     "L .5+.14s .5-.1s L .5+.06s .5+.1s L 1 .5+.1s L 1 .5+.3s L .5-.02s .5+.3s L .5-.1s .5+.5s L .5-.3s .5+.5s "
     "L .5-.22s .5+.3s L 0 .5+.3s L 0 .5+.1s L .5-.14s .5+.1s L .5-.06s .5-.1s L 0 .5-.1s Z"},
    {"ZQBasicRightItem", 0, .3, 1, .8, "M 0 .56 L .14 .4 L .36 .68 L .88 0 L 1 .14 L .37 1 Z"},
    {"ZQBasicWrongItem", 0, .3, 1, .7,
     "M 0 .12 L .12 0 L .5 .38 L .88 0 L 1 .12 L .62 .5 L 1 .88 L .88 1 L .5 .62 L .12 1 L 0 .88 L .38 .5 Z"},
    {"ZQBasicSingleArrowItem", 0, .25, .8, .75, "M 0 .25 L 1-.5s .25 L 1-.5s 0 L 1 .5 L 1-.5s 1 L 1-.5s .75 L 0 .75 Z"},
    {"ZQBasicDoubleArrowItem", .2, .25, .8, .75,
     "M 0 .5 L .35s 0 L .35s .25 L 1-.35s .25 L 1-.35s 0 L 1 .5 L 1-.35s 1 L 1-.35s .75 L .35s .75 L .35s 1 Z"},
    {"ZQBasicBraceItem", .5, 0, 1, 1, leftBrace, 0, true},
    {"ZQBasicBracketItem", 0, 0, 1, 1, leftBracket, 0, true},
    {"ZQBasicFlagItem", .05, .12, .95, .55,
     "M 0 1 L 0 .06 C .33 -.02 .66 .18 1 .06 L 1 .62 C .66 .74 .33 .54 .04 .62 L .04 1 Z"},
    {"ZQBasicDialog1Item", 0, 0, 1, .75,
     "M .15s 0 L 1-.15s 0 C 1-.07s 0 1 .07s 1 .15s L 1 .75-.15s C 1 .75-.07s 1-.07s .75 1-.15s .75 L .45 .75 "
     "L .2 1 L .25 .75 L .15s .75 C .07s .75 0 .75-.07s 0 .75-.15s L 0 .15s C 0 .07s .07s 0 .15s 0 Z"},
    {"ZQBasicDialog2Item", .15, .12, .85, .68,
     "M .179 .706 C -.017 .575 -.057 .347 .084 .178 C .226 .008 .505 -.049 .731 .045 "
     "C .957 .139 1.058 .355 .966 .545 C .874 .735 .617 .839 .371 .786 L .1 1 Z"},
    {"ZQShapeYuntu", .1, .1, .9, .9,
     "M .584 .130 C .649 -.064 .952 .120 .807 .265 C .982 .158 1.095 .492 .890 .511 C 1.094 .540 .964 .868 "
     ".795 .752 C .932 .905 .620 1.073 .565 .876 C .572 1.080 .224 1.010 .310 .825 C .182 .985 -.039 .709 "
     ".147 .622 C -.055 .663 -.045 .311 .154 .363 C -.028 .266 .207 .002 .326 .169 C .250 -.021 .601 -.073 "
     ".584 .130 Z",
     0, false, false, "ArtObj_Color1", "ArtObj_Color0"},
    {"ZQShapeFeiji", .4, .3, .6, .7,
     "M .5 0 C .54 0 .57 .08 .57 .16 L .57 .36 L 1 .62 L 1 .73 L .57 .61 L .55 .83 L .7 .93 L .7 1 L .5 "
     ".95 L .3 1 L .3 .93 L .45 .83 L .43 .61 L 0 .73 L 0 .62 L .43 .36 L .43 .16 C .43 .08 .46 0 .5 0 Z",
     0, false, false, "ArtObj_Color0", "ArtObj_Color1"},
    {"ZQShapeShizixing", 0, .25, 1, .75,
     "M .5-.25s 0 L .5+.25s 0 L .5+.25s .5-.25s L 1 .5-.25s L 1 .5+.25s L .5+.25s .5+.25s L .5+.25s 1 L .5-.25s 1 "
     "L .5-.25s .5+.25s L 0 .5+.25s L 0 .5-.25s L .5-.25s .5-.25s Z",
     0, false, false, "ArtObj_Color1", "ArtObj_Color0"},
    {"ZQShapeGeshijiantou", 0, .25, .8, .75, "M 0 .25 L 1-.5s .25 L 1-.5s 0 L 1 .5 L 1-.5s 1 L 1-.5s .75 L 0 .75 Z", 0,
     false, true, "ArtObj_Color1", "ArtObj_Color0"},
    {"ZQShapeJiantoubiaozhu", 0, 0, .65, 1,
     "M 0 0 L .65 0 L .65 .4 L 1-.25s .4 L 1-.25s .25 L 1 .5 L 1-.25s .75 L 1-.25s .6 L .65 .6 L .65 1 L 0 1 Z", 0,
     false, true, "ArtObj_Color1", "ArtObj_Color0"},
    {"ZQShapeDanbianjiantou", 0, 0, 0, 0, "M 0 1 L 1 1 L 1-1s 0", 0, true, true, "ArtObj_Color0", ""},
    {"ZQShapeYiduiduoshu", 0, 0, 0, 0, "M 0 .5 L 1 .5 M 1 0 L .5 0 L .5 1 L 1 1", 0, true, false, "ArtObj_Color"},
    {"ZQShapeJiankuohao", 0, 0, 1, 1, "M 1 0 L 0 .5 L 1 1", 0, true, false, "ArtObj_Color0"},
    {"ZQShapeFangkuohao", 0, 0, 1, 1, leftBracket, 0, true, false, "ArtObj_Color0"},
    {"ZQShapeYuankuohao", 0, 0, 1, 1, "M 1 0 C .45 0 0 .22 0 .5 C 0 .78 .45 1 1 1", 0, true, false, "ArtObj_Color0"},
    {"ZQShapeHuakuohao", 0, 0, 1, 1, leftBrace, 0, true, false, "ArtObj_Color0"},
};

const Shape *shapeOf(const QString &type)
{
    for (const Shape &shape : shapes) {
        if (type == QLatin1String(shape.type)) {
            return &shape;
        }
    }
    return nullptr;
}

const QLatin1String straightArrow("ZQShapeZhixianjiantou");
const QLatin1String curvedArrow("ZQShapeQuxianjiantou");
const QLatin1String connectingLine("ZQShapeLianjiexian");
const QLatin1String branches("ZQShapeYiduiduoshu");

// Types that leave their outline to the item.
bool isPolygon(const QString &type)
{
    return type.contains(QLatin1String("ZQBasicNormalItem")) || type == QLatin1String("discipline");
}

bool isSegment(const QString &type)
{
    return type.contains(QLatin1String("ZQBasicSegmentItem"));
}

bool isFreeDrawing(const QString &type)
{
    return type.contains(QLatin1String("ZQBasicFreeDraw"));
}

// Left for right and up for down, as the item says.
QTransform flips(const ItemView &item, const QPointF &center, bool isMirrored = false)
{
    QTransform flips = QTransform::fromTranslate(center.x(), center.y());
    flips.scale(item.flag(ItemKeys::flippedAcross) != isMirrored ? -1 : 1, item.flag(ItemKeys::flippedDown) ? -1 : 1);
    return flips.translate(-center.x(), -center.y());
}

// What takes the item's box and what is in it to the page.
QTransform placing(const ItemView &item, const QPointF &center)
{
    return item.matrix().value_or(turnAbout(center, item.angle()));
}

// The same for an item that may have no box.
QTransform lineTransform(const ItemView &item, const std::optional<QRectF> &box)
{
    const QPointF center = box ? box->center() : QPointF();
    return flips(item, center) * placing(item, center);
}

// How many parts the dashes of a line style have.
int dashParts(const QString &style)
{
    static const QHash<QString, int> parts{
        {QStringLiteral("1"), 4}, {QStringLiteral("2"), 2}, {QStringLiteral("3"), 3}};
    return parts.value(style);
}

SvgPaint paintOf(const ItemView &item, QLatin1String widthKey, const char *lineKey, const char *fillKey)
{
    SvgPaint paint;
    paint.line = item.color(QLatin1String(lineKey)).value_or(QColor(Qt::black));
    paint.fill = Qt::transparent;
    if (item.isFilled()) {
        paint.fill = item.color(QLatin1String(fillKey)).value_or(paint.fill);
    }
    const double width = item.number(widthKey);
    paint.lineWidth = width > 0 ? width : 2;
    paint.dashParts = dashParts(item.text(QLatin1String("ArtObj_Mode")));
    return paint;
}

// Letters don't touch the lines beside them.
QRectF withoutEdges(const QRectF &area)
{
    const double gap = qMin(6.0, area.width() / 12);
    return area.adjusted(gap, 0, -gap, 0);
}

// A bracket opens to the right or, with the direction 1, to the left.
std::optional<GraphDrawing> drawnShape(const ItemView &item, const Shape &shape, const QRectF &box)
{
    const QString direction = shape.isOpen ? item.text(QLatin1String("ArtObj_Direct")) : QString();
    const bool opensLeft = direction == QLatin1String("1");
    if (!direction.isEmpty() && direction != QLatin1String("0") && !opensLeft) {
        return std::nullopt;
    }
    if (shape.hasKinds && item.number(QLatin1String("ArtObj_Type")) != 0) {
        return std::nullopt;
    }
    GraphDrawing drawing;
    const QTransform flipped = flips(item, box.center(), opensLeft);
    drawing.placed = placing(item, box.center());
    drawing.textArea =
        flipped.mapRect(QRectF(box.left() + shape.left * box.width(), box.top() + shape.top * box.height(),
                               (shape.right - shape.left) * box.width(), (shape.bottom - shape.top) * box.height()));
    QPainterPath path;
    const QPolygonF corners = withoutRepeatedEnd(item.points(ItemKeys::control));
    if (shape.corners > 0 && corners.size() == shape.corners) {
        path.addPolygon(fittedPoints(corners, box));
        path.closeSubpath();
    } else {
        path = outlineIn(box, shape.outline);
    }
    drawing.textArea = withoutEdges(drawing.textArea);
    SvgPaint paint = paintOf(item, ItemKeys::lineWidth, shape.lineKey, shape.fillKey);
    if (shape.isOpen) {
        paint.fill = Qt::transparent;
    }
    drawing.parts.append({(flipped * drawing.placed).map(path), paint});
    return drawing;
}

std::optional<GraphDrawing> drawnSegment(const ItemView &item)
{
    const auto box = item.box();
    QPolygonF ends = item.points(QLatin1String("ArtObj_Point1")) + item.points(QLatin1String("ArtObj_Point2"));
    if (ends.size() != 2) {
        ends = item.points(ItemKeys::control).mid(0, 2);
    }
    if (ends.size() != 2) {
        return std::nullopt;
    }
    GraphDrawing drawing;
    ends = lineTransform(item, box).map(fittedPoints(ends, box));
    QLineF line(ends.at(0), ends.at(1));
    if (!(line.length() > 0)) {
        return std::nullopt;
    }
    SvgPaint paint =
        paintOf(item, item.has(ItemKeys::lineWidth) ? ItemKeys::lineWidth : ItemKeys::width, "LineColor", "");
    const QString arrows = item.text(ItemKeys::arrows);
    if (arrows == QLatin1String("2")) {
        drawing.parts.append({arrowHead(line, paint.lineWidth), headPaint(paint)});
    }
    if (arrows == QLatin1String("1") || arrows == QLatin1String("2")) {
        line = QLineF(line.p2(), line.p1());
        drawing.parts.append({arrowHead(line, paint.lineWidth), headPaint(paint)});
    }
    QPainterPath path(line.p1());
    path.lineTo(line.p2());
    paint.dashParts = dashParts(item.text(QLatin1String("ArtObj_Style")));
    drawing.parts.append({path, paint});
    return drawing;
}

// The points of a name and a number, up to the first one that is missing.
QPolygonF namedPoints(const ItemView &item, const QByteArray &name, int first, int last)
{
    QPolygonF points;
    for (int i = first; i <= last; ++i) {
        const QByteArray x = name + QByteArray::number(i) + 'x';
        const QByteArray y = name + QByteArray::number(i) + 'y';
        const QJsonValue across = item.json().value(QLatin1String(x));
        const QJsonValue down = item.json().value(QLatin1String(y));
        if (isEmptyValue(across) || isEmptyValue(down)) {
            break;
        }
        points.append(QPointF(itemNumber(across), itemNumber(down)));
    }
    return points;
}

// Of the points between there are as many as the item says, or all.
QPolygonF pointsBetween(const ItemView &item)
{
    constexpr double most = 20;
    const double told = qBound(0.0, item.number(QLatin1String("ArtObj_InterpointNumber"), most), most);
    return namedPoints(item, "ArtObj_InterPoint", 0, int(told) - 1);
}

// The points between follow each other, but nothing says where among them a third point is, or whether the line ends
// there. A line that connects makes no detours.
QPolygonF wayThrough(const QPolygonF &ends, const QPolygonF &between)
{
    const QPolygonF first(ends.mid(0, 1));
    if (ends.size() < 3) {
        return first + between + ends.mid(1);
    }
    QPolygonF shortest;
    for (const auto &order : {std::make_pair(1, 2), std::make_pair(2, 1)}) {
        const QPolygonF one(ends.mid(order.first, 1));
        const QPolygonF other(ends.mid(order.second, 1));
        for (const auto &way : {first + between + one + other, first + one + between + other}) {
            if (shortest.isEmpty() || lengthOf(way) < lengthOf(shortest)) {
                shortest = way;
            }
        }
    }
    return shortest;
}

std::optional<GraphDrawing> drawnConnection(const ItemView &item)
{
    const QPolygonF ends = namedPoints(item, "ArtObj_Point", 1, 3);
    const auto box = item.box();
    const QPolygonF way = wayThrough(ends, pointsBetween(item));
    if (ends.size() < 2 || !(lengthOf(way) > 0)) {
        return std::nullopt;
    }
    QPainterPath path;
    path.addPolygon(lineTransform(item, box).map(fittedPoints(way, box)));
    GraphDrawing drawing;
    drawing.parts.append({path, paintOf(item, ItemKeys::lineWidth, "ArtObj_Color", "")});
    return drawing;
}

// One to many: from the first point a trunk, from which a branch goes to each of the others, all with right angles.
std::optional<GraphDrawing> drawnBranches(const ItemView &item)
{
    const auto box = item.box();
    const QPolygonF points = fittedPoints(namedPoints(item, "ArtObj_Point", 1, 3) + pointsBetween(item), box);
    if (!(lengthOf(points) > 0)) {
        return std::nullopt;
    }
    const QPointF root = points.first();
    const QPolygonF tips(points.mid(1));
    // The trunk goes along the side on which the tips lie next to each other.
    const QRectF extent = extentOf(tips);
    const bool isUpright = extent.height() >= extent.width();
    const auto turned = [isUpright](const QPointF &point) { return isUpright ? point : point.transposed(); };
    QPointF nearest = tips.first();
    double from = turned(root).y();
    double to = from;
    for (const QPointF &tip : tips) {
        if (qAbs(turned(tip - root).x()) < qAbs(turned(nearest - root).x())) {
            nearest = tip;
        }
        from = qMin(from, turned(tip).y());
        to = qMax(to, turned(tip).y());
    }
    const double trunk = turned((root + nearest) / 2).x();
    QPainterPath path;
    const auto addLine = [&](const QPointF &start, const QPointF &end) {
        path.moveTo(turned(start));
        path.lineTo(turned(end));
    };
    addLine(turned(root), {trunk, turned(root).y()});
    addLine({trunk, from}, {trunk, to});
    for (const QPointF &tip : tips) {
        addLine({trunk, turned(tip).y()}, turned(tip));
    }
    GraphDrawing drawing;
    drawing.parts.append({lineTransform(item, box).map(path), paintOf(item, ItemKeys::lineWidth, "ArtObj_Color", "")});
    return drawing;
}

// The corners of the item, or as many as the number at the end of its type's name says. Of one that tells neither, the
// box in the item's colours, which is all that is known of its outline.
std::optional<GraphDrawing> drawnPolygon(const ItemView &item)
{
    constexpr int mostCorners = 100;
    const auto box = item.box();
    QPolygonF corners = withoutRepeatedEnd(item.points(ItemKeys::control));
    const int told = item.type().section(QLatin1String("ZQBasicNormalItem"), -1).toInt();
    if (corners.size() >= 3) {
        corners = fittedPoints(corners, box);
    } else if (box && told >= 3 && told <= mostCorners) {
        corners.clear();
        for (int i = 0; i < told; ++i) {
            const double angle = 2 * M_PI * i / told - M_PI_2;
            corners.append(QPointF(std::cos(angle), std::sin(angle)));
        }
        corners = fitInto(extentOf(corners), *box).map(corners);
    } else if (box && !box->isEmpty()) {
        corners = withoutRepeatedEnd(QPolygonF(*box));
    } else {
        return std::nullopt;
    }
    GraphDrawing drawing;
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    drawing.placed = lineTransform(item, box);
    drawing.textArea = withoutEdges(extentOf(corners));
    drawing.parts.append({drawing.placed.map(path), paintOf(item, ItemKeys::lineWidth, "LineColor", "ArtObj_Color")});
    return drawing;
}

// An arrow goes from its first point to its last, with a head there unless the item says another number of them.
std::optional<GraphDrawing> drawnArrow(const ItemView &item, int firstPoint, int lastPoint)
{
    QPolygonF points = namedPoints(item, "ArtObj_Point", firstPoint, lastPoint);
    if (points.size() <= lastPoint - firstPoint || !(lengthOf(points) > 0)) {
        return std::nullopt;
    }
    const auto box = item.box();
    points = lineTransform(item, box).map(fittedPoints(points, box));
    const SvgPaint paint = paintOf(item, ItemKeys::lineWidth, "ArtObj_Color", "");
    GraphDrawing drawing;
    const auto addHead = [&](const QPointF &from, QPointF &tip) {
        QLineF line(from, tip);
        if (line.length() > 0) {
            drawing.parts.append({arrowHead(line, paint.lineWidth), headPaint(paint)});
            tip = line.p2();
        }
    };
    const QString heads = item.text(QLatin1String("ArtObj_Arrow"));
    const int last = points.size() - 1;
    if (heads != QLatin1String("0")) {
        addHead(points.at(last - 1), points[last]);
    }
    if (heads == QLatin1String("2")) {
        addHead(points.at(1), points[0]);
    }
    QPainterPath path(points.at(0));
    if (last == 3) {
        path.cubicTo(points.at(1), points.at(2), points.at(3));
    } else {
        path.lineTo(points.at(last));
    }
    drawing.parts.append({path, paint});
    return drawing;
}

// The points of a free drawing stand in elements of so many points each, which go on from the one before or not.
QPainterPath freeLines(const ItemView &item, const QPolygonF &points)
{
    const QVector<double> lengths = item.numbers(QLatin1String("FreeItem_PtnElemLenVec"));
    const QVector<double> continues = item.numbers(QLatin1String("FreeItem_PtnConinueVec"));
    QPainterPath path(points.constFirst());
    int element = -1;
    double left = 0;
    for (int i = 0; i < points.size(); ++i) {
        const bool isStart = left < 1 && !lengths.isEmpty();
        if (isStart) {
            ++element;
            left = lengths.value(element, points.size());
        }
        if (isStart && continues.value(element, 1) == 0) {
            path.moveTo(points.at(i));
        } else {
            path.lineTo(points.at(i));
        }
        --left;
    }
    return path;
}

std::optional<GraphDrawing> drawnFreely(const ItemView &item)
{
    const QLatin1String key("FreeItem_PtnPosVec");
    const QString list = item.text(key).replace(QLatin1Char(';'), QLatin1Char(','));
    const QPolygonF points = pointsOf(itemNumbers(list));
    if (points.size() < 2) {
        return std::nullopt;
    }
    const auto box = item.box();
    GraphDrawing drawing;
    SvgPaint paint = paintOf(item, ItemKeys::lineWidth, "LineColor", "FreeItem_FillControlColor");
    const double opacity = qBound(0.0, item.number(ItemKeys::opacity, 255) / 255, 1.0);
    for (QColor *color : {&paint.line, &paint.fill}) {
        color->setAlphaF(color->alphaF() * opacity);
    }
    drawing.parts.append({lineTransform(item, box).map(freeLines(item, fittedPoints(points, box))), paint});
    return drawing;
}

// The item's box; for a raw figure, which has none, what its width and height or else its points tell, under its
// Matrix.
std::optional<QRectF> boxOf(const ItemView &item)
{
    if (const auto box = item.box()) {
        return box;
    }
    const QSizeF size(item.number(QLatin1String("ArtObj_Mw")), item.number(QLatin1String("ArtObj_Mh")));
    const QRectF box = size.isEmpty() ? extentOf(item.points(ItemKeys::control))
                                      : QRectF(QPointF(-size.width() / 2, -size.height() / 2), size);
    return item.matrix() && !box.isEmpty() ? std::optional<QRectF>(box) : std::nullopt;
}

std::optional<GraphDrawing> drawingOf(const ItemView &item)
{
    const QString type = item.type();
    if (isSegment(type)) {
        return drawnSegment(item);
    }
    if (isFreeDrawing(type)) {
        return drawnFreely(item);
    }
    if (type == straightArrow) {
        return drawnArrow(item, 1, 2);
    }
    if (type == curvedArrow) {
        return drawnArrow(item, 0, 3);
    }
    if (type == connectingLine) {
        return drawnConnection(item);
    }
    if (isPolygon(type)) {
        return drawnPolygon(item);
    }
    if (type == branches) {
        if (auto drawing = drawnBranches(item)) {
            return drawing;
        }
    }
    const Shape *shape = shapeOf(type);
    const auto box = boxOf(item);
    if (!shape || !box || !(box->width() > 0 || box->height() > 0)) {
        return std::nullopt;
    }
    return drawnShape(item, *shape, *box);
}

bool drawGraph(Canvas &canvas, const ItemView &item)
{
    const auto graph = drawingOf(item);
    if (!graph) {
        return false;
    }
    for (const GraphDrawing::Part &part : graph->parts) {
        canvas.svg().addPath(part.path, part.paint);
    }
    if (!graph->textArea.isEmpty()) {
        canvas.addText(item.text(ItemKeys::html), graph->textArea, graph->placed);
    }
    return true;
}

} // namespace

SvgDrawing graphDrawing(const QString &type)
{
    const bool isGraph = shapeOf(type) || isSegment(type) || isFreeDrawing(type) || type == straightArrow
        || type == curvedArrow || type == connectingLine || isPolygon(type);
    return isGraph ? &drawGraph : nullptr;
}

} // namespace lessonhost
