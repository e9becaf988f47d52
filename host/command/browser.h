// SPDX-License-Identifier: MIT
#ifndef BROWSER_H
#define BROWSER_H

#include "sentences/sentence.h"

#include <QString>

namespace lessonhost {

//! A folder that only the user can look into, in which pages are left for the browser: the system removes it when the
//! user logs out, or with its other temporary files. Throws LessonError.
QString pageFolder();

//! Opens a page in the browser of the desktop, and waits no longer than that takes. Throws LessonError where there is
//! none.
void openInBrowser(const QString &page);

//! Writes a page that says why there is nothing to be seen, for people who see no terminal. Throws LessonError.
void writeFailurePage(const QString &page, const Sentence &message);

} // namespace lessonhost

#endif // BROWSER_H
