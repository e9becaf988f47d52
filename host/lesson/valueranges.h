// SPDX-License-Identifier: MIT
#ifndef VALUERANGES_H
#define VALUERANGES_H

#include "sentences/sentence.h"

#include <QJsonValue>

namespace lessonhost {

//! What a value of this key has to be, if it isn't: "a number from 0 to 255". Empty for a value in its range, for one
//! that says nothing, and for keys of which no range is known.
Sentence rangeMissedBy(const QString &key, const QJsonValue &value);

//! The same for the size of a page, which is of the presentation.
Sentence pageSizeMissedBy(const QJsonValue &value);

//! The same for what a link to a slide says, in a lesson of so many.
Sentence slideMissedBy(const QJsonValue &value, int slideCount);

} // namespace lessonhost

#endif // VALUERANGES_H
