#ifndef IWBWRITER_H
#define IWBWRITER_H

#include "files/packagetarget.h"
#include "iwb/iwbitemwriter.h"
#include "lesson/lesson.h"
#include "losses/lossreport.h"

#include <QDir>
#include <QSizeF>

namespace lessonhost {

class Picture;

/*!
 * Writes a lesson as an IWB package: one document with a page for each slide, and the media that the pages show. Each
 * page goes into the document's file when it is complete, so that memory holds one of them.
 */
class IwbWriter : public LessonWriter
{
public:
    IwbWriter(const QString &path, const LessonContext &context);

    void begin(const QJsonObject &presentation) override;
    void addResource(const QString &relativePath, const QString &sourceFile) override;
    void writeSlide(const LessonSlide &slide) override;
    void finish() override;

private:
    void startDocument(const QJsonObject &firstSlide);
    void startPages();
    void writePage(const QDomElement &page);
    void finishPages();
    QDomElement pageSet() const;
    QJsonObject pageProperties(const QJsonObject &properties);
    QString backgroundFile(const QJsonObject &properties, const QString &id);
    bool placeAsPng(const Picture &picture, const QString &source, const QString &reference, const QString &file) const;
    void placeBackground(const QDomElement &page) const;
    void append(const QByteArray &text);
    void fillPage(QDomElement &page) const;
    void reportUncarried(const QJsonObject &properties, const QString &type, const QStringList &carried);
    void report(Loss::Kind kind, const QString &type, const QString &key, const QString &detail);
    void reportTotals();
    [[noreturn]] void failWithoutPages() const;
    [[noreturn]] void failToPlace(const QString &file) const;
    void checkMedia(const QDomElement &element) const;
    void moveMedia();

    LessonContext m_context;
    LossReport m_unwanted; // where nobody asks for a report
    PackageTarget m_target;
    LessonFiles m_files;
    QJsonObject m_presentation;
    QDomDocument m_document; // without the pages that are written
    QByteArray m_records; // about the items of those pages; they stand behind all pages
    QByteArray m_afterPages; // the document from the end of its pages to its end
    QSizeF m_pageSize;
    std::unique_ptr<IwbItemWriter> m_items;
    int m_slides = 0;
    qint64 m_contentSize = 0; // of the document
};

} // namespace lessonhost

#endif // IWBWRITER_H
