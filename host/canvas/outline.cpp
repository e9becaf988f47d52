// SPDX-License-Identifier: MIT
#include "canvas/outline.h"

#include <QByteArrayList>

namespace lessonhost {

namespace {

// From the box's left or upper edge.
double distanceOf(QByteArray word, double side, double shorter)
{
    if (!word.endsWith('s')) {
        return word.toDouble() * side;
    }
    word.chop(1);
    const int sign = qMax(0, qMax(word.lastIndexOf('+'), word.lastIndexOf('-')));
    return word.left(sign).toDouble() * side + word.mid(sign).toDouble() * shorter;
}

int pointsAfter(char letter)
{
    return letter == 'Z' ? 0 : letter == 'C' ? 3 : letter == 'M' || letter == 'L' ? 1 : 2;
}

} // namespace

QPainterPath outlineIn(const QRectF &box, const char *outline)
{
    const QByteArrayList words = QByteArray(outline).split(' ');
    const double shorter = qMin(box.width(), box.height());
    QPainterPath path;
    for (int at = 0; at < words.size();) {
        const char letter = words.at(at++).at(0);
        QPointF points[3];
        for (int i = 0; i < pointsAfter(letter); ++i, at += 2) {
            points[i] = box.topLeft()
                + QPointF(distanceOf(words.value(at), box.width(), shorter),
                          distanceOf(words.value(at + 1), box.height(), shorter));
        }
        switch (letter) {
        case 'M':
            path.moveTo(points[0]);
            break;
        case 'L':
            path.lineTo(points[0]);
            break;
        case 'C':
            path.cubicTo(points[0], points[1], points[2]);
            break;
        case 'E':
            path.addEllipse(QRectF(points[0], points[1]));
            break;
        case 'B':
            path.arcMoveTo(QRectF(points[0], points[1]), words.value(at).toDouble());
            [[fallthrough]];
        case 'A':
            path.arcTo(QRectF(points[0], points[1]), words.value(at).toDouble(), words.value(at + 1).toDouble());
            at += 2;
            break;
        default:
            path.closeSubpath();
        }
    }
    return path;
}

} // namespace lessonhost
