// SPDX-License-Identifier: MIT
#include "drawings/formulabox.h"

#include "canvas/outline.h"
#include "lesson/fontshere.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QTransform>

namespace lessonhost {

namespace {

// Parts of the size of the letters.
constexpr double axisHeight = 0.26; // where fractions and fences have their middle
constexpr double ruleWidth = 0.055;
constexpr double scriptSize = 0.71;
constexpr double largeOperator = 1.5;

} // namespace

QStringList formulaFamilies()
{
    return {QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")};
}

void FormulaBox::add(const FormulaBox &other, const QPointF &at)
{
    for (FormulaPart part : other.parts) {
        part.middle += at;
        part.lines.translate(at);
        parts.append(part);
    }
}

FormulaStyle FormulaStyle::inside() const
{
    FormulaStyle style = *this;
    ++style.depth;
    return style;
}

FormulaStyle FormulaStyle::script() const
{
    FormulaStyle style = inside();
    style.size = qMax(size * scriptSize, formulaLetters * smallestScript);
    style.isDisplayed = false;
    return style;
}

double FormulaStyle::rule() const
{
    return ruleWidth * size;
}

double FormulaStyle::axis() const
{
    return axisHeight * size;
}

FormulaBoxes::Measure FormulaBoxes::measure(const QString &text, bool isItalic, bool isBold)
{
    constexpr int mostKnown = 10000;
    static QHash<QString, Measure> knownWords[4]; // upright and slanted, each light and bold
    auto &known = knownWords[2 * int(isItalic) + int(isBold)];
    const auto seen = known.constFind(text);
    if (seen != known.constEnd()) {
        return *seen;
    }
    if (known.size() >= mostKnown) {
        known.clear();
    }
    static const QString family = familyHere(formulaFamilies());
    QFont font(family);
    font.setPixelSize(int(formulaLetters));
    font.setItalic(isItalic);
    font.setBold(isBold);
    const QFontMetricsF metrics(font);
    const Measure found{metrics.horizontalAdvance(text), metrics.xHeight(), metrics.tightBoundingRect(text)};
    known.insert(text, found);
    return found;
}

FormulaBox FormulaBoxes::word(const QString &text, const FormulaStyle &style, bool isItalic, bool isBold)
{
    FormulaBox box;
    if (text.isEmpty()) {
        return box;
    }
    const Measure letters = measure(text, isItalic, isBold);
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

FormulaBox FormulaBoxes::largeSign(const QString &text, const FormulaStyle &style)
{
    FormulaStyle large = style;
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

FormulaBox FormulaBoxes::fence(const QString &text, const FormulaBox &content, const FormulaStyle &style)
{
    const FormulaBox glyph = word(text, style, false, false);
    const double half = qMax(content.ascent - style.axis(), content.descent + style.axis());
    if (half <= 0.58 * style.size) {
        return glyph;
    }
    const FormulaFence &sign = *formulaFence(text);
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

FormulaBox FormulaBoxes::onLine(const FormulaBox &sign)
{
    if (sign.parts.isEmpty()) {
        return {};
    }
    const FormulaPart &part = sign.parts.constFirst();
    double lift = -part.lines.boundingRect().bottom();
    if (!part.text.isEmpty()) {
        lift = -measure(part.text).ink.bottom() / formulaLetters * part.size;
    }
    FormulaBox low;
    low.add(sign, QPointF(0, lift));
    low.width = sign.width;
    low.ascent = sign.ascent - lift;
    return low;
}

FormulaBox FormulaBoxes::lines(const QPainterPath &path, const FormulaStyle &style)
{
    FormulaBox box;
    FormulaPart part;
    part.lines = path;
    part.lineWidth = style.rule();
    part.color = style.color;
    box.parts.append(part);
    return box;
}

FormulaBox FormulaBoxes::rule(const QPointF &from, const QPointF &to, const FormulaStyle &style)
{
    QPainterPath path(from);
    path.lineTo(to);
    return lines(path, style);
}

FormulaBox FormulaBoxes::spanning(const FormulaSpan &span, double width, const FormulaStyle &style)
{
    const double height = span.height * style.size;
    const double top = -style.axis() - height / 2;
    FormulaBox box = lines(outlineIn(QRectF(0, top, width, height), span.outline), style);
    box.width = width;
    box.ascent = -top;
    box.descent = top + height;
    return box;
}

FormulaBox FormulaBoxes::radical(const FormulaBox &content, const FormulaBox &index, const FormulaStyle &style)
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

FormulaBox FormulaBoxes::withScripts(const FormulaBox &base, const FormulaBox &sub, const FormulaBox &super,
                                     const FormulaStyle &style, bool isBefore)
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

FormulaBox FormulaBoxes::stacked(const FormulaBox &base, const FormulaBox &under, const FormulaBox &over,
                                 const FormulaStyle &style)
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

} // namespace lessonhost
