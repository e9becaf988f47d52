// SPDX-License-Identifier: MIT
#include "drawings/vectordrawing.h"

#include "drawings/itemoutline.h"
#include "files/drawingbounds.h"
#include "lesson/isoneof.h"
#include "svg/svgstyle.h"

namespace lessonhost {

namespace {

constexpr const char *types[] = {
    "ZQVectorJiantou1",        "ZQVectorJiantou2",        "ZQVectorJiantou3",   "ZQVectorJiantou4",
    "ZQVectorJiantou5",        "ZQVectorJiantou6",        "ZQVectorJiantou7",   "ZQVectorTuoyuan",
    "ZQVectorSanjiaoxing",     "ZQVectorLiubianxing",     "ZQVectorJuxing",     "ZQVectorYuanjiaojuxing",
    "ZQVectorYuanjiaojuxing1", "ZQVectorYuanjiaojuxing2", "ZQVectorWujiaoxing", "ZQVectorBaozhaxing",
    "ZQVectorBaozhaer",        "ZQVectorShandian",        "ZQVectorXingxing",   "ZQVectorXiaolian",
    "ZQVectorXiaolian1",       "ZQVectorWapianxing",      "ZQVectorZidanxing",  "ZQVectorBolangxing",
    "ZQVectorBolangxing1",     "ZQVectorPianduan",        "ZQVectorYemian",     "ZQVectorYueliang",
    "ZQVectorXinxing",
};

constexpr int mostPaths = 4;

/*!
 * One point of a path: where the outline passes, and the two points that it bends towards before and behind.
 */
struct Knot
{
    QPointF at;
    QPointF before;
    QPointF behind;

    bool isBent() const { return before != at || behind != at; }
};

// Six numbers a point. Of a point that bends nowhere, files have zeros.
QVector<Knot> knotsOf(const QVector<double> &numbers)
{
    QVector<Knot> knots;
    for (int i = 0; i + 6 <= numbers.size(); i += 6) {
        const auto point = [&numbers, i](int pair) {
            return QPointF(qBound(-largestInDrawing, numbers.at(i + 2 * pair), largestInDrawing),
                           qBound(-largestInDrawing, numbers.at(i + 2 * pair + 1), largestInDrawing));
        };
        Knot knot{point(0), point(1), point(2)};
        if (knot.before.isNull() && knot.behind.isNull()) {
            knot.before = knot.behind = knot.at;
        }
        knots.append(knot);
    }
    return knots;
}

void addPiece(QPainterPath &path, const Knot &from, const Knot &to)
{
    if (from.behind == from.at && to.before == to.at) {
        path.lineTo(to.at);
    } else {
        path.cubicTo(from.behind, to.before, to.at);
    }
}

// A single straight way back over two points encloses nothing, so such a path is a line.
QPainterPath pathOf(const QVector<Knot> &knots)
{
    QPainterPath path;
    if (knots.size() < 2) {
        return path;
    }
    path.moveTo(knots.first().at);
    for (int i = 1; i < knots.size(); ++i) {
        addPiece(path, knots.at(i - 1), knots.at(i));
    }
    const Knot &first = knots.first();
    const Knot &last = knots.last();
    if (knots.size() > 2 || last.behind != last.at || first.before != first.at) {
        if (last.at != first.at) {
            addPiece(path, last, first);
        }
        path.closeSubpath();
    }
    return path;
}

bool drawVectorShape(Canvas &canvas, const ItemView &item)
{
    QVector<QPainterPath> paths;
    QRectF covered;
    for (int i = 0; i < mostPaths; ++i) {
        const QByteArray key = "VectorControl" + QByteArray::number(i);
        const QPainterPath path = pathOf(knotsOf(item.numbers(QLatin1String(key))));
        if (!path.isEmpty()) {
            // A rectangle without an area adds nothing to others.
            const QRectF bounds = path.boundingRect().adjusted(0, 0, 1e-9, 1e-9);
            covered = paths.isEmpty() ? bounds : covered.united(bounds);
            paths.append(path);
        }
    }
    SvgPaint paint;
    paint.lineWidth = outlineWidth(item);
    const QColor fill = firstColor(item, {"ArtVectObj_RegionColor"}, Qt::transparent);
    paint.line = firstColor(item, {"ArtVectObj_FrameColor"}, fill.alpha() > 0 ? Qt::transparent : Qt::black);
    for (const QPainterPath &path : qAsConst(paths)) {
        paint.fill = path.currentPosition() == QPointF(path.elementAt(0)) ? fill : QColor(Qt::transparent);
        canvas.svg().addPath(onPage(path, covered, item), paint);
    }
    return !paths.isEmpty();
}

} // namespace

SvgDrawing vectorDrawing(const QString &type)
{
    return isOneOf(types, type) ? &drawVectorShape : nullptr;
}

} // namespace lessonhost
