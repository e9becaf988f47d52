// SPDX-License-Identifier: MIT
#ifndef LEVELLIQUID_H
#define LEVELLIQUID_H

#include <QPainterPath>

namespace lessonhost {

/*!
 * What stands in a vessel that is turned: at its bottom, with a level surface.
 */
struct LevelLiquid
{
    //! vessel: its inside on the page. area: of the liquid; at most all of the vessel is filled.
    LevelLiquid(const QPainterPath &vessel, double area);

    QPainterPath body;
    QPainterPath surface; //!< lines from wall to wall
};

//! The area that a path encloses, without what crosses itself.
double enclosedArea(const QPainterPath &path);

} // namespace lessonhost

#endif // LEVELLIQUID_H
