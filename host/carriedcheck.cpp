#include "carriedcheck.h"

#include "lossreport.h"

#include <QSet>

namespace {

// Deeper than this, elements are told apart by their tags alone: lists of points, nodes and texts repeat there.
constexpr int numberedDepth = 2;
constexpr int distinctDepth = 8;
constexpr int distinctSiblings = 3;
constexpr int distinctData = 10;
constexpr int longestDetail = 60;

QString withoutDigits(const QString &tag)
{
    int end = tag.size();
    while (end > 1 && tag.at(end - 1).isDigit()) {
        --end;
    }
    return tag.left(end);
}

QString textOf(const QDomElement &element)
{
    QString text;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText()) {
            text += child.nodeValue();
        }
    }
    return text;
}

QDomElement elementAt(QDomElement element, const QVector<int> &position)
{
    for (const int index : position) {
        element = element.firstChildElement();
        for (int i = 0; i < index; ++i) {
            element = element.nextSiblingElement();
        }
    }
    return element;
}

// What decides beside the type how the values of an element are read: the kind of a slide's game, and the order of what
// an item's data holds.
QString formOf(const QDomElement &element)
{
    const QDomElement activity = element.firstChildElement(QStringLiteral("activity"));
    QString form = QLatin1Char(' ') + activity.attribute(QStringLiteral("type")) + QLatin1Char(' ');
    QDomElement child = element.firstChildElement(QStringLiteral("data")).firstChildElement();
    for (int i = 0; i < distinctData && !child.isNull(); ++i, child = child.nextSiblingElement()) {
        form += child.tagName() + QLatin1Char(' ');
    }
    return form;
}

void replaceText(QDomElement element, const QString &text)
{
    QDomNode child = element.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (child.isText()) {
            element.removeChild(child);
        }
        child = next;
    }
    if (!text.isEmpty()) {
        element.appendChild(element.ownerDocument().createTextNode(text));
    }
}

} // namespace

CarriedCheck::CarriedCheck(LossReport *losses)
    : m_losses(losses)
{
}

void CarriedCheck::examine(const QString &type, const QString &id, const QDomElement &element, const Read &read,
                           const Write &write)
{
    QVector<Value> values;
    collect(element, {}, {}, {}, values);
    m_unchanged = {};
    QVector<Value> lost;
    const QString form = type + formOf(element);
    for (const Value &value : qAsConst(values)) {
        if (!isCarried(form + value.kind, element, value, read)) {
            lost.append(value);
        }
    }
    if (!lost.isEmpty() && write) {
        QVector<Value> written;
        collect(write(), {}, {}, {}, written);
        QSet<QString> returned;
        for (const Value &value : qAsConst(written)) {
            returned.insert(value.path + QLatin1Char('=') + value.text);
        }
        const auto end = std::remove_if(lost.begin(), lost.end(), [&returned](const Value &value) {
            return returned.contains(value.path + QLatin1Char('=') + value.text);
        });
        lost.erase(end, lost.end());
    }
    for (const Value &value : qAsConst(lost)) {
        Loss loss;
        loss.slide = m_slide;
        loss.itemType = type;
        loss.itemId = id;
        loss.key = value.path;
        loss.detail = value.text.left(longestDetail);
        m_losses->add(loss);
    }
}

void CarriedCheck::collect(const QDomElement &element, const QString &path, const QString &kind,
                           const QVector<int> &position, QVector<Value> &values) const
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (!attribute.nodeValue().isEmpty()) {
            const QString place = QLatin1Char('@') + attribute.nodeName();
            values.append({position, path + place, kind + place, attribute.nodeName(), attribute.nodeValue()});
        }
    }
    const QString text = textOf(element);
    if (!text.isEmpty() || (!position.isEmpty() && attributes.isEmpty() && !element.hasChildNodes())) {
        values.append({position, path, kind, {}, text});
    }
    QHash<QString, int> counts;
    int index = 0;
    const int depth = position.size() + 1;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const int count = ++counts[tag];
        const QString name = child.attribute(QStringLiteral("name"));
        const bool isRow = tag == QLatin1String("property") && !name.isEmpty();
        const QString separator = path.isEmpty() ? QString() : QStringLiteral("/");
        const QString number = isRow ? QLatin1Char('[') + name + QLatin1Char(']')
            : count > 1              ? QStringLiteral("[%1]").arg(count)
                                     : QString();
        QString childKind = kind + separator;
        if (depth > distinctDepth) {
            childKind = kind.section(QLatin1Char('/'), 0, distinctDepth - 1) + QLatin1String("//") + tag;
        } else if (depth > numberedDepth) {
            childKind += withoutDigits(tag);
        } else {
            childKind += tag
                + (isRow ? number : QStringLiteral("[%1]").arg(count > distinctSiblings ? distinctSiblings : count));
        }
        collect(child, path + separator + tag + number, childKind, position + QVector<int>{index}, values);
        ++index;
    }
}

bool CarriedCheck::isCarried(const QString &place, const QDomElement &element, const Value &value, const Read &read)
{
    const auto known = m_known.constFind(place);
    if (known != m_known.constEnd()) {
        return *known;
    }
    if (m_unchanged.isEmpty()) {
        m_unchanged = read(element.cloneNode(true).toElement());
    }
    bool isCarried = false;
    // A value that is the default makes no difference when it goes, so others are tried as well. Null: remove it.
    for (const QString &other : {QString(), QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2,3,4,5,6,7")}) {
        const QDomElement copy = element.cloneNode(true).toElement();
        QDomElement changed = elementAt(copy, value.position);
        if (!value.attribute.isEmpty()) {
            if (other.isNull()) {
                changed.removeAttribute(value.attribute);
            } else {
                changed.setAttribute(value.attribute, other);
            }
        } else if (value.text.isEmpty() && other.isNull()) {
            changed.parentNode().removeChild(changed);
        } else {
            replaceText(changed, other);
        }
        if (read(copy) != m_unchanged) {
            isCarried = true;
            break;
        }
    }
    m_known.insert(place, isCarried);
    return isCarried;
}
