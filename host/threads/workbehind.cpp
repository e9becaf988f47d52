// SPDX-License-Identifier: MIT
#include "threads/workbehind.h"

#include "threads/cores.h"
#include "threads/startedthread.h"

#include <utility>

namespace lessonhost {

namespace {

constexpr qint64 mostBytes = qint64(16) * 1024 * 1024;

int mostThreads(WorkBehind::Order order)
{
    const int beside = usableCores() - 1;
    return order == WorkBehind::Order::AsGiven ? qMin(1, beside) : beside;
}

} // namespace

WorkBehind::WorkBehind(bool isBehind, Order order)
    : m_order(order)
    , m_mostThreads(isBehind ? mostThreads(order) : 0)
{
    m_threads.reserve(std::size_t(m_mostThreads)); // so that a thread that is made can be kept
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

void WorkBehind::give(qint64 bytes, std::function<void()> work)
{
    Lock lock(m_mutex);
    helpUntil(lock, [this, bytes] { return m_open == 0 || m_bytes + bytes <= mostBytes; });
    if (m_idle <= int(m_waiting.size()) && int(m_threads.size()) < m_mostThreads) {
        addThread();
    }
    if (m_threads.empty()) {
        lock.unlock();
        work();
        return;
    }
    m_waiting.push_back({bytes, std::move(work)});
    ++m_open;
    m_bytes += bytes;
    m_given.notify_one();
}

// Where there can't be more of them, it isn't tried again.
void WorkBehind::addThread()
{
    std::thread thread = startedThread([this] { run(); });
    if (thread.joinable()) {
        m_threads.push_back(std::move(thread));
    } else {
        m_mostThreads = int(m_threads.size());
    }
}

void WorkBehind::finish()
{
    Lock lock(m_mutex);
    helpUntil(lock, [this] { return m_open == 0; });
}

void WorkBehind::helpUntil(Lock &lock, const std::function<bool()> &isEnough)
{
    while (!m_failure && !isEnough()) {
        if (canBegin()) {
            doNext(lock);
        } else {
            m_done.wait(lock);
        }
    }
    // What was begun before may fail yet.
    m_done.wait(lock, [this] { return !m_failure || m_running == 0; });
    if (m_failure) {
        std::rethrow_exception(m_failure);
    }
}

bool WorkBehind::canBegin() const
{
    return !m_waiting.empty() && (m_order == Order::Any || m_running == 0);
}

void WorkBehind::run()
{
    Lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_given.wait(lock, [this] { return m_isEnding || canBegin(); });
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
    const qint64 number = m_begun++;
    ++m_running;
    lock.unlock();
    std::exception_ptr failure;
    try {
        piece.work();
    } catch (...) {
        failure = std::current_exception();
    }
    piece.work = {}; // with what it holds
    lock.lock();
    --m_running;
    --m_open;
    m_bytes -= piece.bytes;
    if (failure && (!m_failure || number < m_failed)) {
        m_failure = failure;
        m_failed = number;
        m_waiting.clear();
    }
    m_done.notify_all();
    if (canBegin()) {
        m_given.notify_one();
    }
}

} // namespace lessonhost
