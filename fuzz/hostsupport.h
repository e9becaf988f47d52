// SPDX-License-Identifier: MIT
#ifndef HOSTSUPPORT_H
#define HOSTSUPPORT_H

#include <QString>

//! The host lays out text, which takes an application. It stays to the end, since Qt leaves screens behind.
void startApplication();

//! Reads a whole lesson with the host's reader of that format. What it complains about is no failure.
void readLesson(const QString &format, const QString &path);

//! Converts a lesson. Ends the program if it can't be.
void convert(const QString &fromFormat, const QString &input, const QString &toFormat, const QString &output);

#endif // HOSTSUPPORT_H
