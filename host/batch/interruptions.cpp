// SPDX-License-Identifier: MIT
#include "batch/interruptions.h"

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <initializer_list>

namespace lessonhost {

Interruptions::Interruptions()
{
    sigemptyset(&m_signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&m_signals, signal);
    }
    pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
    m_descriptor = signalfd(-1, &m_signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

Interruptions::~Interruptions()
{
    signalfd_siginfo taken{};
    while (read(m_descriptor, &taken, sizeof taken) > 0) { }
    close(m_descriptor);
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace lessonhost
