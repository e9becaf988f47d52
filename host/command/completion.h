// SPDX-License-Identifier: MIT
#ifndef COMPLETION_H
#define COMPLETION_H

#include <QString>

namespace lessonhost {

//! The script with which a shell ("bash", "zsh" or "fish") completes calls of lessonconv, from the tables of words and
//! options. Throws LessonError for any other shell.
QString completionScript(const QString &shell);

} // namespace lessonhost

#endif // COMPLETION_H
