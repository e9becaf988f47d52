// SPDX-License-Identifier: MIT
#include "documents.h"

#include "formats/conversion.h"
#include "itemfamilies.h"
#include "itempictures.h"
#include "lesson/itemtypes.h"
#include "lesson/plainnames.h"
#include "render/slideitempainter.h"
#include "svg/iwbpage.h"
#include "transformationplugin.h"
#include "typicalitems.h"

#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <algorithm>
#include <iterator>

using namespace lessonhost;

namespace {

const QString idName = QStringLiteral("id");
const QString hrefName = QStringLiteral("xlink:href");

/*!
 * What each item is tried with, and how a table calls what comes of it.
 */
struct Trait
{
    const char *name;
    const char *key;
    const char *value;
};
constexpr Trait traits[] = {
    {"locked", "LockIn", "1"},  {"copies", "InfiniteClone", "1"}, {"link", "InteractiveType", "ACTION_GOTOSLIDE"},
    {"hidden", "Visible", "0"}, {"group", "Children", nullptr},
};
constexpr int itemsOfType = int(std::size(traits)) + 1;

struct ElementWord
{
    const char *tag;
    const char *word;
};
constexpr ElementWord elementWords[] = {
    {"svg:line", "line"},         {"svg:polyline", "open line"}, {"svg:polygon", "closed outline"},
    {"svg:rect", "rectangle"},    {"svg:circle", "circle"},      {"svg:ellipse", "ellipse"},
    {"svg:textarea", "text"},     {"svg:image", "picture"},      {"svg:video", "film"},
    {"svg:text", "line of text"},
};

QString pageOf(int index)
{
    return QStringLiteral("page%1").arg(index + 1);
}

// The item that is the part-th of its page, with what is in it called after it.
QJsonObject named(QJsonObject item, int index, int part)
{
    const QString id = QStringLiteral("t%1_%2").arg(index).arg(part);
    item.insert(QStringLiteral("ID"), id);
    QJsonArray children = item.value(QLatin1String("Children")).toArray();
    for (int i = 0; i < children.size(); ++i) {
        QJsonObject child = children.at(i).toObject();
        child.insert(QStringLiteral("ID"), QStringLiteral("%1c%2").arg(id).arg(i));
        children.replace(i, child);
    }
    if (!children.isEmpty()) {
        item.insert(QStringLiteral("Children"), children);
    }
    return item;
}

// A slide with a typical item of a type, first as it is and then with one trait after the other.
QJsonObject slideOf(const QString &type, int index)
{
    QJsonArray items = withGround(typicalItem(type, ItemPictures::boxOf(type)));
    QJsonObject plain = items.last().toObject();
    items.removeLast();
    for (const Trait &trait : traits) {
        if (trait.value) {
            plain.remove(QLatin1String(trait.key));
        }
    }
    plain.remove(QStringLiteral("InteractiveValue"));
    items.append(named(plain, index, 0));
    for (int i = 1; i < itemsOfType; ++i) {
        const Trait &trait = traits[i - 1];
        QJsonObject item = named(plain, index, i);
        if (trait.value) {
            item.insert(QLatin1String(trait.key), QLatin1String(trait.value));
            item.insert(QStringLiteral("InteractiveValue"), QStringLiteral("1"));
            items.append(item);
            continue;
        }
        const QJsonObject other{{QStringLiteral("Type"), QStringLiteral("ZQMath2DSegment")},
                                {QStringLiteral("ID"), QStringLiteral("other%1").arg(index)},
                                {QStringLiteral("BoundingBox"), QStringLiteral("20,20,60,60")},
                                {QStringLiteral("Control"), QStringLiteral("20,20,60,60")}};
        items.append(QJsonObject{{QStringLiteral("Type"), QStringLiteral("ZQGroupItem")},
                                 {QStringLiteral("ID"), QStringLiteral("group%1").arg(index)},
                                 {QStringLiteral("Children"), QJsonArray{item, other}}});
    }
    return {{QStringLiteral("ID"), pageOf(index)}, {QStringLiteral("Items"), items}};
}

/*!
 * A package that was written.
 */
class Package
{
public:
    explicit Package(const QStringList &types)
    {
        QJsonArray slides;
        for (int i = 0; i < types.size(); ++i) {
            slides.append(slideOf(types.at(i), i));
        }
        const QJsonObject lesson{{QStringLiteral("Width"), QString::number(ItemPictures::pageSize().width())},
                                 {QStringLiteral("Height"), QString::number(ItemPictures::pageSize().height())},
                                 {QStringLiteral("Slides"), slides},
                                 {QStringLiteral("Resources"), typicalFiles()}};
        const QTemporaryDir folder;
        const QString given = folder.filePath(QStringLiteral("lesson.json"));
        QFile file(given);
        if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(lesson).toJson()) < 0) {
            qFatal("%s can't be written.", qPrintable(given));
        }
        file.close();
        TransformationPlugin plugin;
        LessonContext context;
        context.plugin = &plugin;
        context.makePainter = [&plugin](LessonReader &reader, bool) {
            return std::make_unique<SlideItemPainter>(reader, &plugin);
        };
        const QString written = folder.filePath(QStringLiteral("package"));
        convertLesson(lessonFormatOfInput(given), given, lessonFormatByName(QStringLiteral("iwb")), written, context,
                      [](int, int) {});
        QFile content(written + QLatin1String("/content.xml"));
        content.open(QIODevice::ReadOnly);
        m_document.setContent(&content);
        QFile native(written + QLatin1String("/additional/native/lesson.json"));
        native.open(QIODevice::ReadOnly);
        const QJsonArray made =
            QJsonDocument::fromJson(native.readAll()).object().value(QLatin1String("made")).toArray();
        for (const QJsonValue &path : made) {
            m_made.append(path.toString());
        }
        lookAt(m_document.documentElement());
    }

    //! The elements that stand for an item, or for what is in it.
    QVector<QDomElement> elementsOf(int index, int part) const
    {
        const QString id = QStringLiteral("t%1_%2").arg(index).arg(part);
        QVector<QDomElement> elements;
        if (m_elements.contains(id)) {
            elements.append(m_elements.value(id));
        }
        for (int i = 0; m_elements.contains(QStringLiteral("%1c%2").arg(id).arg(i)); ++i) {
            elements.append(m_elements.value(QStringLiteral("%1c%2").arg(id).arg(i)));
        }
        return elements;
    }

    QString formOf(const QDomElement &element) const
    {
        const QString target = element.attribute(hrefName);
        if (element.tagName() == QLatin1String("svg:a")) {
            return target.startsWith(QLatin1String("audio/")) ? QStringLiteral("a picture of it that plays the sound")
                                                              : QStringLiteral("a picture of it that opens the file");
        }
        if (m_made.contains(target)) {
            return QStringLiteral("as a picture");
        }
        const QString part = element.attribute(idName) + QLatin1String(partOfItem);
        if (m_elements.contains(part + QLatin1Char('1'))) {
            bool hasText = element.tagName() == QLatin1String("svg:text");
            for (int i = 1; m_elements.contains(part + QString::number(i)); ++i) {
                const QString tag = m_elements.value(part + QString::number(i)).tagName();
                hasText = hasText || tag == QLatin1String("svg:text");
            }
            return hasText ? QStringLiteral("a group of outlines and text") : QStringLiteral("a group of outlines");
        }
        for (const ElementWord &row : elementWords) {
            if (element.tagName() == QLatin1String(row.tag)) {
                const bool isInk = has(element, "freehand") || has(element, "highlight");
                return QLatin1String(row.word)
                    + QLatin1String(isInk                          ? " that is ink"
                                        : has(element, "revealer") ? " to be drawn away"
                                                                   : "");
            }
        }
        return element.tagName();
    }

    bool keeps(const QDomElement &element, const QString &trait) const
    {
        if (trait == QLatin1String("locked")) {
            return has(element, "locked");
        }
        if (trait == QLatin1String("copies")) {
            return has(element, "replicate");
        }
        if (trait == QLatin1String("link")) {
            const QDomElement around = element.parentNode().toElement();
            return around.attribute(hrefName) == QLatin1String("#page1");
        }
        if (trait == QLatin1String("hidden")) {
            const QDomElement shown =
                element.tagName() == QLatin1String("svg:a") ? element.firstChildElement() : element;
            return shown.attribute(QStringLiteral("transform")).startsWith(QLatin1String(awayFromPage));
        }
        const QString id = element.attribute(idName);
        return m_grouped.contains(id) || m_grouped.contains(id + QLatin1String(soundSign))
            || m_grouped.contains(id + QLatin1String(filmSign));
    }

private:
    // Records of sounds and films are about their signs.
    bool has(const QDomElement &element, const char *record) const
    {
        const QString id = element.attribute(idName);
        const QString name = QLatin1String(record);
        return m_records.value(id).contains(name) || m_records.value(id + QLatin1String(soundSign)).contains(name)
            || m_records.value(id + QLatin1String(filmSign)).contains(name);
    }

    void lookAt(const QDomElement &root)
    {
        for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            const QString about = e.attribute(QStringLiteral("ref"));
            if (about.isEmpty()) {
                m_elements.insert(e.attribute(idName), e);
            } else if (root.tagName() == QLatin1String("iwb:group")) {
                m_grouped.append(about);
            }
            for (const char *name : {"locked", "replicate", "freehand", "highlight", "revealer"}) {
                if (e.attribute(QLatin1String(name)) == QLatin1String("true")) {
                    m_records[about].append(QLatin1String(name));
                }
            }
            lookAt(e);
        }
    }

    QDomDocument m_document;
    QHash<QString, QDomElement> m_elements;
    QHash<QString, QStringList> m_records;
    QStringList m_grouped;
    QStringList m_made;
};

/*!
 * What other boards have of some types.
 */
struct Seen
{
    QString form;
    QString kept;
    QStringList names;
};

Seen seenOf(const Package &package, const QString &type, int index)
{
    Seen seen;
    QStringList forms;
    const QVector<QDomElement> plain = package.elementsOf(index, 0);
    for (const QDomElement &element : plain) {
        const QString form = package.formOf(element);
        if (!forms.contains(form)) {
            forms.append(form);
        }
    }
    seen.form = forms.isEmpty() ? QStringLiteral("nothing") : forms.join(QLatin1String(" and "));
    if (plain.size() > 1) {
        seen.form = QLatin1String("what is in it: ") + seen.form;
    }
    QStringList kept;
    for (int i = 1; i < itemsOfType; ++i) {
        const QString name = QLatin1String(traits[i - 1].name);
        const QVector<QDomElement> elements = package.elementsOf(index, i);
        const bool isKept = !elements.isEmpty()
            && std::all_of(elements.cbegin(), elements.cend(),
                           [&](const QDomElement &element) { return package.keeps(element, name); });
        if (isKept) {
            kept.append(name);
        }
    }
    seen.kept = kept.join(QLatin1String(", "));
    seen.names = QStringList(plainName(type));
    return seen;
}

// Types of which the same is seen stand in one line, the most of them last.
QString familyRows(const TitledTypes &family, const Package &package, int &index)
{
    QVector<Seen> rows;
    for (const QString &type : family.types) {
        if (!isModelType(type)) {
            continue;
        }
        const Seen seen = seenOf(package, type, index++);
        const auto same = std::find_if(rows.begin(), rows.end(), [&seen](const Seen &row) {
            return row.form == seen.form && row.kept == seen.kept;
        });
        if (same == rows.end()) {
            rows.append(seen);
        } else if (!same->names.contains(seen.names.first())) {
            same->names += seen.names;
        }
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Seen &one, const Seen &other) { return one.names.size() < other.names.size(); });
    QString text;
    for (int i = 0; i < rows.size(); ++i) {
        const Seen &row = rows.at(i);
        const bool isRest = i + 1 == rows.size() && row.names.size() > 3;
        const QString names = !isRest ? row.names.join(QLatin1String(", "))
            : i == 0                  ? QStringLiteral("all")
                                      : QStringLiteral("all others");
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n").arg(family.title, names, row.form, row.kept);
    }
    return text;
}

const char *const introduction = R"(# What other boards show

Made by `cmake --build build --target documents` from packages that were written; changes by hand are lost, and a test fails
where this file is behind the code.

IWB packages hold what every interactive whiteboard knows: lines and outlines, rectangles, circles and ellipses, texts,
pictures, films and links. This table tells for each kind of item what another board has of it, found by writing a typical
one of each. What isn't there for others isn't lost: the lesson travels along in the package, and `lessonconv` brings all of
it back (IWB.md).

- *line*, *outline*, *rectangle*, *text* and so on: the item itself, or the only outline that it shows. Its colours, its
  width and its place are there, and another board can change them. A *line that is ink* is written on as with that
  board's own pen.
- *a group of outlines*: the item in a few lines and outlines, and lines of text, which look as it does here and move
  together. Another board can take them apart and change each.
- *as a picture*: it looks as it does here and can be moved, sized and deleted, but not played with, typed in or opened.
- *a picture of it that plays the sound* or *opens the file*: a picture with a sign, to be touched. Films go so where the
  format hasn't their kind.
- *nothing*: other boards have nothing to show there. What was rubbed out of ink is missing there, too: such ink is a picture.

The last column tells what else another board keeps to: that the item is *locked* in its place, that it gives *copies* of
itself, that touching it opens the page, file or address of its *link*, that it is *hidden* (it lies beside the page and can
be fetched), and that it stays in its *group*. What is hidden and has no form but a picture isn't there at all.

| Family | Items | Other boards have | They keep |
|---|---|---|---|
)";

} // namespace

QString boardsDocument()
{
    QStringList types;
    for (const TitledTypes &family : itemFamilies()) {
        std::copy_if(family.types.cbegin(), family.types.cend(), std::back_inserter(types), isModelType);
    }
    const Package package(types);
    QString text = QLatin1String(introduction);
    int index = 0;
    for (const TitledTypes &family : itemFamilies()) {
        text += familyRows(family, package, index);
    }
    return text;
}
