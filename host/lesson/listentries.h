// SPDX-License-Identifier: MIT
#ifndef LISTENTRIES_H
#define LISTENTRIES_H

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lessonhost {

/*!
 * One entry of a list that an exercise holds: what stands on it, and what belongs to it.
 */
struct ListEntry
{
    QString text; //!< or the name of a picture
    QVector<ListEntry> entries;

    //! Its own text, and those of all entries below, as they stand.
    QStringList texts() const;
};

//! The entries of a list in JSON, in whatever objects and lists they are told; or of a plain text, whose entries stand
//! on lines of their own or have bars, semicolons or commas between. Of objects only those members are read whose names
//! say what they are: "front" and "back", "name" and "items" and the like.
QVector<ListEntry> listEntries(const QJsonValue &value);

} // namespace lessonhost

#endif // LISTENTRIES_H
