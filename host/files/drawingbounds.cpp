// SPDX-License-Identifier: MIT
#include "files/drawingbounds.h"

#include "files/domtools.h"
#include "files/svgattributes.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String dashesName("stroke-dasharray");
const QLatin1String styleName("style");

bool hasNumbers(const QString &name)
{
    static const QSet<QString> names = attributeSetOfShape({
        "fx",
        "fy",
        "dx",
        "dy",
        "offset",
        "opacity",
        "fill-opacity",
        "font-size",
        "stop-opacity",
        "stroke-dasharray",
        "stroke-dashoffset",
        "stroke-miterlimit",
        "stroke-opacity",
        "stroke-width",
        "textLength",
        "transform",
        "gradientTransform",
        "viewBox",
    });
    return names.contains(name);
}

const QRegularExpression &numberPattern()
{
    static const QRegularExpression pattern(QStringLiteral("[-+]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?"));
    return pattern;
}

// False for what can hold neither a number out of bounds nor one that is none, which is most.
bool mayBeOutOfBounds(const QString &text)
{
    constexpr ushort lowerCase = 0x20;
    int digits = 0;
    for (const QChar c : text) {
        const ushort code = c.unicode();
        if (code >= '0' && code <= '9') {
            ++digits;
            if (digits > 6) {
                return true;
            }
            continue;
        }
        digits = 0;
        if ((code | lowerCase) == 'e' || (code | lowerCase) == 'n') {
            return true;
        }
    }
    return false;
}

QString boundedNumbers(const QString &text)
{
    if (!mayBeOutOfBounds(text)) {
        return text;
    }
    if (text.contains(QLatin1String("nan"), Qt::CaseInsensitive)
        || text.contains(QLatin1String("inf"), Qt::CaseInsensitive)) {
        return {};
    }
    QString bounded;
    int end = 0;
    for (auto it = numberPattern().globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        const double value = match.capturedRef().toDouble();
        if (!(std::abs(value) <= largestInDrawing)) {
            bounded += text.midRef(end, match.capturedStart() - end);
            bounded += QLatin1String(match.capturedRef().startsWith(QLatin1Char('-')) ? "-1000000" : "1000000");
            end = match.capturedEnd();
        }
    }
    return bounded + text.midRef(end);
}

QVector<double> numbersOf(const QString &text)
{
    QVector<double> numbers;
    for (auto it = numberPattern().globalMatch(text); it.hasNext();) {
        numbers.append(it.next().capturedRef().toDouble());
    }
    return numbers;
}

double attributeOf(const QDomElement &element, const char *name)
{
    return numbersOf(element.attribute(QLatin1String(name))).value(0);
}

double lengthThrough(const QVector<double> &points)
{
    double length = 0;
    for (int i = 3; i < points.size(); i += 2) {
        length += std::hypot(points.at(i - 1) - points.at(i - 3), points.at(i) - points.at(i - 2));
    }
    return length;
}

// No outline is longer than this; those of paths are mostly shorter.
double longestOutline(const QDomElement &shape, const QString &tag)
{
    if (tag == QLatin1String("polyline") || tag == QLatin1String("polygon")) {
        const QVector<double> points = numbersOf(shape.attribute(QStringLiteral("points")));
        return 2 * lengthThrough(points);
    }
    if (tag == QLatin1String("path")) {
        const QString path = shape.attribute(QStringLiteral("d"));
        double sum = 0;
        for (const double number : numbersOf(path)) {
            sum += std::abs(number);
        }
        return sum * (path.contains(QLatin1Char('a'), Qt::CaseInsensitive) ? 7 : 3);
    }
    double sum = 0;
    for (const char *name : {"width", "height", "rx", "ry", "r", "x1", "y1", "x2", "y2"}) {
        sum += std::abs(attributeOf(shape, name));
    }
    return 7 * sum;
}

class Bounds
{
public:
    // dashes: the pattern that the element inherits.
    void apply(QDomElement element, QString dashes)
    {
        QVector<QDomAttr> attributes = attributesOf(element);
        for (QDomAttr &attribute : attributes) {
            if (attribute.name() == styleName) {
                boundStyle(element, attribute);
                attributes = attributesOf(element);
                break;
            }
        }
        for (QDomAttr &attribute : attributes) {
            const QString name = attribute.name();
            if (!hasNumbers(name)) {
                continue;
            }
            const QString value = attribute.value();
            const QString bounded = boundedNumbers(value);
            if (bounded.isEmpty()) {
                element.removeAttributeNode(attribute);
            } else if (bounded != value) {
                attribute.setValue(bounded);
            }
            if (name == dashesName) {
                dashes = bounded.isEmpty() ? dashes : bounded;
            }
        }
        if (!dashes.isEmpty()) {
            countDashes(element, dashes);
        }
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            apply(child, dashes);
        }
    }

private:
    static QVector<QDomAttr> attributesOf(const QDomElement &element)
    {
        QVector<QDomAttr> all;
        const QDomNamedNodeMap attributes = element.attributes();
        const int count = attributes.count();
        all.reserve(count);
        for (int i = 0; i < count; ++i) {
            all.append(attributes.item(i).toAttr());
        }
        return all;
    }

    static void boundStyle(QDomElement &element, QDomAttr &attribute)
    {
        const QString style = attribute.value();
        // Most only name fonts.
        if (style.startsWith(QLatin1String("font-family:")) && !style.contains(QLatin1Char(';'))) {
            return;
        }
        const QString bounded = boundedStyle(element, style);
        if (bounded != style) {
            attribute.setValue(bounded);
        }
    }

    // The dashes become an attribute.
    static QString boundedStyle(QDomElement &element, const QString &style)
    {
        QStringList bounded;
        for (const QString &declaration : style.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString name = declaration.section(QLatin1Char(':'), 0, 0).trimmed();
            const QString value = declaration.section(QLatin1Char(':'), 1).trimmed();
            if (name == dashesName) {
                element.setAttribute(dashesName, value);
            } else if (hasNumbers(name)) {
                bounded.append(name + QLatin1Char(':') + boundedNumbers(value));
            } else {
                bounded.append(declaration);
            }
        }
        return bounded.join(QLatin1Char(';'));
    }

    void countDashes(QDomElement &element, const QString &dashes)
    {
        const QVector<double> pattern = numbersOf(dashes);
        if (pattern.isEmpty()) {
            return;
        }
        double sum = 0;
        for (const double length : pattern) {
            sum += std::abs(length);
        }
        const QString tag = bareName(element.tagName());
        const double count = longestOutline(element, tag) / sum * pattern.size();
        if (count <= m_dashesLeft) {
            m_dashesLeft -= count;
        } else {
            element.setAttribute(dashesName, QStringLiteral("none"));
        }
    }

    double m_dashesLeft = mostDashes;
};

} // namespace

void boundDrawing(QDomElement svg)
{
    Bounds().apply(svg, {});
}

} // namespace lessonhost
