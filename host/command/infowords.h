// SPDX-License-Identifier: MIT
#ifndef INFOWORDS_H
#define INFOWORDS_H

#include <QStringList>

namespace lessonhost {

class Call;

//! What the word info does.
int tellInfo(const Call &call, const QStringList &files);
bool infoMeasuresText(const Call &call, const QStringList &files);

//! What the word formats does.
int tellFormats(const Call &call, const QStringList &files);

//! What the word completion does.
int tellCompletion(const Call &call, const QStringList &shells);

} // namespace lessonhost

#endif // INFOWORDS_H
