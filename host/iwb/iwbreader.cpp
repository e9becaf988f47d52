// SPDX-License-Identifier: MIT
#include "iwb/iwbreader.h"

#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/pictures.h"
#include "iwb/boarddress.h"
#include "iwb/pagerestorer.h"
#include "iwb/slidenames.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/slidelimits.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lessonhost {

IwbReader::IwbReader(const QString &path, const LessonContext &context)
    : m_plugin(context.plugin)
    , m_losses(context.losses)
    , m_package(path)
    , m_content(m_package.outline(), [this](int part) { return m_package.part(part); })
    , m_slides(context.plugin, this)
    , m_native(m_package)
{
    const IwbOutline &outline = m_package.outline();
    if (!outline.hasSvg()) {
        throw LessonError(say("The document has no svg element with pages"), say("Check that this is an IWB lesson"))
            .in(m_package.displayName());
    }
    nameSlides();
    nameResources();
    repeatBackgrounds();
    const SlideLosses losses = m_losses.presentation();
    tellSlides(losses);
    nameUnreadMeta(losses);
    for (const Sentence &remark : m_package.remarks()) {
        losses.note({QStringLiteral("presentation"), {}}, remark);
    }
    // Where the lesson itself has come along and nobody has changed the pages, they aren't what is read.
    const bool isRestored = m_native.isThere() && m_native.isUntouched();
    for (const SvgRemark &remark : isRestored ? QVector<SvgRemark>() : outline.remarks()) {
        const LossOwner owner(remark.tag, remark.id);
        remark.isLoss ? losses.value(owner, {}, remark.text) : losses.note(owner, remark.text);
    }
}

// A page that another program has added is none of the lesson's own, and so is the second of an identifier.
void IwbReader::nameSlides()
{
    const IwbOutline &outline = m_package.outline();
    const QStringList known = m_native.pageIds();
    int last = -1;
    bool areMoved = false;
    for (int i = 0; i < outline.pageCount(); ++i) {
        const QString id = outline.pageId(i);
        const int number = known.indexOf(id);
        m_isNative.append(number >= 0 && !m_pageNumbers.contains(id));
        areMoved = areMoved || (m_isNative.last() && number != i);
        last = m_isNative.last() ? number : last;
        if (!id.isEmpty() && !m_pageNumbers.contains(id)) {
            m_pageNumbers.insert(id, i + 1);
        }
    }
    if (areMoved || last + 1 != known.size()) {
        QVector<int> numbers;
        for (const QString &id : known) {
            numbers.append(m_pageNumbers.value(id));
        }
        m_links = SlideLinks(numbers);
    }
    QVector<bool> hasName; // from what has come along
    for (int i = 0; i < outline.pageCount(); ++i) {
        hasName.append(m_isNative.at(i) && m_native.hasPage(outline.pageId(i)));
    }
    SlideNames names;
    for (int i = 0; i < outline.pageCount() && hasName.contains(false); ++i) {
        const auto native = hasName.at(i) ? m_native.page(outline.pageId(i)) : std::nullopt;
        if (native) {
            names.take(valueText(native->slide.value(SlideKeys::id)));
        }
    }
    for (int i = 0; i < outline.pageCount(); ++i) {
        m_slideIds.append(hasName.at(i) ? QString() : names.next(outline.backgroundName(i), outline.pageId(i)));
    }
}

// What another program has done to the slides as such, and to what the lesson says of itself.
void IwbReader::tellSlides(const SlideLosses &losses) const
{
    if (!m_native.isThere() || m_native.isUntouched()) {
        return;
    }
    int last = 0;
    bool isReordered = false;
    for (int i = 0; i < m_isNative.size(); ++i) {
        const int number = m_native.pageIds().indexOf(m_package.outline().pageId(i));
        isReordered = isReordered || (m_isNative.at(i) && number < last);
        last = m_isNative.at(i) ? number : last;
    }
    const QString presentation = QStringLiteral("presentation");
    if (isReordered) {
        losses.changed(presentation, say("its slides were put into another order by another program"));
    }
    for (const QString &id : m_native.pageIds()) {
        const auto native = m_pageNumbers.contains(id) ? std::nullopt : m_native.page(id);
        if (native) {
            losses.changed({QStringLiteral("slide"), valueText(native->slide.value(SlideKeys::id))},
                           say("removed by another program"));
        }
    }
    if (!changedInMeta(m_package.outline().meta(), m_native.presentation()).isEmpty()) {
        losses.changed(presentation, say("changed by another program"));
    }
}

// What others say of the document, and no lesson does.
void IwbReader::nameUnreadMeta(const SlideLosses &losses) const
{
    const auto &meta = m_package.outline().meta();
    QStringList names = meta.keys();
    names.sort();
    for (const QString &name : qAsConst(names)) {
        const QString text = meta.value(name);
        const bool isOwn = name == QLatin1String("creator")
            || (m_package.outline().rules().hasPlainTurns && name != QLatin1String("description"));
        if (!text.isEmpty() && !isOwn && presentationInMeta({{name, text}}).isEmpty()) {
            losses.value({QStringLiteral("iwb:meta"), {}}, name, Sentence(text));
        }
    }
}

// Of pictures that stand for items, those that another program has changed are shown. Where there are none, pages need
// not be read for them.
QSet<QString> IwbReader::madePicturesInUse()
{
    const QStringList files = m_package.resources();
    const bool hasMade =
        std::any_of(files.cbegin(), files.cend(), [this](const QString &path) { return m_native.isMade(path); });
    if (!m_native.isThere() || m_native.isUntouched() || !(hasMade || hasRepeatedBackgrounds())) {
        return {};
    }
    m_asked.clear();
    for (int i = 0; i < m_package.outline().pageCount(); ++i) {
        slide(i, {});
    }
    return m_asked;
}

// Files of the lesson keep their paths, those that another program has added get the ones of the package.
void IwbReader::nameResources()
{
    for (auto it = m_native.files().constBegin(); it != m_native.files().constEnd(); ++it) {
        m_resources.insert(it.key(), it.value());
        m_lessonPaths.insert(it.value(), it.key());
    }
    for (auto it = m_native.copies().constBegin(); it != m_native.copies().constEnd(); ++it) {
        m_lessonPaths.insert(it.key(), it.value());
    }
    const QSet<QString> used = madePicturesInUse();
    const QStringList inPackage = m_package.resources();
    for (const QString &path : inPackage) {
        const bool isOwn =
            m_native.isThere() && (NativePart::isPart(path) || (m_native.isMade(path) && !used.contains(path)));
        if (m_lessonPaths.contains(path) || isOwn) {
            continue;
        }
        QString name = path;
        while (m_resources.contains(name)) {
            name.insert(name.lastIndexOf(QLatin1Char('/')) + 1, QLatin1Char('_'));
        }
        m_resources.insert(name, path);
        m_lessonPaths.insert(path, name);
    }
}

bool IwbReader::hasRepeatedBackgrounds() const
{
    const auto &records = m_package.outline().rules().records;
    return std::any_of(records.cbegin(), records.cend(), [](const IwbRecord &record) {
        return record.isBackground && record.posture == QLatin1String("repeated");
    });
}

// Pictures that are made have to be known before the slides that show them.
void IwbReader::repeatBackgrounds()
{
    const bool isAsked = hasRepeatedBackgrounds();
    for (int i = 0; isAsked && i < m_package.outline().pageCount(); ++i) {
        slide(i, {});
    }
}

// A page of more pixels gets a picture of fewer.
QString IwbReader::repeated(const QString &picture, const QSizeF &tile)
{
    constexpr double mostPixels = 4e6;
    constexpr double largestSide = 8192;
    const QString key = QStringLiteral("%1 %2 %3").arg(picture).arg(tile.width()).arg(tile.height());
    if (m_repetitions.contains(key)) {
        return m_repetitions.value(key);
    }
    QImage one = Picture(resourceFile(picture)).image();
    const QSizeF page = m_package.outline().rules().viewBox.size();
    const double scale = std::min({1.0, std::sqrt(mostPixels / (page.width() * page.height())),
                                   largestSide / std::max(page.width(), page.height())});
    QImage all((page * scale).toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    if (one.isNull() || all.isNull()) {
        return picture;
    }
    all.fill(Qt::transparent);
    const QSizeF size = tile.isEmpty() ? QSizeF(one.size()) : tile;
    const QSizeF drawn = size * scale;
    // Of one that is made smaller or larger as it is drawn, the edges would run into each other.
    if (drawn.width() >= 1 && drawn.height() >= 1 && drawn.width() * drawn.height() <= mostPixels) {
        one = one.scaled(drawn.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QBrush brush(one);
    brush.setTransform(QTransform::fromScale(drawn.width() / one.width(), drawn.height() / one.height()));
    QPainter painter(&all);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(all.rect(), brush);
    painter.end();
    QBuffer bytes;
    if (!all.save(&bytes, "png")) {
        throw packingError(picture).in(m_package.displayName());
    }
    const QString file = m_package.workFolder() + QStringLiteral("/repeated-%1.png").arg(m_repeated.size() + 1);
    writeFile(file, bytes.data(), m_package.displayName(), OutputFile::Temporary);
    QString path = picture.section(QLatin1Char('/'), 0, -2) + QLatin1Char('/') + QFileInfo(picture).completeBaseName()
        + QLatin1String("_repeated.png");
    path = path.startsWith(QLatin1Char('/')) ? path.mid(1) : path;
    while (m_resources.contains(path) || m_repeated.contains(path)) {
        path.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1Char('_'));
    }
    m_repeated.insert(path, file);
    m_repetitions.insert(key, path);
    return path;
}

QJsonObject IwbReader::presentation()
{
    QDomDocument document;
    const QJsonObject shown = m_plugin->tranPresIWB2JSON(m_package.outline().sizeElement(document), {});
    QJsonObject presentation = shown;
    if (m_native.isThere()) {
        presentation = m_native.presentation();
        const QSizeF size(itemNumber(shown.value(PresentationKeys::width)),
                          itemNumber(shown.value(PresentationKeys::height)));
        const QSizeF changed = size - m_native.size();
        if (qAbs(changed.width()) > 0.01 || qAbs(changed.height()) > 0.01) {
            presentation.insert(PresentationKeys::width, shown.value(PresentationKeys::width));
            presentation.insert(PresentationKeys::height, shown.value(PresentationKeys::height));
        }
        const QJsonObject meta = changedInMeta(m_package.outline().meta(), presentation);
        for (auto it = meta.constBegin(); it != meta.constEnd(); ++it) {
            presentation.insert(it.key(), it.value());
        }
        return presentation;
    }
    const QJsonObject meta = presentationInMeta(m_package.outline().meta());
    for (auto it = meta.constBegin(); it != meta.constEnd(); ++it) {
        presentation.insert(it.key(), it.value());
    }
    return presentation;
}

LessonSlide IwbReader::slide(int index)
{
    return slide(index, m_losses.slide(index + 1));
}

LessonSlide IwbReader::slide(int index, const SlideLosses &losses)
{
    const auto native = m_isNative.at(index) ? m_native.page(m_package.outline().pageId(index)) : std::nullopt;
    LessonSlide slide;
    if (native) {
        const bool isUntouched = m_native.isUntouched() || m_intactPages.contains(index);
        PageRestorer restorer(m_content, m_slides, m_package.recordTexts(), m_links, isUntouched);
        slide = restorer.restore(index, *native, losses);
        if (restorer.isAsMarked()) {
            m_intactPages.insert(index);
        }
    } else {
        slide = m_slides.read(m_content.page(index), index + 1, losses).slide;
        const bool isDamaged = m_isNative.at(index);
        const QString name = m_slideIds.at(index);
        const QString id = name.isEmpty() ? m_package.outline().pageId(index) : name;
        slide.properties.insert(SlideKeys::id, id);
        const LossOwner owner(QStringLiteral("slide"), id);
        if (isDamaged) {
            losses.note(owner,
                        say("what the file has of the lesson itself is damaged, so it is read as others show it"));
        } else if (m_native.isThere()) {
            losses.changed(owner, say("added by another program"));
        }
    }
    checkSlideItems(slide.items, index + 1, m_package.displayName());
    if (slide.items.isEmpty() && losses.hasItem()) {
        losses.emptied({QStringLiteral("slide"), slide.properties.value(SlideKeys::id).toString()});
    }
    return slide;
}

} // namespace lessonhost
