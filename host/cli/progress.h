// How far a long command has come: one line of a terminal, written anew ten times a second by a thread of its own, so
// that the work itself does not look at a clock. Nothing is written where standard error is no terminal, nor by a
// command that is done at once.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "observer.h"
#include "vmf_map_types.h"

namespace cli {

class Progress {
public:
    // Shows itself if standard error is a terminal that can take a line back, and `is_quiet` is not set.
    explicit Progress(bool is_quiet);
    ~Progress();  // as finish()
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    // Begins a step without an end in sight: "reading".
    void step(std::string_view what);

    // Shows how many of the entries of `bgp`, its neighbors and peer groups, the walks of this thread have entered,
    // from now until the next step.
    void count_entries(const Datatree &bgp);

    // Takes the line back while something else is written to the terminal.
    void interrupt(const std::function<void()> &writes);

    // Takes the line back for good.
    void finish();

private:
    static uint32_t before(void *self, const platform::Operation &operation);

    void stop_counting();
    void write_lines();
    void erase();
    std::string line() const;

    bool is_shown_;
    bool is_counting_ = false;
    std::atomic<size_t> entered_ = 0;
    platform::Observer observer_ = {};
    const platform::Observer *outer_ = nullptr;

    std::mutex mutex_;  // of what follows
    std::condition_variable end_;
    bool is_finished_ = false;
    std::string step_ = {};
    std::string shown_ = {};
    size_t entries_ = 0;  // 0: nothing is counted in this step
    std::thread writer_;
};

}  // namespace cli
