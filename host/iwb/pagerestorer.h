// SPDX-License-Identifier: MIT
#ifndef PAGERESTORER_H
#define PAGERESTORER_H

#include "iwb/iwbslidereader.h"
#include "iwb/nativepart.h"
#include "iwb/slidelinks.h"
#include "svg/svgnormalizer.h"

namespace lessonhost {

/*!
 * Makes a slide of a page that another program may have worked on since it was written: items whose elements are still
 * there unchanged are as they were, the others are what the page shows now.
 */
class PageRestorer
{
public:
    //! All of them have to live as long. isUntouched: the document is known to be the one that was written.
    PageRestorer(const SvgNormalizer &content, IwbSlideReader &reader, const QHash<QString, RecordText> &records,
                 const SlideLinks &links, bool isUntouched);

    //! ID is that of the slide as it was. index: of the page, from 0.
    LessonSlide restore(int index, const NativePage &native, const SlideLosses &losses);
    //! Whether each element that was asked for has the mark that it was written with.
    bool isAsMarked() const { return m_isAsMarked; }

private:
    // Which of the lesson's own items something was: the entry, and the number of the item among those that it holds.
    struct Origin
    {
        int entry = -1;
        int leaf = -1;
    };
    // The element of a part.
    struct Found
    {
        int child = -1; // of the page; -1 where it isn't there, or never was
        bool isIntact = false;
        int elements = 1; // which end in the child
    };
    struct Placed
    {
        int child; // of the page where it stands
        QJsonObject item;
        int group = -1; // of the document, for one that stands by itself
        Origin origin;
        bool isIntact = false;
        bool isBehind = false; // has no element and stands behind the child's item
    };
    // A part whose element is another, or none, now.
    struct Lost
    {
        QString id;
        Origin origin;
        bool isThere = false; // or a part of it
        bool isNamed = false; // what is called as it is there
        bool isIntact = false; //!< and is only read from its element because its group had turned it
    };

    void lookAtPage();
    QJsonObject properties();
    bool isMarked(int child, const QString &mark);
    int intactBackground(int number);
    bool isWhole(int child, const NativePage::Part &part);
    QVector<Found> findParts(const NativePage::Entry &entry);
    bool isOneGroup(const NativePage::Entry &entry, const QVector<Found> &found) const;
    void take(const NativePage::Part &part, const Found &found, bool isTaken);
    void placeEntries();
    void placeParts(int number, const QVector<Found> &found, int *last);
    void placeOthers(int number, const SlideLosses &losses);
    void placeRun(int begin, int end, int number, const SlideLosses &losses, UniqueIds &ids);
    QJsonArray grouped(int number, const SlideLosses &losses);
    QJsonObject linked(const Placed &placed, const QJsonObject &item);
    QJsonObject groupOf(int entry, const QVector<Placed> &members, const QJsonObject &made);
    bool holdsPlaces(int entry, const QVector<Placed> &members);
    const QVector<QJsonObject> &leavesOf(int entry);
    QJsonObject itemAt(const Origin &origin);
    void tell(const QString &slideId, const SlideLosses &losses);

    const SvgNormalizer &m_content;
    IwbSlideReader &m_reader;
    const QHash<QString, RecordText> &m_records;
    const SlideLinks &m_links;
    const bool m_isUntouched;

    const NativePage *m_native = nullptr;
    QVector<XmlPart> m_layers; // of the page
    QVector<QDomElement> m_children; // of these
    QHash<QString, QVector<int>> m_byId; // the children that stand for an identifier
    QHash<int, int> m_groupSizes; // of the document's groups on this page
    QVector<QDomElement> m_backgrounds; // of the page, where it isn't as it was
    QSet<int> m_taken; // children that need not be read
    QVector<Placed> m_placed;
    QVector<Lost> m_lost;
    QHash<QString, int> m_lostIds; // places in m_lost
    QHash<int, QVector<QJsonObject>> m_leaves; // what entries hold that were asked for
    QHash<int, int> m_goneOf; // how many parts of an entry aren't there
    QSet<int> m_lonely; // those of which the document shows one part at most
    QSet<int> m_opened; // entries that hold several items and aren't there as they were
    QVector<LossOwner> m_added;
    QVector<QJsonObject> m_unlinked; // items that led to a slide that is gone
    bool m_isAsMarked = true;
    bool m_hasOtherBackground = false;
    bool m_isReordered = false;
    int m_restored = 0;
};

} // namespace lessonhost

#endif // PAGERESTORER_H
