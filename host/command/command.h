#ifndef COMMAND_H
#define COMMAND_H

#include <QCommandLineParser>

namespace lessonhost {

struct BatchSettings;
struct LessonContext;
struct LessonFormat;
class LossReport;
class PluginHost;

/*!
 * The command: its options, and what each of its words does.
 */
class Command
{
public:
    //! The program's name and what follows it. Needs no application yet.
    explicit Command(const QStringList &arguments);

    //! Whether it needs a QGuiApplication. False as well for what can't be done at all.
    bool measuresText() const;

    //! The exit code. Throws LessonError.
    int run();

private:
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }
    QString value(const char *name) const { return m_parser.value(QLatin1String(name)); }

    int formats() const;
    int info(const QString &input) const;
    int convert(const QStringList &files) const;
    int convertOne(const QString &input, const QString &output) const;
    int convertMany(const QStringList &inputs) const;
    int serve() const;
    int render(const QStringList &files) const;

    const LessonFormat &inputFormat(const QString &input) const;
    const LessonFormat &outputFormat(const QString &output) const;
    LessonContext conversionContext(const PluginHost &host, LossReport *losses) const;
    BatchSettings batchSettings(const PluginHost &host, const LessonFormat &to) const;
    QString inkChoice() const;
    int jobs() const;
    int lessonSeconds() const;

    QCommandLineParser m_parser;
    bool m_isUnderstood = false;
};

} // namespace lessonhost

#endif // COMMAND_H
