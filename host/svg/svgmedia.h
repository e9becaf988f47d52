// SPDX-License-Identifier: MIT
#ifndef SVGMEDIA_H
#define SVGMEDIA_H

#include <QDomElement>

namespace lessonhost {

struct SvgPlace;
class SvgPage;

// Read a file that a page shows or plays, and make an item of the page of it.

//! A picture or film, by the element's name.
void readPicture(SvgPage &page, const QDomElement &element, const SvgPlace &place);
//! A sound stands by itself, or where its sign does; a film that is linked where its still does.
void readSound(SvgPage &page, const QDomElement &element, const SvgPlace &place);
//! A link around nothing.
void readLinkedFile(SvgPage &page, const QDomElement &element, const SvgPlace &place);

} // namespace lessonhost

#endif // SVGMEDIA_H
