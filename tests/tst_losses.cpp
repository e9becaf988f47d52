#include "hostfixture.h"
#include "lessondifference.h"
#include "randomlesson.h"

#include "formats/conversion.h"

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
        convertLesson(lessonFormatOfInput(input), input, lessonFormatByName(isWhole ? "iwb" : format), folder() + '/' + to, context,
                      [](int, int) {});
        return losses;
    }

    //! The same, where a refusal would mean that something was written that can't be read.
    LossReport convertBack(const QString &from, const QString &to, const QString &format)
    {
        try {
            return convert(from, to, format);
        } catch (const LessonError &error) {
            throw std::runtime_error(qPrintable(error.message()));
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

// The key of the item that holds a value, or the place of a value in XML but for the numbers of its steps.
QString keyOf(const QString &way)
{
    static const QRegularExpression numbers(
        "\\[.*?\\](?=[/@[]|$)", QRegularExpression::DotMatchesEverythingOption); // a label may hold a bracket
    const bool isPlace = way.contains('@') || way.contains('/');
    return isPlace ? QString(way).remove(numbers) : way.section('.', 0, 0).section('[', 0, 0);
}

bool isOfSameItem(const Loss &loss, const Difference &difference)
{
    const bool isSameItem = loss.itemId.isEmpty() || difference.id.isEmpty()
        ? loss.itemType == difference.type || (difference.type.isEmpty() && loss.itemId.isEmpty())
        : loss.itemId == difference.id;
    return loss.slide == difference.slide && isSameItem;
}

// Whether a file is named in what was given, which is shown as XML has it or as JSON.
bool names(const QString &given, const QString &file)
{
    const QByteArray json = QJsonDocument(QJsonArray{file}).toJson(QJsonDocument::Compact);
    return given.contains(file) || given.contains(QString::fromUtf8(json.mid(2).chopped(2)));
}

// Whether an entry of a report tells of a difference.
bool tells(const Loss &loss, const Difference &difference)
{
    if (!isLoss(loss) || !isOfSameItem(loss, difference)) {
        return false;
    }
    if (loss.kind == Loss::Item || loss.key.isEmpty()) {
        return true;
    }
    if (loss.kind == Loss::File && names(difference.given, loss.key)) {
        return true;
    }
    // A container that is taken apart is told by what it was or held.
    const bool isWhole = difference.key.isEmpty() && (loss.key == "Type" || loss.key == "Children");
    return isWhole || keyOf(loss.key) == keyOf(difference.key);
}

Difference asDifference(const Loss &loss)
{
    return {loss.slide, loss.itemType, loss.itemId, loss.key, loss.detail, {}};
}

const char *const notTheSame = "not the same twice";

using Told = std::function<bool(const Difference &difference)>;

// What differs and isn't told, and what is told and doesn't differ. isToldElsewhere: of differences only.
QVector<Failure> disagreements(const QString &step, const QVector<Difference> &differences, const LossReport &report,
                               const Told &isToldElsewhere = {})
{
    QVector<Failure> failures;
    for (const Difference &difference : differences) {
        const auto &entries = report.entries();
        const bool isTold = std::any_of(entries.begin(), entries.end(),
                                        [&difference](const Loss &loss) { return tells(loss, difference); });
        if (!isTold && !difference.isMinor && !(isToldElsewhere && isToldElsewhere(difference))) {
            failures.append({step + "lost in silence", difference, report});
        }
    }
    for (const Loss &loss : report.entries()) {
        const bool isTrue = std::any_of(differences.begin(), differences.end(), [&loss](const Difference &difference) {
            // Of an item that isn't there, everything is lost.
            const bool isGone = difference.key.isEmpty() && difference.found == "nothing";
            return tells(loss, difference) || (isGone && isOfSameItem(loss, difference));
        });
        if (isLoss(loss) && !isTrue) {
            failures.append({step + "false alarm", asDifference(loss), report});
        }
    }
    return failures;
}

QVector<Failure> twice(Way &way, const QString &input, const QString &first, const QString &format)
{
    QVector<Failure> failures;
    const LossReport report = way.convert(input, "again", format);
    const auto content = [](const QString &name) {
        const QString path = Way::folder() + '/' + name;
        return QFileInfo(path).isDir() ? filesBelow(path) : QMap<QString, QByteArray>{{QString(), fileContent(path)}};
    };
    const auto one = content(first);
    const auto other = content("again");
    for (auto it = one.begin(); it != one.end(); ++it) {
        if (other.value(it.key()) != it.value()) {
            failures.append({notTheSame, {0, {}, {}, it.key(), {}, {}}, report});
        }
    }
    return failures;
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

QVector<Difference> packageDifferences(const Given &given, const Given &found, const QJsonObject &model)
{
    QVector<Difference> differences = documentDifferences(0, given.documents.value("index.xml").documentElement(),
                                                          found.documents.value("index.xml").documentElement());
    const QJsonArray slides = model.value("Slides").toArray();
    int number = 0;
    for (QDomElement file =
             given.documents.value("index.xml").documentElement().firstChildElement("slides").firstChildElement("file");
         !file.isNull(); file = file.nextSiblingElement("file")) {
        const QString id = slides.at(number++).toObject().value("ID").toString();
        differences += documentDifferences(number, given.documents.value(file.attribute("href")).documentElement(),
                                           found.documents.value("slides/" + id + ".xml").documentElement());
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
        const auto isLostInWriting = [&writing](const Difference &difference) {
            const auto &entries = writing.entries();
            return std::any_of(entries.begin(), entries.end(), [&difference](const Loss &loss) {
                return isLoss(loss) && isOfSameItem(loss, difference);
            });
        };
        failures +=
            disagreements("read: ", packageDifferences(given, way.package("there"), model), reading, isLostInWriting);
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

// A place of raw XML and what it says.
struct RawPlace
{
    QJsonArray path;
    QString text;
    bool isText; // of the element, else of its attribute

    // "data/rect@points" of an attribute, "data/note" of a text.
    QString way() const
    {
        QStringList steps;
        for (const QJsonValue &step : path) {
            steps.append(step.toString());
        }
        const QString last = (isText ? "" : "@") + (isText ? QString() : steps.takeLast());
        return steps.join('/') + last;
    }
};

QJsonArray stepTo(QJsonArray path, const QString &name)
{
    path.append(name);
    return path;
}

void collectPlaces(const QDomElement &element, const QJsonArray &path, QVector<RawPlace> &places)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        places.append({stepTo(path, attributes.item(i).nodeName()), attributes.item(i).nodeValue(), false});
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QJsonArray inner = stepTo(path, child.tagName());
        // What is in a group's first is looked at item by item.
        const bool holdsItems = path.isEmpty() && child == element.firstChildElement("GroupSonItems");
        collectPlaces(holdsItems ? child.cloneNode(false).toElement() : child, inner, places);
        if (!holdsItems && child.firstChildElement().isNull()
            && (child.hasChildNodes() || child.attributes().isEmpty())) {
            places.append({inner, child.text(), true});
        }
    }
}

QString keyOfPlace(const QJsonObject &keyPlaces, const QJsonArray &place)
{
    for (auto it = keyPlaces.constBegin(); it != keyPlaces.constEnd(); ++it) {
        if (it.value().toArray() == place) {
            return it.key();
        }
    }
    return {};
}

QVector<double> numbersIn(const QString &text)
{
    QVector<double> numbers;
    const QStringList parts = text.split(',');
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers.append(part.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.last())) {
            return {};
        }
    }
    return numbers;
}

// The alpha of a raw page's colour doesn't count.
QString withoutAlpha(const QString &color)
{
    return numbersIn(color).size() == 4 ? color.section(',', 1) : color;
}

// What the model says otherwise than the attributes of a raw slide or presentation of the same names, and elements of
// the presentation that are no slides.
void rawPropertyDifferences(int slide, const QDomElement &element, const QJsonObject &found,
                            QVector<Difference> &differences)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const QString key = name == "NetID" ? "ID" : name;
        const QString text = attributes.item(i).nodeValue();
        const QString meant = key == "BackColor" ? withoutAlpha(text) : text;
        if (!isSameInModel(key, meant, found.value(key), Road::Kept)) {
            // References get the lesson's own folder.
            differences.append({slide, element.tagName(), element.attribute("NetID"), '@' + name, text,
                                toText(QJsonObject{{key, found.value(key)}}), name == "AttachFile"});
        }
    }
    QVector<RawPlace> places;
    for (QDomElement child = element.firstChildElement(); slide == 0 && !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() != "slide") {
            collectPlaces(child, {child.tagName()}, places);
            places.append({{child.tagName()}, child.text(), true});
        }
    }
    for (const RawPlace &place : qAsConst(places)) {
        differences.append({slide, element.tagName(), {}, place.way(), place.text, {}, place.text.isEmpty()});
    }
}

// The number of a list that a control point goes into, in single precision, or what the item has under the same name.
bool isSameControl(const QString &name, const QString &text, const QJsonObject &item)
{
    static const QRegularExpression control("^Discipline_([xy])Control(0|[1-9][0-9]*)$");
    const QRegularExpressionMatch match = control.match(name);
    bool isNumber = false;
    const float number = text.toFloat(&isNumber);
    const int place = 2 * match.captured(2).toInt() + (match.captured(1) == "y" ? 1 : 0);
    const QJsonValue found = item.value("Control").toArray().at(place);
    return match.hasMatch() && isNumber && found.isDouble() && float(found.toDouble()) == number;
}

std::optional<QTransform> matrixIn(const QString &text)
{
    const QVector<double> n = numbersIn(text.isNull() ? "1,0,0,1,0,0" : text);
    return n.size() == 6 ? std::optional<QTransform>({n[0], n[1], n[2], n[3], n[4], n[5]}) : std::nullopt;
}

bool isNear(const QTransform &one, const QTransform &other)
{
    const QVector<QPointF> corners{{0, 0}, {1000, 0}, {0, 1000}};
    for (const QPointF &corner : corners) {
        if (QLineF(one.map(corner), other.map(corner)).length() > 0.05) {
            return false;
        }
    }
    return true;
}

// The attribute by which an item stands elsewhere than the raw one did; empty where it stands where it stood, or where
// its place is no box under a matrix.
QString misplacedBy(const QDomElement &element, const QJsonObject &keyPlaces, const QJsonObject &item)
{
    const QVector<double> bound = numbersIn(element.attribute("Bound"));
    const QVector<double> box = numbersIn(item.value("BoundingBox").toString());
    const auto own = matrixIn(element.attribute("TransformMatrix", QString()));
    const auto fit = matrixIn(item.value("SlideMatrix").toString(QString()));
    const auto matrix = matrixIn(item.value("Matrix").toString(QString()));
    // Vector shapes and figures have a matrix of their own in many attributes.
    const bool hasInner = element.tagName().startsWith("ZQVector") || element.tagName().startsWith("ZQShape");
    if (hasInner || keyPlaces.value("Matrix").toArray() != QJsonArray{"TransformMatrix"} || !own || !fit || !matrix
        || bound.size() != 6 || bound[2] != 0 || bound[3] != 0) {
        return {};
    }
    const QTransform onPage = *own * *fit;
    if (!isNear(onPage, *matrix) && (!matrix->isIdentity() || box.size() != 4)) {
        return "@TransformMatrix";
    }
    const QRectF given({bound[4], bound[5]}, QPointF(bound[0], bound[1]));
    const QRectF found = box.size() == 4 ? QRectF({box[0], box[1]}, QPointF(box[2], box[3])) : QRectF();
    const bool isFolded = !isNear(onPage, *matrix);
    const QPolygonF before = isFolded ? onPage.map(QPolygonF(given)) : QPolygonF(given);
    const QPolygonF after(found);
    for (int i = 0; i < before.size(); ++i) {
        const double size = 1 + qAbs(before[i].x()) + qAbs(before[i].y());
        if (QLineF(before[i], after[i]).length() > 1e-4 * size) {
            return isFolded ? "@TransformMatrix" : "@Bound";
        }
    }
    return {};
}

// The last value of a key in a list of records.
QJsonValue valueInList(const QJsonValue &list, const QString &key)
{
    QJsonValue value;
    const QJsonArray records = list.toArray();
    for (const QJsonValue &record : records) {
        value = record.toObject().contains(key) ? record.toObject().value(key) : value;
    }
    return value;
}

// What the model says otherwise than the raw item did. Where an item stands is worked out from several values.
void rawDifferences(int slide, const QDomElement &element, const QMultiHash<QString, QJsonObject> &items,
                    QVector<Difference> &differences)
{
    static const QStringList workedOut{"BoundingBox",        "Matrix",     "SlideMatrix",    "Control",
                                       "Discipline_xCreate", "Angle",      "MultiMediaFile", "Discipline_yCreate",
                                       "StartAngle",         "SweepAngle", "WordHide"};
    const QString id = element.attribute("NetID");
    QVector<QJsonObject> found;
    for (const QJsonObject &other : items.values(id)) {
        if (other.value("Type") == element.tagName()) {
            found.append(other);
        }
    }
    const QJsonObject item = found.value(0);
    QVector<RawPlace> places;
    collectPlaces(element, {}, places);
    const bool isKept = item.isEmpty() || item.contains("KeptXml");
    QVector<QJsonArray> seen;
    const QJsonObject keyPlaces = isKept ? QJsonObject() : rawPlacesOf(element.tagName());
    for (const RawPlace &place : qAsConst(places)) {
        const QString known = keyOfPlace(keyPlaces, place.path);
        const QString last = place.path.last().toString();
        const QString list = place.path.first().toString();
        // An attribute of the item that is no place bears the name of a key or none.
        const QString key = known.isEmpty() ? last : known;
        // What the list's element itself says is in none of its records.
        const bool isInList = list == "PixelDeleteInfos" && place.path.size() > 2;
        const QJsonValue value = isInList              ? valueInList(item.value(list), key)
            : known.isEmpty() && place.path.size() > 1 ? QJsonValue(QJsonValue::Undefined)
                                                       : item.value(key);
        const bool isSame = isSameInModel(key, place.text, value, known.isEmpty() ? Road::Kept : Road::Packed)
            || (place.path.size() == 1 && isSameControl(last, place.text, item));
        // What is there twice may be told once.
        const bool isRepeated = seen.contains(place.path);
        const bool isMinor = isSame || place.text.isEmpty() || workedOut.contains(key) || found.size() > 1;
        seen.append(place.path);
        if (!isKept && (!isSame || isRepeated || place.text.isEmpty())) {
            differences.append(
                {slide, element.tagName(), id, place.way(), place.text, toText(QJsonObject{{key, value}}), isMinor});
        }
    }
    const QString misplaced = isKept || found.size() > 1 ? QString() : misplacedBy(element, keyPlaces, item);
    if (!misplaced.isEmpty()) {
        differences.append({slide, element.tagName(), id, misplaced, "a place", "another"});
    }
    const QDomElement sons = element.firstChildElement("GroupSonItems");
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
    QVector<Difference> differences;
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
        const auto &entries = reading.entries();
        const bool isOfReading = std::any_of(entries.begin(), entries.end(), [&loss](const Loss &other) {
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
    const auto inner = [&number](QJsonValueRef part) {
        QJsonValue changed = part;
        const bool isDone = takeAway(changed, number);
        part = changed;
        return isDone;
    };
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        const QStringList keys = object.keys();
        for (const QString &key : keys) {
            // Without these, failures are hard to place.
            if (key != "ID" && key != "Type" && number-- == 0) {
                object.remove(key);
                value = object;
                return true;
            }
            if (inner(object[key])) {
                value = object;
                return true;
            }
        }
    } else if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            if (number-- == 0) {
                array.removeAt(i);
                value = array;
                return true;
            }
            if (inner(array[i])) {
                value = array;
                return true;
            }
        }
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
        return {{"what was written can't be read", {0, {}, {}, {}, error.what(), {}}, {}}};
    }
}

std::optional<Failure> failureLike(const QString &signature, const QVector<Failure> &failures)
{
    for (const Failure &failure : failures) {
        if (signatureOf(failure) == signature) {
            return failure;
        }
    }
    return std::nullopt;
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
        const auto found = failureLike(signature, judged(road, smaller, failure.kind == notTheSame));
        if (found) {
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
    QString text = failure.kind + ": slide " + QString::number(difference.slide) + ", " + difference.type + ' '
        + difference.id + ", key \"" + difference.key + "\": given " + difference.given + ", found " + difference.found
        + "\nreport:";
    for (const Loss &loss : failure.report.entries()) {
        text += "\n  "
            + QString::fromUtf8(QJsonDocument(QJsonObject{{"kind", loss.kind},
                                                          {"slide", loss.slide},
                                                          {"type", loss.itemType},
                                                          {"id", loss.itemId},
                                                          {"key", loss.key},
                                                          {"detail", loss.detail}})
                                    .toJson(QJsonDocument::Compact));
    }
    return text + "\nlesson: " + textOf(given);
}

int setting(const char *name, int usual)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : usual;
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
            try {
                given = way.begin(quint32(seed));
            } catch (const LessonError &) {
                continue;
            }
            QVector<Failure> failures;
            try {
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
    // The host lays out text.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt Test ends what takes longer than five minutes, which a run by hand may.
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(300000 + setting("LOSSES_SECONDS", 42) * 1000LL));
    // The attributes of an element stand in the order of their hashes, and a seed stands for the same lesson each time.
    qSetGlobalQHashSeed(0);
    QGuiApplication application(argc, argv);
    TestLosses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_losses.moc"
