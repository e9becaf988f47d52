// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "itemfamilies.h"
#include "lesson/countednames.h"
#include "lesson/keynames.h"
#include "lesson/valueranges.h"
#include "losses/plainlosses.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

/*!
 * What teachers are told: plain names of all that the plug-in knows, and what was lost in these words.
 */
class TestPlainWords : public QObject
{
    Q_OBJECT

private:
    static QVector<KeyPlaces> allKeyMaps()
    {
        QVector<KeyPlaces> maps{keyMapsOfEveryItem(), keyMapsOfSubjects(), keyMapsOfSlide(), keyMapsOfPresentation()};
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                maps.append(keyMapsOfType(type));
            }
        }
        return maps;
    }

    // As reports tell it; a row of properties by its label.
    static QString placeOf(const QJsonArray &path)
    {
        QStringList steps;
        for (const QJsonValue &step : path) {
            steps.append(step.toString());
        }
        const QString last = steps.takeLast();
        if (last.startsWith('[') || last.startsWith('<')) {
            return last.mid(1).chopped(1) + "@x"; // the attributes of elements of this name
        }
        const QString place = steps.join('/') + '@' + last;
        return steps.value(0) == "properties" ? "properties/property[" + last + "]@value" : place;
    }

    // "kind slide type id key detail" of each, separated by blanks, with ~ for an empty one.
    static LossReport reportOf(const QString &losses)
    {
        static const QMap<QString, Loss::Kind> kinds{
            {"value", Loss::Value},         {"item", Loss::Item},       {"file", Loss::File},
            {"picture", Loss::AsPicture},   {"hidden", Loss::NotShown}, {"other", Loss::Otherwise},
            {"emptied", Loss::Emptied},     {"kept", Loss::Kept},       {"note", Loss::Note},
            {"empty", Loss::EmptiedElsewhere}, {"gone", Loss::Otherwise}};
        LossReport report;
        for (const QString &line : losses.split('\n')) {
            QStringList words = line.split(' ');
            words.replaceInStrings(QRegularExpression("^~$"), "");
            const bool isFile = words.first() == "gone";
            const bool isShown = words.first().endsWith('+');
            Loss loss{kinds.value(words.takeFirst().remove('+')), words.takeFirst().toInt(), words.takeFirst(),
                      words.takeFirst(), words.takeFirst(), Sentence(words.join(' '))};
            loss.isShown = isShown;
            loss.isFile = isFile;
            report.add(loss);
        }
        return report;
    }

private slots:
    void everythingHasAName()
    {
        QStringList nameless;
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                const QString name = countedName(type, 2).english();
                if (isModelType(type) && (!name.startsWith("2 ") || name.contains(" x ") || name.contains('%'))) {
                    nameless.append(type);
                }
            }
        }
        for (const KeyPlaces &places : allKeyMaps()) {
            for (const QString &key : places.keys()) {
                if (plainKeyName(key).isEmpty()) {
                    nameless.append(key);
                }
            }
            for (const QJsonObject &map : {places.xml, places.tx, places.iwb}) {
                for (const QJsonValue &path : map) {
                    if (!path.toArray().isEmpty() && plainPlaceName(placeOf(path.toArray())).english().contains('"')) {
                        nameless.append(placeOf(path.toArray()));
                    }
                }
            }
        }
        nameless.removeDuplicates();
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(' ')));
    }

    // The keys that pictures show, from the document that is made by drawing them.
    void whatIsDrawnIsNotInternal()
    {
        const QString text = QString::fromUtf8(fileContent(EXAMPLES_DIR "/../docs/DRAWINGS.md"));
        static const QRegularExpression shown("^\\| `[^|]*\\|[^|]*\\|([^|]*)\\||All\\s+show\\s+((?:`[^`]*`,?\\s*)+)",
                                              QRegularExpression::MultilineOption);
        static const QRegularExpression code("`([^`]*)`");
        int count = 0;
        for (auto part = shown.globalMatch(text); part.hasNext();) {
            const QRegularExpressionMatch match = part.next();
            for (auto key = code.globalMatch(match.captured(1) + match.captured(2)); key.hasNext(); ++count) {
                const QString name = key.next().captured(1);
                QVERIFY2(!isInternalPlace(name) && !plainKeyName(name).isEmpty(), qPrintable(name));
            }
        }
        QVERIFY(count > 500);
    }

    void namesPlaces_data()
    {
        const Table<QString, QString> row("place", "name");
        row("list in the model", "Control[1]", "points of the shape");
        row("object in the model", "animations.path.x", "animation");
        row("row of a label", "properties/property[Fill color][2]@value", "colour of the fill");
        row("label in other letters", "properties/property[Show liquid 2]@value", "liquid");
        row("attribute that says little", "data/rect@points", "place and size");
        row("label that says little", "properties/property[Type]@value", "kind");
        row("attribute", "@TransformMatrix", "turn and stretch");
        row("attribute of the item itself", "@type", "kind of item");
        row("text", "mapItemInfo/type", "branches of the mind map");
        row("number in the name", "ArtObj_Point12@x", "points of the shape");
        row("nobody knows it", "a/Mood[3]@b", "\"Mood\"");
        row("nobody knows its end", "z@" + QString(100, 'y'), '"' + QString(40, 'y') + "...\"");
    }

    void namesPlaces()
    {
        const auto [place, name] = Table<QString, QString>::cells();
        QCOMPARE(plainPlaceName(place).english(), name);
    }

    void tellsLosses_data()
    {
        const Table<QString, QString> row("losses", "words");
        row("items by their number and slides",
            "item 1 ZQActiveMaterialItem a ~ ~\nitem 3 ZQActiveMaterialClassifyItem b ~ ~\n"
            "item 2 ZQGroupItem g ~ taken apart\nitem 3 ZQMath2DCircle c ~ ~\nemptied 3 slide s ~ ~",
            "Not shown in the result:\n  Slide 3 is empty in the result.\n"
            "  2 pieces of games and 1 circle on 2 slides from 1 to 3: this format has no such thing.\n"
            "  1 group on slide 2: taken apart.");
        row("values of one item once, by their names",
            "value 1 ZQMath2DCircle c ArtObj_FillColor 1\nvalue 1 ZQMath2DCircle c @ArtObj_FillColor 1\n"
            "value 2 ZQMath2DTriangle t FillColor 1\nvalue 1 ZQMath2DCircle c ID 7\nvalue+ 1 ZQMath2DCircle c LineColor 1\nvalue 0 presentation ~ Title x\n"
            "value 1 slide s animations ~\nvalue 1 ZQFuture f Wings 2",
            "Shown in the result, but not the same:\n"
            "  Colour of the fill: 1 circle and 1 triangle on slides 1 to 2.\n  Title: the lesson.\n"
            "  Animation: slide 1.\n  \"Wings\": 1 x Future on slide 1.\nOnly internal, seen by nobody: identifier.");
        row("what is there in another form", "item+ 1 ZQMindMapItem m ~ as a picture",
            "Shown in the result, but not the same:\n  1 mind map on slide 1: as a picture.");
        row("files with their owner", "file 2 ZQImagePic i a.png no such file",
            "Not shown in the result:\n  a.png (1 picture on slide 2): no such file.");
        row("other boards",
            "picture 1 ZQMindMapItem m ~ ~\nhidden 1 ZQGapItem n ~ ~\nother 1 ZQMath2DCircle c LockIn 1\n"
            "other 1 ZQMath2DCircle c Type x\ngone 1 ZQImagePic p a.png no such file\nempty 2 slide s ~ ~",
            "Not shown by other boards:\n  Slide 2 is empty there.\n"
            "  1 x Gap Item on slide 1: other boards have no such thing.\n"
            "Shown by other boards, but not the same:\n  1 mind map on slide 1: as a picture.\n"
            "  a.png (1 picture on slide 1): no such file.\n"
            "  Lock: 1 circle on slide 1.\nOnly internal, and nothing to other boards: kind of item.\n"
            "The lesson itself travels along in the file, so that lessonconv brings all of it back.");
        row("what is told", "kept 1 ZQGadget g ~ ~\nnote 0 ink ~ ~ 2 strokes became polylines\n"
            "note 0 iwb:element e ~ foo is left out",
            "Note: 1 x Gadget on slide 1: nobody knows what it is, so it is kept as it came.\n"
            "Note: 1 element: foo is left out.\nNote: 2 strokes became polylines.");
        QStringList many;
        for (const QString type : {"A", "B", "C", "D", "E", "F", "G", "H"}) {
            many.append("item 1 " + type + " i ~ ~");
        }
        for (int i = 0; i < 12; ++i) {
            many.append("value 1 A i Key" + QString(i, 'x') + " ~");
        }
        row("much", many.join('\n'),
            "Not shown in the result:\n  1 x A, 1 x B, 1 x C, 1 x D, 1 x E, 1 x F and 2 other items on slide 1: this format "
            "has no such thing.\nShown in the result, but not the same:\n"
                + QStringList{"Key",      "Keyx",      "Keyxx",      "Keyxxx",      "Keyxxxx",
                              "Keyxxxxx", "Keyxxxxxx", "Keyxxxxxxx", "Keyxxxxxxxx", "Keyxxxxxxxxx"}
                      .replaceInStrings(QRegularExpression("^(.*)$"), "  \"\\1\": 1 x A on slide 1.")
                      .join('\n')
                + "\n  And 2 more.");
    }

    void tellsLosses()
    {
        const auto [losses, words] = Table<QString, QString>::cells();
        QCOMPARE(inEnglish(plainSummary(reportOf(losses), true)).join('\n'), words);
        const QStringList hinted = inEnglish(plainSummary(reportOf(losses), false));
        QCOMPARE(hinted.last() == "--report FILE names each.", !words.startsWith("Note"));
    }

    // A report that is written in pieces is the one that is made at once.
    void writesReportsInPieces()
    {
        LossReport report;
        for (const int count : {0, 1, 499, 500, 1001}) {
            for (int i = report.entries().size(); i < count; ++i) {
                const QString id = QString::number(i / 3);
                report.add({Loss::Kind(i % 12), i / 9, "ZQGroupItem", id, "\n    ]\u00e4" + id, Sentence("\"[" + id)});
            }
            QByteArray text;
            report.writeJson([&text](const QByteArray &piece) { text += piece; }, {{"format", "iwb"}});
            QJsonObject whole = report.toJson();
            whole.insert("format", "iwb");
            QCOMPARE(text, QJsonDocument(whole).toJson());
            QCOMPARE(whole.value("entries").toArray().size(), count);
        }
    }

    void knowsRanges_data()
    {
        const Table<QString, QString, QString> row("key", "value", "missed"); // the value as JSON
        row("opacity", "Opacity", "300", "a number from 0 to 255");
        row("opacity as a text", "Opacity", "\"255\"", "");
        row("empty", "Opacity", "\"\"", "");
        row("flag", "Visible", "\"yes\"", "0 or 1");
        row("flag of JSON", "Visible", "false", "");
        row("half a box", "BoundingBox", "\"1,2\"", "four numbers, none of them more than 1000000 from 0");
        row("far away", "BoundingBox", "\"1,2,3,2e6\"", "four numbers, none of them more than 1000000 from 0");
        row("list of points", "Control", "[1,2,3,4]", "");
        row("half a point", "XY", "\"1,2,3\"", "pairs of numbers, none of them more than 1000000 from 0");
        row("marked width", "Width", "\"[ ,]4\"", "");
        row("colours", "ArtObj_Color", "\"255,0,0\"", "");
        row("too much colour", "ArtObj_Color", "\"255,0,300,0\"", "a colour");
        row("colour of no name", "EditBkColor", "\"reddish\"", "a colour");
        row("colour as an object", "ArtObj_Color0", "{\"Solid\":255,\"Alpha\":0.5}", "");
        row("unknown", "Mood", "\"x\"", "");
    }

    void knowsRanges()
    {
        const auto [key, value, missed] = Table<QString, QString, QString>::cells();
        const QJsonValue parsed = QJsonDocument::fromJson("[" + value.toUtf8() + "]").array().first();
        QCOMPARE(rangeMissedBy(key, parsed).english(), missed);
        QCOMPARE(slideMissedBy(" Next ", 1).english() + slideMissedBy("2", 2).english(), QString());
        QCOMPARE(slideMissedBy(3, 2).english(), "a slide from 1 to 2"_s);
    }
};

QTEST_GUILESS_MAIN(TestPlainWords)
#include "tst_plainwords.moc"
