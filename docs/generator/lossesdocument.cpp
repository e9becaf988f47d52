// SPDX-License-Identifier: MIT
#include "documents.h"

#include "formats/conversion.h"
#include "itemfamilies.h"
#include "lesson/keynames.h"
#include "losses/lossreport.h"
#include "sampleitems.h"
#include "transformationplugin.h"
#include "translatorchains.h"

#include <QFile>
#include <QJsonDocument>
#include <QMap>
#include <QTemporaryDir>

#include <algorithm>

using namespace lessonhost;

namespace {

/*!
 * The losses of one conversion, by type.
 */
struct Losses
{
    QMap<QString, QStringList> keys; //!< what an item that goes over loses, ascending
    QStringList withoutForm;
    QStringList kept;
};

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s can't be written.", qPrintable(path));
    }
}

void appendOnce(QStringList &list, const QString &text)
{
    if (!list.contains(text)) {
        list.append(text);
    }
}

Losses convert(const QString &input, const QString &output)
{
    TransformationPlugin plugin;
    LossReport report;
    LessonContext context;
    context.plugin = &plugin;
    context.losses = &report;
    context.options.insert(QStringLiteral("plain"), {});
    convertLesson(lessonFormatOfInput(input), input, lessonFormatOfOutput(output), output, context, [](int, int) {});
    Losses losses;
    for (const Loss &loss : report.entries()) {
        if (loss.kind == Loss::Item) {
            appendOnce(losses.withoutForm, loss.itemType);
        } else if (loss.kind == Loss::Kept) {
            appendOnce(losses.kept, loss.itemType);
        } else if (loss.kind == Loss::Value) {
            appendOnce(losses.keys[loss.itemType], loss.key);
        }
    }
    for (QStringList &keys : losses.keys) {
        keys.sort();
    }
    return losses;
}

QString codes(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts) {
        parts.append(QLatin1Char('`') + text + QLatin1Char('`'));
    }
    return parts.join(QLatin1String(", "));
}

QStringList without(QStringList list, const QStringList &taken)
{
    list.erase(std::remove_if(list.begin(), list.end(), [&](const QString &text) { return taken.contains(text); }),
               list.end());
    return list;
}

QString row(const QString &family, const QString &types, const QString &lost)
{
    return QStringLiteral("| %1 | %2 | %3 |\n").arg(family, types, lost);
}

// What all of the types lose.
QStringList sharedKeys(const QStringList &types, const Losses &losses)
{
    QStringList shared = losses.keys.value(types.value(0));
    for (const QString &type : types) {
        const QStringList keys = losses.keys.value(type);
        shared = without(shared, without(shared, keys));
    }
    return shared;
}

// Names that ZQTX has for other types.
QStringList namesOfOtherTypes(const TitledTypes &family)
{
    QStringList names;
    for (const QString &type : family.types) {
        if (txTypeToJsonType(type) != type) {
            names.append(type);
        }
    }
    return names;
}

QString familyRows(const TitledTypes &family, const Losses &losses)
{
    const QStringList known = without(family.types, namesOfOtherTypes(family));
    const QStringList going = without(without(known, losses.withoutForm), losses.kept);
    const QStringList staying = without(known, without(known, losses.withoutForm));
    const QStringList kept = without(known, without(known, losses.kept));
    QString text;
    if (!kept.isEmpty()) {
        text += row(family.title, codes(kept), QStringLiteral("not converted: the item is kept as it came"));
    }
    if (!staying.isEmpty()) {
        text += row(family.title, going.isEmpty() ? QStringLiteral("every type") : codes(staying),
                    QStringLiteral("the whole item"));
    }
    const QStringList shared = going.size() > 1 ? sharedKeys(going, losses) : QStringList();
    if (!shared.isEmpty()) {
        text += row(family.title,
                    going.size() == known.size() ? QStringLiteral("every type") : QStringLiteral("every other type"),
                    codes(shared));
    }
    // Types that lose the same stand in one line.
    QVector<QPair<QStringList, QStringList>> lines; // keys and types
    for (const QString &type : going) {
        const QStringList own = without(losses.keys.value(type), shared);
        const auto found =
            std::find_if(lines.begin(), lines.end(), [&own](const auto &line) { return line.first == own; });
        if (own.isEmpty()) {
            continue;
        }
        if (found == lines.end()) {
            lines.append({own, {type}});
        } else {
            found->second.append(type);
        }
    }
    for (const auto &line : qAsConst(lines)) {
        text += row(family.title, codes(line.second), codes(line.first));
    }
    return text;
}

QString section(const QString &title, const Losses &losses)
{
    QString rows;
    for (const auto &[title, type] : {std::pair("Presentation", "presentation"), {"Slide", "slide"}}) {
        const QStringList keys = losses.keys.value(QLatin1String(type));
        if (!keys.isEmpty()) {
            rows += row(QLatin1String(title), QString(), codes(keys));
        }
    }
    for (const TitledTypes &family : itemFamilies()) {
        rows += familyRows(family, losses);
    }
    const QString head = QLatin1String("## ") + title + QLatin1String("\n\n");
    return head
        + (rows.isEmpty() ? QStringLiteral("Nothing is lost.\n\n")
                          : QLatin1String("| Family | Type | Lost |\n|---|---|---|\n") + rows + QLatin1Char('\n'));
}

// What teachers are told in the place of keys.
QString plainNames()
{
    QVector<KeyPlaces> maps{keyMapsOfEveryItem(), keyMapsOfSubjects(), keyMapsOfSlide(), keyMapsOfPresentation()};
    for (const TitledTypes &family : itemFamilies()) {
        for (const QString &type : family.types) {
            maps.append(keyMapsOfType(type));
        }
    }
    QMap<QString, QStringList> keys[2]; // by name: what is seen, what isn't
    for (const KeyPlaces &places : qAsConst(maps)) {
        const QStringList all = places.keys();
        for (const QString &key : all) {
            appendOnce(keys[isInternalPlace(key)][plainKeyName(key).english()], key);
        }
    }
    QString text;
    for (const bool isInternal : {false, true}) {
        for (auto it = keys[isInternal].begin(); it != keys[isInternal].end(); ++it) {
            it->sort();
            text += row(it.key(), codes(*it), isInternal ? QStringLiteral("nobody") : QString());
        }
    }
    return QLatin1String("## Plain names\n\n| On the terminal | Keys | Seen by |\n|---|---|---|\n") + text;
}

const char *const introduction = R"(# What conversions can't carry

Made by `cmake --build build --target documents`; changes by hand are lost, and a test fails where this file is behind the
code.

Found by converting a lesson that has an item of every type, and in each item a value for every key of its tables
(FORMATS.md). Places with `@` are those of XML. A lesson that lacks a key loses nothing by it: `lessonconv convert` names
what a given lesson loses. IWB.md says in which form items go over, and LESSON-MODEL.md which losses depend on the values.

On the terminal losses have plain names, and stand in the groups that matter for the lesson: what isn't shown, what is
shown but not the same, and what nobody sees or hears. "Plain names" at the end tells which keys a name stands for.
Reports (`--report`, `--json`) have the keys, and the group of each as `missing`, `different` or `internal`.

)";

} // namespace

QString lossesDocument()
{
    const QTemporaryDir folder;
    const auto in = [&folder](const char *name) { return folder.filePath(QLatin1String(name)); };
    put(in("lesson.json"), QJsonDocument(sampleLesson()).toJson());
    put(in("lesson.xml"), rawSampleLesson().toUtf8());
    QString text = QLatin1String(introduction);
    text += section(QStringLiteral("JSON to ZQTX"), convert(in("lesson.json"), in("lesson.zqtx")));
    text += section(QStringLiteral("ZQTX to JSON"), convert(in("lesson.zqtx"), in("back.json")));
    text += section(QStringLiteral("JSON or ZQTX to IWB"), convert(in("lesson.json"), in("lesson.iwb")));
    text += section(QStringLiteral("IWB to JSON or ZQTX"), convert(in("lesson.iwb"), in("again.json")));
    text += section(QStringLiteral("Raw XML to JSON"), convert(in("lesson.xml"), in("raw.json")));
    text += section(QStringLiteral("Raw XML to ZQTX"), convert(in("lesson.xml"), in("raw.zqtx")));
    text += plainNames();
    return text.trimmed() + QLatin1Char('\n');
}
