// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "iwb/elementmark.h"
#include "testtable.h"

#include <QDir>
#include <QDomDocument>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>

/*!
 * The lesson itself in IWB packages, and what other programs do to the elements that stand for it.
 */
class TestIwbNative : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // Through the command, which knows how to paint items.
    QString convert(const QString &from, const QString &to)
    {
        const QStringList format = to.contains('.') ? QStringList() : QStringList{"--to", "iwb"};
        const auto outcome = runCommand(QStringList{"convert", from, to, "--json"} + format, m_folder.path());
        if (outcome.exitCode != 0) {
            qFatal("%s", qPrintable(outcome.errors));
        }
        return outcome.output;
    }

    // "Type ID" of each item.
    QStringList items(const QString &lesson)
    {
        QStringList texts;
        const QJsonArray slides = QJsonDocument::fromJson(fileContent(path(lesson))).object().value("Slides").toArray();
        for (const QJsonValue &item : slides.first().toObject().value("Items").toArray()) {
            texts.append(item.toObject().value("Type").toString() + ' ' + item.toObject().value("ID").toString());
        }
        return texts;
    }

    // from: a text, or "~" and an expression.
    void edit(const QString &from, const QString &to)
    {
        const QString file = path("there/content.xml");
        const QString text = QString::fromUtf8(fileContent(file));
        const QString pattern = from.startsWith('~') ? from.mid(1) : QRegularExpression::escape(from);
        const QString edited = QString(text).replace(QRegularExpression(pattern), to);
        QVERIFY2(from.isEmpty() || edited != text, qPrintable(from));
        QFile::remove(file);
        putFile(file, edited.toUtf8());
    }

private slots:
    void comesBackAsItWas_data()
    {
        QTest::addColumn<QString>("example");
        const QStringList examples =
            QDir(EXAMPLES_DIR).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Files, QDir::Name);
        for (const QString &name : examples) {
            if (QFile::exists(EXAMPLES_DIR "/" + name + "/index.xml") || name.endsWith(".json")) {
                QTest::addRow("%s", qPrintable(name)) << QString(EXAMPLES_DIR "/" + name);
            }
        }
    }

    void comesBackAsItWas()
    {
        QFETCH(QString, example);
        convert(example, "given.json");
        const QJsonObject report = json(convert("given.json", "there.iwb").toUtf8().replace('\'', ' '));
        convert("there.iwb", "back.json");
        QVERIFY(fileContent(path("back.json")) == fileContent(path("given.json")));
        // What files name and the lesson lacks stays as it is, too.
        QCOMPARE(report.value("losses").toInt(), 0);
        if (!example.endsWith("tools")) {
            return;
        }
        // The same bytes each time.
        convert("given.json", "one");
        convert("given.json", "other");
        QVERIFY(filesBelow(path("one")) == filesBelow(path("other")));
        QVERIFY(filesBelow(path("one")).contains("additional/native/lesson.json"));
    }

    void editsWin_data()
    {
        const Table<QString, QString, QString, QString> row("from", "to", "items", "told");
        const QString all =
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s"_s;
        // A resistor is a rectangle and two lines.
        const QString grouped = QString(all).replace("ZQPhysicsDianZu r", "ZQGroupItem group1_1");
        row("nothing", "", "", all, "");
        row("written anew", " version=\"1.0\" ", "  version='1.0' ", all, "");
        row("other digits and blanks", "stroke-width=\"3\"", "stroke-width=' 3.0 '", all, "");
        row("a colour in other words", "rgb(1,2,3)", "#010203", all, "");
        row("a group around it", "~(<svg:(polygon|polyline|circle|image) id=\"[^\"]*\"[^>]*/>)", "<svg:g>\\1</svg:g>",
            all, "");
        row("groups around all", "~(?s)(<svg:page [^>]*>)(.*)(</svg:page>)", "\\1<svg:g><svg:g/>\\2</svg:g>\\3", all,
            "");
        row("a group that does something", "~(<svg:polygon id=\"h\"[^>]*/>)", "<svg:g fill='red'>\\1</svg:g>",
            "ZQPhysicsDianZu r, ZQMath2DPolyline h, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s",
            "h changed");
        row("a second background", "~(?s)(<svg:rect id=\"1_rect\"[^>]*/>)(.*)</iwb>",
            "\\1<svg:rect id='new' width='800' height='600' fill='red'/>\\2<iwb:element ref='new' "
            "background='true'/></iwb>",
            "ZQMath2DRectangle new, " + all, "new added");
        row("a background behind it", "~(?s)(<svg:rect id=\"1_rect\"[^>]*/>)(.*)</iwb>",
            "<svg:rect id='new' width='800' height='600' fill='red'/>\\1\\2<iwb:element ref='new' "
            "background='true'/></iwb>",
            "ZQMath2DRectangle 1_rect, " + all, "1 its background was changed, 1_rect added");
        row("a colour", "rgb(1,2,3)", "rgb(200,2,3)",
            "ZQPhysicsDianZu r, ZQMath2DPolyline h, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s",
            "h changed");
        const QString part = "~(<svg:line id=\"r_part1\"[^>]*)"_s;
        row("a part moved", part + " x1=\"10\"", "\\1 x1=\"12\"", grouped, "r changed");
        row("a part removed", part + ">", "", grouped, "r changed");
        row("a part in front", QString(part).insert(1, "(?s)") + "(>.*)(<svg:rect id=\"r\"[^>]*>)", "\\3\\1\\2",
            grouped, "r changed");
        row("all parts but one removed", "~(?s)<svg:line id=\"r_part1.*<svg:rect id=\"r\"", "<svg:rect id='r'",
            QString(all).replace("ZQPhysicsDianZu", "ZQMath2DRectangle"), "r changed");
        row("all parts removed", "~(?s)<svg:line id=\"r_part1.*<svg:rect id=\"r\"", "<svg:removed ",
            QString(all).remove("ZQPhysicsDianZu r, "), "r removed");
        row("parts that are no group", "~<iwb:element ref=\"r[^\"]*\"/>", "", all, "");
        row("a part that is in no group", "<iwb:element ref=\"r_part1\"/>", "", "ZQMath2DSegment r_part1, " + grouped,
            "r changed");
        row("moved picture", "~(<svg:image id=\"p\"[^>]*) x=\"[^\"]*\"", "\\1 x=\"300\"",
            QString(all).replace("ZQPhysicsTanhuangcheng", "ZQImagePic"), "p changed");
        row("one of a group", "rgb(4,5,6)", "rgb(4,5,60)", all, "a changed");
        row("taken out of its group", "<iwb:element ref=\"a\"/>", "",
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQMath2DCircle a, ZQMath2DCircle b, ZQPhysicsTanhuangcheng p, "
            "ZQSmoothStroke s",
            "g its items");
        row("put into a group", "<iwb:element ref=\"a\"/>", "<iwb:element ref='h'/><iwb:element ref='a'/>",
            "ZQPhysicsDianZu r, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s", "g its items");
        row("removed", "<svg:circle", "<svg:removed",
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s",
            "a removed, b removed");
        row("added", "<svg:circle id=\"a\"",
            "<svg:line id='new' x1='1' y1='2' x2='3' y2='9' stroke='red'/><svg:circle id=\"a\"",
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQMath2DSegment new, ZQGroupItem g, ZQPhysicsTanhuangcheng p, "
            "ZQSmoothStroke s",
            "new added");
        row("locked by a record", "</iwb>", "<iwb:element ref='s' locked='true'/></iwb>",
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s",
            "s changed");
        row("without its cover", "id=\"s_cover\"", "id='else'",
            "ZQPhysicsDianZu r, ZQMath2DNormalHexagon h, ZQGroupItem g, ZQPhysicsTanhuangcheng p, ZQSmoothStroke s, "
            "ZQMath2DPolyline else",
            "else added");
    }

    void editsWin()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QDir(path("there")).removeRecursively();
        putFile(
            path("in.json"),
            "{\"Width\":\"800\",\"Height\":\"600\",\"Slides\":[{\"ID\":\"1\",\"Items\":["
            "{\"Type\":\"ZQPhysicsDianZu\",\"ID\":\"r\",\"BoundingBox\":\"10,10,110,60\"},"
            "{\"Type\":\"ZQMath2DNormalHexagon\",\"ID\":\"h\",\"BoundingBox\":\"200,10,300,110\",\"ArtObj_Ln\":\"6\","
            "\"LineColor\":\"255,1,2,3\",\"ArtObj_Width\":\"3\"},"
            "{\"Type\":\"ZQGroupItem\",\"ID\":\"g\",\"Angle\":\"0.5\",\"Children\":["
            "{\"Type\":\"ZQMath2DCircle\",\"ID\":\"a\",\"BoundingBox\":\"400,10,450,60\",\"ArtObj_Color\":\"255,4,5,"
            "6\"},"
            "{\"Type\":\"ZQMath2DCircle\",\"ID\":\"b\",\"BoundingBox\":\"460,10,510,60\"}]},"
            "{\"Type\":\"ZQPhysicsTanhuangcheng\",\"ID\":\"p\",\"BoundingBox\":\"600,10,650,210\"},"
            "{\"Type\":\"ZQSmoothStroke\",\"ID\":\"s\",\"XY\":\"10,300,20,5,20,-5\",\"Width\":\"4\",\"CoverLayer\":"
            "\"1\"}]}]}");
        convert("in.json", "there");
        edit(from, to);
        QStringList told;
        const QJsonArray entries =
            QJsonDocument::fromJson(convert("there", "back.json").toUtf8()).object().value("entries").toArray();
        for (const QJsonValue &entry : entries) {
            const QString detail = entry.toObject().value("detail").toString();
            told += entry.toObject().value("kind") == "changed"
                ? QStringList(entry.toObject().value("id").toString() + ' '
                              + detail.section(" by", 0, 0).section(" were", 0, 0))
                : QStringList();
        }
        QTEST(items("back.json").join(", "), "items");
        QTEST(told.join(", "), "told");
        // A changed picture of an item is a file of the lesson from now on.
        const QJsonObject files =
            QJsonDocument::fromJson(fileContent(path("back.json"))).object().value("Resources").toObject();
        QCOMPARE(files.size(), from.contains("svg:image id=") ? 1 : 0);
    }

    // Marks of earlier versions knew colours as their letters.
    void knowsEarlierMarks()
    {
        QDomDocument document;
        QVERIFY(document.setContent(
            "<iwb><svg:svg><svg:g><svg:rect id='a' width='3.0' stroke='rgb(1, 2,3)' fill='#00a000'/></svg:g></svg:svg>"
            "<iwb:element ref='a' background-fill='#ffff00'/></iwb>"_s,
            false));
        QDomElement element = document.documentElement().firstChildElement().firstChildElement().firstChildElement();
        const auto records = recordTexts(document.documentElement());
        const QString mark = elementMark(element, records);
        QVERIFY(hasMark(element, mark, records));
        QVERIFY(hasMark(element, "4e5112eaa9b6444a4318", records));
        element.setAttribute("fill", "#0000a0");
        QVERIFY(hasMark(element, "4e5112eaa9b6444a4318", records)); // which is why they are others now
        QVERIFY(!hasMark(element, mark, records));
        element.setAttribute("fill", "lime");
        const QString green = elementMark(element, records);
        for (const char *same : {"#0f0", "#00FF00", " rgb( 0%, 100%, 0%)"}) {
            element.setAttribute("fill", same);
            QCOMPARE(elementMark(element, records), green);
        }
    }

    // Numbers whose letters are looked at are the same as those whose values are, which the ones with exponents are.
    void marksTellNumbersByTheirValues()
    {
        QDomDocument document;
        QDomElement line = document.createElement("svg:polyline");
        const auto markOf = [&line](const QString &points) {
            line.setAttribute("points", points);
            return elementMark(line, {});
        };
        QRandomGenerator random(25);
        QStringList texts{"0", "-0", "0.00", "5.", "007.5", "-0.5", "99999.5", "99999.6", "999.9996", "0.00999996"};
        for (int i = 0; i < 5000; ++i) {
            const double number = (random.generateDouble() - 0.5) * std::pow(10, random.bounded(-4, 8));
            texts << QString::number(number, 'g', 1 + i % 8) << QString::number(number, 'f', i % 5);
        }
        for (const QString &text : qAsConst(texts)) {
            const QString other = "1e0 " + QString::number(text.toDouble(), 'e', 16) + " -2.5";
            QVERIFY2(markOf(" 1 ," + text + ",-2.50\n") == markOf(other), qPrintable(text));
        }
        QVERIFY(markOf("1,12.3456") != markOf("1,12.348"));
    }

    // What the format has beside elements of the same shape.
    void writesWhatOthersKnow()
    {
        QDir(path("there")).removeRecursively();
        putFile(path("in.json"),
                "{\"Width\":\"800\",\"Height\":\"600\",\"Resources\":{\"a.webm\":\"eA==\"},\"Slides\":[{\"ID\":\"1\","
                "\"Items\":["
                "{\"Type\":\"General:curtain\",\"ID\":\"c\",\"BoundingBox\":\"10,20,110,60\",\"rect\":\"0,0,100,30\"},"
                "{\"Type\":\"ZQMediaVideo\",\"ID\":\"f\",\"BoundingBox\":\"200,10,300,110\",\"resource\":\"a.webm\"},"
                "{\"Type\":\"ZQTextBoard\",\"ID\":\"t\",\"BoundingBox\":\"0,200,300,250\",\"TextHtml\":"
                "\"a<span style='background-color:#ff0'>b</span>\"}]}]}");
        convert("in.json", "there");
        const QString text = QString::fromUtf8(fileContent(path("there/content.xml")));
        for (const char *part : {"<svg:rect id=\"c\" fill=\"rgb(140,28,43)\" fill-opacity=\"1\" height=\"30\"",
                                 "ref=\"c\" revealer=\"true\"", "<svg:a id=\"f\" xlink:href=\"additional/a.webm\">",
                                 "<svg:image id=\"f_film\"", "<svg:tspan id=\"t_span1\"",
                                 "<iwb:tspan background-fill=\"#ffff00\" ref=\"t_span1\"/>"}) {
            QVERIFY2(text.contains(part), part);
        }
    }

    void damagedPartsCountAsNone()
    {
        for (const QByteArray &text : {QByteArray("{"), QByteArray("{\"form\":99}"), QByteArray()}) {
            QDir(path("there")).removeRecursively();
            convert(EXAMPLES_DIR "/geometry", "there");
            QFile::remove(path("there/additional/native/lesson.json"));
            putFile(path("there/additional/native/lesson.json"), text);
            convert("there", "back.json");
            QVERIFY(items("back.json").contains("ZQMath2DPolyline hexagon"));
        }
        QDir(path("there")).removeRecursively();
        convert(EXAMPLES_DIR "/geometry", "there");
        QFile::remove(path("there/additional/native/page1.json"));
        putFile(path("there/additional/native/page1.json"), "{");
        const QString told = convert("there", "back.json");
        QVERIFY2(told.contains("of the lesson itself is damaged") && !told.contains("another program"),
                 qPrintable(told));
        QVERIFY(items("back.json").contains("ZQMath2DPolyline hexagon"));
    }

    // Where the file of a page is lost, the others are as they were. Of a document that was touched, nobody knows of the
    // last one.
    void missingPagesAreTold()
    {
        QByteArray slides;
        for (const char *id : {"1", "2", "3"}) {
            slides += QByteArray(slides.isEmpty() ? "" : ",") + "{\"ID\":\"" + id
                + "\",\"Items\":[{\"Type\":\"ZQMath2DNormalHexagon\",\"ID\":\"h" + id
                + "\",\"BoundingBox\":\"200,10,300,110\",\"ArtObj_Ln\":\"6\"}]}";
        }
        putFile(path("in.json"), "{\"Width\":\"800\",\"Height\":\"600\",\"Slides\":[" + slides + "]}");
        for (int i = 0; i < 6; ++i) {
            const int page = i / 2 + 1;
            QDir(path("there")).removeRecursively();
            convert("in.json", "there");
            QVERIFY(QFile::remove(path("there/additional/native/page%1.json").arg(page)));
            if (i % 2 == 1) {
                edit("</iwb>", "</iwb> ");
            }
            const QString told = convert("there", "back.json");
            QCOMPARE(told.contains("of the lesson itself is damaged"), i < 5);
            QCOMPARE(told.contains("another program"), i == 5);
            const QByteArray back = fileContent(path("back.json"));
            QCOMPARE(back.count("ZQMath2DNormalHexagon"), 2);
            const QJsonValue lost = QJsonDocument::fromJson(back).object().value("Slides").toArray().at(page - 1);
            QCOMPARE(lost.toObject().value("ID").toString(), QString::number(page));
        }
    }

    // The first page goes, and two elements are others: what is read of them has the links of the document already.
    void linksFollowTheirSlides()
    {
        const auto item = [](const QString &id, const QString &link, const QString &children = {}) {
            const QString to = ",'InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'" + link + '\'';
            return "{'Type':'%1','ID':'%2','BoundingBox':'0,0,90,90','ArtObj_Ln':'6','ReadOfPage':'%2'%3%4}"_s.arg(
                children.isEmpty() ? "ZQMath2DNormalHexagon" : "ZQGroupItem", id, link.isEmpty() ? QString() : to,
                children.isEmpty() ? QString() : ",'Children':[" + children + ']');
        };
        const QString inner = item("n", "1", item("b", "3") + ',' + item("c", ""));
        const QString group = item("g", "3", item("a", "2") + ',' + inner);
        const QString items = item("h", "1") + ',' + item("e", "3") + ',' + group;
        QString lesson = "{'Width':'800','Height':'600','Slides':[{'ID':'1','Items':[]},{'ID':'2','Items':[" + items
            + "]},{'ID':'3','Items':[]}]}";
        putFile(path("in.json"), lesson.replace('\'', '"').toUtf8());
        QDir(path("there")).removeRecursively();
        convert("in.json", "there");
        edit("~(<svg:polygon id=\"[eb]\"[^>]*)stroke-width=\"2\"", "\\1stroke-width=\"5\"");
        edit("~(?s)<svg:page id=\"page1\">.*?</svg:page>", "");
        const QString told = convert("there", "back.json");
        QCOMPARE(told.count("link to \\\"1\\\""), 2);
        const auto shown = [](const QJsonObject &one, const auto &self) -> QString {
            QStringList held;
            for (const QJsonValue &child : one.value("Children").toArray()) {
                held.append(self(child.toObject(), self));
            }
            return one.value("ID").toString() + one.value("InteractiveValue").toString()
                + (one.value("ReadOfPage") == one.value("ID") ? "" : "!")
                + (held.isEmpty() ? QString() : '(' + held.join(' ') + ')');
        };
        QStringList found;
        const QJsonObject back = QJsonDocument::fromJson(fileContent(path("back.json"))).object();
        for (const QJsonValue &one : back.value("Slides").toArray().first().toObject().value("Items").toArray()) {
            found.append(shown(one.toObject(), shown));
        }
        QCOMPARE(found.join(' '), QString("h e2! g2(a1 n(b2! c))"));
    }
};

QTEST_GUILESS_MAIN(TestIwbNative)
#include "tst_iwbnative.moc"
