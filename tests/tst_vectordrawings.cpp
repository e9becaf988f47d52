#include "hostfixture.h"
#include "itemfamilies.h"
#include "iwb/iwbmedia.h"
#include "render/mathdrawing.h"
#include "render/vectordrawing.h"

#include <QImage>
#include <QtTest>

/*!
 * Draws vector shapes and mathematics through the command, each on a page of its own around its centre.
 */
class TestVectorDrawings : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    int m_lessons = 0;

    //! The item on a page of 100 by 100 pixels.
    QImage picture(const QJsonObject &item)
    {
        const QString lesson = m_folder.filePath("lesson%1.json"_s.arg(++m_lessons));
        const QString png = lesson + ".png"_s;
        putFile(lesson,
                R"({"Width":"100","Height":"100","Slides":[{"ID":"1","Items":[)" + toText(item).toUtf8() + "]}]}");
        const CommandProcess::Outcome outcome = runCommand({"render", lesson, png, "--size", "100x100"});
        return outcome.exitCode == 0 ? QImage(png).convertToFormat(QImage::Format_RGB32) : QImage();
    }

    static int count(const QImage &image, const QRect &area, const std::function<bool(QRgb)> &isCounted)
    {
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                found += isCounted(image.pixel(x, y)) ? 1 : 0;
            }
        }
        return found;
    }

private slots:
    void drawsEveryVectorShape()
    {
        int shapes = 0;
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                QCOMPARE(vectorDrawing(type) != nullptr, type.startsWith("ZQVector"_s));
                shapes += vectorDrawing(type) ? 1 : 0;
            }
        }
        QCOMPARE(shapes, 29);
    }

    // Edges are blue and fills are red.
    void drawsInPlace_data()
    {
        const Table<QString, QJsonObject, bool> row("type", "keys", "isFilled");
        const char *const corner = "{'VectorControl0': [0,0,0,0,0,0, 9,0,0,0,0,0, 9,9,9,9,9,9, 3,9,3,9,3,9]}";
        row("corners, without bends told", "ZQVectorJuxing", corner, true);
        row("bends out of its points", "ZQVectorXinxing",
            "{'VectorControl0': [0,-30,-40,-100,40,-100, 100,-20,100,-70,100,20, 0,90,30,70,-30,70]}", true);
        row("a path left out", "ZQVectorXiaolian",
            "{'VectorControl0': [0,0,0,0,0,0, 90,0,0,0,0,0, 90,90,9,90,9,99], 'VectorControl2': [9,9,9,9,20,0, "
            "40,9,30,0,40,9]}",
            true);
        row("a line of two points", "ZQVectorPianduan", "{'VectorControl3': [1,2,0,0,0,0, 3,9,0,0,0,0]}", false);
        row("a flat line", "ZQVectorPianduan", "{'VectorControl0': [1,2,0,0,0,0, 3,2,0,0,0,0]}", false);
        row("corners of its own", "ZQMath2DTrapezoid", "{'Control': '1,1,9,2,9,9,0,9'}", true);
        row("no fill", "ZQMath2DRhombus", "{'ArtObj_Fill': '0'}", false);
        row("axes", "ZQMathToolCoordinateFunct", "{'ArtObj_Color': '255,0,0,255'}", false);
        row("arc", "ZQMath2DNewArc", "{'StartAngle': '30', 'SweepAngle': '100'}", false);
        row("sector", "ZQMath2DNewArc", "{'StartAngle': '-30', 'SweepAngle': '100', 'IsFill': '1'}", true);
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                if (type.startsWith("ZQMath3D"_s)) {
                    row(type.toUtf8(), type, "{}", true);
                }
            }
        }
    }

    void drawsInPlace()
    {
        QFETCH(QString, type);
        QFETCH(QJsonObject, keys);
        QFETCH(bool, isFilled);
        QJsonObject item{{"Type", type},
                         {"BoundingBox", "20,20,80,80"},
                         {"LineColor", "255,0,0,255"},
                         {"ArtVectObj_FrameColor", "255,0,0,255"},
                         {"ArtObj_Color", "255,255,0,0"},
                         {"ArtVectObj_RegionColor", "255,255,0,0"}};
        for (auto it = keys.constBegin(); it != keys.constEnd(); ++it) {
            item.insert(it.key(), it.value());
        }
        const QImage plain = picture(item);
        QCOMPARE(plain.size(), QSize(100, 100));
        const auto isInk = [](QRgb color) { return color != 0xffffffff; };
        QCOMPARE(count(plain, plain.rect(), isInk), count(plain, QRect(18, 18, 64, 64), isInk));
        QVERIFY(count(plain, plain.rect(), [](QRgb color) { return color == 0xff0000ff; }) > 20);
        QCOMPARE(count(plain, plain.rect(), [](QRgb color) { return color == 0xffff0000; }) > 20, isFilled);

        // By an angle or a matrix, a quarter turn of the item is one of the picture.
        const QImage expected = plain.transformed(QTransform().rotate(90));
        item.insert("Angle", "1.5707963");
        const QImage turned = picture(item);
        item.remove("Angle");
        item.insert("Matrix", "0,2,-2,0,100,0");
        item.insert("BoundingBox", "10,10,40,40");
        const QImage placed = picture(item);
        for (const QImage &image : {turned, placed}) {
            int differing = 0;
            for (int i = 0; i < 100 * 100; ++i) {
                const QRgb a = image.pixel(i % 100, i / 100);
                const QRgb b = expected.pixel(i % 100, i / 100);
                differing += qAbs(qGray(a) - qGray(b)) > 60 ? 1 : 0;
            }
            QVERIFY2(differing < 40, qPrintable(QString::number(differing)));
        }
    }

    void drawsNothingOutOfNothing_data()
    {
        const Table<QJsonObject, bool> row("item", "isDrawn");
        row("no path", "{'Type': 'ZQVectorJuxing', 'BoundingBox': '0,0,9,9'}", false);
        row("one point", "{'Type': 'ZQVectorJuxing', 'VectorControl0': [1,2,3,4,5,6,7]}", false);
        row("no box", "{'Type': 'ZQMath3DCube'}", false);
        row("a box without an area", "{'Type': 'ZQMathToolCoordinatePolar', 'BoundingBox': '5,5,5,9'}", false);
        row("a matrix without an area",
            "{'Type': 'ZQMathToolCoordinateParam', 'BoundingBox': '0,0,9,9', 'Matrix': '0,0,0,0,1,1'}", false);
        row("numbers beyond all bounds",
            "{'Type': 'ZQVectorJuxing', 'VectorControl0': [1e308,0,0,0,0,0,-1e308,1e308,0,0,0,0], 'Matrix': "
            "'1e308,1e308,-1e308,1e308,1e308,0', 'ArtObj_Width': '1e300', 'BoundingBox': '-1e308,0,1e308,9'}",
            true);
    }

    void drawsNothingOutOfNothing()
    {
        QFETCH(QJsonObject, item);
        const QString type = item.value("Type").toString();
        const SvgDrawing drawing = type.contains("Vector"_s) ? vectorDrawing(type) : mathDrawing(type);
        IwbMedia media;
        PlainSvg svg(QSizeF(10, 10), media);
        IwbPageWriter pages({});
        Canvas canvas(svg, pages, media);
        QTEST(drawing(canvas, ItemView(item)), "isDrawn");
        QVERIFY(!svg.text().contains("nan") && !svg.text().contains("inf"));
    }
};

QTEST_GUILESS_MAIN(TestVectorDrawings)
#include "tst_vectordrawings.moc"
