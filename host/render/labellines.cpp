#include "render/labellines.h"

#include <QFontMetricsF>

#include <algorithm>

namespace lessonhost {

namespace {

// Lines of words, each as long as it fits into a width.
QStringList brokenIntoLines(const QString &text, double width, const QFontMetricsF &metrics)
{
    QStringList lines;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString longer = lines.isEmpty() ? word : QString(lines.constLast() + QLatin1Char(' ') + word);
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width) {
            lines.last() = longer;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

} // namespace

LabelLines linesThatFit(const QString &text, const QSizeF &box, double largestSize)
{
    constexpr double smallestSize = 4;
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(100);
    const QFontMetricsF metrics(font);
    LabelLines label;
    for (label.size = largestSize;; label.size *= 0.9) {
        const double width = box.width() * 0.94 * 100 / label.size;
        label.lines = brokenIntoLines(text, width, metrics);
        const bool isNarrow = std::all_of(label.lines.cbegin(), label.lines.cend(), [&](const QString &line) {
            return metrics.horizontalAdvance(line) <= width;
        });
        if ((isNarrow && label.lines.size() * label.size * LabelLines::lineHeight <= box.height() * 0.96)
            || label.size < smallestSize) {
            return label;
        }
    }
}

} // namespace lessonhost
