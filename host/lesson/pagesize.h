// SPDX-License-Identifier: MIT
#ifndef PAGESIZE_H
#define PAGESIZE_H

#include <QSize>
#include <QString>

namespace lessonhost {

//! The page into which the plug-in fits the items of a slide with this source rectangle (x,y,width,height), by the
//! nearest of the usual proportions. A rectangle that isn't told is one of 4:3.
QSize pageOfSourceRect(const QString &sourceRect);

} // namespace lessonhost

#endif // PAGESIZE_H
