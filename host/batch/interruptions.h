// SPDX-License-Identifier: MIT
#ifndef INTERRUPTIONS_H
#define INTERRUPTIONS_H

#include <csignal>

namespace lessonhost {

/*!
 * Turns the signals that end a program into something to read, for the object's life. Worker processes that are started
 * meanwhile don't see those of the terminal: whoever started them decides.
 */
class Interruptions
{
public:
    Interruptions();
    ~Interruptions();
    Interruptions(const Interruptions &) = delete;
    Interruptions &operator=(const Interruptions &) = delete;

    //! Has something to read when one came.
    int descriptor() const { return m_descriptor; }

private:
    sigset_t m_signals{};
    sigset_t m_before{};
    int m_descriptor = -1;
};

} // namespace lessonhost

#endif // INTERRUPTIONS_H
