// SPDX-License-Identifier: MIT
#ifndef PLAINLOSSES_H
#define PLAINLOSSES_H

#include "losses/lossreport.h"
#include "sentences/sentence.h"

namespace lessonhost {

// What was lost, in the words of who gives the lesson.

//! Lines with what a report holds, by what it means for the lesson: what isn't shown, what isn't the same, what nobody
//! sees. Items and values have their plain names; what is alike is told once with its number and its slides, and where
//! there is much of it, the most frequent. hasReport: whether a file names each. No line for an empty report.
Sentences plainSummary(const LossReport &report, bool hasReport);

//! Lines that stand below another one.
Sentences indented(Sentences lines);

//! The heading of a group, such as "In the result, but not the same".
Sentence groupTitle(Loss::Group group, bool isElsewhere = false);

} // namespace lessonhost

#endif // PLAINLOSSES_H
