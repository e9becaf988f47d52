// SPDX-License-Identifier: MIT
#include "itemfamilies.h"
#include "itempictures.h"
#include "ratiobench.h"
#include "typicalitems.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

// Slides of 50 typical items of a family against slides of 50 shapes with a few words in each, as svg and as pixels.

namespace {

constexpr int itemsOfSlide = 50;
const QSizeF page(1920, 1080);

// In rows, types one after the other.
QJsonArray slideOf(const QStringList &types)
{
    constexpr int columns = 10;
    constexpr int rows = itemsOfSlide / columns;
    const QSizeF cell(page.width() / columns, page.height() / rows);
    QJsonArray items;
    for (int i = 0; i < itemsOfSlide; ++i) {
        const QString &type = types.at(i % types.size());
        const int row = i / columns;
        const QRectF box(QPointF(i % columns * cell.width() + 5, row * cell.height() + 5), typicalSize(type));
        items.append(typicalItem(type, box));
    }
    return items;
}

std::function<void()> drawing(ItemPictures &pictures, const QJsonArray &items)
{
    return [&pictures, items] { benchmark::DoNotOptimize(pictures.draw(items)); };
}

std::function<void()> painting(ItemPictures &pictures, const QJsonArray &items)
{
    return [&pictures, items] {
        QImage image(QSize(1280, 720), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        pictures.paint(painter, image.rect(), items);
    };
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // as lessonconv does
    const QGuiApplication application(argc, argv);
    ItemPictures pictures(plugin(), page);
    const QJsonArray shapes = slideOf({QStringLiteral("ZQBasicRectangleItem"), QStringLiteral("ZQBasicEllipseItem"),
                                       QStringLiteral("ZQBasicTriangleItem"), QStringLiteral("ZQBasicSingleArrowItem"),
                                       QStringLiteral("ZQBasicDialog1Item")});
    for (const TitledTypes &family : itemFamilies()) {
        QStringList types;
        for (const QString &type : family.types) {
            if (isModelType(type)) {
                types.append(type);
            }
        }
        const QJsonArray items = slideOf(types);
        registerRatio(QStringLiteral("slide to svg"), family.title, drawing(pictures, items),
                      drawing(pictures, shapes));
        registerRatio(QStringLiteral("slide to pixels"), family.title, painting(pictures, items),
                      painting(pictures, shapes));
    }
    return runRatios(argc, argv);
}
