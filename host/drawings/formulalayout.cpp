// SPDX-License-Identifier: MIT
#include "drawings/formulalayout.h"

#include "canvas/outline.h"

#include <QHash>

namespace lessonhost {

namespace {

constexpr int mostDepth = 100;
constexpr int mostElements = 5000;

QString tagOf(const QDomElement &element)
{
    const QString tag = element.tagName();
    return tag.mid(tag.lastIndexOf(QLatin1Char(':')) + 1);
}

QVector<QDomElement> childrenOf(const QDomElement &element)
{
    QVector<QDomElement> children;
    for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        children.append(e);
    }
    return children;
}

// A number of ems, pixels or parts; nothing for what is none.
double lengthFrom(const QString &text, double size)
{
    int end = 0;
    while (end < text.size()
           && (text.at(end).isDigit() || text.at(end) == QLatin1Char('.') || text.at(end) == QLatin1Char('-'))) {
        ++end;
    }
    const double number = text.leftRef(end).toDouble();
    const QString unit = text.mid(end).trimmed();
    constexpr double pixelsOfEm = 16;
    return unit == QLatin1String("em")                               ? number * size
        : unit == QLatin1String("ex")                                ? number * size / 2
        : unit == QLatin1String("px") || unit == QLatin1String("pt") ? number * size / pixelsOfEm
                                                                     : 0;
}

class Layout
{
public:
    FormulaBox box(const QDomElement &element, const FormulaStyle &style)
    {
        if (element.isNull() || style.depth > mostDepth || ++m_elements > mostElements) {
            return {};
        }
        using Maker = FormulaBox (Layout::*)(const QDomElement &, const FormulaStyle &);
        static const QHash<QString, Maker> makers{
            {QStringLiteral("mi"), &Layout::token},
            {QStringLiteral("mn"), &Layout::token},
            {QStringLiteral("mo"), &Layout::token},
            {QStringLiteral("mtext"), &Layout::token},
            {QStringLiteral("ms"), &Layout::token},
            {QStringLiteral("mspace"), &Layout::space},
            {QStringLiteral("mfrac"), &Layout::fraction},
            {QStringLiteral("msqrt"), &Layout::squareRoot},
            {QStringLiteral("mroot"), &Layout::root},
            {QStringLiteral("msub"), &Layout::scripts},
            {QStringLiteral("msup"), &Layout::scripts},
            {QStringLiteral("msubsup"), &Layout::scripts},
            {QStringLiteral("mmultiscripts"), &Layout::manyScripts},
            {QStringLiteral("munder"), &Layout::limits},
            {QStringLiteral("mover"), &Layout::limits},
            {QStringLiteral("munderover"), &Layout::limits},
            {QStringLiteral("mfenced"), &Layout::fenced},
            {QStringLiteral("menclose"), &Layout::enclosed},
            {QStringLiteral("mtable"), &Layout::table},
            {QStringLiteral("mphantom"), &Layout::phantom},
            {QStringLiteral("semantics"), &Layout::firstChild},
            {QStringLiteral("maction"), &Layout::firstChild},
            {QStringLiteral("none"), &Layout::nothing},
            {QStringLiteral("annotation"), &Layout::nothing},
            {QStringLiteral("annotation-xml"), &Layout::nothing},
        };
        FormulaStyle own = style.inside();
        const QString color =
            element.attribute(QStringLiteral("mathcolor"), element.attribute(QStringLiteral("color")));
        if (!color.isEmpty() && QColor::isValidColor(color)) {
            own.color = QColor(color);
        }
        const QString display = element.attribute(QStringLiteral("displaystyle"));
        own.isDisplayed = display.isEmpty() ? own.isDisplayed : display == QLatin1String("true");
        const Maker maker = makers.value(tagOf(element), &Layout::row);
        return (this->*maker)(element, own);
    }

private:
    FormulaBox nothing(const QDomElement &, const FormulaStyle &) { return {}; }
    FormulaBox firstChild(const QDomElement &element, const FormulaStyle &style)
    {
        return box(element.firstChildElement(), style);
    }

    static QString textOf(const QDomElement &element)
    {
        // Blanks that don't break stay.
        constexpr ushort kept = 0xe000;
        QString text = element.text().replace(QChar(QChar::Nbsp), QChar(kept)).simplified();
        text.replace(QChar(kept), QChar(QChar::Nbsp));
        for (const ushort invisible : {0x2061, 0x2062, 0x2063, 0x2064, 0x200b}) {
            text.remove(QChar(invisible));
        }
        const QString tag = tagOf(element);
        if (tag == QLatin1String("mo") && text == QLatin1String("-")) {
            return QString(QChar(0x2212));
        }
        return tag == QLatin1String("ms") ? QLatin1Char('"') + text + QLatin1Char('"') : text;
    }

    FormulaBox token(const QDomElement &element, const FormulaStyle &style)
    {
        const QString text = textOf(element);
        const QString variant = element.attribute(QStringLiteral("mathvariant"));
        const bool isVariable = tagOf(element) == QLatin1String("mi") && text.size() == 1 && text.at(0).isLetter();
        const bool isItalic = variant.isEmpty() ? isVariable : variant.contains(QLatin1String("italic"));
        const bool isBold = variant.contains(QLatin1String("bold"));
        if (tagOf(element) == QLatin1String("mo") && isLargeSign(text)) {
            return FormulaBoxes::largeSign(text, style);
        }
        return FormulaBoxes::word(text, style, isItalic, isBold);
    }

    FormulaBox space(const QDomElement &element, const FormulaStyle &style)
    {
        FormulaBox box;
        box.width = qBound(0.0, lengthFrom(element.attribute(QStringLiteral("width")), style.size), 20 * style.size);
        return box;
    }

    // The operator that an element is, with scripts or limits or not.
    static QDomElement operatorIn(QDomElement element)
    {
        while (!element.isNull()) {
            const QString tag = tagOf(element);
            if (tag == QLatin1String("mo")) {
                return element;
            }
            const bool isAround = tag.startsWith(QLatin1String("msu")) || tag.startsWith(QLatin1String("munder"))
                || tag == QLatin1String("mover")
                || ((tag == QLatin1String("mrow") || tag == QLatin1String("mstyle"))
                    && childrenOf(element).size() == 1);
            element = isAround ? element.firstChildElement() : QDomElement();
        }
        return {};
    }

    static bool isStretched(const QDomElement &element)
    {
        return tagOf(element) == QLatin1String("mo") && formulaFence(textOf(element))
            && element.attribute(QStringLiteral("stretchy")) != QLatin1String("false");
    }

    FormulaBox row(const QDomElement &element, const FormulaStyle &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        if (children.isEmpty()) {
            return FormulaBoxes::word(element.text().simplified(), style);
        }
        QVector<FormulaBox> boxes;
        for (const QDomElement &child : children) {
            boxes.append(isStretched(child) ? FormulaBox() : box(child, style));
        }
        stretchFences(children, boxes, style);
        FormulaBox all;
        bool hasOperand = false; // before what comes
        for (int i = 0; i < children.size(); ++i) {
            const QDomElement sign = operatorIn(children.at(i));
            const QString text = sign.isNull() ? QString() : textOf(sign);
            const bool isLast = i + 1 == children.size();
            const double around = hasOperand && !isLast && style.size > FormulaStyle::smallestScript * formulaLetters
                ? spaceAroundSign(text) * style.size
                : 0;
            const bool isSeparator = text == QLatin1String(",") || text == QLatin1String(";");
            all.add(boxes.at(i), QPointF(all.width + around, 0));
            all.width += boxes.at(i).width + 2 * around;
            if ((isSeparator || isLargeSign(text) || isFunction(children.at(i))) && !isLast) {
                all.width += 0.17 * style.size;
            }
            all.ascent = qMax(all.ascent, boxes.at(i).ascent);
            all.descent = qMax(all.descent, boxes.at(i).descent);
            hasOperand = sign.isNull() ? hasOperand || boxes.at(i).width > 0 : isEnd(text);
        }
        return all;
    }

    // Each fence is as high as what stands between it and its counterpart, or the end of the row.
    void stretchFences(const QVector<QDomElement> &children, QVector<FormulaBox> &boxes, const FormulaStyle &style)
    {
        const auto stretch = [&](int fenceAt, int begin, int end) {
            FormulaBox content;
            for (int i = begin; i < end; ++i) {
                content.ascent = qMax(content.ascent, boxes.at(i).ascent);
                content.descent = qMax(content.descent, boxes.at(i).descent);
            }
            boxes[fenceAt] = FormulaBoxes::fence(textOf(children.at(fenceAt)), content, style);
        };
        QVector<int> open;
        for (int i = 0; i < children.size(); ++i) {
            if (!isStretched(children.at(i))) {
                continue;
            }
            const FormulaFence &sign = *formulaFence(textOf(children.at(i)));
            const bool isBar = sign.width <= 0.1 || sign.sign == 0x2016 || sign.sign == 0x2225;
            const bool isEnd = sign.isMirrored
                || (isBar && !open.isEmpty() && textOf(children.at(open.constLast())) == textOf(children.at(i)));
            if (!isEnd) {
                open.append(i);
            } else if (open.isEmpty()) {
                stretch(i, 0, i);
            } else {
                stretch(i, open.constLast() + 1, i);
                stretch(open.constLast(), open.constLast() + 1, i);
                open.removeLast();
            }
        }
        while (!open.isEmpty()) {
            stretch(open.constLast(), open.constLast() + 1, children.size());
            open.removeLast();
        }
    }

    static bool isFunction(const QDomElement &element)
    {
        return tagOf(element) == QLatin1String("mi") && textOf(element).size() > 1
            && textOf(element.nextSiblingElement()) != QLatin1String("(");
    }

    // What follows a closing fence is between two operands.
    static bool isEnd(const QString &text)
    {
        static const QString ends = QString::fromUtf8(")]}|!′″°%⟩⌋⌉‖");
        return !text.isEmpty() && ends.contains(text);
    }

    FormulaBox fraction(const QDomElement &element, const FormulaStyle &style)
    {
        FormulaStyle part = style.isDisplayed ? style : style.script();
        part.isDisplayed = false;
        const FormulaBox above = box(element.firstChildElement(), part);
        const FormulaBox below = box(element.firstChildElement().nextSiblingElement(), part);
        const QString thickness = element.attribute(QStringLiteral("linethickness"));
        const bool hasRule = thickness.isEmpty() || thickness.at(0) != QLatin1Char('0');
        const double gap = (style.isDisplayed ? 0.16 : 0.1) * style.size;
        const double side = 0.08 * style.size;
        FormulaBox result;
        const double inner = qMax(above.width, below.width) + 2 * side;
        result.width = inner + 2 * side;
        const double middle = -style.axis();
        const double up = middle - gap - style.rule() / 2 - above.descent;
        const double down = middle + gap + style.rule() / 2 + below.ascent;
        result.add(above, QPointF((result.width - above.width) / 2, up));
        result.add(below, QPointF((result.width - below.width) / 2, down));
        if (hasRule) {
            result.add(FormulaBoxes::rule({side, middle}, {side + inner, middle}, style), {});
        }
        result.ascent = above.ascent - up;
        result.descent = below.descent + down;
        return result;
    }

    FormulaBox squareRoot(const QDomElement &element, const FormulaStyle &style)
    {
        return FormulaBoxes::radical(row(element, style), {}, style);
    }

    FormulaBox root(const QDomElement &element, const FormulaStyle &style)
    {
        FormulaStyle index = style.script();
        index.size = qMax(index.size * 0.8, FormulaStyle::smallestScript * formulaLetters);
        return FormulaBoxes::radical(box(element.firstChildElement(), style),
                                     box(element.firstChildElement().nextSiblingElement(), index), style);
    }

    FormulaBox scripts(const QDomElement &element, const FormulaStyle &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        const QString tag = tagOf(element);
        const bool hasSub = tag != QLatin1String("msup");
        const FormulaBox base = box(children.value(0), style);
        const FormulaBox first = box(children.value(1), style.script());
        const FormulaBox second = box(children.value(2), style.script());
        return FormulaBoxes::withScripts(base, hasSub ? first : FormulaBox(), hasSub ? second : first, style);
    }

    FormulaBox manyScripts(const QDomElement &element, const FormulaStyle &style)
    {
        QVector<QDomElement> children = childrenOf(element);
        FormulaBox result = box(children.value(0), style);
        const auto isMark = [](const QDomElement &e) { return tagOf(e) == QLatin1String("mprescripts"); };
        bool isBefore = false;
        for (int i = 1; i < children.size();) {
            if (isMark(children.at(i))) {
                isBefore = true;
                ++i;
                continue;
            }
            const bool isPair = i + 1 < children.size() && !isMark(children.at(i + 1));
            const FormulaBox sub = box(children.at(i), style.script());
            const FormulaBox super = isPair ? box(children.at(i + 1), style.script()) : FormulaBox();
            result = FormulaBoxes::withScripts(result, sub, super, style, isBefore);
            i += isPair ? 2 : 1;
        }
        return result;
    }

    FormulaBox limits(const QDomElement &element, const FormulaStyle &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        const QString tag = tagOf(element);
        const bool hasUnder = tag != QLatin1String("mover");
        const QDomElement below = hasUnder ? children.value(1) : QDomElement();
        const QDomElement above = hasUnder ? children.value(2) : children.value(1);
        const QDomElement sign = operatorIn(children.value(0));
        const FormulaBox own = box(children.value(0), style);
        if (!sign.isNull() && isLargeSign(textOf(sign)) && !style.isDisplayed) {
            return FormulaBoxes::withScripts(own, box(below, style.script()), box(above, style.script()), style);
        }
        FormulaBox under = limit(below, own, style);
        FormulaBox over = limit(above, own, style);
        const FormulaSpan *span = sign.isNull() ? nullptr : formulaSpan(textOf(sign));
        const double wide = 0.3 * style.size;
        const FormulaBox base =
            span ? FormulaBoxes::spanning(*span, qMax(own.width, qMax(under.width, over.width) + wide), style) : own;
        return FormulaBoxes::stacked(base, under, over, style);
    }

    // Bars, arrows and braces are as wide as their base, also with a limit of their own; accents keep their size.
    FormulaBox limit(const QDomElement &element, const FormulaBox &base, const FormulaStyle &style)
    {
        if (element.isNull()) {
            return {};
        }
        const QString tag = tagOf(element);
        if (tag == QLatin1String("mo")) {
            const FormulaSpan *span = formulaSpan(textOf(element));
            const double shortest = 0.5 * style.size;
            return FormulaBoxes::onLine(span ? FormulaBoxes::spanning(*span, qMax(base.width, shortest), style)
                                             : box(element, style));
        }
        const QVector<QDomElement> children = childrenOf(element);
        const bool isPair = (tag == QLatin1String("munder") || tag == QLatin1String("mover")) && children.size() == 2;
        if (isPair && tagOf(children.at(0)) == QLatin1String("mo") && formulaSpan(textOf(children.at(0)))) {
            const FormulaBox span = limit(children.at(0), base, style);
            const FormulaBox text = box(children.at(1), style.script());
            return tag == QLatin1String("munder") ? FormulaBoxes::stacked(span, text, {}, style)
                                                  : FormulaBoxes::stacked(span, {}, text, style);
        }
        return box(element, style.script());
    }

    FormulaBox fenced(const QDomElement &element, const FormulaStyle &style)
    {
        const QString open = element.attribute(QStringLiteral("open"), QStringLiteral("(")).trimmed();
        const QString close = element.attribute(QStringLiteral("close"), QStringLiteral(")")).trimmed();
        const QString separators =
            element.attribute(QStringLiteral("separators"), QStringLiteral(",")).remove(QLatin1Char(' '));
        FormulaBox content;
        const QVector<QDomElement> children = childrenOf(element);
        const auto append = [&content](const FormulaBox &box, double space) {
            content.add(box, QPointF(content.width, 0));
            content.width += box.width + space;
            content.ascent = qMax(content.ascent, box.ascent);
            content.descent = qMax(content.descent, box.descent);
        };
        for (int i = 0; i < children.size(); ++i) {
            if (i > 0 && !separators.isEmpty()) {
                append(FormulaBoxes::word(separators.mid(qMin(i, separators.size()) - 1, 1), style), 0.17 * style.size);
            }
            append(box(children.at(i), style), 0);
        }
        FormulaBox result;
        const auto put = [&result](const FormulaBox &box) {
            result.add(box, QPointF(result.width, 0));
            result.width += box.width;
            result.ascent = qMax(result.ascent, box.ascent);
            result.descent = qMax(result.descent, box.descent);
        };
        put(formulaFence(open) ? FormulaBoxes::fence(open, content, style) : FormulaBoxes::word(open, style));
        put(content);
        put(formulaFence(close) ? FormulaBoxes::fence(close, content, style) : FormulaBoxes::word(close, style));
        return result;
    }

    FormulaBox enclosed(const QDomElement &element, const FormulaStyle &style)
    {
        const FormulaBox content = row(element, style);
        const QStringList notations =
            element.attribute(QStringLiteral("notation"), QStringLiteral("longdiv")).split(QLatin1Char(' '));
        if (notations.contains(QLatin1String("radical"))) {
            return FormulaBoxes::radical(content, {}, style);
        }
        const double space = 0.16 * style.size;
        FormulaBox result;
        result.add(content, QPointF(space, 0));
        result.width = content.width + 2 * space;
        result.ascent = content.ascent + space;
        result.descent = content.descent + space;
        static const QHash<QString, const char *> outlines{
            {QStringLiteral("box"), "M 0 0 L 1 0 L 1 1 L 0 1 Z"},
            {QStringLiteral("roundedbox"), "M 0 0 L 1 0 L 1 1 L 0 1 Z"},
            {QStringLiteral("circle"), "E 0 0 1 1"},
            {QStringLiteral("left"), "M 0 0 L 0 1"},
            {QStringLiteral("right"), "M 1 0 L 1 1"},
            {QStringLiteral("top"), "M 0 0 L 1 0"},
            {QStringLiteral("bottom"), "M 0 1 L 1 1"},
            {QStringLiteral("longdiv"), "M 0 1 L 0 0 L 1 0"},
            {QStringLiteral("actuarial"), "M 0 0 L 1 0 L 1 1"},
            {QStringLiteral("horizontalstrike"), "M 0 .5 L 1 .5"},
            {QStringLiteral("verticalstrike"), "M .5 0 L .5 1"},
            {QStringLiteral("updiagonalstrike"), "M 0 1 L 1 0"},
            {QStringLiteral("downdiagonalstrike"), "M 0 0 L 1 1"},
        };
        for (auto it = outlines.constBegin(); it != outlines.constEnd(); ++it) {
            if (notations.contains(it.key())) {
                const QRectF area(0, -result.ascent, result.width, result.height());
                result.add(FormulaBoxes::lines(outlineIn(area, it.value()), style), {});
            }
        }
        return result;
    }

    FormulaBox phantom(const QDomElement &element, const FormulaStyle &style)
    {
        FormulaBox box = row(element, style);
        box.parts.clear();
        return box;
    }

    /*!
     * The cells of a table and the room of its rows and columns.
     */
    struct Grid
    {
        QVector<QVector<FormulaBox>> rows;
        QVector<double> widths;
        QVector<double> ascents;
        QVector<double> descents;
    };

    Grid gridOf(const QDomElement &element, const FormulaStyle &style)
    {
        Grid grid;
        const QVector<QDomElement> rows = childrenOf(element);
        for (const QDomElement &line : rows) {
            QVector<FormulaBox> cells;
            double ascent = 0.7 * style.size;
            double descent = 0.25 * style.size;
            QVector<QDomElement> children = childrenOf(line);
            if (tagOf(line) == QLatin1String("mlabeledtr") && !children.isEmpty()) {
                children.removeFirst();
            }
            for (const QDomElement &cell : qAsConst(children)) {
                const FormulaBox content =
                    tagOf(cell) == QLatin1String("mtd") ? row(cell, style.inside()) : box(cell, style);
                cells.append(content);
                if (grid.widths.size() < cells.size()) {
                    grid.widths.append(0);
                }
                grid.widths[cells.size() - 1] = qMax(grid.widths.at(cells.size() - 1), content.width);
                ascent = qMax(ascent, content.ascent);
                descent = qMax(descent, content.descent);
            }
            grid.rows.append(cells);
            grid.ascents.append(ascent);
            grid.descents.append(descent);
        }
        return grid;
    }

    // Words for rows or columns; the last one goes for those behind.
    static QStringList wordsOf(const QDomElement &element, const char *name, const char *missing)
    {
        const QStringList words =
            element.attribute(QLatin1String(name)).split(QLatin1Char(' '), Qt::SkipEmptyParts).mid(0, mostElements);
        return words.isEmpty() ? QStringList{QLatin1String(missing)} : words;
    }

    static const QString &wordFor(const QStringList &words, int index)
    {
        return words.at(qMin(index, words.size() - 1));
    }

    FormulaBox table(const QDomElement &element, const FormulaStyle &tableStyle)
    {
        FormulaStyle style = tableStyle;
        style.isDisplayed = element.attribute(QStringLiteral("displaystyle")) == QLatin1String("true");
        const Grid grid = gridOf(element, style);
        const QStringList aligns = wordsOf(element, "columnalign", "center");
        const double across = 0.8 * style.size;
        const double down = 0.35 * style.size;
        FormulaBox result;
        double y = 0;
        for (int r = 0; r < grid.rows.size(); ++r) {
            y += grid.ascents.at(r);
            double x = 0;
            for (int c = 0; c < grid.rows.at(r).size(); ++c) {
                const FormulaBox &cell = grid.rows.at(r).at(c);
                const double left = grid.widths.at(c) - cell.width;
                const QString &align = wordFor(aligns, c);
                const double share = align == QLatin1String("left") ? 0 : align == QLatin1String("right") ? 1 : 0.5;
                result.add(cell, QPointF(x + left * share, y));
                x += grid.widths.at(c) + across;
            }
            y += grid.descents.at(r) + (r + 1 < grid.rows.size() ? down : 0);
        }
        for (const double width : grid.widths) {
            result.width += width + (result.width > 0 ? across : 0);
        }
        addTableLines(result, element, grid, y, across, down, style);
        // The middle of the table is on the axis.
        FormulaBox placed;
        placed.width = result.width;
        placed.ascent = y / 2 + style.axis();
        placed.descent = y / 2 - style.axis();
        placed.add(result, QPointF(0, -placed.ascent));
        return placed;
    }

    static void addTableLines(FormulaBox &result, const QDomElement &element, const Grid &grid, double height,
                              double across, double down, const FormulaStyle &style)
    {
        const QStringList columns = wordsOf(element, "columnlines", "none");
        const QStringList rows = wordsOf(element, "rowlines", "none");
        double x = -across / 2;
        for (int c = 0; c + 1 < grid.widths.size(); ++c) {
            x += grid.widths.at(c) + across;
            if (wordFor(columns, c) != QLatin1String("none")) {
                result.add(FormulaBoxes::rule({x, 0}, {x, height}, style), {});
            }
        }
        double y = -down / 2;
        for (int r = 0; r + 1 < grid.rows.size(); ++r) {
            y += grid.ascents.at(r) + grid.descents.at(r) + down;
            if (wordFor(rows, r) != QLatin1String("none")) {
                result.add(FormulaBoxes::rule({0, y}, {result.width, y}, style), {});
            }
        }
    }

    int m_elements = 0;
};

} // namespace

FormulaBox formulaLayout(const QDomElement &math)
{
    return Layout().box(math, FormulaStyle());
}

} // namespace lessonhost
