#include "hostfixture.h"

#include <QDomDocument>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

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
            {"ID":"6","Type":"ZQQuestionItem","BoundingBox":"120,10,390,60","Angle":"0.5","R_Content_svg":"<svg><text>Why?</text></svg>"},
            {"ID":"4","Type":"ZQTextBoard","BoundingBox":"10,70,390,100","Text":"unseen","Visible":"0"},
            {"ID":"5","Type":"ZQTextBoard","BoundingBox":"10,120,390,200","Text":"<script>alert(1)</script>"}]}]})");
    }

    void drawsEveryItem()
    {
        const CommandProcess::Outcome result =
            runCommand({"render", path("lesson.json"), path("lesson.html"), "--json"});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
        const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
        QCOMPARE(json.value("slides").toInt(), 2);
        QCOMPARE(json.value("named"),
                 QJsonValue(QJsonArray{QJsonObject{{"slide", 2}, {"type", "General:spotlight"}, {"id", "3"}},
                                       QJsonObject{{"slide", 2}, {"type", "ZQQuestionItem"}, {"id", "6"}}}));
        const QByteArray html = fileContent(path("lesson.html"));
        QCOMPARE(html.count("<svg "), 2);
        for (const char *shown : {"Animals", "Cats &amp;", "Birds", "Spotlight", ">Question<", "rotate(28.6479 255 35)",
                                  ">Why?<", "&lt;script"}) {
            QVERIFY2(html.contains(shown), shown);
        }
        QCOMPARE(html.count("<line "), 2);
        QVERIFY(!html.contains("unseen"));
        QVERIFY(!html.contains("<script"));
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
        const QByteArray pdf = fileContent(path("lesson.pdf"));
        QVERIFY(pdf.startsWith("%PDF"));
        QVERIFY(pdf.contains("/Count 2"));
        QVERIFY(pdf.contains("/MediaBox [0 0 300"));
    }

    void comparesLessons()
    {
        // A slide lacks a text and its first item, so that the others stand at other places.
        QByteArray changed =
            fileContent(path("lesson.json")).replace("\"Text\":\"<script>alert(1)</script>\"", "\"Text\":\"\"");
        changed.replace(R"({"ID":"3","Type":"General:spotlight","BoundingBox":"10,10,110,60"},)", "");
        putFile(path("other.json"), changed);
        const CommandProcess::Outcome result =
            runCommand({"render", "--diff", path("lesson.json"), path("other.json"), path("diff.html"), "--json"});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
        const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
        QCOMPARE(json.value("losses").toObject().value("losses").toInt(), 2);
        const QByteArray html = fileContent(path("diff.html"));
        QCOMPARE(html.count("<svg "), 4);
        QCOMPARE(html.count("Nothing is lost"), 1);
        QVERIFY(html.contains("Missing: Spotlight"));
        QVERIFY(html.contains("<li><b>Text</b> <small>5</small>: <span title=\"&lt;script"));
    }

    void refuses_data()
    {
        const Table<QStringList, QString> row("arguments", "message");
        row("one file for two slides", {"p.png"}, "%d");
        row("form", {"p.bmp"}, ".html, .pdf, .svg or .png");
        row("slide beyond", {"p.html", "--slides", "3"}, "no slide 3");
        row("slides", {"p.html", "--slides", "5-2"}, "names no slides");
        row("size", {"p.html", "--size", "12"}, "is no size");
        row("huge", {"p.html", "--size", "99999x1"}, "is no size");
    }

    void refuses()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        arguments[0] = m_folder.filePath(arguments.at(0));
        const CommandProcess::Outcome result = runCommand(QStringList{"render", path("lesson.json")} + arguments);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
        QVERIFY(!QFile::exists(arguments.at(0)));
    }
};

QTEST_GUILESS_MAIN(TestRender)
#include "tst_render.moc"
