// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

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

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void writesTheRoot_data()
    {
        const Table<QJsonObject, QString> row("presentation", "attributes");
        row("both sizes", "{'ID':'7','Width':'1440','Height':'1080','Visible':true,'Author':'a'}",
            "id='7' width='1440' height='1080' visible='1' viewbox='0 0 1440 1080'");
        row("one size", "Width=1440 Visible=1", "width='1440' visible='0'");
    }
    void writesTheRoot()
    {
        const auto [presentation, attributes] = Table<QJsonObject, QString>::cells();
        const QDomElement iwb = plugin()->tranPresJSON2IWB({}, presentation).documentElement();
        const QString expected = "<iwb version='1.0' xmlns:iwb='http://www.becta.org.uk/iwb' "
                                 "xmlns:svg='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>"
                                 "<svg:svg version='tesselmark' %1><svg:pageset/></svg:svg></iwb>"_s;
        QCOMPARE(toText(iwb), toText(xml(expected.arg(attributes))));
    }

    void readsTheRoot_data()
    {
        const Table<QString, QJsonObject> row("attributes", "expected");
        row("sizes", "width='4' height='3' viewbox='0 0 8 6'", "Width=4 Height=3");
        row("viewbox", "viewbox='1 2 8 6 9'", "Width=8 Height=6");
        row("one size", "width='4' viewbox='0 0 8 6'", "Width=4");
        row("short viewbox", "viewbox='0 0 8'", "{}");
    }
    void readsTheRoot()
    {
        const auto [attributes, expected] = Table<QString, QJsonObject>::cells();
        QCOMPARE(toText(plugin()->tranPresIWB2JSON(xml("<svg:svg %1/>"_s.arg(attributes)), {})), toText(expected));
    }

    void writesColours_data()
    {
        const Table<QString, QString> row("fill", "opacity");
        row("#ff8000", "rgb(255,128,0)", "1");
        // 0x80 of 0xff is 0.50196078...
        row("#80ff8000", "rgb(255,128,0)", "0.501961");
        row("red", "rgb(255,0,0)", "1");
        row("no colour", "rgb(0,0,0)", "1");
        row("", "rgb(0,0,0)", "1");
    }
    void writesColours()
    {
        const auto [fill, opacity] = Table<QString, QString>::cells();
        QDomDocument root = iwbRoot();
        QJsonObject slide = json("{'index':3,'ID':'s','x':'0','y':'1','Width':'1440','Height':'1080','AttachFile':''}");
        slide.insert("BackColor", QTest::currentDataTag());
        const QDomElement page = plugin()->tranSlideJSON2IWB(root, slide);
        const QString expected = "<svg:page id='page3'><svg:rect id='s_rect' x='0' y='1' width='1440' "
                                 "height='1080' fill='%1' fill-opacity='%2'/></svg:page>"_s;
        QCOMPARE(toText(page), toText(xml(expected.arg(fill, opacity))));
        QVERIFY(page.parentNode().isNull());
        QCOMPARE(toText(root.documentElement().lastChildElement()),
                 "<iwb:element backgorund=\"true\" ref=\"s_rect\"/>"_s);
    }

    void readsColours_data()
    {
        const Table<QString> row("color");
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
        QFETCH(QString, color);
        const QDomElement page =
            xml("<svg:page><g><svg:rect %1/><svg:rect fill='x'/></g></svg:page>"_s.arg(QTest::currentDataTag()));
        const QDomElement rectangle = page.firstChildElement().firstChildElement();
        for (const QDomElement &given : {page, rectangle}) {
            const QJsonObject slide = plugin()->tranSlideIWB2JSON({}, given, json("ID=old path=/p/"));
            QCOMPARE(slide.value("BackColor"), QJsonValue(color));
            QCOMPARE(slide.value("EffectType"), QJsonValue(QString()));
            QVERIFY(slide.value("ID").toString().toLongLong() > 0);
            QCOMPARE(slide.size(), 4);
        }
        QCOMPARE(rectangle.attribute("isloaded"), "1");
    }

    void movesThePicture()
    {
        putFile(path("lesson/filelibrary/a.png"), redPicture());
        QDir(m_folder->path()).mkdir("lesson.iwb");
        QDomDocument document = iwbRoot();
        const QDomElement page = plugin()->tranSlideJSON2IWB(
            document, {{"index", 1}, {"ID", "s"}, {"AttachFile", "a.png"}, {"filePath", path("lesson.iwb")}});
        QCOMPARE(toText(page.lastChildElement()),
                 toText(xml("<svg:image id='s_bgd' xlink:href='images/s_bgd.png' x='0' y='0' width='4' height='3' "
                            "background-posture='stretched-to-fill'/>")));
        QCOMPARE(fileContent(path("lesson.iwb/images/s_bgd.png")), redPicture());

        // The library that the picture comes back to lies beside the package.
        QDir(m_folder->path()).mkdir("filelibrary");
        const QJsonObject read =
            plugin()->tranSlideIWB2JSON(document.documentElement(), page, {{"path", path("lesson.iwb/")}});
        QCOMPARE(fileContent(path("filelibrary/" + read.value("AttachFile").toString())), redPicture());
        QCOMPARE(page.lastChildElement().attribute("isloaded"), "1");
    }

    // This test has no GUI application, which it takes to load text in an svg.
    void measuresADrawingByItsRoot_data()
    {
        const Table<QString, QJsonObject> row("root", "expected");
        row("pixels", "width='40.9' height='30px' viewBox='0 0 4 3'", "width=40 height=30");
        row("millimetres and inches", "width='10mm' height='1in'", "width=35 height=90");
        row("shares of the view", "width='50%' height='100%' viewBox='0,0,12,20'", "width=6 height=20");
        row("the view alone", "viewBox='0 0 12.6 20.4'", "width=13 height=20");
        row("nothing", "", "width=0 height=0");
        row("beyond all pictures", "width='1e300' height='1'", "width=0 height=0");
        row("no number", "width='nan' height='1'", "width=0 height=0");
    }
    void measuresADrawingByItsRoot()
    {
        const auto [root, expected] = Table<QString, QJsonObject>::cells();
        putFile(path("lesson/filelibrary/a.png"),
                "<svg xmlns='http://www.w3.org/2000/svg' %1><text y='9'>a</text></svg>"_s.arg(root).toUtf8());
        QDir(m_folder->path()).mkdir("lesson.iwb");
        QDomDocument document = iwbRoot();
        const QDomElement page = plugin()->tranSlideJSON2IWB(
            document, {{"ID", "s"}, {"AttachFile", "a.png"}, {"filePath", path("lesson.iwb")}});
        QCOMPARE(differences(attributesOf(page.lastChildElement()), expected), QString());
    }

    void measuresWhatIsNoPictureAsNothing_data()
    {
        const Table<QString, QString> row("id", "file");
        row("no picture", "s", "text.png");
        row("no file", "s", "missing.png");
        row("a directory", "s", ".");
        row("an ID that leads out", "../../s", "a.png");
    }
    void measuresWhatIsNoPictureAsNothing()
    {
        const auto [id, file] = Table<QString, QString>::cells();
        putFile(path("lesson/filelibrary/text.png"), "no picture");
        putFile(path("lesson/filelibrary/a.png"), "no picture");
        const QDir root(m_folder->path());
        root.mkdir("lesson.iwb");
        QDomDocument document = iwbRoot();
        const QDomElement page =
            plugin()->tranSlideJSON2IWB(document, {{"ID", id}, {"AttachFile", file}, {"filePath", path("lesson.iwb")}});
        QJsonObject expected = json("width=0 height=0");
        expected.insert("xlink:href", "images/%1_bgd.png"_s.arg(id));
        QCOMPARE(differences(attributesOf(page.lastChildElement()), expected), QString());
        QCOMPARE(root.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    }

    void choosesThePicture_data()
    {
        const Table<QString, QString, QString, bool> row("records", "rectangle", "image", "isTaken");
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
        const auto [records, rectangle, image, isTaken] = Table<QString, QString, QString, bool>::cells();
        putFile(path("p/a.png"), {});
        QDir(m_folder->path()).mkdir("filelibrary");
        const QDomElement iwb = xml("<iwb>%1</iwb>"_s.arg(records));
        const QDomElement page = xml(
            "<svg:page><svg:rect id='%1'/><svg:image id='%2' xlink:href='a.png'/></svg:page>"_s.arg(rectangle, image));
        const QJsonObject slide = plugin()->tranSlideIWB2JSON(iwb, page, {{"path", path("p/")}});
        QCOMPARE(slide.contains("AttachFile"), isTaken);
        QCOMPARE(filesBelow(path("filelibrary")).size(), isTaken ? 1 : 0);
    }

    void writesLinks_data()
    {
        const Table<QString, QString> row("kind", "href");
        row("a.example", "ACTION_OPENWEB", "http://a.example");
        row("go?to=https://a.example", "ACTION_OPENWEB", "go?to=https://a.example");
        row("hint", "ACTION_TOOLTIP", "txt://hint");
        row("12", "ACTION_GOTOSLIDE", "#page12");
        row("clock", "ACTION_OPENTOOL", "tool://clock");
        row("x", "ACTION_DANCE", "");
        row("DIR/a.txt", "ACTION_OPENFILE", "additional/a.txt");
        row("DIR/missing.txt", "ACTION_OPENFILE", "");
        row("DIR", "ACTION_OPENFILE", "");
    }
    void writesLinks()
    {
        const auto [kind, href] = Table<QString, QString>::cells();
        putFile(path("a.txt"), "text");
        QDir(m_folder->path()).mkdir("export");
        QDomDocument document = iwbRoot();
        // Ink has no svg form of its own: the link around it is empty.
        const QString value = QString(QTest::currentDataTag()).replace("DIR", m_folder->path());
        const QDomElement link = plugin()->tranItemJSON2IWB(document,
                                                            {{"Type", "ZQSmoothStroke"},
                                                             {"ID", "5"},
                                                             {"tmpFilePath", path("export")},
                                                             {"InteractiveType", kind},
                                                             {"InteractiveValue", value}});
        QCOMPARE(toText(link), toText(xml("<svg:a id='5_link' xlink:href='%1'/>"_s.arg(href))));
        QCOMPARE(toText(document.documentElement().lastChildElement()), "<iwb:link file=\"internal\" ref=\"5_link\"/>");
        QCOMPARE(QFile::exists(path("export/additional/a.txt")), href.startsWith("additional/"));
    }

    void keepsQuiet()
    {
        const auto calls = [] {
            QDomDocument noRoot;
            plugin()->tranSlideJSON2IWB(noRoot, json("BackColor=#12 AttachFile=a.png"));
            plugin()->tranSlideIWB2JSON({}, {}, {});
            plugin()->tranSlideIWB2JSON({}, xml("<svg:rect fill='rgb(999,-1,x)' fill-opacity='7e9'/>"), {});
            QDomDocument empty("slide");
            plugin()->tranSlideJSON2ZQTX(empty,
                                         json("{'animations':{'animation':['1']},'activity':{'templet':{'<':''}}}"));
            plugin()->tranPresJSON2ZQTX(empty, json("{'Slides':[{'ID':'1'}]}"));
            plugin()->tranPresJSON2IWB(empty, json("Width=1 Height=2"));
        };
        QCOMPARE(messagesOf(calls), 0);
    }
};

QTEST_GUILESS_MAIN(TestSlideIwb)
#include "tst_slideiwb.moc"
