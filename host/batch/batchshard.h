// SPDX-License-Identifier: MIT
#ifndef BATCHSHARD_H
#define BATCHSHARD_H

#include <QString>

namespace lessonhost {

/*!
 * The part of many lessons that one of several runs takes. What falls to it is told by a lesson's place alone, so that
 * the runs need no list and needn't know of each other.
 */
struct BatchShard
{
    int number = 0; //!< from 1
    int count = 0; //!< of all shards; 0 where a run takes all lessons

    bool isWhole() const { return count == 0; }

    //! place: a lesson's way from the folder that is searched. Lessons that differ in their ending alone fall to one
    //! shard, as do small letters and capitals: their results could have one name.
    bool has(const QString &place) const;

    //! "3of16", for names of files; empty for all lessons.
    QString fileName() const;
};

//! The ending of archives that don't say what is in them.
extern const QLatin1String archiveEnding;

//! The name of a lesson without its ending, if that is the one of a format: "Lesson 1.2" keeps its number.
QString lessonStem(const QString &path);

} // namespace lessonhost

#endif // BATCHSHARD_H
