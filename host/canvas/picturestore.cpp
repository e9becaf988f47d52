// SPDX-License-Identifier: MIT
#include "canvas/picturestore.h"

#include "canvas/svgelements.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "lesson/isoneof.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QSet>
#include <QSvgRenderer>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String namePrefix("picture");
const QLatin1String reference("xlink:href");
constexpr const char *attributesOfBoxes[] = {"x", "y", "width", "height", "preserveAspectRatio", "transform"};
constexpr int none = -1;
constexpr double largeEnough = 1024; // pixels

// Of a reference that stands in the place of a picture.
QVector<XmlAttribute> usingAttributes(const QDomElement &image, const QVector<XmlAttribute> &own, const QSize &size)
{
    QVector<XmlAttribute> attributes{
        {QStringLiteral("transform"), drawnTransform(pictureTransform(image, size))},
    };
    for (const XmlAttribute &attribute : own) {
        if (!isOneOf(attributesOfBoxes, attribute.name)) {
            attributes.append(attribute);
        }
    }
    return attributes;
}

qint64 pixelCount(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

} // namespace

QString PictureStore::add(const QString &file, PixelBudget &budget)
{
    auto known = m_known.constFind(file);
    if (known == m_known.constEnd()) {
        const Picture picture(file);
        known = m_known.insert(file, {picture.fingerprint(), picture.unpackedPixels()});
    }
    const QByteArray print = known->fingerprint;
    const qint64 pixels = known->pixels;
    const qint64 most = budget.shareFor(pixels);
    int index = m_indices.value({print, 0}, none);
    if (most <= 0) {
        return {};
    }
    if (index == none || pixelCount(m_entries.at(index).size) > most) {
        index = m_indices.value({print, most}, none);
    }
    if (index == none) {
        const Picture picture(file);
        index = m_entries.size();
        const bool isWhole = pixelCount(picture.size()) <= most;
        m_entries.append({file, picture.shown(most, budget).size, most, picture.format() == "svg"});
        m_indices.insert({print, isWhole ? 0 : most}, index);
    }
    if (m_entries.at(index).size.isEmpty()) {
        return {};
    }
    budget.take(pixels, pixelCount(m_entries.at(index).size));
    return namePrefix + QString::number(index);
}

int PictureStore::indexOf(const QString &name) const
{
    return name.midRef(namePrefix.size()).toInt();
}

QString PictureStore::pictureOf(const QDomElement &element) const
{
    if (element.tagName() != QLatin1String("image")) {
        return {};
    }
    const QString name = element.attribute(reference).mid(1);
    return name.startsWith(namePrefix) && indexOf(name) < m_entries.size() ? name : QString();
}

ShownPicture PictureStore::shown(const QString &name) const
{
    const Entry &entry = m_entries.at(indexOf(name));
    if (entry.isDrawing) {
        return {"svg+xml", drawing(name), entry.size};
    }
    PixelBudget inner;
    return Picture(entry.file).shown(entry.most, inner);
}

QImage PictureStore::image(const QString &name) const
{
    const Entry &entry = m_entries.at(indexOf(name));
    return Picture(entry.file).image(entry.most);
}

QByteArray PictureStore::drawing(const QString &name) const
{
    const QByteArray text = Picture(m_entries.at(indexOf(name)).file).drawing().text;
    const QDomDocument document = loadXml(text, QStringLiteral("svg"), XmlBlanks::Kept);
    QDomElement svg = document.documentElement();
    const QRectF view = QSvgRenderer(text).viewBoxF();
    svg.setAttribute(QStringLiteral("viewBox"),
                     QStringLiteral("%1 %2 %3 %4").arg(view.x()).arg(view.y()).arg(view.width()).arg(view.height()));
    // Some viewers draw it as large as it says before they stretch it.
    const double factor = qMax(1.0, largeEnough / qMax(view.width(), view.height()));
    svg.setAttribute(QStringLiteral("width"), QString::number(view.width() * factor));
    svg.setAttribute(QStringLiteral("height"), QString::number(view.height() * factor));
    svg.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    return xmlNodeText(svg).toUtf8();
}

// In its own size, for others to refer to.
QString PictureStore::definition(const QString &name) const
{
    const QSize own = size(name);
    return QStringLiteral(
               "<image height=\"%1\" id=\"%2\" preserveAspectRatio=\"none\" width=\"%3\" xlink:href=\"%4\"/>")
        .arg(QString::number(own.height()), name, QString::number(own.width()), addressOf(shown(name)));
}

QByteArray PictureStore::text(const QDomElement &svg, const QHash<QString, QString> &attributes) const
{
    QHash<QString, int> uses; // by name
    for (const QDomElement &image : imagesIn(svg)) {
        const QString name = pictureOf(image);
        uses[name] += name.isEmpty() ? 0 : 1;
    }
    QString definitions;
    QSet<QString> defined;
    // A picture without a width or height isn't seen, and some viewers take such a reference for an error.
    constexpr double smallest = 1e-6;
    const auto change = [&](const QDomElement &element, QString &tag, QVector<XmlAttribute> &own) {
        if (!attributes.isEmpty() && element == svg) {
            for (XmlAttribute &attribute : own) {
                attribute.value = attributes.value(attribute.name, attribute.value);
            }
            return;
        }
        const QString name = pictureOf(element);
        if (name.isEmpty()) {
            return;
        }
        if (uses.value(name) > 1) {
            const QTransform placed = pictureTransform(element, size(name));
            if (std::hypot(placed.m11(), placed.m12()) < smallest
                || std::hypot(placed.m21(), placed.m22()) < smallest) {
                tag = QStringLiteral("g");
                own.clear();
                return;
            }
            tag = QStringLiteral("use");
            if (!defined.contains(name)) {
                defined.insert(name);
                definitions += definition(name);
            }
            own = usingAttributes(element, own, size(name));
            return;
        }
        for (XmlAttribute &attribute : own) {
            attribute.value = attribute.name == reference ? addressOf(shown(name)) : attribute.value;
        }
    };
    QString text = xmlNodeText(svg, change);
    if (!definitions.isEmpty()) {
        // Attributes have no such letter as itself.
        text.insert(text.indexOf(QLatin1Char('>')) + 1,
                    QLatin1String("<defs>") + definitions + QLatin1String("</defs>"));
    }
    return text.toUtf8();
}

QTransform pictureTransform(const QDomElement &image, const QSize &size)
{
    const auto number = [&image](const char *name) { return image.attribute(QLatin1String(name)).toDouble(); };
    const QTransform stretched(number("width") / qMax(1, size.width()), 0, 0, number("height") / qMax(1, size.height()),
                               number("x"), number("y"));
    return stretched * svgTransform(image.attribute(QStringLiteral("transform"))).value_or(QTransform());
}

QVector<QDomElement> imagesIn(const QDomElement &svg)
{
    const QDomNodeList nodes = svg.elementsByTagName(QStringLiteral("image"));
    QVector<QDomElement> images;
    images.reserve(nodes.size());
    for (int i = 0; i < nodes.size(); ++i) {
        images.append(nodes.at(i).toElement());
    }
    return images;
}

} // namespace lessonhost
