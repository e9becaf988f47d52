// SPDX-License-Identifier: MIT
#include "iwb/iwbreader.h"

#include "files/lessonerror.h"
#include "iwb/boarddress.h"
#include "iwb/pagerestorer.h"
#include "iwb/slidenames.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/slidelimits.h"

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
    SlideNames names;
    for (int i = 0; i < outline.pageCount(); ++i) {
        const QString id = outline.pageId(i);
        if (!id.isEmpty() && !m_pageNumbers.contains(id)) {
            m_pageNumbers.insert(id, i + 1);
        }
        m_slideIds.append(names.next(outline.backgroundName(i), id));
    }
    nameResources();
    const SlideLosses losses = m_losses.presentation();
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

// Of pictures that stand for items, those that another program has changed are shown.
QSet<QString> IwbReader::madePicturesInUse()
{
    if (!m_native.isThere() || m_native.isUntouched()) {
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
    const auto native = m_native.page(m_package.outline().pageId(index));
    LessonSlide slide;
    if (native) {
        slide = PageRestorer(m_content, m_slides, m_package.recordTexts(), m_native.isUntouched())
                    .restore(index, *native, losses);
    } else {
        slide = m_slides.read(m_content.page(index), index + 1, losses).slide;
        slide.properties.insert(SlideKeys::id, m_slideIds.at(index));
    }
    checkSlideItems(slide.items, index + 1, m_package.displayName());
    if (slide.items.isEmpty() && losses.hasItem()) {
        losses.emptied({QStringLiteral("slide"), slide.properties.value(SlideKeys::id).toString()});
    }
    return slide;
}

} // namespace lessonhost
