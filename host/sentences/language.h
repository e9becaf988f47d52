// SPDX-License-Identifier: MIT
#ifndef LANGUAGE_H
#define LANGUAGE_H

#include <QString>
#include <QStringList>

namespace lessonhost {

//! The languages that there is a translation into, such as "zh_CN". English, the language of the sources, isn't one.
QStringList translatedLanguages();

//! The one for the user, by LANGUAGE, LC_ALL, LC_MESSAGES and LANG as gettext reads them; empty for English. Where the
//! locale has no translation, or its encoding not the letters, it is English.
QString languageOfEnvironment();

//! In which language sentences are said from now on; empty for English, which they are until then.
void speak(const QString &language);

//! What speak() was given.
QString spokenLanguage();

//! A language as pages name it: "zh-CN" for "zh_CN", and "en" for English.
QString languageTag(const QString &language);

//! A text of the context in a language, or itself where it has no translation; with number in the place of "%n", unless
//! that is below 0. An empty language is English, where only numbers make a difference.
QString translated(const QString &language, const char *text, qint64 number = -1, const char *context = "lessonconv");

//! Has file names and the terminal in UTF-8 where the locale says so and isn't installed, for which the system's own
//! library takes ASCII. Before anything is read.
void takeEncodingOfEnvironment();

} // namespace lessonhost

#endif // LANGUAGE_H
