// SPDX-License-Identifier: MIT
#include "canvas/plainoutlines.h"

#include "canvas/svgelements.h"
#include "files/domtools.h"
#include "files/svgattributes.h"
#include "lesson/fontshere.h"
#include "lesson/isoneof.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/svggeometry.h"
#include "svg/svgpath.h"
#include "svg/svgstyle.h"
#include "svg/svgvalues.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainterPath>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <optional>

namespace lessonhost {

namespace {

constexpr int mostPoints = 1200; // of all

// In letters of a font that others choose, longer lines end elsewhere; so many times as wide as the letters are high.
constexpr double shortLine = 2;

constexpr double fineness = 4; // lines of a curve are as fine as on a page so many times as large
constexpr double drawnDigits = 0.02; // more than what drawings round

const QSet<QString> &groupAttributes()
{
    static const QSet<QString> names =
        attributeSet({"transform", "fill", "stroke", "text-anchor", "font-family", "font-size", "text-rendering",
                      "font-style", "font-weight", "style", "xml:lang"});
    return names;
}

const QSet<QString> &shapeAttributes()
{
    static const QSet<QString> names = attributeSetOfShape({
        "fill",
        "opacity",
        "fill-opacity",
        "fill-rule",
        "stroke",
        "transform",
        "stroke-width",
        "stroke-opacity",
        "stroke-dasharray",
        "stroke-linecap",
        "stroke-linejoin",
    });
    return names;
}

const QSet<QString> &textAttributes()
{
    static const QSet<QString> names =
        attributeSet({"x", "y", "fill", "font-family", "font-size", "font-style", "font-weight", "text-anchor",
                      "transform", "style", "xml:space", "xml:lang"});
    return names;
}

// And no declarations but for the font.
bool isPlain(const QDomElement &element, const QSet<QString> &known)
{
    if (!hasOnly(element, known)) {
        return false;
    }
    const QString text = element.attribute(QStringLiteral("style"));
    const QHash<QString, QString> style = text.isEmpty() ? QHash<QString, QString>() : svgDeclarations(text);
    return style.isEmpty() || (style.size() == 1 && style.contains(QStringLiteral("font-family")));
}

QString number(double value)
{
    return svgCoordinate(value, pluginDigits);
}

// How much larger lengths become, where that is the same in all directions.
std::optional<double> evenScale(const QTransform &matrix)
{
    const auto parts = scaleAndTurn(matrix);
    constexpr double tolerance = 1e-3;
    const bool isEven = parts && qAbs(qAbs(parts->scaleX) - qAbs(parts->scaleY)) <= tolerance * qAbs(parts->scaleX);
    return isEven ? std::optional<double>(qAbs(parts->scaleX)) : std::nullopt;
}

bool isClosed(const QPolygonF &points)
{
    return points.size() > 3 && points.first() == points.last();
}

QVector<QPolygonF> outlinesOf(const QPainterPath &path)
{
    QVector<QPolygonF> outlines;
    const QList<QPolygonF> polygons = path.toSubpathPolygons(QTransform::fromScale(fineness, fineness));
    for (const QPolygonF &polygon : polygons) {
        QPolygonF outline;
        for (const QPointF &point : polygon) {
            outline.append(point / fineness);
        }
        if (outline.size() > 1) {
            outlines.append(outline);
        }
    }
    return outlines;
}

// How many that will be.
int outlineCount(const QPainterPath &path)
{
    int count = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        count += path.elementAt(i - 1).isMoveTo() && !path.elementAt(i).isMoveTo() ? 1 : 0;
    }
    return count;
}

// The box of an upright ellipse, if the path is one.
std::optional<QRectF> ellipseBox(const QPainterPath &path)
{
    const QRectF box = path.boundingRect();
    QPainterPath ellipse;
    ellipse.addEllipse(box);
    if (box.isEmpty() || path.elementCount() != ellipse.elementCount()) {
        return {};
    }
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF apart = QPointF(path.elementAt(i)) - QPointF(ellipse.elementAt(i));
        if (std::hypot(apart.x(), apart.y()) > drawnDigits) {
            return {};
        }
    }
    return box;
}

bool isUpright(const QPolygonF &points)
{
    if (points.size() != 5 || !isClosed(points)) {
        return false;
    }
    const bool beginsAcross = points.at(0).y() == points.at(1).y();
    for (int i = 0; i < 4; ++i) {
        const QPointF side = points.at(i + 1) - points.at(i);
        const bool isAcross = beginsAcross == (i % 2 == 0);
        if ((isAcross ? side.y() : side.x()) != 0 || (isAcross ? side.x() : side.y()) == 0) {
            return false;
        }
    }
    return true;
}

bool areApart(const QVector<QPolygonF> &outlines, double lineWidth)
{
    for (int i = 0; i < outlines.size(); ++i) {
        const QRectF one = outlines.at(i).boundingRect().adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
        for (int k = i + 1; k < outlines.size(); ++k) {
            if (one.intersects(outlines.at(k).boundingRect())) {
                return false;
            }
        }
    }
    return true;
}

// One outline around all, with ways there and back between them that nobody sees.
QPolygonF joined(const QVector<QPolygonF> &outlines)
{
    QPolygonF all;
    for (const QPolygonF &outline : outlines) {
        const bool isFirst = all.isEmpty();
        all += outline;
        if (!isClosed(outline)) {
            all.append(outline.first());
        }
        if (!isFirst) {
            all.append(all.first());
        }
    }
    return all;
}

// Without the quotes around names.
QStringList plainFamilies(QStringList families)
{
    for (QString &family : families) {
        family = family.remove(QLatin1Char('\'')).remove(QLatin1Char('"')).trimmed();
    }
    return families;
}

// A font that has a name and was found by it.
bool isSameElsewhere(const QString &family)
{
    constexpr const char *generic[] = {"", "serif", "sans-serif", "monospace", "cursive", "fantasy"};
    return !isOneOf(generic, family) && hasFamily(family);
}

constexpr int measuredPixels = 100; // which widths are in proportion to

// To find a font takes longer than to measure a line.
const QFontMetricsF &metricsOf(const QString &family, bool isBold, bool isItalic)
{
    constexpr int mostFonts = 100;
    static QHash<QString, QFontMetricsF> known[4];
    auto &fonts = known[(isBold ? 1 : 0) + (isItalic ? 2 : 0)];
    auto found = fonts.constFind(family);
    if (found == fonts.cend()) {
        if (fonts.size() >= mostFonts) {
            fonts.clear();
        }
        QFont font(family);
        font.setPixelSize(measuredPixels);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setBold(isBold);
        font.setItalic(isItalic);
        found = fonts.insert(family, QFontMetricsF(font));
    }
    return *found;
}

QString directionOf(const QString &text)
{
    const bool isMirrored = std::any_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL || c.direction() == QChar::DirAN;
    });
    return isMirrored ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

/*!
 * Reads a drawing as long as all of it is plain. Most aren't, so what is quick to tell comes first: its texts, then how
 * many elements its shapes need at least, and then their points.
 */
class PlainReader
{
public:
    explicit PlainReader(const QVector<PlainSvg::Shape> &shapes)
        : m_shapes(shapes)
    {
    }

    bool read(const QDomElement &drawing) { return findParts(drawing, {}) && findOutlines() && addParts(); }

    const QVector<PlainElement> &elements() const { return m_elements; }

private:
    // What an outline is drawn with.
    struct Pen
    {
        SvgPaint paint;
        QString cap;
        QString join;
        QStringList dashes;
        bool isEvenOdd = false;
    };
    // A text, or a shape.
    struct Part
    {
        PlainElement text;
        QDomElement shape;
        const PlainSvg::Shape *unwritten = nullptr; //!< the shape, if it isn't written yet
        SvgStyle style;
        QPainterPath outline; //!< on the page
        Pen pen;
    };

    bool findParts(const QDomElement &holder, const SvgStyle &outer)
    {
        const auto problem = [this](const Sentence &) { m_isPlain = false; };
        for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            if (m_next < m_shapes.size() && m_shapes.at(m_next).element == child) {
                m_parts.append(Part{{}, child, &m_shapes.at(m_next++), outer, {}, {}});
                continue;
            }
            const QString tag = bareName(child.tagName());
            const bool isGroup = tag == QLatin1String("g");
            const bool isText = tag == QLatin1String("text");
            if (!isPlain(child, isGroup ? groupAttributes() : isText ? textAttributes() : shapeAttributes())) {
                return false;
            }
            const SvgStyle style = outer.child(child, child.attribute(QStringLiteral("transform")), problem);
            if (!m_isPlain || (isGroup && !findParts(child, style)) || (isText && !addText(child, style))) {
                return false;
            }
            if (!isGroup && !isText) {
                m_parts.append(Part{{}, child, nullptr, style, {}, {}});
            }
        }
        return true;
    }

    // Of what is to be seen.
    bool findOutlines()
    {
        int least = 0; // elements
        for (Part &part : m_parts) {
            if (!part.shape.isNull() && !findOutline(part)) {
                return false;
            }
            const bool isFilled = part.pen.paint.fill.alpha() > 0;
            const int outlines = part.shape.isNull() ? 1 : outlineCount(part.outline);
            least += isFilled ? qMin(1, outlines) : outlines;
            if (least > mostPlainElements) {
                return false;
            }
        }
        return true;
    }

    bool findOutline(Part &part)
    {
        const SvgStyle &style = part.style;
        const auto outline = part.unwritten ? asDrawn(part.unwritten->path) : svgOutline(part.shape);
        Pen &pen = part.pen;
        pen = part.unwritten ? penOf(*part.unwritten, style) : penOf(style);
        const bool isFilled = pen.paint.fill.alpha() > 0;
        const bool isLined = pen.paint.line.alpha() > 0;
        // Of a translucent whole, lines don't show what they lie on.
        if (!outline || !m_isPlain || (isLined && !evenScale(style.matrix))
            || (style.opacity < 1 && isFilled && isLined)) {
            return false;
        }
        if ((isFilled || isLined) && style.isVisible()) {
            part.outline = style.matrix.map(*outline);
        }
        return true;
    }

    Pen penOf(const SvgStyle &style)
    {
        Pen pen;
        pen.paint = svgPaint(style, false, [this](const Sentence &) { m_isPlain = false; });
        pen.cap = style.property(QStringLiteral("stroke-linecap"));
        pen.join = style.property(QStringLiteral("stroke-linejoin"));
        pen.isEvenOdd = style.property(QStringLiteral("fill-rule")) == QLatin1String("evenodd");
        const QVector<double> dashes = svgNumbers(style.property(QStringLiteral("stroke-dasharray")));
        const double scale = dashes.isEmpty() ? 1 : evenScale(style.matrix).value_or(1);
        for (const double length : dashes) {
            pen.dashes.append(number(length * scale));
        }
        return pen;
    }

    // What the same gives once it is written. around: the style of the group that it is in.
    static Pen penOf(const PlainSvg::Shape &shape, const SvgStyle &around)
    {
        Pen pen;
        pen.paint.fill = asDrawn(shape.paint.fill);
        pen.paint.line = asDrawn(shape.paint.line);
        pen.paint.lineWidth = asDrawn(shape.paint.lineWidth) * meanScale(around.matrix);
        if (pen.paint.lineWidth <= 0) {
            pen.paint.lineWidth = 1;
            pen.paint.line.setAlpha(0);
        }
        pen.join = QStringLiteral("round");
        const double scale = evenScale(around.matrix).value_or(1);
        const QVector<double> dashes = drawnDashes(shape.paint);
        for (const double length : dashes) {
            pen.dashes.append(number(asDrawn(length) * scale));
        }
        return pen;
    }

    bool addParts()
    {
        for (const Part &part : qAsConst(m_parts)) {
            if (part.shape.isNull()) {
                m_elements.append(part.text);
            } else if (!part.outline.isEmpty() && !addPath(part.outline, part.pen)) {
                return false;
            }
            if (m_elements.size() > mostPlainElements || m_points > mostPoints) {
                return false;
            }
        }
        return true;
    }

    bool addPath(const QPainterPath &path, const Pen &pen)
    {
        if (const auto box = ellipseBox(path)) {
            addEllipse(*box, pen);
            return true;
        }
        const QVector<QPolygonF> outlines = outlinesOf(path);
        const bool isLined = pen.paint.line.alpha() > 0;
        const double lineWidth = isLined ? pen.paint.lineWidth : 0;
        const bool isFilled = pen.paint.fill.alpha() > 0;
        const bool isOne = !isFilled || areApart(outlines, lineWidth);
        const QPolygonF all = isOne ? QPolygonF() : joined(outlines);
        if (!isOne && (!pen.isEvenOdd && !isFilledAlike(all))) {
            return false;
        }
        if (!isOne) {
            addPoints(all, pen, true, false);
        }
        for (const QPolygonF &outline : outlines) {
            const bool isAlike = !isFilled || !isOne || pen.isEvenOdd || isFilledAlike(outline);
            if (!isAlike) {
                return false;
            }
            if (!isFilled || !isOne) {
                isLined ? addPoints(outline, pen, false, true) : void();
            } else if (isClosed(outline) || !isLined) {
                addPoints(outline, pen, true, isLined);
            } else {
                addPoints(outline, pen, true, false);
                addPoints(outline, pen, false, true);
            }
        }
        return true;
    }

    // A line that isn't closed, what it fills, or both of a closed one.
    void addPoints(QPolygonF points, const Pen &pen, bool isFilled, bool isLined)
    {
        PlainElement element;
        if (pen.dashes.isEmpty() && isUpright(points)) {
            element.tag = QStringLiteral("svg:rect");
            const QRectF box = points.boundingRect();
            element.set("x", number(box.x()));
            element.set("y", number(box.y()));
            element.set("width", number(box.width()));
            element.set("height", number(box.height()));
            add(element, pen, isFilled, isLined);
            return;
        }
        if (points.size() == 2 && !isFilled) {
            element.tag = QStringLiteral("svg:line");
            element.set("x1", number(points.at(0).x()));
            element.set("y1", number(points.at(0).y()));
            element.set("x2", number(points.at(1).x()));
            element.set("y2", number(points.at(1).y()));
            add(element, pen, isFilled, isLined);
            return;
        }
        if (isFilled || isClosed(points)) {
            element.tag = QStringLiteral("svg:polygon");
            if (isClosed(points)) {
                points.removeLast();
            }
        } else {
            element.tag = QStringLiteral("svg:polyline");
            if (points.size() == 3) {
                // Three points are an angle.
                points.insert(1, (points.at(0) + points.at(1)) / 2);
            }
        }
        m_points += points.size();
        element.set("points", coordinateTexts(points, pluginDigits, ',', ' '));
        add(element, pen, isFilled, isLined);
    }

    void addEllipse(const QRectF &box, const Pen &pen)
    {
        PlainElement element;
        const bool isCircle = qAbs(box.width() - box.height()) <= drawnDigits;
        element.tag = isCircle ? QStringLiteral("svg:circle") : QStringLiteral("svg:ellipse");
        element.set("cx", number(box.center().x()));
        element.set("cy", number(box.center().y()));
        if (isCircle) {
            element.set("r", number(box.width() / 2));
        } else {
            element.set("rx", number(box.width() / 2));
            element.set("ry", number(box.height() / 2));
        }
        add(element, pen, pen.paint.fill.alpha() > 0, pen.paint.line.alpha() > 0);
    }

    void add(PlainElement &element, const Pen &pen, bool isFilled, bool isLined)
    {
        const bool isOpen = element.tag == QLatin1String("svg:line") || element.tag == QLatin1String("svg:polyline");
        const auto setColor = [&element](const char *name, const char *opacity, const QColor &color) {
            element.set(name, color.name());
            if (color.alpha() < 255) {
                element.set(opacity, number(color.alphaF()));
            }
        };
        if (isFilled) {
            setColor("fill", "fill-opacity", pen.paint.fill);
        } else if (!isOpen) {
            element.set("fill", QStringLiteral("none"));
        }
        if (!isLined) {
            element.set("stroke", QStringLiteral("none"));
            m_elements.append(element);
            return;
        }
        setColor("stroke", "stroke-opacity", pen.paint.line);
        element.set("stroke-width", number(pen.paint.lineWidth));
        const bool hasEnds = isOpen || !pen.dashes.isEmpty();
        if (hasEnds && !pen.cap.isEmpty()) {
            element.set("stroke-linecap", pen.cap);
        }
        const bool hasCorners = element.tag == QLatin1String("svg:polygon") || element.tag == QLatin1String("svg:rect")
            || element.tag == QLatin1String("svg:polyline");
        if (hasCorners && !pen.join.isEmpty()) {
            element.set("stroke-linejoin", pen.join);
        }
        if (!pen.dashes.isEmpty()) {
            element.set("stroke-dasharray", pen.dashes.join(QLatin1Char(',')));
        }
        m_elements.append(element);
    }

    // One line of letters, which begins where its anchor says.
    bool addText(const QDomElement &source, const SvgStyle &style)
    {
        QString text = source.text();
        const QString plain = text.simplified();
        if (plain.isEmpty() || !style.isVisible()) {
            return true;
        }
        const QString anchor = style.property(QStringLiteral("text-anchor"));
        const bool isAtStart = anchor.isEmpty() || anchor == QLatin1String("start");
        const auto parts = scaleAndTurn(style.matrix);
        const auto scale = evenScale(style.matrix);
        const auto color = svgColor(style.property(QStringLiteral("fill")));
        const bool hasLine =
            style.has(QStringLiteral("stroke")) && style.property(QStringLiteral("stroke")) != QLatin1String("none");
        const bool isTrimmed = isAtStart && text.startsWith(plain); // blanks at the end move nothing then
        if ((text != plain && !isTrimmed) || !source.firstChildElement().isNull() || !scale || parts->scaleX < 0
            || parts->scaleY < 0 || !color || color->alpha() < 255 || style.opacity < 1 || hasLine
            || directionOf(text) == QLatin1String("rtl")) {
            return false;
        }
        const QStringList families =
            plainFamilies(style.property(QStringLiteral("font-family")).split(QLatin1Char(',')));
        const QString weight = style.property(QStringLiteral("font-weight"));
        const QString slant = style.property(QStringLiteral("font-style"));
        const bool isBold = weight == QLatin1String("bold") || weight.toInt() > 500;
        const bool isItalic = slant == QLatin1String("italic") || slant == QLatin1String("oblique");
        const double size = style.fontPixels();
        const double width =
            metricsOf(familyHere(families), isBold, isItalic).horizontalAdvance(plain) * size / measuredPixels;
        if (width > shortLine * size && !isSameElsewhere(families.first())) {
            return false;
        }
        const double before = isAtStart ? 0 : anchor == QLatin1String("end") ? width : width / 2;
        const auto at = [&source](const char *name) {
            return svgLength(source.attribute(QLatin1String(name))).value_or(0);
        };
        const QPointF start = style.matrix.map(QPointF(at("x") - before, at("y")));
        PlainElement element;
        element.tag = QStringLiteral("svg:text");
        element.text = plain;
        element.set("x", number(start.x()));
        element.set("y", number(start.y()));
        element.set("fill", color->name());
        if (!families.first().isEmpty()) {
            element.set("font-family", style.property(QStringLiteral("font-family")));
        }
        element.set("font-size", number(size * *scale));
        if (isBold) {
            element.set("font-weight", QStringLiteral("bold"));
        }
        if (isItalic) {
            element.set("font-style", QStringLiteral("italic"));
        }
        constexpr double smallestTurn = 1e-4;
        if (qAbs(parts->angle) > smallestTurn) {
            element.set("transform",
                        QStringLiteral("rotate(%1,%2,%3)")
                            .arg(number(parts->angle * 180 / M_PI), number(start.x()), number(start.y())));
        }
        m_parts.append(Part{element, {}, nullptr, {}, {}, {}});
        return true;
    }

    const QVector<PlainSvg::Shape> &m_shapes;
    int m_next = 0; // of them
    QVector<Part> m_parts;
    QVector<PlainElement> m_elements;
    int m_points = 0;
    bool m_isPlain = true;
};

} // namespace

QVector<PlainElement> plainOutlines(const QDomElement &drawing, const QVector<PlainSvg::Shape> &shapes)
{
    PlainReader reader(shapes);
    return reader.read(drawing) ? reader.elements() : QVector<PlainElement>();
}

} // namespace lessonhost
