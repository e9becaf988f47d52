// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "sentences/language.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTextCodec>
#include <QtTest>

/*!
 * Sentences in the user's language, reports and exit codes that are the same in all, and translations that say
 * everything that the sources do.
 */
class TestLanguages : public QObject
{
    Q_OBJECT

    QTemporaryDir m_work;
    QString path(const QString &name) const { return m_work.filePath(name); }

    CommandProcess::Outcome spoken(const QByteArray &language, const QStringList &arguments,
                                   const std::function<void()> &prepare = {}) const
    {
        CommandProcess command;
        command.language = language;
        command.prepare = prepare;
        command.begin(arguments, m_work.path());
        return command.outcome();
    }

private slots:
    void initTestCase()
    {
        QDir(m_work.path()).mkpath("many");
        QFile(path("many/broken.json")).open(QIODevice::WriteOnly);
        QVERIFY(QFile::copy(EXAMPLES_DIR "/rawxml/standard.xml", path("many/good.xml")));
    }

    void environments_data()
    {
        const Table<QStringList, QString> row("variables", "language");
        row("C", {"LC_ALL=C", "LANGUAGE=de"}, "");
        row("POSIX", {"LC_ALL=POSIX", "LANGUAGE=de"}, "");
        row("nothing", {"LANGUAGE=de"}, "");
        row("C with letters", {"LC_ALL=C.UTF-8", "LANGUAGE=de"}, "de");
        row("country", {"LANG=de_AT.UTF-8"}, "de");
        row("modifier", {"LANG=de_DE@euro"}, "de");
        row("messages before all", {"LANG=en_US.UTF-8", "LC_MESSAGES=zh_CN.UTF-8"}, "zh_CN");
        row("all before messages", {"LC_ALL=en_US.UTF-8", "LC_MESSAGES=zh_CN.UTF-8"}, "");
        row("empty ones", {"LC_ALL=", "LC_MESSAGES=", "LANG=de_DE.UTF-8"}, "de");
        row("list", {"LANG=C.UTF-8", "LANGUAGE=fr:zh_CN:de"}, "zh_CN");
        row("English before others", {"LANG=de_DE.UTF-8", "LANGUAGE=en_GB:de"}, "");
        row("without a country", {"LANG=C.UTF-8", "LANGUAGE=zh"}, "zh_CN");
        row("other letters", {"LANG=zh_TW.UTF-8"}, "");
        row("unknown", {"LANG=fr_FR.UTF-8"}, "");
        row("letters that can't be written", {"LANG=zh_CN", "CODEC=ISO-8859-1"}, "");
        row("letters that can", {"LANG=de_DE", "CODEC=ISO-8859-1"}, "de");
    }
    void environments()
    {
        const auto [variables, language] = Table<QStringList, QString>::cells();
        for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) {
            qunsetenv(name);
        }
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        for (const QString &variable : variables) {
            const QByteArray value = variable.section('=', 1).toLatin1();
            if (variable.startsWith("CODEC")) {
                QTextCodec::setCodecForLocale(QTextCodec::codecForName(value));
            } else {
                qputenv(variable.section('=', 0, 0).toLatin1(), value);
            }
        }
        QCOMPARE(languageOfEnvironment(), language);
    }

    void sentences_data()
    {
        const Table<QByteArray, QString, QString> row("language", "call", "said");
        row("no lesson, German", "de", "info nothing.zqtx",
            "nothing.zqtx: Diese Datei oder diesen Ordner gibt es nicht. Prüfen Sie den Pfad.");
        row("no lesson, Chinese", "zh_CN", "info nothing.zqtx", "nothing.zqtx：没有该文件或文件夹。请检查路径。");
        row("no lesson, English", "fr", "info nothing.zqtx",
            "nothing.zqtx: There is no such file or folder. Check the path.");
        row("why the system refuses", "de", "convert many/good.xml /proc/none/x.json",
            "/proc/none/x.json: Den Ordner, in den");
        row("a worker's", "de", "convert many --to zqtx --out-dir out",
            "many/broken.json, Zeile 1: Das ist kein JSON: ");
        row("numbers", "de", "convert many --to zqtx --out-dir out",
            "2 Lektionen: 1 konvertiert, 1 nicht konvertiert.");
        row("one", "de", "convert many/good.xml --to zqtx --out-dir out", "1 Lektion: 1 konvertiert.");
        row("option", "zh_CN", "info --nothing x", "未知选项“nothing”。");
        row("help", "de", "--help", "Aufruf: ");
        row("help about options", "de", "--help", "Diesen Text ausgeben.");
        row("between letters and signs", "zh_CN", "render many/good.xml x.bmp --to bmp", "svg、png、jpeg 或 webp");
        row("columns", "zh_CN", "info many/good.xml", "页面大小        ");
    }
    void sentences()
    {
        const auto [language, call, said] = Table<QByteArray, QString, QString>::cells();
        const auto [exitCode, output, errors] = spoken(language, call.split(' '));
        QVERIFY2(output.contains(said) || errors.contains(said), qPrintable(output + errors));
    }

    void reportsAreEnglish_data()
    {
        const Table<QString> row("call");
        row("convert", "convert " EXAMPLES_DIR "/playing out.iwb --json --report report.json");
        row("convert many", "convert many --to json --out-dir out --json --report report.json --jobs 1");
        row("render", "render " EXAMPLES_DIR "/language out.html --json --report report.json");
        row("difference", "render --diff " EXAMPLES_DIR "/quiz " EXAMPLES_DIR "/tools out.html --json");
        row("info", "info many/good.xml --json");
        row("formats", "formats --json");
        row("failure", "info many/broken.json --json");
        row("misunderstood", "info --quiet=5 --json");
        row("completion", "completion zsh");
    }
    void reportsAreEnglish()
    {
        const auto [call] = Table<QString>::cells();
        const auto all = [&, call = call](const QByteArray &language) {
            const auto [exitCode, output, errors] = spoken(language, call.split(' '));
            const QByteArray report = QFileInfo::exists(path("report.json")) ? fileContent(path("report.json")) : "";
            QFile::remove(path("report.json"));
            return QStringList{QString::number(exitCode), output, QString::fromUtf8(report)};
        };
        const QStringList english = all({});
        QVERIFY(!english.at(1).isEmpty());
        QCOMPARE(all("de"), english);
        QCOMPARE(all("zh_CN"), english);
    }

    // Names on what is drawn, but not in packages, which are the same everywhere.
    void drawingsSpeak_data()
    {
        const Table<QByteArray, QStringList> row("language", "labels");
        row("English", "", {">Picture that is missing<", ">Sound, MP3<", ">Physics: New Part 2<"});
        row("German", "de", {"\"de\"><text", ">Bild (fehlt)<", ">Ton, MP3<", ">Physik: New Part 2<"});
        row("Chinese", "zh_CN", {"\"zh-CN\"><text", ">缺失的图片<", ">声音、MP3<", ">物理：New Part 2<"});
    }
    void drawingsSpeak()
    {
        const auto [language, labels] = Table<QByteArray, QStringList>::cells();
        putFile(path("named.json"), R"({"Width": "1280", "Height": "720", "Slides": [{"Items": [
            {"Type": "ZQImagePic", "BoundingBox": "0,0,400,200", "resource": "none.png"},
            {"Type": "ZQMediaAudio", "BoundingBox": "0,300,400,500", "resource": "song.mp3"},
            {"Type": "ZQPhysicsNewPart2", "BoundingBox": "500,300,900,500"}]}]})");
        const auto written = [this](const QByteArray &by, const QStringList &call) {
            return spoken(by, call).exitCode == 0 ? contentOfTarget(path(call.at(2))) : QMap<QString, QByteArray>();
        };
        const QStringList toPackage{"convert", "named.json", "named.iwb", "--quiet"};
        const auto package = written({}, toPackage);
        QVERIFY(package.size() > 2); // with the picture of an item
        QCOMPARE(written(language, toPackage), package);
        const QString svg = written(language, {"render", "named.json", "named.svg", "--quiet"}).first();
        for (const QString &label : labels) {
            QVERIFY2(svg.contains(label), qPrintable(svg));
        }
        QCOMPARE(svg.contains("xml:lang"), !language.isEmpty());
        QVERIFY(!written(language, {"render", "named.json", "named.html", "--quiet"}).first().contains("Slide 1\" lang"));
    }

    // Those that the machine has for Chinese would come first.
    void fontsOfPackagesAreTheSame()
    {
        for (const QByteArray locale : {"C.UTF-8", "zh_CN.UTF-8"}) {
            const QStringList call{"convert", EXAMPLES_DIR "/subjects", locale, "--to", "iwb", "--no-check", "--quiet"};
            QCOMPARE(spoken({}, call, [locale] { qputenv("LC_ALL", locale); }).exitCode, 0);
        }
        QVERIFY(contentOfTarget(path("C.UTF-8")) == contentOfTarget(path("zh_CN.UTF-8")));
    }

    // Where decimals have a comma.
    void numbersHavePoints()
    {
        QProcess definition;
        definition.start("localedef", {"-i", "de_DE", "-f", "UTF-8", path("de_DE.UTF-8")});
        if (!definition.waitForFinished() || !QFileInfo::exists(path("de_DE.UTF-8"))) {
            QSKIP("no locale can be made here");
        }
        const auto german = [this] {
            qputenv("LOCPATH", m_work.path().toUtf8());
            qputenv("LC_ALL", "de_DE.UTF-8");
        };
        QVERIFY(spoken({}, {"info", "nothing"}, german).errors.contains("gibt es nicht"));
        for (const QString name : {"out.json", "out.iwb", "out.svg", "out.html", "out.pdf"}) {
            const bool isLesson = name.endsWith("json") || name.endsWith("iwb");
            QStringList call{isLesson ? "convert" : "render", EXAMPLES_DIR "/mindmaps", name, "--quiet"};
            if (name.endsWith("svg")) {
                call += {"--slides", "1"};
            }
            QCOMPARE(spoken({}, call).exitCode, 0);
            const auto english = contentOfTarget(path(name));
            QCOMPARE(spoken("en", call, german).exitCode, 0);
            QCOMPARE(contentOfTarget(path(name)), english);
        }
    }

    void translationsAreComplete_data()
    {
        const Table<QString> row("language");
        for (const QString &language : translatedLanguages() + QStringList{"en"}) {
            row(language.toLatin1(), language);
        }
    }
    void translationsAreComplete()
    {
        const auto [language] = Table<QString>::cells();
        const QString file = "lessonconv_" + language + ".ts";
        QVERIFY(QFile::copy(HOST_DIR "/translations/" + file, path(file)));
        QProcess update;
        update.start(HOST_DIR "/translations/update", {m_work.path()});
        QVERIFY(update.waitForFinished());
        QVERIFY2(update.exitStatus() == QProcess::NormalExit && update.exitCode() == 0, update.readAllStandardError());
        const QByteArray text = fileContent(path(file));
        QFile::remove(path(file));
        // New sentences, or such that nobody says: host/translations/update.
        QCOMPARE(text, fileContent(HOST_DIR "/translations/" + file));
        QDomDocument document;
        QVERIFY(document.setContent(text));
        const QDomNodeList messages = document.elementsByTagName("message");
        for (int i = 0; i < messages.size(); ++i) {
            const QDomElement message = messages.at(i).toElement();
            const QString source = message.firstChildElement("source").text();
            const QDomElement translation = message.firstChildElement("translation");
            QVERIFY2(!translation.hasAttribute("type"), qPrintable("not translated: " + source));
            const QDomNodeList forms = translation.elementsByTagName("numerusform");
            QVERIFY2(!message.hasAttribute("numerus") || forms.size() == (language == "zh_CN" ? 1 : 2),
                     qPrintable(source));
            for (int j = 0; j < qMax(1, forms.size()); ++j) {
                const QString given = forms.isEmpty() ? translation.text() : forms.at(j).toElement().text();
                QVERIFY2(!given.isEmpty() && places(given) == places(source), qPrintable(source + " => " + given));
            }
        }
        QVERIFY(messages.size() > 40);
    }
    static QStringList places(const QString &text)
    {
        static const QRegularExpression place("%[0-9nd]|--[a-z-]+|\\.[a-z]{3,4}\\b");
        QStringList found;
        for (auto it = place.globalMatch(text); it.hasNext();) {
            found.append(it.next().captured());
        }
        found.sort();
        return found;
    }

    // A text in quotes that reads like a sentence is handed to say() and its like, or marked for them.
    void sentencesAreMarked()
    {
        static const QRegularExpression comment("^\\s*//[^\n]*$|//!<[^\n]*|\\s//[^\"\n]*$|/\\*.*?\\*/",
                                                QRegularExpression::MultilineOption
                                                    | QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression text(
            "(\\w+)\\(\\s*((?:\"(?:[^\"\\\\\n]|\\\\.)*\"\\s*)+)|\"((?:[^\"\\\\\n]|\\\\.)*)\"");
        static const QRegularExpression sentence("\\b[a-z']{2,},? (%\\d|[a-z']+)\\b.*",
                                                 QRegularExpression::CaseInsensitiveOption);
        static const QRegularExpression code("[<>{}=;#$]|: *var|^[\\w/ :-]+: ?$|fonts-|[a-z]:[A-Z]|^[MLCZ] |%\\d\\) "
                                             "|^\"?(--| *lessonconv |INPUT)|render|^\\w+ drop$");
        // What these hold is written into files, or for shells.
        static const QStringList withoutSentences{"completion.cpp",  "countednames.cpp", "keynames.cpp",
                                                  "plainnames.cpp", "namedboxes.cpp",   "pagefiles.cpp"};
        static const QStringList names{"Times New Roman", "Liberation Serif", "DejaVu Serif",    "Courier New",
                                       "the document",    "the pages",        "not taken",       "convert check report",
                                       "convert check",
                                       "done before",     "with losses",      "Standard output", "standard input",
                                       "xMidYMid meet"};
        QStringList unmarked;
        int marked = 0;
        for (QDirIterator files(HOST_DIR, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();) {
            QString source = QString::fromUtf8(fileContent(files.next()));
            if (withoutSentences.contains(files.fileName())) {
                continue;
            }
            source.remove(comment);
            for (auto it = text.globalMatch(source); it.hasNext();) {
                const QRegularExpressionMatch found = it.next();
                const QString call = found.captured(1);
                const QString words = found.captured(call.isEmpty() ? 3 : 2);
                if (call.startsWith("say") || call.startsWith("TO_SAY") || call == "QT_TRANSLATE_NOOP") {
                    ++marked;
                } else if (words.contains(sentence) && !words.contains(code)
                           && !names.contains(QString(words).remove('"'))) {
                    unmarked.append(files.fileName() + ": " + words);
                }
            }
        }
        QVERIFY(marked > 400);
        // In scripts: texts that begin as sentences do, or have words between values.
        static const QRegularExpression said("Words\\.text\\(\\s*'[^']*'|/\\*.*?\\*/|^\\s*//[^\n]*$",
                                             QRegularExpression::MultilineOption
                                                 | QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression unsaid("'([A-Z][a-z]+[^']*)'|`([^`\n;]*[a-z]{2} [a-z]{2}[^`\n(;]*)`");
        static const QRegularExpression key("^(Arrow|Page|Home|End|Enter|Escape)");
        for (QDirIterator files(HOST_DIR "/render/page", {"*.js"}, QDir::Files); files.hasNext();) {
            const QString source = QString::fromUtf8(fileContent(files.next())).remove(said);
            for (auto it = unsaid.globalMatch(source); it.hasNext();) {
                const QRegularExpressionMatch found = it.next();
                const QString words = found.captured(1) + found.captured(2);
                if (!words.contains(key)) {
                    unmarked.append(files.fileName() + ": " + words);
                }
            }
        }
        QVERIFY2(unmarked.isEmpty(), qPrintable(unmarked.join(", ")));
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
