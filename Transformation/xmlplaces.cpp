// SPDX-License-Identifier: MIT
#include "xmlplaces.h"

#include "domhelpers.h"

#include <algorithm>

namespace {

const QLatin1String propertiesTag("properties");

} // namespace

std::optional<QString> attributeText(QDomElement element, const QString &name)
{
    const QDomAttr attribute = element.attributeNode(name);
    return attribute.isNull() ? std::nullopt : std::make_optional(attribute.value());
}

RawPlaces::RawPlaces(const QDomElement &element)
    : m_element(element)
{
}

QDomElement RawPlaces::descendant(const QString &tag)
{
    if (!m_descendantsFound) {
        findDescendants();
    }
    return m_descendants.value(tag);
}

std::optional<QString> RawPlaces::descendantText(const QStringList &path)
{
    QDomElement holder = descendant(path.first());
    for (int i = 1; i + 1 < path.size(); ++i) {
        holder = descendantByTag(holder, path.at(i));
    }
    return attributeText(holder, path.last());
}

void RawPlaces::findDescendants()
{
    m_descendantsFound = true;
    forEachDescendant(m_element, [this](const QDomElement &descendant) {
        const QString tag = descendant.tagName();
        if (!m_descendants.contains(tag)) {
            m_descendants.insert(tag, descendant);
        }
        return true;
    });
}

NestedSearches *NestedSearches::s_current = nullptr;

NestedSearches::NestedSearches()
    : m_outer(s_current)
{
    s_current = this;
}

NestedSearches::~NestedSearches()
{
    s_current = m_outer;
}

QDomElement NestedSearches::descendant(const QDomElement &holder, const QString &tag)
{
    if (!s_current || holder.isNull()) {
        return descendantByTag(holder, tag);
    }
    const QDomNode item = holder.parentNode();
    const Search *around = s_current->searchAround(item, tag);
    if (!around) {
        return newSearch(holder, tag);
    }
    const QVector<QDomElement> way = around->way;
    const int start = around->start;
    if (way.isEmpty()) {
        s_current->m_searches.append({holder, tag, way, 0});
        return {};
    }
    // The way leads through this holder, beside it, or past the item.
    if (way.size() > start + 2 && way.at(start) == item && way.at(start + 1) == holder) {
        s_current->m_searches.append({holder, tag, way, start + 2});
        return way.last();
    }
    return newSearch(holder, tag);
}

QDomElement NestedSearches::newSearch(const QDomElement &holder, const QString &tag)
{
    const QDomElement found = descendantByTag(holder, tag);
    if (found.parentNode() == holder) {
        return found;
    }
    Search search{holder, tag, {}, 0};
    for (QDomNode node = found; !node.isNull() && node != holder; node = node.parentNode()) {
        search.way.append(node.toElement());
    }
    std::reverse(search.way.begin(), search.way.end());
    s_current->m_searches.append(search);
    return found;
}

// The search for the tag in the element that the item lies in. Forgets the searches in items that are done with.
const NestedSearches::Search *NestedSearches::searchAround(const QDomNode &item, const QString &tag)
{
    const QDomNode outerHolder = item.parentNode();
    const QDomNode outerItem = outerHolder.parentNode();
    const auto isIn = [](const Search &search, const QDomNode &owner) { return search.holder.parentNode() == owner; };
    while (!m_searches.isEmpty() && !isIn(m_searches.last(), item) && !isIn(m_searches.last(), outerItem)) {
        m_searches.removeLast();
    }
    for (int i = m_searches.size() - 1; i >= 0; --i) {
        const Search &search = m_searches.at(i);
        if (search.holder == outerHolder && search.tag == tag) {
            return &search;
        }
        if (!isIn(search, item) && !isIn(search, outerItem)) {
            break;
        }
    }
    return nullptr;
}

TxPlaces::TxPlaces(const QDomElement &element)
    : m_element(element)
{
}

std::optional<QString> TxPlaces::text(const QStringList &path)
{
    const QString &first = path.first();
    switch (path.size()) {
    case 1:
        return attributeText(m_element, first);
    case 2:
        return attributeText(first == propertiesTag ? descendantByTag(m_element, first) : child(first, false),
                             path.at(1));
    case 3:
        return first == propertiesTag ? propertyText(path.at(2)) : attributeText(inner(first, path.at(1)), path.at(2));
    default:
        return std::nullopt;
    }
}

std::optional<QString> TxPlaces::propertyText(const QString &name)
{
    if (!m_rowsFound) {
        findRows();
    }
    const auto row = m_rows.constFind(name);
    return row == m_rows.constEnd() ? std::nullopt : std::make_optional(row->attribute(QStringLiteral("value")));
}

QDomElement TxPlaces::child(const QString &tag, bool withContent)
{
    for (const Child &child : qAsConst(m_children)) {
        if (child.hasContent == withContent && child.tag == tag) {
            return child.element;
        }
    }
    m_children.append({tag, withContent, childByTagAndContent(m_element, tag, withContent)});
    return m_children.last().element;
}

QDomElement TxPlaces::inner(const QString &childTag, const QString &tag)
{
    for (const Inner &inner : qAsConst(m_inners)) {
        if (inner.tag == tag && inner.childTag == childTag) {
            return inner.element;
        }
    }
    m_inners.append({childTag, tag, NestedSearches::descendant(child(childTag, true), tag)});
    return m_inners.last().element;
}

void TxPlaces::findRows()
{
    m_rowsFound = true;
    const QString nameAttribute = QStringLiteral("name");
    const QDomElement properties = childByTagAndContent(m_element, propertiesTag, true);
    for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString name = row.attribute(nameAttribute);
        if (!m_rows.contains(name)) {
            m_rows.insert(name, row);
        }
    }
}

void PropertyRows::write(QDomElement &properties, const QString &name, const QString &value)
{
    if (!m_namesFound) {
        findNames(properties);
    }
    if (m_unnamed > 0 || m_names.contains(name)) {
        writeExisting(properties, name, value);
    } else if (!value.isEmpty()) {
        static const ElementTemplate rowTemplate(QStringLiteral("<property/>"));
        QDomElement row = rowTemplate.part();
        row.setAttribute(QStringLiteral("value"), value);
        row.setAttribute(QStringLiteral("name"), name);
        properties.appendChild(row);
        m_names.insert(name);
    }
}

void PropertyRows::findNames(const QDomElement &properties)
{
    m_namesFound = true;
    for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString name = row.attribute(QStringLiteral("name"));
        if (name.isEmpty()) {
            ++m_unnamed;
        } else {
            m_names.insert(name);
        }
    }
}

void PropertyRows::writeExisting(QDomElement &properties, const QString &name, const QString &value)
{
    const QString nameAttribute = QStringLiteral("name");
    for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString rowName = row.attribute(nameAttribute);
        if (rowName != name && !rowName.isEmpty()) {
            continue;
        }
        if (rowName.isEmpty()) {
            --m_unnamed;
        }
        if (value.isEmpty()) {
            properties.removeChild(row);
        } else {
            row.setAttribute(QStringLiteral("value"), value);
            row.setAttribute(nameAttribute, name);
            m_names.insert(name);
        }
        return;
    }
    // Only the name of a row that was taken out leads here.
    m_names.remove(name);
    write(properties, name, value);
}

TxTargets::TxTargets(const QDomElement &element)
    : m_element(element)
    , m_takesChildren(!element.firstChildElement().isNull())
{
}

void TxTargets::write(const QStringList &path, const QString &value)
{
    if (!m_takesChildren) {
        return;
    }
    QDomElement &holder = child(path.first());
    if (path.size() == 2) {
        holder.setAttribute(path.at(1), value);
    } else if (path.first() == propertiesTag) {
        m_propertyRows.write(holder, path.at(2), value);
    } else {
        childByTag(holder, path.at(1)).setAttribute(path.at(2), value);
    }
}

QDomElement &TxTargets::child(const QString &tag)
{
    for (Child &child : m_children) {
        if (child.tag == tag) {
            return child.element;
        }
    }
    QDomElement element = childByTag(m_element, tag);
    if (element.isNull()) {
        element = m_element.appendChild(newElement(tag)).toElement();
    }
    m_children.append({tag, element});
    return m_children.last().element;
}
