// SPDX-License-Identifier: MIT
#include "render/slidepictures.h"

#include "canvas/plainsvg.h"
#include "drawings/activitydrawing.h"
#include "drawings/drawings.h"
#include "drawings/shownitems.h"
#include "lesson/closedtext.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "render/drawntexts.h"
#include "render/itemlabel.h"
#include "render/playsteps.h"
#include "render/slideplay.h"

#include <algorithm>
#include <optional>

namespace lessonhost {

namespace {

// The page of a slide. Slides that tell what they were fitted from have a page each.
QJsonObject sizeFor(QJsonObject presentation, const QJsonObject &slide)
{
    if (!isEmptyValue(slide.value(SlideKeys::sourceRect))) {
        presentation.remove(PresentationKeys::width);
        presentation.remove(PresentationKeys::height);
    }
    return presentation;
}

IwbItemWriter::Setting drawnSetting(IZQTransformation *plugin, IwbMedia *media)
{
    IwbItemWriter::Setting setting;
    setting.plugin = plugin;
    setting.media = media;
    setting.keepsLinks = false; // a picture opens nothing
    setting.isStored = false;
    return setting;
}

// What the text says that begins highest on the page, shortened to a line.
QString titleOf(const QVector<ShownItem> &items)
{
    constexpr int longest = 60;
    QVector<QPair<double, QJsonObject>> texts; // by their upper ends
    for (const ShownItem &shown : items) {
        const ItemView view(shown.item);
        if (const auto place = isTextBoard(view.type()) ? view.place() : std::nullopt) {
            const double top = shown.placed.mapRect(place->extent()).top();
            texts.append({qIsNaN(top) ? 0 : top, shown.item});
        }
    }
    std::stable_sort(texts.begin(), texts.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QString title;
    for (int i = 0; i < texts.size() && title.isEmpty(); ++i) {
        const ItemView view(texts.at(i).second);
        const QString html = view.text(ItemKeys::html);
        title = html.isEmpty() ? view.text(ItemKeys::text).simplified() : plainWords(html);
    }
    if (title.size() > longest) {
        const int end = title.lastIndexOf(QLatin1Char(' '), longest);
        title = title.left(end > longest / 2 ? end : longest) + QChar(0x2026);
    }
    return title;
}

} // namespace

Sentence SlidePicture::outlineLine() const
{
    const Sentence line = say("Slide %1").arg(slide);
    return title.isEmpty() ? line : say("%1: %2").arg(line, title);
}

SlidePictures::SlidePictures(LessonReader &reader, const LessonContext &context, PictureStore &store,
                             const std::optional<QColor> &ground)
    : m_reader(reader)
    , m_store(store)
    , m_ground(ground)
    , m_pages(drawnSetting(context.plugin, &m_media))
{
    const QStringList files = reader.resources();
    for (const QString &file : files) {
        m_media.add(file, reader.resourceFile(file));
    }
}

SlidePicture SlidePictures::picture(int index)
{
    const LessonSlide slide = m_reader.slide(index);
    constexpr double longestSide = 20000;

    SlidePicture result;
    result.slide = index + 1;
    m_pages.start(sizeFor(m_reader.presentation(), slide.properties), slide.properties);
    const QSizeF size = m_pages.pageSize();
    result.size = QSizeF(qBound(1.0, size.width(), longestSide), qBound(1.0, size.height(), longestSide));

    PlainSvg plain(result.size, m_media, m_store, m_ground.value_or(Qt::white));
    plain.setNames(QLatin1Char('s') + QString::number(result.slide));
    if (m_isEnglish) {
        plain.sayInEnglish();
    }
    const QDomElement page = m_pages.addPage(slide.properties, 1, {});
    for (QDomElement e = page.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const bool isColor = e.tagName() == QLatin1String("svg:rect");
        if (!isColor || !m_ground) {
            plain.add(e);
        }
    }
    PlaySteps steps;
    if (m_files) {
        steps = playSteps(slide, m_media, *m_files);
    }
    const QVector<ShownItem> items = shownItems(slide.items, steps.brought());
    Drawings drawings(plain, m_pages, m_media);
    drawings.drawGame(slide.properties, items);
    for (const ShownItem &shown : items) {
        drawings.rubOut(shown.item, shown.placed);
    }
    for (const ShownItem &shown : items) {
        std::optional<PlainSvg::ItemGroup> group;
        if (m_files) {
            const QString cover = QLatin1String(TO_SAY("Cover"));
            const ItemLabel label = shown.isCover() ? ItemLabel{cover, cover} : itemLabel(ItemView(shown.item));
            group.emplace(plain, shown.id, label.kind, label.text, shown.isHidden,
                          shown.isCover() ? PlainSvg::ItemGroup::Cover : PlainSvg::ItemGroup::Front);
        }
        const PlainSvg::Scope scope(plain, shown.placed);
        if (shown.isCover()) {
            drawings.drawCover(shown.cover);
        } else if (!drawings.draw(shown.item)) {
            const ItemView view(shown.item);
            result.named.append({view.type(), view.id()});
        }
        group.reset();
        const QJsonObject back = m_files ? backOfCard(shown.item) : QJsonObject();
        if (!back.isEmpty()) {
            const PlainSvg::ItemGroup side(plain, shown.id, QString(), QString(), true, PlainSvg::ItemGroup::Back);
            drawings.draw(back);
        }
    }
    result.svg = plain.finished();
    const DrawnTexts texts = DrawnTexts::of(result.svg.documentElement());
    m_missing.lookAt(texts.words, texts.families, result.slide);
    result.language = texts.language;
    result.title = titleOf(items);
    if (m_files) {
        result.play = slidePlay(slide, items, steps, m_media, *m_files);
    }
    return result;
}

} // namespace lessonhost
