// SPDX-License-Identifier: MIT
#ifndef BOARDDRESS_H
#define BOARDDRESS_H

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QString>

namespace lessonhost {

/*!
 * The dress that other boards know: what the plug-in writes of a page is completed and changed where the public format
 * asks for another form. Readers here understand both.
 *
 * Points are "x,y x,y"; closed outlines are polygons, since lines of points have no fill; opacities go from 0 to 1;
 * turns are rotate(a,x,y) in degrees, which the creator in the document's meta tells from the plug-in's; no blanks of
 * indentation stand between runs of text. Records tell backgrounds, arrows, items that give copies of themselves, and
 * ink.
 */
class BoardDress
{
public:
    //! marksInk: tells which lines are ink, so that boards that know ink make it ink.
    explicit BoardDress(bool marksInk);

    //! Once for a document without pages: who made it, and what the lesson says about itself.
    static void startDocument(QDomDocument document, const QJsonObject &presentation);

    //! ink: the identifiers of elements that stand for strokes, and whether they are of a marker.
    void dress(QDomElement page, const QHash<QString, bool> &ink) const;

private:
    void dressElement(QDomElement element, const QHash<QString, bool> &ink) const;
    void dressBackground(QDomElement page) const;

    bool m_marksInk;
};

//! The name that this program writes as a document's creator, before its version.
constexpr char creatorName[] = "lessonconv";

//! What a document's meta says about a lesson, by the lesson's keys.
QJsonObject presentationInMeta(const QHash<QString, QString> &meta);

} // namespace lessonhost

#endif // BOARDDRESS_H
