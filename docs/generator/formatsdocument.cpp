// SPDX-License-Identifier: MIT
#include "documents.h"

#include "itemfamilies.h"
#include "translatorchains.h"

#include <QDomElement>
#include <QJsonArray>

#include <algorithm>

namespace {

QString code(const QString &text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

QString codes(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts) {
        parts.append(code(text));
    }
    return parts.join(QLatin1String(", "));
}

// "data/rect/@points", or the label of a property row.
QString placeText(const QJsonValue &path)
{
    QStringList parts;
    const QJsonArray segments = path.toArray();
    for (const QJsonValue &segment : segments) {
        parts.append(segment.toString());
    }
    if (parts.isEmpty()) {
        return {};
    }
    if (parts.size() == 3 && parts.constFirst() == QLatin1String("properties")) {
        return QLatin1String("row \"") + parts.constLast() + QLatin1Char('"');
    }
    const QString last = parts.constLast();
    if (parts.size() == 1 && last.startsWith(QLatin1Char('['))) {
        return QLatin1String("attributes of ") + code(last.mid(1, last.size() - 2));
    }
    if (parts.size() == 1 && last.startsWith(QLatin1Char('<'))) {
        return QLatin1String("attributes of the elements in ") + code(last.mid(1, last.size() - 2));
    }
    parts.last().prepend(QLatin1Char('@'));
    return code(parts.join(QLatin1Char('/')));
}

QString tableHead()
{
    return QStringLiteral("| Key | Raw XML | ZQTX | IWB |\n|---|---|---|---|\n");
}

QString table(const KeyPlaces &maps, const QStringList &keys)
{
    if (keys.isEmpty()) {
        return {};
    }
    QString text = tableHead();
    for (const QString &key : keys) {
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                    .arg(code(key), placeText(maps.xml.value(key)), placeText(maps.tx.value(key)),
                         placeText(maps.iwb.value(key)));
    }
    return text + QLatin1Char('\n');
}

bool isSame(const KeyPlaces &one, const KeyPlaces &other, const QString &key)
{
    return one.xml.value(key) == other.xml.value(key) && one.tx.value(key) == other.tx.value(key)
        && one.iwb.value(key) == other.iwb.value(key);
}

// The keys whose places differ from those in base.
QStringList keysBeyond(const KeyPlaces &maps, const KeyPlaces &base)
{
    QStringList keys = maps.keys();
    keys.erase(std::remove_if(keys.begin(), keys.end(), [&](const QString &key) { return isSame(maps, base, key); }),
               keys.end());
    return keys;
}

// One line for a key of a single type: the places that it has, and what takes a place away.
QString ownKey(const KeyPlaces &maps, const QString &key)
{
    QStringList places;
    if (maps.xml.contains(key)) {
        places.append(QLatin1String("raw ") + placeText(maps.xml.value(key)));
    }
    if (maps.tx.contains(key)) {
        places.append(QLatin1String("ZQTX ") + placeText(maps.tx.value(key)));
    }
    if (maps.iwb.contains(key)) {
        places.append(QLatin1String("IWB ") + placeText(maps.iwb.value(key)));
    }
    return code(key) + QLatin1String(": ")
        + (places.isEmpty() ? QStringLiteral("none") : places.join(QLatin1String(", ")));
}

// The element that an item without values becomes.
QString elementName(const QString &type)
{
    const auto translator = createTranslator(type);
    const QJsonObject item{{QStringLiteral("Type"), jsonTypeToTxType(type)}};
    return translator->tranJSON2ZQTX({}, item, {}).tagName();
}

QString typesTable(const TitledTypes &family, const KeyPlaces &base, const QStringList &shared)
{
    QString text = QStringLiteral("| Type | Type in ZQTX | Element | Keys of its own |\n|---|---|---|---|\n");
    for (const QString &type : family.types) {
        const KeyPlaces maps = keyMapsOfType(type);
        QStringList own;
        const QStringList keys = keysBeyond(maps, base);
        for (const QString &key : keys) {
            if (!shared.contains(key)) {
                own.append(ownKey(maps, key));
            }
        }
        const QString txType = jsonTypeToTxType(type);
        const QString readAs = txTypeToJsonType(txType);
        QString txTypeText = code(txType);
        if (readAs != type) {
            txTypeText += QLatin1String(", read as ") + code(readAs);
        }
        const QString element = elementName(type);
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                    .arg(code(type), txTypeText, element.isEmpty() ? QStringLiteral("not written") : code(element),
                         own.join(QLatin1String("<br>")));
    }
    return text + QLatin1Char('\n');
}

// What all types of a family have beyond the base.
QStringList sharedKeys(const TitledTypes &family, const KeyPlaces &base)
{
    const KeyPlaces first = keyMapsOfType(family.types.constFirst());
    QStringList keys = keysBeyond(first, base);
    for (const QString &type : family.types) {
        const KeyPlaces maps = keyMapsOfType(type);
        keys.erase(
            std::remove_if(keys.begin(), keys.end(), [&](const QString &key) { return !isSame(maps, first, key); }),
            keys.end());
    }
    return keys;
}

QString familySection(const TitledTypes &family)
{
    const bool isSubject = isSubjectType(family.types.constFirst());
    const KeyPlaces base = isSubject ? keyMapsOfSubjects() : keyMapsOfEveryItem();
    const QStringList shared = sharedKeys(family, base);
    QString text = QLatin1String("## ") + family.title + QLatin1String("\n\n");
    text += isSubject ? QStringLiteral("With the keys of every item and those of the subjects")
                      : QStringLiteral("With the keys of every item");
    text += shared.isEmpty() ? QStringLiteral(".\n\n") : QStringLiteral(", and in all types:\n\n");
    text += table(keyMapsOfType(family.types.constFirst()), shared);
    return text + typesTable(family, base, shared);
}

const char *const introduction = R"(# Formats, key by key

Made by `cmake --build build --target documents` from the tables of the plug-in; changes by hand are lost, and a test fails
where this file is behind the tables.

Where each key of the lesson model (LESSON-MODEL.md) lives in each format. Places are written as paths from the element of
the item: `@id` is an attribute of the element itself, `data/rect/@points` one of an element in `<data>`. *row "Label"* is
`<property name="Label" value="..."/>` in `<properties>`. A key with an empty place isn't in that format. Raw XML is only
read.

What is more than a text in a place has no line here: the points of strokes, runs of text, children of groups, mind maps,
the parts of classroom activities and animations. LESSON-MODEL.md describes how the model holds them.

)";

} // namespace

QString formatsDocument()
{
    const KeyPlaces every = keyMapsOfEveryItem();
    const KeyPlaces subjects = keyMapsOfSubjects();
    QString text = QLatin1String(introduction);
    text +=
        QLatin1String("## The presentation\n\nRaw XML: all attributes of `<presentation>`, under their own names.\n\n");
    text += table(keyMapsOfPresentation(), keyMapsOfPresentation().keys());
    text += QLatin1String("## Slides\n\nRaw XML: all attributes of `<slide>`, under their own names.\n\n");
    text += table(keyMapsOfSlide(), keyMapsOfSlide().keys());
    text += QLatin1String("## Every item\n\n") + table(every, every.keys());
    text +=
        QLatin1String("## Items of the subjects\n\nMathematics, physics, chemistry, vector shapes and figures, beyond "
                      "the keys of "
                      "every item:\n\n")
        + table(subjects, keysBeyond(subjects, every))
        + QLatin1String(
            "Raw XML has colours in elements of their key's name, with the attributes `a`, `r`, `g`, `b`. Read are ")
        + codes(subjectColorKeys()) + QLatin1String(".\n\n");
    for (const TitledTypes &family : itemFamilies()) {
        text += familySection(family);
    }
    return text.trimmed() + QLatin1Char('\n');
}
