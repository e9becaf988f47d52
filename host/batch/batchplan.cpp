// SPDX-License-Identifier: MIT
#include "batch/batchplan.h"

#include "files/folder.h"
#include "files/lessonerror.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace lessonhost {

namespace {

// Of archives that don't say what is in them.
const QLatin1String archiveEnding("zip");

const LessonFormat *formatOf(const QFileInfo &entry)
{
    for (const LessonFormat &format : lessonFormats()) {
        if (format.recognizes && format.recognizes(entry.filePath())) {
            return &format;
        }
    }
    const QString extension = entry.suffix().toLower();
    if (extension == archiveEnding && entry.isFile()) {
        return lessonFormatByContent(entry.filePath());
    }
    for (const LessonFormat &format : lessonFormats()) {
        if (entry.isFile() && format.extensions.contains(extension)) {
            return &format;
        }
    }
    return nullptr;
}

// What can't be read isn't: the conversion says why.
bool isSomethingElse(const QString &file)
{
    try {
        bool isKnown = false;
        return !lessonFormatByContent(file, &isKnown) && isKnown;
    } catch (const LessonError &) {
        return false;
    }
}

// The name without its ending, if that is the one of a format: "Lesson 1.2" keeps its number.
QString stemOf(const QString &path)
{
    const QString extension = QFileInfo(path).suffix();
    const auto &formats = lessonFormats();
    const bool isKnown = std::any_of(formats.cbegin(), formats.cend(), [&extension](const LessonFormat &format) {
        return format.extensions.contains(extension.toLower());
    });
    return isKnown || extension.toLower() == archiveEnding ? path.chopped(extension.size() + 1) : path;
}

class Planner
{
public:
    Planner(const LessonFormat *from, const QString &extension, const QString &outputFolder)
        : m_from(from)
        , m_extension(extension.isEmpty() ? QString() : QString(QLatin1Char('.') + extension))
        , m_output(QFileInfo(outputFolder).absoluteFilePath())
        , m_shownOutput(outputFolder)
    {
        const QString canonical = QFileInfo(outputFolder).canonicalFilePath();
        if (!canonical.isEmpty()) {
            m_output = canonical;
        }
    }

    void addLesson(const QString &input, const QString &place, const LessonFormat *format)
    {
        const QString canonical = QFileInfo(input).canonicalFilePath();
        if (!canonical.isEmpty()) {
            if (m_seen.contains(canonical)) {
                return;
            }
            m_seen.insert(canonical);
        }
        m_plan.lessons.append({input, place, format, {}});
        m_plan.inputs.addLesson(input, format ? format->folderBeside : QString());
    }

    void searchFolder(const QString &folder, const QString &place)
    {
        const QString own = QFileInfo(folder).canonicalFilePath();
        if (own == m_output || own.startsWith(m_output + QLatin1Char('/'))) {
            throw LessonError(QStringLiteral("The results would lie among the lessons"),
                              QStringLiteral("Give another folder with --out-dir"))
                .in(m_shownOutput);
        }
        // A stack of its own: folders may lie in each other deeper than calls may.
        QVector<QPair<QString, QString>> waiting{{folder, place}};
        while (!waiting.isEmpty()) {
            const auto [path, placeOfPath] = waiting.takeLast();
            int error = 0;
            const QVector<Folder::Entry> entries = Folder(path).entries(&error);
            if (error) {
                addProblem(path, QStringLiteral("The folder can't be searched: %1").arg(systemReason(error)),
                           QStringLiteral("Check that you may read it"));
            }
            for (const Folder::Entry &found : entries) {
                if (found.name.startsWith('.')) {
                    continue;
                }
                if (found.text().isEmpty()) {
                    addUnnamed(path, found);
                    continue;
                }
                const QFileInfo entry(path + QLatin1Char('/') + found.text());
                const QString entryPlace = placeOfPath + found.text();
                if (!isTakenCareOf(entry, entryPlace) && found.isFolder() && entry.canonicalFilePath() != m_output) {
                    waiting.append({entry.filePath(), entryPlace + QLatin1Char('/')});
                }
            }
        }
    }

    BatchPlan take()
    {
        nameResults();
        auto &lessons = m_plan.lessons;
        std::sort(lessons.begin(), lessons.end(), [](const BatchPlan::Lesson &one, const BatchPlan::Lesson &other) {
            return std::tie(one.output, one.input) < std::tie(other.output, other.input);
        });
        m_plan.passedOver.sort();
        return m_plan;
    }

private:
    void addProblem(const QString &input, const QString &problem, const QString &remedy)
    {
        m_plan.lessons.append({input, {}, nullptr, LessonError(problem, remedy).in(input).message()});
    }

    // Its letters are in another encoding, but its ending tells whether it may be a lesson.
    void addUnnamed(const QString &folder, const Folder::Entry &entry)
    {
        const QFileInfo shown(folder + QLatin1Char('/') + entry.shown());
        if (entry.isFolder() || stemOf(shown.fileName()) != shown.fileName()) {
            addProblem(shown.filePath(), QStringLiteral("This name is no UTF-8, so that it can't be looked into"),
                       QStringLiteral("Give it another name"));
        }
    }

    bool isTakenCareOf(const QFileInfo &entry, const QString &place)
    {
        try {
            return addIfLesson(entry, place);
        } catch (const LessonError &error) {
            m_plan.lessons.append({entry.filePath(), {}, nullptr, error.message()});
            return true;
        }
    }

    bool addIfLesson(const QFileInfo &entry, const QString &place)
    {
        const LessonFormat *format = formatOf(entry);
        if (!format && !entry.isDir() && !entry.isFile() && stemOf(entry.fileName()) != entry.fileName()) {
            entry.exists() ? m_plan.passedOver.append(entry.filePath())
                           : addProblem(entry.filePath(), QStringLiteral("This is a link to nothing"),
                                        QStringLiteral("Remove it, or put the lesson in its place"));
            return true;
        }
        if (!format || (m_from && format != m_from) || (entry.isDir() && entry.isSymLink())) {
            return false;
        }
        if (entry.isFile() && format->isCommonEnding && isSomethingElse(entry.filePath())) {
            m_plan.passedOver.append(entry.filePath());
        } else {
            addLesson(entry.filePath(), place, format);
        }
        return true;
    }

    // Until here the results are called like the lessons.
    void nameResults()
    {
        const auto resultOf = [this](const QString &place) { return QString(stemOf(place) + m_extension); };
        // Some file systems don't tell small letters from capitals.
        QHash<QString, int> counts;
        QSet<QString> folders;
        for (const BatchPlan::Lesson &lesson : qAsConst(m_plan.lessons)) {
            if (!lesson.problem.isEmpty()) {
                continue;
            }
            const QString result = resultOf(lesson.output).toCaseFolded();
            ++counts[result];
            for (int end = result.indexOf(QLatin1Char('/')); end > 0; end = result.indexOf(QLatin1Char('/'), end + 1)) {
                folders.insert(result.left(end));
            }
        }
        QHash<QString, QString> inputs;
        for (BatchPlan::Lesson &lesson : m_plan.lessons) {
            if (!lesson.problem.isEmpty()) {
                continue;
            }
            const QString result = resultOf(lesson.output);
            const bool isFree = counts.value(result.toCaseFolded()) == 1 && !folders.contains(result.toCaseFolded());
            lesson.output = isFree ? result : QString(lesson.output + m_extension);
            const QString folded = lesson.output.toCaseFolded();
            if (inputs.contains(folded)) {
                throw LessonError(QStringLiteral("This lesson and %1 would both be written as %2")
                                      .arg(inputs.value(folded), lesson.output),
                                  QStringLiteral("Rename one of them, or convert them into different folders"))
                    .in(lesson.input);
            }
            inputs.insert(folded, lesson.input);
            if (QFileInfo(lesson.input).canonicalFilePath() == m_output + QLatin1Char('/') + lesson.output) {
                throw LessonError(QStringLiteral("The result would take the place of the lesson itself"),
                                  QStringLiteral("Give another folder with --out-dir"))
                    .in(lesson.input);
            }
            m_plan.inputs.check(m_shownOutput + QLatin1Char('/') + lesson.output);
        }
    }

    BatchPlan m_plan;
    QSet<QString> m_seen; // canonical paths
    const LessonFormat *m_from;
    QString m_extension; // with its point, or empty
    QString m_output; // canonical, if it exists
    QString m_shownOutput;
};

} // namespace

BatchPlan planBatch(const QStringList &inputs, const LessonFormat *from, const QString &extension,
                    const QString &outputFolder)
{
    Planner planner(from, extension, outputFolder);
    const auto isFolderToSearch = [](const QString &input) {
        const QFileInfo info(input);
        return info.isDir() && !formatOf(info);
    };
    const bool isOneFolder = std::count_if(inputs.cbegin(), inputs.cend(), isFolderToSearch) == 1;
    for (const QString &input : inputs) {
        const QString name = QFileInfo(QDir::cleanPath(QFileInfo(input).absoluteFilePath())).fileName();
        if (isFolderToSearch(input)) {
            planner.searchFolder(QDir::cleanPath(input), isOneFolder ? QString() : QString(name + QLatin1Char('/')));
        } else {
            planner.addLesson(input, name, from ? from : formatOf(QFileInfo(input)));
        }
    }
    BatchPlan plan = planner.take();
    if (plan.lessons.isEmpty()) {
        throw LessonError(QStringLiteral("There are no lessons in it"),
                          QStringLiteral("See lessonconv formats for the names that lessons have"))
            .in(inputs.join(QLatin1String(", ")));
    }
    return plan;
}

} // namespace lessonhost
