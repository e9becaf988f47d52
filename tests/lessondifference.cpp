// SPDX-License-Identifier: MIT
#include "lessondifference.h"

#include "itemposition.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "losses/modelvalues.h"
#include "pluginfixture.h"
#include "randomlesson.h"

#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace lessonhost;

namespace {

using Names = QHash<QString, QString>;

// Where a value is found that its format has another key for; the second for ink that became a line.
const Names otherNames{{"BoundingBox", "IgnoredBoundingBox"},
                       {"Control", "IgnoredControl"},
                       {"MultiMediaFile", "resource"},
                       {"Text", "TextHtml"},
                       {"TextContent", "TextHtml"},
                       {"BackColor", "color"},
                       {"AttachFile", "document"}};
const Names otherNamesOfInk{{"Color", "ArtObj_Color"}, {"Width", "ArtObj_Width"}};

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

} // namespace

Differences lessonDifferences(const QJsonObject &given, const QJsonObject &found, Road road)
{
    return Comparing(given, found, road).differences;
}
