// SPDX-License-Identifier: MIT
#include "drawings/instrumentdrawing.h"

#include "canvas/outline.h"
#include "drawings/itemoutline.h"
#include "drawings/scale.h"
#include "lesson/planegeometry.h"
#include "svg/svgstyle.h"

#include <QtMath>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String lengthKey("Length");
const QLatin1String translateX("Translate_X");
const QLatin1String translateY("Translate_Y");
const QLatin1String rotateAngle("RotateAngle");

// A page is printed with 96 pixels an inch, so that its rulers are true on paper.
constexpr double centimetre = 96 / 2.54;
constexpr double mostNumbers = 200;

/*!
 * An instrument as large as it is on the page, upright, with its upper left corner at 0,0.
 */
struct Instrument
{
    PlainSvg &svg;
    QSizeF size;
    QTransform place; //!< to the page
};

// One sees through an instrument what one draws along it.
SvgPaint bodyPaint()
{
    SvgPaint paint;
    paint.fill = QColor(0xdc, 0xeb, 0xf5, 0xc0);
    paint.line = QColor(0x4d, 0x69, 0x80);
    paint.lineWidth = 1.5;
    return paint;
}

SvgPaint thinLine()
{
    SvgPaint paint = bodyPaint();
    paint.fill = Qt::transparent;
    paint.lineWidth = 1;
    return paint;
}

const QColor inkOfScales(0x24, 0x36, 0x45);

// Centimetres along an edge of an instrument.
Scale lengthScale(double pixels, double tickLength, double numberSize)
{
    Scale scale;
    scale.last = pixels / centimetre;
    while (scale.last > scale.step * mostNumbers) {
        scale.step *= 10;
    }
    scale.tickLength = tickLength;
    scale.numberSize = numberSize;
    scale.color = inkOfScales;
    return scale;
}

void drawRuler(const Instrument &ruler)
{
    const double width = ruler.size.width();
    const double height = ruler.size.height();
    const double round = qMin(6.0, qMin(width, height) / 6);
    QPainterPath body;
    body.addRoundedRect(QRectF(QPointF(), ruler.size), round, round);
    ruler.svg.addPath(ruler.place.map(body), bodyPaint());
    const double margin = qMin(0.4 * centimetre, width / 10);
    const double tick = qMin(centimetre / 2, height * 0.4);
    addScale(ruler.svg, ScaleCourse::line({margin, 0}, {width - margin, 0}),
             lengthScale(width - 2 * margin, tick, qMin(18.0, height * 0.28)), ruler.place);
}

/*!
 * A triangle with its right angle at the lower left, as large as it fits into the instrument.
 */
void drawSetSquare(const Instrument &square, double acrossOverUp)
{
    const double up = qMin(square.size.height(), square.size.width() / acrossOverUp);
    const double across = up * acrossOverUp;
    const QPointF corner((square.size.width() - across) / 2, (square.size.height() + up) / 2);
    const QPointF top = corner - QPointF(0, up);
    const QPointF right = corner + QPointF(across, 0);
    const double shorter = qMin(up, across);
    const double letters = qMin(15.0, shorter * 0.07);
    const double tick = qMin(centimetre * 0.4, shorter * 0.07);
    const double strip = tick + 1.8 * letters;

    QPainterPath body;
    body.addPolygon(QVector<QPointF>{corner, top, right, corner});
    const double inner = (up + across - std::hypot(up, across)) / 2; // the radius of the circle that touches all sides
    QPainterPath hole;
    hole.addEllipse(corner + QPointF(inner, -inner), inner * 0.35, inner * 0.35);
    body.addPath(hole.toReversed());
    square.svg.addPath(square.place.map(body), bodyPaint());

    // The corners get too narrow for a scale.
    const double toRight = across - strip * across / up - strip;
    const double toTop = up - strip * up / across - strip;
    const QPointF zeroRight = corner + QPointF(strip, 0);
    const QPointF zeroUp = corner - QPointF(0, strip);
    if (toRight > 0 && toTop > 0) {
        addScale(square.svg, ScaleCourse::line(zeroRight, zeroRight + QPointF(toRight, 0)),
                 lengthScale(toRight, -tick, letters), square.place);
        addScale(square.svg, ScaleCourse::line(zeroUp, zeroUp - QPointF(0, toTop)), lengthScale(toTop, tick, letters),
                 square.place);
    }
}

void drawLongSetSquare(const Instrument &square)
{
    const double longer = std::sqrt(3);
    drawSetSquare(square, square.size.width() >= square.size.height() ? longer : 1 / longer);
}

void drawEvenSetSquare(const Instrument &square)
{
    drawSetSquare(square, 1);
}

// Degrees count from either end.
void drawProtractor(const Instrument &protractor)
{
    constexpr double footOverRadius = 0.06; // below the line from 0 to 180 degrees
    const double radius = qMin(protractor.size.width() / 2, protractor.size.height() / (1 + footOverRadius));
    const double foot = radius * footOverRadius;
    const QPointF center(protractor.size.width() / 2, (protractor.size.height() + radius - foot) / 2);
    const auto disc = [&center](double r) { return QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r); };

    QPainterPath body(center + QPointF(-radius, foot));
    body.lineTo(center - QPointF(radius, 0));
    body.arcTo(disc(radius), 180, -180);
    body.lineTo(center + QPointF(radius, foot));
    body.closeSubpath();
    QPainterPath window(center + QPointF(radius * 0.4, -foot));
    const double windowEnd = qRadiansToDegrees(std::atan2(foot, radius * 0.4));
    window.arcTo(disc(std::hypot(radius * 0.4, foot)), windowEnd, 180 - 2 * windowEnd);
    window.closeSubpath();
    body.addPath(window);
    protractor.svg.addPath(protractor.place.map(body), bodyPaint());

    QPainterPath lines(center - QPointF(radius * 0.4, 0));
    lines.lineTo(center + QPointF(radius * 0.4, 0));
    lines.moveTo(center - QPointF(0, foot));
    lines.lineTo(center + QPointF(0, foot));
    protractor.svg.addPath(protractor.place.map(lines), thinLine());

    Scale degrees;
    degrees.last = 180;
    degrees.step = 10;
    degrees.tickLength = radius * 0.08;
    constexpr double readable = 7.5;
    degrees.numberSize = radius > 50 ? qBound(readable, radius * 0.065, 18.0) : 0;
    degrees.turnsNumbers = true;
    degrees.color = inkOfScales;
    addScale(protractor.svg, ScaleCourse::arc(center, radius, 0, 180), degrees, protractor.place);
    degrees.parts = 1;
    degrees.tickLength = radius * 0.04;
    addScale(protractor.svg, ScaleCourse::arc(center, radius * 0.7, 180, -180), degrees, protractor.place);
}

void drawCompasses(const Instrument &compasses)
{
    const QRectF box(QPointF(), compasses.size);
    SvgPaint metal = bodyPaint();
    metal.fill = QColor(0xc3, 0xcf, 0xd9);
    SvgPaint dark = metal;
    dark.fill = QColor(0x4d, 0x69, 0x80);
    const auto draw = [&](const char *outline, const SvgPaint &paint) {
        compasses.svg.addPath(compasses.place.map(outlineIn(box, outline)), paint);
    };
    draw("M .12 .85 L .04 1 L .16 .87 Z M .84 .87 L .88 .85 L .96 1 Z", dark); // needle and lead
    draw("M .45 .14 L .5 .22 L .17 .89 L .09 .86 Z", metal);
    draw("M .55 .14 L .5 .22 L .83 .89 L .91 .86 Z", metal);
    draw("M .47 0 L .53 0 L .53 .1 L .47 .1 Z", dark);
    draw("E .5-.1s .16-.1s .5+.1s .16+.1s", metal);
    draw("E .5-.03s .16-.03s .5+.03s .16+.03s", dark);
}

struct Form
{
    const char *type;
    double width; //!< of an item without a box, in pixels
    double height;
    void (*draw)(const Instrument &instrument);
    QPointF middle; //!< of turns, and below where it is taken to turn it: parts of its size
    QPointF handle;
};

constexpr Form instruments[] = {
    {"Math:ruler", 800, 90, &drawRuler, {.5, .5}, {1, .5}},
    {"Math:triangle3060", 400, 231, &drawLongSetSquare, {.5, .5}, {1, 1}},
    {"Math:triangle4545", 300, 300, &drawEvenSetSquare, {.5, .5}, {1, 1}},
    {"Math:protractor", 500, 265, &drawProtractor, {.5, 1}, {1, 1}},
    {"Math:compasses", 200, 240, &drawCompasses, {.04, 1}, {.96, 1}},
};

const Form *instrumentOf(const QString &type)
{
    for (const Form &form : instruments) {
        if (type == QLatin1String(form.type)) {
            return &form;
        }
    }
    return nullptr;
}

/*!
 * Where an instrument lies: in its box. Length and place count where there is none, and of a ruler in a longer box that
 * is how far it reaches.
 */
std::optional<QRectF> boxOf(const ItemView &item, const Form &form)
{
    const auto own = item.box();
    const double told = item.number(lengthKey);
    if (!own || own->isEmpty()) {
        if (!item.has(translateX) || !item.has(translateY)) {
            return std::nullopt;
        }
        return QRectF(item.number(translateX), item.number(translateY), told > 0 ? told : form.width, form.height);
    }
    QRectF box = *own;
    if (told > box.height() && told < box.width()) {
        box.setWidth(told);
    }
    return box;
}

// Its box and where that lies; nothing where it says neither.
std::optional<PlacedBox> placeOf(const ItemView &item, const Form &form)
{
    const auto box = boxOf(item, form);
    if (!box) {
        return std::nullopt;
    }
    const QTransform turned = turnAbout(box->center(), qDegreesToRadians(item.number(rotateAngle)));
    const QTransform page =
        item.box() ? placeOnPage(item) : item.matrix().value_or(turnAbout(box->center(), item.angle()));
    const PlacedBox placed(*box, turned * page);
    return placed.isEmpty() ? std::nullopt : std::optional<PlacedBox>(placed);
}

// From pixels of the instrument, beginning at its upper left corner.
QTransform fromPixels(const PlacedBox &placed)
{
    return QTransform::fromTranslate(-placed.width / 2, -placed.height / 2) * placed.inPixels();
}

bool drawInstrument(Canvas &canvas, const ItemView &item)
{
    const Form *const form = instrumentOf(item.type());
    const auto placed = form ? placeOf(item, *form) : std::nullopt;
    if (placed) {
        form->draw({canvas.svg(), {placed->width, placed->height}, fromPixels(*placed)});
    }
    return placed.has_value();
}

} // namespace

SvgDrawing instrumentDrawing(const QString &type)
{
    return instrumentOf(type) ? &drawInstrument : nullptr;
}

std::optional<InstrumentHandle> instrumentHandle(const ItemView &item)
{
    const Form *const form = instrumentOf(item.type());
    const auto placed = form ? placeOf(item, *form) : std::nullopt;
    if (!placed) {
        return std::nullopt;
    }
    const QTransform fromParts = QTransform::fromScale(placed->width, placed->height) * fromPixels(*placed);
    return InstrumentHandle{fromParts.map(form->middle), fromParts.map(form->handle)};
}

} // namespace lessonhost
