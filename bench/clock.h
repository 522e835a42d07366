// The clocks that work is measured by.
#pragma once

#include <time.h>

namespace bench {

inline double seconds_of(clockid_t clock)
{
    timespec now;
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// What the process has used, all threads together.
inline double cpu_seconds() { return seconds_of(CLOCK_PROCESS_CPUTIME_ID); }

inline double wall_seconds() { return seconds_of(CLOCK_MONOTONIC); }

}  // namespace bench
