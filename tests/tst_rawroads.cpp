// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QDir>
#include <QtTest>

/*!
 * Raw lessons on their way into the other formats: what the plug-in's reading leaves behind, and where items stand.
 */
class TestRawRoads : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(name); }

    QString putLesson(const QByteArray &items, const QByteArray &slide = "SlideSourceRect='0,0,1024,768'") const
    {
        putFile(path("resources/tree.png"), redPicture());
        putFile(path("resources/tone.wav"), "RIFF");
        putFile(path("raw.xml"),
                "<presentation NetID='p' Version='2.4'><slide NetID='1' " + slide + ">" + items
                    + "</slide></presentation>");
        return path("raw.xml");
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void attributesReachTheModel_data()
    {
        const Table<QByteArray, QJsonObject> row("item", "expected");
        row("a file", R"(<ZQImagePic MultiMediaFile='C:\pics\tree.png'/>)",
            "resource=resources/tree.png MultiMediaFile=null");
        row("files, one behind the other", R"(<ZQMediaVideo MultiMediaFile='a;b\tree.png|tone.wav||'/>)",
            "resource=resources/tree.png MultiMediaFile=resources/tree.png,resources/tone.wav");
        row("ink: the alpha of its colour doesn't count, its opacity does",
            "<ZQSmoothStroke Color='9,1,2,255' Opacity='128' Width='7[ ,]' DashStyle='2'/>",
            "Color=#800102ff Width=7 DashStyle=2 Opacity=null");
        row("ink that says nothing", "<ZQSmoothStroke/>", "Color=#ffff0000 Width=5.0");
        row("a texture", R"(<ZQStrokeTexture DrawTexture='D:\brush\chalk.png'/>)", "DrawTexture=resources/chalk.png");
        row("a text board's HTML", "<ZQTextBoard TextHtml='x' Fragrance='y'/>", "TextHtml=x Fragrance=null");
        row("and which way round it is", "<ZQImagePic TransformMatrix='2,0,0,-2,0,0' Bound='2,1,0,0,0,0'/>",
            "BoundingBox=0,0,2,1 Matrix=2.8125,0,0,-2.8125,0,0");
    }

    // Sanitizers see what goes wrong where such numbers become whole ones.
    void coloursAreOfAnyNumbers()
    {
        const QByteArray item = "<ZQMath2DCircle ArtObj_Color='nan,0,0,0' ArtObj_Color1='255,-3e9,0,0' "
                                "Discipline_xControl0='80' Discipline_yControl0='5'/>";
        for (const char *name : {"out.zqtx", "out.iwb", "out.json"}) {
            convertedLesson(putLesson(item), path(name));
        }
        const QJsonObject found = openLesson(path("out.zqtx"))->slide(0).items.first().toObject();
        QCOMPARE(found.value("ArtObj_Color"), QJsonValue(json("{'Alpha':0,'Solid':0}")));
    }

    void attributesReachTheModel()
    {
        const auto [item, expected] = Table<QByteArray, QJsonObject>::cells();
        const auto reader = openLesson(putLesson(item));
        const QJsonObject found = reader->slide(0).items.first().toObject();
        QCOMPARE(differences(found, expected), QString());
    }

    void whatDoesNotReachTheModelIsTold_data()
    {
        const Table<QByteArray, QString> row("item", "lost");
        row("flags", "<ZQImagePic Visible='true' LockIn='2' InfiniteClone='+1'/>", "@LockIn: 2, @Visible: true");
        row("an enlarged picture that is mirrored",
            "<ZQImagePic Bound='80,40,0,0,10,10' TransformMatrix='2,0,0,-2,300,50'/>", "");
        row("an enlarged picture, in its box", "<ZQImagePic Bound='80,40,0,0,10,10' TransformMatrix='2,0,0,2,300,50'/>",
            "");
        row("numbers of a place that are none",
            "<ZQImagePic Bound='80,40,5,6,10,10' TransformMatrix='1,0,0,abc,300,50'/>",
            "@Bound: 80,40,5,6,10,10, @TransformMatrix: 1,0,0,abc,300,50");
        row("colours that are none", "<ZQSmoothStroke Color='9,1,2,300' Opacity='300' Width='3[ ,]'/>",
            "@Color: 9,1,2,300, @Opacity: 300, XY: the points are not in the file");
        row("a second list, and what is in a row of the first",
            "<ZQSmoothStroke><PixelDeleteInfos><P a='1'><Q b='2'/></P><P a='3'/></PixelDeleteInfos><PixelDeleteInfos>"
            "<P a='4'/></PixelDeleteInfos></ZQSmoothStroke>",
            "PixelDeleteInfos/P/Q@b: 2, PixelDeleteInfos[2]/P@a: 4, XY: the points are not in the file");
        row("keys of other names", "<ZQMath2DNewArc StartAngle='30.5' SweepAngle='x' CenterPtX='5' LineWidth='3'/>",
            "@SweepAngle: x");
        row("control points",
            "<ZQMath2DCircle Discipline_xControl0='1.1' Discipline_yControl0='b' "
            "Discipline_xControl2='1'><ArtObj_Color r='300' g='2' FileType='4'/></ZQMath2DCircle>",
            "@Discipline_xControl2: 1, @Discipline_yControl0: b, ArtObj_Color@r: 300");
        row("an inner matrix",
            "<ZQVectorXinxing ArtInner_Zoom='2' ArtInner_Rotate='30' ArtInner_HorzFlip='1' "
            "ArtInner_VertFlip='2'><ArtVectObj_Manager "
            "a='1'><ArtVectObj_Path0/></ArtVectObj_Manager></ZQVectorXinxing>",
            "@ArtInner_VertFlip: 2");
        row("what a key sets", "<ZQLiteratureYinbiao ArtObj_WriteDanci='0'/>", "@ArtObj_WriteDanci: 0");
        row("a second list of sons",
            "<ZQGroupItem><GroupSonItems q='1'><ZQTextBoard/></GroupSonItems><GroupSonItems>"
            "<ZQTextBoard NetID='7'/></GroupSonItems></ZQGroupItem>",
            "GroupSonItems@q: 1, GroupSonItems[2]/ZQTextBoard@NetID: 7");
    }

    void whatDoesNotReachTheModelIsTold()
    {
        const auto [item, lost] = Table<QByteArray, QString>::cells();
        LossReport losses;
        openLesson(putLesson(item), &losses)->slide(0);
        QStringList found;
        for (const Loss &loss : losses.entries()) {
            found.append(loss.key + ": " + loss.detail.english());
        }
        found.sort();
        QCOMPARE(found.join(", "), lost);
    }

    // What an item draws is the same whether its matrix goes to the page directly or into the box of a package first.
    void matricesAreWorkedIn_data()
    {
        const Table<QByteArray, QString> row("shape", "lost");
        const char *const two = "Discipline_xControl0='80' Discipline_yControl0='5' Discipline_xControl1='0' "
                                "Discipline_yControl1='40'";
        const QByteArray three = QByteArray(two) + " Discipline_xControl2='60' Discipline_yControl2='90'";
        const QByteArray rim = "Discipline_xControl0='80' Discipline_yControl0='0' Discipline_xControl1='0' "
                               "Discipline_yControl1='40'";
        const auto shape = [](const char *type, const QByteArray &attributes) -> QByteArray {
            return "<" + QByteArray(type) + " NetID='i' " + attributes + " TransformMatrix='";
        };
        const QVector<QPair<QByteArray, QByteArray>> shapes{
            {"segment", shape("ZQMath2DSegmentWith1Arrow", QByteArray(two) + " ArtObj_ArrowType='1'")},
            {"angle", shape("ZQMath2DAngle", two)},
            {"triangle", shape("ZQMath2DTriangle", three)},
            {"polyline", shape("ZQMath2DPolyline", "XYValue='0,0,10,10,30,10,50,-4;'")},
            {"parallelogram", shape("ZQMath2DParallelogram", three)},
            {"pentagon", shape("ZQMath2DNormalPentagon", "ArtObj_Ln='5'")},
            {"circle", shape("ZQMath2DCircle", two)},
            {"ellipse", shape("ZQMath2DEllipse", rim)},
            {"rectangle", shape("ZQMath2DRectangle", rim)},
            {"rectangle of its box alone", shape("ZQMath2DRectangle", "Bound='80,40,0,0,10,10'")},
            {"picture", shape("ZQImagePic", "MultiMediaFile='tree.png' Bound='80,40,0,0,10,10'")},
            {"text", shape("ZQTextBoard", "Text='x]]&gt;y' Bound='80,40,0,0,10,10'")},
        };
        const QVector<QPair<QByteArray, QByteArray>> matrices{
            {"moved", "1,0,0,1,100,50"},
            {"three times as large", "3,0,0,3,100,50"},
            {"turned by 30 degrees", "0.866025,0.5,-0.5,0.866025,300,50"},
            {"stretched, then turned", "1.73205,1,-1.5,2.59808,300,50"},
            {"mirrored", "-1,0,0,1,300,50"},
            {"slanted", "1,0,0.5,1,300,50"},
        };
        // Regular shapes have no points of their own to move; boxes can't be slanted, and pictures not be mirrored.
        const QStringList unmirrored{"parallelogram", "pentagon", "picture", "text"};
        const QStringList unslanted = unmirrored + QStringList{"rectangle", "rectangle of its box alone"};
        for (const auto &one : shapes) {
            for (const auto &matrix : matrices) {
                const bool isLost = (matrix.first == "mirrored" && unmirrored.contains(one.first))
                    || (matrix.first == "slanted" && unslanted.contains(one.first));
                row(QByteArray(one.first + ", " + matrix.first).constData(),
                    QByteArray(one.second + matrix.second + "'/>"), (isLost ? "Matrix on slide 1" : ""));
            }
        }
    }

    void matricesAreWorkedIn()
    {
        const auto [shape, lost] = Table<QByteArray, QString>::cells();
        const QString raw = putLesson(shape);
        QVERIFY(!convertedLesson(raw, path("direct"), "iwb").summary().english().contains("no IWB form"));
        const QString report = convertedLesson(raw, path("package"), "zqtx").summary().english();
        convertedLesson(path("package"), path("detour"), "iwb");
        if (lost.isEmpty()) {
            QCOMPARE(report, "Note: items: 1 had a matrix, which is worked into where it stands");
            QCOMPARE(drawn(path("detour")), drawn(path("direct")));
        } else {
            QVERIFY2(report.contains(lost), qPrintable(report));
        }
    }

    // Twice as large and turned by 90 degrees: x is 100 - 2y, y is 50 + 2x. Points behind the first one are steps.
    void inkIsPlaced()
    {
        putFile(path("in.json"),
                R"({"Version":"3.0","Slides":[{"ID":"1","Items":[{"Type":"ZQSmoothStroke","ID":"7","XY":"10,20,1,2",)"
                R"("Width":"2","BoundingBox":"10,20,11,22","Matrix":"0,2,-2,0,100,50"}]}]})");
        convertedLesson(path("in.json"), path("package"), "zqtx");
        const QJsonObject found = openLesson(path("package"))->slide(0).items.first().toObject();
        QCOMPARE(
            differences(found, {{"XY", "60,70,-4,2"}, {"Width", "4"}, {"BoundingBox", "56,70,60,72"}, {"Angle", "0"}}),
            QString());
    }

    void readsTheSameTwice()
    {
        const QString raw = path("raw.xml");
        putFile(raw,
                "<presentation><slide><ZQImagePic/><ZQMath2DCircle "
                "NetID='1000001'/><ZQGroupItem><GroupSonItems><ZQTextBoard/>"
                "</GroupSonItems></ZQGroupItem></slide><slide/></presentation>");
        const auto ids = [&raw] {
            const auto reader = openLesson(raw);
            QStringList found{reader->presentation().value("ID").toString()};
            for (const int slide : {1, 0}) {
                const LessonSlide read = reader->slide(slide);
                found.append(read.properties.value("ID").toString());
                for (const QJsonValue &item : read.items) {
                    found.append(item.toObject().value("ID").toString());
                    const QJsonObject son = item.toObject().value("Children").toArray().first().toObject();
                    found.append(son.value("ID").toString());
                }
            }
            found.removeAll(QString());
            return found;
        };
        const QStringList first = ids();
        QCOMPARE(ids(), first);
        QCOMPARE(QSet<QString>(first.begin(), first.end()).size(), 7);
    }

    void backgroundsBecomeThoseOfPackages()
    {
        const QString raw =
            putLesson("<ZQGroupItem TransformMatrix='1,0,0,1,0,0' Bound='1,1,0,0,0,0'><GroupSonItems>"
                      "<ZQImagePic MultiMediaFile='tree.png' Bound='40,30,0,0,20,10'/>"
                      "<ZQImagePic MultiMediaFile='tree.png' Bound='8,6,0,0,4,2'/></GroupSonItems></ZQGroupItem>",
                      R"(BackColor='9,10,20,30' AttachFile='C:\tree.png|')");
        QCOMPARE(convertedLesson(raw, path("package"), "zqtx").summary().english(),
                 "Note: items: 2 had a matrix, which is worked into where they stand"_s);
        const QByteArray slide = fileContent(path("package/slides/1.xml"));
        QVERIFY2(slide.contains("<color value=\"255,10,20,30\"/>"), slide);
        QVERIFY2(slide.contains("<picture document=\"resources/tree.png\"/>"), slide);
        QCOMPARE(slide.count("resource=\"resources/tree.png\""), 2);
        // The group stands around its items: 4 * 1.40625, 2 * 1.40625, 40 * 1.40625, 30 * 1.40625.
        QVERIFY2(slide.contains("<rect points=\"5.625,2.8125,56.25,42.1875\"/>"), slide);
    }

private:
    // The page's svg without what the lesson's own identifiers and shortened numbers make of it.
    static QStringList drawn(const QString &package)
    {
        QStringList texts;
        QString content = QString::fromUtf8(fileContent(package + "/content.xml"_s));
        static const QRegularExpression number("-?[0-9]+\\.[0-9]+"_s);
        QRegularExpressionMatchIterator it = number.globalMatch(content);
        QString rounded;
        int end = 0;
        while (it.hasNext()) {
            const QRegularExpressionMatch match = it.next();
            rounded += content.midRef(end, match.capturedStart() - end);
            rounded += QString::number(match.captured().toDouble(), 'f', 1);
            end = match.capturedEnd();
        }
        rounded += content.midRef(end);
        return rounded.split('\n');
    }
};

QTEST_MAIN(TestRawRoads)
#include "tst_rawroads.moc"
