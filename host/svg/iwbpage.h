// SPDX-License-Identifier: MIT
#ifndef IWBPAGE_H
#define IWBPAGE_H

#include "sentences/sentence.h"

#include <QDomDocument>
#include <QHash>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QVector>

namespace lessonhost {

//! What the identifier of the picture ends in that shows a sound, behind that of the sound's link.
constexpr char soundSign[] = "_sign";

//! The same for the still of a film that other boards can't play, behind that of the link to it.
constexpr char filmSign[] = "_film";

//! The same for the outline that fills an open line and stands behind it.
constexpr char lineFill[] = "_fill";

//! The same, before a number, for the parts of a text that have a colour behind them.
constexpr char markedSpan[] = "_span";

//! The same for what covers an item and stands before it.
constexpr char coverBefore[] = "_cover";

//! The same, before a number, for the elements that stand for an item together with the one that is called as it and
//! lies in front of them.
constexpr char partOfItem[] = "_part";

//! The identifier of the item that an element stands for, or is a part of.
QString itemOfPart(const QString &id);

//! The same for the picture of the classroom game that a slide holds, behind that of the slide.
constexpr char slideGame[] = "_game";

//! What the transform of a hidden element begins with: nothing is shown of what stands left of the page.
constexpr char awayFromPage[] = "translate(-1000000,0)";

//! The name of the meta that has a presentation's identifier.
constexpr char identifierMeta[] = "identifier";

/*!
 * Something of a page that could not be brought over, or only otherwise than it was.
 */
struct SvgRemark
{
    QString tag;
    QString id;
    Sentence text;
    bool isLoss = true; //!< false where only the form differs
};

/*!
 * One item of a page as the plug-in reads it, with what stands around the element.
 */
struct IwbElement
{
    //! svg:rect, svg:line, svg:polyline, svg:circle, svg:ellipse, svg:textarea, svg:image, ...; null for one that is
    //! passed over. That of ink has the first of its points alone.
    QDomElement element;
    QString id;
    QPolygonF points; //!< of a polyline, as its text tells them
    double angle = 0; //!< radians about the centre of the box; of text, media, rectangles and ellipses
    QString reference; //!< of media, as the file has it
    QString link; //!< target of the link around the item, as the file has it
    bool leadsOutside = false; //!< to a file that is no part of the package
    bool isVisible = true;
    bool isLocked = false;
    bool isEndless = false; //!< gives copies of itself without end
    bool isRevealer = false; //!< a cover that is drawn away
    bool isCovered = false; //!< by an outline of this system's
    bool isFreehand = false; //!< ink of a pen
    bool isHighlight = false; //!< ink of a marker
    bool flipsAcross = false; //!< left and right are exchanged
    bool flipsDown = false; //!< up and down are exchanged
    int group = -1; //!< which of the document's groups it belongs to

    bool isInk() const { return (isFreehand || isHighlight) && element.tagName() == QLatin1String("svg:polyline"); }
};

/*!
 * A page in the form that the plug-in reads: the background stands in the page element and has its record under root,
 * the items stand beside it.
 */
struct IwbPage
{
    QDomDocument document; //!< keeps the elements alive
    QDomElement root;
    QDomElement page;
    QString backgroundReference; //!< the background picture as the file has it, or empty
    bool isBackgroundRepeated = false; //!< beside and below itself, from the page's upper left corner on
    QSizeF backgroundTile; //!< of one repetition; empty for the picture's own size
    QVector<QDomElement> backgrounds; //!< of the document, that were taken as colour and picture
    QVector<IwbElement> items;
    QVector<SvgRemark> remarks;
};

/*!
 * What the iwb:element records say about one element.
 */
struct IwbRecord
{
    bool isBackground = false;
    bool refusesPicture = false; //!< says that it is no background
    bool isLocked = false;
    bool isEndless = false;
    bool isRevealer = false; //!< a cover that is drawn away
    bool isFreehand = false;
    bool isHighlight = false;
    bool flipsAcross = false;
    bool flipsDown = false;
    QString startShape; //!< "arrow" and the like; empty where the record says nothing
    QString endShape;
    QString posture; //!< of a background picture; empty where the record says nothing
    QString textFill; //!< what lies behind a text; empty or "none" for nothing
    QString highlightFill; //!< the same, meant as a marker's
    bool isList = false; //!< of a text or a part of it
    QString listMarks; //!< how it is marked: "disc" and the like
    QString listMarkFill; //!< the colour of its marks
    bool isOutside = false; //!< of a link, to a file that is no part of the package
};

/*!
 * What a page needs to know of its document.
 */
struct IwbDocumentRules
{
    QHash<QString, IwbRecord> records; //!< by the identifier that they refer to
    QHash<QString, int> groups; //!< the number of the group of each identifier that is in one
    QRectF viewBox;
    bool isIwb = false; //!< a document of IWB, where lines of points are never filled
    bool hasPlainTurns = false; //!< rotate(a,x,y) is in degrees although isNative
    bool isNative = false; //!< written by the plug-in, with its own conventions
    bool isOwn = false; //!< written by this system, where each span is a run and an angle a line of three points
};

} // namespace lessonhost

#endif // IWBPAGE_H
