// SPDX-License-Identifier: MIT
#ifndef KEYNAMES_H
#define KEYNAMES_H

#include "sentences/sentence.h"

namespace lessonhost {

//! What a teacher calls a value, by its key, by the label of its row in ZQTX, or by the tag or attribute that holds it:
//! "ArtObj_FillColor", "Fill color" and "fill" are "colour of the fill". Digits in keys, small letters and capitals
//! don't count. Empty for a key that nobody named.
Sentence plainKeyName(const QString &key);

//! The same by the place of a value, as reports tell it: "animations.path.x" or "Control[1]" in the model,
//! "data/rect@points" or "properties/property[Fill color]@value" in XML. A place without a name is told in quotes.
Sentence plainPlaceName(const QString &place);

//! True if what stands there is nothing that is seen or heard in a lesson, such as an identifier or a date.
bool isInternalPlace(const QString &place);

} // namespace lessonhost

#endif // KEYNAMES_H
