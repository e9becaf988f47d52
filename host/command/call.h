// SPDX-License-Identifier: MIT
#ifndef CALL_H
#define CALL_H

#include "command/commandline.h"
#include "command/standardstreams.h"
#include "lesson/lesson.h"

#include <memory>

namespace lessonhost {

struct LessonFormat;
class InputGuard;
class LossReport;
class PluginHost;

//! How the command ends.
enum ExitCode { Done = 0, DoneWithLosses = 1, NotDone = 2 };

// What worker processes of many lessons are told instead of a word for people.
constexpr const char serveConversionsWord[] = "serve";
constexpr const char servePicturesWord[] = "serve-pictures";
constexpr const char serveChecksWord[] = "serve-checks";

/*!
 * A call of the command, as what its words do sees it: what is said of the files, and how lessons are read and written
 * by it. Functions throw LessonError.
 */
class Call
{
public:
    //! As for CommandLine.
    Call(const QStringList &arguments, const Sentence &usage, const Sentence &wordList);

    const CommandLine &line() const { return m_line; }
    StandardStreams &streams() const { return *m_streams; }
    bool isSet(const char *name) const { return m_line.isSet(name); }
    QString value(const char *name) const { return m_line.value(name); }

    //! The file to read for an input.
    QString inputFile(const QString &input) const { return m_streams->input(input); }
    //! What --from says, or the input itself.
    const LessonFormat &inputFormat(const QString &input) const;

    //! Refuses an output that tells no form, for which --to would; example is one.
    void checkIsTold(const QString &output, QLatin1String example) const;
    //! Refuses an output that can't be taken, or isn't to be replaced.
    void checkOutput(const QString &output) const;
    //! Null where none is asked for.
    QString reportName() const { return isSet("report") ? value("report") : QString(); }
    //! Refuses a report, if one is asked for, that would take the place of what is read, or of outputs. The guard knows
    //! of it from then on.
    void checkReport(InputGuard &inputs, const QStringList &outputs) const;
    //! Says so where an input isn't what its name says.
    void tellName(const QString &input, const LessonFormat &format) const;

    LessonContext readingContext(const PluginHost &host) const;
    //! losses: where they go; may be null.
    LessonContext conversionContext(const PluginHost &host, LossReport *losses) const;

private:
    bool hasIdleCores() const;

    CommandLine m_line;
    std::unique_ptr<StandardStreams> m_streams;
};

} // namespace lessonhost

#endif // CALL_H
