// SPDX-License-Identifier: MIT
#ifndef MATHMARKS_H
#define MATHMARKS_H

#include "lesson/itemview.h"

namespace lessonhost {

class PlainSvg;

//! Adds what an item of mathematics asks for beside its figure, as far as the figure itself tells it: the sizes of its
//! angles, its centre, the middle of a segment. Lengths have units that no item names.
void addMathMarks(PlainSvg &svg, const ItemView &item);

} // namespace lessonhost

#endif // MATHMARKS_H
