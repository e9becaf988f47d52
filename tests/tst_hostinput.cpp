#include "ziparchive.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/*!
 * A folder with lessons that are made for one run of the command.
 */
class LessonFolder
{
public:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    void put(const char *name, const QByteArray &content) const
    {
        const QString file = path(name);
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
    }

    void putIndex(const QByteArray &files) const
    {
        put("in/index.xml",
            "<main version=\"3.0\" width=\"800\" height=\"600\">\n<slides>\n" + files + "</slides></main>");
        put("in/slides/1.xml", "<slide id=\"1\"><items/></slide>");
    }

    // A zip archive of stored entries, without looking at what the entries say.
    static QByteArray zip(const QVector<QPair<QByteArray, QByteArray>> &entries, quint32 attributes = 0)
    {
        const auto number = [](quint32 value, int size) {
            QByteArray bytes;
            for (int i = 0; i < size; ++i) {
                bytes.append(char(value >> (8 * i)));
            }
            return bytes;
        };
        QByteArray body;
        QByteArray list;
        for (const auto &entry : entries) {
            const auto size = quint32(entry.second.size());
            // Version, flags, method, time, date, checksum, sizes, length of the name, length of what follows.
            const QByteArray common = number(20, 2) + number(0, 2) + number(0, 2) + number(0, 4) + number(0, 4)
                + number(size, 4) + number(size, 4) + number(quint32(entry.first.size()), 2) + number(0, 2);
            list += "PK\1\2" + number(0x0314, 2) + common + number(0, 6) + number(attributes, 4)
                + number(quint32(body.size()), 4) + entry.first;
            body += "PK\3\4" + common + entry.first + entry.second;
        }
        return body + list + "PK\5\6" + number(0, 4) + number(quint32(entries.size()), 2)
            + number(quint32(entries.size()), 2) + number(quint32(list.size()), 4) + number(quint32(body.size()), 4)
            + number(0, 2);
    }

    struct Outcome
    {
        int exitCode = -1;
        QString message;
    };

    Outcome run(const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral(LESSONCONV_FILE), arguments);
        process.waitForFinished(60000);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardError())};
    }

    void clear() const
    {
        QDir(m_folder.path()).removeRecursively();
        QDir().mkpath(m_folder.path());
    }

    QStringList hiddenEntries() const
    {
        return QDir(m_folder.path()).entryList({".*"}, QDir::Hidden | QDir::AllEntries | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

using Make = void (*)(const LessonFolder &folder);
Q_DECLARE_METATYPE(Make)

/*!
 * What the command does with lessons that are broken, hostile or can't be written: a sentence that says where and what,
 * the exit code, and an output that stays as it was.
 */
class TestHostInput : public QObject
{
    Q_OBJECT

private:
    LessonFolder m_folder;

private slots:
    void init() { m_folder.clear(); }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QStringList>("words");

        const auto row = [](const char *name, const char *input, const QStringList &words, Make make) {
            QTest::newRow(name) << make << QString::fromLatin1(input) << words;
        };
        row("no such file", "none.zqtx", {"none.zqtx", "no such file"}, [](const LessonFolder &) {});
        row("not XML", "in", {"in/index.xml, line 2", "not well-formed"},
            [](const LessonFolder &folder) { folder.put("in/index.xml", "<main>\n<slides></main>"); });
        row("another document", "in", {"in/index.xml", "begins with <html>", "<main>"},
            [](const LessonFolder &folder) { folder.put("in/index.xml", "<html><body/></html>"); });
        row("document type", "in", {"in/index.xml, line 1", "document type"}, [](const LessonFolder &folder) {
            folder.put("in/index.xml", "<!DOCTYPE main [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]><main>&b;</main>");
        });
        row("deep nesting", "in", {"in/slides/1.xml, line 1", "deeper than 1100 levels"},
            [](const LessonFolder &folder) {
                folder.putIndex("<file href=\"slides/1.xml\"/>");
                folder.put("in/slides/1.xml", "<slide>" + QByteArray("<items>").repeated(20000));
            });
        row("missing slide", "in", {"in/index.xml", "slides/2.xml", "missing"},
            [](const LessonFolder &folder) { folder.putIndex("<file href=\"slides/2.xml\"/>"); });
        row("slide named twice", "in", {"in/index.xml", "slides/1.xml", "twice"}, [](const LessonFolder &folder) {
            folder.putIndex("<file href=\"slides/1.xml\"/><file href=\"slides/1.xml\"/>");
        });
        row("slide out of the package", "in", {"in/index.xml", "../secret.xml", "leads out"},
            [](const LessonFolder &folder) {
                folder.put("secret.xml", "<slide/>");
                folder.putIndex("<file href=\"../secret.xml\"/>");
            });
        row("absolute slide", "in", {"/etc/passwd", "absolute"},
            [](const LessonFolder &folder) { folder.putIndex("<file href=\"/etc/passwd\"/>"); });
        row("slide that is a link", "in", {"slides/2.xml", "missing"}, [](const LessonFolder &folder) {
            folder.put("secret.xml", "<slide/>");
            folder.putIndex("<file href=\"slides/2.xml\"/>");
            QFile::link(folder.path("secret.xml"), folder.path("in/slides/2.xml"));
        });
        row("wrong root of a slide", "in", {"in/slides/1.xml", "<main>", "<slide>"}, [](const LessonFolder &folder) {
            folder.putIndex("<file href=\"slides/1.xml\"/>");
            folder.put("in/slides/1.xml", "<main/>");
        });

        row("not JSON", "in.json", {"in.json, line 2", "not JSON"},
            [](const LessonFolder &folder) { folder.put("in.json", "{\"Slides\": [\n{\"ID\" \"1\"}]}"); });
        row("cut JSON", "in.json", {"in.json, line 1", "no end"},
            [](const LessonFolder &folder) { folder.put("in.json", "{\"Slides\": [{\"ID\": \"1"); });
        row("empty file", "in.json", {"in.json", "ends too early"},
            [](const LessonFolder &folder) { folder.put("in.json", ""); });
        row("other JSON", "in.json", {"in.json", "no \"Slides\""},
            [](const LessonFolder &folder) { folder.put("in.json", "{\"name\": \"lodash\"}"); });
        row("deep JSON", "in.json", {"in.json, line 1", "nested deeper"}, [](const LessonFolder &folder) {
            folder.put("in.json", "{\"Slides\": [" + QByteArray("[").repeated(200000));
        });
        row("item that is none", "in.json", {"in.json, line 2", "item of slide 1"},
            [](const LessonFolder &folder) { folder.put("in.json", "{\"Slides\": [\n{\"Items\": [\"circle\"]}]}"); });
        row("slide ID with a separator", "in.json", {"out.zqtx", "../1", "slide 1"},
            [](const LessonFolder &folder) { folder.put("in.json", R"({"Slides": [{"ID": "../1"}]})"); });
        row("slide ID twice", "in.json", {"out.zqtx", "\"a\"", "Slide 2"},
            [](const LessonFolder &folder) { folder.put("in.json", R"({"Slides": [{"ID": "a"}, {"ID": "a"}]})"); });
        row("resource out of the package", "in.json", {"in.json, line 1", "../a.png", "leads out"},
            [](const LessonFolder &folder) {
                folder.put("in.json", R"({"Slides": [], "Resources": {"../a.png": ""}})");
            });
        row("resource that is no base64", "in.json", {"in.json", "a.png", "base64"}, [](const LessonFolder &folder) {
            folder.put("in.json", R"({"Slides": [], "Resources": {"a.png": "!!!"}})");
        });

        row("no archive", "in.zqtx", {"in.zqtx", "no zip archive"},
            [](const LessonFolder &folder) { folder.put("in.zqtx", "PK, or so it says"); });
        row("cut archive", "in.zqtx", {"in.zqtx", "no zip archive"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"index.xml", QByteArray(5000, ' ')}}).left(3000));
        });
        row("damaged archive", "in.zqtx", {"in.zqtx", "index.xml", "damaged"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"index.xml", "<main/>"}}));
        });
        row("archive that leads out", "in.zqtx", {"in.zqtx", "../evil.xml", "leads out"},
            [](const LessonFolder &folder) {
                folder.put("in.zqtx", LessonFolder::zip({{"../evil.xml", ""}}));
            });
        row("absolute entry", "in.zqtx", {"in.zqtx", "/tmp/evil.xml", "absolute"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"/tmp/evil.xml", ""}}));
        });
        row("entry with a backslash", "in.zqtx", {"in.zqtx", "..\\evil.xml"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"..\\evil.xml", ""}}));
        });
        row("entry with a control character", "in.zqtx", {"in.zqtx", "control characters"},
            [](const LessonFolder &folder) {
                folder.put("in.zqtx", LessonFolder::zip({{"a\nb.xml", ""}}));
            });
        row("entry twice", "in.zqtx", {"in.zqtx", "index.xml", "twice"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"index.xml", ""}, {"index.xml", ""}}));
        });
        row("entry that is a link", "in.zqtx", {"in.zqtx", "a.png", "link"}, [](const LessonFolder &folder) {
            folder.put("in.zqtx", LessonFolder::zip({{"a.png", "/etc/passwd"}}, 0120777U << 16));
        });
        row("more entries than the archive counts", "in.zqtx", {"in.zqtx", "more than 100000 entries"},
            [](const LessonFolder &folder) {
                QVector<QPair<QByteArray, QByteArray>> entries{{"index.xml", "<main/>"}};
                while (entries.size() <= 100000) {
                    entries.append({"a" + QByteArray::number(entries.size()), {}});
                }
                folder.put("in.zqtx", LessonFolder::zip(entries));
            });
        row("archive that unpacks to too much", "in.zqtx", {"in.zqtx", "packed more tightly"},
            [](const LessonFolder &folder) {
                folder.put("bomb/index.xml", QByteArray(64 * 1024 * 1024, ' '));
                packZip(folder.path("bomb"), folder.path("in.zqtx"));
                // What the archive library makes is honest; ten thousand times as much is promised here.
                QFile file(folder.path("in.zqtx"));
                QVERIFY(file.open(QIODevice::ReadWrite));
                QByteArray bytes = file.readAll();
                const int size = bytes.lastIndexOf("PK\1\2") + 24;
                bytes.replace(size, 4, QByteArray("\0\0\0\x7f", 4));
                file.seek(0);
                file.write(bytes);
            });

        row("unknown format", "in.doc", {"in.doc", "--from"},
            [](const LessonFolder &folder) { folder.put("in.doc", "a letter"); });
        row("wrong root of raw XML", "in.xml", {"in.xml", "<lesson>", "<presentation>"},
            [](const LessonFolder &folder) { folder.put("in.xml", "<lesson/>"); });
    }

    void saysWhatIsWrong()
    {
        QFETCH(Make, make);
        QFETCH(QString, input);
        QFETCH(QStringList, words);
        make(m_folder);
        m_folder.put("out.zqtx", "the lesson of yesterday");

        const LessonFolder::Outcome outcome =
            m_folder.run({QStringLiteral("convert"), input, QStringLiteral("out.zqtx")});
        QCOMPARE(outcome.exitCode, 2);
        for (const QString &word : words) {
            QVERIFY2(outcome.message.contains(word), qPrintable(outcome.message));
        }
        QCOMPARE(outcome.message.count(QLatin1Char('\n')), 1);
        QFile former(m_folder.path("out.zqtx"));
        QVERIFY(former.open(QIODevice::ReadOnly));
        QCOMPARE(former.readAll(), QByteArray("the lesson of yesterday"));
        const QStringList left = m_folder.hiddenEntries();
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
    }

    void refusesTargets_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("words");
        QTest::newRow("folder that doesn't exist") << "nowhere/out.zqtx"
                                                   << "doesn't exist";
        QTest::newRow("folder in the place of a file") << "folder.json"
                                                       << "folder of this name";
        QTest::newRow("folder with something else in it") << "mine"
                                                          << "it is no lesson";
        QTest::newRow("file in the place of a folder") << "notes"
                                                       << "file of this name";
        QTest::newRow("format that is only read") << "out.xml"
                                                  << "can't be written";
    }

    void refusesTargets()
    {
        QFETCH(QString, output);
        QFETCH(QString, words);
        m_folder.put("in.json", R"({"Slides": []})");
        m_folder.put("folder.json/keep.txt", "keep");
        m_folder.put("mine/diary.txt", "keep");
        m_folder.put("notes", "keep");

        const LessonFolder::Outcome outcome =
            m_folder.run({QStringLiteral("convert"), QStringLiteral("in.json"), output});
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.message.contains(output) && outcome.message.contains(words), qPrintable(outcome.message));
        QVERIFY(QFile::exists(m_folder.path("folder.json/keep.txt")) && QFile::exists(m_folder.path("mine/diary.txt"))
                && QFile::exists(m_folder.path("notes")));
    }

    void replacesALessonWholeAndSweepsAfterKilledRuns()
    {
        m_folder.put("in.json", R"({"Slides": [{"ID": "new"}]})");
        m_folder.put("out/index.xml", "<main/>");
        m_folder.put("out/slides/old.xml", "<slide/>");
        m_folder.put(".lessonconv-dead/package/index.xml", "<main/>");
        // The lock of a process that can't exist any more.
        m_folder.put(".lessonconv-dead.lock", "4194304999\nlessonconv\n" + QSysInfo::machineHostName().toUtf8() + "\n");

        QCOMPARE(m_folder.run({QStringLiteral("convert"), QStringLiteral("in.json"), QStringLiteral("out")}).exitCode,
                 0);
        QVERIFY(QFile::exists(m_folder.path("out/slides/new.xml")));
        QVERIFY(!QFile::exists(m_folder.path("out/slides/old.xml")));
        QVERIFY(!QFile::exists(m_folder.path(".lessonconv-dead"))
                && !QFile::exists(m_folder.path(".lessonconv-dead.lock")));
    }

    void tellsLossesByExitCodeAndReport()
    {
        m_folder.put("in.json", R"({"Version": "3.0", "Slides": [{"ID": "1", "Items": [
            {"Type": "ZQSmoothStroke", "ID": "7", "XY": "1,2,3,4", "Mood": "cheerful"}]}]})");
        const QStringList arguments{"convert", "in.json", "out", "--report", "report.json"};
        QCOMPARE(m_folder.run(arguments).exitCode, 0);
        const LessonFolder::Outcome strict = m_folder.run(arguments + QStringList{"--strict"});
        QCOMPARE(strict.exitCode, 1);
        QCOMPARE(strict.message, QStringLiteral("lessonconv: 1 value lost: ZQSmoothStroke.Mood on slide 1\n"));

        QFile report(m_folder.path("report.json"));
        QVERIFY(report.open(QIODevice::ReadOnly));
        const QJsonObject found = QJsonDocument::fromJson(report.readAll()).object();
        QCOMPARE(found.value("losses").toInt(), 1);
        const QJsonObject expected{{"kind", "value"}, {"slide", 1},    {"type", "ZQSmoothStroke"},
                                   {"id", "7"},       {"key", "Mood"}, {"detail", "cheerful"}};
        QCOMPARE(found.value("entries").toArray().first().toObject(), expected);
    }
};

QTEST_GUILESS_MAIN(TestHostInput)
#include "tst_hostinput.moc"
