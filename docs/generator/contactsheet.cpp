// SPDX-License-Identifier: MIT
#include "contactsheet.h"

#include "itemfamilies.h"
#include "lesson/plainnames.h"
#include "typicalitems.h"

#include <QJsonArray>

namespace {

constexpr int columns = 6;
constexpr int rows = 4;
constexpr double headHeight = 60;
const QSizeF cellSize(320, 250);
const QSizeF pageSize(cellSize.width() * columns, headHeight + cellSize.height() * rows + 20);

QString boxText(const QRectF &box)
{
    return QStringLiteral("%1,%2,%3,%4").arg(box.left()).arg(box.top()).arg(box.right()).arg(box.bottom());
}

QJsonObject textItem(const QString &text, const QRectF &box, int points)
{
    return {{QStringLiteral("Type"), QStringLiteral("ZQTextBoard")},
            {QStringLiteral("BoundingBox"), boxText(box)},
            {QStringLiteral("TextHtml"),
             QStringLiteral("<p align=\"center\" style=\"font-family:'DejaVu Sans'; font-size:%1pt; color:#555555\">"
                            "%2</p>")
                 .arg(points)
                 .arg(text)}};
}

/*!
 * The slides of one variant.
 */
class Pages
{
public:
    explicit Pages(const ItemVariant &variant)
        : m_variant(variant)
    {
    }

    // A family that doesn't fit on what is left of a page begins another.
    void add(const TitledTypes &family)
    {
        constexpr int perPage = columns * rows;
        if (m_cells % perPage + family.types.size() > perPage) {
            m_cells = (m_cells + perPage - 1) / perPage * perPage;
        }
        for (int i = 0; i < family.types.size(); ++i, ++m_cells) {
            if (m_cells / perPage >= m_slides.size()) {
                m_slides.append(Slide());
            }
            Slide &slide = m_slides.last();
            if (!slide.families.contains(family.title)) {
                slide.families.append(family.title);
            }
            const int cell = m_cells % perPage;
            const int row = cell / columns;
            addItem(slide, family.types.at(i),
                    {cell % columns * cellSize.width(), headHeight + row * cellSize.height()});
        }
    }

    QJsonArray slides() const
    {
        QJsonArray result;
        for (const Slide &slide : m_slides) {
            QJsonArray items = slide.items;
            items.append(textItem(QLatin1String(m_variant.title) + QLatin1String(": ")
                                      + slide.families.join(QLatin1String(", ")),
                                  {0, 10, pageSize.width(), headHeight - 10}, 20));
            result.append(QJsonObject{{QStringLiteral("Items"), items}});
        }
        return result;
    }

private:
    struct Slide
    {
        QStringList families;
        QJsonArray items;
    };

    // A pale frame shows the item's box.
    void addItem(Slide &slide, const QString &type, const QPointF &corner)
    {
        constexpr double labelHeight = 48;
        const QSizeF size(typicalSize(type).width() * m_variant.scale.width(),
                          typicalSize(type).height() * m_variant.scale.height());
        const QPointF middle = corner + QPointF(cellSize.width() / 2, (cellSize.height() - labelHeight) / 2);
        const QRectF box(middle - QPointF(size.width() / 2, size.height() / 2), size);
        slide.items.append(QJsonObject{{QStringLiteral("Type"), QStringLiteral("ZQBasicRectangleItem")},
                                       {QStringLiteral("BoundingBox"), boxText(box)},
                                       {QStringLiteral("ArtObj_Width"), QStringLiteral("1")},
                                       {QStringLiteral("LineColor"), QStringLiteral("255,215,215,215")}});
        QJsonObject item = m_variant.changed(typicalItem(type, box));
        item.insert(QStringLiteral("ID"), QString::number(m_cells + 1));
        const QJsonArray shown = withGround(item);
        for (const QJsonValue &each : shown) {
            slide.items.append(each);
        }
        slide.items.append(
            textItem(type + QLatin1String("<br>") + lessonhost::plainName(type),
                     {corner.x(), corner.y() + cellSize.height() - labelHeight, cellSize.width(), labelHeight}, 11));
    }

    const ItemVariant &m_variant;
    QVector<Slide> m_slides;
    int m_cells = 0;
};

} // namespace

QJsonObject contactSheet(const QString &word)
{
    QJsonArray slides;
    for (const ItemVariant &variant : itemVariants()) {
        Pages pages(variant);
        for (TitledTypes family : itemFamilies()) {
            const bool isChosen = family.title.contains(word, Qt::CaseInsensitive);
            QStringList types;
            for (const QString &type : qAsConst(family.types)) {
                if (isModelType(type) && (isChosen || type.contains(word, Qt::CaseInsensitive))) {
                    types.append(type);
                }
            }
            family.types = types;
            pages.add(family);
        }
        const QJsonArray more = pages.slides();
        for (const QJsonValue &slide : more) {
            slides.append(slide);
        }
    }
    return {{QStringLiteral("Title"), QStringLiteral("Every type of item")},
            {QStringLiteral("Width"), QString::number(pageSize.width())},
            {QStringLiteral("Height"), QString::number(pageSize.height())},
            {QStringLiteral("Slides"), slides},
            {QStringLiteral("Resources"), typicalFiles()}};
}
