// SPDX-License-Identifier: MIT
#include "picturesize.h"

#include "packagefiles.h"

#include <QFile>
#include <QImageReader>
#include <QXmlStreamReader>

#include <cmath>

namespace {

const QSize noPicture(0, 0);

// More pixels than this aren't loaded to see that they can be, so that a small file can't fill the memory.
const qint64 largestLoaded = qint64(16) * 1024 * 1024;

// No side of a picture is longer.
const double longestSide = 1e6;

struct Unit
{
    QLatin1String name;
    double pixels;
};

// As Qt draws them.
const Unit units[] = {
    {QLatin1String("px"), 1},        {QLatin1String("pc"), 1},        {QLatin1String("pt"), 1},
    {QLatin1String("mm"), 3.543307}, {QLatin1String("cm"), 35.43307}, {QLatin1String("in"), 90},
};

// The whole pixels of a length such as "12", "12.5px" or "50%", which is a share of whole; 0 for any other text.
double pixelsOfLength(const QStringRef &text, double whole)
{
    const QStringRef length = text.trimmed();
    if (length.endsWith(QLatin1Char('%'))) {
        return std::round(length.chopped(1).toDouble() / 100 * whole);
    }
    for (const Unit &unit : units) {
        if (length.endsWith(unit.name)) {
            return std::trunc(length.chopped(unit.name.size()).toDouble() * unit.pixels);
        }
    }
    return std::trunc(length.toDouble());
}

// False for what is no number, too.
bool isSize(const QSizeF &size)
{
    return size.width() >= 0.5 && size.height() >= 0.5 && size.width() <= longestSide && size.height() <= longestSide;
}

// The size that the root of an svg tells, in width and height or else in its viewBox. The picture itself isn't looked
// at: to load it takes the fonts of a QGuiApplication, and opens whatever files it names.
QSize svgSize(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return noPicture;
    }
    QXmlStreamReader xml(&file);
    xml.setNamespaceProcessing(false);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("svg")) {
        return noPicture;
    }
    const QXmlStreamAttributes attributes = xml.attributes();
    const QString viewBox =
        attributes.value(QLatin1String("viewBox")).toString().replace(QLatin1Char(' '), QLatin1Char(','));
    const QStringList sides = viewBox.split(QLatin1Char(','), Qt::SkipEmptyParts);
    const QSizeF whole = sides.size() == 4 ? QSizeF(sides.at(2).toDouble(), sides.at(3).toDouble()) : QSizeF(0, 0);
    const QSizeF size(pixelsOfLength(attributes.value(QLatin1String("width")), whole.width()),
                      pixelsOfLength(attributes.value(QLatin1String("height")), whole.height()));
    if (size.width() > 0 && size.height() > 0) {
        return isSize(size) ? size.toSize() : noPicture;
    }
    return isSize(whole) ? whole.toSize() : noPicture;
}

} // namespace

QSize pictureSize(const QString &file)
{
    if (!isFile(file)) {
        return noPicture;
    }
    QImageReader reader(file);
    if (reader.format().startsWith("svg")) {
        return svgSize(file);
    }
    const QSize size = reader.size();
    if (size.isEmpty()) {
        return noPicture;
    }
    return qint64(size.width()) * size.height() > largestLoaded ? size : reader.read().size();
}
