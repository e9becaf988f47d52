// SPDX-License-Identifier: MIT
#include "drawings/namedboxes.h"

#include "canvas/plainsvg.h"
#include "drawings/itemoutline.h"
#include "lesson/closedtext.h"
#include "lesson/itemview.h"
#include "lesson/plainnames.h"
#include "sentences/sentence.h"

namespace lessonhost {

namespace {

// Keys whose texts stand on an item that has no drawing, the first that has one. HTML and svg are shown as plain text.
constexpr const char *wordKeys[] = {
    "frontContent", "TextHtml", "R_Content_svg", "current_text", "TextPhonetic",      "ChineseWord",
    "EnglishWord",  "Text",     "Title",         "ArtObj_Text",  "GapFillingContent", "original_alphabet",
};

QString wordsOn(const ItemView &item)
{
    for (const char *key : wordKeys) {
        const QString text = item.text(QLatin1String(key));
        const QString plain = text.startsWith(QLatin1Char('<')) ? plainWords(text) : text.simplified();
        if (!plain.isEmpty()) {
            return plain;
        }
    }
    return {};
}

} // namespace

NamedBoxes::NamedBoxes(PlainSvg &svg)
    : m_svg(svg)
{
}

// The item's own; without one, about the points that it tells, or where its Matrix has its origin. The last of it is a
// place at the left edge.
QRectF NamedBoxes::boxOf(const ItemView &item)
{
    const auto place = item.place();
    if (place && place->box.width() >= 1 && place->box.height() >= 1) {
        return place->box;
    }
    constexpr double height = 44;
    constexpr double smallest = 24;
    const QRectF extent = toldExtent(item);
    if (extent.width() >= 1 || extent.height() >= 1) {
        const double across = qMax(0.0, smallest - extent.width()) / 2;
        const double down = qMax(0.0, smallest - extent.height()) / 2;
        return extent.adjusted(-across, -down, across, down);
    }
    if (const auto matrix = item.matrix()) {
        return {matrix->map(QPointF()), QSizeF(4 * height, height)};
    }
    const int perColumn = qMax(1, int((m_svg.size().height() - 20) / (height + 8)));
    const int column = m_withoutPlace / perColumn;
    const int row = m_withoutPlace++ % perColumn;
    return {12 + column * 372.0, 12 + row * (height + 8), 360, height};
}

void NamedBoxes::drawBox(const QJsonObject &item, bool hasPicture)
{
    const ItemView view(item);
    const QString type = view.type();
    Sentence name = saidName(type);
    // A picture has a box with a name only where its file can't be shown.
    if (type == QLatin1String("ZQImagePic") && !hasPicture) {
        name = say("%1 that is missing").arg(name);
    }
    const auto place = view.place();
    const QRectF box = boxOf(view);
    QDomElement frame =
        m_svg.addRectangle(box, QColor(0x77, 0x77, 0x77), QColor(0xee, 0xee, 0xee, hasPicture ? 0 : 150));
    frame.setAttribute(QStringLiteral("stroke-dasharray"), QStringLiteral("10,6"));
    if (place && qAbs(place->angle) > 1e-6) {
        frame.setAttribute(QStringLiteral("transform"),
                           QStringLiteral("rotate(%1 %2 %3)")
                               .arg(place->angle * 57.29577951)
                               .arg(box.center().x())
                               .arg(box.center().y()));
    }
    const QColor nameColor(0x55, 0x55, 0x55);
    const QString text = wordsOn(view);
    if (text.isEmpty() && !hasPicture) {
        m_svg.addLabel(name, box, 28, nameColor);
        return;
    }
    // The name above what stands on the item.
    const double height = qMin(34.0, box.height() * 0.3);
    const QRectF strip(box.left(), box.top(), box.width(), height);
    if (hasPicture) {
        m_svg.addRectangle(strip, Qt::transparent, QColor(0xff, 0xff, 0xff, 190))
            .setAttribute(QStringLiteral("stroke"), QStringLiteral("none"));
    }
    m_svg.addLabel(name, strip, 20, nameColor);
    m_svg.addLabel(text, box.adjusted(0, height, 0, 0), 36, Qt::black);
}

} // namespace lessonhost
