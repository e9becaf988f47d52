// SPDX-License-Identifier: MIT
#ifndef PAGERESTORER_H
#define PAGERESTORER_H

#include "iwb/iwbslidereader.h"
#include "iwb/nativepart.h"
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
    PageRestorer(const SvgNormalizer &content, IwbSlideReader &reader, const QHash<QString, QString> &records,
                 bool isUntouched);

    //! ID is that of the slide as it was. index: of the page, from 0.
    LessonSlide restore(int index, const NativePage &native, const SlideLosses &losses);

private:
    struct Placed
    {
        int child; // of the page where it stands
        QJsonObject item;
        int group = -1; // of the document, for one that stands by itself
    };

    void lookAtPage();
    bool isOneGroup(const NativePage::Entry &entry) const;
    bool isIntact(const NativePage::Part &part);
    const QString &markOf(int child);
    void placeEntries(const NativePage &native);
    void placeOthers(int number, const SlideLosses &losses);
    QJsonArray grouped(int number, const SlideLosses &losses);
    QJsonObject properties(const NativePage &native, int number, const SlideLosses &losses);
    void tell(const SlideLosses &losses) const;

    const SvgNormalizer &m_content;
    IwbSlideReader &m_reader;
    const QHash<QString, QString> &m_records;
    const bool m_isUntouched;

    QVector<XmlPart> m_layers; // of the page
    QVector<QDomElement> m_children; // of these
    QHash<QString, int> m_byId; // the child in which an element stands
    QHash<int, QString> m_marks; // of children that were asked for
    QHash<int, int> m_groupSizes; // of the document's groups on this page
    QHash<int, QJsonObject> m_groups; // what they were, where other programs have changed what is in them
    QSet<int> m_taken; // children that need not be read
    QVector<Placed> m_placed;
    int m_restored = 0;
    int m_changed = 0;
    int m_gone = 0;
    int m_others = 0;
};

} // namespace lessonhost

#endif // PAGERESTORER_H
