// SPDX-License-Identifier: MIT
#include "render/pdflibrary.h"

#include "files/lessonerror.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace lessonhost {

namespace {

const QLatin1String fileName("liblessonpdf.so");

QString foundFile()
{
    const QString beside = QCoreApplication::applicationDirPath();
    for (const QString &place :
         {QString(beside + QLatin1String("/../lib")), QString(beside + QLatin1String("/../" PDF_FOLDER_BELOW_PREFIX)),
          QStringLiteral(INSTALLED_PDF_FOLDER)}) {
        const QString file = QDir::cleanPath(place) + QLatin1Char('/') + fileName;
        if (QFileInfo(file).isFile()) {
            return file;
        }
    }
    return {};
}

PdfLibrary loaded()
{
    const QString file = foundFile();
    if (file.isEmpty()) {
        throw LessonError(say("The part of lessonconv that writes PDF, %1, was not found").arg(fileName),
                          say("Build or install the project again, or write .html"));
    }
    QLibrary library(file);
    PdfLibrary functions{reinterpret_cast<MakePdfPages>(library.resolve(makePdfPagesName)),
                         reinterpret_cast<CompletePdf>(library.resolve(completePdfName))};
    if (!functions.makePages || !functions.complete) {
        throw LessonError(say("The part of lessonconv that writes PDF can't be loaded: %1").arg(library.errorString()),
                          say("Build or install the project again, or write .html"))
            .in(file);
    }
    return functions;
}

} // namespace

const PdfLibrary &PdfLibrary::instance()
{
    static const PdfLibrary library = loaded();
    return library;
}

} // namespace lessonhost
