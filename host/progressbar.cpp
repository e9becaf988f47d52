#include "progressbar.h"

#include <QByteArray>

#include <cstdio>

#include <unistd.h>

namespace {

constexpr int barWidth = 40;
constexpr qint64 quickWork = 500; // milliseconds for which a bar would only flicker
constexpr qint64 shortestPause = 100;

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

void ProgressBar::show(int done, int total)
{
    if (!m_isWanted || total <= 0 || m_sinceStart.elapsed() < quickWork || m_sinceShown.elapsed() < shortestPause) {
        return;
    }
    m_sinceShown.restart();
    m_isShown = true;
    const int filled = int(qint64(done) * barWidth / total);
    QByteArray bar(filled, '#');
    bar.append(barWidth - filled, '.');
    std::fprintf(stderr, "\r[%s] %d of %d slides", bar.constData(), done, total);
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
