// SPDX-License-Identifier: MIT
#include "threads/cores.h"

#include <algorithm>
#include <thread>

#include <sched.h>

namespace lessonhost {

int usableCores()
{
    cpu_set_t cores;
    // It fails where the machine has more than the set holds.
    const int count = ::sched_getaffinity(0, sizeof cores, &cores) == 0 ? CPU_COUNT(&cores)
                                                                        : int(std::thread::hardware_concurrency());
    return std::max(1, count);
}

} // namespace lessonhost
