// SPDX-License-Identifier: MIT
#ifndef BOARDDRESS_H
#define BOARDDRESS_H

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lessonhost {

/*!
 * The dress that other boards know: what the plug-in writes of a page is changed to what the public format has, and
 * nothing else stays. Readers here understand both.
 *
 * Points are "x,y x,y"; closed outlines are polygons, and so is what fills an open line; opacities go from 0 to 1;
 * turns are rotate(a,x,y) in degrees; hidden items stand beside the page; ends of lines are svg:tbreak. Records tell
 * backgrounds, arrows, flips, curtains, groups, items that give copies of themselves, and ink. Links that other boards
 * can't follow are none.
 */
class BoardDress
{
public:
    //! What the elements of a page don't say themselves, by their identifiers.
    struct Items
    {
        QHash<QString, bool> ink; //!< strokes, and whether they are of a marker
        QSet<QString> covers; //!< curtains
        QHash<QString, QString> flips; //!< "horizontal", "vertical" or "both"
        QVector<QStringList> groups; //!< of the elements of each
    };

    //! marksInk: tells which lines are ink, so that boards that know ink make it ink.
    explicit BoardDress(bool marksInk);

    //! Links to pages behind the last are none. Any may come where this isn't called.
    void setPageCount(int count) { m_pageCount = count; }

    //! Once for a document without pages: who made it, and what the lesson says about itself.
    static void startDocument(QDomDocument document, const QJsonObject &presentation);

    void dress(QDomElement page, const Items &items);

private:
    QDomElement dressLink(QDomElement link, const Items &items);
    QDomElement dressSound(QDomElement link, const Items &items);
    void dressElement(QDomElement element, const Items &items);
    void dressBackground(QDomElement page) const;
    void addGroup(QDomDocument document, const QStringList &items);
    bool canBeFollowed(const QString &target) const;

    bool m_marksInk;
    int m_pageCount = 0;
    void gatherParts(const QDomElement &element);

    QMap<QString, QStringList> m_elements; // identifiers of those that stand for an item of the page
    QStringList m_parts; // of the item whose element comes next
};

//! The name that this program writes as a document's creator, before its version.
constexpr char creatorName[] = "lessonconv";

//! An attribute of links that stand for films, which isn't written.
constexpr char filmMark[] = "film";

//! What the sign within a link is called that stands for a sound or a film.
QString signIdOf(const QDomElement &link);

//! What a document's meta says about a lesson, by the lesson's keys.
QJsonObject presentationInMeta(const QHash<QString, QString> &meta);

//! The same, of what it says otherwise than the document that was written of a lesson.
QJsonObject changedInMeta(const QHash<QString, QString> &meta, const QJsonObject &presentation);

} // namespace lessonhost

#endif // BOARDDRESS_H
