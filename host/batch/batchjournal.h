// SPDX-License-Identifier: MIT
#ifndef BATCHJOURNAL_H
#define BATCHJOURNAL_H

#include "batch/batchplan.h"

#include <QHash>
#include <QJsonObject>

namespace lessonhost {

/*!
 * What runs over many lessons have done in a folder, kept there in the file ".lessonconv-done": a line of JSON a
 * lesson, written when its result is in place. A run that is killed loses at most its last line, and with it the
 * knowledge that one lesson is done. Of several lines about a result the last one counts.
 *
 * Each shard has a journal of its own, which no two runs hold at the same time.
 */
class BatchJournal
{
public:
    //! Where the journal of a folder is.
    static QString fileIn(const QString &outputFolder, const BatchShard &shard = {});

    //! settings: whatever makes the same lesson give another result, such as the version. readsOthers: what was done
    //! in another number of shards is known as well. Throws LessonError, also where another run has this shard.
    BatchJournal(const QString &outputFolder, const QByteArray &settings, const BatchPlan &plan, bool readsOthers);
    ~BatchJournal();
    BatchJournal(const BatchJournal &) = delete;
    BatchJournal &operator=(const BatchJournal &) = delete;

    //! What note() was given when the result was made, if neither the lesson, nor the settings, nor the result have
    //! changed since; otherwise an empty object.
    QJsonObject doneBefore(const BatchPlan::Lesson &lesson);

    //! Remembers the lesson as it was when doneBefore() or stateOf() was asked before the conversion. Throws
    //! LessonError.
    void note(const BatchPlan::Lesson &lesson, const QString &state, const QJsonObject &result);

    //! Sizes and times of all files of a lesson, as a short text.
    QString stateOf(const BatchPlan::Lesson &lesson);

private:
    void write(const QByteArray &text) const;
    QString pathOf(const BatchPlan::Lesson &lesson) const;
    int opened() const;
    void hold(); // opens the file, and locks that of a shard
    void readOthers(const BatchPlan &plan);
    void read();
    void dropOldLines();

    QString m_folder;
    BatchShard m_shard;
    QString m_file;
    QByteArray m_settings;
    int m_descriptor = -1; // of the file, to write at its end
    QHash<QString, QJsonObject> m_lines; // by output
    int m_lineCount = 0; // in the file
    QHash<QString, QByteArray> m_folderStates; // folders that many files share
};

} // namespace lessonhost

#endif // BATCHJOURNAL_H
