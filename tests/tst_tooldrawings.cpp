#include "hostfixture.h"
#include "iwb/iwbmedia.h"
#include "render/instrumentdrawing.h"

#include <QDomDocument>
#include <QtTest>

/*!
 * Draws tools for the classroom on a page of 1000 by 1000 pixels.
 */
class TestToolDrawings : public QObject
{
    Q_OBJECT

private:
    static QDomElement drawn(const QJsonObject &item)
    {
        const IwbMedia media;
        PlainSvg svg(QSizeF(1000, 1000), media);
        IwbPageWriter pages({});
        Canvas canvas(svg, pages, {});
        const SvgDrawing drawing = instrumentDrawing(item.value("Type").toString());
        QDomDocument document;
        if (drawing && drawing(canvas, ItemView(item))) {
            document.setContent(svg.text());
        }
        return document.documentElement();
    }

    // Around all paths.
    static QRect extent(const QDomElement &svg)
    {
        static const QRegularExpression point("(-?[\\d.]+) (-?[\\d.]+)");
        QPolygonF points;
        const QDomNodeList paths = svg.elementsByTagName("path");
        for (int i = 0; i < paths.size(); ++i) {
            auto match = point.globalMatch(paths.at(i).toElement().attribute("d"));
            while (match.hasNext()) {
                const QRegularExpressionMatch numbers = match.next();
                points.append(QPointF(numbers.captured(1).toDouble(), numbers.captured(2).toDouble()));
            }
        }
        return points.boundingRect().toRect();
    }

    static QStringList words(const QDomElement &svg)
    {
        QStringList words;
        const QDomNodeList texts = svg.elementsByTagName("text");
        for (int i = 0; i < texts.size(); ++i) {
            words.append(texts.at(i).toElement().text());
        }
        return words;
    }

private slots:
    // A centimetre has 37.8 pixels.
    void drawsInstruments_data()
    {
        const Table<QJsonObject, QRect, QString, int, QString> row("item", "extent", "numbers", "ticks", "turn");
        const auto ruler = [](const char *keys) {
            return json(QByteArray("{'Type':'Math:ruler','BoundingBox':'100,100,300,160'") + keys + '}');
        };
        QString hundreds = "0"_s;
        for (int i = 100; i <= 2100; i += 100) {
            hundreds += " %1"_s.arg(i);
        }
        row("ruler", ruler(""), {100, 100, 200, 60}, "0 1 2 3 4", 45, "");
        row("as long as told", ruler(",'Length':'120'"), {100, 100, 120, 60}, "0 1 2", 26, "");
        row("longer than its box", ruler(",'Length':900"), {100, 100, 200, 60}, "0 1 2 3 4", 45, "");
        row("without a box", "{'Type':'Math:ruler','Length':'120','Translate_X':'5','Translate_Y':9}", {5, 9, 120, 90},
            "0 1 2", 26, "");
        row("turned", ruler(",'RotateAngle':'60','Angle':'0.523599'"), {170, 30, 60, 200}, "0 1 2 3 4", 45, "90.00");
        row("flipped", ruler(",'VerticalFlip':'1'"), {100, 100, 200, 60}, "0 1 2 3 4", 45, "");
        row("large", ruler(",'Matrix':'0,2,-2,0,400,0'"), {80, 200, 120, 400}, "0 1 2 3 4 5 6 7 8 9", 98, "90.00");
        row("too long for millimetres", "{'Type':'Math:ruler','BoundingBox':'0,0,900,9','Matrix':'90,0,0,90,0,0'}",
            {0, 0, 81000, 810}, hundreds, 215, "");
        row("too small for numbers", "{'Type':'Math:ruler','BoundingBox':'0,0,60,12'}", {0, 0, 60, 12}, "", 13, "");
        row("set square", "{'Type':'Math:triangle3060','BoundingBox':'0,0,346.41,200'}", {0, 0, 346, 200},
            "0 1 2 3 4 5 6 0 1 2 3", 101, "");
        row("set square, upright", "{'Type':'Math:triangle3060','BoundingBox':'0,0,200,346.41'}", {0, 0, 200, 346},
            "0 1 2 3 0 1 2 3 4 5 6", 101, "");
        row("in a longer box", "{'Type':'Math:triangle4545','BoundingBox':'0,0,400,200'}", {100, 0, 200, 200},
            "0 1 2 3 0 1 2 3", 66, "");
        row("protractor", "{'Type':'Math:protractor','BoundingBox':'0,0,400,212'}", {0, 0, 400, 212},
            "0 10 20 30 40 50 60 70 80 90 100 110 120 130 140 150 160 170 180 0 20 40 60 80 100 120 140 160 180", 181,
            "90.00");
        row("compasses", "{'Type':'Math:compasses','BoundingBox':'0,0,200,300'}", {8, 0, 184, 300}, "", 0, "");
    }

    void drawsInstruments()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QRect, extent);
        QFETCH(QString, turn);
        QFETCH(QString, numbers);
        QFETCH(int, ticks);
        const QDomElement svg = drawn(item);
        QCOMPARE(this->extent(svg), extent);
        QCOMPARE(words(svg).join(' '), numbers);
        int found = 0;
        const QDomNodeList paths = svg.elementsByTagName("path");
        for (int i = 0; i < paths.size(); ++i) {
            const QString path = paths.at(i).toElement().attribute("d");
            const bool isTicks = !path.contains('Z') && !path.contains('C') && path.count('L') > 2;
            found += isTicks ? path.count('L') : 0;
        }
        const int withoutNumbers = item.value("Type") == "Math:protractor"_s ? 19 : 0;
        QCOMPARE(found - withoutNumbers, ticks);
        const QString firstTurn = svg.elementsByTagName("text").at(0).toElement().attribute("transform");
        QCOMPARE(firstTurn.section(' ', 0, 0).mid(7), turn);
    }

    void drawsNothingOutOfNothing_data()
    {
        const Table<QJsonObject> row("item");
        row("nowhere", "{'Type':'Math:ruler','Length':'300'}");
        row("at half a place", "{'Type':'Math:protractor','Translate_X':'300'}");
        row("without an area", "{'Type':'Math:compasses','BoundingBox':'0,0,9,9','Matrix':'0,0,0,0,1,1'}");
        row("another type", "{'Type':'Math:abacus','BoundingBox':'0,0,9,9'}");
    }

    void drawsNothingOutOfNothing()
    {
        QFETCH(QJsonObject, item);
        QVERIFY(drawn(item).isNull());
    }
};

QTEST_GUILESS_MAIN(TestToolDrawings)
#include "tst_tooldrawings.moc"
