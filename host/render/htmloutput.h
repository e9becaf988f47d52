#ifndef HTMLOUTPUT_H
#define HTMLOUTPUT_H

#include "files/packagetarget.h"
#include "render/pictureoutput.h"

#include <QDomElement>
#include <QSet>

namespace lessonhost {

/*!
 * One page with all slides, and whatever else is put between them. A picture stands before the first slide that shows
 * it, and slides refer to it.
 */
class HtmlOutput : public PictureOutput
{
public:
    //! store has to live as long.
    HtmlOutput(const QString &path, const QString &title, const PictureStore &store);
    void add(const SlidePicture &picture) override;
    void addHtml(const QByteArray &html);
    QStringList finish() override;

private:
    QDomElement referring(const QDomElement &svg);
    void addPicture(const QString &name);

    const PictureStore &m_store;
    PackageTarget m_target;
    QSet<QString> m_written; // pictures
    int m_widest = 1; // slide, which is as wide as there is room; others are in proportion
};

} // namespace lessonhost

#endif // HTMLOUTPUT_H
