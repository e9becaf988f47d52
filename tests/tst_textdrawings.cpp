// SPDX-License-Identifier: MIT
#include "canvas/canvas.h"
#include "canvas/labellines.h"
#include "canvas/picturestore.h"
#include "drawings/languagedrawing.h"
#include "hostfixture.h"
#include "iwb/iwbmedia.h"

#include <QDomDocument>
#include <QFontMetricsF>
#include <QtTest>

#include <ctime>

/*!
 * Draws texts on a page of 1280 by 720 pixels.
 */
class TestTextDrawings : public QObject
{
    Q_OBJECT

private:
    using Draw = std::function<void(Canvas &)>;

    static QByteArray drawnSvg(const Draw &draw)
    {
        IwbMedia media;
        PictureStore pictures;
        PlainSvg svg(QSizeF(1280, 720), media, pictures);
        IwbPageWriter pages({});
        Canvas canvas(svg, pages, media);
        draw(canvas);
        return pictures.text(svg.finished().documentElement());
    }

    static QDomElement parsed(const QByteArray &svg)
    {
        QDomDocument document;
        document.setContent(svg, false);
        return document.documentElement();
    }

    static QDomElement drawn(const Draw &draw) { return parsed(drawnSvg(draw)); }

    static double number(const QDomElement &element, const char *name) { return element.attribute(name).toDouble(); }

    static QVector<QDomElement> elements(const QDomElement &svg, const char *tag)
    {
        QVector<QDomElement> elements;
        const QDomNodeList found = svg.elementsByTagName(tag);
        for (int i = 0; i < found.size(); ++i) {
            elements.append(found.at(i).toElement());
        }
        return elements;
    }

    static QStringList words(const QDomElement &svg)
    {
        QStringList words;
        for (const QDomElement &text : elements(svg, "text")) {
            words.append(text.text());
        }
        return words;
    }

private slots:
    void writesTexts_data()
    {
        const Table<QString, QString, QByteArray> row("html", "texts", "part");
        const QString para = "<p style='margin:0px' align='%1'>%2</p>";
        row("plain", "1 < 2", "1 < 2", "font-family:Arial, sans-serif");
        row("spans of one line", "a <b>b</b>, <i>c</i>", "a b, c",
            "<tspan font-weight=\"bold\">b</tspan>, <tspan font");
        row("colour that shines through", "<span style='color:rgba(255,0,0,128)'>a</span>", "a",
            "fill=\"#ff0000\" fill-opacity=\"0.50\"");
        row("a font that isn't here", "<span style='font-family:No Such Font'>a</span>", "a",
            "font-family=\"sans-serif\" font-size=\"28.00\" style=\"font-family:No Such Font, sans-serif\"");
        row("a name that would end its style", "<span style=\"font-family:'1;fill:url(x)'\">a</span>", "a",
            "font-family:'1fillurlx', sans-serif\"");
        row("points", "<span style='font-size:21pt'>a</span>", "a", "font-size=\"28.00\"");
        row("middle", para.arg("center", "a"), "a", "text-anchor=\"middle\" x=\"200.00\"");
        row("right", para.arg("right", "a"), "a", "text-anchor=\"end\" x=\"400.00\"");
        row("background", "<span style='background-color:#ff8800'>a</span>", "a", "<rect fill=\"#ff8800\"");
        row("list", "<ol><li>a</li><li>b</li></ol><ul><li>c</li></ul>", "1.|a|2.|b|c", "<path ");
        row("table", "<table><tr><td bgcolor='#00ff00'>a</td><td>b</td></tr></table>", "a|b", "fill=\"#00ff00\"");
        row("rule", "a<hr/>b", "a|b", "<line ");
        row("capitals", "<span style='text-transform:uppercase'>ab</span>", "AB", ">AB<");
        row("right to left", QString::fromUtf8("<p dir='rtl'>\u05d0\u05d1</p>"), QString::fromUtf8("\u05d0\u05d1"),
            "text-anchor=\"middle\"");
        row("blanks between letters from the right", QString::fromUtf8("العربية עברית"),
            QString::fromUtf8("עברית|العربية"), "text-anchor=\"middle\"");
        row("picture that isn't there", "a<img src='/dev/zero'/>b", "a|b", ">b<");
    }

    void writesTexts()
    {
        QFETCH(QString, html);
        QFETCH(QString, texts);
        QFETCH(QByteArray, part);
        const QByteArray svg = drawnSvg([&](Canvas &canvas) { canvas.addText(html, {0, 0, 400, 300}); });
        QCOMPARE(words(parsed(svg)).join('|'), texts);
        QVERIFY2(svg.contains(part), svg);
        QVERIFY(!svg.contains("textLength"));
    }

    void raisesAndLowers()
    {
        const QDomElement svg = drawn([](Canvas &canvas) {
            canvas.addText("x<sup>2</sup>y<sub>3</sub><u>u</u> <s>t</s>", {0, 0, 400, 300});
        });
        const QVector<QDomElement> texts = elements(svg, "text");
        QCOMPARE(words(svg).join('|'), "x|2|y|3|u t");
        const double baseline = number(texts.at(0), "y");
        QVERIFY(number(texts.at(1), "y") < baseline - 5 && number(texts.at(3), "y") > baseline + 2);
        QVERIFY(number(texts.at(1), "font-size") < 20 && number(texts.at(2), "font-size") == 28);
        for (int i = 1; i < texts.size(); ++i) {
            QVERIFY(number(texts.at(i), "x") > number(texts.at(i - 1), "x") + 5);
        }
        const QVector<QDomElement> lines = elements(svg, "line");
        QCOMPARE(lines.size(), 2);
        QVERIFY(number(lines.at(0), "y1") > baseline && number(lines.at(1), "y1") < baseline - 4);
        QVERIFY(qAbs(number(lines.at(0), "x1") - number(texts.at(4), "x")) < 1);
    }

    // Words of a full line reach from one side to the other, those of the last line don't.
    void fillsLines()
    {
        const QDomElement svg = drawn([](Canvas &canvas) {
            canvas.addText("<p align='justify'>" + QString("lines of words ").repeated(9) + "</p>", {0, 0, 400, 300});
        });
        QMap<double, QStringList> lines;
        double right = 0;
        for (const QDomElement &text : elements(svg, "text")) {
            lines[number(text, "y")].append(text.text().trimmed());
            right = qMax(right, number(text, "x"));
        }
        QVERIFY(lines.size() > 2 && right > 300 && right < 400);
        QVERIFY(lines.first().size() > 3);
        QCOMPARE(lines.last().size(), 1);
    }

    void fitsOrTells()
    {
        const QRectF small(0, 0, 90, 20);
        TextPlace place;
        place.isFitted = true;
        const QDomElement svg = drawn([&](Canvas &canvas) {
            QVERIFY(canvas.addText("Extraordinary", small, QTransform::fromTranslate(100, 100), place));
            QVERIFY(!canvas.addText("Extraordinary things happen", small, {}, place));
            QVERIFY(canvas.addText("", small, {}, place));
        });
        QCOMPARE(words(svg), QStringList("Extraordinary"));
        const QString matrix = elements(svg, "g").first().attribute("transform");
        const double scale = matrix.mid(7).section(' ', 0, 0).toDouble();
        QVERIFY2(scale > 0.4 && scale < 0.6, qPrintable(matrix));
    }

    // Letters stand in the middle of their squares, and on the third of four lines.
    void drawsLanguage_data()
    {
        const Table<QJsonObject, QString, int, QPointF> row("item", "texts", "lines", "last");
        row("character", "{'Type':'ZQChineseCharacterItem','BoundingBox':'0,0,100,100','current_text':'水'}", "水", 2,
            {50, 80.4});
        row("character with pinyin",
            "{'Type':'ZQChineseCharacterItem','BoundingBox':'0,0,200,158','current_text':'水','current_pinyin':'shuǐ'}",
            "shuǐ|水", 3, {100, 138.4});
        row("squares that fit", "{'Type':'ZQWordLatticeItem','BoundingBox':'0,0,90,60','Text':'山 高水长a'}",
            "山|高|水|长|a", 10, {45, 54.12});
        row("signs above letters",
            "{'Type':'ZQLiteratureHanzibihua','BoundingBox':'0,0,100,100','ArtObj_HZ':'u\u030c'}", "u\u030c", 2,
            {50, 80.4});
        row("turned",
            "{'Type':'ZQLiteratureHanzibihua','BoundingBox':'0,0,100,100','ChineseWord':'水','Angle':1.570796}", "水",
            2, {19.6, 50});
        row("pinyin in rows", "{'Type':'ZQChinesePhoneticItem','BoundingBox':'0,0,100,110','TextPhonetic':'gāo shān'}",
            "gāo|shān", 2, {50, 93.33});
        row("pinyin on its paper",
            "{'Type':'ZQChinesePhoneticItem','BoundingBox':'0,0,200,60','TextPhonetic':'a','Fill_Color':'255,0,0,9'}",
            "a", 2, {100, 40});
        row("a syllable for each character",
            "{'Type':'ZQLiteraturePinyin','BoundingBox':'0,0,200,158','ArtObj_Hanzi':'学习','ArtObj_Pinyin':'xué xí'}",
            "学|xué|习|xí", 5, {150, 33.33});
        row("without squares and characters",
            "{'Type':'ZQLiteraturePinyin','BoundingBox':'0,0,200,158','ChineseWord':'学习','ArtObj_Pinyin':'xuéxí',"
            "'DispGrid':'0','ArtObj_DispHanzi':'0'}",
            "xuéxí", 1, {100, 33.33});
        row("word", "{'Type':'ZQLiteratureYinbiao','BoundingBox':'0,0,200,60','EnglishWord':'ox'}", "ox", 1, {100, 40});
        row("hidden word",
            "{'Type':'ZQLiteratureYinbiao','BoundingBox':'0,0,200,60','EnglishWord':'ox','WordHide':'1'}", "", 1, {});
        row("nowhere", "{'Type':'ZQLiteratureYinbiao','EnglishWord':'ox'}", "", 0, {});
    }

    void drawsLanguage()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QString, texts);
        QFETCH(int, lines);
        QFETCH(QPointF, last);
        const ItemView view(item);
        const QDomElement svg =
            drawn([&](Canvas &canvas) { QCOMPARE(languageDrawing(view.type())(canvas, view), lines > 0); });
        QCOMPARE(words(svg).join('|'), texts);
        QCOMPARE(elements(svg, "path").size(), lines);
        if (!texts.isEmpty()) {
            const QStringList matrix = elements(svg, "g").constLast().attribute("transform").mid(7).split(' ');
            const QPointF middle(matrix.at(4).toDouble(), matrix.at(5).chopped(1).toDouble());
            QVERIFY2((middle - last).manhattanLength() < 0.1, qPrintable(matrix.join(' ')));
            QVERIFY(qAbs(number(elements(svg, "text").constLast(), "x")) < 0.1);
        }
    }

    // However long, deep and large a text says it is.
    void comesToAnEnd_data()
    {
        const Table<QString> row("html");
        row("lengths",
            "<table cellpadding='99999999' width='1000000000'><tr><td>y</td></tr></table>"
            "<img width='99999999999' height='99999999999' src='a'/><p style='line-height:1e9%'>x</p>");
        row("margins", QString("<p style='margin-top:9999px'>x</p>").repeated(8000));
        row("letters", "<p style='font-size:1e9pt'>" + QString("x").repeated(100000) + "</p>");
        row("tables in tables", QString("<table><tr><td>").repeated(9000) + 'x');
        row("lines", QString("x<br>").repeated(100000));
        QString fonts;
        for (int i = 0; i < 2000; ++i) {
            fonts += "<span style='font-family:Font %1'>x</span>"_s.arg(i);
        }
        row("fonts", fonts);
    }

    void comesToAnEnd()
    {
        QFETCH(QString, html);
        const std::clock_t start = std::clock();
        TextPlace place;
        for (const bool isFitted : {false, true}) { // which lays it out again and again
            place.isFitted = isFitted;
            const QByteArray svg = drawnSvg([&](Canvas &canvas) { canvas.addText(html, {0, 0, 400, 300}, {}, place); });
            QVERIFY((svg.contains(">x") || isFitted) && !svg.contains("nan"));
        }
        QVERIFY(std::clock() - start < 20 * slowness * CLOCKS_PER_SEC);
    }

    // Letters that all look alike stand where a document would have them, which a tag asks for.
    void laysPlainTextsOutAsDocumentsDo()
    {
        for (const QString &text : {"Even or odd?"_s, "a  b "_s, "Extraordinary things that happen"_s,
                                    QString::fromUtf8("水 fährt… “so”"), QString::fromUtf8("ש ab")}) {
            for (const QSizeF &room : {QSizeF(400, 90), QSizeF(70, 200), QSizeF(12, 300)}) {
                for (const char *family : {"Arial", "serif", "Sans Serif"}) {
                    for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignJustify}) {
                        TextPlace place;
                        place.isFitted = alignment == Qt::AlignHCenter;
                        place.look.family = family;
                        place.look.pixels = room.width() < 100 ? 13.3 : 42;
                        place.look.alignment = alignment;
                        const auto svgOf = [&](const QString &content) {
                            return drawnSvg([&](Canvas &canvas) {
                                canvas.addText(content, {{10, 10}, room}, {}, place);
                            });
                        };
                        QCOMPARE(svgOf(text), svgOf("<span style='white-space:pre-wrap'>" + text + "</span>"));
                    }
                }
            }
        }
    }

    // Words that are filled into markup that is known stand as if they were read with it, which a reference asks for.
    void fillsMarkupAsDocumentsDo()
    {
        const QString page = "<!DOCTYPE html><html><head><title>A</title><style>p, b {margin:0; white-space:pre-wrap}"
                             "</style></head>\n<body bgcolor='#eeeeff' style='font-size:9pt'>%1</body></html>"_s;
        const QString words[][2] = {{"water", "ice"},   {"fire engine", "\u00a0"},
                                    {" 1 > 0", "ש ab"}, {"水\u3000", " a  b\t"},
                                    {"", ""},           {"\ue000", "<"}};
        for (const QString &html : {"<p align='center'>A%1 <b>%2</b> x<sup>2</sup></p>"_s,
                                    " <div>A%1<br/>%2 </div>\n<p style='line-height:150%'>%2<hr/>%1</p>"_s,
                                    "<pre>A%1\n <i title='>'>%2</i></pre>"_s, page.arg("<p>A%1<b>%2</b></p><p>%1 </p>"),
                                    "<span style='font-family:KaiTi;font-size:99999px'>A%1</span>%2<p><li>%1<img>"_s,
                                    "<p dir='rtl'>%1 <u style='background-color:red'>A%2</u><!-- %1 -->"_s}) {
            for (const auto &pair : words) {
                const QString text = QString(html).replace("%1", pair[0]).replace("%2", pair[1]);
                const auto svgOf = [](const QString &content) {
                    return drawnSvg([&](Canvas &canvas) { canvas.addText(content, {10, 10, 200, 90}); });
                };
                QCOMPARE(svgOf(text), svgOf(QString(text).replace(">A", ">&#65;")));
            }
        }
    }

    // No smaller than can be read, cut where they don't fit, beside what is too small, and never one over the other.
    void placesLabels()
    {
        const QVector<QRectF> boxes{{20, 20, 40, 24},   {20, 20, 300, 60},  {20, 20, 300, 60},  {400, 20, 4, 4},
                                    {404, 20, 4, 4},    {600, 20, 20, 300}, {700, 20, 100, 40}, {800, 20, 100, 12},
                                    {1270, 20, 10, 10}, {1000, 400, 0, 200}};
        const QDomElement svg = drawn([&](Canvas &canvas) {
            for (const QRectF &box : boxes) {
                canvas.svg().addLabel("Extraordinary things that happen on Thursdays", box, 30, Qt::black);
            }
            for (int i = 0; i < 99; ++i) {
                canvas.svg().addLabel("Extraordinary", {900, 500, 90, 40}, 30, Qt::black);
            }
        });
        const QVector<QDomElement> groups = elements(svg, "g");
        QVERIFY(groups.size() > boxes.size() && groups.size() < 40);
        QVector<QRectF> taken;
        for (const QDomElement &group : groups) {
            const double size = number(group, "font-size");
            QVERIFY(size >= 9 && size <= 30);
            QFont font("Arial");
            font.setPixelSize(100);
            QRectF extent;
            for (const QDomElement &line : elements(group, "text")) {
                const double width = QFontMetricsF(font).horizontalAdvance(line.text()) * size / 100;
                extent |= QRectF(number(line, "x") - width / 2, number(line, "y") - size * 0.8, width, size);
            }
            if (group.hasAttribute("transform")) {
                const QPointF center = extent.center();
                extent = extent.transposed();
                extent.moveCenter(center);
            }
            QVERIFY(QRectF(0, 0, 1280, 720).contains(extent));
            for (const QRectF &other : qAsConst(taken)) {
                QVERIFY(!other.intersects(extent));
            }
            taken.append(extent);
        }
        QVERIFY(words(svg).filter(QChar(0x2026)).size() >= 2);
        QVERIFY(linesThatFit("Thursdays", {1, 1}, 30, 9).lines.isEmpty());
    }
};

QTEST_MAIN(TestTextDrawings)
#include "tst_textdrawings.moc"
