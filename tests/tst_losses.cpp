// SPDX-License-Identifier: MIT
#include "documentdifference.h"
#include "hostfixture.h"
#include "lessondifference.h"
#include "randomlesson.h"
#include "render/slideitempainter.h"

#include "formats/conversion.h"
#include "lesson/itemvalues.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QTransform>
#include <QtTest>

#include <cmath>
#include <optional>

namespace {

// ---- Lessons on their roads ----------------------------------------------------------------------------------------

/*!
 * A lesson as it begins its road: in the model, or as the documents and files of a package.
 */
struct Given
{
    QJsonObject model;
    QMap<QString, QDomDocument> documents; // by their paths in the package
    QMap<QString, QByteArray> files;
};

struct Failure
{
    QString kind;
    Difference difference;
    LossReport report; // what the host said
};

//! What a road does with a lesson: where it begins, and what is wrong at its end. Throws LessonError where a lesson is
//! refused.
using Begin = std::function<Given(quint32 seed)>;
//! isTwice: whether the same must come of it a second time, too.
using Judge = std::function<QVector<Failure>(const Given &given, bool isTwice)>;

struct Road_
{
    const char *name;
    Begin begin;
    Judge judge;
};

// IWB with the lesson itself in it.
const QString wholeIwb = "iwb whole"_s;

/*!
 * A folder in which lessons are converted from step to step.
 */
class Way
{
public:
    Way() { QDir(folder()).removeRecursively(); }

    static QString folder() { return workFolder().filePath("way"); }

    QString put(const Given &given)
    {
        if (given.documents.isEmpty()) {
            putFile(folder() + "/given.json", jsonText(given.model));
            return "given.json";
        }
        const bool isOne = given.documents.size() == 1 && given.documents.firstKey() == "lesson.xml";
        const QString name = isOne ? "" : "given/";
        for (auto it = given.documents.begin(); it != given.documents.end(); ++it) {
            putFile(folder() + '/' + name + it.key(), it.value().toByteArray(-1));
        }
        for (auto it = given.files.begin(); it != given.files.end(); ++it) {
            putFile(folder() + '/' + name + it.key(), it.value());
        }
        return isOne ? "lesson.xml" : "given";
    }

    //! from and to are names in the folder.
    LossReport convert(const QString &from, const QString &to, const QString &format)
    {
        LossReport losses;
        LessonContext context;
        context.plugin = plugin();
        context.losses = &losses;
        const QString input = folder() + '/' + from;
        const bool isWhole = format == wholeIwb;
        if (!isWhole) {
            context.options.insert("plain", {});
        }
        if (isWhole) {
            // Items that a few elements show; to paint the others takes time.
            context.options.insert("items", "drop");
            context.makePainter = [&context](LessonReader &reader, bool isTrial) {
                return std::make_unique<SlideItemPainter>(reader, context.plugin, isTrial);
            };
        }
        convertLesson(lessonFormatOfInput(input), input, lessonFormatByName(isWhole ? "iwb" : format),
                      folder() + '/' + to, context, [](int, int) {});
        return losses;
    }

    //! The same, where a refusal would mean that something was written that can't be read.
    LossReport convertBack(const QString &from, const QString &to, const QString &format)
    {
        try {
            return convert(from, to, format);
        } catch (const LessonError &error) {
            throw std::runtime_error(qPrintable(error.message().english()));
        }
    }

    QJsonObject model(const QString &name) const
    {
        return QJsonDocument::fromJson(fileContent(folder() + '/' + name)).object();
    }

    Given package(const QString &name) const
    {
        Given given;
        const QMap<QString, QByteArray> files = filesBelow(folder() + '/' + name);
        for (auto it = files.begin(); it != files.end(); ++it) {
            if (it.key().endsWith(".xml")) {
                given.documents[it.key()].setContent(it.value(), false);
            } else {
                given.files.insert(it.key(), it.value());
            }
        }
        return given;
    }

private:
    static QTemporaryDir &workFolder()
    {
        static QTemporaryDir folder;
        return folder;
    }
};

// ---- Differences and reports ---------------------------------------------------------------------------------------

bool isLoss(const Loss &loss)
{
    return isLoss(loss.kind);
}

// The key of the item that holds a value, or the place of a value in XML but for labels and numbers of its steps.
QString keyOf(const QString &way)
{
    static const QRegularExpression numbers(
        "\\[.*?\\](?=[/@[]|$)", QRegularExpression::DotMatchesEverythingOption); // a label may hold a bracket
    const bool isPlace = way.contains('@') || way.contains('/');
    return isPlace ? QString(way).remove(numbers) : way.section('.', 0, 0).section('[', 0, 0);
}

bool isOfSameItem(const Loss &loss, const Owner &owner)
{
    const bool isSameItem = loss.itemId.isEmpty() || owner.id.isEmpty()
        ? loss.itemType == owner.type || (owner.type.isEmpty() && loss.itemId.isEmpty())
        : QString(loss.itemId).remove('\x01') == owner.id;
    return loss.slide == owner.slide && isSameItem;
}

// Whether an entry of a report tells of a difference.
bool tells(const Loss &loss, const Difference &difference)
{
    if (!isLoss(loss) || !isOfSameItem(loss, difference.owner)) {
        return false;
    }
    // A file is named in what was given, which is shown as XML has it or as JSON.
    const QByteArray file = QJsonDocument(QJsonArray{loss.key}).toJson(QJsonDocument::Compact).mid(2).chopped(2);
    const bool isNamed = difference.given.contains(loss.key) || difference.given.contains(QString::fromUtf8(file));
    // A container that is taken apart is told by what it was or held.
    const bool isWhole = difference.key.isEmpty() && (loss.key == "Type" || loss.key == "Children");
    return loss.kind == Loss::Item || loss.key.isEmpty() || (loss.kind == Loss::File && isNamed) || isWhole
        || keyOf(loss.key) == keyOf(difference.key) || loss.key.startsWith(difference.key + '/');
}

bool isToldIn(const LossReport &report, const std::function<bool(const Loss &loss)> &isTold)
{
    return std::any_of(report.entries().begin(), report.entries().end(), isTold);
}

const char *const notTheSame = "not the same twice";

// What differs and isn't told, and what is told and doesn't differ. elsewhere: what also tells of items, or null.
QVector<Failure> disagreements(const QString &step, const Differences &differences, const LossReport &report,
                               const LossReport *elsewhere = nullptr)
{
    QVector<Failure> failures;
    for (const Difference &difference : differences) {
        const bool isTold = difference.isMinor
            || isToldIn(report, [&](const Loss &loss) { return tells(loss, difference); })
            || (elsewhere && isToldIn(*elsewhere, [&](const Loss &loss) {
                                return isLoss(loss) && isOfSameItem(loss, difference.owner);
                            }));
        if (!isTold) {
            failures.append({step + "lost in silence", difference, report});
        }
    }
    for (const Loss &loss : report.entries()) {
        const bool isTrue = std::any_of(differences.begin(), differences.end(), [&loss](const Difference &difference) {
            // Of an item that isn't there, everything is lost.
            const bool isGone = difference.key.isEmpty() && difference.found == "nothing";
            return tells(loss, difference) || (isGone && isOfSameItem(loss, difference.owner));
        });
        if (isLoss(loss) && !isTrue) {
            failures.append({step + "false alarm",
                             {{loss.slide, loss.itemType, loss.itemId}, loss.key, loss.detail.english(), {}},
                             report});
        }
    }
    return failures;
}

QVector<Failure> twice(Way &way, const QString &input, const QString &first, const QString &format)
{
    const LossReport report = way.convert(input, "again", format);
    const bool isSame = contentOfTarget(Way::folder() + '/' + first) == contentOfTarget(Way::folder() + "/again");
    return isSame ? QVector<Failure>() : QVector<Failure>{{notTheSame, {{}, first, {}, {}}, report}};
}

// ---- Roads ---------------------------------------------------------------------------------------------------------

// From the model to a format and back.
QVector<Failure> judgeModel(const Given &given, const QString &format, Road road, bool isTwice)
{
    Way way;
    const QString input = way.put(given);
    const LossReport report = way.convert(input, "there", format);
    QVector<Failure> failures = isTwice ? twice(way, input, "there", format) : QVector<Failure>();
    QString back = "there";
    if (format != "json") {
        back = "back.json";
        way.convertBack("there", back, "json");
    }
    return failures + disagreements({}, lessonDifferences(given.model, way.model(back), road), report);
}

Differences packageDifferences(const Given &given, const Given &found, const QJsonObject &model)
{
    const auto root = [](const Given &package, const QString &path) {
        return package.documents.value(path).documentElement();
    };
    const QDomElement index = root(given, "index.xml");
    Differences differences = documentDifferences(0, index, root(found, "index.xml"));
    const QJsonArray slides = model.value("Slides").toArray();
    int number = 0;
    for (QDomElement file = index.firstChildElement("slides").firstChildElement("file"); !file.isNull();
         file = file.nextSiblingElement("file")) {
        const QString id = slides.at(number++).toObject().value("ID").toString();
        differences +=
            documentDifferences(number, root(given, file.attribute("href")), root(found, "slides/" + id + ".xml"));
    }
    return differences;
}

// From a package into the model and back into a package.
QVector<Failure> judgePackage(const Given &given, const QString &format, bool isTwice)
{
    Way way;
    const QString input = way.put(given);
    const LossReport reading = way.convert(input, "model.json", "json");
    QVector<Failure> failures = isTwice ? twice(way, input, "model.json", "json") : QVector<Failure>();
    const LossReport writing = way.convertBack("model.json", "there", format);
    way.convertBack("there", "back.json", "json");
    const QJsonObject model = way.model("model.json");
    failures += disagreements(
        "written: ", lessonDifferences(model, way.model("back.json"), format == "iwb" ? Road::Drawn : Road::Packed),
        writing);
    if (format == "zqtx") {
        failures += disagreements("read: ", packageDifferences(given, way.package("there"), model), reading, &writing);
    }
    return failures;
}

Given randomModel(quint32 seed, bool isForIwb)
{
    Given given;
    given.model = RandomLesson(seed).lesson(isForIwb);
    return given;
}

Given randomPackage(quint32 seed, const QString &format)
{
    RandomLesson random(seed);
    Way way;
    Given given;
    given.model = random.lesson(format == "iwb");
    way.convert(way.put(given), "package", format);
    given = way.package("package");
    for (QDomDocument &document : given.documents) {
        random.disturb(document.documentElement());
    }
    return given;
}

Given randomRaw(quint32 seed)
{
    Given given;
    given.documents.insert("lesson.xml", RandomLesson(seed).rawLesson());
    given.files.insert("resources/picture.png", redPicture());
    return given;
}

// What the model says otherwise than a raw element, whose texts become values by their ways.
void compareRaw(const Owner &owner, const QDomElement &element,
                const std::function<bool(const QDomElement &child)> &isOther,
                const std::function<QJsonValue(const QString &way, const QString &text)> &valueOf,
                const QStringList &guessedWays, Differences &differences)
{
    Texts texts;
    collectTexts(element, {}, isOther, texts);
    for (auto it = texts.begin(); it != texts.end(); ++it) {
        const QString way = withoutNumbers(it.key());
        const QString text = it.value().first();
        const QJsonValue value = valueOf(way, text);
        const QString key = way.section('@', -1);
        const Rest rest = restOf(key, text, value, Road::Packed);
        // What is there twice may be told once, and a group has a list, be it empty.
        if (rest != Rest::All || way != it.key() || (text.isEmpty() && way != "GroupSonItems")) {
            const bool isMinor = rest != Rest::Less || text.isEmpty() || guessedWays.contains(way);
            differences.append({owner, way, text, toText(QJsonObject{{key, value}}), isMinor});
        }
    }
}

// Attributes of a raw slide or presentation bear the names of their keys; elements that are no slides have none.
void rawPropertyDifferences(int slide, const QDomElement &element, const QJsonObject &found, Differences &differences)
{
    const auto isPart = [](const QDomElement &child) {
        return child.tagName() == "slide" || child.parentNode().toElement().tagName() == "slide";
    };
    const auto valueOf = [&found](const QString &way, const QString &text) -> QJsonValue {
        const QString key = way == "@NetID" ? QString("ID") : way.section('@', 1);
        const QJsonValue value = found.value(key);
        // The alpha of a raw page's colour doesn't count.
        const bool isOpaque =
            key == "BackColor" && restOf(key, text.section(',', -3), value, Road::Packed) != Rest::Less;
        return isOpaque ? QJsonValue(text) : way.startsWith('@') ? value : QJsonValue(QJsonValue::Undefined);
    };
    // References get the lesson's own folder.
    compareRaw({slide, element.tagName(), element.attribute("NetID")}, element, isPart, valueOf, {"@AttachFile"},
               differences);
}

// The number of a list that a control point goes into, in single precision, or what the item has under the same name.
bool isSameControl(const QString &way, const QString &text, const QJsonObject &item)
{
    static const QRegularExpression control("^@Discipline_([xy])Control(0|[1-9][0-9]*)$");
    const QRegularExpressionMatch match = control.match(way);
    bool isNumber = false;
    const float number = text.toFloat(&isNumber);
    const int place = 2 * match.captured(2).toInt() + (match.captured(1) == "y" ? 1 : 0);
    const QJsonValue found = item.value("Control").toArray().at(place);
    return match.hasMatch() && isNumber && found.isDouble() && float(found.toDouble()) == number;
}

std::optional<QTransform> matrixIn(const QString &text)
{
    const auto n = wholeNumbers(text.isNull() ? QString("1,0,0,1,0,0") : text);
    return n && n->size() == 6 ? std::optional<QTransform>({n->at(0), n->at(1), n->at(2), n->at(3), n->at(4), n->at(5)})
                               : std::nullopt;
}

// size: of the numbers that points were made of, which were rounded.
bool areNear(const QPolygonF &one, const QPolygonF &other, double tolerance, double size = 1)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [tolerance, size](QPointF a, QPointF b) {
        return QLineF(a, b).length() <= tolerance * (size + qAbs(a.x()) + qAbs(a.y()));
    });
}

// The attribute by which an item stands elsewhere than the raw one did; empty where it stands where it stood, or where
// its place is no box under a matrix.
QString misplacedBy(const QDomElement &element, const QJsonObject &keyPlaces, const QJsonObject &item)
{
    const auto bound = wholeNumbers(element.attribute("Bound"));
    const auto box = wholeNumbers(item.value("BoundingBox").toString());
    const auto own = matrixIn(element.attribute("TransformMatrix", QString()));
    const auto fit = matrixIn(item.value("SlideMatrix").toString(QString()));
    const auto matrix = matrixIn(item.value("Matrix").toString(QString()));
    // Vector shapes and figures have a matrix of their own in many attributes.
    const bool hasInner = element.tagName().startsWith("ZQVector") || element.tagName().startsWith("ZQShape");
    if (hasInner || keyPlaces.value("Matrix").toArray() != QJsonArray{"TransformMatrix"} || !own || !fit || !matrix
        || !bound || bound->size() != 6 || bound->at(2) != 0 || bound->at(3) != 0) {
        return {};
    }
    const QTransform onPage = *own * *fit;
    const QPolygonF page(QRectF(0, 0, 1000, 1000));
    const double size = 1 + qAbs(fit->dx()) + qAbs(fit->dy());
    const bool isFolded = !areNear(onPage.map(page), matrix->map(page), 2e-5, size);
    const bool hasBox = box && box->size() == 4;
    const QPolygonF given(QRectF({bound->at(4), bound->at(5)}, QPointF(bound->at(0), bound->at(1))));
    const QPolygonF found(hasBox ? QRectF({box->at(0), box->at(1)}, QPointF(box->at(2), box->at(3))) : QRectF());
    if (isFolded && (!matrix->isIdentity() || !hasBox)) {
        return "@TransformMatrix";
    }
    const bool isThere = areNear(isFolded ? onPage.map(given) : given, found, 1e-4);
    return isThere ? QString() : isFolded ? "@TransformMatrix" : "@Bound";
}

// What the model says otherwise than the raw item did. Where an item stands is worked out from several values.
void rawDifferences(int slide, const QDomElement &element, const QMultiHash<QString, QJsonObject> &items,
                    Differences &differences)
{
    static const QStringList workedOut{"BoundingBox",        "Matrix",     "SlideMatrix",    "Control",
                                       "Discipline_xCreate", "Angle",      "MultiMediaFile", "Discipline_yCreate",
                                       "StartAngle",         "SweepAngle", "WordHide"};
    const Owner owner{slide, element.tagName(), element.attribute("NetID")};
    QVector<QJsonObject> found;
    for (const QJsonObject &other : items.values(owner.id)) {
        if (other.value("Type") == owner.type) {
            found.append(other);
        }
    }
    const QJsonObject item = found.value(0);
    const QDomElement sons = element.firstChildElement("GroupSonItems");
    if (!item.isEmpty() && !item.contains("KeptXml")) {
        const QJsonObject keyPlaces = rawPlacesOf(owner.type);
        QHash<QString, QString> keys; // by their ways
        QStringList guessed;
        for (auto it = keyPlaces.begin(); it != keyPlaces.end(); ++it) {
            QStringList steps = it.value().toVariant().toStringList();
            const QString name = '@' + steps.takeLast();
            keys.insert(steps.join('/') + name, it.key());
        }
        for (const QString &key : workedOut) {
            guessed.append(keys.key(key));
            guessed.append('@' + key);
        }
        const auto isSon = [&sons](const QDomElement &child) { return child.parentNode() == sons; };
        // An attribute of the item that is no place bears the name of a key or none. What the element of a list itself
        // says is in none of its records.
        const auto valueOf = [&](const QString &way, const QString &text) -> QJsonValue {
            const QString name = way.section('@', -1);
            const QJsonArray records = item.value("PixelDeleteInfos").toArray();
            QJsonValue value(QJsonValue::Undefined);
            if (keys.contains(way) || way.startsWith('@')) {
                value = isSameControl(way, text, item) ? QJsonValue(text) : item.value(keys.value(way, name));
            } else if (way.startsWith("PixelDeleteInfos/") && !records.isEmpty()) {
                for (const QJsonValue &record : records) {
                    value = record.toObject().contains(name) ? record.toObject().value(name) : value;
                }
            }
            return value;
        };
        const int before = differences.size();
        compareRaw(owner, element, isSon, valueOf, guessed, differences);
        const QString misplaced = misplacedBy(element, keyPlaces, item);
        if (found.size() > 1) {
            std::for_each(differences.begin() + before, differences.end(), [](Difference &d) { d.isMinor = true; });
        } else if (!misplaced.isEmpty()) {
            differences.append({owner, misplaced, "a place", "another"});
        }
    }
    for (QDomElement son = sons.firstChildElement(); !son.isNull(); son = son.nextSiblingElement()) {
        rawDifferences(slide, son, items, differences);
    }
}

void collectItems(const QJsonArray &items, QMultiHash<QString, QJsonObject> &all)
{
    for (const QJsonValue &item : items) {
        all.insert(item.toObject().value("ID").toString(), item.toObject());
        collectItems(item.toObject().value("Children").toArray(), all);
    }
}

QVector<Failure> judgeRaw(const Given &given, bool isTwice)
{
    Way way;
    const QString input = way.put(given);
    const LossReport reading = way.convert(input, "model.json", "json");
    QVector<Failure> failures = isTwice ? twice(way, input, "model.json", "json") : QVector<Failure>();
    const QJsonObject model = way.model("model.json");
    Differences differences;
    const QJsonArray slides = model.value("Slides").toArray();
    int number = 0;
    rawPropertyDifferences(0, given.documents.first().documentElement(), model, differences);
    for (QDomElement slide = given.documents.first().documentElement().firstChildElement("slide"); !slide.isNull();
         slide = slide.nextSiblingElement("slide")) {
        QMultiHash<QString, QJsonObject> items;
        const QJsonObject found = slides.at(number++).toObject();
        rawPropertyDifferences(number, slide, found, differences);
        collectItems(found.value("Items").toArray(), items);
        for (QDomElement item = slide.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
            rawDifferences(number, item, items, differences);
        }
    }
    return failures + disagreements("read: ", differences, reading);
}

// What is told of the way from raw XML into a package beyond what reading loses.
QVector<Failure> judgeRawPackage(const Given &given, bool isTwice)
{
    Way way;
    const QString input = way.put(given);
    const LossReport reading = way.convert(input, "model.json", "json");
    const LossReport both = way.convert(input, "there", "zqtx");
    QVector<Failure> failures = isTwice ? twice(way, input, "there", "zqtx") : QVector<Failure>();
    way.convertBack("there", "back.json", "json");
    LossReport writing;
    for (const Loss &loss : both.entries()) {
        const bool isOfReading = isToldIn(reading, [&loss](const Loss &other) {
            return loss.slide == other.slide && loss.itemId == other.itemId && loss.key == other.key;
        });
        if (!isOfReading) {
            writing.add(loss);
        }
    }
    return failures
        + disagreements("written: ", lessonDifferences(way.model("model.json"), way.model("back.json"), Road::Packed),
                        writing);
}

const QVector<Road_> &roads()
{
    static const QVector<Road_> all{
        {"json-json", [](quint32 seed) { return randomModel(seed, false); },
         [](const Given &given, bool isTwice) { return judgeModel(given, "json", Road::Kept, isTwice); }},
        {"json-zqtx-json", [](quint32 seed) { return randomModel(seed, false); },
         [](const Given &given, bool isTwice) { return judgeModel(given, "zqtx", Road::Packed, isTwice); }},
        {"zqtx-json-zqtx", [](quint32 seed) { return randomPackage(seed, "zqtx"); },
         [](const Given &given, bool isTwice) { return judgePackage(given, "zqtx", isTwice); }},
        {"json-iwb-json", [](quint32 seed) { return randomModel(seed, true); },
         [](const Given &given, bool isTwice) { return judgeModel(given, "iwb", Road::Drawn, isTwice); }},
        {"json-iwb whole-json", [](quint32 seed) { return randomModel(seed, true); },
         [](const Given &given, bool isTwice) { return judgeModel(given, wholeIwb, Road::Kept, isTwice); }},
        {"iwb-json-iwb", [](quint32 seed) { return randomPackage(seed, "iwb"); },
         [](const Given &given, bool isTwice) { return judgePackage(given, "iwb", isTwice); }},
        {"rawxml-json", randomRaw, judgeRaw},
        {"rawxml-zqtx-json", randomRaw, judgeRawPackage},
    };
    return all;
}

// ---- The smallest lesson that still fails --------------------------------------------------------------------------

// Takes away the value of that number, counted through the tree from the outside in; false where there is none. What a
// value is within is counted before it.
bool takeAway(QJsonValue &value, int &number)
{
    QJsonObject object = value.toObject();
    QJsonArray array = value.toArray();
    const QStringList keys = object.keys();
    for (int i = 0; i < keys.size() + array.size(); ++i) {
        const QString key = keys.value(i);
        QJsonValue inner = value.isArray() ? array.at(i) : object.value(key);
        // Without these, failures are hard to place.
        if (key != "ID" && key != "Type" && number-- == 0) {
            value.isArray() ? array.removeAt(i) : object.remove(key);
        } else if (takeAway(inner, number)) {
            value.isArray() ? array.replace(i, inner) : void(object.insert(key, inner));
        } else {
            continue;
        }
        value = value.isArray() ? QJsonValue(array) : object;
        return true;
    }
    return false;
}

bool takeAway(QDomElement element, int &number)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        if (name != "id" && name != "NetID" && number-- == 0) {
            element.removeAttribute(name);
            return true;
        }
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (number-- == 0) {
            element.removeChild(child);
            return true;
        }
        if (takeAway(child, number)) {
            return true;
        }
    }
    return false;
}

bool takeAway(Given &given, int number)
{
    if (given.documents.isEmpty()) {
        QJsonValue model = given.model;
        const bool isDone = takeAway(model, number);
        given.model = model.toObject();
        return isDone;
    }
    for (QDomDocument &document : given.documents) {
        // What is cloned with its document belongs to the document that it was cloned from.
        QDomDocument copy;
        copy.appendChild(copy.importNode(document.documentElement(), true));
        if (takeAway(copy.documentElement(), number)) {
            document = copy;
            return true;
        }
    }
    return false;
}

// What tells failures of one cause from others.
QString signatureOf(const Failure &failure)
{
    const QString given = failure.difference.given;
    for (const char *cause : {"one of two", "\\u000b"}) {
        if (given.contains(cause)) {
            return failure.kind + ' ' + cause;
        }
    }
    const QString form = given.startsWith('"') ? "text"
        : given.startsWith('{')                ? "object"
        : given.startsWith('[')                ? "list"
                                               : "plain";
    return failure.kind + ' ' + keyOf(failure.difference.key)
        + (failure.kind.endsWith("silence") ? ' ' + form : QString());
}

QVector<Failure> judged(const Road_ &road, const Given &given, bool isTwice)
{
    try {
        return road.judge(given, isTwice);
    } catch (const LessonError &) {
        return {};
    } catch (const std::runtime_error &error) {
        return {{"what was written can't be read", {{}, {}, error.what(), {}}, {}}};
    }
}

Given smallest(const Road_ &road, Given given, Failure &failure)
{
    const QString signature = signatureOf(failure);
    int tries = 0;
    for (int number = 0; tries < 600; ++tries) {
        Given smaller = given;
        if (!takeAway(smaller, number)) {
            break;
        }
        const QVector<Failure> failures = judged(road, smaller, failure.kind == notTheSame);
        const auto found = std::find_if(failures.begin(), failures.end(),
                                        [&](const Failure &other) { return signatureOf(other) == signature; });
        if (found != failures.end()) {
            given = smaller;
            failure = *found;
        } else {
            ++number;
        }
    }
    return given;
}

QString textOf(const Given &given)
{
    QString text;
    for (auto it = given.documents.begin(); it != given.documents.end(); ++it) {
        text += it.key() + ": " + it.value().toString(1);
    }
    return given.documents.isEmpty() ? QString::fromUtf8(jsonText(given.model)) : text;
}

QString described(const Failure &failure, const Given &given)
{
    const Difference &difference = failure.difference;
    const Owner &owner = difference.owner;
    const QByteArray report = QJsonDocument(failure.report.toJson()).toJson(QJsonDocument::Compact);
    return failure.kind + ": slide " + QString::number(owner.slide) + ", " + owner.type + ' ' + owner.id + ", key \""
        + difference.key + "\": given " + difference.given + ", found " + difference.found
        + "\nreport: " + QString::fromUtf8(report) + "\nlesson: " + textOf(given);
}

} // namespace

/*!
 * For random lessons on every road: what differs after the way there and back and what the report says are the same.
 *
 * LOSSES_SEED is the seed of the first lesson, LOSSES_SECONDS the time for all roads, LOSSES_KINDS how many kinds of
 * failures of a road are looked for; "tst_losses agree:json-iwb-json" takes one road.
 */
class TestLosses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"_s); }

    void agree_data()
    {
        const Table<int> row("road");
        for (int i = 0; i < roads().size(); ++i) {
            row(roads().at(i).name, i);
        }
    }

    void agree()
    {
        QFETCH(int, road);
        const Road_ &way = roads().at(road);
        const int first = setting("LOSSES_SEED", 1);
        const int most = setting("LOSSES_KINDS", 3);
        const qint64 time = qint64(setting("LOSSES_SECONDS", 42)) * 1000 / roads().size();
        QElapsedTimer timer;
        timer.start();
        QStringList found;
        int converted = 0;
        int seed = first;
        for (; !timer.hasExpired(time) && found.size() < most; ++seed) {
            Given given;
            QVector<Failure> failures;
            try {
                given = way.begin(quint32(seed));
                failures = way.judge(given, seed % 8 == 0);
                ++converted;
            } catch (const LessonError &) {
                continue; // a lesson may be refused
            } catch (const std::runtime_error &) {
                failures = judged(way, given, false);
            }
            for (Failure failure : qAsConst(failures)) {
                const QString signature = signatureOf(failure);
                if (!found.contains(signature) && found.size() < most) {
                    found.append(signature);
                    const Given small = smallest(way, given, failure);
                    qWarning().noquote() << "seed" << seed << way.name << described(failure, small) << '\n';
                }
            }
        }
        qInfo().noquote() << converted << "of" << seed - first << "lessons converted from seed" << first;
        QVERIFY2(found.isEmpty(), qPrintable(found.join("; ")));
        QVERIFY2(converted * 2 > seed - first, "most lessons are refused");
    }
};

int main(int argc, char **argv)
{
    prepareRandomRun(setting("LOSSES_SECONDS", 42));
    QGuiApplication application(argc, argv);
    TestLosses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_losses.moc"
