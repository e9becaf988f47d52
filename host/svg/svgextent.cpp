#include "svg/svgextent.h"

#include "lesson/itemvalues.h"
#include "lesson/planegeometry.h"
#include "svg/svgvalues.h"

namespace lessonhost {

namespace {

double number(const QDomElement &element, const char *attribute)
{
    return element.attribute(QLatin1String(attribute)).toDouble();
}

} // namespace

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
