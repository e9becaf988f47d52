#include "render/namedboxes.h"

#include "lesson/itemview.h"
#include "lesson/plainnames.h"
#include "render/plainsvg.h"

#include <QJsonArray>
#include <QLineF>
#include <QTextDocumentFragment>

namespace lessonhost {

namespace {

// Keys whose texts stand on an item that has no drawing, the first that has one. HTML and svg are shown as plain text.
constexpr const char *textKeys[] = {
    "frontContent", "TextHtml", "R_Content_svg", "current_text", "TextPhonetic",      "ChineseWord",
    "EnglishWord",  "Text",     "Title",         "ArtObj_Text",  "GapFillingContent", "original_alphabet",
};

QString textOn(const ItemView &item)
{
    for (const char *key : textKeys) {
        const QString text = item.text(QLatin1String(key));
        const QString plain = text.startsWith(QLatin1Char('<'))
            ? QTextDocumentFragment::fromHtml(text).toPlainText().simplified()
            : text.simplified();
        if (!plain.isEmpty()) {
            return plain;
        }
    }
    return {};
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
        QTextDocumentFragment::fromHtml(valueText(json.value(QLatin1String("nodeHtml")))).toPlainText().simplified();
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

bool NamedBoxes::drawMindMap(const QJsonObject &item)
{
    const QJsonArray data = item.value(ItemKeys::mindMap).toArray();
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
    const auto place = ItemView(item).place();
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

void NamedBoxes::drawBox(const QJsonObject &item, bool hasPicture)
{
    const ItemView view(item);
    const QString type = view.type();
    QString name = plainName(type);
    // A picture has a box with a name only where its file can't be shown.
    if (type == QLatin1String("ZQImagePic") && !hasPicture) {
        name += QLatin1String(" that is missing");
    }
    const auto place = view.place();
    QRectF box;
    if (place && place->box.width() >= 1 && place->box.height() >= 1) {
        box = place->box;
    } else {
        constexpr double height = 44;
        const int perColumn = qMax(1, int((m_svg.size().height() - 20) / (height + 8)));
        const int column = m_withoutPlace / perColumn;
        box = QRectF(12 + column * 372, 12 + m_withoutPlace % perColumn * (height + 8), 360, height);
        ++m_withoutPlace;
    }
    QDomElement frame =
        m_svg.addRectangle(box, QColor(0x77, 0x77, 0x77), QColor(0xee, 0xee, 0xee, hasPicture ? 0 : 150));
    frame.setAttribute(QStringLiteral("stroke-dasharray"), QStringLiteral("10,6"));
    if (place && qAbs(place->angle) > 1e-6) {
        frame.setAttribute(QStringLiteral("transform"),
                           QStringLiteral("rotate(%1 %2 %3)")
                               .arg(place->angle * 57.29577951)
                               .arg(box.center().x())
                               .arg(box.center().y()));
    }
    const QColor nameColor(0x55, 0x55, 0x55);
    const QString text = textOn(view);
    if (text.isEmpty() && !hasPicture) {
        m_svg.addLabel(name, box, 28, nameColor);
        return;
    }
    // The name above what stands on the item.
    const double height = qMin(34.0, box.height() * 0.3);
    const QRectF strip(box.left(), box.top(), box.width(), height);
    if (hasPicture) {
        m_svg.addRectangle(strip, Qt::transparent, QColor(0xff, 0xff, 0xff, 190))
            .setAttribute(QStringLiteral("stroke"), QStringLiteral("none"));
    }
    m_svg.addLabel(name, strip, 20, nameColor);
    m_svg.addLabel(text, box.adjusted(0, height, 0, 0), 36, Qt::black);
}

} // namespace lessonhost
