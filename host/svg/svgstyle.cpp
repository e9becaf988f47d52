// SPDX-License-Identifier: MIT
#include "svg/svgstyle.h"

#include "lesson/isoneof.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/svgvalues.h"

#include <QSet>
#include <QStringList>

#include <optional>

namespace lessonhost {

namespace {

// Properties that children inherit and that mean something here.
const QSet<QString> &inheritedProperties()
{
    static const QSet<QString> names{
        QStringLiteral("fill"),
        QStringLiteral("fill-opacity"),
        QStringLiteral("fill-rule"),
        QStringLiteral("stroke"),
        QStringLiteral("stroke-width"),
        QStringLiteral("stroke-opacity"),
        QStringLiteral("stroke-dasharray"),
        QStringLiteral("stroke-linecap"),
        QStringLiteral("stroke-linejoin"),
        QStringLiteral("color"),
        QStringLiteral("font-family"),
        QStringLiteral("font-size"),
        QStringLiteral("font-weight"),
        QStringLiteral("font-style"),
        QStringLiteral("font-stretch"),
        QStringLiteral("text-decoration"),
        QStringLiteral("text-align"),
        QStringLiteral("text-anchor"),
        QStringLiteral("direction"),
        QStringLiteral("visibility"),
        QStringLiteral("marker-start"),
        QStringLiteral("marker-end"),
    };
    return names;
}

// Properties that change the look and that no item has.
constexpr const char *unknownEffects[] = {"clip-path", "mask", "filter"};

double opacityOf(const QString &text)
{
    const auto value = svgLength(text, 1);
    return value ? qBound(0.0, *value, 1.0) : 1.0;
}

// A font size among keywords and lengths.
double fontSizeOf(const QString &text, double inherited)
{
    struct Keyword
    {
        const char *name;
        double pixels;
    };
    static constexpr Keyword keywords[] = {{"xx-small", 9}, {"x-small", 10}, {"small", 13},   {"medium", 16},
                                           {"large", 18},   {"x-large", 24}, {"xx-large", 32}};
    for (const Keyword &keyword : keywords) {
        if (text == QLatin1String(keyword.name)) {
            return keyword.pixels;
        }
    }
    if (text == QLatin1String("smaller") || text == QLatin1String("larger")) {
        return text == QLatin1String("larger") ? inherited * 1.2 : inherited / 1.2;
    }
    const auto length = svgLength(text, inherited, inherited);
    return length && *length > 0 ? *length : inherited;
}

QColor withOpacity(QColor color, double opacity)
{
    color.setAlpha(qRound(color.alpha() * qBound(0.0, opacity, 1.0)));
    return color;
}

QColor paintColor(const SvgStyle &style, const QString &name, const QColor &fallback,
                  const std::function<void(const Sentence &)> &problem)
{
    QString text = style.property(name).trimmed();
    if (text.isEmpty()) {
        return fallback;
    }
    if (text.startsWith(QLatin1String("url("))) {
        problem(say("%1 \"%2\" (a gradient or pattern) is left out").arg(name, text));
        text = text.mid(text.indexOf(QLatin1Char(')')) + 1).trimmed();
        return svgColor(text).value_or(QColor(0, 0, 0, 0));
    }
    if (text == QLatin1String("currentColor")) {
        text = style.property(QStringLiteral("color"));
    }
    if (const auto color = svgColor(text)) {
        return *color;
    }
    problem(say("%1 \"%2\" isn't a colour").arg(name, text));
    return fallback;
}

int dashParts(const QString &text)
{
    const QVector<double> numbers = svgNumbers(text);
    if (numbers.isEmpty()) {
        return 0;
    }
    return numbers.size() > 4 ? 4 : qMax(2, numbers.size());
}

QString rgb(const QColor &color, bool withAlpha)
{
    QStringList parts{QString::number(color.red()), QString::number(color.green()), QString::number(color.blue())};
    if (withAlpha) {
        parts.prepend(QString::number(color.alpha()));
    }
    return QLatin1String("rgb(") + parts.join(QLatin1Char(',')) + QLatin1Char(')');
}

} // namespace

SvgStyle SvgStyle::child(const QDomElement &element, const QString &transform,
                         const std::function<void(const Sentence &)> &problem) const
{
    SvgStyle result = *this;
    const QString shiftName = QStringLiteral("baseline-shift");
    const QString sizeName = QStringLiteral("font-size");
    std::optional<QString> fontSize;
    QString shift;
    QString ownOpacity;
    QStringList effects;
    bool isHidden = false;
    const auto take = [&](const QString &name, const QString &value) {
        if (inheritedProperties().contains(name)) {
            if (name == sizeName) {
                fontSize = value;
            } else if (value != QLatin1String("inherit")) {
                result.m_properties.insert(name, value);
            }
        } else if (name == QLatin1String("opacity")) {
            ownOpacity = value;
        } else if (name == QLatin1String("display")) {
            isHidden = isHidden || value == QLatin1String("none");
        } else if (name == QLatin1String("visible")) {
            isHidden = isHidden || value == QLatin1String("0");
        } else if (name == shiftName) {
            shift = value;
        } else if (isOneOf(unknownEffects, name) && !value.isEmpty() && value != QLatin1String("none")) {
            effects.append(name);
        }
    };
    const QString style = element.attribute(QStringLiteral("style"));
    const QHash<QString, QString> declared = style.isEmpty() ? QHash<QString, QString>() : svgDeclarations(style);
    for (auto it = declared.constBegin(); it != declared.constEnd(); ++it) {
        take(it.key(), it.value());
    }
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.size();
    for (int i = 0; i < count; ++i) {
        const QDomNode attribute = attributes.item(i);
        const QString name = attribute.nodeName();
        if (!declared.contains(name)) {
            take(name, attribute.nodeValue());
        }
    }
    if (fontSize) {
        result.m_properties.insert(sizeName, numberText(fontSizeOf(*fontSize, fontPixels()), 10));
    }
    if (!shift.isEmpty()) {
        result.m_properties.insert(shiftName, shift);
    } else if (has(shiftName)) {
        result.m_properties.remove(shiftName); // not inherited
    }
    for (const char *effect : unknownEffects) {
        if (effects.contains(QLatin1String(effect))) {
            problem(say("%1 is left out").arg(QLatin1String(effect)));
        }
    }
    result.opacity = opacity * opacityOf(ownOpacity);
    result.m_isDisplayed = m_isDisplayed && !isHidden;
    if (!transform.isEmpty() && transform != QLatin1String("none")) {
        if (const auto step = svgTransform(transform)) {
            result.matrix = *step * matrix;
        } else {
            problem(say("transform \"%1\" can't be read").arg(transform));
        }
    }
    return result;
}

bool SvgStyle::isVisible() const
{
    // A child may be shown in a hidden group, but not in one that isn't displayed.
    const QString visibility = property(QStringLiteral("visibility"));
    return m_isDisplayed && visibility != QLatin1String("hidden") && visibility != QLatin1String("collapse");
}

double SvgStyle::fontPixels() const
{
    bool ok = false;
    const double pixels = numberOfText(m_properties.value(QStringLiteral("font-size")), &ok);
    return ok && pixels > 0 ? pixels : 16;
}

SvgPaint svgPaint(const SvgStyle &style, bool isNative, const std::function<void(const Sentence &)> &problem)
{
    SvgPaint paint;
    const QColor none(0, 0, 0, 0);
    paint.fill = paintColor(style, QStringLiteral("fill"), isNative ? none : QColor(Qt::black), problem);
    paint.line = paintColor(style, QStringLiteral("stroke"), isNative ? QColor(Qt::black) : none, problem);

    double fillOpacity = opacityOf(style.property(QStringLiteral("fill-opacity")));
    double lineOpacity = 1;
    const QString strokeOpacity = style.property(QStringLiteral("stroke-opacity"));
    const double value = svgLength(strokeOpacity, 1).value_or(1);
    const bool isWhole = strokeOpacity == QLatin1String("0") || strokeOpacity == QLatin1String("1");
    const bool hasFillOpacity = style.has(QStringLiteral("fill-opacity"));
    if (value > 1 || (isNative && isWhole && !hasFillOpacity && paint.fill.alpha() > 0)) {
        fillOpacity = hasFillOpacity ? fillOpacity : qBound(0.0, value / 255, 1.0);
    } else {
        lineOpacity = value;
    }
    paint.fill = withOpacity(paint.fill, fillOpacity * style.opacity);
    paint.line = withOpacity(paint.line, lineOpacity * style.opacity);

    const QString width = style.property(QStringLiteral("stroke-width"));
    paint.lineWidth = svgLength(width).value_or(isNative ? 2 : 1) * meanScale(style.matrix);
    if (paint.lineWidth <= 0) {
        paint.lineWidth = 1;
        paint.line.setAlpha(0);
    }
    const QString dashes = style.property(QStringLiteral("stroke-dasharray"));
    paint.dashParts = dashParts(dashes);
    if (svgNumbers(dashes).size() > 4) {
        problem(say("stroke-dasharray \"%1\" became dash dot dot").arg(dashes));
    }
    return paint;
}

Sentences lineDifferences(const SvgStyle &style, const SvgPaint &paint)
{
    // Of which the lengths are so many times the width of the line.
    static const QVector<double> patterns[] = {{}, {}, {5, 5}, {10, 2, 10}, {10, 2, 2, 2}};
    Sentences differences;
    const QString dashes = style.property(QStringLiteral("stroke-dasharray"));
    const QVector<double> lengths = svgNumbers(dashes);
    const QVector<double> pattern = patterns[qBound(0, paint.dashParts, 4)];
    const double width = svgLength(style.property(QStringLiteral("stroke-width"))).value_or(1);
    bool isSame = lengths.size() > 4 || lengths.size() == pattern.size(); // more were told
    for (int i = 0; i < lengths.size() && i < pattern.size(); ++i) {
        isSame = isSame && (lengths.size() > 4 || qAbs(lengths.at(i) - pattern.at(i) * width) <= width);
    }
    if (!isSame) {
        differences.append(say("stroke-dasharray \"%1\" has other lengths").arg(dashes));
    }
    constexpr const char *plain[][2] = {{"stroke-linecap", "butt"}, {"stroke-linejoin", "miter"}};
    for (const auto &[name, usual] : plain) {
        const QString value = style.property(QLatin1String(name));
        if (!value.isEmpty() && value != QLatin1String(usual)) {
            differences.append(say("%1 \"%2\" is left out").arg(QLatin1String(name), value));
        }
    }
    return differences;
}

void setPluginPaint(QDomElement &element, const SvgPaint &paint)
{
    element.setAttribute(QStringLiteral("stroke"), rgb(paint.line, paint.line.alpha() < 255));
    element.setAttribute(QStringLiteral("stroke-width"), numberText(paint.lineWidth, 10));
    if (paint.fill.alpha() > 0) {
        element.setAttribute(QStringLiteral("fill"), rgb(paint.fill, false));
        element.setAttribute(QStringLiteral("stroke-opacity"), QString::number(paint.fill.alpha()));
    }
    if (paint.dashParts > 0) {
        // Only the number of parts is read.
        QStringList parts;
        for (int i = 0; i < paint.dashParts; ++i) {
            parts.append(QStringLiteral("1"));
        }
        element.setAttribute(QStringLiteral("stroke-dasharray"), parts.join(QLatin1Char(',')));
    }
}

void setSvgPaint(QDomElement &element, const SvgPaint &paint)
{
    const QString strokeOpacity = QStringLiteral("stroke-opacity");
    const QString fillOpacity = QStringLiteral("fill-opacity");
    const bool hasFill = paint.fill.alpha() > 0;
    const bool hasLine = paint.line.alpha() > 0;
    const bool hasTranslucentLine = hasLine && paint.line.alpha() < 255;
    if (!hasFill && element.tagName() != QLatin1String("svg:line")) {
        element.setAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    }
    if (hasFill && (paint.fill.alpha() < 255 || hasTranslucentLine)) {
        element.setAttribute(fillOpacity, numberText(paint.fill.alpha() / 255.0));
    }
    if (!hasLine) {
        element.setAttribute(QStringLiteral("stroke"), QStringLiteral("none"));
    } else if (hasTranslucentLine) {
        element.setAttribute(strokeOpacity, numberText(paint.line.alpha() / 255.0));
    }
    element.setAttribute(QStringLiteral("stroke-width"), numberText(paint.lineWidth, 10));
}

} // namespace lessonhost
