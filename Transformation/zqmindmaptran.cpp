// SPDX-License-Identifier: MIT
#include "zqmindmaptran.h"

#include "domhelpers.h"
#include "markupbuilder.h"

#include <QDebug>
#include <QLoggingCategory>
#include <QVector>

namespace {

const QLatin1String itemTypeName("ZQMindMapItem");
const QLatin1String mindMapData("mindMapData");
const QLatin1String childNodes("childNodes");
const QLatin1String attachments("attachments");

// How a value of the tree stands in JSON and in the text of its element.
enum class Form {
    Text,
    Integer, //!< a number, in decimal
    Shown, //!< read as a text, written as 1 or 0 from a boolean
    Flag, //!< a boolean, 1 or 0
    Markup //!< a text, written in a CDATA section
};

enum class Presence {
    Always,
    IfKnown //!< written if the key exists
};

struct Value
{
    QLatin1String name; //!< of the key and of the element
    Form form;
    Presence presence = Presence::Always;
};

// Both tables are in the order of writing.
const Value mapValues[] = {
    {QLatin1String("title"), Form::Text},     {QLatin1String("type"), Form::Integer},
    {QLatin1String("style"), Form::Integer},  {QLatin1String("spreadStyle"), Form::Integer},
    {QLatin1String("fillColor"), Form::Text}, {QLatin1String("borderColor"), Form::Text},
    {QLatin1String("lineColor"), Form::Text},
};

const Value nodeValues[] = {
    {QLatin1String("pos"), Form::Text},
    {QLatin1String("position"), Form::Integer},
    {QLatin1String("width"), Form::Integer},
    {QLatin1String("height"), Form::Integer},
    {QLatin1String("fillColor"), Form::Text},
    {QLatin1String("lineColor"), Form::Text},
    {QLatin1String("visiable"), Form::Shown},
    {QLatin1String("childrenVisiable"), Form::Shown},
    {QLatin1String("nodeHtml"), Form::Markup},
    {QLatin1String("link"), Form::Text, Presence::IfKnown},
    {QLatin1String("shade"), Form::Flag, Presence::IfKnown},
    {QLatin1String("stamp"), Form::Integer, Presence::IfKnown},
};

QJsonValue readValue(const QDomElement &element, Form form)
{
    const QString text = element.text();
    switch (form) {
    case Form::Integer:
        return text.toInt();
    case Form::Flag:
        return text.toInt() == 1;
    case Form::Text:
    case Form::Shown:
    case Form::Markup:
        break;
    }
    return text;
}

// Stores the element's text if its tag is one of the values'.
template <std::size_t N> bool readNamedValue(const Value (&values)[N], const QDomElement &element, QJsonObject &object)
{
    const QString tag = element.tagName();
    for (const Value &value : values) {
        if (tag == value.name) {
            object.insert(value.name, readValue(element, value.form));
            return true;
        }
    }
    return false;
}

void writeValue(const Value &value, const QJsonValue &content, MarkupBuilder &markup)
{
    markup.open(value.name);
    switch (value.form) {
    case Form::Integer:
        markup.text(QString::number(content.toInt()));
        break;
    case Form::Shown:
    case Form::Flag:
        markup.text(content.toBool() ? QStringLiteral("1") : QStringLiteral("0"));
        break;
    case Form::Markup:
        markup.cdata(content.toString());
        break;
    case Form::Text:
        markup.text(content.toString());
        break;
    }
    markup.close();
}

template <std::size_t N> void writeValues(const Value (&values)[N], const QJsonObject &object, MarkupBuilder &markup)
{
    for (const Value &value : values) {
        const auto found = object.constFind(value.name);
        if (found != object.constEnd()) {
            writeValue(value, *found, markup);
        } else if (value.presence == Presence::Always) {
            writeValue(value, {}, markup);
        }
    }
}

QJsonArray readAttachments(const QDomElement &element)
{
    QJsonArray list;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement attachment = child.toElement();
        QJsonObject entry;
        for (const QString &name : {QStringLiteral("type"), QStringLiteral("name"), QStringLiteral("path")}) {
            entry.insert(name, attachment.attribute(name));
        }
        list.append(entry);
    }
    return list;
}

void writeAttachments(const QJsonArray &list, MarkupBuilder &markup)
{
    markup.open(attachments);
    markup.text({});
    for (const QJsonValue &entry : list) {
        const QJsonObject attachment = entry.toObject();
        markup.open(QLatin1String("attachment"));
        for (const QLatin1String name : {QLatin1String("type"), QLatin1String("path"), QLatin1String("name")}) {
            markup.attribute(name, attachment.value(name).toString());
        }
        markup.close();
    }
    markup.close();
}

// Printing costs stack for each level of arrays and objects: members that nest deeper than this stay out of the log.
constexpr int deepestLoggedNesting = 10000;

bool nestsTooDeep(const QJsonValue &root)
{
    struct Container
    {
        QJsonValue value;
        int depth;
    };
    QVector<Container> open{{root, 1}};
    const auto enter = [&open](const QJsonValue &value, int depth) {
        if (value.isArray() || value.isObject()) {
            open.append({value, depth});
        }
    };
    while (!open.isEmpty()) {
        const Container container = open.takeLast();
        if (container.depth > deepestLoggedNesting) {
            return true;
        }
        const QJsonArray array = container.value.toArray();
        for (const QJsonValue &value : array) {
            enter(value, container.depth + 1);
        }
        const QJsonObject object = container.value.toObject();
        for (const QJsonValue &value : object) {
            enter(value, container.depth + 1);
        }
    }
    return false;
}

void logItem(QJsonObject json)
{
    if (!QLoggingCategory::defaultCategory()->isDebugEnabled()) {
        return;
    }
    const QStringList keys = json.keys();
    for (const QString &key : keys) {
        if (nestsTooDeep(json.value(key))) {
            json.remove(key);
        }
    }
    qDebug() << "##############ZQComItemControlTran###################";
    qDebug() << json;
}

} // namespace

ZQMindMapTran::ZQMindMapTran(const QString &type)
    : ZQComItemControlTran(type)
{
}

std::unique_ptr<ZQHTran> ZQMindMapTran::create(const QString &type)
{
    return type == itemTypeName ? std::make_unique<ZQMindMapTran>(type) : nullptr;
}

QJsonObject ZQMindMapTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    QDomElement map = childByTag(element, QStringLiteral("data")).firstChildElement();
    if (map.tagName() == QLatin1String("rect")) {
        map = map.nextSiblingElement();
    }
    QJsonArray tree;
    if (map.tagName() == QLatin1String("mapItemInfo")) {
        QJsonObject information;
        QJsonObject edge;
        QJsonObject root;
        for (QDomElement child = map.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            if (child.tagName() == QLatin1String("edge")) {
                edge.insert(QLatin1String("style"), child.firstChild().toElement().text().toInt());
            } else if (child.tagName() == QLatin1String("node")) {
                root = {};
                readMindNode(child, root);
            } else {
                readNamedValue(mapValues, child, information);
            }
        }
        tree = {information, edge, root};
    }
    json.insert(mindMapData, tree);
    return json;
}

QDomElement ZQMindMapTran::newTxElement(const QJsonObject &json) const
{
    MarkupBuilder markup;
    markup.open(QLatin1String("mindmap"));
    for (const auto &[name, value] :
         {std::pair("id", ""), {"visible", "1"}, {"locked", "0"}, {"uclone", "0"}, {"type", "mindmap"}}) {
        markup.attribute(QLatin1String(name), QLatin1String(value));
    }
    markup.open(QLatin1String("transform"));
    markup.open(QLatin1String("rotate"));
    markup.attribute(QLatin1String("angle"), QStringLiteral("0"));
    markup.close();
    markup.close();
    markup.open(QLatin1String("data"));
    markup.text({});
    const QJsonArray tree = json.value(mindMapData).toArray();
    if (tree.size() >= 3) {
        writeMindMap(tree, markup);
    }
    markup.close();
    markup.close();
    logItem(json);
    return markup.element();
}

void ZQMindMapTran::readMindNode(const QDomElement &element, QJsonObject &node)
{
    // A node whose children are being read: the next one to look at, and the nodes found in its <childNodes> so far.
    struct OpenNode
    {
        QDomNode next;
        QJsonObject node;
        QJsonArray children;
        QDomNode nextChildNode = {};
        bool inChildNodes = false;
    };
    QVector<OpenNode> open{{element.firstChild(), node, {}}};
    for (;;) {
        OpenNode &current = open.last();
        if (current.inChildNodes) {
            if (!current.nextChildNode.isNull()) {
                const QDomNode below = current.nextChildNode;
                current.nextChildNode = below.nextSibling();
                open.append({below.firstChild(), {}, {}});
                continue;
            }
            current.node.insert(childNodes, current.children);
            current.children = {};
            current.inChildNodes = false;
        }
        if (current.next.isNull()) {
            node = current.node;
            open.removeLast();
            if (open.isEmpty()) {
                return;
            }
            open.last().children.append(node);
            continue;
        }
        const QDomElement child = current.next.toElement();
        current.next = current.next.nextSibling();
        if (child.tagName() == childNodes) {
            current.nextChildNode = child.firstChild();
            current.inChildNodes = true;
        } else if (child.tagName() == attachments) {
            current.node.insert(attachments, readAttachments(child));
        } else {
            readNamedValue(nodeValues, child, current.node);
        }
    }
}

void ZQMindMapTran::writeMindNode(const QJsonObject &node, MarkupBuilder &markup)
{
    // The child nodes that are being written, and the next of them.
    struct OpenNodes
    {
        QJsonArray nodes;
        int next;
    };
    QVector<OpenNodes> open{{QJsonArray{node}, 0}};
    for (;;) {
        OpenNodes &current = open.last();
        if (current.next == current.nodes.size()) {
            open.removeLast();
            if (open.isEmpty()) {
                return;
            }
            markup.close();
            markup.close();
            continue;
        }
        const QJsonObject written = current.nodes.at(current.next++).toObject();
        markup.open(QLatin1String("node"));
        writeValues(nodeValues, written, markup);
        if (written.contains(attachments)) {
            writeAttachments(written.value(attachments).toArray(), markup);
        }
        if (written.contains(childNodes)) {
            markup.open(childNodes);
            markup.text({});
            open.append({written.value(childNodes).toArray(), 0});
        } else {
            markup.close();
        }
    }
}

void ZQMindMapTran::writeMindMap(const QJsonArray &tree, MarkupBuilder &markup)
{
    markup.open(QLatin1String("mapItemInfo"));
    writeValues(mapValues, tree.at(0).toObject(), markup);
    markup.open(QLatin1String("edge"));
    markup.open(QLatin1String("style"));
    markup.text(QString::number(tree.at(1).toObject().value(QLatin1String("style")).toInt()));
    markup.close();
    markup.close();
    writeMindNode(tree.at(2).toObject(), markup);
    markup.close();
}
