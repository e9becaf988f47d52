// SPDX-License-Identifier: MIT
#include "batch/batchreport.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "formats/jsonwalker.h"

#include <QPair>

#include <memory>
#include <queue>
#include <vector>

namespace lessonhost {

namespace {

const QLatin1String lessonsKey("lessons");
const QLatin1String passedOverKey("passedOver");

// All reports together hold no more than that, and none less.
constexpr qint64 heldBytes = qint64(16) * 1024 * 1024;
constexpr qint64 leastPiece = qint64(4) * 1024;
constexpr qint64 mostPiece = qint64(64) * 1024;
constexpr int mostFailures = 20;

/*!
 * A report that is read lesson by lesson. It is open only while a piece is read: there may be more of them than a
 * process may have files open.
 */
class ReportReader final : public JsonWalker
{
public:
    ReportReader(const QString &path, int pieceSize)
        : JsonWalker(path, say("Give files that lessonconv has written with --report about many lessons"), pieceSize)
        , m_path(path)
    {
        setSize(InputFile(path).size());
        readHead();
    }

    const QString &path() const { return m_path; }
    const BatchTotals &totals() const { return m_totals; }

    //! Goes on to the next lesson; false behind the last one.
    bool next()
    {
        if (comesNext(']')) {
            expect(']');
            return false;
        }
        if (!m_isFirst) {
            expect(',');
        }
        m_isFirst = false;
        const Place before = m_place;
        readLesson();
        if (m_place < before) {
            fail(say("The lessons of this report aren't in their order"), position());
        }
        return true;
    }

    //! Ascends from lesson to lesson.
    using Place = QPair<QString, QString>;
    const Place &place() const { return m_place; }
    const QJsonObject &lesson() const { return m_lesson; }

    //! What stands behind the lessons.
    template <typename Take> void readPassedOver(const Take &take)
    {
        while (!comesNext('}')) {
            expect(',');
            if (memberName() == passedOverKey) {
                eachElement([this, &take] { take(value(skipValue()).toString()); });
            } else {
                skipValue();
            }
        }
        expect('}');
        skipBlanks();
        if (position() != size()) {
            fail(say("There is something behind the end of the report"), position());
        }
    }

private:
    QByteArray bytes(qint64 begin, qint64 count) override { return InputFile(m_path).bytes(begin, count); }

    void readHead()
    {
        QJsonObject head;
        bool hasLessons = false;
        expect('{');
        while (!hasLessons && !comesNext('}')) {
            if (!head.isEmpty()) {
                expect(',');
            }
            const QString name = memberName();
            hasLessons = name == lessonsKey;
            if (!hasLessons) {
                head.insert(name, value(skipValue()));
            }
        }
        m_totals = BatchTotals::fromHead(head);
        if (!hasLessons || !m_totals.work) {
            fail(say("This is no report on many lessons"), 0);
        }
        expect('[');
    }

    void readLesson()
    {
        m_lesson = {};
        eachMember([this](const QString &name) {
            if (name != m_totals.work->resultKey || !comesNext('{')) {
                m_lesson.insert(name, value(skipValue()));
                return;
            }
            QJsonObject result;
            eachMember([this, &result](const QString &part) {
                const Range range = skipValue();
                if (!m_totals.work->details.contains(part)) {
                    result.insert(part, value(range));
                }
            });
            m_lesson.insert(name, result);
        });
        m_place = {m_lesson.value(QLatin1String("output")).toString(),
                   m_lesson.value(QLatin1String("input")).toString()};
    }

    QString m_path;
    BatchTotals m_totals{BatchWork::conversion};
    bool m_isFirst = true;
    Place m_place;
    QJsonObject m_lesson;
};

using Readers = std::vector<std::unique_ptr<ReportReader>>;

// Nobody could say what their sums are sums of.
void checkBelongTogether(const ReportReader &first, const ReportReader &other)
{
    if (other.totals().work != first.totals().work) {
        throw LessonError(say("This report is on another work than %1").arg(first.path()),
                          say("Put conversions and drawings together by themselves"))
            .in(other.path());
    }
    if (other.totals().shards() != first.totals().shards()) {
        throw LessonError(say("This report is on another number of shards than %1").arg(first.path()),
                          say("Give the reports of one run over all shards"))
            .in(other.path());
    }
}

// Calls take(reader) for each lesson of all reports, in ascending order.
template <typename Take> void eachLesson(const Readers &readers, const Take &take)
{
    const auto isLater = [](const ReportReader *one, const ReportReader *other) {
        return one->place() > other->place();
    };
    std::priority_queue<ReportReader *, std::vector<ReportReader *>, decltype(isLater)> waiting(isLater);
    for (const auto &reader : readers) {
        if (reader->next()) {
            waiting.push(reader.get());
        }
    }
    while (!waiting.empty()) {
        ReportReader *reader = waiting.top();
        waiting.pop();
        if (!waiting.empty() && waiting.top()->place() == reader->place()) {
            throw LessonError(say("%1 is in this report and in %2").arg(reader->place().second, waiting.top()->path()),
                              say("Give one report of each run"))
                .in(reader->path());
        }
        take(*reader);
        if (reader->next()) {
            waiting.push(reader);
        }
    }
}

} // namespace

BatchTotals mergeReports(const QStringList &reports, const TextSink &sink, QStringList *failures)
{
    const int pieceSize = int(qBound(leastPiece, heldBytes / qMax(1, reports.size()), mostPiece));
    Readers readers;
    for (const QString &report : reports) {
        readers.push_back(std::make_unique<ReportReader>(report, pieceSize));
        checkBelongTogether(*readers.front(), *readers.back());
    }
    BatchTotals totals(*readers.front()->totals().work);
    for (const auto &reader : readers) {
        totals.add(reader->totals());
    }
    BatchReportWriter writer(sink ? sink : [](const QByteArray &) {});
    writer.begin(totals.toHead());
    eachLesson(readers, [&writer, failures](const ReportReader &reader) {
        writer.add(reader.lesson());
        const QString message = reader.lesson().value(QLatin1String("message")).toString();
        if (!message.isEmpty() && failures->size() < mostFailures) {
            failures->append(message);
        }
    });
    writer.endLessons();
    for (const auto &reader : readers) {
        reader->readPassedOver([&writer, &totals](const QString &file) {
            writer.passOver(file);
            totals.passOver(file);
        });
    }
    writer.end();
    return totals;
}

} // namespace lessonhost
