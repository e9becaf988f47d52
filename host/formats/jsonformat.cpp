// SPDX-License-Identifier: MIT
#include "formats/lessonformats.h"

#include "files/compactjson.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "files/packagetarget.h"
#include "files/workfolder.h"
#include "formats/jsonindex.h"
#include "lesson/itemkeys.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "lesson/slidelimits.h"
#include "losses/comparison.h"
#include "losses/jsontext.h"
#include "losses/slidelosses.h"

#include <QFileInfo>
#include <QSet>

#include <mutex>

namespace lessonhost {

namespace {

const QLatin1String itemsKey("Items");
constexpr int longestDetail = 60;
// A multiple of three, so that the base64 texts of chunks follow on each other.
constexpr qint64 chunkSize = qint64(3) * 64 * 1024;

class JsonReader : public LessonReader
{
public:
    JsonReader(const QString &path, const LessonContext &context)
        : m_context(context)
        , m_path(path)
        , m_index(path)
        , m_losses(context.losses)
    {
        QVector<QPair<QString, QJsonValue>> members;
        for (const auto &member : qAsConst(m_index.members)) {
            members.append({member.first, m_index.value(member.second)});
            if (context.verify && context.losses) {
                const JsonPath place{{member.first.toUtf8(), 0}};
                eachUnheldValue(m_index.source(member.second), [&](const JsonPath &path, const QByteArray &value) {
                    m_losses.presentation().value(QStringLiteral("presentation"), jsonPathText(place + path),
                                                  Sentence(detailOf(value)));
                });
            }
        }
        m_presentation = jsonObject(members);
        for (const auto &resource : qAsConst(m_index.resources)) {
            const Sentence problem = problemWithPackagePath(resource.first);
            if (!problem.isEmpty()) {
                m_index.fail(say("The resource \"%1\" can't be used: %2").arg(resource.first, problem),
                             resource.second.begin);
            }
            if (m_resources.contains(resource.first)) {
                m_index.fail(say("The resource \"%1\" is there twice").arg(resource.first), resource.second.begin);
            }
            m_resources.insert(resource.first, resource.second);
        }
    }

    QJsonObject presentation() override { return m_presentation; }
    int slideCount() override { return m_index.slides.size(); }

    LessonSlide slide(int index) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const JsonIndex::Range range = m_index.slides.at(index);
        checkSlideSize(range.end - range.begin, index + 1, m_path);
        const QJsonValue value = m_index.value(range);
        LessonSlide slide;
        slide.properties = value.toObject();
        const QJsonValue items = slide.properties.take(itemsKey);
        if (!value.isObject() || !(items.isArray() || items.isUndefined())) {
            m_index.fail(say("Slide %1 is no object with a list of items").arg(index + 1), range.begin);
        }
        slide.items = items.toArray();
        for (const QJsonValue &item : qAsConst(slide.items)) {
            if (!item.isObject()) {
                m_index.fail(say("An item of slide %1 is no object").arg(index + 1), range.begin);
            }
        }
        checkSlideItems(slide.items, index + 1, m_path);
        const SlideLosses losses = m_losses.slide(index + 1);
        if (m_context.verify && losses.isHeard()) {
            eachUnheldValue(m_index.source(range), [&](const JsonPath &path, const QByteArray &value) {
                tellUnheld(slide, path, value, losses);
            });
        }
        return slide;
    }

    QStringList resources() override
    {
        QStringList paths;
        for (const auto &resource : qAsConst(m_index.resources)) {
            paths.append(resource.first);
        }
        return paths;
    }

    QString resourceFile(const QString &relativePath) override
    {
        if (!m_folder) {
            m_folder = std::make_unique<WorkFolder>();
        }
        const QString path = m_folder->filePath(relativePath);
        if (QFileInfo::exists(path)) {
            return path;
        }
        const std::lock_guard<std::mutex> lock(m_mutex);
        const JsonIndex::Range range = m_resources.value(relativePath);
        if (!m_resources.contains(relativePath)) {
            throw LessonError(say("The lesson has no file \"%1\"").arg(relativePath)).in(m_path);
        }
        const auto decoded =
            QByteArray::fromBase64Encoding(m_index.text(range), QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded) {
            m_index.fail(say("The resource \"%1\" is no base64 text").arg(relativePath), range.begin);
        }
        makeFolders(QFileInfo(path).path(), m_path, OutputFile::Temporary);
        writeFile(path, *decoded, m_path, OutputFile::Temporary);
        return path;
    }

private:
    static QString detailOf(const QByteArray &value) { return QString::fromUtf8(value.left(longestDetail)); }

    // A value within an item is that item's own. What other items than containers have in the place of children is a
    // value as any other.
    static void tellUnheld(const LessonSlide &slide, const JsonPath &path, const QByteArray &value,
                           const SlideLosses &losses)
    {
        QJsonObject item;
        int step = 0;
        QJsonArray items = slide.items;
        QLatin1String list = itemsKey;
        while (step + 2 < path.size() && path.at(step).name == list.data()) {
            item = items.at(path.at(step + 1).index).toObject();
            step += 2;
            const QJsonValue children = item.value(HostKeys::children);
            if (!isContainer(item.value(ItemKeys::type).toString()) || !isListOfObjects(children)) {
                break;
            }
            items = children.toArray();
            list = HostKeys::children;
        }
        const LossOwner owner = step > 0
            ? LossOwner(item)
            : LossOwner(QStringLiteral("slide"), valueText(slide.properties.value(SlideKeys::id)));
        losses.value(owner, jsonPathText(path, step), Sentence(detailOf(value)));
    }

    LessonContext m_context;
    QString m_path;
    JsonIndex m_index; // after the constructor, of who has the mutex
    std::mutex m_mutex;
    LessonLosses m_losses;
    QJsonObject m_presentation;
    QHash<QString, JsonIndex::Range> m_resources;
    std::unique_ptr<WorkFolder> m_folder;
};

/*!
 * Writes slide by slide, each item on a line of its own, so that two versions of a lesson can be compared line by line.
 */
class JsonWriter : public LessonWriter
{
public:
    explicit JsonWriter(const QString &path)
        : m_target(path)
        , m_file(m_target.file())
    {
    }

    void expect(int slides, int resources) override
    {
        if (qMax(slides, resources) > maximumJsonParts) {
            throw LessonError(
                say("The lesson has more than the %1 slides or files that are read from JSON").arg(maximumJsonParts),
                say("Write it as a folder, or divide it"))
                .in(m_target.target());
        }
    }

    void begin(const QJsonObject &presentation) override
    {
        put("{\n");
        for (auto it = presentation.constBegin(); it != presentation.constEnd(); ++it) {
            put("  " + compactJson(it.key()) + ": " + compactJson(it.value()) + ",\n");
        }
        put("  \"Slides\": [");
    }

    void addResource(const QString &relativePath, const QString &sourceFile) override
    {
        const Sentence problem = problemWithPackagePath(relativePath);
        if (!problem.isEmpty()) {
            throw LessonError(say("The lesson can't hold a file \"%1\": %2").arg(relativePath, problem),
                              say("Give it another name"))
                .in(m_target.target());
        }
        m_resources.append({relativePath, sourceFile});
        m_resourceBytes += (QFileInfo(sourceFile).size() + 2) / 3 * 4;
        checkSize(m_resourceBytes);
    }

    void writeSlide(const LessonSlide &slide) override
    {
        const qint64 begin = m_file.pos();
        put(m_slides > 0 ? ",\n    {\n" : "\n    {\n");
        ++m_slides;
        for (auto it = slide.properties.constBegin(); it != slide.properties.constEnd(); ++it) {
            put("      " + compactJson(it.key()) + ": " + compactJson(it.value()) + ",\n");
        }
        put("      \"Items\": [");
        for (int i = 0; i < slide.items.size(); ++i) {
            put((i > 0 ? ",\n        " : "\n        ") + compactJson(slide.items.at(i)));
        }
        put(slide.items.isEmpty() ? "]\n    }" : "\n      ]\n    }");
        checkSlideSize(m_file.pos() - begin, m_slides, m_target.target());
    }

    void finish() override
    {
        put(m_slides > 0 ? "\n  ]" : "]");
        if (!m_resources.isEmpty()) {
            put(",\n  \"Resources\": {");
            for (int i = 0; i < m_resources.size(); ++i) {
                put((i > 0 ? ",\n    " : "\n    ") + compactJson(m_resources.at(i).first) + ": \"");
                putBase64(m_resources.at(i).first, m_resources.at(i).second);
                put("\"");
            }
            put("\n  }");
        }
        put("\n}\n");
        m_target.commit();
    }

private:
    void put(const QByteArray &text)
    {
        checkSize(m_file.size() + text.size());
        m_file.put(text);
    }

    void putBase64(const QString &relativePath, const QString &sourceFile)
    {
        InputFile source(sourceFile, relativePath);
        for (qint64 at = 0; at < source.size(); at += chunkSize) {
            put(source.bytes(at, qMin(chunkSize, source.size() - at)).toBase64());
        }
    }

    void checkSize(qint64 bytes) const
    {
        if (bytes > maximumJsonSize) {
            throw LessonError(say("The lesson has more than the 1 GiB that is read from one file of JSON"),
                              say("Write it as zqtx, or divide it"))
                .in(m_target.target());
        }
    }

    PackageTarget m_target;
    OutputFile &m_file;
    QVector<QPair<QString, QString>> m_resources;
    qint64 m_resourceBytes = 0; // as they will be written
    int m_slides = 0;
};

} // namespace

LessonFormat jsonFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("json");
    format.extensions = QStringList{QStringLiteral("json")};
    format.description = say("the lesson model in one file, with the files that belong to it inside");
    format.isModel = true;
    format.holds = [](const LessonContent &content) { return content.isJson; };
    format.open = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonReader> {
        return std::make_unique<JsonReader>(path, context);
    };
    format.create = [](const QString &path, const LessonContext &) -> std::unique_ptr<LessonWriter> {
        return std::make_unique<JsonWriter>(path);
    };
    return format;
}

} // namespace lessonhost
