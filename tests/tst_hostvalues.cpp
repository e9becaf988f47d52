// SPDX-License-Identifier: MIT
#include "files/compactjson.h"
#include "files/lessonerror.h"
#include "files/paintedpng.h"
#include "files/xmlbuilder.h"
#include "files/xmlloader.h"
#include "files/xmlreadback.h"
#include "files/xmltext.h"
#include "formats/zqtxitems.h"
#include "iwb/shapeplacing.h"
#include "lesson/itemkeys.h"
#include "lesson/itemview.h"
#include "lesson/numbertexts.h"
#include "lesson/shapeforms.h"
#include "lesson/strokeoffsets.h"
#include "losses/carriedcheck.h"
#include "losses/jsontext.h"
#include "losses/lossreport.h"
#include "losses/modelvalues.h"
#include "pluginfixture.h"
#include "svg/pluginoutlines.h"
#include "svg/svgvalues.h"
#include "threads/readahead.h"
#include "threads/workbehind.h"

#include <QBuffer>
#include <QImage>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>

using namespace lessonhost;

namespace {

// Takes so many pieces, and then tells that it doesn't, or throws.
class FullDevice : public QBuffer
{
public:
    FullDevice(int pieces, bool throws)
        : m_left(pieces)
        , m_throws(throws)
    {
        open(WriteOnly);
    }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        if (m_left-- == 0 && m_throws) {
            throw LessonError(Sentence("full"));
        }
        return m_left < 0 ? -1 : QBuffer::writeData(data, size);
    }

private:
    int m_left;
    bool m_throws;
};

} // namespace

/*!
 * Values that the plug-in alone would lose or change on their way into ZQTX and back.
 */
class TestHostValues : public QObject
{
    Q_OBJECT

private:
    // Through the text of the document, as a file would go.
    static QJsonObject writtenAndRead(const QJsonObject &item, const QString &version = "3.0")
    {
        const QJsonObject presentation{{"Version", version}};
        const ZqtxItems items(plugin(), presentation);
        const QDomElement element = items.write(item);
        if (element.tagName() == "item") {
            return {}; // held as JSON, since no translator knew it
        }
        const QDomDocument document = loadXml(xmlDocumentText(element), {});
        return items.read(document.documentElement(), {{"pres", presentation}}, nullptr);
    }

    static bool isSameTree(const QDomNode &one, const QDomNode &other)
    {
        const QDomNamedNodeMap attributes = one.attributes();
        bool isSame = one.nodeType() == other.nodeType() && one.nodeName() == other.nodeName()
            && one.nodeValue() == other.nodeValue() && attributes.count() == other.attributes().count();
        for (int i = 0; isSame && i < attributes.count(); ++i) {
            const QString name = attributes.item(i).nodeName();
            isSame = one.toElement().attribute(name) == other.toElement().attribute(name, "?");
        }
        QDomNode partner = other.firstChild();
        for (QDomNode child = one.firstChild(); isSame && !child.isNull(); child = child.nextSibling()) {
            isSame = isSameTree(child, partner);
            partner = partner.nextSibling();
        }
        return isSame && partner.isNull();
    }

private slots:
    // Whichever thread makes them, parts and failures come when they are asked for.
    void readAheadInOrder()
    {
        for (const bool isAhead : {false, true}) {
            QStringList told;
            ReadAhead<QString> parts(isAhead, [](int index) {
                if (index == 2) {
                    throw LessonError(Sentence("two"));
                }
                return QString::number(index * index);
            });
            for (const int index : {0, 1, 2, 3, 4, 1, 0, 1, 3, 2, 3}) {
                try {
                    told.append(parts.take(index, 5));
                } catch (const LessonError &error) {
                    told.append(error.problem().english());
                }
            }
            QCOMPARE(told.join(' '), QString("0 1 two 9 16 1 0 1 9 two 9"));
        }
    }

    // Little waits, all is done at the end, and a failure is told once, and no work begun after it.
    void workBehindOthers()
    {
        for (const bool isBehind : {false, true}) {
            constexpr qint64 bytes = 8 * 1024 * 1024;
            std::atomic<int> held{0}, most{0}, done{0};
            WorkBehind work(isBehind);
            const auto give = [&](bool fails) {
                most = qMax(int(most), ++held);
                work.give(bytes, [&, fails] {
                    --held;
                    ++done;
                    if (fails) {
                        throw LessonError(Sentence("full"));
                    }
                });
            };
            for (int i = 0; i < 1000; ++i) {
                give(false);
            }
            work.finish();
            QCOMPARE(int(done), 1000);
            QVERIFY2(most <= 3, qPrintable(QString::number(most))); // one is being given
            const auto failing = [&] {
                for (int i = 0; i < 1000; ++i) {
                    give(i == 10);
                }
                work.finish();
            };
            QVERIFY_EXCEPTION_THROWN(failing(), LessonError);
            QVERIFY2(done >= 1011 && done < 1020, qPrintable(QString::number(done)));
            QVector<int> order;
            WorkBehind ordered(isBehind, WorkBehind::Order::AsGiven);
            const auto failAt = [&](int last) {
                for (int i = 0; i < 1000; ++i) {
                    ordered.give(1, [&order, i, last] {
                        order.append(i); // of one thread at a time
                        if (i == last) {
                            throw LessonError(Sentence("full"));
                        }
                    });
                }
                ordered.finish();
            };
            QVERIFY_EXCEPTION_THROWN(failAt(500), LessonError);
            QVERIFY(order.size() == 501 && std::is_sorted(order.cbegin(), order.cend()));
            WorkBehind unequal(isBehind);
            const auto failIn = [&](int milliseconds, const char *name) {
                unequal.give(bytes, [milliseconds, name] {
                    QThread::msleep(milliseconds);
                    throw LessonError(Sentence(name));
                });
            };
            try {
                failIn(100, "slow");
                failIn(0, "quick");
                unequal.finish();
                QFAIL("no failure");
            } catch (const LessonError &error) {
                QCOMPARE(error.problem().english(), QString("slow")); // it was given first
            }
        }
    }

    void packPaintedPictures()
    {
        QRandomGenerator random(1);
        for (const QImage::Format format :
             {QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32, QImage::Format_RGB32, QImage::Format_RGB16}) {
            for (const bool isShaded : {false, true}) {
                QImage image(1 + int(random.bounded(300)), 1 + int(random.bounded(300)), QImage::Format_ARGB32);
                image.setDotsPerMeterX(1000);
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        image.setPixel(x, y, isShaded ? qRgba(x, y, x, 255 - x / 3) : random.bounded(3U) * 0x55807fU);
                    }
                }
                image = image.convertToFormat(format);
                QBuffer ours, theirs;
                QVERIFY(ours.open(QIODevice::ReadWrite) && theirs.open(QIODevice::ReadWrite));
                QVERIFY(writePaintedPng(image, &ours) && image.save(&theirs, "png"));
                const QImage back = QImage::fromData(ours.data(), "png");
                QCOMPARE(back, QImage::fromData(theirs.data(), "png"));
                QCOMPARE(back.dotsPerMeterX(), 1000);
                QCOMPARE(ours.data().left(54), theirs.data().left(54)); // what stands before the pixels
                QCOMPARE(ours.data() == theirs.data(), isShaded || format == QImage::Format_RGB16);
            }
        }
        QBuffer none;
        QVERIFY(none.open(QIODevice::WriteOnly) && !writePaintedPng({}, &none));
        // Packed as a whole and by lines: a failure at any of the pieces that go out.
        for (const QSize size : {QSize(300, 200), QSize(2100, 2100)}) {
            QImage noise(size, QImage::Format_RGB32);
            noise.fill(Qt::black);
            std::generate_n(reinterpret_cast<QRgb *>(noise.bits()), 300 * 200, [&random] { return random.generate(); });
            int pieces = 0;
            QByteArray written;
            while (written.isEmpty()) {
                FullDevice full(pieces, false), throwing(pieces, true);
                if (writePaintedPng(noise, &full)) {
                    written = full.data();
                } else {
                    QVERIFY_EXCEPTION_THROWN(writePaintedPng(noise, &throwing), LessonError);
                    pieces += noise.width() > 1000 ? 10 : 1;
                }
            }
            QVERIFY2(pieces > 10, qPrintable(QString::number(pieces)));
            QCOMPARE(QImage::fromData(written, "png").convertToFormat(noise.format()), noise);
        }
    }

    // Texts that are read by expat, and those that are left to Qt's parser: both ways they give the same tree.
    void plainXmlAsParsed_data()
    {
        const auto row = [](const char *text, const char *reader) { QTest::newRow(text) << QByteArray(text) << QByteArray(reader); };
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("reader");
        for (const char *text :
             {"<?xml version='1.0' encoding='utf-8'?>\r\n<a b='1' c=\"'\"  d = '\"'\n/>", "<s:a s:b=''><c.d-e/>\n </s:a >\n",
              "<a b='&lt;&gt;&amp;&quot;&apos;&#10;&#x4e2d;&#13;&#9;' c='x\r\ny\tz\n\r'/>", "\xef\xbb\xbf<a>\xe4\xb8\xad>]]</a>",
              "<a>x&#32;<!-- - > -->\r\ny\rz&lt;<![CDATA[<&lt;>]]]>\n<![CDATA[\r]]><b/> t</a><!--\xe4\xb8\xad-->",
              "<a b='\xf0\x9f\x98\x80\xef\xbc\x8c'>\xc2\xa0\x7f&#127;</a>", "<a>\xef\xbf\xbd&#x1F600;<![CDATA[&\r]]></a>",
              "<?xml version='1.0' standalone='yes'?><a/>"}) {
            row(text, "plain");
        }
        for (const char *text : {"<?pi?><a/>", "<?xml version='1.0' encoding='latin1'?><a>\xe4</a>", " <a/>",
                                 "<\xe4\xb8\xad/>", "<a b='1' \xc3\xa4='2'/>", "<a>\xef\xbb\xbf</a>"}) {
            row(text, "parser");
        }
        for (const char *text :
             {"", "<a>", "<a/><a/>", " <?xml version='1.0'?><a/>", "<a/>x", "<a b='1' b='2'/>", "<a b='1'c='2'/>", "<a b='<'/>", "<a b/>", "<a></b>",
              "<a>]]></a>", "<a>&b;</a>", "<a>&#0;</a>", "<a>&#xd800;</a>", "<a>\xff</a>", "<a>\xed\xa0\x80</a>",
              "<a>\x01</a>", "<a b='\x02'/>", "<a><!-- -- --></a>", "<a><!-- \x03 --></a>", "<a:b:c/>", "<:a/>", "<a:/>",
              "<a:1/>", "<1/>", "< a/>", "<a / >", "</a>", "<a><![CDATA[x]]</a>", "<!DOCTYPE a><a/>", "<a>&#xFFFE;</a>",
              "<?xml version='1.1'?><a/>", "<?xml version='1.0' encoding='utf-16'?><a/>", "<![CDATA[x]]><a/>"}) {
            row(text, "refused");
        }
        QTest::newRow("long declaration")
            << QByteArray("<?xml" + QByteArray(2000, ' ') + "version='1.0'?><a/>") << QByteArray("refused");
        QByteArray pieces("<a>"); // as they come from the disk
        for (int i = 0; i < 30; ++i) {
            pieces += "<b c='" + QByteArray(i * 10000, 'x') + "'>" + QByteArray(i * 9000, 'y') + "<![CDATA[z]]>&lt;</b>\n";
        }
        QTest::newRow("pieces") << QByteArray(pieces + "</a>") << QByteArray("plain");
    }

    void plainXmlAsParsed()
    {
        struct Builder : XmlBuilder
        {
            using XmlBuilder::XmlBuilder;
            void beginParsing(XmlSource &) override { isPlain = false; }
            bool isPlain = true;
        };
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, reader);
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        QString refusals[2];
        QDomDocument documents[2];
        bool isPlain = false;
        for (const int i : {0, 1}) {
            buffer.seek(0);
            Builder builder(&buffer, "a.xml");
            try {
                documents[i] = i == 0 ? builder.build() : builder.parse();
            } catch (const LessonError &error) {
                refusals[i] = error.message().english();
            }
            isPlain = isPlain || builder.isPlain;
        }
        QCOMPARE(QByteArray(isPlain ? "plain" : refusals[1].isEmpty() ? "parser" : "refused"), reader);
        QCOMPARE(refusals[0], refusals[1]);
        QVERIFY(isSameTree(documents[0], documents[1]));
    }

    // Trees that a text can't hold, and texts that are no longer those of their tree.
    void readBackWithoutParser()
    {
        const QStringList values{"a", "b c", "<&>\"'", "\u00e9\u4e2d\U0001f600", "\n\t", "x\ny", "", " ", "\r", "]]>", "]",
                                 QString(QChar(1)), QString(QChar(0xfffe)), QString(QChar(0xd800)), "\ufffd"};
        const QString letters = "<>&\"/=! \n\ra1]-;#x";
        QRandomGenerator random(1);
        const auto anyOf = [&random](const auto &list) { return list.at(int(random.bounded(list.size()))); };
        int told = 0;
        for (int round = 0; round < 20000; ++round) {
            const bool isPlain = round % 2 == 0; // values and a text that nothing is wrong with
            const auto anyValue = [&] { return isPlain ? values.at(int(random.bounded(4))) : anyOf(values); };
            QDomDocument document;
            QDomElement at = document.appendChild(document.createElement("r")).toElement();
            for (int step = int(random.bounded(8)); step > 0; --step) {
                const int kind = int(random.bounded(isPlain ? 3 : 6));
                if (kind == 0) {
                    at.setAttribute(anyOf(QStringList{"a", "id", "type", "b-1"}), anyValue());
                } else if (kind == 1) {
                    at = at.appendChild(document.createElement(anyOf(QStringList{"e", "f.2"}))).toElement();
                } else if (kind == 2 && at.parentNode().isElement()) {
                    at = at.parentNode().toElement();
                } else if (kind == 3 || kind == 4) {
                    at.appendChild(document.createTextNode(anyValue()));
                } else if (kind == 5) {
                    at.appendChild(document.createCDATASection(anyValue()));
                }
            }
            if (isPlain && !at.hasChildNodes()) {
                at.appendChild(document.createTextNode(anyValue()));
            }
            QString text = QString::fromUtf8(xmlDocumentText(document.documentElement()));
            if (!isPlain && random.bounded(2) == 0) {
                const int place = int(random.bounded(text.size()));
                text.replace(place, int(random.bounded(2)), random.bounded(3) == 0 ? QString() : QString(anyOf(letters)));
            }
            const bool isSame = readsBackAs(text.toUtf8(), document.documentElement());
            QVERIFY2(isSame || !isPlain, qPrintable(text));
            if (isSame) {
                ++told;
                try {
                    QVERIFY2(isSameTree(loadXml(text.toUtf8(), {}), document), qPrintable(text));
                    QVERIFY(readsBackAs(text.mid(text.indexOf("?>") + 2), document.documentElement()));
                } catch (const LessonError &error) {
                    QFAIL(qPrintable(text + error.message().english()));
                }
            }
        }
        QVERIFY(told > 11000 && told < 19000);
    }

    void survive_data()
    {
        const Table<QJsonObject> row("item"); // with the version of its lesson, 3.0 unless told
        row("nested items that nobody knows",
            "{'Type':'ZQGroupItem','Children':[{'Type':'x','KeptXml':'<a type=\\'x\\'><b>c</b></a>'},"
            "{'Type':'ZQSmoothStroke','ID':'2'},{'Type':'ZQFuture','ID':'3','Wings':[1,2]}]}");
        row("box of a version 2 group", "Version=2.0 Type=ZQGroupItem BoundingBox=1,2,3,4");
        row("steps of an old stroke", "Version=2.9 Type=ZQSmoothStroke XY=1000.12,-3,0.333313,0.25,-0.666687,1e+06");
        row("blanks alone",
            "{'Type':'ZQQuestionItem','R_Content_svg':'  ','R_Answer_svg':'\\n','page_state':'\u00a0'}");
        row("wrong answer of a flip card",
            "{'Type':'ZQActivityFlipItem','attachments':{'back':'<&','front':'f','error':'e'}}");
        row("a type that is only written", "Type=ZQChemistryExpressions ArtObj_Mh=5");
        row("points of a figure", "Type=ZQShapeFeiji IgnoredControl=1,2");
        row("text of a circle, angle of a card", "Type=ZQMath2DCircle TextHtml=<b>x</b>");
        row("angle of a card", "Type=ZQLiteraturePinyin Angle=0.5 ChineseWord=<");
        row("flags, link and animations of other names",
            "{'Type':'ZQSmoothStroke','Visible':false,'InteractiveValue':'<&>\\t\\n\\r','InteractiveType':'ACTION_"
            "TOOLTIP',"
            "'animations':{'appearance':{'a':'1'},'emphasis':{},'disappearance':{},'path':{'x':'2'}}}");
    }

    // What stands in for Qt's own ways, to the bit and to the letter: numbers halfway between two texts and beside
    // them, at the ends of what is printed plainly, and texts that are none or nearly none.
    void numbersAreThoseOfQt()
    {
        QRandomGenerator random(20);
        QVector<double> numbers{0.0, -0.0, 1e-3, 999999.5, -99999.5, 1e6, 123456, 2.5, 5e-324, 1e300, qInf(), qQNaN()};
        QStringList texts{"", "-", "+1", " 1", "1e", "1E5", "1e400", "1e-400", "1.", ".5", ".", "1.5.5", "-0", "nan",
                          "1,5", "e5", "9007199254740993", "0.0000000000000000000000000000000001"};
        for (int i = 0; i < 20000; ++i) {
            const double number = (random.generateDouble() - 0.5) * std::pow(10, random.bounded(-5, 9));
            numbers << number << std::floor(number * 4096) / (1 << random.bounded(18)) << double(float(number))
                    << QString::number(number, 'f', random.bounded(8)).toDouble()
                    << numbers.last() - QString::number(number / 2, 'f', 5).toDouble();
            texts << QString::number(number, 'g', random.bounded(18)) << QString::number(number, 'f', 9).mid(i % 12);
        }
        int separated = 0;
        for (int i = 0; i < texts.size(); ++i) {
            const QString given = texts.at(i) + ',' + numberText(numbers.value(i), 6) + " 7,0.5";
            QString text = given;
            const bool isPlain = separateCoordinates(text, 6, ',', ' ');
            QCOMPARE(text, isPlain ? coordinateTexts(pointsOf(svgNumbers(given)), 6, ',', ' ') : given);
            separated += isPlain ? 1 : 0;
        }
        QVERIFY(separated > 1000);
        for (const double number : qAsConst(numbers)) {
            for (const int digits : {1, 5, 6, 10, 12}) {
                const QString text = numberText(number, digits);
                QCOMPARE(text, QString::number(number, 'g', digits));
                // All digits and the sign of a zero, too.
                QCOMPARE(QString::number(numberInDigits(number, digits), 'g', 17),
                         QString::number(numberOfText(text), 'g', 17));
            }
            QCOMPARE(shortestNumberText(number), QString::number(number, 'g', QLocale::FloatingPointShortest));
        }
        for (const QString &text : qAsConst(texts)) {
            bool isRead = false;
            bool isNumber = false;
            const double found = numberOfText(text, &isRead);
            const double number = text.toDouble(&isNumber);
            QVERIFY2(std::memcmp(&found, &number, sizeof number) == 0 && isRead == isNumber, qPrintable(text));
        }
    }

    // To the bit what comes of an item with these points.
    void linesArePlacedAsPolylines()
    {
        QRandomGenerator random(22);
        for (int i = 0; i < 3000; ++i) {
            QPolygonF points;
            for (int k = random.bounded(1, 8); k > 0; --k) {
                const double size = std::pow(10, random.bounded(-9, 9));
                const double x = i % 5 == 0 ? 7.1 : (random.generateDouble() - 0.5) * size;
                points << QPointF(x, std::round(x * 1000) / 1000) << QPointF(x + 1e-10, random.bounded(2000) / 3.0);
                points.resize(points.size() - random.bounded(2));
            }
            const ShapeForm &form = *shapeForm("ZQMath2DPolyline");
            const QJsonObject line{{"Type", form.type}, {"XYValue", QString(pointsText(points) + ',')}};
            QCOMPARE(pointsText(placeLine(points)) + ',',
                     placeShape(ItemView(line), form, pluginOutlines(plugin())).geometry.value("XYValue").toString());
        }
    }

    // The same of JSON: letters that are escaped or no letters, numbers of all sizes, empty lists, lists in lists.
    void jsonIsThatOfQt()
    {
        QRandomGenerator random(21);
        const QJsonObject few{
            {"", QJsonArray{QJsonArray{}, QJsonObject{}, QJsonValue(), true, -0.0, 1e6, 1e21, qInf()}}};
        QJsonObject object = few;
        int readable = 0;
        for (int i = 0; i < 20000; ++i) {
            QString text;
            for (int k = random.bounded(8); k > 0; --k) {
                constexpr uint firsts[] = {0, 0, 0xd800, 0x1f600, 0x80, 'a', '"', '\\'};
                const uint code = firsts[random.bounded(8)] + random.bounded(i % 2 ? 0x20u : 0x800u);
                code > 0xffff ? text += QString::fromUcs4(&code, 1) : text += QChar(ushort(code));
            }
            const double number = (random.generateDouble() - 0.5) * std::pow(10, random.bounded(-9, 24));
            object.insert(text, QJsonArray{text, number, std::round(number), QJsonObject{{text, number < 0}}});
            bool isReadable = false;
            const QByteArray json = compactJson(object, &isReadable);
            QCOMPARE(json, QJsonDocument(object).toJson(QJsonDocument::Compact));
            QVERIFY(!isReadable || QJsonDocument::fromJson(json).toJson(QJsonDocument::Compact) == json);
            readable += isReadable ? 1 : 0;
            object = isReadable && object.size() < 20 ? object : few;
        }
        QVERIFY(readable > 5000);
        QJsonValue deep;
        for (int i = 0; i < 1025; ++i) {
            deep = QJsonArray{deep};
        }
        for (const QJsonArray &odd : {deep.toArray(), QJsonArray{QString(QChar(QChar::ByteOrderMark))}}) {
            bool isReadable = true;
            QVERIFY(QJsonDocument::fromJson(compactJson(odd, &isReadable)).array() != odd && !isReadable);
        }
    }

    // A key that can't name an attribute would end the document, and a null must not count as "no".
    void badKeysAndNullsAreLeftOut()
    {
        const QJsonObject found = writtenAndRead(
            json("{'Type':'ZQBasicPlusItem','Visible':null,'animations':{'appearance':{'a b':'1','<':'2',"
                 "'ok':'3'},'no name':{'a':'1'}}}"));
        QCOMPARE(found.value("Visible"), QJsonValue(true));
        QCOMPARE(found.value("animations"),
                 json("{'a':{'appearance':{'ok':'3'},'disappearance':{},'emphasis':{}}}").value("a"));
    }

    void survive()
    {
        QFETCH(QJsonObject, item);
        const QString version = item.take("Version").toString("3.0");
        const QJsonObject found = writtenAndRead(item, version);
        for (auto it = item.constBegin(); it != item.constEnd(); ++it) {
            if (it.key() != HostKeys::children) {
                QCOMPARE(found.value(it.key()), it.value());
            }
        }
        const QJsonArray given = item.value(HostKeys::children).toArray();
        const QJsonArray children = found.value(HostKeys::children).toArray();
        QCOMPARE(children.size(), given.size());
        for (int i = 0; i < given.size(); ++i) {
            QCOMPARE(children.at(i).toObject().value("Type"), given.at(i).toObject().value("Type"));
            QCOMPARE(children.at(i).toObject().value("Wings"), given.at(i).toObject().value("Wings"));
        }
    }

    void knowsWhatIsTheSame()
    {
        const struct
        {
            const char *key;
            QJsonValue one;
            QJsonValue other;
            bool isSame;
        } pairs[] = {
            {"Control", "1.50,02", "1.5,2", true},
            {"Control", "1,abc", "1,0", false},
            {"XY", "1e1,3", "10,3", true},
            {"XY", "10,3", "10,3,4", false},
            {"Title", "1.50", "1.5", false},
            {"Title", 1.5, "1.50", true},
            {"Visible", true, " +1", true},
            {"Visible", "2", "1", false},
            {"Color", "red", "#ffff0000", true},
            {"Color", "300,1,2,3", "255,1,2,3", false},
            {"ArtObj_Color", "1,2,3", "255,1,2,3", true},
            {"ArtObj_Color", "1,2,3", "254,1,2,3", false},
            {"LineColor", QJsonObject{{"Solid", 66051}, {"Alpha", 0.5}}, "128,1,2,3", true},
            {"LineColor", QJsonObject{{"Solid", 66051}, {"More", 1}}, "1,2,3", false},
            {"LineColor", QJsonObject{{"Solid", 4278256131.0}}, "1,2,3", true},
            {"LineColor", QJsonObject{{"Solid", 4294967296.0}}, "0,0,0", false},
            {"manager", "<a b='1' c='2'/>", "<a c='2' b='1'></a>", true},
            {"TextHtml", "<a b='1'/>", "<a b='1'></a>", false},
        };
        for (const auto &pair : pairs) {
            QVERIFY2(isSameValue(pair.key, pair.one, pair.other) == pair.isSame, pair.key);
        }
    }

    // Old lessons store points relative to the first one.
    void writesOffsetsForOldLessons()
    {
        QCOMPARE(pointsAsOffsets("10,20,1,2,3,4,-5,0.5"_s), "10,20,1,2,4,6,-1,6.5");
        QCOMPARE(pointsAsOffsets("10,20"_s), "10,20");
        QCOMPARE(pointsAsOffsets(QString()), QString());
        QCOMPARE(offsetsAsPoints("1000.1234567,20,0.1,0.30000000004,-5.55,0,"_s),
                 "1000.1234567,20,0.1,0.30000000004,-5.65,-0.30000000004");
        QCOMPARE(pointsAsOffsets("1000.1234567,20,0.1,0.30000000004,-5.65,-0.30000000004"_s),
                 "1000.1234567,20,0.1,0.30000000004,-5.55,0");
        QCOMPARE(offsetsAsPoints("1,2,3,x"_s), QString());
    }

    void findsWhatIsNotCarried_data()
    {
        // Items of one slide, so that none is trusted for what another one of its type has carried.
        const Table<QString, QString> row("items", "lost");
        const auto meter = [](const char *attributes, const char *rows, const char *points) {
            return QString(
                       "<discipline type='Physics:dianzu' %1><properties>%2</properties><data><rect points='0,0,1,1' "
                       "controlpoints='%3'/></data></discipline>")
                .arg(attributes, rows, points);
        };
        row("what no key holds",
            "<stroke type='Curve' color='#ff000000' width='5' visible='1' locked='0' uclone='0' mood='good'><transform>"
            "<rotate angle='0'/></transform><data/><data><vertex points='1,2'/><path_width points=''/><rect "
            "points='0,0,1,1' tilt='3'/></data><note>Look!</note><dot/></stroke>",
            "@mood=good data[2]/rect@tilt=3 note=Look! dot=");
        row("other texts of the same",
            meter("visible='+1' locked=' 0 ' uclone=''",
                  "<property name='Font color' value='1,2,3'/><property name='Empty' value=''/>", "1.0,2.50")
                + "<stroke type='ZQSmoothStroke' color='red' opacity='128' width='5[ ,]'><element href='a.png'/><data>"
                  "<vertex points='1,2'/></data><element><property pixelDeleteInfos='[ {&quot;a&quot;: "
                  "1.0} ]'/></element></stroke>",
            "");
        row("values beside bare elements",
            "<activity_item type='ZQActiveMaterialStudent1Item'><data><content width='5' text='a'/>"
                + QString("<content/>").repeated(6) + "</data></activity_item>",
            "data/content@width=5 data/content[7]=");
        row("a second row of a label",
            meter("", "<property name='Font color' value='1,2,3'/><property name='Font color' value='4,5,6'/>", "1,2"),
            "properties/property[Font color][2]@name=Font color properties/property[Font color][2]@value=4,5,6");
        const QString question =
            "<question type='ZQQuestionItem'><data>%1<page_scale>2.0</page_scale></data></question>";
        const QString content = "<R_Content_svg><b>c</b></R_Content_svg>";
        const QString answer = "<R_Answer_svg>a</R_Answer_svg>";
        row("texts of a question in each other's place",
            question.arg(content + answer) + question.arg(answer + content),
            "data/R_Answer_svg=a data/R_Content_svg/b=c");
        row("a held item",
            "<item type='Future' id='1' json='{&quot;Type&quot;: &quot;Future&quot;, &quot;ID&quot;: &quot;1&quot;}' "
            "more='1'/>",
            "@more=1");
    }

    void findsWhatIsNotCarried()
    {
        auto [items, lost] = Table<QString, QString>::cells();
        LossReport losses;
        const CarriedCheck check(SlideLosses(&losses, 1));
        const ZqtxItems reader(plugin(), {{"Version", "3.0"}});
        const QDomElement slide = xml("<items>" + items.replace('\'', '"') + "</items>");
        for (QDomElement item = slide.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
            reader.read(item, {{"pres", QJsonObject{{"Version", "3.0"}}}}, &check);
        }
        QStringList keys;
        for (const Loss &loss : losses.entries()) {
            keys.append(loss.key + '=' + loss.detail.english());
        }
        QStringList expected = lost.split(QRegularExpression(" (?=[@a-z/]+[\\[@=/])"), Qt::SkipEmptyParts);
        keys.sort();
        expected.sort();
        QCOMPARE(keys, expected);
    }

    void tellsWhatAParserDrops_data()
    {
        const Table<QByteArray, QString> row("text", "dropped"); // ' stands for "
        row("nothing", "{'a': [0.1, 1e5, -0.0, 9007199254740992, 0.30000000000000004], 'b': '9007199254740993'}", "");
        row("digits", "{'a': [1, {'b': 9007199254740993}], 'c': 3.14159265358979323846}",
            "a[1].b=9007199254740993 c=3.14159265358979323846");
        row("names", "{'a': 1, '\\u0061': 'x,}', 'b': {'a': 1}, 'a' : {'c': [ ]}, 'd': 1, 'd': 1}", "a=1 a='x,}'");
        row("other words", "{'Angle': '1', 'Angle': 1.0, 'a': {}, 'a': 2, 'b': {'c': 1}, 'b': {'c': '1', 'd': 2}}", "");
        row("many names", "[{" + QByteArray("'a': 1, 'b': 1, 'a': 1, 'c': 1, 'd': 1,").repeated(4) + "'b': 2}]",
            "[0].b=1");
        row("one of many names",
            "{'a': 1, 'b': 2, 'c': 1, 'd': 1, 'e': 1, 'f': 1, 'g': 1, 'h': 1, 'i': 1, 'j': 1, 'k': 1, 'l': 1, 'b': 3}",
            "b=2");
    }

    void tellsWhatAParserDrops()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, dropped);
        QStringList found;
        const QByteArray quoted = QByteArray(text).replace('\'', '"');
        eachUnheldValue(quoted, [&found](const JsonPath &path, const QByteArray &value) {
            found.append(jsonPathText(path) + '=' + value);
        });
        QCOMPARE(found.join(' ').replace('"', '\''), dropped);
    }

    void namesTheSameLossOnce()
    {
        LossReport losses;
        losses.add({Loss::Value, 0, "presentation", {}, "Author", Sentence("A")});
        for (const int slide : {2, 3, 3, 4}) {
            losses.add({Loss::Value, slide, "ZQImagePic", {}, "Effect", Sentence(QString::number(slide))});
        }
        losses.add({Loss::Value, 4, "ZQImagePic", {}, "Other", {}});
        for (const int slide : {1, 5, 5}) {
            losses.add({Loss::Note, slide, "ZQGroupItem", {}, {}, Sentence("taken apart")});
        }
        losses.add({Loss::Note, 5, "ZQGroupItem", {}, {}, Sentence("empty")});
        QCOMPARE(losses.summary().english(),
                 "6 values lost: presentation.Author, ZQImagePic.Effect on slides 2 to 4 (4 times), "
                 "ZQImagePic.Other on slide 4\n"
                 "Note: ZQGroupItem on 2 slides from 1 to 5 (3 times): taken apart, ZQGroupItem on slide 5: empty");
    }
};

QTEST_GUILESS_MAIN(TestHostValues)
#include "tst_hostvalues.moc"
