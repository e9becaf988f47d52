// SPDX-License-Identifier: MIT
#include "keypaths.h"

#include <QJsonArray>
#include <QMap>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

KeyPaths row(const QString &key, const QStringList &path)
{
    return KeyPaths({key, path});
}

KeyPaths rowsOf(std::initializer_list<const char *> keys, KeyPaths (*rowOf)(const char *key))
{
    KeyPaths rows;
    for (const char *key : keys) {
        rows = {rows, rowOf(key)};
    }
    return rows;
}

} // namespace

KeyPaths::KeyPaths(std::initializer_list<KeyPaths> groups)
{
    for (const KeyPaths &group : groups) {
        m_rows += group.m_rows;
    }
}

KeyPaths::KeyPaths(const Row &row)
    : m_rows(1, row)
{
}

KeyPaths attribute(const char *key)
{
    return row(text(key), {text(key)});
}

KeyPaths attribute(const char *key, const char *name)
{
    return row(text(key), {text(name)});
}

KeyPaths attributes(std::initializer_list<const char *> keys)
{
    return rowsOf(keys, attribute);
}

KeyPaths attributesOf(const char *tag)
{
    return KeyPaths({text(tag), {QLatin1Char('[') + text(tag) + QLatin1Char(']')}, KeyPaths::Form::Attributes});
}

KeyPaths attributesOfChildren(const char *tag)
{
    return KeyPaths({text(tag), {QLatin1Char('<') + text(tag) + QLatin1Char('>')}, KeyPaths::Form::ChildAttributes});
}

KeyPaths childAttribute(const char *key, const char *element, const char *name)
{
    return row(text(key), {text(element), text(name)});
}

KeyPaths path(const char *key, const char *child, const char *inner, const char *name)
{
    return row(text(key), {text(child), text(inner), text(name)});
}

KeyPaths property(const char *key, const char *label)
{
    return path(key, "properties", "property", label);
}

KeyPaths property(const char *key)
{
    return property(key, key);
}

KeyPaths properties(std::initializer_list<const char *> keys)
{
    return rowsOf(keys, property);
}

KeyPaths coordinatePair(const char *name)
{
    const QString element = text(name);
    const QString x = QStringLiteral("x");
    const QString y = QStringLiteral("y");
    return {row(element + x, {element, x}), row(element + y, {element, y})};
}

KeyPaths coordinatePairs(const char *name, int first, int last)
{
    KeyPaths pairs;
    for (int i = first; i <= last; ++i) {
        pairs = {pairs, coordinatePair(QByteArray(name + QByteArray::number(i)).constData())};
    }
    return pairs;
}

KeyPaths without(const char *key)
{
    return row(text(key), {});
}

KeyMap KeyMap::with(const KeyPaths &paths) const
{
    QMap<QString, Row> sorted;
    for (const Row &row : m_rows) {
        sorted.insert(row.key, row);
    }
    for (const Row &row : paths.rows()) {
        sorted.insert(row.key, row);
    }
    KeyMap map;
    for (const Row &row : qAsConst(sorted)) {
        if (!row.path.isEmpty()) {
            map.m_indexes.insert(row.key, map.m_rows.size());
            map.m_rows.append(row);
            map.m_object.insert(row.key, QJsonArray::fromStringList(row.path));
        }
    }
    return map;
}

const KeyMap::Row *KeyMap::row(const QString &key) const
{
    const auto found = m_indexes.constFind(key);
    return found == m_indexes.constEnd() ? nullptr : &m_rows.at(*found);
}

KeyMaps KeyMaps::with(const KeyPaths &xmlPaths, const KeyPaths &txPaths, const KeyPaths &iwbPaths) const
{
    return {xml.with(xmlPaths), tx.with(txPaths), iwb.with(iwbPaths)};
}

FamilyVocabulary::FamilyVocabulary(const TypeVocabulary &common, std::initializer_list<TypeVocabulary> lines)
{
    m_table.push_back({common.xml, common.tx, common.iwb, {}});
    for (const TypeVocabulary &line : lines) {
        for (const char *type : line.types) {
            m_lines.insert(text(type), int(m_table.size()));
            m_types.append(text(type));
        }
        m_table.push_back({{common.xml, line.xml}, {common.tx, line.tx}, {common.iwb, line.iwb}, {}});
    }
}

const KeyMaps &FamilyVocabulary::keyMaps(const QString &type, const KeyMaps &base) const
{
    const Line &line = m_table.at(std::size_t(m_lines.value(type, 0)));
    if (!line.maps) {
        line.maps = base.with(line.xml, line.tx, line.iwb);
    }
    return *line.maps;
}

TypePairs::TypePairs(std::initializer_list<Pair> pairs)
{
    for (const Pair &pair : pairs) {
        m_toTx.insert(text(pair.itemType), text(pair.txType));
        m_fromTx.insert(text(pair.txType), text(pair.itemType));
    }
}
