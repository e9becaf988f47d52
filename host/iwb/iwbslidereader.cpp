// SPDX-License-Identifier: MIT
#include "iwb/iwbslidereader.h"

#include "files/pictures.h"
#include "iwb/uniqueids.h"
#include "izqtransformation.h"
#include "lesson/curtain.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/itemview.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/svgvalues.h"

#include <QFileInfo>
#include <QSet>

#include <utility>

namespace lessonhost {

namespace {

// The plug-in is told a folder that can't be one, so that it finds no file and copies none: files stay where they are,
// and the host names them.
const QLatin1String noFolder("/dev/null/");

QJsonObject groupWith(const QJsonArray &children, const QString &id)
{
    QRectF extent;
    bool isVisible = false;
    for (const QJsonValue &child : children) {
        const ItemView item(child.toObject());
        if (const auto box = item.box()) {
            extent = extent.isNull() ? *box : extent.united(*box);
        }
        isVisible = isVisible || item.isVisible();
    }
    return {{ItemKeys::type, QStringLiteral("ZQGroupItem")},
            {ItemKeys::id, id},
            {ItemKeys::box, boxText(extent)},
            {ItemKeys::visible, isVisible},
            {HostKeys::children, children}};
}

// A line of points that was drawn by hand, as ink without its steps. A marker that tells no opacity lets shine through what lies below.
QJsonObject inkOf(const IwbElement &element, const QJsonObject &polyline)
{
    const QPolygonF &points = element.points;
    const double width = numberOfText(element.element.attribute(QStringLiteral("stroke-width")));
    QColor color = svgColor(element.element.attribute(QStringLiteral("stroke"))).value_or(QColor(Qt::black));
    constexpr double markerOpacity = 0.4;
    if (element.isHighlight && color.alpha() == 255) {
        color.setAlphaF(markerOpacity);
    }
    QJsonObject ink{
        {ItemKeys::type,
         element.isHighlight ? QStringLiteral("ZQFluorescentStroke") : QStringLiteral("ZQSmoothStroke")},
        {ItemKeys::box, boxText(points.boundingRect().adjusted(-width / 2, -width / 2, width / 2, width / 2))},
        {ItemKeys::color, color.name(QColor::HexArgb)},
        {ItemKeys::width, numberText(width)},
        {ItemKeys::angle, QStringLiteral("0")}};
    for (const QLatin1String key : {ItemKeys::visible, ItemKeys::locked, ItemKeys::endless}) {
        ink.insert(key, polyline.value(key));
    }
    return ink;
}

// What records say of an item beyond what the plug-in reads.
void readRecord(const IwbElement &element, QJsonObject &json)
{
    const QJsonObject shape = json;
    if (element.isInk()) {
        json = inkOf(element, shape);
    }
    if (element.isRevealer) {
        json = {{ItemKeys::type, curtainType}, {CurtainKeys::rect, shape.value(ItemKeys::box)}};
        for (const QLatin1String key :
             {ItemKeys::box, ItemKeys::angle, ItemKeys::visible, ItemKeys::locked, ItemKeys::endless}) {
            if (shape.contains(key)) {
                json.insert(key, shape.value(key));
            }
        }
    }
    for (auto it = shape.constBegin(); it != shape.constEnd(); ++it) {
        if (it.key().startsWith(QLatin1String("Interactive"))) {
            json.insert(it.key(), it.value());
        }
    }
    if (element.flipsAcross) {
        json.insert(ItemKeys::flippedAcross, QStringLiteral("1"));
    }
    if (element.flipsDown) {
        json.insert(ItemKeys::flippedDown, QStringLiteral("1"));
    }
}

} // namespace

IwbSlideReader::IwbSlideReader(IZQTransformation *plugin, IwbReferences *references)
    : m_plugin(plugin)
    , m_references(references)
    , m_items(plugin, noFolder.chopped(1))
{
}

IwbSlideReader::Slide IwbSlideReader::read(IwbPage page, int number, const SlideLosses &losses)
{
    UniqueIds ids;
    Slide result = readLoose(std::move(page), number, losses, ids);
    putIntoGroups(result, number, ids, losses);
    return result;
}

IwbSlideReader::Slide IwbSlideReader::readLoose(IwbPage page, int number, const SlideLosses &losses, UniqueIds &ids,
                                                Ink ink)
{
    for (const SvgRemark &remark : qAsConst(page.remarks)) {
        const LossOwner owner(remark.tag, remark.id);
        remark.isLoss ? losses.value(owner, {}, remark.text) : losses.note(owner, remark.text);
    }
    Slide result;
    result.slide.properties = readProperties(page, losses);
    for (const IwbElement &element : qAsConst(page.items)) {
        const bool isPassedOver = element.element.isNull();
        QJsonObject item = isPassedOver ? QJsonObject() : readItem(element, losses);
        if (isPassedOver || !item.isEmpty()) {
            if (element.isInk() && ink == Ink::Lines) {
                result.lines.insert(result.slide.items.size(), element.points);
            } else if (element.isInk()) {
                item.insert(ItemKeys::steps, stepsText(element.points));
            }
            const QString id =
                element.id.isEmpty() ? QStringLiteral("item%1_%2").arg(number).arg(ids.count() + 1) : element.id;
            item.insert(ItemKeys::id, ids.take(id));
            result.slide.items.append(item);
            result.elementIds.append(element.id);
            result.groups.append(element.group);
        }
    }
    return result;
}

// Items that are a group in the document are one again, where nothing stands between them: a group is one layer.
void IwbSlideReader::putIntoGroups(Slide &slide, int number, UniqueIds &ids, const SlideLosses &losses)
{
    const QVector<int> groups = slide.groups;
    QJsonArray items;
    QStringList elementIds;
    QSet<int> begun;
    slide.groups.clear();
    int count = 0; // of the groups of this page
    for (int i = 0; i < groups.size();) {
        int end = i + 1;
        while (groups.at(i) >= 0 && end < groups.size() && groups.at(end) == groups.at(i)) {
            ++end;
        }
        if (groups.at(i) >= 0 && begun.contains(groups.at(i))) {
            losses.note({QStringLiteral("iwb:group"), slide.elementIds.at(i)},
                        say("other items stand between those of the group, which fell apart"));
        }
        begun.insert(groups.at(i));
        if (end - i < 2) {
            items.append(slide.slide.items.at(i));
            elementIds.append(slide.elementIds.at(i));
            slide.groups.append(-1);
        } else {
            QJsonArray children;
            for (int k = i; k < end; ++k) {
                children.append(slide.slide.items.at(k));
            }
            items.append(groupWith(children, ids.take(QStringLiteral("group%1_%2").arg(number).arg(++count))));
            elementIds.append(QString());
            slide.groups.append(groups.at(i));
        }
        i = end;
    }
    slide.slide.items = items;
    slide.elementIds = elementIds;
}

// The colour and picture of the page, in the keys that ZQTX has for them.
QJsonObject IwbSlideReader::readProperties(IwbPage &page, const SlideLosses &losses)
{
    QJsonObject properties =
        m_plugin->tranSlideIWB2JSON(page.root, page.page, {{QStringLiteral("path"), QString(noFolder)}});
    // The plug-in makes up an identifier, which is another each time.
    for (const char *key : {"ID", "path", "EffectType", "AttachFile"}) {
        properties.remove(QLatin1String(key));
    }
    if (const auto color = itemColor(properties.take(SlideKeys::backColor))) {
        properties.insert(SlideKeys::color, colorText(*color));
    }
    if (page.backgroundReference.isEmpty()) {
        return properties;
    }
    Sentence problem;
    const QString picture = m_references->resolve(page.backgroundReference, &problem);
    if (!picture.isEmpty()) {
        problem = pictureProblem(m_references->file(picture));
    }
    if (problem.isEmpty()) {
        properties.insert(QLatin1String("document"),
                          page.isBackgroundRepeated ? m_references->repeated(picture, page.backgroundTile) : picture);
    } else {
        losses.file(QStringLiteral("slide"), page.backgroundReference, problem);
    }
    return properties;
}

QJsonObject IwbSlideReader::readItem(IwbElement item, const SlideLosses &losses)
{
    const QString tag = item.element.tagName();
    const bool isMedia =
        tag == QLatin1String("svg:image") || tag == QLatin1String("svg:video") || tag == QLatin1String("svg:a");
    QString resource;
    if (isMedia) {
        resource = mediaFile(item, losses);
        // The plug-in tells films by the suffix.
        const QString suffix = QFileInfo(item.reference).suffix();
        item.element.setAttribute(QStringLiteral("xlink:href"), QString(QLatin1String("media.") + suffix));
    }
    QJsonObject json = m_items.read(item);
    if (json.isEmpty()) {
        losses.item({tag, item.id}, say("nothing is made of it"));
        return {};
    }
    if (isMedia) {
        json.remove(QLatin1String("MultiMediaFile"));
        if (!resource.isEmpty()) {
            json.insert(QLatin1String("resource"), resource);
        }
    }
    readLink(item, losses, json);
    readRecord(item, json);
    return json;
}

// The path of a media element's file, with a picture's own size where the element tells none.
QString IwbSlideReader::mediaFile(const IwbElement &item, const SlideLosses &losses)
{
    Sentence problem;
    const QString resource = m_references->resolve(item.reference, &problem);
    const bool isImage = item.element.tagName() == QLatin1String("svg:image");
    if (!resource.isEmpty() && isImage) {
        problem = pictureProblem(m_references->file(resource));
    }
    if (!problem.isEmpty()) {
        losses.file({item.element.tagName(), item.id}, item.reference, problem);
        return {};
    }
    if (isImage && numberOfText(item.element.attribute(QStringLiteral("width"))) <= 0) {
        const QSize size = Picture(m_references->file(resource)).size();
        QDomElement element = item.element;
        element.setAttribute(QStringLiteral("width"), qMax(0, size.width()));
        element.setAttribute(QStringLiteral("height"), qMax(0, size.height()));
    }
    return resource;
}

void IwbSlideReader::readLink(const IwbElement &item, const SlideLosses &losses, QJsonObject &json)
{
    if (item.link.isEmpty()) {
        return;
    }
    const bool isInside = item.link.startsWith(QLatin1Char('#'));
    const LossOwner owner(json.value(ItemKeys::type).toString(), item.id);
    int page = isInside ? m_references->pageNumber(item.link.mid(1)) : 0;
    if (isInside && page == 0) {
        page = m_references->pageOfElement(item.link.mid(1));
        if (page > 0) {
            losses.note(owner, say("the link to \"%1\" leads to the page of it").arg(item.link));
        }
    }
    QJsonObject link = m_items.readLink(item.link, page);
    Sentence problem;
    if (link.isEmpty() && isInside) {
        problem = say("the lesson has no page and no element of that name");
    } else if (link.isEmpty() && item.leadsOutside) {
        problem = say("it lies outside of the package and isn't fetched");
    } else if (link.isEmpty()) {
        const QString file = m_references->resolve(item.link, &problem);
        if (!file.isEmpty()) {
            link.insert(QLatin1String("InteractiveType"), QStringLiteral("ACTION_OPENFILE"));
            link.insert(QLatin1String("InteractiveValue"), file);
        }
    }
    if (link.isEmpty()) {
        losses.value(owner, ItemKeys::linkValue,
                     say("link to \"%1\": %2").arg(item.link, problem));
    }
    for (auto it = link.constBegin(); it != link.constEnd(); ++it) {
        json.insert(it.key(), it.value());
    }
}

} // namespace lessonhost
