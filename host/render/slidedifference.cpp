// SPDX-License-Identifier: MIT
#include "render/slidedifference.h"

#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/plainnames.h"
#include "losses/comparison.h"
#include "losses/lossreport.h"
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

// "Circle, 3 Arrow", in the order of the slide.
QString countedNames(const QStringList &names)
{
    QStringList parts;
    QStringList seen;
    for (const QString &name : names) {
        if (!seen.contains(name)) {
            seen.append(name);
            const int count = names.count(name);
            parts.append(count > 1 ? QString(QString::number(count) + QLatin1Char(' ') + name) : name);
        }
    }
    return parts.join(QLatin1String(", "));
}

// The values of items and the slide, an item a line.
QString rowsOf(const QVector<Loss> &losses)
{
    QString rows;
    QString item; // whose keys the last row holds
    for (const Loss &loss : losses) {
        const QString name = loss.itemType == QLatin1String("slide") ? say("Slide").local() : plainName(loss.itemType);
        const QString owner = loss.itemType + QLatin1Char(' ') + loss.itemId;
        if (owner != item) {
            rows += (rows.isEmpty() ? QString() : QStringLiteral("</li>\n"))
                + QStringLiteral("<li><b>%1</b> <small>%2</small>: ")
                      .arg(name.toHtmlEscaped(), loss.itemId.left(60).toHtmlEscaped());
        } else {
            rows += QLatin1String(", ");
        }
        item = owner;
        rows += QStringLiteral("<span title=\"%2\">%1</span>")
                    .arg(loss.key.left(200).toHtmlEscaped(), loss.detail.local().toHtmlEscaped());
    }
    return rows.isEmpty() ? rows : QString(rows + QLatin1String("</li>"));
}

// What is lost, by what people notice of it.
struct NoticedLosses
{
    QStringList items; // which aren't there
    QVector<Loss> values;
};

void addHtml(const NoticedLosses &losses, Notice notice, QString &html)
{
    const QString mark = notice == Notice::Nothing ? QString() : QStringLiteral(" class=\"losses\"");
    if (!losses.items.isEmpty()) {
        const Sentence text =
            notice == Notice::Nothing ? say("Missing, and not shown in the first one: %1") : say("Missing: %1");
        html += QStringLiteral("<p%1>%2</p>\n").arg(mark, text.arg(countedNames(losses.items)).local().toHtmlEscaped());
    }
    if (!losses.values.isEmpty()) {
        const Sentence title = notice == Notice::Look ? say("Missing or other values: %1")
            : notice == Notice::Deed                  ? say("Both look the same and work otherwise: %1")
                                                      : say("Both look the same. Missing or other values: %1");
        html += QStringLiteral("<details%1><summary>%2</summary>\n<ul>%3</ul></details>\n")
                    .arg(mark, title.arg(losses.values.size()).local(), rowsOf(losses.values));
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
            noticed[notice].items.append(plainName(loss.itemType));
        } else {
            noticed[notice].values.append(loss);
        }
    }
    if (noticed.isEmpty()) {
        return "<p class=\"none\">" + say("Nothing is lost.").local().toUtf8() + "</p>\n";
    }
    QString html;
    for (const Notice notice : {Notice::Look, Notice::Deed, Notice::Nothing}) {
        addHtml(noticed.value(notice), notice, html);
    }
    return html.toUtf8();
}

} // namespace lessonhost
