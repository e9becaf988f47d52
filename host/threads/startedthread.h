// SPDX-License-Identifier: MIT
#ifndef STARTEDTHREAD_H
#define STARTEDTHREAD_H

#include <functional>
#include <thread>

namespace lessonhost {

//! A thread that does some work, which throws nothing. Where the system allows no more threads, or has no room for the
//! stack of one, it can't be joined: who starts it can do the work as well.
std::thread startedThread(const std::function<void()> &work);

} // namespace lessonhost

#endif // STARTEDTHREAD_H
