// SPDX-License-Identifier: MIT
#ifndef ACTIVITYPICTURES_H
#define ACTIVITYPICTURES_H

#include <QDomElement>
#include <QJsonObject>
#include <QMap>
#include <QString>

namespace lessonhost {

// The pictures of a classroom game. Editors know them by paths on their machine, below the application's pictures (the
// first entry of the search path "imageDir", then "Canvas/") or below its data; documents and the model name them by
// references, to which the plug-in puts those directories when it reads.

//! A slide's keys as the plug-in read them from root, with the pictures as the document names them.
QJsonObject withReferencesOf(const QDomElement &root, QJsonObject slide);

//! A slide's keys with a reference for each path on this machine, such that a read gives the path again, and with a
//! background that stands beside templet where a read looks for it.
QJsonObject withShortPictures(QJsonObject slide);

//! A slide's keys with the path in the package for each picture that lies in the application's data, and with short
//! references for the others.
QJsonObject withPackagedPictures(QJsonObject slide);

//! The pictures of a slide that lie in the application's data: file names by the paths that they have in a package.
QMap<QString, QString> picturesInData(const QJsonObject &slide);

} // namespace lessonhost

#endif // ACTIVITYPICTURES_H
