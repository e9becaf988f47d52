// SPDX-License-Identifier: MIT
#ifndef IWBSLIDEREADER_H
#define IWBSLIDEREADER_H

#include "iwb/iwbitemreader.h"
#include "lesson/lesson.h"
#include "losses/slidelosses.h"

#include <QHash>
#include <QPolygonF>

namespace lessonhost {

class UniqueIds;

/*!
 * What the references of a page mean: files, and other pages.
 */
class IwbReferences
{
public:
    virtual ~IwbReferences() = default;

    //! The path in the lesson of the file that a reference means, or nothing and the reason as a clause.
    virtual QString resolve(const QString &reference, Sentence *problem) = 0;
    //! Where a path in the lesson lies on disk.
    virtual QString file(const QString &path) = 0;
    //! The path in the lesson of a picture as large as a page that shows a smaller one again and again. picture: its
    //! path; tile: how large it is each time, empty for its own size.
    virtual QString repeated(const QString &picture, const QSizeF &tile)
    {
        Q_UNUSED(tile)
        return picture;
    }
    //! The number of the page with that identifier, from 1; 0 for none.
    virtual int pageNumber(const QString &id) = 0;
    //! The same of the page on which the element with that identifier stands.
    virtual int pageOfElement(const QString &) { return 0; }
};

/*!
 * Makes a slide of an IWB page, whether it came out of a package or is about to go into one.
 */
class IwbSlideReader
{
public:
    //! references: they have to live as long.
    IwbSlideReader(IZQTransformation *plugin, IwbReferences *references);

    struct Slide
    {
        LessonSlide slide; //!< without ID
        QStringList elementIds; //!< for each item, the identifier that its element has in the page
        QVector<int> groups; //!< for each, which of the document's groups it belongs to, or -1
        QHash<int, QPolygonF> lines; //!< the points of items that are ink without their steps, by their places
    };
    //! How ink comes: as any item, or with its points beside it.
    enum class Ink { Steps, Lines };

    //! number counts from 1 and names items that have no identifier. page is changed on the way.
    Slide read(IwbPage page, int number, const SlideLosses &losses);
    //! The same with all items by themselves. What the page passes over is there, with its identifier alone.
    Slide readLoose(IwbPage page, int number, const SlideLosses &losses, UniqueIds &ids, Ink ink = Ink::Steps);
    //! The properties of the slide alone.
    QJsonObject readBackground(IwbPage page) { return readProperties(page, {}); }
    //! Puts the items of groups into items that are groups, which nothing stands between.
    static void putIntoGroups(Slide &slide, int number, UniqueIds &ids, const SlideLosses &losses);

private:
    QJsonObject readProperties(IwbPage &page, const SlideLosses &losses);
    QJsonObject readItem(IwbElement item, const SlideLosses &losses);
    QString mediaFile(const IwbElement &item, const SlideLosses &losses);
    void readLink(const IwbElement &item, const SlideLosses &losses, QJsonObject &json);

    IZQTransformation *m_plugin;
    IwbReferences *m_references;
    IwbItemReader m_items;
};

} // namespace lessonhost

#endif // IWBSLIDEREADER_H
