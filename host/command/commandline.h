// SPDX-License-Identifier: MIT
#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "batch/batchshard.h"

#include "sentences/sentence.h"

#include <QCommandLineParser>
#include <QHash>

#include <vector>

namespace lessonhost {

/*!
 * An option of the command.
 */
struct CommandOption
{
    enum Effect {
        OnTheRun, //!< how it goes and what is said
        OnResults, //!< the same lesson becomes something else: part of what a worker and --resume are told
        OnAFormat //!< the same, and the option is for a format: it comes in LessonContext::options
    };

    const char *name;
    const char *value; //!< what its value is called; null where it has none
    Effect effect;
    //! The words of the command that take it, with blanks between; empty for all. "render:diff" is for lines with
    //! --diff only, "render:" for those without such an option.
    const char *words;
    const char *description; //!< for say()
    const char *standard = ""; //!< the value where none is given
    const char *choices = ""; //!< all values that there are, with blanks between; empty where there is no list of them
};

//! The table of options, in the order of the help.
const std::vector<CommandOption> &commandOptions();

//! Whether a word of the command takes an option at all.
bool isFor(const CommandOption &option, const QString &word);
//! Whether it does so in lines with an option of its own, or without such.
bool isFor(const CommandOption &option, const QString &word, const QString &wordsOption);

/*!
 * What a call of the command says, with the values of its options checked. Functions throw LessonError where noted.
 */
class CommandLine
{
public:
    //! arguments: the program's name and what follows it.
    CommandLine(const QStringList &arguments, const Sentence &usage, const Sentence &wordList);

    bool isUnderstood() const { return m_isUnderstood; }
    //! Why it isn't.
    Sentence problem() const;
    //! In the user's language.
    QString help() const;

    //! The command's word and its files; empty if the line isn't understood.
    QStringList words() const { return m_isUnderstood ? m_parser.positionalArguments() : QStringList(); }
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }
    QString value(const char *name) const { return m_parser.value(QLatin1String(name)); }

    //! Throws where a name of a file or folder is empty, as that of a variable of the shell which isn't set.
    void checkNames() const;
    //! The options for single formats that the call gives, by name.
    QStringList givenFormatOptions() const;

    //! How many lessons at the same time. Throws.
    int jobs() const;
    //! How long each of many lessons may take; 0 for as long as it does. Throws.
    int lessonSeconds() const;
    //! The part of many lessons to take; all of them where nothing is said. Throws.
    BatchShard shard() const;

    //! The options of a word that change results in lines with an option of its own, as arguments again. Throws.
    QStringList resultArguments(const QString &word, const QString &wordsOption) const;
    //! Those for single formats, by name. Throws.
    QHash<QString, QString> formatOptions() const;

private:
    void checkChoices() const;

    QCommandLineParser m_parser;
    bool m_isUnderstood = false;
};

} // namespace lessonhost

#endif // COMMANDLINE_H
