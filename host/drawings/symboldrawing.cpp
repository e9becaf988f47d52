// SPDX-License-Identifier: MIT
#include "drawings/symboldrawing.h"

#include "drawings/itemoutline.h"
#include "drawings/levelliquid.h"
#include "drawings/scale.h"
#include "drawings/symbolaxis.h"
#include "drawings/symbolfile.h"
#include "drawings/symbolrules.h"
#include "svg/svgstyle.h"
#include "svg/svgvalues.h"

#include <QFontMetricsF>
#include <QHash>
#include <QtMath>

#include <cmath>

namespace lessonhost {

namespace {

constexpr double mostDecimals = 6; // of the numbers on a scale
constexpr double usualLine = 2; // of the files
constexpr int mostRepeats = 100;

// Where the parts of a file come to stand, in pixels of the page from the middle of the item's box.
struct SymbolPlace
{
    SymbolAxis x;
    SymbolAxis y;
    QTransform turned; //!< what stays upright, within the file

    QPointF at(const QPointF &point) const
    {
        const QPointF inFile = turned.map(point);
        return {x.at(inFile.x()), y.at(inFile.y())};
    }
};

// A turn in degrees that leaves words readable: those of a mirrored item are not mirrored themselves.
double angleOfWords(const QTransform &toPage)
{
    const QPointF along = toPage.map(QPointF(1, 0)) - toPage.map(QPointF(0, 0));
    const double angle = qRadiansToDegrees(std::atan2(along.y(), along.x()));
    const bool isUpsideDown = toPage.determinant() < 0 && qAbs(angle) > 90;
    return isUpsideDown ? angle + 180 : angle;
}

double angleBetween(const QPointF &first, const QPointF &corner, const QPointF &second)
{
    const double angle = std::abs(QLineF(corner, first).angleTo(QLineF(corner, second)));
    return qMin(angle, 360 - angle);
}

/*!
 * Draws one file for one item.
 */
class SymbolPainter
{
public:
    SymbolPainter(Canvas &canvas, const ItemView &item, const PlacedBox &box, const SymbolFile &file)
        : m_canvas(canvas)
        , m_item(item)
        , m_file(file)
        , m_toPage(box.inPixels())
        , m_wordAngle(angleOfWords(m_toPage))
        , m_room(box.width, box.height)
    {
        const QSizeF size = file.size();
        // The top of what stands comes to lie on the left, and the left of what lies to stand at the top.
        constexpr double clearly = 1.1;
        m_isTurned = file.turns()
            && (size.width() > size.height() ? box.height > clearly * box.width : box.width > clearly * box.height);
        if (m_isTurned) {
            m_lies = size.height() > size.width();
            m_toPage = QTransform().rotate(m_lies ? -90 : 90) * m_toPage;
            m_room.transpose();
        }
        m_scale = qMin(m_room.width() / size.width(), m_room.height() / size.height());
        // Lines that the item says nothing of are finer in small symbols.
        m_lineFactor = outlineWidth(item) / usualLine;
        if (!item.has(ItemKeys::lineWidth)) {
            m_lineFactor *= qBound(0.5, m_scale, 1.0);
        }
    }

    void draw()
    {
        const SymbolPlace whole{SymbolAxis(m_file.size().width(), m_file.stretchingAcross(), m_scale, m_room.width()),
                                SymbolAxis(m_file.size().height(), m_file.stretchingDown(), m_scale, m_room.height()),
                                {}};
        drawPart(m_file.whole(), whole);
        addLines();
    }

private:
    void drawPart(const SymbolPart &part, const SymbolPlace &around)
    {
        if (!part.isShownFor(m_item)) {
            return;
        }
        const SymbolPlace place = placeOf(part, around);
        switch (part.kind) {
        case SymbolPart::Kind::Outline:
            addPath(onPage(part.outline, place), part);
            return;
        case SymbolPart::Kind::Word:
            drawWord(part, place);
            return;
        case SymbolPart::Kind::Scale:
            drawScale(part, place);
            return;
        case SymbolPart::Kind::Repeated:
            drawRepeated(part, place);
            return;
        case SymbolPart::Kind::Liquid:
            if (!isUpright()) {
                drawLevel(part, place);
                return;
            }
            break;
        case SymbolPart::Kind::Group:
            break;
        }
        for (const SymbolPart &child : part.children) {
            drawPart(child, place);
        }
    }

    QPainterPath onPage(const QPainterPath &outline, const SymbolPlace &place) const
    {
        QPainterPath path = outline;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPointF point = place.at(path.elementAt(i));
            path.setElementPositionAt(i, point.x(), point.y());
        }
        return m_toPage.map(path);
    }

    // Lines of one kind that follow each other are one path: they look the same, and a slide has fewer elements.
    void addPath(const QPainterPath &path, const SymbolPart &part)
    {
        SvgPaint paint = paintOf(part);
        paint.lineWidth *= m_lineFactor;
        const bool isPlain = paint.fill.alpha() == 0 && paint.line.alpha() == 255 && paint.dashParts == 0;
        if (!isPlain) {
            addLines();
            m_canvas.svg().addPath(path, paint);
            return;
        }
        if (paint.line != m_linePaint.line || paint.lineWidth != m_linePaint.lineWidth) {
            addLines();
            m_linePaint = paint;
        }
        m_lines.addPath(path);
    }

    // What was kept back of it. Everything else that is added needs this before it.
    void addLines()
    {
        if (!m_lines.isEmpty()) {
            m_canvas.svg().addPath(m_lines, m_linePaint);
            m_lines = {};
        }
    }

    bool isUpright() const
    {
        constexpr double level = 1e-3;
        return m_toPage.m22() > 0 && std::abs(m_toPage.m12()) < level && std::abs(m_toPage.m21()) < level;
    }

    // Of a group that shows a liquid and its surface: as much of the liquid where it comes to stand in the vessel.
    void drawLevel(const SymbolPart &group, const SymbolPlace &place)
    {
        if (group.children.size() < 2) {
            return;
        }
        const SymbolPart &usual = group.children.at(0);
        const LevelLiquid liquid(onPage(group.outline, place), enclosedArea(onPage(usual.outline, place)));
        addPath(liquid.body, usual);
        addPath(liquid.surface, group.children.at(1));
    }

    // With the item's colours in place of those that have a role.
    SvgPaint paintOf(const SymbolPart &part)
    {
        SvgPaint paint = part.paint;
        paint.line = colorOf(part.lineRole).value_or(paint.line);
        paint.fill = colorOf(part.fillRole).value_or(paint.fill);
        return paint;
    }

    std::optional<QColor> colorOf(const QString &role)
    {
        if (role.isEmpty()) {
            return std::nullopt;
        }
        const auto known = m_colors.constFind(role);
        return known != m_colors.constEnd() ? *known : *m_colors.insert(role, m_file.color(role, m_item));
    }

    SymbolPlace placeOf(const SymbolPart &part, const SymbolPlace &around) const
    {
        SymbolPlace place = around;
        if (part.kept) {
            place.x = around.x.keptAround(part.kept->x(), m_scale);
            place.y = around.y.keptAround(part.kept->y(), m_scale);
        }
        // A sign that is turned with its part of a circuit would be another one.
        if (m_isTurned && part.upright) {
            place.turned = QTransform::fromTranslate(part.upright->x(), part.upright->y());
            place.turned.rotate(m_lies ? 90 : -90);
            place.turned.translate(-part.upright->x(), -part.upright->y());
        }
        return place;
    }

    // The first of the parts as often as there is room for it, or as the item says.
    void drawRepeated(const SymbolPart &group, const SymbolPlace &place)
    {
        const bool isAcross = group.element.hasAttribute(QStringLiteral("data-repeat-x"));
        const QVector<double> range = svgNumbers(
            group.element.attribute(isAcross ? QStringLiteral("data-repeat-x") : QStringLiteral("data-repeat-y")));
        if (range.size() != 2 || group.children.isEmpty()) {
            return;
        }
        const SymbolAxis &axis = isAcross ? place.x : place.y;
        const double cell = (range.at(1) - range.at(0)) / group.children.size();
        const double start = axis.at(range.at(0));
        const double length = axis.at(range.at(1)) - start;
        const double fitting = qBound(1.0, length / (cell * m_scale), double(mostRepeats));
        const double told = numberOf(group.element, "data-count", fitting);
        const int count = qRound(told >= 1 && told <= mostRepeats ? told : fitting);
        for (int i = 0; i < count; ++i) {
            SymbolPlace placed = place;
            (isAcross ? placed.x : placed.y) = SymbolAxis(range.at(0), range.at(0) + cell, start + length * i / count,
                                                          start + length * (i + 1) / count);
            drawPart(group.children.at(0), placed);
        }
    }

    // What the item says under the key that an attribute names.
    double numberOf(const QDomElement &part, const char *attribute, double missing) const
    {
        return itemNumber(m_item.json().value(part.attribute(QLatin1String(attribute))), missing);
    }

    // Ticks and numbers along a line or, told by five numbers, an arc.
    void drawScale(const SymbolPart &scalePart, const SymbolPlace &place)
    {
        const QDomElement &part = scalePart.element;
        const QVector<double> course = svgNumbers(part.attribute(QStringLiteral("data-scale")));
        const QVector<double> values = svgNumbers(part.attribute(QStringLiteral("data-values")));
        if (course.size() < 4 || values.size() != 4) {
            return;
        }
        const QPointF from = place.at({course.at(0), course.at(1)});
        const ScaleCourse placed = course.size() == 5
            ? ScaleCourse::arc(from, course.at(2) * m_scale, course.at(3), course.at(4))
            : ScaleCourse::line(from, place.at({course.at(2), course.at(3)}));
        const SvgPaint paint = paintOf(scalePart);
        Scale scale;
        scale.first = numberOf(part, "data-first", values.at(0));
        scale.step = numberOf(part, "data-step", values.at(2));
        const QString pitch = part.attribute(QStringLiteral("data-pitch"));
        const double stepLength = svgLength(pitch).value_or(0) * (pitch.endsWith(QLatin1String("px")) ? 1 : m_scale);
        const double steps =
            stepLength > 0 ? placed.length() / stepLength : (values.at(1) - values.at(0)) / qMax(values.at(2), 1e-9);
        scale.last = scale.first + steps * scale.step;
        scale.parts = qRound(values.at(3));
        scale.decimals = qRound(qBound(-1.0, numberOf(part, "data-decimals", -1), mostDecimals));
        scale.tickLength = part.attribute(QStringLiteral("data-tick")).toDouble() * m_scale;
        scale.numberSize = part.hasAttribute(QStringLiteral("font-size")) ? scalePart.fontPixels * m_scale : 0;
        scale.color = paint.line;
        scale.lineWidth = paint.lineWidth * m_lineFactor;
        addLines();
        addScale(m_canvas.svg(), placed, scale, m_toPage);
    }

    void drawWord(const SymbolPart &part, const SymbolPlace &place)
    {
        const QDomElement &element = part.element;
        const auto number = [&element](const char *name) { return element.attribute(QLatin1String(name)).toDouble(); };
        SvgMark word;
        word.text = textOf(element, place).simplified().left(longestWord);
        // Its middle stays where it is, however it is turned.
        constexpr double middleOfLetters = 0.36;
        const QPointF middle(number("x"), number("y") - middleOfLetters * part.fontPixels);
        word.middle = m_toPage.map(place.at(part.matrix.map(middle)));
        word.turn = m_wordAngle;
        double size = part.fontPixels * m_scale;
        // Words of the item's own may be longer than those of the file.
        const double half = number("data-room") / 2;
        const double room = place.x.at(number("x") + half) - place.x.at(number("x") - half);
        if (room > 0) {
            QFont font(QStringLiteral("sans-serif"));
            font.setPixelSize(100);
            const QFontMetricsF metrics(font);
            const auto width = [&metrics](const QString &text) {
                return qMax(1.0, metrics.horizontalAdvance(text)) / 100;
            };
            // As small as can be read; what doesn't fit then is left out.
            const double smallest = qMin(size, m_canvas.svg().readableSize());
            const QString whole = word.text;
            for (int letters = whole.size() - 1; letters > 0 && width(word.text) * smallest > room; --letters) {
                word.text = whole.left(letters).trimmed() + QChar(0x2026);
            }
            size = qMin(size, room / width(word.text));
            word.turn -= m_isTurned ? 90 : 0;
        }
        if (!word.text.isEmpty()) {
            addLines();
            m_canvas.svg().addMarks({word}, size, paintOf(part).fill);
        }
    }

    QString textOf(const QDomElement &element, const SymbolPlace &place) const
    {
        const QVector<double> angle = svgNumbers(element.attribute(QStringLiteral("data-angle")));
        if (angle.size() == 6) {
            const double degrees =
                angleBetween(place.at({angle.at(0), angle.at(1)}), place.at({angle.at(2), angle.at(3)}),
                             place.at({angle.at(4), angle.at(5)}));
            return QString::number(qRound(degrees)) + QChar(0x00b0);
        }
        const QJsonValue told = m_item.json().value(element.attribute(QStringLiteral("data-text")));
        return isEmptyValue(told) ? element.text() : valueText(told);
    }

    static constexpr int longestWord = 60; // what follows would be too small to read

    Canvas &m_canvas;
    const ItemView &m_item;
    const SymbolFile &m_file;
    QHash<QString, std::optional<QColor>> m_colors; //!< of the item, by role
    QPainterPath m_lines;
    SvgPaint m_linePaint;
    QTransform m_toPage; //!< from the middle of the item's box
    double m_wordAngle;
    QSizeF m_room; //!< for the file as it stands
    bool m_isTurned = false;
    bool m_lies = false; //!< what is drawn upright
    double m_scale = 1; //!< of what keeps its proportion
    double m_lineFactor = 1;
};

// The item's box; a raw item, which has none, is as large as its file around the origin of its Matrix.
PlacedBox boxOf(const ItemView &item, const QSizeF &usual)
{
    const PlacedBox box(item);
    if (!box.isEmpty() || item.box() || !item.matrix()) {
        return box;
    }
    return {QRectF(QPointF(-usual.width() / 2, -usual.height() / 2), usual), *item.matrix()};
}

bool drawSymbol(Canvas &canvas, const ItemView &item)
{
    if (drawByRule(canvas, item)) {
        return true;
    }
    const auto file = SymbolFile::ofType(item.type());
    if (!file || file->size().isEmpty()) {
        return false;
    }
    const PlacedBox box = boxOf(item, file->size());
    if (box.isEmpty()) {
        return false;
    }
    SymbolPainter(canvas, item, box, *file).draw();
    return true;
}

} // namespace

SvgDrawing symbolDrawing(const QString &type)
{
    return SymbolFile::ofType(type) ? &drawSymbol : nullptr;
}

} // namespace lessonhost
