#include "hostfixture.h"
#include "ziparchive.h"
#include "ziptext.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QtTest>

#include <csignal>
#include <random>

#include <sys/resource.h>
#include <unistd.h>

namespace {

// No file may grow beyond this, as on a disk that is full. A lesson's small files fit.
void allowSmallFilesOnly()
{
    const rlimit limit{16 * 1024, 16 * 1024};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::signal(SIGXFSZ, SIG_IGN);
}

void diePastSmallFiles()
{
    allowSmallFilesOnly();
    ::signal(SIGXFSZ, SIG_DFL);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
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
            + "\", \"Items\": [{\"Type\": \"ZQImagePic\", \"ID\": \"7\", \"BoundingBox\": \"1,2,3,4\", "
              "\"Matrix\": \"1,0,0,1,0,0\", \"resource\": \"images/a.png\", "
              "\"MultiMediaFile\": \"images/a.png\"}]}";
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

    QString path(const QString &name) const { return m_folder->filePath(name); }

    int run(const QStringList &arguments, const std::function<void()> &prepare = {}, QString *message = nullptr) const
    {
        const Command::Outcome outcome = runCommand(arguments, m_folder->path(), prepare);
        if (message) {
            *message = outcome.errors;
        }
        return outcome.exitCode;
    }

    QStringList convert(const QString &from, const QString &to) const
    {
        return {"convert"_s, from, to, "--quiet"_s, "--no-check"_s};
    }

    // All that is at a target, by the path in it.
    QMap<QString, QByteArray> contentOf(const QString &target) const
    {
        QMap<QString, QByteArray> files;
        if (QFileInfo(target).isFile() && !target.endsWith(".json")) {
            // Archives hold times, so their files are compared.
            const QTemporaryDir unpacked;
            try {
                unpackZip(target, unpacked.path());
            } catch (const LessonError &error) {
                return {{error.message(), {}}};
            }
            return contentOf(unpacked.path());
        }
        if (QFileInfo(target).isFile()) {
            return {{QString(), fileContent(target)}};
        }
        return filesBelow(target);
    }

    QStringList hiddenEntries() const
    {
        return QDir(m_folder->path()).entryList({".*"_s}, QDir::Hidden | QDir::AllEntries | QDir::NoDotAndDotDot);
    }

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
    }
    void cleanup() { m_folder.reset(); }

    void runsOutOfSpace_data() { addTargets(); }

    void runsOutOfSpace()
    {
        QFETCH(QString, target);
        putFile(path("new.json"), lessonText("new", 3));
        QCOMPARE(run(convert("new.json"_s, "new"_s)), 0);
        QCOMPARE(run(convert("old.json"_s, target)), 0);
        const auto before = contentOf(path(target));

        QString message;
        QCOMPARE(run(convert("new"_s, target), allowSmallFilesOnly, &message), 2);
        QCOMPARE(message.count(QLatin1Char('\n')), 1);
        QVERIFY2(message.contains(target) && message.contains("room"), qPrintable(message));
        QCOMPARE(contentOf(path(target)), before);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));

        // The same as a death in the middle of a write.
        QCOMPARE(run(convert("new"_s, target), diePastSmallFiles), -1);
        QCOMPARE(contentOf(path(target)), before);
        QCOMPARE(run(convert("new"_s, target)), 0);
        QVERIFY(contentOf(path(target)) != before);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));
    }

    void leavesProtectedTargetsAlone_data() { addTargets(); }

    void leavesProtectedTargetsAlone()
    {
        QFETCH(QString, target);
        if (run({"--version"_s}, becomeNobody) != 0) {
            QSKIP("the build lies where another user can't reach it");
        }
        QFile::setPermissions(path("old.json"), QFile::Permissions(0x4444));
        QCOMPARE(run(convert("old.json"_s, target)), 0);
        const auto before = contentOf(path(target));
        const QFile::Permissions readable = QFile::ReadOwner | QFile::ReadOther | QFile::ReadGroup | QFile::ExeOwner
            | QFile::ExeOther | QFile::ExeGroup;
        QVERIFY(QFile::setPermissions(m_folder->path(), readable));
        QString message;
        const int code = run(convert("old.json"_s, target), becomeNobody, &message);
        QFile::setPermissions(m_folder->path(), readable | QFile::WriteOwner);
        QCOMPARE(code, 2);
        QVERIFY2(message.contains("Check that you may write there"), qPrintable(message));
        QCOMPARE(contentOf(path(target)), before);
    }

    void refusesPlacesThatHoldNoFiles_data()
    {
        const Table<QString> row("target");
        row("kernel", "/proc/out.json");
        row("device", "/dev/full/out.json");
        row("below a file", "old.json/out.zqtx");
    }

    void refusesPlacesThatHoldNoFiles()
    {
        QFETCH(QString, target);
        QString message;
        QCOMPARE(run(convert("old.json"_s, target), {}, &message), 2);
        QCOMPARE(message.count(QLatin1Char('\n')), 1);
        QCOMPARE(fileContent(path("old.json")), lessonText("old", 3));
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
        QFETCH(QString, input);
        QFETCH(QString, named);
        QCOMPARE(run(convert("old.json"_s, input)), 0);
        const auto reader = openLesson(path(input));
        QCOMPARE(reader->slideCount(), 3);
        QVERIFY(QFileInfo(path(input)).isDir() ? QDir(path(input)).removeRecursively() : QFile::remove(path(input)));
        QString message;
        try {
            QCOMPARE(reader->slide(0).items.size(), 1);
        } catch (const LessonError &error) {
            message = error.message();
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
        QCOMPARE(run(convert("new.json"_s, target)), 0);
        const int duration = int(timer.elapsed());
        const auto whole = contentOf(path(target));
        QCOMPARE(run(convert("old.json"_s, target)), 0);
        const auto old = contentOf(path(target));
        QVERIFY(whole != old);

        std::minstd_rand random(uint(target.size()));
        for (int i = 0; i < 13; ++i) {
            Command command;
            command.begin(convert(i % 2 ? "old.json"_s : "new.json"_s, target), m_folder->path());
            QTest::qSleep(int(random() % uint(duration)) + 1);
            command.kill();
            command.waitForFinished();
            const auto found = contentOf(path(target));
            QVERIFY2(found == old || found == whole, qPrintable(found.keys().join(QLatin1Char(' '))));
        }
        QCOMPARE(run(convert("new.json"_s, target)), 0);
        QCOMPARE(contentOf(path(target)), whole);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
