// SPDX-License-Identifier: MIT
#ifndef RENDERWORDS_H
#define RENDERWORDS_H

#include <QStringList>

namespace lessonhost {

class Call;

//! What the word render does.
int renderOne(const Call &call, const QStringList &files);
int renderMany(const Call &call, const QStringList &inputs);
//! Side by side.
int renderTwo(const Call &call, const QStringList &files);
//! Of a worker process.
int servePictures(const Call &call, const QStringList &files);

//! What the word show does.
int show(const Call &call, const QStringList &files);

//! True: all of these draw.
bool picturesMeasureText(const Call &call, const QStringList &files);

} // namespace lessonhost

#endif // RENDERWORDS_H
