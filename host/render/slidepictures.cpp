#include "render/slidepictures.h"

#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "render/drawings.h"
#include "render/plainsvg.h"

namespace lessonhost {

namespace {

// The items to be seen that stand on the page by themselves, groups taken apart.
void takeApart(const QJsonObject &item, QVector<QJsonObject> &result)
{
    const ItemView view(item);
    const QVector<QJsonObject> children = view.looseChildren();
    if (!view.isVisible()) {
        return;
    }
    for (const QJsonObject &child : children) {
        takeApart(child, result);
    }
    if (children.isEmpty()) {
        result.append(item);
    }
}

IwbItemWriter::Setting drawnSetting(IZQTransformation *plugin, IwbMedia *media)
{
    IwbItemWriter::Setting setting;
    setting.plugin = plugin;
    setting.media = media;
    setting.keepsLinks = false; // a picture opens nothing
    return setting;
}

} // namespace

SlidePictures::SlidePictures(LessonReader &reader, const LessonContext &context)
    : m_reader(reader)
    , m_files(reader.resources())
    , m_pages(drawnSetting(context.plugin, &m_media))
{
    for (const QString &file : qAsConst(m_files)) {
        m_media.add(file, reader.resourceFile(file));
    }
}

SlidePicture SlidePictures::picture(int index)
{
    const LessonSlide slide = m_reader.slide(index);
    constexpr double longestSide = 20000;

    SlidePicture result;
    result.slide = index + 1;
    m_pages.start(m_reader.presentation(), slide.properties);
    const QSizeF size = m_pages.pageSize();
    result.size = QSizeF(qBound(1.0, size.width(), longestSide), qBound(1.0, size.height(), longestSide));

    PlainSvg plain(result.size, m_media);
    const QDomElement page = m_pages.addPage(slide.properties, 1, {});
    for (QDomElement e = page.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        plain.add(e);
    }
    QVector<QJsonObject> items;
    for (const QJsonValue &item : slide.items) {
        takeApart(item.toObject(), items);
    }
    Drawings drawings(plain, m_pages, m_files);
    for (const QJsonObject &item : qAsConst(items)) {
        const ItemView view(item);
        const bool hasOnlyBox = isTextBoard(view.type()) || mediaFolder(view.type());
        if (!drawings.draw(item)) {
            result.named.append({view.type(), view.id()});
        } else if (hasOnlyBox && view.isSetUpright()) {
            result.upright.append({view.type(), view.id()});
        }
    }
    result.svg = plain.text();
    return result;
}

} // namespace lessonhost
