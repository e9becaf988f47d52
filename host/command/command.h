// SPDX-License-Identifier: MIT
#ifndef COMMAND_H
#define COMMAND_H

#include "command/commandline.h"
#include "lesson/lesson.h"

#include <QVector>

#include <memory>

namespace lessonhost {

struct BatchSettings;
struct BatchWork;
struct LessonCheck;
struct LessonFormat;
struct PictureForm;
struct RenderSettings;
class BatchTotals;
class LossReport;
class PluginHost;
class StandardStreams;

/*!
 * The command: what each of its words does.
 */
class Command
{
public:
    /*!
     * A word with what follows it, as the help shows it, and what is done then. A word has several rows where an
     * option decides.
     */
    struct Word
    {
        const char *word;
        const char *option; //!< the row is for lines with this option; null for those without
        const char *arguments;
        const char *purpose; //!< for say(); null for what is not for people
        int leastFiles;
        int mostFiles;
        //! Whether it takes a QGuiApplication.
        bool (Command::*measuresText)(const QStringList &files) const;
        int (Command::*run)(const QStringList &files) const;
    };

    //! In the order of the help.
    static const std::vector<Word> &words();

    //! The program's name and what follows it. Needs no application yet.
    explicit Command(const QStringList &arguments);
    ~Command();

    //! Whether it needs a QGuiApplication. False as well for what can't be done at all.
    bool measuresText() const;

    //! Whether what it draws is for whoever calls it, and no part of a lesson.
    bool drawsForPeople() const;

    //! The exit code. Throws LessonError.
    int run();

private:
    bool isSet(const char *name) const { return m_line.isSet(name); }
    QString value(const char *name) const { return m_line.value(name); }
    const Word *word() const;
    [[noreturn]] void tellWhatIsMissing() const;
    void checkOptions(const Word &word) const;

    int formats(const QStringList &files) const;
    int info(const QStringList &files) const;
    int check(const QStringList &files) const;
    int checkMany(const QStringList &inputs) const;
    int serveChecks(const QStringList &files) const;
    int convertOne(const QStringList &files) const;
    int convertMany(const QStringList &inputs) const;
    int serve(const QStringList &files) const;
    int servePictures(const QStringList &files) const;
    int render(const QStringList &files) const;
    int renderMany(const QStringList &inputs) const;
    int renderDifference(const QStringList &files) const;
    int show(const QStringList &files) const;
    int completion(const QStringList &shells) const;

    bool never(const QStringList &) const { return false; }
    bool always(const QStringList &) const { return true; }
    bool infoMeasuresText(const QStringList &files) const;
    bool convertMeasuresText(const QStringList &files) const;
    bool serveMeasuresText(const QStringList &files) const;
    bool checkMeasuresText(const QStringList &files) const;
    bool serveChecksMeasureText(const QStringList &files) const;

    //! The file to read for an input. Throws LessonError.
    QString inputFile(const QString &input) const;
    void checkOutput(const QString &output) const;
    void tellName(const QString &input, const LessonFormat &format) const;
    const LessonFormat &inputFormat(const QString &input) const;
    const LessonFormat &outputFormat(const QString &output) const;
    bool hasIdleCores() const;
    LessonContext readingContext(const PluginHost &host) const;
    LessonContext conversionContext(const PluginHost &host, LossReport *losses) const;
    LessonCheck checked(const LessonFormat &from, const QString &input, const PluginHost &host,
                        const Progress &progress) const;
    QVector<const LessonFormat *> triedFormats(const LessonFormat *from) const;
    const PictureForm &pictureForm(const QString &output) const;
    void checkIsTold(const QString &output) const;
    BatchSettings batchSettings(const PluginHost &host, const BatchWork &work) const;
    int mergeMany(const QStringList &reports) const;
    int exitCodeOf(const BatchTotals &totals) const;
    int runMany(const QStringList &inputs, const QString &extension, const BatchSettings &settings) const;
    RenderSettings renderSettings(const PictureForm &form, const QStringList &inputs) const;
    RenderSettings manyRenderSettings() const;
    void tellNotes(const Sentences &notes) const;
    void tellRendered(const QJsonObject &report) const;

    CommandLine m_line;
    std::unique_ptr<StandardStreams> m_streams;
};

} // namespace lessonhost

#endif // COMMAND_H
