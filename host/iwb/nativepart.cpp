// SPDX-License-Identifier: MIT
#include "iwb/nativepart.h"

#include "files/compactjson.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/packagetarget.h"
#include "iwb/elementmark.h"
#include "iwb/iwbmedia.h"
#include "iwb/iwbpackage.h"
#include "lesson/itemkeys.h"
#include "lesson/slidelimits.h"
#include "svg/iwbpage.h"

#include <QCryptographicHash>
#include <QJsonDocument>

namespace lessonhost {

namespace {

constexpr int form = 1; // of these files
const QLatin1String folder("additional/native/");
const QLatin1String lessonFile("additional/native/lesson.json");
const QLatin1String filesFolder("additional/native/files/");
const QLatin1String pagePrefix("page");

namespace Keys {
const QLatin1String form("form");
const QLatin1String presentation("presentation");
const QLatin1String size("size");
const QLatin1String files("files");
const QLatin1String copies("copies");
const QLatin1String made("made");
const QLatin1String document("document");
const QLatin1String slide("slide");
const QLatin1String background("background");
const QLatin1String ids("ids");
const QLatin1String mark("mark");
const QLatin1String items("items");
const QLatin1String item("item");
const QLatin1String parts("parts");
const QLatin1String group("group");
const QLatin1String id("id");
} // namespace Keys

QString pageFile(const QString &pageId)
{
    return folder + pageId + QLatin1String(".json");
}

// Elements that items stand for, by identifier, with the links around them.
QHash<QString, QDomElement> elementsOf(const QDomElement &page)
{
    QHash<QString, QDomElement> elements;
    for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (isFillBehind(child) || isCover(child)) {
            continue;
        }
        elements.insert(itemElement(child).attribute(QStringLiteral("id")), child);
    }
    return elements;
}

QJsonObject partOf(const IwbPageWriter::WrittenItem &written, bool isWhole, const QHash<QString, QDomElement> &elements,
                   const QHash<QString, RecordText> &records)
{
    QJsonObject part;
    if (!written.id.isEmpty()) {
        part.insert(Keys::id, written.id);
        const QDomElement element = elements.value(written.id);
        QVector<QDomElement> all{element};
        // A link holds them all.
        for (QDomElement other = element.previousSiblingElement();
             all.size() < written.elements && element.tagName() != QLatin1String("svg:a");
             other = other.previousSiblingElement()) {
            all.prepend(other);
        }
        part.insert(Keys::mark, marksOf(all, records));
    }
    // What its group has turned stands elsewhere by itself.
    if (!isWhole && !written.isMoved) {
        part.insert(Keys::item, written.item);
    }
    return part;
}

NativePage::Part readPart(const QJsonObject &json)
{
    return {json.value(Keys::id).toString(), json.value(Keys::mark).toString().split(QLatin1Char(' ')),
            json.value(Keys::item).toObject()};
}

QJsonObject objectIn(const IwbPackage &package, const QString &file)
{
    // A page has its items twice where they are in groups.
    return package.size(file) > 3 * maximumSlideSize ? QJsonObject()
                                                     : QJsonDocument::fromJson(package.content(file)).object();
}

// Whether a text says all of what it was written of. Where a value is read as another that is written alike, the text
// tells.
bool isReadAs(const QByteArray &text, const QJsonObject &written)
{
    const QJsonDocument read = QJsonDocument::fromJson(text);
    return read.object() == written || read.toJson(QJsonDocument::Compact) == text;
}

} // namespace

QString marksOf(const QVector<QDomElement> &elements, const QHash<QString, RecordText> &records)
{
    QStringList marks;
    for (const QDomElement &element : elements) {
        marks.append(elementMark(element, records));
    }
    return marks.join(QLatin1Char(' '));
}

NativePartWriter::NativePartWriter(PackageTarget &target)
    : m_target(target)
{
}

bool NativePartWriter::writePage(int number, const LessonSlide &slide, const QVector<IwbPageWriter::WrittenItem> &items,
                                 const QDomElement &page)
{
    const QHash<QString, RecordText> records = recordTexts(page.ownerDocument().documentElement());
    const QHash<QString, QDomElement> elements = elementsOf(page);
    QJsonArray entries;
    QStringList itemIds;
    int next = 0;
    for (int i = 0; i < slide.items.size(); ++i) {
        QJsonArray parts;
        int shown = 0;
        for (; next < items.size() && items.at(next).top == i; ++next) {
            const bool isWhole = items.at(next).given == slide.items.at(i).toObject();
            parts.append(partOf(items.at(next), isWhole, elements, records));
            itemIds.append(items.at(next).id);
            shown += items.at(next).id.isEmpty() ? 0 : 1;
        }
        QJsonObject entry{{Keys::item, slide.items.at(i)}, {Keys::parts, parts}};
        if (shown > 1) {
            entry.insert(Keys::group, true);
        }
        entries.append(entry);
    }
    QVector<QDomElement> background;
    QStringList backgroundIds;
    for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString id = child.attribute(QStringLiteral("id"));
        const bool isItem = elements.contains(id) && itemIds.contains(itemOfPart(id));
        if (!isItem && !isFillBehind(child) && !isCover(child) && child.tagName() != QLatin1String("svg:a")) {
            background.append(child);
            backgroundIds.append(id);
        }
    }
    const QJsonObject json{{Keys::slide, slide.properties},
                           {Keys::background,
                            QJsonObject{{Keys::ids, QJsonArray::fromStringList(backgroundIds)},
                                        {Keys::mark, marksOf(background, records)}}},
                           {Keys::items, entries}};
    bool isReadable = false;
    const QByteArray text = compactJson(json, &isReadable);
    if (text.size() > 3 * maximumSlideSize || !(isReadable || isReadAs(text, json))) {
        return false;
    }
    m_target.write(pageFile(pagePrefix + QString::number(number)), text);
    return true;
}

void NativePartWriter::finish(const QJsonObject &presentation, const QSizeF &size, const IwbMedia &media,
                              const QByteArray &document)
{
    QJsonObject files;
    QJsonObject copies;
    for (const QString &path : media.paths()) {
        QStringList places = media.unchanged(path);
        if (places.isEmpty()) {
            places.append(filesFolder + path);
            m_target.copy(places.first(), media.source(path), path);
        }
        files.insert(path, places.takeLast());
        for (const QString &place : qAsConst(places)) {
            copies.insert(place, path);
        }
    }
    QJsonObject lesson{{Keys::form, form},
                       {Keys::presentation, presentation},
                       {Keys::size, QJsonArray{size.width(), size.height()}},
                       {Keys::files, files},
                       {Keys::made, QJsonArray::fromStringList(media.made())},
                       {Keys::document, QString::fromLatin1(document.toHex())}};
    if (!copies.isEmpty()) {
        lesson.insert(Keys::copies, copies);
    }
    m_target.write(lessonFile, QJsonDocument(lesson).toJson(QJsonDocument::Compact));
}

NativePart::NativePart(const IwbPackage &package)
    : m_package(package)
{
    if (!package.contains(lessonFile)) {
        return;
    }
    const QJsonObject lesson = objectIn(package, lessonFile);
    m_isThere = lesson.value(Keys::form).toInt() == form;
    if (!m_isThere) {
        return;
    }
    m_presentation = lesson.value(Keys::presentation).toObject();
    const QJsonArray size = lesson.value(Keys::size).toArray();
    m_size = QSizeF(size.at(0).toDouble(), size.at(1).toDouble());
    const QJsonArray made = lesson.value(Keys::made).toArray();
    for (const QJsonValue &path : made) {
        m_made.insert(path.toString());
    }
    QCryptographicHash document(QCryptographicHash::Sha1);
    InputFile content(package.contentFile(), package.displayName());
    document.addData(&content);
    content.check();
    m_isUntouched = lesson.value(Keys::document).toString() == QLatin1String(document.result().toHex());
    const int pages = pageCount();
    for (int number = 1; number <= pages; ++number) {
        m_pageIds.append(pagePrefix + QString::number(number));
    }
    const QJsonObject files = lesson.value(Keys::files).toObject();
    for (auto it = files.constBegin(); it != files.constEnd(); ++it) {
        const QString place = it.value().toString();
        if (problemWithPackagePath(it.key()).isEmpty() && package.contains(place)) {
            m_files.insert(it.key(), place);
        }
    }
    const QJsonObject copies = lesson.value(Keys::copies).toObject();
    for (auto it = copies.constBegin(); it != copies.constEnd(); ++it) {
        if (m_files.contains(it.value().toString())) {
            m_copies.insert(it.key(), it.value().toString());
        }
    }
}

// Pages were written up to the last that has a file, or all of a document that nobody has touched. There can't be more
// of them than pages and files together.
int NativePart::pageCount() const
{
    const int shown = m_package.outline().pageCount();
    const QString start = folder + pagePrefix;
    const QLatin1String end(".json");
    int files = 0;
    int last = m_isUntouched ? shown : 0;
    const QStringList paths = m_package.resources();
    for (const QString &path : paths) {
        if (path.startsWith(start) && path.endsWith(end)) {
            const int number = path.midRef(start.size()).chopped(end.size()).toInt();
            ++files;
            last = qMax(last, number);
        }
    }
    return qMin(last, shown + files);
}

bool NativePart::isPart(const QString &packagePath)
{
    return packagePath.startsWith(folder);
}

bool NativePart::hasPage(const QString &pageId) const
{
    return m_isThere && problemWithFileName(pageId).isEmpty() && m_package.contains(pageFile(pageId));
}

std::optional<NativePage> NativePart::page(const QString &pageId) const
{
    if (!hasPage(pageId)) {
        return {};
    }
    const QString file = pageFile(pageId);
    const QJsonObject json = objectIn(m_package, file);
    if (json.isEmpty()) {
        return {};
    }
    const QJsonObject background = json.value(Keys::background).toObject();
    NativePage page;
    page.slide = json.value(Keys::slide).toObject();
    page.backgroundMark = background.value(Keys::mark).toString();
    const QJsonArray ids = background.value(Keys::ids).toArray();
    for (const QJsonValue &id : ids) {
        page.backgroundIds.append(id.toString());
    }
    const QJsonArray items = json.value(Keys::items).toArray();
    for (const QJsonValue &value : items) {
        NativePage::Entry entry;
        entry.item = value.toObject().value(Keys::item).toObject();
        entry.isGroup = value.toObject().value(Keys::group).toBool();
        const QJsonArray parts = value.toObject().value(Keys::parts).toArray();
        for (const QJsonValue &part : parts) {
            entry.parts.append(readPart(part.toObject()));
        }
        if (!entry.item.isEmpty()) {
            page.entries.append(entry);
        }
    }
    return page;
}

} // namespace lessonhost
