#include "render/formulalayout.h"

#include "lesson/fontshere.h"
#include "render/outline.h"

#include <QFontMetricsF>
#include <QHash>
#include <QTransform>

#include <algorithm>
#include <functional>

namespace lessonhost {

namespace {

// Lengths are parts of the size of the letters.
constexpr double axisHeight = 0.26; // where fractions and fences have their middle
constexpr double ruleWidth = 0.055;
constexpr double scriptSize = 0.71;
constexpr double smallestScript = 0.45; // of the letters of the formula
constexpr double largeOperator = 1.5;
constexpr int mostDepth = 100;
constexpr int mostElements = 5000;

QString tagOf(const QDomElement &element)
{
    return element.tagName().section(QLatin1Char(':'), -1);
}

QVector<QDomElement> childrenOf(const QDomElement &element)
{
    QVector<QDomElement> children;
    for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        children.append(e);
    }
    return children;
}

/*!
 * A sign that grows with what it stands at, in a box. What is mirrored is drawn by its counterpart.
 */
struct Fence
{
    ushort sign;
    double width;
    const char *outline;
    bool isMirrored = false;
};

constexpr char parenthesis[] = "M 1 0 C .05 .25 .05 .75 1 1";
constexpr char bracket[] = "M 1 0 L 0 0 L 0 1 L 1 1";
constexpr char brace[] =
    "M 1 0 C .5 0 .5 .02 .5 .1 L .5 .42 C .5 .48 .3 .5 0 .5 C .3 .5 .5 .52 .5 .58 L .5 .9 C .5 .98 .5 1 1 1";
constexpr char floor[] = "M 0 0 L 0 1 L 1 1";
constexpr char ceiling[] = "M 1 0 L 0 0 L 0 1";
constexpr char angle[] = "M 1 0 L 0 .5 L 1 1";

const Fence fences[] = {
    {'(', .3, parenthesis},
    {')', .3, parenthesis, true},
    {'[', .2, bracket},
    {']', .2, bracket, true},
    {'{', .36, brace},
    {'}', .36, brace, true},
    {'|', .1, "M .5 0 L .5 1"},
    {0x2223, .1, "M .5 0 L .5 1"},
    {0x2225, .2, "M 0 0 L 0 1 M 1 0 L 1 1"},
    {0x2016, .2, "M 0 0 L 0 1 M 1 0 L 1 1"},
    {0x230a, .2, floor},
    {0x230b, .2, floor, true},
    {0x2308, .2, ceiling},
    {0x2309, .2, ceiling, true},
    {0x27e8, .26, angle},
    {0x27e9, .26, angle, true},
    {0x2329, .26, angle},
    {0x232a, .26, angle, true},
};

const Fence *fenceOf(const QString &text)
{
    if (text.size() != 1) {
        return nullptr;
    }
    const auto *const found = std::find_if(std::begin(fences), std::end(fences),
                                           [&text](const Fence &fence) { return text.at(0) == QChar(fence.sign); });
    return found == std::end(fences) ? nullptr : found;
}

/*!
 * A sign above or below that is as wide as what it stands at.
 */
struct Span
{
    ushort sign;
    double height;
    const char *outline;
};

constexpr char bar[] = "M 0 .5 L 1 .5";
constexpr char rightArrow[] = "M 0 .5 L 1 .5 M 1-.7s 0 L 1 .5 L 1-.7s 1";
constexpr char leftArrow[] = "M 0 .5 L 1 .5 M .7s 0 L 0 .5 L .7s 1";
constexpr char bothArrows[] = "M 0 .5 L 1 .5 M .7s 0 L 0 .5 L .7s 1 M 1-.7s 0 L 1 .5 L 1-.7s 1";
constexpr char lyingBraceAbove[] =
    "M 0 1 C 0 .5 .02 .5 .1 .5 L .42 .5 C .48 .5 .5 .3 .5 0 C .5 .3 .52 .5 .58 .5 L .9 .5 C .98 .5 1 .5 1 1";
constexpr char lyingBraceBelow[] =
    "M 0 0 C 0 .5 .02 .5 .1 .5 L .42 .5 C .48 .5 .5 .7 .5 1 C .5 .7 .52 .5 .58 .5 L .9 .5 C .98 .5 1 .5 1 0";

const Span spans[] = {
    {'_', .06, bar},
    {0x00af, .06, bar},
    {0x203e, .06, bar},
    {0x2015, .06, bar},
    {0x0332, .06, bar},
    {0x0305, .06, bar},
    {0x2192, .22, rightArrow},
    {0x20d7, .22, rightArrow},
    {0x2190, .22, leftArrow},
    {0x2194, .22, bothArrows},
    {0x23de, .26, lyingBraceAbove},
    {0x23df, .26, lyingBraceBelow},
};

const Span *spanOf(const QString &text)
{
    if (text.size() != 1) {
        return nullptr;
    }
    const auto *const found = std::find_if(std::begin(spans), std::end(spans),
                                           [&text](const Span &span) { return text.at(0) == QChar(span.sign); });
    return found == std::end(spans) ? nullptr : found;
}

// Sums, products, unions and integrals.
bool isLargeOperator(const QString &text)
{
    static const QString signs = QString::fromUtf8("∑∏∐⋃⋂⋁⋀⨁⨂∫∬∭∮");
    return text.size() == 1 && signs.contains(text);
}

/*!
 * The space before and behind an operator between two operands.
 */
double spaceAround(const QString &text)
{
    static const QString relations = QString::fromUtf8("=≠<>≤≥≦≧≈≡≅∼≃∝∈∉∋⊂⊃⊆⊇→←↔⇒⇐⇔⟶⟵⟹⟸⟺:∥⊥≪≫↦⇌");
    static const QString sums = QString::fromUtf8("+-−±∓×÷·⋅∗*∘∪∩∧∨⊕⊗∖⊙");
    constexpr double wide = 0.28;
    constexpr double medium = 0.22;
    if (text.size() > 1) {
        return text.at(0).isLetter() || relations.contains(text.left(1)) ? wide : 0;
    }
    return text.isEmpty() ? 0 : relations.contains(text) ? wide : sums.contains(text) ? medium : 0;
}

struct Style
{
    double size = formulaLetters;
    bool isDisplayed = true; // fractions, sums and limits take their room
    QColor color;
    int depth = 0;

    Style inside() const
    {
        Style style = *this;
        ++style.depth;
        return style;
    }
    Style script() const
    {
        Style style = inside();
        style.size = qMax(size * scriptSize, formulaLetters * smallestScript);
        style.isDisplayed = false;
        return style;
    }
    double rule() const { return ruleWidth * size; }
    double axis() const { return axisHeight * size; }
};

FormulaBox lines(const QPainterPath &path, const Style &style)
{
    FormulaBox box;
    FormulaPart part;
    part.lines = path;
    part.lineWidth = style.rule();
    part.color = style.color;
    box.parts.append(part);
    return box;
}

FormulaBox rule(const QPointF &from, const QPointF &to, const Style &style)
{
    QPainterPath path(from);
    path.lineTo(to);
    return lines(path, style);
}

// A number of ems, pixels or parts; nothing for what is none.
double lengthOf(const QString &text, double size)
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

/*!
 * What is known of letters of the size of the formula.
 */
struct Measure
{
    double advance = 0;
    double xHeight = 0;
    QRectF ink;
};

class Letters
{
public:
    Letters()
        : m_font(familyHere(formulaFamilies()))
    {
        m_font.setPixelSize(int(formulaLetters));
    }

    Measure measure(const QString &text, bool isItalic = false, bool isBold = false)
    {
        auto &known = m_known[2 * int(isItalic) + int(isBold)];
        const auto found = known.constFind(text);
        if (found != known.constEnd()) {
            return *found;
        }
        QFont font = m_font;
        font.setItalic(isItalic);
        font.setBold(isBold);
        const QFontMetricsF metrics(font);
        const Measure measure{metrics.horizontalAdvance(text), metrics.xHeight(), metrics.tightBoundingRect(text)};
        known.insert(text, measure);
        return measure;
    }

private:
    QFont m_font;
    QHash<QString, Measure> m_known[4];
};

class Layout
{
public:
    FormulaBox box(const QDomElement &element, const Style &style)
    {
        if (element.isNull() || style.depth > mostDepth || ++m_elements > mostElements) {
            return {};
        }
        using Maker = FormulaBox (Layout::*)(const QDomElement &, const Style &);
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
        Style own = style.inside();
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
    FormulaBox nothing(const QDomElement &, const Style &) { return {}; }
    FormulaBox firstChild(const QDomElement &element, const Style &style)
    {
        return box(element.firstChildElement(), style);
    }

    FormulaBox word(const QString &text, const Style &style, bool isItalic, bool isBold)
    {
        FormulaBox box;
        if (text.isEmpty()) {
            return box;
        }
        const Measure letters = m_letters.measure(text, isItalic, isBold);
        const double scale = style.size / formulaLetters;
        box.width = letters.advance * scale;
        box.ascent = qMax(-letters.ink.top(), letters.xHeight) * scale;
        box.descent = qMax(letters.ink.bottom(), 0.0) * scale;
        FormulaPart part;
        part.text = text;
        part.middle = QPointF(box.width / 2, 0);
        part.size = style.size;
        part.isItalic = isItalic;
        part.isBold = isBold;
        part.color = style.color;
        box.parts.append(part);
        if (isItalic) {
            // Slanted letters lean over their end.
            box.width += qBound(0.0, letters.ink.right() - letters.advance, 0.2 * formulaLetters) * scale;
        }
        return box;
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

    FormulaBox token(const QDomElement &element, const Style &style)
    {
        const QString text = textOf(element);
        const QString variant = element.attribute(QStringLiteral("mathvariant"));
        const bool isVariable = tagOf(element) == QLatin1String("mi") && text.size() == 1 && text.at(0).isLetter();
        const bool isItalic = variant.isEmpty() ? isVariable : variant.contains(QLatin1String("italic"));
        const bool isBold = variant.contains(QLatin1String("bold"));
        if (tagOf(element) == QLatin1String("mo") && isLargeOperator(text)) {
            return largeSign(text, style);
        }
        return word(text, style, isItalic, isBold);
    }

    // In the middle of the axis.
    FormulaBox largeSign(const QString &text, const Style &style)
    {
        Style large = style;
        large.size *= style.isDisplayed ? largeOperator : 1;
        const FormulaBox sign = word(text, large, false, false);
        FormulaBox box;
        const double down = (sign.ascent - sign.descent) / 2 - style.axis();
        box.add(sign, QPointF(0, down));
        box.width = sign.width;
        box.ascent = sign.ascent - down;
        box.descent = sign.descent + down;
        return box;
    }

    FormulaBox space(const QDomElement &element, const Style &style)
    {
        FormulaBox box;
        box.width = qBound(0.0, lengthOf(element.attribute(QStringLiteral("width")), style.size), 20 * style.size);
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
        return tagOf(element) == QLatin1String("mo") && fenceOf(textOf(element))
            && element.attribute(QStringLiteral("stretchy")) != QLatin1String("false");
    }

    FormulaBox row(const QDomElement &element, const Style &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        if (children.isEmpty()) {
            return word(element.text().simplified(), style, false, false);
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
            const double around = hasOperand && !isLast && style.size > smallestScript * formulaLetters
                ? spaceAround(text) * style.size
                : 0;
            const bool isSeparator = text == QLatin1String(",") || text == QLatin1String(";");
            all.add(boxes.at(i), QPointF(all.width + around, 0));
            all.width += boxes.at(i).width + 2 * around;
            if ((isSeparator || isLargeOperator(text) || isFunction(children.at(i))) && !isLast) {
                all.width += 0.17 * style.size;
            }
            all.ascent = qMax(all.ascent, boxes.at(i).ascent);
            all.descent = qMax(all.descent, boxes.at(i).descent);
            hasOperand = sign.isNull() ? hasOperand || boxes.at(i).width > 0 : isEnd(text);
        }
        return all;
    }

    // Each fence is as high as what stands between it and its counterpart, or the end of the row.
    void stretchFences(const QVector<QDomElement> &children, QVector<FormulaBox> &boxes, const Style &style)
    {
        const auto stretch = [&](int fenceAt, int begin, int end) {
            FormulaBox content;
            for (int i = begin; i < end; ++i) {
                content.ascent = qMax(content.ascent, boxes.at(i).ascent);
                content.descent = qMax(content.descent, boxes.at(i).descent);
            }
            boxes[fenceAt] = fence(textOf(children.at(fenceAt)), content, style);
        };
        QVector<int> open;
        for (int i = 0; i < children.size(); ++i) {
            if (!isStretched(children.at(i))) {
                continue;
            }
            const Fence &sign = *fenceOf(textOf(children.at(i)));
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

    FormulaBox fence(const QString &text, const FormulaBox &content, const Style &style)
    {
        const FormulaBox glyph = word(text, style, false, false);
        const double half = qMax(content.ascent - style.axis(), content.descent + style.axis());
        if (half <= 0.58 * style.size) {
            return glyph;
        }
        const Fence &sign = *fenceOf(text);
        const double side = 0.09 * style.size;
        const QRectF area(side, -style.axis() - half, sign.width * style.size, 2 * half);
        QPainterPath path = outlineIn(area, sign.outline);
        if (sign.isMirrored) {
            path = QTransform(-1, 0, 0, 1, 2 * area.center().x(), 0).map(path);
        }
        FormulaBox box = lines(path, style);
        box.width = area.width() + 2 * side;
        box.ascent = half + style.axis();
        box.descent = half - style.axis();
        return box;
    }

    FormulaBox fraction(const QDomElement &element, const Style &style)
    {
        Style part = style.isDisplayed ? style : style.script();
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
            result.add(rule({side, middle}, {side + inner, middle}, style), {});
        }
        result.ascent = above.ascent - up;
        result.descent = below.descent + down;
        return result;
    }

    FormulaBox squareRoot(const QDomElement &element, const Style &style)
    {
        return radical(row(element, style), {}, style);
    }

    FormulaBox root(const QDomElement &element, const Style &style)
    {
        Style index = style.script();
        index.size = qMax(index.size * 0.8, smallestScript * formulaLetters);
        return radical(box(element.firstChildElement(), style),
                       box(element.firstChildElement().nextSiblingElement(), index), style);
    }

    static FormulaBox radical(const FormulaBox &content, const FormulaBox &index, const Style &style)
    {
        const double em = style.size;
        const double top = qMax(content.ascent, 0.5 * em) + 0.12 * em + style.rule();
        const double bottom = content.descent + 0.06 * em;
        const double height = top + bottom;
        const double left = qMax(0.0, index.width - 0.3 * em);
        const double hook = left + 0.55 * em;
        const double end = hook + content.width + 0.1 * em;
        QPainterPath path(QPointF(left, -top + 0.58 * height));
        path.lineTo(left + 0.14 * em, -top + 0.52 * height);
        path.lineTo(left + 0.3 * em, bottom);
        path.lineTo(hook, -top);
        path.lineTo(end, -top);
        FormulaBox result = lines(path, style);
        result.add(content, QPointF(hook + 0.04 * em, 0));
        const double indexUp = -top + 0.45 * height - index.descent;
        result.add(index, QPointF(qMax(0.0, left + 0.26 * em - index.width), indexUp));
        result.width = end + 0.06 * em;
        result.ascent = qMax(top + style.rule(), index.ascent - indexUp);
        result.descent = bottom;
        return result;
    }

    // A script above and one below at the end of a base, or before it.
    static FormulaBox withScripts(const FormulaBox &base, const FormulaBox &sub, const FormulaBox &super,
                                  const Style &style, bool isBefore = false)
    {
        const double em = style.size;
        double up = qMax(0.38 * em, base.ascent - 0.3 * em);
        double down = qMax(0.16 * em, base.descent + 0.06 * em);
        if (!sub.parts.isEmpty() && !super.parts.isEmpty()) {
            const double gap = (up - super.descent) + (down - sub.ascent);
            const double missing = qMax(0.0, 0.14 * em - gap);
            up += missing / 2;
            down += missing / 2;
        }
        const double width = qMax(sub.width, super.width);
        const double space = 0.04 * em;
        FormulaBox result;
        result.add(base, QPointF(isBefore ? width + space : 0, 0));
        const double begin = isBefore ? 0 : base.width + space;
        result.add(super, QPointF(isBefore ? width - super.width : begin, -up));
        result.add(sub, QPointF(isBefore ? width - sub.width : begin, down));
        result.width = base.width + (width > 0 ? width + space : 0);
        result.ascent = super.parts.isEmpty() ? base.ascent : qMax(base.ascent, up + super.ascent);
        result.descent = sub.parts.isEmpty() ? base.descent : qMax(base.descent, down + sub.descent);
        return result;
    }

    FormulaBox scripts(const QDomElement &element, const Style &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        const QString tag = tagOf(element);
        const bool hasSub = tag != QLatin1String("msup");
        const FormulaBox base = box(children.value(0), style);
        const FormulaBox first = box(children.value(1), style.script());
        const FormulaBox second = box(children.value(2), style.script());
        return withScripts(base, hasSub ? first : FormulaBox(), hasSub ? second : first, style);
    }

    FormulaBox manyScripts(const QDomElement &element, const Style &style)
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
            result = withScripts(result, sub, super, style, isBefore);
            i += isPair ? 2 : 1;
        }
        return result;
    }

    FormulaBox limits(const QDomElement &element, const Style &style)
    {
        const QVector<QDomElement> children = childrenOf(element);
        const QString tag = tagOf(element);
        const bool hasUnder = tag != QLatin1String("mover");
        const QDomElement below = hasUnder ? children.value(1) : QDomElement();
        const QDomElement above = hasUnder ? children.value(2) : children.value(1);
        const QDomElement sign = operatorIn(children.value(0));
        const FormulaBox own = box(children.value(0), style);
        if (!sign.isNull() && isLargeOperator(textOf(sign)) && !style.isDisplayed) {
            return withScripts(own, box(below, style.script()), box(above, style.script()), style);
        }
        FormulaBox under = limit(below, own, style);
        FormulaBox over = limit(above, own, style);
        const Span *span = sign.isNull() ? nullptr : spanOf(textOf(sign));
        const double wide = 0.3 * style.size;
        const FormulaBox base =
            span ? spanning(*span, qMax(own.width, qMax(under.width, over.width) + wide), style) : own;
        return stacked(base, under, over, style);
    }

    static FormulaBox stacked(const FormulaBox &base, const FormulaBox &under, const FormulaBox &over,
                              const Style &style)
    {
        FormulaBox result;
        result.width = qMax(base.width, qMax(under.width, over.width));
        const double gap = 0.09 * style.size;
        const double up = base.ascent + gap + over.descent;
        const double down = base.descent + gap + under.ascent;
        result.add(base, QPointF((result.width - base.width) / 2, 0));
        result.add(over, QPointF((result.width - over.width) / 2, -up));
        result.add(under, QPointF((result.width - under.width) / 2, down));
        result.ascent = over.parts.isEmpty() ? base.ascent : up + over.ascent;
        result.descent = under.parts.isEmpty() ? base.descent : down + under.descent;
        return result;
    }

    // A sign of this width, in the middle of the axis.
    static FormulaBox spanning(const Span &span, double width, const Style &style)
    {
        const double height = span.height * style.size;
        const double top = -style.axis() - height / 2;
        FormulaBox box = lines(outlineIn(QRectF(0, top, width, height), span.outline), style);
        box.width = width;
        box.ascent = -top;
        box.descent = top + height;
        return box;
    }

    // Bars, arrows and braces are as wide as their base, also with a limit of their own; accents keep their size.
    FormulaBox limit(const QDomElement &element, const FormulaBox &base, const Style &style)
    {
        if (element.isNull()) {
            return {};
        }
        const QString tag = tagOf(element);
        if (tag == QLatin1String("mo")) {
            const Span *span = spanOf(textOf(element));
            const double shortest = 0.5 * style.size;
            return onLine(span ? spanning(*span, qMax(base.width, shortest), style) : box(element, style));
        }
        const QVector<QDomElement> children = childrenOf(element);
        const bool isPair = (tag == QLatin1String("munder") || tag == QLatin1String("mover")) && children.size() == 2;
        if (isPair && tagOf(children.at(0)) == QLatin1String("mo") && spanOf(textOf(children.at(0)))) {
            const FormulaBox span = limit(children.at(0), base, style);
            const FormulaBox text = box(children.at(1), style.script());
            return tag == QLatin1String("munder") ? stacked(span, text, {}, style) : stacked(span, {}, text, style);
        }
        return box(element, style.script());
    }

    // A sign without the empty room between it and the line that it stands on.
    FormulaBox onLine(const FormulaBox &sign)
    {
        if (sign.parts.isEmpty()) {
            return {};
        }
        const FormulaPart &part = sign.parts.constFirst();
        double lift = -part.lines.boundingRect().bottom();
        if (!part.text.isEmpty()) {
            lift = -m_letters.measure(part.text).ink.bottom() / formulaLetters * part.size;
        }
        FormulaBox low;
        low.add(sign, QPointF(0, lift));
        low.width = sign.width;
        low.ascent = sign.ascent - lift;
        return low;
    }

    FormulaBox fenced(const QDomElement &element, const Style &style)
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
                append(word(separators.mid(qMin(i, separators.size()) - 1, 1), style, false, false), 0.17 * style.size);
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
        put(fenceOf(open) ? fence(open, content, style) : word(open, style, false, false));
        put(content);
        put(fenceOf(close) ? fence(close, content, style) : word(close, style, false, false));
        return result;
    }

    FormulaBox enclosed(const QDomElement &element, const Style &style)
    {
        const FormulaBox content = row(element, style);
        const QStringList notations =
            element.attribute(QStringLiteral("notation"), QStringLiteral("longdiv")).split(QLatin1Char(' '));
        if (notations.contains(QLatin1String("radical"))) {
            return radical(content, {}, style);
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
                result.add(lines(outlineIn(area, it.value()), style), {});
            }
        }
        return result;
    }

    FormulaBox phantom(const QDomElement &element, const Style &style)
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

    Grid gridOf(const QDomElement &element, const Style &style)
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

    FormulaBox table(const QDomElement &element, const Style &tableStyle)
    {
        Style style = tableStyle;
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
                              double across, double down, const Style &style)
    {
        const QStringList columns = wordsOf(element, "columnlines", "none");
        const QStringList rows = wordsOf(element, "rowlines", "none");
        double x = -across / 2;
        for (int c = 0; c + 1 < grid.widths.size(); ++c) {
            x += grid.widths.at(c) + across;
            if (wordFor(columns, c) != QLatin1String("none")) {
                result.add(rule({x, 0}, {x, height}, style), {});
            }
        }
        double y = -down / 2;
        for (int r = 0; r + 1 < grid.rows.size(); ++r) {
            y += grid.ascents.at(r) + grid.descents.at(r) + down;
            if (wordFor(rows, r) != QLatin1String("none")) {
                result.add(rule({0, y}, {result.width, y}, style), {});
            }
        }
    }

    Letters m_letters;
    int m_elements = 0;
};

} // namespace

void FormulaBox::add(const FormulaBox &other, const QPointF &at)
{
    for (FormulaPart part : other.parts) {
        part.middle += at;
        part.lines.translate(at);
        parts.append(part);
    }
}

QStringList formulaFamilies()
{
    return {QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")};
}

FormulaBox formulaLayout(const QDomElement &math)
{
    return Layout().box(math, Style());
}

} // namespace lessonhost
