// SPDX-License-Identifier: MIT
#ifndef ITEMLABEL_H
#define ITEMLABEL_H

#include "lesson/itemview.h"

namespace lessonhost {

//! What is read aloud for an item: what it is, and what stands on it. Of a text that is the text alone.
QString itemLabel(const ItemView &item);

//! The plain name that this begins with, for translations of it; empty where it is a text alone.
QString itemKind(const ItemView &item);

} // namespace lessonhost

#endif // ITEMLABEL_H
