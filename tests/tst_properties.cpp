// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>

namespace {

const int mebibyte = 1024 * 1024;

// For all calls of an input. Sanitizers give memory back late.
const qint64 mostOfMemory = qint64(slowness == 1 ? 264 : 4096) * mebibyte;

const QJsonObject itemContext{{"pres", QJsonObject{{"Version", "3.0"}}}};

// An attribute value that holds the text.
QString quoted(const QString &text)
{
    return '"' + text.toHtmlEscaped() + '"';
}

QString repeated(const QString &piece, int size = mebibyte)
{
    return piece.repeated(size / piece.size());
}

qint64 mostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

// Every way that takes such an element, and what it gives written again: those that take too long.
QStringList slowCalls(const QDomElement &element)
{
    QStringList slow;
    const auto inTime = [&slow](const char *what, const auto &call) {
        if (takesTooLong(call)) {
            slow.append(QLatin1String(what));
        }
    };
    QJsonObject json;
    inTime("item", [&] { json = plugin()->tranItemZQTX2JSON(element, itemContext); });
    inTime("item written", [&] { plugin()->tranItemJSON2ZQTX({}, json); });
    inTime("slide", [&] { json = plugin()->tranSlideZQTX2JSON(element, {}); });
    inTime("slide written", [&] { plugin()->tranSlideJSON2ZQTX({}, json); });
    inTime("raw slide", [&] { json = plugin()->tranSlideXML2JSON(element, {}); });
    inTime("raw slide written", [&] { plugin()->tranSlideJSON2ZQTX({}, json); });
    inTime("raw item", [&] { json = plugin()->tranItemXML2JSON(element, itemContext); });
    inTime("raw item in its slide", [&] {
        plugin()->tranItemXML2JSON(xml("<ZQSmoothStroke NetID=\"1\"/>"), {{"slide", json}});
    });
    inTime("index", [&] { plugin()->tranPresZQTX2JSON(element, {}); });
    inTime("page", [&] { plugin()->tranSlideIWB2JSON(element, element, {}); });
    inTime("IWB item", [&] { json = plugin()->tranItemIWB2JSON(element, {}); });
    QDomDocument document = plugin()->tranPresJSON2IWB({}, {});
    inTime("IWB item written", [&] { plugin()->tranItemJSON2IWB(document, json); });
    return slow;
}

} // namespace

/*!
 * What holds for every conversion, whatever it is given: on large inputs, and without folders.
 */
class TestProperties : public QObject
{
    Q_OBJECT

private slots:
    void takesAMebibyteOfAnything_data()
    {
        const Table<QString> row("text");
        row("points",
            "<stroke type=\"Curve\"><data><vertex points=%1/></data></stroke>"_s.arg(quoted(repeated("1,"_s))));
        row("commas of a box",
            "<text type=\"Text\"><data><rect points=%1/></data></text>"_s.arg(quoted(repeated(","_s))));
        row("properties",
            "<discipline type=\"Math:2dcircle\"><properties>%1</properties></discipline>"_s.arg(
                repeated("<property name=\"Color\" value=\"1,2,3\"/>"_s)));
        row("animations",
            "<stroke type=\"Curve\"><animations>%1</animations></stroke>"_s.arg(repeated("<a b=\"c\"/>"_s)));
        row("group",
            "<group type=\"group\"><data><rect/>%1</data></group>"_s.arg(
                repeated("<stroke type=\"Curve\"><data><rect/></data></stroke>"_s)));
        row("vector drawing",
            "<discipline type=\"Vector:xiaolian\"><ArtVectObj_Manager><ArtVectObj_Path0>%1"
            "</ArtVectObj_Path0></ArtVectObj_Manager></discipline>"_s.arg(repeated("<p x=\"1\"/>"_s)));
        row("mind map", "<mindmap type=\"ZQMindMapItem\">%1</mindmap>"_s.arg(repeated("<node id=\"1\"/>"_s)));
        row("raw children", "<ZQMath2DCircle>%1</ZQMath2DCircle>"_s.arg(repeated("<Point0 x=\"1\" y=\"2\"/>"_s)));
        row("raw group",
            "<ZQGroupItem><GroupSonItems>%1</GroupSonItems></ZQGroupItem>"_s.arg(repeated("<ZQSmoothStroke/>"_s)));

        const auto tags = [&row](const char *name, const QString &text) {
            row(name, "<slide SlideTagsInfo=%1 tagsInfo=%1/>"_s.arg(quoted(text)));
        };
        tags("parts of tags", repeated("|$|"_s));
        tags("scripts", repeated("<interactive><Trigger/></interactive>|$|"_s));
        tags("triggers", "<interactive>%1</interactive>"_s.arg(repeated("<Trigger><ID value=\"1\"/></Trigger>"_s)));
        tags("script without ends", "<interactive>"_s + repeated("<Trigger>"_s));
        tags("deep effect", "<pageEffect>"_s + repeated("<a>"_s));
        QString attributes;
        for (int i = 0; attributes.size() < mebibyte; ++i) {
            attributes += " a%1=\"\""_s.arg(i);
        }
        tags("attributes", "<pageEffect"_s + attributes + "/>"_s);
        tags("entities",
             "<!DOCTYPE x [<!ENTITY e \"%1\">]><pageEffect>%2</pageEffect>"_s.arg(repeated("a"_s, 5000),
                                                                                  repeated("&e;"_s, 1000)));
        tags("entities of elements",
             "<!DOCTYPE x [<!ENTITY e \"%1\">]><pageEffect>%2</pageEffect>"_s.arg("<a>"_s.repeated(1000),
                                                                                  "&e;"_s.repeated(300)));
        tags("brackets of a content model",
             "<?a?><!---><?--><!DOCTYPE x [<!ELEMENT x %1]><pageEffect/>"_s.arg(repeated("("_s)));

        row("game",
            "<slide><activity type=\"1\"><templet/><matchs>%1</matchs></activity></slide>"_s.arg(
                repeated("<match><container/><list/></match>"_s)));
        row("animated items", "<slide><animations>%1</animations></slide>"_s.arg(repeated("<animation id=\"1\"/>"_s)));
        row("index", "<main><slides>%1</slides></main>"_s.arg(repeated("<file href=\"slides/1.xml\"/>"_s)));
        row("records", "<iwb><svg:svg/>%1</iwb>"_s.arg(repeated("<iwb:element ref=\"1\" locked=\"true\"/>"_s)));
        row("text runs", "<svg:textarea>%1</svg:textarea>"_s.arg(repeated("<svg:tspan><![CDATA[a]]></svg:tspan>"_s)));
        row("polyline", "<svg:polyline points=%1/>"_s.arg(quoted(repeated("1,2 "_s))));
    }

    void takesAMebibyteOfAnything()
    {
        QFETCH(QString, text);
        const qint64 memoryBefore = mostMemory();
        QStringList slow;
        for (int tries = 0; tries < 3 && (tries == 0 || !slow.isEmpty()); ++tries) {
            slow = slowCalls(xml(text));
        }
        QCOMPARE(slow, QStringList());
        const qint64 memory = mostMemory() - memoryBefore;
        QVERIFY2(memory < mostOfMemory, qPrintable(QString::number(memory)));
    }

    // Without folders to work in, nothing is written, wherever a file is read from.
    void writesNoFilesOfItsOwnAccord()
    {
        const QTemporaryDir folder;
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const QString file = EXAMPLES_DIR "/geometry/resources/tree.png"_s;
        QDomDocument document = plugin()->tranPresJSON2IWB({}, {});
        for (const QString &type : {"ZQImagePic"_s, "ZQMediaVideo"_s, "ZQMediaAudio"_s}) {
            plugin()->tranItemJSON2IWB(document,
                                       {{"Type", type},
                                        {"AbsMediaFile", file},
                                        {"MultiMediaFile", "a.png"},
                                        {"InteractiveType", "ACTION_OPENFILE"},
                                        {"InteractiveValue", file}});
        }
        plugin()->tranSlideJSON2IWB(document, {{"ID", "1"}, {"index", 1}, {"AttachFile", file}});
        plugin()->tranItemIWB2JSON(xml("<svg:image xlink:href=%1/>"_s.arg(quoted(file))), {});
        QDir::setCurrent(former);
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestProperties)
#include "tst_properties.moc"
