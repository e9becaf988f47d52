// SPDX-License-Identifier: MIT
#include "iwb/pagerestorer.h"

#include "iwb/elementmark.h"
#include "iwb/uniqueids.h"
#include "lesson/itemkeys.h"
#include "lesson/itemview.h"
#include "svg/iwbpage.h"
#include "svg/svgnames.h"

#include <QSet>

#include <algorithm>
#include <functional>

namespace lessonhost {

namespace {

// What a page's background shows of a slide.
const QLatin1String colorKeys[] = {SlideKeys::color, SlideKeys::backColor};
const QLatin1String pictureKeys[] = {SlideKeys::document, SlideKeys::files, SlideKeys::texture};

// Groups of which the document shows one item at most are none there. Here they have numbers behind its own.
constexpr int ownGroups = 1 << 30;

QString idOf(const QDomElement &element)
{
    return element.attribute(QStringLiteral("id"));
}

bool isPlaceKey(const QString &key)
{
    return key == ItemKeys::box || key == ItemKeys::matrix || key == ItemKeys::angle || key == ItemKeys::flippedAcross
        || key == ItemKeys::flippedDown;
}

void collectLeaves(const QJsonObject &item, QVector<QJsonObject> &leaves)
{
    const QVector<QJsonObject> children = ItemView(item).childObjects();
    if (children.isEmpty()) {
        leaves.append(item);
    }
    for (const QJsonObject &child : children) {
        collectLeaves(child, leaves);
    }
}

// Whether groups have turned what they hold: then it is elsewhere by itself, and its part tells no item.
bool isTurned(const NativePage::Entry &entry)
{
    return !ItemView(entry.item).childObjects().isEmpty()
        && std::any_of(entry.parts.cbegin(), entry.parts.cend(),
                       [](const NativePage::Part &part) { return !part.id.isEmpty() && part.item.isEmpty(); });
}

// A tree of groups with others in the place of its leaves, turned or not. Nothing for one of which none is there.
// linked gives each group in it the link that it has now.
QJsonObject rebuilt(const QJsonObject &item, const QHash<int, QJsonObject> &present, int &leaf, bool staysTurned,
                    const std::function<QJsonObject(const QJsonObject &)> &linked)
{
    if (ItemView(item).childObjects().isEmpty()) {
        return present.value(leaf++);
    }
    QJsonArray children;
    bool isThere = false;
    const QJsonArray all = item.value(HostKeys::children).toArray();
    for (const QJsonValue &value : all) {
        const QJsonObject child =
            value.isObject() ? rebuilt(value.toObject(), present, leaf, staysTurned, linked) : QJsonObject();
        if (!value.isObject()) {
            children.append(value);
        } else if (!child.isEmpty()) {
            isThere = true;
            children.append(ItemView(value.toObject()).childObjects().isEmpty() ? child : linked(child));
        }
    }
    QJsonObject result = item;
    for (const QString &key : item.keys()) {
        if (!staysTurned && isPlaceKey(key)) {
            result.remove(key);
        }
    }
    result.insert(HostKeys::children, children);
    return isThere ? result : QJsonObject();
}

// Whether a plain group holds elements of items or of the background, or what belongs to them. What others have put
// into one may be a stroke.
bool holdsOneOf(const QDomElement &group, const QSet<QString> &ids)
{
    const auto isOwn = [&ids](const QDomElement &child) {
        const QString id = idOf(itemElement(child));
        const QLatin1String fill(lineFill);
        return ids.contains(id) || isCover(child) || (id.endsWith(fill) && ids.contains(id.chopped(fill.size())));
    };
    const QVector<QDomElement> children = childrenThroughGroups(group, [](const QDomElement &) { return true; });
    return std::any_of(children.cbegin(), children.cend(), isOwn);
}

} // namespace

PageRestorer::PageRestorer(const SvgNormalizer &content, IwbSlideReader &reader,
                           const QHash<QString, RecordText> &records, const SlideLinks &links, bool isUntouched)
    : m_content(content)
    , m_reader(reader)
    , m_records(records)
    , m_links(links)
    , m_isUntouched(isUntouched)
{
}

LessonSlide PageRestorer::restore(int index, const NativePage &native, const SlideLosses &losses)
{
    m_native = &native;
    m_layers = m_content.layers(index);
    lookAtPage();
    LessonSlide slide;
    slide.properties = properties();
    placeEntries();
    placeOthers(index + 1, losses);
    slide.items = grouped(index + 1, losses);
    tell(valueText(native.slide.value(SlideKeys::id)), losses);
    return slide;
}

void PageRestorer::lookAtPage()
{
    QSet<QString> known;
    for (const QString &id : m_native->backgroundIds) {
        known.insert(id);
    }
    for (const NativePage::Entry &entry : m_native->entries) {
        for (const NativePage::Part &part : entry.parts) {
            known.insert(part.id);
            for (int i = 1; i < part.marks.size(); ++i) {
                known.insert(part.id + QLatin1String(partOfItem) + QString::number(i));
            }
        }
    }
    known.remove(QString());
    const auto holdsKnown = [&known](const QDomElement &group) { return holdsOneOf(group, known); };
    for (const XmlPart &layer : qAsConst(m_layers)) {
        const QVector<QDomElement> children = childrenThroughGroups(layer.element, holdsKnown);
        for (const QDomElement &child : children) {
            if (isFillBehind(child) || isCover(child)) {
                continue;
            }
            const QString id = idOf(itemElement(child));
            const int group = m_content.outline().groupOf(id);
            m_groupSizes[group] += group < 0 ? 0 : 1;
            m_byId[id].append(m_children.size());
            m_children.append(child);
        }
    }
}

bool PageRestorer::isMarked(int child, const QString &mark)
{
    const bool isMarked = m_isUntouched || hasMark(m_children.at(child), mark, m_records);
    m_isAsMarked = m_isAsMarked && isMarked;
    return isMarked;
}

int PageRestorer::intactBackground(int number)
{
    const int child = m_byId.value(m_native->backgroundIds.at(number)).value(0, -1);
    const QString mark = m_native->backgroundMark.section(QLatin1Char(' '), number, number);
    return child >= 0 && isMarked(child, mark) ? child : -1;
}

// Where the colour or the picture is another one, the page tells it.
QJsonObject PageRestorer::properties()
{
    QVector<int> own{-1, -1}; // rectangle, picture
    bool isAsWritten = true;
    for (int i = 0; i < m_native->backgroundIds.size(); ++i) {
        const QString &id = m_native->backgroundIds.at(i);
        if (id.endsWith(QLatin1String(slideGame))) {
            m_taken.insert(m_byId.value(id).value(0, -1));
        } else {
            const int child = intactBackground(i);
            own[i == 0 ? 0 : 1] = child;
            isAsWritten = isAsWritten && child >= 0;
        }
    }
    const bool hasPicture =
        m_native->backgroundIds.size() > 1 && !m_native->backgroundIds.at(1).endsWith(QLatin1String(slideGame));
    const QHash<QString, IwbRecord> &records = m_content.outline().rules().records;
    for (int i = 0; i < m_children.size(); ++i) {
        const auto record = records.constFind(idOf(m_children.at(i)));
        isAsWritten = isAsWritten && (own.contains(i) || record == records.constEnd() || !record->isBackground);
    }
    QJsonObject properties = m_native->slide;
    if (isAsWritten) {
        for (const int child : qAsConst(own)) {
            m_taken.insert(child);
        }
        return properties;
    }
    // The whole page, since another element may be the background now. What isn't, though a record says so, is an item.
    const IwbPage page = m_content.page(m_layers);
    int color = -1;
    int picture = -1;
    m_backgrounds = page.backgrounds;
    for (const QDomElement &element : qAsConst(m_backgrounds)) {
        const int child = m_children.indexOf(element);
        (svgName(element) == QLatin1String("rect") ? color : picture) = child;
        m_taken.insert(child);
    }
    const bool isColorOther = color != own.at(0) || color < 0;
    const bool isPictureOther = picture != own.at(1) || (picture < 0 && hasPicture);
    m_hasOtherBackground = isColorOther || isPictureOther;
    const QJsonObject shown = m_reader.readBackground(page);
    const auto takeOver = [&properties, &shown](const auto &keys) {
        for (const QLatin1String key : keys) {
            properties.remove(key);
            if (shown.contains(key)) {
                properties.insert(key, shown.value(key));
            }
        }
    };
    if (isColorOther) {
        takeOver(colorKeys);
    }
    if (isPictureOther) {
        takeOver(pictureKeys);
    }
    return properties;
}

// Whether a child is what was written of a part, with what stands for the part behind it: as it was, and moving with it
// or with nothing else.
bool PageRestorer::isWhole(int child, const NativePage::Part &part)
{
    const int count = part.marks.size();
    const int first = child + 1 - count;
    const int group = m_content.outline().groupOf(part.id);
    for (int i = 0; i < count; ++i) {
        const bool isLast = i + 1 == count;
        const QString id = isLast ? part.id : part.id + QLatin1String(partOfItem) + QString::number(i + 1);
        if (first < 0 || m_taken.contains(first + i) || (!isLast && idOf(m_children.at(first + i)) != id)
            || m_content.outline().groupOf(id) != group || !isMarked(first + i, part.marks.at(i))) {
            return false;
        }
    }
    return true;
}

// Takes or gives back the elements of a part. They count as one of their group.
void PageRestorer::take(const NativePage::Part &part, const Found &found, bool isTaken)
{
    for (int child = found.child + 1 - found.elements; child <= found.child; ++child) {
        if (isTaken) {
            m_taken.insert(child);
        } else {
            m_taken.remove(child);
        }
    }
    const int group = m_content.outline().groupOf(part.id);
    if (group >= 0) {
        m_groupSizes[group] += (isTaken ? -1 : 1) * (found.elements - 1);
    }
}

// Of several elements of one identifier, that is meant which is as it was.
QVector<PageRestorer::Found> PageRestorer::findParts(const NativePage::Entry &entry)
{
    QVector<Found> found;
    for (const NativePage::Part &part : entry.parts) {
        Found row{-1, part.id.isEmpty()};
        const QVector<int> children = part.id.isEmpty() ? QVector<int>() : m_byId.value(part.id);
        for (const int child : children) {
            if (row.isIntact || m_taken.contains(child)) {
                continue;
            }
            row.isIntact = isWhole(child, part);
            row.child = row.isIntact || row.child < 0 ? child : row.child;
        }
        for (int i = 1; i < part.marks.size() && row.child < 0; ++i) {
            row.child = m_byId.value(part.id + QLatin1String(partOfItem) + QString::number(i)).value(0, -1);
        }
        if (row.isIntact && row.child >= 0) {
            row.elements = part.marks.size();
            take(part, row, true);
        }
        found.append(row);
    }
    return found;
}

// Whether the document still has the elements of an entry, and no others, in one group, as it was written.
bool PageRestorer::isOneGroup(const NativePage::Entry &entry, const QVector<Found> &found) const
{
    QSet<int> groups;
    int shown = 0;
    int last = -1;
    bool isInOrder = true;
    for (int i = 0; i < found.size(); ++i) {
        const int child = found.at(i).child;
        if (child >= 0) {
            isInOrder = isInOrder && (shown == 0 || child + 1 - found.at(i).elements == last + 1);
            last = child;
            groups.insert(m_content.outline().groupOf(entry.parts.at(i).id));
            ++shown;
        }
    }
    const int group = groups.isEmpty() ? -1 : *groups.constBegin();
    return groups.size() == 1 && group >= 0 && m_groupSizes.value(group) == shown && isInOrder;
}

// Items without an element stay behind the one that they stood behind.
void PageRestorer::placeEntries()
{
    int last = -1;
    for (int number = 0; number < m_native->entries.size(); ++number) {
        const NativePage::Entry &entry = m_native->entries.at(number);
        const QVector<Found> found = findParts(entry);
        int first = -1;
        bool isWhole = true;
        for (const Found &part : found) {
            isWhole = isWhole && part.isIntact;
            const int begin = part.child + 1 - part.elements;
            first = part.child >= 0 && (first < 0 || begin < first) ? begin : first;
        }
        m_isReordered = m_isReordered || (first >= 0 && first < last);
        last = first >= 0 ? first : last;
        if (isWhole && (!entry.isGroup || isOneGroup(entry, found))) {
            const bool isAlone = entry.parts.size() == 1 && first >= 0;
            const int group = isAlone ? m_content.outline().groupOf(entry.parts.first().id) : -1;
            m_placed.append({last, entry.item, group, {number, 0}, true, first < 0});
            ++m_restored;
        } else {
            placeParts(number, found, &last);
        }
    }
}

// What an entry holds, by itself. last: the child behind which it stands, and then the last of its own.
void PageRestorer::placeParts(int number, const QVector<Found> &found, int *last)
{
    const NativePage::Entry &entry = m_native->entries.at(number);
    int group = -1;
    int shown = 0;
    for (int i = 0; i < found.size(); ++i) {
        shown += found.at(i).child >= 0 ? 1 : 0;
        group = found.at(i).child >= 0 ? qMax(group, m_content.outline().groupOf(entry.parts.at(i).id)) : group;
    }
    const bool isContainer = !ItemView(entry.item).childObjects().isEmpty();
    // The document has no group of one.
    const bool isLonely = isContainer && shown < 2 && (group < 0 || m_groupSizes.value(group) == shown);
    if (isContainer) {
        m_opened.insert(number);
    }
    if (isLonely) {
        m_lonely.insert(number);
    }
    bool isBehind = false; // the first that is shown
    for (int i = 0; i < found.size(); ++i) {
        const NativePage::Part &part = entry.parts.at(i);
        const Found &row = found.at(i);
        *last = row.child >= 0 ? row.child : *last;
        isBehind = isBehind || row.child >= 0 || shown == 0;
        const bool isElsewhere = row.child >= 0 && isTurned(entry);
        if (row.isIntact && !isElsewhere) {
            const int own = row.child >= 0 ? m_content.outline().groupOf(part.id) : group;
            m_placed.append({*last,
                             part.item.isEmpty() ? itemAt({number, i}) : part.item,
                             isLonely ? ownGroups + number : own,
                             {number, i},
                             true,
                             row.child < 0 && isBehind});
            ++m_restored;
        } else {
            if (row.isIntact) {
                take(part, row, false);
            }
            m_lostIds.insert(part.id, m_lost.size());
            m_lost.append({part.id, {number, i}});
            m_lost.last().isIntact = row.isIntact;
        }
    }
}

// What the document alone tells, a run of neighbours at a time; what stands for an item by itself.
void PageRestorer::placeOthers(int number, const SlideLosses &losses)
{
    UniqueIds ids;
    for (const Placed &placed : qAsConst(m_placed)) {
        ids.take(placed.item.value(ItemKeys::id).toString());
    }
    const auto isLost = [this](int child) {
        return m_lostIds.contains(itemOfPart(idOf(itemElement(m_children.at(child)))));
    };
    for (int i = 0; i < m_children.size();) {
        int end = i;
        while (end < m_children.size() && !m_taken.contains(end) && (end == i || !isLost(end))
               && (end == i || !isLost(i))) {
            ++end;
        }
        if (end > i) {
            placeRun(i, end, number, losses, ids);
        }
        i = qMax(end, i + 1);
    }
}

void PageRestorer::placeRun(int begin, int end, int number, const SlideLosses &losses, UniqueIds &ids)
{
    const IwbSlideReader::Slide found = m_reader.readLoose(
        m_content.page(m_layers, m_children.mid(begin, end - begin), m_backgrounds), number, losses, ids);
    for (int i = 0; i < found.slide.items.size(); ++i) {
        Placed placed{begin, found.slide.items.at(i).toObject(), found.groups.at(i), {}, false, false};
        const QString &elementId = found.elementIds.at(i);
        const int lost = m_lostIds.value(itemOfPart(elementId), -1);
        if (lost >= 0 && itemOfPart(elementId) != elementId) {
            m_lost[lost].isThere = true;
            placed.origin = m_lost.at(lost).origin;
            m_placed.append(placed);
            continue;
        }
        if (lost < 0 || m_lost.at(lost).isNamed) {
            m_added.append(placed.item);
            m_placed.append(placed);
            continue;
        }
        // It is called what it was, and is covered and moves as it was.
        placed.item.remove(ItemKeys::cover);
        m_lost[lost].isThere = true;
        m_lost[lost].isNamed = true;
        placed.origin = m_lost.at(lost).origin;
        const QJsonObject own = itemAt(placed.origin);
        for (const QLatin1String key : {ItemKeys::id, ItemKeys::animations, ItemKeys::cover}) {
            if (!valueText(own.value(ItemKeys::id)).isEmpty() && own.contains(key)) {
                placed.item.insert(key, own.value(key));
            }
        }
        const int entry = placed.origin.entry;
        placed.group = m_lonely.contains(entry) ? ownGroups + entry : placed.group;
        m_placed.append(placed);
    }
}

// What stands on a page by itself of an entry, in its order.
const QVector<QJsonObject> &PageRestorer::leavesOf(int entry)
{
    QVector<QJsonObject> &leaves = m_leaves[entry];
    if (leaves.isEmpty()) {
        collectLeaves(m_native->entries.at(entry).item, leaves);
    }
    return leaves;
}

// The item as the lesson had it; within a group, as the group held it.
QJsonObject PageRestorer::itemAt(const Origin &origin)
{
    const NativePage::Entry &entry = m_native->entries.at(origin.entry);
    const QVector<QJsonObject> &leaves = leavesOf(origin.entry);
    return leaves.size() == entry.parts.size() ? leaves.at(origin.leaf) : entry.parts.at(origin.leaf).item;
}

// Items that the document has in a group, with what the group itself was.
QJsonArray PageRestorer::grouped(int number, const SlideLosses &losses)
{
    std::stable_sort(m_placed.begin(), m_placed.end(), [](const Placed &one, const Placed &other) {
        return one.child < other.child || (one.child == other.child && !one.isBehind && other.isBehind);
    });
    IwbSlideReader::Slide slide;
    UniqueIds ids;
    for (const Placed &placed : qAsConst(m_placed)) {
        slide.slide.items.append(placed.item);
        slide.elementIds.append(placed.item.value(ItemKeys::id).toString());
        slide.groups.append(placed.group);
        ids.take(slide.elementIds.last());
    }
    IwbSlideReader::putIntoGroups(slide, number, ids, losses);
    for (const Lost &lost : qAsConst(m_lost)) {
        m_goneOf[lost.origin.entry] += lost.isThere ? 0 : 1;
    }
    int begin = 0;
    for (int i = 0; i < slide.slide.items.size(); ++i) {
        const int group = m_placed.at(begin).group;
        int end = begin + 1;
        while (group >= 0 && end < m_placed.size() && m_placed.at(end).group == group) {
            ++end;
        }
        const QVector<Placed> members = m_placed.mid(begin, end - begin);
        begin = end;
        const auto own = std::find_if(members.cbegin(), members.cend(),
                                      [this](const Placed &member) { return m_opened.contains(member.origin.entry); });
        if (own != members.cend() && (members.size() > 1 || group >= ownGroups)) {
            QJsonObject made = slide.slide.items.at(i).toObject();
            if (members.size() == 1) {
                made = {{ItemKeys::box, made.value(ItemKeys::box)}, {ItemKeys::visible, made.value(ItemKeys::visible)}};
            }
            slide.slide.items.replace(i, groupOf(own->origin.entry, members, made));
        } else if (m_links.areMoved()) {
            QJsonArray items;
            for (const Placed &member : members) {
                items.append(linked(member, member.item));
            }
            QJsonObject item = slide.slide.items.at(i).toObject();
            item.insert(HostKeys::children, items);
            slide.slide.items.replace(i, members.size() > 1 ? item : items.first().toObject());
        }
    }
    return slide.slide.items;
}

// An item with its links to slides as they are now. What is read of the page has those of its document already.
QJsonObject PageRestorer::linked(const Placed &placed, const QJsonObject &item)
{
    return placed.isIntact ? m_links.moved(item, m_unlinked) : item;
}

// A group with what it was beside its members. made: what the document alone tells of it.
QJsonObject PageRestorer::groupOf(int entry, const QVector<Placed> &members, const QJsonObject &made)
{
    const QJsonObject &given = m_native->entries.at(entry).item;
    const bool isVisible = std::any_of(members.cbegin(), members.cend(),
                                       [](const Placed &member) { return ItemView(member.item).isVisible(); });
    const bool isShownNow = isVisible && !ItemView(given).isVisible();
    int last = -1;
    bool hasOthers = false;
    bool isInOrder = leavesOf(entry).size() == m_native->entries.at(entry).parts.size();
    for (const Placed &member : members) {
        const bool isOwn = member.origin.entry == entry;
        isInOrder = isInOrder && (!isOwn || (member.origin.leaf > last && !hasOthers));
        last = isOwn ? member.origin.leaf : last;
        hasOthers = hasOthers || !isOwn;
    }
    QHash<int, QJsonObject> present;
    QJsonArray children;
    QJsonArray others;
    for (const Placed &member : members) {
        const bool isOwn = member.origin.entry == entry;
        const bool isAsHeld = isOwn && isInOrder && member.isIntact && !isShownNow;
        const QJsonObject item = linked(member, isAsHeld ? itemAt(member.origin) : member.item);
        children.append(item);
        if (isOwn) {
            present.insert(member.origin.leaf, item);
        } else {
            others.append(item);
        }
    }
    const auto linkedAlone = [this](const QJsonObject &item) { return m_links.movedAlone(item, m_unlinked); };
    if (isInOrder) {
        int leaf = 0;
        children = rebuilt(given, present, leaf, !isTurned(m_native->entries.at(entry)), linkedAlone)
                       .value(HostKeys::children)
                       .toArray();
        for (const QJsonValue &other : qAsConst(others)) {
            children.append(other);
        }
    }
    QJsonObject group = made;
    group.insert(HostKeys::children, children);
    const bool staysPut = others.isEmpty() && !isTurned(m_native->entries.at(entry)) && holdsPlaces(entry, members);
    for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
        const bool isOther = (isPlaceKey(it.key()) && !staysPut) || it.key() == HostKeys::children
            || (it.key() == ItemKeys::visible && isShownNow);
        if (!isOther) {
            group.insert(it.key(), it.value());
        }
    }
    for (const QLatin1String key : {ItemKeys::visible, ItemKeys::box}) {
        if (!given.contains(key) && (key == ItemKeys::visible ? !isShownNow : staysPut)) {
            group.remove(key);
        }
    }
    // A group is told only where others are in it, or some of it is elsewhere.
    if (others.isEmpty() && present.size() + m_goneOf.value(entry) == m_native->entries.at(entry).parts.size()) {
        m_opened.remove(entry);
    }
    return linkedAlone(group);
}

// Whether all that a group held covers what it covered.
bool PageRestorer::holdsPlaces(int entry, const QVector<Placed> &members)
{
    constexpr double tolerance = 0.5;
    const auto isInPlace = [this](const Placed &member) {
        const auto was = ItemView(itemAt(member.origin)).place();
        const auto is = ItemView(member.item).place();
        const QRectF one = was ? was->extent() : QRectF();
        const QRectF other = is ? is->extent() : QRectF();
        return member.isIntact
            || (was && is && qAbs(one.left() - other.left()) < tolerance && qAbs(one.top() - other.top()) < tolerance
                && qAbs(one.right() - other.right()) < tolerance && qAbs(one.bottom() - other.bottom()) < tolerance);
    };
    return members.size() == m_native->entries.at(entry).parts.size()
        && std::all_of(members.cbegin(), members.cend(), isInPlace);
}

void PageRestorer::tell(const QString &slideId, const SlideLosses &losses)
{
    const LossOwner slide(QStringLiteral("slide"), slideId);
    if (m_hasOtherBackground) {
        losses.changed(slide, say("its background was changed by another program"));
    }
    if (m_isReordered) {
        losses.changed(slide, say("its items were put into another order by another program"));
    }
    for (const Lost &lost : qAsConst(m_lost)) {
        if (lost.isIntact) {
            continue; // it stands where its group had it
        }
        losses.changed(itemAt(lost.origin),
                       lost.isThere ? say("changed by another program") : say("removed by another program"));
    }
    for (int entry = 0; entry < m_native->entries.size(); ++entry) {
        if (m_opened.contains(entry) && m_goneOf.value(entry) < m_native->entries.at(entry).parts.size()) {
            losses.changed(m_native->entries.at(entry).item, say("its items were put elsewhere by another program"));
        }
    }
    for (const LossOwner &owner : qAsConst(m_added)) {
        losses.changed(owner, say("added by another program"));
    }
    if (m_hasOtherBackground || m_isReordered || !m_lost.isEmpty() || !m_opened.isEmpty() || !m_added.isEmpty()) {
        losses.note(slide, sayNumber("%n items are as they were", m_restored));
    }
    for (const QJsonObject &item : qAsConst(m_unlinked)) {
        losses.value(
            item, ItemKeys::linkValue,
            say("link to \"%1\": %2")
                .arg(valueText(item.value(ItemKeys::linkValue)), say("the slide was removed by another program")));
    }
}

} // namespace lessonhost
