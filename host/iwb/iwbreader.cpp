#include "iwb/iwbreader.h"

#include "files/lessonerror.h"
#include "iwb/slidenames.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/slidelimits.h"

namespace lessonhost {

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
    for (const SvgRemark &remark : m_content.remarks()) {
        const LossOwner owner(remark.tag, remark.id);
        remark.isLoss ? losses.value(owner, {}, remark.text) : losses.note(owner, remark.text);
    }
}

QJsonObject IwbReader::presentation()
{
    QDomDocument document;
    return m_plugin->tranPresIWB2JSON(m_content.sizeElement(document), {});
}

LessonSlide IwbReader::slide(int index)
{
    LessonSlide slide = m_slides.read(m_content.page(index), index + 1, m_losses.slide(index + 1)).slide;
    checkSlideItems(slide.items, index + 1, m_package.displayName());
    slide.properties.insert(SlideKeys::id, m_slideIds.at(index));
    return slide;
}

} // namespace lessonhost
