// SPDX-License-Identifier: MIT
#include "svg/svgstrokes.h"

#include "lesson/itemvalues.h"
#include "svg/inkline.h"
#include "svg/svggeometry.h"
#include "svg/svgnames.h"
#include "svg/svgpage.h"
#include "svg/svgvalues.h"

namespace lessonhost {

QVector<QDomElement> strokePieces(const SvgPage &page, const QDomElement &first)
{
    const auto groupOf = [&page](const QDomElement &element) {
        return page.rules().groups.value(element.attribute(QStringLiteral("id")), -1);
    };
    const bool isInSvgGroup = svgName(first.parentNode().toElement()) == QLatin1String("g");
    QVector<QDomElement> pieces;
    for (QDomElement piece = first; !piece.isNull(); piece = piece.nextSiblingElement()) {
        const IwbRecord record = page.recordOf(piece);
        const bool isOfStroke =
            pieces.isEmpty() || isInSvgGroup || (groupOf(piece) >= 0 && groupOf(piece) == groupOf(first));
        if (svgName(piece) != QLatin1String("polygon") || !(record.isFreehand || record.isHighlight) || !isOfStroke) {
            break;
        }
        pieces.append(piece);
    }
    return pieces;
}

bool readStroke(SvgPage &page, const QVector<QDomElement> &pieces, const SvgPlace &outer)
{
    QVector<QPolygonF> polygons;
    QColor color;
    SvgPlace place = outer;
    const auto nobody = [](const Sentence &) {};
    for (const QDomElement &piece : pieces) {
        const SvgStyle style = outer.style.child(piece, page.transformOf(piece), nobody);
        const SvgPaint paint = svgPaint(style, page.rules().isNative, nobody);
        if (polygons.isEmpty()) {
            color = paint.fill;
            place.style = style;
        }
        if (color.alpha() == 0 || paint.fill != color || style.isVisible() != place.style.isVisible()) {
            return false;
        }
        polygons.append(style.matrix.map(pointsOf(svgNumbers(piece.attribute(QStringLiteral("points"))))));
    }
    const auto line = inkLineOf(polygons);
    if (!line) {
        return false;
    }
    if (pieces.size() > 1) {
        page.remark(pieces.first(), sayNumber("%n polygons became one stroke", pieces.size()), false);
    } else {
        page.remark(pieces.first(), say("the polygon became a stroke"), false);
    }
    QPolygonF points = line->points;
    if (points.size() == 1) {
        points.append(points.first());
    }
    IwbElement &item = page.addItem(pieces.first(), place, QStringLiteral("svg:polyline"));
    page.placePoints(item, points);
    SvgPaint paint;
    paint.fill = QColor(0, 0, 0, 0);
    paint.line = color;
    paint.lineWidth = line->width;
    setPluginPaint(item.element, paint);
    for (const QDomElement &piece : pieces) {
        outer.style.child(piece, page.transformOf(piece), page.remarkAbout(piece));
        page.remarkOnExtras(piece, svgName(piece));
        if (piece != pieces.first()) {
            page.remark(piece, say("it became a part of a stroke"), false);
        }
    }
    return true;
}

} // namespace lessonhost
