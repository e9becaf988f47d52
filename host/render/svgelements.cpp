// SPDX-License-Identifier: MIT
#include "render/svgelements.h"

#include "files/drawingbounds.h"
#include "lesson/fontshere.h"
#include "lesson/fontvalues.h"

#include <QHash>

#include <cmath>

namespace lessonhost {

namespace {

double bounded(double value)
{
    return std::isnan(value) ? 0 : qBound(-largestInDrawing, value, largestInDrawing);
}

// Six digits, and no more than seven behind the point.
QString factor(double value)
{
    constexpr double scale = 1e7;
    constexpr double largestWhole = 1e6;
    if (value == std::trunc(value) && qAbs(value) < largestWhole) {
        return QString::number(int(value));
    }
    return QString::number(qAbs(value) < 1 ? std::round(value * scale) / scale : value, 'g', 6);
}

// Two digits behind the point. A drawing is mostly numbers, and these are quick to write.
void appendDrawnNumber(QString &text, double value)
{
    constexpr int mostLetters = 16;
    QChar letters[mostLetters];
    int first = mostLetters;
    const auto hundredths = qRound64(bounded(value) * 100);
    auto rest = qAbs(hundredths);
    for (int digit = 0; digit < 3 || rest > 0; ++digit, rest /= 10) {
        if (digit == 2) {
            letters[--first] = QLatin1Char('.');
        }
        letters[--first] = QLatin1Char(char('0' + rest % 10));
    }
    if (hundredths < 0) {
        letters[--first] = QLatin1Char('-');
    }
    text.append(letters + first, mostLetters - first);
}

QString drawnPath(const QPainterPath &path)
{
    constexpr int usualLetters = 16; // of a point
    QString data;
    data.reserve(path.elementCount() * usualLetters);
    QPointF start;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        start = element.isMoveTo() ? QPointF(element) : start;
        data += QLatin1Char(element.isMoveTo() ? 'M' : element.isLineTo() ? 'L' : element.isCurveTo() ? 'C' : ' ');
        appendDrawnNumber(data, element.x);
        data += QLatin1Char(' ');
        appendDrawnNumber(data, element.y);
        const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
        if (isLast && !element.isMoveTo() && QPointF(element) == start) {
            data += QLatin1Char('Z');
        }
    }
    return data;
}

} // namespace

QString drawnNumber(double value)
{
    QString text;
    appendDrawnNumber(text, value);
    return text;
}

QString drawnTransform(const QTransform &transform)
{
    QString text(QLatin1String("matrix("));
    for (const double number :
         {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()}) {
        text += factor(bounded(number));
        text += QLatin1Char(' ');
    }
    text[text.size() - 1] = QLatin1Char(')');
    return text;
}

void setDrawnPath(QDomElement &element, const QPainterPath &path)
{
    const QString data = drawnPath(path);
    if (!data.isEmpty()) {
        element.setAttribute(QStringLiteral("d"), data);
    }
}

void setDrawnColor(QDomElement &element, const char *name, const QColor &color)
{
    const QString attribute = QLatin1String(name);
    element.setAttribute(attribute, color.alpha() > 0 ? color.name() : QStringLiteral("none"));
    if (color.alpha() > 0 && color.alpha() < 255) {
        element.setAttribute(attribute + QLatin1String("-opacity"), drawnNumber(color.alphaF()));
    }
}

// Qt takes a list for one name and the attribute before the style; svg wants it the other way round.
void setDrawnFamilies(QDomElement &element, const QStringList &families)
{
    struct Texts
    {
        QString here;
        QString style;
    };
    static QHash<QStringList, Texts> known;
    auto found = known.constFind(families);
    if (found == known.cend()) {
        const QString style = QLatin1String("font-family:") + svgFamilies(withGenericFamily(families));
        found = known.insert(families, {familyHere(families), style});
    }
    element.setAttribute(QStringLiteral("font-family"), found->here);
    element.setAttribute(QStringLiteral("style"), found->style);
}

QStringList labelFamilies()
{
    return {QStringLiteral("Arial")};
}

} // namespace lessonhost
