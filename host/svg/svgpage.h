// SPDX-License-Identifier: MIT
#ifndef SVGPAGE_H
#define SVGPAGE_H

#include "svg/iwbpage.h"
#include "svg/svgstyle.h"

#include <functional>

namespace lessonhost {

/*!
 * What an element of a page has around it.
 */
struct SvgPlace
{
    SvgStyle style; //!< with its own
    QString link; //!< target of the link around it, as the file has it
    bool leadsOutside = false; //!< the link
    bool isAway = false; //!< stands where nothing is shown
};

/*!
 * A page of an IWB file while it becomes the plug-in's form of it: what those who read its elements ask of it, and
 * where they put the items and what there is to tell.
 */
class SvgPage
{
public:
    explicit SvgPage(const IwbDocumentRules &rules);

    const IwbDocumentRules &rules() const { return m_rules; }
    //! What became of it until now.
    IwbPage &result() { return m_result; }

    //! Of what stands on a page element.
    SvgPlace placeOn(const QDomElement &page);
    //! Of an element that has another place around it.
    SvgPlace placeIn(const SvgPlace &outer, const QDomElement &element);
    //! The element's transform as svg reads it, without what hides it.
    QString transformOf(const QDomElement &element) const;

    //! What the file's records say of it.
    IwbRecord recordOf(const QDomElement &element) const;
    //! Pixels.
    double length(const QDomElement &element, const char *name, double fallback = 0) const;
    //! With a word on what lines have no form for.
    SvgPaint paintOf(const QDomElement &element, const SvgStyle &style);

    //! An item of the page, with what the element says of every item. tag: of the element that the plug-in reads.
    IwbElement &addItem(const QDomElement &source, const SvgPlace &place, const QString &tag);
    //! An item of which nothing is asked but where it stands among the others.
    void passOver(const QDomElement &source);
    //! The points of a polyline on the page, once it is known whether it is ink.
    void placePoints(IwbElement &item, const QPolygonF &points);
    //! Puts its box under a transform: its size along its own sides, its centre, and its angle. A lost slant is told.
    void placeBox(const QDomElement &source, IwbElement &item, const QRectF &box, const QTransform &matrix);

    void remark(const QDomElement &element, const Sentence &text, bool isLoss = true);
    std::function<void(const Sentence &)> remarkAbout(const QDomElement &element);
    //! Tells that a picture, or what else is shown of a file, shines through no longer.
    void remarkOnOpacity(const QDomElement &element, const SvgStyle &style, bool isPicture);
    //! Tells what the element has about it that shows something or acts, and that no item has. name: svgName().
    void remarkOnExtras(const QDomElement &element, const QString &name);

private:
    bool isAway(const QDomElement &element) const;

    const IwbDocumentRules &m_rules;
    IwbPage m_result;
    QDomElement m_items;
};

} // namespace lessonhost

#endif // SVGPAGE_H
