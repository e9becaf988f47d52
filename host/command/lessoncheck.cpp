// SPDX-License-Identifier: MIT
#include "command/lessoncheck.h"

#include "command/lessoninfo.h"
#include "files/lessonerror.h"
#include "files/pictures.h"
#include "files/workfolder.h"
#include "formats/slidesahead.h"
#include "formats/zqtxitems.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/keynames.h"
#include "lesson/plainnames.h"
#include "lesson/valueranges.h"
#include "losses/plainlosses.h"
#include "losses/slidelosses.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <functional>
#include <memory>
#include <vector>

namespace lessonhost {

namespace {

// A lesson in which more is wrong is known to be broken; what is more is counted.
constexpr int mostFindings = 200;
constexpr int longestValue = 60;

const QLatin1String slideOwner("slide");
const QLatin1String presentationOwner("presentation");

QLatin1String kindName(LessonCheck::Finding::Kind kind)
{
    switch (kind) {
    case LessonCheck::Finding::File:
        return QLatin1String("file");
    case LessonCheck::Finding::Picture:
        return QLatin1String("picture");
    case LessonCheck::Finding::Item:
        return QLatin1String("item");
    case LessonCheck::Finding::Value:
        break;
    }
    return QLatin1String("value");
}

// "Slide 3, Circle "42"".
Sentence placeOf(const LessonCheck::Finding &finding)
{
    if (finding.slide == 0) {
        return say("The lesson");
    }
    if (finding.itemType == slideOwner) {
        return say("Slide %1").arg(finding.slide);
    }
    const Sentence name = saidName(finding.itemType);
    return finding.itemId.isEmpty() ? say("Slide %1, %2").arg(finding.slide, name)
                                    : say("Slide %1, %2 \"%3\"").arg(finding.slide, name, finding.itemId);
}

Sentence lineOf(const LessonCheck::Finding &finding)
{
    const Sentence place = placeOf(finding);
    switch (finding.kind) {
    case LessonCheck::Finding::File:
        return say("%1: the file %2 isn't there.").arg(place, finding.key);
    case LessonCheck::Finding::Picture:
        return say("%1: the file %2 can't be shown: %3.").arg(place, finding.key, finding.problem);
    case LessonCheck::Finding::Item:
        return say("%1: nobody knows what this is.").arg(place);
    case LessonCheck::Finding::Value:
        break;
    }
    return finding.value.isEmpty()
        ? say("%1: %2.").arg(place, finding.problem)
        : say("%1: %2 is \"%3\" and has to be %4.")
              .arg(place, plainPlaceName(finding.key), finding.value, finding.problem);
}

// A text of a value, with the two ends of what isn't short.
QString shownValue(const QJsonValue &value)
{
    const QString text = valueText(value);
    return text.size() <= longestValue ? text : text.left(longestValue) + QLatin1String("...");
}

QJsonObject countsOf(const LossReport &losses)
{
    int counts[Loss::Told + 1] = {};
    for (const Loss &loss : losses.entries()) {
        ++counts[groupOf(loss)];
    }
    return {{QStringLiteral("missing"), counts[Loss::Missing]},
            {QStringLiteral("different"), counts[Loss::Different]},
            {QStringLiteral("internal"), counts[Loss::Internal]}};
}

QJsonObject lossObject(const LossReport &losses)
{
    QJsonObject object = losses.toHead();
    object.insert(QStringLiteral("groups"), countsOf(losses));
    return object;
}

// What is told as something that the lesson hasn't isn't told again.
LossReport withoutFindings(const LossReport &losses)
{
    LossReport rest;
    for (const Loss &loss : losses.entries()) {
        if (loss.kind != Loss::Absent) {
            rest.add(loss);
        }
    }
    return rest;
}

/*!
 * Looks at what a lesson says, slide by slide.
 */
class Inspector
{
public:
    Inspector(LessonCheck &check, LessonReader &reader, IZQTransformation *plugin)
        : m_check(check)
        , m_reader(reader)
        , m_items(plugin, reader.presentation())
        , m_slideCount(reader.slideCount())
    {
        const QStringList resources = reader.resources();
        m_resources = QSet<QString>(resources.cbegin(), resources.cend());
        check.files = resources.size();
        const QJsonObject presentation = reader.presentation();
        for (const QLatin1String key : {PresentationKeys::width, PresentationKeys::height}) {
            const QJsonValue value = presentation.value(key);
            addValue(QString(presentationOwner), key, value, pageSizeMissedBy(value));
        }
    }

    void lookAt(const LessonSlide &slide)
    {
        ++m_check.slides;
        const LossOwner owner(slideOwner, valueText(slide.properties.value(SlideKeys::id)));
        lookAtFiles(owner, slide.properties, SlideKeys::document);
        lookAtValues(owner, slide.properties);
        lookAtItems(slide.items);
    }

private:
    void lookAtItems(const QJsonArray &items)
    {
        for (const QJsonValue &value : items) {
            const QJsonObject object = value.toObject();
            const ItemView item(object);
            const LossOwner owner(item.type(), item.id());
            ++m_check.items;
            if (object.contains(HostKeys::keptXml) || isUnknown(item.type())) {
                add(LessonCheck::Finding::Item, owner, {}, {}, {});
                continue;
            }
            lookAtFiles(owner, object, item.type() == QLatin1String("ZQImagePic") ? ItemKeys::resource : QLatin1String());
            lookAtValues(owner, object);
            if (isInk(item.type()) && !item.has(ItemKeys::steps)) {
                add(LessonCheck::Finding::Value, owner, ItemKeys::steps, {}, say("the points are not in the file"));
            }
            if (item.text(ItemKeys::linkType) == QLatin1String("ACTION_GOTOSLIDE")) {
                const QJsonValue target = object.value(ItemKeys::linkValue);
                addValue(owner, ItemKeys::linkValue, target, slideMissedBy(target, m_slideCount));
            }
            lookAtItems(item.children());
        }
    }

    bool isUnknown(const QString &type)
    {
        auto known = m_unknownTypes.constFind(type);
        if (known == m_unknownTypes.constEnd()) {
            known = m_unknownTypes.insert(type, m_items.isHeld(type));
        }
        return *known;
    }

    // pictureKey: whose file has to be a picture; may be empty.
    void lookAtFiles(const LossOwner &owner, const QJsonObject &object, QLatin1String pictureKey)
    {
        eachNamedFile(object, [&](const QString &file) {
            if (!m_resources.contains(file)) {
                add(LessonCheck::Finding::File, owner, file, {}, {});
            }
        });
        const QString picture = pictureKey.isEmpty() ? QString() : valueText(object.value(pictureKey));
        if (!m_resources.contains(picture)) {
            return;
        }
        if (!m_pictureProblems.contains(picture)) {
            const Picture seen(m_reader.resourceFile(picture));
            m_pictureProblems.insert(picture, seen.problem().isEmpty() ? seen.drawingProblem() : seen.problem());
        }
        const Sentence problem = m_pictureProblems.value(picture);
        if (!problem.isEmpty()) {
            add(LessonCheck::Finding::Picture, owner, picture, {}, problem);
        }
    }

    void lookAtValues(const LossOwner &owner, const QJsonObject &object)
    {
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            addValue(owner, it.key(), it.value(), rangeMissedBy(it.key(), it.value()));
        }
    }

    void addValue(const LossOwner &owner, const QString &key, const QJsonValue &value, const Sentence &range)
    {
        if (!range.isEmpty()) {
            const QString shown = shownValue(value);
            add(LessonCheck::Finding::Value, owner, key, shown.isEmpty() ? QStringLiteral("...") : shown, range);
        }
    }

    void add(LessonCheck::Finding::Kind kind, const LossOwner &owner, const QString &key, const QString &value,
             const Sentence &problem)
    {
        ++m_check.found;
        ++m_check.counts[kind];
        if (m_check.findings.size() < mostFindings) {
            const int slide = owner.type == presentationOwner ? 0 : m_check.slides;
            m_check.findings.append({kind, slide, owner.type, owner.id, key, value, problem});
        }
    }

    LessonCheck &m_check;
    LessonReader &m_reader;
    ZqtxItems m_items;
    int m_slideCount;
    QSet<QString> m_resources;
    QHash<QString, Sentence> m_pictureProblems; // by file
    QHash<QString, bool> m_unknownTypes;
};

/*!
 * A format that is tried. What it refuses is told, and the others go on; where the machine fails, nothing is known.
 */
class Trial
{
public:
    Trial(const LessonFormat &format, LessonCheck::Format &told, LessonReader &reader, const LessonContext &context,
          const QString &folder)
        : m_told(told)
        , m_place(folder + QLatin1Char('/') + format.name)
    {
        LessonContext writing = context;
        writing.losses = &told.losses;
        writing.isTrial = true;
        if (context.makePainter && format.takesPictures) {
            m_painter = context.makePainter(reader, writing.isTrial);
            writing.painter = m_painter.get();
        }
        attempt([&] {
            m_writer = format.create(m_place, writing);
            const QStringList resources = reader.resources();
            m_writer->expect(reader.slideCount(), resources.size());
            m_writer->begin(reader.presentation());
            for (const QString &resource : resources) {
                m_writer->addResource(resource, reader.resourceFile(resource));
            }
        });
    }

    void write(const LessonSlide &slide)
    {
        attempt([&] { m_writer->writeSlide(slide); });
    }

    void finish()
    {
        attempt([&] { m_writer->finish(); });
    }

private:
    void attempt(const std::function<void()> &step)
    {
        try {
            if (m_told.problem.isEmpty()) {
                step();
            }
        } catch (const LessonError &error) {
            m_writer.reset();
            if (error.isOfMachine()) {
                throw;
            }
            m_told.problem = inLesson(error).message();
        }
    }

    // Nothing is there where it would have been written, so only the name in the lesson says something.
    LessonError inLesson(LessonError error) const
    {
        const QString file = error.file();
        return file.startsWith(m_place) ? error.in(file.mid(m_place.size() + 1), error.line()) : error;
    }

    LessonCheck::Format &m_told;
    QString m_place;
    std::unique_ptr<ItemPainter> m_painter;
    std::unique_ptr<LessonWriter> m_writer;
};

} // namespace

int LessonCheck::lossCount() const
{
    int count = reading.lossCount();
    for (const Format &format : formats) {
        count += format.losses.lossCount() + (format.problem.isEmpty() ? 0 : 1);
    }
    return count;
}

Sentences LessonCheck::words(const QString &name) const
{
    Sentences lines{isWhole() ? say("%1 is whole.").arg(name) : sayNumber("%1 isn't whole; %n things are wrong:", found).arg(name)};
    Sentences found;
    for (const Finding &finding : findings) {
        found.append(lineOf(finding));
    }
    if (this->found > findings.size()) {
        found.append(sayNumber("And %n more.", this->found - findings.size()));
    }
    lines += indented(found);
    lines.append(say("%1, %2, %3.")
                     .arg(sayNumber("%n slides", slides), sayNumber("%n items", items), sayNumber("%n files", files)));
    if (!reading.isEmpty()) {
        lines.append(say("When it is read:"));
        lines += indented(plainSummary(reading, true));
    }
    for (const Format &format : formats) {
        if (!format.problem.isEmpty()) {
            lines.append(say("%1 can't hold it: %2").arg(format.name, format.problem));
        } else if (format.losses.isEmpty()) {
            lines.append(say("Written as %1, it loses nothing.").arg(format.name));
        } else {
            lines.append(say("Written as %1:").arg(format.name));
            lines += indented(plainSummary(format.losses, true));
        }
    }
    return lines;
}

QJsonObject LessonCheck::toJson() const
{
    QJsonObject kinds; // for the totals over many
    for (int kind = 0; kind <= Finding::Value; ++kind) {
        if (counts[std::size_t(kind)] > 0) {
            kinds.insert(kindName(Finding::Kind(kind)), counts[std::size_t(kind)]);
        }
    }
    QJsonArray list;
    for (const Finding &finding : findings) {
        QJsonObject entry{{QStringLiteral("kind"), kindName(finding.kind)}, {QStringLiteral("type"), finding.itemType}};
        if (finding.slide > 0) {
            entry.insert(QStringLiteral("slide"), finding.slide);
        }
        for (const auto &[name, text] : {std::pair("id", finding.itemId),
                                         {"key", finding.key},
                                         {"value", finding.value},
                                         {"problem", finding.problem.english()}}) {
            if (!text.isEmpty()) {
                entry.insert(QLatin1String(name), text);
            }
        }
        list.append(entry);
    }
    QJsonArray tried;
    for (const Format &format : formats) {
        QJsonObject entry = lossObject(format.losses);
        entry.insert(QStringLiteral("format"), format.name);
        if (!format.problem.isEmpty()) {
            entry.insert(QStringLiteral("problem"), format.problem.english());
        }
        tried.append(entry);
    }
    return {{QStringLiteral("found"), found},
            {QStringLiteral("kinds"),
             kinds.isEmpty() ? QJsonObject() : QJsonObject{{QStringLiteral("found"), kinds}}},
            {QStringLiteral("losses"), lossCount()},
            {QStringLiteral("findings"), list},
            {QStringLiteral("slides"), slides},
            {QStringLiteral("items"), items},
            {QStringLiteral("files"), files},
            {QStringLiteral("reading"), lossObject(reading)},
            {QStringLiteral("formats"), tried}};
}

LessonCheck checkLesson(const LessonFormat &from, const QString &input, const QVector<const LessonFormat *> &formats,
                        const LessonContext &context, const Progress &progress)
{
    LessonCheck check;
    LessonContext readingContext = context;
    readingContext.losses = &check.reading;
    const auto reader = openLesson(from, input, readingContext);
    Inspector inspector(check, *reader, context.plugin);
    const WorkFolder folder;
    std::vector<std::unique_ptr<Trial>> trials;
    trials.reserve(std::size_t(formats.size()));
    check.formats.reserve(formats.size());
    for (const LessonFormat *format : formats) {
        check.formats.append({format->name, {}, {}});
    }
    for (int i = 0; i < formats.size(); ++i) {
        trials.push_back(std::make_unique<Trial>(*formats.at(i), check.formats[i], *reader, context, folder.path()));
    }
    const int count = reader->slideCount();
    for (int i = 0; i < count; ++i) {
        const LessonSlide slide = reader->slide(i);
        inspector.lookAt(slide);
        for (const auto &trial : trials) {
            trial->write(slide);
        }
        progress(i + 1, count);
    }
    for (const auto &trial : trials) {
        trial->finish();
    }
    check.reading = withoutFindings(check.reading);
    return check;
}

} // namespace lessonhost
