// SPDX-License-Identifier: MIT
#include "svg/svgtext.h"

#include "lesson/fontvalues.h"
#include "lesson/textruns.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QFont>
#include <QFontMetricsF>

namespace lessonhost {

namespace {

struct FontAttribute
{
    const char *name;
    const char *nativeDefault;
    const char *svgDefault;
};
constexpr FontAttribute fontAttributes[] = {
    {"font-weight", "bold", "normal"}, {"font-stretch", "normal", "normal"},     {"font-style", "italic", "normal"},
    {"font-family", "Arial", "Arial"}, {"text-decoration", "underline", "none"},
};

QString fontProperty(const SvgStyle &style, const FontAttribute &attribute, bool isNative)
{
    const QString value = style.property(QLatin1String(attribute.name));
    return value.isEmpty() ? QLatin1String(isNative ? attribute.nativeDefault : attribute.svgDefault) : value;
}

QString alignment(const SvgStyle &style)
{
    const QString align = style.property(QStringLiteral("text-align"));
    const QString value = align.isEmpty() ? style.property(QStringLiteral("text-anchor")) : align;
    return svgAlignment(textAlignment(value));
}

// Blanks and ends of lines in a file are one blank each, unless it says otherwise.
QString collapsed(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const bool isBlank =
            c == QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t') || c == QLatin1Char('\r');
        if (!isBlank) {
            result += c;
        } else if (!result.endsWith(QLatin1Char(' '))) {
            result += QLatin1Char(' ');
        }
    }
    return result;
}

bool keepsBlanks(const QDomElement &element)
{
    for (QDomElement at = element; !at.isNull(); at = at.parentNode().toElement()) {
        const QString space = at.attribute(QStringLiteral("xml:space"));
        if (!space.isEmpty()) {
            return space == QLatin1String("preserve");
        }
    }
    return false;
}

// Text is measured with what fonts this machine has; other machines have others.
QFontMetricsF metrics(const SvgStyle &style)
{
    QFont font(style.property(QStringLiteral("font-family")).split(QLatin1Char(',')).first().remove(QLatin1Char('\'')));
    font.setPixelSize(qRound(qBound(1.0, style.fontPixels(), 10000.0)));
    font.setWeight(fontWeight(style.property(QStringLiteral("font-weight"))));
    return QFontMetricsF(font);
}

} // namespace

SvgText::SvgText(const QDomElement &source, const SvgStyle &style, bool isNative,
                 const std::function<void(const QString &)> &problem)
    : m_style(style)
    , m_isNative(isNative)
    , m_isArea(svgName(source).toLower() == QLatin1String("textarea"))
    , m_problem(problem)
{
    read(source, style);
    if (!m_runs.isEmpty() && !m_isNative && m_runs.last().text.endsWith(QLatin1Char(' '))) {
        m_runs.last().text.chop(1);
    }
}

void SvgText::read(const QDomElement &holder, const SvgStyle &style)
{
    const bool keeps = keepsBlanks(holder);
    for (QDomNode node = holder.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection()) {
            append(style, node.nodeValue());
        } else if (node.isText()) {
            // The plug-in reads no plain text, so in its own files blanks between spans mean nothing.
            if (!m_isNative || !node.nodeValue().trimmed().isEmpty()) {
                append(style, keeps ? node.nodeValue() : collapsed(node.nodeValue()));
            }
        } else if (node.isElement()) {
            readSpan(node.toElement(), style);
        }
    }
}

void SvgText::readSpan(const QDomElement &span, const SvgStyle &outer)
{
    const QString name = svgName(span);
    if (name == QLatin1String("tbreak") || name == QLatin1String("br")) {
        // A span of this system's own files ends in the newline that the break shows to others.
        if (!m_isNative || !endsLine()) {
            endLine(outer);
        }
        return;
    }
    if (name != QLatin1String("tspan") && name != QLatin1String("a")) {
        m_problem(QLatin1String("<") + span.tagName() + QLatin1String("> within text is left out"));
        return;
    }
    SvgStyle base = m_isNative ? SvgStyle() : outer;
    base.matrix = outer.matrix;
    const SvgStyle style = base.child(span, {}, m_problem);
    const bool startsLine = span.hasAttribute(QStringLiteral("y"))
        || svgLength(span.attribute(QStringLiteral("dy")), 0, outer.fontPixels()).value_or(0) > outer.fontPixels() / 2;
    if (!m_isArea && startsLine && !m_runs.isEmpty() && !endsLine()) {
        endLine(outer);
    }
    if (m_isNative && !span.hasChildNodes()) {
        append(style, {});
    }
    read(span, style);
}

void SvgText::append(const SvgStyle &style, const QString &text)
{
    QString clean = withoutControlCharacters(text);
    const bool atLineStart = m_runs.isEmpty() || endsLine();
    if (!m_isNative && atLineStart) {
        while (clean.startsWith(QLatin1Char(' '))) {
            clean.remove(0, 1);
        }
    }
    if (!clean.isEmpty() || m_isNative) {
        m_runs.append({style, clean});
    }
}

void SvgText::endLine(const SvgStyle &style)
{
    if (m_runs.isEmpty()) {
        m_runs.append({style, QString()});
    }
    m_runs.last().text += QLatin1Char('\n');
}

bool SvgText::endsLine() const
{
    return !m_runs.isEmpty()
        && (m_runs.last().text.endsWith(QLatin1Char('\n')) || m_runs.last().text.endsWith(QChar(0x2028)));
}

void SvgText::setFont(QDomElement &element, const SvgStyle &style, double scale) const
{
    for (const FontAttribute &attribute : fontAttributes) {
        element.setAttribute(QLatin1String(attribute.name), fontProperty(style, attribute, m_isNative));
    }
    const bool hasSize = style.has(QStringLiteral("font-size"));
    double pixels = m_isNative && !hasSize ? defaultFontPixels : style.fontPixels();
    const QString shift = style.property(QStringLiteral("baseline-shift"));
    if (shift == QLatin1String("sub") || shift == QLatin1String("super")) {
        element.setAttribute(QStringLiteral("baseline-shift"), shift);
        pixels /= shiftedLetters;
    }
    element.setAttribute(QStringLiteral("font-size"), QString::number(pixels * scale));
    element.setAttribute(QStringLiteral("text-align"), alignment(style));
    const QColor color = svgColor(style.property(QStringLiteral("fill"))).value_or(QColor(Qt::black));
    element.setAttribute(QStringLiteral("fill"), color.name());
}

void SvgText::writeInto(QDomElement &area, double scale) const
{
    QDomDocument document = area.ownerDocument();
    setFont(area, m_style, scale);
    for (const Run &run : m_runs) {
        QDomElement span = document.createElement(QStringLiteral("svg:tspan"));
        setFont(span, run.style, scale);
        if (!run.text.isEmpty()) {
            span.appendChild(document.createCDATASection(run.text));
        }
        area.appendChild(span);
    }
}

QString SvgText::plainText() const
{
    QString text;
    for (const Run &run : m_runs) {
        text += run.text;
    }
    return text;
}

QSizeF SvgText::size() const
{
    double width = 0;
    double lineWidth = 0;
    double height = 0;
    double lineHeight = metrics(m_style).height();
    for (const Run &run : m_runs) {
        const QFontMetricsF font = metrics(run.style);
        const QStringList lines = run.text.split(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i) {
            if (i > 0) {
                width = qMax(width, lineWidth);
                height += lineHeight;
                lineWidth = 0;
                lineHeight = font.height();
            }
            lineWidth += font.horizontalAdvance(lines.at(i));
            lineHeight = qMax(lineHeight, font.height());
        }
    }
    return QSizeF(qMax(width, lineWidth), height + lineHeight);
}

QRectF SvgText::boxAt(double x, double y) const
{
    const SvgStyle &first = m_runs.isEmpty() ? m_style : m_runs.first().style;
    // Other machines draw the letters with other fonts: without some room the last word would go to a line of its own.
    QSizeF textSize = size();
    textSize.rwidth() = textSize.width() * 1.05 + first.fontPixels() / 2;
    const QString align = alignment(m_style);
    const double shift = align == QLatin1String("center") ? 0.5 : align == QLatin1String("end") ? 1 : 0;
    return QRectF(QPointF(x - shift * textSize.width(), y - metrics(first).ascent()), textSize);
}

} // namespace lessonhost
