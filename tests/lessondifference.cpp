// SPDX-License-Identifier: MIT
#include "lessondifference.h"

#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "losses/modelvalues.h"
#include "pluginfixture.h"
#include "randomlesson.h"

#include <QColor>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPolygonF>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTransform>

#include <cmath>
#include <optional>

using namespace lessonhost;

namespace {

// ---- What may be the same in another dress -------------------------------------------------------------------------

using Names = QHash<QString, QString>;

// What a key of the model or an attribute says that isn't there.
const Names defaults{{"Visible", "1"},     {"LockIn", "0"},       {"InfiniteClone", "0"}, {"Angle", "0"},
                     {"HorizonFlip", "0"}, {"VerticalFlip", "0"}, {"Opacity", "255"},     {"Matrix", "1,0,0,1,0,0"},
                     {"visible", "1"},     {"locked", "0"},       {"uclone", "0"},        {"angle", "0"},
                     {"horizonflip", "0"}, {"verticalflip", "0"}};

// Where a value is found that its format has another key for; the second for ink that became a line.
const Names otherNames{{"BoundingBox", "IgnoredBoundingBox"},
                       {"Control", "IgnoredControl"},
                       {"MultiMediaFile", "resource"},
                       {"Text", "TextHtml"},
                       {"TextContent", "TextHtml"},
                       {"BackColor", "color"},
                       {"AttachFile", "document"}};
const Names otherNamesOfInk{{"Color", "ArtObj_Color"}, {"Width", "ArtObj_Width"}};

// A text, number or flag as text; nothing for others.
std::optional<QString> plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::Bool:
        return value.toBool() ? "1" : "0";
    default:
        return std::nullopt;
    }
}

std::optional<double> numberOf(const QJsonValue &value)
{
    const auto numbers = wholeNumbers(value);
    return numbers && numbers->size() == 1 ? std::optional(numbers->first()) : std::nullopt;
}

// Ink's opacity is read into its colour.
bool isOpacityInColor(const QJsonValue &opacity, const QJsonValue &color, const QJsonValue &found)
{
    const auto alpha = numberOf(opacity);
    const auto own = wholeColor(color);
    return own && alpha && *alpha >= 0 && *alpha <= 255 && *alpha == std::floor(*alpha)
        && ((*own & 0xffffff) | QRgb(*alpha) << 24) == wholeColor(found);
}

void putHtml(QTextDocument &document, const QString &html)
{
    // What opens no tag is a letter.
    static const QRegularExpression lessThan("<(?![A-Za-z/!?])");
    document.setHtml(QString(html).replace(lessThan, "&lt;"));
}

// 0 for letters that say nothing of their size.
double pixelSize(const QTextCharFormat &letters)
{
    const double pixels = letters.intProperty(QTextFormat::FontPixelSize);
    return pixels > 0 ? pixels : letters.fontPointSize() * 96 / 72;
}

// The found letters may say more of themselves.
bool areSameLetters(const QTextCharFormat &given, const QTextCharFormat &found)
{
    const int properties[] = {QTextFormat::FontFamily,
                              QTextFormat::FontWeight,
                              QTextFormat::FontItalic,
                              QTextFormat::TextUnderlineStyle,
                              QTextFormat::ForegroundBrush,
                              QTextFormat::BackgroundBrush,
                              QTextFormat::TextVerticalAlignment,
                              QTextFormat::AnchorHref};
    return (pixelSize(given) <= 0 || std::fabs(pixelSize(given) - pixelSize(found)) <= 0.01)
        && std::all_of(std::begin(properties), std::end(properties), [&](int property) {
               return !given.hasProperty(property) || given.property(property) == found.property(property);
           });
}

bool isSameHtml(const QString &given, const QString &found)
{
    if (given.contains("<table")) {
        return found.contains("<table");
    }
    QTextDocument one;
    QTextDocument other;
    putHtml(one, given);
    putHtml(other, found);
    QTextCursor cursor(&one);
    QTextCursor otherCursor(&other);
    bool isSame = one.characterCount() == other.characterCount();
    for (int i = 0; isSame && i < one.characterCount(); ++i) {
        cursor.setPosition(i);
        otherCursor.setPosition(i);
        const auto sides = cursor.blockFormat().alignment() ^ otherCursor.blockFormat().alignment();
        isSame = one.characterAt(i) == other.characterAt(i)
            && bool(cursor.currentList()) == bool(otherCursor.currentList())
            && ((sides & Qt::AlignHorizontal_Mask) == 0
                || !cursor.blockFormat().hasProperty(QTextFormat::BlockAlignment))
            && (cursor.block().length() == 1 || areSameLetters(cursor.charFormat(), otherCursor.charFormat()));
    }
    return isSame;
}

// Not of texts that are no XML.
bool isSameXml(const QString &given, const QString &found)
{
    QDomDocument one;
    QDomDocument other;
    return one.setContent(given) && other.setContent(found)
        && toText(one.documentElement()) == toText(other.documentElement());
}

QJsonValue unfolded(const QJsonValue &value)
{
    const QJsonDocument list = QJsonDocument::fromJson(value.toString().toUtf8());
    return list.isArray() ? QJsonValue(list.array()) : value;
}

Rest restOfTree(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    Rest rest = given.type() == found.type() && (given.isObject() || given.isArray()) ? Rest::All : Rest::Less;
    const QJsonObject object = given.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        rest = std::max(rest, restOf(it.key(), it.value(), found.toObject().value(it.key()), road));
    }
    const QJsonArray array = given.toArray();
    const QJsonArray other = found.toArray();
    for (int i = 0; i < std::max(array.size(), other.size()); ++i) {
        rest = std::max(rest, restOf(key, array.at(i), other.at(i), road));
    }
    return rest;
}

// Names of what isn't there, in lists or not.
bool holdsNothing(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const QJsonArray array = value.toArray();
    return isNothing(value)
        || ((value.isObject() || value.isArray()) && std::all_of(object.begin(), object.end(), holdsNothing)
            && std::all_of(array.begin(), array.end(), holdsNothing));
}

QString shown(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return "nothing";
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2)).left(300);
}

// ---- What a parser drops -------------------------------------------------------------------------------------------

// As it is written, where control characters are no identifier.
QString idText(const QJsonValue &id)
{
    return valueText(id).remove('\x01');
}

QJsonObject parsed(const QJsonObject &marked)
{
    return QJsonDocument::fromJson(jsonText(marked)).object();
}

// The first of two values of a key, and digits that a double doesn't have.
void unheldDifferences(const Owner &owner, const QString &key, const QJsonValue &value, Differences &differences)
{
    if (value.toString().startsWith(numberMark)) {
        differences.append({owner, key, shown(value), "less"});
    }
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        unheldDifferences(owner, key, element, differences);
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const bool isSecond = it.key().endsWith(sameKeyMark);
        const QString inner = isSecond ? it.key().chopped(1) : it.key();
        const QString told = key.isEmpty() ? inner : key;
        const Rest rest = restOf(inner, object.value(inner), it.value(), Road::Packed);
        if (isSecond && object.contains(inner) && rest != Rest::All) {
            differences.append(
                {owner, told, "one of two: " + shown(object.value(inner)), shown(it.value()), rest == Rest::Alike});
        }
        unheldDifferences(owner, told, it.value(), differences);
    }
}

// ---- Where items stand ---------------------------------------------------------------------------------------------

// Nothing unless they are numbers in pairs.
std::optional<QPolygonF> pairsOf(const QJsonValue &value)
{
    const auto numbers = wholeNumbers(value);
    return numbers && !numbers->isEmpty() && numbers->size() % 2 == 0 ? std::optional(pointsOf(*numbers))
                                                                      : std::nullopt;
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

QPolygonF turned(const QPolygonF &points, const QPointF &center, double angle)
{
    QTransform turn = QTransform::fromTranslate(center.x(), center.y());
    turn.rotateRadians(angle);
    turn.translate(-center.x(), -center.y());
    return turn.map(points);
}

// Only the plug-in knows the corners of these that follow from the box.
bool hasWorkedOutCorners(const QString &type)
{
    return type.contains("Normal") || type.contains("Parallel") || type == "ZQMath2DAngle";
}

// Shapes of the plane whose points are told; those of others follow from their box.
bool hasOwnPoints(const QString &type)
{
    static const QStringList inBoxes{"ZQMath2DCircle", "ZQMath2DEllipse", "ZQMath2DRectangle"};
    return type.startsWith("ZQMath2D") && !inBoxes.contains(type) && !hasWorkedOutCorners(type);
}

bool hasMatrix(const QJsonObject &item)
{
    return !isNothing(item.value("Matrix"));
}

std::optional<QTransform> matrixOf(const QJsonObject &item)
{
    const auto n = wholeNumbers(hasMatrix(item) ? item.value("Matrix") : QJsonValue("1,0,0,1,0,0"));
    return n && n->size() == 6 ? std::optional<QTransform>({n->at(0), n->at(1), n->at(2), n->at(3), n->at(4), n->at(5)})
                               : std::nullopt;
}

// Stamps among them.
bool hasSteps(const QString &type)
{
    return (type.contains("Stroke") && !isContainer(type)) || type == "stroke";
}

// Where an item stands on the page: its points, stretched into its box and turned, or its corners. Nothing where one of
// its values isn't what it should be. Points that are there twice in a row draw nothing.
std::optional<QPolygonF> drawing(const QJsonObject &item, bool isFlipped = false)
{
    const QString type = item.value("Type").toString();
    const auto matrix = matrixOf(item);
    const auto angle = isNothing(item.value("Angle")) || hasMatrix(item) ? 0 : numberOf(item.value("Angle"));
    const auto line = pairsOf(item.value("XY"));
    const QString boxKey = isNothing(item.value("BoundingBox")) ? "IgnoredBoundingBox" : "BoundingBox";
    const auto box = wholeNumbers(item.value(boxKey));
    if (!matrix || !angle) {
        return std::nullopt;
    }
    std::optional<QRectF> frame;
    if (box && box->size() == 4) {
        frame = QRectF(QPointF(box->at(0), box->at(1)), QPointF(box->at(2), box->at(3))).normalized();
    }
    QPolygonF points;
    QPointF center;
    if (line && hasSteps(type)) {
        points = *line;
        for (int i = 1; i < points.size(); ++i) {
            points[i] += points.at(i - 1);
        }
        center = frame ? frame->center() : points.boundingRect().center();
    } else if (frame) {
        points = QPolygonF({frame->topLeft(), frame->topRight(), frame->bottomRight(), frame->bottomLeft()});
        center = frame->center();
        if (hasOwnPoints(type)) {
            const auto own = pairsOf(item.value(type == "ZQMath2DPolyline" ? "XYValue" : "Control"));
            if (!own || (type.contains("Segment") && own->size() != 2)) {
                return std::nullopt;
            }
            // A matrix is around an origin of the points' own.
            points = hasMatrix(item) ? *own : stretched(*own, *frame);
        }
    } else {
        return std::nullopt;
    }
    if (isFlipped && !hasMatrix(item)) {
        QTransform flips = QTransform::fromTranslate(center.x(), center.y());
        flips.scale(itemFlag(item.value("HorizonFlip"), false) ? -1 : 1,
                    itemFlag(item.value("VerticalFlip"), false) ? -1 : 1);
        points = flips.translate(-center.x(), -center.y()).map(points);
    }
    points = hasMatrix(item) ? matrix->map(points) : turned(points, center, *angle); // a matrix has its own turn
    const auto isNear = [](const QPointF &one, const QPointF &other) { return QLineF(one, other).length() < 1e-4; };
    points.erase(std::unique(points.begin(), points.end(), isNear), points.end());
    return points;
}

// A closed outline may name its first point again, and the curve of ink have more points between its own.
bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, bool isFlipped)
{
    auto one = drawing(given, isFlipped);
    const auto other = drawing(found);
    const bool isInk = pairsOf(given.value("XY")) && hasSteps(given.value("Type").toString());
    if (!isInk && one && other && other->size() == one->size() + 1 && other->size() > 2) {
        one->append(one->first());
    }
    if (!one || !other) {
        return false;
    }
    auto at = other->begin();
    for (const QPointF &point : *one) {
        const auto isThere = [&point](const QPointF &there) { return QLineF(point, there).length() < 0.01; };
        at = isInk ? std::find_if(at, other->end(), isThere) : at;
        // Points so near that they were rounded into one.
        if (at != other->begin() && isThere(*(at - 1)) && (at == other->end() || !isThere(*at))) {
            continue;
        }
        if (at == other->end() || !isThere(*at)) {
            return false;
        }
        ++at;
    }
    return at == other->end();
}

// ---- Items ---------------------------------------------------------------------------------------------------------

bool isFlag(const QJsonValue &value)
{
    const auto text = plainText(value);
    return isNothing(value) || (text && (*text == "0" || *text == "1"));
}

bool haveMatrix(const QJsonArray &items)
{
    return std::any_of(items.begin(), items.end(), [](const QJsonValue &value) {
        return hasMatrix(value.toObject()) || haveMatrix(value.toObject().value("Children").toArray());
    });
}

struct Item
{
    QJsonObject marked; // with what a parser drops
    QJsonObject keys; // without its items
    bool isOfKey; // not in a group, but in some value
    bool isVisible; // with what is around it
    bool isLocked;
    bool isWhole = false; // holds items and nothing else
    bool isAroundPlaced = false; // around items with a matrix, which its own box follows
    bool isTurnedAround = false; // by what is around it, as drawings have it
    int around = -1; // the number of the item that holds it; -1 on the slide
    QStringList childIds = {};
    QVector<int> childPlaces = {}; // among all items
    int heldCount = 0; // of all that it holds, which come behind it

    QString id() const { return idText(keys.value("ID")); }
    QString type() const { return keys.value("Type").toString(); }
};

void collect(const QJsonArray &items, int around, Road road, QVector<Item> &all)
{
    for (const QJsonValue &value : items) {
        const bool isOuter = around < 0;
        Item item{value.toObject(), parsed(value.toObject()),
                  !isOuter && (all.at(around).isOfKey || !all.at(around).isWhole), isOuter || all.at(around).isVisible,
                  !isOuter && all.at(around).isLocked};
        item.isVisible = item.isVisible && itemFlag(item.keys.value("Visible"), true);
        item.isLocked = item.isLocked || itemFlag(item.keys.value("LockIn"), false);
        const QJsonArray list = item.marked.value("Children").toArray();
        QJsonArray children;
        // Beside other values, which are lost, there may be items. What is no list of items is taken apart where it is
        // drawn, and kept as any other key elsewhere.
        std::copy_if(list.begin(), list.end(), std::back_inserter(children),
                     [](const QJsonValue &value) { return value.isObject(); });
        item.isWhole = isContainer(item.type()) && children.size() == list.size();
        if (item.isWhole && !children.isEmpty()) {
            item.marked.remove("Children");
        }
        if (road != Road::Drawn && !item.isWhole) {
            children = QJsonArray();
        } else if (!children.isEmpty()) {
            item.keys.remove("Children");
        }
        for (const QJsonValue &child : qAsConst(children)) {
            item.childIds.append(idText(parsed(child.toObject()).value("ID")));
        }
        item.isAroundPlaced = haveMatrix(children);
        item.around = around;
        if (!isOuter) {
            const QJsonObject outer = all.at(around).marked;
            item.isTurnedAround = all.at(around).isTurnedAround || !isNothing(outer.value("Angle")) || hasMatrix(outer)
                || !isNothing(outer.value("HorizonFlip")) || !isNothing(outer.value("VerticalFlip"));
        }
        const int at = all.size();
        all.append(item);
        if (!isOuter) {
            all[around].childPlaces.append(at);
        }
        collect(children, at, road, all);
        all[at].heldCount = all.size() - at - 1;
    }
}

/*!
 * Two lessons, slide by slide.
 */
class Comparing
{
public:
    Comparing(QJsonObject given, QJsonObject found, Road road)
        : m_road(road)
        , m_givenFiles(parsed(given.take("Resources").toObject()))
        , m_foundFiles(found.take("Resources").toObject())
    {
        const Owner owner{0, "presentation", {}};
        const QJsonArray givenSlides = given.take("Slides").toArray();
        const QJsonArray foundSlides = found.take("Slides").toArray();
        unheldDifferences(owner, {}, given, differences);
        properties(owner, parsed(given), found);
        if (road != Road::Drawn) {
            value(owner, "Resources", m_givenFiles, m_foundFiles);
        }
        for (int i = 0; i < givenSlides.size(); ++i) {
            slide(i + 1, givenSlides.at(i).toObject(), foundSlides.at(i).toObject());
        }
    }

    Differences differences;

private:
    void minor(const Owner &owner, const QString &key) { differences.append({owner, key, {}, {}, true}); }

    void slide(int number, QJsonObject given, QJsonObject found)
    {
        QVector<Item> givenItems;
        QVector<Item> foundItems;
        collect(given.take("Items").toArray(), -1, m_road, givenItems);
        collect(found.take("Items").toArray(), -1, m_road, foundItems);
        const Owner owner{number, "slide", idText(parsed(given).value("ID"))};
        unheldDifferences(owner, {}, given, differences);
        properties(owner, parsed(given), found);
        // What was beside values that are no items is a part of its key.
        for (Item &item : foundItems) {
            const QString holder = item.around < 0 ? QString() : foundItems.at(item.around).id();
            const auto isHeldBy = [&](bool isWhole) {
                return std::any_of(givenItems.begin(), givenItems.end(), [&](const Item &given) {
                    return given.id() == holder && given.isWhole == isWhole && isContainer(given.type());
                });
            };
            item.isOfKey = item.around >= 0 && isHeldBy(false) && !isHeldBy(true);
        }
        const QVector<int> places = matched(givenItems, foundItems);
        showGroups(givenItems, [&places](int i) { return places.at(i) >= 0; });
        showGroups(foundItems, [](int) { return true; });
        int last = -1;
        for (int i = 0; i < givenItems.size(); ++i) {
            const Item &item = givenItems.at(i);
            const Owner owner{number, item.type(), item.id()};
            if (!item.isOfKey) {
                unheldDifferences(owner, {}, item.marked, differences);
            }
            if (places.at(i) < 0) {
                differences.append({owner, {}, "the item", "nothing", item.isOfKey});
                continue;
            }
            const bool isOnly = std::count_if(givenItems.begin(), givenItems.end(),
                                              [&item](const Item &other) { return other.id() == item.id(); })
                == 1;
            if (isOnly) { // which of several came back is a guess
                if (places.at(i) < last) {
                    differences.append({{number, "slide", {}}, "Items", item.id() + " in its place", "elsewhere"});
                }
                last = places.at(i);
            }
            const Item &back = foundItems.at(places.at(i));
            QStringList childIds = item.childIds;
            for (int k = 0; k < item.childPlaces.size(); ++k) {
                const int place = places.at(item.childPlaces.at(k));
                childIds[k] = place < 0 ? "(gone)" : foundItems.at(place).id();
            }
            if (childIds != back.childIds) {
                differences.append({owner, "Children", item.childIds.join(' '), back.childIds.join(' ')});
            }
            itemKeys(owner, item, back);
        }
        for (int i = 0; i < foundItems.size(); ++i) {
            const Item &item = foundItems.at(i);
            if (!places.contains(i) && !item.isOfKey) {
                differences.append({{number, item.type(), item.id()}, {}, "nothing", "an item"});
            }
        }
    }

    // A drawn group says of its items that came back whether they are to be seen.
    void showGroups(QVector<Item> &items, const std::function<bool(int place)> &isThere) const
    {
        for (int i = 0; i < items.size(); ++i) {
            const int count = m_road == Road::Drawn ? items.at(i).heldCount : 0;
            items[i].isVisible = items.at(i).isVisible && count == 0;
            for (int k = i + 1; k <= i + count; ++k) {
                items[i].isVisible = items.at(i).isVisible || (isThere(k) && items.at(k).isVisible);
            }
        }
    }

    // By identifier, or one that was made of it; groups also by what came of their items, and what is left over by its
    // type. Drawings keep no identifiers of groups.
    QVector<int> matched(const QVector<Item> &given, const QVector<Item> &found)
    {
        const auto hasOwnId = [this](const Item &item) { return m_road != Road::Drawn || item.heldCount == 0; };
        const auto nameOf = [this](const Item &item) {
            static const QRegularExpression lineBreaks("[\t\n\r]+");
            return m_road == Road::Drawn ? item.id().replace(lineBreaks, " ") : item.id(); // one line in drawings
        };
        QMap<QString, QVector<int>> givenOfId;
        for (int i = 0; i < given.size(); ++i) {
            hasOwnId(given.at(i)) ? givenOfId[nameOf(given.at(i))].append(i) : void();
        }
        // In drawings, one of two "1" becomes "1_2", or where that is first another's, "1_3"; where it isn't yet, the
        // other becomes "1_2_2". So the identifiers that may be made of another are one family, known by the shortest.
        const auto familyOf = [this, &givenOfId](QString id) {
            static const QRegularExpression number("(_item)?_\\d+$|_item$");
            QString family = id;
            while (m_road == Road::Drawn && id.contains(number)) {
                id.remove(number);
                family = givenOfId.contains(id) ? id : family;
            }
            return family;
        };
        QMap<QString, QPair<QVector<int>, QVector<int>>> families; // given and found
        for (auto it = givenOfId.begin(); it != givenOfId.end(); ++it) {
            families[familyOf(it.key())].first += *it;
        }
        for (int j = 0; j < found.size(); ++j) {
            const QString id = nameOf(found.at(j));
            QString family = familyOf(id);
            for (int end = id.size(); !families.contains(family) && end > 0;) {
                end = id.lastIndexOf('_', end - 1);
                family = end >= 0 ? familyOf(id.left(end)) : QString();
            }
            const bool isNameless = family.isEmpty() && !id.isEmpty() && !id.startsWith("item");
            if (families.contains(family) && !isNameless && !found.at(j).isOfKey && hasOwnId(found.at(j))) {
                families[family].second.append(j);
            }
        }
        QVector<int> places(given.size(), -1);
        for (auto &family : families) {
            std::sort(family.first.begin(), family.first.end());
        }
        // What is known first: it tells of groups.
        for (const bool isKnown : {true, false}) {
            for (const auto &[givenOnes, back] : qAsConst(families)) {
                if ((givenOnes.size() == back.size()) == isKnown) {
                    align(given, givenOnes, found, back, places);
                }
            }
        }
        for (int i = 0; i < given.size(); ++i) {
            QMap<int, int> shared; // items that found groups have of this one
            for (int k = i + 1; places.at(i) < 0 && k <= i + given.at(i).heldCount; ++k) {
                int around = places.at(k);
                while (around >= 0 && (around = found.at(around).around) >= 0) {
                    shared[around] += places.contains(around) ? 0 : 1;
                }
            }
            for (auto it = shared.begin(); it != shared.end(); ++it) {
                places[i] = it.value() > shared.value(places.at(i)) ? it.key() : places.at(i);
            }
        }
        for (const bool isByType : {true, false}) {
            for (int i = 0; i < given.size(); ++i) {
                for (int j = 0; j < found.size() && places.at(i) < 0; ++j) {
                    const bool isSame = isByType ? given.at(i).type() == found.at(j).type()
                                                 : given.at(i).id().isEmpty() && found.at(j).id().isEmpty();
                    const bool isKind = hasOwnId(given.at(i)) == hasOwnId(found.at(j)) && !found.at(j).isOfKey;
                    places[i] = isSame && isKind && !places.contains(j) ? j : -1;
                }
            }
        }
        return places;
    }

    // The one that an item is in, which no other is around; itself where it is in none.
    static int outermost(const QVector<Item> &items, int place)
    {
        while (items.at(place).around >= 0) {
            place = items.at(place).around;
        }
        return place;
    }

    // Of several items of one identifier, some of which may be gone or new: which became which, as many as can be and
    // in their order, so that the least differs. A group of a drawing has come of one group.
    void align(const QVector<Item> &given, const QVector<int> &ofId, const QVector<Item> &found,
               const QVector<int> &back, QVector<int> &places)
    {
        const int n = ofId.size();
        const int m = back.size();
        constexpr int never = 1 << 24;
        constexpr int otherGroup = 1000;
        const auto isOfOtherGroup = [&](int one, int oneBack, int other, int otherBack) {
            const int group = outermost(found, oneBack);
            return m_road == Road::Drawn && found.at(oneBack).around >= 0 && found.at(otherBack).around >= 0
                && group == outermost(found, otherBack) && outermost(given, one) != outermost(given, other);
        };
        const auto cost = [&](int i, int k) {
            int sum = count(given.at(ofId.at(i)), found.at(back.at(k)));
            for (int other = 0; other < given.size(); ++other) {
                const bool isPlaced = places.at(other) >= 0;
                sum += isPlaced && isOfOtherGroup(ofId.at(i), back.at(k), other, places.at(other)) ? otherGroup : 0;
            }
            return sum;
        };
        // What differs at least from a pair on, and the next pair. All of the fewer ones are in a pair.
        QVector<QVector<int>> least(n, QVector<int>(m, never));
        QVector<QVector<QPair<int, int>>> next(n, QVector<QPair<int, int>>(m, {n, m}));
        for (int i = n - 1; i >= 0; --i) {
            for (int k = m - 1; k >= 0; --k) {
                const bool isLast = n >= m ? k == m - 1 : i == n - 1;
                int rest = isLast ? 0 : never;
                for (int step = 1; !isLast && (n >= m ? i + step < n : k + step < m); ++step) {
                    const int j = n >= m ? i + step : i + 1;
                    const int l = n >= m ? k + 1 : k + step;
                    const bool isOther = isOfOtherGroup(ofId.at(i), back.at(k), ofId.at(j), back.at(l));
                    const int sum = least.at(j).at(l) + (isOther ? otherGroup : 0);
                    if (least.at(j).at(l) < never && sum < rest) {
                        rest = sum;
                        next[i][k] = {j, l};
                    }
                }
                least[i][k] = rest == never ? never : rest + (n == m ? 0 : cost(i, k));
            }
        }
        QPair<int, int> pair(0, 0);
        for (int first = 1; first < std::max(n, m) && std::min(n, m) > 0; ++first) {
            const QPair<int, int> other = n >= m ? qMakePair(first, 0) : qMakePair(0, first);
            pair = least.at(other.first).at(other.second) < least.at(pair.first).at(pair.second) ? other : pair;
        }
        for (; pair.first < n && pair.second < m; pair = next.at(pair.first).at(pair.second)) {
            places[ofId.at(pair.first)] = back.at(pair.second);
        }
    }

    // How much differs if the one became the other, more than if the one were gone.
    int count(const Item &given, const Item &found)
    {
        const int before = differences.size();
        itemKeys({0, given.type(), given.id()}, given, found);
        const auto count = std::count_if(differences.begin() + before, differences.end(),
                                         [](const Difference &difference) { return !difference.isMinor; });
        differences.resize(before);
        constexpr int elsewhere = 10; // out of its group, or in one
        constexpr int other = 100; // a group or none
        return int(count) + (given.childIds == found.childIds ? 0 : 1)
            + ((given.around < 0) == (found.around < 0) ? 0 : elsewhere)
            + ((given.heldCount == 0) == (found.heldCount == 0) ? 0 : other) - given.keys.size();
    }

    void properties(const Owner &owner, const QJsonObject &given, const QJsonObject &found)
    {
        for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
            property(owner, it.key(), it.value(), found);
        }
        for (auto it = found.constBegin(); it != found.constEnd(); ++it) {
            if (!given.contains(it.key())) {
                value(owner, it.key(), {}, it.value());
            }
        }
    }

    void value(const Owner &owner, const QString &key, const QJsonValue &given, const QJsonValue &found)
    {
        const Rest rest = restOf(key, given, found, m_road);
        if (rest != Rest::All) {
            differences.append({owner, key, shown(given), shown(found), rest == Rest::Alike});
        }
    }

    void property(const Owner &owner, const QString &key, const QJsonValue &given, const QJsonObject &found)
    {
        QJsonValue back = found.value(key);
        const bool isInkLine = hasSteps(owner.type) && found.value("Type") == QJsonValue("ZQMath2DPolyline");
        const QString other = m_road == Road::Kept ? QString() : (isInkLine ? otherNamesOfInk : otherNames).value(key);
        if (isNothing(back) && !isNothing(found.value(other))) {
            back = found.value(other);
            QTextDocument text;
            text.setHtml(back.toString());
            if (other == "TextHtml" && plainText(given) == text.toPlainText()) {
                return;
            }
        }
        const QByteArray file = contentOf(m_givenFiles, given);
        const QByteArray fileBack = contentOf(m_foundFiles, back);
        if (m_road == Road::Drawn && isSameFile(file, fileBack)) {
            // Another kind of file may hold less than is seen of it.
            file == fileBack ? void() : minor(owner, key);
            return;
        }
        // What told how items were fitted into the page has done its part where they stand.
        const bool isWorkedIn = key == "SlideMatrix" || key == "SlideSourceRect"
            || (key == "TextureLineType" && found.value("document").toString().startsWith("ID_SLIDE_NOTEBOOK_"));
        if (m_road != Road::Kept && isWorkedIn) {
            minor(owner, key);
        } else {
            value(owner, key, given, back);
        }
    }

    // A format names files as it needs, and has its own kinds of pictures.
    static bool isSameFile(const QByteArray &file, const QByteArray &other)
    {
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

    void itemKeys(const Owner &owner, const Item &given, const Item &found)
    {
        QJsonObject keys = given.keys;
        QJsonObject back = found.keys;
        if (m_road == Road::Drawn && hasMatrix(keys)) {
            minor(owner, "TextHtml"); // the size of letters that have none of their own follows it
        }
        if (m_road != Road::Kept) {
            given.isTurnedAround &&m_road == Road::Drawn ? removePlace(owner, true, keys, back)
                                                         : place(owner, keys, back);
            if (given.isAroundPlaced) {
                // It is worked out anew only where the matrices are of use.
                minor(owner, "BoundingBox");
                keys.remove("BoundingBox");
            }
        }
        if (m_road == Road::Drawn) {
            if (given.isVisible == found.isVisible && isFlag(keys.value("Visible"))) {
                keys.remove("Visible");
            }
            if (given.isLocked == found.isLocked && isFlag(keys.value("LockIn"))) {
                keys.remove("LockIn");
            }
            for (const char *key : {"Visible", "LockIn"}) {
                keys.contains(key) ? void() : back.remove(key);
            }
        }
        if (restOf("Width", keys.value("Width"), keys.value("ArtObj_Width"), Road::Packed) != Rest::Less) {
            minor(owner, "Width"); // says its line's once more
            keys.remove("Width");
        }
        if (isNothing(back.value("Opacity"))
            && isOpacityInColor(keys.value("Opacity"), keys.value("Color"), back.value("Color"))) {
            keys.remove("Opacity");
            keys.remove("Color");
        }
        properties(owner, keys, back);
    }

    void place(const Owner &owner, QJsonObject &given, QJsonObject &found)
    {
        const QString type = owner.type;
        const bool isShape = type.startsWith("ZQMath2D");
        const bool isFlipped = m_road == Road::Drawn && (isShape || hasSteps(type));
        const auto matrix = matrixOf(given);
        const bool isUnderMatrix = hasMatrix(given) && matrix && (m_road == Road::Drawn || !matrix->isIdentity());
        // Ink under a matrix is as much wider as its points are farther apart.
        const auto width = numberOf(given.value("Width"));
        const auto widthBack = numberOf(found.value("Width"));
        if (m_road == Road::Packed && isUnderMatrix && width && widthBack && pairsOf(given.value("XY"))) {
            const double wide = *width * std::sqrt(std::fabs(matrix->determinant()));
            if (std::fabs(*widthBack - wide) <= 1e-9 * std::fabs(wide)) {
                given.remove("Width");
            }
        }
        if ((m_road == Road::Drawn || hasMatrix(given)) && isDrawnAlike(given, found, isFlipped)) {
            // A shape of one point draws nothing, wherever it is told to stand.
            const auto points = pairsOf(given.value("Control"));
            removePlace(owner, m_road == Road::Packed && hasOwnPoints(type) && points && points->size() < 2, given,
                        found);
        } else if ((m_road == Road::Drawn
                    && (hasWorkedOutCorners(type) || hasWorkedOutCorners(found.value("Type").toString())))
                   || (isShape && hasMatrix(given))) {
            // A shape under a matrix is drawn around an origin of its own.
            removePlace(owner, true, given, found);
        } else if (isUnderMatrix) {
            // The lost matrix tells it all, or the box that it was worked into, where another key takes its place.
            const bool isBoxTaken = m_road == Road::Packed && !isNothing(found.value("InitBound"))
                && found.value("InitBound") == found.value("BoundingBox");
            const QString key = isBoxTaken ? "BoundingBox" : "Matrix";
            const QJsonValue lost = given.value(key);
            const QJsonValue back = found.value(key);
            removePlace(owner, true, given, found);
            given.insert(key, lost);
            found.insert(key, back);
        }
    }

    // What the same drawing tells in other numbers; isGuess: perhaps the same. A turn beside a matrix counts only if it
    // is the turn of the matrix.
    void removePlace(const Owner &owner, bool isGuess, QJsonObject &given, QJsonObject &found)
    {
        const QTransform matrix = matrixOf(given).value_or(QTransform());
        const auto angle = numberOf(given.value("Angle"));
        const bool isTurnOfMatrix =
            angle && std::fabs(std::remainder(*angle - std::atan2(matrix.m12(), matrix.m11()), 2 * M_PI)) < 1e-4;
        const bool hasOwnMatrix = hasMatrix(given);
        const bool hasOwnTurn = hasOwnMatrix && !isNothing(given.value("Angle")) && !isTurnOfMatrix;
        const QJsonValue control = given.value("Control");
        const bool isControlOther = m_road == Road::Drawn ? !isNothing(control) && !pairsOf(control)
                                                          : !hasOwnPoints(owner.type) && owner.type != "ZQMath2DAngle";
        for (const QString &key : {"BoundingBox"_s, "Control"_s, "XYValue"_s, "XY"_s, "Angle"_s, "Matrix"_s}) {
            if ((key == "Control" && isControlOther) || (key == "Angle" && hasOwnTurn)) {
                continue;
            }
            const QJsonValue wrong = given.take(key);
            found.remove(key);
            // Steps of ink may be rounded on the way, and what is no place can't be kept.
            const auto numbers = wholeNumbers(wrong);
            const bool isPlace = numbers && (key != "BoundingBox" || numbers->size() == 4);
            const bool isRounded = key == "XY" || (m_road == Road::Drawn && hasSteps(owner.type) && hasOwnMatrix);
            if (isGuess || isRounded || (!isNothing(wrong) && !isPlace)) {
                minor(owner, key);
            }
        }
    }

    Road m_road;
    QJsonObject m_givenFiles;
    QJsonObject m_foundFiles;
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

// The texts of a question are the source of their markup, which may stand there as elements.
bool isMarkup(const QString &tag)
{
    return tag == "R_Content_svg" || tag == "R_Answer_svg";
}

QString markupIn(const QDomElement &element)
{
    QString markup;
    QTextStream stream(&markup);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        child.save(stream, -1);
    }
    return markup;
}

// What a document says of itself and of its items, by their identifiers. Those of one identifier are one to the report.
struct Said
{
    Owner owner;
    Texts texts;
};

void collectSaid(int slide, const QDomElement &element, QMap<QString, Said> &all)
{
    const bool isOfItem = isItem(element);
    if (isOfItem || all.isEmpty()) {
        const QString id = element.attribute("id");
        const QString type = isOfItem ? element.attribute("type") : QString(slide == 0 ? "presentation" : "slide");
        Said &said = all[isOfItem ? "item " + id : QString()];
        // Types have other names in the model.
        said.owner = {slide, isOfItem && id.isEmpty() ? QString() : type, id};
        collectTexts(element, {}, isItem, said.texts);
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        collectSaid(slide, child, all);
    }
}

Rest restOfText(const QString &way, const QString &given, const QString &found)
{
    const QString name = way.section('@', 1);
    const bool isColorRow = name == "value" && way.contains("olor");
    const Rest rest = restOf(isColorRow ? "Color" : name, given, found, Road::Packed);
    return rest == Rest::Less && isSameXml("<a>" + given + "</a>", "<a>" + found + "</a>") ? Rest::Alike : rest;
}

// Takes the text that says the most of another one out of several, if it says any of it.
Rest takeRest(const QString &way, const QString &text, QStringList &others)
{
    int best = others.indexOf(text);
    for (int i = 0; i < others.size() && !text.isEmpty(); ++i) {
        best = best < 0 || restOfText(way, text, others.at(i)) < restOfText(way, text, others.at(best)) ? i : best;
    }
    const Rest rest = restOfText(way, text, others.value(best));
    if (best >= 0 && rest != Rest::Less) {
        others.removeAt(best);
    }
    return rest;
}

// Of several elements of one identifier, any may be the one whose colour has it; others' colours come back as they are.
void removeOpacityInColor(Texts &texts, const QStringList &colorsBack)
{
    const QStringList opacities = texts.value("@opacity");
    for (const QString &opacity : opacities) {
        for (const QString &back : colorsBack) {
            const QStringList own = texts.value("@color");
            const auto color = std::find_if(own.begin(), own.end(), [&](const QString &text) {
                return QColor(text).isValid() && isOpacityInColor(opacity, text, back);
            });
            const bool isColorless = std::none_of(own.begin(), own.end(), [&](const QString &text) {
                return QColor(text).isValid() && !colorsBack.contains(text);
            });
            if (color != own.end() || (isColorless && isOpacityInColor(opacity, back, back))) {
                texts["@opacity"].removeOne(opacity);
                color != own.end() ? texts["@color"].removeOne(*color) : false;
                break;
            }
        }
    }
}

void compareTexts(const Said &given, const Said &found, Differences &differences)
{
    QVector<QPair<QString, QString>> left; // with its way
    Texts others; // by ways without numbers
    for (auto it = given.texts.begin(); it != given.texts.end(); ++it) {
        const QString way = withoutNumbers(it.key());
        QStringList back = found.texts.value(it.key());
        for (const QString &text : it.value()) {
            const Rest rest = takeRest(way, text, back);
            if (rest == Rest::Less) {
                left.append({way, text});
            } else if (rest == Rest::Alike || text.isEmpty()) {
                differences.append({given.owner, way, text, {}, true}); // a bare element says little
            }
        }
        others[way] += back;
    }
    for (auto it = found.texts.begin(); it != found.texts.end(); ++it) {
        const QString way = withoutNumbers(it.key());
        if (!given.texts.contains(it.key())) {
            others[way] += it.value();
            if (!given.texts.contains(way) && restOfText(way, {}, it.value().first()) == Rest::Less) {
                differences.append({given.owner, way, {}, it.value().first()});
            }
        }
    }
    for (const auto &text : qAsConst(left)) {
        // Elements may stand in another order, and a row is known by its label.
        const bool isElsewhere = takeRest(text.first, text.second, others[text.first]) != Rest::Less;
        differences.append({given.owner, text.first, text.second, others.value(text.first).join(' '),
                            isElsewhere || text.first.endsWith("]@name")});
    }
}

} // namespace

Rest restOf(const QString &key, const QJsonValue &given, const QJsonValue &found, Road road)
{
    const auto one = plainText(given);
    const auto other = plainText(found);
    if (given == found || (isNothing(given) && isNothing(found)) || (one && one == other)) {
        return Rest::All;
    }
    const QJsonValue implied = road == Road::Kept ? QString() : defaults.value(key);
    if (isNothing(given)) {
        const bool isOtherwise = !isNothing(implied) && restOf(key, implied, found, road) == Rest::Less;
        return isOtherwise ? Rest::Less : Rest::All;
    }
    if (isNothing(found)) {
        const bool isImplied = !isNothing(implied) && restOf(key, given, implied, road) != Rest::Less;
        return isImplied || holdsNothing(given) ? Rest::Alike : Rest::Less;
    }
    if (key == "TextHtml" && road == Road::Drawn && one && other && isSameHtml(*one, *other)) {
        return Rest::All;
    }
    const double tolerance = road == Road::Drawn ? 1e-4 : 1.2e-7; // steps of ink are summed up in single precision
    const auto numbers = wholeNumbers(given);
    const auto otherNumbers = wholeNumbers(found);
    const bool isColor = key.contains("olor");
    const auto color = wholeColor(given);
    const auto otherColor = wholeColor(found);
    const bool areInvisible = color && otherColor && qAlpha(*color | *otherColor) == 0 && road == Road::Drawn;
    if ((numbers && otherNumbers
         && std::equal(numbers->begin(), numbers->end(), otherNumbers->begin(), otherNumbers->end(),
                       [tolerance](double a, double b) {
                           return std::fabs(a - b) <= tolerance * std::max({1.0, std::fabs(a), std::fabs(b)});
                       }))
        || (isColor && color && (color == otherColor || areInvisible)) || (one && other && isSameXml(*one, *other))) {
        return Rest::Alike;
    }
    const Rest rest = restOfTree(key, unfolded(given), unfolded(found), road);
    if (rest == Rest::Less && holdsNothing(given)) {
        return Rest::Alike;
    }
    return given.type() == found.type() ? rest : std::max(rest, Rest::Alike);
}

Differences lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road)
{
    return Comparing(given, found, road).differences;
}

Differences documentDifferences(int slide, const QDomElement &given, const QDomElement &found)
{
    QMap<QString, Said> all;
    QMap<QString, Said> others;
    collectSaid(slide, given, all);
    collectSaid(slide, found, others);
    Differences differences;
    for (auto it = all.begin(); it != all.end(); ++it) {
        const Said other = others.value(it.key());
        if (other.texts.value("@opacity").isEmpty()) {
            removeOpacityInColor(it->texts, other.texts.value("@color"));
        }
        compareTexts(*it, other, differences);
    }
    return differences;
}

void collectTexts(const QDomElement &element, const QString &way,
                  const std::function<bool(const QDomElement &child)> &isOther, Texts &texts)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        texts[way + '@' + attributes.item(i).nodeName()].append(attributes.item(i).nodeValue());
    }
    const QDomElement first = element.firstChildElement();
    if (isMarkup(element.tagName()) && !first.isNull()) {
        texts[way].append(markupIn(element));
        return;
    }
    const QString text = ownText(element);
    if (!text.isEmpty() || (!way.isEmpty() && attributes.isEmpty() && first.isNull())) {
        texts[way].append(text);
    }
    QMap<QString, int> counts;
    for (QDomElement child = first; !child.isNull(); child = child.nextSiblingElement()) {
        const QString label = child.attribute("name");
        const bool isRow = child.tagName() == "property" && !label.isEmpty();
        QString step = child.tagName() + (isRow ? '[' + label + ']' : QString());
        const int number = ++counts[step];
        step += number > 1 ? '#' + QString::number(number) : QString();
        if (!isOther(child)) {
            collectTexts(child, way.isEmpty() ? step : way + '/' + step, isOther, texts);
        }
    }
}

QString withoutNumbers(QString way)
{
    static const QRegularExpression number("#\\d+(?=[/@]|$)");
    return way.remove(number);
}
