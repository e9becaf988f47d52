// SPDX-License-Identifier: MIT
#ifndef CHECKWORDS_H
#define CHECKWORDS_H

#include <QStringList>

namespace lessonhost {

class Call;

//! What the word check does.
int checkOne(const Call &call, const QStringList &files);
int checkMany(const Call &call, const QStringList &inputs);
//! Of a worker process.
int serveChecks(const Call &call, const QStringList &files);

bool checkMeasuresText(const Call &call, const QStringList &files);
bool servedChecksMeasureText(const Call &call, const QStringList &files);

} // namespace lessonhost

#endif // CHECKWORDS_H
