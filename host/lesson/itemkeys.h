#ifndef ITEMKEYS_H
#define ITEMKEYS_H

#include <QLatin1String>

namespace lessonhost {

//! Keys that only the host knows: how it keeps what the plug-in has no key for.
namespace HostKeys {
const QLatin1String children("Children"); //!< nested items of a group or a formula
const QLatin1String keptXml("KeptXml"); //!< an item nobody can convert, as the XML text that it came as
const QLatin1String ignoredBox("IgnoredBoundingBox"); //!< the box that a version 3 file has for a group
const QLatin1String ignoredControl("IgnoredControl"); //!< the control points that a file has for a figure
const QLatin1String title("Title"); //!< of the presentation
} // namespace HostKeys

} // namespace lessonhost

#endif // ITEMKEYS_H
