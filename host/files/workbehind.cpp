// SPDX-License-Identifier: MIT
#include "files/workbehind.h"

#include <utility>

namespace lessonhost {

namespace {

constexpr qint64 mostBytes = qint64(16) * 1024 * 1024;

} // namespace

WorkBehind::WorkBehind(bool isBehind)
    : m_mostThreads(isBehind ? int(std::thread::hardware_concurrency()) - 1 : 0)
{
}

WorkBehind::~WorkBehind()
{
    {
        const Lock lock(m_mutex);
        m_waiting.clear();
        m_isEnding = true;
        m_given.notify_all();
    }
    for (std::thread &thread : m_threads) {
        thread.join();
    }
}

void WorkBehind::give(qint64 bytes, const std::function<void()> &work)
{
    if (m_mostThreads <= 0) {
        work();
        return;
    }
    Lock lock(m_mutex);
    helpUntil(lock, [this, bytes] { return m_open == 0 || m_bytes + bytes <= mostBytes; });
    m_waiting.push_back({bytes, work});
    ++m_open;
    m_bytes += bytes;
    if (m_idle < int(m_waiting.size()) && int(m_threads.size()) < m_mostThreads) {
        m_threads.emplace_back([this] { run(); });
    }
    m_given.notify_one();
}

void WorkBehind::finish()
{
    Lock lock(m_mutex);
    helpUntil(lock, [this] { return m_open == 0; });
}

void WorkBehind::helpUntil(Lock &lock, const std::function<bool()> &isEnough)
{
    while (!m_failure && !isEnough()) {
        if (m_waiting.empty()) {
            m_done.wait(lock);
        } else {
            doNext(lock);
        }
    }
    if (m_failure) {
        std::rethrow_exception(m_failure);
    }
}

void WorkBehind::run()
{
    Lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_given.wait(lock, [this] { return m_isEnding || !m_waiting.empty(); });
        --m_idle;
        if (m_isEnding) {
            return;
        }
        doNext(lock);
    }
}

// Without the lock while it is done.
void WorkBehind::doNext(Lock &lock)
{
    Piece piece = std::move(m_waiting.front());
    m_waiting.pop_front();
    lock.unlock();
    std::exception_ptr failure;
    try {
        piece.work();
    } catch (...) {
        failure = std::current_exception();
    }
    piece.work = {}; // with what it holds
    lock.lock();
    --m_open;
    m_bytes -= piece.bytes;
    if (failure && !m_failure) {
        m_failure = failure;
        m_waiting.clear();
    }
    m_done.notify_all();
}

} // namespace lessonhost
