// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

/*!
 * Documents that the command draws, looked at by other programs.
 */
class TestPdf : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(name); }

    QString base64OfPicture(const char *name, QImage::Format format, QRgb color) const
    {
        QImage picture(60, 40, format);
        picture.fill(QColor::fromRgba(color));
        if (!picture.save(path(name))) {
            qFatal("%s can't be written.", name);
        }
        return QString::fromLatin1(fileContent(path(name)).toBase64());
    }

    // What a program of poppler's prints of a document.
    static QString told(const QStringList &call)
    {
        QProcess program;
        program.start(call.first(), call.mid(1));
        program.waitForFinished();
        return program.exitCode() == 0 ? QString::fromUtf8(program.readAllStandardOutput())
                                       : QString::fromUtf8(program.readAllStandardError()) + " failed";
    }

    // Each picture of a page: its object and the last step of its packing.
    static QStringList pictures(QPDFPageObjectHelper page)
    {
        QStringList found;
        for (auto &[name, picture] : page.getImages()) {
            found.append(QString::number(picture.getObjectID())
                         + QString::fromStdString(picture.getDict().getKey("/Filter").unparse()));
        }
        found.sort();
        return found;
    }

private slots:
    // Three slides of 4:3, 16:9 and 16:10 with the same photograph, and one with a picture that isn't opaque.
    void initTestCase()
    {
        const auto slide = [](const char *rectangle, const QByteArray &text, const QJsonArray &more = {}) {
            QJsonArray items{json("{'Type':'ZQTextBoard','BoundingBox':'10,400,900,500','TextHtml':'under'}"),
                             json("{'Type':'ZQTextBoard','BoundingBox':'10,10,900,200','TextHtml':'" + text + "'}")};
            for (const QJsonValue &item : more) {
                items.append(item);
            }
            return QJsonObject{{"SlideSourceRect", rectangle}, {"AttachFile", "p.jpg"}, {"Items", items}};
        };
        const QJsonArray slides{slide("0,0,1024,768", "植物的生长需要阳光和水"),
                                slide("0,0,1280,720", "<b>光合作用</b> office"),
                                slide("0,0,1280,800", "第三页",
                                      {json("{'Type':'ZQImagePic','resource':'d.png','BoundingBox':'0,0,60,40'}")})};
        const QJsonObject files{{"p.jpg", base64OfPicture("p.jpg", QImage::Format_RGB32, 0xff336699)},
                                {"d.png", base64OfPicture("d.png", QImage::Format_ARGB32, 0x80ff0000)}};
        putFile(path("lesson.json"),
                QJsonDocument(QJsonObject{{"Title", "植物"}, {"Resources", files}, {"Slides", slides}}).toJson());
        const CommandProcess::Outcome outcome = runCommand({"render", path("lesson.json"), path("lesson.pdf")});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
    }

    void hasTextsThatCanBeSearched()
    {
        const QString text = told({"pdftotext", path("lesson.pdf"), "-"});
        for (const char *words : {"植物的生长需要阳光和水", "光合作用 office", "under"}) {
            QVERIFY2(text.contains(words), qPrintable(text));
        }
        const QStringList fonts = told({"pdffonts", path("lesson.pdf")}).split('\n', Qt::SkipEmptyParts).mid(2);
        QVERIFY(fonts.size() >= 2);
        for (const QString &font : fonts) {
            QVERIFY2(font.contains(QRegularExpression("yes +yes +yes")), qPrintable(font));
        }
    }

    void hasEachPictureOnce()
    {
        QPDF pdf;
        pdf.processFile(QFile::encodeName(path("lesson.pdf")).constData());
        auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
        QCOMPARE(pages.size(), std::size_t(3));
        const QStringList first = pictures(pages.at(0));
        QCOMPARE(first.size(), 1);
        QVERIFY2(first.first().endsWith("/DCTDecode"), qPrintable(first.first()));
        QCOMPARE(pictures(pages.at(1)), first);
        const QStringList last = pictures(pages.at(2));
        QCOMPARE(last.size(), 2);
        QVERIFY(last.contains(first.first()) && last.filter("/FlateDecode").size() == 1);
        // The bytes of the lesson's own file.
        auto images = pages.at(0).getImages();
        const auto bytes = images.begin()->second.getRawStreamData();
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()), int(bytes->getSize())),
                 fileContent(path("p.jpg")));
    }

    // Letters keep their distances where a group stretches them.
    void drawsWhatIsStretched()
    {
        putFile(path("stretched.json"), R"({"Width":"400","Height":"300","Slides":[{"Items":[
            {"Type":"ZQTextBoard","BoundingBox":"10,10,300,60","TextHtml":"plain"},
            {"Type":"ZQGroupItem","BoundingBox":"0,0,9,9","Matrix":"2,0,0,1,0,0","Children":[
                {"Type":"ZQTextBoard","BoundingBox":"10,100,180,160","TextHtml":"plain"}]}]}]})");
        QCOMPARE(runCommand({"render", path("stretched.json"), path("stretched.pdf")}).exitCode, 0);
        QVector<double> widths;
        const QRegularExpression word("xMin=\"([0-9.]+)\".*xMax=\"([0-9.]+)\".*>plain<");
        const QString words = told({"pdftotext", "-bbox", path("stretched.pdf"), "-"});
        for (auto it = word.globalMatch(words); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            widths.append(match.captured(2).toDouble() - match.captured(1).toDouble());
        }
        QCOMPARE(widths.size(), 2);
        QVERIFY2(qAbs(widths.at(1) / widths.at(0) - 2) < 0.05, qPrintable(words));
    }

    void tellsAboutItself()
    {
        QPDF pdf;
        pdf.processFile(QFile::encodeName(path("lesson.pdf")).constData());
        QCOMPARE(pdf.getRoot().getKey("/Lang").getUTF8Value(), std::string("zh"));
        QCOMPARE(runCommand({"render", path("lesson.json"), path("lesson.html")}).exitCode, 0);
        QVERIFY(fileContent(path("lesson.html")).contains(" lang=\"zh\">"));
        QCOMPARE(pdf.getTrailer().getKey("/Info").getKey("/Title").getUTF8Value(), std::string("植物"));
        QStringList lines;
        for (QPDFOutlineObjectHelper line : QPDFOutlineDocumentHelper(pdf).getTopLevelOutlines()) {
            lines.append(QString::fromStdString(line.getTitle()) + " at "
                         + QString::number(line.getDestPage().getKey("/MediaBox").getArrayItem(2).getNumericValue()));
        }
        QCOMPARE(lines,
                 (QStringList{"Slide 1: 植物的生长需要阳光和水 at 1080", "Slide 2: 光合作用 office at 1440",
                              "Slide 3: 第三页 at 1296"}));
        // The same lesson gives the same bytes, and a page the size that is asked for.
        QCOMPARE(runCommand({"render", path("lesson.json"), path("again.pdf")}).exitCode, 0);
        QCOMPARE(fileContent(path("again.pdf")), fileContent(path("lesson.pdf")));
        QCOMPARE(runCommand({"render", path("lesson.json"), path("small.pdf"), "--size", "400x400", "--pad"}).exitCode,
                 0);
        QVERIFY(told({"pdfinfo", "-l", "3", path("small.pdf")}).count("300 x 300 pts") == 3);
        // No viewer finds fault with it.
        QProcess viewer;
        viewer.start("pdftoppm", {"-r", "20", path("lesson.pdf"), path("page")});
        viewer.waitForFinished();
        QCOMPARE(viewer.readAllStandardError(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestPdf)
#include "tst_pdf.moc"
