#include "conversion.h"
#include "lossreport.h"
#include "pluginfixture.h"

#include <QDirIterator>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// All files below a folder with their content.
QMap<QString, QByteArray> contentOf(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const QDir root(folder);
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(root.relativeFilePath(it.filePath()), file.readAll());
        }
    }
    return files;
}

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/*!
 * Every example goes through the formats and comes back whole, without a word in the report.
 */
class TestHostRoundTrip : public QObject
{
    Q_OBJECT

private:
    static QString convert(const QString &input, const QString &output)
    {
        LossReport losses;
        LessonContext context;
        context.plugin = plugin();
        context.losses = &losses;
        convertLesson(lessonFormatOfInput(input), input, lessonFormatOfOutput(output), output, context,
                      [](int, int) {});
        return losses.summary();
    }

    // start: what the files begin with, behind their declaration and comments.
    static void addExamples(const QStringList &names, const QByteArray &start)
    {
        QTest::addColumn<QString>("example");
        QDirIterator it(QStringLiteral(EXAMPLES_DIR), names, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            if (!contentOfFile(path).contains(start)) {
                continue;
            }
            const QString lesson = path.endsWith(QLatin1String("/index.xml")) ? it.fileInfo().path() : path;
            QTest::newRow(qPrintable(QDir(QStringLiteral(EXAMPLES_DIR)).relativeFilePath(lesson))) << lesson;
        }
    }

private slots:
    // The plug-in logs whole mind maps.
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

    void packagesComeBack_data() { addExamples({QStringLiteral("index.xml"), QStringLiteral("*.zqtx")}, {}); }

    void packagesComeBack()
    {
        QFETCH(QString, example);
        QTemporaryDir folder;
        const QString json = folder.filePath(QStringLiteral("1.json"));
        const QString package = folder.filePath(QStringLiteral("2"));
        const QString archive = folder.filePath(QStringLiteral("3.zqtx"));
        const QString secondPackage = folder.filePath(QStringLiteral("4"));
        const QString secondJson = folder.filePath(QStringLiteral("5.json"));
        QCOMPARE(convert(example, json), QString());
        QCOMPARE(convert(json, package), QString());
        QCOMPARE(convert(package, archive), QString());
        QCOMPARE(convert(archive, secondPackage), QString());
        QCOMPARE(convert(secondPackage, secondJson), QString());

        QCOMPARE(contentOfFile(secondJson), contentOfFile(json));
        QCOMPARE(contentOf(secondPackage), contentOf(package));
        if (QFileInfo(example).isDir()) {
            QCOMPARE(contentOf(package), contentOf(example));
        }
    }

    // Each level of a mind map is two of XML and of JSON, deeper than Qt's own JSON parser goes.
    void deepMindMapsComeBack()
    {
        QTemporaryDir folder;
        const QString json = folder.filePath(QStringLiteral("1.json"));
        QFile file(json);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"Slides":[{"ID":"1","Items":[{"Type":"ZQMindMapItem","mindMapData":[{},{},)"
                   + QByteArray(R"({"nodeHtml":"a < b","childNodes":[)").repeated(511) + R"({"nodeHtml":"last"})"
                   + QByteArray("]}").repeated(511) + "]}]}]}");
        file.close();
        const QString package = folder.filePath(QStringLiteral("2"));
        const QString secondJson = folder.filePath(QStringLiteral("3.json"));
        const QString secondPackage = folder.filePath(QStringLiteral("4"));
        QCOMPARE(convert(json, package), QString());
        QCOMPARE(convert(package, secondJson), QString());
        QCOMPARE(convert(secondJson, secondPackage), QString());
        QCOMPARE(contentOf(secondPackage), contentOf(package));
        QCOMPARE(contentOfFile(secondJson).count("a < b"), 511);
    }

    void rawLessonsAreReadWhole_data() { addExamples({QStringLiteral("*.xml")}, "<presentation"); }

    void rawLessonsAreReadWhole()
    {
        QFETCH(QString, example);
        QTemporaryDir folder;
        QCOMPARE(convert(example, folder.filePath(QStringLiteral("1.json"))), QString());
    }

    void rawPicturesKeepTheirFile()
    {
        QTemporaryDir folder;
        const QString package = folder.filePath(QStringLiteral("package"));
        const QString losses = convert(QStringLiteral(EXAMPLES_DIR "/rawxml/standard.xml"), package);
        QVERIFY2(!losses.contains("MultiMediaFile"), qPrintable(losses));
        QVERIFY(contentOfFile(package + "/slides/2.xml").contains("resource=\"resources/bamboo.png\""));
        QVERIFY(contentOf(package).contains("resources/bamboo.png"));
    }
};

QTEST_GUILESS_MAIN(TestHostRoundTrip)
#include "tst_hostroundtrip.moc"
