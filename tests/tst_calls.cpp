// SPDX-License-Identifier: MIT
#include "hostfixture.h"
#include "testtable.h"

#include <QDir>
#include <QStandardPaths>
#include <QtTest>

/*!
 * Calls of the command: where lessons come from and go to, and what is said of calls that aren't complete.
 */
class TestCalls : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    // Through a shell, as people call it. $L is the command.
    CommandProcess::Outcome shell(const QString &line)
    {
        CommandProcess process;
        process.begin({"--help"}); // finds the command
        const QString command = process.program();
        process.outcome();
        QProcess sh;
        sh.setWorkingDirectory(m_folder.path());
        sh.start("bash", {"-c", "L=\"$0\" E=\"$1\"; " + line, command, EXAMPLES_DIR});
        sh.waitForFinished();
        return {sh.exitCode(), QString::fromUtf8(sh.readAllStandardOutput()),
                QString::fromUtf8(sh.readAllStandardError())};
    }

private slots:
    void initTestCase()
    {
        const auto made = shell("$L convert $E/mindmaps g.zqtx && cp g.zqtx g.iwb && cp g.zqtx g.zip && "
                                "mkdir outer && cp -r $E/mindmaps outer/lesson && cp g.zqtx nameless && "
                                "(cd outer && cmake -E tar cf ../outer.zip --format=zip lesson) && mkfifo pipe && "
                                "$L convert $E/mindmaps g.json");
        QVERIFY2(made.exitCode == 0, qPrintable(made.errors));
    }

    void answers_data()
    {
        const Table<QString, int, QString, QString> row("line", "exitCode", "output", "errors");
        row("out", "$L convert g.zqtx - --to json | cmp - g.json", 0, "", "");
        row("in and out", "cat g.json | $L convert - - --to zqtx | $L convert - - --to json | cmp - g.json", 0, "", "");
        row("handed over", "$L info <(cat g.zqtx)", 0, "Mind maps", "");
        row("by its device", "$L info /dev/stdin < g.iwb", 0, "Mind maps", "");
        row("the wrong name", "$L info g.iwb", 0, "Mind maps", "g.iwb is called like a lesson in the format iwb");
        row("no telling name", "$L info g.zip && $L info nameless", 0, "Mind maps", "");
        row("a folder around it", "$L convert outer.zip o.json && cmp o.json g.json", 0, "", "");
        row("among many", "$L convert . --to json --out-dir many && cmp many/outer.json g.json", 0, "7 lessons", "");
        row("nothing comes", "$L info - < /dev/null", 2, "", "standard input: Nothing came");
        row("damaged on the way", "head -c 500 g.zqtx | $L convert - x.json --from zqtx", 2, "",
            "standard input: This is no");
        row("no room for it", "$L convert g.zqtx - --to json > /dev/full", 2, "",
            "Standard output: It can't be written");
        row("nobody writes", "$L info pipe", 2, "", "pipe: This is a pipe");
        row("both on one stream", "$L convert g.zqtx - --to json --json", 2, "error", "can't take the result and what");
        row("kept", "cp g.json k.json; $L convert g.zqtx k.json --no-clobber", 2, "", "k.json: There is a file or");
        row("many kept", "$L convert g.zqtx --to json --out-dir . --no-clobber", 2, "1 not converted", "is kept");
        row("a picture's name", "$L convert g.zqtx g.pdf", 2, "", "lessonconv render");
        row("a picture's form", "$L convert . --to png --out-dir x", 2, "", ".png: This is the name of a picture");
        row("a format that nothing is read in", "$L formats --from json", 2, "", "formats makes no use of --from");
        row("no format", "$L convert g.zqtx -", 2, "", "--to json");
        row("no result", "$L render g.zqtx", 2, "", "needs a name for the result");
        row("no lesson", "$L info", 2, "", "info needs a lesson");
        row("too many", "$L info a b", 2, "", "info takes a single file");
        row("none to take", "$L formats a", 2, "", "formats takes no files");
        row("no reports", "$L report", 2, "", "report needs the reports");
        row("an empty name", "$L convert g.json \"$NOTHING\"", 2, "", "A name in this call is empty");
        row("an empty name of a report", "$L convert g.json x.json --report ''", 2, "", "A name in this call is empty");
        row("no use of it", "$L convert g.json x.json --plain", 2, "", "--plain changes nothing about json. Leave it");
        row("nor for many", "$L convert . --to zqtx --out-dir x --ink drop", 2, "", "it is for iwb");
        row("many on a stream", "cat g.json | timeout 20 $L check - --out-dir x", 2, "", "\"-\" is neither");
        row("a stream for many", "$L convert . --to json --out-dir -", 2, "", "\"-\" is neither");
        row("a stream's device", "$L convert g.zqtx /dev/stdout --to json >>o2.json; cmp o2.json g.json", 0, "", "");
        row("a report on a stream", "$L convert g.json x.json --report -", 2, "", "Standard output takes no report");
        row("a pipe to write", "$L convert g.json >(cat) --to zqtx", 2, "", "There is a device or a pipe of this name");
        row("two to compare", "$L render --diff - <(cat g.json) - < g.zqtx", 0, "class=\"pair\"", "");
        row("called by what it is", "$L check - --no-check < g.zqtx", 0, "standard input is whole", "");
        row("an archive of others", "cmake -E tar cf others.zip --format=zip g.json; $L info others.zip", 2, "",
            "others.zip: This archive is no lesson");
        row("no such word", "$L transmute a b", 2, "", "There is no command \"transmute\"");
        row("an option of others", "$L info g.zqtx --ink drop", 2, "", "info makes no use of --ink");
        row("a list for programs", "$L formats --json", 0, "\"extensions\"", "");
        row("versions", "$L --version", 0, "plug-in 1.0", "");
        row("no browser", "PATH= XDG_RUNTIME_DIR=$PWD $L show g.zqtx", 2, "", "no browser could be opened");
        row("shown",
            "printf '#!/bin/sh\\ngrep -c \"<svg\" $1 >&2' > xdg-open; chmod +x xdg-open; "
            "PATH=$PWD:$PATH XDG_RUNTIME_DIR=$PWD $L show g.zqtx",
            0, "", "2");
    }

    void answers()
    {
        QFETCH(QString, line);
        QFETCH(QString, output);
        QFETCH(QString, errors);
        const auto outcome = shell("set -o pipefail; " + line);
        const QString all = outcome.output + "\n" + outcome.errors;
        QVERIFY2(outcome.output.contains(output) && outcome.errors.contains(errors), qPrintable(all));
        QVERIFY2(!errors.isEmpty() || outcome.errors.isEmpty(), qPrintable(all));
        QVERIFY2(!outcome.errors.contains(QDir::tempPath() + "/lessonconv"), qPrintable(all));
        QTEST(outcome.exitCode, "exitCode");
    }
};

QTEST_GUILESS_MAIN(TestCalls)
#include "tst_calls.moc"
