// SPDX-License-Identifier: MIT
#ifndef SVGPAGEBUILDER_H
#define SVGPAGEBUILDER_H

#include "files/xmlparts.h"
#include "svg/iwbpage.h"
#include "svg/svgstyle.h"
#include "svg/svgtext.h"

#include <QPolygonF>

namespace lessonhost {

/*!
 * Walks one page of an IWB file and makes the plug-in's form of it.
 */
class SvgPageBuilder
{
public:
    explicit SvgPageBuilder(const IwbDocumentRules &rules);

    //! layers: the page elements that lie over each other, from back to front.
    IwbPage build(const QVector<XmlPart> &layers);
    //! chosen: some of the page's children, which are all that is looked at. backgrounds: those elements of the page
    //! that are its background, and no items.
    IwbPage build(const QDomElement &page, const QVector<QDomElement> &chosen, const QVector<QDomElement> &backgrounds);

    //! True for svg elements that show something, converted or not.
    static bool isDrawn(const QString &svgName);

private:
    // What an element has around it.
    struct Place
    {
        SvgStyle style;
        QString link;
        bool leadsOutside = false; // the link
        bool isAway = false; // stands where nothing is shown
    };

    using Convert = void (SvgPageBuilder::*)(const QDomElement &, const Place &);
    static const QHash<QString, Convert> &conversions();

    Place placeOn(const QDomElement &page);
    void children(const QDomElement &holder, const Place &place);
    QVector<QDomElement> strokePieces(const QDomElement &first) const;
    bool stroke(const QVector<QDomElement> &pieces, const Place &outer);
    void convert(const QDomElement &element, const Place &outer);
    void nameWithoutPage(const QDomElement &element, const QString &name);
    void remarkOnExtras(const QDomElement &element, const QString &name);

    void group(const QDomElement &element, const Place &place);
    void nestedSvg(const QDomElement &element, const Place &place);
    void alternatives(const QDomElement &element, const Place &place);
    void link(const QDomElement &element, const Place &place);
    void rectangle(const QDomElement &element, const Place &place);
    void ellipse(const QDomElement &element, const Place &place);
    void line(const QDomElement &element, const Place &place);
    void lineBetween(const QDomElement &element, const Place &place, QPointF from, QPointF to);
    void polyline(const QDomElement &element, const Place &place);
    void polygon(const QDomElement &element, const Place &place);
    void path(const QDomElement &element, const Place &place);
    void image(const QDomElement &element, const Place &place);
    void sound(const QDomElement &element, const Place &place);
    void text(const QDomElement &element, const Place &place);
    void textArea(const QDomElement &element, const Place &place);
    void finishText(const QDomElement &source, const SvgText &content, const Place &place, IwbElement &item);

    IwbRecord recordOf(const QDomElement &element) const;
    bool takeBackground(const QDomElement &element, const QString &name, const SvgStyle &style);
    bool fillsPage(const QDomElement &element, const IwbRecord &record, const SvgStyle &style);
    void finishBackground();
    void outline(const QDomElement &source, const Place &place, QPolygonF points, bool isClosed);
    SvgPaint paintOf(const QDomElement &element, const SvgStyle &style);
    void remarkOnOpacity(const QDomElement &element, const SvgStyle &style, bool isPicture);
    void media(const QDomElement &source, const Place &place, const QString &tag);
    bool placeBox(IwbElement &item, const QRectF &box, const QTransform &matrix);
    IwbElement &addItem(const QDomElement &source, const Place &place, const QString &tag);
    double length(const QDomElement &element, const char *name, double fallback = 0);
    void remark(const QDomElement &element, const Sentence &text, bool isLoss = true);
    std::function<void(const Sentence &)> remarkAbout(const QDomElement &element);
    QString nativeTransform(const QDomElement &element) const;
    bool isAway(const QDomElement &element) const;
    SvgText::Kind textKind() const;

    const IwbDocumentRules &m_rules;
    IwbPage m_result;
    QDomElement m_items;
    QColor m_background;
    QString m_backgroundStem;
    bool m_hasBackground = false;
    bool m_isPart = false; // of the page, the rest of which was looked at before
    QVector<QDomElement> m_otherBackgrounds; // what was found to be the background then
};

} // namespace lessonhost

#endif // SVGPAGEBUILDER_H
