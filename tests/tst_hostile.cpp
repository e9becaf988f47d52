#include "conversion.h"
#include "lessonerror.h"
#include "pluginfixture.h"
#include "ziparchive.h"
#include "ziptext.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <random>

namespace {

const QByteArray goodIndex = "<main version=\"3.0\" width=\"800\" height=\"600\" title=\"Good\"><slides>"
                             "<file href=\"slides/1.xml\"/></slides></main>";
const QByteArray goodSlide = "<slide id=\"1\"><items/></slide>";

const QByteArray doctype = "<!DOCTYPE main [<!ENTITY x SYSTEM \"%1\"><!ENTITY y \"aaaaaaaaaa\">]>";

QVector<ZipEntry> withGoodLesson(const QVector<ZipEntry> &others)
{
    return QVector<ZipEntry>{{"index.xml", goodIndex}, {"slides/1.xml", goodSlide}} + others;
}

QByteArray iwbContent(const QByteArray &page)
{
    return "<iwb xmlns:svg=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\">"
           "<svg:svg width=\"800\" height=\"600\"><svg:pageset><svg:page id=\"p\">"
        + page + "</svg:page></svg:pageset></svg:svg></iwb>";
}

QByteArray nested(const QByteArray &open, const QByteArray &close, int levels)
{
    return open.repeated(levels) + close.repeated(levels);
}

} // namespace

/*!
 * Packages that were made to do harm. Each is read whole, as the command reads it, and either refused with a sentence
 * or read as the lesson that it is; what it unpacks stays in its folder, and none takes long.
 */
class TestHostile : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    // The message of the refusal, or nothing and the lesson. Format by name or extension.
    QString read(const QString &lesson, QJsonObject *presentation = nullptr, QVector<LessonSlide> *slides = nullptr)
    {
        LessonContext context;
        context.plugin = plugin();
        QElapsedTimer timer;
        timer.start();
        QString message;
        try {
            const auto reader = lessonFormatOfInput(lesson).open(lesson, context);
            const QJsonObject keys = reader->presentation();
            if (presentation) {
                *presentation = keys;
            }
            reader->resources();
            for (int i = 0; i < reader->slideCount(); ++i) {
                const LessonSlide slide = reader->slide(i);
                if (slides) {
                    slides->append(slide);
                }
            }
        } catch (const LessonError &error) {
            message = error.message();
        }
        // Ten times as long as any takes, for a machine that has other things to do.
        if (timer.elapsed() > 20000) {
            return QStringLiteral("took %1 ms").arg(timer.elapsed());
        }
        return message;
    }

    // Whatever was unpacked is gone, and nothing but the files of the test is there.
    QStringList strangers() const
    {
        QStringList names;
        QDirIterator it(m_folder->path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        while (it.hasNext()) {
            it.next();
            if (!it.fileName().startsWith(QLatin1String("in")) && it.fileName() != QLatin1String("tmp")) {
                names.append(it.fileName());
            }
        }
        const QDir temporary(path("tmp"));
        return names + temporary.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir().mkpath(path("tmp"));
        qputenv("TMPDIR", QFile::encodeName(path("tmp")));
    }
    void cleanup()
    {
        m_folder.reset();
        qunsetenv("TMPDIR");
    }

    void refusesArchives_data()
    {
        QTest::addColumn<QByteArray>("archive");
        QTest::addColumn<QString>("words");

        const auto row = [](const char *name, const QVector<ZipEntry> &entries, const char *words) {
            QTest::newRow(name) << zipText(entries) << QString::fromLatin1(words);
        };
        row("out of a folder within", withGoodLesson({{"images/../../evil.png", "x"}}), "leads out");
        row("the package's own folder", withGoodLesson({{"./evil.png", "x"}}), "leads out");
        row("drive of another system", withGoodLesson({{"C:/evil.png", "x"}}), "colon");
        row("empty name", withGoodLesson({{"", "x"}}), "empty");
        row("two separators", withGoodLesson({{"images//a.png", "x"}}), "empty part");
        row("device of another system", withGoodLesson({{"images/nul.png", "x"}}), "device");
        row("name that reads backwards", withGoodLesson({{"images/\xe2\x80\xaegnp.exe", "x"}}), "control characters");
        row("two names in one", withGoodLesson({{QByteArray("a.png\0.exe", 10), "x"}}), "control characters");
        row("name of 300 letters", withGoodLesson({{QByteArray(300, 'a'), "x"}}), "too long");
        row("path of 5000 letters", withGoodLesson({{QByteArray("ab/").repeated(1600) + "c", "x"}}), "too long");
        row("folder twice", withGoodLesson({{"images/", ""}, {"images/", ""}}), "twice");
        row("file and folder of one name", withGoodLesson({{"a", "x"}, {"a/b", "x"}}), "");
        row("pipe", withGoodLesson({{"a.png", "", true, 0010644U << 16}}), "link or a device");
        row("link to a folder", withGoodLesson({{"slides", "/etc", false, 0120777U << 16}}), "link or a device");
        row("another name before the content",
            QVector<ZipEntry>{{"index.xml", goodIndex, true, 0, "../index.xml"}, {"slides/1.xml", goodSlide}}, "");
        row("more than it says", QVector<ZipEntry>{{"index.xml", QByteArray(32 * 1024 * 1024, ' '), true, 0, {}, 1000}},
            "damaged");
        row("ten million to one", withGoodLesson({{"a.png", QByteArray(64, 'x'), true, 0, {}, 640000000}}),
            "packed more tightly");
        row("1 GiB, or so it says", withGoodLesson({{"a.png", QByteArray(64, 'x'), true, 0, {}, 1 << 30, 1 << 30}}),
            "");
        row("twice 2 GiB, or so it says",
            withGoodLesson({{"a.png", "x", false, 0, {}, 0x7fffffff, 0x7fffffff},
                            {"b.png", "x", false, 0, {}, 0x7fffffff, 0x7fffffff}}),
            "more than 2 GiB");
        QVector<ZipEntry> many(100001, {QByteArray(), QByteArray(), false});
        for (int i = 0; i < many.size(); ++i) {
            many[i].name = 'a' + QByteArray::number(i);
        }
        row("100,001 entries", many, "");
        QTest::newRow("nothing") << QByteArray("") << "no zip archive";
        QTest::newRow("only an end") << zipText({}) << "no such file";
    }

    void refusesArchives()
    {
        QFETCH(QByteArray, archive);
        QFETCH(QString, words);
        putFile(path("in.zqtx"), archive);
        const QString message = read(path("in.zqtx"));
        QVERIFY(!message.isEmpty());
        QVERIFY2(message.contains(words), qPrintable(message));
        QVERIFY2(strangers().isEmpty(), qPrintable(strangers().join(QLatin1Char(' '))));
    }

    // Wherever a copy broke off.
    void refusesAPackageThatEndsEarly()
    {
        packZip(QStringLiteral(EXAMPLES_DIR "/geometry"), path("in-whole.zqtx"));
        QCOMPARE(read(path("in-whole.zqtx")), QString());
        const QByteArray whole = fileContent(path("in-whole.zqtx"));
        for (int size = 0; size < whole.size(); size += 1024) {
            putFile(path("in.zqtx"), whole.left(size));
            QVERIFY2(!read(path("in.zqtx")).isEmpty(), qPrintable(QString::number(size)));
        }
        QVERIFY(strangers().isEmpty());
    }

    // Wherever a disk or a wire lost a bit: refused, or read as if nothing had happened, where the bit says nothing.
    void survivesFlippedBits()
    {
        packZip(QStringLiteral(EXAMPLES_DIR "/geometry"), path("in-whole.zqtx"));
        const QByteArray whole = fileContent(path("in-whole.zqtx"));
        std::minstd_rand random(1);
        int refused = 0;
        const int tries = 150;
        for (int i = 0; i < tries; ++i) {
            QByteArray damaged = whole;
            const int at = int(random() % unsigned(whole.size()));
            damaged[at] = char(damaged.at(at) ^ (1 << (random() % 8)));
            putFile(path("in.zqtx"), damaged);
            refused += read(path("in.zqtx")).isEmpty() ? 0 : 1;
        }
        QVERIFY2(refused > tries / 2, qPrintable(QString::number(refused)));
        QVERIFY(strangers().isEmpty());
    }

    void resolvesNothing_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        const QByteArray use = "&x;&y;";
        QTest::newRow("index") << "in/index.xml" << QByteArray(doctype + goodIndex);
        QTest::newRow("slide") << "in/slides/1.xml"
                               << QByteArray(doctype + "<slide id=\"1\"><items>" + use + "</items></slide>");
        QTest::newRow("raw lesson") << "in.xml" << QByteArray(doctype + "<presentation>" + use + "</presentation>");
        QTest::newRow("IWB") << "in.iwb/content.xml" << QByteArray(doctype + iwbContent(use));
        QTest::newRow("entity without a type") << "in/index.xml" << QByteArray("<main><slides>&x;</slides></main>");
    }

    void resolvesNothing()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        putFile(path("in/index.xml"), goodIndex);
        putFile(path("in/slides/1.xml"), goodSlide);
        putFile(path("in-secret.txt"), "secret");
        putFile(m_folder->filePath(file), QByteArray(content).replace("%1", QFile::encodeName(path("in-secret.txt"))));
        const QString message = read(m_folder->filePath(file.section(QLatin1Char('/'), 0, 0)));
        QVERIFY2(message.contains(QLatin1String("document type")) || message.contains(QLatin1String("well-formed")),
                 qPrintable(message));
        QVERIFY(!message.contains(QLatin1String("secret\n")));
    }

    void readsEncodings_data()
    {
        QTest::addColumn<QByteArray>("index");
        QTest::addColumn<bool>("isRead");
        const QString title = QStringLiteral("圆与直线");
        const auto text = [&title](const char *declaration) {
            return QString(QLatin1String(declaration) + QString::fromLatin1(goodIndex))
                .replace(QLatin1String("Good"), title);
        };
        const QByteArray plain = text("").toUtf8();
        const auto encoded = [&text](const char *codec, const char *declaration) {
            return QTextCodec::codecForName(codec)->fromUnicode(text(declaration));
        };
        QTest::newRow("UTF-8") << plain << true;
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf" + plain) << true;
        QTest::newRow("UTF-8 declared") << encoded("UTF-8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>") << true;
        QTest::newRow("UTF-16 little") << encoded("UTF-16LE", "") << true;
        QTest::newRow("UTF-16 big") << encoded("UTF-16BE", "") << true;
        QTest::newRow("GB18030 declared") << encoded("GB18030", "<?xml version=\"1.0\" encoding=\"GB18030\"?>") << true;
        QTest::newRow("GB18030 without a word") << encoded("GB18030", "") << false;
        QTest::newRow("another one declared")
            << encoded("GB18030", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>") << false;
        QTest::newRow("unknown") << encoded("UTF-8", "<?xml version=\"1.0\" encoding=\"KLINGON\"?>") << false;
    }

    void readsEncodings()
    {
        QFETCH(QByteArray, index);
        QFETCH(bool, isRead);
        putFile(path("in/index.xml"), index);
        putFile(path("in/slides/1.xml"), goodSlide);
        QJsonObject presentation;
        const QString message = read(path("in"), &presentation);
        if (isRead) {
            QCOMPARE(message, QString());
            QCOMPARE(presentation.value("Title").toString(), QStringLiteral("圆与直线"));
        } else {
            QVERIFY2(message.contains(QLatin1String("well-formed")), qPrintable(message));
        }
    }

    void boundsWhatADocumentHolds_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("words");
        const int deep = 100000;
        QTest::newRow("deep slide") << "in/slides/1.xml"
                                    << QByteArray("<slide>" + nested("<items>", "</items>", deep) + "</slide>")
                                    << "deeper";
        QTest::newRow("deep raw lesson") << "in.xml"
                                         << QByteArray("<presentation>" + nested("<a>", "</a>", deep)
                                                       + "</presentation>")
                                         << "deeper";
        QTest::newRow("deep IWB") << "in.iwb/content.xml" << iwbContent(nested("<svg:g>", "</svg:g>", deep))
                                  << "deeper";
        QTest::newRow("deep JSON") << "in.json" << QByteArray("{\"Slides\": " + nested("[", "]", deep) + "}")
                                   << "deeper";
        QTest::newRow("deep JSON objects")
            << "in.json" << QByteArray("{\"Slides\": [{\"a\": " + nested("{\"a\":", "}", deep) + "}]}") << "deeper";

        const QByteArray large(50 * 1024 * 1024, 'a');
        QTest::newRow("attribute of 50 MiB")
            << "in/slides/1.xml" << QByteArray("<slide id=\"1\" name=\"" + large + "\"><items/></slide>") << "";
        QTest::newRow("50 MiB of an item")
            << "in/slides/1.xml"
            << QByteArray("<slide><items><stroke type=\"Curve\" id=\"1\"><data><points points=\"" + large
                          + "\"/></data></stroke></items></slide>")
            << "";
        QByteArray wide = "<slide id=\"1\"";
        for (int i = 0; i < 1000000; ++i) {
            wide += " a" + QByteArray::number(i) + "=\"\"";
        }
        QTest::newRow("a million attributes")
            << "in/slides/1.xml" << QByteArray(wide + "><items/></slide>") << "attributes";
        QTest::newRow("a million elements")
            << "in/slides/1.xml" << QByteArray("<slide>" + QByteArray("<a/>").repeated(1000000) + "</slide>") << "";
        QTest::newRow("a million groups that end nowhere")
            << "in/slides/1.xml" << QByteArray("<slide>" + QByteArray("<a>").repeated(1000000)) << "deeper";
    }

    void boundsWhatADocumentHolds()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, words);
        putFile(path("in/index.xml"), goodIndex);
        putFile(path("in/slides/1.xml"), goodSlide);
        putFile(m_folder->filePath(file), content);
        const QString message = read(m_folder->filePath(file.section(QLatin1Char('/'), 0, 0)));
        if (words.isEmpty()) {
            QCOMPARE(message, QString());
        } else {
            QVERIFY2(message.contains(words), qPrintable(message.left(1000)));
        }
    }

    // The addresses of text runs travel in an item's keys. In a file they are a stranger's.
    void takesNoAddressesFromFiles_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("ZQTX") << "in.out.zqtx";
        QTest::newRow("IWB") << "in.out.iwb";
    }

    void takesNoAddressesFromFiles()
    {
        QFETCH(QString, target);
        putFile(path("in.json"), R"({"Slides": [{"ID": "1", "Items": [{"Type": "ZQTextBoard", "ID": "1",
            "BoundingBox": "0,0,10,10", "Matrix": "1,0,0,1,0,0", "IWB_TEXTINFO-VECTOR": "4919",
            "IWB_TEXTINFO-DELVECTOR": "4919"}, {"Type": "text", "ID": "2", "IWB_TEXTINFO-VECTOR": "4919"}]}]})");
        LessonContext context;
        context.plugin = plugin();
        const QString file = m_folder->filePath(target);
        convertLesson(lessonFormatByName(QStringLiteral("json")), path("in.json"), lessonFormatOfOutput(file), file,
                      context, [](int, int) {});
        QVERIFY(QFile::exists(file));
    }
};

int main(int argc, char **argv)
{
    // Text boards are laid out on their way to IWB.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    TestHostile test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_hostile.moc"
