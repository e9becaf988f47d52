// SPDX-License-Identifier: MIT
#ifndef PDFOUTPUT_H
#define PDFOUTPUT_H

#include "files/packagetarget.h"
#include "render/pdfpages.h"
#include "render/pictureoutput.h"
#include "render/textlanguage.h"

#include <QSet>

#include <functional>

namespace lessonhost {

struct PlacedPicture;

/*!
 * A document with a page a slide: texts that are texts, a picture once for all pages, photographs as they came, and an
 * outline with a line a slide.
 */
class PdfOutput : public PictureOutput
{
public:
    //! store has to live as long.
    PdfOutput(const QString &path, const QString &title, const RenderSettings &settings, const PictureStore &store);
    ~PdfOutput() override;
    void add(const SlidePicture &picture) override;
    QStringList finish() override;

private:
    void work(const std::function<void()> &step);
    void checkThreads() const;
    void draw(const SlidePicture &picture);
    void draw(const PlacedPicture &picture, const QTransform &toPage);
    void drawLines(const QByteArray &svg, const QRectF &box, const QTransform &toPage, double opacity);

    RenderSettings m_settings;
    const PictureStore &m_store;
    QString m_title;
    PackageTarget m_target;
    std::unique_ptr<OutputFile> m_pagesFile; // becomes the document at the end
    std::unique_ptr<PdfPages> m_pages;
    QSet<QString> m_written; // pictures
    TextLanguage m_language;
};

} // namespace lessonhost

#endif // PDFOUTPUT_H
