// SPDX-License-Identifier: MIT
#ifndef IWBWRITER_H
#define IWBWRITER_H

#include "files/packagetarget.h"
#include "iwb/boarddress.h"
#include "iwb/iwbmedia.h"
#include "iwb/iwbpagecheck.h"
#include "iwb/iwbpagewriter.h"
#include "iwb/nativepart.h"
#include "lesson/lesson.h"
#include "lesson/missingfonts.h"
#include "losses/lossplaces.h"
#include "losses/slidelosses.h"
#include "threads/workbehind.h"

#include <QCryptographicHash>
#include <QDomDocument>

namespace lessonhost {

/*!
 * Writes a lesson as an IWB package: one document with a page for each slide, and the media that the pages show. Each
 * page is made in a document of its own, which then goes into the file. Another thread may do that, and look at what
 * the page has lost, while the next one is made, so that memory holds few of them.
 */
class IwbWriter : public LessonWriter
{
public:
    IwbWriter(const QString &path, const LessonContext &context);

    void expect(int slides, int resources) override;
    void begin(const QJsonObject &presentation) override;
    void addResource(const QString &relativePath, const QString &sourceFile) override;
    void writeSlide(const LessonSlide &slide) override;
    void settle() override
    {
        finishPages();
        m_packing.finish();
    }
    void finish() override;

private:
    // A page with its document, and what it was made of.
    struct MadePage
    {
        LessonSlide slide;
        int number = 0;
        QDomDocument document;
        QVector<IwbPageWriter::WrittenItem> items;
        IwbMedia::Additions media; // stored, without pictures
        qint64 leftOut = 0; // letters that the page would have, were it not only tried
        SlideLosses losses;
    };

    void start(const QJsonObject &firstSlide);
    void startPages();
    MadePage makePage(const LessonSlide &slide);
    void writePage(const MadePage &made);
    void finishPages();
    void finishDocument();
    void append(const QByteArray &text);
    void storeMedia(IwbMedia::Additions &media);
    void storePicture(const QString &reference, const QImage &picture, bool isPainted);
    void lookAtTexts(const QDomElement &page);
    [[noreturn]] void failWithoutPages() const;

    LessonContext m_context;
    LessonLosses m_losses;
    PackageTarget m_target;
    WorkBehind m_packing; // of pictures
    IwbMedia m_media;
    IwbPageWriter m_pages;
    QDomDocument m_empty; // of which each page gets a copy
    bool m_travels; // whether the lesson itself goes along
    bool m_makesPictures; // of what has no form
    QJsonObject m_presentation;
    QByteArray m_afterPages; // the document from the end of its pages to its end
    MissingFonts m_missing;
    int m_slides = 0;
    LossPlaces m_places; // of pages
    // Of who writes pages, until all are written:
    BoardDress m_dress;
    std::unique_ptr<IwbPageCheck> m_check; // null where nobody asks for one
    std::unique_ptr<NativePartWriter> m_native; // null where the lesson doesn't travel, or nothing is written
    QByteArray m_records; // about the items of the pages that are written; they stand behind all pages
    qint64 m_contentSize = 0; // of the document
    QCryptographicHash m_contentHash{QCryptographicHash::Sha1};
    int m_writtenPages = 0;
    WorkBehind m_writing; // ends before what it uses
};

} // namespace lessonhost

#endif // IWBWRITER_H
