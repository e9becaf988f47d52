// SPDX-License-Identifier: MIT
#include "files/folder.h"
#include "hostfixture.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

//! A file beside the output, by its path, and what it holds.
using Files = QVector<QPair<QString, QByteArray>>;

QPair<QString, QByteArray> index(const QByteArray &files)
{
    return {"in/index.xml",
            "<main version=\"3.0\" width=\"800\" height=\"600\">\n<slides>\n" + files + "</slides></main>"};
}

QPair<QString, QByteArray> indexOf(const char *slide)
{
    return index(QByteArray("<file href=\"") + slide + "\"/>");
}

} // namespace

Q_DECLARE_METATYPE(Files)

/*!
 * What the command does with lessons that are broken, hostile or can't be written: a sentence that says where and what,
 * the exit code, and an output that stays as it was.
 */
class TestHostInput : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    CommandProcess::Outcome convert(const QString &input, const QString &output, const QStringList &options = {}) const
    {
        return runCommand(QStringList{"convert", input, output} + options, m_folder->path());
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void saysWhatIsWrong_data()
    {
        const Table<QString, QStringList, Files> row("input", "words", "files");
        row("no such file", "none.zqtx", {"none.zqtx", "no such file"}, {});
        row("name with a line break", "no\nne.zqtx", {"no ne.zqtx"}, {});
        row("not XML", "in", {"in/index.xml, line 2", "not well-formed"},
            {{"in/index.xml", "<main>\n<slides></main>"}});
        row("another document", "in", {"in/index.xml", "begins with <html>", "<main>"},
            {{"in/index.xml", "<html><body/></html>"}});
        row("missing slide", "in", {"in/index.xml", "slides/2.xml", "missing"}, {indexOf("slides/2.xml")});
        row("slide named twice", "in", {"in/index.xml", "slides/1.xml", "twice"},
            {index("<file href=\"slides/1.xml\"/><file href=\"slides/1.xml\"/>"),
             {"in/slides/1.xml", "<slide id=\"1\"><items/></slide>"}});
        row("slide out of the package", "in", {"in/index.xml", "../secret.xml", "leads out"},
            {indexOf("../secret.xml")});
        row("absolute slide", "in", {"/etc/passwd", "absolute"}, {indexOf("/etc/passwd")});
        row("wrong root of a slide", "in", {"in/slides/1.xml", "<main>", "<slide>"},
            {indexOf("slides/1.xml"), {"in/slides/1.xml", "<main/>"}});

        const auto json = [&row](const char *name, const QStringList &words, const QByteArray &text) {
            row(name, "in.json", words, {{"in.json", text}});
        };
        json("not JSON", {"in.json, line 2", "not JSON"}, "{\"Slides\": [\n{\"ID\" \"1\"}]}");
        json("cut JSON", {"in.json, line 1", "no end"}, "{\"Slides\": [{\"ID\": \"1");
        json("empty file", {"in.json", "ends too early"}, "");
        json("other JSON", {"in.json", "no \"Slides\""}, "{\"name\": \"lodash\"}");
        json("name twice", {"in.json, line 2", "\"Slides\" twice"}, "{\"Slides\": [],\n\"Slides\": []}");
        json("item that is none", {"in.json, line 2", "item of slide 1"},
             "{\"Slides\": [\n{\"Items\": [\"circle\"]}]}");
        const QByteArray group("{\"Type\": \"ZQGroupItem\", \"Children\": [");
        json("groups in groups", {"out.zqtx/slides/1.xml", "slide 1", "deeper than 1100"},
             "{\"Slides\": [{\"Items\": [" + group.repeated(560) + QByteArray("]}").repeated(560) + "]}]}");
        json("slide ID with a separator", {"out.zqtx", "../1", "slide 1"}, R"({"Slides": [{"ID": "../1"}]})");
        json("slide ID twice", {"out.zqtx", "\"a\"", "Slide 2"}, R"({"Slides": [{"ID": "a"}, {"ID": "a"}]})");
        json("resource out of the package", {"in.json, line 1", "../a.png", "leads out"},
             R"({"Slides": [], "Resources": {"../a.png": ""}})");
        json("resource that is no base64", {"in.json", "a.png", "base64"},
             R"({"Slides": [], "Resources": {"a.png": "!!!"}})");

        row("unknown format", "in.doc", {"in.doc", "--from"}, {{"in.doc", "a letter"}});
        row("wrong root of raw XML", "in.xml", {"in.xml", "<lesson>", "<presentation>"}, {{"in.xml", "<lesson/>"}});
        row("wrong root of IWB", "in.iwb", {"in.iwb/content.xml", "<html>", "<iwb>"},
            {{"in.iwb/content.xml", "<html/>"}});
        row("IWB without pages", "in", {"in/content.xml", "no svg element"}, {{"in/content.xml", "<iwb/>"}});
    }

    void saysWhatIsWrong()
    {
        const auto [input, words, files] = Table<QString, QStringList, Files>::cells();
        putFile(path("out.zqtx"), "the lesson of yesterday");
        for (const auto &file : qAsConst(files)) {
            putFile(path(file.first), file.second);
        }

        const CommandProcess::Outcome outcome = convert(input, "out.zqtx");
        QCOMPARE(outcome.exitCode, 2);
        for (const QString &word : qAsConst(words)) {
            QVERIFY2(outcome.errors.contains(word), qPrintable(outcome.errors));
        }
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(fileContent(path("out.zqtx")), QByteArray("the lesson of yesterday"));
        QCOMPARE(hiddenEntries(m_folder->path()), QStringList());
    }

    // What can't be taken along is not left out in silence.
    void refusesStrangersInAFolder_data()
    {
        const Table<QString, QByteArray, QString> row("document", "stranger", "words");
        for (const char *document : {"index.xml", "content.xml"}) {
            row("link", document, "images/link.png", "images/link.png: This is a link");
            row("link to a folder", document, "folder", "in/folder: This is a link");
            row("pipe", document, "images/pipe.png", "images/pipe.png: This is a pipe");
            row("name in another encoding", document, "images/\xff.png", "no UTF-8");
        }
    }

    void refusesStrangersInAFolder()
    {
        const auto [document, stranger, words] = Table<QString, QByteArray, QString>::cells();
        putFile(path("secret.png"), "secret");
        putFile(path("in/index.xml"), "<main/>");
        putFile(path("in/content.xml"),
                "<iwb xmlns:s=\"http://www.w3.org/2000/svg\"><s:svg><s:page id=\"p\"/></s:svg></iwb>");
        QFile::remove(path("in/"_s + (document == "index.xml" ? "content.xml" : "index.xml")));
        QVERIFY(QDir().mkpath(path("in/images")));
        QCOMPARE(convert("in", "good.json").exitCode, 0);

        const QByteArray file = QFile::encodeName(path("in")) + '/' + stranger;
        if (words.contains("link")) {
            QVERIFY(::symlink("../secret.png", file.constData()) == 0);
        } else {
            QVERIFY(::mknod(file.constData(), words.contains("pipe") ? S_IFIFO | 0600 : S_IFREG | 0600, 0) == 0);
        }
        const CommandProcess::Outcome outcome = convert("in", "out.json");
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QVERIFY(!QFileInfo::exists(path("out.json")));
        lessonhost::removeFolder(path("in"));
    }

    // Neither waits for a writer, nor reads what never ends.
    void refusesPipesAndDevices_data()
    {
        const Table<QString> row("format");
        for (const char *format : {"json", "zqtx", "rawxml", "iwb"}) {
            row(format, format);
        }
    }

    void refusesPipesAndDevices()
    {
        QFETCH(QString, format);
        QVERIFY(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600) == 0);
        for (const char *input : {"pipe", "/dev/zero"}) {
            const CommandProcess::Outcome outcome = runCommand({"info", input, "--from", format}, m_folder->path());
            QCOMPARE(outcome.exitCode, 2);
            QVERIFY2(outcome.errors.contains(", not a file"), qPrintable(outcome.errors));
        }
    }

    // Nothing that is read is written over, whatever it is called, and nothing is written before that is found.
    void keepsWhatItReads_data()
    {
        const Table<QStringList> row("arguments");
        row("into the folder", {"convert", "in", "in/index.xml", "--to", "json"});
        row("folder into itself", {"convert", "in", "in/out"});
        row("itself", {"convert", "a.json", "a.json"});
        row("another spelling", {"convert", "a.json", "in/../a.json"});
        row("through a link", {"convert", "a.json", "link.json"});
        row("a second name", {"convert", "link.json", "twin.json"});
        row("through a linked folder", {"convert", "in", "linked/out.json"});
        row("around it", {"convert", "in/inner.json", "in", "--to", "zqtx"});
        row("report in its place", {"convert", "a.json", "out.zqtx", "--report", "link.json"});
        row("report in the folder", {"convert", "in", "out.zqtx", "--report", "in/r.json"});
        row("report over the result", {"convert", "a.json", "out.zqtx", "--report", "./out.zqtx"});
        row("report in the result", {"convert", "a.json", "old", "--report", "old/r.json"});
        row("report that can't be", {"convert", "a.json", "out.zqtx", "--report", "none/r.json"});
        row("picture over it", {"render", "a.json", "p%d.svg"});
        row("picture into it", {"render", "in", "linked/p%d.svg"});
        row("report over a picture", {"render", "a.json", "q%d.svg", "--report", "q1.svg"});
        row("report beside a page", {"render", "a.json", "--to", "html", "--out-dir", ".", "--report", "a_files/r"});
        row("two side by side", {"render", "--diff", "a.json", "in", "in/p.html"});
        row("many", {"convert", "in", "--to", "json", "--out-dir", "in/out"});
        row("report of many", {"convert", "a.json", "--to", "iwb", "--out-dir", "out", "--report", "out/a.iwb"});
        row("report over one of many", {"convert", "a.json", "--to", "iwb", "--out-dir", "out", "--report", "a.json"});
        row("journal through a link", {"convert", "a.json", "--to", "zqtx", "--out-dir", "planted"});
        row("device", {"convert", "a.json", "null.json"});
    }

    void keepsWhatItReads()
    {
        QFETCH(QStringList, arguments);
        const QByteArray lesson = R"({"Slides": [{"ID": "1"}]})";
        for (const char *name : {"a.json", "in/inner.json"}) {
            putFile(path(name), lesson);
        }
        for (const char *folder : {"in", "old", "a_files"}) {
            putFile(path(folder) + "/index.xml", "<main/>");
        }
        QVERIFY(QFile::link("a.json", path("link.json")) && QFile::link("in", path("linked")));
        QVERIFY(QDir().mkdir(path("planted")) && QFile::link("../a.json", path("planted/.lessonconv-done")));
        QVERIFY(QFile::link("/dev/null", path("null.json")));
        const QByteArray own = QFile::encodeName(path("a.json"));
        for (const char *name : {"twin.json", "p1.svg"}) {
            QVERIFY(::link(own.constData(), QFile::encodeName(path(name)).constData()) == 0);
        }
        const auto before = filesBelow(m_folder->path());
        const CommandProcess::Outcome outcome = runCommand(arguments, m_folder->path());
        QCOMPARE(outcome.exitCode, 2);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(filesBelow(m_folder->path()), before);
        QVERIFY(QFileInfo(path("link.json")).isSymLink());
    }

    // A full or a closed standard output.
    void saysThatItCannotPrint_data()
    {
        const Table<QStringList> row("arguments");
        row("info", {"info", "a.json"});
        row("information for scripts", {"info", "a.json", "--json"});
        row("conversion", {"convert", "a.json", "out.zqtx", "--json"});
        row("failure", {"convert", "none.json", "out.zqtx", "--json"});
        row("many", {"convert", "a.json", "--to", "zqtx", "--out-dir", "out"});
        row("version", {"--version"});
        row("help", {"--help"});
    }

    void saysThatItCannotPrint()
    {
        QFETCH(QStringList, arguments);
        putFile(path("a.json"), R"({"Slides": [{"ID": "1"}]})");
        for (const bool isClosed : {true, false}) {
            const CommandProcess::Outcome outcome = runCommand(arguments, m_folder->path(), [isClosed] {
                ::close(STDOUT_FILENO);
                if (!isClosed) {
                    ::open("/dev/full", O_WRONLY);
                }
            });
            QCOMPARE(outcome.exitCode, 2);
            QVERIFY2(outcome.errors.contains("Standard output: It can't be written"), qPrintable(outcome.errors));
        }
    }

    void refusesTargets_data()
    {
        const Table<QString, QString> row("output", "words");
        row("folder that doesn't exist", "nowhere/out.zqtx", "doesn't exist");
        row("folder in the place of a file", "folder.json", "folder of this name");
        row("folder with something else in it", "mine", "it is no lesson");
        row("file in the place of a folder", "notes", "file of this name");
        row("format that is only read", "out.xml", "can't be written");
        row("kernel's own files", "/proc/out.json", "Nothing can be written");
        row("below a device", "/dev/full/out.json", "doesn't exist");
        row("below a file", "notes/out.zqtx", "doesn't exist");
    }

    void refusesTargets()
    {
        const auto [output, words] = Table<QString, QString>::cells();
        putFile(path("in.json"), R"({"Slides": []})");
        putFile(path("folder.json/keep.txt"), "keep");
        putFile(path("mine/diary.txt"), "keep");
        putFile(path("notes"), "keep");
        const auto before = filesBelow(m_folder->path());

        const CommandProcess::Outcome outcome = convert("in.json", output);
        QCOMPARE(outcome.exitCode, 2);
        const QString place = output.section("/out.json", 0, 0);
        QVERIFY2(outcome.errors.contains(place) && outcome.errors.contains(words), qPrintable(outcome.errors));
        QCOMPARE(filesBelow(m_folder->path()), before);
    }

    void tellsOfALessonThatIsCutShortWhileItIsRead()
    {
        const QString file = path("in.json");
        putFile(file, "{\"Slides\": [{\"ID\": \"" + QByteArray(100000, '1') + "\"}]}");
        const auto reader = openLesson(file);
        QVERIFY(QFile::resize(file, 50000));
        try {
            reader->slide(0);
            QFAIL("a slide that is only half there");
        } catch (const LessonError &error) {
            QVERIFY2(error.message().english().contains(file) && error.message().english().contains("cut short"),
                     qPrintable(error.message().english()));
        }
    }

    void tellsLossesByExitCodeAndReport()
    {
        putFile(path("in.json"), R"({"Version": "3.0", "Slides": [{"ID": "1", "Items": [
            {"Type": "ZQSmoothStroke", "ID": "7", "XY": "1,2,3,4", "Mood": "cheerful"}]}]})");
        QCOMPARE(convert("in.json", "out").exitCode, 0);
        const CommandProcess::Outcome strict = convert("in.json", "out", {"--report", "report.json", "--strict"});
        QCOMPARE(strict.exitCode, 1);
        QCOMPARE(strict.errors, "lessonconv: Shown in the result, but not the same:\n  \"Mood\": 1 pen stroke on slide 1.\n");

        const QJsonObject found = QJsonDocument::fromJson(fileContent(path("report.json"))).object();
        QCOMPARE(found.value("losses").toInt(), 1);
        const QJsonObject expected{{"kind", "value"}, {"group", "different"}, {"slide", 1},    {"type", "ZQSmoothStroke"},
                                   {"id", "7"},       {"key", "Mood"}, {"detail", "cheerful"}};
        QCOMPARE(found.value("entries").toArray().first().toObject(), expected);
    }
};

QTEST_GUILESS_MAIN(TestHostInput)
#include "tst_hostinput.moc"
