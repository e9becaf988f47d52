// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

/*!
 * What the command tells about a lesson: counts that can be checked by counting elements in the example, what isn't
 * known, and what is missing.
 */
class TestHostInfo : public QObject
{
    Q_OBJECT

private slots:
    void counts_data()
    {
        const Table<QString, QJsonObject> row("lesson", "expected"); // the members that the row looks at
        row("nodes of mind maps", "mindmaps", R"({"mindMapNodes": 20, "slides": 2, "animatedItems": 1,
            "items": {"ZQMindMapItem": 3}})");
        row("questions", "quiz", R"({"questions": 3, "files": 3, "items": {"ZQDyCoursewareItem": 1,
            "ZQFormulaEditorItem": 2, "ZQQuestionItem": 3}})");
        row("cards of words", "language", R"({"cards": 2, "title": "水 and 山"})");
        row("games", "activities", R"({"cards": 2, "activities": {"Grouping": 1, "Judgment": 1,
            "NumberComparison": 1, "PronunciationTest": 1}})");
        row("triggers of a raw script", "rawxml/triggers.xml", R"({"triggers": 3, "slides": 2,
            "items": {"ZQSmoothStroke": 4}})");
        row("items within groups", "handwriting", R"({"animatedItems": 4, "width": "1920", "items": {
            "ZQBrChalkStroke": 1, "ZQBrushStroke": 1, "ZQBrushStrokeVelocity": 1, "ZQChalkStroke": 2,
            "ZQCombineStroke": 1, "ZQFluorescentStroke": 2, "ZQGroupItem": 4, "ZQSmoothStroke": 15,
            "ZQStrokeTexture": 1, "ZQStrokesChemFormula": 1, "ZQStrokesCombine": 1, "ZQStrokesDeletePixel": 1,
            "ZQStrokesMathFormula": 1, "ZQStrokesStamp": 1, "stroke": 1}})");
    }

    void counts()
    {
        const auto [lesson, expected] = Table<QString, QJsonObject>::cells();
        const CommandProcess::Outcome outcome = runCommand({"info", EXAMPLES_DIR "/"_s + lesson, "--json"});
        QCOMPARE(outcome.exitCode, 0);
        const QJsonObject told = QJsonDocument::fromJson(outcome.output.toUtf8()).object();
        QCOMPARE(differences(told, expected), QString());
        QCOMPARE(told.value("missingFiles").toArray(), QJsonArray());
        QCOMPARE(told.value("unknownItems").toObject(), QJsonObject());
    }

    void tellsWhatIsUnknownOrMissing()
    {
        const QTemporaryDir folder;
        putFile(folder.filePath("index.xml"),
                "<main version=\"3.0\" width=\"800\" height=\"600\"><slides>"
                "<file href=\"slides/1.xml\"/></slides></main>");
        putFile(folder.filePath("slides/1.xml"),
                "<slide id=\"1\"><items><media id=\"5\" type=\"image\" resource=\"images/gone.png\"/>"
                "<gadget id=\"6\" type=\"ZQGadget\"/><gadget id=\"7\" type=\"ZQGadget\"/></items></slide>");
        const CommandProcess::Outcome outcome = runCommand({"info", folder.path()});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.output,
                 QString("Page size       800 x 600\n"
                         "Version         3.0\n"
                         "Slides          1\n"
                         "Files           0 (0 bytes)\n"
                         "Missing files   images/gone.png\n"
                         "Items           3\n"
                         "     1  ZQImagePic  Picture\n"
                         "Unknown items   2\n"
                         "     2  ZQGadget\n"));

        const CommandProcess::Outcome failure = runCommand({"info", folder.filePath("none"), "--json"});
        QCOMPARE(failure.exitCode, 2);
        const QJsonObject error = QJsonDocument::fromJson(failure.output.toUtf8()).object().value("error").toObject();
        QCOMPARE(error.value("file").toString(), folder.filePath("none"));
        QCOMPARE(error.value("remedy").toString(), QString("Check the path"));
    }
};

QTEST_GUILESS_MAIN(TestHostInfo)
#include "tst_hostinfo.moc"
