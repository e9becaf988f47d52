// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

using namespace lessonhost;

namespace {

// Where standard output goes, below "out".
const QString printed = "printed"_s;

// What a run reads and writes, in the folders "in" and "out".
struct Run
{
    QStringList arguments; // of the command
    QStringList targets; // all that it makes, below "out"
    QString report = {}; // of many lessons, which also tells of those that failed
    QString input = {}; // what comes through standard input
};

using Contents = QMap<QString, QByteArray>;

void copyTree(const QString &from, const QString &to)
{
    const QDir root(from);
    QDir().mkpath(to);
    QDirIterator it(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString target = to + '/' + root.relativeFilePath(it.next());
        QDir().mkpath(QFileInfo(target).path());
        QVERIFY(QFile::copy(it.filePath(), target));
        QFile copy(target); // with its time, by which results are known
        QVERIFY(copy.open(QIODevice::ReadWrite)
                && copy.setFileTime(it.fileInfo().lastModified(), QFileDevice::FileModificationTime));
    }
}

// What is at a target, without the times and the numbers made of them that some formats hold.
Contents timelessContentOf(const QString &target)
{
    static const QRegularExpression time("[0-9]{10,}");
    const Contents files = contentOfTarget(target);
    Contents result;
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        const QString content = QString::fromLatin1(it.value().constData(), it.value().size());
        result.insert(QString(it.key()).remove(time), QString(content).remove(time).toLatin1());
    }
    return result;
}

// The calls to fail: the last ones, which put things in their place, and some of the others.
QVector<int> chosenCalls(int count)
{
    const bool isAll = qEnvironmentVariableIsSet("FAULTS_ALL");
    const int last = 4;
    const int others = isAll ? count : 3;
    QVector<int> chosen;
    for (int call = 1; call <= count; ++call) {
        if (isAll || call > count - last || (call - 1) * others / count != (call - 2) * others / count || call == 1) {
            chosen.append(call);
        }
    }
    return chosen;
}

} // namespace

Q_DECLARE_METATYPE(Run)

/*!
 * Each call of the system that a run makes on its files fails once, and from there on: the old output or the new one is
 * there, whole, what the command says is true, and nothing is left behind the next run. All of them take some minutes
 * and are tried where FAULTS_ALL is set.
 */
class TestInjected : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_beside; // where nothing fails
    QString m_counter;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    enum Kind { Once, Staying, Reading };

    CommandProcess::Outcome run(const Run &run, Kind kind = Once, int failing = 0) const
    {
        putFile(m_counter, QByteArray(sizeof(long), '\0'));
        return runCommand(run.arguments, m_folder.path(), [this, run, kind, failing] {
            const auto give = [this](int number, const QString &name, int flags) {
                const int file = ::open(QFile::encodeName(path(name)), flags, 0666);
                ::dup2(file, number);
                ::close(file);
            };
            if (!run.input.isEmpty()) {
                give(STDIN_FILENO, run.input, O_RDONLY);
            }
            if (run.targets.contains(printed)) {
                give(STDOUT_FILENO, "out/" + printed, O_WRONLY | O_CREAT | O_TRUNC);
            }
            const QByteArray folder = QFile::encodeName(kind == Reading ? path("in") : m_folder.path());
            ::setenv("TMPDIR", QFile::encodeName(path("tmp")), 1);
            const bool isShown = run.arguments.first() == "show";
            ::setenv("XDG_RUNTIME_DIR", QFile::encodeName(isShown ? path("out") : m_beside.path()), 1);
            ::setenv("PATH", QFile::encodeName(m_beside.path()), 1); // has the browser
            ::setenv("FAULT_FOLDER", folder, 1);
            ::setenv("FAULT_COUNTER", QFile::encodeName(m_counter), 1);
            ::setenv("FAULT_AT", QByteArray::number(failing), 1);
            ::setenv("FAULT_ERROR", QByteArray::number(kind == Staying ? ENOSPC : EIO), 1);
            kind == Staying ? ::setenv("FAULT_STAYS", "1", 1) : ::unsetenv("FAULT_STAYS");
            kind == Reading ? ::setenv("FAULT_READS", "1", 1) : ::unsetenv("FAULT_READS");
            ::setenv("LD_PRELOAD", FAILING_CALLS, 1);
        });
    }

    int callsOfLastRun() const
    {
        long count = 0;
        std::memcpy(&count, fileContent(m_counter).constData(), sizeof count);
        return int(count);
    }

    QVector<Contents> contents(const QStringList &targets) const
    {
        QVector<Contents> all;
        for (const QString &target : targets) {
            all.append(timelessContentOf(path("out/" + target)));
        }
        return all;
    }

    void restore() const
    {
        QDir(path("out")).removeRecursively();
        copyTree(path("before"), path("out"));
        QVERIFY(
            QFile::setPermissions(path("out"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)); // for pages
    }

    // What is wrong with what a run left, or nothing.
    static QString problem(const CommandProcess::Outcome &outcome, const QStringList &targets,
                           const QVector<Contents> &before, const QVector<Contents> &after,
                           const QVector<Contents> &found, Kind kind)
    {
        const QString reason = std::strerror(kind == Staying ? ENOSPC : EIO);
        bool isAllNew = true;
        for (int i = 0; i < targets.size(); ++i) {
            const QByteArray text = found.at(i).first();
            // Who waits for a page in the browser gets one that tells the failure; what is printed isn't taken back.
            const bool isTold = outcome.exitCode != 0
                && (targets.at(i) == printed
                    || (text.contains(reason.toUtf8()) && text.endsWith("</p></body></html>\n")));
            if (found.at(i) != before.at(i) && found.at(i) != after.at(i) && !isTold) {
                return targets.at(i) + " is broken: " + found.at(i).firstKey();
            }
            isAllNew = isAllNew && found.at(i) == after.at(i);
            if (outcome.errors.contains(targets.at(i) + ':') && found.at(i) == after.at(i)) {
                return targets.at(i) + " is there and said not to be";
            }
        }
        if (outcome.exitCode == 0) {
            // Qt looks for a folder of the session, and does without.
            const QString errors = QString(outcome.errors).remove(QRegularExpression("lessonconv: QStandardPaths.*\n"));
            return isAllNew && errors.isEmpty() ? QString() : "not done, and says it is"_s;
        }
        if (outcome.errors.count("\n") != outcome.errors.count("lessonconv: ")) {
            return "a library tells it, too";
        }
        return outcome.exitCode == 2 && outcome.errors.contains(reason) ? QString() : "the reason isn't told"_s;
    }

    // A report of many lessons is the old one, or whole, and what it says is done is there.
    QString problemWithReport(const Run &run, const QVector<Contents> &after, const QVector<Contents> &found) const
    {
        const QByteArray report = fileContent(path("out/" + run.report));
        if (report == fileContent(path("before/" + run.report))) {
            return {};
        }
        const QJsonArray lessons = QJsonDocument::fromJson(report).object().value("lessons").toArray();
        for (const QJsonValue &lesson : lessons) {
            const QString state = lesson.toObject().value("state").toString();
            const int target = run.targets.indexOf(lesson.toObject().value("output").toString());
            if (target >= 0 && state != "failed" && state != "open" && found.at(target) != after.at(target)) {
                return run.report + " isn't true";
            }
        }
        return lessons.isEmpty() ? run.report + " is broken" : QString();
    }

    void failEach(const Run &run, Kind kind)
    {
        restore();
        const QVector<Contents> before = contents(run.targets);
        const CommandProcess::Outcome clean = this->run(run, kind);
        QVERIFY2(clean.exitCode == 0 && clean.errors.isEmpty(), qPrintable(clean.errors));
        const QVector<int> calls = chosenCalls(callsOfLastRun());
        QVERIFY(!calls.isEmpty());
        const QVector<Contents> after = contents(run.targets);
        for (int i = 0; i < run.targets.size(); ++i) {
            QVERIFY2(before.at(i) != after.at(i), qPrintable(run.targets.at(i)));
        }
        int failures = 0;
        for (const int call : calls) {
            restore();
            const CommandProcess::Outcome outcome = this->run(run, kind, call);
            const QVector<Contents> found = contents(run.targets);
            QString wrong = problem(outcome, run.targets, before, after, found, kind);
            if (wrong.isEmpty() && !run.report.isEmpty()) {
                wrong = problemWithReport(run, after, found);
            }
            QVERIFY2(wrong.isEmpty(),
                     qPrintable("call %1 of %2, kind %3: %4\n%5 %6"_s.arg(call)
                                    .arg(calls.last())
                                    .arg(kind)
                                    .arg(wrong)
                                    .arg(outcome.exitCode)
                                    .arg(outcome.errors)));
            failures += outcome.exitCode == 0 ? 0 : 1;
            if (!leftovers().isEmpty() || run.arguments.contains("--resume")) {
                QCOMPARE(this->run(run).exitCode, 0);
                QCOMPARE(contents(run.targets), after);
                QCOMPARE(leftovers(), QStringList());
            }
        }
        // Some calls may fail without harm, such as the ones that tidy up.
        QVERIFY(failures > 0);
    }

    QStringList leftovers() const
    {
        QStringList names = hiddenEntries(path("out")) + QDir(path("tmp")).entryList({"lessonconv*"});
        return names.filter(QRegularExpression("^(?!\\.lessonconv-done)"));
    }

    void convertHere(const QString &from, const QString &to, const QStringList &more = {}) const
    {
        const CommandProcess::Outcome outcome =
            runCommand(QStringList{"convert", path(from), path(to), "--quiet"} + more, m_folder.path());
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
    }

private slots:
    void initTestCase()
    {
        m_counter = m_beside.filePath("counter");
        for (const char *folder : {"in", "before", "tmp"}) {
            QDir().mkpath(path(folder));
        }
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(QDir().mkpath(path("in/new/images")) && QDir().mkpath(path("in/new/slides")));
        QVERIFY(picture.save(path("in/new/images/a.png")) && picture.save(path("in/new/images/b.tif")));
        putFile(path("in/new/index.xml"),
                "<main version=\"3.0\" width=\"800\" height=\"600\"><slides><file href=\"slides/1.xml\"/>"
                "<file href=\"slides/2.xml\"/></slides></main>");
        for (const char *id : {"1", "2"}) {
            putFile(path("in/new/slides/"_s + id + ".xml"),
                    QByteArray("<slide id=\"") + id
                        + "\"><background><picture document=\"images/a.png\"/></background><items><media id=\"7\" "
                          "type=\"image\" resource=\"images/b.tif\" visible=\"1\"><data><rect points=\"10,10,50,50\" "
                          "controlpoints=\"10,10,50,50\"/></data></media></items></slide>");
        }
        putFile(path("in/old.json"),
                R"({"Width": "400", "Height": "300", "Slides": [{"ID": "old", "color": "255,9,9,9"}, {"ID": "b"}]})");
        copyTree(path("in/new"), path("in/one"));
        putFile(
            path("in/one/index.xml"),
            "<main version=\"3.0\" width=\"800\" height=\"600\"><slides><file href=\"slides/1.xml\"/></slides></main>");
        convertHere("in/new", "in/new.zqtx");
        convertHere("in/new", "in/new.json");
        convertHere("in/new", "in/new.iwb");
        for (const char *name : {"t.json", "new.json", "t.zqtx", "t", "t.iwb"}) {
            convertHere("in/old.json", "before/"_s + name);
        }
        convertHere("in/old.json", "before/page", {"--to", "iwb"});
        for (const char *name : {"p%d.svg", "p%d.png", "p%d.jpg", "p%d.webp", "p.html", "p.pdf", "new.pdf"}) {
            QCOMPARE(runCommand({"render", path("in/old.json"), path("before/"_s + name)}).exitCode, 0);
        }
        QVERIFY(QDir().mkpath(path("before/many/new")));
        QVERIFY(QFile::copy(path("before/p1.png"), path("before/many/new/slide001.png")));
        QVERIFY(QFile::copy(path("before/p.html"), path("before/d.html")));
        putFile(path("before/r.json"), "{}");
        putFile(path("in/heard.json"), R"({"Resources":{"a.wav":"QUJD","b.wav":"REVG"},"Slides":[{"Items":[
            {"Type":"ZQMediaAudio","resource":"a.wav"},{"Type":"ZQMediaAudio","resource":"b.wav"}]}]})");
        QVERIFY(QDir().mkpath(path("before/p_files")));
        putFile(path("before/p_files/a.wav"), "old");
        putFile(m_beside.filePath("xdg-open"), "#!/bin/sh\n");
        QVERIFY(QFile::setPermissions(m_beside.filePath("xdg-open"), QFile::ReadOwner | QFile::ExeOwner));
        // What was done in earlier nights: one of two lessons, and so often that the notes of it are made shorter.
        const Run earlier{{"convert", "in/old.json", "--to", "json", "--out-dir", "before", "--report", "in/r1.json"},
                          {}};
        const Run later{{"convert", "in/new", "--to", "json", "--out-dir", "later", "--report", "in/r2.json"}, {}};
        QVERIFY(run(earlier).exitCode == 0 && run(later).exitCode == 0);
        const QString notes = path("before/.lessonconv-done");
        putFile(notes, fileContent(notes).repeated(120));
    }

    void failsWhileWriting_data()
    {
        const Table<Run> row("run");
        row("folder to JSON", Run{{"convert", "in/new", "out/t.json"}, {"t.json"}});
        row("archive to JSON", Run{{"convert", "in/new.zqtx", "out/t.json"}, {"t.json"}});
        row("JSON to archive", Run{{"convert", "in/new.json", "out/t.zqtx"}, {"t.zqtx"}});
        row("archive to folder", Run{{"convert", "in/new.zqtx", "out/t"}, {"t"}});
        row("folder to IWB", Run{{"convert", "in/new", "out/t.iwb"}, {"t.iwb"}});
        row("JSON to a folder of IWB", Run{{"convert", "in/new.json", "out/page", "--to", "iwb"}, {"page"}});
        row("IWB to archive", Run{{"convert", "in/new.iwb", "out/t.zqtx"}, {"t.zqtx"}});
        row("report", Run{{"convert", "in/new", "out/t.json", "--report", "out/r.json"}, {"t.json", "r.json"}});
        row("many",
            Run{{"convert", "in/new", "in/old.json", "--to", "json", "--out-dir", "out", "--jobs", "1", "--report",
                 "out/r.json"},
                {"new.json"}});
        row("many, of which one is done",
            Run{{"convert", "in/new", "in/old.json", "--to", "json", "--out-dir", "out", "--jobs", "1", "--resume",
                 "--report", "out/r.json"},
                {"new.json"},
                "r.json"});
        row("shard",
            Run{{"convert", "in/new", "in/old.json", "--to", "json", "--out-dir", "out", "--shard", "2/2", "--report",
                 "out/r.json"},
                {"new.json"},
                "r.json"});
        row("check", Run{{"check", "in/new", "--report", "out/r.json"}, {"r.json"}});
        row("many checks",
            Run{{"check", "in/new", "in/heard.json", "--out-dir", "out", "--jobs", "2", "--resume", "--report",
                 "out/r.json"},
                {"new.json", "heard.json"},
                "r.json"});
        row("reports", Run{{"report", "in/r1.json", "in/r2.json", "--report", "out/r.json"}, {"r.json"}});
        row("page", Run{{"render", "in/new", "out/p.html"}, {"p.html"}});
        row("page with sounds",
            Run{{"render", "in/heard.json", "out/p.html"}, {"p.html", "p_files/a.wav", "p_files/b.wav"}});
        row("difference", Run{{"render", "--diff", "in/new", "in/old.json", "out/d.html"}, {"d.html"}});
        row("paper", Run{{"render", "in/new.zqtx", "out/p.pdf"}, {"p.pdf"}});
        row("drawings", Run{{"render", "in/new", "out/p%d.svg"}, {"p1.svg", "p2.svg"}});
        row("pictures", Run{{"render", "in/new", "out/p%d.png"}, {"p1.png", "p2.png"}});
        row("photographs", Run{{"render", "in/new", "out/p%d.jpg"}, {"p1.jpg", "p2.jpg"}});
        row("pictures for the web", Run{{"render", "in/new", "out/p%d.webp"}, {"p1.webp", "p2.webp"}});
        row("many papers",
            Run{{"render", "in/new", "--to", "pdf", "--out-dir", "out", "--jobs", "1", "--report", "out/r.json"},
                {"new.pdf"}});
        row("many folders of pictures",
            Run{{"render", "in/new", "--to", "png", "--out-dir", "out/many", "--jobs", "1"}, {"many/new"}});
        const QByteArray name = QCryptographicHash::hash(path("in/new").toUtf8(), QCryptographicHash::Sha1).toHex();
        row("page in the browser",
            Run{{"show", "in/new"}, {"lessonconv-pages-%1/%2.html"_s.arg(::geteuid()).arg(QString(name))}});
        row("standard input", Run{{"convert", "-", "out/t.zqtx"}, {"t.zqtx"}, {}, "in/new.json"});
        const QVector<QStringList> printing{{"convert", "in/new", "-", "--to", "json", "--quiet"},
                                            {"convert", "in/new", "out/t.json", "--json"},
                                            {"convert", "in/new", "--to", "json", "--out-dir", "out", "--json"},
                                            {"render", "in/new", "-", "--to", "pdf"},
                                            {"report", "in/r1.json", "in/r2.json"},
                                            {"info", "in/new"},
                                            {"check", "in/new", "--json"},
                                            {"check", "in/new", "--out-dir", "out"},
                                            {"formats"},
                                            {"completion", "bash"},
                                            {"--help"},
                                            {"--version"}};
        for (const QStringList &arguments : printing) {
            row("printed: " + arguments.join(' ').toLatin1(), Run{arguments, {printed}});
        }
    }

    void failsWhileWriting()
    {
        QFETCH(Run, run);
        run.targets.contains(printed) ? void() : run.arguments.append("--quiet");
        for (const Kind kind : {Once, Staying}) {
            failEach(run, kind);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }

    void failsWhileReading_data()
    {
        const Table<Run> row("run");
        for (const char *input : {"new", "new.zqtx", "new.json", "new.iwb"}) {
            row(QByteArray("convert ") + input, Run{{"convert", "in/"_s + input, "out/t.zqtx"}, {"t.zqtx"}});
        }
        row("convert -", Run{{"convert", "-", "out/t.zqtx"}, {"t.zqtx"}, {}, "in/new.iwb"});
        row("check", Run{{"check", "in/new", "--report", "out/r.json"}, {"r.json"}});
        row("render", Run{{"render", "in/heard.json", "out/p.html"}, {"p.html", "p_files/a.wav", "p_files/b.wav"}});
        row("difference", Run{{"render", "--diff", "in/new", "in/new.iwb", "out/d.html"}, {"d.html"}});
        for (const char *name : {"t.iwb", "p.html", "p.pdf", "p1.svg", "p1.png"}) {
            const QString command = name[0] == 't' ? "convert" : "render";
            row(QByteArray("pictures to ") + name, Run{{command, "in/one", "out/"_s + name}, {name}});
        }
        row("report", Run{{"report", "in/r1.json", "in/r2.json", "--report", "out/r.json"}, {"r.json"}});
        row("info", Run{{"info", "in/new.zqtx"}, {printed}});
    }

    void failsWhileReading()
    {
        QFETCH(Run, run);
        run.targets.contains(printed) ? void() : run.arguments.append("--quiet");
        failEach(run, Reading);
    }

    // One thread does it all, and a page of text, whose library needs more, is refused.
    void withoutThreads()
    {
        const QVector<QStringList> lines{
            {"convert", "in/new", "out/t.json"},      {"convert", "in/new.json", "out/t.zqtx"},
            {"convert", "in/new.iwb", "out/t.zqtx"},  {"convert", "in/new", "out/t.iwb"},
            {"check", "in/new", "--report", "out/r"}, {"render", "in/said.json", "out/p.pdf"},
        };
        putFile(path("in/said.json"), R"({"Slides":[{"Items":[{"Type":"ZQMath2DRectangle","ItemText":"<p>a</p>"}]}]})");
        for (const QStringList &line : lines) {
            const bool isRefused = line.last().endsWith("pdf");
            for (const QByteArray &most : isRefused ? QVector<QByteArray>{"0"} : QVector<QByteArray>{"0", "1", "2"}) {
                restore();
                QCOMPARE(runCommand(line + QStringList{"--quiet"}, m_folder.path()).exitCode, 0);
                const Contents made = timelessContentOf(path(line.last()));
                restore();
                const CommandProcess::Outcome outcome =
                    runCommand(line + QStringList{"--quiet"}, m_folder.path(), [most] {
                        ::setenv("FAULT_THREADS", most.constData(), 1);
                        ::setenv("LD_PRELOAD", FAILING_CALLS, 1);
                    });
                QCOMPARE(outcome.exitCode, isRefused ? 2 : 0);
                QVERIFY(!isRefused || outcome.errors.contains("no more threads"));
                QCOMPARE(timelessContentOf(path(line.last())) == made, !isRefused);
                QCOMPARE(leftovers(), QStringList());
            }
        }
    }

    // Threads or none, of a picture that can't be written and a slide behind it that can't be read the picture is told.
    void tellsTheFirstFailure()
    {
        QImage noise(400, 400, QImage::Format_RGB32);
        QRandomGenerator random(1);
        random.fillRange(reinterpret_cast<quint32 *>(noise.bits()), 400 * 400);
        QVERIFY(noise.save(path("in/noise.tif")));
        putFile(
            path("in/bad.json"),
            R"({"Slides":[{"Items":[{"Type":"ZQImagePic","resource":"a.tif","BoundingBox":"1,1,9,9"}]},{"Items":5}],)"
            "\"Resources\":{\"a.tif\":\""
                + fileContent(path("in/noise.tif")).toBase64() + "\"}}");
        const auto told = [this](bool isAlone, int call) {
            cpu_set_t all, one;
            ::sched_getaffinity(0, sizeof all, &all);
            CPU_ZERO(&one);
            CPU_SET(::sched_getcpu(), &one);
            restore();
            ::sched_setaffinity(0, sizeof one, isAlone ? &one : &all); // which the command inherits
            const QString errors = run({{"convert", "in/bad.json", "out/f", "--to", "iwb"}, {}}, Once, call).errors;
            ::sched_setaffinity(0, sizeof all, &all);
            return errors;
        };
        QVERIFY(told(false, 0).contains("Slide 2"));
        const int last = callsOfLastRun();
        QStringList failures;
        for (int call = last / 2; call <= last; ++call) {
            failures.append(told(true, call));
            QCOMPARE(told(false, call), failures.last());
        }
        QVERIFY(!failures.filter("out/f: It can't be written").isEmpty() && !failures.filter("Slide 2").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestInjected)
#include "tst_injected.moc"
