#ifndef KEYPATHS_H
#define KEYPATHS_H

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

#include <initializer_list>

/*!
 * Rows of a key map as a family's table writes them: where in XML each JSON key lives. Rows are joined by listing
 * them in braces. A later row for the same key replaces the earlier one.
 */
class KeyPaths
{
public:
    struct Row
    {
        QString key;
        QStringList path; //!< one to three segments; empty in a row that removes the key
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
 * Rows made ready to be stored: keys and paths in their final form, in ascending key order, so that a constructor
 * fills a map at the cost of the insertions alone. Made once per process.
 */
class PreparedPaths
{
public:
    PreparedPaths() = default;
    PreparedPaths(const KeyPaths &paths);

    //! Inserts the rows, replacing those of the same key, and takes out what without() names.
    void storeIn(QJsonObject &map) const;

    //! A map with the rows stored in it. For the classes whose constructor always starts from the same map: they make
    //! the result once and give it to each translator.
    QJsonObject storedIn(QJsonObject map) const;

private:
    struct Row
    {
        QString key;
        QJsonValue path; //!< an array of segments; null in a row that removes the key
    };
    QVector<Row> m_rows;
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

    //! Stores the common rows and then the rows of the type's line, if there is one. The constructors before this one
    //! leave the same maps each time, so what comes out is the same for each translator of a type: it is worked out for
    //! the first and given to all.
    void storeIn(const QString &type, QJsonObject &xmlKeyMap, QJsonObject &txKeyMap, QJsonObject &iwbKeyMap) const;

private:
    struct Line
    {
        Line() = default;
        explicit Line(const TypeVocabulary &rows);

        PreparedPaths xml;
        PreparedPaths tx;
        PreparedPaths iwb;
        mutable bool isReady = false;
        mutable QJsonObject xmlKeyMap;
        mutable QJsonObject txKeyMap;
        mutable QJsonObject iwbKeyMap;
    };

    QVector<Line> m_table; //!< the common rows for a type that no line names, then common and line rows, a line each
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
