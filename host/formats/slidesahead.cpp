// SPDX-License-Identifier: MIT
#include "formats/slidesahead.h"

namespace lessonhost {

namespace {

LessonContext withReport(LessonContext context, LossReport *own)
{
    context.losses = context.losses ? own : nullptr;
    return context;
}

} // namespace

SlidesAhead::SlidesAhead(const LessonFormat &format, const QString &path, const LessonContext &context)
    : m_losses(context.losses)
    , m_own(context.losses ? context.losses->another() : LossReport())
    , m_reader(format.open(path, withReport(context, &m_own)))
    , m_presentation(m_reader->presentation())
    , m_count(m_reader->slideCount())
{
    if (m_losses) {
        m_losses->add(m_own.takeEntries());
    }
}

LessonSlide SlidesAhead::slide(int index)
{
    LessonSlide slide = m_slides.take(index, m_count);
    if (m_losses) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_losses->add(m_told.take(index));
    }
    return slide;
}

LessonSlide SlidesAhead::read(int index)
{
    LessonSlide slide = m_reader->slide(index);
    if (m_losses) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        auto told = m_told.find(index);
        if (told == m_told.end()) {
            told = m_told.insert(index, m_own.entries().another());
        }
        told->append(m_own.takeEntries());
    }
    return slide;
}

std::unique_ptr<LessonReader> openLesson(const LessonFormat &format, const QString &path, const LessonContext &context)
{
    if (context.readsAhead) {
        return std::make_unique<SlidesAhead>(format, path, context);
    }
    return format.open(path, context);
}

} // namespace lessonhost
