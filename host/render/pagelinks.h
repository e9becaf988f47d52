// SPDX-License-Identifier: MIT
#ifndef PAGELINKS_H
#define PAGELINKS_H

#include <QJsonObject>
#include <QString>

namespace lessonhost {

class IwbMedia;
class PageFiles;

//! Where a link leads that an item or a script has, for the page of a lesson: {"page": 3}, {"page": "next"},
//! {"web": "https://..."}, {"file": number in files} or {"tip": text}. Empty for one that leads nowhere, and for an
//! address that is none of the web.
QJsonObject pageLink(const QString &kind, const QString &value, IwbMedia &media, PageFiles &files);

} // namespace lessonhost

#endif // PAGELINKS_H
