// SPDX-License-Identifier: MIT
#include "itempictures.h"

#include "typicalitems.h"

#include <QFile>
#include <QTemporaryDir>

using namespace lessonhost;

/*!
 * A lesson of the one slide that is to be drawn.
 */
class ItemPictures::Lesson : public LessonReader
{
public:
    explicit Lesson(const QSizeF &page)
        : m_page(page)
    {
        const QJsonObject files = typicalFiles();
        for (auto it = files.constBegin(); it != files.constEnd(); ++it) {
            QFile file(fileOf(it.key()));
            if (!file.open(QIODevice::WriteOnly)
                || file.write(QByteArray::fromBase64(it.value().toString().toLatin1())) < 0) {
                qFatal("%s can't be written.", qPrintable(file.fileName()));
            }
        }
    }

    QJsonObject presentation() override
    {
        return {{QStringLiteral("Width"), QString::number(m_page.width())},
                {QStringLiteral("Height"), QString::number(m_page.height())}};
    }
    int slideCount() override { return 1; }
    LessonSlide slide(int) override { return {{}, items}; }
    QStringList resources() override { return typicalFiles().keys(); }
    QString resourceFile(const QString &relativePath) override { return fileOf(relativePath); }

    QJsonArray items;

private:
    QString fileOf(QString path) const { return m_folder.filePath(path.replace(QLatin1Char('/'), QLatin1Char('-'))); }

    QSizeF m_page;
    QTemporaryDir m_folder;
};

ItemPictures::ItemPictures(IZQTransformation *plugin, const QSizeF &page)
    : m_lesson(std::make_unique<Lesson>(page))
{
    LessonContext context;
    context.plugin = plugin;
    m_pictures = std::make_unique<SlidePictures>(*m_lesson, context, m_store);
}

ItemPictures::~ItemPictures() = default;

QRectF ItemPictures::boxOf(const QString &type)
{
    const QSizeF size = typicalSize(type);
    return {QPointF((pageSize().width() - size.width()) / 2, (pageSize().height() - size.height()) / 2), size};
}

void ItemPictures::paint(QPainter &painter, const QRectF &area, const QJsonArray &items)
{
    m_lesson->items = items;
    m_printer.paint(painter, m_pictures->picture(0), area);
}

ItemPicture ItemPictures::draw(const QJsonArray &items)
{
    m_lesson->items = items;
    const SlidePicture picture = m_pictures->picture(0);
    return {m_store.text(picture.svg.documentElement()), picture.named};
}
