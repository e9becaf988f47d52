#include "documents.h"
#include "files/lessonerror.h"

#include <QFile>
#include <QGuiApplication>

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

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

// generatedocuments FOLDER: writes FORMATS.md and LOSSES.md.
int main(int argc, char **argv)
{
    qInstallMessageHandler(keepQuiet);
    qSetGlobalQHashSeed(0);
    QGuiApplication application(argc, argv);
    const QString folder = QCoreApplication::arguments().value(1, QStringLiteral("."));
    try {
        if (write(folder + QLatin1String("/FORMATS.md"), formatsDocument())
            && write(folder + QLatin1String("/LOSSES.md"), lossesDocument())) {
            return 0;
        }
        std::fprintf(stderr, "The documents can't be written into %s.\n", qPrintable(folder));
    } catch (const LessonError &error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.message()));
    }
    return 1;
}
