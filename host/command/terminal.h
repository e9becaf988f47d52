// SPDX-License-Identifier: MIT
#ifndef TERMINAL_H
#define TERMINAL_H

#include "sentences/sentence.h"

#include <QString>

class QJsonObject;

namespace lessonhost {

// What the command says. What would move a terminal's cursor is replaced.

//! On standard output. Throws LessonError if it is full or closed.
void print(const QString &text);
//! With a line break behind it.
void print(const Sentence &text);

//! The same for what is no text, as it is.
void printBytes(const QByteArray &bytes);

//! The same.
void printJson(const QJsonObject &object);

//! Behind all that is printed: some disks tell only when a file is closed that they are full. Throws like the others.
void endPrinting();

//! A text with blanks behind it until it fills so many columns; wide letters take two.
QString padded(const QString &text, int columns);

//! On standard error, as a sentence of the command.
void complain(const QString &text);
void complain(const Sentence &text);

} // namespace lessonhost

#endif // TERMINAL_H
