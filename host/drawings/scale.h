// SPDX-License-Identifier: MIT
#ifndef SCALE_H
#define SCALE_H

#include <QColor>
#include <QLineF>
#include <QPainterPath>
#include <QTransform>

namespace lessonhost {

class PlainSvg;

/*!
 * Where a scale runs: along a line or an arc, the way its values grow. Its ticks start on the course. On a line they
 * point to the right of who walks along it, on an arc to the centre.
 */
class ScaleCourse
{
public:
    static ScaleCourse line(const QPointF &from, const QPointF &to);
    //! Angles in degrees, counterclockwise on the screen, from the right.
    static ScaleCourse arc(const QPointF &center, double radius, double start, double sweep);

    double length() const;
    bool isArc() const { return m_radius > 0; }
    //! The tick at a part of the course, from 0 to 1. A negative length points the other way.
    QLineF tick(double part, double length) const;

private:
    QPointF m_from; //!< or the centre
    QPointF m_to;
    double m_radius = 0; //!< 0 for a line
    double m_start = 0;
    double m_sweep = 0;
};

/*!
 * The ticks and numbers of a ruler, a protractor, a meter or a thermometer.
 */
struct Scale
{
    double first = 0; //!< value at the beginning of the course
    double last = 10; //!< value at its end
    double step = 1; //!< from one number to the next; the first one is a multiple of it
    int parts = 10; //!< ticks a step
    double tickLength = 12; //!< at numbers; shorter halfway and between. Negative on the other side of the course
    int decimals = -1; //!< of the numbers; negative for as many as they have
    double numberSize = 0; //!< of the letters; 0 for no numbers
    bool turnsNumbers = false; //!< they stand upright where their ticks end, or else with the instrument
    QColor color = Qt::black;
    double lineWidth = 1;
};

//! A scale has at most so many steps, and so many parts a step; what has more is drawn without.
constexpr int mostScaleSteps = 1000;
constexpr int mostScaleParts = 100;

//! The ticks alone, before they are placed. Where they would run together, only those at every second, fifth or tenth
//! part of a step are there, or none between numbers.
QPainterPath scaleTicks(const ScaleCourse &course, const Scale &scale);

//! Draws ticks and numbers. Numbers that would touch each other or be too small to read are left out. placed: from the
//! course to the page, with lengths of the page; numbers are turned by it, never mirrored.
void addScale(PlainSvg &svg, const ScaleCourse &course, const Scale &scale, const QTransform &placed = {});

} // namespace lessonhost

#endif // SCALE_H
