// SPDX-License-Identifier: MIT
#ifndef CONVERTWORDS_H
#define CONVERTWORDS_H

#include <QStringList>

namespace lessonhost {

class Call;

//! What the word convert does.
int convertOne(const Call &call, const QStringList &files);
int convertMany(const Call &call, const QStringList &inputs);
//! Of a worker process.
int serveConversions(const Call &call, const QStringList &files);

bool conversionMeasuresText(const Call &call, const QStringList &files);
bool servedConversionsMeasureText(const Call &call, const QStringList &files);

} // namespace lessonhost

#endif // CONVERTWORDS_H
