// SPDX-License-Identifier: MIT
#include "formats/conversion.h"
#include "formats/slidesahead.h"
#include "hostfixture.h"
#include "lesson/guardedplugin.h"

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

    // Slides are read ahead and checked behind, and all comes as from one thread: values, made up identifiers, losses in
    // the order of the slides, and what fails.
    void threadsChangeNothing()
    {
        QTemporaryDir folder;
        const auto json = [](int same, int broken) {
            QByteArray text = "{'Width':'1280','Height':'720','Slides':[";
            for (int i = 1; i < 20; ++i) {
                const QByteArray item = "{'Type':'ZQMath2DCircle','ID':'a','ID':'b','lost':[1]}";
                const QByteArray id = QByteArray::number(i == same ? i - 1 : i);
                text += i == broken ? QByteArray("7,") : "{'ID':'" + id + "','Items':[" + item + "]},";
            }
            text += "{'Items':[]}]}";
            return text.replace('\'', '"');
        };
        putFile(folder.filePath("whole.json"), json(0, 0));
        putFile(folder.filePath("same.json"), json(9, 0));
        putFile(folder.filePath("broken.json"), json(0, 9));
        const QByteArray slide = "<slide Other='1'><ZQMath2DCircle Bound='1,2,3,4' Other='1'/><ZQTextBoard/></slide>";
        putFile(folder.filePath("raw.xml"), "<presentation>" + slide.repeated(20) + "</presentation>");
        GuardedPlugin guarded(plugin());
        LessonContext context;
        context.plugin = &guarded;
        QStringList told[2];
        QStringList asked[2];
        for (const bool isAhead : {false, true}) {
            context.readsAhead = isAhead;
            for (int i = 0; i < 8; ++i) {
                const char *const to = i < 4 ? "zqtx" : "iwb";
                const QString name = QStringList{"whole.json", "same.json", "broken.json", "raw.xml"}.at(i % 4);
                const QString input = folder.filePath(name);
                const QString output = folder.filePath(QString("%1%2%3").arg(name, to).arg(isAhead));
                LossReport losses;
                context.losses = &losses;
                try {
                    convertLesson(lessonFormatOfInput(input), input, lessonFormatByName(to), output, context,
                                  [](int, int) {});
                    const QMap<QString, QByteArray> files = filesBelow(output);
                    for (auto it = files.cbegin(); it != files.cend(); ++it) {
                        told[isAhead].append(it.key() + it.value());
                    }
                    for (const Loss &loss : losses.entries()) {
                        told[isAhead].append(QString("%1 %2").arg(loss.slide).arg(loss.key));
                    }
                } catch (const LessonError &error) {
                    QVERIFY(!QFileInfo::exists(output) && hiddenEntries(folder.path()).isEmpty());
                    told[isAhead].append(error.message().english().remove(output));
                    if (name == QLatin1String("same.json")) {
                        QCOMPARE(losses.entries().size(), 9 + 8); // what was read, and written
                    }
                }
            }
            LossReport losses;
            context.losses = &losses;
            const auto reader =
                openLesson(lessonFormatByName("json"), folder.filePath("whole.json"), context);
            for (const int index : {0, 1, 0, 5, 6, 2, 1}) {
                asked[isAhead].append(reader->slide(index).properties.value("ID").toString());
                asked[isAhead].append(QString("(%1)").arg(losses.entries().last().slide));
            }
        }
        QCOMPARE(told[1], told[0]);
        QCOMPARE(asked[1], asked[0]);
        QCOMPARE(asked[1].join(""), QString("1(1)2(2)1(2)6(6)7(7)3(3)2(3)"));
        QCOMPARE(told[1].mid(told[1].indexOf("1 ID"), 5).join(','), QString("1 ID,1 lost,2 ID,2 lost,3 ID"));
    }

    // A page that fails while others are made already fails before them, and all is told until then.
    void pagesFailInOrder()
    {
        QTemporaryDir folder;
        GuardedPlugin guarded(plugin());
        QStringList told[2];
        for (const bool isBehind : {false, true}) {
            LossReport losses;
            LessonContext context;
            context.plugin = &guarded;
            context.losses = &losses;
            context.readsAhead = isBehind;
            const auto writer = lessonFormatByName("iwb").create(folder.filePath("out.iwb"), context);
            writer->begin({{"Width", "800"}, {"Height", "600"}});
            try {
                for (int i = 1; i < 9; ++i) {
                    const QString points = i == 5 ? QString("1,1,").repeated(1100000) : QString("0,0,29,38");
                    const QString id = i == 4 ? QString(7000000, '&') : QString("item%1").arg(i);
                    const QJsonObject item{{"Type", "ZQMath2DEllipse"},
                                           {"ID", id},
                                           {"BoundingBox", "1,2,30,40"},
                                           {"Control", points},
                                           {"lost", "1"}};
                    writer->writeSlide({{{"ID", QString::number(i)}}, {item}});
                }
                writer->finish();
            } catch (const LessonError &error) {
                told[isBehind].append(error.problem().english());
            }
            for (const Loss &loss : losses.entries()) {
                told[isBehind].append(QString("%1 %2").arg(loss.slide).arg(loss.key));
            }
        }
        QCOMPARE(told[1], told[0]);
        QCOMPARE(told[1].join(", "),
                 QString("Slide 4 takes 34 MiB, and no slide may take more than 32, 1 lost, 2 lost, 3 lost, 4 lost"));
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
