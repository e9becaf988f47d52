// SPDX-License-Identifier: MIT
#include "drawings/scale.h"

#include "canvas/plainsvg.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QtMath>

#include <cmath>

namespace lessonhost {

namespace {

constexpr double leastGap = 2.5; // pixels between ticks
constexpr double smallestNumber = 7; // pixels
constexpr double digitWidth = 0.6; // of the size of the letters
constexpr double digitHeight = 0.72;

/*!
 * A scale's steps, counted.
 */
struct Steps
{
    Steps(const ScaleCourse &course, const Scale &scale)
    {
        const double range = (scale.last - scale.first) / scale.step;
        if (range > 0 && range <= mostScaleSteps) {
            count = int(std::floor(range + 1e-6));
            part = 1 / range;
            length = course.length() * part;
        }
    }

    int count = 0;
    double part = 0; // of the course
    double length = 0; // pixels
};

// The largest number of ticks a step that leaves gaps between them.
int partsWithGaps(int parts, double stepLength)
{
    for (const int divisor : {1, 2, 5, 10}) {
        if (parts % divisor == 0 && stepLength * divisor >= leastGap * parts) {
            return parts / divisor;
        }
    }
    return 1;
}

double partOfTick(int index, int parts)
{
    return index == 0 ? 1 : index * 2 == parts ? 0.75 : 0.5;
}

QString markText(double value, int decimals)
{
    constexpr int most = 6;
    return decimals < 0 ? QString::number(value, 'g', most) : QString::number(value, 'f', qMin(decimals, most));
}

// Of the first number or the last, whichever is longer.
int mostLetters(const Scale &scale, const Steps &steps)
{
    return qMax(markText(scale.first, scale.decimals).size(),
                markText(scale.first + steps.count * scale.step, scale.decimals).size());
}

// How large numbers may be, as part of what they would be: half of one reaches beyond the end of a line, and no further
// than its instrument does.
double shareOfRoom(const ScaleCourse &course, const Scale &scale, const Steps &steps)
{
    const double half = mostLetters(scale, steps) * digitWidth * scale.numberSize / 2;
    const double room = qMax(1.3 * scale.numberSize, course.length() / 8);
    return course.isArc() || scale.turnsNumbers ? 1 : qMin(1.0, room / half);
}

// Every so many steps there is a number.
int stepsBetweenNumbers(const Scale &scale, const Steps &steps)
{
    const double room = (mostLetters(scale, steps) * digitWidth + 0.8) * scale.numberSize;
    for (const int every : {1, 2, 5, 10, 20, 50, 100}) {
        if (every * steps.length >= room) {
            return every;
        }
    }
    return mostScaleSteps;
}

double degreesOf(const QPointF &up)
{
    return qRadiansToDegrees(std::atan2(up.x(), -up.y()));
}

// How far a number reaches from its middle in a direction.
double reach(const QString &number, double size, const QPointF &direction, bool isTurned)
{
    const double half = size * digitHeight / 2;
    return isTurned ? half : qAbs(direction.x()) * number.size() * digitWidth * size / 2 + qAbs(direction.y()) * half;
}

} // namespace

ScaleCourse ScaleCourse::line(const QPointF &from, const QPointF &to)
{
    ScaleCourse course;
    course.m_from = from;
    course.m_to = to;
    return course;
}

ScaleCourse ScaleCourse::arc(const QPointF &center, double radius, double start, double sweep)
{
    ScaleCourse course;
    course.m_from = center;
    course.m_radius = radius;
    course.m_start = qDegreesToRadians(start);
    course.m_sweep = qDegreesToRadians(sweep);
    return course;
}

double ScaleCourse::length() const
{
    return m_radius > 0 ? m_radius * qAbs(m_sweep) : QLineF(m_from, m_to).length();
}

QLineF ScaleCourse::tick(double part, double length) const
{
    if (m_radius > 0) {
        const double angle = m_start + part * m_sweep;
        const QPointF outwards(std::cos(angle), -std::sin(angle));
        return {m_from + outwards * m_radius, m_from + outwards * (m_radius - length)};
    }
    const QLineF course(m_from, m_to);
    if (!(course.length() > 0)) {
        return {m_from, m_from};
    }
    const QPointF along = (m_to - m_from) / course.length();
    const QPointF at = course.pointAt(part);
    return {at, at + QPointF(-along.y(), along.x()) * length};
}

QPainterPath scaleTicks(const ScaleCourse &course, const Scale &scale)
{
    const Steps steps(course, scale);
    const int parts = partsWithGaps(qBound(1, scale.parts, mostScaleParts), steps.length);
    QPainterPath path;
    if (!(steps.length > 0)) {
        return path;
    }
    for (int step = 0; step <= steps.count; ++step) {
        for (int i = 0; i < parts; ++i) {
            const double part = (step + double(i) / parts) * steps.part;
            if (part > 1 + 1e-6) {
                break;
            }
            const QLineF tick = course.tick(part, scale.tickLength * partOfTick(i, parts));
            path.moveTo(tick.p1());
            path.lineTo(tick.p2());
        }
    }
    return path;
}

void addScale(PlainSvg &svg, const ScaleCourse &course, const Scale &scale, const QTransform &placed)
{
    const QPainterPath ticks = scaleTicks(course, scale);
    if (ticks.isEmpty()) {
        return;
    }
    SvgPaint paint;
    paint.line = scale.color;
    paint.fill = Qt::transparent;
    paint.lineWidth = scale.lineWidth;
    svg.addPath(placed.map(ticks), paint);
    const Steps steps(course, scale);
    const double size = scale.numberSize * meanScale(placed) * shareOfRoom(course, scale, steps);
    if (size < smallestNumber) {
        return;
    }
    const int every = stepsBetweenNumbers(scale, steps);
    const QTransform linear(placed.m11(), placed.m12(), placed.m21(), placed.m22(), 0, 0);
    const bool isMirrored = placed.determinant() < 0;
    QVector<SvgMark> marks;
    for (int step = 0; step <= steps.count; step += every) {
        const double value = scale.first + step * scale.step;
        const QLineF tick = course.tick(step * steps.part, scale.tickLength);
        const QPointF inwards = (tick.p2() - tick.p1()) / qMax(tick.length(), 1e-9);
        SvgMark mark;
        mark.text = markText(qAbs(value) < qAbs(scale.step) * 1e-6 ? 0 : value, scale.decimals);
        mark.middle = placed.map(
            tick.p2()
            + inwards * (reach(mark.text, scale.numberSize, inwards, scale.turnsNumbers) + scale.numberSize * 0.25));
        mark.turn = degreesOf(linear.map(scale.turnsNumbers ? -inwards : QPointF(0, -1)));
        // A mirror may leave the instrument's upper side below.
        if (isMirrored && !scale.turnsNumbers && qAbs(mark.turn) > 90) {
            mark.turn -= std::copysign(180, mark.turn);
        }
        marks.append(mark);
    }
    svg.addMarks(marks, size, scale.color);
}

} // namespace lessonhost
