// SPDX-License-Identifier: MIT
#ifndef ELEMENTMARK_H
#define ELEMENTMARK_H

#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>

namespace lessonhost {

/*!
 * What the records of an IWB document say of each element, by its identifier.
 */
class RecordTexts
{
public:
    //! Takes what the element says, if it is a record. The elements of a document come in their order, each in its
    //! place.
    void add(const QDomElement &element);

    const QHash<QString, QString> &texts() const { return m_texts; }

private:
    void add(const QString &id, const QString &text);

    QHash<QString, QString> m_texts;
    QSet<QString> m_shared; // each text once
};

//! The same of a document that is there whole. root: its element.
QHash<QString, QString> recordTexts(const QDomElement &root);

//! What stands for an item on a page, within the links around it. A sound is its link.
QDomElement itemElement(QDomElement element);

//! Whether an element is what fills the open line that it stands behind, and is part of that line's item.
bool isFillBehind(const QDomElement &element);

//! Whether it is what covers an item or a group. Nothing is called so but by this system.
bool isCover(const QDomElement &element);

//! Tells an element with all that is in it, its place and what records say of it, from any other. It stays the same
//! where a program writes the document anew: with other prefixes, another order of attributes, other blanks and digits
//! beyond the fifth.
QString elementMark(const QDomElement &element, const QHash<QString, QString> &records);

} // namespace lessonhost

#endif // ELEMENTMARK_H
