#pragma once

#include <ctime>

namespace bench {

using Clock = double (*)();

inline double secondsOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Processor time of this thread: what others compute does not count, waiting for a disk does not either.
inline double threadSeconds() {
    return secondsOf(CLOCK_THREAD_CPUTIME_ID);
}

inline double wallSeconds() {
    return secondsOf(CLOCK_MONOTONIC);
}

}  // namespace bench
