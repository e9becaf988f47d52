// SPDX-License-Identifier: MIT
#include "iwb/iwbpagecheck.h"

#include "iwb/boarddress.h"
#include "iwb/drawnplace.h"
#include "iwb/uniqueids.h"
#include "izqtransformation.h"
#include "lesson/itemview.h"
#include "lesson/pageplace.h"
#include "lesson/textruns.h"
#include "losses/comparison.h"
#include "losses/modelvalues.h"
#include "svg/pluginoutlines.h"
#include "svg/svgnormalizer.h"

#include <QSet>

namespace lessonhost {

namespace {

const QLatin1String pageIdPrefix("page");
const QLatin1String groupType("ZQGroupItem");

// What is written has six digits.
constexpr double writtenDigits = 1e-4;

// Where an item is drawn follows from all of these.
const QLatin1String placeKeys[] = {ItemKeys::box,     ItemKeys::matrix,   ItemKeys::angle,
                                   ItemKeys::control, ItemKeys::polyline, ItemKeys::steps};

// Where a polyline has what ink says.
struct InkKey
{
    const char *ink;
    const char *polyline;
};
constexpr InkKey inkKeys[] = {{"Color", "ArtObj_Color"}, {"Width", "ArtObj_Width"}};

// Where a polyline has what the shape says that it comes of.
struct ShapeKey
{
    const char *shape;
    const char *polyline;
};
constexpr ShapeKey shapeColors[] = {
    {"LineColor", "ArtObj_Color"}, {"ArtObj_Color1", "ArtObj_Color"}, {"ArtObj_Color", "ArtObj_FillColor"}};
const QLatin1String fillKey("ArtObj_Fill");
const QLatin1String fillOfShapeKey("ArtObj_Color");
const QLatin1String fillColorKey("ArtObj_FillColor");
const QLatin1String cornersKey("ArtObj_Ln");
const QLatin1String measureKey("ArtObj_DisplayCircle");

// What matrices were made with; it has done its part.
constexpr const char *fittingKeys[] = {"SlideMatrix", "SlideSourceRect"};

constexpr const char *fileKeys[] = {"resource", "MultiMediaFile", "document", "AttachFile", "InteractiveValue"};

bool isFileKey(const QString &key)
{
    return std::any_of(std::begin(fileKeys), std::end(fileKeys),
                       [&key](const char *name) { return key == QLatin1String(name); });
}

void removeFitting(QJsonObject &given)
{
    for (const char *key : fittingKeys) {
        given.remove(QLatin1String(key));
    }
}

bool isPlain(const QJsonValue &value)
{
    return !value.isArray() && !value.isObject();
}

bool isFlag(const QJsonValue &value)
{
    const QString text = valueText(value);
    return isNothing(value) || (isPlain(value) && (text == QLatin1String("0") || text == QLatin1String("1")));
}

// Of a colour that paints nothing, svg has none.
bool isInvisible(const QJsonValue &color)
{
    const auto whole = wholeColor(color);
    return whole && qAlpha(*whole) == 0;
}

// Whether a polyline in the place of a shape shows what a key of the shape says.
bool polylineShows(const QString &key, const QJsonValue &value, const QJsonObject &shape, const QJsonObject &polyline)
{
    const QJsonValue fill = polyline.value(fillColorKey);
    const bool isFilled = !isNothing(fill) && !isInvisible(fill);
    const QString text = valueText(value);
    if (key == fillKey) {
        return isFlag(value) && (text == QLatin1String("1")) == isFilled;
    }
    if (key == measureKey) {
        return isNothing(value) || text == QLatin1String("0");
    }
    if (key == cornersKey) {
        const auto points = wholeNumbers(polyline.value(ItemKeys::polyline));
        return points && text == QString::number(points->size() / 2 - 1); // the first comes once more
    }
    const bool isUnfilled = valueText(shape.value(fillKey)) == QLatin1String("0") && !isFilled;
    return std::any_of(std::begin(shapeColors), std::end(shapeColors), [&](const ShapeKey &row) {
        const QLatin1String place(row.polyline);
        return key == QLatin1String(row.shape)
            && (isSameValue(key, value, polyline.value(place), writtenDigits) || (isUnfilled && place == fillColorKey));
    });
}

bool haveSameRuns(const TextRuns &one, const TextRuns &other)
{
    const auto isSameRun = [](const IwbTextInfo &a, const IwbTextInfo &b) {
        return a.text == b.text && a.fill == b.fill && a.fontWeight == b.fontWeight && a.fontStyle == b.fontStyle
            && a.fontFamily == b.fontFamily && a.textDecoration == b.textDecoration && a.textAlign == b.textAlign
            && isSameValue(QStringLiteral("width"), a.fontSize, b.fontSize, writtenDigits);
    };
    return one.shifts == other.shifts && one.backgrounds == other.backgrounds
        && std::equal(one.runs.cbegin(), one.runs.cend(), other.runs.cbegin(), other.runs.cend(), isSameRun);
}

QString plainTextOf(const TextRuns &text)
{
    QString plain;
    for (const IwbTextInfo &run : text.runs) {
        plain += run.text;
    }
    return plain;
}

// Takes out of given what the found text says as well, and tells what letters can't have.
void compareText(QJsonObject &given, const QJsonObject &found, const SlideLosses &losses)
{
    const TextRuns back = textRunsFromHtml(found.value(ItemKeys::html).toString());
    for (const QLatin1String key : {ItemKeys::text, ItemKeys::textContent}) {
        const QString text = isPlain(given.value(key)) ? valueText(given.value(key)) : QString();
        if (!text.isEmpty() && withoutControlCharacters(text) == text
            && plainTextOf(textRunsFromPlainText(text)) == plainTextOf(back)) {
            given.remove(key);
        }
    }
    const QJsonValue html = given.value(ItemKeys::html);
    if (!isPlain(html)) {
        return;
    }
    const TextRuns text = textRunsFromHtml(valueText(html));
    for (const Sentence &loss : text.losses) {
        losses.value(given, ItemKeys::html, loss);
    }
    if (!text.losses.isEmpty() || haveSameRuns(text, back)) {
        given.remove(ItemKeys::html);
    }
}

// Of items that were told as pictures and outlines nothing is compared but their places among others; groups are as
// large as what they hold.
QSet<QString> toldItems(const LessonSlide &slide, const QVector<IwbPageWriter::WrittenItem> &items)
{
    QSet<QString> told;
    for (const IwbPageWriter::WrittenItem &written : items) {
        const bool isInGroup = ItemView(slide.items.at(written.top).toObject()).type() == groupType;
        if ((written.isPicture || written.isOutlined) && !isInGroup) {
            told.insert(written.id);
        }
    }
    return told;
}

} // namespace

IwbPageCheck::IwbPageCheck(IZQTransformation *plugin)
    : m_plugin(plugin)
    , m_reader(plugin, this)
    , m_outlines(pluginOutlines(plugin))
{
}

void IwbPageCheck::add(const IwbMedia::Additions &media)
{
    for (const auto &[path, source] : media.files) {
        m_files.insert(path, source);
    }
    for (const auto &[reference, file] : media.placed) {
        m_placed.insert(reference, file);
    }
}

QString IwbPageCheck::resolve(const QString &reference, Sentence *problem)
{
    if (!file(reference).isEmpty()) {
        return reference;
    }
    *problem = say("the package has no such file");
    return {};
}

// Pages that are still to be written count as well.
int IwbPageCheck::pageNumber(const QString &id)
{
    const int number = id.startsWith(pageIdPrefix) ? id.mid(pageIdPrefix.size()).toInt() : 0;
    return number > 0 && id == pageIdPrefix + QString::number(number) ? number : 0;
}

void IwbPageCheck::compare(const QDomDocument &document, const LessonSlide &slide,
                           const QVector<IwbPageWriter::WrittenItem> &items, int number, const SlideLosses &losses)
{
    const SvgNormalizer content(document.documentElement());
    UniqueIds ids;
    IwbSlideReader::Slide found = m_reader.readLoose(content.page(content.layers(0), toldItems(slide, items)), number,
                                                     {}, ids, IwbSlideReader::Ink::Lines);
    found.slide.properties.insert(ItemKeys::id,
                                  m_names.next(content.outline().backgroundName(0), content.outline().pageId(0)));
    compareSlide(slide.properties, found.slide.properties, losses);
    compareGroups(slide, found, items, number, losses);
    int next = 0;
    for (const IwbPageWriter::WrittenItem &written : items) {
        const int at = written.id.isEmpty() ? -1 : found.elementIds.indexOf(written.id, next);
        if (written.isPicture || written.isOutlined) {
            continue; // which was told
        }
        if (at >= 0) {
            compareItem(written, found.slide.items.at(at).toObject(), found.lines.value(at), losses);
            next = at + 1;
        } else if (!written.id.isEmpty()) {
            losses.item(written.given);
        }
    }
}

// What groups say beyond their items, and which of them these are.
void IwbPageCheck::compareGroups(const LessonSlide &slide, IwbSlideReader::Slide found,
                                 const QVector<IwbPageWriter::WrittenItem> &items, int number,
                                 const SlideLosses &losses) const
{
    QHash<int, int> groups; // of the document, by the places of the slide's items
    QHash<int, int> shown; // elements of each
    QHash<int, int> elements; // of each, with those that are parts of an item
    QHash<int, QJsonArray> held; // what each held, group or not
    for (const IwbPageWriter::WrittenItem &written : items) {
        const int at = written.id.isEmpty() ? -1 : found.elementIds.indexOf(written.id);
        shown[written.top] += written.id.isEmpty() ? 0 : 1;
        elements[written.top] += written.id.isEmpty() ? 0 : written.elements;
        held[written.top].append(written.given);
        if (at >= 0 && found.groups.at(at) >= 0) {
            groups.insert(written.top, found.groups.at(at));
        }
    }
    UniqueIds ids;
    IwbSlideReader::putIntoGroups(found, number, ids, {});
    for (int i = 0; i < slide.items.size(); ++i) {
        const QJsonObject given = slide.items.at(i).toObject();
        if (ItemView(given).type() != groupType || shown.value(i) < 2) {
            continue; // which was told
        }
        const int at = groups.contains(i) ? found.groups.indexOf(groups.value(i)) : -1;
        if (at < 0) {
            losses.takenApart(given);
            continue;
        }
        QJsonObject back = found.slide.items.at(at).toObject();
        QJsonObject own = given;
        const QJsonArray children = own.take(HostKeys::children).toArray();
        if (isFlag(given.value(ItemKeys::visible))) {
            // Its items say so.
            own.remove(ItemKeys::visible);
            back.remove(ItemKeys::visible);
        }
        // On other boards the parts of an item move with it, and so does it with the group.
        const int wanted =
            losses.isElsewhere() && shown.value(i) == children.size() ? elements.value(i) : children.size();
        if (back.value(HostKeys::children).toArray().size() != wanted || held.value(i) != children) {
            losses.value(given, HostKeys::children, say("some have no form, or are groups"));
        }
        removeFitting(own);
        Comparison::Rules rules;
        rules.tolerance = writtenDigits;
        Comparison(losses, rules).compareProperties(given, own, back);
    }
}

void IwbPageCheck::compareSlide(const QJsonObject &given, const QJsonObject &found, const SlideLosses &losses) const
{
    QJsonObject own = given;
    removeFitting(own);
    const LossOwner owner(QStringLiteral("slide"), valueText(given.value(ItemKeys::id)));
    Comparison::Rules rules;
    rules.tolerance = writtenDigits;
    rules.isSame = [&](const QString &key, const QJsonValue &value, const QJsonValue &back) {
        return isFileKey(key) && isSameFile(owner, value, back, losses);
    };
    Comparison(losses, rules).compareProperties(owner, own, found);
}

void IwbPageCheck::compareItem(const IwbPageWriter::WrittenItem &written, const QJsonObject &found,
                               const QPolygonF &foundLine, const SlideLosses &losses)
{
    const QJsonObject &given = written.given;
    QJsonObject own = given;
    for (const QLatin1String key : {ItemKeys::visible, ItemKeys::locked}) {
        // A group says it for its items, but can't make a flag of what is none.
        if (written.item.contains(key) && isFlag(given.value(key))) {
            own.insert(key, written.item.value(key));
        }
    }
    QJsonObject back = found;
    removeFitting(own);
    const bool isUnderMatrix = !isNothing(given.value(ItemKeys::matrix));
    if (isDrawnAlike(given, found, m_outlines, written.placed, written.line, pointsOfSteps(foundLine))) {
        const auto control = wholeNumbers(given.value(ItemKeys::control));
        const bool hasPoints = control && control->size() % 2 == 0;
        for (const QLatin1String key : placeKeys) {
            const bool isOwn = (key == ItemKeys::angle && isUnderMatrix && !isTurnOfMatrix(given))
                || (key == ItemKeys::control && !hasPoints);
            if (!isOwn) {
                own.remove(key);
                back.remove(key);
            }
        }
    } else if (!foundLine.isEmpty()) {
        back.insert(ItemKeys::steps, stepsText(foundLine));
    }
    if (given.contains(ItemKeys::steps) && found.contains(ItemKeys::polyline)) {
        for (const InkKey &row : inkKeys) {
            back.insert(QLatin1String(row.ink), back.value(QLatin1String(row.polyline)));
        }
    }
    if (found.contains(ItemKeys::html)) {
        compareText(own, found, losses);
    }
    Comparison::Rules rules;
    rules.tolerance = writtenDigits;
    rules.isSame = [&](const QString &key, const QJsonValue &value, const QJsonValue &back) {
        return isFileKey(key) ? isSameFile(given, value, back, losses) : isInvisible(value) && isInvisible(back);
    };
    const bool isPolylineNow =
        found.contains(ItemKeys::polyline) && !given.contains(ItemKeys::polyline) && !given.contains(ItemKeys::steps);
    const bool isEmpty =
        valueText(given.value(fillKey)) == QLatin1String("0") && isNothing(found.value(fillOfShapeKey));
    rules.isUnseen = [&](const QString &key, const QJsonValue &value) {
        return isPolylineNow ? polylineShows(key, value, given, found) : isEmpty && key == fillOfShapeKey;
    };
    Comparison(losses, rules).compareProperties(given, own, back);
    if (found.value(ItemKeys::linkType) == QLatin1String("ACTION_GOTOSLIDE")) {
        const int page = valueText(found.value(ItemKeys::linkValue)).toInt();
        // The link may be that of a group around the item, which may have a part of one itself.
        for (const QLatin1String key : {ItemKeys::linkType, ItemKeys::linkValue}) {
            if (!isNothing(given.value(key)) && isSameValue(key, given.value(key), found.value(key))) {
                m_pageLinks.append({given, losses, key, valueText(given.value(key)), page});
            }
        }
    }
}

// Names of files change on the way, and a picture of another kind becomes a png. A file that isn't there was told.
bool IwbPageCheck::isSameFile(const LossOwner &owner, const QJsonValue &given, const QJsonValue &found,
                              const SlideLosses &losses) const
{
    const QString reference = valueText(given);
    if (isNothing(found)) {
        return given.isString() && losses.hasFile(owner, reference);
    }
    const IwbMedia::File file = m_placed.value(found.toString());
    return !file.isConverted && !file.source.isEmpty() && file.source == m_files.value(reference);
}

void IwbPageCheck::finish(int pageCount, LossReport *report) const
{
    for (const PageLink &link : m_pageLinks) {
        if (link.page > pageCount) {
            link.losses.in(report).value(link.owner, link.key, Sentence(link.value));
        }
    }
}

void IwbPageCheck::comparePresentation(const QDomDocument &document, const QJsonObject &presentation,
                                       const SlideLosses &losses) const
{
    QDomDocument size;
    const SvgNormalizer content(document.documentElement());
    QJsonObject found = m_plugin->tranPresIWB2JSON(content.outline().sizeElement(size), {});
    const QJsonObject meta = presentationInMeta(content.outline().meta());
    for (auto it = meta.constBegin(); it != meta.constEnd(); ++it) {
        found.insert(it.key(), it.value());
    }
    const QString range = found.value(PresentationKeys::width).toString() + QLatin1Char(',')
        + found.value(PresentationKeys::height).toString();
    Comparison::Rules rules;
    rules.tolerance = writtenDigits;
    rules.isSame = [&range](const QString &key, const QJsonValue &value, const QJsonValue &) {
        return key == QLatin1String("Range") && valueText(value) == range;
    };
    Comparison(losses, rules).compareProperties(QStringLiteral("presentation"), presentation, found);
}

} // namespace lessonhost
