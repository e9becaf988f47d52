#include "render/slidepictures.h"

#include "lesson/itemview.h"
#include "lesson/planegeometry.h"
#include "render/activitydrawing.h"
#include "render/drawings.h"
#include "render/inkdrawing.h"
#include "render/itemoutline.h"
#include "render/plainsvg.h"

namespace lessonhost {

namespace {

/*!
 * An item that stands on the page by itself, and what the groups around it do with it.
 */
struct Shown
{
    QJsonObject item;
    QTransform placed; //!< from where the item says that it is to the page
};

// What an item without children covers, where it says that it is.
QRectF extentOfOne(const ItemView &item)
{
    if (const auto place = item.place()) {
        return place->extent();
    }
    const QPolygonF points = item.has(ItemKeys::steps) ? item.strokePoints() : item.points(ItemKeys::control);
    return item.matrix().value_or(QTransform()).mapRect(extentOf(points));
}

QRectF extentOfChildren(const ItemView &group)
{
    QRectF extent;
    const QVector<QJsonObject> children = group.childObjects();
    for (const QJsonObject &child : children) {
        const ItemView view(child);
        const QRectF own = view.childObjects().isEmpty() ? extentOfOne(view)
            : view.box()                                 ? *view.box()
                                                         : extentOfChildren(view);
        extent = extent.isNull() ? own : own.isNull() ? extent : extent.united(own);
    }
    return extent;
}

// The fit of a raw slide to the page, as the first item below a group has it.
QTransform fitOfChildren(const ItemView &group)
{
    const QVector<QJsonObject> children = group.childObjects();
    for (const QJsonObject &child : children) {
        const auto fit = itemTransform(child.value(ItemKeys::slideMatrix));
        if (fit && fit->isInvertible()) {
            return *fit;
        }
    }
    return children.isEmpty() ? QTransform() : fitOfChildren(ItemView(children.constFirst()));
}

// What a group does with its children. The Matrix of a raw group is one of its slide, not of the page.
QTransform placeOfChildren(const ItemView &group)
{
    if (const auto matrix = group.matrix()) {
        if (matrix->isIdentity()) {
            return {};
        }
        const QTransform fit = fitOfChildren(group);
        return fit.inverted() * *matrix * fit;
    }
    if (turnAndFlips(group, {}).isIdentity()) {
        return {};
    }
    const auto box = group.box();
    return turnAndFlips(group, (box ? *box : extentOfChildren(group)).center());
}

// The items to be seen, groups taken apart.
void takeApart(const QJsonObject &item, const QTransform &placed, QVector<Shown> &result)
{
    const ItemView view(item);
    if (!view.isVisible()) {
        return;
    }
    const QVector<QJsonObject> children = view.looseChildren();
    const QTransform inside = children.isEmpty() ? placed : placeOfChildren(view) * placed;
    for (QJsonObject child : children) {
        if (view.flag(ItemKeys::ignoresEraser)) {
            child.insert(ItemKeys::ignoresEraser, true);
        }
        takeApart(child, inside, result);
    }
    if (children.isEmpty()) {
        result.append({item, placed});
    }
}

// The page of a slide. Slides that tell what they were fitted from have a page each.
QJsonObject sizeFor(QJsonObject presentation, const QJsonObject &slide)
{
    if (!isEmptyValue(slide.value(SlideKeys::sourceRect))) {
        presentation.remove(PresentationKeys::width);
        presentation.remove(PresentationKeys::height);
    }
    return presentation;
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

SlidePictures::SlidePictures(LessonReader &reader, const LessonContext &context, PictureStore &store,
                             const std::optional<QColor> &ground)
    : m_reader(reader)
    , m_store(store)
    , m_ground(ground)
    , m_pages(drawnSetting(context.plugin, &m_media))
{
    const QStringList files = reader.resources();
    for (const QString &file : files) {
        m_media.add(file, reader.resourceFile(file));
    }
}

SlidePicture SlidePictures::picture(int index)
{
    const LessonSlide slide = m_reader.slide(index);
    constexpr double longestSide = 20000;

    SlidePicture result;
    result.slide = index + 1;
    m_pages.start(sizeFor(m_reader.presentation(), slide.properties), slide.properties);
    const QSizeF size = m_pages.pageSize();
    result.size = QSizeF(qBound(1.0, size.width(), longestSide), qBound(1.0, size.height(), longestSide));

    PlainSvg plain(result.size, m_media, m_store, m_ground.value_or(Qt::white));
    const QDomElement page = m_pages.addPage(slide.properties, 1, {});
    for (QDomElement e = page.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const bool isColor = e.tagName() == QLatin1String("svg:rect");
        if (!isColor || !m_ground) {
            plain.add(e);
        }
    }
    QVector<Shown> items;
    for (const QJsonValue &item : slide.items) {
        takeApart(item.toObject(), {}, items);
    }
    Drawings drawings(plain, m_pages, m_media);
    if (slide.properties.contains(QLatin1String("activity"))) {
        QRectF occupied;
        bool hasGameItems = false;
        for (const Shown &shown : qAsConst(items)) {
            const ItemView view(shown.item);
            const QRectF extent = shown.placed.mapRect(extentOfOne(view));
            occupied = occupied.isNull() ? extent : occupied.united(extent);
            hasGameItems = hasGameItems || activityDrawing(view.type());
        }
        drawings.drawGame(slide.properties, occupied, hasGameItems);
    }
    for (const Shown &shown : qAsConst(items)) {
        if (const auto rubbed = rubbedArea(ItemView(shown.item))) {
            drawings.rubOut(shown.placed.map(*rubbed));
        }
    }
    for (const Shown &shown : qAsConst(items)) {
        const PlainSvg::Scope scope(plain, shown.placed);
        if (!drawings.draw(shown.item)) {
            const ItemView view(shown.item);
            result.named.append({view.type(), view.id()});
        }
    }
    result.svg = plain.finished();
    // Pictures are drawn from their files; what IWB would store of them isn't needed.
    m_media.storeNew([](const QString &, const IwbMedia::File &) {});
    return result;
}

} // namespace lessonhost
