// SPDX-License-Identifier: MIT
#include "files/ziparchive.h"
#include "hostfixture.h"
#include "ziptext.h"

#include <QDir>
#include <QTextCodec>
#include <QtTest>

#include <ctime>
#include <random>

#include <sys/resource.h>

namespace {

// Sanitizers take many times as long: a part of what is large will do for them, which meets none of the bounds.
#ifdef WITH_SANITIZERS
constexpr int part = 50;
#else
constexpr int part = 1;
#endif

const QByteArray goodIndex = "<main version=\"3.0\" width=\"800\" height=\"600\" title=\"Good\"><slides>"
                             "<file href=\"slides/1.xml\"/></slides></main>";
const QByteArray goodSlide = "<slide id=\"1\"><items/></slide>";

const QByteArray doctype = "<!DOCTYPE main [<!ENTITY x SYSTEM \"%1\"><!ENTITY y \"aaaaaaaaaa\">]>";

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

    QString path(const char *name) const { return m_folder->filePath(name); }

    // The message of the refusal, or nothing and the lesson.
    QString read(const QString &lesson, QJsonObject *presentation = nullptr)
    {
        const std::clock_t start = std::clock();
        QString message;
        try {
            LossReport losses;
            const auto reader = openLesson(lesson, &losses);
            const QJsonObject keys = reader->presentation();
            if (presentation) {
                *presentation = keys;
            }
            reader->resources();
            for (int i = 0; i < reader->slideCount(); ++i) {
                reader->slide(i);
            }
        } catch (const LessonError &error) {
            message = error.message().english();
        }
        // Ten times the processor time that any takes.
        const auto seconds = int((std::clock() - start) / CLOCKS_PER_SEC);
        return seconds > 20 * slowness ? "took %1 s"_s.arg(seconds) : message;
    }

    // Whatever was unpacked is gone, and nothing but the files of the test is there.
    QStringList strangers() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(m_folder->path()).entryList(all).filter(QRegularExpression("^(?!in|tmp$)"))
            + QDir(path("tmp")).entryList(all);
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
        const Table<QByteArray, QString> archive("archive", "words");
        // Beside the files of a good lesson.
        const auto row = [&archive](const char *name, const QVector<ZipEntry> &entries, const char *words) {
            archive(name, zipText(QVector<ZipEntry>{{"index.xml", goodIndex}, {"slides/1.xml", goodSlide}} + entries),
                    words);
        };
        row("out of a folder within", {{"images/../../evil.png", "x"}}, "leads out");
        row("the package's own folder", {{"./evil.png", "x"}}, "leads out");
        row("absolute", {{"/tmp/evil.png", "x"}}, "absolute");
        row("separator of another system", {{"..\\evil.png", "x"}}, "");
        row("file twice", {{"index.xml", goodIndex}}, "twice");
        row("drive of another system", {{"C:/evil.png", "x"}}, "colon");
        row("empty name", {{"", "x"}}, "empty");
        row("two separators", {{"images//a.png", "x"}}, "empty part");
        row("device of another system", {{"images/nul.png", "x"}}, "device");
        row("name that reads backwards", {{"images/\xe2\x80\xaegnp.exe", "x"}}, "control characters");
        row("two names in one", {{QByteArray("a.png\0.exe", 10), "x"}}, "control characters");
        row("name in another encoding", {{"images/\xff.png", "x"}}, "UTF-8");
        row("name of 300 letters", {{QByteArray(300, 'a'), "x"}}, "too long");
        row("path of 5000 letters", {{QByteArray("ab/").repeated(1600) + "c", "x"}}, "too long");
        row("folder twice", {{"images/", ""}, {"images/", ""}}, "twice");
        row("file and folder of one name", {{"a/b", "x"}, {"a", "x"}}, "twice");
        row("pipe", {{"a.png", "", true, 0010644U << 16}}, "link or a device");
        row("link to a folder", {{"slides", "/etc", false, 0120777U << 16}}, "link or a device");
        row("another name before the content", {{"a.png", "x", true, 0, "../a.png"}}, "");
        row("more than it says", {{"a.png", QByteArray(32 * 1024 * 1024, ' '), true, 0, {}, 1000}}, "damaged");
        row("ten million to one", {{"a.png", QByteArray(64, 'x'), true, 0, {}, 640000000}},
            "packed more tightly than can be");
        row("600 MiB in one", {{"a.png", QByteArray(1024 * 1024, 'x'), false, 0, {}, 600 * 1024 * 1024}},
            "packed more tightly than any");
        row("1 GiB, or so it says", {{"a.png", QByteArray(64, 'x'), true, 0, {}, 1 << 30, 1 << 30}}, "");
        row("twice 2 GiB, or so it says",
            {{"a.png", "x", false, 0, {}, 0x7fffffff, 0x7fffffff},
             {"b.png", "x", false, 0, {}, 0x7fffffff, 0x7fffffff}},
            "more than 2 GiB");
        row("100,001 entries", QVector<ZipEntry>(100001 / part, {"a", {}, false}),
            part == 1 ? "more than 100000 entries" : "twice");
        archive("nothing", "", "no zip archive");
        archive("only an end", zipText({}), "no such file");
    }

    void refusesArchives()
    {
        const auto [archive, words] = Table<QByteArray, QString>::cells();
        putFile(path("in.zqtx"), archive);
        const QString message = read(path("in.zqtx"));
        QVERIFY(!message.isEmpty());
        QVERIFY2(message.contains(words), qPrintable(message));
        QVERIFY2(strangers().isEmpty(), qPrintable(strangers().join(' ')));
    }

    void readsUnusualArchives_data()
    {
        const Table<QByteArray, int> row("archive", "files");
        QVector<ZipEntry> entries{{"index.xml", goodIndex}, {"slides/1.xml", goodSlide}};
        const QByteArray program = "#!/bin/sh\nexit\n";
        row("behind a program", program + zipText(entries), 0);
        row("64 bits", zipText(entries, true), 0);
        row("64 bits behind a program", program + zipText(entries, true), 0);
        // Pictures that are white, and silence.
        entries.append({"images/white.bmp", QByteArray(6 * 1024 * 1024 / part, '\xff')});
        row("white picture", zipText(entries), 1);
        const int many = 0x10000 / part;
        for (int i = 0; i < many; ++i) {
            entries.append({"x/" + QByteArray::number(i), {}, false});
        }
        row("more than 65,535 entries", zipText(entries, true), many + 1);
    }

    void readsUnusualArchives()
    {
        const auto [archive, files] = Table<QByteArray, int>::cells();
        putFile(path("in.zqtx"), archive);
        const auto reader = openLesson(path("in.zqtx"));
        QCOMPARE(reader->presentation().value("Title").toString(), "Good");
        QCOMPARE(reader->slideCount(), 1);
        QCOMPARE(reader->resources().size(), files);
    }

    // Wherever a copy broke off.
    void refusesAPackageThatEndsEarly()
    {
        packZip(EXAMPLES_DIR "/geometry"_s, path("in-whole.zqtx"));
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
        packZip(EXAMPLES_DIR "/geometry"_s, path("in-whole.zqtx"));
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
        const Table<QString, QByteArray> row("file", "content");
        const QByteArray use = "&x;&y;";
        row("index", "in/index.xml", QByteArray(doctype + goodIndex));
        row("slide", "in/slides/1.xml", QByteArray(doctype + "<slide id=\"1\"><items>" + use + "</items></slide>"));
        row("raw lesson", "in.xml", QByteArray(doctype + "<presentation>" + use + "</presentation>"));
        row("IWB", "in.iwb/content.xml", QByteArray(doctype + iwbContent(use)));
        row("entity without a type", "in/index.xml", "<main><slides>&x;</slides></main>");
    }

    void resolvesNothing()
    {
        const auto [file, content] = Table<QString, QByteArray>::cells();
        putFile(path("in/index.xml"), goodIndex);
        putFile(path("in/slides/1.xml"), goodSlide);
        putFile(path("in-secret.txt"), "secret");
        putFile(m_folder->filePath(file), QByteArray(content).replace("%1", QFile::encodeName(path("in-secret.txt"))));
        const QString message = read(m_folder->filePath(file.section('/', 0, 0)));
        QVERIFY2(message.contains("document type") || message.contains("well-formed"), qPrintable(message));
        QVERIFY(!message.contains("secret\n"));
    }

    void readsEncodings_data()
    {
        const Table<QByteArray, bool> row("index", "isRead");
        const QString title = "圆与直线"_s;
        const auto text = [&title](const char *declaration) {
            return QString(QLatin1String(declaration) + QString::fromLatin1(goodIndex)).replace("Good"_s, title);
        };
        const QByteArray plain = text("").toUtf8();
        const auto encoded = [&text](const char *codec, const char *declaration) {
            return QTextCodec::codecForName(codec)->fromUnicode(text(declaration));
        };
        row("UTF-8", plain, true);
        row("UTF-8 with a mark", QByteArray("\xef\xbb\xbf" + plain), true);
        row("UTF-8 declared", encoded("UTF-8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), true);
        row("UTF-16 little", encoded("UTF-16LE", ""), true);
        row("UTF-16 big", encoded("UTF-16BE", ""), true);
        row("GB18030 declared", encoded("GB18030", "<?xml version=\"1.0\" encoding=\"GB18030\"?>"), true);
        row("GB18030 without a word", encoded("GB18030", ""), false);
        row("another one declared", encoded("GB18030", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), false);
        row("unknown", encoded("UTF-8", "<?xml version=\"1.0\" encoding=\"KLINGON\"?>"), false);
    }

    void readsEncodings()
    {
        const auto [index, isRead] = Table<QByteArray, bool>::cells();
        putFile(path("in/index.xml"), index);
        putFile(path("in/slides/1.xml"), goodSlide);
        QJsonObject presentation;
        const QString message = read(path("in"), &presentation);
        if (isRead) {
            QCOMPARE(message, QString());
            QCOMPARE(presentation.value("Title").toString(), "圆与直线");
        } else {
            QVERIFY2(message.contains("well-formed"), qPrintable(message));
        }
    }

    void boundsWhatADocumentHolds_data()
    {
        const Table<QString, QByteArray, QString> row("file", "content", "words");
        const auto many = [](const char *before, const char *behind, int count) {
            QByteArray text;
            for (int i = 0; i < count / part; ++i) {
                text += before + QByteArray::number(i) + behind;
            }
            return text;
        };
        const int deep = 100000;
        row("deep slide", "in/slides/1.xml", QByteArray("<slide>" + nested("<items>", "</items>", deep) + "</slide>"),
            "deeper");
        row("deep raw lesson", "in.xml", QByteArray("<presentation>" + nested("<a>", "</a>", deep) + "</presentation>"),
            "deeper");
        row("deep IWB", "in.iwb/content.xml", iwbContent(nested("<svg:g>", "</svg:g>", deep)), "deeper");
        row("deep JSON", "in.json", QByteArray("{\"Slides\": " + nested("[", "]", deep) + "}"), "deeper");
        row("deep JSON objects", "in.json", QByteArray("{\"Slides\": [{\"a\": " + nested("{\"a\":", "}", deep) + "}]}"),
            "deeper");

        const QByteArray large(30 * 1024 * 1024 / part, 'a');
        row("attribute of 30 MiB", "in/slides/1.xml",
            QByteArray("<slide id=\"1\" name=\"" + large + "\"><items/></slide>"), "");
        row("30 MiB of an item", "in/slides/1.xml",
            QByteArray("<slide><items><stroke type=\"Curve\" id=\"1\"><data><points points=\"" + large
                       + "\"/></data></stroke></items></slide>"),
            "");
        row("slide of 33 MiB", "in/slides/1.xml", "<slide>" + QByteArray(33 * 1024 * 1024, ' ') + "</slide>",
            "no slide may take more");
        row("JSON slide of 33 MiB", "in.json",
            QByteArray("{\"Slides\": [{\"a\": \"") + QByteArray(33 * 1024 * 1024, ' ') + "\"}]}",
            "no slide may take more");
        row("IWB page of 33 MiB", "in.iwb/content.xml", iwbContent(QByteArray(33 * 1024 * 1024, ' ')),
            "no slide may take more");
        row("100,001 items in a slide", "in/slides/1.xml",
            QByteArray("<slide><items>" + QByteArray("<a/>").repeated(100001 / part) + "</items></slide>"),
            part == 1 ? "no slide may have more" : "");
        row("100,001 items in a group", "in.json",
            QByteArray("{\"Slides\": [{\"Items\": [{\"Children\": [" + QByteArray("{},").repeated(99999) + "{}]}]}]}"),
            "no slide may have more");
        row("100,001 JSON slides", "in.json",
            QByteArray("{\"Slides\": [" + QByteArray("{},").repeated(100000) + "{}]}"), "more than 100000 slides");
        const QByteArray keys = many("\"a", "\": 1, ", 300000);
        row("300,000 keys of a presentation", "in.json", QByteArray("{" + keys + "\"Slides\": []}"), "");
        row("300,000 keys around something deep", "in.json",
            QByteArray("{\"Slides\": [{\"a\": {" + keys + "\"d\": " + nested("[", "]", 1200) + "}}]}"), "");
        const char *const memory = part == 1 ? "memory" : "";
        row("a million elements with values", "in/slides/1.xml",
            QByteArray("<slide>" + QByteArray("<a b=\"\"/>").repeated(1000000 / part) + "</slide>"), memory);
        row("a million values in a raw lesson", "in.xml",
            QByteArray("<presentation>" + QByteArray("<a b='' c=''/>").repeated(500000 / part) + "</presentation>"),
            memory);

        const QByteArray values = many(" a", "=\"\"", 1000000);
        const QByteArray wide = "<slide id=\"1\"><b" + values + "/></slide>";
        row("a million attributes", "in/slides/1.xml", wide, "attributes");
        row("behind a comment", "in/slides/1.xml", QByteArray("<!---><a ' -->" + wide), "attributes");
        row("behind an instruction", "in/slides/1.xml", QByteArray("<?x ?a> <a ' ?>" + wide), "attributes");
        row("behind character data", "in/slides/1.xml",
            QByteArray("<slide><![CDATA[]] > ]> <a ' ]]><b" + values + "/></slide>"), "attributes");
        row("behind a letter that holds a quote", "in/slides/1.xml",
            QTextCodec::codecForName("UTF-16")->fromUnicode("<!-- \u3c00\u2200 -->" + QString::fromLatin1(wide)),
            "attributes");
        row("in another encoding than it says", "in/slides/1.xml",
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + wide), "encoding");
        const QByteArray declarations = many("<!ATTLIST a b", " CDATA \"\">", 200000);
        row("attributes declared", "in/slides/1.xml", QByteArray("<!DOCTYPE slide [" + declarations + "]><slide/>"),
            "document type");
        row("a million elements", "in/slides/1.xml",
            QByteArray("<slide>" + QByteArray("<a/>").repeated(1000000 / part) + "</slide>"), "");
        // What is carried is looked for name by name, place by place and level by level.
        const auto stroke = [](const QByteArray &attributes, const QByteArray &children) -> QByteArray {
            return "<slide id=\"1\"><items><stroke type=\"Curve\" id=\"1\"" + attributes + ">" + children
                + "</stroke></items></slide>";
        };
        row("a stroke of 900 attributes", "in/slides/1.xml", stroke(many(" a", "=\"1\"", 900), {}), "");
        row("a stroke of 30,000 tags", "in/slides/1.xml", stroke({}, many("<a", " b=\"1\"/>", 30000)), "");
        row("a stroke of 30,000 rows", "in/slides/1.xml",
            stroke({}, "<properties>" + many("<property name=\"", "\" value=\"1\"/>", 30000) + "</properties>"), "");
        row("20,000 values 1,000 levels down", "in/slides/1.xml",
            stroke({},
                   QByteArray("<a>").repeated(1000) + many("<b c=\"", "\"/>", 20000)
                       + QByteArray("</a>").repeated(1000)),
            "");
        row("a raw picture of 900 attributes", "in.xml",
            "<presentation><slide><ZQImagePic" + many(" a", "=\"1\"", 900) + "/></slide></presentation>", "");
        row("an object of 60,000 names and as many again", "in.json",
            "{\"Slides\": [{" + many("\"", "\":1,", 60000) + many("\"", "\":2,", 60000) + "\"z\": 0}]}", "");
        row("a million groups that end nowhere", "in/slides/1.xml",
            QByteArray("<slide>" + QByteArray("<a>").repeated(1000000)), "deeper");
    }

    void boundsWhatADocumentHolds()
    {
        const auto [file, content, words] = Table<QString, QByteArray, QString>::cells();
        putFile(path("in/index.xml"), goodIndex);
        putFile(path("in/slides/1.xml"), goodSlide);
        putFile(m_folder->filePath(file), content);
        const QString message = read(m_folder->filePath(file.section('/', 0, 0)));
        if (words.isEmpty()) {
            QCOMPARE(message, QString());
        } else {
            QVERIFY2(message.contains(words), qPrintable(message.left(1000)));
        }
    }

    // A point takes a hundred times its text on its way into a page.
    void writesNoPageOfAMillionPoints()
    {
        putFile(path("in.json"),
                "{\"Slides\": [{\"Items\": [{\"Type\": \"ZQSmoothStroke\", \"XY\": \"1"
                    + QByteArray(",1").repeated(2000002) + "\"}]}]}");
        const auto outcome = runCommand({"convert", "in.json", "out.iwb"}, m_folder->path());
        QVERIFY2(outcome.errors.contains("no page of IWB may have more"), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(path("out.iwb")));
    }

    // Of a slide that takes more than there is, it is said.
    void tellsThatMemoryIsShort()
    {
#ifdef WITH_SANITIZERS
        QSKIP("Sanitizers take memory of their own.");
#endif
        const QByteArray item = "<group><transform><rotate angle='0'/></transform></group>";
        putFile(path("many/index.xml"), "<main><slides><file href='slides/1.xml'/></slides></main>");
        putFile(path("many/slides/1.xml"), "<slide id='1'><items>" + item.repeated(90000) + "</items></slide>");
        for (const rlim_t megabytes : {56, 64, 80}) {
            const auto outcome = runCommand({"convert", "many", "out.json"}, m_folder->path(), [megabytes] {
                const rlimit limit{megabytes << 20, megabytes << 20};
                ::setrlimit(RLIMIT_DATA, &limit);
            });
            QVERIFY2(outcome.exitCode == 2 && outcome.errors.contains("Cannot allocate memory"),
                     qPrintable(outcome.errors));
        }
        QCOMPARE(hiddenEntries(m_folder->path()), QStringList());
        QVERIFY(!QFile::exists(path("out.json")));
    }

    void holdsAPageAtATime_data()
    {
        const Table<QString, QByteArray, QByteArray, QByteArray> row("file", "page", "item", "record");
        row("IWB", "in.iwb", "<svg:page>%1</svg:page>",
            "<svg:line id='line%1' x1='1' y1='2' x2='30' y2='4' stroke='red' stroke-width='2'/>",
            "<iwb:element ref='line%1' locked='true'/>");
        row("raw lesson", "in.xml", "<slide SlideSourceRect='0,0,1024,768'>%1</slide>",
            "<ZQMath2DCircle NetID='5%1' ArtObj_Width='2' Discipline_xControl0='80' Discipline_yControl0='5'/>", "");
    }

    // 100,000 elements on 1000 pages: a DOM of them would take some hundred megabytes. The stacks of threads that read
    // ahead count, and are next to empty.
    void holdsAPageAtATime()
    {
#ifdef WITH_SANITIZERS
        QSKIP("Sanitizers take memory of their own.");
#endif
        const auto [file, page, item, record] = Table<QString, QByteArray, QByteArray, QByteArray>::cells();
        QByteArray pages;
        QByteArray records;
        for (int i = 0; i < 1000; ++i) {
            QByteArray items;
            for (int k = 0; k < 100; ++k) {
                const QByteArray id = QByteArray::number(i * 100 + k);
                items += QByteArray(item).replace("%1", id);
                records += QByteArray(record).replace("%1", id);
            }
            pages += QByteArray(page).replace("%1", items);
        }
        const bool isRaw = file.endsWith(".xml");
        putFile(m_folder->filePath(file),
                isRaw
                    ? QByteArray("<presentation>" + pages + "</presentation>")
                    : QByteArray(
                        "<iwb xmlns:svg='http://www.w3.org/2000/svg' xmlns:iwb='http://www.becta.org.uk/iwb'><svg:svg "
                        "viewbox='0 0 800 600'><svg:pageset>"
                        + pages + "</svg:pageset></svg:svg>" + records + "</iwb>"));
        const auto outcome = runCommand({"info", file}, m_folder->path(), [] {
            const rlimit limit{64 << 20, 64 << 20};
            ::setrlimit(RLIMIT_DATA, &limit);
        });
        QCOMPARE(outcome.errors, QString());
        QVERIFY2(outcome.output.contains(QRegularExpression("Slides +1000\n(.*\n)*Items +100000\n")),
                 qPrintable(outcome.output));
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
