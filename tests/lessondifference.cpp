#include "lessondifference.h"

#include "pluginfixture.h"
#include "randomlesson.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPolygonF>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QTransform>

#include <cmath>
#include <optional>

namespace {

// ---- What is the same in another dress -----------------------------------------------------------------------------

// What a key says that isn't there.
const QHash<QString, QString> &defaults()
{
    static const QHash<QString, QString> values{{"Visible", "1"},   {"LockIn", "0"},          {"InfiniteClone", "0"},
                                                {"Angle", "0"},     {"HorizonFlip", "0"},     {"VerticalFlip", "0"},
                                                {"Opacity", "255"}, {"Matrix", "1,0,0,1,0,0"}};
    return values;
}

// What an attribute of an item in XML says that isn't there.
const QHash<QString, QString> &defaultsOfPlaces()
{
    static const QHash<QString, QString> values{{"@visible", "1"},     {"@locked", "0"},
                                                {"@uclone", "0"},      {"transform/rotate@angle", "0"},
                                                {"@horizonflip", "0"}, {"@verticalflip", "0"}};
    return values;
}

// Where a value is found that its format has another key for.
QString otherName(const QString &key)
{
    static const QHash<QString, QString> names{
        {"BoundingBox", "IgnoredBoundingBox"},
        {"Control", "IgnoredControl"},
        {"MultiMediaFile", "resource"},
        {"Text", "TextHtml"},
        {"TextContent", "TextHtml"},
        {"BackColor", "color"},
        {"AttachFile", "document"},
        {"Width", "ArtObj_Width"},
    };
    return names.value(key);
}

// The same for ink that became a line.
QString otherNameOfInk(const QString &key)
{
    static const QHash<QString, QString> names{{"Color", "ArtObj_Color"}, {"Width", "ArtObj_Width"}};
    return names.value(key);
}

// Keys whose texts are numbers, so that 1.50 is 1.5.
bool isNumeric(const QString &key)
{
    static const QStringList keys{
        "Angle",       "BoundingBox",  "Matrix",        "SlideMatrix",   "Control",       "XY",    "XYValue",
        "Width",       "Height",       "Opacity",       "ArtObj_Width",  "points",        "angle", "controlpoints",
        "width",       "height",       "opacity",       "page_scale",    "position",      "stamp", "style",
        "spreadStyle", "answer_width", "answer_height", "content_width", "content_height"};
    return keys.contains(key);
}

// Keys of yes and no, which a number says as well.
bool isFlag(const QString &key)
{
    static const QStringList keys{"Visible", "LockIn",   "InfiniteClone",    "visible", "locked",
                                  "uclone",  "visiable", "childrenVisiable", "shade"};
    return keys.contains(key);
}

bool isColor(const QString &key)
{
    return key.contains("olor");
}

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

// A text, number or flag as text; nothing for others.
std::optional<QString> plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Double:
        return numberText(value.toDouble());
    case QJsonValue::Bool:
        return value.toBool() ? "1" : "0";
    default:
        return std::nullopt;
    }
}

bool saysNothing(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull() || (value.isString() && value.toString().isEmpty())
        || (value.isArray() && value.toArray().isEmpty()) || (value.isObject() && value.toObject().isEmpty());
}

// Numbers with commas between, or a list of them. Nothing where one of them is none.
std::optional<QVector<double>> numbersOf(const QJsonValue &value)
{
    QVector<double> numbers;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue &number : array) {
            if (!number.isDouble()) {
                return std::nullopt;
            }
            numbers.append(number.toDouble());
        }
        return numbers;
    }
    const auto text = plainText(value);
    if (!text) {
        return std::nullopt;
    }
    QStringList parts = text->split(',');
    if (parts.size() > 1 && parts.last().isEmpty()) {
        parts.removeLast();
    }
    for (const QString &part : qAsConst(parts)) {
        bool isNumber = false;
        numbers.append(part.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.last())) {
            return std::nullopt;
        }
    }
    return numbers;
}

bool haveSameNumbers(const QJsonValue &given, const QJsonValue &found, double tolerance)
{
    const auto one = numbersOf(given);
    const auto other = numbersOf(found);
    return one && other
        && std::equal(one->begin(), one->end(), other->begin(), other->end(), [tolerance](double a, double b) {
               return a == b || std::fabs(a - b) <= tolerance * std::max(1.0, std::fabs(a));
           });
}

// {"Solid": 0xRRGGBB, "Alpha": 0 to 1} and nothing else; a,r,g,b; r,g,b; #rgb and the like; a name.
std::optional<QRgb> colorOf(const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        const double solid = object.value("Solid").toDouble(-1);
        const double alpha = object.value("Alpha").toDouble(object.contains("Alpha") ? -1 : 1);
        const bool isWhole = solid >= 0 && solid <= 0xffffff && solid == std::floor(solid);
        const int known = 1 + (object.contains("Alpha") ? 1 : 0);
        if (!isWhole || alpha < 0 || alpha > 1 || object.size() != known) {
            return std::nullopt;
        }
        return (QRgb(solid) & 0xffffff) | QRgb(qRound(alpha * 255)) << 24;
    }
    if (value.isDouble()) {
        const double number = value.toDouble();
        return number >= 0 && number <= 0xffffff && number == std::floor(number)
            ? std::optional<QRgb>(QRgb(number) | 0xff000000)
            : std::nullopt;
    }
    if (!value.isString()) {
        return std::nullopt;
    }
    const QStringList parts = value.toString().split(',');
    if (parts.size() == 3 || parts.size() == 4) {
        QVector<int> channels;
        for (const QString &part : parts) {
            bool isNumber = false;
            channels.append(part.toInt(&isNumber));
            if (!isNumber || channels.last() < 0 || channels.last() > 255) {
                return std::nullopt;
            }
        }
        const int alpha = parts.size() == 4 ? channels.takeFirst() : 255;
        return qRgba(channels.at(0), channels.at(1), channels.at(2), alpha);
    }
    const QColor named(value.toString());
    return named.isValid() ? std::optional<QRgb>(named.rgba()) : std::nullopt;
}

// The runs of a text, each with what its letters say of themselves; of those a found text may say more.
struct Run
{
    QString text;
    QTextCharFormat letters;
    QTextBlockFormat paragraph;
    bool isInList;
};

QVector<Run> runsOf(const QString &html)
{
    // What opens no tag is a letter.
    static const QRegularExpression lessThan("<(?![A-Za-z/!?])");
    QTextDocument document;
    document.setHtml(QString(html).replace(lessThan, "&lt;"));
    QVector<Run> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        runs.append({"\n", block.charFormat(), block.blockFormat(), block.textList() != nullptr});
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QString text = fragment.text();
            for (const QChar letter : text) {
                runs.append({letter, fragment.charFormat(), block.blockFormat(), block.textList() != nullptr});
            }
        }
    }
    return runs;
}

// 0 for letters that say nothing of their size.
double pixelSize(const QTextCharFormat &letters)
{
    const double pixels = letters.intProperty(QTextFormat::FontPixelSize);
    return pixels > 0 ? pixels : letters.fontPointSize() * 96 / 72;
}

bool isSameRun(const Run &given, const Run &found)
{
    if (given.text != found.text || given.isInList != found.isInList) {
        return false;
    }
    if (given.text == "\n") {
        const Qt::Alignment sides = Qt::AlignHorizontal_Mask;
        return ((given.paragraph.alignment() ^ found.paragraph.alignment()) & sides) == 0
            || !given.paragraph.hasProperty(QTextFormat::BlockAlignment);
    }
    if (pixelSize(given.letters) > 0 && std::fabs(pixelSize(given.letters) - pixelSize(found.letters)) > 0.01) {
        return false;
    }
    for (const int property :
         {int(QTextFormat::FontFamily), int(QTextFormat::FontWeight), int(QTextFormat::FontItalic),
          int(QTextFormat::TextUnderlineStyle), int(QTextFormat::ForegroundBrush), int(QTextFormat::BackgroundBrush),
          int(QTextFormat::TextVerticalAlignment), int(QTextFormat::AnchorHref)}) {
        if (given.letters.hasProperty(property)
            && given.letters.property(property) != found.letters.property(property)) {
            return false;
        }
    }
    return true;
}

bool isSameHtml(const QString &given, const QString &found)
{
    if (given.contains("<table")) {
        return found.contains("<table");
    }
    const QVector<Run> one = runsOf(given);
    const QVector<Run> other = runsOf(found);
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), isSameRun);
}

bool isSamePlainText(const QString &text, const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText() == text;
}

QString canonicalXml(const QString &text)
{
    QDomDocument document;
    return document.setContent(text) ? toText(document.documentElement()) : text;
}

// ---- Trees ---------------------------------------------------------------------------------------------------------

QString shown(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return "nothing";
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2)).left(300);
}

struct Place
{
    int slide;
    QString type;
    QString id;
    Road road;
};

using Differences = QVector<Difference>;

bool isSameLeaf(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    const auto one = plainText(given);
    const auto other = plainText(found);
    if (one && other && *one == *other) {
        return true;
    }
    // A number in JSON is one in any text form; a text is so only where texts are numbers.
    const double tolerance = road == Road::Drawn ? 1e-4 : 0;
    const bool isNumber = given.isDouble() || found.isDouble() || isNumeric(key) || isFlag(key);
    const bool areLists = given.isArray() || found.isArray();
    if (isNumber && (!areLists || isNumeric(key)) && haveSameNumbers(given, found, isNumeric(key) ? tolerance : 0)) {
        return true;
    }
    if (isColor(key)) {
        const auto color = colorOf(given);
        const auto other = colorOf(found);
        const bool areInvisible = road == Road::Drawn && color && other && qAlpha(*color) == 0 && qAlpha(*other) == 0;
        return areInvisible || (color && color == other);
    }
    if (key == "manager" && one && other) {
        return canonicalXml(*one) == canonicalXml(*other);
    }
    if (key == "TextHtml" && road == Road::Drawn && one && other) {
        return isSameHtml(*one, *other);
    }
    return false;
}

void compare(const Place &place, const QString &way, const QString &key, const QJsonValue &given,
             const QJsonValue &found, Differences &differences);

bool isSame(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    Differences differences;
    compare({0, {}, {}, road}, key, key, given, found, differences);
    return std::all_of(differences.begin(), differences.end(),
                       [](const Difference &difference) { return difference.isMinor; });
}

// What a parser drops: the first of two values of a key, and digits that a double doesn't have.
void unheldDifferences(const Place &place, const QString &way, const QJsonValue &value, Differences &differences)
{
    if (value.toString().startsWith(numberMark)) {
        differences.append({place.slide, place.type, place.id, way, shown(value), "less"});
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        unheldDifferences(place, way + '[' + QString::number(i) + ']', array.at(i), differences);
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const bool isSecond = it.key().endsWith(sameKeyMark);
        const QString key = isSecond ? it.key().chopped(1) : it.key();
        const QString inner = way.isEmpty() ? key : way + '.' + key;
        if (isSecond && object.contains(key) && !isSame(key, object.value(key), it.value(), Road::Packed)) {
            differences.append({place.slide, place.type, place.id, inner, "one of two: " + shown(object.value(key)),
                                shown(it.value())});
        }
        unheldDifferences(place, inner, it.value(), differences);
    }
}

void compare(const Place &place, const QString &way, const QString &key, const QJsonValue &given,
             const QJsonValue &found, Differences &differences)
{
    if (saysNothing(given) && saysNothing(found)) {
        return;
    }
    const QString implied = place.road == Road::Kept ? QString() : defaults().value(key);
    if (saysNothing(given)) {
        const bool isOtherwise = !implied.isEmpty() && !isSameLeaf(key, implied, found, place.road);
        if (isOtherwise) {
            differences.append({place.slide, place.type, place.id, way, shown(given), shown(found)});
        }
        return;
    }
    const QJsonValue actual = saysNothing(found) && !implied.isEmpty() ? QJsonValue(implied) : found;
    if (isSameLeaf(key, given, actual, place.road)) {
        if (saysNothing(found)) {
            differences.append({place.slide, place.type, place.id, way, shown(given), shown(found), true});
        }
        return;
    }
    if (given.isString() && actual.isArray()) {
        const QJsonDocument list = QJsonDocument::fromJson(given.toString().toUtf8());
        if (list.isArray() && list.array() == actual.toArray()) {
            return;
        }
    }
    if (given.isObject() && actual.isObject()) {
        const QString inner = way.isEmpty() ? way : way + '.';
        const QJsonObject one = given.toObject();
        for (auto it = one.constBegin(); it != one.constEnd(); ++it) {
            compare(place, inner + it.key(), it.key(), it.value(), actual.toObject().value(it.key()), differences);
        }
        return;
    }
    if (given.isArray() && actual.isArray()) {
        const QJsonArray one = given.toArray();
        const QJsonArray other = actual.toArray();
        for (int i = 0; i < std::max(one.size(), other.size()); ++i) {
            compare(place, way + '[' + QString::number(i) + ']', key, i < one.size() ? one.at(i) : QJsonValue(),
                    i < other.size() ? other.at(i) : QJsonValue(), differences);
        }
        return;
    }
    differences.append({place.slide, place.type, place.id, way, shown(given), shown(actual)});
}

// ---- Items ---------------------------------------------------------------------------------------------------------

// As a parser reads it, and as it is written. A list of numbers is their text.
QString idText(const QJsonValue &id)
{
    if (id.isDouble() || id.toString().startsWith(numberMark)) {
        return *plainText(id.isDouble() ? id.toDouble() : id.toString().mid(1).toDouble());
    }
    QStringList numbers;
    const QVector<double> list = id.isArray() ? numbersOf(id).value_or(QVector<double>()) : QVector<double>();
    for (const double number : list) {
        numbers.append(numberText(number));
    }
    return plainText(id).value_or(numbers.join(','));
}

struct Item
{
    QJsonObject keys; // without its items
    int around = -1; // the group that it is in
    QStringList childIds;
    bool isVisible = true; // with what is around it
    bool isLocked = false;
    bool isAroundPlaced = false; // around items with a matrix, which its own box follows

    // Control characters are no identifier in XML.
    QString id() const { return idText(keys.value("ID")).remove('\x01'); }
    QString type() const { return keys.value("Type").toString(); }
};

bool isSet(const QJsonValue &value, bool missing)
{
    if (saysNothing(value)) {
        return missing;
    }
    const QJsonArray list = value.toArray();
    const auto text = plainText(list.size() == 1 && list.first().isDouble() ? list.first() : value);
    return text && text->toInt() != 0; // flags are whole numbers
}

bool isContainer(const QString &type)
{
    static const QStringList types{"ZQGroupItem", "group", "ZQStrokesMathFormula", "ZQStrokesChemFormula"};
    return types.contains(type);
}

bool hasMatrix(const QJsonArray &items)
{
    return std::any_of(items.begin(), items.end(), [](const QJsonValue &value) {
        const QJsonObject item = value.toObject();
        return !saysNothing(item.value("Matrix")) || hasMatrix(item.value("Children").toArray());
    });
}

void collect(const QJsonArray &items, int around, Road road, QVector<Item> &all)
{
    for (const QJsonValue &value : items) {
        Item item;
        item.keys = value.toObject();
        item.around = around;
        item.isVisible = isSet(item.keys.value("Visible"), true) && (around < 0 || all.at(around).isVisible);
        item.isLocked = isSet(item.keys.value("LockIn"), false) || (around >= 0 && all.at(around).isLocked);
        QJsonArray children;
        const QJsonValue held = item.keys.value("Children");
        const QJsonArray list = held.toArray();
        // Beside other values, which are lost, there may be items. What is no list of items is taken apart where it is
        // drawn, and kept as any other key elsewhere.
        std::copy_if(list.begin(), list.end(), std::back_inserter(children),
                     [](const QJsonValue &value) { return value.isObject(); });
        const bool isWhole = held.isArray() && children.size() == list.size();
        if (isWhole || (road == Road::Drawn && !children.isEmpty())) {
            item.keys.remove("Children");
        }
        for (const QJsonValue &child : qAsConst(children)) {
            item.childIds.append(idText(child.toObject().value("ID")));
        }
        item.isAroundPlaced = hasMatrix(children);
        all.append(item);
        collect(children, all.size() - 1, road, all);
    }
}

QJsonArray childItems(const QJsonObject &item)
{
    const QJsonValue held = item.value("Children");
    const QJsonArray list = held.toArray();
    const bool areItems = std::all_of(list.begin(), list.end(), [](const QJsonValue &v) { return v.isObject(); });
    return areItems ? list : QJsonArray();
}

// Of items, and of those that containers hold. Elsewhere children are a value as any other.
void unheldDifferencesOfItems(int slide, const QJsonArray &items, Differences &differences)
{
    for (const QJsonValue &value : items) {
        QJsonObject item = value.toObject();
        const Place place{slide, item.value("Type").toString(), idText(item.value("ID")), Road::Kept};
        const QJsonArray children = isContainer(place.type) ? childItems(item) : QJsonArray();
        if (!children.isEmpty()) {
            item.remove("Children");
        }
        unheldDifferences(place, {}, item, differences);
        unheldDifferencesOfItems(slide, children, differences);
    }
}

Differences unheldDifferencesOfLesson(QJsonObject lesson)
{
    Differences differences;
    const QJsonArray slides = lesson.take("Slides").toArray();
    unheldDifferences({0, "presentation", {}, Road::Kept}, {}, lesson, differences);
    for (int i = 0; i < slides.size(); ++i) {
        QJsonObject slide = slides.at(i).toObject();
        const QJsonArray items = slide.take("Items").toArray();
        unheldDifferences({i + 1, "slide", idText(slide.value("ID")), Road::Kept}, {}, slide, differences);
        unheldDifferencesOfItems(i + 1, items, differences);
    }
    return differences;
}

// Nothing unless they are numbers in pairs.
std::optional<QPolygonF> pointsOf(const QJsonValue &value)
{
    const auto numbers = numbersOf(value);
    if (!numbers || numbers->isEmpty() || numbers->size() % 2 != 0) {
        return std::nullopt;
    }
    QPolygonF points;
    for (int i = 0; i < numbers->size(); i += 2) {
        points.append(QPointF(numbers->at(i), numbers->at(i + 1)));
    }
    return points;
}

QPolygonF stretched(QPolygonF points, const QRectF &frame)
{
    const QRectF own = points.boundingRect();
    for (QPointF &point : points) {
        const double x = own.width() > 0 ? (point.x() - own.left()) / own.width() : 0.5;
        const double y = own.height() > 0 ? (point.y() - own.top()) / own.height() : 0.5;
        point = QPointF(frame.left() + x * frame.width(), frame.top() + y * frame.height());
    }
    return points;
}

// Shapes of the plane whose points are told; those of others follow from their box.
bool hasOwnPoints(const QString &type)
{
    static const QStringList inBoxes{"ZQMath2DCircle", "ZQMath2DEllipse", "ZQMath2DRectangle", "ZQMath2DAngle"};
    return type.startsWith("ZQMath2D") && !inBoxes.contains(type) && !type.contains("Normal")
        && !type.contains("Parallel");
}

std::optional<QTransform> matrixOf(const QJsonValue &value)
{
    const auto n = numbersOf(saysNothing(value) ? QJsonValue("1,0,0,1,0,0") : value);
    return n && n->size() == 6 ? std::optional<QTransform>({n->at(0), n->at(1), n->at(2), n->at(3), n->at(4), n->at(5)})
                               : std::nullopt;
}

bool isInk(const QString &type)
{
    return (type.contains("Stroke") && !isContainer(type)) || type == "stroke";
}

// Where an item stands on the page: its points, stretched into its box and turned, or its corners. Nothing where one of
// its values isn't what it should be.
std::optional<QPolygonF> drawing(const QJsonObject &item)
{
    const QString type = item.value("Type").toString();
    const auto matrix = matrixOf(item.value("Matrix"));
    const auto angle = numbersOf(saysNothing(item.value("Angle")) ? QJsonValue(0) : item.value("Angle"));
    const bool hasTurn = saysNothing(item.value("Matrix")); // a matrix has its own
    if (hasTurn && (!angle || angle->size() != 1)) {
        return std::nullopt;
    }
    const auto line = pointsOf(item.value("XY"));
    if (matrix && line && isInk(type)) {
        QPolygonF points = *line;
        for (int i = 1; i < points.size(); ++i) {
            points[i] += points.at(i - 1);
        }
        if (!saysNothing(item.value("Matrix"))) {
            return matrix->map(points);
        }
        const QPointF center = points.boundingRect().center();
        QTransform turn = QTransform::fromTranslate(center.x(), center.y());
        turn.rotateRadians(angle->first());
        turn.translate(-center.x(), -center.y());
        return turn.map(points);
    }
    const auto box =
        numbersOf(item.value(saysNothing(item.value("BoundingBox")) ? otherName("BoundingBox") : "BoundingBox"));
    if (!box || box->size() != 4 || !matrix) {
        return std::nullopt;
    }
    const QRectF frame = QRectF(QPointF(box->at(0), box->at(1)), QPointF(box->at(2), box->at(3))).normalized();
    QPolygonF points;
    points << frame.topLeft() << frame.topRight() << frame.bottomRight() << frame.bottomLeft();
    if (hasOwnPoints(type)) {
        const auto own = pointsOf(item.value(type == "ZQMath2DPolyline" ? "XYValue" : "Control"));
        if (!own || (type.contains("Segment") && own->size() != 2)) {
            return std::nullopt;
        }
        // A matrix is around an origin of the points' own.
        points = saysNothing(item.value("Matrix")) ? stretched(*own, frame) : *own;
    }
    if (!saysNothing(item.value("Matrix"))) {
        return matrix->map(points); // a turn is in the matrix
    }
    QTransform turn = QTransform::fromTranslate(frame.center().x(), frame.center().y());
    turn.rotateRadians(angle->first());
    turn.translate(-frame.center().x(), -frame.center().y());
    return turn.map(points);
}

// Points that are there twice in a row draw nothing.
QPolygonF withoutRepeated(QPolygonF points)
{
    points.erase(
        std::unique(points.begin(), points.end(),
                    [](const QPointF &one, const QPointF &other) { return QLineF(one, other).length() < 1e-4; }),
        points.end());
    return points;
}

// A closed outline may name its first point again.
bool isSameDrawing(const std::optional<QPolygonF> &given, const std::optional<QPolygonF> &found)
{
    if (!given || !found) {
        return false;
    }
    QPolygonF one = withoutRepeated(*given);
    const QPolygonF other = withoutRepeated(*found);
    if (other.size() == one.size() + 1 && other.size() > 3) {
        one.append(one.first());
    }
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const QPointF &one, const QPointF &other) { return QLineF(one, other).length() < 0.01; });
}

// What told how items were fitted into the page; it has done its part where they stand.
bool isWorkedIn(const QString &key)
{
    return key == "SlideMatrix" || key == "SlideSourceRect";
}

bool isOfPlace(const QString &key)
{
    static const QStringList keys{"BoundingBox", "Control", "XYValue", "XY", "Angle", "Matrix"};
    return keys.contains(key);
}

/*!
 * Two lessons, slide by slide.
 */
class Comparing
{
public:
    Comparing(const QJsonObject &given, const QJsonObject &found, Road road)
        : m_road(road)
        , m_givenFiles(given.value("Resources").toObject())
        , m_foundFiles(found.value("Resources").toObject())
    {
        properties({0, "presentation", {}, road}, without(given, {"Slides", "Resources"}), found);
        if (road != Road::Drawn) {
            compare({0, "presentation", {}, road}, "Resources", "Resources", m_givenFiles, m_foundFiles, m_differences);
        }
        const QJsonArray givenSlides = given.value("Slides").toArray();
        const QJsonArray foundSlides = found.value("Slides").toArray();
        for (int i = 0; i < givenSlides.size(); ++i) {
            slide(i + 1, givenSlides.at(i).toObject(), foundSlides.at(i).toObject());
        }
    }

    Differences differences() const { return m_differences; }

private:
    static QJsonObject without(QJsonObject object, const QStringList &keys)
    {
        for (const QString &key : keys) {
            object.remove(key);
        }
        return object;
    }

    void slide(int number, const QJsonObject &given, const QJsonObject &found)
    {
        properties({number, "slide", idText(given.value("ID")), m_road}, without(given, {"Items"}), found);
        QVector<Item> givenItems;
        QVector<Item> foundItems;
        collect(given.value("Items").toArray(), -1, m_road, givenItems);
        collect(found.value("Items").toArray(), -1, m_road, foundItems);
        const QVector<int> places = matched(givenItems, foundItems);
        int last = -1;
        for (int i = 0; i < givenItems.size(); ++i) {
            const Item &item = givenItems.at(i);
            const Place place{number, item.type(), item.id(), m_road};
            if (places.at(i) < 0) {
                // An item that no others may be in is told by its key.
                bool isOfKey = false;
                for (int around = item.around; around >= 0 && !isOfKey; around = givenItems.at(around).around) {
                    isOfKey = !isContainer(givenItems.at(around).type());
                }
                m_differences.append({number, item.type(), item.id(), {}, "the item", "nothing", isOfKey});
                continue;
            }
            const bool isOneOfSeveral = std::count_if(givenItems.begin(), givenItems.end(),
                                                      [&item](const Item &other) { return other.id() == item.id(); })
                > 1;
            // Which of several came back is a guess.
            if (!isOneOfSeveral && places.at(i) < last) {
                m_differences.append(
                    {number, "slide", {}, "Items", "item " + item.id() + " in its place", "elsewhere"});
            }
            last = isOneOfSeveral ? last : places.at(i);
            const Item &back = foundItems.at(places.at(i));
            if (item.childIds != back.childIds) {
                m_differences.append(
                    {number, item.type(), item.id(), "Children", item.childIds.join(' '), back.childIds.join(' ')});
            }
            itemKeys(place, item, back);
        }
        for (int i = 0; i < foundItems.size(); ++i) {
            if (!places.contains(i)) {
                const Item &item = foundItems.at(i);
                m_differences.append({number, item.type(), item.id(), {}, "nothing", "an item"});
            }
        }
    }

    // By identifier; then by one that was made of it; what is left over in its order.
    QVector<int> matched(const QVector<Item> &given, const QVector<Item> &found)
    {
        QVector<int> places(given.size(), -1);
        QSet<int> taken;
        using IsSame = bool (*)(const Item &one, const Item &other);
        const IsSame ways[] = {
            [](const Item &one, const Item &other) { return !one.id().isEmpty() && one.id() == other.id(); },
            [](const Item &one, const Item &other) { return other.id().startsWith(one.id() + '_'); },
            [](const Item &one, const Item &other) { return one.type() == other.type(); },
            [](const Item &one, const Item &other) { return one.id().isEmpty() && other.id().isEmpty(); },
        };
        matchEqualIds(given, found, places, taken);
        for (const IsSame isSame : ways) {
            for (int i = 0; i < given.size(); ++i) {
                for (int j = 0; places.at(i) < 0 && j < found.size(); ++j) {
                    if (!taken.contains(j) && isSame(given.at(i), found.at(j))) {
                        places[i] = j;
                        taken.insert(j);
                    }
                }
            }
        }
        return places;
    }

    // Of several items with one identifier or with none, some of which may be gone, those are taken for the ones that
    // came back, in their order, that differ from them the least.
    void matchEqualIds(const QVector<Item> &given, const QVector<Item> &found, QVector<int> &places, QSet<int> &taken)
    {
        QHash<QString, QVector<int>> givenOfId;
        for (int i = 0; i < given.size(); ++i) {
            givenOfId[given.at(i).id()].append(i);
        }
        for (auto it = givenOfId.cbegin(); it != givenOfId.cend(); ++it) {
            QVector<int> back;
            const QString made = it.key().isEmpty() ? QString("item") : QString(it.key() + '_');
            for (int j = 0; (it->size() > 1 || it.key().isEmpty()) && j < found.size(); ++j) {
                const QString id = found.at(j).id();
                if (id == it.key() || (id.startsWith(made) && !givenOfId.contains(id))) {
                    back.append(j);
                }
            }
            if (back.isEmpty() || back.size() > it->size()) {
                continue;
            }
            const QVector<int> chosen = closest(given, *it, found, back);
            for (int k = 0; k < back.size(); ++k) {
                places[chosen.at(k)] = back.at(k);
                taken.insert(back.at(k));
            }
        }
    }

    // Those of the given ones, as many as were found, whose differences are the fewest in all.
    QVector<int> closest(const QVector<Item> &given, const QVector<int> &ones, const QVector<Item> &found,
                         const QVector<int> &others)
    {
        struct Choice
        {
            int differences = 0;
            QVector<int> chosen;
        };
        // choices.at(n): for the first n of the found ones, from the given ones so far.
        QVector<std::optional<Choice>> choices(others.size() + 1);
        choices[0] = Choice();
        for (const int one : ones) {
            for (int n = others.size(); n > 0; --n) {
                std::optional<Choice> taking = choices.at(n - 1);
                if (taking) {
                    taking->differences += count(given.at(one), found.at(others.at(n - 1)));
                    taking->chosen.append(one);
                }
                std::optional<Choice> &leaving = choices[n];
                if (leaving) {
                    leaving->differences += given.at(one).keys.size();
                }
                if (taking && (!leaving || taking->differences < leaving->differences)) {
                    leaving = taking;
                }
            }
            choices[0]->differences += given.at(one).keys.size();
        }
        return choices.last()->chosen;
    }

    // How much differs if the one became the other.
    int count(const Item &given, const Item &found)
    {
        const int before = m_differences.size();
        itemKeys({0, given.type(), given.id(), m_road}, given, found);
        const int count = int(std::count_if(m_differences.begin() + before, m_differences.end(),
                                            [](const Difference &difference) { return !difference.isMinor; }));
        m_differences.resize(before);
        return count;
    }

    void properties(const Place &place, const QJsonObject &given, const QJsonObject &found)
    {
        for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
            value(place, it.key(), it.value(), found);
        }
        for (auto it = found.constBegin(); it != found.constEnd(); ++it) {
            if (!given.contains(it.key())) {
                compare(place, it.key(), it.key(), {}, it.value(), m_differences);
            }
        }
    }

    void value(const Place &place, const QString &key, const QJsonValue &given, const QJsonObject &found)
    {
        QJsonValue back = found.value(key);
        const bool isInkLine = isInk(place.type) && found.value("Type") == QJsonValue("ZQMath2DPolyline");
        QString other = m_road == Road::Kept ? QString() : isInkLine ? otherNameOfInk(key) : otherName(key);
        if (m_road == Road::Drawn && other == "ArtObj_Width" && !isInkLine) {
            other.clear(); // every line has one, whatever was given
        }
        if (saysNothing(back) && !other.isEmpty() && !saysNothing(found.value(other))) {
            back = found.value(other);
            const auto text = plainText(given);
            if (other == "TextHtml" && text && isSamePlainText(*text, back.toString())) {
                return;
            }
            if (other == "color" && colorOf(given) && colorOf(given) == colorOf(back)) {
                return;
            }
        }
        if (m_road == Road::Drawn && isSameFile(given, back)) {
            // Another kind of file may hold less than is seen of it.
            if (contentOf(m_givenFiles, given) != contentOf(m_foundFiles, back)) {
                m_differences.append({place.slide, place.type, place.id, key, shown(given), shown(back), true});
            }
            return;
        }
        const bool isPaper =
            key == "TextureLineType" && found.value("document").toString().startsWith("ID_SLIDE_NOTEBOOK_");
        if (m_road != Road::Kept && (isWorkedIn(key) || isPaper)) {
            m_differences.append({place.slide, place.type, place.id, key, shown(given), shown(back), true});
            return;
        }
        compare(place, key, key, given, back, m_differences);
    }

    // A format names files as it needs, and has its own kinds of pictures.
    bool isSameFile(const QJsonValue &given, const QJsonValue &found) const
    {
        const QByteArray file = contentOf(m_givenFiles, given);
        const QByteArray other = contentOf(m_foundFiles, found);
        if (file.isEmpty() || other.isEmpty() || file == other) {
            return !file.isEmpty() && file == other;
        }
        const QImage picture = QImage::fromData(file).convertToFormat(QImage::Format_ARGB32);
        return !picture.isNull() && picture == QImage::fromData(other).convertToFormat(QImage::Format_ARGB32);
    }

    static QByteArray contentOf(const QJsonObject &files, const QJsonValue &reference)
    {
        return reference.isString() ? QByteArray::fromBase64(files.value(reference.toString()).toString().toLatin1())
                                    : QByteArray();
    }

    void itemKeys(const Place &place, const Item &given, const Item &found)
    {
        QJsonObject keys = given.keys;
        QJsonObject back = found.keys;
        const auto matrix = matrixOf(keys.value("Matrix"));
        const bool hasMatrix =
            !saysNothing(keys.value("Matrix")) && matrix && (m_road == Road::Drawn || !matrix->isIdentity());
        const bool isPlaced = m_road == Road::Drawn || (m_road == Road::Packed && !saysNothing(keys.value("Matrix")));
        if (isPlaced && isSameDrawing(drawing(keys), drawing(back))) {
            // A shape of one point draws nothing, wherever it is told to stand.
            const auto points = pointsOf(keys.value("Control"));
            const bool isPoint = m_road == Road::Packed && hasOwnPoints(place.type) && points && points->size() < 2;
            removePlace(place, isPoint ? QString("Type") : QString(), keys, back);
        } else if (m_road == Road::Drawn
                   && (place.type.contains("Normal") || place.type.contains("Parallel")
                       || place.type == "ZQMath2DAngle")) {
            // Only the plug-in knows the corners that follow from the box.
            removePlace(place, "Type", keys, back);
        } else if (m_road != Road::Kept
                   && (hasMatrix || (place.type.startsWith("ZQMath2D") && !saysNothing(keys.value("Matrix"))))) {
            // A shape under a matrix is drawn around an origin of its own. For others the lost matrix tells it all.
            removePlace(place, place.type.startsWith("ZQMath2D") ? QString("Type") : QString("Matrix"), keys, back);
        }
        // Ink under a matrix is as much wider as its points are farther apart.
        const auto width = numbersOf(keys.value("Width"));
        const auto widthBack = numbersOf(back.value("Width"));
        if (m_road == Road::Packed && hasMatrix && width && width->size() == 1 && pointsOf(given.keys.value("XY"))
            && widthBack && widthBack->size() == 1) {
            const double wide = width->first() * std::sqrt(std::fabs(matrix->determinant()));
            if (std::fabs(widthBack->first() - wide) <= 1e-9 * wide) {
                keys.remove("Width");
            }
        }
        if (m_road == Road::Drawn && hasMatrix) {
            // The size of letters that have none of their own follows it.
            m_differences.append({place.slide, place.type, place.id, "TextHtml", {}, {}, true});
        }
        if (m_road == Road::Drawn) {
            if (given.isVisible == found.isVisible && isFlagValue(keys.value("Visible"))) {
                keys.remove("Visible");
            }
            if (given.isLocked == found.isLocked && isFlagValue(keys.value("LockIn"))) {
                keys.remove("LockIn");
            }
        }
        for (const char *key : {"Visible", "LockIn"}) {
            if (m_road == Road::Drawn && !keys.contains(key)) {
                back.remove(key);
            }
        }
        if (m_road != Road::Kept && given.isAroundPlaced) {
            // It is worked out anew only where the matrices are of use.
            m_differences.append({place.slide, place.type, place.id, "BoundingBox", {}, {}, true});
            keys.remove("BoundingBox");
        }
        inkOpacity(keys, back);
        properties(place, keys, back);
    }

    // What the same drawing tells in other numbers. A turn beside a matrix counts only if it is the turn of the matrix.
    void removePlace(const Place &place, const QString &judged, QJsonObject &given, QJsonObject &found)
    {
        const QTransform matrix = matrixOf(given.value("Matrix")).value_or(QTransform());
        const auto angle = numbersOf(given.value("Angle"));
        const bool isTurnOfMatrix = angle && angle->size() == 1
            && std::fabs(std::remainder(angle->first() - std::atan2(matrix.m12(), matrix.m11()), 2 * M_PI)) < 1e-4;
        const bool hasOwnTurn =
            !saysNothing(given.value("Matrix")) && !saysNothing(given.value("Angle")) && !isTurnOfMatrix;
        const QStringList keys = given.keys() + found.keys();
        for (const QString &key : keys) {
            const bool isOwn =
                m_road == Road::Drawn || key != "Control" || hasOwnPoints(place.type) || place.type == "ZQMath2DAngle";
            const bool isNone = m_road == Road::Drawn && key == "Control" && !isPoints(given.value(key));
            if (isOwn && !isNone && isOfPlace(key) && key != judged && !(hasOwnTurn && key == "Angle")) {
                const QJsonValue wrong = given.take(key);
                found.remove(key);
                // Steps of ink may be rounded on the way, and what is no place can't be kept.
                if (!judged.isEmpty() || key == "XY" || (!saysNothing(wrong) && !numbersOf(wrong))) {
                    m_differences.append({place.slide, place.type, place.id, key, {}, {}, true});
                }
            }
        }
    }

    static bool isPoints(const QJsonValue &value) { return saysNothing(value) || pointsOf(value); }

    static bool isFlagValue(const QJsonValue &value)
    {
        const auto text = plainText(value);
        return saysNothing(value) || (text && (*text == "0" || *text == "1"));
    }

    // Ink's opacity is read into its colour.
    static void inkOpacity(QJsonObject &given, const QJsonObject &found)
    {
        const auto opacity = numbersOf(given.value("Opacity"));
        auto color = colorOf(given.value("Color"));
        if (!color || !opacity || opacity->size() != 1 || opacity->first() < 0 || opacity->first() > 255
            || !saysNothing(found.value("Opacity"))) {
            return;
        }
        *color = (*color & 0xffffff) | QRgb(opacity->first()) << 24;
        if (color == colorOf(found.value("Color"))) {
            given.remove("Opacity");
            given.insert("Color", found.value("Color"));
        }
    }

    Road m_road;
    QJsonObject m_givenFiles;
    QJsonObject m_foundFiles;
    Differences m_differences;
};

// ---- XML -----------------------------------------------------------------------------------------------------------

bool isItem(const QDomElement &element)
{
    const QDomElement parent = element.parentNode().toElement();
    return parent.tagName() == "items"
        || (parent.tagName() == "data" && element.hasAttribute("type") && element.hasAttribute("id"));
}

QString ownText(const QDomElement &element)
{
    QString text;
    bool hasSection = false;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        text += child.isText() ? child.nodeValue() : QString();
        hasSection = hasSection || child.isCDATASection();
    }
    return hasSection || !text.trimmed().isEmpty() ? text : QString();
}

void compareElements(const Place &place, const QString &way, const QDomElement &given, const QDomElement &found,
                     Differences &differences);

bool isOfOneKind(const QDomElement &one, const QDomElement &other)
{
    return one.tagName() == other.tagName()
        && (one.tagName() != "property" || one.attribute("name") == other.attribute("name"))
        && (!isItem(one) || one.attribute("id") == other.attribute("id"));
}

QVector<QDomElement> childrenOfKind(const QDomElement &parent, const QDomElement &kind)
{
    QVector<QDomElement> children;
    for (QDomElement child = parent.firstChildElement(kind.tagName()); !child.isNull();
         child = child.nextSiblingElement(kind.tagName())) {
        if (isOfOneKind(kind, child)) {
            children.append(child);
        }
    }
    return children;
}

bool saysAllOf(const QDomElement &found, const QDomElement &given)
{
    const QDomNamedNodeMap attributes = given.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        if (found.attribute(attributes.item(i).nodeName()) != attributes.item(i).nodeValue()) {
            return false;
        }
    }
    return ownText(found) == ownText(given);
}

// The child of found that is the next of the same tag, row and identifier. Where some are missing, the one that says
// the same.
QDomElement counterpart(const QDomElement &child, const QDomElement &found)
{
    const QVector<QDomElement> others = childrenOfKind(found, child);
    const QVector<QDomElement> given = childrenOfKind(child.parentNode().toElement(), child);
    int missing = given.size() - others.size();
    int next = 0;
    for (int i = 0; i < given.size(); ++i) {
        const QDomElement other = others.value(next);
        const bool isOwn = saysAllOf(other, given.at(i));
        const int said = given.at(i).attributes().count();
        const bool isOfLater =
            missing > 0 && std::any_of(given.begin() + i + 1, given.end(), [&](const QDomElement &later) {
                return saysAllOf(other, later) && (!isOwn || later.attributes().count() > said);
            });
        if (given.at(i) == child) {
            return isOfLater ? QDomElement() : other;
        }
        isOfLater ? --missing : ++next;
    }
    return {};
}

// Ink's opacity is read into its colour.
QDomElement withOpacityInColor(const QDomElement &given, const QDomElement &found)
{
    bool isNumber = false;
    const double opacity = given.attribute("opacity").toDouble(&isNumber);
    const QColor back(found.attribute("color"));
    if (given.tagName() != "stroke" || !isNumber || found.hasAttribute("opacity") || back.alpha() != opacity) {
        return given;
    }
    QDomElement same = given.cloneNode(true).toElement();
    same.removeAttribute("opacity");
    QColor color(given.attribute("color"));
    if (color.isValid()) {
        color.setAlpha(back.alpha());
        same.setAttribute("color", color.name(QColor::HexArgb));
    }
    return same;
}

// The texts of a question are the source of their markup, which may stand there as elements.
bool isSameMarkup(const QDomElement &given, const QDomElement &found)
{
    if ((given.tagName() != "R_Content_svg" && given.tagName() != "R_Answer_svg")
        || given.firstChildElement().isNull()) {
        return false;
    }
    QDomElement markup = given.cloneNode(true).toElement();
    while (markup.attributes().count() > 0) {
        markup.removeAttribute(markup.attributes().item(0).nodeName());
    }
    const QString tag = given.tagName();
    return canonicalXml('<' + tag + '>' + found.text() + "</" + tag + '>') == toText(markup);
}

// Points of ink are worked out from steps in single precision.
bool areSamePoints(const QString &given, const QString &found)
{
    const auto one = numbersOf(given);
    const auto other = numbersOf(found);
    return one && other && std::equal(one->begin(), one->end(), other->begin(), other->end(), [](double a, double b) {
               return std::fabs(a - b) <= 1.2e-7 * std::max(std::fabs(a), std::fabs(b));
           });
}

void compareText(const Place &place, const QString &way, const QString &key, const QString &given, const QString &found,
                 Differences &differences)
{
    if (way == "data/vertex@points" && areSamePoints(given, found)) {
        return;
    }
    const QString implied = defaultsOfPlaces().value(way);
    const QString one = given.isEmpty() ? implied : given;
    const QString other = found.isEmpty() ? implied : found;
    compare(place, way, key, one.isEmpty() ? QJsonValue() : QJsonValue(one),
            other.isEmpty() ? QJsonValue() : QJsonValue(other), differences);
}

void compareElements(const Place &place, const QString &way, const QDomElement &given, const QDomElement &found,
                     Differences &differences)
{
    const QDomNamedNodeMap attributes = given.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        if (given.tagName() == "property" && name == "name") {
            // Its row is known by it.
            if (found.isNull()) {
                differences.append({place.slide, place.type, place.id, way + "@name", {}, {}, true});
            }
            continue;
        }
        const bool isRow = given.tagName() == "property" && name == "value" && isColor(given.attribute("name"));
        compareText(place, way + '@' + name, isRow ? "Color" : name, attributes.item(i).nodeValue(),
                    found.attribute(name), differences);
    }
    const QDomNamedNodeMap others = found.attributes();
    for (int i = 0; i < others.count(); ++i) {
        const QString name = others.item(i).nodeName();
        if (!given.hasAttribute(name)) {
            compareText(place, way + '@' + name, name, {}, others.item(i).nodeValue(), differences);
        }
    }
    if (isSameMarkup(given, found)) {
        return;
    }
    compareText(place, way, {}, ownText(given), ownText(found), differences);
    if (attributes.isEmpty() && given.firstChildElement().isNull() && ownText(given).isEmpty()) {
        differences.append({place.slide, place.type, place.id, way, "an element", "nothing", true});
    }
    for (QDomElement child = given.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QDomElement other = counterpart(child, found);
        if (isItem(child)) {
            // Types have other names in the model.
            const QString id = child.attribute("id");
            compareElements({place.slide, id.isEmpty() ? QString() : child.attribute("type"), id, place.road}, {},
                            withOpacityInColor(child, other), other, differences);
        } else {
            compareElements(place, way.isEmpty() ? child.tagName() : way + '/' + child.tagName(), child, other,
                            differences);
        }
    }
}

} // namespace

bool isSameInModel(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    return isSame(key, given, found, road);
}

QVector<Difference> lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road)
{
    const QJsonObject parsed = QJsonDocument::fromJson(jsonText(given)).object();
    return unheldDifferencesOfLesson(given) + Comparing(parsed, found, road).differences();
}

QVector<Difference> documentDifferences(int slide, const QDomElement &given, const QDomElement &found)
{
    Differences differences;
    const bool isSlide = given.tagName() == "slide";
    compareElements({slide, isSlide ? "slide" : "presentation", given.attribute("id"), Road::Packed}, {}, given, found,
                    differences);
    return differences;
}
