// SPDX-License-Identifier: MIT
#include "files/folder.h"
#include "hostfixture.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>
#include <cstdio>

#include <sys/stat.h>

/*!
 * Converts whole folders through the command, as an administrator does overnight.
 */
class TestBatch : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    void begin(CommandProcess &command, const QStringList &arguments) const
    {
        command.begin(QStringList{"convert", "--out-dir", "out"} + arguments, m_folder->path());
    }

    CommandProcess::Outcome convert(const QStringList &arguments) const
    {
        CommandProcess command;
        begin(command, arguments);
        return command.outcome();
    }

    void putLesson(const QString &name, const QByteArray &title = "Lesson") const
    {
        putFile(path(name),
                R"({"Title":")" + title + R"(","Width":"400","Height":"300","Slides":[{"ID":"1","Items":[]}]})");
    }

    // Takes long enough to be stopped in the middle.
    void putSlowLesson(const QString &name) const
    {
        QByteArray slides = R"({"ID":"0"})";
        for (int i = 1; i < 20000; ++i) {
            slides += ",{\"ID\":\"" + QByteArray::number(i) + "\"}";
        }
        putFile(path(name), "{\"Slides\":[" + slides + "]}");
    }

    // Its only worker process gets a signal as soon as it is there.
    static void signalWorker(const CommandProcess &process, int signal)
    {
        const QString children = "/proc/%1/task/%1/children"_s.arg(process.processId());
        QByteArray worker;
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                worker = fileContent(children).trimmed();
                return !worker.isEmpty();
            }(),
            20000);
        kill(worker.toInt(), signal);
    }

    QStringList results() const { return filesBelow(path("out")).keys(); }

    QJsonObject report() const { return QJsonDocument::fromJson(fileContent(path("report.json"))).object(); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void convertsAThousand()
    {
        for (int i = 0; i < 1000; ++i) {
            putLesson("in/term%1/lesson%2.json"_s.arg(i / 100).arg(i));
        }
        putFile(path("in/term3/lesson333.json"), "{\"Slides\":[");
        putFile(path("in/term7/lesson777.json"),
                R"({"Slides":[{"ID":"1","Items":[{"Type":"ZQSmoothStroke","ID":"7","Mood":"good"}]}]})");
        const CommandProcess::Outcome result = convert({"in", "--to", "zqtx", "--report", "report.json"});
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.output.startsWith("1000 lessons: 999 converted, 1 not converted.\n"
                                          "1 lesson lost something, 1 value, item or file in all"),
                 qPrintable(result.output));
        QCOMPARE(result.errors.count('\n'), 1);
        QVERIFY2(result.errors.contains("in/term3/lesson333.json, line 1: This is not JSON"),
                 qPrintable(result.errors));
        QCOMPARE(results().size(), 1000); // and the journal in the place of the failure

        const QJsonArray lessons = report().value("lessons").toArray();
        QCOMPARE(lessons.size(), 1000);
        int lost = 0;
        for (const QJsonValue &lesson : lessons) {
            const QJsonObject entry = lesson.toObject();
            const bool isFailure = entry.value("input") == "in/term3/lesson333.json";
            QCOMPARE(entry.value("state").toString(), isFailure ? "failed" : "converted");
            QCOMPARE(entry.contains("message"), isFailure);
            for (const QJsonValue &loss : entry.value("losses").toObject().value("entries").toArray()) {
                QCOMPARE(entry.value("output").toString(), "term7/lesson777.zqtx");
                QCOMPARE(loss.toObject().value("key").toString(), "Mood");
                ++lost;
            }
        }
        QCOMPARE(lost, 1);

        putLesson("in/term3/lesson333.json");
        const CommandProcess::Outcome second = convert({"in", "--to", "zqtx", "--resume", "--strict"});
        QCOMPARE(second.exitCode, 1);
        QVERIFY2(second.output.startsWith("1000 lessons: 1 converted, 999 done before.\n"), qPrintable(second.output));
    }

    // A lesson that is a folder is one lesson; what isn't a lesson, and the results of the last run, are passed over.
    void keepsFolders()
    {
        putFile(path("in/math/circles/index.xml"),
                "<main width=\"400\" height=\"300\"><slides><file href=\"slides/1.xml\"/></slides></main>");
        putFile(path("in/math/circles/slides/1.xml"), "<slide id=\"1\"><items/></slide>");
        putLesson("in/math/week 1.2/Lines.JSON");
        putFile(path("in/broken/slides/1.xml"), "<slide id=\"1\"/>");
        putFile(path("in/notes.txt"), "no lesson");
        putLesson("in/.hidden/a.json");
        putLesson("in/results/old.json");
        QFile::link(path("in"), path("in/math/loop"));
        const CommandProcess::Outcome result =
            convert({"in", "--to", "json", "--out-dir", "in/results", "--report", "report.json"});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
        QCOMPARE(result.output,
                 "2 lessons: 2 converted.\n1 file is called like a lesson and is none: in/broken/slides/1.xml.\n");
        QVERIFY(QFileInfo(path("in/results/math/circles.json")).isFile());
        QVERIFY(QFileInfo(path("in/results/math/week 1.2/Lines.json")).isFile());
        QCOMPARE(report().value("passedOver").toArray().size(), 1);
    }

    // What can't be opened by its name is told, and everything else converted.
    void tellsWhatItCannotReach()
    {
        putLesson("in/a.json");
        putLesson("in/b.json");
        QVERIFY(QFile::link("nowhere", path("in/c.json")));
        const auto place = [this](const char *name) { return QByteArray(QFile::encodeName(path("in/")) + name); };
        QVERIFY(std::rename(place("b.json"), place("\xff.json")) == 0);
        QVERIFY(::mkdir(place("\xfe"), 0700) == 0 && ::mkfifo(place("d.json"), 0600) == 0);
        const CommandProcess::Outcome result = convert({"in", "--to", "zqtx", "--report", "report.json"});
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.errors.count("no UTF-8"), 2);
        QCOMPARE(result.errors.count("link to nothing"), 1);
        QCOMPARE(result.output,
                 "4 lessons: 1 converted, 3 not converted.\n1 file is called like a lesson and is none: in/d.json.\n");
        QCOMPARE(report().value("counts").toObject().value("failed").toInt(), 3);
        QCOMPARE(results(), (QStringList{".lessonconv-done", "a.zqtx"}));
        lessonhost::removeFolder(path("in"));
    }

    void keepsNamesApart()
    {
        putLesson("one/a.json");
        putFile(path("one/a.xml"), "<presentation><slide/></presentation>");
        putLesson("one/b.json");
        putLesson("two/b.json");
        QCOMPARE(convert({"one", "two", "one/b.json", "--to", "zqtx"}).exitCode, 0);
        QCOMPARE(results(),
                 (QStringList{".lessonconv-done", "one/a.json.zqtx", "one/a.xml.zqtx", "one/b.zqtx", "two/b.zqtx"}));
    }

    void skipsWhatIsUnchanged()
    {
        const QStringList arguments{"in", "--to", "zqtx", "--resume"};
        const auto converted = [&](const char *what) {
            const CommandProcess::Outcome result = convert(arguments);
            const QRegularExpressionMatch match = QRegularExpression("(\\d+) converted").match(result.output);
            return match.hasMatch() ? match.captured(1).toInt()
                                    : (qWarning("%s: %s", what, qPrintable(result.errors)), -1);
        };
        for (const char *name : {"in/a.json", "in/b.json", "in/c.json"}) {
            putLesson(name);
        }
        QCOMPARE(converted("all"), 3);
        QCOMPARE(converted("none"), 0);
        putLesson("in/a.json", "Another title");
        QFile::remove(path("out/b.zqtx"));
        putFile(path("out/c.zqtx"), "cut");
        QCOMPARE(converted("each for its reason"), 3);
        // A run that was killed while it wrote: the half line costs one lesson, and the next line stands for itself.
        putFile(path("out/.lessonconv-done"), fileContent(path("out/.lessonconv-done")).chopped(20));
        QCOMPARE(converted("the one of the half line"), 1);
        QCOMPARE(converted("none"), 0);
        QVERIFY(convert(arguments + QStringList{"--no-check"}).output.startsWith("3 lessons: 3 converted"));
    }

    // What has a file a slide becomes a folder, which stands where no folder of other results is to be.
    void drawsMany()
    {
        putLesson("in/a.json");
        putLesson("in/a/b.json");
        putFile(path("in/c.json"), R"({"Slides":[{"Items":[{"Type":"Unheard","BoundingBox":"0,0,9,9"}]},{}]})");
        putFile(path("in/d.json"), "{");
        const auto draw = [this](const QStringList &arguments) {
            return runCommand(QStringList{"render", "in", "--out-dir", "out", "--resume", "--report", "report.json"}
                                  + arguments,
                              m_folder->path());
        };
        const CommandProcess::Outcome first = draw({"--to", "jpeg"});
        QCOMPARE(first.exitCode, 2);
        QCOMPARE(first.output, "4 lessons: 3 drawn, 1 not drawn.\n1 item is shown by name; the report names each.\n");
        QVERIFY2(first.errors.startsWith("lessonconv: in/d.json"), qPrintable(first.errors));
        QCOMPARE(results(),
                 (QStringList{".lessonconv-done", "a.json/slide001.jpg", "a/b/slide001.jpg", "c/slide001.jpg",
                              "c/slide002.jpg"}));
        const QJsonObject drawn = report().value("lessons").toArray().at(2).toObject().value("drawn").toObject();
        QCOMPARE(drawn.value("slides").toInt(), 2);
        QCOMPARE(drawn.value("named").toArray().size(), 1);

        QFile::remove(path("in/d.json"));
        QCOMPARE(draw({"--to", "jpeg"}).output,
                 "3 lessons: 0 drawn, 3 done before.\n1 item is shown by name; the report names each.\n");
        putFile(path("out/c/notes.txt"), "not of this command");
        QVERIFY(draw({"--to", "jpeg"}).errors.contains("out/c: There is a folder of this name already"));
        QCOMPARE(draw({"--to", "pdf"}).output.section('\n', 0, 0), "3 lessons: 3 drawn.");
        QCOMPARE(draw({"--to", "png", "--slides", "1", "--width", "20"}).exitCode, 0);
        QVERIFY(QFile::exists(path("out/a/b.pdf")) && QFile::exists(path("out/a.png")));
    }

    // Three runs at the same time into one folder do what one run does, and know what runs in other parts have done.
    void shardsMakeAWhole()
    {
        for (int i = 0; i < 20; ++i) {
            putLesson("in/%1lesson%2.json"_s.arg(i % 3 ? "term%1/"_s.arg(i % 3) : QString()).arg(i));
        }
        putLesson("in/lesson1.json");
        putFile(path("in/lesson1.xml"), "<presentation><slide/></presentation>");
        putFile(path("in/term1/lesson1.xml"), "<notes/>");
        putFile(path("in/term2/a.json"), R"({"Slides":[{"Items":[{"Type":"ZQSmoothStroke","Mood":"good"}]}]})");
        putFile(path("in/term2/b.json"), "{");
        QVERIFY(QFile::link("term2/a.json", path("in/z.json")));
        QCOMPARE(convert({"in", "--to", "zqtx", "--report", "report.json"}).exitCode, 2);
        const QJsonObject whole = report();
        QStringList expected = results();
        QVERIFY(expected.removeOne(".lessonconv-done"));
        QVERIFY(QDir(path("out")).removeRecursively());

        CommandProcess shards[3];
        for (int i = 0; i < 3; ++i) {
            const QString number = QString::number(i + 1);
            begin(
                shards[i],
                {"in", "--to", "zqtx", "--shard", number + "/3", "--report", "r%1.json"_s.arg(number), "--jobs", "1"});
            expected.append(".lessonconv-done-%1of3"_s.arg(number));
        }
        for (CommandProcess &shard : shards) {
            QVERIFY(shard.outcome().exitCode != -1);
        }
        expected.sort();
        QCOMPARE(results(), expected);
        const auto merge = [this](const QStringList &reports) {
            return runCommand(QStringList{"report", "--report", "report.json"} + reports, m_folder->path());
        };
        const CommandProcess::Outcome all = merge({"r3.json", "r1.json", "r2.json"});
        QCOMPARE(all.exitCode, 2);
        QCOMPARE(all.output,
                 "24 lessons: 23 converted, 1 not converted.\n"
                 "1 lesson lost something, 1 value, item or file in all; the report of its run names each.\n"
                 "1 file is called like a lesson and is none: in/term1/lesson1.xml.\n"
                 "1 value lost: 1 ZQSmoothStroke.Mood in 1 lesson\nNot converted:\n"
                 "in/term2/b.json, line 1: This is not JSON: the file ends too early. Check that the file is complete "
                 "and is a lesson in JSON.\n");
        QJsonObject merged = report();
        const QJsonObject shares = merged.take("shards").toObject();
        QCOMPARE(shares.value("found").toInt(), 26); // with the file that is none and the link
        QCOMPARE(shares.value("taken").toInt(), 26);
        QJsonArray lessons = whole.value("lessons").toArray();
        for (QJsonValueRef lesson : lessons) {
            QJsonObject entry = lesson.toObject();
            QJsonObject losses = entry.take("losses").toObject();
            losses.remove("entries"); // which stay in the reports of the shards
            if (!losses.isEmpty()) {
                entry.insert("losses", losses);
            }
            lesson = entry;
        }
        QCOMPARE(merged.take("lessons").toArray(), lessons);
        QJsonObject counts = whole.value("counts").toObject();
        counts.insert("not taken", 0);
        QCOMPARE(merged.take("counts").toObject(), counts);
        QCOMPARE(merged.value("kinds"), whole.value("kinds"));

        QFile::remove(path("report.json"));
        const CommandProcess::Outcome some = merge({"r1.json", "r3.json"});
        QCOMPARE(some.exitCode, 2);
        QVERIFY2(some.output.contains("There is no report of shard 2 of 3"), qPrintable(some.output));
        const int left = 26 - report().value("shards").toObject().value("taken").toInt();
        QVERIFY(left > 0);
        QCOMPARE(report().value("counts").toObject().value("not taken").toInt(), left);
        QVERIFY(merge({"r1.json", "r1.json"}).errors.contains("is in this report and in r1.json"));
        QVERIFY(merge({"r1.json", "in/lesson0.json"}).errors.contains("no report on many lessons"));

        QFile::remove(path("in/term2/b.json"));
        int before = 0;
        for (const char *shard : {"1/2", "2/2"}) {
            const CommandProcess::Outcome again =
                convert({"in", "--to", "zqtx", "--resume", "--shard", shard, "--report", "r9.json", "--quiet"});
            QCOMPARE(again.exitCode, 0);
            const QJsonObject done = QJsonDocument::fromJson(fileContent(path("r9.json"))).object();
            before += done["counts"].toObject().value("done before").toInt();
            QVERIFY(merge({"r1.json", "r9.json"}).errors.contains("another number of shards"));
        }
        QCOMPARE(before, 23);
    }

    // What checks find in shards comes together, also what is taken over from a run before.
    void checksInShards()
    {
        for (int i = 0; i < 9; ++i) {
            putLesson("in/%1.json"_s.arg(i));
        }
        putFile(path("in/a.json"), R"({"Slides":[{"Items":[{"Type":"ZQImagePic","resource":"none.png"}]}]})");
        putFile(path("in/b.json"), "{");
        const auto call = [this](const QStringList &arguments) { return runCommand(arguments, m_folder->path()); };
        const QStringList check{"check", "in", "--out-dir", "out", "--resume", "--report"};
        QCOMPARE(call(check + QStringList{"report.json"}).exitCode, 2);
        const QJsonObject whole = report();
        QVERIFY(QDir(path("out")).removeRecursively());
        for (const QString shard : {"1/3", "2/3", "3/3", "2/3"}) {
            call(check + QStringList{"r%1.json"_s.arg(shard.front()), "--shard", shard});
        }
        const auto all = call({"report", "r1.json", "r2.json", "r3.json", "--report", "report.json"});
        QCOMPARE(all.exitCode, 2);
        QVERIFY2(all.output.contains("\n1 thing is missing or wrong; "), qPrintable(all.output));
        QVERIFY2(all.output.contains("\nNot checked:\nin/b.json, line 1"), qPrintable(all.output));
        const QJsonObject counts = report().value("counts").toObject();
        QCOMPARE(counts.value("checked").toInt() + counts.value("done before").toInt(), 10);
        QVERIFY(counts.value("done before").toInt() > 0);
        const auto checks = [](const QJsonObject &report) {
            QMap<QString, QJsonValue> found;
            const QJsonArray lessons = report.value("lessons").toArray();
            for (const QJsonValue &lesson : lessons) {
                found.insert(lesson["input"].toString(), lesson["check"]);
            }
            return found;
        };
        QCOMPARE(checks(report()).size(), 11);
        QCOMPARE(checks(report()), checks(whole));
    }

    void shardHasOneRun()
    {
        putSlowLesson("0.json");
        const QStringList arguments{"0.json", "--to", "zqtx", "--shard", "1/1"};
        CommandProcess process;
        begin(process, arguments);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("out/.lessonconv-done-1of1")), 20000);
        const CommandProcess::Outcome second = convert(arguments);
        QCOMPARE(second.exitCode, 2);
        QVERIFY2(second.errors.contains("Another run is at work on shard 1 of 1"), qPrintable(second.errors));
        QCOMPARE(process.outcome().exitCode, 0);
        QCOMPARE(convert(arguments).exitCode, 0);
    }

    void crashFailsOneLesson()
    {
        putSlowLesson("0.json");
        putLesson("a.json");
        putLesson("b.json");
        CommandProcess process;
        begin(process, {"0.json", "a.json", "b.json", "--to", "zqtx", "--jobs", "1"});
        signalWorker(process, SIGKILL);
        const CommandProcess::Outcome result = process.outcome();
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains("0.json: The converter broke down over this lesson"),
                 qPrintable(result.errors));
        QCOMPARE(result.output, "3 lessons: 2 converted, 1 not converted.\n");
        QCOMPARE(results(), (QStringList{".lessonconv-done", "a.zqtx", "b.zqtx"}));
    }

    void lateLessonFailsAlone()
    {
        putSlowLesson("0.json");
        putLesson("a.json");
        CommandProcess process;
        begin(process, {"a.json", "0.json", "--to", "zqtx", "--jobs", "1", "--lesson-timeout", "5"});
        signalWorker(process, SIGSTOP);
        const CommandProcess::Outcome result = process.outcome();
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains("0.json: The conversion took longer than 5 s"), qPrintable(result.errors));
        QCOMPARE(result.output, "2 lessons: 1 converted, 1 not converted.\n");
        QCOMPARE(results(), (QStringList{".lessonconv-done", "a.zqtx"}));
    }

    void interruptionLeavesNothingHalf()
    {
        putLesson("a.json");
        putSlowLesson("b.json");
        putLesson("c.json");
        const QStringList arguments{"a.json", "b.json", "c.json", "--to", "zqtx", "--jobs", "1", "--resume"};
        CommandProcess process;
        begin(process, arguments);
        // Noted as done, not only there.
        QTRY_VERIFY_WITH_TIMEOUT(fileContent(path("out/.lessonconv-done")).contains("a.zqtx"), 20000);
        signalWorker(process, SIGSTOP);
        QTest::qWait(200);
        kill(pid_t(process.processId()), SIGINT);
        const CommandProcess::Outcome result = process.outcome();
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.output.contains("2 not begun.\nInterrupted."), qPrintable(result.output));
        QCOMPARE(results(), (QStringList{".lessonconv-done", "a.zqtx"}));

        QFile::remove(path("b.json"));
        putLesson("b.json");
        QCOMPARE(convert(arguments).output, "3 lessons: 2 converted, 1 done before.\n");
    }

    void refuses_data()
    {
        const Table<QStringList, QString> row("arguments", "message");
        row("no format", {"in"}, "--to iwb");
        row("format only read", {"in", "--to", "rawxml"}, "can't be written");
        row("no lessons", {"empty", "--to", "iwb"}, "no lessons");
        row("among the lessons", {"in", "--to", "iwb", "--out-dir", "in"}, "among the lessons");
        row("itself", {"in/a.json", "--to", "json", "--out-dir", "in"}, "place of the lesson");
        row("same name", {"in/a.json", "other/a.json", "--to", "iwb"}, "both be written as a.json.iwb");
        row("shard", {"in", "--to", "iwb", "--shard", "4/3"}, "is no shard");
        row("jobs", {"in", "--to", "iwb", "--jobs", "none"}, "number of jobs");
        row("time", {"in", "--to", "iwb", "--lesson-timeout", "0"}, "number of seconds");
        row("no folder can be made", {"in", "--to", "iwb", "--out-dir", "other/a.json/x"}, "can't be made");
    }

    void refuses()
    {
        const auto [arguments, message] = Table<QStringList, QString>::cells();
        putLesson("in/a.json");
        putLesson("other/a.json", "Another");
        QDir().mkpath(path("empty"));
        const CommandProcess::Outcome result = convert(arguments);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
        QVERIFY(!QFile::exists(path("out")));
    }
};

QTEST_GUILESS_MAIN(TestBatch)
#include "tst_batch.moc"
