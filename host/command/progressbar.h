// SPDX-License-Identifier: MIT
#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include "sentences/sentence.h"

#include <QElapsedTimer>
#include <QString>

namespace lessonhost {

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

    //! text: what is counted, for say(); name: what is being worked on, cut to the width of the terminal.
    void show(int done, int total, const char *text = TO_SAY("%1 of %2 slides"), const QString &name = {});
    void clear();

private:
    bool m_isShown = false; // something stands on the line
    bool m_isWanted;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};

} // namespace lessonhost

#endif // PROGRESSBAR_H
