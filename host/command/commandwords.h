// SPDX-License-Identifier: MIT
#ifndef COMMANDWORDS_H
#define COMMANDWORDS_H

#include "sentences/sentence.h"

#include <QStringList>

#include <vector>

namespace lessonhost {

class Call;

/*!
 * A word of the command with what follows it, as the help shows it, and what is done then. A word has several rows
 * where an option decides.
 */
struct CommandWord
{
    const char *word;
    const char *option; //!< the row is for lines with this option; null for those without
    const char *arguments;
    const char *purpose; //!< for say(); null for what is not for people
    int leastFiles;
    int mostFiles;
    //! Whether it takes a QGuiApplication. May throw LessonError for what can't be done at all.
    bool (*measuresText)(const Call &call, const QStringList &files);
    //! The exit code. Throws LessonError.
    int (*run)(const Call &call, const QStringList &files);
};

//! In the order of the help. The rows of a word for options come behind the one without.
const std::vector<CommandWord> &commandWords();

//! "convert, render, info or formats"
Sentence wordList();

//! What stands in the help before the options.
Sentence usage();

} // namespace lessonhost

#endif // COMMANDWORDS_H
