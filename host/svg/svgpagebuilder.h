// SPDX-License-Identifier: MIT
#ifndef SVGPAGEBUILDER_H
#define SVGPAGEBUILDER_H

#include "files/xmlparts.h"
#include "svg/pagebackground.h"
#include "svg/svgpage.h"

#include <QSet>

namespace lessonhost {

/*!
 * Walks one page of an IWB file and makes the plug-in's form of it.
 */
class SvgPageBuilder
{
public:
    explicit SvgPageBuilder(const IwbDocumentRules &rules);

    //! Items of which nothing is asked but where they stand, by their identifiers.
    void passOver(const QSet<QString> &ids) { m_passed = ids; }

    //! layers: the page elements that lie over each other, from back to front.
    IwbPage build(const QVector<XmlPart> &layers);
    //! chosen: some of the page's children, which are all that is looked at. backgrounds: those elements of the page
    //! that are its background, and no items.
    IwbPage build(const QDomElement &page, const QVector<QDomElement> &chosen, const QVector<QDomElement> &backgrounds);

private:
    using Walk = void (SvgPageBuilder::*)(const QDomElement &, const SvgPlace &);
    static const QHash<QString, Walk> &walks();

    void convert(const QDomElement &element, const SvgPlace &outer);
    void nameWithoutPage(const QDomElement &element, const QString &name);

    void children(const QDomElement &holder, const SvgPlace &place);
    void nestedSvg(const QDomElement &element, const SvgPlace &place);
    void alternatives(const QDomElement &element, const SvgPlace &place);
    void link(const QDomElement &element, const SvgPlace &place);

    SvgPage m_page;
    QSet<QString> m_passed;
    PageBackground m_background;
};

} // namespace lessonhost

#endif // SVGPAGEBUILDER_H
