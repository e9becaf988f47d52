// SPDX-License-Identifier: MIT
#include "formats/conversion.h"
#include "hostfixture.h"
#include "iwbedits.h"
#include "lesson/itemview.h"
#include "randomlesson.h"
#include "render/slideitempainter.h"
#include "testtable.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>

namespace {

QString shown(const QJsonValue &value)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)).left(900);
}

// Coordinates that were added to have their own digits.
bool isNear(const QString &one, const QString &other)
{
    const QStringList parts = one.split(',');
    const QStringList others = other.split(',');
    const auto isSame = [](const QString &a, const QString &b) {
        bool areNumbers[2] = {};
        const double difference = a.toDouble(&areNumbers[0]) - b.toDouble(&areNumbers[1]);
        return a == b || (areNumbers[0] && areNumbers[1] && std::fabs(difference) <= 0.02);
    };
    return std::equal(parts.begin(), parts.end(), others.begin(), others.end(), isSame);
}

/*!
 * What is wrong with the items that came of others: each is what it was, the edited ones as near as their coordinates,
 * those that were added as far as they are told.
 */
class Comparing
{
public:
    explicit Comparing(const QSet<QString> &edited)
        : m_edited(edited)
    {
    }

    QString items(const QJsonArray &wanted, const QJsonArray &found) const
    {
        for (int i = 0; i < qMax(wanted.size(), found.size()); ++i) {
            const QString wrong = item(wanted.at(i), found.at(i));
            if (!wrong.isEmpty()) {
                return "item %1: "_s.arg(i) + wrong;
            }
        }
        return {};
    }

private:
    bool holdsEdited(const QJsonObject &item) const
    {
        const QVector<QJsonObject> children = ItemView(item).childObjects();
        return m_edited.contains(item.value("ID").toString())
            || std::any_of(children.begin(), children.end(),
                           [this](const QJsonObject &child) { return holdsEdited(child); });
    }

    QString item(const QJsonValue &wanted, const QJsonValue &found) const
    {
        const QJsonObject one = wanted.toObject();
        const QJsonObject other = found.toObject();
        const bool isGroup = !ItemView(one).childObjects().isEmpty();
        // What left a group may leave no trace in it but its box.
        if (wanted == found) {
            return {};
        }
        const bool isNew = one.value("ID").toString().startsWith("new");
        QString wrong = isGroup ? items(one.value("Children").toArray(), other.value("Children").toArray()) : QString();
        const QStringList keys = isNew ? one.keys() : one.keys() + other.keys();
        for (const QString &key : keys) {
            const bool isSame = one.value(key) == other.value(key)
                || (!isGroup && m_edited.contains(one.value("ID").toString())
                    && isNear(one.value(key).toString(), other.value(key).toString()));
            const bool isOfGroup = isGroup && QStringList{"BoundingBox", "Matrix", "Angle", "Children"}.contains(key);
            if (wrong.isEmpty() && !isSame && !isOfGroup) {
                wrong = key + ": " + shown(one.value(key)) + " is " + shown(other.value(key));
            }
        }
        return wrong.isEmpty() ? wrong : wrong + "\n  wanted " + shown(one) + "\n  found " + shown(other);
    }

    const QSet<QString> &m_edited;
};

} // namespace

/*!
 * Random lessons in IWB packages that another program has worked on: its edits win, all else is as it was, and the
 * report says which is which.
 *
 * EDITS_SEED is the seed of the first lesson, EDITS_SECONDS the time.
 */
class TestIwbEdits : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    LossReport convert(const QString &from, const QString &to)
    {
        LossReport losses;
        LessonContext context;
        context.plugin = plugin();
        context.losses = &losses;
        context.verify = false;
        context.makePainter = [&context](LessonReader &reader, bool isTrial) {
            return std::make_unique<SlideItemPainter>(reader, context.plugin, isTrial);
        };
        QDir(path(to)).removeRecursively();
        QFile::remove(path(to));
        const QString format = to.endsWith(".json") ? "json" : "iwb";
        convertLesson(lessonFormatOfInput(path(from)), path(from), lessonFormatByName(format), path(to), context,
                      [](int, int) {});
        return losses;
    }

    QJsonObject model(const QString &name) const { return QJsonDocument::fromJson(fileContent(path(name))).object(); }

    static QJsonValue withoutTurns(const QJsonValue &value)
    {
        QJsonArray array = value.toArray();
        for (auto &&part : array) {
            part = withoutTurns(part);
        }
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            *it = withoutTurns(*it);
        }
        for (const char *key : {"Angle", "Matrix", "HorizonFlip", "VerticalFlip"}) {
            object.contains("Children") ? object.remove(key) : void();
        }
        return value.isArray() ? QJsonValue(array) : value.isObject() ? QJsonValue(object) : value;
    }

    static QJsonObject lesson(quint32 seed)
    {
        RandomLesson random(seed);
        // What a group has turned is read where it stands, once something of the group changes.
        QJsonObject lesson = withoutTurns(random.lesson(true)).toObject();
        QJsonArray slides = lesson.value("Slides").toArray();
        const QJsonArray others = withoutTurns(random.lesson(true)).toObject().value("Slides").toArray();
        for (const QJsonValue &other : others) {
            QJsonObject slide = other.toObject();
            slide.insert("ID", QString::number(slides.size() + 1));
            slides.append(slide);
        }
        lesson.insert("Slides", slides);
        return lesson;
    }

    // The folder without the lesson itself, with files where the pages name them.
    QJsonObject elementsAlone()
    {
        const QJsonObject lesson = model("there/additional/native/lesson.json");
        const QJsonObject files = lesson.value("files").toObject();
        QJsonObject paths = lesson.value("copies").toObject(); // in the lesson, by those in the package
        for (auto it = files.begin(); it != files.end(); ++it) {
            paths.insert(it.value().toString(), it.key());
        }
        QDir(path("plain")).removeRecursively();
        const QMap<QString, QByteArray> all = filesBelow(path("there"));
        for (auto it = all.begin(); it != all.end(); ++it) {
            it.key().startsWith("additional/native/") ? void() : putFile(path("plain/" + it.key()), it.value());
        }
        convert("plain", "plain.json");
        QByteArray text = fileContent(path("plain.json"));
        for (auto it = paths.begin(); it != paths.end(); ++it) {
            text.replace('"' + it.key().toUtf8() + '"', "\"\a" + it.value().toString().toUtf8() + '"');
        }
        return QJsonDocument::fromJson(text.replace("\a", "")).object();
    }

    static QStringList toldIn(const LossReport &report)
    {
        QSet<QString> told;
        for (const Loss &loss : report.entries()) {
            const QString detail = loss.detail.english();
            const QString what = detail.contains("order") && loss.slide > 0
                ? "order"
                : detail.section(" by", 0, 0).section(" were", 0, 0).section(" was", 0, 0);
            loss.kind == Loss::Changed ? void(told.insert("%1/%2: %3"_s.arg(loss.slide).arg(loss.itemId, what)))
                                       : void();
        }
        QStringList sorted = told.values();
        sorted.sort();
        return sorted;
    }

    QString wrongWith(quint32 seed)
    {
        putFile(path("given.json"), jsonText(lesson(seed)));
        convert("given.json", "there");
        convert("there", "whole.json");
        const QJsonObject whole = model("whole.json");
        const QByteArray document = fileContent(path("there/content.xml"));
        IwbEdits edits(seed, document, whole, elementsAlone());
        // A tool that drops what it doesn't know leaves a package like any other.
        const QByteArray plain = fileContent(path("plain.json"));
        QFile::remove(path("plain/content.xml"));
        putFile(path("plain/content.xml"), edits.written(true));
        if (seed % 4 == 0
            && (toldIn(convert("plain", "plain.json")).size() > 0 || fileContent(path("plain.json")) != plain)) {
            return "the elements alone tell another lesson where they are written anew";
        }
        edits.edit();
        QFile::remove(path("there/content.xml"));
        putFile(path("there/content.xml"), edits.written());
        const LossReport report = convert("there", "back.json");
        const QJsonObject back = model("back.json");
        const QString about = '\n' + edits.done().join("; ");
        QJsonObject own = back;
        for (const QString &key : {"Slides"_s, "Resources"_s}) {
            own.insert(key, whole.value(key));
        }
        if (own != whole) {
            return "presentation " + shown(own) + about;
        }
        const QJsonObject files = whole.value("Resources").toObject();
        for (auto it = files.begin(); it != files.end(); ++it) {
            if (back.value("Resources").toObject().value(it.key()) != it.value()) {
                return it.key() + " is another file" + about;
            }
        }
        const QJsonArray slides = back.value("Slides").toArray();
        if (slides.size() != edits.slides().size()) {
            return "%1 slides, not %2"_s.arg(slides.size()).arg(edits.slides().size()) + about;
        }
        for (int i = 0; i < slides.size(); ++i) {
            QJsonObject wanted = edits.slides().at(i).toObject();
            QJsonObject found = slides.at(i).toObject();
            const QString wrong =
                Comparing(edits.edited()).items(wanted.take("Items").toArray(), found.take("Items").toArray());
            if (!wrong.isEmpty()) {
                return "slide %1, "_s.arg(i + 1) + wrong + about;
            }
            if (wanted != found && wanted.value("ID") != "another") {
                return "slide %1: "_s.arg(i + 1) + shown(wanted) + " is " + shown(found) + about;
            }
        }
        const QStringList told = toldIn(report);
        return told == edits.told() ? QString()
                                    : "told: " + told.join(", ") + "\n  of: " + edits.told().join(", ") + about;
    }

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"_s); }

    void editsWin()
    {
        QElapsedTimer timer;
        timer.start();
        int converted = 0;
        int seed = setting("EDITS_SEED", 1);
        QStringList wrongs;
        for (; !timer.hasExpired(setting("EDITS_SECONDS", 6) * 1000) && wrongs.size() < setting("EDITS_WRONGS", 1);
             ++seed) {
            try {
                const QString wrong = wrongWith(quint32(seed));
                wrong.isEmpty() ? void() : wrongs.append("seed %1: "_s.arg(seed) + wrong);
                ++converted;
            } catch (const LessonError &) {
                continue; // a lesson may be refused
            }
        }
        qInfo().noquote() << converted << "of" << seed - setting("EDITS_SEED", 1) << "lessons";
        QVERIFY2(wrongs.isEmpty(), qPrintable(wrongs.join("\n\n")));
        QVERIFY(converted > 0);
    }
};

int main(int argc, char **argv)
{
    prepareRandomRun(setting("EDITS_SECONDS", 6));
    QGuiApplication application(argc, argv);
    TestIwbEdits test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iwbedits.moc"
