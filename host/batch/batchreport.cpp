// SPDX-License-Identifier: MIT
#include "batch/batchreport.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace lessonhost {

namespace {

const QLatin1String recordsFile("records");
constexpr int depthOfLists = 8; // blanks before an element

QByteArray indentedJson(const QByteArray &json, int blanks)
{
    QByteArray text = json.trimmed();
    return QByteArray(blanks, ' ') + text.replace('\n', '\n' + QByteArray(blanks, ' '));
}

} // namespace

BatchReportWriter::BatchReportWriter(TextSink sink)
    : m_sink(std::move(sink))
{
}

void BatchReportWriter::begin(const QJsonObject &head)
{
    QByteArray text = QJsonDocument(head).toJson();
    text.truncate(text.lastIndexOf('\n', text.lastIndexOf('}'))); // what closes it comes later
    m_sink(text + ",\n    \"lessons\": [");
}

void BatchReportWriter::put(const QByteArray &json)
{
    m_sink((m_isFirst ? "\n" : ",\n") + indentedJson(json, depthOfLists));
    m_isFirst = false;
}

void BatchReportWriter::add(const QJsonObject &lesson)
{
    put(QJsonDocument(lesson).toJson());
}

void BatchReportWriter::endLessons()
{
    m_sink("\n    ],\n    \"passedOver\": [");
    m_isFirst = true;
}

void BatchReportWriter::passOver(const QString &file)
{
    QByteArray json = QJsonDocument(QJsonArray{file}).toJson(QJsonDocument::Compact);
    put(json.mid(1, json.size() - 2));
}

void BatchReportWriter::end()
{
    m_sink("\n    ]\n}\n");
}

BatchRecords::BatchRecords(const BatchPlan &plan)
    : m_plan(plan)
    , m_path(m_folder.filePath(recordsFile))
    , m_file(std::make_unique<OutputFile>(m_path, m_path, OutputFile::Temporary))
    , m_places(plan.lessons.size())
{
}

BatchRecords::~BatchRecords() = default;

QJsonObject BatchRecords::entry(int index, BatchTotals::State state, const BatchWork &work) const
{
    const BatchPlan::Lesson &lesson = m_plan.lessons.at(index);
    return {{QStringLiteral("input"), lesson.input},
            {QStringLiteral("output"), lesson.output},
            {QStringLiteral("state"), BatchTotals::stateName(state, work)}};
}

void BatchRecords::put(int index, BatchTotals::State state, const QJsonObject &result, const Sentence &message,
                       const BatchWork &work)
{
    QJsonObject told = entry(index, state, work);
    if (state == BatchTotals::Failed) {
        told.insert(QStringLiteral("message"), message.english());
    } else {
        told.insert(work.resultKey, result);
    }
    const QByteArray json = QJsonDocument(told).toJson(QJsonDocument::Compact);
    m_places[index] = {m_file->size(), json.size()};
    m_file->put(json);
}

void BatchRecords::write(const BatchTotals &totals, const TextSink &sink)
{
    if (m_file) {
        m_file->finish();
        m_file.reset();
    }
    InputFile records(m_path);
    BatchReportWriter writer(sink);
    writer.begin(totals.toHead());
    for (int i = 0; i < m_places.size(); ++i) {
        const Place place = m_places.at(i);
        writer.add(place.size == 0 ? entry(i, BatchTotals::Open, *totals.work)
                                   : QJsonDocument::fromJson(records.bytes(place.begin, place.size)).object());
    }
    writer.endLessons();
    for (const QString &file : m_plan.passedOver) {
        writer.passOver(file);
    }
    writer.end();
}

} // namespace lessonhost
