// SPDX-License-Identifier: MIT
#ifndef PICTURESIZE_H
#define PICTURESIZE_H

#include <QSize>
#include <QString>

//! The size of a picture in pixels, 0 x 0 for a file that is no picture. Works in a host without a QGuiApplication, and
//! opens no other file.
QSize pictureSize(const QString &file);

#endif // PICTURESIZE_H
