// SPDX-License-Identifier: MIT
#include "drawings/activitydrawing.h"

#include "drawings/chips.h"
#include "drawings/itemoutline.h"

namespace lessonhost {

namespace {

// What an item is without a picture.
enum class Frame {
    None, //!< a text alone
    Place, //!< where something is to be put
    Card
};

struct Kind
{
    const char *type;
    Frame frame;
    bool isAnyName = false; //!< any type whose name has this in it
    const char *text = "TextHtml"; //!< the first of two keys that says something
    const char *otherText = "GapFillingContent";
};

// clang-format off
constexpr Kind kinds[] = {
    {"ZQActiveContainerItem", Frame::Place},
    {"ZQActiveMaterialItem", Frame::Card},
    {"ZQActiveContainerClassifyItem", Frame::Place},
    {"ZQActiveMaterialClassifyItem", Frame::Card},
    {"ZQActiveContainerGapFillingItem", Frame::Place, false, "GapFillingContent", "TextHtml"},
    {"ZQActiveMaterialGapFillingItem", Frame::Card},
    {"ZQActiveMaterialCompetitionItem", Frame::Card},
    {"ZQActiveContainerSentenceItem", Frame::Place},
    {"ZQActiveMaterialSentenceItem", Frame::Card},
    {"ZQActivityFlipItem", Frame::Card, false, "frontContent", ""},
    {"ZQActiveContainerComparison", Frame::Place, true},
    {"ZQActiveMaterialComparison", Frame::Card, true},
    {"ZQActiveMaterialStudent", Frame::Card, true},
    {"ZQActiveMaterialMark", Frame::None, true},
    {"ZQActivityPronunciationTestTextItem", Frame::None, true},
    {"ZQActivityPronunciationTestTipItem", Frame::None, true},
    // the names that the first of them have in packages
    {"container", Frame::Place},
    {"material", Frame::Card},
    {"container_classify", Frame::Place},
    {"material_classify", Frame::Card},
    {"container_gapfilling", Frame::Place, false, "GapFillingContent", "TextHtml"},
    {"material_gapfilling", Frame::Card},
    {"material_competitionItem", Frame::Card},
};
// clang-format on

const Kind *kindOf(const QString &type)
{
    for (const Kind &kind : kinds) {
        const QLatin1String name(kind.type);
        if (kind.isAnyName ? type.contains(name) : type == name) {
            return &kind;
        }
    }
    return nullptr;
}

// A font as text: its family, its size in points, and more.
void takeFont(TextLook &look, const QString &font)
{
    constexpr double pixelsOfPoint = 96.0 / 72;
    const QString family = font.section(QLatin1Char(','), 0, 0).trimmed();
    const double points = font.section(QLatin1Char(','), 1, 1).toDouble();
    if (!family.isEmpty()) {
        look.family = family;
    }
    if (points > 0) {
        look.pixels = points * pixelsOfPoint;
    }
}

TextLook lookOf(const ItemView &item)
{
    TextLook look;
    look.alignment = Qt::AlignHCenter;
    takeFont(look, item.text(QLatin1String("defaultFrontFontFormat")));
    const double size = item.number(QLatin1String("defaultTextSize"));
    if (size > 0) {
        look.pixels = size;
    }
    const QString family = item.text(QLatin1String("defaultTextFamily"));
    if (!family.isEmpty()) {
        look.family = family;
    }
    takeAlignment(look, item.text(QLatin1String("defaultTextAlignment")));
    look.color = item.color(QLatin1String("defaultTextColor")).value_or(look.color);
    return look;
}

// The picture of a card's front, or what lies behind the text.
QString pictureOf(const ItemView &item)
{
    const QJsonValue attachments = item.json().value(ItemKeys::attachments);
    const QString front = attachments.toObject().value(QLatin1String("front")).toString();
    return front.isEmpty() ? item.text(ItemKeys::document) : front;
}

bool drawActivityItem(Canvas &canvas, const ItemView &item)
{
    const Kind *const kind = kindOf(item.type());
    const auto box = item.box();
    if (!kind || !box || box->isEmpty()) {
        return false;
    }
    const QString text = item.text(QLatin1String(item.has(QLatin1String(kind->text)) ? kind->text : kind->otherText));
    const PlainSvg::Scope scope(canvas.svg(), placeOnPage(item));
    const bool hasPicture = canvas.addPicture(pictureOf(item), *box);
    if (!hasPicture && kind->frame == Frame::None && text.isEmpty()) {
        return false;
    }
    ChipLook look;
    look.text = lookOf(item);
    look.isDashed = kind->frame == Frame::Place;
    if (hasPicture || kind->frame == Frame::None) {
        look.face = look.edge = Qt::transparent;
    } else if (look.isDashed) {
        look.face = QColor(255, 255, 255, 120);
    }
    addChip(canvas, *box, text, look);
    return true;
}

} // namespace

SvgDrawing activityDrawing(const QString &type)
{
    return kindOf(type) ? &drawActivityItem : nullptr;
}

QJsonObject backOfCard(const QJsonObject &card)
{
    const ItemView view(card);
    const QString picture =
        card.value(ItemKeys::attachments).toObject().value(QLatin1String("back")).toString();
    if (view.type() != QLatin1String("ZQActivityFlipItem") || (picture.isEmpty() && !view.has(ItemKeys::html))) {
        return {};
    }
    QJsonObject back = card;
    back.insert(QStringLiteral("frontContent"), card.value(ItemKeys::html));
    back.insert(QStringLiteral("defaultFrontFontFormat"), card.value(QLatin1String("defaultBackFontFormat")));
    back.insert(ItemKeys::document, picture);
    back.remove(ItemKeys::attachments);
    return back;
}

} // namespace lessonhost
