#include "lesson.h"
#include "lessonerror.h"
#include "pluginfixture.h"
#include "ziparchive.h"
#include "ziptext.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <random>

#include <sys/resource.h>
#include <unistd.h>

namespace {

/*!
 * The command, with something done to its process before it starts.
 */
class Command : public QProcess
{
public:
    std::function<void()> prepare;

protected:
    void setupChildProcess() override
    {
        if (prepare) {
            prepare();
        }
    }
};

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

    void start(Command &command, const QStringList &arguments) const
    {
        command.setWorkingDirectory(m_folder->path());
        command.start(QStringLiteral(LESSONCONV_FILE), arguments);
        QVERIFY(command.waitForStarted());
    }

    int run(const QStringList &arguments, const std::function<void()> &prepare = {}, QString *message = nullptr) const
    {
        Command command;
        command.prepare = prepare;
        start(command, arguments);
        command.waitForFinished(60000);
        if (message) {
            *message = QString::fromUtf8(command.readAllStandardError());
        }
        return command.exitStatus() == QProcess::NormalExit ? command.exitCode() : -1;
    }

    QStringList convert(const QString &from, const QString &to) const
    {
        return {QStringLiteral("convert"), from, to, QStringLiteral("--quiet"), QStringLiteral("--no-check")};
    }

    // All that is at a target, by the path in it.
    QMap<QString, QByteArray> contentOf(const QString &target) const
    {
        QMap<QString, QByteArray> files;
        if (QFileInfo(target).isFile() && !target.endsWith(QLatin1String(".json"))) {
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
        QDirIterator it(target, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            files.insert(QDir(target).relativeFilePath(file), fileContent(file));
        }
        return files;
    }

    QStringList hiddenEntries() const
    {
        return QDir(m_folder->path())
            .entryList({QStringLiteral(".*")}, QDir::Hidden | QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    void addTargets()
    {
        QTest::addColumn<QString>("target");
        for (const char *target : {"out.zqtx", "out.json", "out.iwb", "out"}) {
            QTest::newRow(target) << QString::fromLatin1(target);
        }
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        putFile(path(QStringLiteral("old.json")), lessonText("old", 3));
    }
    void cleanup() { m_folder.reset(); }

    void runsOutOfSpace_data() { addTargets(); }

    void runsOutOfSpace()
    {
        QFETCH(QString, target);
        putFile(path(QStringLiteral("new.json")), lessonText("new", 3));
        QCOMPARE(run(convert(QStringLiteral("new.json"), QStringLiteral("new"))), 0);
        QCOMPARE(run(convert(QStringLiteral("old.json"), target)), 0);
        const auto before = contentOf(path(target));

        QString message;
        QCOMPARE(run(convert(QStringLiteral("new"), target), allowSmallFilesOnly, &message), 2);
        QCOMPARE(message.count(QLatin1Char('\n')), 1);
        QVERIFY2(message.contains(target) && message.contains(QLatin1String("room")), qPrintable(message));
        QCOMPARE(contentOf(path(target)), before);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));

        // The same as a death in the middle of a write.
        QCOMPARE(run(convert(QStringLiteral("new"), target), diePastSmallFiles), -1);
        QCOMPARE(contentOf(path(target)), before);
        QCOMPARE(run(convert(QStringLiteral("new"), target)), 0);
        QVERIFY(contentOf(path(target)) != before);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));
    }

    void leavesProtectedTargetsAlone_data() { addTargets(); }

    void leavesProtectedTargetsAlone()
    {
        QFETCH(QString, target);
        if (run({QStringLiteral("--version")}, becomeNobody) != 0) {
            QSKIP("the build lies where another user can't reach it");
        }
        QFile::setPermissions(path(QStringLiteral("old.json")), QFile::Permissions(0x4444));
        QCOMPARE(run(convert(QStringLiteral("old.json"), target)), 0);
        const auto before = contentOf(path(target));
        const QFile::Permissions readable = QFile::ReadOwner | QFile::ReadOther | QFile::ReadGroup | QFile::ExeOwner
            | QFile::ExeOther | QFile::ExeGroup;
        QVERIFY(QFile::setPermissions(m_folder->path(), readable));
        QString message;
        const int code = run(convert(QStringLiteral("old.json"), target), becomeNobody, &message);
        QFile::setPermissions(m_folder->path(), readable | QFile::WriteOwner);
        QCOMPARE(code, 2);
        QVERIFY2(message.contains(QLatin1String("Check that you may write there")), qPrintable(message));
        QCOMPARE(contentOf(path(target)), before);
    }

    void refusesPlacesThatHoldNoFiles_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("kernel") << QStringLiteral("/proc/out.json");
        QTest::newRow("device") << QStringLiteral("/dev/full/out.json");
        QTest::newRow("below a file") << QStringLiteral("old.json/out.zqtx");
    }

    void refusesPlacesThatHoldNoFiles()
    {
        QFETCH(QString, target);
        QString message;
        QCOMPARE(run(convert(QStringLiteral("old.json"), target), {}, &message), 2);
        QCOMPARE(message.count(QLatin1Char('\n')), 1);
        QCOMPARE(fileContent(path(QStringLiteral("old.json"))), lessonText("old", 3));
    }

    // A file that goes while the lesson is read is named; what was read before stays right.
    void missesInputsThatGo_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("named");
        QTest::newRow("folder") << QStringLiteral("in") << QStringLiteral("slides/old0.xml");
        QTest::newRow("archive") << QStringLiteral("in.zqtx") << QString();
        QTest::newRow("JSON") << QStringLiteral("in.json") << QString();
        QTest::newRow("IWB") << QStringLiteral("in.iwb") << QString();
    }

    void missesInputsThatGo()
    {
        QFETCH(QString, input);
        QFETCH(QString, named);
        QCOMPARE(run(convert(QStringLiteral("old.json"), input)), 0);
        LessonContext context;
        context.plugin = plugin();
        const auto reader = lessonFormatOfInput(path(input)).open(path(input), context);
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
        putFile(path(QStringLiteral("new.json")), lessonText("new", 60));
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(run(convert(QStringLiteral("new.json"), target)), 0);
        const int duration = int(timer.elapsed());
        const auto whole = contentOf(path(target));
        QCOMPARE(run(convert(QStringLiteral("old.json"), target)), 0);
        const auto old = contentOf(path(target));
        QVERIFY(whole != old);

        std::minstd_rand random(uint(target.size()));
        for (int i = 0; i < 13; ++i) {
            Command command;
            start(command, convert(i % 2 ? QStringLiteral("old.json") : QStringLiteral("new.json"), target));
            QTest::qSleep(int(random() % uint(duration)) + 1);
            command.kill();
            command.waitForFinished();
            const auto found = contentOf(path(target));
            QVERIFY2(found == old || found == whole, qPrintable(found.keys().join(QLatin1Char(' '))));
        }
        QCOMPARE(run(convert(QStringLiteral("new.json"), target)), 0);
        QCOMPARE(contentOf(path(target)), whole);
        QVERIFY2(hiddenEntries().isEmpty(), qPrintable(hiddenEntries().join(QLatin1Char(' '))));
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
