// SPDX-License-Identifier: MIT
#ifndef ITEMKEYS_H
#define ITEMKEYS_H

#include <QLatin1String>

namespace lessonhost {

//! Keys of items that the host looks at. Which of them a type has, and what else, is the plug-in's to know.
namespace ItemKeys {
const QLatin1String id("ID");
const QLatin1String type("Type");
const QLatin1String visible("Visible");
const QLatin1String locked("LockIn");
const QLatin1String endless("InfiniteClone"); //!< gives copies of itself without end
const QLatin1String ignoresEraser("IgnoreEraser");
const QLatin1String linkType("InteractiveType");
const QLatin1String linkValue("InteractiveValue");

const QLatin1String box("BoundingBox"); //!< left,top,right,bottom
const QLatin1String matrix("Matrix"); //!< m11,m12,m21,m22,dx,dy
const QLatin1String slideMatrix("SlideMatrix"); //!< the part of Matrix that fits the slide to the page
const QLatin1String angle("Angle"); //!< radians
const QLatin1String cover("CoverLayer"); //!< an item with another number than 0 is covered
const QLatin1String flippedAcross("HorizonFlip");
const QLatin1String flippedDown("VerticalFlip");
const QLatin1String createdX("Discipline_xCreate");
const QLatin1String createdY("Discipline_yCreate");

const QLatin1String control("Control"); //!< points of a shape
const QLatin1String polyline("XYValue"); //!< points of a polyline, and one character more
const QLatin1String steps("XY"); //!< a stroke's first point, then the steps between its points
const QLatin1String corners("ArtObj_Ln"); //!< how many a regular polygon has
const QLatin1String arrows("ArtObj_ArrowType");

const QLatin1String lineWidth("ArtObj_Width"); //!< of a shape
const QLatin1String isFilled("ArtObj_Fill"); //!< "0" for a shape without a fill
const QLatin1String color("Color"); //!< of ink
const QLatin1String width("Width"); //!< of ink
const QLatin1String opacity("Opacity");

const QLatin1String html("TextHtml");
const QLatin1String text("Text");
const QLatin1String textContent("TextContent");
const QLatin1String resource("resource"); //!< a file of the lesson
const QLatin1String mediaFiles("MultiMediaFile"); //!< files of a raw lesson, with commas between
const QLatin1String document("document");
const QLatin1String mindMap("mindMapData");
const QLatin1String animations("animations");
const QLatin1String attachments("attachments");
const QLatin1String deletedPixels("PixelDeleteInfos");
} // namespace ItemKeys

//! Keys of slides.
namespace SlideKeys {
const QLatin1String id("ID");
const QLatin1String color("color"); //!< of the page, in packages
const QLatin1String backColor("BackColor"); //!< the same in raw lessons, 0xRRGGBB
const QLatin1String document("document"); //!< the picture of the page, in packages
const QLatin1String files("AttachFile"); //!< the same in raw lessons, and more files, with commas between
const QLatin1String texture("TextureLineType");
const QLatin1String sourceRect("SlideSourceRect"); //!< x,y,width,height of the slide that was fitted to the page
} // namespace SlideKeys

//! Keys of the presentation.
namespace PresentationKeys {
const QLatin1String id("ID");
const QLatin1String width("Width"); //!< of a page, in pixels
const QLatin1String height("Height");
const QLatin1String version("Version"); //!< its first number decides how strokes store their points
} // namespace PresentationKeys

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
