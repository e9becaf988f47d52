#ifndef PDFOUTPUT_H
#define PDFOUTPUT_H

#include "files/packagetarget.h"
#include "render/pageprinter.h"
#include "render/pictureoutput.h"

#include <QPainter>
#include <QPdfWriter>

namespace lessonhost {

/*!
 * A document with a page a slide.
 */
class PdfOutput : public PictureOutput
{
public:
    //! store has to live as long.
    PdfOutput(const QString &path, const QString &title, const RenderSettings &settings, const PictureStore &store);
    void add(const SlidePicture &picture) override;
    QStringList finish() override;

private:
    RenderSettings m_settings;
    PackageTarget m_target;
    PagePrinter m_printer;
    QPdfWriter m_writer;
    QPainter m_painter;
};

} // namespace lessonhost

#endif // PDFOUTPUT_H
