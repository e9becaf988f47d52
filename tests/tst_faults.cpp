// SPDX-License-Identifier: MIT
#include "files/packagetarget.h"
#include "files/staging.h"
#include "files/workfolder.h"
#include "hostfixture.h"
#include "testtable.h"
#include "ziptext.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <map>
#include <random>

#include <sys/resource.h>
#include <unistd.h>

namespace {

// No file may grow beyond what a lesson's small files take: the end in the middle of a write.
void diePastSmallFiles()
{
    const rlimit limit{16 * 1024, 16 * 1024};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::signal(SIGXFSZ, SIG_DFL);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
}

// Keeps others from reading a file, and tells its permissions.
QFile::Permissions ownerAlone(const QString &file)
{
    QFile::setPermissions(file, QFile::permissions(file) & ~(QFile::ReadGroup | QFile::ReadOther));
    return QFile::permissions(file);
}

// To root, no file is protected.
void becomeNobody()
{
    if (::getuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) {
        ::_exit(99);
    }
}

// A lesson of many slides, with a picture that doesn't pack.
QByteArray lessonText(const char *mark, int slides)
{
    QImage noise(150, 150, QImage::Format_RGB32);
    std::minstd_rand random(7);
    for (int i = 0; i < noise.width() * noise.height(); ++i) {
        noise.setPixel(i % noise.width(), i / noise.width(), QRgb(random()));
    }
    QBuffer picture;
    noise.save(&picture, "png");
    QByteArray text = "{\"Title\": \"" + QByteArray(mark) + "\", \"Slides\": [";
    for (int i = 0; i < slides; ++i) {
        text += (i ? ", " : "") + QByteArray("{\"ID\": \"") + mark + QByteArray::number(i)
            + "\", \"Items\": [{\"Type\": \"ZQImagePic\", \"ID\": \"7\", \"BoundingBox\": \"1,2,3,4\", \"Matrix\": "
              "\"1,0,0,1,0,0\", \"resource\": \"images/a.png\", \"MultiMediaFile\": \"images/a.png\"}]}";
    }
    return text + "], \"Resources\": {\"images/a.png\": \"" + picture.data().toBase64() + "\"}}";
}

} // namespace

/*!
 * What becomes of the output, and of what lies about it, when the machine lets the command down: the old output or the
 * new one is there, whole, and nothing else for long.
 */
class TestFaults : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_formerTemporary;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    static QStringList arguments(const QString &from, const QString &to)
    {
        return {"convert", from, to, "--quiet", "--no-check"};
    }

    CommandProcess::Outcome convert(const QString &from, const QString &to,
                                    const std::function<void()> &prepare = {}) const
    {
        return runCommand(arguments(from, to), m_folder->path(), prepare);
    }

    QStringList workFolders() const { return QDir(path("tmp")).entryList({"lessonconv*"_s}); }

    void addTargets()
    {
        const Table<QString> row("target");
        for (const char *target : {"out.zqtx", "out.json", "out.iwb", "out"}) {
            row(target, target);
        }
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        putFile(path("old.json"), lessonText("old", 3));
        m_formerTemporary = qgetenv("TMPDIR");
        const QString temporary = path("tmp");
        QVERIFY(QDir().mkdir(temporary) && QFile::setPermissions(temporary, QFile::Permissions(0x7777)));
        qputenv("TMPDIR", QFile::encodeName(temporary));
    }
    void cleanup()
    {
        m_formerTemporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_formerTemporary);
        m_folder.reset();
    }

    void diesInTheMiddleOfAWrite_data() { addTargets(); }

    void diesInTheMiddleOfAWrite()
    {
        QFETCH(QString, target);
        putFile(path("new.json"), lessonText("new", 3));
        QCOMPARE(convert("new.json", "new").exitCode, 0);
        QCOMPARE(convert("old.json", target).exitCode, 0);
        const auto before = contentOfTarget(path(target));
        QCOMPARE(convert("new", target, diePastSmallFiles).exitCode, -1);
        QCOMPARE(contentOfTarget(path(target)), before);
        const QFile::Permissions permissions = ownerAlone(path(target));
        QCOMPARE(convert("new", target).exitCode, 0);
        QVERIFY(contentOfTarget(path(target)) != before);
        QVERIFY(QFileInfo(path(target)).isDir() || QFile::permissions(path(target)) == permissions);
        QCOMPARE(hiddenEntries(m_folder->path()), QStringList());
    }

    void leavesProtectedTargetsAlone_data() { addTargets(); }

    void leavesProtectedTargetsAlone()
    {
        QFETCH(QString, target);
        if (runCommand({"--version"}, {}, becomeNobody).exitCode != 0) {
            QSKIP("the build lies where another user can't reach it");
        }
        QFile::setPermissions(path("old.json"), QFile::Permissions(0x4444));
        QCOMPARE(convert("old.json", target).exitCode, 0);
        const auto before = contentOfTarget(path(target));
        const QFile::Permissions readable = QFile::ReadOwner | QFile::ReadOther | QFile::ReadGroup | QFile::ExeOwner
            | QFile::ExeOther | QFile::ExeGroup;
        QVERIFY(QFile::setPermissions(m_folder->path(), readable));
        const CommandProcess::Outcome outcome = convert("old.json", target, becomeNobody);
        QFile::setPermissions(m_folder->path(), readable | QFile::WriteOwner);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.errors.contains("Check that you may write there"), qPrintable(outcome.errors));
        QCOMPARE(contentOfTarget(path(target)), before);
    }

    // A file that goes while the lesson is read is named; what was read before stays right.
    void missesInputsThatGo_data()
    {
        const Table<QString, QString> row("input", "named");
        row("folder", "in", "slides/old0.xml");
        row("archive", "in.zqtx", nullptr);
        row("JSON", "in.json", nullptr);
        row("IWB", "in.iwb", nullptr);
    }

    void missesInputsThatGo()
    {
        const auto [input, named] = Table<QString, QString>::cells();
        QCOMPARE(convert("old.json", input).exitCode, 0);
        const auto reader = openLesson(path(input));
        QCOMPARE(reader->slideCount(), 3);
        QVERIFY(QFileInfo(path(input)).isDir() ? QDir(path(input)).removeRecursively() : QFile::remove(path(input)));
        QString message;
        try {
            QCOMPARE(reader->slide(0).items.size(), 1);
        } catch (const LessonError &error) {
            message = error.message().english();
        }
        QVERIFY2(named.isEmpty() ? message.isEmpty() : message.contains(named), qPrintable(message));
    }

    void isKilledAtAnyMoment_data() { addTargets(); }

    void isKilledAtAnyMoment()
    {
        QFETCH(QString, target);
        putFile(path("new.json"), lessonText("new", 60));
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(convert("new.json", target).exitCode, 0);
        const int duration = int(timer.elapsed());
        const auto whole = contentOfTarget(path(target));
        QCOMPARE(convert("old.json", target).exitCode, 0);
        const auto old = contentOfTarget(path(target));
        QVERIFY(whole != old);

        std::minstd_rand random(uint(target.size()));
        for (int i = 0; i < 13; ++i) {
            CommandProcess command;
            command.begin(arguments(i % 2 ? "old.json" : "new.json", target), m_folder->path());
            QTest::qSleep(int(random() % uint(duration)) + 1);
            command.kill();
            command.waitForFinished();
            const auto found = contentOfTarget(path(target));
            QVERIFY2(found == old || found == whole, qPrintable(found.keys().join(' ')));
        }
        QCOMPARE(convert("new.json", target).exitCode, 0);
        QCOMPARE(contentOfTarget(path(target)), whole);
        QCOMPARE(hiddenEntries(m_folder->path()), QStringList());
        QCOMPARE(workFolders(), QStringList());
    }

    // Whoever may write beside the output can lay links there that look like what dead runs leave.
    void followsNoPlantedLinks()
    {
        putFile(path("victim/file"), "precious");
        QVERIFY(QDir().mkpath(path("out/.lessonconv-b/package/deep")) && QDir().mkpath(path("out/.lessonconv-c")));
        QVERIFY(QFile::link(path("victim"), path("out/.lessonconv-a")));
        QVERIFY(QFile::link(path("victim"), path("out/.lessonconv-b/package/deep/link")));
        QVERIFY(QFile::link(path("victim"), path("out/.lessonconv-c/replaced")));
        QVERIFY(QFile::link(path("victim/file"), path("out/.lessonconv-d.lock")));
        QVERIFY(QFile::link(path("victim"), path("tmp/lessonconv-work-abcdef")));
        for (const char *name : {"a", "b", "c"}) {
            putFile(path("out/.lessonconv-"_s + name + ".lock"), {});
        }
        QCOMPARE(convert("old.json", "out/a.zqtx").exitCode, 0);
        QCOMPARE(convert("out/a.zqtx", "out/a.json").exitCode, 0);
        QCOMPARE(filesBelow(path("victim")).value("file"), QByteArray("precious"));
        // The links themselves aren't this program's.
        QCOMPARE(hiddenEntries(path("out")), (QStringList{".lessonconv-a", ".lessonconv-d.lock"}));
        QCOMPARE(QDir(path("out")).entryList(QDir::Files), (QStringList{"a.json", "a.zqtx"}));
    }

    // What is written can be read again, or is refused before the work is done.
    void writesNothingThatIsNotRead()
    {
        QVERIFY(QDir().mkpath(path("large/images")));
        putFile(path("large/index.xml"), "<main/>");
        QFile file(path("large/images/a.bin"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(900) * 1024 * 1024));
        file.close();
        const CommandProcess::Outcome json = convert("large", "out.json");
        QVERIFY2(json.exitCode == 2 && json.errors.contains("1 GiB"), qPrintable(json.errors));
        putFile(path("many.json"), "{\"Slides\": [{}" + QByteArray(",{}").repeated(0x10000) + "]}");
        for (const char *name : {"out.zqtx", "out.iwb"}) {
            const auto inShortTime = [] {
                const rlimit seconds = {10, 10};
                ::setrlimit(RLIMIT_CPU, &seconds);
            };
            const CommandProcess::Outcome archive = convert("many.json", name, inShortTime);
            QVERIFY2(archive.exitCode == 2 && archive.errors.contains("65535 files"), qPrintable(archive.errors));
        }
        QCOMPARE(QDir(m_folder->path()).entryList({"out*"}), QStringList());
    }

    // In memory, in a file, and from one into the other.
    void packsWhatComesInPieces_data()
    {
        const Table<int> row("size");
        row("small", 100);
        row("on the way", 200 * 1024);
        row("large", 3000 * 1024);
    }

    void packsWhatComesInPieces()
    {
        QFETCH(int, size);
        const auto bytes = [size](quint32 seed) { // which can't be packed
            QByteArray random(size, Qt::Uninitialized);
            std::mt19937 generator(seed);
            std::generate(random.begin(), random.end(), [&generator] { return char(generator()); });
            return random;
        };
        putFile(path("source"), bytes(0));
        {
            PackageTarget target(path("a.zqtx"), PackageTarget::Archive);
            target.append("b", bytes(1));
            target.write("a/c", bytes(2));
            target.copy("d", path("source"), "source");
            target.append("b", bytes(3));
            QVERIFY_EXCEPTION_THROWN(target.append("a/c", bytes(3)), LessonError);
            target.append("b", bytes(4));
            target.append("b", {});
            target.commit();
        }
        const std::map<QString, QByteArray> expected{
            {"a/c", bytes(2)}, {"b", QByteArray(bytes(1) + bytes(3) + bytes(4))}, {"d", bytes(0)}};
        QVERIFY(contentOfTarget(path("a.zqtx")).toStdMap() == expected);
        QCOMPARE(hiddenEntries(m_folder->path()), QStringList());
    }

    // One lesson finds nothing of the one before, and what somebody removed is made again.
    void keepsAStagingFolder()
    {
        const auto begun = [this](bool isDone) {
            PackageTarget target(path("out/a.html"));
            putFile(target.workFolder() + "/deep/slides", {});
            target.write("files/sound", "1");
            target.file().put("2");
            isDone ? target.commit() : void();
            return hiddenEntries(path("out"));
        };
        QVERIFY(QDir().mkdir(path("out")) && QDir().mkdir(path("elsewhere")));
        {
            const Staging::Keeping keeping;
            const QStringList first = begun(false);
            QCOMPARE(hiddenEntries(path("out")), first);
            QCOMPARE(filesBelow(path("out/"_s + first.first())).size(), 0);
            QCOMPARE(begun(true), first);
            QVERIFY(QDir(path("out/"_s + first.first())).removeRecursively());
            QVERIFY(begun(true) != first);
            QDir().rename(path("out"), path("moved"));
            QVERIFY(QDir().mkdir(path("out")));
            QCOMPARE(begun(true).size(), first.size());
            PackageTarget(path("elsewhere/a.json")).commit();
            QCOMPARE(hiddenEntries(path("out")) + hiddenEntries(path("moved")), QStringList());
            QCOMPARE(hiddenEntries(path("elsewhere")).size(), first.size());
        }
        QCOMPARE(hiddenEntries(path("elsewhere")), QStringList());
    }

    // What a dead run unpacked goes with the next run, and what a living one works in stays.
    void sweepsWhatDeadRunsUnpacked()
    {
        QCOMPARE(convert("old.json", "in.zqtx").exitCode, 0);
        QCOMPARE(convert("in.zqtx", "out.json", diePastSmallFiles).exitCode, -1);
        QCOMPARE(workFolders().size(), 1);
        const WorkFolder living;
        const QStringList inUse(QFileInfo(living.path()).fileName());
        QCOMPARE(convert("in.zqtx", "out.json").exitCode, 0);
        QCOMPARE(workFolders(), inUse);
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
