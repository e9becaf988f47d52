// SPDX-License-Identifier: MIT
#include "render/picturestore.h"

#include "files/xmlloader.h"
#include "files/xmltext.h"

#include <QDomDocument>
#include <QSvgRenderer>

namespace lessonhost {

namespace {

const QLatin1String namePrefix("picture");
const QLatin1String reference("xlink:href");
constexpr int none = -1;
constexpr double largeEnough = 1024; // pixels

qint64 areaOf(const QSize &size)
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
    if (index == none || areaOf(m_entries.at(index).size) > most) {
        index = m_indices.value({print, most}, none);
    }
    if (index == none) {
        const Picture picture(file);
        index = m_entries.size();
        const bool isWhole = areaOf(picture.size()) <= most;
        m_entries.append({file, picture.shown(most, budget).size, most, picture.format() == "svg"});
        m_indices.insert({print, isWhole ? 0 : most}, index);
    }
    if (m_entries.at(index).size.isEmpty()) {
        return {};
    }
    budget.take(pixels, areaOf(m_entries.at(index).size));
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

QByteArray PictureStore::text(const QDomElement &svg, const QHash<QString, QString> &attributes) const
{
    QHash<QString, QString> addresses; // by name
    const auto addressOfPicture = [&](const QString &name) {
        auto address = addresses.constFind(name);
        if (address == addresses.constEnd()) {
            address = addresses.insert(name, addressOf(shown(name)));
        }
        return *address;
    };
    const auto change = [&](const QDomElement &element, QVector<XmlAttribute> &own) {
        const QString name = pictureOf(element);
        for (XmlAttribute &attribute : own) {
            if (!name.isEmpty() && attribute.name == reference) {
                attribute.value = addressOfPicture(name);
            } else if (!attributes.isEmpty() && element == svg) {
                attribute.value = attributes.value(attribute.name, attribute.value);
            }
        }
    };
    return xmlNodeText(svg, change).toUtf8();
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
