// SPDX-License-Identifier: MIT
#include "drawings/coverdrawing.h"

#include "drawings/itemoutline.h"
#include "files/drawingbounds.h"
#include "lesson/curtain.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QHash>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String canvasSize("CanvasSize");
const QLatin1String spotCenter("SpotCenter");
const QLatin1String spotRadius("SpotRadius");
const QLatin1String backgroundAlpha("BackgroundAlpha");

std::optional<QRectF> boxWithArea(const ItemView &item)
{
    const auto box = item.box();
    return box && !box->isEmpty() ? box : std::nullopt;
}

void drawFolds(PlainSvg &svg, const PlacedBox &box)
{
    constexpr double widthOfFold = 70;
    constexpr double mostFolds = 40;
    const int folds = int(qBound(3.0, box.width / widthOfFold, mostFolds));
    SvgPaint shade;
    shade.line = Qt::transparent;
    for (const auto &part :
         {std::make_pair(QColor(0x6d, 0x12, 0x1e), 0.55), std::make_pair(QColor(0x5a, 0x0d, 0x18), 0.2)}) {
        QPainterPath path;
        for (int i = 0; i < folds; ++i) {
            path.addRect(QRectF((i + 1 - part.second) / folds, 0, part.second / folds, 1));
        }
        shade.fill = part.first;
        svg.addPath(box.place.map(path), shade);
    }
}

// Whatever is on its cloth, nobody sees through it.
bool drawCurtain(Canvas &canvas, const ItemView &item)
{
    const auto area = coveredByCurtain(item);
    const PlacedBox box(area.value_or(QRectF()), placeOnPage(item));
    if (box.isEmpty()) {
        return false;
    }
    SvgPaint cloth;
    cloth.fill = QColor(curtainCloth);
    cloth.line = Qt::transparent;
    QPainterPath whole;
    whole.addRect(QRectF(0, 0, 1, 1));
    canvas.svg().addPath(box.place.map(whole), cloth);
    if (!canvas.addPicture(item.text(CurtainKeys::picture), *area, placeOnPage(item))) {
        drawFolds(canvas.svg(), box);
    }
    return true;
}

// Of 255, or of 1 where it has no more.
double darkness(const ItemView &item)
{
    constexpr double usual = 0.75;
    if (!item.has(backgroundAlpha)) {
        return usual;
    }
    const double told = item.number(backgroundAlpha);
    return told <= 1 ? qMax(told, 0.0) : qMin(told / 255, 1.0);
}

struct SpotCanvas
{
    QRectF area;
    QPointF center;
    double radius = 0;
    QTransform fit; //!< to the page
};

// SpotCenter and SpotRadius are told on a canvas that covers the item's box.
std::optional<SpotCanvas> spotCanvas(const ItemView &item)
{
    const auto box = boxWithArea(item);
    const QVector<double> size = item.numbers(canvasSize);
    QSizeF told(size.value(0), size.value(1));
    if (told.isEmpty() && box) {
        told = box->size();
    }
    const QPolygonF center = item.points(spotCenter);
    const double radius = qMin(item.number(spotRadius), largestInDrawing);
    if (center.size() != 1 || !(radius > 0) || told.isEmpty()) {
        return {};
    }
    SpotCanvas spot;
    spot.area = QRectF(QPointF(), told.boundedTo(QSizeF(largestInDrawing, largestInDrawing)));
    spot.center = QPointF(qBound(-largestInDrawing, center.first().x(), largestInDrawing),
                          qBound(-largestInDrawing, center.first().y(), largestInDrawing));
    spot.radius = radius;
    spot.fit = box ? fitInto(spot.area, *box) * placeOnPage(item) : item.matrix().value_or(QTransform());
    return spot;
}

bool drawSpotlight(Canvas &canvas, const ItemView &item)
{
    const auto spot = spotCanvas(item);
    if (!spot) {
        return false;
    }
    QPainterPath hole;
    hole.addEllipse(spot->center, spot->radius, spot->radius);
    QPainterPath dark;
    dark.addRect(spot->area);
    if (spot->area.contains(hole.boundingRect())) {
        dark.addPath(hole.toReversed());
    } else {
        dark = dark.subtracted(hole);
    }
    SvgPaint paint;
    paint.line = Qt::transparent;
    paint.fill = QColor(0, 0, 0, qRound(darkness(item) * 255));
    canvas.svg().addPath(spot->fit.map(dark), paint);
    return true;
}

} // namespace

std::optional<Spot> spotOn(const ItemView &item)
{
    const auto spot = spotCanvas(item);
    if (!spot) {
        return {};
    }
    return Spot{spot->fit.map(spot->center), spot->radius * std::sqrt(std::abs(spot->fit.determinant()))};
}

SvgDrawing coverDrawing(const QString &type)
{
    static const QHash<QString, SvgDrawing> drawings{
        {curtainType, &drawCurtain},
        {QStringLiteral("General:spotlight"), &drawSpotlight},
    };
    return drawings.value(type);
}

} // namespace lessonhost
