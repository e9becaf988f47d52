// SPDX-License-Identifier: MIT
#ifndef CLOSEDSVG_H
#define CLOSEDSVG_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace lessonhost {

/*!
 * A drawing in svg that leads nowhere: what it shows stands in it, and nothing of it runs.
 */
struct ClosedSvg
{
    //! The picture that a reference in a drawing means, as an address "data:image/...", or nothing.
    using PictureAddress = std::function<QString(const QString &reference)>;

    QByteArray text;
    int files = 0; //!< pictures that were taken from other files into the text
    QStringList leftOut; //!< references to pictures that addressOf() has nothing for
    bool isEmpty = true; //!< whether it holds nothing that is drawn
};

//! Of a drawing keeps what draws, within bounds; pictures are what addressOf() gives. References that are left lead
//! into the drawing itself. Throws LessonError for what is no svg.
ClosedSvg closedSvg(const QByteArray &svg, const QString &displayName, const ClosedSvg::PictureAddress &addressOf);

} // namespace lessonhost

#endif // CLOSEDSVG_H
