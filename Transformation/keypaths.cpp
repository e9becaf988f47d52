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
    return KeyPaths(KeyPaths::Row{key, path});
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

PreparedPaths::PreparedPaths(const KeyPaths &paths)
{
    QMap<QString, QJsonValue> sorted;
    for (const KeyPaths::Row &row : paths.rows()) {
        sorted[row.key] = row.path.isEmpty() ? QJsonValue() : QJsonValue(QJsonArray::fromStringList(row.path));
    }
    m_rows.reserve(sorted.size());
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it) {
        m_rows.append({it.key(), it.value()});
    }
}

void PreparedPaths::storeIn(QJsonObject &map) const
{
    for (const Row &row : m_rows) {
        if (row.path.isNull()) {
            map.remove(row.key);
        } else {
            map.insert(row.key, row.path);
        }
    }
}

QJsonObject PreparedPaths::storedIn(QJsonObject map) const
{
    storeIn(map);
    return map;
}

FamilyVocabulary::Line::Line(const TypeVocabulary &rows)
    : xml(rows.xml)
    , tx(rows.tx)
    , iwb(rows.iwb)
{
}

FamilyVocabulary::FamilyVocabulary(const TypeVocabulary &common, std::initializer_list<TypeVocabulary> lines)
{
    m_table.append(Line(common));
    for (const TypeVocabulary &line : lines) {
        for (const char *type : line.types) {
            m_lines.insert(text(type), m_table.size());
            m_types.append(text(type));
        }
        m_table.append(Line({{}, {common.xml, line.xml}, {common.tx, line.tx}, {common.iwb, line.iwb}}));
    }
}

void FamilyVocabulary::storeIn(const QString &type, QJsonObject &xmlKeyMap, QJsonObject &txKeyMap,
                               QJsonObject &iwbKeyMap) const
{
    const Line &line = m_table.at(m_lines.value(type, 0));
    if (!line.isReady) {
        line.xmlKeyMap = line.xml.storedIn(xmlKeyMap);
        line.txKeyMap = line.tx.storedIn(txKeyMap);
        line.iwbKeyMap = line.iwb.storedIn(iwbKeyMap);
        line.isReady = true;
    }
    xmlKeyMap = line.xmlKeyMap;
    txKeyMap = line.txKeyMap;
    iwbKeyMap = line.iwbKeyMap;
}

TypePairs::TypePairs(std::initializer_list<Pair> pairs)
{
    for (const Pair &pair : pairs) {
        m_toTx.insert(text(pair.itemType), text(pair.txType));
        m_fromTx.insert(text(pair.txType), text(pair.itemType));
    }
}
