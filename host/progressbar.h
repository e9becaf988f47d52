#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include <QElapsedTimer>

/*!
 * A bar on the terminal's error output for work that takes a while. Nothing is shown where that is no terminal.
 */
class ProgressBar
{
public:
    explicit ProgressBar(bool isWanted);
    ~ProgressBar();
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;

    void show(int done, int total);
    void clear();

private:
    bool m_isShown = false; // something stands on the line
    bool m_isWanted;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};

#endif // PROGRESSBAR_H
