// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

// On the page, about its borders and off it, in hardly any colour, width or size: most are seen as pictures, some not.
// Strokes whose points are nearer to each other than they are written, further away, and neither.
QJsonObject hardlySeen()
{
    QJsonArray items;
    for (const QString step : {",0.004,0.003", ",-0.01,0.02", ",3.3333,-2.5", ",799.1234,1.2345"}) {
        const QJsonObject stroke{{"Type", "ZQSmoothStroke"}, {"XY", QString("9.12345,9.5" + step.repeated(40))}};
        items.append(stroke);
        items.append(QJsonObject{
            {"Type", "ZQGroupItem"}, {"BoundingBox", "9,9,50,50"}, {"Children", QJsonArray{stroke, stroke}}});
    }
    for (const char *box : {"9,9,50,50", "5000,9,5050,50", "-990,9,-940,50", "-300,9,-250,50", "9,9,9,9", "9,9,9,80"}) {
        for (const char *line : {"#ff000000", "#00000000", "#01000000", "#40ff0000"}) {
            for (const char *fill : {"#00000000", "#03ff0000", "#ff00ff00"}) {
                const char *const width = items.size() % 2 == 0 ? "2" : "0.01";
                items.append(QJsonObject{{"Type", "ZQVectorXinxing"},
                                         {"BoundingBox", box},
                                         {"ArtVectObj_FrameColor", line},
                                         {"ArtVectObj_RegionColor", fill},
                                         {"ArtObj_Width", width},
                                         {"VectorControl0", "0,0,0,0,0,0,9,0,0,0,0,0,9,9,0,0,0,0"}});
            }
        }
        for (const char *text : {"", " ", "...", "\u3164", "a", "?? ?? ?? ?? a", "\u6c34"}) {
            items.append(QJsonObject{{"Type", "ZQQuestionItem"}, {"BoundingBox", box}, {"R_Content_svg", text}});
        }
    }
    return {{"Width", "1440"}, {"Slides", QJsonArray{QJsonObject{{"Items", items}}}}};
}

} // namespace

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

    // A lesson in JSON with one slide of these items and page values, and the file a.png, which is no picture.
    void checks_data()
    {
        const Table<QByteArray, QString, int> row("slide", "findings", "code"); // "kind type id key problem" of each
        row("whole", "'Items':[{'Type':'ZQMath2DCircle','ID':'c','BoundingBox':'0,0,9,9','Visible':true}]", "", 0);
        row("files", "'document':'b.png','Items':[{'Type':'ZQImagePic','ID':'i','resource':'a.png'},{'Type':'ZQGroupItem',"
            "'Children':[{'Type':'ZQMediaAudio','ID':'s','resource':'c.mp3'}]}]",
            "file slide  b.png |picture ZQImagePic i a.png it is no picture that can be read|file ZQMediaAudio s c.mp3 ", 1);
        row("drawings", "'document':'cut.svg','Items':[{'Type':'ZQImagePic','ID':'n','resource':'none.svg'},"
            "{'Type':'ZQImagePic','ID':'u','resource':'used.svg'},{'Type':'ZQImagePic','ID':'c','resource':'cut.svg'}]",
            "picture slide  cut.svg it is a damaged picture|picture ZQImagePic n none.svg it is a drawing with nothing in it|"
            "picture ZQImagePic c cut.svg it is a damaged picture", 1);
        row("items", "'Items':[{'Type':'ZQFuture','ID':'f','Opacity':'999'},{'Type':'ZQGadget','ID':'g','KeptXml':'<g/>'}]",
            "item ZQFuture f  |item ZQGadget g  ", 1);
        row("values", "'color':'reddish','Items':[{'Type':'ZQSmoothStroke','ID':'s','Opacity':300},"
            "{'Type':'ZQMath2DCircle','ID':'c','InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'2'}]",
            "value slide  color a colour|value ZQSmoothStroke s Opacity a number from 0 to 255|"
            "value ZQSmoothStroke s XY the points are not in the file|"
            "value ZQMath2DCircle c InteractiveValue a slide from 1 to 1", 1);
    }

    void checks()
    {
        const auto [slide, findings, code] = Table<QByteArray, QString, int>::cells();
        const QTemporaryDir folder;
        const QByteArray shapes = "<defs><path id='p' d='M0,0 9,9'/></defs><g><script/></g>";
        const auto svg = [](const QByteArray &content) {
            return QByteArray("<svg width='9' height='9'>" + content).toBase64();
        };
        putFile(folder.filePath("in.json"),
                QByteArray("{'Width':'800','Height':'600','Slides':[{" + slide + "}],'Resources':{'a.png':'eHl6','cut.svg':'"
                           + svg("<path d='M0,0 9,9'/>") + "','none.svg':'" + svg(shapes + "</svg>") + "','used.svg':'"
                           + svg(shapes + "<use href='#p'/></svg>") + "'}}")
                    .replace('\'', '"'));
        const CommandProcess::Outcome outcome = runCommand({"check", folder.filePath("in.json"), "--json"});
        QCOMPARE(outcome.exitCode, code);
        const QJsonObject told = QJsonDocument::fromJson(outcome.output.toUtf8()).object();
        QStringList found;
        for (const QJsonValue &one : told.value("findings").toArray()) {
            QStringList words;
            for (const char *key : {"kind", "type", "id", "key", "problem"}) {
                words.append(one.toObject().value(QLatin1String(key)).toString());
            }
            found.append(words.join(' '));
        }
        QCOMPARE(found.join('|'), findings);
        QCOMPARE(told.value("found").toInt(), found.size());
    }

    // Without a trace of what was tried, and with the losses that a conversion names.
    void checkTellsWhatFormatsLose()
    {
        const QTemporaryDir folder;
        const QString lesson = EXAMPLES_DIR "/geometry";
        const QString seen = folder.filePath("seen.json");
        putFile(seen, QJsonDocument(hardlySeen()).toJson());
        for (const auto &[from, format] : {std::pair(lesson, "iwb"), {lesson, "zqtx"}, {seen, "iwb"}}) {
            const QString other = folder.filePath("in.json");
            convertedLesson(from, other);
            const QString report = folder.filePath("report.json");
            QCOMPARE(runCommand({"convert", other, folder.filePath("out."_s + format), "--report", report}).exitCode, 0);
            const auto outcome = runCommand({"check", other, "--to", format, "--json"}, folder.path());
            const QJsonObject tried = QJsonDocument::fromJson(outcome.output.toUtf8())
                                          .object()
                                          .value("formats")
                                          .toArray()
                                          .at(0)
                                          .toObject();
            const QJsonObject converted = QJsonDocument::fromJson(fileContent(report)).object();
            QCOMPARE(tried.value("summary"), converted.value("summary"));
            QCOMPARE(tried.value("losses"), converted.value("losses"));
        }
        // A text that grows too large names no place of the trial.
        putFile(folder.filePath("in.json"),
                "{\"Slides\":[{\"ID\":\"s\",\"Items\":[{\"Type\":\"ZQText\",\"TextHtml\":\"" + QByteArray(8 << 20, '&') + "\"}]}]}");
        const auto large = runCommand({"check", folder.filePath("in.json"), "--to", "zqtx"});
        QVERIFY2(large.output.contains("zqtx can't hold it: slides/s.xml: Slide 1 takes"), qPrintable(large.output));
        QCOMPARE(runCommand({"check", lesson, "--quiet"}).output, QString());
        QCOMPARE(runCommand({"check", lesson, "--to", "rawxml"}).exitCode, 2);
        // Raw lessons lose values whatever they become.
        const QString raw = EXAMPLES_DIR "/rawxml/subjects.xml";
        QCOMPARE(runCommand({"check", raw}).exitCode, 0);
        QCOMPARE(runCommand({"check", raw, "--strict", "--no-check"}).exitCode, 0);
        QCOMPARE(runCommand({"check", raw, "--strict"}).exitCode, 1);
    }

    void checksMany()
    {
        const QTemporaryDir folder;
        for (const QString number : {"1", "2"}) {
            putFile(folder.filePath("lessons/" + number + ".json"),
                    R"({"Slides":[{"Items":[{"Type":"ZQMediaAudio","resource":"a.mp3"}]}]})");
        }
        putFile(folder.filePath("lessons/3.json"), "{");
        const QStringList call{"check", "lessons", "--out-dir", "out", "--report", "report.json", "--resume"};
        for (const QString state : {"checked", "done before"}) {
            QCOMPARE(runCommand(call, folder.path()).exitCode, 2);
            const QJsonObject report = QJsonDocument::fromJson(fileContent(folder.filePath("report.json"))).object();
            QCOMPARE(differences(report.value("counts").toObject(), {{state, 2}, {"failed", 1}, {"found", 2}}), QString());
        }
        const QJsonObject one = QJsonDocument::fromJson(fileContent(folder.filePath("out/2.json"))).object();
        QCOMPARE(one.value("findings").toArray().at(0).toObject().value("key").toString(), "a.mp3"_s);
        QVERIFY(QFile::remove(folder.filePath("lessons/3.json")));
        QCOMPARE(runCommand(call, folder.path()).exitCode, 1);
    }
};

QTEST_GUILESS_MAIN(TestHostInfo)
#include "tst_hostinfo.moc"
