// SPDX-License-Identifier: MIT
#ifndef SVGNORMALIZER_H
#define SVGNORMALIZER_H

#include "svg/iwboutline.h"

#include <QSet>

#include <functional>

namespace lessonhost {

/*!
 * Brings the content of IWB files, whoever wrote them, into the few forms that the plug-in reads: whatever prefix
 * stands for svg, groups with transforms, polygons, paths of straight lines, styles, units, all ways to write colours.
 *
 * Files with the version "tesselmark" follow the plug-in's own conventions where they differ from svg: the angle of
 * rotate(a,x,y) with commas is in radians (with blanks it is in degrees as everywhere), a stroke-opacity above 1 is the
 * alpha of the fill, and missing attributes of text mean bold, italic and underlined.
 */
class SvgNormalizer
{
public:
    //! A document that is there whole. root: the document element. A document without an svg element has no pages.
    explicit SvgNormalizer(const QDomElement &root);
    //! A document of which pages are read when they are asked for. outline: has to live as long.
    SvgNormalizer(const IwbOutline &outline, std::function<XmlPart(int)> part);

    const IwbOutline &outline() const { return m_outline; }

    //! The elements that lie over each other on a page, from back to front.
    QVector<XmlPart> layers(int index) const;
    IwbPage page(int index) const { return page(layers(index)); }
    //! passed: identifiers of items of which nothing is asked but where they stand.
    IwbPage page(const QVector<XmlPart> &layers, const QSet<QString> &passed = {}) const;
    //! The page with some of its children alone. backgrounds: which of its elements are no items, but its background.
    IwbPage page(const QVector<XmlPart> &layers, const QVector<QDomElement> &children,
                 const QVector<QDomElement> &backgrounds) const;

private:
    IwbOutline m_ownOutline; // of a document that is there whole
    const IwbOutline &m_outline;
    std::function<XmlPart(int)> m_part;
};

} // namespace lessonhost

#endif // SVGNORMALIZER_H
