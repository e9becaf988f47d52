// SPDX-License-Identifier: MIT
#include "command/commandline.h"
#include "command/commandwords.h"
#include "command/completion.h"
#include "pluginfixture.h"
#include "testtable.h"

#include <QProcess>
#include <QtTest>

namespace {

const QString man = EXAMPLES_DIR "/../docs/lessonconv.1"_s;

QStringList sorted(QStringList list)
{
    list.removeDuplicates();
    list.sort();
    return list;
}

// Words that are for people.
QStringList wordsOfTable()
{
    QStringList words;
    for (const lessonhost::CommandWord &word : lessonhost::commandWords()) {
        if (word.purpose) {
            words.append(word.word);
        }
    }
    return sorted(words);
}

// Options that a word takes, or all of them.
QStringList optionsOfTable(const QString &word = {})
{
    QStringList options{"--help", "--version"};
    for (const lessonhost::CommandOption &option : lessonhost::commandOptions()) {
        if (word.isEmpty() || lessonhost::isFor(option, word)) {
            options.append("--"_s + option.name);
        }
    }
    return sorted(options);
}

QStringList found(const char *pattern, const QString &text)
{
    QStringList parts;
    auto it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext()) {
        parts.append(it.next().captured(1));
    }
    return sorted(parts);
}

// What bash offers behind "lessonconv" and that word.
QStringList offered(const QString &word, const QString &begun)
{
    QStringList arguments{"-c",
                          "eval \"$0\"; COMP_WORDS=(lessonconv \"$@\"); COMP_CWORD=$#; _lessonconv; "
                          "printf '%s\\n' \"${COMPREPLY[@]}\"",
                          lessonhost::completionScript("bash")};
    if (!word.isEmpty()) {
        arguments.append(word);
    }
    QProcess bash;
    bash.start("bash", arguments << begun);
    bash.waitForFinished();
    return sorted(QString::fromUtf8(bash.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts));
}

} // namespace

/*!
 * What is written down about the command beside its tables is what they say.
 */
class TestCommand : public QObject
{
    Q_OBJECT

private slots:
    void manualHasAllWordsAndOptions()
    {
        const QString text = QString(fileContent(man)).remove('\\');
        const QString synopsis = text.section(".SH SYNOPSIS", 1).section(".SH ", 0, 0);
        const QString options = text.section(".SH OPTIONS", 1).section(".SH ", 0, 0);
        QCOMPARE(found("lessonconv ([a-z]+)", synopsis), wordsOfTable());
        // The line behind each mark names an option or two.
        QCOMPARE(found("(--[a-z-]+)", found("\\.TP\n(.*)", options).join(' ')), optionsOfTable());
        // No page tells of what isn't there.
        for (const QString &option : found("(--[a-z-]+)", text)) {
            QVERIFY2(optionsOfTable().contains(option), qPrintable(option));
        }
    }

    void completionOffersAllWordsAndOptions()
    {
        QCOMPARE(offered({}, {}), sorted(wordsOfTable() + QStringList{"--help", "--version"}));
        for (const QString &word : wordsOfTable()) {
            QCOMPARE(offered(word, "--"), optionsOfTable(word));
        }
    }

    void completionIsReadByTheShells_data()
    {
        const Table<QString, QString> row("shell", "option");
        row("bash", "bash", "-n");
        row("zsh", "zsh", "-n");
        row("fish", "fish", "--no-execute");
    }

    void completionIsReadByTheShells()
    {
        const auto [shell, option] = Table<QString, QString>::cells();
        if (QStandardPaths::findExecutable(shell).isEmpty()) {
            QSKIP("The shell isn't installed");
        }
        const QString script = lessonhost::completionScript(shell);
        QFile file(QDir::temp().filePath("lessonconv-completion." + shell));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script.toUtf8());
        file.close();
        QCOMPARE(QProcess::execute(shell, {option, file.fileName()}), 0);
        file.remove();
        for (const QString &word : wordsOfTable()) {
            QVERIFY(script.contains(word));
        }
        const QStringList options = optionsOfTable();
        for (const QString &name : options) {
            QVERIFY2(script.contains(shell == "fish" ? "-l " + name.mid(2) : name), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(TestCommand)
#include "tst_command.moc"
