// SPDX-License-Identifier: MIT
#ifndef MANYLESSONS_H
#define MANYLESSONS_H

#include <QStringList>

namespace lessonhost {

struct BatchWork;
class Call;
class PluginHost;

//! With which lines are for many lessons.
constexpr const char manyOption[] = "out-dir";

/*!
 * What is done with many lessons, and the word that tells worker processes to do it.
 */
struct ManyWork
{
    const BatchWork &work;
    const char *servingWord;
};

//! Has it done, and tells what became of all lessons. extension: of the results; empty for folders. The exit code.
//! Throws LessonError if nothing can be done at all.
int runMany(const Call &call, const QStringList &inputs, const QString &extension, const PluginHost &host,
            const ManyWork &work);

//! What the word report does.
int mergeRuns(const Call &call, const QStringList &reports);

} // namespace lessonhost

#endif // MANYLESSONS_H
