// SPDX-License-Identifier: MIT
#include "formats/conversion.h"

#include "files/inputguard.h"
#include "files/lessonerror.h"
#include "formats/slidesahead.h"
#include "lesson/activitypictures.h"
#include "lesson/itemkeys.h"
#include "losses/slidelosses.h"

#include <QMap>
#include <QSet>

namespace lessonhost {

namespace {

void reportKeptItems(const QJsonArray &items, const SlideLosses &losses)
{
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        if (item.contains(HostKeys::keptXml)) {
            losses.kept(item);
        }
        reportKeptItems(item.value(HostKeys::children).toArray(), losses);
    }
}

} // namespace

void checkCanWrite(const LessonFormat &format, const QString &output)
{
    if (!format.canWrite()) {
        throw LessonError(say("The format \"%1\" can't be written").arg(format.name), say("See lessonconv formats"))
            .in(output);
    }
}

void convertLesson(const LessonFormat &from, const QString &input, const LessonFormat &to, const QString &output,
                   const LessonContext &context, const Progress &progress)
{
    if (!from.canRead()) {
        throw LessonError(say("The format \"%1\" can't be read").arg(from.name), say("See lessonconv formats"))
            .in(input);
    }
    checkCanWrite(to, output);
    InputGuard inputs;
    inputs.addLesson(input, from.folderBeside);
    inputs.check(output);
    const auto reader = openLesson(from, input, context);
    LessonContext writing = context;
    std::unique_ptr<ItemPainter> painter;
    if (context.makePainter && to.takesPictures) {
        painter = context.makePainter(*reader, context.isTrial);
        writing.painter = painter.get();
    }
    const auto writer = to.create(output, writing);
    const QStringList resources = reader->resources();
    writer->expect(reader->slideCount(), resources.size());
    writer->begin(reader->presentation());
    QSet<QString> added;
    for (const QString &resource : resources) {
        writer->addResource(resource, reader->resourceFile(resource));
        added.insert(resource);
    }
    const int count = reader->slideCount();
    const auto pass = [&](int index) {
        const LessonSlide slide = reader->slide(index);
        reportKeptItems(slide.items, SlideLosses(context.losses, index + 1));
        const QMap<QString, QString> pictures = picturesInData(slide.properties);
        for (auto it = pictures.constBegin(); it != pictures.constEnd(); ++it) {
            if (!added.contains(it.key())) {
                writer->addResource(it.key(), it.value());
                added.insert(it.key());
            }
        }
        writer->writeSlide(slide);
    };
    for (int i = 0; i < count; ++i) {
        try {
            pass(i);
        } catch (const LessonError &) {
            writer->settle();
            throw;
        }
        progress(i + 1, count);
    }
    writer->finish();
}

} // namespace lessonhost
