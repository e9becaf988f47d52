// SPDX-License-Identifier: MIT
#include "formats/conversion.h"
#include "hostfixture.h"
#include "iwbformat.h"
#include "randomlesson.h"
#include "testtable.h"

#include <QDir>
#include <QGuiApplication>
#include <QtTest>

/*!
 * Packages keep to the rules of the format, whatever is in the lesson.
 */
class TestIwbFormat : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QStringList problemsOf(const QString &lesson, const QStringList &options)
    {
        QDir(path("there")).removeRecursively();
        const auto outcome =
            runCommand(QStringList{"convert", lesson, path("there"), "--to", "iwb"} + options, m_folder.path());
        return outcome.exitCode == 0 ? formatProblems(filesBelow(path("there"))) : QStringList(outcome.errors);
    }

private slots:
    void wrongsAreFound_data()
    {
        const Table<QString, QString, QString> row("from", "to", "problem");
        row("nothing", "", "", "");
        row("no version", " version=\"1.0\"", "", "<iwb > is no root");
        row("an element of others", "<svg:page id=\"p\">", "<svg:page id=\"p\"><svg:path d=\"M 0 0\"/>",
            "<page p> holds a <path>; <rect r> is no background");
        row("an attribute of others", "x1=", "visible=\"1\" x1=", "<line l> has an attribute \"visible\"");
        row("a lack", " y1=\"2\"", "", "<line l> has no \"y1\"");
        row("a wrong value", "x1=\"1\"", "x1=\"1px\"", "<line l> has x1=\"1px\"");
        row("points", "1,2 3,4", "1,2,3,4", "<polyline f> has points=\"1,2,3,4\"");
        row("two of one name", "id=\"l\"", "id=\"f\"",
            "<polyline f> has the identifier of another; <element l> is about nothing");
        row("units", "width=\"100\" height=\"50\"", "width=\"100\" height=\"60\"",
            "<svg > has units that aren't square");
        row("a file", "images/a.png\"/>", "images/b.png\"/>", "<image i> shows no file of the package: images/b.png");
        row("a link", "#p", "#q", "<a a> leads nowhere: #q");
        row("a record of another kind", "freehand", "flip", "<element f> has an attribute \"flip\"");
        row("a record of a part of a text", "<iwb:element ref=\"r\" background=\"true\"/>",
            "<iwb:tspan ref=\"r\" background=\"true\"/>", "<tspan r> is about a <rect>");
        row("a group of one", "<iwb:element ref=\"l\"/>", "", "<group > is no group of a page");
        row("the order", "<iwb:meta name=\"creator\" content=\"us\"/>", "<iwb:group/>",
            "<svg > stands in the wrong order; <group > is no group of a page");
        row("the background", "<svg:rect id=\"r\"", "<svg:line x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\"/><svg:rect id=\"r\"",
            "<rect r> is no background");
        row("caps", "stroke=\"red\"/>", "stroke=\"red\" stroke-linecap=\"round\"/>", "<circle > has caps and no ends");
        row("text on a page", "<svg:circle", "words<svg:circle", "<page p> holds a text");
    }

    void wrongsAreFound()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QString text =
            "<iwb version=\"1.0\" xmlns:iwb=\"http://www.becta.org.uk/iwb\" xmlns:svg=\"http://www.w3.org/2000/svg\" "
            "xmlns:xlink=\"http://www.w3.org/1999/xlink\"><iwb:meta name=\"creator\" content=\"us\"/>"
            "<svg:svg viewbox=\"0 0 200 100\" width=\"100\" height=\"50\"><svg:pageset><svg:page id=\"p\">"
            "<svg:rect id=\"r\" x=\"0\" y=\"0\" width=\"200\" height=\"100\" fill=\"white\"/>"
            "<svg:line id=\"l\" x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\" stroke=\"#123\"/>"
            "<svg:polyline id=\"f\" points=\"1,2 3,4\" transform=\"rotate(20,1,2)\"/>"
            "<svg:a id=\"a\" xlink:href=\"#p\"><svg:image id=\"i\" x=\"1\" y=\"2\" width=\"3\" height=\"4\" "
            "xlink:href=\"images/a.png\"/></svg:a><svg:textarea x=\"1\" y=\"2\" width=\"3\" height=\"4\">"
            "<svg:tspan>a</svg:tspan><svg:tbreak/></svg:textarea><svg:circle cx=\"1\" cy=\"2\" r=\"3\" stroke=\"red\"/>"
            "</svg:page></svg:pageset></svg:svg><iwb:element ref=\"r\" background=\"true\"/>"
            "<iwb:group><iwb:element ref=\"l\"/><iwb:element ref=\"f\" freehand=\"true\"/></iwb:group>"
            "<iwb:link ref=\"a\" file=\"internal\"/></iwb>";
        QVERIFY(text.contains(from));
        const QStringList problems =
            formatProblems({{"content.xml", text.replace(from, to).toUtf8()}, {"images/a.png", {}}});
        QTEST(from.isEmpty() ? problems.join("; ") : problems.mid(0, 2).join("; "), "problem");
        QCOMPARE(formatProblems({{"content.xml", text.toUtf8()}, {"images/a.txt", {}}}).first(),
                 QString("images/a.txt has no place in the package"));
    }

    void examplesKeepToIt_data()
    {
        QTest::addColumn<QString>("lesson");
        for (const QFileInfo &entry : QDir(EXAMPLES_DIR).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            if (QFile::exists(entry.filePath() + "/index.xml")) {
                QTest::addRow("%s", qPrintable(entry.fileName())) << entry.filePath();
            }
        }
        for (const QFileInfo &entry : QDir(EXAMPLES_DIR "/rawxml").entryInfoList({"*.xml"}, QDir::Files, QDir::Name)) {
            QTest::addRow("%s", qPrintable(entry.fileName())) << entry.filePath();
        }
        QTest::addRow("fractions.iwb") << QString(EXAMPLES_DIR "/fractions.iwb");
    }

    void examplesKeepToIt()
    {
        QFETCH(QString, lesson);
        for (const QStringList &options : {QStringList(), QStringList{"--plain"}, QStringList{"--items", "drop"}}) {
            QCOMPARE(problemsOf(lesson, options).join('\n'), QString());
        }
    }

    void randomLessonsKeepToIt()
    {
        int converted = 0;
        for (quint32 seed = 1; seed <= 150; ++seed) {
            putFile(path("random.json"), jsonText(RandomLesson(seed).lesson(seed % 4 != 0)));
            QDir(path("random")).removeRecursively();
            LessonContext context;
            context.plugin = plugin();
            try {
                convertLesson(lessonFormatOfInput(path("random.json")), path("random.json"), lessonFormatByName("iwb"),
                              path("random"), context, [](int, int) {});
            } catch (const LessonError &) {
                continue; // a lesson may be refused
            }
            ++converted;
            QVERIFY2(formatProblems(filesBelow(path("random"))).isEmpty(),
                     qPrintable(QString::number(seed) + ": " + formatProblems(filesBelow(path("random"))).join('\n')));
        }
        QVERIFY(converted > 75);
    }
};

int main(int argc, char **argv)
{
    // The host lays out text. The attributes of an element stand in the order of their hashes.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qSetGlobalQHashSeed(0);
    QGuiApplication application(argc, argv);
    TestIwbFormat test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iwbformat.moc"
