// SPDX-License-Identifier: MIT
#include "iwb/pagerestorer.h"

#include "iwb/elementmark.h"
#include "iwb/uniqueids.h"
#include "lesson/itemkeys.h"

#include <QSet>

#include <algorithm>

namespace lessonhost {

namespace {

// What a page's background shows of a slide.
const QLatin1String backgroundKeys[] = {SlideKeys::color, SlideKeys::backColor, SlideKeys::document, SlideKeys::files,
                                        SlideKeys::texture};

} // namespace

PageRestorer::PageRestorer(const SvgNormalizer &content, IwbSlideReader &reader, const QHash<QString, QString> &records,
                           bool isUntouched)
    : m_content(content)
    , m_reader(reader)
    , m_records(records)
    , m_isUntouched(isUntouched)
{
}

LessonSlide PageRestorer::restore(int index, const NativePage &native, const SlideLosses &losses)
{
    m_layers = m_content.layers(index);
    lookAtPage();
    LessonSlide slide;
    slide.properties = properties(native, index + 1, losses);
    placeEntries(native);
    placeOthers(index + 1, losses);
    slide.items = grouped(index + 1, losses);
    tell(losses);
    return slide;
}

void PageRestorer::lookAtPage()
{
    for (const XmlPart &layer : qAsConst(m_layers)) {
        for (QDomElement child = layer.element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            if (isFillBehind(child)) {
                continue;
            }
            const QString id = itemElement(child).attribute(QStringLiteral("id"));
            const int group = m_content.outline().groupOf(id);
            m_groupSizes[group] += group < 0 ? 0 : 1;
            // Of two, neither is surely the one.
            m_byId.insert(id, m_byId.contains(id) ? -1 : m_children.size());
            m_children.append(child);
        }
    }
}

// Whether the document still has the elements of an entry, and no others, in one group, as it was written.
bool PageRestorer::isOneGroup(const NativePage::Entry &entry) const
{
    QSet<int> groups;
    int shown = 0;
    for (const NativePage::Part &part : entry.parts) {
        if (!part.id.isEmpty()) {
            groups.insert(m_content.outline().groupOf(part.id));
            ++shown;
        }
    }
    const int group = groups.isEmpty() ? -1 : *groups.constBegin();
    return groups.size() == 1 && group >= 0 && m_groupSizes.value(group) == shown;
}

bool PageRestorer::isIntact(const NativePage::Part &part)
{
    if (part.id.isEmpty()) {
        return true;
    }
    const int child = m_byId.value(part.id, -1);
    return child >= 0 && !m_taken.contains(child) && (m_isUntouched || markOf(child) == part.mark);
}

const QString &PageRestorer::markOf(int child)
{
    QString &mark = m_marks[child];
    if (mark.isEmpty()) {
        mark = elementMark(m_children.at(child), m_records);
    }
    return mark;
}

QJsonObject PageRestorer::properties(const NativePage &native, int number, const SlideLosses &losses)
{
    QVector<QDomElement> background;
    for (const QString &id : native.backgroundIds) {
        const int child = m_byId.value(id, -1);
        if (child >= 0) {
            background.append(m_children.at(child));
        }
    }
    const bool isSame = (m_isUntouched && background.size() == native.backgroundIds.size())
        || backgroundMark(background, m_records) == native.backgroundMark;
    if (isSame) {
        for (const QString &id : native.backgroundIds) {
            m_taken.insert(m_byId.value(id));
        }
        return native.slide;
    }
    ++m_changed;
    QJsonObject properties = native.slide;
    for (const QLatin1String key : backgroundKeys) {
        properties.remove(key);
    }
    // The whole page, since another element may be the background now.
    const QJsonObject shown = m_reader.read(m_content.page(m_layers), number, {}).slide.properties;
    for (auto it = shown.constBegin(); it != shown.constEnd(); ++it) {
        properties.insert(it.key(), it.value());
    }
    Q_UNUSED(losses)
    return properties;
}

// Items without an element stay behind the one that they stood behind.
void PageRestorer::placeEntries(const NativePage &native)
{
    int last = -1;
    for (const NativePage::Entry &entry : native.entries) {
        int first = -1;
        const bool isOther = entry.isGroup && !isOneGroup(entry);
        bool isWhole = true;
        int group = -1;
        for (const NativePage::Part &part : entry.parts) {
            const bool isPartIntact = isIntact(part);
            isWhole = isWhole && isPartIntact;
            const int child = part.id.isEmpty() ? -1 : m_byId.value(part.id, -1);
            group = entry.isGroup && child >= 0 ? qMax(group, m_content.outline().groupOf(part.id)) : group;
            if (isPartIntact && child >= 0 && (first < 0 || child < first)) {
                first = child;
            }
        }
        last = first >= 0 ? first : last;
        if (isWhole && !isOther) {
            const bool isAlone = entry.parts.size() == 1 && first >= 0;
            m_placed.append({last, entry.item, isAlone ? m_content.outline().groupOf(entry.parts.first().id) : -1});
            ++m_restored;
        } else if (group >= 0) {
            m_groups.insert(group, entry.item);
            m_changed += isWhole ? 1 : 0; // others are in it
        } else if (entry.parts.size() > 1) {
            ++m_changed; // the group is none any more
        }
        isWhole = isWhole && !isOther;
        for (const NativePage::Part &part : entry.parts) {
            const int child = part.id.isEmpty() ? -1 : m_byId.value(part.id, -1);
            const bool isPartIntact = isIntact(part);
            if (isPartIntact && child >= 0) {
                m_taken.insert(child);
            }
            if (isWhole) {
                continue;
            }
            if (isPartIntact && !part.item.isEmpty()) {
                m_placed.append(
                    {child >= 0 ? child : last, part.item, child >= 0 ? m_content.outline().groupOf(part.id) : group});
                ++m_restored;
            } else if (!isPartIntact) {
                ++(child >= 0 ? m_changed : m_gone);
            }
        }
    }
}

// What the document alone tells, a run of neighbours at a time.
void PageRestorer::placeOthers(int number, const SlideLosses &losses)
{
    UniqueIds ids;
    for (const Placed &placed : qAsConst(m_placed)) {
        ids.take(placed.item.value(ItemKeys::id).toString());
    }
    for (int i = 0; i < m_children.size();) {
        int end = i;
        while (end < m_children.size() && !m_taken.contains(end)) {
            ++end;
        }
        if (end > i) {
            const IwbSlideReader::Slide found =
                m_reader.readLoose(m_content.page(m_layers, m_children.mid(i, end - i)), number, losses, ids);
            for (int k = 0; k < found.slide.items.size(); ++k) {
                m_placed.append({i, found.slide.items.at(k).toObject(), found.groups.at(k)});
                ++m_others;
            }
        }
        i = end + 1;
    }
}

// Items that the document has in a group, with what the group itself was.
QJsonArray PageRestorer::grouped(int number, const SlideLosses &losses)
{
    std::stable_sort(m_placed.begin(), m_placed.end(),
                     [](const Placed &one, const Placed &other) { return one.child < other.child; });
    IwbSlideReader::Slide slide;
    UniqueIds ids;
    for (const Placed &placed : qAsConst(m_placed)) {
        slide.slide.items.append(placed.item);
        slide.elementIds.append(placed.item.value(ItemKeys::id).toString());
        slide.groups.append(placed.group);
        ids.take(slide.elementIds.last());
    }
    IwbSlideReader::putIntoGroups(slide, number, ids, losses);
    for (int i = 0; i < slide.groups.size(); ++i) {
        QJsonObject group = slide.slide.items.at(i).toObject();
        const QJsonObject given = m_groups.value(slide.groups.at(i));
        for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
            const bool isPlace =
                it.key() == ItemKeys::box || it.key() == ItemKeys::matrix || it.key() == ItemKeys::angle;
            if (!isPlace && it.key() != HostKeys::children && it.key() != ItemKeys::visible) {
                group.insert(it.key(), it.value());
            }
        }
        slide.slide.items.replace(i, group);
    }
    return slide.slide.items;
}

void PageRestorer::tell(const SlideLosses &losses) const
{
    if (m_changed + m_gone + m_others == 0) {
        return;
    }
    losses.note(QStringLiteral("page"),
                say("%1, %2 and %3 by another program; %4")
                    .arg(sayNumber("%n things changed", m_changed), sayNumber("%n items removed", m_gone),
                         sayNumber("%n added", qMax(0, m_others - m_changed)),
                         sayNumber("%n items are as they were", m_restored)));
}

} // namespace lessonhost
