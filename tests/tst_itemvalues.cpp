// SPDX-License-Identifier: MIT
#include "formats/zqtxitems.h"
#include "hostfixture.h"
#include "lesson/fontvalues.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/pagesize.h"
#include "lesson/shapeforms.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

/*!
 * Values of items as the host reads them, and its tables of what the plug-in makes of types and keys.
 */
class TestItemValues : public QObject
{
    Q_OBJECT

private:
    // All types that the plug-in knows, from the document that is made of its tables.
    static QStringList allTypes()
    {
        const QString document = QString::fromUtf8(fileContent(EXAMPLES_DIR "/../docs/FORMATS.md"));
        const QRegularExpression type("`((ZQ|General:|Math:)\\w+|stroke|group|text)`");
        QSet<QString> types;
        for (auto it = type.globalMatch(document); it.hasNext();) {
            types.insert(it.next().captured(1));
        }
        QStringList sorted = types.values();
        sorted.sort();
        return sorted;
    }

    // A number where its text is the value.
    static QJsonValue asNumber(const QString &text)
    {
        const double number = text.toDouble();
        return valueText(number) == text ? QJsonValue(number) : QJsonValue(text);
    }

    static QJsonValue inKind(const QString &kind, const QString &key, const QJsonValue &value)
    {
        const QString text = value.toString();
        const QStringList parts = numberParts(text);
        const bool isColor = key.contains("Color") && parts.size() == 4;
        if (kind == "numbers") {
            return asNumber(text);
        }
        if (kind == "flags" && (text == "0" || text == "1")) {
            return text == "1";
        }
        if (kind == "lists" && parts.size() > 1) {
            QJsonArray list;
            for (const QString &part : parts) {
                list.append(asNumber(part));
            }
            return list;
        }
        if (kind == "colour objects" && isColor) {
            const QRgb color = qRgba(parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt(), 255);
            return QJsonObject{{"Solid", double(color)}, {"Alpha", parts.at(0).toDouble() / 255}};
        }
        return value;
    }

    // Every type, in a box and under a matrix.
    static QJsonArray manyItems(const QString &kind)
    {
        const QJsonObject common = json(
            "BoundingBox=10,20,110,80 Visible=1 LockIn=1 InfiniteClone=1 Control=10,20,110,20,60,80,10,80 "
            "XYValue=1,2,3,4,5,9,7,7, XY=100,110,20,30,-5,2.5 Width=3 Color=128,1,2,3 ArtObj_Width=7 ArtObj_Fill=0 "
            "ArtObj_Mode=2 ArtObj_Style=3 LineColor=255,10,20,30 ArtObj_Color=100,40,50,60 ArtObj_Color1=255,7,8,9 "
            "Text=42 ArtObj_FillColor=200,70,80,90 InteractiveType=ACTION_GOTOSLIDE InteractiveValue=1");
        QJsonArray items;
        int id = 1000;
        for (const QString &type : allTypes()) {
            for (const char *placed : {"{'Angle':'0.5'}", "{'Matrix':'0.8,0.6,-1.2,1.6,30,40','ArtObj_Fill':'1'}"}) {
                QJsonObject item = common;
                item.insert("ID", QString::number(++id));
                const QJsonObject more = json(placed);
                for (auto it = more.begin(); it != more.end(); ++it) {
                    item.insert(it.key(), it.value());
                }
                for (auto it = item.begin(); it != item.end(); ++it) {
                    it.value() = inKind(kind, it.key(), it.value());
                }
                item.insert("Type", type);
                items.append(item);
            }
        }
        return items;
    }

    QString written(const QString &name, const QJsonArray &items)
    {
        const QJsonObject slide{{"ID", "1"}, {"Items", items}};
        const QString path = m_folder.filePath(name + ".json");
        putFile(
            path,
            QJsonDocument(QJsonObject{{"Width", "800"}, {"Height", "600"}, {"Slides", QJsonArray{slide}}}).toJson());
        return path;
    }

    // What is drawn on a page of IWB and in a picture, a line an element.
    QStringList drawn(const QString &name, const QJsonArray &items)
    {
        const QString lesson = written(name, items);
        const QString package = m_folder.filePath(name);
        const QString picture = m_folder.filePath(name + ".svg");
        convertedLesson(lesson, package, "iwb");
        if (runCommand({"render", lesson, picture}).exitCode != 0) {
            return {};
        }
        const QString text =
            QString::fromUtf8(fileContent(package + "/content.xml") + fileContent(picture).replace("<", "\n<"));
        return text.split('\n');
    }

    QTemporaryDir m_folder;

private slots:
    void drawsEveryKindTheSame_data()
    {
        const Table<QString> row("kind");
        for (const char *kind : {"numbers", "flags", "lists", "colour objects"}) {
            row(kind, kind);
        }
    }

    void drawsEveryKindTheSame()
    {
        QFETCH(QString, kind);
        static const QStringList expected = drawn("texts", manyItems({}));
        QVERIFY(expected.size() > 1000);
        const QJsonArray items = manyItems(kind);
        QVERIFY(items != manyItems({}));
        const QStringList lines = drawn(kind, items);
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(lines.value(i), expected.at(i));
        }
        QCOMPARE(lines.size(), expected.size());
    }

    void readsColors_data()
    {
        const Table<QJsonObject, QString> row("item", "color");
        row("four parts", "{'c':' 128, 1,2,3'}", "#80010203");
        row("three parts", "c=1,2,3", "#ff010203");
        row("name", "c=red", "#ffff0000");
        row("name with alpha", "c=#80ff0000", "#80ff0000");
        row("list", "{'c':[128,1,2,3]}", "#80010203");
        row("object", "{'c':{'Solid':66051,'Alpha':0.5}}", "#80010203");
        row("object without alpha", "{'c':{'Solid':66051}}", "#ff010203");
        row("alpha before the red", "{'c':{'Solid':4278255873}}", "#ff010101");
        row("alpha in the sign", "{'c':{'Solid':-16711423}}", "#ff010101");
        row("beyond every number", "{'c':{'Solid':1e300,'Alpha':-1e300}}", "#00ffffff");
        row("parts beyond", "c=255,-3e9,3e9,256", "#ff00ffff");
        row("parts that are no numbers", "c=nan,inf,,x", "#00ff0000");
        row("too few parts", "c=1,2", nullptr);
        row("number", "{'c':66051}", nullptr);
        row("nothing", "c=", nullptr);
        row("object of something else", "{'c':{'Alpha':1}}", nullptr);
    }

    void readsColors()
    {
        const auto [item, color] = Table<QJsonObject, QString>::cells();
        const auto found = ItemView(item).color(QLatin1String("c"));
        QCOMPARE(found ? found->name(QColor::HexArgb) : QString(), color);
        if (found) {
            QCOMPARE(itemColor(colorText(*found)), found);
            QCOMPARE(itemColor(valueText(item.value("c"))), found);
        }
    }

    void readsColorsOfPages()
    {
        QCOMPARE(backColor(66051), itemColor("1,2,3"));
        QCOMPARE(backColor(4278255873.0), itemColor("#010101"));
        QCOMPARE(backColor("66051"), backColor(66051));
        QCOMPARE(backColor("128,1,2,3"), itemColor("128,1,2,3"));
        QVERIFY(!backColor(QJsonValue()));
    }

    void readsFlagsAndNumbers_data()
    {
        const Table<QJsonObject, bool, double> row("item", "flag", "number"); // of v, where true and 7 are missing
        row("missing", "{}", true, 7);
        row("null", "v=null", true, 7);
        row("empty", "v=", true, 7);
        row("zero", "v=0", false, 0);
        row("false", "{'v':false}", false, 0);
        row("true", "{'v':true}", true, 1);
        row("with blanks and sign", "{'v':' +1 '}", true, 1);
        row("part of one", "{'v':0.5}", false, 0.5);
        row("text of it", "v=0.5", false, 0.5);
        row("word", "v=true", false, 0);
        row("endless", "v=inf", false, 0);
    }

    void readsFlagsAndNumbers()
    {
        QFETCH(QJsonObject, item);
        const ItemView view(item);
        QTEST(view.flag(QLatin1String("v"), true), "flag");
        QTEST(view.number(QLatin1String("v"), 7), "number");
    }

    void knowsFontsByTheirNames()
    {
        QCOMPARE(fontWeight("700"), fontWeight("bold"));
        QCOMPARE(fontWeight("650"), fontWeight("600"));
        QCOMPARE(fontWeight("lighter"), fontWeight("normal"));
        QCOMPARE(textAlignment("middle"), Qt::AlignHCenter);
        QCOMPARE(textAlignment("right"), textAlignment("end"));
        for (const int weight : {300, 400, 600, 700}) {
            const QString text = QString::number(weight);
            QCOMPARE(fontWeight(fontWeightText(fontWeight(text))), fontWeight(text));
        }
    }

    // An outer group is hidden, one in it locked and linked.
    void groupsHandDownWhatTheySay()
    {
        const QJsonObject outer = json(
            "{'Type':'ZQGroupItem','Visible':0,'Children':[{'Type':'ZQMath2DCircle','ID':'1'},"
            "{'Type':'ZQGroupItem','LockIn':true,'InteractiveType':'ACTION_OPENWEB','InteractiveValue':'a.example',"
            "'Children':[{'Type':'ZQMath2DCircle','ID':'2','Visible':true},{'Type':'ZQMath2DCircle','ID':'3',"
            "'InteractiveType':'ACTION_OPENWEB','InteractiveValue':'b.example'}]}]}");
        convertedLesson(written("group", {outer}), m_folder.filePath("group"), "iwb");
        const auto reader = openLesson(m_folder.filePath("group"));
        const QJsonArray items = reader->slide(0).items;
        QCOMPARE(items.size(), 1);
        QStringList found;
        // What groups in it say is said by its items.
        for (const QJsonObject &object : ItemView(items.first().toObject()).childObjects()) {
            const ItemView item(object);
            found.append(item.id() + (item.isVisible() ? " seen" : " hidden") + (item.isLocked() ? " locked " : " ")
                         + item.text(ItemKeys::linkValue));
        }
        QCOMPARE(found,
                 QStringList({"1 hidden ", "2 hidden locked http://a.example", "3 hidden locked http://b.example"}));
        QCOMPARE(runCommand({"render", written("group", {outer}), m_folder.filePath("group.svg")}).exitCode, 0);
        QVERIFY(!fileContent(m_folder.filePath("group.svg")).contains("<circle"));
    }

    void pagesAreThoseOfThePlugin_data()
    {
        const Table<QString> row("rect");
        for (const char *rect : {"0,0,1024,768", "0,0,1920,1080", "10,20,1280,800", "0,0,10,7.25", "0,0,1,2", "0,0,3,1",
                                 "0,0,10,0", "0,0,155467,100000", "0,0,168885,100000"}) {
            row(rect, rect);
        }
    }

    void pagesAreThoseOfThePlugin()
    {
        QFETCH(QString, rect);
        const QJsonObject slide{{"SlideSourceRect", rect}};
        const ItemView item(plugin()->tranItemXML2JSON(xml("<ZQMath2DCircle/>"), {{"slide", slide}}));
        const auto fit = itemTransform(item.json().value(ItemKeys::slideMatrix));
        QVERIFY(fit);
        // The middle of the slide comes to the middle of the page.
        const QVector<double> n = itemNumbers(rect);
        const QPointF middle = fit->map(QRectF(n.at(0), n.at(1), n.at(2), n.at(3)).center());
        const QSize page = pageOfSourceRect(rect);
        QVERIFY2(QLineF(middle, QPointF(page.width() / 2.0, page.height() / 2.0)).length() < 0.1,
                 qPrintable(item.text(ItemKeys::slideMatrix)));
    }

    void typesAreWhatThePluginMakesOfThem()
    {
        const QString source = m_folder.filePath("media.x");
        putFile(source, redPicture());
        for (const QString &type : allTypes()) {
            const QJsonObject item{{"Type", type},
                                   {"ID", "1"},
                                   {"XY", "1,2,3,4"},
                                   {"XYValue", "1,2,3,4,"},
                                   {"Control", "1,2,30,4,50,60,7,80"},
                                   {"BoundingBox", "1,2,30,40"},
                                   {"Matrix", "1,0,0,1,0,0"},
                                   {"tmpFilePath", m_folder.path()},
                                   {"AbsMediaFile", source},
                                   {"MultiMediaFile", "media.x"}};
            const QDomElement svg = toSvg(item);
            const QString tag = svg.tagName();
            const QString reference = svg.attribute("xlink:href");
            const QDomElement native = plugin()->tranItemJSON2ZQTX({}, item);
            const bool isMark = type == "ZQStrokesStamp" || type == "ZQStrokesDeletePixel";
            const bool isMedia = tag == "svg:image" || tag == "svg:video" || tag == "svg:a";
            QVERIFY2(isInk(type) == (native.tagName() == "stroke" && !isMark), qPrintable(type));
            QVERIFY2(isContainer(type) == (native.tagName() == "group"), qPrintable(type));
            QVERIFY2(isTextBoard(type) == (tag == "svg:textarea"), qPrintable(type));
            QVERIFY2(bool(mediaFolder(type)) == isMedia, qPrintable(type));
            // The host has a folder for Flash alone, as the format has.
            const QString folder = type == "ZQMediaFlash" ? "videos" : mediaFolder(type);
            QVERIFY2(!isMedia || reference == folder + "/media.x", qPrintable(type + reference));
            QVERIFY2(bool(shapeForm(type)) == (!tag.isEmpty() && !isMedia && !isTextBoard(type)), qPrintable(type));
        }
    }

    void shapesArePaintedAsThePluginDoes()
    {
        int shapes = 0;
        for (const QString &type : allTypes()) {
            const ShapeForm *form = shapeForm(type);
            if (!form) {
                continue;
            }
            ++shapes;
            const QJsonObject plain = withImplied({{"Type", type},
                                                   {"XYValue", "1,2,3,4,9,9,8,7,"},
                                                   {"Control", "1,2,30,4,50,60,7,80"},
                                                   {"BoundingBox", "1,2,30,40"},
                                                   {"ArtObj_Width", "2"},
                                                   {"Matrix", "1,0,0,1,0,0"}},
                                                  *form);
            QJsonObject painted = plain;
            painted.insert(QLatin1String(form->lineKey), "255,1,2,3");
            painted.insert(QLatin1String(form->dashKey), "1");
            if (form->fillKey) {
                painted.insert(QLatin1String(form->fillKey), "255,4,5,6");
            }
            const QDomElement svg = toSvg(painted);
            QVERIFY2(svg.attribute("stroke") == (form->cutsLine ? "rgb(1,2,3)" : "rgb(255,1,2,3)"),
                     qPrintable(toText(svg)));
            QVERIFY2(svg.attribute("fill") == (form->fillKey ? "rgb(4,5,6)" : ""), qPrintable(toText(svg)));
            QVERIFY2(svg.hasAttribute("stroke-dasharray"), qPrintable(toText(svg)));
            QVERIFY2(!toSvg(plain).hasAttribute("stroke-dasharray"), qPrintable(type));
            QCOMPARE(toSvg(painted).attribute("stroke"), toSvg(withImplied(painted, *form)).attribute("stroke"));
        }
        QVERIFY(shapes > 15);
    }

    void mapsAndQuestionsAreWrittenInEveryKind_data()
    {
        const Table<QString, QString> row("lesson", "type");
        row("mind maps", EXAMPLES_DIR "/mindmaps", "ZQMindMapItem");
        row("questions", EXAMPLES_DIR "/quiz", "ZQQuestionItem");
    }

    // Each value that the plug-in reads of them comes back where it is given as a number, a flag or a text.
    void mapsAndQuestionsAreWrittenInEveryKind()
    {
        const auto [lesson, type] = Table<QString, QString>::cells();
        const auto reader = openLesson(lesson);
        const QJsonObject presentation = reader->presentation();
        const ZqtxItems items(plugin(), presentation);
        int count = 0;
        for (int i = 0; i < reader->slideCount(); ++i) {
            for (const QJsonValue &value : reader->slide(i).items) {
                const QJsonObject item = value.toObject();
                if (item.value("Type") != type) {
                    continue;
                }
                QJsonObject turned = turnedValues(item).toObject();
                turned.insert("Type", type);
                const QJsonObject found = items.read(items.write(turned), {{"pres", presentation}}, nullptr);
                QCOMPARE(toText(found), toText(item));
                ++count;
            }
        }
        QVERIFY(count > 0);
    }

private:
    // Texts of numbers as numbers, numbers and flags as texts, at any depth.
    static QJsonValue turnedValues(const QJsonValue &value)
    {
        if (value.isObject()) {
            QJsonObject object = value.toObject();
            for (auto it = object.begin(); it != object.end(); ++it) {
                it.value() = turnedValues(it.value());
            }
            return object;
        }
        if (value.isArray()) {
            QJsonArray array = value.toArray();
            for (QJsonValueRef element : array) {
                element = turnedValues(element);
            }
            return array;
        }
        return value.isString() ? asNumber(value.toString()) : QJsonValue(valueText(value));
    }
};

QTEST_MAIN(TestItemValues)
#include "tst_itemvalues.moc"
