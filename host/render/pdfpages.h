// SPDX-License-Identifier: MIT
#ifndef PDFPAGES_H
#define PDFPAGES_H

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTransform>

namespace lessonhost {

/*!
 * A picture for the pages of a document. The content may be left out where one of the same name was handed over before.
 */
struct PdfPicture
{
    QByteArray name; //!< the same for the same picture; empty for one that is shown once
    QSize size; //!< pixels
    QByteArray jpeg; //!< goes into the document as it is
    QImage image; //!< where there is no jpeg
};

/*!
 * What a document tells about itself.
 */
struct PdfAbout
{
    QString title;
    QString language; //!< such as "zh"; empty for one that can't be told
};

/*!
 * The pages of a PDF document, one after the other. This is all that the library knows that makes them, a library of
 * its own: what it brings along would take as much memory as a whole conversion does. Sizes are in points, from above.
 * Functions throw std::runtime_error.
 */
class PdfPages
{
public:
    virtual ~PdfPages() = default;

    //! line: what the outline calls the page.
    virtual void beginPage(const QSizeF &size, const QString &line) = 0;
    //! A drawing that names nothing outside of it, stretched to a box, which a transform brings to the page. One that
    //! can't be drawn leaves the page as it was.
    virtual void drawSvg(const QByteArray &svg, const QRectF &box, const QTransform &transform, double opacity) = 0;
    virtual void drawPicture(const PdfPicture &picture, const QRectF &box, const QTransform &transform,
                             double opacity) = 0;
    virtual void endPage() = 0;
    //! The last pages and fonts are written.
    virtual void finish() = 0;
};

// What the library offers, by these names. The first makes pages that go to a device as they end; the second makes a
// document of a file of finished pages.
using MakePdfPages = PdfPages *(*)(QIODevice &device);
using CompletePdf = void (*)(const QByteArray &pagesFile, QIODevice &document, const PdfAbout &about);
constexpr const char *makePdfPagesName = "lessonMakePdfPages";
constexpr const char *completePdfName = "lessonCompletePdf";

} // namespace lessonhost

#endif // PDFPAGES_H
