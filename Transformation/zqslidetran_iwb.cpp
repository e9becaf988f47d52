// SPDX-License-Identifier: MIT
#include "zqslidetran.h"

#include "domhelpers.h"
#include "numbertext.h"
#include "packagefiles.h"
#include "picturesize.h"

#include <QColor>

// One slide as an svg:page and back. Background colour and picture move with it, its items do not.

namespace {

void setSize(QJsonObject &json, const QSize &size)
{
    json.insert(QLatin1String("x"), QStringLiteral("0"));
    json.insert(QLatin1String("y"), QStringLiteral("0"));
    json.insert(QLatin1String("Width"), QString::number(size.width()));
    json.insert(QLatin1String("Height"), QString::number(size.height()));
}

// The rectangle of a page: the first below an svg:page, or the element itself if it is one.
QDomElement pageRectangle(const QDomElement &page)
{
    const QString rectangle = QStringLiteral("svg:rect");
    const QString tag = page.nodeName();
    if (tag == QLatin1String("svg:page")) {
        return descendantByTag(page, rectangle);
    }
    return tag == rectangle ? page : QDomElement();
}

// The colour name of "rgb(r,g,b)", or the text itself where it is of another form.
QString backgroundColor(const QString &rgb, const QString &alpha)
{
    if (!rgb.contains(QLatin1String("rgb"))) {
        return rgb;
    }
    const QStringList channels = rgb.mid(4, rgb.size() - 5).split(QLatin1Char(','));
    return QColor(integerPart(channels, 0), integerPart(channels, 1), integerPart(channels, 2), alpha.toInt()).name();
}

// Whether the first record about the rectangle lets it have a picture.
bool recordAllowsPicture(const QDomElement &root, const QString &rectangleId)
{
    for (QDomElement record = root.firstChildElement(); !record.isNull(); record = record.nextSiblingElement()) {
        if (record.tagName() == QLatin1String("iwb:element")
            && record.attribute(QStringLiteral("ref")) == rectangleId) {
            return record.attribute(QStringLiteral("background")) != QLatin1String("false");
        }
    }
    return false;
}

QString withoutEnd(const QString &text, int length)
{
    return text.left(qMax(0, text.size() - length));
}

// The first image of the page whose id and the rectangle's have the same beginning before "_bgd" and "_rect". An id
// that is shorter than such an ending has no beginning.
QDomElement pictureOfRectangle(const QDomElement &page, const QString &rectangleId)
{
    const int length = rectangleId.size() - 5;
    if (length < 0) {
        return {};
    }
    const QString tag = QStringLiteral("svg:image");
    for (QDomElement image = page.firstChildElement(tag); !image.isNull(); image = image.nextSiblingElement(tag)) {
        const QString id = image.attribute(QStringLiteral("id"));
        if (id.size() - 4 == length && id.leftRef(length) == rectangleId.leftRef(length)) {
            return image;
        }
    }
    return {};
}

} // namespace

QDomElement ZQSlideTran::tranJSON2IWBPage(QDomDocument &document, QJsonObject json, QJsonObject context)
{
    const QString id = json.value(QLatin1String("ID")).toString();
    const QString rectangleId = id + QLatin1String("_rect");
    QDomElement page = document.createElement(QStringLiteral("svg:page"));
    QDomElement rectangle = document.createElement(QStringLiteral("svg:rect"));
    page.appendChild(rectangle);

    const QColor color(json.value(QLatin1String("BackColor")).toString());
    QJsonObject rectangleJson{
        {QStringLiteral("ID"), rectangleId},
        {QStringLiteral("rgb"), QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue())},
        {QStringLiteral("alp"), QString::number(color.alphaF(), 'g', 6)},
    };
    for (const char *key : {"x", "y", "Width", "Height"}) {
        rectangleJson.insert(QLatin1String(key), json.value(QLatin1String(key)).toString());
    }
    tranJSON2IWB(rectangle, rectangleJson, context);
    if (!json.value(QLatin1String("AttachFile")).toString().isEmpty()) {
        QDomElement image = document.createElement(QStringLiteral("svg:image"));
        page.appendChild(image);
        tranJSON2IWB(image, exportBackground(json), context);
    }
    appendIwbRecord(document, QStringLiteral("iwb:element"),
                    {{QStringLiteral("ref"), rectangleId}, {QStringLiteral("iwb_background"), QStringLiteral("true")}});
    const int index = json.value(QLatin1String("index")).toInt();
    tranJSON2IWB(page, {{QStringLiteral("ID"), QString(QLatin1String("page") + QString::number(index))}}, context);
    return page;
}

QJsonObject ZQSlideTran::exportBackground(const QJsonObject &json)
{
    const QString directory = json.value(QLatin1String("filePath")).toString();
    const QString images = directory + QLatin1String("/images");
    const QString id = json.value(QLatin1String("ID")).toString() + QLatin1String("_bgd");
    const QString name = id + QLatin1String(".png");
    const QString target = images + QLatin1Char('/') + name;
    // Without a directory there is nothing to export into, and an ID with a separator would lead out of it.
    if (!directory.isEmpty() && !name.contains(QLatin1Char('/'))) {
        makeDirectory(images);
        copyFile(withoutEnd(directory, 4) + QLatin1String("/filelibrary/")
                     + json.value(QLatin1String("AttachFile")).toString(),
                 target);
    }
    QJsonObject image{
        {QStringLiteral("ID"), id},
        {QStringLiteral("href"), QString(QLatin1String("images/") + name)},
        {QStringLiteral("background-posture"), QStringLiteral("stretched-to-fill")},
    };
    setSize(image, pictureSize(target));
    return image;
}

QJsonObject ZQSlideTran::tranIWBPage2JSON(QDomElement root, QDomElement page, QJsonObject json, QJsonObject context)
{
    QDomElement rectangle = pageRectangle(page);
    rectangle.setAttribute(QStringLiteral("isloaded"), 1);
    const QJsonObject rectangleJson = tranIWB2JSON(rectangle, json, context);
    json.insert(QLatin1String("ID"), nextGeneratedId());
    json.insert(QLatin1String("BackColor"),
                backgroundColor(rectangleJson.value(QLatin1String("rgb")).toString(),
                                rectangleJson.value(QLatin1String("alp")).toString()));
    const QString rectangleId = rectangleJson.value(QLatin1String("ID")).toString();
    if (recordAllowsPicture(root, rectangleId)) {
        importBackground(page, rectangleId, json);
    }
    json.insert(QLatin1String("EffectType"), QString());
    return json;
}

void ZQSlideTran::importBackground(const QDomElement &page, const QString &rectangleId, QJsonObject &json)
{
    QDomElement image = pictureOfRectangle(page, rectangleId);
    if (image.isNull()) {
        return;
    }
    image.setAttribute(QStringLiteral("isloaded"), 1);
    const QJsonObject imageJson = tranIWB2JSON(image, {}, {});
    const QString path = json.value(QLatin1String("path")).toString();
    const QString source = path + imageJson.value(QLatin1String("href")).toString();
    const QString name = nextGeneratedId() + QLatin1String(".png");
    // Without a directory there is no package to take the picture from.
    if (path.isEmpty() || !isFile(source)) {
        return;
    }
    QString parent = withoutEnd(path, 1);
    parent.truncate(parent.lastIndexOf(QLatin1Char('/')) + 1);
    copyFile(source, parent + QLatin1String("filelibrary/") + name);
    json.insert(QLatin1String("AttachFile"), name);
}
