#include "pluginfixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {

int messages = 0;

void countMessage(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++messages;
}

QDomDocument iwbRoot()
{
    return plugin()->tranPresJSON2IWB({}, {});
}

} // namespace

/*!
 * The IWB root and its pages: background colour and picture out and back, files included.
 */
class TestSlideIwb : public QObject
{
    Q_OBJECT

private slots:
    void writesTheRoot_data()
    {
        QTest::addColumn<QJsonObject>("presentation");
        QTest::addColumn<QString>("attributes");
        QTest::newRow("both sizes") << json("{'ID':'7','Width':'1440','Height':'1080','Visible':true,'Author':'a'}")
                                    << QStringLiteral("id='7' width='1440' height='1080' visible='1' "
                                                      "viewbox='0 0 1440 1080'");
        QTest::newRow("one size") << json("{'Width':'1440','Visible':'1'}")
                                  << QStringLiteral("width='1440' visible='0'");
    }
    void writesTheRoot()
    {
        QFETCH(QJsonObject, presentation);
        QFETCH(QString, attributes);
        const QDomElement iwb = plugin()->tranPresJSON2IWB({}, presentation).documentElement();
        const QString expected =
            QStringLiteral("<iwb version='1.0' xmlns:iwb='http://www.becta.org.uk/iwb' "
                           "xmlns:svg='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>"
                           "<svg:svg version='tesselmark' %1><svg:pageset/></svg:svg></iwb>");
        QCOMPARE(toText(iwb), toText(xml(expected.arg(attributes))));
    }

    void readsTheRoot_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QJsonObject>("expected");
        QTest::newRow("sizes") << QStringLiteral("width='4' height='3' viewbox='0 0 8 6'")
                               << json("{'Width':'4','Height':'3'}");
        QTest::newRow("viewbox") << QStringLiteral("viewbox='1 2 8 6 9'") << json("{'Width':'8','Height':'6'}");
        QTest::newRow("one size") << QStringLiteral("width='4' viewbox='0 0 8 6'") << json("{'Width':'4'}");
        QTest::newRow("short viewbox") << QStringLiteral("viewbox='0 0 8'") << json("{}");
    }
    void readsTheRoot()
    {
        QFETCH(QString, attributes);
        QFETCH(QJsonObject, expected);
        QCOMPARE(toText(plugin()->tranPresIWB2JSON(xml(QStringLiteral("<svg:svg %1/>").arg(attributes)), {})),
                 toText(expected));
    }

    void writesColours_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("fill");
        QTest::addColumn<QString>("opacity");
        const auto row = [](const char *color, const char *fill, const char *opacity) {
            QTest::newRow(color) << QString::fromLatin1(color) << QString::fromLatin1(fill)
                                 << QString::fromLatin1(opacity);
        };
        row("#ff8000", "rgb(255,128,0)", "1");
        // 0x80 of 0xff is 0.50196078...
        row("#80ff8000", "rgb(255,128,0)", "0.501961");
        row("red", "rgb(255,0,0)", "1");
        row("no colour", "rgb(0,0,0)", "1");
        row("", "rgb(0,0,0)", "1");
    }
    void writesColours()
    {
        QFETCH(QString, color);
        QFETCH(QString, fill);
        QFETCH(QString, opacity);
        QDomDocument root = iwbRoot();
        QJsonObject slide = json("{'index':3,'ID':'s','x':'0','y':'1','Width':'1440','Height':'1080','AttachFile':''}");
        slide.insert(QLatin1String("BackColor"), color);
        const QDomElement page = plugin()->tranSlideJSON2IWB(root, slide);
        const QString expected = QStringLiteral("<svg:page id='page3'><svg:rect id='s_rect' x='0' y='1' width='1440' "
                                                "height='1080' fill='%1' fill-opacity='%2'/></svg:page>");
        QCOMPARE(toText(page), toText(xml(expected.arg(fill, opacity))));
        QVERIFY(page.parentNode().isNull());
        QCOMPARE(toText(root.documentElement().lastChildElement()),
                 QStringLiteral("<iwb:element backgorund=\"true\" ref=\"s_rect\"/>"));
    }

    void readsColours_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("color");
        const auto row = [](const char *attributes, const char *color) {
            QTest::newRow(attributes) << QString::fromLatin1(attributes) << QString::fromLatin1(color);
        };
        row("fill='rgb(255,128,0)' fill-opacity='1'", "#ff8000");
        row("fill='rgb( 1, 2,3 )' fill-opacity='0.5'", "#010203");
        row("fill='rgb(1,2)'", "#010200");
        row("fill='rgb(256,0,9)'", "#000000");
        row("fill='rgb(1,2,3)' fill-opacity='256'", "#000000");
        row("fill='rgb'", "#000000");
        row("fill='steelblue'", "steelblue");
        row("", "");
    }
    void readsColours()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, color);
        const QDomElement page =
            xml(QStringLiteral("<svg:page><g><svg:rect %1/><svg:rect fill='x'/></g></svg:page>").arg(attributes));
        const QDomElement rectangle = page.firstChildElement().firstChildElement();
        for (const QDomElement &given : {page, rectangle}) {
            const QJsonObject slide = plugin()->tranSlideIWB2JSON({}, given, json("{'ID':'old','path':'/p/'}"));
            QCOMPARE(slide.value(QLatin1String("BackColor")), QJsonValue(color));
            QCOMPARE(slide.value(QLatin1String("EffectType")), QJsonValue(QString()));
            QVERIFY(slide.value(QLatin1String("ID")).toString().toLongLong() > 0);
            QCOMPARE(slide.size(), 4);
        }
        QCOMPARE(rectangle.attribute(QStringLiteral("isloaded")), QStringLiteral("1"));
    }

    void movesThePicture()
    {
        QTemporaryDir directory;
        const QDir root(directory.path());
        QVERIFY(root.mkpath(QStringLiteral("lesson/filelibrary")) && root.mkpath(QStringLiteral("lesson.iwb")));
        QImage picture(7, 5, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(root.filePath(QStringLiteral("lesson/filelibrary/a.png"))));

        QDomDocument document = iwbRoot();
        QJsonObject slide = json("{'index':1,'ID':'s','AttachFile':'a.png'}");
        slide.insert(QLatin1String("filePath"), root.filePath(QStringLiteral("lesson.iwb")));
        const QDomElement page = plugin()->tranSlideJSON2IWB(document, slide);
        QCOMPARE(toText(page.lastChildElement()),
                 toText(xml(QStringLiteral("<svg:image id='s_bgd' xlink:href='images/s_bgd.png' x='0' y='0' width='7' "
                                           "height='5' background-posture='stretched-to-fill'/>"))));
        QVERIFY(QFile::exists(root.filePath(QStringLiteral("lesson.iwb/images/s_bgd.png"))));

        // The library that the picture comes back to lies beside the package.
        QVERIFY(root.mkpath(QStringLiteral("filelibrary")));
        const QJsonObject package{{QStringLiteral("path"), root.filePath(QStringLiteral("lesson.iwb/"))}};
        const QJsonObject read = plugin()->tranSlideIWB2JSON(document.documentElement(), page, package);
        const QString name = read.value(QLatin1String("AttachFile")).toString();
        QCOMPARE(QImage(root.filePath(QLatin1String("filelibrary/") + name)).size(), QSize(7, 5));
        QCOMPARE(page.lastChildElement().attribute(QStringLiteral("isloaded")), QStringLiteral("1"));
    }

    void measuresWhatIsNoPictureAsNothing_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("file");
        QTest::newRow("no picture") << QStringLiteral("s") << QStringLiteral("text.png");
        QTest::newRow("no file") << QStringLiteral("s") << QStringLiteral("missing.png");
        QTest::newRow("a directory") << QStringLiteral("s") << QStringLiteral(".");
        QTest::newRow("an ID that leads out") << QStringLiteral("../../s") << QStringLiteral("a.png");
    }
    void measuresWhatIsNoPictureAsNothing()
    {
        QFETCH(QString, id);
        QFETCH(QString, file);
        QTemporaryDir directory;
        const QDir root(directory.path());
        QVERIFY(root.mkpath(QStringLiteral("lesson/filelibrary")) && root.mkpath(QStringLiteral("lesson.iwb")));
        for (const char *name : {"text.png", "a.png"}) {
            QFile text(root.filePath(QLatin1String("lesson/filelibrary/") + QLatin1String(name)));
            QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
        }
        QDomDocument document = iwbRoot();
        const QDomElement page =
            plugin()->tranSlideJSON2IWB(document,
                                        {{QStringLiteral("ID"), id},
                                         {QStringLiteral("AttachFile"), file},
                                         {QStringLiteral("filePath"), root.filePath(QStringLiteral("lesson.iwb"))}});
        const QDomElement image = page.lastChildElement();
        QCOMPARE(image.attribute(QStringLiteral("xlink:href")),
                 QString(QLatin1String("images/") + id + QLatin1String("_bgd.png")));
        QCOMPARE(image.attribute(QStringLiteral("width")), QStringLiteral("0"));
        QCOMPARE(image.attribute(QStringLiteral("height")), QStringLiteral("0"));
        QCOMPARE(root.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    }

    void choosesThePicture_data()
    {
        QTest::addColumn<QString>("records");
        QTest::addColumn<QString>("rectangle");
        QTest::addColumn<QString>("image");
        QTest::addColumn<bool>("isTaken");
        const auto row = [](const char *name, const char *records, const char *rectangle, const char *image,
                            bool isTaken) {
            QTest::newRow(name) << QString::fromLatin1(records) << QString::fromLatin1(rectangle)
                                << QString::fromLatin1(image) << isTaken;
        };
        row("record", "<iwb:element ref='s_rect'/>", "s_rect", "s_bgd", true);
        row("no record", "<iwb:link ref='s_rect'/>", "s_rect", "s_bgd", false);
        row("record of another", "<iwb:element ref='t_rect'/>", "s_rect", "s_bgd", false);
        row("background false", "<iwb:element ref='s_rect' background='false'/><iwb:element ref='s_rect'/>", "s_rect",
            "s_bgd", false);
        row("background as written here", "<iwb:element ref='s_rect' backgorund='false'/>", "s_rect", "s_bgd", true);
        row("endings are cut by their length", "<iwb:element ref='s12345'/>", "s12345", "s1234", true);
        row("another stem", "<iwb:element ref='s_rect'/>", "s_rect", "t_bgd", false);
        row("too short for an ending", "<iwb:element ref='r1'/>", "r1", "x", false);
    }
    void choosesThePicture()
    {
        QFETCH(QString, records);
        QFETCH(QString, rectangle);
        QFETCH(QString, image);
        QFETCH(bool, isTaken);
        QTemporaryDir directory;
        const QDir root(directory.path());
        QVERIFY(root.mkpath(QStringLiteral("p")) && root.mkpath(QStringLiteral("filelibrary")));
        QFile file(root.filePath(QStringLiteral("p/a.png")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QDomElement iwb = xml(QStringLiteral("<iwb>%1</iwb>").arg(records));
        const QDomElement page =
            xml(QStringLiteral("<svg:page><svg:rect id='%1'/><svg:image id='%2' xlink:href='a.png'/></svg:page>")
                    .arg(rectangle, image));
        const QJsonObject slide =
            plugin()->tranSlideIWB2JSON(iwb, page, {{QStringLiteral("path"), root.filePath(QStringLiteral("p/"))}});
        QCOMPARE(slide.contains(QLatin1String("AttachFile")), isTaken);
        QCOMPARE(QDir(root.filePath(QStringLiteral("filelibrary"))).entryList(QDir::Files).size(), isTaken ? 1 : 0);
    }

    void writesLinks_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("href");
        const auto row = [](const char *kind, const char *value, const char *href) {
            QTest::addRow("%s %s", kind, value)
                << QString::fromLatin1(kind) << QString::fromLatin1(value) << QString::fromLatin1(href);
        };
        row("ACTION_OPENWEB", "a.example", "http://a.example");
        row("ACTION_OPENWEB", "go?to=https://a.example", "go?to=https://a.example");
        row("ACTION_TOOLTIP", "hint", "txt://hint");
        row("ACTION_GOTOSLIDE", "12", "#page12");
        row("ACTION_OPENTOOL", "clock", "tool://clock");
        row("ACTION_DANCE", "x", "");
        row("ACTION_OPENFILE", "DIR/a.txt", "additional/a.txt");
        row("ACTION_OPENFILE", "DIR/missing.txt", "");
        row("ACTION_OPENFILE", "DIR", "");
    }
    void writesLinks()
    {
        QFETCH(QString, kind);
        QFETCH(QString, value);
        QFETCH(QString, href);
        QTemporaryDir directory;
        const QDir root(directory.path());
        QVERIFY(root.mkpath(QStringLiteral("export")));
        QFile file(root.filePath(QStringLiteral("a.txt")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("text") == 4);
        file.close();
        QDomDocument document = iwbRoot();
        // Ink has no svg form of its own: the link around it is empty.
        const QDomElement link = plugin()->tranItemJSON2IWB(
            document,
            {{QStringLiteral("Type"), QStringLiteral("ZQSmoothStroke")},
             {QStringLiteral("ID"), QStringLiteral("5")},
             {QStringLiteral("tmpFilePath"), root.filePath(QStringLiteral("export"))},
             {QStringLiteral("InteractiveType"), kind},
             {QStringLiteral("InteractiveValue"), value.replace(QLatin1String("DIR"), directory.path())}});
        QCOMPARE(toText(link), toText(xml(QStringLiteral("<svg:a id='5_link' xlink:href='%1'/>").arg(href))));
        QCOMPARE(toText(document.documentElement().lastChildElement()),
                 QStringLiteral("<iwb:link file=\"internal\" ref=\"5_link\"/>"));
        const bool isCopied = href.startsWith(QLatin1String("additional/"));
        QCOMPARE(QFile::exists(root.filePath(QStringLiteral("export/additional/a.txt"))), isCopied);
    }

    void keepsQuiet()
    {
        messages = 0;
        const auto former = qInstallMessageHandler(countMessage);
        QDomDocument noRoot;
        plugin()->tranSlideJSON2IWB(noRoot, json("{'BackColor':'#12','AttachFile':'a.png'}"));
        plugin()->tranSlideIWB2JSON({}, {}, {});
        plugin()->tranSlideIWB2JSON({}, xml(QStringLiteral("<svg:rect fill='rgb(999,-1,x)' fill-opacity='7e9'/>")), {});
        QDomDocument empty(QStringLiteral("slide"));
        plugin()->tranSlideJSON2ZQTX(empty, json("{'animations':{'animation':['1']},'activity':{'templet':{'<':''}}}"));
        plugin()->tranPresJSON2ZQTX(empty, json("{'Slides':[{'ID':'1'}]}"));
        plugin()->tranPresJSON2IWB(empty, json("{'Width':'1','Height':'2'}"));
        qInstallMessageHandler(former);
        QCOMPARE(messages, 0);
    }
};

QTEST_GUILESS_MAIN(TestSlideIwb)
#include "tst_slideiwb.moc"
