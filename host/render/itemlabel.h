// SPDX-License-Identifier: MIT
#ifndef ITEMLABEL_H
#define ITEMLABEL_H

#include "lesson/itemview.h"

namespace lessonhost {

/*!
 * What is read aloud for an item.
 */
struct ItemLabel
{
    QString text; //!< what it is, and what stands on it; of a text that alone
    QString kind; //!< the plain name that this begins with, for translations of it; empty for a text alone
};

ItemLabel itemLabel(const ItemView &item);

} // namespace lessonhost

#endif // ITEMLABEL_H
