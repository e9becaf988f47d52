// SPDX-License-Identifier: MIT
#ifndef IWBREADER_H
#define IWBREADER_H

#include "iwb/iwbpackage.h"
#include "iwb/iwbslidereader.h"
#include "iwb/nativepart.h"
#include "iwb/slidelinks.h"
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
    int slideCount() override { return m_package.outline().pageCount(); }
    LessonSlide slide(int index) override;
    QStringList resources() override { return m_resources.keys() + m_repeated.keys(); }
    QString resourceFile(const QString &relativePath) override
    {
        const QString made = m_repeated.value(relativePath);
        return made.isEmpty() ? m_package.file(m_resources.value(relativePath, relativePath)) : made;
    }

private:
    LessonSlide slide(int index, const SlideLosses &losses);
    void nameSlides();
    void tellSlides(const SlideLosses &losses) const;
    void nameUnreadMeta(const SlideLosses &losses) const;
    QSet<QString> madePicturesInUse();
    void nameResources();
    QString resolve(const QString &reference, Sentence *problem) override
    {
        const QString path = m_package.resolve(reference, problem);
        m_asked.insert(path);
        return m_lessonPaths.value(path, path);
    }
    QString file(const QString &path) override { return resourceFile(path); }
    bool hasRepeatedBackgrounds() const;
    void repeatBackgrounds();
    QString repeated(const QString &picture, const QSizeF &tile) override;
    int pageNumber(const QString &id) override { return m_pageNumbers.value(id); }
    int pageOfElement(const QString &id) override { return m_package.outline().pageOf(id) + 1; }

    IZQTransformation *m_plugin;
    LessonLosses m_losses;
    IwbPackage m_package;
    SvgNormalizer m_content;
    IwbSlideReader m_slides;
    NativePart m_native;
    QMap<QString, QString> m_resources; // paths in the package by those in the lesson
    QHash<QString, QString> m_lessonPaths; // the other way round
    QMap<QString, QString> m_repeated; // files on disk of pictures that were made here, by their paths in the lesson
    QHash<QString, QString> m_repetitions; // their paths, by what they repeat
    QSet<QString> m_asked; // paths that the pages show
    QHash<QString, int> m_pageNumbers;
    QStringList m_slideIds; // of slides that are read from their pages
    QSet<int> m_intactPages; // of which all elements were found to be as they were written
    QVector<bool> m_isNative; // whether a page was made of a slide that has come along
    SlideLinks m_links; // of what has come along
};

} // namespace lessonhost

#endif // IWBREADER_H
