#ifndef PICTUREOUTPUT_H
#define PICTUREOUTPUT_H

#include "files/packagetarget.h"

#include <QSize>
#include <QStringList>
#include <QVector>

#include <memory>

namespace lessonhost {

struct SlidePicture;

//! No picture or page is wider or higher, in pixels.
constexpr int largestSide = 16384;

/*!
 * Takes the pictures one after the other and puts everything in its place at the end.
 */
class PictureOutput
{
public:
    virtual ~PictureOutput() = default;
    virtual void add(const SlidePicture &picture) = 0;
    virtual QStringList finish() = 0;
};

/*!
 * One page with all pictures, and whatever else is put between them.
 */
class HtmlOutput : public PictureOutput
{
public:
    HtmlOutput(const QString &path, const QString &title);
    void add(const SlidePicture &picture) override;
    void addHtml(const QByteArray &html);
    QStringList finish() override;

private:
    PackageTarget m_target;
};

//! The output of a name: .html and .pdf for all slides, .svg and .png for one each, with %d in the name for its number.
//! size: of each
//! picture or page in pixels, empty for that of the slide. slides: counted from 0. Throws LessonError for any other
//! name.
std::unique_ptr<PictureOutput> pictureOutput(const QString &path, const QString &title, const QSize &size,
                                             const QVector<int> &slides);

} // namespace lessonhost

#endif // PICTUREOUTPUT_H
