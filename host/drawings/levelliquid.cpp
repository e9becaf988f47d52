// SPDX-License-Identifier: MIT
#include "drawings/levelliquid.h"

#include "lesson/planegeometry.h"

#include <QPolygonF>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

// What of a polygon lies below a level, and where its edges cross that level.
QPolygonF below(const QPolygonF &polygon, double level, QVector<double> *crossings = nullptr)
{
    QPolygonF part;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF &from = polygon.at(i);
        const QPointF &to = polygon.at((i + 1) % polygon.size());
        if (from.y() >= level) {
            part.append(from);
        }
        if ((from.y() >= level) != (to.y() >= level)) {
            const double x = from.x() + (level - from.y()) / (to.y() - from.y()) * (to.x() - from.x());
            part.append(QPointF(x, level));
            if (crossings) {
                crossings->append(x);
            }
        }
    }
    return part;
}

} // namespace

double enclosedArea(const QPainterPath &path)
{
    return std::abs(areaOf(path.toFillPolygon()));
}

LevelLiquid::LevelLiquid(const QPainterPath &vessel, double area)
{
    const QPolygonF inside = vessel.toFillPolygon();
    double top = vessel.boundingRect().top();
    double bottom = vessel.boundingRect().bottom();
    constexpr int halvings = 30;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (top + bottom) / 2;
        (std::abs(areaOf(below(inside, middle))) < area ? bottom : top) = middle;
    }
    QVector<double> crossings;
    body.addPolygon(below(inside, top, &crossings));
    body.closeSubpath();
    std::sort(crossings.begin(), crossings.end());
    for (int i = 0; i + 1 < crossings.size(); i += 2) {
        surface.moveTo(crossings.at(i), top);
        surface.lineTo(crossings.at(i + 1), top);
    }
}

} // namespace lessonhost
