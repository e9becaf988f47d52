// SPDX-License-Identifier: MIT
#include "render/slidedifference.h"

#include "lesson/countednames.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/keynames.h"
#include "lesson/plainnames.h"
#include "losses/comparison.h"
#include "losses/lossreport.h"
#include "losses/plainlosses.h"
#include "render/slidenotice.h"

#include <QHash>
#include <QMap>

namespace lessonhost {

namespace {

/*!
 * All items of a slide, those of groups behind their group, which stands without them.
 */
class FlatItems
{
public:
    explicit FlatItems(const QJsonArray &items) { collect(items); }

    const QVector<QJsonObject> &all() const { return m_all; }
    //! The identifier of an item and those of all that are in it.
    QStringList within(const QString &id) const { return m_within.value(id, {id}); }

private:
    QStringList collect(const QJsonArray &items)
    {
        QStringList ids;
        for (const QJsonValue &value : items) {
            QJsonObject item = value.toObject();
            const QJsonArray children = item.take(HostKeys::children).toArray();
            const QString id = ItemView(item).id();
            m_all.append(item);
            ids.append(id);
            if (!children.isEmpty()) {
                const QStringList inner = collect(children);
                m_within.insert(id, QStringList(id) + inner);
                ids += inner;
            }
        }
        return ids;
    }

    QVector<QJsonObject> m_all;
    QHash<QString, QStringList> m_within; // of groups
};

// Without what says nothing about the item: an angle of zero, and a mark that the plug-in sets by the type.
QJsonObject withoutDefaults(QJsonObject item)
{
    if (ItemView(item).angle() == 0) {
        item.remove(ItemKeys::angle);
    }
    item.remove(ItemKeys::ignoresEraser);
    return item;
}

class SlideDifference
{
public:
    explicit SlideDifference(const SlideLosses &losses)
        : m_losses(losses)
        , m_comparison(losses)
    {
    }

    void compare(const LessonSlide &given, const QVector<QJsonObject> &givenItems, const LessonSlide &found)
    {
        m_comparison.compareProperties({QStringLiteral("slide"), given.properties.value(SlideKeys::id).toString()},
                                       given.properties, found.properties);
        const FlatItems flat(found.items);
        const QVector<QJsonObject> &foundItems = flat.all();
        QHash<QString, QJsonObject> byId;
        for (const QJsonObject &item : foundItems) {
            byId.insert(ItemView(item).id(), item);
        }
        for (int i = 0; i < givenItems.size(); ++i) {
            const QJsonObject &item = givenItems.at(i);
            const QString id = ItemView(item).id();
            const QJsonObject other = id.isEmpty() ? foundItems.value(i) : byId.value(id);
            if (!other.isEmpty()) {
                const QJsonArray itself{withoutDefaults(item)};
                m_comparison.compareItems(itself, itself, {other});
            } else if (!isContainer(ItemView(item).type())) {
                m_losses.item(item);
            }
        }
    }

private:
    SlideLosses m_losses;
    Comparison m_comparison;
};

// "2 circles, 1 arrow", in the order of the slide.
Sentence countedNames(const QStringList &types)
{
    Sentences parts;
    QStringList seen;
    for (const QString &type : types) {
        if (!seen.contains(type)) {
            seen.append(type);
            parts.append(countedName(type, types.count(type)));
        }
    }
    return listed(parts);
}

/*!
 * A line of a list: the values of an item or the slide, by their plain names.
 */
class ValueLine
{
public:
    explicit ValueLine(const Loss &loss)
        : m_type(loss.itemType)
        , m_id(loss.itemId)
    {
    }

    bool isOf(const Loss &loss) const { return loss.itemType == m_type && loss.itemId == m_id; }

    void add(const Loss &loss)
    {
        const QString name = plainPlaceName(loss.key).local();
        if (!m_names.contains(name)) {
            m_names.append(name);
        }
        // What the value was is there for who points at its name.
        m_details[name] += loss.key.left(200) + QLatin1String(": ") + loss.detail.local() + QLatin1Char('\n');
    }

    QString html() const
    {
        QStringList parts;
        for (const QString &name : m_names) {
            parts.append(QStringLiteral("<span title=\"%2\">%1</span>")
                             .arg(name.toHtmlEscaped(), m_details.value(name).trimmed().toHtmlEscaped()));
        }
        const Sentence owner = m_type == QLatin1String("slide") ? say("Slide") : saidName(m_type);
        return QStringLiteral("<li><b>%1</b> <small>%2</small>: %3</li>\n")
            .arg(owner.local().toHtmlEscaped(), m_id.left(60).toHtmlEscaped(), parts.join(QLatin1String(", ")));
    }

private:
    QString m_type;
    QString m_id;
    QStringList m_names;
    QHash<QString, QString> m_details; // by name
};

// The values of items and the slide, an item a line.
QString rowsOf(const QVector<Loss> &losses)
{
    QVector<ValueLine> lines;
    for (const Loss &loss : losses) {
        if (lines.isEmpty() || !lines.last().isOf(loss)) {
            lines.append(ValueLine(loss));
        }
        lines.last().add(loss);
    }
    QString rows;
    for (const ValueLine &line : qAsConst(lines)) {
        rows += line.html();
    }
    return rows;
}

// What is lost, by what people notice of it.
struct NoticedLosses
{
    QStringList items; // the types of those that aren't there
    QVector<Loss> values;
};

void addHtml(const NoticedLosses &losses, Notice notice, QString &html)
{
    const QString mark = notice == Notice::Nothing ? QString() : QStringLiteral(" class=\"losses\"");
    if (!losses.items.isEmpty()) {
        const Sentence names = countedNames(losses.items);
        const Sentence text = notice == Notice::Nothing ? say("Missing, and not shown in the first one: %1").arg(names)
                                                        : say("%1: %2").arg(groupTitle(Loss::Missing), names);
        html += QStringLiteral("<p%1>%2</p>\n").arg(mark, text.local().toHtmlEscaped());
    }
    if (!losses.values.isEmpty()) {
        const Sentence title = notice == Notice::Look ? groupTitle(Loss::Different)
            : notice == Notice::Deed                  ? say("Shown in the result the same, but it works otherwise")
                                                      : groupTitle(Loss::Internal);
        html += QStringLiteral("<details%1><summary>%2</summary>\n<ul>%3</ul></details>\n")
                    .arg(mark, say("%1: %2").arg(title, losses.values.size()).local().toHtmlEscaped(),
                         rowsOf(losses.values));
    }
}

} // namespace

QByteArray slideDifference(const LessonSlide &given, const SlideNotice &givenNotice, const LessonSlide &found,
                           const SlideNotice &foundNotice, int slide, LossReport &losses)
{
    const int before = losses.entries().size();
    const FlatItems items(given.items);
    SlideDifference(SlideLosses(&losses, slide)).compare(given, items.all(), found);
    QMap<Notice, NoticedLosses> noticed;
    for (const Loss &loss : losses.entries().mid(before)) {
        const bool isSlide = loss.itemType == QLatin1String("slide");
        const Notice notice =
            isSlide ? givenNotice.ofSlide(foundNotice) : givenNotice.ofItems(items.within(loss.itemId), foundNotice);
        if (loss.kind == Loss::Item) {
            noticed[notice].items.append(loss.itemType);
        } else {
            noticed[notice].values.append(loss);
        }
    }
    if (noticed.isEmpty()) {
        return "<p class=\"none\">" + say("Nothing is lost.").local().toUtf8() + "</p>\n";
    }
    QString html;
    if (found.items.isEmpty() && !given.items.isEmpty()) {
        html += QStringLiteral("<p class=\"losses\">%1</p>\n")
                    .arg(say("Slide %1 is empty in the result.").arg(slide).local().toHtmlEscaped());
    }
    for (const Notice notice : {Notice::Look, Notice::Deed, Notice::Nothing}) {
        addHtml(noticed.value(notice), notice, html);
    }
    return html.toUtf8();
}

} // namespace lessonhost
