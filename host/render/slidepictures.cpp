#include "render/slidepictures.h"

#include "files/lessonerror.h"
#include "files/pictures.h"
#include "files/xmlloader.h"
#include "lesson/itemview.h"
#include "losses/lossreport.h"
#include "render/namedboxes.h"
#include "render/plainsvg.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace lessonhost {

namespace {

// The items that stand on the page by themselves, groups taken apart. Each gets an identifier by which it is found
// again; links are left out, as a picture opens nothing.
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
        QJsonObject single = item;
        single.remove(ItemKeys::linkType);
        single.insert(QLatin1String("OwnID"), view.id());
        single.insert(ItemKeys::id, QString(QLatin1String("drawn") + QString::number(result.size())));
        result.append(single);
    }
}

// The picture on an item that has no drawing: a picture item in its box, or an empty object.
QJsonObject pictureOn(const QJsonObject &item, const QStringList &files)
{
    for (const QLatin1String key : {ItemKeys::document, QLatin1String("picture")}) {
        const QJsonValue value = item.value(key);
        const QString file = valueText(value.isArray() ? value.toArray().at(0) : value);
        if (files.contains(file)) {
            return {{ItemKeys::type, QStringLiteral("ZQImagePic")},
                    {ItemKeys::id, QString(item.value(ItemKeys::id).toString() + QLatin1String("picture"))},
                    {ItemKeys::box, item.value(ItemKeys::box)},
                    {ItemKeys::angle, item.value(ItemKeys::angle)},
                    {ItemKeys::matrix, item.value(ItemKeys::matrix)},
                    {ItemKeys::resource, file}};
        }
    }
    return {};
}

// What IWB leaves without anything to see.
bool isDrawn(const QDomElement &element)
{
    const QString tag = element.tagName();
    return !tag.isEmpty() && tag != QLatin1String("svg:video") && tag != QLatin1String("svg:a")
        && (tag != QLatin1String("svg:image") || !element.attribute(QStringLiteral("xlink:href")).isEmpty());
}

} // namespace

SlidePictures::SlidePictures(LessonReader &reader, const LessonContext &context)
    : m_reader(reader)
    , m_context(context)
{
    m_context.verify = false;
    m_context.options.clear();
    m_context.isKept = false;
}

// The drawn page lies in a folder of its own, away from what lay beside a drawing, so that goes into the drawing.
void SlidePictures::collectFiles()
{
    const QStringList resources = m_reader.resources();
    for (const QString &resource : resources) {
        m_files.append({resource, m_reader.resourceFile(resource)});
    }
    for (int i = 0; i < m_files.size(); ++i) {
        QString &source = m_files[i].second;
        const Picture picture(source);
        ClosedSvg drawing;
        if (picture.format() == "svg") {
            try {
                drawing = picture.drawing();
            } catch (const LessonError &) {
                // It shows its name.
                continue;
            }
        }
        if (drawing.files > 0) {
            const QString folder = m_folder.filePath(QStringLiteral("drawing%1").arg(i));
            source = folder + QLatin1Char('/') + QFileInfo(source).fileName();
            QFile copy(source);
            if (!QDir().mkpath(folder) || !copy.open(QIODevice::WriteOnly)
                || copy.write(drawing.text) != drawing.text.size() || !copy.flush()) {
                throw LessonError(QStringLiteral("A drawing can't be prepared: %1").arg(copy.errorString()),
                                  QStringLiteral("Make room in the folder for temporary files"))
                    .in(m_files.at(i).first);
            }
        }
    }
}

SlidePicture SlidePictures::picture(int index)
{
    const LessonSlide slide = m_reader.slide(index);
    QVector<QJsonObject> items;
    for (const QJsonValue &item : slide.items) {
        takeApart(item.toObject(), items);
    }

    LessonSlide exported;
    exported.properties = slide.properties;
    const QStringList files = m_reader.resources();
    for (const QJsonObject &item : qAsConst(items)) {
        exported.items.append(item);
        const QJsonObject picture = pictureOn(item, files);
        if (!picture.isEmpty()) {
            exported.items.append(picture);
        }
    }
    LossReport unwanted;
    m_context.losses = &unwanted;
    const QString package = m_folder.filePath(QStringLiteral("slide%1").arg(index));
    const auto writer = lessonFormatByName(QStringLiteral("iwb")).create(package, m_context);
    writer->begin(m_reader.presentation());
    if (m_files.isEmpty()) {
        collectFiles();
    }
    for (const auto &file : qAsConst(m_files)) {
        writer->addResource(file.first, file.second);
    }
    writer->writeSlide(exported);
    writer->finish();

    const QDomDocument document = loadXmlFile(package + QLatin1String("/content.xml"));
    const QDomElement svg = document.documentElement().firstChildElement(QStringLiteral("svg:svg"));
    const QVector<double> viewBox =
        itemNumbers(svg.attribute(QStringLiteral("viewBox")).replace(QLatin1Char(' '), QLatin1Char(',')));
    SlidePicture result;
    result.slide = index + 1;
    result.size = QSizeF(qBound(1.0, viewBox.value(2, 1440), 20000.0), qBound(1.0, viewBox.value(3, 1080), 20000.0));

    PlainSvg plain(result.size, package);
    QHash<QString, QDomElement> drawn;
    QDomElement page =
        svg.firstChildElement(QStringLiteral("svg:pageset")).firstChildElement(QStringLiteral("svg:page"));
    for (QDomElement e = page.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const QString id = e.attribute(QStringLiteral("id"));
        if (id.startsWith(QLatin1String("drawn"))) {
            drawn.insert(id, e);
        } else {
            plain.add(e);
        }
    }
    NamedBoxes boxes(plain);
    for (const QJsonObject &item : qAsConst(items)) {
        const QDomElement element = drawn.value(item.value(ItemKeys::id).toString());
        if ((!isDrawn(element) || !plain.add(element)) && !boxes.drawMindMap(item)) {
            const QDomElement picture = drawn.value(item.value(ItemKeys::id).toString() + QLatin1String("picture"));
            boxes.drawBox(item, isDrawn(picture) && plain.add(picture));
            result.named.append({ItemView(item).type(), item.value(QLatin1String("OwnID")).toString()});
        }
    }
    QDir(package).removeRecursively();
    result.svg = plain.text();
    return result;
}

} // namespace lessonhost
