// SPDX-License-Identifier: MIT
#ifndef PDFLIBRARY_H
#define PDFLIBRARY_H

#include "render/pdfpages.h"

namespace lessonhost {

/*!
 * The library that makes PDF documents, loaded when the first one is asked for.
 */
struct PdfLibrary
{
    MakePdfPages makePages = nullptr;
    CompletePdf complete = nullptr;

    //! Looks for it beside the build's command, then in the folder of the installation, wherever that was moved to as a
    //! whole. Throws LessonError.
    static const PdfLibrary &instance();
};

} // namespace lessonhost

#endif // PDFLIBRARY_H
