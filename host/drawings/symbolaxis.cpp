// SPDX-License-Identifier: MIT
#include "drawings/symbolaxis.h"

namespace lessonhost {

SymbolAxis::SymbolAxis(double side, const QVector<double> &stretching, double scale, double length)
{
    double stretched = 0;
    for (int i = 0; i + 1 < stretching.size(); i += 2) {
        stretched += stretching.at(i + 1) - stretching.at(i);
    }
    const double kept = (side - stretched) * scale;
    double page = stretched > 0 ? -length / 2 : -kept / 2;
    m_stops.append({0, page});
    double at = 0;
    for (int i = 0; stretched > 0 && i + 1 < stretching.size(); i += 2) {
        page += (stretching.at(i) - at) * scale;
        m_stops.append({stretching.at(i), page});
        page += (stretching.at(i + 1) - stretching.at(i)) / stretched * (length - kept);
        at = stretching.at(i + 1);
        m_stops.append({at, page});
    }
    m_stops.append({side, page + (side - at) * scale});
}

double SymbolAxis::at(double coordinate) const
{
    // The last two stops with a distance that are not beyond the coordinate, or the first two.
    QPointF from = m_stops.constFirst();
    QPointF to = m_stops.constLast();
    bool isFound = false;
    for (int i = 1; i < m_stops.size(); ++i) {
        const QPointF &before = m_stops.at(i - 1);
        const QPointF &behind = m_stops.at(i);
        if (behind.x() > before.x() && (!isFound || before.x() <= coordinate)) {
            from = before;
            to = behind;
            isFound = true;
        }
    }
    const double distance = to.x() - from.x();
    return distance > 0 ? from.y() + (coordinate - from.x()) / distance * (to.y() - from.y()) : from.y();
}

} // namespace lessonhost
