// SPDX-License-Identifier: MIT
#ifndef PLAINNAMES_H
#define PLAINNAMES_H

#include "sentences/sentence.h"

#include <QString>

namespace lessonhost {

//! What a teacher calls an item type: "ZQPhysicsKaiGuan1" is "Switch". A type that nobody named is told by the words in
//! its name: "ZQPhysicsNewPart2" is "Physics: New Part 2".
QString plainName(const QString &itemType);

//! The same for who reads what the command says.
Sentence saidName(const QString &itemType);

} // namespace lessonhost

#endif // PLAINNAMES_H
