// SPDX-License-Identifier: MIT
#ifndef COUNTEDNAMES_H
#define COUNTEDNAMES_H

#include "sentences/sentence.h"

namespace lessonhost {

//! "18 pieces of games", or "1 piece of a game": so many items of a type, by its plain name (plainnames.h). Types that
//! nobody named are "18 x Physics: New Part 2".
Sentence countedName(const QString &itemType, int count);

} // namespace lessonhost

#endif // COUNTEDNAMES_H
