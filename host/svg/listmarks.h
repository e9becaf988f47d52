// SPDX-License-Identifier: MIT
#ifndef LISTMARKS_H
#define LISTMARKS_H

#include <QString>

namespace lessonhost {

//! What stands before an entry of a list: of the kinds that style sheets name, those of letters and numbers that lessons
//! are written in. Any other kind is a disc, and "none" is nothing. number: of the entry, from 1.
QString listMark(const QString &kind, int number);

} // namespace lessonhost

#endif // LISTMARKS_H
