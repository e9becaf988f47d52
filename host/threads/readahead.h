// SPDX-License-Identifier: MIT
#ifndef READAHEAD_H
#define READAHEAD_H

#include "threads/startedthread.h"

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

namespace lessonhost {

/*!
 * Makes the parts of a lesson as they are asked for, which is one after the other most often: while one is worked with,
 * a second thread makes the next. It is the same thread for all, since a new one for each part takes longer.
 */
template <typename Part> class ReadAhead
{
public:
    //! make: gives the part of an index, and may throw. It runs once at a time, in any thread. isAhead: false if all is
    //! to be done in the thread that asks.
    ReadAhead(bool isAhead, const std::function<Part(int index)> &make)
        : m_isAhead(isAhead)
        , m_make(make)
    {
    }

    ReadAhead(const ReadAhead &) = delete;
    ReadAhead &operator=(const ReadAhead &) = delete;

    ~ReadAhead()
    {
        if (m_thread.joinable()) {
            give({});
            m_thread.join();
        }
    }

    //! What is made for an index, or thrown. count: how many parts there are.
    Part take(int index, int count)
    {
        const bool isMade = m_made.valid() && m_madeIndex == index;
        wait();
        Part part = isMade ? m_made.get() : m_make(index);
        const int next = index + 1;
        if (m_isAhead && index == m_expected && next < count && hasThread()) {
            std::packaged_task<Part()> task([this, next] { return m_make(next); });
            m_made = task.get_future();
            m_madeIndex = next;
            give(std::move(task));
        }
        m_expected = next;
        return part;
    }

private:
    // Until nothing is being made. What the second thread hasn't begun, as on a busy machine, is made here.
    void wait()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isGiven) {
            m_isGiven = false;
            m_task();
        }
    }

    // Where there can't be one, it isn't tried again.
    bool hasThread()
    {
        if (!m_thread.joinable()) {
            m_thread = startedThread([this] { work(); });
            m_isAhead = m_thread.joinable();
        }
        return m_isAhead;
    }

    // To the second thread, which holds the mutex while it works. An empty task ends it.
    void give(std::packaged_task<Part()> task)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_task = std::move(task);
        m_isGiven = true;
        m_given.notify_one();
    }

    void work()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (true) {
            m_given.wait(lock, [this] { return m_isGiven; });
            m_isGiven = false;
            if (!m_task.valid()) {
                return;
            }
            m_task();
        }
    }

    bool m_isAhead;
    std::function<Part(int index)> m_make;
    int m_expected = 0; // what is asked for next if nothing is left out
    std::future<Part> m_made;
    int m_madeIndex = -1;
    std::mutex m_mutex; // of the two below
    std::packaged_task<Part()> m_task;
    bool m_isGiven = false;
    std::condition_variable m_given;
    std::thread m_thread;
};

} // namespace lessonhost

#endif // READAHEAD_H
