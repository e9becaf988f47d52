#include "batch/batchjournal.h"

#include "files/lessonerror.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

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

BatchJournal::BatchJournal(const QString &outputFolder, const QByteArray &settings)
    : m_folder(outputFolder)
    , m_settings(settings)
    , m_file(outputFolder + QLatin1String("/.lessonconv-done"))
{
    read();
    dropOldLines();
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        throw LessonError(QStringLiteral("Nothing can be written in this folder: %1").arg(m_file.errorString()),
                          QStringLiteral("Check that you may write there and that there is room"))
            .in(outputFolder);
    }
    // The next line must not be taken for the end of one that was cut off.
    if (m_file.size() > 0) {
        m_file.write("\n");
    }
}

void BatchJournal::read()
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        return;
    }
    while (!m_file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(m_file.readLine()).object();
        m_lines.insert(line.value(outputKey).toString(), line);
        ++m_lineCount;
    }
    m_file.close();
}

// Without this, a nightly run would make the file longer each night.
void BatchJournal::dropOldLines()
{
    if (m_lineCount < 2 * m_lines.size() + 100) {
        return;
    }
    QSaveFile file(m_file.fileName());
    if (file.open(QIODevice::WriteOnly)) {
        for (const QJsonObject &line : qAsConst(m_lines)) {
            file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
        }
        file.commit();
    }
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
    m_file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace lessonhost
