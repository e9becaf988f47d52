// SPDX-License-Identifier: MIT
#ifndef TERMINAL_H
#define TERMINAL_H

#include <QString>

class QJsonObject;

namespace lessonhost {

// What the command says. What would move a terminal's cursor is replaced.

//! On standard output. Throws LessonError if it is full or closed.
void print(const QString &text);

//! The same for what is no text, as it is.
void printBytes(const QByteArray &bytes);

//! The same.
void printJson(const QJsonObject &object);

//! On standard error, as a sentence of the command.
void complain(const QString &text);

} // namespace lessonhost

#endif // TERMINAL_H
