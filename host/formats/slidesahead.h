// SPDX-License-Identifier: MIT
#ifndef SLIDESAHEAD_H
#define SLIDESAHEAD_H

#include "formats/lessonformats.h"
#include "losses/lossreport.h"
#include "threads/readahead.h"

#include <QHash>

#include <mutex>

namespace lessonhost {

/*!
 * A lesson of which a second thread reads the next slide while one is worked with. What is told of a slide comes into
 * the report when it is asked for, so that reports are the same as without.
 */
class SlidesAhead : public LessonReader
{
public:
    SlidesAhead(const LessonFormat &format, const QString &path, const LessonContext &context);

    QJsonObject presentation() override { return m_presentation; }
    int slideCount() override { return m_count; }
    LessonSlide slide(int index) override;
    QStringList resources() override { return m_reader->resources(); }
    QString resourceFile(const QString &relativePath) override { return m_reader->resourceFile(relativePath); }

private:
    LessonSlide read(int index);

    LossReport *m_losses; // null for nobody who listens
    LossReport m_own; // the reader's
    std::unique_ptr<LessonReader> m_reader;
    QJsonObject m_presentation;
    int m_count;
    std::mutex m_mutex; // of what is below
    QHash<int, LossList> m_told; // of slides that are read, until they are asked for
    ReadAhead<LessonSlide> m_slides{true, [this](int index) { return read(index); }};
};

//! Opens a lesson for who works with one slide after the other: in a thread of its own if the context says so.
std::unique_ptr<LessonReader> openLesson(const LessonFormat &format, const QString &path, const LessonContext &context);

} // namespace lessonhost

#endif // SLIDESAHEAD_H
