// SPDX-License-Identifier: MIT
#ifndef KEYPATHS_H
#define KEYPATHS_H

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <initializer_list>
#include <optional>
#include <vector>

/*!
 * Rows of a key map as a family's table writes them: where in XML each JSON key lives. Rows are joined by listing
 * them in braces. A later row for the same key replaces the earlier one.
 */
class KeyPaths
{
public:
    //! What a place holds. All but texts are in the raw form only.
    enum class Form {
        Text, //!< of an attribute
        Attributes, //!< all of a descendant element, as an object under its tag
        ChildAttributes //!< such an object for each child of a descendant element, as an array under its tag
    };

    struct Row
    {
        QString key;
        QStringList path; //!< one to three segments; empty in a row that removes the key
        Form form = Form::Text;
    };

    KeyPaths() = default;
    KeyPaths(std::initializer_list<KeyPaths> groups);
    explicit KeyPaths(const Row &row);

    const QVector<Row> &rows() const { return m_rows; }

private:
    QVector<Row> m_rows;
};

//! The attribute of the same name, or of another name, on the element itself.
KeyPaths attribute(const char *key);
KeyPaths attribute(const char *key, const char *name);

//! Several attributes of the same names.
KeyPaths attributes(std::initializer_list<const char *> keys);

//! All attributes of the descendant element with this tag, or of each of its children.
KeyPaths attributesOf(const char *tag);
KeyPaths attributesOfChildren(const char *tag);

//! An attribute of a child or descendant element.
KeyPaths childAttribute(const char *key, const char *element, const char *name);

//! A path of three segments: a child element, an element in it, an attribute of that.
KeyPaths path(const char *key, const char *child, const char *inner, const char *name);

//! A row of <properties>: <property name="label" value="..."/>. Without a label, the key is the label.
KeyPaths property(const char *key, const char *label);
KeyPaths property(const char *key);

//! Several rows of <properties> whose keys are their labels.
KeyPaths properties(std::initializer_list<const char *> keys);

//! The two keys NAMEx and NAMEy of a raw point element NAME with the attributes x and y.
KeyPaths coordinatePair(const char *name);

//! The pairs NAME0, NAME1, ... for each number from first to last.
KeyPaths coordinatePairs(const char *name, int first, int last);

//! Takes the key out of the map, where a base class or a common row put it.
KeyPaths without(const char *key);

/*!
 * A key map, worked out once per process: the object that constructors store, and its rows in the form in which the
 * walks read them.
 */
class KeyMap
{
public:
    using Row = KeyPaths::Row;

    //! This map with the rows stored in it. A row replaces that of the same key or, made by without(), takes it out.
    KeyMap with(const KeyPaths &paths) const;

    const QJsonObject &object() const { return m_object; }

    //! In ascending order of the keys.
    const QVector<Row> &rows() const { return m_rows; }

    //! The row of a key, or null.
    const Row *row(const QString &key) const;

private:
    QJsonObject m_object;
    QVector<Row> m_rows;
    QHash<QString, int> m_indexes; //!< of the keys in m_rows
};

/*!
 * The three key maps of a translator.
 */
struct KeyMaps
{
    KeyMap xml;
    KeyMap tx;
    KeyMap iwb;

    KeyMaps with(const KeyPaths &xmlPaths, const KeyPaths &txPaths, const KeyPaths &iwbPaths = {}) const;
};

/*!
 * What one line of a family's table adds to the three key maps for the types that it names.
 */
struct TypeVocabulary
{
    std::initializer_list<const char *> types;
    KeyPaths xml;
    KeyPaths tx;
    KeyPaths iwb = {};
};

/*!
 * A family's whole table: the rows that every type has and the lines of the single types. Answers whether a type
 * belongs to the family by one look-up. Made once per process.
 */
class FamilyVocabulary
{
public:
    FamilyVocabulary(const TypeVocabulary &common, std::initializer_list<TypeVocabulary> lines);

    //! Whether a line names the type.
    bool contains(const QString &type) const { return m_lines.contains(type); }

    //! The types in the order of the lines.
    const QStringList &types() const { return m_types; }

    //! The maps of the base class with the common rows and then the rows of the type's line, if there is one. The
    //! base class leaves the same maps each time, so they are worked out for the first translator of a line.
    const KeyMaps &keyMaps(const QString &type, const KeyMaps &base) const;

private:
    struct Line
    {
        KeyPaths xml;
        KeyPaths tx;
        KeyPaths iwb;
        mutable std::optional<KeyMaps> maps;
    };

    std::vector<Line>
        m_table; //!< the common rows for a type that no line names, then common and line rows, a line each
    QHash<QString, int> m_lines; //!< type to index of m_table
    QStringList m_types;
};

/*!
 * Pairs of item type and ZQTX type, looked up in both directions; an unknown type gives the empty text.
 */
class TypePairs
{
public:
    struct Pair
    {
        const char *itemType;
        const char *txType;
    };

    TypePairs(std::initializer_list<Pair> pairs);

    QString toTxType(const QString &itemType) const { return m_toTx.value(itemType); }
    QString fromTxType(const QString &txType) const { return m_fromTx.value(txType); }

private:
    QHash<QString, QString> m_toTx;
    QHash<QString, QString> m_fromTx;
};

#endif // KEYPATHS_H
