// SPDX-License-Identifier: MIT
#include "canvas/rubbing.h"

#include <algorithm>

namespace lessonhost {

namespace {

// Some seconds of scribbling, many pages of lines that cross themselves rarely.
constexpr double mostCutting = 1e8;

double work(const QPainterPath &path, const QPainterPath &other)
{
    const double points = double(path.elementCount()) + other.elementCount();
    return points * points;
}

} // namespace

bool Rubbing::reaches(const QRectF &box, const QTransform &toPage) const
{
    const QRectF onPage = toPage.mapRect(box);
    return std::any_of(m_areas.constBegin() + m_passed, m_areas.constEnd(),
                       [&onPage](const Area &area) { return area.box.intersects(onPage); });
}

QVector<QPainterPath> Rubbing::areasToPaint(const QRectF &box, const QTransform &toPage)
{
    const QVector<QPainterPath> areas = areasIn(box, toPage);
    for (const QPainterPath &area : areas) {
        m_painting += area.elementCount();
    }
    return areas;
}

QVector<QPainterPath> Rubbing::areasIn(const QRectF &box, const QTransform &toPage) const
{
    QVector<QPainterPath> areas;
    const QRectF onPage = toPage.mapRect(box);
    for (int i = m_passed; i < m_areas.size(); ++i) {
        if (m_areas.at(i).box.intersects(onPage)) {
            areas.append(toPage.inverted().map(m_areas.at(i).path));
        }
    }
    return areas;
}

std::optional<QPainterPath> Rubbing::rest(const QPainterPath &ink, const QTransform &toPage)
{
    if (m_cutting > mostCutting) {
        return std::nullopt;
    }
    QPainterPath left = ink;
    const QVector<QPainterPath> areas = areasIn(ink.boundingRect(), toPage);
    for (const QPainterPath &area : areas) {
        m_cutting += work(left, area);
        if (m_cutting > mostCutting) {
            return std::nullopt;
        }
        left = left.subtracted(area);
    }
    return left;
}

} // namespace lessonhost
