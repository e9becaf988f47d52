// SPDX-License-Identifier: MIT
#ifndef PLUGINOUTLINES_H
#define PLUGINOUTLINES_H

#include "lesson/shapegeometry.h"

class IZQTransformation;

namespace lessonhost {

//! Asks the plug-in for the svg of a shape and takes the corners from it. The plug-in has to live as long.
OutlineSource pluginOutlines(IZQTransformation *plugin);

} // namespace lessonhost

#endif // PLUGINOUTLINES_H
