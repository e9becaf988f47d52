// SPDX-License-Identifier: MIT
#include "canvas/arrowhead.h"

namespace lessonhost {

QPainterPath arrowHead(QLineF &line, double width)
{
    const double length = qMin(qMax(4 * width, 10.0), line.length() / 2);
    const QPointF along = (line.p2() - line.p1()) / line.length() * length;
    const QPointF across = QPointF(-along.y(), along.x()) * 0.4;
    const QPointF base = line.p2() - along;
    QPainterPath head(line.p2());
    head.lineTo(base + across);
    head.lineTo(base - across);
    head.closeSubpath();
    line.setP2(base + along * 0.1);
    return head;
}

SvgPaint headPaint(const SvgPaint &line)
{
    SvgPaint paint;
    paint.fill = line.line;
    paint.line = Qt::transparent;
    return paint;
}

} // namespace lessonhost
