// SPDX-License-Identifier: MIT
#include "batch/batchplan.h"

#include "files/folder.h"
#include "files/lessonerror.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <tuple>

namespace lessonhost {

namespace {

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

class Planner
{
public:
    Planner(const LessonFormat *from, const QString &extension, const QString &outputFolder, const BatchShard &shard)
        : m_from(from)
        , m_extension(extension.isEmpty() ? QString() : QString(QLatin1Char('.') + extension))
        , m_output(QFileInfo(outputFolder).absoluteFilePath())
        , m_shownOutput(outputFolder)
    {
        m_plan.shard = shard;
        const QString canonical = QFileInfo(outputFolder).canonicalFilePath();
        if (!canonical.isEmpty()) {
            m_output = canonical;
        }
    }

    // A lesson that the user named.
    void addNamed(const QString &input, const QString &place)
    {
        if (count(place)) {
            addLesson(input, place, m_from ? m_from : formatOf(QFileInfo(input)));
        } else {
            addElsewhere(QFileInfo(input).canonicalFilePath(), place);
        }
    }

    void searchFolder(const QString &folder, const QString &place)
    {
        const QString own = QFileInfo(folder).canonicalFilePath();
        if (own == m_output || own.startsWith(m_output + QLatin1Char('/'))) {
            throw LessonError(say("The results would lie among the lessons"), say("Give another folder with --out-dir"))
                .in(m_shownOutput);
        }
        // A stack of its own: folders may lie in each other deeper than calls may.
        struct Waiting
        {
            QString path;
            QString place;
            QString canonical;
        };
        QVector<Waiting> waiting{{folder, place, own == QLatin1String("/") ? QString() : own}};
        while (!waiting.isEmpty()) {
            const auto [path, placeOfPath, canonical] = waiting.takeLast();
            int error = 0;
            const QVector<Folder::Entry> entries = Folder(path).entries(&error);
            if (error) {
                addProblem(path, placeOfPath, say("The folder can't be searched: %1").arg(systemReason(error)),
                           say("Check that you may read it"));
            }
            for (const Folder::Entry &found : entries) {
                if (found.name.startsWith('.')) {
                    continue;
                }
                if (found.text().isEmpty()) {
                    addUnnamed(path, placeOfPath, found);
                    continue;
                }
                const QFileInfo entry(path + QLatin1Char('/') + found.text());
                const QString entryPlace = placeOfPath + found.text();
                const QString entryCanonical = canonical + QLatin1Char('/') + found.text();
                if (!found.isFolder()) {
                    addFile(entry, entryPlace, found.isFile() ? entryCanonical : QString());
                } else if (!isTakenCareOf(entry, entryPlace) && entryCanonical != m_output) {
                    waiting.append({entry.filePath(), entryPlace + QLatin1Char('/'), entryCanonical});
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
    using Key = QPair<quint64, quint64>;

    // Of a path, in little space: an archive has many.
    static Key keyOf(const QString &path)
    {
        const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1);
        return {qFromBigEndian<quint64>(hash.constData()), qFromBigEndian<quint64>(hash.constData() + sizeof(quint64))};
    }

    // Whether what is called like a lesson falls to this shard.
    bool count(const QString &place)
    {
        const bool isOwn = m_plan.shard.has(place);
        ++m_plan.found;
        m_plan.taken += isOwn ? 1 : 0;
        return isOwn;
    }

    // False for one that was met before, by another way. What doesn't exist has no way.
    bool isNew(const QString &canonical)
    {
        const Key key = keyOf(canonical);
        if (canonical.isEmpty() || !m_seen.contains(key)) {
            m_seen.insert(key);
            return true;
        }
        return false;
    }

    void addLesson(const QString &input, const QString &place, const LessonFormat *format)
    {
        if (isNew(QFileInfo(input).canonicalFilePath())) {
            m_plan.lessons.append({input, place, format, {}});
            m_plan.inputs.addLesson(input, format ? format->folderBeside : QString());
        }
    }

    // What another shard takes is neither opened nor looked at, or each would read the whole archive.
    void addElsewhere(const QString &canonical, const QString &place)
    {
        if (isNew(canonical)) {
            m_foldersElsewhere.insert(folderOf(place));
        }
    }

    static QString folderOf(const QString &place)
    {
        return place.left(place.lastIndexOf(QLatin1Char('/')) + 1).toCaseFolded();
    }

    void addProblem(const QString &input, const QString &place, const Sentence &problem, const Sentence &remedy)
    {
        if (count(place)) {
            m_plan.lessons.append({input, {}, nullptr, LessonError(problem, remedy).in(input).message()});
        }
    }

    // Its letters are in another encoding, but its ending tells whether it may be a lesson.
    void addUnnamed(const QString &folder, const QString &place, const Folder::Entry &entry)
    {
        const QString shown = entry.shown();
        if (entry.isFolder() || lessonStem(shown) != shown) {
            addProblem(folder + QLatin1Char('/') + shown, place + shown,
                       say("This name is no UTF-8, so that it can't be looked into"), say("Give it another name"));
        }
    }

    // canonical: empty for a link or what is neither file nor folder.
    void addFile(const QFileInfo &entry, const QString &place, const QString &canonical)
    {
        const QString name = entry.fileName();
        if (lessonStem(name) == name) {
            return;
        }
        if (count(place)) {
            isTakenCareOf(entry, place);
        } else {
            addElsewhere(canonical.isEmpty() ? entry.canonicalFilePath() : canonical, place);
        }
    }

    bool isTakenCareOf(const QFileInfo &entry, const QString &place)
    {
        try {
            return addIfLesson(entry, place);
        } catch (const LessonError &error) {
            if (!entry.isDir() || entry.isSymLink() || count(place)) {
                m_plan.lessons.append({entry.filePath(), {}, nullptr, error.message()});
            }
            return true;
        }
    }

    bool addIfLesson(const QFileInfo &entry, const QString &place)
    {
        const LessonFormat *format = formatOf(entry);
        if (!format && !entry.isDir() && !entry.isFile()) {
            entry.exists() ? m_plan.passedOver.append(entry.filePath())
                           : m_plan.lessons.append({entry.filePath(),
                                                    {},
                                                    nullptr,
                                                    LessonError(say("This is a link to nothing"),
                                                                say("Remove it, or put the lesson in its place"))
                                                        .in(entry.filePath())
                                                        .message()});
            return true;
        }
        if (!format || (m_from && format != m_from) || (entry.isDir() && entry.isSymLink())) {
            return false;
        }
        if (entry.isDir() && !count(place)) {
            m_plan.inputs.addLesson(entry.filePath(), {});
            addElsewhere(entry.canonicalFilePath(), place);
        } else if (entry.isFile() && format->isCommonEnding && isSomethingElse(entry.filePath())) {
            m_plan.passedOver.append(entry.filePath());
            m_foldersElsewhere.insert(folderOf(place));
        } else {
            addLesson(entry.filePath(), place, format);
        }
        return true;
    }

    // Until here the results are called like the lessons.
    void nameResults()
    {
        const auto resultOf = [this](const QString &place) { return QString(lessonStem(place) + m_extension); };
        // Some file systems don't tell small letters from capitals.
        QHash<QString, int> counts;
        QSet<QString> folders;
        const auto addFolders = [&folders](const QString &path) {
            for (int end = path.indexOf(QLatin1Char('/')); end > 0; end = path.indexOf(QLatin1Char('/'), end + 1)) {
                folders.insert(path.left(end));
            }
        };
        for (const QString &folder : qAsConst(m_foldersElsewhere)) {
            addFolders(folder);
        }
        for (const BatchPlan::Lesson &lesson : qAsConst(m_plan.lessons)) {
            if (!lesson.problem.isEmpty()) {
                continue;
            }
            const QString result = resultOf(lesson.output).toCaseFolded();
            ++counts[result];
            addFolders(result);
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
                throw LessonError(
                    say("This lesson and %1 would both be written as %2").arg(inputs.value(folded), lesson.output),
                    say("Rename one of them, or convert them into different folders"))
                    .in(lesson.input);
            }
            inputs.insert(folded, lesson.input);
            if (QFileInfo(lesson.input).canonicalFilePath() == m_output + QLatin1Char('/') + lesson.output) {
                throw LessonError(say("The result would take the place of the lesson itself"),
                                  say("Give another folder with --out-dir"))
                    .in(lesson.input);
            }
            m_plan.inputs.check(m_shownOutput + QLatin1Char('/') + lesson.output);
            if (m_seen.contains(keyOf(m_output + QLatin1Char('/') + lesson.output))) {
                throw LessonError(say("The result would take the place of a lesson, %1").arg(lesson.output),
                                  say("Give another folder with --out-dir"))
                    .in(lesson.input);
            }
        }
    }

    BatchPlan m_plan;
    QSet<Key> m_seen; // canonical paths of all shards' lessons
    QSet<QString> m_foldersElsewhere; // places of folders with what other shards take, or nobody
    const LessonFormat *m_from;
    QString m_extension; // with its point, or empty
    QString m_output; // canonical, if it exists
    QString m_shownOutput;
};

} // namespace

BatchPlan planBatch(const QStringList &inputs, const LessonFormat *from, const QString &extension,
                    const QString &outputFolder, const BatchShard &shard)
{
    Planner planner(from, extension, outputFolder, shard);
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
            planner.addNamed(input, name);
        }
    }
    BatchPlan plan = planner.take();
    if (plan.lessons.isEmpty() && (shard.isWhole() || plan.found == 0)) {
        throw LessonError(say("There are no lessons in it"),
                          say("See lessonconv formats for the names that lessons have"))
            .in(inputs.join(QLatin1String(", ")));
    }
    return plan;
}

} // namespace lessonhost
