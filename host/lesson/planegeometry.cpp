// SPDX-License-Identifier: MIT
#include "lesson/planegeometry.h"

#include <QLineF>

#include <cmath>

namespace lessonhost {

QRectF extentOf(const QPolygonF &points)
{
    return points.boundingRect();
}

QPolygonF withoutRepeatedEnd(QPolygonF points)
{
    if (points.size() > 1 && points.first() == points.last()) {
        points.removeLast();
    }
    return points;
}

double lengthOf(const QPolygonF &points)
{
    double length = 0;
    for (int i = 1; i < points.size(); ++i) {
        length += QLineF(points.at(i - 1), points.at(i)).length();
    }
    return length;
}

double areaOf(const QPolygonF &outline)
{
    double area = 0;
    for (int i = 0; i < outline.size(); ++i) {
        const QPointF &next = outline.at((i + 1) % outline.size());
        area += (outline.at(i).x() * next.y() - next.x() * outline.at(i).y()) / 2;
    }
    return area;
}

QTransform turnAbout(const QPointF &center, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return QTransform::fromTranslate(-center.x(), -center.y()) * QTransform(c, s, -s, c, 0, 0)
        * QTransform::fromTranslate(center.x(), center.y());
}

double meanScale(const QTransform &transform)
{
    return std::sqrt(qAbs(transform.determinant()));
}

bool stretches(const QTransform &transform)
{
    constexpr double nearly = 1e-3;
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    const double slant = transform.m11() * transform.m21() + transform.m12() * transform.m22();
    return qAbs(across - down) > nearly * qMax(across, down) || qAbs(slant) > nearly * across * down;
}

std::optional<ScaleAndTurn> scaleAndTurn(const QTransform &transform)
{
    ScaleAndTurn result;
    result.scaleX = std::hypot(transform.m11(), transform.m12());
    const double lengthY = std::hypot(transform.m21(), transform.m22());
    const double cross = transform.m11() * transform.m21() + transform.m12() * transform.m22();
    // Matrices of lessons have six digits.
    if (qAbs(cross) > 5e-5 * qMax(1e-12, result.scaleX * lengthY)) {
        return std::nullopt;
    }
    result.scaleY = transform.determinant() < 0 ? -lengthY : lengthY;
    result.angle = std::atan2(transform.m12(), transform.m11());
    return result;
}

ScaleAndTurn ellipseUnder(const QTransform &transform, double rx, double ry)
{
    // Half axes of the image of the unit circle: the singular values of the linear part.
    const double a = transform.m11() * rx;
    const double b = transform.m12() * rx;
    const double c = transform.m21() * ry;
    const double d = transform.m22() * ry;
    if (qAbs(a * c + b * d) <= 1e-9 * (a * a + b * b + c * c + d * d)) {
        return {std::hypot(a, b), std::hypot(c, d), std::atan2(b, a)};
    }
    const double angle = 0.5 * std::atan2(2 * (a * b + c * d), a * a + c * c - b * b - d * d);
    const double sum = a * a + b * b + c * c + d * d;
    const double root = std::hypot(a * a + c * c - b * b - d * d, 2 * (a * b + c * d));
    return {std::sqrt((sum + root) / 2), std::sqrt(qMax(0.0, (sum - root) / 2)), angle};
}

} // namespace lessonhost
