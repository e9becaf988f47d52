// SPDX-License-Identifier: MIT
#include "batch/batch.h"

#include "batch/batchjournal.h"
#include "batch/interruptions.h"
#include "files/lessonerror.h"
#include "files/staging.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

namespace lessonhost {

namespace {

const QLatin1String failureKey("failure");
const QLatin1String notesKey("notes");
const QLatin1String inputKey("input");
const QLatin1String outputKey("output");
const QLatin1String resultKey("result");

QJsonArray toJson(const Sentence &sentence)
{
    return {sentence.english(), sentence.local()};
}

Sentence sentenceFrom(const QJsonValue &value)
{
    const QJsonArray pair = value.toArray();
    return {pair.at(0).toString(), pair.at(1).toString()};
}

class BatchRun
{
public:
    BatchRun(const BatchPlan &plan, const BatchSettings &settings, const BatchWatcher &watcher)
        : m_plan(plan)
        , m_settings(settings)
        , m_watcher(watcher)
        , m_journal(settings.outputFolder, settings.fingerprint, plan, settings.resume)
        , m_result(*settings.work)
        , m_states(plan.lessons.size())
    {
        m_result.totals.setPlan(plan);
        for (const QString &file : plan.passedOver) {
            m_result.totals.passOver(file);
        }
    }

    BatchResult run()
    {
        if (m_plan.lessons.isEmpty()) {
            return m_result;
        }
        Interruptions interruptions;
        QSocketNotifier notifier(interruptions.descriptor(), QSocketNotifier::Read);
        QObject::connect(&notifier, &QSocketNotifier::activated, [this, &notifier] {
            notifier.setEnabled(false);
            interrupt();
        });
        QTimer redraw;
        QObject::connect(&redraw, &QTimer::timeout, [this] { showProgress(); });
        redraw.start(200);
        m_workers.resize(std::size_t(qMin(m_settings.jobs, m_plan.lessons.size())));
        if (m_settings.lessonSeconds > 0) {
            for (Worker &worker : m_workers) {
                limit(worker);
            }
        }
        // Not before the loop runs: there may be nothing to wait for.
        QTimer begin;
        begin.setSingleShot(true);
        QObject::connect(&begin, &QTimer::timeout, [this] {
            for (Worker &worker : m_workers) {
                giveNext(worker);
            }
        });
        begin.start(0);
        m_loop.exec();
        for (Worker &worker : m_workers) {
            end(worker);
        }
        for (int open = m_done; open < m_plan.lessons.size(); ++open) {
            m_result.totals.add(BatchTotals::Open);
        }
        if (m_failure) {
            throw LessonError(*m_failure);
        }
        if (!m_problem.isEmpty()) {
            throw LessonError(say("A worker process can't be started: %1").arg(m_problem),
                              say("Check that there is enough memory, or give fewer --jobs"));
        }
        return m_result;
    }

private:
    struct Worker
    {
        std::unique_ptr<QProcess> process; // null before the first lesson and after a crash
        int lesson = -1; // index in the plan
        QStringList folders; // of its last results: what it works in lies there
        int answers = 0; // of this process
        std::unique_ptr<QTimer> limit; // null where there is none
        bool isLate = false; // its process is being ended
    };

    void limit(Worker &worker) const
    {
        worker.limit = std::make_unique<QTimer>();
        worker.limit->setSingleShot(true);
        worker.limit->setInterval(m_settings.lessonSeconds * 1000);
        QObject::connect(worker.limit.get(), &QTimer::timeout, [&worker] {
            worker.isLate = true;
            worker.process->kill();
        });
    }

    void start(Worker &worker)
    {
        worker.answers = 0;
        worker.process = std::make_unique<QProcess>();
        QProcess *process = worker.process.get();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QObject::connect(process, &QProcess::readyReadStandardOutput, &m_loop, [this, &worker] { takeAnswer(worker); });
        QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &m_loop,
                         [this, &worker] { takeCrash(worker); });
        QObject::connect(process, &QProcess::errorOccurred, &m_loop, [this, process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                m_problem = process->errorString();
                m_loop.quit();
            }
        });
        process->start(QCoreApplication::applicationFilePath(), m_settings.workerArguments);
    }

    // Skips what is done, and ends the run when there is nothing left and nobody works.
    void giveNext(Worker &worker)
    {
        worker.lesson = -1;
        while (m_next < m_plan.lessons.size() && (isImpossible(m_next) || isDoneBefore(m_next) || isKept(m_next))) {
            ++m_next;
        }
        if (m_next < m_plan.lessons.size()) {
            worker.lesson = m_next++;
            request(worker);
            return;
        }
        const auto isIdle = [](const Worker &one) { return one.lesson < 0; };
        if (std::all_of(m_workers.cbegin(), m_workers.cend(), isIdle)) {
            m_loop.quit();
        }
    }

    bool isImpossible(int index)
    {
        const Sentence problem = m_plan.lessons.at(index).problem;
        if (!problem.isEmpty()) {
            fail(index, problem);
        }
        return !problem.isEmpty();
    }

    bool isDoneBefore(int index)
    {
        if (!m_settings.resume) {
            return false;
        }
        const QJsonObject result = m_journal.doneBefore(m_plan.lessons.at(index));
        if (result.isEmpty()) {
            return false;
        }
        tell(index, BatchTotals::DoneBefore, result);
        return true;
    }

    // What stands in the place of the result.
    bool isKept(int index)
    {
        const QFileInfo output(outputOf(index));
        const bool isThere = m_settings.keepsOutputs && (output.exists() || output.isSymLink());
        if (isThere) {
            fail(index,
                 LessonError(say("%1 is there already, and is kept").arg(output.filePath()))
                     .in(m_plan.lessons.at(index).input)
                     .message());
        }
        return isThere;
    }

    QString outputOf(int index) const
    {
        return m_settings.outputFolder + QLatin1Char('/') + m_plan.lessons.at(index).output;
    }

    void request(Worker &worker)
    {
        const BatchPlan::Lesson &lesson = m_plan.lessons.at(worker.lesson);
        m_states[worker.lesson] = m_journal.stateOf(lesson);
        m_name = lesson.input;
        showProgress();
        const QString output = outputOf(worker.lesson);
        const QString folder = QFileInfo(output).path();
        QDir().mkpath(folder); // if not, the worker says so
        noteFolder(worker, folder);
        if (!worker.process) {
            start(worker);
        }
        if (worker.limit) {
            worker.limit->start();
        }
        const QJsonObject line{{inputKey, lesson.input}, {outputKey, output}};
        worker.process->write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }

    void takeAnswer(Worker &worker)
    {
        while (worker.lesson >= 0 && worker.process->canReadLine()) {
            const QJsonObject answer = QJsonDocument::fromJson(worker.process->readLine()).object();
            if (answer.contains(failureKey)) {
                fail(worker.lesson, sentenceFrom(answer.value(failureKey)));
            } else if (answer.contains(resultKey)) {
                Sentences notes;
                const QJsonArray given = answer.value(notesKey).toArray();
                for (const QJsonValue &note : given) {
                    notes.append(sentenceFrom(note));
                }
                m_result.totals.addNotes(notes);
                succeed(worker.lesson, answer.value(resultKey).toObject());
            } else {
                continue; // something that a library printed
            }
            ++worker.answers;
            rest(worker);
            giveNext(worker);
        }
    }

    // It is done with its lesson, one way or the other.
    static void rest(Worker &worker)
    {
        worker.isLate = false;
        if (worker.limit) {
            worker.limit->stop();
        }
    }

    void takeCrash(Worker &worker)
    {
        const bool isLate = worker.isLate;
        rest(worker);
        // It is the one who is speaking.
        worker.process.release()->deleteLater();
        sweep(worker);
        if (worker.lesson < 0 || m_result.totals.isInterrupted) {
            return;
        }
        if (isLate) {
            fail(worker.lesson,
                 LessonError(say(m_settings.work->tooLong).arg(m_settings.lessonSeconds),
                             say("The other lessons are not concerned. Give this one more time with "
                                 "--lesson-timeout, or try it without"))
                     .in(m_plan.lessons.at(worker.lesson).input)
                     .message());
            giveNext(worker);
            return;
        }
        if (worker.answers > 0) {
            // Maybe an earlier lesson did it: this one gets a process that knows no other.
            request(worker);
            return;
        }
        fail(worker.lesson,
             LessonError(say("The converter broke down over this lesson"),
                         say("The other lessons are not concerned. Please send this one to the makers"))
                 .in(m_plan.lessons.at(worker.lesson).input)
                 .message());
        giveNext(worker);
    }

    void succeed(int index, const QJsonObject &result)
    {
        tell(index, BatchTotals::Done, result);
        QJsonObject remembered = result;
        for (const QString &detail : m_settings.work->details) {
            remembered.remove(detail);
        }
        try {
            m_journal.note(m_plan.lessons.at(index), m_states.at(index), remembered);
        } catch (const LessonError &error) {
            if (!m_result.hasJournalFailed) {
                m_watcher.failure(error.message());
            }
            m_result.hasJournalFailed = true;
        }
    }

    void fail(int index, const Sentence &message)
    {
        tell(index, BatchTotals::Failed, {}, message);
        m_watcher.failure(message);
    }

    void tell(int index, BatchTotals::State state, const QJsonObject &result, const Sentence &message = {})
    {
        ++m_done;
        m_result.totals.add(state, result);
        if (!m_watcher.told || m_failure) {
            return;
        }
        try {
            m_watcher.told(index, state, result, message);
        } catch (const LessonError &error) {
            // Not through the event loop.
            m_failure = std::make_unique<LessonError>(error);
            interrupt();
        }
    }

    void interrupt()
    {
        m_result.totals.isInterrupted = true;
        for (Worker &worker : m_workers) {
            if (worker.process) {
                worker.process->kill();
            }
        }
        m_loop.quit();
    }

    void end(Worker &worker)
    {
        if (!worker.process) {
            return;
        }
        worker.process->disconnect();
        worker.process->closeWriteChannel();
        worker.process->waitForFinished();
        if (worker.lesson >= 0 || m_result.totals.isInterrupted) {
            sweep(worker);
        }
    }

    // It keeps what it works in from one lesson to the next, until it begins in another folder.
    static void noteFolder(Worker &worker, const QString &folder)
    {
        if (worker.folders.value(0) != folder) {
            worker.folders = QStringList{folder} + worker.folders.mid(0, 1);
        }
    }

    static void sweep(const Worker &worker)
    {
        for (const QString &folder : worker.folders) {
            Staging::sweep(folder);
        }
    }

    void showProgress() { m_watcher.progress(m_done, m_plan.lessons.size(), m_name); }

    const BatchPlan &m_plan;
    const BatchSettings &m_settings;
    const BatchWatcher &m_watcher;
    BatchJournal m_journal;
    BatchResult m_result;
    QVector<QString> m_states; // of the lessons before their conversion
    QString m_name;
    QString m_problem;
    std::unique_ptr<LessonError> m_failure; // of whoever is told what becomes of the lessons
    QEventLoop m_loop;
    std::vector<Worker> m_workers;
    int m_next = 0;
    int m_done = 0;
};

} // namespace

BatchResult runBatch(const BatchPlan &plan, const BatchSettings &settings, const BatchWatcher &watcher)
{
    return BatchRun(plan, settings, watcher).run();
}

void serveBatch(const std::function<BatchAnswer(const QString &, const QString &)> &work)
{
    const Staging::Keeping keeping;
    std::string line;
    while (std::getline(std::cin, line)) {
        const QJsonObject request = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        QJsonObject answer;
        try {
            const BatchAnswer given = work(request.value(inputKey).toString(), request.value(outputKey).toString());
            answer.insert(resultKey, given.result);
            QJsonArray notes;
            for (const Sentence &note : given.notes) {
                notes.append(toJson(note));
            }
            answer.insert(notesKey, notes);
        } catch (const LessonError &error) {
            answer.insert(failureKey, toJson(error.message()));
        } catch (const std::exception &error) {
            answer.insert(failureKey, toJson(unexpected(error).message()));
        }
        std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).constData() << std::endl;
    }
}

} // namespace lessonhost
