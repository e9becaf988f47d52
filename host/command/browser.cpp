// SPDX-License-Identifier: MIT
#include "command/browser.h"

#include "files/lessonerror.h"
#include "files/packagetarget.h"
#include "sentences/language.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <cerrno>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr int mostOpeningMilliseconds = 30000;

} // namespace

// Others may have put a folder, or a link to one, in its place among the temporary files.
QString pageFolder()
{
    QString place = QString::fromLocal8Bit(qgetenv("XDG_RUNTIME_DIR"));
    if (place.isEmpty() || !QFileInfo(place).isWritable()) {
        place = QDir::tempPath();
    }
    const QString folder = place + QStringLiteral("/lessonconv-pages-%1").arg(::geteuid());
    const QByteArray name = QFile::encodeName(folder);
    struct stat there = {};
    const bool isMade = ::mkdir(name.constData(), 0700) == 0 || errno == EEXIST;
    const int error = errno;
    if (!isMade || ::lstat(name.constData(), &there) != 0 || !S_ISDIR(there.st_mode) || there.st_uid != ::geteuid()
        || (there.st_mode & 077) != 0) {
        throw LessonError(say("There can't be a folder for pages here: %1")
                              .arg(isMade ? say("what is there isn't yours alone") : systemReason(error)),
                          say("Draw the lesson with lessonconv render LESSON PAGE.html and open the page"))
            .in(folder);
    }
    return folder;
}

void openInBrowser(const QString &page)
{
    auto opener = std::make_unique<QProcess>();
    opener->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    opener->start(QStringLiteral("xdg-open"), {page});
    const bool isStarted = opener->waitForStarted();
    // Some desktops' programs stay until the browser is closed, which the object would do when it goes.
    if (isStarted && !opener->waitForFinished(mostOpeningMilliseconds)) {
        static_cast<void>(opener.release());
        return;
    }
    if (!isStarted || opener->exitStatus() != QProcess::NormalExit || opener->exitCode() != 0) {
        throw LessonError(say("The page is drawn, but no browser could be opened"), say("Open the page yourself"))
            .in(page);
    }
}

void writeFailurePage(const QString &page, const Sentence &message)
{
    PackageTarget target(page);
    target.file().put("<!DOCTYPE html>\n<html lang=\"" + languageTag(spokenLanguage()).toUtf8()
                      + "\"><head><meta charset=\"utf-8\"><title>lessonconv</title></head>\n<body><p>"
                      + message.local().toHtmlEscaped().toUtf8() + "</p></body></html>\n");
    target.commit();
}

} // namespace lessonhost
