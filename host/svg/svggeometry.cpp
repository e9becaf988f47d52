// SPDX-License-Identifier: MIT
#include "svg/svggeometry.h"

#include "lesson/itemvalues.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/svgvalues.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <cmath>
#include <functional>
#include <numeric>

namespace lessonhost {

namespace {

double number(const QDomElement &element, const char *attribute)
{
    return numberOfText(element.attribute(QLatin1String(attribute)));
}

// One turn the same way all around: most of all shapes.
bool isConvex(const QPolygonF &polygon)
{
    double turned = 0;
    int left = 0;
    int right = 0;
    const int count = polygon.size();
    for (int i = 0; i < count && (left == 0 || right == 0); ++i) {
        const QPointF one = polygon.at((i + 1) % count) - polygon.at(i);
        const QPointF other = polygon.at((i + 2) % count) - polygon.at((i + 1) % count);
        const double turn = std::atan2(one.x() * other.y() - one.y() * other.x(), QPointF::dotProduct(one, other));
        left += turn > 0 ? 1 : 0;
        right += turn < 0 ? 1 : 0;
        turned += turn;
    }
    return (left == 0 || right == 0) && qAbs(turned) < 3 * M_PI;
}

QImage filled(const QPainterPath &path, const QRectF &extent)
{
    constexpr int size = 64; // of what is compared
    QImage image(size, size, QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.scale(size / extent.width(), size / extent.height());
    painter.translate(-extent.topLeft());
    painter.fillPath(path, Qt::white);
    return image;
}

} // namespace

QString svgCoordinate(double value, int digits)
{
    return numberText(withoutErrorOfZero(value), digits);
}

QString svgPoints(const QPolygonF &points)
{
    return coordinateTexts(points, coordinateDigits, ',', ',');
}

void setSvgBox(QDomElement &element, const QRectF &box, int digits)
{
    element.setAttribute(QStringLiteral("x"), svgCoordinate(box.x(), digits));
    element.setAttribute(QStringLiteral("y"), svgCoordinate(box.y(), digits));
    element.setAttribute(QStringLiteral("width"), svgCoordinate(box.width(), digits));
    element.setAttribute(QStringLiteral("height"), svgCoordinate(box.height(), digits));
}

void setSvgTurn(QDomElement &element, double angle)
{
    double degrees = std::remainder(angle * 180 / M_PI, 360);
    if (degrees < -180 + 1e-4) {
        degrees += 360;
    }
    if (qAbs(degrees) < 1e-4) {
        element.removeAttribute(QStringLiteral("transform"));
        return;
    }
    const QPointF center = drawnExtent(element).value_or(QRectF()).center();
    element.setAttribute(
        QStringLiteral("transform"),
        QStringLiteral("rotate(%1 %2 %3)").arg(degrees).arg(exactText(center.x()), exactText(center.y())));
}

void moveOnPage(QDomElement &element, const QTransform &moved)
{
    if (moved.isIdentity()) {
        return;
    }
    const auto set = [&element](const char *name, double value) {
        element.setAttribute(QLatin1String(name), svgCoordinate(value, pluginDigits));
    };
    const QString tag = element.tagName();
    if (tag == QLatin1String("svg:line")) {
        for (const auto &[x, y] : {std::pair("x1", "y1"), {"x2", "y2"}}) {
            const QPointF point = moved.map(QPointF(number(element, x), number(element, y)));
            set(x, point.x());
            set(y, point.y());
        }
        return;
    }
    if (element.hasAttribute(QStringLiteral("points"))) {
        const QPolygonF points = pointsOf(svgNumbers(element.attribute(QStringLiteral("points"))));
        element.setAttribute(QStringLiteral("points"), svgPoints(moved.map(points)));
        return;
    }
    const QRectF box = drawnExtent(element).value_or(QRectF());
    const QPointF center = moved.map(box.center());
    if (tag == QLatin1String("svg:circle") || tag == QLatin1String("svg:ellipse")) {
        set("cx", center.x());
        set("cy", center.y());
    } else {
        set("x", center.x() - box.width() / 2);
        set("y", center.y() - box.height() / 2);
    }
    if (tag == QLatin1String("svg:circle")) {
        return;
    }
    const QString turn = element.attribute(QStringLiteral("transform"));
    const double angle =
        svgNumbers(turn.mid(turn.indexOf(QLatin1Char('(')) + 1).remove(QLatin1Char(')'))).value(0) * M_PI / 180;
    const QPointF along = moved.map(QPointF(std::cos(angle), std::sin(angle))) - moved.map(QPointF());
    setSvgTurn(element, std::atan2(along.y(), along.x()));
}

bool isFilledAlike(const QPolygonF &polygon)
{
    const QRectF extent = polygon.boundingRect();
    const bool hasArea = extent.width() > 0 && extent.height() > 0 && std::isfinite(extent.width() + extent.height());
    if (polygon.size() < 4 || !hasArea || isConvex(polygon)) {
        return true;
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    path.setFillRule(Qt::OddEvenFill);
    const QImage one = filled(path, extent);
    path.setFillRule(Qt::WindingFill);
    const QImage other = filled(path, extent);
    int different = 0;
    const int width = one.width();
    for (int y = 0; y < one.height(); ++y) {
        const uchar *first = one.constScanLine(y);
        const uchar *second = other.constScanLine(y);
        different += std::inner_product(first, first + width, second, 0, std::plus<>(), std::not_equal_to<>());
    }
    return different < width / 4; // less shows nothing
}

std::optional<QRectF> drawnExtent(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (tag == QLatin1String("svg:circle") || tag == QLatin1String("svg:ellipse")) {
        const bool isCircle = tag == QLatin1String("svg:circle");
        const QPointF radii(number(element, isCircle ? "r" : "rx"), number(element, isCircle ? "r" : "ry"));
        const QPointF center(number(element, "cx"), number(element, "cy"));
        return QRectF(center - radii, center + radii);
    }
    if (tag == QLatin1String("svg:line") && element.hasAttribute(QStringLiteral("x1"))) {
        return QRectF(QPointF(number(element, "x1"), number(element, "y1")),
                      QPointF(number(element, "x2"), number(element, "y2")))
            .normalized();
    }
    if (element.hasAttribute(QStringLiteral("points"))) {
        return extentOf(pointsOf(svgNumbers(element.attribute(QStringLiteral("points")))));
    }
    if (tag != QLatin1String("svg:line") && tag != QLatin1String("svg:polyline")
        && element.hasAttribute(QStringLiteral("width"))) {
        return QRectF(number(element, "x"), number(element, "y"), number(element, "width"), number(element, "height"));
    }
    return std::nullopt;
}

} // namespace lessonhost
