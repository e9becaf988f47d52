// SPDX-License-Identifier: MIT
#ifndef INKPATH_H
#define INKPATH_H

#include <QPainterPath>
#include <QPolygonF>
#include <QString>
#include <QVector>

namespace lessonhost {

/*!
 * Where a stroke goes: its points on the page, no two of them in the same place one after the other.
 */
struct InkTrack
{
    QPolygonF points;
    QVector<double> widths; //!< at the points; empty for a stroke of one width

    //! widths count only if there is one for each point. What lies beyond the bounds of drawings is brought to them.
    InkTrack(const QPolygonF &points, const QVector<double> &widths);

    bool isDot() const { return points.size() == 1; }
    double length() const; //!< straight from point to point
};

//! A smooth line through the points; where they turn sharply it has a corner. Ends that meet are smooth, too.
QPainterPath smoothLine(const InkTrack &track);

//! The same line as points so close to each other that nobody sees corners; the given ones where they are.
QPolygonF fineLine(const QPolygonF &points);

//! The lengths of dashes and gaps, in widths of the line, of a style by its name, such as "dash", "DashDotLine" and
//! "dash dot dot"; none for a solid line.
QVector<double> inkDashes(const QString &style);

//! How a stroke ends, by the name of it; round where that says nothing.
Qt::PenCapStyle inkCap(const QString &name);

//! The outline of a track with widths: what is within it by the winding rule is ink.
QPainterPath brushOutline(const InkTrack &track);

} // namespace lessonhost

#endif // INKPATH_H
