// SPDX-License-Identifier: MIT
#include "command/progressbar.h"

#include <QByteArray>

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr int barWidth = 30;
constexpr qint64 quickWork = 500; // milliseconds for which a bar would only flicker
constexpr qint64 shortestPause = 100;

// A line that the terminal would break could not be taken back. Names of files may hold what moves the cursor.
QString fitted(QString line)
{
    winsize size{};
    const int width = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
    for (QChar &c : line) {
        if (!c.isPrint()) {
            c = QChar::ReplacementCharacter;
        }
    }
    return line.left(width - 1);
}

} // namespace

ProgressBar::ProgressBar(bool isWanted)
    : m_isWanted(isWanted && isatty(STDERR_FILENO) != 0)
{
    m_sinceStart.start();
    m_sinceShown.start();
}

ProgressBar::~ProgressBar()
{
    clear();
}

void ProgressBar::show(int done, int total, const char *text, const QString &name)
{
    if (!m_isWanted || total <= 0 || m_sinceStart.elapsed() < quickWork || m_sinceShown.elapsed() < shortestPause) {
        return;
    }
    m_sinceShown.restart();
    m_isShown = true;
    const int filled = int(qint64(done) * barWidth / total);
    QByteArray bar(filled, '#');
    bar.append(barWidth - filled, '.');
    QString line = QStringLiteral("[%1] %2").arg(QLatin1String(bar), say(text).arg(done, total).local());
    if (!name.isEmpty()) {
        line += QLatin1String(": ") + name;
    }
    std::fprintf(stderr, "\r%s\033[K", qPrintable(fitted(line)));
    std::fflush(stderr);
}

void ProgressBar::clear()
{
    if (m_isShown) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
        m_isShown = false;
    }
}

} // namespace lessonhost
