// SPDX-License-Identifier: MIT
#include "iwbedits.h"

#include "lesson/itemvalues.h"
#include "lesson/itemview.h"
#include "lesson/shapeforms.h"
#include "testtable.h"

#include <QColor>
#include <QRegularExpression>

#include <algorithm>

using namespace lessonhost;

namespace {

void collectLeaves(const QJsonArray &items, QVector<QJsonObject> &leaves)
{
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        const QVector<QJsonObject> children = ItemView(item).childObjects();
        if (!children.isEmpty()) {
            collectLeaves(item.value("Children").toArray(), leaves);
        } else if (value.isObject()) {
            leaves.append(item);
        }
    }
}

QVector<QJsonObject> leavesOf(const QJsonArray &items)
{
    QVector<QJsonObject> leaves;
    collectLeaves(items, leaves);
    return leaves;
}

// What stands by itself when groups are none any more.
void loosen(const QJsonObject &item, QJsonArray &loose)
{
    const QVector<QJsonObject> children = ItemView(item).looseChildren();
    if (children.isEmpty()) {
        loose.append(item);
    }
    for (const QJsonObject &child : children) {
        loosen(child, loose);
    }
}

QString shifted(const QJsonValue &value, double dx, double dy, int count)
{
    QStringList parts = value.toString().split(',');
    for (int i = 0; i < parts.size() && i < count; ++i) {
        parts[i] =
            parts.at(i).isEmpty() ? QString() : QString::number(parts.at(i).toDouble() + (i % 2 ? dy : dx), 'g', 10);
    }
    return parts.join(',');
}

void shift(QDomElement element, const QString &name, double by)
{
    if (element.hasAttribute(name)) {
        element.setAttribute(name, QString::number(element.attribute(name).toDouble() + by, 'g', 12));
    }
}

// By its coordinates, or by a transform before its own.
void move(QDomElement element, double dx, double dy, bool isByTransform)
{
    const QString transform = element.attribute("transform");
    if (isByTransform || !(transform.isEmpty() || transform.startsWith("rotate"))) {
        element.setAttribute("transform", "translate(%1,%2) %3"_s.arg(dx).arg(dy).arg(transform).trimmed());
        return;
    }
    for (const char *name : {"x", "x1", "x2", "cx"}) {
        shift(element, name, dx);
        shift(element, QString(name).replace('x', 'y'), dy);
    }
    if (element.hasAttribute("points")) {
        const QStringList points = element.attribute("points").split(' ');
        QStringList moved;
        for (const QString &point : points) {
            moved.append(shifted(point, dx, dy, 2));
        }
        element.setAttribute("points", moved.join(' '));
    }
    QStringList turn = transform.split(QRegularExpression("[(,)]"));
    if (turn.size() > 3) {
        element.setAttribute(
            "transform", "rotate(%1,%2)"_s.arg(turn.at(1), shifted(QString(turn.at(2) + ',' + turn.at(3)), dx, dy, 2)));
    }
}

QDomElement fillBehind(const QDomElement &element)
{
    const QDomElement area = element.previousSiblingElement("svg:polygon");
    const bool isOwn = !area.isNull() && area.nextSiblingElement() == element
        && area.attribute("id") == element.attribute("id") + "_fill";
    return isOwn ? area : QDomElement();
}

// With all that stands in it.
QVector<QDomElement> elementsIn(const QDomElement &element)
{
    QVector<QDomElement> elements{element};
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        elements += elementsIn(child);
    }
    return elements;
}

QDomElement childOfPage(QDomElement element)
{
    while (element.parentNode().toElement().tagName() != "svg:page") {
        element = element.parentNode().toElement();
    }
    return element;
}

} // namespace

IwbEdits::IwbEdits(quint32 seed, const QByteArray &document, const QJsonObject &whole, const QJsonObject &plain)
    : m_random(seed)
    , m_slides(whole.value("Slides").toArray())
{
    m_document.setContent(document, false);
    const QJsonArray slides = plain.value("Slides").toArray();
    for (const QJsonValue &slide : slides) {
        for (const QJsonObject &item : leavesOf(slide.toObject().value("Items").toArray())) {
            m_plain.insert(item.value("ID").toString(), item);
        }
    }
    findElements();
}

// Pages on which each item is known by its identifier, in items and elements alike.
void IwbEdits::findElements()
{
    for (const QDomElement &element : elementsIn(m_document.documentElement())) {
        m_elements.insert(element.attribute("id"), element);
    }
    QHash<QString, int> counts;
    for (int i = 0; i < m_slides.size(); ++i) {
        for (const QJsonObject &leaf : leavesOf(items(i))) {
            ++counts[leaf.value("ID").toString()];
        }
    }
    for (int i = 0; i < m_slides.size(); ++i) {
        static const QRegularExpression plainName("^\\d+$");
        const QVector<QJsonObject> leaves = leavesOf(items(i));
        const bool isPlain = std::all_of(leaves.begin(), leaves.end(), [&](const QJsonObject &leaf) {
            const QString id = leaf.value("ID").toString();
            return counts.value(id) == 1 && plainName.match(id).hasMatch();
        });
        m_free.append(QStringList());
        for (const QJsonObject &leaf : leaves) {
            const QString id = leaf.value("ID").toString();
            const bool isOne = !m_elements.contains(id + "_part1");
            if (isPlain && isOne && m_elements.contains(id) && m_plain.contains(id)) {
                m_free.last().append(id);
            }
        }
        m_isPlain.append(isPlain);
    }
}

QDomElement IwbEdits::page(int slide) const
{
    return m_elements.value("page%1"_s.arg(slide + 1));
}

QDomElement IwbEdits::innermost(const QString &id) const
{
    const QDomElement element = m_elements.value(id);
    return element.tagName() == "svg:a" ? element.firstChildElement() : element;
}

// Children of the page, from back to front.
QVector<QDomElement> IwbEdits::elementsOf(const QJsonObject &item) const
{
    QVector<QDomElement> elements;
    for (const QJsonObject &leaf : leavesOf({item})) {
        const QDomElement element = m_elements.value(leaf.value("ID").toString());
        if (!element.isNull()) {
            const QDomElement child = childOfPage(element);
            for (int i = 1; m_elements.contains(leaf.value("ID").toString() + "_part%1"_s.arg(i)); ++i) {
                const QDomElement part = m_elements.value(leaf.value("ID").toString() + "_part%1"_s.arg(i));
                part.parentNode() == child.parentNode() ? elements.append(part) : void(); // else in its link
            }
            const QDomElement area = fillBehind(element);
            elements += area.isNull() || area.parentNode() != child.parentNode() ? QVector<QDomElement>{child}
                                                                                 : QVector<QDomElement>{area, child};
        }
    }
    return elements;
}

void IwbEdits::setItems(int slide, const QJsonArray &items)
{
    QJsonObject object = m_slides.at(slide).toObject();
    object.insert("Items", items);
    m_slides.replace(slide, object);
}

// The items with another one in the place of one, or without it; groups of which nothing is left go with it.
QJsonArray IwbEdits::withItem(QJsonArray items, const QString &id, const QJsonObject &item) const
{
    for (int i = 0; i < items.size(); ++i) {
        QJsonObject own = items.at(i).toObject();
        const bool isLeaf = ItemView(own).childObjects().isEmpty();
        if (isLeaf && own.value("ID").toString() == id) {
            item.isEmpty() ? items.removeAt(i) : items.replace(i, item);
            return items;
        }
        const QJsonArray children = isLeaf ? QJsonArray() : withItem(own.value("Children").toArray(), id, item);
        own.insert("Children", children);
        if (!isLeaf && leavesOf(children).isEmpty()) {
            items.removeAt(i--);
        } else if (!isLeaf) {
            items.replace(i, own);
        }
    }
    return items;
}

void IwbEdits::tell(int slide, const QString &id, const QString &what)
{
    m_told.append({slide, id, what});
    m_edited.insert(id);
}

void IwbEdits::edit()
{
    for (int slide = 0; slide < m_slides.size(); ++slide) {
        if (!m_isPlain.at(slide)) {
            continue;
        }
        using Edit = bool (IwbEdits::*)(int);
        const Edit edits[] = {&IwbEdits::changeOne,  &IwbEdits::changeOne, &IwbEdits::removeOne,
                              &IwbEdits::addElement, &IwbEdits::rename,    &IwbEdits::colorBackground};
        for (int i = m_random.bounded(4); i > 0; --i) {
            (this->*edits[m_random.bounded(int(std::size(edits)))])(slide);
        }
        const bool isDissolved = oneIn(3) && dissolve(slide);
        if (!isDissolved && oneIn(3)) {
            swapNeighbors(slide);
        }
    }
    if (oneIn(3)) {
        editPages();
    }
}

QString IwbEdits::takeFree(int slide)
{
    QStringList &free = m_free[slide];
    return free.isEmpty() ? QString() : free.takeAt(m_random.bounded(free.size()));
}

bool IwbEdits::changeOne(int slide)
{
    const QString id = takeFree(slide);
    if (id.isEmpty()) {
        return false;
    }
    QJsonObject given;
    for (const QJsonObject &leaf : leavesOf(items(slide))) {
        given = leaf.value("ID").toString() == id ? leaf : given;
    }
    QJsonObject item = oneIn(2) ? moved(id) : colored(id);
    item = item.isEmpty() ? moved(id) : item;
    item.remove("CoverLayer");
    for (const char *key : {"animations", "CoverLayer"}) {
        if (given.contains(key)) {
            item.insert(key, given.value(key));
        }
    }
    setItems(slide, withItem(items(slide), id, item));
    tell(slide, id, "changed");
    return true;
}

QJsonObject IwbEdits::moved(const QString &id)
{
    const double dx = m_random.bounded(-40, 90) + 0.5;
    const double dy = m_random.bounded(1, 90) * 0.25;
    const bool isByTransform = oneIn(2);
    const QDomElement element = innermost(id);
    for (const QDomElement &part : {element, fillBehind(element)}) {
        part.isNull() ? void() : move(part, dx, dy, isByTransform);
    }
    m_done.append("moved %1 by %2,%3 %4"_s.arg(id).arg(dx).arg(dy).arg(isByTransform));
    QJsonObject item = m_plain.value(id);
    const int all = 1 << 20;
    const bool isSegment = item.value("Type").toString().startsWith("ZQMath2DSegment");
    for (const auto &[key, count] : {std::pair("BoundingBox", all),
                                     {"XYValue", all},
                                     {"XY", 2},
                                     {"rect", all},
                                     {"Control", isSegment ? all : 0}}) {
        if (item.contains(key)) {
            item.insert(key, shifted(item.value(key), dx, dy, count));
        }
    }
    return item;
}

// Nothing for what has no colour.
QJsonObject IwbEdits::colored(const QString &id)
{
    const QDomElement area = fillBehind(innermost(id));
    // One of two elements that are one item.
    QDomElement element = !area.isNull() && oneIn(2) ? area : innermost(id);
    QJsonObject item = m_plain.value(id);
    const QColor color(m_random.bounded(256), m_random.bounded(256), m_random.bounded(256));
    const QString text =
        oneIn(2) ? color.name() : "rgb(%1, %2, %3)"_s.arg(color.red()).arg(color.green()).arg(color.blue());
    const ShapeForm *form = shapeForm(item.value("Type").toString());
    const bool isFill = element.attribute("fill", "none") != "none";
    const QString key = !form ? "Color" : isFill ? form->fillKey : form->lineKey;
    if (!item.contains(key) || (!isFill && element.attribute("stroke", "none") == "none")) {
        return {};
    }
    element.setAttribute(isFill ? "fill" : "stroke", text);
    m_done.append("coloured %1 %2"_s.arg(id, text));
    QColor own = form ? *itemColor(item.value(key)) : QColor(item.value(key).toString());
    own = QColor(color.red(), color.green(), color.blue(), own.alpha());
    item.insert(key, form ? colorText(own) : own.name(QColor::HexArgb));
    return item;
}

bool IwbEdits::removeOne(int slide)
{
    const QString id = takeFree(slide);
    if (id.isEmpty()) {
        return false;
    }
    const QDomElement area = fillBehind(m_elements.value(id));
    for (const QDomElement &element : {area, childOfPage(m_elements.value(id))}) {
        element.isNull() ? void() : void(element.parentNode().removeChild(element));
    }
    m_elements.remove(id);
    m_done.append("removed " + id);
    setItems(slide, withItem(items(slide), id, {}));
    tell(slide, id, "removed");
    return true;
}

// Behind one of the slide's items and what has no element and stands behind it, or behind all.
bool IwbEdits::addElement(int slide)
{
    QJsonArray all = items(slide);
    const QString id = "new%1"_s.arg(++m_new);
    QDomElement element = m_document.createElement("svg:rect");
    const int x = m_random.bounded(500);
    for (const auto &[name, value] : {std::pair("x", x), {"y", 7}, {"width", 30}, {"height", 20}}) {
        element.setAttribute(name, value);
    }
    element.setAttribute("id", id);
    element.setAttribute("stroke", "#123456");
    int at = 0;
    QDomElement behind;
    for (int i = m_random.bounded(all.size() + 1);
         at < all.size() && (i > 0 || elementsOf(all.at(at).toObject()).isEmpty()); ++at) {
        const QVector<QDomElement> elements = elementsOf(all.at(at).toObject());
        behind = elements.isEmpty() ? behind : elements.last();
        --i;
    }
    if (behind.isNull()) {
        // In front of the background.
        behind = m_elements.value(m_slides.at(slide).toObject().value("ID").toString() + "_bgd");
        behind =
            behind.isNull() ? m_elements.value(m_slides.at(slide).toObject().value("ID").toString() + "_rect") : behind;
    }
    if (behind.isNull()) {
        return false;
    }
    behind.parentNode().insertAfter(element, behind);
    m_elements.insert(id, element);
    m_done.append("added " + id);
    all.insert(
        at, QJsonObject{{"Type", "ZQMath2DRectangle"}, {"ID", id}, {"BoundingBox", "%1,7,%2,27"_s.arg(x).arg(x + 30)}});
    setItems(slide, all);
    tell(slide, id, "added");
    return true;
}

bool IwbEdits::swapNeighbors(int slide)
{
    const QJsonArray all = items(slide);
    QVector<int> starts;
    for (int i = 0; i < all.size(); ++i) {
        const bool isOwn = !all.at(i).toObject().value("ID").toString().contains("n"); // new or named anew
        if (isOwn && !elementsOf(all.at(i).toObject()).isEmpty()) {
            starts.append(i);
        }
    }
    if (starts.size() < 2) {
        return false;
    }
    const int at = m_random.bounded(starts.size() - 1);
    const int first = starts.at(at);
    const int second = starts.at(at + 1);
    int end = second + 1;
    while (end < all.size() && elementsOf(all.at(end).toObject()).isEmpty()) {
        ++end;
    }
    const QDomElement before = elementsOf(all.at(first).toObject()).first();
    for (const QDomElement &element : elementsOf(all.at(second).toObject())) {
        before.parentNode().insertBefore(element, before);
    }
    QJsonArray swapped;
    for (const auto &[from, to] : {std::pair(0, first), {second, end}, {first, second}, {end, int(all.size())}}) {
        for (int i = from; i < to; ++i) {
            swapped.append(all.at(i));
        }
    }
    m_done.append("swapped %1 and %2"_s.arg(first).arg(second));
    setItems(slide, swapped);
    tell(slide, m_slides.at(slide).toObject().value("ID").toString(), "order");
    return true;
}

bool IwbEdits::rename(int slide)
{
    const QString id = takeFree(slide);
    QJsonArray all = items(slide);
    const auto isIt = [&id](const QJsonValue &item) {
        return item.toObject().value("ID").toString() == id && ItemView(item.toObject()).childObjects().isEmpty();
    };
    const auto found = std::find_if(all.begin(), all.end(), isIt);
    // What has no element and stood behind it would stand behind what is known before it.
    const bool areAllShown = std::none_of(
        all.begin(), all.end(), [this](const QJsonValue &item) { return elementsOf(item.toObject()).isEmpty(); });
    if (id.isEmpty() || found == all.end() || !areAllShown) {
        return false;
    }
    const QString other = "named%1"_s.arg(id);
    for (QDomElement element : elementsIn(m_document.documentElement())) {
        for (const char *name : {"id", "ref"}) {
            for (const char *ending : {"", "_fill", "_sign", "_film", "_cover"}) {
                if (element.attribute(name) == id + ending) {
                    element.setAttribute(name, other + ending);
                }
            }
        }
    }
    m_elements.insert(other, m_elements.take(id));
    QJsonObject item = m_plain.value(id);
    item.insert("ID", other);
    *found = item;
    m_done.append("renamed " + id);
    setItems(slide, all);
    tell(slide, id, "removed");
    tell(slide, other, "added");
    return true;
}

bool IwbEdits::dissolve(int slide)
{
    const QJsonArray all = items(slide);
    QJsonArray loose;
    bool isDone = false;
    for (const QJsonValue &value : all) {
        const QJsonObject item = value.toObject();
        QStringList ids;
        bool isUntouched = true;
        for (const QJsonObject &leaf : leavesOf({item})) {
            const QString id = leaf.value("ID").toString();
            ids += m_elements.contains(id) ? QStringList(id) : QStringList();
            isUntouched = isUntouched && !m_edited.contains(id);
        }
        QDomElement group = m_document.documentElement().firstChildElement("iwb:group");
        const auto holds = [&ids](const QDomElement &row) {
            for (QDomElement member = row.firstChildElement(); !member.isNull(); member = member.nextSiblingElement()) {
                if (ids.contains(member.attribute("ref"))) {
                    return true;
                }
            }
            return false;
        };
        while (!group.isNull() && !holds(group)) {
            group = group.nextSiblingElement("iwb:group");
        }
        if (isDone || ids.size() < 2 || !isUntouched || group.isNull() || ItemView(item).childObjects().isEmpty()) {
            loose.append(value);
            continue;
        }
        isDone = true;
        m_document.documentElement().removeChild(group);
        loosen(item, loose);
        for (const QString &id : qAsConst(ids)) {
            m_free[slide].removeAll(id);
        }
        m_done.append("dissolved " + item.value("ID").toString());
        tell(slide, valueText(item.value("ID")), "its items");
    }
    setItems(slide, loose);
    return isDone;
}

bool IwbEdits::colorBackground(int slide)
{
    QJsonObject object = m_slides.at(slide).toObject();
    const QString id = object.value("ID").toString();
    QDomElement rect = m_elements.value(id + "_rect");
    if (rect.isNull() || m_edited.contains(id + "_rect")) {
        return false;
    }
    m_edited.insert(id + "_rect");
    rect.setAttribute("fill", "rgb(7,77,177)");
    rect.setAttribute("fill-opacity", "1");
    object.remove("BackColor");
    object.insert("color", "255,7,77,177");
    m_slides.replace(slide, object);
    m_done.append("background of " + id);
    tell(slide, id, "its background");
    return true;
}

void IwbEdits::editPages()
{
    QVector<int> places; // of the slides that there were
    for (int i = 0; i < m_slides.size(); ++i) {
        places.append(i);
    }
    QDomElement pages = page(0).parentNode().toElement();
    const int last = m_slides.size() - 1;
    if (oneIn(2)) {
        QDomElement added = m_document.createElement("svg:page");
        added.setAttribute("id", "another");
        pages.insertBefore(added, page(0));
        m_slides.prepend(QJsonObject{{"ID", "another"}, {"Items", QJsonArray()}});
        std::for_each(places.begin(), places.end(), [](int &place) { ++place; });
        m_told.append({-2, "another", "added"});
        m_done.append("added a page");
    } else if (last > 0 && oneIn(2)) {
        pages.insertBefore(page(last), page(0));
        m_slides.prepend(m_slides.takeAt(last));
        std::for_each(places.begin(), places.end(), [](int &place) { ++place; });
        places[last] = 0;
        m_told.append({-1, QString(), "its slides"});
        m_done.append("moved the last page to the front");
    } else if (last > 0) {
        m_told.append({-1, m_slides.at(0).toObject().value("ID").toVariant().toString(), "removed"});
        pages.removeChild(page(0));
        m_slides.removeFirst();
        std::for_each(places.begin(), places.end(), [](int &place) { --place; });
        m_done.append("removed the first page");
    }
    for (int i = 0; i < m_slides.size(); ++i) {
        QJsonArray all = items(i);
        moveLinks(all, places);
        setItems(i, all);
    }
    for (Told &told : m_told) {
        told.slide = told.slide == -2   ? 0
            : told.slide < 0            ? -1
            : places.at(told.slide) < 0 ? -3
                                        : places.at(told.slide);
    }
}

void IwbEdits::moveLinks(QJsonArray &items, const QVector<int> &places) const
{
    for (int i = 0; i < items.size(); ++i) {
        QJsonObject item = items.at(i).toObject();
        if (item.value("Children").isArray()) {
            QJsonArray children = item.value("Children").toArray();
            moveLinks(children, places);
            item.insert("Children", children);
        }
        const int number = valueText(item.value("InteractiveValue")).toInt();
        if (valueText(item.value("InteractiveType")) == "ACTION_GOTOSLIDE" && number > 0 && number <= places.size()) {
            const int place = places.at(number - 1);
            if (place < 0) {
                item.remove("InteractiveType");
                item.remove("InteractiveValue");
            } else if (place != number - 1) {
                item.insert("InteractiveValue", QString::number(place + 1));
            }
        }
        if (items.at(i).isObject()) {
            items.replace(i, item);
        }
    }
}

QStringList IwbEdits::told() const
{
    QSet<QString> texts;
    for (const Told &told : m_told) {
        if (told.slide != -3) {
            texts.insert("%1/%2: %3"_s.arg(told.slide + 1).arg(told.id, told.what));
        }
    }
    QStringList sorted = texts.values();
    sorted.sort();
    return sorted;
}

QByteArray IwbEdits::written(bool isExact)
{
    m_isExact = isExact;
    m_prefixes = {
        {"svg", oneIn(2) ? "svg" : "s"}, {"iwb", oneIn(2) ? "iwb" : "board"}, {"xlink", oneIn(2) ? "xlink" : "x"}};
    m_isIndented = oneIn(2);
    return ("<?xml version='1.0' encoding='UTF-8'?>" + textOf(m_document.documentElement(), 0, false)).toUtf8();
}

QString IwbEdits::nameOf(const QString &name) const
{
    const QString prefix = name.section(':', 0, 0);
    const bool isDeclared = prefix == "xmlns";
    const QString own = isDeclared ? name.section(':', 1) : prefix;
    if (!name.contains(':') || !m_prefixes.contains(own)) {
        return name;
    }
    return isDeclared ? QString("xmlns:" + m_prefixes.value(own))
                      : QString(m_prefixes.value(own) + ':' + name.section(':', 1));
}

QString IwbEdits::valueOf(const QString &name, const QString &value)
{
    static const QStringList numbers{"x", "y", "width", "height", "cx", "cy", "r", "rx", "ry", "x1", "y1", "x2", "y2"};
    if (!m_isExact && numbers.contains(name) && oneIn(2) && !value.contains('e')) {
        return value + (value.contains('.') ? "00000001" : ".0");
    }
    static const QRegularExpression rgb("^rgb\\((\\d+),(\\d+),(\\d+)\\)$");
    const auto parts = rgb.match(value);
    if (!m_isExact && parts.hasMatch() && oneIn(2)) {
        return QColor(parts.captured(1).toInt(), parts.captured(2).toInt(), parts.captured(3).toInt()).name();
    }
    QString text = value.toHtmlEscaped();
    return text.replace('\t', "&#9;").replace('\n', "&#10;").replace('\r', "&#13;");
}

QString IwbEdits::textOf(const QDomNode &node, int depth, bool isInText)
{
    if (node.isText() || node.isCDATASection()) {
        const QString text = node.nodeValue();
        const bool isSection = oneIn(2) && !text.contains("]]>") && !text.contains('\r');
        return isSection ? "<![CDATA[" + text + "]]>" : text.toHtmlEscaped().replace('\r', "&#13;");
    }
    const QDomElement element = node.toElement();
    if (element.isNull()) {
        return {};
    }
    QStringList attributes;
    const QDomNamedNodeMap all = element.attributes();
    for (int i = 0; i < all.size(); ++i) {
        const QString name = all.item(i).nodeName();
        const char quote = oneIn(2) ? '\'' : '"';
        attributes.append(' ' + nameOf(name) + '=' + quote
                          + valueOf(name, all.item(i).nodeValue()).replace('\'', "&#39;") + quote);
    }
    std::shuffle(attributes.begin(), attributes.end(), m_random);
    const QString tag = nameOf(element.tagName());
    const bool isText = isInText || element.tagName().startsWith("svg:text");
    QString content;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const bool isBroken = m_isIndented && !isText && child.isElement();
        content += (isBroken ? '\n' + QString(depth + 1, ' ') : QString())
            + (oneIn(20) && !isText ? "<!-- a note -->" : "") + textOf(child, depth + 1, isText);
    }
    const QString start = '<' + tag + attributes.join("");
    const bool isShort = content.isEmpty() && oneIn(2);
    const QString whole = isShort ? QString(start + "/>") : QString(start + '>' + content + "</" + tag + '>');
    // Slides are called as the rectangle that is a page's background, if it is one of the page's own children.
    const bool isOnPage =
        node.parentNode().toElement().tagName() == "svg:page" && !element.attribute("id").endsWith("_rect");
    const QString group = nameOf("svg:g");
    return isOnPage && oneIn(4) ? QString('<' + group + '>' + whole + "</" + group + '>') : whole;
}
