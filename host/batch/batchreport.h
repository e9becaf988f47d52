// SPDX-License-Identifier: MIT
#ifndef BATCHREPORT_H
#define BATCHREPORT_H

#include "batch/batchplan.h"
#include "batch/batchresult.h"
#include "files/outputfile.h"
#include "files/workfolder.h"

#include <QVector>

#include <functional>
#include <memory>

namespace lessonhost {

//! Takes a piece of a text. May throw LessonError.
using TextSink = std::function<void(const QByteArray &piece)>;

/*!
 * Writes a report on many lessons piece by piece, so that it may be larger than the memory. Calls come in the order of
 * the functions.
 */
class BatchReportWriter
{
public:
    explicit BatchReportWriter(TextSink sink);

    //! head: BatchTotals::toHead().
    void begin(const QJsonObject &head);
    //! {"input", "output", "state", BatchWork::resultKey or "message"}
    void add(const QJsonObject &lesson);
    void endLessons();
    void passOver(const QString &file);
    void end();

private:
    void put(const QByteArray &json);

    TextSink m_sink;
    bool m_isFirst = true; // of the list
};

/*!
 * What became of the lessons of a plan, in the order in which it happens: kept among the temporary files until all of
 * it can be told. Functions throw LessonError.
 */
class BatchRecords
{
public:
    explicit BatchRecords(const BatchPlan &plan);
    ~BatchRecords();

    //! index: in the plan. result: what the work made of it, where there is something.
    void put(int index, BatchTotals::State state, const QJsonObject &result, const Sentence &message,
             const BatchWork &work);

    //! Writes the report, with lessons that nothing was put for as open ones.
    void write(const BatchTotals &totals, const TextSink &sink);

private:
    struct Place
    {
        qint64 begin = 0;
        qint64 size = 0;
    };

    QJsonObject entry(int index, BatchTotals::State state, const BatchWork &work) const;

    const BatchPlan &m_plan;
    WorkFolder m_folder;
    QString m_path;
    std::unique_ptr<OutputFile> m_file;
    QVector<Place> m_places; // by index
};

//! Puts the reports of several runs together, of any size: lessons in one order, without what fills many pages of each,
//! which stays in the reports. sink: for the whole report; may be empty. Returns its totals, with the first failures in
//! the list. Throws LessonError for what is no such report, for reports of different works or shards, and for a lesson
//! that is in two of them.
BatchTotals mergeReports(const QStringList &reports, const TextSink &sink, QStringList *failures);

} // namespace lessonhost

#endif // BATCHREPORT_H
