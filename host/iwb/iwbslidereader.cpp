#include "iwb/iwbslidereader.h"

#include "files/pictures.h"
#include "iwb/uniqueids.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"

#include <QFileInfo>

namespace lessonhost {

namespace {

// The plug-in is told a folder that can't be one, so that it finds no file and copies none: files stay where they are,
// and the host names them.
const QLatin1String noFolder("/dev/null/");

} // namespace

IwbSlideReader::IwbSlideReader(IZQTransformation *plugin, IwbReferences *references)
    : m_plugin(plugin)
    , m_references(references)
    , m_items(plugin, noFolder.chopped(1))
{
}

IwbSlideReader::Slide IwbSlideReader::read(IwbPage page, int number, const SlideLosses &losses)
{
    for (const SvgRemark &remark : qAsConst(page.remarks)) {
        const LossOwner owner(remark.tag, remark.id);
        remark.isLoss ? losses.value(owner, {}, remark.text) : losses.note(owner, remark.text);
    }
    Slide result;
    result.slide.properties = readProperties(page, losses);
    UniqueIds ids;
    for (const IwbElement &element : qAsConst(page.items)) {
        QJsonObject item = readItem(element, losses);
        if (!item.isEmpty()) {
            const QString id =
                element.id.isEmpty() ? QStringLiteral("item%1_%2").arg(number).arg(ids.count() + 1) : element.id;
            item.insert(ItemKeys::id, ids.take(id));
            result.slide.items.append(item);
            result.elementIds.append(element.id);
        }
    }
    return result;
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
    QString problem;
    const QString picture = m_references->resolve(page.backgroundReference, &problem);
    if (!picture.isEmpty()) {
        problem = pictureProblem(m_references->file(picture));
    }
    if (problem.isEmpty()) {
        properties.insert(QLatin1String("document"), picture);
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
        losses.item({tag, item.id}, QStringLiteral("nothing is made of it"));
        return {};
    }
    if (isMedia) {
        json.remove(QLatin1String("MultiMediaFile"));
        if (!resource.isEmpty()) {
            json.insert(QLatin1String("resource"), resource);
        }
    }
    readLink(item, losses, json);
    return json;
}

// The path of a media element's file, with a picture's own size where the element tells none.
QString IwbSlideReader::mediaFile(const IwbElement &item, const SlideLosses &losses)
{
    QString problem;
    const QString resource = m_references->resolve(item.reference, &problem);
    const bool isImage = item.element.tagName() == QLatin1String("svg:image");
    if (!resource.isEmpty() && isImage) {
        problem = pictureProblem(m_references->file(resource));
    }
    if (!problem.isEmpty()) {
        losses.file({item.element.tagName(), item.id}, item.reference, problem);
        return {};
    }
    if (isImage && item.element.attribute(QStringLiteral("width")).toDouble() <= 0) {
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
    const int page = item.link.startsWith(QLatin1Char('#')) ? m_references->pageNumber(item.link.mid(1)) : 0;
    QJsonObject link = m_items.readLink(item.link, page);
    QString problem;
    if (link.isEmpty()) {
        const QString file = m_references->resolve(item.link, &problem);
        if (!file.isEmpty()) {
            link.insert(QLatin1String("InteractiveType"), QStringLiteral("ACTION_OPENFILE"));
            link.insert(QLatin1String("InteractiveValue"), file);
        }
    }
    if (link.isEmpty()) {
        losses.value({json.value(ItemKeys::type).toString(), item.id}, ItemKeys::linkValue,
                     QLatin1String("link to \"") + item.link + QLatin1String("\": ") + problem);
    }
    for (auto it = link.constBegin(); it != link.constEnd(); ++it) {
        json.insert(it.key(), it.value());
    }
}

} // namespace lessonhost
