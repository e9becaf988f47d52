#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/*!
 * What the command tells about a lesson: counts that can be checked by counting elements in the example, what isn't
 * known, and what is missing.
 */
class TestHostInfo : public QObject
{
    Q_OBJECT

private:
    struct Outcome
    {
        int exitCode = -1;
        QByteArray output;
    };

    static Outcome info(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(LESSONCONV_FILE), QStringList{"info"} + arguments);
        process.waitForFinished(60000);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput()};
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

private slots:
    void counts_data()
    {
        QTest::addColumn<QString>("lesson");
        QTest::addColumn<QString>("expected"); // the members that the row looks at

        QTest::newRow("nodes of mind maps") << "mindmaps"
                                            << R"({"mindMapNodes": 20, "slides": 2, "animatedItems": 1,
            "items": {"ZQMindMapItem": 3}})";
        QTest::newRow("questions") << "quiz"
                                   << R"({"questions": 3, "files": 3, "items": {"ZQDyCoursewareItem": 1,
            "ZQFormulaEditorItem": 2, "ZQQuestionItem": 3}})";
        QTest::newRow("cards of words") << "language"
                                        << R"({"cards": 2, "title": "水 and 山"})";
        QTest::newRow("games") << "activities"
                               << R"({"cards": 2, "activities": {"Grouping": 1, "Judgment": 1,
            "NumberComparison": 1, "PronunciationTest": 1}})";
        QTest::newRow("triggers of a raw script") << "rawxml/triggers.xml"
                                                  << R"({"triggers": 3, "slides": 2,
            "items": {"ZQSmoothStroke": 4}})";
        QTest::newRow("items within groups") << "handwriting"
                                             << R"({"animatedItems": 4, "width": "1920", "items": {
            "ZQBrChalkStroke": 1, "ZQBrushStroke": 1, "ZQBrushStrokeVelocity": 1, "ZQChalkStroke": 2,
            "ZQCombineStroke": 1, "ZQFluorescentStroke": 2, "ZQGroupItem": 4, "ZQSmoothStroke": 15,
            "ZQStrokeTexture": 1, "ZQStrokesChemFormula": 1, "ZQStrokesCombine": 1, "ZQStrokesDeletePixel": 1,
            "ZQStrokesMathFormula": 1, "ZQStrokesStamp": 1, "stroke": 1}})";
    }

    void counts()
    {
        QFETCH(QString, lesson);
        QFETCH(QString, expected);
        const Outcome outcome = info({QStringLiteral(EXAMPLES_DIR "/") + lesson, "--json"});
        QCOMPARE(outcome.exitCode, 0);
        const QJsonObject told = QJsonDocument::fromJson(outcome.output).object();
        const QJsonObject wanted = QJsonDocument::fromJson(expected.toUtf8()).object();
        QVERIFY(!wanted.isEmpty());
        for (auto it = wanted.constBegin(); it != wanted.constEnd(); ++it) {
            QCOMPARE(told.value(it.key()), it.value());
        }
        QCOMPARE(told.value("missingFiles").toArray(), QJsonArray());
        QCOMPARE(told.value("unknownItems").toObject(), QJsonObject());
    }

    void tellsWhatIsUnknownOrMissing()
    {
        const QTemporaryDir folder;
        write(folder.filePath("index.xml"),
              "<main version=\"3.0\" width=\"800\" height=\"600\"><slides>"
              "<file href=\"slides/1.xml\"/></slides></main>");
        write(folder.filePath("slides/1.xml"),
              "<slide id=\"1\"><items><media id=\"5\" type=\"image\" resource=\"images/gone.png\"/>"
              "<gadget id=\"6\" type=\"ZQGadget\"/><gadget id=\"7\" type=\"ZQGadget\"/></items></slide>");
        const Outcome outcome = info({folder.path()});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(QString::fromUtf8(outcome.output),
                 QString("Page size       800 x 600\n"
                         "Version         3.0\n"
                         "Slides          1\n"
                         "Files           0 (0 bytes)\n"
                         "Missing files   images/gone.png\n"
                         "Items           3\n"
                         "     1  ZQImagePic  Picture\n"
                         "Unknown items   2\n"
                         "     2  ZQGadget\n"));

        const Outcome failure = info({folder.filePath("none"), "--json"});
        QCOMPARE(failure.exitCode, 2);
        const QJsonObject error = QJsonDocument::fromJson(failure.output).object().value("error").toObject();
        QCOMPARE(error.value("file").toString(), folder.filePath("none"));
        QCOMPARE(error.value("remedy").toString(), QString("Check the path"));
    }
};

QTEST_GUILESS_MAIN(TestHostInfo)
#include "tst_hostinfo.moc"
