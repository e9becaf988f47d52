#include "namedboxes.h"

#include "iwbgeometry.h"
#include "iwbshapes.h"
#include "plainsvg.h"

#include <QJsonArray>
#include <QLineF>
#include <QTextDocumentFragment>

namespace {

struct Name
{
    const char *type;
    const char *plain;
};
constexpr Name names[] = {
    {"ZQTextBoard", "Text"},
    {"ZQImagePic", "Picture that is missing"},
    {"ZQMediaVideo", "Video"},
    {"ZQMediaAudio", "Sound"},
    {"ZQMediaFlash", "Flash film"},
    {"ZQMindMapItem", "Mind map"},
    {"ZQStrokesStamp", "Stamp"},
    {"ZQStrokesDeletePixel", "Rubbed out ink"},
    {"character", "Chinese character"},
};
// The first that fits is taken off and said in words.
constexpr Name families[] = {
    {"ZQChemistry", "Chemistry"}, {"ZQPhysics", "Physics"}, {"ZQMath", "Mathematics"},
    {"ZQShape", "Figure"},        {"ZQComplexor", "Shape"}, {"ZQ", ""},
};

QString spaced(const QString &word)
{
    QString result;
    for (int i = 0; i < word.size(); ++i) {
        const QChar c = word.at(i);
        const bool isStart =
            i > 0 && !word.at(i - 1).isUpper() && !word.at(i - 1).isDigit() && (c.isUpper() || c.isDigit());
        if (isStart || (i > 0 && word.at(i - 1).isDigit() && c.isUpper() && i > 1)) {
            result += QLatin1Char(' ');
        }
        result += c;
    }
    return result;
}

struct Node
{
    QString text;
    QColor fill;
    QColor line;
    QRectF box;
    int depth = 0;
    int parent = -1;
    double row = 0;
};

constexpr int maximumDepth = 500;

// Leaves take the rows one after the other, a node stands in the middle of its own. Returns the node's row.
double layOut(const QJsonObject &json, int parent, int depth, QVector<Node> &nodes, double &nextRow)
{
    const int self = nodes.size();
    Node node;
    node.text =
        QTextDocumentFragment::fromHtml(json.value(QLatin1String("nodeHtml")).toString()).toPlainText().simplified();
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
    return nodes.at(self).row;
}

} // namespace

NamedBoxes::NamedBoxes(PlainSvg &svg)
    : m_svg(svg)
{
}

QString NamedBoxes::plainName(const QString &itemType)
{
    for (const Name &name : names) {
        if (itemType == QLatin1String(name.type)) {
            return QLatin1String(name.plain);
        }
    }
    const int colon = itemType.indexOf(QLatin1Char(':'));
    if (colon > 0) {
        return itemType.left(colon) + QLatin1String(": ") + spaced(itemType.mid(colon + 1)).toLower();
    }
    for (const Name &family : families) {
        if (itemType.startsWith(QLatin1String(family.type))) {
            const QString rest = spaced(itemType.mid(int(qstrlen(family.type))));
            return *family.plain ? QString(QLatin1String(family.plain) + QLatin1String(": ") + rest) : rest;
        }
    }
    return itemType.isEmpty() ? QStringLiteral("Item of no type") : spaced(itemType);
}

bool NamedBoxes::drawMindMap(const QJsonObject &item)
{
    const QJsonArray data = item.value(QLatin1String("mindMapData")).toArray();
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
    const QRectF page = QRectF(QPointF(), m_svg.size());
    const auto place = itemPlace(item);
    const QRectF area = place && place->box.width() > 40 && place->box.height() > 20
        ? place->box
        : page.adjusted(page.width() * 0.05, page.height() * 0.1, -page.width() * 0.05, -page.height() * 0.1);
    const QSizeF cell(area.width() / (depth + 1), area.height() / qMax(rows, 1.0));
    const QSizeF size(cell.width() * 0.7, qMin(cell.height() * 0.7, 90.0));
    for (Node &node : nodes) {
        const QPointF center(area.left() + (node.depth + 0.5) * cell.width(),
                             area.top() + (node.row + 0.5) * cell.height());
        node.box = QRectF(center - QPointF(size.width() / 2, size.height() / 2), size);
    }
    for (const Node &node : qAsConst(nodes)) {
        if (node.parent >= 0) {
            const QRectF &parent = nodes.at(node.parent).box;
            m_svg.addLine(QLineF(parent.right(), parent.center().y(), node.box.left(), node.box.center().y()),
                          node.line, 2);
        }
    }
    for (const Node &node : qAsConst(nodes)) {
        m_svg.addRectangle(node.box, node.line, node.fill);
        const bool isDark = node.fill.alpha() > 127 && qGray(node.fill.rgb()) < 110;
        m_svg.addLabel(node.text, node.box, 28, isDark ? Qt::white : Qt::black);
    }
    return true;
}

void NamedBoxes::drawBox(const QJsonObject &item)
{
    const QString name = plainName(item.value(QLatin1String("Type")).toString());
    const auto place = itemPlace(item);
    QRectF box;
    if (place && place->box.width() >= 1 && place->box.height() >= 1) {
        box = place->box;
    } else {
        constexpr double height = 44;
        const int perColumn = qMax(1, int((m_svg.size().height() - 20) / (height + 8)));
        box =
            QRectF(12 + m_withoutPlace / perColumn * 372, 12 + m_withoutPlace % perColumn * (height + 8), 360, height);
        ++m_withoutPlace;
    }
    QDomElement frame = m_svg.addRectangle(box, QColor(0x77, 0x77, 0x77), QColor(0xee, 0xee, 0xee, 150));
    frame.setAttribute(QStringLiteral("stroke-dasharray"), QStringLiteral("10,6"));
    if (place && qAbs(place->angle) > 1e-6) {
        frame.setAttribute(QStringLiteral("transform"),
                           QStringLiteral("rotate(%1 %2 %3)")
                               .arg(place->angle * 57.29577951)
                               .arg(box.center().x())
                               .arg(box.center().y()));
    }
    m_svg.addLabel(name, box, 28, QColor(0x44, 0x44, 0x44));
}
