// SPDX-License-Identifier: MIT
#ifndef ELEMENTMARK_H
#define ELEMENTMARK_H

#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>

namespace lessonhost {

/*!
 * What records say of an element, in the form of marks and in that of earlier ones.
 */
struct RecordText
{
    QString text;
    QString former;
};

/*!
 * What the records of an IWB document say of each element, by its identifier.
 */
class RecordTexts
{
public:
    //! Takes what the element says, if it is a record. The elements of a document come in their order, each in its
    //! place.
    void add(const QDomElement &element);

    const QHash<QString, RecordText> &texts() const { return m_texts; }

private:
    void add(const QDomElement &element, const QString &name);

    QHash<QString, RecordText> m_texts;
    QSet<QString> m_shared; // each text once
};

//! The same of a document that is there whole. root: its element.
QHash<QString, RecordText> recordTexts(const QDomElement &root);

//! What stands for an item on a page, within the links around it. A sound is its link.
QDomElement itemElement(QDomElement element);

//! Whether an element is what fills the open line that it stands behind, and is part of that line's item.
bool isFillBehind(const QDomElement &element);

//! Whether it is what covers an item or a group. Nothing is called so but by this system.
bool isCover(const QDomElement &element);

//! Tells an element with all that is in it, its place and what records say of it, from any other. It stays the same
//! where a program writes the document anew: with other prefixes, another order of attributes, colours in other words,
//! other blanks and digits beyond the fifth, and svg:g without attributes around elements.
QString elementMark(const QDomElement &element, const QHash<QString, RecordText> &records);

//! Whether an element has a mark, also one that an earlier version has written, which knew colours as their letters and
//! every svg:g.
bool hasMark(const QDomElement &element, const QString &mark, const QHash<QString, RecordText> &records);

} // namespace lessonhost

#endif // ELEMENTMARK_H
