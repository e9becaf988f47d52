#include "xmlplaces.h"

#include "domhelpers.h"

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
    m_inners.append({childTag, tag, descendantByTag(child(childTag, true), tag)});
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
