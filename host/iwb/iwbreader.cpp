#include "iwb/iwbreader.h"

#include "files/lessonerror.h"
#include "iwb/slidenames.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/slidelimits.h"

namespace lessonhost {

namespace {

// What documents say about themselves, and the lesson's keys for it.
constexpr std::pair<const char *, const char *> metaKeys[] = {
    {"owner", "Author"}, {"title", "Title"}, {"date", "Date"}, {"modified", "Date_modified"}};

} // namespace

IwbReader::IwbReader(const QString &path, const LessonContext &context)
    : m_plugin(context.plugin)
    , m_losses(context.losses)
    , m_package(path)
    , m_content(m_package.root())
    , m_slides(context.plugin, this)
{
    if (!m_content.hasSvg()) {
        throw LessonError(QStringLiteral("The document has no svg element with pages"),
                          QStringLiteral("Check that this is an IWB lesson"))
            .in(m_package.displayName());
    }
    SlideNames names;
    for (int i = 0; i < m_content.pageCount(); ++i) {
        const QString id = m_content.pageId(i);
        if (!id.isEmpty() && !m_pageNumbers.contains(id)) {
            m_pageNumbers.insert(id, i + 1);
        }
        m_slideIds.append(names.next(m_content.backgroundName(i), id));
    }
    const SlideLosses losses = m_losses.presentation();
    const auto &meta = m_content.meta();
    if (!meta.value(QStringLiteral("description")).isEmpty()) {
        losses.value({QStringLiteral("iwb:meta"), {}}, QStringLiteral("description"),
                     meta.value(QStringLiteral("description")));
    }
    for (const QString &remark : m_package.remarks()) {
        losses.note({QStringLiteral("presentation"), {}}, remark);
    }
    for (const SvgRemark &remark : m_content.remarks()) {
        const LossOwner owner(remark.tag, remark.id);
        remark.isLoss ? losses.value(owner, {}, remark.text) : losses.note(owner, remark.text);
    }
}

QJsonObject IwbReader::presentation()
{
    QDomDocument document;
    QJsonObject presentation = m_plugin->tranPresIWB2JSON(m_content.sizeElement(document), {});
    for (const auto &[name, key] : metaKeys) {
        const QString text = m_content.meta().value(QLatin1String(name));
        if (!text.isEmpty()) {
            presentation.insert(QLatin1String(key), text);
        }
    }
    return presentation;
}

LessonSlide IwbReader::slide(int index)
{
    LessonSlide slide = m_slides.read(m_content.page(index), index + 1, m_losses.slide(index + 1)).slide;
    checkSlideItems(slide.items, index + 1, m_package.displayName());
    slide.properties.insert(SlideKeys::id, m_slideIds.at(index));
    return slide;
}

} // namespace lessonhost
