#ifndef IWBREADER_H
#define IWBREADER_H

#include "iwb/iwbpackage.h"
#include "iwb/iwbslidereader.h"
#include "svg/svgnormalizer.h"

namespace lessonhost {

/*!
 * Reads an IWB package into the lesson model.
 */
class IwbReader : public LessonReader, private IwbReferences
{
public:
    IwbReader(const QString &path, const LessonContext &context);

    QJsonObject presentation() override;
    int slideCount() override { return m_content.pageCount(); }
    LessonSlide slide(int index) override;
    QStringList resources() override { return m_package.resources(); }
    QString resourceFile(const QString &relativePath) override { return m_package.file(relativePath); }

private:
    QString resolve(const QString &reference, QString *problem) override
    {
        return m_package.resolve(reference, problem);
    }
    QString file(const QString &path) override { return m_package.file(path); }
    int pageNumber(const QString &id) override { return m_pageNumbers.value(id); }

    IZQTransformation *m_plugin;
    LessonLosses m_losses;
    IwbPackage m_package;
    SvgNormalizer m_content;
    IwbSlideReader m_slides;
    QHash<QString, int> m_pageNumbers;
    QStringList m_slideIds;
};

} // namespace lessonhost

#endif // IWBREADER_H
