// SPDX-License-Identifier: MIT
#ifndef SYMBOLAXIS_H
#define SYMBOLAXIS_H

#include <QPointF>
#include <QVector>

namespace lessonhost {

/*!
 * Where the coordinates of a symbol's file come to stand along one side of a box: some parts of the side stretch, the
 * others keep their scale. What lies beyond the side goes on as its ends do.
 */
class SymbolAxis
{
public:
    //! A side of the file onto a length of the page with its middle at 0. stretching: from and to of each part that
    //! takes what is left over, ascending; where there is none, the side is put into the middle of the length.
    SymbolAxis(double side, const QVector<double> &stretching, double scale, double length);

    //! One part of the file onto another of the page.
    SymbolAxis(double from, double to, double pageFrom, double pageTo)
        : m_stops{{from, pageFrom}, {to, pageTo}}
    {
    }

    double at(double coordinate) const;

    //! A point where it is here, and all around it at a scale.
    SymbolAxis keptAround(double coordinate, double scale) const
    {
        return SymbolAxis(coordinate, coordinate + 1, at(coordinate), at(coordinate) + scale);
    }

private:
    QVector<QPointF> m_stops; //!< a coordinate of the file, and where it is on the page
};

} // namespace lessonhost

#endif // SYMBOLAXIS_H
