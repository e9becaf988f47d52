// SPDX-License-Identifier: MIT
#include "command/completion.h"

#include "command/commandline.h"
#include "command/commandwords.h"
#include "files/lessonerror.h"
#include "formats/lessonformats.h"
#include "render/rendersettings.h"

namespace lessonhost {

namespace {

struct NamedWord
{
    QString word;
    QString purpose;
};

// Each word of the command once, with the purpose of its first row.
QVector<NamedWord> wordsForPeople()
{
    QVector<NamedWord> found;
    for (const CommandWord &word : commandWords()) {
        const QString name = QLatin1String(word.word);
        if (word.purpose && (found.isEmpty() || found.constLast().word != name)) {
            found.append({name, QLatin1String(word.purpose)});
        }
    }
    return found;
}

QString wordNames()
{
    QStringList names;
    for (const NamedWord &word : wordsForPeople()) {
        names.append(word.word);
    }
    return names.join(QLatin1Char(' '));
}

// Whether the value of an option is called so.
bool takes(const CommandOption &option, const char *value)
{
    return option.value && QLatin1String(option.value) == QLatin1String(value);
}

// What may stand behind an option of a word, with blanks between; empty where anything may, or a file.
QString choicesOf(const CommandOption &option, const QString &word)
{
    if (!takes(option, "format")) {
        return QLatin1String(option.choices);
    }
    const bool isOutput = QLatin1String(option.name) == QLatin1String("to");
    QStringList names;
    if (isOutput && word == QLatin1String("render")) {
        for (const PictureForm &form : pictureForms()) {
            names.append(form.name);
        }
    } else {
        for (const LessonFormat &format : lessonFormats()) {
            if (isOutput ? format.canWrite() : format.canRead()) {
                names.append(format.name);
            }
        }
    }
    return names.join(QLatin1Char(' '));
}

bool isFolder(const CommandOption &option)
{
    return takes(option, "folder");
}

QString named(const char *name)
{
    return QLatin1String("--") + QLatin1String(name);
}

QString bashScript()
{
    QString values;
    for (const CommandOption &option : commandOptions()) {
        for (const NamedWord &word : wordsForPeople()) {
            const QString choices = isFor(option, word.word) ? choicesOf(option, word.word) : QString();
            if (!choices.isEmpty()) {
                values +=
                    QStringLiteral(
                        "        \"%1 %2\") mapfile -t COMPREPLY < <(compgen -W \"%3\" -- \"$word\"); return ;;\n")
                        .arg(word.word, named(option.name), choices);
            }
        }
        if (isFolder(option)) {
            values += QStringLiteral("        *\" %1\") compopt -o filenames 2>/dev/null; "
                                     "mapfile -t COMPREPLY < <(compgen -d -- \"$word\"); return ;;\n")
                          .arg(named(option.name));
        }
    }
    QString options;
    for (const NamedWord &word : wordsForPeople()) {
        QStringList names{QStringLiteral("--help"), QStringLiteral("--version")};
        for (const CommandOption &option : commandOptions()) {
            if (isFor(option, word.word)) {
                names.append(named(option.name));
            }
        }
        options += QStringLiteral("        %1) options=\"%2\" ;;\n").arg(word.word, names.join(QLatin1Char(' ')));
    }
    return QStringLiteral(R"(# Completion of lessonconv for bash.
_lessonconv()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= options i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case " %1 " in
            *" ${COMP_WORDS[i]} "*) command=${COMP_WORDS[i]}; break ;;
        esac
    done
    case "$command $before" in
%2    esac
    case $command in
        "") options="%1 --help --version" ;;
%3    esac
    if [[ -z $command || $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _lessonconv lessonconv
)")
        .arg(wordNames(), values, options);
}

// Within single quotes, and with what zsh takes for its own signs in descriptions marked.
QString zshText(QString text)
{
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"))
        .replace(QLatin1Char('['), QLatin1String("\\["))
        .replace(QLatin1Char(']'), QLatin1String("\\]"))
        .replace(QLatin1Char(':'), QLatin1String("\\:"));
}

QString zshScript()
{
    QString words;
    QString cases;
    for (const NamedWord &word : wordsForPeople()) {
        words += QStringLiteral("        '%1:%2'\n").arg(word.word, zshText(word.purpose));
        cases += QStringLiteral("        %1) _arguments \\\n").arg(word.word);
        for (const CommandOption &option : commandOptions()) {
            if (!isFor(option, word.word)) {
                continue;
            }
            const QString choices = choicesOf(option, word.word);
            QString action;
            if (option.value) {
                action = QStringLiteral(":%1:%2").arg(QLatin1String(option.value),
                                                      !choices.isEmpty()          ? QStringLiteral("(%1)").arg(choices)
                                                          : isFolder(option)      ? QStringLiteral("_files -/")
                                                          : takes(option, "file") ? QStringLiteral("_files")
                                                                                  : QStringLiteral(" "));
            }
            cases += QStringLiteral("            '%1[%2]%3' \\\n")
                         .arg(named(option.name), zshText(QLatin1String(option.description)), action);
        }
        cases += QStringLiteral("            '*:lesson:_files' ;;\n");
    }
    return QStringLiteral(R"(#compdef lessonconv
# Completion of lessonconv for zsh.
_lessonconv()
{
    local -a words_of_command
    words_of_command=(
%1    )
    if (( CURRENT == 2 )); then
        _describe command words_of_command
        _arguments '--help[Print how it is called.]' '--version[Print the version.]'
        return
    fi
    local command=$words[2]
    shift words
    (( CURRENT-- ))
    case $command in
%2    esac
}
_lessonconv "$@"
)")
        .arg(words, cases);
}

QString fishText(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'"));
}

QString fishScript()
{
    QString text = QStringLiteral("# Completion of lessonconv for fish.\n"
                                  "complete -c lessonconv -l help -d 'Print how it is called.'\n"
                                  "complete -c lessonconv -l version -d 'Print the version.'\n");
    for (const NamedWord &word : wordsForPeople()) {
        text += QStringLiteral("complete -c lessonconv -n __fish_use_subcommand -f -a %1 -d '%2'\n")
                    .arg(word.word, fishText(word.purpose));
        for (const CommandOption &option : commandOptions()) {
            if (!isFor(option, word.word)) {
                continue;
            }
            const QString choices = choicesOf(option, word.word);
            const QString value = !option.value ? QString()
                : !choices.isEmpty()            ? QStringLiteral(" -x -a '%1'").arg(choices)
                : isFolder(option)              ? QStringLiteral(" -x -a '(__fish_complete_directories)'")
                                                : QStringLiteral(" -r");
            text += QStringLiteral("complete -c lessonconv -n '__fish_seen_subcommand_from %1' -l %2%3 -d '%4'\n")
                        .arg(word.word, QLatin1String(option.name), value, fishText(QLatin1String(option.description)));
        }
    }
    return text;
}

} // namespace

QString completionScript(const QString &shell)
{
    if (shell == QLatin1String("bash")) {
        return bashScript();
    }
    if (shell == QLatin1String("zsh")) {
        return zshScript();
    }
    if (shell == QLatin1String("fish")) {
        return fishScript();
    }
    throw LessonError(say("There is no completion for \"%1\"").arg(shell), say("Say bash, zsh or fish"));
}

} // namespace lessonhost
