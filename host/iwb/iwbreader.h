#ifndef IWBREADER_H
#define IWBREADER_H

#include "iwb/iwbitemreader.h"
#include "iwb/iwbpackage.h"
#include "lesson/lesson.h"
#include "losses/lossreport.h"
#include "svg/svgnormalizer.h"

#include <QSet>

namespace lessonhost {

/*!
 * Reads an IWB package into the lesson model.
 */
class IwbReader : public LessonReader
{
public:
    IwbReader(const QString &path, const LessonContext &context);

    QJsonObject presentation() override;
    int slideCount() override { return m_content.pageCount(); }
    LessonSlide slide(int index) override;
    QStringList resources() override { return m_package.resources(); }
    QString resourceFile(const QString &relativePath) override { return m_package.file(relativePath); }

private:
    QJsonObject readProperties(IwbPage &page);
    QString backgroundPicture(const IwbPage &page);
    QJsonObject readItem(IwbElement item, QHash<QString, int> &usedIds);
    QString mediaFile(const IwbElement &item);
    void readLink(const IwbElement &item, QJsonObject &json);
    void report(Loss::Kind kind, const QString &type, const QString &id, const QString &key, const QString &detail);
    void reportRemark(const SvgRemark &remark);

    LessonContext m_context;
    IwbPackage m_package;
    SvgNormalizer m_content;
    IwbItemReader m_items;
    QHash<QString, int> m_pageNumbers;
    QSet<int> m_reportedSlides;
    int m_slide = 0; // counted from 1, 0 where nothing is to be reported again
    bool m_isReporting = true;
};

} // namespace lessonhost

#endif // IWBREADER_H
