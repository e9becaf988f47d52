// SPDX-License-Identifier: MIT
#include "contactsheet.h"
#include "documents.h"
#include "files/lessonerror.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>

#include <cstdio>

using namespace lessonhost;

namespace {

// The plug-in logs mind maps.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool writeDocuments(const QString &folder)
{
    return write(folder + QLatin1String("/FORMATS.md"), formatsDocument().toUtf8())
        && write(folder + QLatin1String("/LOSSES.md"), lossesDocument().toUtf8())
        && write(folder + QLatin1String("/DRAWINGS.md"), drawingsDocument().toUtf8())
        && write(folder + QLatin1String("/BOARDS.md"), boardsDocument().toUtf8());
}

} // namespace

// generatedocuments FOLDER: writes FORMATS.md, LOSSES.md, DRAWINGS.md and BOARDS.md.
// generatedocuments --sheet FILE [WORD]: writes the lesson of the contact sheet.
int main(int argc, char **argv)
{
    qInstallMessageHandler(keepQuiet);
    qSetGlobalQHashSeed(0);
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool isSheet = arguments.value(1) == QLatin1String("--sheet");
    const QString target = arguments.value(isSheet ? 2 : 1, QStringLiteral("."));
    try {
        if (isSheet ? write(target, QJsonDocument(contactSheet(arguments.value(3))).toJson())
                    : writeDocuments(target)) {
            return 0;
        }
        std::fprintf(stderr, "%s can't be written.\n", qPrintable(target));
    } catch (const LessonError &error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.message().english()));
    }
    return 1;
}
