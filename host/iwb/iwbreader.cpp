#include "iwb/iwbreader.h"

#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/pictures.h"
#include "izqtransformation.h"
#include "lesson/slidelimits.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <unistd.h>

namespace lessonhost {

namespace {

const QLatin1String packageFolder("/package");
const QLatin1String libraryFolder("/filelibrary");
const QLatin1String idKey("ID");

// The identifier, or one made of it that no item before has. used counts the ones made of each.
QString uniqueId(const QString &wanted, QHash<QString, int> &used)
{
    QString id = wanted;
    int number = used.value(wanted, 0);
    while (used.contains(id)) {
        id = wanted + QLatin1Char('_') + QString::number(++number + 1);
    }
    used.insert(wanted, number);
    used.insert(id, used.value(id, 0));
    return id;
}

} // namespace

IwbReader::IwbReader(const QString &path, const LessonContext &context)
    : m_context(context)
    , m_package(path)
    , m_content(m_package.root())
    , m_items(context.plugin, m_package.workFolder() + packageFolder)
{
    if (!m_content.hasSvg()) {
        throw LessonError(QStringLiteral("The document has no svg element with pages"),
                          QStringLiteral("Check that this is an IWB lesson"))
            .in(m_package.displayName());
    }
    // The plug-in copies to and from these; it makes neither.
    makeFolders(m_package.workFolder() + packageFolder, path, OutputFile::Temporary);
    makeFolders(m_package.workFolder() + libraryFolder, path, OutputFile::Temporary);
    for (int i = 0; i < m_content.pageCount(); ++i) {
        const QString id = m_content.pageId(i);
        if (!id.isEmpty() && !m_pageNumbers.contains(id)) {
            m_pageNumbers.insert(id, i + 1);
        }
    }
    for (const SvgRemark &remark : m_content.remarks()) {
        reportRemark(remark);
    }
}

QJsonObject IwbReader::presentation()
{
    QDomDocument document;
    return m_context.plugin->tranPresIWB2JSON(m_content.sizeElement(document), {});
}

LessonSlide IwbReader::slide(int index)
{
    m_slide = index + 1;
    m_isReporting = !m_reportedSlides.contains(index);
    m_reportedSlides.insert(index);
    IwbPage page = m_content.page(index);
    for (const SvgRemark &remark : qAsConst(page.remarks)) {
        reportRemark(remark);
    }
    LessonSlide slide;
    slide.properties = readProperties(page);
    QHash<QString, int> usedIds;
    for (const IwbElement &element : qAsConst(page.items)) {
        const QJsonObject item = readItem(element, usedIds);
        if (!item.isEmpty()) {
            slide.items.append(item);
        }
    }
    checkSlideItems(slide.items, m_slide, m_package.displayName());
    return slide;
}

// The colour and picture of the page, in the keys that ZQTX has for them.
QJsonObject IwbReader::readProperties(IwbPage &page)
{
    const QString picture = backgroundPicture(page);
    const QString path = m_package.workFolder() + packageFolder + QLatin1Char('/');
    if (!picture.isEmpty()) {
        const QString name = QLatin1String("background.") + QFileInfo(picture).suffix();
        if (::unlink(QFile::encodeName(path + name).constData()) != 0 && errno != ENOENT) {
            throw writeError(m_package.displayName(), errno, true);
        }
        const QString source = m_package.file(picture);
        if (!QFile::link(source, path + name)) {
            copyFile(source, m_package.displayName(), path + name, m_package.displayName(), OutputFile::Temporary);
        }
        page.page.firstChildElement(QStringLiteral("svg:image")).setAttribute(QStringLiteral("xlink:href"), name);
    }
    QJsonObject properties =
        m_context.plugin->tranSlideIWB2JSON(page.root, page.page, {{QStringLiteral("path"), path}});
    for (const char *key : {"path", "EffectType"}) {
        properties.remove(QLatin1String(key));
    }
    const QString copy = properties.take(QLatin1String("AttachFile")).toString();
    if (!copy.isEmpty()) {
        // The file stays where it is in the package; the plug-in's copy has served.
        QFile::remove(m_package.workFolder() + libraryFolder + QLatin1Char('/') + copy);
        properties.insert(QLatin1String("document"), picture);
    }
    const QJsonValue color = properties.take(QLatin1String("BackColor"));
    if (!color.toString().isEmpty()) {
        properties.insert(QLatin1String("color"), color);
    }
    return properties;
}

QString IwbReader::backgroundPicture(const IwbPage &page)
{
    if (page.backgroundReference.isEmpty()) {
        return {};
    }
    QString problem;
    const QString resource = m_package.resolve(page.backgroundReference, &problem);
    if (!resource.isEmpty()) {
        problem = pictureProblem(m_package.file(resource));
    }
    if (!problem.isEmpty()) {
        report(Loss::File, QStringLiteral("slide"), {}, page.backgroundReference, problem);
        return {};
    }
    return resource;
}

QJsonObject IwbReader::readItem(IwbElement item, QHash<QString, int> &usedIds)
{
    const QString tag = item.element.tagName();
    const bool isMedia =
        tag == QLatin1String("svg:image") || tag == QLatin1String("svg:video") || tag == QLatin1String("svg:a");
    QString resource;
    if (isMedia) {
        resource = mediaFile(item);
        // The plug-in tells films by the suffix. It finds no file of this name, so it copies none: the lesson's files
        // stay where they are.
        const QString suffix = QFileInfo(item.reference).suffix();
        item.element.setAttribute(QStringLiteral("xlink:href"), QString(QLatin1String("media.") + suffix));
    }
    QJsonObject json = m_items.read(item);
    if (json.isEmpty()) {
        report(Loss::Item, tag, item.id, {}, QStringLiteral("nothing is made of it"));
        return {};
    }
    if (isMedia) {
        json.remove(QLatin1String("MultiMediaFile"));
        if (!resource.isEmpty()) {
            json.insert(QLatin1String("resource"), resource);
        }
    }
    const QString id = item.id.isEmpty() ? QStringLiteral("item%1_%2").arg(m_slide).arg(usedIds.size() + 1) : item.id;
    json.insert(idKey, uniqueId(id, usedIds));
    readLink(item, json);
    return json;
}

// The resource of a media element, with a picture's own size where the element tells none.
QString IwbReader::mediaFile(const IwbElement &item)
{
    QString problem;
    const QString resource = m_package.resolve(item.reference, &problem);
    const bool isImage = item.element.tagName() == QLatin1String("svg:image");
    if (!resource.isEmpty() && isImage) {
        problem = pictureProblem(m_package.file(resource));
    }
    if (!problem.isEmpty()) {
        report(Loss::File, item.element.tagName(), item.id, item.reference, problem);
        return {};
    }
    if (isImage && item.element.attribute(QStringLiteral("width")).toDouble() <= 0) {
        const QSize size = Picture(m_package.file(resource)).size();
        QDomElement element = item.element;
        element.setAttribute(QStringLiteral("width"), qMax(0, size.width()));
        element.setAttribute(QStringLiteral("height"), qMax(0, size.height()));
    }
    return resource;
}

void IwbReader::readLink(const IwbElement &item, QJsonObject &json)
{
    if (item.link.isEmpty()) {
        return;
    }
    QJsonObject link = m_items.readLink(item.link, m_pageNumbers);
    QString problem;
    if (link.isEmpty()) {
        const QString file = m_package.resolve(item.link, &problem);
        if (!file.isEmpty()) {
            link.insert(QLatin1String("InteractiveType"), QStringLiteral("ACTION_OPENFILE"));
            link.insert(QLatin1String("InteractiveValue"), file);
        }
    }
    if (link.isEmpty()) {
        report(Loss::Value, json.value(QLatin1String("Type")).toString(), item.id, QStringLiteral("InteractiveValue"),
               QLatin1String("link to \"") + item.link + QLatin1String("\": ") + problem);
    }
    for (auto it = link.constBegin(); it != link.constEnd(); ++it) {
        json.insert(it.key(), it.value());
    }
}

void IwbReader::report(Loss::Kind kind, const QString &type, const QString &id, const QString &key,
                       const QString &detail)
{
    if (!m_isReporting || !m_context.losses) {
        return;
    }
    Loss loss;
    loss.kind = kind;
    loss.slide = m_slide;
    loss.itemType = type;
    loss.itemId = id;
    loss.key = key;
    loss.detail = detail;
    m_context.losses->add(loss);
}

void IwbReader::reportRemark(const SvgRemark &remark)
{
    report(remark.isLoss ? Loss::Value : Loss::Note, remark.tag, remark.id, {}, remark.text);
}

} // namespace lessonhost
