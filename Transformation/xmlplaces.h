// SPDX-License-Identifier: MIT
#ifndef XMLPLACES_H
#define XMLPLACES_H

#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>
#include <QVector>

#include <optional>

// The places in an element's tree that the paths of key maps lead to. What is found once is kept for the length of one
// walk over a map, so that a walk costs one look at the tree and not one a key.

//! The text of an attribute, or nothing if the element is null or has no such attribute.
std::optional<QString> attributeText(QDomElement element, const QString &name);

/*!
 * Places in an element of the raw form. The tree must not change while it lives.
 */
class RawPlaces
{
public:
    explicit RawPlaces(const QDomElement &element);

    //! The first element with this tag in document order at any depth, or null.
    QDomElement descendant(const QString &tag);

    //! The text at a path of two or more segments: tags on the way down, an attribute at the end.
    std::optional<QString> descendantText(const QStringList &path);

private:
    void findDescendants();

    QDomElement m_element;
    QHash<QString, QDomElement> m_descendants; //!< the first of each tag
    bool m_descendantsFound = false;
};

/*!
 * While one lives, what a search within an item has found serves the searches within the items that lie in it, so that
 * the cost of items within items grows with their number and not with each level anew. For a walk that converts them
 * from the outside in, and changes no item before all that lies around it is read.
 */
class NestedSearches
{
public:
    NestedSearches();
    ~NestedSearches();
    NestedSearches(const NestedSearches &) = delete;
    NestedSearches &operator=(const NestedSearches &) = delete;

    //! The first element with this tag in document order at any depth below the child element holder of an item.
    static QDomElement descendant(const QDomElement &holder, const QString &tag);

private:
    // A search that had to go below the children of its holder.
    struct Search
    {
        QDomElement holder;
        QString tag;
        QVector<QDomElement> way; //!< from a child of the first holder down to the element found; empty if none was
        int start; //!< where the way begins for this holder
    };

    static QDomElement newSearch(const QDomElement &holder, const QString &tag);
    const Search *searchAround(const QDomNode &item, const QString &tag);

    static NestedSearches *s_current;

    QVector<Search> m_searches; //!< of the items that are open, from the outside in
    NestedSearches *m_outer;
};

/*!
 * Places in a ZQTX element. The tree must not change while it lives.
 */
class TxPlaces
{
public:
    explicit TxPlaces(const QDomElement &element);

    //! The text at a path of one to three segments, or nothing if its place is missing. A property row without a value
    //! gives the empty text.
    std::optional<QString> text(const QStringList &path);

private:
    struct Child
    {
        QString tag;
        bool hasContent;
        QDomElement element;
    };

    struct Inner
    {
        QString childTag;
        QString tag;
        QDomElement element;
    };

    std::optional<QString> propertyText(const QString &name);
    QDomElement child(const QString &tag, bool withContent);
    QDomElement inner(const QString &childTag, const QString &tag);
    void findRows();

    QDomElement m_element;
    QVarLengthArray<Child, 6> m_children;
    QVarLengthArray<Inner, 4> m_inners;
    QHash<QString, QDomElement> m_rows; //!< the first row of each name
    bool m_rowsFound = false;
};

/*!
 * Writes into the rows of one <properties> element, which nobody else changes meanwhile.
 */
class PropertyRows
{
public:
    //! Puts a value into the first row that has the name or none, or else into a new row at the end. An empty value
    //! leaves no row behind.
    void write(QDomElement &properties, const QString &name, const QString &value);

private:
    void findNames(const QDomElement &properties);
    void writeExisting(QDomElement &properties, const QString &name, const QString &value);

    QSet<QString> m_names; //!< may still hold the name of a row that was taken out
    int m_unnamed = 0;
    bool m_namesFound = false;
};

/*!
 * Writes into the places of a ZQTX element. Nobody else changes its tree while it lives.
 */
class TxTargets
{
public:
    explicit TxTargets(const QDomElement &element);

    //! Writes the value to a path of two or three segments. A missing child is made at the end, unless the element has
    //! no child elements at all; a missing element within a child takes nothing.
    void write(const QStringList &path, const QString &value);

private:
    struct Child
    {
        QString tag;
        QDomElement element;
    };

    QDomElement &child(const QString &tag);

    QDomElement m_element;
    bool m_takesChildren;
    QVarLengthArray<Child, 6> m_children;
    PropertyRows m_propertyRows;
};

#endif // XMLPLACES_H
