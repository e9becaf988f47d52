// SPDX-License-Identifier: MIT
#ifndef SVGTEXTBOXES_H
#define SVGTEXTBOXES_H

#include <QDomElement>

namespace lessonhost {

struct SvgPlace;
class SvgPage;

// Read a text of svg, and make a text board of it.

void readText(SvgPage &page, const QDomElement &element, const SvgPlace &place);
void readTextArea(SvgPage &page, const QDomElement &element, const SvgPlace &place);

} // namespace lessonhost

#endif // SVGTEXTBOXES_H
