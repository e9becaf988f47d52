// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QDateTime>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/*!
 * Pictures, Flash, audio, video and documents: their ZQTX form, the files that move with them to and from IWB packages,
 * and the links around items.
 */
class TestMedia : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void keepsKeysInZqtx_data()
    {
        const Table<QString, QString> row("type", "txType");
        row("picture", "ZQImagePic", "image");
        row("flash", "ZQMediaFlash", "flash");
        row("audio", "ZQMediaAudio", "audio");
        row("video", "ZQMediaVideo", "video");
        row("document", "ZQMediaDoc", "document");
    }

    void keepsKeysInZqtx()
    {
        QFETCH(QString, type);
        QJsonObject item = json("name=n resource=r loop=1 outlinetype=2 clipShape=3 BoundingBox=1,2,3,4");
        item.insert("Type", type);
        const QDomElement media = plugin()->tranItemJSON2ZQTX({}, item);
        QCOMPARE(media.tagName(), "media");
        QCOMPARE(differences(attributesOf(media), json("name=n resource=r locked=0 id=")), QString());
        QTEST(media.attribute("type"), "txType");
        QCOMPARE(media.firstChildElement("property").attribute("loop"), "1");
        QCOMPARE(differences(plugin()->tranItemZQTX2JSON(media, {}), item), QString());
    }

    void joinsRawListsOfFilesWithThePath_data()
    {
        const Table<QString, QString> row("path", "expected");
        row("C:\\films\\a.swf|b.swf||", "p/q/", "p/q/a.swf,p/q/b.swf");
        // Only a name with a separator goes to the last separator of the path.
        row("films/a.swf;b.swf", "p/q", "p/a.swf,p/qb.swf");
        row("a;1.swf|b;2.swf", "p/", "p/a;1.swf,p/b;2.swf");
        row("a.swf|||b.swf", "p/", "p/a.swf,,,p/b.swf");
        row("||", "p/", "");
        row(";", "p/", "");
        row("C:\\films\\a.swf", "p/", "C:\\films\\a.swf");
    }

    void joinsRawListsOfFilesWithThePath()
    {
        QFETCH(QString, path);
        const QDomElement raw = xml("<ZQMediaFlash MultiMediaFile='%1'/>"_s.arg(QTest::currentDataTag()));
        const QJsonObject item = plugin()->tranItemXML2JSON(raw, {{"path", path}});
        QTEST(item.value("MultiMediaFile").toString(), "expected");
    }

    void exportsFiles_data()
    {
        const Table<QString, QString, QString> row("type", "tag", "directory");
        row("picture", "ZQImagePic", "svg:image", "images/");
        row("video", "ZQMediaVideo", "svg:video", "videos/");
        row("flash", "ZQMediaFlash", "svg:video", "videos/");
        row("audio", "ZQMediaAudio", "svg:a", "audio/");
    }

    void exportsFiles()
    {
        const auto [type, tag, directory] = Table<QString, QString, QString>::cells();
        const QString target = m_directory->path() + '/' + directory + "a.bin"_s;
        putFile(file("source/a.bin"), "new");
        const QDomElement element = exported(type, "file:///"_s + file("source/a.bin"));
        QCOMPARE(element.tagName(), tag);
        QCOMPARE(element.attribute("xlink:href"), QString(directory + "a.bin"_s));
        QCOMPARE(element.attribute("width"), "10");
        QCOMPARE(fileContent(target), QByteArray("new"));

        // What is there already stays, and the reference is written even for a file that isn't.
        putFile(target, "old");
        exported(type, file("source/a.bin"));
        QCOMPARE(fileContent(target), QByteArray("old"));
        const QDomElement missing = exported(type, file("nowhere/a.bin"));
        QCOMPARE(missing.attribute("xlink:href"), QString(directory + "a.bin"_s));
    }

    // Odd names and devices lead to no file and no message of Qt's.
    void staysSilentAboutOddNames()
    {
        const QStringList names{{}, "..", "a/", QChar(QChar::Null), "file:///", "/dev/null"};
        // A package without a name isn't the root of the machine. What others left there is none of our business.
        const auto videosOfTheMachine = [] { return QFileInfo("/videos"_s).birthTime(); };
        const QDateTime before = videosOfTheMachine();
        for (const QString &name : names) {
            for (const QString &package : {m_directory->path(), QString(), QString(QChar::Null)}) {
                QDomDocument document;
                QDomElement element;
                const QJsonObject item{{"Type", "ZQMediaVideo"},   {"AbsMediaFile", name},
                                       {"MultiMediaFile", name},   {"InteractiveType", "ACTION_OPENFILE"},
                                       {"InteractiveValue", name}, {"tmpFilePath", package}};
                QCOMPARE(messagesOf([&] {
                             element = plugin()->tranItemJSON2IWB(document, item);
                             plugin()->tranItemIWB2JSON(element, {{"path", package}});
                         }),
                         0);
                QCOMPARE(element.attribute("xlink:href"), QString());
            }
        }
        QCOMPARE(videosOfTheMachine(), before);
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList("videos"_s));
        QVERIFY(QDir(file("videos")).isEmpty());
    }

    void exportsNoDocuments() { QVERIFY(exported("ZQMediaDoc"_s, file("a.bin")).isNull()); }

    void importsFiles_data()
    {
        const Table<QString, QJsonObject, bool> row("svg", "expected", "copies");
        row("picture: 20 + 100 and 1.5 + 2",
            "<svg:image xlink:href='images/a.SWF' x='20' y='1.5' width='100' height='2'/>",
            "Type=ZQImagePic MultiMediaFile=a.SWF saveType=local path=null BoundingBox=20,1.5,120,3.5", true);
        row("flash", "<svg:video xlink:href='images/a.SWF'/>", "Type=ZQMediaFlash BoundingBox=,,0,0", true);
        row("video that isn't there", "<svg:video xlink:href='videos/b.mp4'/>",
            "Type=ZQMediaVideo MultiMediaFile=b.mp4 saveType=local", false);
        row("audio", "<svg:a xlink:href='images/a.SWF' transform='rotate(2,3,4)'/>",
            "Type=ZQMediaAudio Angle=2 InteractiveType=null", true);
        row("from the web", "<svg:image xlink:href='http://b.example/a.SWF'/>",
            "Type=ZQImagePic MultiMediaFile=http://b.example/a.SWF saveType=null path=null", false);
    }

    void importsFiles()
    {
        const auto [svg, expected, copies] = Table<QString, QJsonObject, bool>::cells();
        putFile(file("package/images/a.SWF"), "film");
        QDir().mkpath(file("filelibrary"));
        const QJsonObject item = plugin()->tranItemIWB2JSON(xml(svg), {{"path", file("package/")}});
        QCOMPARE(differences(item, expected), QString());
        QCOMPARE(fileContent(file("filelibrary/a.SWF")), QByteArray(copies ? "film" : ""));
    }

    void readsLinksAroundItems_data()
    {
        QTest::addColumn<QString>("href");
        QTest::addColumn<QJsonObject>("expected");
        const auto row = [](const char *href, const char *expected) { QTest::newRow(href) << href << json(expected); };
        row("https://b.example/", "InteractiveType=ACTION_OPENWEB InteractiveValue=https://b.example/");
        row("txt://http", "InteractiveType=ACTION_TOOLTIP InteractiveValue=http");
        row("#page12", "InteractiveType=ACTION_GOTOSLIDE InteractiveValue=12");
        row("ab#page12", "InteractiveType=ACTION_GOTOSLIDE InteractiveValue=ge12");
        row("tool://clock", "InteractiveType=ACTION_OPENTOOL InteractiveValue=clock");
        row("additional/a.txt", "InteractiveType=ACTION_OPENFILE InteractiveValue=p/additional/a.txt");
        row("additional/a.pdf", "InteractiveType=null InteractiveValue=null");
    }

    void readsLinksAroundItems()
    {
        QFETCH(QJsonObject, expected);
        const QString href = QTest::currentDataTag();
        const QDomElement link = xml("<svg:a xlink:href='%1'>text<svg:circle cx='1'/><svg:line/></svg:a>"_s.arg(href));
        QJsonObject item = plugin()->tranItemIWB2JSON(link, json("path=p/"));
        QCOMPARE(differences(item, expected), QString());
        QCOMPARE(item.value("Type").toString(), "ZQMath2DCircle");

        // Without an element inside, the link alone is read; of a link in a link, the outer one holds.
        item =
            plugin()->tranItemIWB2JSON(xml("<svg:a xlink:href='%1'>text</svg:a>"_s.arg(href)), json("{'path':'p/'}"));
        QCOMPARE(differences(item, expected), QString());
        QVERIFY(!item.contains("Type"));
    }

    // The writer of links and the reader of them agree, and an audio item's own element isn't taken for a link.
    void wrapsAudioInALink()
    {
        QDomDocument document;
        document.appendChild(document.createElement("iwb"));
        const QDomElement link = plugin()->tranItemJSON2IWB(document,
                                                            {{"Type", "ZQMediaAudio"},
                                                             {"ID", "5"},
                                                             {"MultiMediaFile", "a.mp3"},
                                                             {"tmpFilePath", m_directory->path()},
                                                             {"InteractiveType", "ACTION_GOTOSLIDE"},
                                                             {"InteractiveValue", "3"}});
        QCOMPARE(toText(attributesOf(link)), toText(json("id=5_link xlink:href=#page3")));
        QCOMPARE(toText(attributesOf(document.documentElement().firstChildElement("iwb:link"))),
                 toText(json("ref=5_link file=internal")));
        QCOMPARE(
            differences(
                plugin()->tranItemIWB2JSON(link, {}),
                json(
                    "Type=ZQMediaAudio ID=5 MultiMediaFile=a.mp3 InteractiveType=ACTION_GOTOSLIDE InteractiveValue=3")),
            QString());
    }

private:
    QString file(const char *name) const { return m_directory->path() + '/' + name; }

    QDomElement exported(const QString &type, const QString &source) const
    {
        QDomDocument document;
        return plugin()->tranItemJSON2IWB(document,
                                          {{"Type", type},
                                           {"AbsMediaFile", source},
                                           {"MultiMediaFile", "some/where/a.bin"},
                                           {"BoundingBox", "0,0,10,20"},
                                           {"Matrix", "1,0,0,1,0,0"},
                                           {"tmpFilePath", m_directory->path()}});
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

QTEST_GUILESS_MAIN(TestMedia)
#include "tst_media.moc"
