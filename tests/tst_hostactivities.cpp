// SPDX-License-Identifier: MIT
#include "files/xmlloader.h"
#include "hostfixture.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QtTest>

namespace {

// "DATA" in a text stands for the application's data directory.
QString withData(const QString &text)
{
    return QString(text).replace("DATA", QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

} // namespace

/*!
 * Classroom games of lessons on disk: their pictures, which an editor knows by the paths of its machine, and what of
 * their entries a package has no place for.
 */
class TestHostActivities : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(name); }

    QString lessonWith(const QJsonObject &activity) const
    {
        const QJsonObject slide{{"ID", "1"}, {"activity", activity}};
        const QString file = path("lesson.json");
        putFile(file, QJsonDocument(QJsonObject{{"Slides", QJsonArray{slide}}}).toJson());
        return file;
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        QDir(m_folder.path()).removeRecursively();
        QDir().mkpath(m_folder.path());
        QDir::setSearchPaths("imageDir", {"/i/", "/j/"});
    }

    void picturesDontDrift_data()
    {
        const Table<QString, QString, QString> table("type", "templet", "written");
        const auto row = [&table](const char *name, const char *type, const char *templet, const char *written) {
            table(QByteArray(type) + ", " + name, type, templet, written);
        };
        const char *const canvas = "<templet index='2'><background pic='a.png'/><backgroundx2/>"
                                   "<right pic='x/r.png'/><container %1 hotpath='h.png' path='p.png'/></templet>";
        for (const char *type : {"Judgment", "NumberComparison", "PronunciationTest", "Grouping"}) {
            row("pictures of the application", type,
                "'index':'2','background':'/i/Canvas/a.png','right':'/i/Canvas/x/r.png',"
                "'container':{'path':'/i/Canvas/p.png','hotpath':'h.png'}",
                canvas);
        }
        row("paths that have grown", "Grouping",
            "'index':'2','background':'/i/Canvas//i/Canvas/a.png','right':'/i/Canvas//i/Canvas//i/Canvas/x/r.png',"
            "'container':{'path':'p.png','hotpath':'/i/Canvas/h.png'}",
            canvas);
        row("pictures of the data", "Grouping",
            "'index':'3','background':'DATA//ClassActivity/a.png','right':'DATA/r.png',"
            "'container':{'path':'DATA/ClassActivity/p.png','hotpath':'','process_bar_back':'DATA/b.png'},"
            "'material':{'font_align':'l','path2':'DATA/ClassActivity/p2.png'}",
            "<templet index='3'><background pic='ClassActivity/a.png'/><backgroundx2/><right pic='/r.png'/>"
            "<container %1 hotpath='' path='/ClassActivity/p.png' process_bar_back='/b.png'/>"
            "<material font_align='l' font_color='' font_family='' font_offsetup='' font_size='' path=''"
            " path2='/ClassActivity/p2.png'/></templet>");
        // What a lesson itself names is nobody's machine.
        row("references", "Grouping",
            "'index':'3','background':'/ClassActivity/a.png','container':{'path':'/x/y','hotpath':''}",
            "<templet index='3'><background pic='/ClassActivity/a.png'/><backgroundx2/>"
            "<container %1 hotpath='' path='/x/y'/></templet>");
    }

    // Three trips, each into a document that is the same.
    void picturesDontDrift()
    {
        const auto [type, templet, written] = Table<QString, QString, QString>::cells();
        QJsonObject look = json(withData("{" + templet + "}"));
        look.insert("backgroundx2", "");
        QString file = lessonWith({{"type", type}, {"templet", look}});
        const QDomElement expected =
            xml(written.arg("font_align='' font_color='' font_family='' font_offsetup='' font_size='' hotoffset=''"));
        for (int trip = 1; trip <= 3; ++trip) {
            const QString package = m_folder.filePath(QString::number(trip));
            QCOMPARE(convertedLesson(file, package).summary().english(), QString());
            const QDomDocument slide = loadXmlFile(package + "/slides/1.xml");
            QCOMPARE(toText(slide.documentElement().firstChildElement("activity").firstChildElement("templet")),
                     toText(expected));
            file = package + ".json";
            QCOMPARE(convertedLesson(package, file).summary().english(), QString());
        }
        QCOMPARE(fileContent(path("3/slides/1.xml")), fileContent(path("1/slides/1.xml")));
        QCOMPARE(fileContent(path("3.json")), fileContent(path("1.json")));
    }

    void picturesOfTheDataTravel()
    {
        const QString shared = withData("DATA/ClassActivity/Reading/a.png");
        putFile(shared, "picture");
        const QString outside = withData("DATA/../outside.png");
        putFile(outside, "secret");
        putFile(path("in/index.xml"), "<main><slides><file href=\"slides/1.xml\"/></slides></main>");
        putFile(
            path("in/slides/1.xml"),
            R"(<slide id="1"><background><color value=""/><picture document=""/></background><items/><activity>)"
            R"(<templet index="3"><background pic="x/ActivityInfo/Reading/a.png"/>)"
            R"(<board pic="/../outside.png"/><container path="/ClassActivity/none.png"/></templet></activity></slide>)");
        convertedLesson(path("in"), path("out.json"));
        convertedLesson(path("out.json"), path("out"));
        QCOMPARE(fileContent(path("out/ClassActivity/Reading/a.png")), "picture");
        QCOMPARE(QDir(path("out")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({"ClassActivity", "index.xml", "slides"}));
        QFile::remove(shared);
        QFile::remove(outside);
    }

    void lossesAreNamed_data()
    {
        const Table<QString, QStringList> row("activity", "keys");
        row("rows without content",
            "{'type':'Comparison','matchs':[[{'id':'1','condition':'3'},{'id':'2'},{'id':'3','symbol':'='},"
            "{'id':'4'},{'id':'5','condition':'3'}],[{'id':'6'}]]}",
            {"activity.matchs[0][1]", "activity.matchs[0][3]", "activity.matchs[1][0]"});
        row("one background beside its place", "{'background':'/i/Canvas/a.png','templet':{'index':'1'}}", {});
    }

    void lossesAreNamed()
    {
        QFETCH(QString, activity);
        QStringList lost;
        const LossReport losses = convertedLesson(lessonWith(json(activity)), path("out"));
        for (const Loss &loss : losses.entries()) {
            lost.append(loss.key);
        }
        QTEST(lost, "keys");
    }
};

QTEST_GUILESS_MAIN(TestHostActivities)
#include "tst_hostactivities.moc"
