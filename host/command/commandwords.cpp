// SPDX-License-Identifier: MIT
#include "command/commandwords.h"

#include "command/call.h"
#include "command/checkwords.h"
#include "command/convertwords.h"
#include "command/infowords.h"
#include "command/manylessons.h"
#include "command/renderwords.h"

#include <limits>

namespace lessonhost {

namespace {

constexpr int anyNumber = std::numeric_limits<int>::max();

const char *const usageBegin = TO_SAY("Converts lessons of interactive whiteboards and tells what is in them.");

const char *const usageExamples = R"(
  lessonconv convert lesson.zqtx lesson.iwb
  lessonconv convert lesson.json lesson.zqtx --report losses.json
  lessonconv convert lessons/ --to iwb --out-dir converted/ --resume
  lessonconv render lesson.zqtx lesson.html
  lessonconv render lesson.zqtx slide%02d.png --slides 2-5 --width 1280
  lessonconv render lessons/ --to pdf --out-dir paper/ --resume
  lessonconv convert lessons/ --to iwb --out-dir converted/ --shard 3/16
  lessonconv report reports/*.json --report all.json
  lessonconv render --diff lesson.zqtx lesson.iwb difference.html
  lessonconv info lesson.zqtx
  lessonconv check lesson.zqtx

)";

const char *const usageEnd = TO_SAY("The lesson that is read is never changed. What the other format can't hold is\n"
                                    "named, by slide and item. Exit code: 0 done, 1 done with losses and --strict,\n"
                                    "or something is wrong that check looks for, 2 not done.");

// What stands before a purpose in the help.
constexpr int purposeColumn = 36;

bool never(const Call &, const QStringList &)
{
    return false;
}

} // namespace

const std::vector<CommandWord> &commandWords()
{
    static const std::vector<CommandWord> words{
        {"convert", nullptr, "INPUT OUTPUT", TO_SAY("converts a lesson; the names say the formats"), 1, anyNumber,
         conversionMeasuresText, convertOne},
        {"convert", manyOption, "INPUTS... --to FORMAT --out-dir FOLDER",
         TO_SAY("converts many lessons, or all in a folder"), 1, anyNumber, never, convertMany},
        {"render", nullptr, "INPUT OUTPUT", TO_SAY("draws the slides as .html, .pdf, .svg, .png, .jpg or .webp"), 2, 2,
         picturesMeasureText, renderOne},
        {"render", manyOption, "INPUTS... --to FORM --out-dir FOLDER", TO_SAY("draws many lessons, or all in a folder"),
         1, anyNumber, never, renderMany},
        {"render", "diff", "--diff A B OUTPUT.html", TO_SAY("two lessons side by side, and what B lacks"), 3, 3,
         picturesMeasureText, renderTwo},
        {"report", nullptr, "REPORTS...", TO_SAY("what became of all lessons, by the reports of many runs"), 1,
         anyNumber, never, mergeRuns},
        {"show", nullptr, "INPUT", TO_SAY("opens a lesson in the browser"), 1, 1, picturesMeasureText, show},
        {"info", nullptr, "INPUT", TO_SAY("page size, slides, items, missing files"), 1, 1, infoMeasuresText, tellInfo},
        {"check", nullptr, "INPUT", TO_SAY("is it whole, and what would other formats lose"), 1, 1, checkMeasuresText,
         checkOne},
        {"check", manyOption, "INPUTS... --out-dir FOLDER", TO_SAY("checks many lessons, or all in a folder"), 1,
         anyNumber, never, checkMany},
        {"formats", nullptr, "", TO_SAY("the formats and their file names"), 0, 0, never, tellFormats},
        // For those who install the command.
        {"completion", nullptr, "SHELL", nullptr, 1, 1, never, tellCompletion},
        // What worker processes of convertMany(), renderMany() and checkMany() do.
        {serveConversionsWord, nullptr, "", nullptr, 0, 0, servedConversionsMeasureText, serveConversions},
        {servePicturesWord, nullptr, "", nullptr, 0, 0, picturesMeasureText, servePictures},
        {serveChecksWord, nullptr, "", nullptr, 0, 0, servedChecksMeasureText, serveChecks},
    };
    return words;
}

Sentence wordList()
{
    QStringList names;
    for (const CommandWord &word : commandWords()) {
        if (word.purpose && !names.contains(QLatin1String(word.word))) {
            names.append(QLatin1String(word.word));
        }
    }
    return listedWithOr(names);
}

Sentence usage()
{
    Sentence text = say(usageBegin) + Sentence(QStringLiteral("\n\n"));
    for (const CommandWord &word : commandWords()) {
        if (!word.purpose) {
            continue;
        }
        const QString call =
            QStringLiteral("  lessonconv %1 %2").arg(QLatin1String(word.word), QLatin1String(word.arguments));
        text = text
            + Sentence(call.size() < purposeColumn - 1
                           ? call.leftJustified(purposeColumn)
                           : QString(call + QLatin1Char('\n') + QString(purposeColumn, QLatin1Char(' '))))
            + say(word.purpose) + Sentence(QStringLiteral("\n"));
    }
    return text + Sentence(QStringLiteral("\n")) + say("Examples:") + Sentence(QString::fromLatin1(usageExamples))
        + say(usageEnd);
}

} // namespace lessonhost
