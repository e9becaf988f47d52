// SPDX-License-Identifier: MIT
#include "canvas/surelyseen.h"

#include "files/svgattributes.h"
#include "lesson/fontshere.h"
#include "svg/svgpath.h"
#include "svg/svgvalues.h"

#include <QPainterPath>
#include <QTransform>

#include <cmath>

namespace lessonhost {

namespace {

// With anything else on an element, it may be hidden, cut off or painted with what isn't there.
const QSet<QString> &harmlessOnShapes()
{
    static const QSet<QString> names = attributeSetOfShape({
        "fill",
        "fill-opacity",
        "fill-rule",
        "opacity",
        "stroke",
        "stroke-width",
        "stroke-opacity",
        "stroke-dasharray",
        "stroke-linecap",
        "stroke-linejoin",
        "transform",
    });
    return names;
}

const QSet<QString> &harmlessOnGroups()
{
    static const QSet<QString> names = attributeSet(
        {"transform", "text-anchor", "text-rendering", "font-family", "font-size", "fill", "style", "xml:lang"});
    return names;
}

const QSet<QString> &harmlessOnTexts()
{
    static const QSet<QString> names = attributeSet({"x", "y", "fill", "font-family", "font-size", "font-style",
                                                     "font-weight", "style", "text-anchor", "xml:lang", "xml:space"});
    return names;
}

constexpr double smallestWidth = 1; // of a line
constexpr double smallestLetters = 8;
constexpr double smallestSide = 4; // of what is filled, and of a piece of a line
constexpr double smallestOpacity = 0.2;

double numberOf(const QDomElement &element, const char *name, double otherwise)
{
    const QString text = element.attribute(QLatin1String(name));
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return text.isEmpty() ? otherwise : isNumber && std::isfinite(number) ? number : 0;
}

bool isWholeColor(const QString &color)
{
    constexpr int fullLength = 7; // "#rrggbb"
    return color.size() == fullLength && color.startsWith(QLatin1Char('#')) && svgColor(color);
}

// What is filled or drawn with a colour of its own that lets little through.
bool isPainted(const QDomElement &shape, const char *name, const char *opacity)
{
    return isWholeColor(shape.attribute(QLatin1String(name)))
        && numberOf(shape, "opacity", 1) * numberOf(shape, opacity, 1) >= smallestOpacity;
}

double leastScale(const QTransform &transform)
{
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    const double larger = qMax(across, down);
    return larger > 0 ? qAbs(transform.determinant()) / larger : 0;
}

bool hasLongPiece(const QPainterPath &path)
{
    QPointF from;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        // A curve leads to the second of its points that come after the first.
        const int end = element.isCurveTo() ? i + 2 : i;
        const QPointF to = path.elementAt(qMin(end, path.elementCount() - 1));
        if (!element.isMoveTo() && std::hypot(to.x() - from.x(), to.y() - from.y()) >= smallestSide) {
            return true;
        }
        from = to;
        i = end;
    }
    return false;
}

bool isSure(const QDomElement &shape, const QTransform &toPage, const QRectF &area)
{
    const bool isFilled = isPainted(shape, "fill", "fill-opacity");
    const bool isLined = isPainted(shape, "stroke", "stroke-opacity")
        && !shape.hasAttribute(QStringLiteral("stroke-dasharray"))
        && numberOf(shape, "stroke-width", 1) * leastScale(toPage) >= smallestWidth;
    if ((!isFilled && !isLined) || !hasOnly(shape, harmlessOnShapes())) {
        return false;
    }
    const auto outline = svgOutline(shape);
    if (!outline) {
        return false;
    }
    QPainterPath path = toPage.map(*outline);
    const QRectF extent = path.controlPointRect();
    if (!area.contains(extent.topLeft()) || !area.contains(extent.bottomRight())) {
        return false;
    }
    if (isLined && hasLongPiece(path)) {
        return true;
    }
    const QSizeF side(smallestSide, smallestSide);
    const QRectF middle(extent.center() - QPointF(smallestSide, smallestSide) / 2, side);
    path.setFillRule(shape.attribute(QStringLiteral("fill-rule")) == QLatin1String("evenodd") ? Qt::OddEvenFill
                                                                                              : Qt::WindingFill);
    return isFilled && path.contains(middle);
}

// Of itself or the groups around it.
QString inherited(QDomElement element, const char *name)
{
    while (!element.isNull() && !element.hasAttribute(QLatin1String(name))) {
        element = element.parentNode().toElement();
    }
    return element.attribute(QLatin1String(name));
}

bool namesFontOnly(const QDomElement &element)
{
    const QString style = element.attribute(QStringLiteral("style"));
    return style.isEmpty() || (style.startsWith(QLatin1String("font-family:")) && !style.contains(QLatin1Char(';')));
}

// A letter that no font leaves blank.
bool isInked(QChar c)
{
    const ushort code = c.unicode();
    const bool isLatin = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    return (isLatin || (code >= 0x4e00 && code < 0xa000)) && hasGlyph(code);
}

// Wherever its line begins, a letter is near to the point that the line is told by.
bool isSureText(const QDomElement &text, const QTransform &toPage, const QRectF &area)
{
    const QString letters = text.text();
    constexpr int mostBetween = 2;
    int between = 0;
    for (const QChar c : letters) {
        between = isInked(c) ? 0 : between + 1;
        if (between > mostBetween) {
            return false;
        }
    }
    bool isNumber = false;
    const double size = inherited(text, "font-size").toDouble(&isNumber);
    const QString color = inherited(text, "fill");
    if (letters.size() <= mostBetween || !isNumber || !(size * leastScale(toPage) >= smallestLetters)
        || !isWholeColor(color) || !hasOnly(text, harmlessOnTexts()) || !namesFontOnly(text)
        || !text.firstChildElement().isNull()) {
        return false;
    }
    constexpr double farthest = 4; // in sizes of the letters
    const QPointF point(numberOf(text, "x", 0), numberOf(text, "y", 0));
    const double reach = farthest * size;
    const QRectF near = toPage.mapRect(QRectF(point, point).adjusted(-reach, -reach, reach, reach));
    return area.contains(near.topLeft()) && area.contains(near.bottomRight());
}

bool isSurelySeenIn(const QDomElement &parent, const QTransform &toPage, const QRectF &area)
{
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const auto own = svgTransform(e.attribute(QStringLiteral("transform")));
        if (!own) {
            continue;
        }
        const QTransform placed = *own * toPage;
        const QString tag = e.tagName();
        const bool isSeen = tag == QLatin1String("g")
            ? hasOnly(e, harmlessOnGroups()) && namesFontOnly(e) && isSurelySeenIn(e, placed, area)
            : tag == QLatin1String("text") ? isSureText(e, placed, area)
                                           : isSure(e, placed, area);
        if (isSeen) {
            return true;
        }
    }
    return false;
}

} // namespace

bool isSurelySeen(const QDomElement &svg, const QRectF &area)
{
    return isSurelySeenIn(svg, {}, area);
}

} // namespace lessonhost
