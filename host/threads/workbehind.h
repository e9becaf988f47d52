// SPDX-License-Identifier: MIT
#ifndef WORKBEHIND_H
#define WORKBEHIND_H

#include <QtGlobal>

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace lessonhost {

/*!
 * Work whose results nobody waits for, such as packing pictures: threads do it while who gives it goes on. There are as
 * many as the machine has beside that one, or one where the order counts. Who gives more than they get done does some
 * of it, so that little waits.
 */
class WorkBehind
{
public:
    enum class Order {
        Any,
        AsGiven //!< one piece after the other
    };

    //! isBehind: false if all is to be done by who gives it, at once.
    explicit WorkBehind(bool isBehind, Order order = Order::Any);
    WorkBehind(const WorkBehind &) = delete;
    WorkBehind &operator=(const WorkBehind &) = delete;
    //! What isn't begun is left undone.
    ~WorkBehind();

    //! bytes: the memory that the work holds until it is done. Throws what work before has thrown, the first of it.
    void give(qint64 bytes, std::function<void()> work);
    //! Until all of it is done. Throws likewise.
    void finish();

private:
    struct Piece
    {
        qint64 bytes = 0;
        std::function<void()> work;
    };
    using Lock = std::unique_lock<std::mutex>;

    bool canBegin() const;
    void run();
    void addThread();
    void doNext(Lock &lock);
    void helpUntil(Lock &lock, const std::function<bool()> &isEnough);

    Order m_order;
    int m_mostThreads;
    std::mutex m_mutex; // of all below but for the threads
    std::deque<Piece> m_waiting;
    int m_open = 0; // pieces that wait or are being done
    qint64 m_bytes = 0; // of these
    int m_idle = 0; // threads that wait for work
    int m_running = 0; // pieces that are being done
    qint64 m_begun = 0; // pieces so far
    bool m_isEnding = false;
    std::exception_ptr m_failure; // of the piece that was given first
    qint64 m_failed = 0; // which that is
    std::condition_variable m_given;
    std::condition_variable m_done;
    std::vector<std::thread> m_threads;
};

} // namespace lessonhost

#endif // WORKBEHIND_H
