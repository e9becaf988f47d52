// SPDX-License-Identifier: MIT
#ifndef NESTEDITEMS_H
#define NESTEDITEMS_H

#include <QDomElement>
#include <QJsonObject>

/*!
 * Reads the items within items into "Children". Groups may be nested as deep as a file says, and a stack is not as deep
 * as a file: the outermost item walks the whole tree, and the conversion of an inner item, which comes here from
 * within that walk, leaves its children to it.
 */
class NestedItems
{
public:
    //! How one form holds nested items.
    struct Form
    {
        bool (*isKnown)(const QDomElement &item); //!< an item that isn't known is left out
        QJsonObject (*convert)(const QDomElement &item, const QJsonObject &context);
        bool inReverse; //!< the last child of the document comes first
    };

    //! Converts first and its siblings, and puts them into json's Children in front of (in reverse) or behind what is
    //! there. Without a known item json stays as it is. Must be the last step of owner's conversion: for an item within
    //! the item that is being read, the children come in after it has returned.
    static void read(const QDomElement &owner, const QDomElement &first, QJsonObject &json, const QJsonObject &context,
                     const Form &form);
};

#endif // NESTEDITEMS_H
