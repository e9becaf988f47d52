// SPDX-License-Identifier: MIT
#ifndef RENDERSETTINGS_H
#define RENDERSETTINGS_H

#include "files/inputguard.h"

#include <QColor>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace lessonhost {

//! No picture or page is wider or higher, in pixels.
constexpr int largestSide = 16384;

/*!
 * A form that pictures of slides are written in.
 */
struct PictureForm
{
    enum Kind { Html, Pdf, Svg, Png, Jpeg, Webp };

    Kind kind;
    QString name;
    QStringList extensions; //!< lower case, without the point
    bool isPerSlide; //!< a file a slide
    bool hasSize; //!< it can be written larger and smaller
    bool hasPixels;
    bool isOpaque; //!< nothing shows through
};

//! All forms, in the order of the help.
const QVector<PictureForm> &pictureForms();

//! The form of that name or extension. Throws LessonError.
const PictureForm &pictureFormByName(const QString &name);

//! The form that an output's name tells. Throws LessonError.
const PictureForm &pictureFormOfOutput(const QString &path);

/*!
 * Where a page stands in its picture.
 */
struct PageFrame
{
    QSizeF size; //!< of the picture
    QRectF page; //!< in the picture

    QSize pixels() const { return size.toSize().expandedTo(QSize(1, 1)); }
};

/*!
 * How large pictures are, whatever the size of their pages is.
 */
struct PictureSize
{
    static constexpr double pageDotsPerInch = 96; //!< what a pixel of a page is

    QSize box; //!< the page fits into it; a side of 0 doesn't count
    bool isFilled = false; //!< the picture is the whole box, with the page in its middle
    double scale = 1; //!< of the page's own size, where there is no box

    PageFrame frameOf(const QSizeF &page) const;
};

/*!
 * How a lesson is drawn.
 */
struct RenderSettings
{
    const PictureForm *form = nullptr;
    PictureSize size;
    std::optional<QColor> ground; //!< in place of the slides' own colours; may let everything through
    QVector<int> slides; //!< counted from 0; empty for all
    InputGuard inputs; //!< what is read, which no output may touch
    bool isKept = false; //!< what is there already, and nothing is drawn then
    bool isEmbedded = false; //!< a page has all files in it
    bool isFolder = false; //!< several files go into a folder of the output's name
};

//! Whether a name is one that lessons are drawn into, by its ending.
bool isPictureName(const QString &path);

//! The value of an option, or a null text where it isn't given.
using OptionValue = std::function<QString(const char *option)>;

//! What options say: slides, width, height, size, pad, scale, dpi, background and embed. Throws LessonError for values that
//! are none, and for options that can't change anything about pictures of that form.
RenderSettings renderSettings(const PictureForm &form, const OptionValue &valueOf);

} // namespace lessonhost

#endif // RENDERSETTINGS_H
