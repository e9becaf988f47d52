// SPDX-License-Identifier: MIT
#ifndef LESSONINFO_H
#define LESSONINFO_H

#include "lesson/lesson.h"

#include <QMap>

#include <functional>

namespace lessonhost {

/*!
 * What a lesson holds, counted.
 */
struct LessonInfo
{
    QString title;
    QString version;
    QString width;
    QString height;
    int slides = 0;
    QMap<QString, int> items; //!< by type, nested ones too
    QMap<QString, int> unknownItems; //!< by type: kept as they came
    int mindMapNodes = 0;
    int cards = 0;
    int questions = 0;
    QMap<QString, int> activities; //!< by kind
    int triggers = 0;
    int animatedItems = 0;
    int resources = 0;
    qint64 resourceBytes = 0;
    QStringList missingFiles; //!< named by the lesson and not there

    int itemCount() const;
    QString toText() const;
    QJsonObject toJson() const;
};

//! Calls visit for each file of the package that the properties of a slide or an item name, without those of the items
//! in it and of games.
void eachNamedFile(const QJsonValue &value, const std::function<void(const QString &file)> &visit);

//! Throws LessonError.
LessonInfo lessonInfo(LessonReader &reader, const Progress &progress);

} // namespace lessonhost

#endif // LESSONINFO_H
