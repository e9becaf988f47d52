// SPDX-License-Identifier: MIT
#include "threads/startedthread.h"

#include <system_error>

namespace lessonhost {

std::thread startedThread(const std::function<void()> &work)
{
    try {
        return std::thread(work);
    } catch (const std::system_error &) {
        return {};
    }
}

} // namespace lessonhost
