// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QDir>
#include <QJsonArray>
#include <QStandardPaths>
#include <QtTest>

namespace {

// "DATA" in a text stands for the application's data directory.
QString withData(QString text)
{
    return text.replace("DATA", QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QJsonObject readActivity(const QString &activity)
{
    const QDomElement slide = xml("<slide>%1</slide>"_s.arg(activity));
    return plugin()->tranSlideZQTX2JSON(slide, {}).value("activity").toObject();
}

// The activity that is written, in a document that lives to the end of the test.
QDomElement writtenActivity(const QJsonObject &activity)
{
    static QVector<QDomDocument> documents;
    documents.append(plugin()->tranSlideJSON2ZQTX({}, {{"activity", activity}}));
    return documents.last().documentElement().firstChildElement("activity");
}

} // namespace

/*!
 * Classroom activities of slides: attributes, pictures below two directories, and the forms of their entries.
 */
class TestActivity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init() { QDir::setSearchPaths("imageDir"_s, {"/i/"_s, "/j/"_s}); }

    void keepsTheAttributes()
    {
        const QString text = "<activity type='T' audio='' time='5' hotoffset='1' gametime='9' title=''/>"_s;
        QJsonObject read = readActivity(text);
        read.remove("templet");
        const QJsonObject expected =
            json("{'type':'T','audio':'','countdown':'5','hotoffset':'1','time':'9','matchs':[],'unmatchs':[]}");
        QCOMPARE(toText(read), toText(expected));

        QDomElement written = writtenActivity(read);
        QCOMPARE(written.lastChildElement().tagName(), "unmatchs");
        while (written.hasChildNodes()) {
            written.removeChild(written.firstChild());
        }
        QCOMPARE(toText(written), toText(xml("<activity type='T' audio='' time='5' hotoffset='1' gametime='9'/>")));
    }

    void readsPictures_data()
    {
        const Table<QString, QString, QString> table("templet", "key", "expected");
        const auto row = [&table](const char *templet, const char *key, const char *expected) {
            table(QByteArray(key) + " of " + templet, templet, key, expected);
        };
        row("index='2'><background pic='a'/>", "background", "/i/Canvas/a");
        row("index='3'><background pic='a'/>", "background", "DATA/a");
        row("index='3'><background pic='x/ActivityInfo/ActivityInfo/a'/>", "background", "DATA/ClassActivity/a");
        row("index='2'><background pic='ActivityInfo/a'/>", "background", "/i/Canvas/ActivityInfo/a");
        row(">", "background", "/i/Canvas/");
        row("index='3'>", "backgroundx2", "DATA");
        row("index='3'><backgroundx2 pic='/ActivityInfo/a'/>", "backgroundx2", "DATA/ActivityInfo/a");
        row("index='3'><right pic='a'/>", "right", "DATAa");
        row("index='x'><stop_disable pic='a'/>", "stop_disable", "/i/Canvas/a");
        row("index='3'>", "right", nullptr);
        row("index='3'><answer_font_color answer_font_color='#1' pic='x'/>", "answer_font_color", "#1");
        row("index='3'><unknown pic='a'/>", "unknown", nullptr);
        row("index='3'><container path='/x/ActivityInfo/a'/>", "container/path", "DATA/ClassActivity/a");
        row("index='2'><container hotpath='/ActivityInfo/a'/>", "container/hotpath", "/i/Canvas//ActivityInfo/a");
        row("index='2'><container/>", "container/process_bar_back", nullptr);
        row("index='2'><material process_bar_rate='a'/>", "material/process_bar_rate", "/i/Canvas/a");
        row("index='2'><material/>", "material/font_align", "");
        row("index='2'><material hotoffset='1'/>", "material/hotoffset", nullptr);
        row("index='2'>", "container/font_align", nullptr);
    }
    void readsPictures()
    {
        const auto [templet, key, expected] = Table<QString, QString, QString>::cells();
        const QJsonObject activity = readActivity("<activity><templet %1</templet></activity>"_s.arg(templet));
        QJsonValue value = activity.value("templet");
        const QStringList keys = key.split('/');
        for (const QString &step : keys) {
            value = value.toObject().value(step);
        }
        QCOMPARE(value.isUndefined(), expected.isNull());
        QCOMPARE(value.toString(), withData(expected));
    }

    void readsPicturesWithoutSearchPath()
    {
        QDir::setSearchPaths("imageDir"_s, {});
        const QJsonObject activity = readActivity("<activity><templet><board pic='a'/></templet></activity>");
        QCOMPARE(toText(activity.value("templet").toObject()),
                 toText(json("index= background= backgroundx2= board=a")));
    }

    void writesPictures_data()
    {
        const Table<QString, QString, QString> table("activity", "path", "expected");
        const auto row = [&table](const char *activity, const char *path, const char *expected) {
            table(QByteArray(path) + " of " + activity, activity, path, expected);
        };
        row("'templet':{'index':'3','background':'DATA/ClassActivity/a'}", "background@pic", "/ClassActivity/a");
        row("'templet':{'background':'/x/ActivityInfo/y/ActivityInfo/a'}", "background@pic",
            "ActivityInfo/y/ActivityInfo/a");
        row("'templet':{'background':'DATA/ActivityInfo/DATA/a'}", "background@pic", "/a");
        row("'templet':{'index':'3'},'background':'/x/ActivityInfo/a'", "background@pic", "/ClassActivity/a");
        row("'templet':{'index':'2'},'background':'/x/ActivityInfo/a'", "background@pic", "ActivityInfo/a");
        row("'type':'x'", "background@pic", "");
        row("'templet':{'right':'DATA'}", "right@pic", nullptr);
        row("'templet':{'answer_font_color':'#1'}", "answer_font_color@answer_font_color", "#1");
        row("'templet':{'answer_font_color':''}", "answer_font_color@answer_font_color", nullptr);
        row("'templet':{'container':{'path':'DATA/a','hotoffset':'2'}}", "container@path", "/a");
        row("'templet':{'container':{'path':'DATA/a','hotoffset':'2'}}", "container@hotoffset", "2");
        row("'templet':{'container':{'process_bar_back':'DATA'}}", "container@process_bar_back", nullptr);
        row("'templet':{'material':{'font_align':'l','path2':'/ActivityInfo/a'}}", "material@path2", "ActivityInfo/a");
        row("'templet':{'material':{'path2':'a'}}", "material@path2", nullptr);
    }
    void writesPictures()
    {
        const auto [activity, path, expected] = Table<QString, QString, QString>::cells();
        const QDomElement templet = writtenActivity(json(withData("{" + activity + "}"))).firstChildElement();
        const QDomElement element = templet.firstChildElement(path.section('@', 0, 0));
        const QString attribute = path.section('@', 1);
        QCOMPARE(element.hasAttribute(attribute), !expected.isNull());
        QCOMPARE(element.attribute(attribute), expected);
    }

    void writesTheTemplateInOrder()
    {
        const QDomElement templet =
            writtenActivity(json("{'templet':{'symbol_less':'','board':'','background':'','name':'','type':'',"
                                 "'material':{'font_align':'l'},'not a name?':'','zoom':''}}"))
                .firstChildElement();
        QStringList tags;
        for (QDomElement child = templet.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            tags.append(child.tagName());
        }
        // A key that is no name makes no element.
        QCOMPARE(tags.join(' '), "background board symbol_less zoom container material");
    }

    void convertsEntries_data()
    {
        const Table<QString, QString, QJsonObject, QString> table("type", "read", "entries", "written");
        const auto row = [&table](const char *type, const char *read, const char *entries, const char *written) {
            table(QByteArray(type) + ": " + read, type, read, entries, written);
        };
        const char *const emptyMatch = "<match><container id='' txt=''/><materials/><answers/></match>";
        row("Judgment", "<match><question question='q'/><answer answer='a'/></match>",
            "{'matchs':[{'question':'q','answer':'a'}]}",
            "<match><question question='q'/><answer answer='a'/></match>");
        row("JudgmentTest", "<x/>", "{'matchs':[{'container':{'id':'','txt':''},'materials':[],'answers':[]}]}",
            emptyMatch);
        row("NumberComparison",
            "<x><condition id='1' condition='c' symbol='s'/><condition id='2' symbol='s'/><symbol id='3'/></x>",
            "{'matchs':[[{'id':'1','condition':'c'},{'id':'2','symbol':'s'},{'id':'3'}]]}",
            "<match><condition id='1' condition='c'/><symbol id='2' symbol='s'/></match>");
        row("PronunciationTest", "<match><text text='t'/></match><match/>", "{'matchs':['t','']}",
            "<match><text text='t'/></match><match><text text=''/></match>");
        row("ComparisonPronunciationTest", "<match><x id='1'/></match>", "{'matchs':[[{'id':'1'}]]}",
            "<match><text text=''/></match>");
        row("Group",
            "<match><container id='1' txt='c'/><materials><material id='2' txt='m' juxtaposedColor='#f'/></materials>"
            "<answers><container id='3'><answer value='v'/><answer "
            "value='w'/></container><container/></answers></match>",
            "{'matchs':[{'container':{'id':'1','txt':'c'},'materials':[{'id':'2','txt':'m','juxtaposedColor':'#f'}],"
            "'answers':[{'3':['v','w']},{'':[]}]}]}",
            "<match><container id='1' txt='c'/><materials><material id='2' txt='m' juxtaposedColor='#f'/></materials>"
            "<answers><container id='3'><answer value='v'/><answer value='w'/></container><container id=''/></answers>"
            "</match>");
    }
    void convertsEntries()
    {
        const auto [type, read, entries, written] = Table<QString, QString, QJsonObject, QString>::cells();
        const QJsonObject activity =
            readActivity("<activity type='%1'><matchs>%2</matchs></activity>"_s.arg(type, read));
        const QString matchs = "matchs"_s;
        QCOMPARE(toText(QJsonObject{{matchs, activity.value(matchs)}}), toText(entries));
        QCOMPARE(toText(writtenActivity(activity).firstChildElement(matchs)),
                 toText(xml("<matchs>%1</matchs>"_s.arg(written))));
    }

    void convertsWhatMatchesNothing()
    {
        const QString unmatchs = "unmatchs"_s;
        const QString text = "<unmatchs><match><container id='1' txt='c'/><materials><material id='2' "
                             "txt='m'%1/></materials></match></unmatchs>"_s;
        const QJsonObject activity =
            readActivity("<activity type='Judgment'>%1</activity>"_s.arg(text.arg(" juxtaposedColor='#f'"_s)));
        QCOMPARE(toText(QJsonObject{{unmatchs, activity.value(unmatchs)}}),
                 toText(json("{'unmatchs':[{'container':{'id':'1','txt':'c'},'materials':[{'id':'2','txt':'m'}]}]}")));
        QCOMPARE(toText(writtenActivity(activity).lastChildElement()), toText(xml(text.arg(QString()))));
    }

    void writesAGroupWithoutKeys()
    {
        const QDomElement answers = writtenActivity(json("{'matchs':[{'answers':[{}]}]}"))
                                        .firstChildElement("matchs")
                                        .firstChildElement()
                                        .lastChildElement();
        QCOMPARE(toText(answers), "<answers><container id=\"\"/></answers>");
    }

    void leavesSlidesWithoutActivityAlone()
    {
        QVERIFY(!plugin()->tranSlideZQTX2JSON(xml("<slide/>"), {}).contains("activity"));
        QDomDocument slide;
        slide.setContent("<slide><activity id='old'/></slide>"_s);
        plugin()->tranSlideJSON2ZQTX(slide, json("{}"));
        QCOMPARE(toText(slide.documentElement()), "<slide><activity id=\"old\"/></slide>");
        plugin()->tranSlideJSON2ZQTX(slide, json("{'activity':{}}"));
        QCOMPARE(slide.documentElement().childNodes().count(), 2);
        QVERIFY(slide.documentElement().firstChildElement().hasAttribute("id"));
    }
};

QTEST_GUILESS_MAIN(TestActivity)
#include "tst_activity.moc"
