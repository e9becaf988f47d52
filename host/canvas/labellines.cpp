// SPDX-License-Identifier: MIT
#include "canvas/labellines.h"

#include "canvas/svgelements.h"
#include "lesson/fontshere.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

#include <algorithm>

namespace lessonhost {

namespace {

constexpr double measuredSize = 100;

// How long a text is. The same words are tried in many sizes.
double widthOf(const QString &text)
{
    static const QFontMetricsF metrics = [] {
        QFont font(familyHere(labelFamilies()));
        font.setPixelSize(int(measuredSize));
        return QFontMetricsF(font);
    }();
    constexpr int mostKnown = 2000;
    static QHash<QString, double> known;
    auto found = known.constFind(text);
    if (found == known.cend()) {
        if (known.size() >= mostKnown) {
            known.clear();
        }
        found = known.insert(text, metrics.horizontalAdvance(text));
    }
    return *found;
}

// Lines of words, each as long as it fits into a width. A word that doesn't has a line of its own.
QStringList brokenIntoLines(const QString &text, double width)
{
    QStringList lines;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString longer = lines.isEmpty() ? word : QString(lines.constLast() + QLatin1Char(' ') + word);
        if (!lines.isEmpty() && widthOf(longer) <= width) {
            lines.last() = longer;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

// How many letters fit into a width, at least one.
int lettersThatFit(const QString &text, double width)
{
    int fitting = 1;
    while (fitting < text.size() && widthOf(text.left(fitting + 1)) <= width) {
        ++fitting;
    }
    return fitting < text.size() && text.at(fitting).isLowSurrogate() ? qMax(1, fitting - 1) : fitting;
}

// The same lines without one that is longer than the width, and no more of them than so many.
QStringList cutToLines(const QStringList &lines, double width, int count)
{
    QStringList cut;
    for (QString line : lines) {
        while (widthOf(line) > width && cut.size() <= count) {
            const int fitting = lettersThatFit(line, width);
            cut.append(line.left(fitting));
            line = line.mid(fitting);
        }
        cut.append(line);
    }
    if (cut.size() > count) {
        cut = cut.mid(0, count);
        const QString sign(QChar(0x2026));
        QString &last = cut.last();
        while (!last.isEmpty() && widthOf(last + sign) > width) {
            last.chop(last.size() > 1 && last.at(last.size() - 1).isLowSurrogate() ? 2 : 1);
        }
        last = last.trimmed() + sign;
    }
    return cut;
}

double longestOf(const QStringList &lines)
{
    double longest = 0;
    for (const QString &line : lines) {
        longest = qMax(longest, widthOf(line));
    }
    return longest;
}

} // namespace

LabelLines linesThatFit(const QString &text, const QSizeF &box, double largestSize, double smallestSize)
{
    constexpr double usedWidth = 0.94;
    constexpr double usedHeight = 0.96;
    constexpr double step = 0.9;
    constexpr double mostLines = 1e6; // of boxes without bounds
    LabelLines label;
    for (label.size = qMax(largestSize, smallestSize);; label.size = qMax(label.size * step, smallestSize)) {
        const double width = box.width() * usedWidth * measuredSize / label.size;
        const int count = int(qMin(box.height() * usedHeight / (label.size * LabelLines::lineHeight), mostLines));
        label.lines = brokenIntoLines(text, width);
        label.isWhole = longestOf(label.lines) <= width && label.lines.size() <= count;
        if (!label.isWhole && label.size <= smallestSize) {
            const bool isTiny = count < 1 || width < widthOf(QStringLiteral("mm"));
            label.lines = isTiny ? QStringList() : cutToLines(label.lines, width, count);
        }
        if (label.isWhole || label.size <= smallestSize) {
            label.width = longestOf(label.lines) * label.size / measuredSize;
            return label;
        }
    }
}

} // namespace lessonhost
