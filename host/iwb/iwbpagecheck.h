// SPDX-License-Identifier: MIT
#ifndef IWBPAGECHECK_H
#define IWBPAGECHECK_H

#include "iwb/iwbmedia.h"
#include "iwb/iwbpagewriter.h"
#include "iwb/iwbslidereader.h"
#include "iwb/slidenames.h"
#include "lesson/shapegeometry.h"

#include <QHash>
#include <QVector>

namespace lessonhost {

/*!
 * Reads pages back, with the code that reads packages, before they are stored, and tells what isn't in them.
 */
class IwbPageCheck : private IwbReferences
{
public:
    explicit IwbPageCheck(IZQTransformation *plugin);

    //! What pages from now on may refer to beside what is known.
    void add(const IwbMedia::Additions &media);

    //! Compares the one page of a document with the slide that it was made from; number counts from 1.
    void compare(const QDomDocument &document, const LessonSlide &slide,
                 const QVector<IwbPageWriter::WrittenItem> &items, int number, const SlideLosses &losses);

    //! Compares what a document says of itself with the presentation.
    void comparePresentation(const QDomDocument &document, const QJsonObject &presentation,
                             const SlideLosses &losses) const;

    //! Tells of links to pages that never came. report: where, for what belongs to no page; null for nobody.
    void finish(int pageCount, LossReport *report) const;

private:
    // A value of a link to a page behind those that are written so far.
    struct PageLink
    {
        LossOwner owner;
        SlideLosses losses;
        QLatin1String key;
        QString value;
        int page;
    };

    QString resolve(const QString &reference, Sentence *problem) override;
    QString file(const QString &path) override { return m_placed.value(path).source; }
    int pageNumber(const QString &id) override;

    void compareSlide(const QJsonObject &given, const QJsonObject &found, const SlideLosses &losses) const;
    void compareGroups(const LessonSlide &slide, IwbSlideReader::Slide found,
                       const QVector<IwbPageWriter::WrittenItem> &items, int number, const SlideLosses &losses) const;
    void compareItem(const IwbPageWriter::WrittenItem &written, const QJsonObject &found, const QPolygonF &foundLine,
                     const SlideLosses &losses);
    bool isSameFile(const LossOwner &owner, const QJsonValue &given, const QJsonValue &found,
                    const SlideLosses &losses) const;

    IZQTransformation *m_plugin;
    QHash<QString, QString> m_files; // of the lesson, by path
    QHash<QString, IwbMedia::File> m_placed; // by reference
    IwbSlideReader m_reader;
    OutlineSource m_outlines;
    SlideNames m_names;
    QVector<PageLink> m_pageLinks;
};

} // namespace lessonhost

#endif // IWBPAGECHECK_H
