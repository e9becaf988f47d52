// SPDX-License-Identifier: MIT
#ifndef SURELYSEEN_H
#define SURELYSEEN_H

#include <QDomElement>
#include <QRectF>

namespace lessonhost {

//! True for a drawing of which some pixels of an area are painted whoever paints it, at half its size or larger: a
//! plain shape that covers a few of them stands there. False where it takes a painter to tell.
bool isSurelySeen(const QDomElement &svg, const QRectF &area);

} // namespace lessonhost

#endif // SURELYSEEN_H
