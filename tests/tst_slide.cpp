#include "pluginfixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

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
        QCOMPARE(root.attribute(QStringLiteral("width")), QStringLiteral("1440"));
        QVERIFY(root.hasAttribute(QStringLiteral("height")));
        QCOMPARE(root.attribute(QStringLiteral("height")), QString());
        const QDomElement first = root.firstChildElement(QStringLiteral("slides")).firstChildElement();
        QCOMPARE(first.attribute(QStringLiteral("href")), QStringLiteral("slides/1.xml"));
        QCOMPARE(first.nextSiblingElement().attribute(QStringLiteral("href")), QStringLiteral("slides/.xml"));

        QDomDocument given;
        given.setContent(QStringLiteral("<main><slides><file href='old'/></slides></main>"));
        plugin()->tranPresJSON2ZQTX(given, json("{'Slides':[{'ID':'2'}]}"));
        QCOMPARE(given.documentElement().firstChildElement().childNodes().count(), 2);
    }

    void readsTheHeaderOfAPackage_data()
    {
        QTest::addColumn<QString>("index");
        QTest::addColumn<QJsonObject>("expected");
        QTest::newRow("both sizes") << QStringLiteral("<main width='4' height='3' version='3.0'/>")
                                    << json("{'Width':'4','Height':'3','Version':'3.0','Range':'4,3'}");
        QTest::newRow("one size") << QStringLiteral("<main width='4' title='x'/>") << json("{'Width':'4'}");
    }
    void readsTheHeaderOfAPackage()
    {
        QFETCH(QString, index);
        QFETCH(QJsonObject, expected);
        QCOMPARE(plugin()->tranPresZQTX2JSON(xml(index), {}), expected);
    }

    void readsRawSlides_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QJsonObject>("expected");

        const auto row = [](const char *name, const char *attributes, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(attributes) << json(expected);
        };
        row("nothing", "", "{'ID':'1','SlideSourceRect':'0,0,1024,768'}");
        row("own source rectangle", "SlideSourceRect='0,0,1280,720'", "{'ID':'1','SlideSourceRect':'0,0,1280,720'}");
        // (1 * 256 + 2) * 256 + 3
        row("colour", "BackColor='255,1,2,3'", "{'ID':'1','BackColor':66051,'SlideSourceRect':'0,0,1024,768'}");
        row("short colour", "BackColor='1,2,3'", "{'ID':'1','BackColor':'1,2,3','SlideSourceRect':'0,0,1024,768'}");
        row("files", "AttachFile='x\\a.png|b.png||' TextureLineType='1'",
            "{'ID':'1','AttachFile':'/p/a.png,/p/l.xmlb.png','TextureLineType':'1','SlideSourceRect':'0,0,1024,768'}");
        row("paper", "TextureLineType='6'",
            "{'ID':'1','TextureLineType':'6','AttachFile':'ID_SLIDE_NOTEBOOK_PINYIN.png',"
            "'SlideSourceRect':'0,0,1024,768'}");
        row("unknown paper", "TextureLineType='10'",
            "{'ID':'1','TextureLineType':'10','SlideSourceRect':'0,0,1024,768'}");
    }
    void readsRawSlides()
    {
        QFETCH(QString, attributes);
        QFETCH(QJsonObject, expected);
        const QDomElement slide = xml(QStringLiteral("<slide NetID='1' %1/>").arg(attributes));
        QCOMPARE(toText(plugin()->tranSlideXML2JSON(slide, json("{'path':'/p/l.xml'}"))), toText(expected));
    }

    void readsThePageEffectOfATag_data()
    {
        QTest::addColumn<QString>("tags");
        QTest::addColumn<QString>("effect");

        const auto effect = [](const char *name) {
            return QStringLiteral("<pageEffect><type value='%1'/></pageEffect>").arg(QLatin1String(name));
        };
        QTest::newRow("known") << effect("push_12_mc") << QStringLiteral("ID_SLIDE_EFFECT_YSFG");
        QTest::newRow("unknown") << effect("spin") << QStringLiteral("ID_SLIDE_EFFECT_ZXFG");
        QTest::newRow("empty") << effect("") << QStringLiteral("");
        QTest::newRow("the last wins") << QString(effect("fade_1_mc") + QStringLiteral("|$|") + effect("fade_3_mc"))
                                       << QStringLiteral("ID_SLIDE_EFFECT_QC");
        QTest::newRow("no XML") << QStringLiteral("<pageEffect>&") << QString();
        QTest::newRow("no type") << QStringLiteral("<pageEffect></pageEffect>") << QString();
    }
    void readsThePageEffectOfATag()
    {
        QFETCH(QString, tags);
        QFETCH(QString, effect);
        QDomElement slide = xml(QStringLiteral("<slide/>"));
        slide.setAttribute(QStringLiteral("SlideTagsInfo"), tags);
        const QJsonObject read = plugin()->tranSlideXML2JSON(slide, {});
        QCOMPARE(read.contains(QLatin1String("EffectType")), !effect.isNull());
        QCOMPARE(read.value(QLatin1String("EffectType")).toString(), effect);
    }

    void numbersTriggersAndActions_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QJsonObject>("expected");

        const auto row = [](const char *name, const char *script, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(script) << json(expected);
        };
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
        QFETCH(QString, script);
        QFETCH(QJsonObject, expected);
        QDomElement slide = xml(QStringLiteral("<slide/>"));
        slide.setAttribute(QStringLiteral("SlideTagsInfo"),
                           QString(QLatin1String("<x/>|$|<interactive>") + script
                                   + QLatin1String("</interactive><a value='late'/>|$|<interactive>"
                                                   "<activeItem value='second'/></interactive>")));
        const QJsonObject read = plugin()->tranSlideXML2JSON(slide, {});
        QVERIFY(read.value(QLatin1String("iszqt")).toBool());
        const QString text = read.value(QLatin1String("objAnimationData")).toString();
        QJsonObject triggers = QJsonDocument::fromJson(text.toUtf8()).object();
        QSet<QString> ids;
        int actions = 0;
        for (auto trigger = triggers.begin(); trigger != triggers.end(); ++trigger) {
            QJsonObject numbered = trigger->toObject();
            for (auto action = numbered.begin(); action != numbered.end(); ++action) {
                QJsonObject settings = action->toObject();
                ids.insert(settings.take(QLatin1String("actionIndex")).toString());
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
        const auto triggers = [](const QString &script) {
            QDomElement slide = xml(QStringLiteral("<slide/>"));
            slide.setAttribute(QStringLiteral("SlideTagsInfo"), QString(QLatin1String("<interactive>") + script));
            const QJsonObject read = plugin()->tranSlideXML2JSON(slide, {});
            return QJsonDocument::fromJson(read.value(QLatin1String("objAnimationData")).toString().toUtf8()).object();
        };
        const QJsonObject actions =
            triggers(QLatin1String("<activeItem>") + QStringLiteral("<a value='1'/>").repeated(20000))
                .value(QLatin1String("src_NO==0"))
                .toObject();
        QCOMPARE(actions.size(), 20000);
        // Members stand in the order of their texts.
        QCOMPARE(actions.keys().mid(0, 4).last(), QStringLiteral("animation_NO==100"));
        QVERIFY(actions.contains(QLatin1String("animation_NO==19999")));
        // Too deep for a DOM: the parse stops early, within the one action.
        const QString deep = QLatin1String("<activeItem>") + QStringLiteral("<a>").repeated(200000);
        QCOMPARE(triggers(deep).value(QLatin1String("src_NO==0")).toObject().size(), 1);
    }

    void writesSlides()
    {
        const QDomElement slide =
            plugin()
                ->tranSlideJSON2ZQTX({},
                                     json("{'ID':'7','color':'#ff00ff00','document':'a.png','effect_time':'2',"
                                          "'animations':{'animation':['1',2]},'other':'x'}"))
                .documentElement();
        QStringList tags;
        for (QDomElement child = slide.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            tags.append(child.tagName());
        }
        QCOMPARE(tags.join(QLatin1Char(' ')), QStringLiteral("background items effect animations"));
        const QDomElement background = slide.firstChildElement();
        QCOMPARE(background.firstChildElement().attribute(QStringLiteral("value")), QStringLiteral("#ff00ff00"));
        QCOMPARE(background.lastChildElement().attribute(QStringLiteral("document")), QStringLiteral("a.png"));
        QCOMPARE(slide.firstChildElement(QStringLiteral("effect")).attribute(QStringLiteral("time")),
                 QStringLiteral("2"));
        const QJsonObject read = plugin()->tranSlideZQTX2JSON(slide, {});
        QCOMPARE(read.value(QLatin1String("animations")).toObject(), json("{'animation':['1','']}"));
        QVERIFY(
            !plugin()->tranSlideZQTX2JSON(xml(QStringLiteral("<slide/>")), {}).contains(QLatin1String("animations")));
    }
};

QTEST_GUILESS_MAIN(TestSlide)
#include "tst_slide.moc"
