// SPDX-License-Identifier: MIT
#include "batch/batchjournal.h"

#include "files/folder.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagetarget.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const QLatin1String doneOutputKey("output");
const QLatin1String lessonKey("lesson");
const QLatin1String madeKey("made");
const QLatin1String doneResultKey("result");
const QLatin1String journalName(".lessonconv-done");

constexpr qint64 pieceSize = qint64(256) * 1024;

QByteArray sizeAndTime(const QFileInfo &file)
{
    return QByteArray::number(file.size()) + ' ' + QByteArray::number(file.lastModified().toMSecsSinceEpoch());
}

// Of a file or of all files in a folder.
QByteArray stateOfPath(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir()) {
        return sizeAndTime(info);
    }
    QByteArrayList files;
    QDirIterator it(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        files.append(file.mid(path.size()).toUtf8() + ' ' + sizeAndTime(it.fileInfo()));
    }
    std::sort(files.begin(), files.end());
    return files.join('\n');
}

// Another run may have put a new file in its place.
bool isAt(int descriptor, const QString &file)
{
    struct stat opened = {};
    struct stat there = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(QFile::encodeName(file).constData(), &there) == 0
        && opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
}

template <typename Take> void eachLine(const QString &file, const Take &take)
{
    InputFile input(file);
    QByteArray text;
    for (qint64 at = 0; at < input.size();) {
        const qint64 count = qMin(pieceSize, input.size() - at);
        text += input.bytes(at, count);
        at += count;
        int begin = 0;
        for (int end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n', begin)) {
            if (end > begin) {
                take(QJsonDocument::fromJson(text.mid(begin, end - begin)).object());
            }
            begin = end + 1;
        }
        text.remove(0, begin);
    }
    if (!text.isEmpty()) {
        take(QJsonDocument::fromJson(text).object());
    }
}

QString shortened(const QByteArray &text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex());
}

} // namespace

QString BatchJournal::fileIn(const QString &outputFolder, const BatchShard &shard)
{
    const QString part = shard.isWhole() ? QString() : QString(QLatin1Char('-') + shard.fileName());
    return outputFolder + QLatin1Char('/') + journalName + part;
}

BatchJournal::BatchJournal(const QString &outputFolder, const QByteArray &settings, const BatchPlan &plan,
                           bool readsOthers)
    : m_folder(outputFolder)
    , m_shard(plan.shard)
    , m_file(fileIn(outputFolder, plan.shard))
    , m_settings(settings)
{
    const QFileInfo info(m_file);
    // Whoever may write in the folder could lead these lines into any file of this user.
    if (info.isSymLink() || (info.exists() && !info.isFile())) {
        throw LessonError(say("This is no file that lessonconv has made"), say("Remove it")).in(m_file);
    }
    hold();
    if (readsOthers) {
        readOthers(plan);
    }
    if (info.exists()) {
        read();
        dropOldLines();
    }
    // The next line must not be taken for the end of one that was cut off.
    if (info.size() > 0) {
        write("\n");
    }
}

int BatchJournal::opened() const
{
    const int descriptor = ::open(QFile::encodeName(m_file).constData(),
                                  O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        throw LessonError(say("Nothing can be written in this folder: %1").arg(systemReason(errno)),
                          say("Check that you may write there and that there is room"))
            .in(m_folder);
    }
    return descriptor;
}

// The system gives the lock up when the run ends, at whatever moment that is. Where the file system knows no locks, the
// batch engine alone sees to it that a shard has one run.
void BatchJournal::hold()
{
    const int descriptor = opened();
    const bool isHeld = m_shard.isWhole()
        || ((::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) && isAt(descriptor, m_file));
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
    m_descriptor = descriptor;
    if (!isHeld) {
        throw LessonError(say("Another run is at work on shard %1 of %2").arg(m_shard.number).arg(m_shard.count),
                          say("Wait for its end, or end it"))
            .in(m_folder);
    }
}

BatchJournal::~BatchJournal()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

void BatchJournal::write(const QByteArray &text) const
{
    qint64 done = 0;
    while (done < text.size()) {
        const ssize_t count = ::write(m_descriptor, text.constData() + done, std::size_t(text.size() - done));
        if (count < 0 && errno != EINTR) {
            throw LessonError(say("What is done can't be noted for --resume: %1").arg(systemReason(errno)),
                              say("Check that there is room"))
                .in(m_file);
        }
        done += qMax<ssize_t>(count, 0);
    }
}

void BatchJournal::read()
{
    eachLine(m_file, [this](const QJsonObject &line) {
        m_lines.insert(line.value(doneOutputKey).toString(), line);
        ++m_lineCount;
    });
}

// Shards of the same number have other lessons; those of another one may have had the same.
void BatchJournal::readOthers(const BatchPlan &plan)
{
    QSet<QString> outputs;
    for (const BatchPlan::Lesson &lesson : plan.lessons) {
        outputs.insert(lesson.output);
    }
    const QString own = QFileInfo(m_file).fileName();
    const QString sameNumber = QStringLiteral("of%1").arg(m_shard.count);
    const QVector<Folder::Entry> entries = Folder(m_folder).entries();
    for (const Folder::Entry &entry : entries) {
        const QString name = entry.text();
        if (!entry.isFile() || !name.startsWith(journalName) || name == own || name.endsWith(sameNumber)) {
            continue;
        }
        eachLine(m_folder + QLatin1Char('/') + name, [this, &outputs](const QJsonObject &line) {
            const QString output = line.value(doneOutputKey).toString();
            if (outputs.contains(output)) {
                m_lines.insert(output, line);
            }
        });
    }
}

// Without this, a nightly run would make the file longer each night.
void BatchJournal::dropOldLines()
{
    if (m_lineCount < 2 * m_lines.size() + 100) {
        return;
    }
    PackageTarget target(m_file);
    for (const QJsonObject &line : qAsConst(m_lines)) {
        target.file().put(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }
    target.commit();
    hold();
}

QString BatchJournal::pathOf(const BatchPlan::Lesson &lesson) const
{
    return m_folder + QLatin1Char('/') + lesson.output;
}

QString BatchJournal::stateOf(const BatchPlan::Lesson &lesson)
{
    const QFileInfo info(lesson.input);
    QByteArray state = m_settings + '\n' + info.absoluteFilePath().toUtf8() + '\n' + stateOfPath(lesson.input);
    if (lesson.format && !lesson.format->folderBeside.isEmpty() && info.isFile()) {
        const QString beside = info.absolutePath() + QLatin1Char('/') + lesson.format->folderBeside;
        if (!m_folderStates.contains(beside)) {
            m_folderStates.insert(beside, stateOfPath(beside));
        }
        state += '\n' + m_folderStates.value(beside);
    }
    return shortened(state);
}

QJsonObject BatchJournal::doneBefore(const BatchPlan::Lesson &lesson)
{
    const QJsonObject line = m_lines.value(lesson.output);
    const QFileInfo made(pathOf(lesson));
    const bool isUnchanged = !line.isEmpty() && made.exists() && line.value(lessonKey).toString() == stateOf(lesson)
        && line.value(madeKey).toString() == shortened(stateOfPath(made.filePath()));
    return isUnchanged ? line.value(doneResultKey).toObject() : QJsonObject();
}

void BatchJournal::note(const BatchPlan::Lesson &lesson, const QString &state, const QJsonObject &result)
{
    const QJsonObject line{{doneOutputKey, lesson.output},
                           {lessonKey, state},
                           {madeKey, shortened(stateOfPath(pathOf(lesson)))},
                           {doneResultKey, result}};
    write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace lessonhost
