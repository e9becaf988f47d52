#ifndef IWBWRITER_H
#define IWBWRITER_H

#include "iwbitemwriter.h"
#include "lesson.h"
#include "lossreport.h"
#include "packagetarget.h"

#include <QDir>
#include <QTemporaryDir>

/*!
 * Writes a lesson as an IWB package: one document with a page for each slide, and the media that the pages show.
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
    QJsonObject pageProperties(const QJsonObject &properties);
    QString backgroundFile(const QJsonObject &properties, const QString &id);
    void fillPage(QDomElement &page) const;
    void reportUncarried(const QJsonObject &properties, const QString &type, const QStringList &carried);
    void report(Loss::Kind kind, const QString &type, const QString &key, const QString &detail);
    void reportTotals();
    [[noreturn]] void failToPlace(const QString &file) const;
    void checkMedia(const QDomElement &element, const QDir &folder) const;
    void moveMedia();

    LessonContext m_context;
    LossReport m_unwanted; // where nobody asks for a report
    PackageTarget m_target;
    QTemporaryDir m_work;
    LessonFiles m_files;
    QJsonObject m_presentation;
    QDomDocument m_document;
    QSizeF m_pageSize;
    std::unique_ptr<IwbItemWriter> m_items;
    int m_slides = 0;
};

#endif // IWBWRITER_H
