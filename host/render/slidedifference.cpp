// SPDX-License-Identifier: MIT
#include "render/slidedifference.h"

#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/plainnames.h"
#include "losses/comparison.h"
#include "losses/lossreport.h"

#include <QHash>

namespace lessonhost {

namespace {

// All items, those of groups behind their group, which stands without them.
void collectItems(const QJsonArray &items, QVector<QJsonObject> &result)
{
    for (const QJsonValue &value : items) {
        QJsonObject item = value.toObject();
        const QJsonArray children = item.take(HostKeys::children).toArray();
        result.append(item);
        collectItems(children, result);
    }
}

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

    void compare(const LessonSlide &given, const LessonSlide &found)
    {
        m_comparison.compareProperties({QStringLiteral("slide"), given.properties.value(SlideKeys::id).toString()},
                                       given.properties, found.properties);
        QVector<QJsonObject> givenItems;
        collectItems(given.items, givenItems);
        QVector<QJsonObject> foundItems;
        collectItems(found.items, foundItems);
        QHash<QString, QJsonObject> byId;
        for (const QJsonObject &item : qAsConst(foundItems)) {
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

QByteArray asHtml(const QVector<Loss> &losses, bool isSeen)
{
    QStringList missing;
    QString rows;
    QString item; // whose keys the last row holds
    for (const Loss &loss : losses) {
        const QString name =
            loss.itemType == QLatin1String("slide") ? QStringLiteral("Slide") : plainName(loss.itemType);
        if (loss.kind == Loss::Item) {
            missing.append(name);
            continue;
        }
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
                    .arg(loss.key.left(200).toHtmlEscaped(), loss.detail.toHtmlEscaped());
    }
    if (missing.isEmpty() && rows.isEmpty()) {
        return QByteArrayLiteral("<p class=\"none\">Nothing is lost.</p>\n");
    }
    QString html;
    if (!missing.isEmpty()) {
        html += QLatin1String("<p class=\"losses\">Missing: ") + countedNames(missing).toHtmlEscaped()
            + QLatin1String("</p>\n");
    }
    if (!rows.isEmpty()) {
        html += QStringLiteral("<details%1><summary>%2: %3</summary>\n<ul>%4</li>\n</ul></details>\n")
                    .arg(isSeen ? QStringLiteral(" class=\"losses\"") : QString(),
                         isSeen ? QStringLiteral("Missing or other values")
                                : QStringLiteral("Both look the same. Missing or other values"),
                         QString::number(losses.size() - missing.size()), rows);
    }
    return html.toUtf8();
}

} // namespace

QByteArray slideDifference(const LessonSlide &given, const LessonSlide &found, int slide, bool isSeen,
                           LossReport &losses)
{
    const int before = losses.entries().size();
    SlideDifference(SlideLosses(&losses, slide)).compare(given, found);
    return asHtml(losses.entries().mid(before), isSeen);
}

} // namespace lessonhost
