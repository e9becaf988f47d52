// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QDirIterator>
#include <QLoggingCategory>
#include <QtTest>

/*!
 * Every example goes through the formats and comes back whole, without a word in the report.
 */
class TestHostRoundTrip : public QObject
{
    Q_OBJECT

private:
    static QString convert(const QString &input, const QString &output)
    {
        return convertedLesson(input, output).summary().english();
    }

    // start: what the files begin with, behind their declaration and comments.
    static void addExamples(const QStringList &names, const QByteArray &start)
    {
        const Table<QString> row("example");
        QDirIterator it(QString(EXAMPLES_DIR), names, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            if (!fileContent(path).contains(start)) {
                continue;
            }
            const QString lesson = path.endsWith("/index.xml") ? it.fileInfo().path() : path;
            row(qPrintable(QDir(QString(EXAMPLES_DIR)).relativeFilePath(lesson)), lesson);
        }
    }

private slots:
    // The plug-in logs whole mind maps.
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"_s); }

    void packagesComeBack_data() { addExamples({"index.xml"_s, "*.zqtx"_s}, {}); }

    void packagesComeBack()
    {
        QFETCH(QString, example);
        QTemporaryDir folder;
        const QString json = folder.filePath("1.json");
        const QString package = folder.filePath("2");
        const QString archive = folder.filePath("3.zqtx");
        const QString secondPackage = folder.filePath("4");
        const QString secondJson = folder.filePath("5.json");
        QCOMPARE(convert(example, json), QString());
        QCOMPARE(convert(json, package), QString());
        QCOMPARE(convert(package, archive), QString());
        QCOMPARE(convert(archive, secondPackage), QString());
        QCOMPARE(convert(secondPackage, secondJson), QString());

        QCOMPARE(fileContent(secondJson), fileContent(json));
        QCOMPARE(filesBelow(secondPackage), filesBelow(package));
        if (QFileInfo(example).isDir()) {
            QCOMPARE(filesBelow(package), filesBelow(example));
        }
    }

    // Each level of a mind map is two of XML and of JSON, deeper than Qt's own JSON parser goes.
    void deepMindMapsComeBack()
    {
        QTemporaryDir folder;
        const QString json = folder.filePath("1.json");
        putFile(json,
                R"({"Slides":[{"ID":"1","Items":[{"Type":"ZQMindMapItem","mindMapData":[{},{},)"
                    + QByteArray(R"({"nodeHtml":"a < b","childNodes":[)").repeated(511) + R"({"nodeHtml":"last"})"
                    + QByteArray("]}").repeated(511) + "]}]}]}");
        const QString package = folder.filePath("2");
        const QString secondJson = folder.filePath("3.json");
        const QString secondPackage = folder.filePath("4");
        QCOMPARE(convert(json, package), QString());
        QCOMPARE(convert(package, secondJson), QString());
        QCOMPARE(convert(secondJson, secondPackage), QString());
        QCOMPARE(filesBelow(secondPackage), filesBelow(package));
        QCOMPARE(fileContent(secondJson).count("a < b"), 511);
    }

    void rawLessonsAreReadWhole_data() { addExamples({"*.xml"_s}, "<presentation"); }

    void rawLessonsAreReadWhole()
    {
        QFETCH(QString, example);
        QTemporaryDir folder;
        const LossReport losses = convertedLesson(example, folder.filePath("1.json"));
        for (const Loss &loss : losses.entries()) {
            QCOMPARE(int(loss.kind), int(Loss::Absent)); // the points of ink, for which the form has no place
            QVERIFY(loss.itemType.contains("Stroke") && loss.key == "XY");
        }
    }

    // Whenever and wherever they are written.
    void archivesAreTheSameEachTime()
    {
        QTemporaryDir folder;
        const auto write = [&folder](const QString &name) {
            QCOMPARE(runCommand({"convert", EXAMPLES_DIR "/quiz", name, "--quiet"}, folder.path(), [name] {
                         qputenv("TZ", name.startsWith('1') ? "UTC" : "Asia/Shanghai");
                     }).exitCode, 0);
        };
        for (const QString number : {"1", "2"}) {
            write(number + ".zqtx");
            write(number + ".iwb");
            QTest::qSleep(number == "1" ? 2100 : 1); // archives count seconds by two
        }
        for (const QString ending : {".zqtx", ".iwb"}) {
            QVERIFY(fileContent(folder.filePath("1" + ending)) == fileContent(folder.filePath("2" + ending)));
        }
    }
};

QTEST_GUILESS_MAIN(TestHostRoundTrip)
#include "tst_hostroundtrip.moc"
