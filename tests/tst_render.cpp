#include <QDomDocument>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// Draws lessons through the command, as a teacher does.
class TestRender : public QObject
{
    Q_OBJECT

private slots:
    void drawsEveryItem();
    void writesPictures();
    void comparesLessons();
    void refuses_data();
    void refuses();

private:
    struct Result
    {
        int exitCode;
        QString output;
        QString errors;
    };
    static Result run(const QStringList &arguments);
    QString lesson();
    QString place(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QByteArray content(const char *name) const;

    QTemporaryDir m_folder;
};

TestRender::Result TestRender::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(LESSONCONV), arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

QByteArray TestRender::content(const char *name) const
{
    QFile file(place(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Two slides: a red rectangle under a mind map, then a spotlight, a hidden text and a text that must not become markup.
QString TestRender::lesson()
{
    const QByteArray text = R"({"Width":"400","Height":"300","Slides":[
        {"ID":"1","Items":[
            {"ID":"1","Type":"ZQMath2DRectangle","BoundingBox":"100,100,300,200","LineColor":"255,0,0,0",
             "ArtObj_Color":"255,255,0,0"},
            {"ID":"2","Type":"ZQMindMapItem","BoundingBox":"0,0,90,90","mindMapData":[{},{},
                {"nodeHtml":"Animals","childNodes":[{"nodeHtml":"<b>Cats</b> & dogs"},{"nodeHtml":"Birds"}]}]}]},
        {"ID":"2","Items":[
            {"ID":"3","Type":"General:spotlight","BoundingBox":"10,10,110,60"},
            {"ID":"6","Type":"ZQQuestionItem","BoundingBox":"120,10,390,60","R_Content_svg":"<svg><text>Why?</text></svg>"},
            {"ID":"4","Type":"ZQTextBoard","BoundingBox":"10,70,390,100","Text":"unseen","Visible":"0"},
            {"ID":"5","Type":"ZQTextBoard","BoundingBox":"10,120,390,200","Text":"<script>alert(1)</script>"}]}]})";
    const QString path = place("lesson.json");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return path;
}

void TestRender::drawsEveryItem()
{
    const Result result = run({"render", lesson(), place("lesson.html"), "--json"});
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    QCOMPARE(json.value("slides").toInt(), 2);
    QCOMPARE(json.value("named"),
             QJsonValue(QJsonArray{QJsonObject{{"slide", 2}, {"type", "General:spotlight"}, {"id", "3"}},
                                   QJsonObject{{"slide", 2}, {"type", "ZQQuestionItem"}, {"id", "6"}}}));
    const QByteArray html = content("lesson.html");
    QCOMPARE(html.count("<svg "), 2);
    for (const char *shown : {"Animals", "Cats &amp;", "Birds", "Spotlight", ">Question<", ">Why?<", "&lt;script"}) {
        QVERIFY2(html.contains(shown), shown);
    }
    QCOMPARE(html.count("<line "), 2);
    QVERIFY(!html.contains("unseen"));
    QVERIFY(!html.contains("<script"));
}

void TestRender::writesPictures()
{
    QCOMPARE(run({"render", lesson(), place("page%d.png"), "--size", "200x150"}).exitCode, 0);
    const QImage first(place("page1.png"));
    QCOMPARE(first.size(), QSize(200, 150));
    QCOMPARE(first.pixelColor(100, 75), QColor(Qt::red));
    QCOMPARE(first.pixelColor(190, 140), QColor(Qt::white));
    QVERIFY(QFile::exists(place("page2.png")));

    QCOMPARE(run({"render", lesson(), place("only.svg"), "--slides", "2"}).exitCode, 0);
    QDomDocument svg;
    QVERIFY(svg.setContent(content("only.svg")));
    QCOMPARE(svg.documentElement().attribute("viewBox"), QStringLiteral("0 0 400.00 300.00"));

    QCOMPARE(run({"render", lesson(), place("lesson.pdf")}).exitCode, 0);
    const QByteArray pdf = content("lesson.pdf");
    QVERIFY(pdf.startsWith("%PDF"));
    QVERIFY(pdf.contains("/Count 2"));
    QVERIFY(pdf.contains("/MediaBox [0 0 300"));
}

void TestRender::comparesLessons()
{
    const QString given = lesson();
    QFile other(place("other.json"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    // A slide lacks a text and its first item, so that the others stand at other places.
    QByteArray changed = content("lesson.json").replace("\"Text\":\"<script>alert(1)</script>\"", "\"Text\":\"\"");
    changed.replace(R"({"ID":"3","Type":"General:spotlight","BoundingBox":"10,10,110,60"},)", "");
    other.write(changed);
    other.close();
    const Result result = run({"render", "--diff", given, place("other.json"), place("diff.html"), "--json"});
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    QCOMPARE(json.value("losses").toObject().value("losses").toInt(), 2);
    const QByteArray html = content("diff.html");
    QCOMPARE(html.count("<svg "), 4);
    QCOMPARE(html.count("Nothing is lost"), 1);
    QVERIFY(html.contains("Missing: Spotlight"));
    QVERIFY(html.contains("<li><b>Text</b> <small>5</small>: <span title=\"&lt;script"));
}

void TestRender::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("one file for two slides") << QStringList{"p.png"} << "%d";
    QTest::newRow("form") << QStringList{"p.bmp"} << ".html, .pdf, .svg or .png";
    QTest::newRow("slide beyond") << QStringList{"p.html", "--slides", "3"} << "no slide 3";
    QTest::newRow("slides") << QStringList{"p.html", "--slides", "5-2"} << "names no slides";
    QTest::newRow("size") << QStringList{"p.html", "--size", "12"} << "is no size";
    QTest::newRow("huge") << QStringList{"p.html", "--size", "99999x1"} << "is no size";
}

void TestRender::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    arguments[0] = m_folder.filePath(arguments.at(0));
    const Result result = run(QStringList{"render", lesson()} + arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
    QVERIFY(!QFile::exists(arguments.at(0)));
}

QTEST_GUILESS_MAIN(TestRender)
#include "tst_render.moc"
