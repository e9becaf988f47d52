// SPDX-License-Identifier: MIT
#ifndef SLIDEFILES_H
#define SLIDEFILES_H

#include "files/packagetarget.h"
#include "render/pageprinter.h"
#include "render/pictureoutput.h"

namespace lessonhost {

/*!
 * A picture a slide, as a file each.
 */
class SlideFiles : public PictureOutput
{
public:
    //! path: the name of the files with the place of their numbers, or of the folder that they go into. store has to
    //! live as long.
    SlideFiles(const QString &path, const RenderSettings &settings, const PictureStore &store);
    void add(const SlidePicture &picture) override;
    QStringList finish() override;

private:
    void refuseHuge(const SlidePicture &picture, const QSize &size) const;
    QByteArray svgOf(const SlidePicture &picture) const;
    void draw(const SlidePicture &picture, OutputFile &file);

    RenderSettings m_settings;
    const PictureStore &m_store;
    PackageTarget m_target;
    PagePrinter m_printer;
    QString m_folder; // with the separator at its end
    QString m_name; // with the place of the number
    QStringList m_files;
};

} // namespace lessonhost

#endif // SLIDEFILES_H
