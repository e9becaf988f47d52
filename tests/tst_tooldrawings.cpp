// SPDX-License-Identifier: MIT
#include "canvas/picturestore.h"
#include "drawings/activitydrawing.h"
#include "drawings/coverdrawing.h"
#include "drawings/exercisedrawing.h"
#include "drawings/gamedrawing.h"
#include "drawings/instrumentdrawing.h"
#include "hostfixture.h"
#include "iwb/iwbmedia.h"

#include <QDomDocument>
#include <QtTest>

/*!
 * Draws tools and games for the classroom on a page of 1000 by 1000 pixels.
 */
class TestToolDrawings : public QObject
{
    Q_OBJECT

private:
    // The svg, or nothing if draw says that there is none.
    static QDomElement svgOf(const std::function<bool(Canvas &)> &draw)
    {
        IwbMedia media;
        media.add("ClassActivity/x.png", EXAMPLES_DIR "/tools/images/cloth.png");
        PictureStore pictures;
        PlainSvg svg(QSizeF(1000, 1000), media, pictures);
        IwbPageWriter pages({});
        Canvas canvas(svg, pages, media);
        QDomDocument document;
        if (draw(canvas)) {
            document = svg.finished();
        }
        return document.documentElement();
    }

    static QDomElement drawn(const QJsonObject &item)
    {
        const QString type = item.value("Type").toString();
        for (const auto family : {&instrumentDrawing, &coverDrawing, &exerciseDrawing, &activityDrawing}) {
            if (const SvgDrawing drawing = family(type)) {
                return svgOf([&](Canvas &canvas) { return drawing(canvas, ItemView(item)); });
            }
        }
        return {};
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

    void drawsCovers_data()
    {
        const Table<QJsonObject, QRect, QString> row("item", "covered", "darkness");
        const auto curtain = [](const char *keys) { return json("{'Type':'General:curtain'"_s + keys + '}'); };
        row("curtain", curtain(",'BoundingBox':'100,100,300,160','rect':'9,9,20,20'"), {100, 100, 200, 60}, "1");
        row("drawn a part", curtain(",'BoundingBox':'100,100,300,160','rect':'0,0,200,20'"), {100, 100, 200, 20}, "1");
        row("more than its box", curtain(",'BoundingBox':'100,100,300,160','rect':'0,0,200,90'"), {100, 100, 200, 60},
            "1");
        row("curtain without a box", curtain(",'rect':'0,0,200,90'"), {0, 0, 200, 90}, "1");
        const auto spot = [](const char *keys) {
            return json("{'Type':'General:spotlight','SpotRadius':'10','SpotCenter':'50,25'"_s + keys + '}');
        };
        row("spotlight", spot(",'BoundingBox':'0,0,400,300'"), {0, 0, 400, 300}, "0.75");
        row("on its canvas", spot(",'BoundingBox':'100,0,300,100','CanvasSize':'100,50','BackgroundAlpha':'51'"),
            {100, 0, 200, 100}, "0.20");
        row("canvas without a box", spot(",'CanvasSize':'100,50','BackgroundAlpha':'0.4'"), {0, 0, 100, 50}, "0.40");
        row("all light", spot(",'BoundingBox':'0,0,40,30','SpotRadius':'1e30'"), {}, "0.75");
    }

    // Where the middle of a spotlight's box would be dark, nothing is.
    void drawsCovers()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QRect, covered);
        const QDomElement svg = drawn(item);
        QCOMPARE(extent(svg), covered);
        const QDomElement path = svg.elementsByTagName("path").at(0).toElement();
        QTEST(path.attribute("fill-opacity", "1"), "darkness");
        const bool isSpotlight = item.contains("SpotRadius");
        QCOMPARE(path.attribute("d").contains('C'), isSpotlight && !covered.isEmpty());
        QCOMPARE(path.attribute("fill"), isSpotlight ? "#000000"_s : "#8c1c2b"_s);
    }

    void laysOutLists_data()
    {
        const Table<QString, QJsonValue, QString, int> row("type", "list", "words", "frames");
        row("fronts of cards", "General:everCard",
            R"([{"id":7,"front":"7 x 8","back":"56"},{"front":"a < b","color":"#ff0000"},{"kind":"none"}])",
            "T|7 x 8|a < b", 4);
        row("cards in a plain text", "General:everCard", "one; two;three, and more", "T|one|two|three, and more", 4);
        row("kinds and what belongs to them", "General:fiaction",
            R"([{"name":"even","items":[2,"4"]},["odd","1",["3"]],{"title":"none"}])", "T|even|2|4|odd|1|3|none", 8);
        row("kinds by name", "General:fiaction", QJsonObject{{"odd", QJsonArray{"1", "3"}}, {"version", 2}},
            "T|odd|1|3", 4);
        row("pairs", "General:connection", R"([["cat","kitten"],{"left":"dog","right":"puppy"},["owl"]])",
            "T|cat|kitten|dog|puppy|owl", 6);
        row("columns", "General:connection", QJsonArray{QJsonArray{"1", "2", "3"}, QJsonArray{"I", "II", "III"}},
            "T|1|I|2|II|3|III", 7);
        row("no list", "General:everCard", "{\"front\":", "T|{\"front\":", 2);
        row("deep", "General:fiaction", QString(QString("[").repeated(500) + QString("]").repeated(500)), "T", 2);
    }

    void laysOutLists()
    {
        QFETCH(QString, type);
        QFETCH(QJsonValue, list);
        QJsonObject item{{"Type", type}, {"Title", "T"}, {"BoundingBox", "100,100,900,700"}};
        for (const char *key : {"CardList", "FicationList", "ConnectionList"}) {
            item.insert(key, list);
        }
        const QDomElement svg = drawn(item);
        QTEST(words(svg).join('|'), "words");
        int frames = 0;
        const QDomNodeList paths = svg.elementsByTagName("path");
        for (int i = 0; i < paths.size(); ++i) {
            frames += paths.at(i).toElement().attribute("stroke") == "none"_s ? 0 : 1;
        }
        QTEST(frames, "frames");
    }

    void drawsItemsOfGames_data()
    {
        const Table<QJsonObject, QString, QString> row("item", "words", "look");
        const QString look = "'defaultTextSize':'24','defaultTextColor':'#80ff0000','defaultTextFamily':'Serif'"_s;
        row("piece", json("{'Type':'ZQActiveMaterialItem','TextHtml':'<p>Otter</p>'," + look + '}'), "Otter",
            "24.00 #ff0000 0.50 Serif middle");
        row("gap", json("{'Type':'ZQActiveContainerGapFillingItem','TextHtml':'Water','GapFillingContent':'A _'}"_s),
            "A _", "28.00 #000000  Arial middle");
        row("front of a card",
            json("{'Type':'ZQActivityFlipItem','TextHtml':'back','frontContent':'7 < 11','defaultFrontFontFormat':"
                 "'Serif,15,-1'}"_s),
            "7 < 11", "20.00 #000000  Serif middle");
        row("player", json("{'Type':'ZQActiveMaterialStudent7','TextHtml':'Ada'}"_s), "Ada",
            "28.00 #000000  Arial middle");
    }

    void drawsItemsOfGames()
    {
        QFETCH(QJsonObject, item);
        item.insert("BoundingBox", "100,100,400,300");
        const QDomElement svg = drawn(item);
        QTEST(words(svg).join('|'), "words");
        const QDomElement text = svg.elementsByTagName("text").at(0).toElement();
        QStringList look;
        for (const char *name : {"font-size", "fill", "fill-opacity", "font-family", "text-anchor"}) {
            look.append(text.attribute(name));
        }
        QTEST(look.join(' '), "look");
    }

    void laysOutGames_data()
    {
        const Table<QString, QByteArray, QString> row("type", "entries", "words");
        row("Judgment", "Judgment", R"([{"question":"7 is prime","answer":"true"},{"question":"Q"}])",
            "T|7 is prime|Q");
        row("comparison", "NumberComparison", R"([[{"condition":"3 + 4"},{"symbol":"<"},{"condition":"8"}]])",
            "T|3 + 4|8");
        row("texts to read", "PronunciationTest", R"(["one","two"])", "T|one|two");
        row("baskets", "Grouping", R"([{"container":{"id":"c","txt":"Water"},"materials":[{"id":"m","txt":"Whale"},
            {"txt":"Otter"}],"answers":[{"c":["m"]}]}])",
            "T|Water|Whale|Otter|Teapot");
    }

    // Where the items of the slide leave the most room.
    void laysOutGames()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, entries);
        const QJsonObject others = json("{'container':{'txt':''},'materials':[{'txt':'Teapot'}]}");
        const bool isSorted = type == "Grouping"_s;
        const QJsonObject slide{
            {"activity",
             QJsonObject{{"type", type},
                         {"title", "T"},
                         {"matchs", QJsonDocument::fromJson(entries).array()},
                         {"unmatchs", isSorted ? QJsonArray{others} : QJsonArray()},
                         {"templet", json("{'index':'1','container':{'font_color':'#ff0000ff','font_size':'30'}}")}}}};
        const QDomElement svg = svgOf([&](Canvas &canvas) {
            drawGameRecord(canvas, slide, QRectF(0, 600, 1000, 400));
            return true;
        });
        QTEST(words(svg).join('|'), "words");
        QVERIFY(QRect(40, 40, 920, 520).contains(extent(svg)));
        const QDomElement text = svg.elementsByTagName("text").at(1).toElement();
        QCOMPARE(text.attribute("fill") + ' ' + text.attribute("font-size"), "#0000ff 30.00"_s);
    }

    // By the path that the package has for it, not by its bare name.
    void drawsBackgroundsOfGames_data()
    {
        const Table<QString, QString, bool> row("index", "picture", "isDrawn");
        row("in the application's data", "3", "/ClassActivity/x.png", true);
        row("as editors name it", "3", "editor/ActivityInfo/x.png", true);
        row("in the lesson", "1", "ClassActivity/x.png", true);
        row("another of the application", "2", "Match/x.png", false);
    }

    void drawsBackgroundsOfGames()
    {
        QFETCH(QString, index);
        QFETCH(QString, picture);
        const QJsonObject slide{
            {"activity", QJsonObject{{"templet", QJsonObject{{"index", index}, {"background", picture}}}}}};
        const QDomElement svg = svgOf([&](Canvas &canvas) {
            drawGameBackground(canvas, slide);
            return true;
        });
        QTEST(!svg.elementsByTagName("image").isEmpty(), "isDrawn");
    }

    void drawsNothingOutOfNothing_data()
    {
        const Table<QJsonObject> row("item");
        row("nowhere", "{'Type':'Math:ruler','Length':'300'}");
        row("at half a place", "{'Type':'Math:protractor','Translate_X':'300'}");
        row("without an area", "{'Type':'Math:compasses','BoundingBox':'0,0,9,9','Matrix':'0,0,0,0,1,1'}");
        row("no curtain", "{'Type':'General:curtain','rect':'5,5,9,9'}");
        row("no hole", "{'Type':'General:spotlight','BoundingBox':'0,0,9,9','SpotCenter':'1,1'}");
        row("no list and no title", "{'Type':'General:everCard','BoundingBox':'0,0,9,9','CardList':'{}'}");
        row("a score that says nothing", "{'Type':'ZQActiveMaterialMarkPKItem','BoundingBox':'0,0,9,9'}");
        row("a game nobody knows", "{'Type':'ZQActiveBoard','BoundingBox':'0,0,9,9','TextHtml':'a'}");
        row("another type", "{'Type':'Math:abacus','BoundingBox':'0,0,9,9'}");
    }

    void drawsNothingOutOfNothing()
    {
        QFETCH(QJsonObject, item);
        QVERIFY(drawn(item).isNull());
    }
};

QTEST_MAIN(TestToolDrawings)
#include "tst_tooldrawings.moc"
