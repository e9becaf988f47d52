// SPDX-License-Identifier: MIT
#include "batch/batchjournal.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagetarget.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const QLatin1String outputKey("output");
const QLatin1String lessonKey("lesson");
const QLatin1String madeKey("made");
const QLatin1String resultKey("result");

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

QString shortened(const QByteArray &text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex());
}

} // namespace

QString BatchJournal::fileIn(const QString &outputFolder)
{
    return outputFolder + QLatin1String("/.lessonconv-done");
}

BatchJournal::BatchJournal(const QString &outputFolder, const QByteArray &settings)
    : m_folder(outputFolder)
    , m_settings(settings)
{
    const QString file = fileIn(outputFolder);
    const QFileInfo info(file);
    // Whoever may write in the folder could lead these lines into any file of this user.
    if (info.isSymLink() || (info.exists() && !info.isFile())) {
        throw LessonError(QStringLiteral("This is no file that lessonconv has made"), QStringLiteral("Remove it"))
            .in(file);
    }
    if (info.exists()) {
        read();
        dropOldLines();
    }
    m_descriptor = ::open(QFile::encodeName(file).constData(),
                          O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
    if (m_descriptor < 0) {
        throw LessonError(QStringLiteral("Nothing can be written in this folder: %1").arg(systemReason(errno)),
                          QStringLiteral("Check that you may write there and that there is room"))
            .in(outputFolder);
    }
    // The next line must not be taken for the end of one that was cut off.
    if (info.size() > 0) {
        write("\n");
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
            throw LessonError(QStringLiteral("What is done can't be noted for --resume: %1").arg(systemReason(errno)),
                              QStringLiteral("Check that there is room"))
                .in(fileIn(m_folder));
        }
        done += qMax<ssize_t>(count, 0);
    }
}

void BatchJournal::read()
{
    const QByteArrayList lines = InputFile(fileIn(m_folder)).all().split('\n');
    for (const QByteArray &text : lines) {
        if (text.isEmpty()) {
            continue;
        }
        const QJsonObject line = QJsonDocument::fromJson(text).object();
        m_lines.insert(line.value(outputKey).toString(), line);
        ++m_lineCount;
    }
}

// Without this, a nightly run would make the file longer each night.
void BatchJournal::dropOldLines()
{
    if (m_lineCount < 2 * m_lines.size() + 100) {
        return;
    }
    PackageTarget target(fileIn(m_folder));
    for (const QJsonObject &line : qAsConst(m_lines)) {
        target.file().put(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }
    target.commit();
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
    return isUnchanged ? line.value(resultKey).toObject() : QJsonObject();
}

void BatchJournal::note(const BatchPlan::Lesson &lesson, const QString &state, const QJsonObject &result)
{
    const QJsonObject line{{outputKey, lesson.output},
                           {lessonKey, state},
                           {madeKey, shortened(stateOfPath(pathOf(lesson)))},
                           {resultKey, result}};
    write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace lessonhost
