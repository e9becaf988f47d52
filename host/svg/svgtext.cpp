// SPDX-License-Identifier: MIT
#include "svg/svgtext.h"

#include "lesson/fontvalues.h"
#include "lesson/numbertexts.h"
#include "lesson/textruns.h"
#include "svg/listmarks.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QFont>
#include <QFontMetricsF>
#include <QSet>

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
    const QString leftToRight = svgAlignment(textAlignment(value));
    if (style.property(QStringLiteral("direction")) != QLatin1String("rtl")) {
        return leftToRight;
    }
    const QString start = QStringLiteral("start");
    const QString end = QStringLiteral("end");
    return leftToRight == start ? end : leftToRight == end ? start : leftToRight;
}

// Properties of a text and its spans that no letters of lessons have, and the value of each that says nothing.
struct Layout
{
    const char *name;
    const char *plain;
};
constexpr Layout layouts[] = {{"dx", "0"},
                              {"dy", "0"},
                              {"rotate", "0"},
                              {"textLength", ""},
                              {"letter-spacing", "normal"},
                              {"word-spacing", "normal"},
                              {"line-increment", "auto"},
                              {"writing-mode", "lr-tb"},
                              {"unicode-bidi", "normal"},
                              {"stroke", "none"},
                              {"fill-opacity", "1"}};

// Names under which a style carries what isn't inherited in svg, but here.
const QLatin1String linkProperty("xlink:href");
const QLatin1String backgroundProperty("background-fill");

bool isBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

void setBackground(SvgStyle &style, const IwbRecord &record)
{
    // A part of a text may have none where the others have one.
    if (record.textFill == QLatin1String("none")) {
        style.set(backgroundProperty, {});
    }
    for (const QString &fill : {record.textFill, record.highlightFill}) {
        const auto color = svgColor(fill);
        if (color && color->alpha() > 0) {
            style.set(backgroundProperty, color->name());
        }
    }
}

bool isAddress(const QString &link)
{
    return link.startsWith(QLatin1String("http://")) || link.startsWith(QLatin1String("https://"))
        || link.startsWith(QLatin1String("mailto:"));
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

SvgText::SvgText(const QDomElement &source, const SvgStyle &style, Kind kind,
                 const std::function<void(const Sentence &)> &problem, const QHash<QString, IwbRecord> &records)
    : m_style(style)
    , m_isNative(kind == Native)
    , m_isOwn(kind == Own)
    , m_isArea(svgName(source).toLower() == QLatin1String("textarea"))
    , m_problem(problem)
    , m_records(records)
{
    const QString id = source.attribute(QStringLiteral("id"));
    const IwbRecord record = id.isEmpty() ? IwbRecord() : records.value(id);
    setBackground(m_style, record);
    if (!m_isNative) {
        nameLayout(source, false, false);
    }
    if (record.isList && m_isArea) {
        readList(source, m_style, record);
    } else {
        read(source, m_style);
    }
    if (!m_runs.isEmpty() && !m_isNative && !keepsBlanks(source) && m_runs.last().text.endsWith(QLatin1Char(' '))) {
        m_runs.last().text.chop(1);
    }
    findLinks();
    m_records.clear();
}

// A link around all letters is one of the item, and one of some can lead to the web.
void SvgText::findLinks()
{
    QSet<QString> links;
    for (const Run &run : qAsConst(m_runs)) {
        if (!isBlank(run.text)) {
            links.insert(run.style.property(linkProperty));
        }
    }
    if (links.size() == 1) {
        m_link = *links.cbegin();
    }
    QSet<QString> told;
    for (Run &run : m_runs) {
        const QString link = run.style.property(linkProperty);
        if (link.isEmpty() || (m_link.isEmpty() && isAddress(link))) {
            continue;
        }
        run.style.set(linkProperty, {});
        if (m_link.isEmpty() && !told.contains(link) && !isBlank(run.text)) {
            told.insert(link);
            m_problem(say("the link of \"%1\" to \"%2\" is left out").arg(run.text.trimmed().left(40), link));
        }
    }
}

// What places or spaces letters.
void SvgText::nameLayout(const QDomElement &element, bool isSpan, bool startsLine)
{
    const QHash<QString, QString> declared = svgDeclarations(element.attribute(QStringLiteral("style")));
    for (const Layout &layout : layouts) {
        const QString name = QLatin1String(layout.name);
        const QString value = declared.value(name, element.attribute(name)).trimmed();
        const bool isUsed = startsLine && name == QLatin1String("dy");
        if (!value.isEmpty() && value != QLatin1String(layout.plain) && !isUsed) {
            m_problem(say("%1 \"%2\" is left out").arg(name, value.left(40)));
        }
    }
    for (const char *place : {"x", "y"}) {
        const QString value = element.attribute(QLatin1String(place));
        const bool isUsed = !isSpan || startsLine || m_runs.isEmpty();
        if (!value.isEmpty() && (!isUsed || svgNumbers(value).size() > 1)) {
            m_problem(say("%1 \"%2\" of letters is left out").arg(QLatin1String(place), value.left(40)));
        }
    }
    if (declared.value(QStringLiteral("direction"), element.attribute(QStringLiteral("direction")))
        == QLatin1String("rtl")) {
        m_notes.append(say("it runs from right to left where its letters do"));
    }
}

// Each line is an entry.
void SvgText::readList(const QDomElement &holder, const SvgStyle &style, const IwbRecord &record)
{
    if (!m_runs.isEmpty() && !endsLine()) {
        m_needsLine = true;
    }
    const List outer = m_list;
    m_list = {record.listMarks.isEmpty() ? QStringLiteral("circle") : record.listMarks, record.listMarkFill, 0};
    m_needsMark = true;
    m_notes.append(say("it is a list, whose marks became letters"));
    read(holder, style);
    m_list = outer;
    m_needsLine = !endsLine();
    m_needsMark = !m_list.kind.isEmpty();
}

void SvgText::addMark(const SvgStyle &style)
{
    const QString mark = listMark(m_list.kind, ++m_list.count);
    SvgStyle markStyle = style;
    if (!m_list.fill.isEmpty()) {
        markStyle.set(QStringLiteral("fill"), m_list.fill);
    }
    m_needsMark = false;
    if (!mark.isEmpty()) {
        m_runs.append({markStyle, mark + QLatin1Char(' ')});
    }
}

void SvgText::read(const QDomElement &holder, const SvgStyle &style)
{
    const bool keeps = keepsBlanks(holder);
    for (QDomNode node = holder.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection()) {
            append(style, node.nodeValue(), keeps);
        } else if (node.isText()) {
            // The plug-in reads no plain text, so in its own files blanks between spans mean nothing.
            if (!m_isNative || !node.nodeValue().trimmed().isEmpty()) {
                append(style, keeps ? node.nodeValue() : collapsed(node.nodeValue()), keeps);
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
        m_needsMark = !m_list.kind.isEmpty();
        return;
    }
    if (name != QLatin1String("tspan") && name != QLatin1String("a")) {
        m_problem(say("<%1> within text is left out").arg(span.tagName()));
        return;
    }
    SvgStyle base = m_isNative ? SvgStyle() : outer;
    base.matrix = outer.matrix;
    SvgStyle style = base.child(span, {}, m_problem);
    const QString id = span.attribute(QStringLiteral("id"));
    const IwbRecord record = id.isEmpty() ? IwbRecord() : m_records.value(id);
    setBackground(style, record);
    if (name == QLatin1String("a")) {
        style.set(linkProperty, linkTarget(span));
    }
    const bool startsLine = span.hasAttribute(QStringLiteral("y"))
        || svgLength(span.attribute(QStringLiteral("dy")), 0, outer.fontPixels()).value_or(0) > outer.fontPixels() / 2;
    if (!m_isArea && startsLine && !m_runs.isEmpty() && !endsLine()) {
        endLine(outer);
    }
    if (!m_isNative) {
        nameLayout(span, true, startsLine && !m_isArea);
    }
    if (record.isList && m_isArea) {
        readList(span, style, record);
        return;
    }
    if (m_isNative && !span.hasChildNodes()) {
        append(style, {});
    }
    if (m_isOwn && m_isArea) {
        readOwnSpan(span, style);
    } else {
        read(span, style);
    }
}

// One run, whatever stands in it; what another program has put into it is read as a foreign one's.
void SvgText::readOwnSpan(const QDomElement &span, const SvgStyle &style)
{
    const QDomElement inner = span.firstChildElement();
    const bool isPlain = inner.isNull() || (svgName(inner) == QLatin1String("tbreak") && inner.nextSibling().isNull());
    if (!isPlain) {
        read(span, style);
        return;
    }
    QString text = withoutControlCharacters(span.text());
    if (!keepsBlanks(span)) {
        text = collapsed(text);
        text.remove(0, (m_runs.isEmpty() || endsLine()) && text.startsWith(QLatin1Char(' ')) ? 1 : 0);
    }
    if (!inner.isNull()) {
        text += QChar::LineSeparator;
    }
    m_runs.append({style, text});
}

void SvgText::append(const SvgStyle &style, const QString &text, bool keepsBlanks)
{
    QString clean = withoutControlCharacters(text);
    const bool atLineStart = m_runs.isEmpty() || endsLine() || m_needsLine || m_needsMark;
    if (!m_isNative && !keepsBlanks && atLineStart) {
        while (clean.startsWith(QLatin1Char(' '))) {
            clean.remove(0, 1);
        }
    }
    if (!clean.isEmpty() && m_needsLine) {
        endLine(style);
    }
    if (!clean.isEmpty() && m_needsMark) {
        addMark(style);
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
    m_needsLine = false;
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
    element.setAttribute(QStringLiteral("font-size"), numberText(pixels * scale));
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
        for (const QLatin1String name : {linkProperty, backgroundProperty}) {
            if (!run.style.property(name).isEmpty()) {
                span.setAttribute(name, run.style.property(name));
            }
        }
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
