#include "pluginfixture.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("can't write %s", qPrintable(path));
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

int messages = 0;

} // namespace

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
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("txType");
        QTest::newRow("picture") << "ZQImagePic"
                                 << "image";
        QTest::newRow("flash") << "ZQMediaFlash"
                               << "flash";
        QTest::newRow("audio") << "ZQMediaAudio"
                               << "audio";
        QTest::newRow("video") << "ZQMediaVideo"
                               << "video";
        QTest::newRow("document") << "ZQMediaDoc"
                                  << "document";
    }

    void keepsKeysInZqtx()
    {
        QFETCH(QString, type);
        QFETCH(QString, txType);
        QJsonObject item = json("{'name':'n','resource':'r','loop':'1','outlinetype':'2','clipShape':'3',"
                                "'BoundingBox':'1,2,3,4'}");
        item.insert(QStringLiteral("Type"), type);
        const QDomElement media = plugin()->tranItemJSON2ZQTX({}, item);
        QCOMPARE(media.tagName(), QStringLiteral("media"));
        QCOMPARE(differences(attributesOf(media), json("{'name':'n','resource':'r','locked':'0','id':''}")), QString());
        QCOMPARE(media.attribute(QStringLiteral("type")), txType);
        QCOMPARE(media.firstChildElement(QStringLiteral("property")).attribute(QStringLiteral("loop")),
                 QStringLiteral("1"));
        QCOMPARE(differences(plugin()->tranItemZQTX2JSON(media, {}), item), QString());
    }

    void foldsRawScales_data()
    {
        QTest::addColumn<QString>("matrix");
        QTest::addColumn<QJsonObject>("expected");
        // The slide is as large as the page, so nothing but the item's own matrix counts. Left and top come last.
        QTest::newRow("doubled") << "2,0,0,2,5,6" << json("{'BoundingBox':'25,46,65,86','Matrix':'1,0,0,1,0,0'}");
        QTest::newRow("exactly 1") << "1,0,0,1,5,6" << json("{'BoundingBox':'10,20,30,40','Matrix':'1,0,0,1,5,6'}");
    }

    void foldsRawScales()
    {
        QFETCH(QString, matrix);
        QFETCH(QJsonObject, expected);
        const QDomElement raw =
            xml(QStringLiteral("<ZQImagePic Bound='30,40,0,0,10,20' TransformMatrix='%1'/>").arg(matrix));
        const QJsonObject item = plugin()->tranItemXML2JSON(raw, json("{'slide':{'SlideSourceRect':'0,0,1440,1080'}}"));
        QCOMPARE(differences(item, expected), QString());
    }

    void joinsRawFilesWithThePath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("files");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *path, const char *files, const char *expected) {
            QTest::newRow(files) << QString::fromLatin1(path) << QString::fromLatin1(files)
                                 << QString::fromLatin1(expected);
        };
        row("p/q/", "C:\\films\\a.swf|b.swf||", "p/q/a.swf,p/q/b.swf");
        // Only a name with a separator goes to the last separator of the path.
        row("p/q", "films/a.swf;b.swf", "p/a.swf,p/qb.swf");
        row("p/", "a;1.swf|b;2.swf", "p/a;1.swf,p/b;2.swf");
        row("p/", "a.swf|||b.swf", "p/a.swf,,,p/b.swf");
        row("p/", "films/a.swf", "p/a.swf");
        row("p/", "||", "");
    }

    void joinsRawFilesWithThePath()
    {
        QFETCH(QString, path);
        QFETCH(QString, files);
        QFETCH(QString, expected);
        const QDomElement raw = xml(QStringLiteral("<ZQMediaFlash MultiMediaFile='%1'/>").arg(files));
        const QJsonObject item = plugin()->tranItemXML2JSON(raw, {{QStringLiteral("path"), path}});
        QCOMPARE(item.value(QLatin1String("MultiMediaFile")).toString(), expected);
    }

    void exportsFiles_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("directory");
        QTest::newRow("picture") << "ZQImagePic"
                                 << "svg:image"
                                 << "images/";
        QTest::newRow("video") << "ZQMediaVideo"
                               << "svg:video"
                               << "videos/";
        QTest::newRow("flash") << "ZQMediaFlash"
                               << "svg:video"
                               << "videos/";
        QTest::newRow("audio") << "ZQMediaAudio"
                               << "svg:a"
                               << "audio/";
    }

    void exportsFiles()
    {
        QFETCH(QString, type);
        QFETCH(QString, tag);
        QFETCH(QString, directory);
        const QString target = m_directory->path() + QLatin1Char('/') + directory + QLatin1String("a.bin");
        writeFile(file("source/a.bin"), "new");
        const QDomElement element = exported(type, QLatin1String("file:///") + file("source/a.bin"));
        QCOMPARE(element.tagName(), tag);
        QCOMPARE(element.attribute(QStringLiteral("xlink:href")), QString(directory + QLatin1String("a.bin")));
        QCOMPARE(element.attribute(QStringLiteral("width")), QStringLiteral("10"));
        QCOMPARE(contentOf(target), QByteArray("new"));

        // What is there already stays, and the reference is written even for a file that isn't.
        writeFile(target, "old");
        exported(type, file("source/a.bin"));
        QCOMPARE(contentOf(target), QByteArray("old"));
        const QDomElement missing = exported(type, file("nowhere/a.bin"));
        QCOMPARE(missing.attribute(QStringLiteral("xlink:href")), QString(directory + QLatin1String("a.bin")));
    }

    // Odd names and devices lead to no file and no message of Qt's.
    void staysSilentAboutOddNames()
    {
        messages = 0;
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
        const QStringList names = {QString(),
                                   QStringLiteral(".."),
                                   QStringLiteral("a/"),
                                   QString(1, QChar::Null),
                                   QStringLiteral("file:///"),
                                   QStringLiteral("/dev/null")};
        for (const QString &name : names) {
            QDomDocument document;
            for (const QString &package : {m_directory->path(), QString(), QString(1, QChar::Null)}) {
                const QDomElement element =
                    plugin()->tranItemJSON2IWB(document,
                                               {{QStringLiteral("Type"), QStringLiteral("ZQMediaVideo")},
                                                {QStringLiteral("AbsMediaFile"), name},
                                                {QStringLiteral("MultiMediaFile"), name},
                                                {QStringLiteral("InteractiveType"), QStringLiteral("ACTION_OPENFILE")},
                                                {QStringLiteral("InteractiveValue"), name},
                                                {QStringLiteral("tmpFilePath"), package}});
                QCOMPARE(element.attribute(QStringLiteral("xlink:href")), QString());
                plugin()->tranItemIWB2JSON(element, {{QStringLiteral("path"), package}});
            }
        }
        qInstallMessageHandler(before);
        QCOMPARE(messages, 0);
        QVERIFY(!QDir(QStringLiteral("/videos")).exists());
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList(QStringLiteral("videos")));
        QVERIFY(QDir(file("videos")).isEmpty());
    }

    void exportsNoDocuments() { QVERIFY(exported(QStringLiteral("ZQMediaDoc"), file("a.bin")).isNull()); }

    void importsFiles_data()
    {
        QTest::addColumn<QString>("svg");
        QTest::addColumn<QJsonObject>("expected");
        QTest::addColumn<bool>("copies");
        const auto row = [](const char *name, const char *svg, const char *expected, bool copies) {
            QTest::newRow(name) << QString::fromLatin1(svg) << json(expected) << copies;
        };
        row("picture: 20 + 100 and 1.5 + 2",
            "<svg:image xlink:href='images/a.SWF' x='20' y='1.5' width='100' height='2'/>",
            "{'Type':'ZQImagePic','MultiMediaFile':'a.SWF','saveType':'local','path':null,"
            "'BoundingBox':'20,1.5,120,3.5'}",
            true);
        row("flash", "<svg:video xlink:href='images/a.SWF'/>", "{'Type':'ZQMediaFlash','BoundingBox':',,0,0'}", true);
        row("video that isn't there", "<svg:video xlink:href='videos/b.mp4'/>",
            "{'Type':'ZQMediaVideo','MultiMediaFile':'b.mp4','saveType':'local'}", false);
        row("audio", "<svg:a xlink:href='images/a.SWF' transform='rotate(2,3,4)'/>",
            "{'Type':'ZQMediaAudio','Angle':'2','InteractiveType':null}", true);
        row("from the web", "<svg:image xlink:href='http://b.example/a.SWF'/>",
            "{'Type':'ZQImagePic','MultiMediaFile':'http://b.example/a.SWF','saveType':null,'path':null}", false);
    }

    void importsFiles()
    {
        QFETCH(QString, svg);
        QFETCH(QJsonObject, expected);
        QFETCH(bool, copies);
        writeFile(file("package/images/a.SWF"), "film");
        QDir().mkpath(file("filelibrary"));
        const QJsonObject item = plugin()->tranItemIWB2JSON(xml(svg), {{QStringLiteral("path"), file("package/")}});
        QCOMPARE(differences(item, expected), QString());
        QCOMPARE(contentOf(file("filelibrary/a.SWF")), QByteArray(copies ? "film" : "no file"));
    }

    void readsLinksAroundItems_data()
    {
        QTest::addColumn<QString>("href");
        QTest::addColumn<QJsonObject>("expected");
        const auto row = [](const char *href, const char *expected) {
            QTest::newRow(href) << QString::fromLatin1(href) << json(expected);
        };
        row("https://b.example/", "{'InteractiveType':'ACTION_OPENWEB','InteractiveValue':'https://b.example/'}");
        row("txt://http", "{'InteractiveType':'ACTION_TOOLTIP','InteractiveValue':'http'}");
        row("#page12", "{'InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'12'}");
        row("ab#page12", "{'InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'ge12'}");
        row("tool://clock", "{'InteractiveType':'ACTION_OPENTOOL','InteractiveValue':'clock'}");
        row("additional/a.txt", "{'InteractiveType':'ACTION_OPENFILE','InteractiveValue':'p/additional/a.txt'}");
        row("additional/a.pdf", "{'InteractiveType':null,'InteractiveValue':null}");
    }

    void readsLinksAroundItems()
    {
        QFETCH(QString, href);
        QFETCH(QJsonObject, expected);
        const QDomElement link =
            xml(QStringLiteral("<svg:a xlink:href='%1'>text<svg:circle cx='1'/><svg:line/></svg:a>").arg(href));
        QJsonObject item = plugin()->tranItemIWB2JSON(link, json("{'path':'p/'}"));
        QCOMPARE(differences(item, expected), QString());
        QCOMPARE(item.value(QLatin1String("Type")).toString(), QStringLiteral("ZQMath2DCircle"));

        // Without an element inside, the link alone is read; of a link in a link, the outer one holds.
        item = plugin()->tranItemIWB2JSON(xml(QStringLiteral("<svg:a xlink:href='%1'>text</svg:a>").arg(href)),
                                          json("{'path':'p/'}"));
        QCOMPARE(differences(item, expected), QString());
        QVERIFY(!item.contains(QLatin1String("Type")));
    }

    // The writer of links and the reader of them agree, and an audio item's own element isn't taken for a link.
    void wrapsAudioInALink()
    {
        QDomDocument document;
        document.appendChild(document.createElement(QStringLiteral("iwb")));
        const QDomElement link =
            plugin()->tranItemJSON2IWB(document,
                                       {{QStringLiteral("Type"), QStringLiteral("ZQMediaAudio")},
                                        {QStringLiteral("ID"), QStringLiteral("5")},
                                        {QStringLiteral("MultiMediaFile"), QStringLiteral("a.mp3")},
                                        {QStringLiteral("tmpFilePath"), m_directory->path()},
                                        {QStringLiteral("InteractiveType"), QStringLiteral("ACTION_GOTOSLIDE")},
                                        {QStringLiteral("InteractiveValue"), QStringLiteral("3")}});
        QCOMPARE(toText(attributesOf(link)), toText(json("{'id':'5_link','xlink:href':'#page3'}")));
        QCOMPARE(toText(attributesOf(document.documentElement().firstChildElement(QStringLiteral("iwb:link")))),
                 toText(json("{'ref':'5_link','file':'internal'}")));
        QCOMPARE(differences(plugin()->tranItemIWB2JSON(link, {}),
                             json("{'Type':'ZQMediaAudio','ID':'5','MultiMediaFile':'a.mp3',"
                                  "'InteractiveType':'ACTION_GOTOSLIDE','InteractiveValue':'3'}")),
                 QString());
    }

private:
    QString file(const char *name) const { return m_directory->path() + QLatin1Char('/') + QLatin1String(name); }

    QDomElement exported(const QString &type, const QString &source) const
    {
        QDomDocument document;
        return plugin()->tranItemJSON2IWB(document,
                                          {{QStringLiteral("Type"), type},
                                           {QStringLiteral("AbsMediaFile"), source},
                                           {QStringLiteral("MultiMediaFile"), QStringLiteral("some/where/a.bin")},
                                           {QStringLiteral("BoundingBox"), QStringLiteral("0,0,10,20")},
                                           {QStringLiteral("Matrix"), QStringLiteral("1,0,0,1,0,0")},
                                           {QStringLiteral("tmpFilePath"), m_directory->path()}});
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

QTEST_GUILESS_MAIN(TestMedia)
#include "tst_media.moc"
