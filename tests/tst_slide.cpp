// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

QJsonObject readTags(const QString &tags)
{
    QDomElement slide = xml("<slide/>");
    slide.setAttribute("SlideTagsInfo", tags);
    return plugin()->tranSlideXML2JSON(slide, {});
}

QJsonObject triggersOf(const QString &tags)
{
    return QJsonDocument::fromJson(readTags(tags).value("objAnimationData").toString().toUtf8()).object();
}

} // namespace

/*!
 * Presentations and slides in raw XML and ZQTX: header, background, page effects, tags, animations, scripts.
 */
class TestSlide : public QObject
{
    Q_OBJECT

private slots:
    void writesTheIndexOfAPackage()
    {
        const QDomDocument made =
            plugin()->tranPresJSON2ZQTX({}, json("{'Width':'1440','Height':1080,'Slides':[{'ID':'1'},{}]}"));
        const QDomElement root = made.documentElement();
        QCOMPARE(root.attribute("width"), "1440");
        QVERIFY(root.hasAttribute("height"));
        QCOMPARE(root.attribute("height"), QString());
        const QDomElement first = root.firstChildElement("slides").firstChildElement();
        QCOMPARE(first.attribute("href"), "slides/1.xml");
        QCOMPARE(first.nextSiblingElement().attribute("href"), "slides/.xml");

        QDomDocument given;
        given.setContent("<main><slides><file href='old'/></slides></main>"_s);
        plugin()->tranPresJSON2ZQTX(given, json("{'Slides':[{'ID':'2'}]}"));
        QCOMPARE(given.documentElement().firstChildElement().childNodes().count(), 2);
    }

    void readsTheHeaderOfAPackage_data()
    {
        const Table<QString, QJsonObject> row("index", "expected");
        row("both sizes", "<main width='4' height='3' version='3.0'/>", "Width=4 Height=3 Version=3.0 Range=4,3");
        row("one size", "<main width='4' title='x'/>", "Width=4");
    }
    void readsTheHeaderOfAPackage()
    {
        const auto [index, expected] = Table<QString, QJsonObject>::cells();
        QCOMPARE(plugin()->tranPresZQTX2JSON(xml(index), {}), expected);
    }

    void readsRawSlides_data()
    {
        const Table<QString, QJsonObject> row("attributes", "expected");
        row("nothing", "", "ID=1 SlideSourceRect=0,0,1024,768");
        row("own source rectangle", "SlideSourceRect='0,0,1280,720'", "ID=1 SlideSourceRect=0,0,1280,720");
        // (1 * 256 + 2) * 256 + 3
        row("colour", "BackColor='255,1,2,3'", "{'ID':'1','BackColor':66051,'SlideSourceRect':'0,0,1024,768'}");
        row("short colour", "BackColor='1,2,3'", "ID=1 BackColor=1,2,3 SlideSourceRect=0,0,1024,768");
        row("files", "AttachFile='x\\a.png|b.png||' TextureLineType='1'",
            "ID=1 AttachFile=/p/a.png,/p/l.xmlb.png TextureLineType=1 SlideSourceRect=0,0,1024,768");
        row("paper", "TextureLineType='6'",
            "ID=1 TextureLineType=6 AttachFile=ID_SLIDE_NOTEBOOK_PINYIN.png SlideSourceRect=0,0,1024,768");
        row("unknown paper", "TextureLineType='10'", "ID=1 TextureLineType=10 SlideSourceRect=0,0,1024,768");
    }
    void readsRawSlides()
    {
        const auto [attributes, expected] = Table<QString, QJsonObject>::cells();
        const QDomElement slide = xml("<slide NetID='1' %1/>"_s.arg(attributes));
        QCOMPARE(toText(plugin()->tranSlideXML2JSON(slide, json("path=/p/l.xml"))), toText(expected));
    }

    void readsThePageEffectOfATag_data()
    {
        const Table<QString, QString> row("tags", "effect");
        const auto effect = [](const char *name) { return "<pageEffect><type value='%1'/></pageEffect>"_s.arg(name); };
        row("known", effect("push_12_mc"), "ID_SLIDE_EFFECT_YSFG");
        row("unknown", effect("spin"), "ID_SLIDE_EFFECT_ZXFG");
        row("empty", effect(""), "");
        row("the last wins", effect("fade_1_mc") + "|$|"_s + effect("fade_3_mc"), "ID_SLIDE_EFFECT_QC");
        row("no XML", "<pageEffect>&", nullptr);
        row("no type", "<pageEffect></pageEffect>", nullptr);
    }
    void readsThePageEffectOfATag()
    {
        const auto [tags, effect] = Table<QString, QString>::cells();
        const QJsonObject read = readTags(tags);
        QCOMPARE(read.contains("EffectType"), !effect.isNull());
        QCOMPARE(read.value("EffectType").toString(), effect);
    }

    void numbersTriggersAndActions_data()
    {
        const Table<QString, QJsonObject> row("script", "expected");
        row("no trigger", "", "{}");
        row("the slide comes first and gathers its triggers",
            "<activeItem value='5'/><activeItem value='0'><a value='1'/></activeItem><activeItem><b value='2'/>"
            "</activeItem>",
            "{'src_NO==0':{'animation_NO==0':{'valid':true,'activeItem':'slide','targetID':'1','loopState':'0'},"
            "'animation_NO==1':{'valid':true,'activeItem':'slide','targetID':'2','loopState':'0'}},'src_NO==1':{}}");
        row("items in the order of their texts", "<activeItem value='9'/><activeItem value='10'><a/></activeItem>",
            "{'src_NO==0':{'animation_NO==0':{'valid':true,'activeItem':'10','targetID':'','loopState':'0'}},"
            "'src_NO==1':{}}");
        row("settings",
            "<activeItem value='3'><a value='1' loopState='2'><activeMode value='dbclick'/><speed value='1'/>"
            "<activeMode value='after'/><activeMode value='odd'/><interactiveType value='ANIMATION_ZOOM'/>"
            "<reservation value='r'/><scale/></a></activeItem>",
            "{'src_NO==0':{'animation_NO==0':{'valid':true,'activeItem':'3','targetID':'1','loopState':'2',"
            "'activeMode':'from_previous_end','interactiveType':'ID_OBJANIMATION_ENTER_ZOOM','effectoption':'r',"
            "'scale':'1.0'}}}");
        row("an unknown animation keeps its name",
            "<activeItem value='3'><a><interactiveType value='JUMP'/></a></activeItem>",
            "{'src_NO==0':{'animation_NO==0':{'valid':true,'activeItem':'3','targetID':'','loopState':'0',"
            "'interactiveType':'JUMP'}}}");
    }
    void numbersTriggersAndActions()
    {
        const auto [script, expected] = Table<QString, QJsonObject>::cells();
        const QString tags = "<x/>|$|<interactive>" + script
            + "</interactive><a value='late'/>|$|<interactive><activeItem value='second'/></interactive>";
        QVERIFY(readTags(tags).value("iszqt").toBool());
        QJsonObject triggers = triggersOf(tags);
        QSet<QString> ids;
        int actions = 0;
        for (auto trigger = triggers.begin(); trigger != triggers.end(); ++trigger) {
            QJsonObject numbered = trigger->toObject();
            for (auto action = numbered.begin(); action != numbered.end(); ++action) {
                QJsonObject settings = action->toObject();
                ids.insert(settings.take("actionIndex").toString());
                ++actions;
                *action = settings;
            }
            *trigger = numbered;
        }
        QCOMPARE(ids.size(), actions);
        QCOMPARE(toText(triggers), toText(expected));
    }

    void survivesLongAndDeepScripts()
    {
        const QJsonObject actions =
            triggersOf("<interactive><activeItem>" + "<a value='1'/>"_s.repeated(20000)).value("src_NO==0").toObject();
        QCOMPARE(actions.size(), 20000);
        // Members stand in the order of their texts.
        QCOMPARE(actions.keys().mid(0, 4).last(), "animation_NO==100");
        QVERIFY(actions.contains("animation_NO==19999"));
        // Too deep for a DOM: the parse stops early, within the one action.
        const QString deep = "<interactive><activeItem>" + "<a>"_s.repeated(200000);
        QCOMPARE(triggersOf(deep).value("src_NO==0").toObject().size(), 1);
    }

    void writesSlides()
    {
        const QDomDocument written =
            plugin()->tranSlideJSON2ZQTX({},
                                         json("{'ID':'7','color':'#ff00ff00','document':'a.png','effect_time':'2',"
                                              "'animations':{'animation':['1',2]},'other':'x'}"));
        const QDomElement slide = written.documentElement();
        QStringList tags;
        for (QDomElement child = slide.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            tags.append(child.tagName());
        }
        QCOMPARE(tags.join(' '), "background items effect animations");
        const QDomElement background = slide.firstChildElement();
        QCOMPARE(background.firstChildElement().attribute("value"), "#ff00ff00");
        QCOMPARE(background.lastChildElement().attribute("document"), "a.png");
        QCOMPARE(slide.firstChildElement("effect").attribute("time"), "2");
        const QJsonObject read = plugin()->tranSlideZQTX2JSON(slide, {});
        QCOMPARE(read.value("animations").toObject(), json("{'animation':['1','']}"));
        QVERIFY(!plugin()->tranSlideZQTX2JSON(xml("<slide/>"), {}).contains("animations"));
    }
};

QTEST_GUILESS_MAIN(TestSlide)
#include "tst_slide.moc"
