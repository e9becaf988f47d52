// SPDX-License-Identifier: MIT
#include "canvas/svgelements.h"

#include "files/drawingbounds.h"
#include "lesson/fontshere.h"
#include "lesson/fontvalues.h"
#include "lesson/numbertexts.h"

#include <QHash>

#include <cmath>

namespace lessonhost {

namespace {

double bounded(double value)
{
    return std::isnan(value) ? 0 : qBound(-largestInDrawing, value, largestInDrawing);
}

// Six digits, and no more than seven behind the point.
double shortFactor(double value)
{
    constexpr double scale = 1e7;
    return qAbs(value) < 1 ? std::round(value * scale) / scale : value;
}

// A drawn number has two digits behind the point.
qint64 hundredthsOf(double value)
{
    return qRound64(bounded(value) * 100);
}

// A drawing is mostly numbers, and these are quick to write.
void appendDrawnNumber(QString &text, double value)
{
    constexpr int mostLetters = 16;
    QChar letters[mostLetters];
    int first = mostLetters;
    const qint64 hundredths = hundredthsOf(value);
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

// Whether an outline ends there where it began.
bool isClosedAt(const QPainterPath &path, int i, const QPointF &start)
{
    const QPainterPath::Element element = path.elementAt(i);
    const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
    return isLast && !element.isMoveTo() && QPointF(element) == start;
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
        if (isClosedAt(path, i, start)) {
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
        appendNumber(text, shortFactor(bounded(number)));
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

double asDrawn(double value)
{
    return double(hundredthsOf(value)) / 100;
}

QPainterPath asDrawn(const QPainterPath &path)
{
    QPainterPath drawn;
    QPointF start;
    const auto point = [&path](int i) { return QPointF(asDrawn(path.elementAt(i).x), asDrawn(path.elementAt(i).y)); };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            start = element;
            drawn.moveTo(point(i));
        } else if (element.isLineTo()) {
            drawn.lineTo(point(i));
        } else {
            drawn.cubicTo(point(i), point(i + 1), point(i + 2));
            i += 2;
        }
        if (isClosedAt(path, i, start)) {
            drawn.closeSubpath();
        }
    }
    return drawn;
}

QColor asDrawn(const QColor &color)
{
    QColor drawn(color.red(), color.green(), color.blue(), color.alpha());
    if (color.alpha() > 0 && color.alpha() < 255) {
        drawn.setAlpha(qRound(255 * asDrawn(color.alphaF())));
    }
    return drawn;
}

QVector<double> drawnDashes(const SvgPaint &paint)
{
    static const QVector<double> patterns[] = {{}, {}, {5, 5}, {10, 2, 10}, {10, 2, 2, 2}};
    QVector<double> lengths = patterns[qBound(0, paint.dashParts, 4)];
    for (double &length : lengths) {
        length *= paint.lineWidth;
    }
    return lengths;
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
