// SPDX-License-Identifier: MIT
#include "svg/inkline.h"

#include "lesson/planegeometry.h"

#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

// Points on the way around a polygon, an even number.
constexpr int aroundCount = 96;
// Of what both cover, as much may be covered by one alone.
constexpr double mostDifference = 0.3;
// Pixels of the pictures in which they are compared, along the longer side.
constexpr double mostPixels = 400;

// At even distances from each other; nothing for a polygon without extent.
QPolygonF pointsAround(QPolygonF polygon)
{
    if (polygon.isEmpty()) {
        return {};
    }
    if (!polygon.isClosed()) {
        polygon.append(polygon.first());
    }
    const double step = lengthOf(polygon) / aroundCount;
    if (!std::isfinite(step) || step <= 0) {
        return {};
    }
    QPolygonF points;
    double before = 0; // of the way
    for (int i = 1; i < polygon.size(); ++i) {
        const QLineF side(polygon.at(i - 1), polygon.at(i));
        while (points.size() < aroundCount && points.size() * step < before + side.length()) {
            points.append(side.pointAt((points.size() * step - before) / side.length()));
        }
        before += side.length();
    }
    while (points.size() < aroundCount) {
        points.append(polygon.last());
    }
    return points;
}

// The line in the middle between two sides of a polygon, which part at the point that brings them closest to each
// other: that is an end of the stroke.
std::optional<InkLine> middleOf(const QPolygonF &polygon)
{
    const QPolygonF around = pointsAround(polygon);
    if (around.isEmpty()) {
        return std::nullopt;
    }
    const auto at = [&around](int i) { return around.at((i + aroundCount) % aroundCount); };
    double least = -1;
    int end = 0;
    for (int i = 0; i < aroundCount / 2; ++i) {
        double between = 0;
        for (int k = 1; k < aroundCount / 2; ++k) {
            between += QLineF(at(i + k), at(i - k)).length();
        }
        if (least < 0 || between < least) {
            least = between;
            end = i;
        }
    }
    InkLine line;
    for (int k = 0; k <= aroundCount / 2; ++k) {
        line.points.append((at(end + k) + at(end - k)) / 2);
    }
    const double length = lengthOf(line.points);
    line.width = length > 0 ? qAbs(areaOf(polygon)) / length : 0;
    if (length < 2 * line.width) {
        line.points = QPolygonF() << polygon.boundingRect().center();
        line.width = qMin(polygon.boundingRect().width(), polygon.boundingRect().height());
        return line;
    }
    // Its round ends reach half its width beyond the line, and near them the middle is no longer one.
    double cut = 0;
    while (line.points.size() > 3 && cut < line.width * 0.7) {
        cut += QLineF(line.points.at(0), line.points.at(1)).length();
        line.points.removeFirst();
        line.points.removeLast();
    }
    return line;
}

double distance(const QPointF &one, const QPointF &other)
{
    return QLineF(one, other).length();
}

void turn(QPolygonF &line)
{
    std::reverse(line.begin(), line.end());
}

// Puts a piece behind the line, or over it.
void addPiece(InkLine &line, InkLine piece)
{
    const double near = qMax(line.width, piece.width);
    const QPolygonF &points = line.points;
    const bool isSame = distance(points.first(), piece.points.first()) < near
        && distance(points.last(), piece.points.last()) < near && piece.points.size() > 1;
    const bool isTurned = distance(points.first(), piece.points.last()) < near
        && distance(points.last(), piece.points.first()) < near && piece.points.size() > 1;
    if (isSame || isTurned) {
        line = piece.width > line.width ? piece : line;
        return;
    }
    const auto fromEnd = [&](const QPointF &end) {
        return qMin(distance(end, piece.points.first()), distance(end, piece.points.last()));
    };
    if (line.points.size() > 1 && fromEnd(line.points.first()) < fromEnd(line.points.last())) {
        turn(line.points);
    }
    if (distance(line.points.last(), piece.points.last()) < distance(line.points.last(), piece.points.first())) {
        turn(piece.points);
    }
    // The width is that of the longer ones, for ends may be anything.
    const double length = lengthOf(line.points);
    const double more = lengthOf(piece.points);
    if (length + more > 0) {
        line.width = (line.width * length + piece.width * more) / (length + more);
    }
    line.points += piece.points;
}

QImage covered(const QPainterPath &area, const QRectF &extent, double scale)
{
    QImage image((extent.size() * scale).toSize() + QSize(4, 4), QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(2, 2);
    painter.scale(scale, scale);
    painter.translate(-extent.topLeft());
    painter.fillPath(area, Qt::white);
    return image;
}

bool looksAlike(const QVector<QPolygonF> &polygons, const InkLine &line)
{
    QPainterPath given;
    given.setFillRule(Qt::WindingFill);
    for (const QPolygonF &polygon : polygons) {
        // All the same way round, so that none is a hole in another.
        QPolygonF sameWay = polygon;
        if (areaOf(polygon) < 0) {
            turn(sameWay);
        }
        given.addPolygon(sameWay);
        given.closeSubpath();
    }
    QPolygonF points = line.points;
    points.append(points.last()); // a dot is a line, too
    QPainterPath middle;
    middle.addPolygon(points);
    QPainterPathStroker pen;
    pen.setWidth(line.width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    const QPainterPath made = pen.createStroke(middle);
    const QRectF extent = given.boundingRect().united(made.boundingRect());
    const double longer = qMax(extent.width(), extent.height());
    if (!std::isfinite(longer) || longer <= 0) {
        return false;
    }
    const double scale = qMin(mostPixels / longer, 8 / line.width);
    const QImage one = covered(given, extent, scale);
    const QImage other = covered(made, extent, scale);
    qint64 both = 0;
    qint64 different = 0;
    for (int y = 0; y < one.height(); ++y) {
        const uchar *a = one.constScanLine(y);
        const uchar *b = other.constScanLine(y);
        for (int x = 0; x < one.width(); ++x) {
            both += qMax(a[x], b[x]);
            different += qAbs(a[x] - b[x]);
        }
    }
    return both > 0 && double(different) <= mostDifference * double(both);
}

} // namespace

std::optional<InkLine> inkLineOf(const QVector<QPolygonF> &polygons)
{
    std::optional<InkLine> line;
    for (const QPolygonF &polygon : polygons) {
        const auto piece = middleOf(polygon);
        if (!piece || !(piece->width > 0)) {
            return std::nullopt;
        }
        if (!line) {
            line = piece;
        } else {
            addPiece(*line, *piece);
        }
    }
    return line && looksAlike(polygons, *line) ? line : std::nullopt;
}

} // namespace lessonhost
