#ifndef SVGEXTENT_H
#define SVGEXTENT_H

#include <QDomElement>
#include <QRectF>

#include <optional>

namespace lessonhost {

//! What a svg element of the plug-in covers before its transform, or nothing for one without geometry.
std::optional<QRectF> drawnExtent(const QDomElement &element);

} // namespace lessonhost

#endif // SVGEXTENT_H
