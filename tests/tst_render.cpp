// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QDomDocument>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/*!
 * Draws lessons through the command, as a teacher does.
 */
class TestRender : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(name); }

private slots:
    // Two slides: a red rectangle under a mind map, then a spotlight, a hidden text and a text that must not become
    // markup.
    void initTestCase()
    {
        putFile(path("lesson.json"), R"({"Width":"400","Height":"300","Slides":[
        {"ID":"1","Items":[
            {"ID":"1","Type":"ZQMath2DRectangle","BoundingBox":"100,100,300,200","LineColor":"255,0,0,0",
             "ArtObj_Color":"255,255,0,0"},
            {"ID":"2","Type":"ZQMindMapItem","BoundingBox":"0,0,90,90","mindMapData":[{},{},
                {"nodeHtml":"Animals","childNodes":[{"nodeHtml":"<b>Cats</b> & dogs"},{"nodeHtml":"Birds"}]}]}]},
        {"ID":"2","Items":[
            {"ID":"3","Type":"General:spotlight","BoundingBox":"10,10,110,60"},
            {"ID":"6","Type":"ZQNewPart","BoundingBox":"120,10,390,60","Angle":"0.5","TextHtml":"<p>Why?</p>"},
            {"ID":"4","Type":"ZQTextBoard","BoundingBox":"10,70,390,100","Text":"unseen","Visible":"0"},
            {"ID":"5","Type":"ZQTextBoard","BoundingBox":"10,120,390,200","Text":"<script>alert(1)</script>"}]}]})");
    }

    void drawsEveryItem()
    {
        const CommandProcess::Outcome result =
            runCommand({"render", path("lesson.json"), path("lesson.html"), "--json", "--report", path("told.json")});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
        const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
        QCOMPARE(json.value("slides").toInt(), 2);
        QCOMPARE(QJsonDocument::fromJson(fileContent(path("told.json"))).object(), json);
        QCOMPARE(json.value("named"),
                 QJsonValue(QJsonArray{QJsonObject{{"slide", 2}, {"type", "General:spotlight"}, {"id", "3"}},
                                       QJsonObject{{"slide", 2}, {"type", "ZQNewPart"}, {"id", "6"}}}));
        const QByteArray html = fileContent(path("lesson.html"));
        QCOMPARE(html.count("<svg "), 2);
        for (const char *shown : {"Animals", ">Cats<", ">&amp;<", "Birds", "Spotlight", ">New Part<",
                                  "rotate(28.6479 255 35)", ">Why?<", "&lt;script"}) {
            QVERIFY2(html.contains(shown), shown);
        }
        QCOMPARE(html.count("<line "), 2);
        QVERIFY(!html.contains("unseen"));
        QVERIFY(!html.contains("<script>alert"));
    }

    // Few files are open at a time, however many pictures there are.
    void writesManyPictures()
    {
        const QByteArray slides = "{}" + QByteArray(",{}").repeated(89);
        putFile(path("many.json"), "{\"Width\": \"40\", \"Height\": \"30\", \"Slides\": [" + slides + "]}");
        const auto render = [this] {
            return runCommand({"render", path("many.json"), path("many%d.svg")}, {}, [] {
                const rlimit limit{64, 64};
                ::setrlimit(RLIMIT_NOFILE, &limit);
            });
        };
        // One that can't be put in its place keeps all others away.
        QVERIFY(QDir().mkdir(path("many90.svg")));
        QCOMPARE(render().exitCode, 2);
        QVERIFY(!QFile::exists(path("many1.svg")) && QDir().rmdir(path("many90.svg")));
        const CommandProcess::Outcome outcome = render();
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QVERIFY(QFile::exists(path("many1.svg")) && QFile::exists(path("many90.svg")));
    }

    void writesPictures()
    {
        QCOMPARE(runCommand({"render", path("lesson.json"), path("page%d.png"), "--size", "200x150"}).exitCode, 0);
        const QImage first(path("page1.png"));
        QCOMPARE(first.size(), QSize(200, 150));
        QCOMPARE(first.pixelColor(100, 75), QColor(Qt::red));
        QCOMPARE(first.pixelColor(190, 140), QColor(Qt::white));
        QVERIFY(QFile::exists(path("page2.png")));

        QCOMPARE(runCommand({"render", path("lesson.json"), path("only.svg"), "--slides", "2"}).exitCode, 0);
        QDomDocument svg;
        QVERIFY(svg.setContent(fileContent(path("only.svg"))));
        QCOMPARE(svg.documentElement().attribute("viewBox"), "0 0 400.00 300.00");

        QCOMPARE(runCommand({"render", path("lesson.json"), path("lesson.pdf")}).exitCode, 0);
        QVERIFY(fileContent(path("lesson.pdf")).startsWith("%PDF"));
    }

    // A page of 400 x 300 pixels, in each form that has a size.
    void drawsInSizes_data()
    {
        const Table<QStringList, QString, QSize, QColor> row("arguments", "name", "size", "corner");
        row("its own", {}, "s.png", {400, 300}, Qt::white);
        row("width", {"--width", "100"}, "s.png", {100, 75}, Qt::white);
        row("height", {"--height", "600"}, "s.jpg", {800, 600}, Qt::white);
        row("factor", {"--scale", "0.5"}, "s.webp", {200, 150}, Qt::white);
        row("dots", {"--dpi", "192"}, "s.png", {800, 600}, Qt::white);
        row("within", {"--size", "100x100"}, "s.png", {100, 75}, Qt::white);
        row("filled", {"--size", "100x100", "--pad", "--background", "yellow"}, "s.png", {100, 100}, Qt::yellow);
        row("nothing below", {"--background", "transparent"}, "s.png", {400, 300}, Qt::transparent);
        row("said by name", {"--to", "png"}, "s.tmp", {400, 300}, Qt::white);
        row("lines", {"--width", "100"}, "s.svg", {100, 75}, Qt::white);
        row("lines, filled", {"--size", "90x90", "--pad", "--background", "yellow"}, "s.svg", {90, 90}, Qt::yellow);
    }

    void drawsInSizes()
    {
        const auto [arguments, name, size, corner] = Table<QStringList, QString, QSize, QColor>::cells();
        const QString file = m_folder.filePath(name);
        QCOMPARE(runCommand(QStringList{"render", path("lesson.json"), file, "--slides", "1"} + arguments).exitCode, 0);
        QImage picture;
        QVERIFY(picture.loadFromData(fileContent(file)));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.convertToFormat(QImage::Format_ARGB32).pixelColor(0, 0), corner);
        const QColor middle = picture.pixelColor(size.width() / 2, size.height() / 2);
        QVERIFY2(middle.red() > 250 && middle.green() < 5, qPrintable(middle.name()));
        if (arguments.contains("--dpi")) {
            QCOMPARE(qRound(picture.dotsPerMeterX() * 0.0254), 192);
        }
    }

    // A picture on every slide is there once, whatever its files are called, and in its place.
    void keepsPicturesOnce()
    {
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QVERIFY(picture.save(path("once.png")));
        const QByteArray data = fileContent(path("once.png")).toBase64();
        const QByteArray item = R"({"Items":[{"Type":"ZQImagePic","resource":"FILE","BoundingBox":"100,0,200,300",
            "Matrix":"1,0,0,1,0,0"}]},)";
        QByteArray slides;
        for (const char *file : {"a.png", "b.png", "a.png"}) {
            slides += QByteArray(item).replace("FILE", file);
        }
        slides.chop(1);
        putFile(path("once.json"),
                QByteArray(R"({"Width":"400","Height":"300","Resources":{"a.png":"B","b.png":"B"},"Slides":[)")
                        .replace("\"B\"", '"' + data + '"')
                    + slides + "]}");
        QCOMPARE(runCommand({"render", path("once.json"), path("once.html")}).exitCode, 0);
        const QByteArray html = fileContent(path("once.html"));
        QCOMPARE(html.count(data), 1);
        QCOMPARE(html.count("<use transform=\"matrix(2.5,0,0,10,100,0)\" xlink:href=\"#picture0\"/>"), 3);
        QCOMPARE(runCommand({"render", path("once.json"), path("once%03d.png")}).exitCode, 0);
        const QImage page(path("once002.png"));
        QCOMPARE(page.pixelColor(110, 290), QColor(Qt::green));
        QCOMPARE(page.pixelColor(90, 150), QColor(Qt::white));
    }

    // Files lie beside the page in a folder of its own; where that can't be, there is neither.
    void putsFilesBesideThePage()
    {
        putFile(path("heard.json"),
                R"({"Resources":{"m/a.wav":"QUJD","n/A.wav":"REVG","x.html":"PGI+"},"Slides":[{"Items":[
            {"Type":"ZQMediaAudio","resource":"m/a.wav"},{"Type":"ZQMediaVideo","resource":"n/A.wav"},
            {"Type":"ZQMediaDoc","resource":"x.html"},{"Type":"ZQMediaAudio","resource":"m/a.wav"}]}]})");
        const auto render = [this](const QStringList &more) {
            return runCommand(QStringList{"render", path("heard.json"), path("heard.html")} + more).exitCode;
        };
        QCOMPARE(render({}), 0);
        const auto beside = [this] { return QDir(path("heard_files")).entryList(QDir::Files, QDir::Name); };
        QCOMPARE(beside(), QStringList({"a.wav", "file2.wav", "x.html.txt"}));
        QCOMPARE(fileContent(path("heard_files/file2.wav")), QByteArray("DEF"));
        QCOMPARE(render({"--no-clobber"}), 2);
        QVERIFY(QFile::remove(path("heard.html")));
        QCOMPARE(render({"--no-clobber"}), 2); // the sounds are there still
        QVERIFY(!QFile::exists(path("heard.html")));
        QVERIFY(QDir(path("heard_files")).removeRecursively() && QDir().mkdir(path("elsewhere")));
        QCOMPARE(::symlink("elsewhere", QFile::encodeName(path("heard_files")).constData()), 0);
        QCOMPARE(render({}), 2);
        QVERIFY(!QFile::exists(path("heard.html")) && QDir(path("elsewhere")).isEmpty());
        QCOMPARE(render({"--embed"}), 0);
        QVERIFY(fileContent(path("heard.html")).contains("<script type=\"text/plain\" id=\"file1\">REVG</script>"));
        QVERIFY(QFile::remove(path("heard_files")));
    }

    void comparesLessons()
    {
        // A slide lacks a text, its first item, so that the others stand at other places, and one that is hidden.
        QByteArray changed =
            fileContent(path("lesson.json")).replace("\"Text\":\"<script>alert(1)</script>\"", "\"Text\":\"\"");
        changed.replace(R"({"ID":"3","Type":"General:spotlight","BoundingBox":"10,10,110,60"},)", "");
        changed.replace(
            R"({"ID":"4","Type":"ZQTextBoard","BoundingBox":"10,70,390,100","Text":"unseen","Visible":"0"},)", "");
        putFile(path("other.json"), changed);
        // Values that nobody sees on either slide, and a link, which nobody sees either.
        QByteArray given = fileContent(path("lesson.json"));
        given.replace(R"("ID":"1","Type")", R"("ID":"1","LockIn":"1","Type")");
        given.replace(R"("ID":"6",)", R"("ID":"6","LockIn":"1",)");
        given.replace(R"("ID":"2","Type")",
                      R"("ID":"2","InteractiveType":"ACTION_GOTOSLIDE","InteractiveValue":"2","Type")");
        putFile(path("given.json"), given);
        const CommandProcess::Outcome result =
            runCommand({"render", "--diff", path("given.json"), path("other.json"), path("diff.html"), "--json"});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
        const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
        QCOMPARE(json.value("losses").toObject().value("losses").toInt(), 7);
        const QByteArray html = fileContent(path("diff.html"));
        QCOMPARE(html.count("<svg "), 4);
        QCOMPARE(html.count("id=\"slide"), 0);
        const int second = html.indexOf("<h2>", html.indexOf("<h2>") + 1);
        const QByteArray told[] = {html.left(second), html.mid(second)};
        for (const char *words : {"class=\"losses\"><summary>Shown in the result the same, but it works otherwise: 2",
                                  "<details><summary>Only internal, seen by nobody: 1"}) {
            QVERIFY2(told[0].contains(words), words);
        }
        for (const char *words : {"Not shown in the result: 1 spotlight<",
                                  "Missing, and not shown in the first one: 1 text<",
                                  "<details><summary>Only internal, seen by nobody: 1",
                                  "class=\"losses\"><summary>Shown in the result, but not the same: 1",
                                  "<li><b>Text</b> <small>5</small>: <span title=\"Text: &lt;script"}) {
            QVERIFY2(told[1].contains(words), words);
        }
    }

    // Drawings may show what lies with them, and open nothing else.
    void drawingsOpenNothing_data()
    {
        const Table<QString, QByteArray, bool> row("file", "drawing", "isShown");
        const auto drawing = [](const QByteArray &reference) {
            return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
                              "width='50' height='50'><image width='50' height='50' xlink:href='"
                              + reference + "'/></svg>");
        };
        row("file beside it", "a.svg", drawing("beside.png"), true);
        row("harmless document type", "a.svg",
            "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'PIPE'>" + drawing("beside.png"), true);
        row("style sheet", "a.svg", "<?xml-stylesheet type=\"text/css\" href=\"PIPE\"?>" + drawing("beside.png"), true);
        row("drawing in a drawing", "a.svg",
            drawing("data:image/svg+xml," + drawing("data:image/png;base64,BESIDE").toPercentEncoding()), true);
        row("path", "a.svg", drawing("PRIVATE"), false);
        row("path of folders", "a.svg", drawing("../../../../../../../../../../../../../../PRIVATE"), false);
        row("address", "a.svg", drawing("file://PRIVATE"), false);
        row("another name of the reference", "a.svg",
            drawing("PRIVATE").replace("<image",
                                       "<s:image xmlns:s='s' xmlns:x='http://www.w3.org/1999/xlink' x:href='PRIVATE'"),
            false);
        row("drawing that is called a picture", "a.png", drawing("PRIVATE"), false);
        row("what isn't the picture it says", "a.svg", drawing("data:PRIVATE"), false);
        row("path in a drawing in a drawing", "a.svg",
            drawing("data:image/svg+xml," + drawing("PRIVATE").toPercentEncoding()), false);
        row("entity", "a.svg", "<!DOCTYPE svg [<!ENTITY p SYSTEM 'PRIVATE'>]>" + drawing("PRIVATE"), false);
        row("pipe", "a.svg", drawing("PIPE"), false);
        row("device", "a.svg", drawing("/dev/zero"), false);
    }

    void drawingsOpenNothing()
    {
        auto [file, drawing, isShown] = Table<QString, QByteArray, bool>::cells();
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path("private.png")));
        picture.fill(Qt::green);
        QVERIFY(picture.save(path("beside.png")));
        const QByteArray beside = fileContent(path("beside.png")).toBase64();
        ::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600);
        for (const auto &word : {std::make_pair("PRIVATE", path("private.png").toUtf8()),
                                 std::make_pair("PIPE", path("pipe").toUtf8()), std::make_pair("BESIDE", beside)}) {
            drawing.replace(word.first, word.second);
        }
        QByteArray lesson = R"({"Width":"400","Height":"300","Slides":[{"ID":"1","document":"i/FILE","Items":[
            {"ID":"2","Type":"ZQImagePic","resource":"i/FILE","BoundingBox":"0,0,200,300"}]}],
            "Resources":{"i/FILE":"DRAWING","i/beside.png":"BESIDE"}})";
        lesson.replace("FILE", file.toUtf8()).replace("DRAWING", drawing.toBase64()).replace("BESIDE", beside);
        putFile(path("drawn.json"), lesson);
        QFile::remove(path("drawn.png"));
        QCOMPARE(runCommand({"render", path("drawn.json"), path("drawn.png")}).exitCode, 0);
        const QImage page(path("drawn.png"));
        QCOMPARE(runCommand({"convert", path("drawn.json"), path("drawn"), "--to", "iwb"}).exitCode, 0);
        const QImage background(path("drawn/images/1_bgd.png"));
        QFile::remove(path("paper.png"));
        QCOMPARE(runCommand({"render", path("drawn.json"), path("drawn.pdf")}).exitCode, 0);
        QCOMPARE(QProcess::execute("pdftoppm", {"-png", "-singlefile", "-r", "96", path("drawn.pdf"), path("paper")}),
                 0);
        const QImage paper(path("paper.png"));
        for (const QColor &color : {page.pixelColor(100, 250), page.pixelColor(300, 250), paper.pixelColor(100, 250),
                                    background.isNull() ? QColor() : background.pixelColor(9, 9)}) {
            QVERIFY2(isShown ? color == QColor(Qt::green) : color != QColor(Qt::red), qPrintable(color.name()));
        }
    }

    void textsOpenNothing()
    {
        ::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600);
        QByteArray lesson = R"({"Slides":[{"ID":"1","Items":[
            {"ID":"1","Type":"ZQMindMapItem","mindMapData":[{},{},{"nodeHtml":"LOAD"}]},
            {"ID":"2","Type":"ZQQuestionItem","R_Content_svg":"LOAD"},
            {"ID":"3","Type":"ZQTextBoard","BoundingBox":"0,0,300,9","TextHtml":"LOAD"}]}]})";
        lesson.replace("LOAD",
                       "<link rel='stylesheet' type='text/css' href='PIPE'/><style>@import url(PIPE)</style>"
                       "<body background='PIPE'>shown<img src='PIPE'/>");
        putFile(path("texts.json"), lesson.replace("PIPE", path("pipe").toUtf8()));
        QCOMPARE(runCommand({"render", path("texts.json"), path("texts.html")}).exitCode, 0);
        QVERIFY(fileContent(path("texts.html")).count("shown<") == 3);
    }

    // What no font here has is said for each script, with the package that has it.
    void tellsMissingFonts()
    {
        putFile(path("fonts.conf"),
                QByteArray("<fontconfig><dir>NONE</dir><cachedir>NONE</cachedir></fontconfig>")
                    .replace("NONE", path("none").toUtf8()));
        const auto withoutFonts = [this] { qputenv("FONTCONFIG_FILE", path("fonts.conf").toUtf8()); };
        const auto putLesson = [this](const char *name, const char *lesson) {
            putFile(path(name), QJsonDocument(json(lesson)).toJson());
        };
        putLesson("scripts.json",
                  "{'Slides':[{'Items':[{'ID':'1','Type':'ZQTextBoard','BoundingBox':'0,0,90,90','Text':'水 "
                  "Б'}]},{'Items':[]},"
                  "{'Items':[{'ID':'2','Type':'ZQWordLatticeItem','BoundingBox':'0,0,90,90','Text':'山'},"
                  "{'ID':'3','Type':'ZQTextBoard','Text':'\\ue000 \\u0301'}]}]}");
        const QString chinese("2 slides have Chinese characters and no font here has them: install fonts-noto-cjk");
        const QString cyrillic("1 slide has Cyrillic letters and no font here has them: install fonts-dejavu-core");
        const QStringList render{"render", path("scripts.json"), path("scripts.html")};
        const QString errors = runCommand(render, {}, withoutFonts).errors;
        QVERIFY2(errors.count("Note: ") == 3, qPrintable(errors));
        QVERIFY2(errors.contains(chinese) && errors.contains(cyrillic), qPrintable(errors));
        const QByteArray result = runCommand(render + QStringList{"--json"}, {}, withoutFonts).output.toUtf8();
        const QJsonArray told = QJsonDocument::fromJson(result)["missingFonts"].toArray();
        QCOMPARE(told.at(0).toObject(),
                 json("{'letters':'Chinese characters','package':'fonts-noto-cjk','slides':[1,3]}"));
        QVERIFY(runCommand(render + QStringList{"--quiet"}, {}, withoutFonts).errors.isEmpty());

        const QString exported =
            runCommand({"convert", path("scripts.json"), path("scripts.iwb")}, {}, withoutFonts).errors;
        QVERIFY2(exported.contains(chinese) && exported.contains(cyrillic), qPrintable(exported)); // one is a picture
        putFile(path("foreign/content.xml"),
                "<iwb><svg:svg viewbox='0 0 9 9'><svg:text x='1' y='9'>水</svg:text></svg:svg></iwb>");
        const QString read = runCommand({"convert", path("foreign"), path("foreign.json")}, {}, withoutFonts).errors;
        QVERIFY2(read.contains("no font here has its Chinese characters: install fonts-noto-cjk"), qPrintable(read));

        putLesson("font.json",
                  "{'Slides':[{'Items':[{'ID':'1','Type':'ZQTextBoard',"
                  "'TextHtml':'<p style=\\'font-family:No Such Font, Arial\\'>a</p>'}]}]}");
        const QString font = runCommand({"render", path("font.json"), path("font.html")}).errors;
        QVERIFY2(font.contains("1 slide has the font No Such Font, which isn't here"), qPrintable(font));
    }

    void drawsWithoutADisplay()
    {
        const auto prepare = [] {
            qputenv("QT_QPA_PLATFORM", "xcb");
            qunsetenv("DISPLAY");
        };
        QCOMPARE(runCommand({"render", path("lesson.json"), path("hidden.pdf")}, {}, prepare).exitCode, 0);
    }

    // Painters come to an end with every number.
    void drawsAnyNumber_data()
    {
        const Table<QByteArray> row("drawing");
        row("far away", "<rect width='1e38' height='9' stroke='red' stroke-width='1e38' stroke-dasharray='3'/>");
        row("fine dashes", "<g style='stroke-dasharray:1e-9 1e-9'><path stroke='red' d='M0 0L9e9 5'/></g>");
        row("many dashes",
            "<polyline fill='none' stroke='red' stroke-dasharray='.01' points='"
                + QByteArray("0,0 399,299 ").repeated(50000) + "'/>");
        row("no numbers", "<rect width='nan' height='inf' stroke='red' stroke-dasharray='nan'/>");
        row("ever larger",
            QByteArray("<g transform='scale(1e9)'>").repeated(90) + "<rect width='9' height='9' stroke='red'/>"
                + QByteArray("</g>").repeated(90));
    }

    void drawsAnyNumber()
    {
        QFETCH(QByteArray, drawing);
        drawing = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 400 300'>" + drawing + "</svg>";
        putFile(path("numbers.json"),
                QByteArray(R"({"Width":"400","Height":"300","Resources":{"a.svg":"B64"},"Slides":[{"Items":[
            {"ID":"1","Type":"ZQImagePic","resource":"a.svg","BoundingBox":"0,0,400,300"},
            {"ID":"2","Type":"ZQMath2DRectangle","BoundingBox":"0,0,1e38,200","LineColor":"255,0,0,0",
             "ArtObj_Line":"2"},
            {"ID":"3","Type":"General:spotlight","BoundingBox":"0,0,1e38,100"}]}]})")
                    .replace("B64", drawing.toBase64()));
        for (const char *name : {"numbers.png", "numbers.pdf"}) {
            QFile::remove(path(name));
            QCOMPARE(runCommand({"render", path("numbers.json"), path(name)}).exitCode, 0);
        }
    }

    void showsTheNameOfADrawingThatIsNone()
    {
        putFile(path("none.json"), R"({"Resources":{"a.svg":"PHN2Zz48Zz4="},"Slides":[{"Items":[
            {"ID":"1","Type":"ZQImagePic","resource":"a.svg","BoundingBox":"0,0,400,300"}]}]})");
        QCOMPARE(runCommand({"render", path("none.json"), path("none.html")}).exitCode, 0);
        QVERIFY(fileContent(path("none.html")).contains("that is missing"));
    }

    void refuses_data()
    {
        const Table<QStringList, QString> row("arguments", "message");
        row("one file for two slides", {"p.png"}, "%d");
        row("form", {"p.bmp"}, ".html, .pdf, .svg, .png, .jpg or .webp, or say");
        row("form by its name", {"p", "--to", "bmp"}, "Say html, pdf, svg, png, jpeg or webp");
        row("slide beyond", {"p.html", "--slides", "3"}, "no slide 3");
        row("slides", {"p.html", "--slides", "5-2"}, "names no slides");
        row("size", {"p.pdf", "--size", "12"}, "is no size");
        row("huge", {"p.svg", "--size", "99999x1"}, "is no size");
        row("side", {"p.pdf", "--width", "0"}, "--width 640");
        row("factor", {"p.png", "--scale", "0"}, "--scale a number from 0.01 to 100");
        row("two sizes", {"p.png", "--width", "9", "--dpi", "9"}, "--width and --dpi both say");
        row("size of what has none", {"p.html", "--height", "9"}, "--height changes nothing about html");
        row("dots of what has none", {"p.pdf", "--dpi", "9"}, "it is for png, jpeg and webp");
        row("borders of nothing", {"p.png", "--pad"}, "--pad changes nothing without --size");
        row("many without a folder", {"p.pdf", "--jobs", "2"}, "render INPUTS... --to FORM --out-dir FOLDER");
        row("colour", {"p.png", "--background", "#12"}, "is no colour");
        row("nothing shows through", {"p.jpg", "--background", "transparent"}, "write png and webp");
        row("folders of slides", {"a%d/p.png"}, "one folder");
        row("more than fits into the memory", {"p.png", "--slides", "1", "--size", "16384x8192"},
            "Ask for a smaller one");
    }

    void refuses()
    {
        auto [arguments, message] = Table<QStringList, QString>::cells();
        arguments[0] = m_folder.filePath(arguments.at(0));
        const CommandProcess::Outcome result = runCommand(QStringList{"render", path("lesson.json")} + arguments);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
        QVERIFY(!QFile::exists(arguments.at(0)));
    }
};

QTEST_MAIN(TestRender) // reads drawings with letters
#include "tst_render.moc"
