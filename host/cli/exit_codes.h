// What the command's exit codes say.
#pragma once

#include <stdexcept>

namespace cli {

enum ExitCode {
    exit_ok = 0,
    exit_refused = 1,            // by the mapping
    exit_unreadable = 2,         // the input
    exit_refused_by_router = 3,  // it would be no valid configuration, or no AS is known
    exit_locked = 4,             // another process has the router
    exit_store = 5,              // there is no router, or its files are damaged or cannot be written
    exit_differs = 6,            // what a saved trace gave then, and gives now
    exit_usage = 64,
    exit_failed = 70,  // the command itself
};

// What was asked for makes no sense.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace cli
