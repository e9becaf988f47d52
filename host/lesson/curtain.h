// SPDX-License-Identifier: MIT
#ifndef CURTAIN_H
#define CURTAIN_H

#include "lesson/itemplace.h"

#include <QRgb>
#include <QString>

#include <optional>

namespace lessonhost {

class ItemView;

// Curtains, which hang before other items until they are drawn.

const QLatin1String curtainType("General:curtain");

namespace CurtainKeys {
const QLatin1String rect("rect"); //!< how much of its box a curtain hangs before
const QLatin1String picture("picture"); //!< on the cloth
} // namespace CurtainKeys

//! The cloth of a curtain without a picture.
constexpr QRgb curtainCloth = 0xff8c1c2b;

/*!
 * What a curtain hangs before, as if it were neither turned nor flipped: its box or, from the box's upper left corner
 * on, as much of it as rect says. Where rect begins elsewhere, its last numbers may be a size or a corner, so it tells
 * nothing.
 */
std::optional<QRectF> coveredByCurtain(const ItemView &curtain);

//! The same on the page, upright under a matrix that slants it.
std::optional<ItemPlace> placeOfCurtain(const ItemView &curtain);

} // namespace lessonhost

#endif // CURTAIN_H
