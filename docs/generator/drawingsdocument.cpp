// SPDX-License-Identifier: MIT
#include "documents.h"

#include "itemfamilies.h"
#include "itempictures.h"
#include "lesson/plainnames.h"
#include "transformationplugin.h"
#include "typicalitems.h"

#include <algorithm>

namespace {

QString codes(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts) {
        parts.append(QLatin1Char('`') + text + QLatin1Char('`'));
    }
    return parts.join(QLatin1String(", "));
}

// The same text in other letters and digits.
QJsonValue otherWords(const QJsonValue &value)
{
    QString text = value.toString();
    return text.replace(QLatin1Char('a'), QLatin1Char('o'))
        .replace(QLatin1Char('e'), QLatin1Char('i'))
        .replace(QLatin1Char('2'), QLatin1Char('5'))
        .replace(QLatin1Char('0'), QLatin1Char('1'));
}

// Values that are worth a try in any key, whatever its form is.
QVector<QJsonValue> otherValues(const QJsonValue &typical)
{
    return {QJsonValue::Undefined,
            otherWords(typical),
            QStringLiteral("0"),
            QStringLiteral("1"),
            QStringLiteral("2"),
            QStringLiteral("3"),
            QStringLiteral("25"),
            QStringLiteral("Other"),
            QStringLiteral("dash"),
            QStringLiteral("right"),
            QStringLiteral("square"),
            QStringLiteral("128,1,2,3"),
            QStringLiteral("#ff010203"),
            QStringLiteral("80,90,80,90,80,90,160,200,160,200,160,200,100,180,100,180,100,180"),
            QStringLiteral("0,0,5,5,20,30"),
            QStringLiteral("images/card.png"),
            QStringLiteral("images/picture.png")};
}

class Effects
{
public:
    bool isNamed(const QString &type) { return !draw(typicalItem(type, ItemPictures::boxOf(type))).named.isEmpty(); }

    // Whether some value of the key changes the picture of a typical item, or of what a package or raw XML has of it.
    bool hasEffect(const QString &type, const QString &key)
    {
        const QJsonObject item = typicalItem(type, ItemPictures::boxOf(type));
        const KeyPlaces places = keyMapsOfType(type);
        QJsonObject raw = without(item, places.tx, places.xml);
        if (isSubjectType(type)) {
            raw.remove(QLatin1String("BoundingBox"));
            const QPointF middle = ItemPictures::boxOf(type).center();
            raw.insert(QLatin1String("Matrix"), QStringLiteral("1,0,0,1,%1,%2").arg(middle.x()).arg(middle.y()));
        }
        return hasEffectOn(item, key) || hasEffectOn(without(item, places.xml, places.tx), key)
            || hasEffectOn(raw, key) || hasEffectUnnamed(withoutFlags(item), key)
            || hasEffectUnnamed(withoutBox(item), key);
    }

private:
    // Without the keys of one table that aren't in the other.
    static QJsonObject without(QJsonObject item, const QJsonObject &taken, const QJsonObject &left)
    {
        const QStringList keys = taken.keys();
        for (const QString &key : keys) {
            if (!left.contains(key) && key != QLatin1String("Type")) {
                item.remove(key);
            }
        }
        return item;
    }

    // What is shown may hide what another key tells.
    static QJsonObject withoutFlags(QJsonObject item)
    {
        for (auto it = item.begin(); it != item.end(); ++it) {
            if (it->toString() == QLatin1String("1")) {
                *it = QStringLiteral("0");
            }
        }
        return item;
    }

    // Where a box tells nothing, other keys may.
    static QJsonObject withoutBox(QJsonObject item)
    {
        item.remove(QLatin1String("BoundingBox"));
        return item;
    }

    bool hasEffectUnnamed(const QJsonObject &item, const QString &key)
    {
        return draw(item).named.isEmpty() && hasEffectOn(item, key);
    }

    bool hasEffectOn(const QJsonObject &item, const QString &key)
    {
        const QByteArray picture = draw(item).svg;
        const QVector<QJsonValue> values = otherValues(item.value(key));
        return std::any_of(values.cbegin(), values.cend(), [&](const QJsonValue &value) {
            QJsonObject other = item;
            other.insert(key, value);
            return draw(other).svg != picture;
        });
    }

    ItemPicture draw(const QJsonObject &item) { return m_pictures.draw(withGround(item)); }

    TransformationPlugin m_plugin;
    ItemPictures m_pictures{&m_plugin};
};

// The keys that a type has beyond those of every item, and what places it.
QStringList keysToTry(const QString &type)
{
    KeyPlaces places = keyMapsOfType(type);
    places.iwb = {};
    QStringList keys = places.keys() + typicalItem(type, {}).keys();
    KeyPlaces every = keyMapsOfEveryItem();
    every.iwb = {};
    const QStringList common = every.keys();
    keys.erase(std::remove_if(keys.begin(), keys.end(), [&](const QString &key) { return common.contains(key); }),
               keys.end());
    for (const char *key : {"Angle", "HorizonFlip", "Matrix"}) {
        keys.append(QLatin1String(key));
    }
    keys.removeDuplicates();
    keys.sort();
    return keys;
}

/*!
 * What the picture of a type shows of it.
 */
struct Shown
{
    QString type;
    bool isNamed = false;
    QStringList with;
    QStringList without;
};

Shown shownOf(Effects &effects, const QString &type)
{
    Shown shown;
    shown.type = type;
    shown.isNamed = effects.isNamed(type);
    const QStringList keys = shown.isNamed ? QStringList() : keysToTry(type);
    for (const QString &key : keys) {
        (effects.hasEffect(type, key) ? shown.with : shown.without).append(key);
    }
    return shown;
}

// Takes what all drawn types have in common out of their lists.
QStringList takeCommon(QVector<Shown> &types, QStringList Shown::*list)
{
    QStringList common;
    bool isFirst = true;
    for (const Shown &shown : qAsConst(types)) {
        if (!shown.isNamed) {
            const QStringList own = shown.*list;
            common = isFirst ? own : common;
            common.erase(
                std::remove_if(common.begin(), common.end(), [&own](const QString &key) { return !own.contains(key); }),
                common.end());
            isFirst = false;
        }
    }
    for (Shown &shown : types) {
        QStringList &own = shown.*list;
        own.erase(
            std::remove_if(own.begin(), own.end(), [&common](const QString &key) { return common.contains(key); }),
            own.end());
    }
    return common;
}

struct FamilyText
{
    const char *title;
    const char *text;
};

// What isn't plain from the names of the keys.
constexpr FamilyText familyTexts[] = {
    {"Strokes",
     "Ink along its points: smooth, dashed, and as wide at each point as it says; stamps and textures by their "
     "pictures. "
     "Ink that is rubbed out takes away what lies under it; what a stroke keeps of deleted pixels is left out. "
     "Handwritten formulas are the strokes within them."},
    {"Text boards",
     "The text with its fonts, sizes, colours, lists and tables in the width of its box, on its background where that "
     "is "
     "to be seen."},
    {"Pictures, films, sounds and documents",
     "A picture fills its box. What can't be seen on paper is a card with a sign, its name and the kind of its file."},
    {"Groups", "What is in it, turned, flipped and stretched with the group."},
    {"Mathematics",
     "Plane figures from their points or in their box, bodies with their hidden edges dashed, axes with arrows and "
     "ticks. "
     "Angles that are to be measured have their degrees; centres and middles a dot. What items don't tell is left out: "
     "the units of axes, and with them functions; lengths, whose units no item names. `discipline` is the name of a "
     "figure "
     "that tells no type: its points or its box in its colours, and its text."},
    {"Physics",
     "The symbol of the type (`host/drawings/symbols`) in the item's box, with its colours, states and texts. Keys whose "
     "meaning neither their name nor their label tells change nothing."},
    {"Chemistry",
     "The symbol of the type (`host/drawings/symbols`) in the item's box, with its colours, states and texts. Liquids "
     "stay "
     "level in vessels that are turned. Keys whose meaning neither their name nor their label tells change nothing."},
    {"Vector shapes",
     "The paths that the item holds, each with its edge and its fill. An item without a path shows what its type "
     "usually "
     "looks like, where that is known."},
    {"Figures",
     "An outline in the box, or the lines through the item's points. Brackets and arrows of a direction or kind that "
     "nobody "
     "knows are boxes with their names."},
    {"Literature",
     "Characters in squares and words between lines, as large as they fit. Word art fills its box with the words that "
     "it "
     "tells under `TextHtml` or `Text`; without any it is a box with its name."},
    {"General tools",
     "Instruments with scales in pixels of the page, covers over what they hide, cards and exercises with their lists "
     "laid "
     "out in the order that the lesson has them in."},
    {"Mind maps", "A tree of boxes with the texts of its nodes, in the item's box or on the whole page."},
    {"Basic graphs",
     "An outline in the box with the item's text in it; segments and free drawings along their points."},
    {"Activity items",
     "The item's picture, and the text on it in its font, size, colour and alignment. Of a card the front."},
    {"Words and letters", "Characters in squares, pinyin between lines, as large as they fit."},
    {"Mathematics subject", "A formula as its MathML is laid out, or its picture; a worksheet by its picture."},
    {"Questions", "The content of the question, not its answer."},
};

QString textOf(const QString &title)
{
    for (const FamilyText &family : familyTexts) {
        if (title == QLatin1String(family.title)) {
            return QString::fromUtf8(family.text);
        }
    }
    return {};
}

// Words broken into lines.
QString wrapped(const QString &text)
{
    constexpr int longest = 120;
    QString result;
    int length = 0;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const bool isBroken = length > 0 && length + 1 + word.size() > longest;
        result += isBroken ? QStringLiteral("\n") : length > 0 ? QStringLiteral(" ") : QString();
        length = (isBroken ? 0 : length + (length > 0 ? 1 : 0)) + word.size();
        result += word;
    }
    return result + QLatin1Char('\n');
}

QString section(Effects &effects, const TitledTypes &family)
{
    QVector<Shown> types;
    for (const QString &type : family.types) {
        if (isModelType(type)) {
            types.append(shownOf(effects, type));
        }
    }
    QString told = textOf(family.title);
    if (types.size() > 1) {
        const QStringList with = takeCommon(types, &Shown::with);
        const QStringList without = takeCommon(types, &Shown::without);
        told += with.isEmpty() ? QString() : QLatin1String(" All show ") + codes(with) + QLatin1Char('.');
        told += without.isEmpty() ? QString() : QLatin1String(" None shows ") + codes(without) + QLatin1Char('.');
    }
    QString text = QLatin1String("## ") + family.title + QLatin1String("\n\n") + wrapped(told) + QLatin1Char('\n');
    text += QLatin1String("| Type | Plain name | Shown | Not shown |\n|---|---|---|---|\n");
    for (const Shown &shown : qAsConst(types)) {
        text += QStringLiteral("| `%1` | %2 | %3 | %4 |\n")
                    .arg(shown.type, lessonhost::plainName(shown.type),
                         shown.isNamed ? QStringLiteral("only a box with its name") : codes(shown.with),
                         codes(shown.without));
    }
    return text + QLatin1Char('\n');
}

const char *const introduction = R"(# What pictures show

Made by `cmake --build build --target documents` from the tables of the plug-in and the drawings of `lessonconv render`;
changes by hand are lost, and a test fails where this file is behind them.

Found by drawing a typical item of every type, and again with other values of each of its keys: a key shows if any of them
changes the picture, that of the whole item or of one without a box or with nothing switched on. What every item has
(FORMATS.md) isn't told again: an item stands in its `BoundingBox` and is left out where `Visible` is 0; locks, links,
animations and copies aren't seen. `docs/sheet` draws all of them to be looked at.

)";

} // namespace

QString drawingsDocument()
{
    Effects effects;
    QString text = QLatin1String(introduction);
    for (const TitledTypes &family : itemFamilies()) {
        text += section(effects, family);
    }
    return text.trimmed() + QLatin1Char('\n');
}
