// SPDX-License-Identifier: MIT
#include "drawings/mindmapdrawing.h"

#include "canvas/labellines.h"
#include "lesson/closedtext.h"
#include "lesson/planegeometry.h"

#include <QJsonArray>
#include <QLineF>

namespace lessonhost {

namespace {

struct Node
{
    QString html;
    QColor fill;
    QColor line;
    QRectF box;
    int depth = 0;
    int parent = -1;
    double row = 0;
    double rows = 1; //!< that it and what hangs on it take
};

constexpr int maximumDepth = 500;

// Leaves take the rows one after the other, a node stands in the middle of its own. Returns the node's row.
double layOut(const QJsonObject &json, int parent, int depth, QVector<Node> &nodes, double &nextRow)
{
    const int self = nodes.size();
    Node node;
    node.html = valueText(json.value(QLatin1String("nodeHtml")));
    node.fill = itemColor(json.value(QLatin1String("fillColor"))).value_or(QColor(0xea, 0xf2, 0xfb));
    node.line = itemColor(json.value(QLatin1String("lineColor"))).value_or(QColor(0x4a, 0x6f, 0xa5));
    node.depth = depth;
    node.parent = parent;
    nodes.append(node);
    const QJsonArray children = json.value(QLatin1String("childNodes")).toArray();
    double first = nextRow;
    double last = nextRow;
    if (children.isEmpty() || depth >= maximumDepth) {
        nextRow += 1;
    }
    for (int i = 0; i < children.size() && depth < maximumDepth; ++i) {
        last = layOut(children.at(i).toObject(), self, depth + 1, nodes, nextRow);
        if (i == 0) {
            first = last;
        }
    }
    nodes[self].row = (first + last) / 2;
    nodes[self].rows = last - first + 1;
    return nodes.at(self).row;
}

bool drawMindMap(Canvas &canvas, const ItemView &item)
{
    PlainSvg &svg = canvas.svg();
    const QJsonArray data = item.json().value(ItemKeys::mindMap).toArray();
    if (data.size() < 3) {
        return false;
    }
    QVector<Node> nodes;
    double rows = 0;
    layOut(data.at(2).toObject(), -1, 0, nodes, rows);
    int depth = 0;
    for (const Node &node : qAsConst(nodes)) {
        depth = qMax(depth, node.depth);
    }
    const QRectF page = QRectF(QPointF(), svg.size());
    const auto place = item.place();
    const bool isPlaced = place && place->box.width() > 40 && place->box.height() > 20;
    const QRectF area = isPlaced
        ? place->box
        : page.adjusted(page.width() * 0.05, page.height() * 0.1, -page.width() * 0.05, -page.height() * 0.1);
    const PlainSvg::Scope scope(svg, isPlaced ? turnAbout(area.center(), place->angle) : QTransform());
    const QSizeF cell(area.width() / (depth + 1), area.height() / qMax(rows, 1.0));
    constexpr double highest = 90;
    for (Node &node : nodes) {
        const QSizeF size(cell.width() * 0.7, qMin(cell.height() * node.rows * 0.7, highest));
        const QPointF center(area.left() + (node.depth + 0.5) * cell.width(),
                             area.top() + (node.row + 0.5) * cell.height());
        node.box = QRectF(center - QPointF(size.width() / 2, size.height() / 2), size);
    }
    for (const Node &node : qAsConst(nodes)) {
        if (node.parent >= 0) {
            const QRectF &parent = nodes.at(node.parent).box;
            svg.addLine(QLineF(parent.right(), parent.center().y(), node.box.left(), node.box.center().y()), node.line,
                        2);
        }
    }
    constexpr double gap = 4;
    const double readable = svg.readableSize() * LabelLines::lineHeight * 1.1;
    for (const Node &node : qAsConst(nodes)) {
        svg.addRectangle(node.box, node.line, node.fill);
        const bool isDark = node.fill.alpha() > 127 && qGray(node.fill.rgb()) < 110;
        TextPlace place;
        place.isFitted = true;
        place.look.color = isDark ? Qt::white : Qt::black;
        place.look.alignment = Qt::AlignHCenter;
        const QRectF area = node.box.adjusted(gap, 0, -gap, 0);
        if (node.box.height() >= readable && !canvas.addText(node.html, area, {}, place)) {
            svg.addLabel(plainWords(node.html), node.box, place.look.pixels, place.look.color);
        }
    }
    return true;
}

} // namespace

SvgDrawing mindMapDrawing(const QString &type)
{
    return type == QLatin1String("ZQMindMapItem") ? &drawMindMap : nullptr;
}

} // namespace lessonhost
