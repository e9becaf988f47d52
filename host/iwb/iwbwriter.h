// SPDX-License-Identifier: MIT
#ifndef IWBWRITER_H
#define IWBWRITER_H

#include "files/packagetarget.h"
#include "files/workbehind.h"
#include "iwb/boarddress.h"
#include "iwb/iwbmedia.h"
#include "iwb/iwbpagecheck.h"
#include "iwb/iwbpagewriter.h"
#include "iwb/nativepart.h"
#include "lesson/lesson.h"
#include "lesson/missingfonts.h"
#include "losses/slidelosses.h"

#include <QCryptographicHash>

namespace lessonhost {

/*!
 * Writes a lesson as an IWB package: one document with a page for each slide, and the media that the pages show. Each
 * page goes into the document's file when it is complete, so that memory holds one of them.
 */
class IwbWriter : public LessonWriter
{
public:
    IwbWriter(const QString &path, const LessonContext &context);

    void expect(int slides, int resources) override;
    void begin(const QJsonObject &presentation) override;
    void addResource(const QString &relativePath, const QString &sourceFile) override;
    void writeSlide(const LessonSlide &slide) override;
    void finish() override;

private:
    void start(const QJsonObject &firstSlide);
    void startPages();
    void writePage(const QDomElement &page);
    void finishPages();
    void append(const QByteArray &text);
    void storeMedia();
    void storePicture(const QString &reference, const QImage &picture, bool isPainted);
    void lookAtTexts(const QDomElement &page);
    [[noreturn]] void failWithoutPages() const;

    LessonContext m_context;
    LessonLosses m_losses;
    PackageTarget m_target;
    WorkBehind m_packing; // of pictures
    IwbMedia m_media;
    IwbPageWriter m_pages;
    BoardDress m_dress;
    bool m_travels; // whether the lesson itself goes along
    bool m_makesPictures; // of what has no form
    std::unique_ptr<NativePartWriter> m_native; // null where it doesn't, or nothing is written
    std::unique_ptr<IwbPageCheck> m_check; // null where nobody asks for one
    QJsonObject m_presentation;
    QByteArray m_records; // about the items of the pages that are written; they stand behind all pages
    QByteArray m_afterPages; // the document from the end of its pages to its end
    MissingFonts m_missing;
    int m_slides = 0;
    qint64 m_contentSize = 0; // of the document
    QCryptographicHash m_contentHash{QCryptographicHash::Sha1};
};

} // namespace lessonhost

#endif // IWBWRITER_H
